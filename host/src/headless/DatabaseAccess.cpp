// DatabaseAccess: the database's objects by handle, for drawing files.
#include "headless/DatabaseAccess.h"

#include "db/AcDbImpDatabase.h"

namespace headless {

std::vector<AcDbObjectId> DatabaseAccess::objectIds(const AcDbDatabase* db)
{
    std::vector<AcDbObjectId> ids;
    if (db == nullptr)
        return ids;
    const auto& stubs = AcDbImpDatabase::of(db)->stubs();
    ids.reserve(stubs.size());
    for (const auto& [handle, stub] : stubs)
        ids.emplace_back(stub);
    return ids;
}

Acad::ErrorStatus DatabaseAccess::addObjectWithHandle(AcDbDatabase* db, AcDbObject* obj, const AcDbHandle& handle,
                                                      AcDbObjectId& id)
{
    id.setNull();
    if (db == nullptr)
        return Acad::eNoDatabase;
    return AcDbImpDatabase::of(db)->addAt(obj, handle.value(), id);
}

void DatabaseAccess::raiseHandseed(AcDbDatabase* db, const AcDbHandle& seed)
{
    if (db != nullptr)
        AcDbImpDatabase::of(db)->raiseHandseed(seed.value());
}

}  // namespace headless
