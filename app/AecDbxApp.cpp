// AecDbxApp: start-up and tear-down of the module, and its exported entry point.
#include "AecDbxApp.h"

#include "BuildStamp.h"
#include "ClassRegistration.h"
#include "DeepCloneReactor.h"
#include "DocReactor.h"
#include "acutads.h"
#include "panel/AecPanel.h"
#include "panel/LinkageChangeCollector.h"

AcRx::AppRetCode AecDbxApp::On_kInitAppMsg(void* pkt)
{
    const AcRx::AppRetCode result = AcRxArxApp::On_kInitAppMsg(pkt);
    Quarvo::RegisterModuleClasses();
    acrxBuildClassHierarchy();
    DocReactor::Install();
    DeepCloneReactor::Install();
    const AcString stamp = Quarvo::ModuleBuildStamp();
    acutPrintf(L"\n[Release] Quarvo loaded! \tBuild time: %s", stamp.kwszPtr());
    return result;
}

AcRx::AppRetCode AecDbxApp::On_kUnloadAppMsg(void* pkt)
{
    DocReactor::Remove();
    DeepCloneReactor::Remove();
    Quarvo::UnregisterModuleClasses();
    // The collector and the hidden panels belong to this load of the module.
    DbxPanel::LinkageChangeCollector::DestroyInstance();
    AecPanel::ClearTemporaryHiddenPanelIds();
    AcRxArxApp::On_kUnloadAppMsg(pkt);
    return AcRx::kRetOK;
}

IMPLEMENT_ARX_ENTRYPOINT(AecDbxApp)
