// Qx::DimStyleUtil.
#include "Qx/DimStyleUtil.h"

#include "SymbolLookup.h"

namespace Qx {

AcDbObjectId DimStyleUtil::GetAt(const ACHAR* name, AcDbDatabase* db)
{
    return Detail::FindRecord(name, db, &AcDbDatabase::getDimStyleTable);
}

}  // namespace Qx
