// The host's own runtime classes, parents first.
#include "HostClasses.h"

#include "rxdlinkr.h"

namespace hostrx {

void registerHostClasses()
{
    AcRxDynamicLinker::rxInit();
    acrxSysRegistry()->atPut(ACRX_DYNAMIC_LINKER, new AcRxDynamicLinker());
    hostgi::registerGiClasses();
    hostdb::registerDbClasses();
    hostents::registerEntityClasses();
    hostpoly::registerPolylineClasses();
    hostap::registerApClasses();
    hostfile::registerFileClasses();
    acrxBuildClassHierarchy();
    hostfile::noteHostClasses();
}

}  // namespace hostrx
