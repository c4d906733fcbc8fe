// A module that never unlocks itself: the host must refuse to unload it.
#include "acrxEntryPoint.h"

extern "C" ADESK_EXPORT AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode, void*)
{
    return AcRx::kRetOK;
}
