// A well-behaved module: registers two classes under "QX_TEST_APP" and counts the
// application messages it receives.
#include "acrxEntryPoint.h"
#include "rxboiler.h"

class TestModuleBase : public AcRxObject {
    ACRX_DECLARE_MEMBERS(TestModuleBase);
};
class TestModuleThing : public TestModuleBase {
    ACRX_DECLARE_MEMBERS(TestModuleThing);
};

ACRX_NO_CONS_DEFINE_MEMBERS(TestModuleBase, AcRxObject)
ACRX_DXF_DEFINE_MEMBERS(TestModuleThing, TestModuleBase, 33, 327, 0x37F, QX_TEST_THING, QX_TEST_APP)

namespace {
int g_initCount = 0;
int g_unloadCount = 0;
}  // namespace

extern "C" ADESK_EXPORT int testModuleInitCount() { return g_initCount; }
extern "C" ADESK_EXPORT int testModuleUnloadCount() { return g_unloadCount; }

class TestGoodApp : public AcRxDbxApp {
public:
    AcRx::AppRetCode On_kInitAppMsg(void* pkt) override
    {
        const AcRx::AppRetCode result = AcRxDbxApp::On_kInitAppMsg(pkt);
        ++g_initCount;
        TestModuleBase::rxInit();
        TestModuleThing::rxInit();
        acrxBuildClassHierarchy();
        return result;
    }
    AcRx::AppRetCode On_kUnloadAppMsg(void* pkt) override
    {
        ++g_unloadCount;
        deleteAcRxClass(TestModuleThing::desc());
        deleteAcRxClass(TestModuleBase::desc());
        return AcRxDbxApp::On_kUnloadAppMsg(pkt);
    }
};

IMPLEMENT_ARX_ENTRYPOINT(TestGoodApp)
