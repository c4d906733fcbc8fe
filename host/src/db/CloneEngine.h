// CloneEngine: the host's deep and wblock clone. It runs the operations of the database
// (clone the primary objects, notify, translate every clone's references, notify) and
// provides the default per-object clone that AcDbObject::subDeepClone and subWblockClone
// use: new object, fields through a clone filer, placement under the owner, the pair,
// and the objects it brings along.
#pragma once

#include "dbidmap.h"
#include "dbmain.h"
#include "dbsymtb.h"

namespace hostdb {

class CloneEngine {
public:
    enum class Kind { kDeep, kWblock };

    // deepCloneObjects (kDeep) and wblockCloneObjects (kWblock) of source.
    static Acad::ErrorStatus run(AcDbDatabase* source, const AcDbObjectIdArray& ids, const AcDbObjectId& owner,
                                 AcDbIdMapping& map, Kind kind, AcDb::DuplicateRecordCloning records, bool defer);

    // The default clone of one object.
    static Acad::ErrorStatus cloneObject(const AcDbObject* source, AcRxObject* owner, AcDbObject*& clone,
                                         AcDbIdMapping& map, bool isPrimary, Kind kind);

private:
    static Acad::ErrorStatus checkOperation(AcDbDatabase* source, const AcDbObjectIdArray& ids,
                                            const AcDbObjectId& owner, AcDbIdMapping& map, Kind kind);
    static void begin(AcDbDatabase* source, AcDbIdMapping& map, Kind kind, AcDb::DuplicateRecordCloning records);
    static Acad::ErrorStatus clonePrimaries(const AcDbObjectIdArray& ids, const AcDbObjectId& owner,
                                            AcDbIdMapping& map, Kind kind);
    static Acad::ErrorStatus finish(AcDbIdMapping& map);
    static Acad::ErrorStatus translateAll(AcDbIdMapping& map);
    static Acad::ErrorStatus abort(AcDbIdMapping& map, Acad::ErrorStatus why);

    static Acad::ErrorStatus place(AcDbObject* clone, AcRxObject* owner, bool isPrimary);
    // Clones what the source's filing referred to and the operation brings along.
    static Acad::ErrorStatus follow(const AcDbObjectId& id, AcDb::ReferenceType kind, AcDbObject* cloneOwner,
                                    AcDbIdMapping& map, Kind cloneKind);
    // A wblock of a hard pointer to an object that is not a symbol table record.
    static Acad::ErrorStatus followPointer(AcDbObject* target, AcDbIdMapping& map);
    // A wblock of a symbol table record: the destination's record of the same name stands
    // for it, or it is cloned into the destination's table.
    static Acad::ErrorStatus mapRecord(AcDbSymbolTableRecord* record, AcDbIdMapping& map);
};

}  // namespace hostdb
