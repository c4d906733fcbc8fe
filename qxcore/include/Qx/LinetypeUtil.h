// Qx::LinetypeUtil: linetypes by name, and loading them from the host's standard file.
#pragma once

#include "acadstrc.h"
#include "dbid.h"

class AcDbDatabase;

namespace Qx {

class LinetypeUtil {
public:
    // The host's standard linetype file in millimetres, which the module's drawings use.
    static const ACHAR* const kSystemLinetypeFile;

    // The linetype record named name in db (null: the working database); a null id when
    // there is none.
    static AcDbObjectId GetLinetype(const ACHAR* name, AcDbDatabase* db = nullptr);
    // Loads name from the standard file into db; eOk also when it is there already.
    static Acad::ErrorStatus LoadSystemLinetype(const ACHAR* name, AcDbDatabase* db = nullptr);
};

}  // namespace Qx
