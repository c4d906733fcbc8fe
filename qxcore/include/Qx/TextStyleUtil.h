// Qx::TextStyleUtil: text styles by name.
#pragma once

#include "dbid.h"

class AcDbDatabase;

namespace Qx {

class TextStyleUtil {
public:
    // The text style record named name in db (null: the working database); a null id when
    // there is none.
    static AcDbObjectId GetAt(const ACHAR* name, AcDbDatabase* db = nullptr);
};

}  // namespace Qx
