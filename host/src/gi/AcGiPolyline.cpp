// AcGiPolyline and AcGiClipBoundary: the text form of the primitive argument objects.
#include "AcGiPolyline.h"

#include <ostream>

#include "AcGiClipBoundary.h"

std::ostream& operator<<(std::ostream& os, const AcGiPolyline& polyline)
{
    os << "AcGiPolyline(" << polyline.points() << " points";
    if (polyline.baseSubEntMarker() != -1)
        os << ", marker " << polyline.baseSubEntMarker();
    if (polyline.normal() != nullptr)
        os << ", normal " << *polyline.normal();
    return os << ')';
}

std::ostream& operator<<(std::ostream& os, const AcGiClipBoundary& boundary)
{
    os << "AcGiClipBoundary(" << boundary.m_aptPoints.length() << " points";
    if (boundary.m_bClippingFront)
        os << ", front " << boundary.m_dFrontClipZ;
    if (boundary.m_bClippingBack)
        os << ", back " << boundary.m_dBackClipZ;
    return os << ')';
}
