// The runtime classes of the graphics interface, registered parents first.
#include "rx/HostClasses.h"

#include "acgi.h"

namespace hostgi {

void registerGiClasses()
{
    AcGiDrawable::rxInit();
    AcGiSubEntityTraits::rxInit();
    AcGiDrawableTraits::rxInit();
    AcGiGeometry::rxInit();
    AcGiWorldGeometry::rxInit();
    AcGiViewportGeometry::rxInit();
    AcGiCommonDraw::rxInit();
    AcGiWorldDraw::rxInit();
    AcGiViewportDraw::rxInit();
    AcGiContext::rxInit();
    AcGiViewport::rxInit();
}

}  // namespace hostgi
