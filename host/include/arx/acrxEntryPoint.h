// The module entry point: IMPLEMENT_ARX_ENTRYPOINT(AppClass) defines the single
// application object and the exported acrxEntryPoint that dispatches to it.
#pragma once

#include "AcRxArxApp.h"
#include "AcRxDbxApp.h"

// The host calls this by name after loading the module file.
extern "C" ADESK_EXPORT AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt);

#define IMPLEMENT_ARX_ENTRYPOINT(CLASSNAME)                                                \
    static CLASSNAME& theArxApp_##CLASSNAME()                                               \
    {                                                                                      \
        static CLASSNAME app;                                                              \
        return app;                                                                        \
    }                                                                                      \
    extern "C" ADESK_EXPORT AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt) \
    {                                                                                      \
        return theArxApp_##CLASSNAME().acrxEntryPoint(msg, pkt);                           \
    }
