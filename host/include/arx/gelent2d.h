// AcGeLinearEnt2d: the straight curves of the plane (unbounded lines and line segments).
// The point at parameter t is pointOnLine() + t * the entity's vector; closest points and
// parameters are the orthogonal projection, held within the entity's interval.
#pragma once

#include "gecurv2d.h"

class AcGeLine2d;

class ACHOST_API AcGeLinearEnt2d : public AcGeCurve2d {
public:
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;

    // The point where the two meet within both intervals; false when they are parallel
    // or meet outside either.
    Adesk::Boolean intersectWith(const AcGeLinearEnt2d& line, AcGePoint2d& intPnt,
                                 const AcGeTol& tol = AcGeContext::gTol) const;
    Adesk::Boolean isParallelTo(const AcGeLinearEnt2d& line, const AcGeTol& tol = AcGeContext::gTol) const;
    Adesk::Boolean isPerpendicularTo(const AcGeLinearEnt2d& line, const AcGeTol& tol = AcGeContext::gTol) const;
    // Parallel, and the other's point on this one's line.
    Adesk::Boolean isColinearTo(const AcGeLinearEnt2d& line, const AcGeTol& tol = AcGeContext::gTol) const;

    AcGePoint2d pointOnLine() const { return mPoint; }
    // Unit length; zero for a segment whose ends coincide.
    AcGeVector2d direction() const;
    // The unbounded line with the same parametrisation; a degenerate segment raises the host error.
    void getLine(AcGeLine2d& line) const;

    // AcGeCurve2d
    AcGePoint2d closestPointTo(const AcGePoint2d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    double paramOf(const AcGePoint2d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    double length(double fromParam, double toParam, double tol = AcGeContext::gTol.equalPoint()) const override;
    double paramAtLength(double datumParam, double length, Adesk::Boolean posParamDir = true,
                         double tol = AcGeContext::gTol.equalPoint()) const override;
    // A straight curve encloses nothing with its chord: 0.
    Adesk::Boolean area(double startParam, double endParam, double& value,
                        const AcGeTol& tol = AcGeContext::gTol) const override;

protected:
    constexpr AcGeLinearEnt2d(const AcGePoint2d& pnt, const AcGeVector2d& vec) : mPoint(pnt), mVector(vec) {}
    AcGeLinearEnt2d(const AcGeLinearEnt2d&) = default;
    AcGeLinearEnt2d& operator=(const AcGeLinearEnt2d&) = default;

    void evaluate(double param, int numDeriv, AcGePoint2d& point, AcGeVector2d* derivs) const override;
    AcGeBoundBlock2d boxOver(double fromParam, double toParam) const override;
    // Transforms the point and the vector; a map that collapses a non-degenerate entity
    // raises the host error naming the call.
    void transformLinear(const AcGeMatrix2d& xfm, const ACHAR* call);
    // The parameter of pnt's orthogonal projection, held within the interval.
    double clampedProjection(const AcGePoint2d& pnt) const;

    AcGePoint2d mPoint;
    AcGeVector2d mVector;
};
