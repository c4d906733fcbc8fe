// Qx::TextStyleUtil.
#include "Qx/TextStyleUtil.h"

#include "SymbolLookup.h"

namespace Qx {

AcDbObjectId TextStyleUtil::GetAt(const ACHAR* name, AcDbDatabase* db)
{
    return Detail::FindRecord(name, db, &AcDbDatabase::getTextStyleTable);
}

}  // namespace Qx
