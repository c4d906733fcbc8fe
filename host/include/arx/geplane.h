// AcGePlane: an unbounded plane with its own parametrisation: an origin and two axes u and
// v; the point at parameters (s, t) is origin + s u + t v. The normal is u x v, normalised.
#pragma once

#include <iosfwd>

#include "geplanar.h"

class ACHOST_API AcGePlane : public AcGePlanarEnt {
public:
    static const AcGePlane kXYPlane;  // u X, v Y, normal Z
    static const AcGePlane kYZPlane;  // u Y, v Z, normal X
    static const AcGePlane kZXPlane;  // u Z, v X, normal Y

    // The XY plane.
    constexpr AcGePlane() : AcGePlanarEnt(AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 0), AcGeVector3d(0, 0, 1)) {}
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

    // Positive on the side the normal points to.
    double signedDistanceTo(const AcGePoint3d& pnt) const;

    // AcGeSurface: the foot of the perpendicular (exact for a plane; tol is not needed).
    AcGePoint3d closestPointTo(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;

    // AcGeEntity3d
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;
    AcGe::EntityId type() const override { return AcGe::kPlane; }
    AcGeEntity3d* copy() const override;
    // The same origin and axes (the same parametrisation).
    Adesk::Boolean isEqualTo(const AcGeEntity3d& entity, const AcGeTol& tol = AcGeContext::gTol) const override;
    // Transforms the origin and both axes; a map that flattens the plane raises the host error.
    AcGePlane& transformBy(const AcGeMatrix3d& xfm) override;
    void print(std::ostream& os) const override;

private:
    constexpr AcGePlane(const AcGeVector3d& u, const AcGeVector3d& v, const AcGeVector3d& n) : AcGePlanarEnt(u, v, n) {}
};

// "AcGePlane(origin (x, y, z), u (..), v (..), normal (..))", full precision.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGePlane& pln);
