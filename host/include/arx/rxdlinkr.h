// AcRxDynamicLinker: loads and unloads modules by file name and delivers their
// application messages.
#pragma once

#include "rxboiler.h"

#define ACRX_DYNAMIC_LINKER ACRX_T("DynamicLinker")

class ACHOST_API AcRxDynamicLinker : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcRxDynamicLinker);

public:
    // Loads the module file with the platform's loader and sends it kInitAppMsg.
    // A module that is already loaded is not loaded or initialised again (answers true).
    // Failures are reported on the command line and answer false.
    virtual bool loadModule(const ACHAR* fileName, bool printIt, bool asCmd = false);
    // Sends kUnloadAppMsg and closes the file. A locked module, or one whose handler
    // answers kRetError, stays loaded (answers false).
    virtual bool unloadModule(const ACHAR* fileName, bool printIt);
    // Address of an exported symbol of a loaded module, or null.
    virtual void* getSymbolAddress(const ACHAR* fileName, const ACHAR* symbol) const;
    virtual bool isModuleLoaded(const ACHAR* fileName) const;
    // Sends an application message to a loaded module; kRetError when it is not loaded.
    virtual AcRx::AppRetCode sendAppMessage(const ACHAR* fileName, AcRx::AppMsgCode msg);
    // The file names of loaded modules, in load order.
    virtual int moduleCount() const;
    virtual const ACHAR* moduleNameAt(int index) const;

    AcRxDynamicLinker();
    ~AcRxDynamicLinker() override;

    struct Imp;  // the loaded modules

private:
    Imp* m_imp;
};

#define acrxDynamicLinker AcRxDynamicLinker::cast(acrxSysRegistry()->at(ACRX_DYNAMIC_LINKER))
