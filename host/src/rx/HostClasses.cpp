// The host's own runtime classes, parents first. Each area of the host adds its
// registration function here.
#include "HostClasses.h"

#include "rxdlinkr.h"

namespace hostrx {

void registerHostClasses()
{
    AcRxDynamicLinker::rxInit();
    acrxSysRegistry()->atPut(ACRX_DYNAMIC_LINKER, new AcRxDynamicLinker());
    acrxBuildClassHierarchy();
}

}  // namespace hostrx
