// AcRxDbxApp: the application framework class of an object-enabler module. The module's
// entry point hands every application message to one instance, which calls the matching
// On_k... handler; handlers the module does not override do nothing but answer kRetOK.
#pragma once

#include "rxdefs.h"
#include "rxregsvc.h"

class AcRxDbxApp {
public:
    AcRxDbxApp() = default;
    virtual ~AcRxDbxApp() = default;
    AcRxDbxApp(const AcRxDbxApp&) = delete;
    AcRxDbxApp& operator=(const AcRxDbxApp&) = delete;

    // The dispatcher behind acrxEntryPoint. kSuspendMsg and the tab-group messages have
    // no handler and are answered kRetOK.
    virtual AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt)
    {
        switch (msg) {
        case AcRx::kNullMsg: return On_kNullMsg(pkt);
        case AcRx::kInitAppMsg: return On_kInitAppMsg(pkt);
        case AcRx::kUnloadAppMsg: return On_kUnloadAppMsg(pkt);
        case AcRx::kLoadDwgMsg: return On_kLoadDwgMsg(pkt);
        case AcRx::kUnloadDwgMsg: return On_kUnloadDwgMsg(pkt);
        case AcRx::kInvkSubrMsg: return On_kInvkSubrMsg(pkt);
        case AcRx::kCfgMsg: return On_kCfgMsg(pkt);
        case AcRx::kEndMsg: return On_kEndMsg(pkt);
        case AcRx::kQuitMsg: return On_kQuitMsg(pkt);
        case AcRx::kSaveMsg: return On_kSaveMsg(pkt);
        case AcRx::kDependencyMsg: return On_kDependencyMsg(pkt);
        case AcRx::kNoDependencyMsg: return On_kNoDependencyMsg(pkt);
        case AcRx::kOleUnloadAppMsg: return On_kOleUnloadAppMsg(pkt);
        case AcRx::kPreQuitMsg: return On_kPreQuitMsg(pkt);
        case AcRx::kInitDialogMsg: return On_kInitDialogMsg(pkt);
        case AcRx::kEndDialogMsg: return On_kEndDialogMsg(pkt);
        default: return AcRx::kRetOK;
        }
    }

    // The base initialisation lets the host unload the module and marks it able to work
    // with several open drawings (UNCONFIRMED: these are what the framework is commonly
    // described to do).
    virtual AcRx::AppRetCode On_kInitAppMsg(void* pkt)
    {
        acrxUnlockApplication(pkt);
        acrxRegisterAppMDIAware(pkt);
        return AcRx::kRetOK;
    }
    virtual AcRx::AppRetCode On_kUnloadAppMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kNullMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kLoadDwgMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kUnloadDwgMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kInvkSubrMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kCfgMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kEndMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kQuitMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kSaveMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kDependencyMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kNoDependencyMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kOleUnloadAppMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kPreQuitMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kInitDialogMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kEndDialogMsg(void*) { return AcRx::kRetOK; }

    // Object-enabler modules register no COM servers here.
    virtual void RegisterServerComponents() {}
};
