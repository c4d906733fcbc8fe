// The few Windows value types that the host interface names. No windows exist in the
// headless host; these only let the interface and its callers compile.
#pragma once

#include "adesk.h"

#ifndef _WIN32
struct GUID {
    Adesk::UInt32 Data1;
    Adesk::UInt16 Data2;
    Adesk::UInt16 Data3;
    Adesk::UInt8 Data4[8];
};
using CLSID = GUID;
#endif
