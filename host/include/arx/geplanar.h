// AcGePlanarEnt: the flat surfaces. Each has its own parametrisation: an origin and two
// axes u and v; the point at parameters (s, t) is origin + s u + t v. The normal is u x v,
// normalised.
#pragma once

#include "gesurf.h"

class AcGeLinearEnt3d;

class ACHOST_API AcGePlanarEnt : public AcGeSurface {
public:
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;

    AcGePoint3d pointOnPlane() const { return mOrigin; }
    // Unit length.
    AcGeVector3d normal() const { return mNormal; }
    // With the unit normal: a x + b y + c z + d = 0.
    void getCoefficients(double& a, double& b, double& c, double& d) const;
    // The origin and the u and v axes as the entity keeps them.
    void getCoordSystem(AcGePoint3d& origin, AcGeVector3d& axis1, AcGeVector3d& axis2) const;

    // Normals parallel (either sense).
    Adesk::Boolean isParallelTo(const AcGePlanarEnt& otherPlnEnt, const AcGeTol& tol = AcGeContext::gTol) const;
    // The linear entity's direction perpendicular to the normal.
    Adesk::Boolean isParallelTo(const AcGeLinearEnt3d& linEnt, const AcGeTol& tol = AcGeContext::gTol) const;
    // Normals perpendicular.
    Adesk::Boolean isPerpendicularTo(const AcGePlanarEnt& otherPlnEnt, const AcGeTol& tol = AcGeContext::gTol) const;
    // Parallel, and the other's origin on this one's plane.
    Adesk::Boolean isCoplanarTo(const AcGePlanarEnt& otherPlnEnt, const AcGeTol& tol = AcGeContext::gTol) const;
    // The point where the linear entity (within its interval) crosses this one's plane;
    // false when it runs parallel to it (isPerpendicularTo the normal) or stops short.
    Adesk::Boolean intersectWith(const AcGeLinearEnt3d& linEnt, AcGePoint3d& resultPnt,
                                 const AcGeTol& tol = AcGeContext::gTol) const;

    // AcGeSurface
    AcGePoint3d evalPoint(const AcGePoint2d& param) const override;
    // The parameters of pnt's orthogonal projection onto the plane.
    AcGePoint2d paramOf(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;

protected:
    constexpr AcGePlanarEnt(const AcGeVector3d& u, const AcGeVector3d& v, const AcGeVector3d& n)
        : mUAxis(u), mVAxis(v), mNormal(n)
    {
    }
    AcGePlanarEnt(const AcGePlanarEnt&) = default;
    AcGePlanarEnt& operator=(const AcGePlanarEnt&) = default;

    // Sets origin and axes; zero or parallel axes raise the host error with the message given.
    void setAxes(const ACHAR* failure, const AcGePoint3d& org, const AcGeVector3d& uAxis, const AcGeVector3d& vAxis);

    AcGePoint3d mOrigin;
    AcGeVector3d mUAxis;
    AcGeVector3d mVAxis;
    AcGeVector3d mNormal;
};
