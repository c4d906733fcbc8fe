// The runtime layer's enumerations: application messages and their answers.
#pragma once

#include "adesk.h"

namespace AcRx {

enum AppMsgCode {
    kNullMsg = 0,
    kInitAppMsg = 1,
    kUnloadAppMsg = 2,
    kLoadDwgMsg = 3,
    kUnloadDwgMsg = 4,
    kInvkSubrMsg = 5,
    kCfgMsg = 6,
    kEndMsg = 7,
    kQuitMsg = 8,
    kSaveMsg = 9,
    kDependencyMsg = 10,
    kNoDependencyMsg = 11,
    kOleUnloadAppMsg = 12,
    kPreQuitMsg = 13,
    kInitDialogMsg = 14,
    kEndDialogMsg = 15,
    kSuspendMsg = 16,
    kInitTabGroupMsg = 17,
    kEndTabGroupMsg = 18,
};

// Values UNCONFIRMED; 0 and 3 are the long-standing ones. kRetError from kInitAppMsg
// makes the host unload the module; from kUnloadAppMsg it refuses the unload.
enum AppRetCode {
    kRetOK = 0,
    kRetError = 3,
};

enum Ordering { kLessThan = -1, kEqual = 0, kGreaterThan = 1, kNotOrderable = 2 };

}  // namespace AcRx

using AppNameChangeFuncPtr = void (*)(const class AcRxClass* classObj, ACHAR*& newAppName, int saveVer);
