// Qx::LinetypeUtil.
#include "Qx/LinetypeUtil.h"

#include "SymbolLookup.h"

namespace Qx {

// The stem ending in "iso" asks the host for its metric definitions.
const ACHAR* const LinetypeUtil::kSystemLinetypeFile = L"qxiso.lin";

AcDbObjectId LinetypeUtil::GetLinetype(const ACHAR* name, AcDbDatabase* db)
{
    return Detail::FindRecord(name, db, &AcDbDatabase::getLinetypeTable);
}

Acad::ErrorStatus LinetypeUtil::LoadSystemLinetype(const ACHAR* name, AcDbDatabase* db)
{
    if (db == nullptr)
        db = acdbHostApplicationServices()->workingDatabase();
    if (db == nullptr || name == nullptr || *name == L'\0')
        return Acad::eInvalidInput;
    if (GetLinetype(name, db).isValid())
        return Acad::eOk;
    return db->loadLineTypeFile(name, kSystemLinetypeFile);
}

}  // namespace Qx
