// AcDbDatabase's clone operations: copies of objects within the drawing and wblock of
// objects into another drawing.
#include "AcDbDatabase.h"

#include "CloneEngine.h"

Acad::ErrorStatus AcDbDatabase::deepCloneObjects(const AcDbObjectIdArray& objectIds, const AcDbObjectId& owner,
                                                 AcDbIdMapping& idMap, bool deferXlation)
{
    return hostdb::CloneEngine::run(this, objectIds, owner, idMap, hostdb::CloneEngine::Kind::kDeep,
                                    AcDb::kDrcNotApplicable, deferXlation);
}

Acad::ErrorStatus AcDbDatabase::wblockCloneObjects(const AcDbObjectIdArray& objectIds, const AcDbObjectId& owner,
                                                   AcDbIdMapping& idMap, AcDb::DuplicateRecordCloning drc,
                                                   bool deferXlation)
{
    return hostdb::CloneEngine::run(this, objectIds, owner, idMap, hostdb::CloneEngine::Kind::kWblock, drc,
                                    deferXlation);
}
