// AcRxArxApp: the application framework class of a full application module. It adds the
// module's command table to AcRxDbxApp; a module that declares no commands has an empty
// table, so registering and unregistering it does nothing.
#pragma once

#include "AcRxDbxApp.h"

class AcRxArxApp : public AcRxDbxApp {
public:
    AcRx::AppRetCode On_kInitAppMsg(void* pkt) override
    {
        const AcRx::AppRetCode result = AcRxDbxApp::On_kInitAppMsg(pkt);
        registerCommands();
        return result;
    }
    AcRx::AppRetCode On_kUnloadAppMsg(void* pkt) override
    {
        unregisterCommands();
        return AcRxDbxApp::On_kUnloadAppMsg(pkt);
    }

protected:
    // Command tables belong to applications with commands; the headless host has no editor
    // to add them to, so these stay empty hooks for such modules.
    virtual void registerCommands() {}
    virtual void unregisterCommands() {}
};
