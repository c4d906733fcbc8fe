// Qx::DimStyleUtil: dimension styles by name.
#pragma once

#include "dbid.h"

class AcDbDatabase;

namespace Qx {

class DimStyleUtil {
public:
    // The dimension style record named name in db (null: the working database); a null id
    // when there is none.
    static AcDbObjectId GetAt(const ACHAR* name, AcDbDatabase* db = nullptr);
};

}  // namespace Qx
