// The demo: loads Quarvo.dbx into the headless host, shows what it registers, and
// unloads it again.
#include "DemoCommand.h"

#include "ModuleClasses.h"
#include "acutads.h"
#include "headless/TextCodec.h"
#include "rxdlinkr.h"

namespace quarvo {
namespace {

const ACHAR* const kModuleApplication = L"QX_AEC_DB_APP";

void PrintModuleClasses()
{
    const auto classes = ClassesOfApplication(kModuleApplication);
    acutPrintf(L"\nClasses registered under %s: %d\n", kModuleApplication, static_cast<int>(classes.size()));
    for (const AcRxClass* cls : classes)
        acutPrintf(L"  %s\n", DescribeClass(*cls).c_str());
}

}  // namespace

int RunDemo(const DemoOptions& options)
{
    const std::wstring module = headless::fromUtf8(options.modulePath);
    acutPrintf(L"Loading %s\n", module.c_str());
    if (!acrxDynamicLinker->loadModule(module.c_str(), false))
        return 1;
    acutPrintf(L"\n");
    PrintModuleClasses();

    acutPrintf(L"\nUnloading the module\n");
    if (!acrxDynamicLinker->unloadModule(module.c_str(), false))
        return 1;
    PrintModuleClasses();
    return 0;
}

}  // namespace quarvo
