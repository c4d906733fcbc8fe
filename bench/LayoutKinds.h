// The kinds of entity a layout benchmark is run over: each kind makes its module entity
// number i, and the plain host entity of the same vertices that it is weighed against.
// A new kind joins every layout benchmark with one row in LayoutKinds().
#pragma once

#include <vector>

#include "dbmain.h"

namespace bench {

struct LayoutKind {
    const char* name;
    // Entity number i of a layout: placed on a grid so that no two coincide.
    AcDbEntity* (*makeCustom)(AcDbDatabase* db, int i);
    AcDbEntity* (*makePlain)(AcDbDatabase* db, int i);
};

const std::vector<LayoutKind>& LayoutKinds();

}  // namespace bench
