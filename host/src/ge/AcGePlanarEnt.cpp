// AcGePlanarEnt: the frame of a flat surface, its parametrisation and how it relates to
// other planes and to lines.
#include "geplanar.h"

#include "GeMath.h"
#include "gelent3d.h"
#include "headless/HostError.h"

Adesk::Boolean AcGePlanarEnt::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kPlanarEnt || AcGeSurface::isKindOf(entType);
}

void AcGePlanarEnt::getCoefficients(double& a, double& b, double& c, double& d) const
{
    a = mNormal.x;
    b = mNormal.y;
    c = mNormal.z;
    d = -mNormal.dotProduct(mOrigin.asVector());
}

void AcGePlanarEnt::getCoordSystem(AcGePoint3d& origin, AcGeVector3d& axis1, AcGeVector3d& axis2) const
{
    origin = mOrigin;
    axis1 = mUAxis;
    axis2 = mVAxis;
}

Adesk::Boolean AcGePlanarEnt::isParallelTo(const AcGePlanarEnt& otherPlnEnt, const AcGeTol& tol) const
{
    return mNormal.isParallelTo(otherPlnEnt.mNormal, tol);
}

Adesk::Boolean AcGePlanarEnt::isParallelTo(const AcGeLinearEnt3d& linEnt, const AcGeTol& tol) const
{
    return linEnt.direction().isPerpendicularTo(mNormal, tol);
}

Adesk::Boolean AcGePlanarEnt::isPerpendicularTo(const AcGePlanarEnt& otherPlnEnt, const AcGeTol& tol) const
{
    return mNormal.isPerpendicularTo(otherPlnEnt.mNormal, tol);
}

Adesk::Boolean AcGePlanarEnt::isCoplanarTo(const AcGePlanarEnt& otherPlnEnt, const AcGeTol& tol) const
{
    return isParallelTo(otherPlnEnt, tol) && isOn(otherPlnEnt.mOrigin, tol);
}

Adesk::Boolean AcGePlanarEnt::intersectWith(const AcGeLinearEnt3d& linEnt, AcGePoint3d& resultPnt,
                                            const AcGeTol& tol) const
{
    const AcGeVector3d direction = linEnt.direction();
    if (direction.isZeroLength(tol) || direction.isPerpendicularTo(mNormal, tol))
        return false;
    const AcGePoint3d start = linEnt.pointOnLine();
    const AcGePoint3d hit = start - direction * ((start - mOrigin).dotProduct(mNormal) / direction.dotProduct(mNormal));
    if (!linEnt.isOn(hit, tol))
        return false;
    resultPnt = hit;
    return true;
}

AcGePoint3d AcGePlanarEnt::evalPoint(const AcGePoint2d& param) const
{
    return mOrigin + mUAxis * param.x + mVAxis * param.y;
}

AcGePoint2d AcGePlanarEnt::paramOf(const AcGePoint3d& pnt, const AcGeTol&) const
{
    return hostge::coordinatesIn(mUAxis, mVAxis, pnt - mOrigin);
}

void AcGePlanarEnt::setAxes(const ACHAR* failure, const AcGePoint3d& org, const AcGeVector3d& uAxis,
                            const AcGeVector3d& vAxis)
{
    // Divided by its own length rather than normalised with the tolerance: short axes that
    // are far from parallel still have a short but good cross product.
    const AcGeVector3d cross = uAxis.crossProduct(vAxis);
    const double crossLength = cross.length();
    if (uAxis.isZeroLength() || vAxis.isZeroLength() || uAxis.isParallelTo(vAxis) || crossLength == 0.0)
        headless::raiseHostError(L"%s", failure);
    mOrigin = org;
    mUAxis = uAxis;
    mVAxis = vAxis;
    mNormal = cross / crossLength;
}
