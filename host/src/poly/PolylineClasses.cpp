// The runtime classes of the host's polyline and hatch entities, registered parents first,
// and the polyline's place among the curves that intersect one another.
#include "rx/HostClasses.h"

#include "AcDbHatch.h"
#include "AcDbPolyline.h"
#include "PolylineShapes.h"

namespace hostpoly {

void registerPolylineClasses()
{
    AcDbPolyline::rxInit();
    AcDbHatch::rxInit();
    hostents::registerShapeSource(AcDbPolyline::desc(), polylineShapeSource);
}

}  // namespace hostpoly
