// AcGePlane: an unbounded plane with its own parametrisation: an origin and two axes u and
// v; the point at parameters (s, t) is origin + s u + t v. The normal is u x v, normalised.
#pragma once

#include <iosfwd>

#include "gepnt2d.h"
#include "gepnt3d.h"
#include "gevec3d.h"

class AcGeLine3d;
class AcGeMatrix3d;

class ACHOST_API AcGePlane {
public:
    static const AcGePlane kXYPlane;  // u X, v Y, normal Z
    static const AcGePlane kYZPlane;  // u Y, v Z, normal X
    static const AcGePlane kZXPlane;  // u Z, v X, normal Y

    // The XY plane.
    constexpr AcGePlane() : AcGePlane(AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 0), AcGeVector3d(0, 0, 1)) {}
    // Through origin; u is the normal's perpVector normalised and v completes a right-handed
    // system. A zero normal raises the host error.
    AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& normal);
    // Through three points: u = pntU - org, v = pntV - org. Collinear points raise the host error.
    AcGePlane(const AcGePoint3d& pntU, const AcGePoint3d& org, const AcGePoint3d& pntV);
    // Axes as given; parallel axes raise the host error.
    AcGePlane(const AcGePoint3d& org, const AcGeVector3d& uAxis, const AcGeVector3d& vAxis);
    // a x + b y + c z + d = 0, origin the point closest to the world origin; a zero (a, b, c)
    // raises the host error.
    AcGePlane(double a, double b, double c, double d);

    AcGePlane& set(const AcGePoint3d& origin, const AcGeVector3d& normal);
    AcGePlane& set(const AcGePoint3d& pntU, const AcGePoint3d& org, const AcGePoint3d& pntV);
    AcGePlane& set(const AcGePoint3d& org, const AcGeVector3d& uAxis, const AcGeVector3d& vAxis);
    AcGePlane& set(double a, double b, double c, double d);

    AcGePoint3d pointOnPlane() const { return mOrigin; }
    // Unit length.
    AcGeVector3d normal() const { return mNormal; }
    // With the unit normal: a x + b y + c z + d = 0.
    void getCoefficients(double& a, double& b, double& c, double& d) const;
    // The origin and the u and v axes as the plane keeps them.
    void getCoordSystem(AcGePoint3d& origin, AcGeVector3d& axis1, AcGeVector3d& axis2) const;

    // Positive on the side the normal points to.
    double signedDistanceTo(const AcGePoint3d& pnt) const;
    double distanceTo(const AcGePoint3d& pnt) const;
    // The foot of the perpendicular (exact for a plane; tol is not needed).
    AcGePoint3d closestPointTo(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;
    // |signed distance| <= equalPoint.
    Adesk::Boolean isOn(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;
    AcGePoint3d evalPoint(const AcGePoint2d& param) const;
    // The parameters of pnt's orthogonal projection onto the plane.
    AcGePoint2d paramOf(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;

    // Normals parallel (either sense).
    Adesk::Boolean isParallelTo(const AcGePlane& otherPln, const AcGeTol& tol = AcGeContext::gTol) const;
    // Parallel, and the other plane's origin on this plane.
    Adesk::Boolean isCoplanarTo(const AcGePlane& otherPln, const AcGeTol& tol = AcGeContext::gTol) const;
    // False when the line is parallel to the plane (isPerpendicularTo the normal).
    Adesk::Boolean intersectWith(const AcGeLine3d& line, AcGePoint3d& resultPnt,
                                 const AcGeTol& tol = AcGeContext::gTol) const;

    // Transforms the origin and both axes; a map that flattens the plane raises the host error.
    AcGePlane& transformBy(const AcGeMatrix3d& xfm);

private:
    constexpr AcGePlane(const AcGeVector3d& u, const AcGeVector3d& v, const AcGeVector3d& n)
        : mUAxis(u), mVAxis(v), mNormal(n)
    {
    }
    void setAxes(const ACHAR* failure, const AcGePoint3d& org, const AcGeVector3d& uAxis, const AcGeVector3d& vAxis);

    AcGePoint3d mOrigin;
    AcGeVector3d mUAxis;
    AcGeVector3d mVAxis;
    AcGeVector3d mNormal;
};

// "AcGePlane(origin (x, y, z), u (..), v (..), normal (..))", full precision.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGePlane& pln);
