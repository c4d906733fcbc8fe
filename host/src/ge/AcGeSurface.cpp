// AcGeSurface: distances and membership that every surface answers from its closest points.
#include "gesurf.h"

Adesk::Boolean AcGeSurface::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kSurface || AcGeEntity3d::isKindOf(entType);
}

double AcGeSurface::distanceTo(const AcGePoint3d& pnt, const AcGeTol& tol) const
{
    return pnt.distanceTo(closestPointTo(pnt, tol));
}

Adesk::Boolean AcGeSurface::isOn(const AcGePoint3d& pnt, const AcGeTol& tol) const
{
    return distanceTo(pnt, tol) <= tol.equalPoint();
}
