// A module whose initialisation fails: the host must unload it again.
#include "acrxEntryPoint.h"

extern "C" ADESK_EXPORT AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void*)
{
    return msg == AcRx::kInitAppMsg ? AcRx::kRetError : AcRx::kRetOK;
}
