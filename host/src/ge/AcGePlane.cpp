// AcGePlane: construction from normals, points or coefficients, distances and
// transformation of an unbounded plane.
#include "geplane.h"

#include <ostream>

#include "gemat3d.h"
#include "headless/HostError.h"

const AcGePlane AcGePlane::kXYPlane(AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 0), AcGeVector3d(0, 0, 1));
const AcGePlane AcGePlane::kYZPlane(AcGeVector3d(0, 1, 0), AcGeVector3d(0, 0, 1), AcGeVector3d(1, 0, 0));
const AcGePlane AcGePlane::kZXPlane(AcGeVector3d(0, 0, 1), AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 0));

AcGePlane::AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& normal) : AcGePlane()
{
    set(origin, normal);
}

AcGePlane::AcGePlane(const AcGePoint3d& pntU, const AcGePoint3d& org, const AcGePoint3d& pntV) : AcGePlane()
{
    set(pntU, org, pntV);
}

AcGePlane::AcGePlane(const AcGePoint3d& org, const AcGeVector3d& uAxis, const AcGeVector3d& vAxis) : AcGePlane()
{
    set(org, uAxis, vAxis);
}

AcGePlane::AcGePlane(double a, double b, double c, double d) : AcGePlane()
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

double AcGePlane::signedDistanceTo(const AcGePoint3d& pnt) const
{
    return (pnt - mOrigin).dotProduct(mNormal);
}

AcGePoint3d AcGePlane::closestPointTo(const AcGePoint3d& pnt, const AcGeTol&) const
{
    return pnt - mNormal * signedDistanceTo(pnt);
}

Adesk::Boolean AcGePlane::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kPlane || AcGePlanarEnt::isKindOf(entType);
}

AcGeEntity3d* AcGePlane::copy() const
{
    return new AcGePlane(*this);
}

Adesk::Boolean AcGePlane::isEqualTo(const AcGeEntity3d& entity, const AcGeTol& tol) const
{
    if (entity.type() != AcGe::kPlane)
        return false;
    const auto& other = static_cast<const AcGePlane&>(entity);
    return mOrigin.isEqualTo(other.mOrigin, tol) && mUAxis.isEqualTo(other.mUAxis, tol) &&
           mVAxis.isEqualTo(other.mVAxis, tol);
}

AcGePlane& AcGePlane::transformBy(const AcGeMatrix3d& xfm)
{
    setAxes(L"AcGePlane::transformBy: the matrix flattens the plane", xfm * mOrigin, xfm * mUAxis, xfm * mVAxis);
    return *this;
}

void AcGePlane::print(std::ostream& os) const
{
    os << "AcGePlane(origin " << mOrigin << ", u " << mUAxis << ", v " << mVAxis << ", normal " << mNormal << ')';
}

std::ostream& operator<<(std::ostream& os, const AcGePlane& pln)
{
    pln.print(os);
    return os;
}
