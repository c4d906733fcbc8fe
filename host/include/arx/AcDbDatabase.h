// AcDbDatabase: a drawing: its objects by handle, the symbol tables, and the current
// values (layer, linetype, colour, styles) that new entities take.
#pragma once

#include "AcDbHandle.h"
#include "acdb.h"
#include "dbcolor.h"
#include "dbid.h"
#include "rxboiler.h"

class AcDbObject;
class AcDbBlockTable;
class AcDbLayerTable;
class AcDbLinetypeTable;
class AcDbTextStyleTable;
class AcDbDimStyleTable;
class AcDbImpDatabase;
class AcDbIdMapping;

class ACHOST_API AcDbDatabase : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcDbDatabase);

public:
    // The default drawing has model and paper space, layer "0", the linetypes "ByBlock",
    // "ByLayer" and "Continuous", and the text and dimension styles "Standard".
    // noDocument is accepted for the interface; the headless host ties no database to a
    // document by itself.
    AcDbDatabase(bool buildDefaultDrawing = true, bool noDocument = false);
    // Deletes every object of the drawing.
    ~AcDbDatabase() override;
    AcDbDatabase(const AcDbDatabase&) = delete;
    AcDbDatabase& operator=(const AcDbDatabase&) = delete;

    // Makes obj resident with the next handle; it stays open for write for the caller to
    // close. eAlreadyInDb when it is in a database already.
    Acad::ErrorStatus addAcDbObject(AcDbObjectId& objId, AcDbObject* obj);
    Acad::ErrorStatus addAcDbObject(AcDbObject* obj);
    // The id of the object with the handle; with createIfNotFound an unknown handle gets a
    // stub that an object filed in later fills. eNullHandle, eUnknownHandle.
    Acad::ErrorStatus getAcDbObjectId(AcDbObjectId& retId, bool createIfNotFound, const AcDbHandle& objHandle,
                                      Adesk::UInt32 xRefId = 0);
    // Clones the objects (all of this database) into owner, a block or another object of
    // this database, filling idMap; objects they own come along. References between the
    // clones name the clones afterwards; others stay as they were. Objects of several
    // owners take one call each with deferXlation true on all but the last: the
    // references are translated, and endDeepClone sent, once at the last call.
    // eWrongDatabase, eNullObjectId, eInvalidOwnerObject, eInvalidIdMap (the mapping
    // served a finished operation), or the first clone's failure (the operation is then
    // aborted: abortDeepClone is sent and the clones made so far are erased).
    Acad::ErrorStatus deepCloneObjects(const AcDbObjectIdArray& objectIds, const AcDbObjectId& owner,
                                       AcDbIdMapping& idMap, bool deferXlation = false);
    // As deepCloneObjects, into owner in another database (or this one). Hard pointers
    // are followed too; symbol table records are matched by name in the destination
    // (drc: kDrcReplace overwrites the destination's record with the source's fields;
    // the mangling choices are not supported and behave as kDrcIgnore), and references
    // to objects that were not cloned become null.
    Acad::ErrorStatus wblockCloneObjects(const AcDbObjectIdArray& objectIds, const AcDbObjectId& owner,
                                         AcDbIdMapping& idMap, AcDb::DuplicateRecordCloning drc,
                                         bool deferXlation = false);

    // The next handle to be given out.
    AcDbHandle handseed() const;
    Adesk::Int32 approxNumObjects() const;

    Acad::ErrorStatus getBlockTable(AcDbBlockTable*& table, AcDb::OpenMode mode = AcDb::kForRead);
    Acad::ErrorStatus getLayerTable(AcDbLayerTable*& table, AcDb::OpenMode mode = AcDb::kForRead);
    Acad::ErrorStatus getLinetypeTable(AcDbLinetypeTable*& table, AcDb::OpenMode mode = AcDb::kForRead);
    Acad::ErrorStatus getTextStyleTable(AcDbTextStyleTable*& table, AcDb::OpenMode mode = AcDb::kForRead);
    Acad::ErrorStatus getDimStyleTable(AcDbDimStyleTable*& table, AcDb::OpenMode mode = AcDb::kForRead);
    Acad::ErrorStatus getSymbolTable(AcDbBlockTable*& table, AcDb::OpenMode mode = AcDb::kForRead);
    Acad::ErrorStatus getSymbolTable(AcDbLayerTable*& table, AcDb::OpenMode mode = AcDb::kForRead);
    Acad::ErrorStatus getSymbolTable(AcDbLinetypeTable*& table, AcDb::OpenMode mode = AcDb::kForRead);
    Acad::ErrorStatus getSymbolTable(AcDbTextStyleTable*& table, AcDb::OpenMode mode = AcDb::kForRead);
    Acad::ErrorStatus getSymbolTable(AcDbDimStyleTable*& table, AcDb::OpenMode mode = AcDb::kForRead);

    AcDbObjectId blockTableId() const;
    AcDbObjectId layerTableId() const;
    AcDbObjectId linetypeTableId() const;
    AcDbObjectId textStyleTableId() const;
    AcDbObjectId dimStyleTableId() const;
    AcDbObjectId layerZero() const;
    AcDbObjectId byLayerLinetype() const;
    AcDbObjectId byBlockLinetype() const;
    AcDbObjectId continuousLinetype() const;
    // Model space, or the block of the active layout.
    AcDbObjectId currentSpaceId() const;

    // The current values. Setters taking ids check that the id is a record of the right
    // table of this database (eNullObjectId, eWrongDatabase, eWrongObjectType).
    AcDbObjectId textstyle() const;
    Acad::ErrorStatus setTextstyle(AcDbObjectId id);
    AcDbObjectId dimstyle() const;
    Acad::ErrorStatus setDimstyle(AcDbObjectId id);
    AcDbObjectId clayer() const;
    Acad::ErrorStatus setClayer(AcDbObjectId id);
    AcDbObjectId celtype() const;
    Acad::ErrorStatus setCeltype(AcDbObjectId id);
    AcCmColor cecolor() const;
    Acad::ErrorStatus setCecolor(const AcCmColor& color);
    double celtscale() const;
    Acad::ErrorStatus setCeltscale(double scale);  // eInvalidInput unless finite and positive
    AcDb::LineWeight celweight() const;
    Acad::ErrorStatus setCelweight(AcDb::LineWeight weight);  // eInvalidInput for other numbers
    double ltscale() const;
    Acad::ErrorStatus setLtscale(double scale);    // eInvalidInput unless finite and positive

    // Loads linetype definitions by name ("*" and "?" match any characters, "*" alone
    // loads all). eDuplicateRecordName when a single named linetype is already loaded,
    // eUndefinedLineType when no definition matches.
    Acad::ErrorStatus loadLineTypeFile(const ACHAR* ltName, const ACHAR* fileName);

private:
    friend class AcDbImpDatabase;
    AcDbImpDatabase* m_imp;
};
