// AecDbxApp: the module's application object. At load it registers the module's runtime
// classes and announces itself; at unload it deletes them again.
#pragma once

#include "acrxEntryPoint.h"

class AecDbxApp : public AcRxArxApp {
public:
    AcRx::AppRetCode On_kInitAppMsg(void* pkt) override;
    AcRx::AppRetCode On_kUnloadAppMsg(void* pkt) override;
};
