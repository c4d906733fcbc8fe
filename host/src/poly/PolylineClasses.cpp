// The runtime classes of the host's polyline and hatch entities, registered parents first.
#include "rx/HostClasses.h"

namespace hostpoly {

void registerPolylineClasses()
{
}

}  // namespace hostpoly
