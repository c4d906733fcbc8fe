// AcGeCurve3d: the base of the curves in space. A curve maps parameters in its interval to
// points; orientation is the direction of increasing parameter. Evaluation, closest
// points, lengths and areas are answered by each curve class in closed form.
#pragma once

#include "geblok3d.h"
#include "geent3d.h"
#include "geintarr.h"
#include "geintrvl.h"
#include "gept3dar.h"
#include "gevc3dar.h"
#include "gevptar.h"

class ACHOST_API AcGeCurve3d : public AcGeEntity3d {
public:
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;

    // The parameter range; an unbounded curve has unbounded sides.
    virtual void getInterval(AcGeInterval& intrvl) const = 0;
    // The range and the points at its ends (a point is left as it was on an unbounded side).
    void getInterval(AcGeInterval& intrvl, AcGePoint3d& start, AcGePoint3d& end) const;
    // The same points run the other way.
    virtual AcGeCurve3d& reverseParam() = 0;

    // The point of the curve, within its interval, nearest pnt.
    virtual AcGePoint3d closestPointTo(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const = 0;
    double distanceTo(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;
    // The parameter of closestPointTo(pnt).
    virtual double paramOf(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const = 0;
    Adesk::Boolean isOn(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    // As above, with the point's parameter when it is on the curve.
    Adesk::Boolean isOn(const AcGePoint3d& pnt, double& param, const AcGeTol& tol = AcGeContext::gTol) const;
    // The parameter lies in the interval.
    Adesk::Boolean isOn(double param, const AcGeTol& tol = AcGeContext::gTol) const;

    // Bounded, with end points within equalPoint.
    virtual Adesk::Boolean isClosed(const AcGeTol& tol = AcGeContext::gTol) const;
    // A whole circle repeats every 2 pi; other curves are not periodic.
    virtual Adesk::Boolean isPeriodic(double& period) const;
    // A plane that holds the whole curve (for a line, one of the planes through it);
    // false for a curve that is not flat.
    virtual Adesk::Boolean isPlanar(AcGePlane& plane, const AcGeTol& tol = AcGeContext::gTol) const = 0;

    // The arc length between two parameters, taken in either order.
    virtual double length(double fromParam, double toParam,
                          double tol = AcGeContext::gTol.equalPoint()) const = 0;
    // The parameter at the given arc length from datumParam, ahead of it (posParamDir) or
    // behind. Lines and arcs continue along their line or circle past their ends; a
    // composite stops at its ends.
    virtual double paramAtLength(double datumParam, double length, Adesk::Boolean posParamDir = true,
                                 double tol = AcGeContext::gTol.equalPoint()) const = 0;
    // The signed area enclosed by a flat curve from startParam to endParam and the chord
    // back to its start, seen from the normal of the plane isPlanar answers: positive when
    // that loop runs counter-clockwise. False (value untouched) for a curve that is not flat.
    virtual Adesk::Boolean area(double startParam, double endParam, double& value,
                                const AcGeTol& tol = AcGeContext::gTol) const = 0;

    // False for an unbounded side.
    Adesk::Boolean hasStartPoint(AcGePoint3d& startPnt) const;
    Adesk::Boolean hasEndPoint(AcGePoint3d& endPnt) const;
    AcGePoint3d evalPoint(double param) const;
    // The point, and in derivArray (replaced) its first numDeriv derivatives with respect to
    // the parameter.
    AcGePoint3d evalPoint(double param, int numDeriv, AcGeVector3dArray& derivArray) const;
    // numSample points at even parameter steps, both ends included; nothing for an
    // unbounded curve or fewer than two samples.
    void getSamplePoints(int numSample, AcGePoint3dArray& pointArray) const;

    // The box around the curve over its interval, or over a range of it (arc extremes included).
    AcGeBoundBlock3d boundBlock() const;
    AcGeBoundBlock3d boundBlock(const AcGeInterval& range) const;
    AcGeBoundBlock3d orthoBoundBlock() const;
    AcGeBoundBlock3d orthoBoundBlock(const AcGeInterval& range) const;

    // New curves (owned by the caller) from the start to param and from param to the end;
    // a piece is null when param lies at or beyond that end, or the piece would be unbounded.
    virtual void getSplitCurves(double param, AcGeCurve3d*& piece1, AcGeCurve3d*& piece2) const = 0;
    // A composite appends copies of its pieces (flag 1: the caller deletes them) and answers
    // true; simple curves append nothing and answer false.
    virtual Adesk::Boolean explode(AcGeVoidPointerArray& explodedCurves, AcGeIntArray& newExplodedCurve,
                                   const AcGeInterval* intrvl = nullptr) const;

protected:
    constexpr AcGeCurve3d() = default;
    AcGeCurve3d(const AcGeCurve3d&) = default;
    AcGeCurve3d& operator=(const AcGeCurve3d&) = default;

    // The point at param and, in derivs[0 .. numDeriv - 1], its derivatives.
    virtual void evaluate(double param, int numDeriv, AcGePoint3d& point, AcGeVector3d* derivs) const = 0;
    // The box around the curve between two parameters (infinite ones allowed on unbounded sides).
    virtual AcGeBoundBlock3d boxOver(double fromParam, double toParam) const = 0;
};
