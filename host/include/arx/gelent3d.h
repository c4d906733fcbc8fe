// AcGeLinearEnt3d: the straight curves in space (unbounded lines and line segments). The
// point at parameter t is pointOnLine() + t * the entity's vector; closest points and
// parameters are the orthogonal projection, held within the entity's interval.
#pragma once

#include "gecurv3d.h"

class AcGeLine3d;

class ACHOST_API AcGeLinearEnt3d : public AcGeCurve3d {
public:
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;

    // The point where the two meet within both intervals; false when they are parallel,
    // skew, or meet outside either.
    Adesk::Boolean intersectWith(const AcGeLinearEnt3d& line, AcGePoint3d& intPnt,
                                 const AcGeTol& tol = AcGeContext::gTol) const;
    Adesk::Boolean isParallelTo(const AcGeLinearEnt3d& line, const AcGeTol& tol = AcGeContext::gTol) const;
    Adesk::Boolean isPerpendicularTo(const AcGeLinearEnt3d& line, const AcGeTol& tol = AcGeContext::gTol) const;
    // Parallel, and the other's point on this one's line.
    Adesk::Boolean isColinearTo(const AcGeLinearEnt3d& line, const AcGeTol& tol = AcGeContext::gTol) const;

    AcGePoint3d pointOnLine() const { return mPoint; }
    // Unit length; zero for a segment whose ends coincide.
    AcGeVector3d direction() const;
    // The unbounded line with the same parametrisation; a degenerate segment raises the host error.
    void getLine(AcGeLine3d& line) const;

    // AcGeCurve3d
    AcGePoint3d closestPointTo(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    double paramOf(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    // The plane through the entity whose normal is its direction's perpVector (any plane
    // through a line would do).
    Adesk::Boolean isPlanar(AcGePlane& plane, const AcGeTol& tol = AcGeContext::gTol) const override;
    double length(double fromParam, double toParam, double tol = AcGeContext::gTol.equalPoint()) const override;
    double paramAtLength(double datumParam, double length, Adesk::Boolean posParamDir = true,
                         double tol = AcGeContext::gTol.equalPoint()) const override;
    // A straight curve encloses nothing with its chord: 0.
    Adesk::Boolean area(double startParam, double endParam, double& value,
                        const AcGeTol& tol = AcGeContext::gTol) const override;

protected:
    constexpr AcGeLinearEnt3d(const AcGePoint3d& pnt, const AcGeVector3d& vec) : mPoint(pnt), mVector(vec) {}
    AcGeLinearEnt3d(const AcGeLinearEnt3d&) = default;
    AcGeLinearEnt3d& operator=(const AcGeLinearEnt3d&) = default;

    void evaluate(double param, int numDeriv, AcGePoint3d& point, AcGeVector3d* derivs) const override;
    AcGeBoundBlock3d boxOver(double fromParam, double toParam) const override;
    // Transforms the point and the vector; a map that collapses a non-degenerate entity
    // raises the host error naming the call.
    void transformLinear(const AcGeMatrix3d& xfm, const ACHAR* call);
    // The parameter of pnt's orthogonal projection, held within the interval.
    double clampedProjection(const AcGePoint3d& pnt) const;

    AcGePoint3d mPoint;
    AcGeVector3d mVector;
};
