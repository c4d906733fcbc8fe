// AcGePlane: construction from normals, points or coefficients, distances, projection
// and parametrisation of an unbounded plane.
#include "geplane.h"

#include <cmath>
#include <ostream>

#include "GeFormat.h"
#include "GeMath.h"
#include "geline3d.h"
#include "gemat3d.h"
#include "headless/HostError.h"

const AcGePlane AcGePlane::kXYPlane(AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 0), AcGeVector3d(0, 0, 1));
const AcGePlane AcGePlane::kYZPlane(AcGeVector3d(0, 1, 0), AcGeVector3d(0, 0, 1), AcGeVector3d(1, 0, 0));
const AcGePlane AcGePlane::kZXPlane(AcGeVector3d(0, 0, 1), AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 0));

AcGePlane::AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& normal)
{
    set(origin, normal);
}

AcGePlane::AcGePlane(const AcGePoint3d& pntU, const AcGePoint3d& org, const AcGePoint3d& pntV)
{
    set(pntU, org, pntV);
}

AcGePlane::AcGePlane(const AcGePoint3d& org, const AcGeVector3d& uAxis, const AcGeVector3d& vAxis)
{
    set(org, uAxis, vAxis);
}

AcGePlane::AcGePlane(double a, double b, double c, double d)
{
    set(a, b, c, d);
}

AcGePlane& AcGePlane::set(const AcGePoint3d& origin, const AcGeVector3d& normal)
{
    if (normal.isZeroLength())
        headless::raiseHostError(L"AcGePlane::set: the normal has zero length");
    mOrigin = origin;
    mNormal = normal.normal();
    // The host's arbitrary axis for the normal, as AcGeVector3d::perpVector gives it.
    mUAxis = mNormal.perpVector().normal();
    mVAxis = mNormal.crossProduct(mUAxis);
    return *this;
}

AcGePlane& AcGePlane::set(const AcGePoint3d& pntU, const AcGePoint3d& org, const AcGePoint3d& pntV)
{
    setAxes(L"AcGePlane::set: the three points are collinear", org, pntU - org, pntV - org);
    return *this;
}

AcGePlane& AcGePlane::set(const AcGePoint3d& org, const AcGeVector3d& uAxis, const AcGeVector3d& vAxis)
{
    setAxes(L"AcGePlane::set: the axes are parallel", org, uAxis, vAxis);
    return *this;
}

AcGePlane& AcGePlane::set(double a, double b, double c, double d)
{
    const AcGeVector3d normal(a, b, c);
    if (normal.isZeroLength())
        headless::raiseHostError(L"AcGePlane::set: the coefficients a, b and c are all zero");
    return set(AcGePoint3d::kOrigin - normal * (d / normal.lengthSqrd()), normal);
}

void AcGePlane::getCoefficients(double& a, double& b, double& c, double& d) const
{
    a = mNormal.x;
    b = mNormal.y;
    c = mNormal.z;
    d = -mNormal.dotProduct(mOrigin.asVector());
}

void AcGePlane::getCoordSystem(AcGePoint3d& origin, AcGeVector3d& axis1, AcGeVector3d& axis2) const
{
    origin = mOrigin;
    axis1 = mUAxis;
    axis2 = mVAxis;
}

double AcGePlane::signedDistanceTo(const AcGePoint3d& pnt) const
{
    return (pnt - mOrigin).dotProduct(mNormal);
}

double AcGePlane::distanceTo(const AcGePoint3d& pnt) const
{
    return std::fabs(signedDistanceTo(pnt));
}

AcGePoint3d AcGePlane::closestPointTo(const AcGePoint3d& pnt, const AcGeTol&) const
{
    return pnt - mNormal * signedDistanceTo(pnt);
}

Adesk::Boolean AcGePlane::isOn(const AcGePoint3d& pnt, const AcGeTol& tol) const
{
    return distanceTo(pnt) <= tol.equalPoint();
}

AcGePoint3d AcGePlane::evalPoint(const AcGePoint2d& param) const
{
    return mOrigin + mUAxis * param.x + mVAxis * param.y;
}

AcGePoint2d AcGePlane::paramOf(const AcGePoint3d& pnt, const AcGeTol&) const
{
    return hostge::coordinatesIn(mUAxis, mVAxis, pnt - mOrigin);
}

Adesk::Boolean AcGePlane::isParallelTo(const AcGePlane& otherPln, const AcGeTol& tol) const
{
    return mNormal.isParallelTo(otherPln.mNormal, tol);
}

Adesk::Boolean AcGePlane::isCoplanarTo(const AcGePlane& otherPln, const AcGeTol& tol) const
{
    return isParallelTo(otherPln, tol) && isOn(otherPln.mOrigin, tol);
}

Adesk::Boolean AcGePlane::intersectWith(const AcGeLine3d& line, AcGePoint3d& resultPnt, const AcGeTol& tol) const
{
    const AcGeVector3d direction = line.direction();
    if (direction.isPerpendicularTo(mNormal, tol))
        return false;
    const AcGePoint3d start = line.pointOnLine();
    resultPnt = start - direction * (signedDistanceTo(start) / direction.dotProduct(mNormal));
    return true;
}

AcGePlane& AcGePlane::transformBy(const AcGeMatrix3d& xfm)
{
    setAxes(L"AcGePlane::transformBy: the matrix flattens the plane", xfm * mOrigin, xfm * mUAxis, xfm * mVAxis);
    return *this;
}

void AcGePlane::setAxes(const ACHAR* failure, const AcGePoint3d& org, const AcGeVector3d& uAxis,
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

std::ostream& operator<<(std::ostream& os, const AcGePlane& pln)
{
    AcGePoint3d origin;
    AcGeVector3d u;
    AcGeVector3d v;
    pln.getCoordSystem(origin, u, v);
    os << "AcGePlane(origin " << origin << ", u " << u << ", v " << v << ", normal " << pln.normal() << ')';
    return os;
}
