// AcGeCircArc2d: a circular arc of the plane, or a whole circle. Its parameter is the angle,
// from startAng() to endAng() (at most a whole turn further), measured from refVec()
// counter-clockwise, or clockwise for a clockwise arc; the arc runs from its start angle
// to its end angle in that sense.
#pragma once

#include <iosfwd>

#include "gecurv2d.h"

class AcGeLine2d;
class AcGeLinearEnt2d;

class ACHOST_API AcGeCircArc2d : public AcGeCurve2d {
public:
    // The unit circle about the origin.
    AcGeCircArc2d();
    // The whole circle; a negative radius raises the host error.
    AcGeCircArc2d(const AcGePoint2d& cent, double radius);
    // The arc from startAngle to endAngle; the sweep is endAngle - startAngle brought into
    // (0, 2 pi] (equal angles make a whole circle).
    AcGeCircArc2d(const AcGePoint2d& cent, double radius, double startAngle, double endAngle,
                  const AcGeVector2d& refVec = AcGeVector2d::kXAxis, Adesk::Boolean isClockWise = false);
    // From startPoint through point to endPoint; collinear points raise the host error.
    AcGeCircArc2d(const AcGePoint2d& startPoint, const AcGePoint2d& point, const AcGePoint2d& endPoint);
    // From startPoint to endPoint bulging by bulge: with bulgeFlag the bulge is the sagitta
    // (the arc's greatest distance from the chord), otherwise tan of a quarter of the
    // included angle. Positive runs counter-clockwise. Equal points or a zero bulge raise
    // the host error; such an arc is never a whole circle.
    AcGeCircArc2d(const AcGePoint2d& startPoint, const AcGePoint2d& endPoint, double bulge,
                  Adesk::Boolean bulgeFlag = Adesk::kTrue);

    AcGeCircArc2d& set(const AcGePoint2d& cent, double radius);
    AcGeCircArc2d& set(const AcGePoint2d& cent, double radius, double startAngle, double endAngle,
                       const AcGeVector2d& refVec = AcGeVector2d::kXAxis, Adesk::Boolean isClockWise = false);
    AcGeCircArc2d& set(const AcGePoint2d& startPoint, const AcGePoint2d& point, const AcGePoint2d& endPoint);
    AcGeCircArc2d& set(const AcGePoint2d& startPoint, const AcGePoint2d& endPoint, double bulge,
                       Adesk::Boolean bulgeFlag = Adesk::kTrue);

    AcGePoint2d center() const { return mCenter; }
    double radius() const { return mRadius; }
    double startAng() const { return mStartAng; }
    double endAng() const { return mEndAng; }
    Adesk::Boolean isClockWise() const { return mClockWise; }
    // Unit length.
    AcGeVector2d refVec() const { return mRefVec; }
    AcGePoint2d startPoint() const;
    AcGePoint2d endPoint() const;

    AcGeCircArc2d& setCenter(const AcGePoint2d& cent);
    AcGeCircArc2d& setRadius(double radius);
    AcGeCircArc2d& setAngles(double startAng, double endAng);
    // A zero vector raises the host error.
    AcGeCircArc2d& setRefVec(const AcGeVector2d& vec);
    // The rest of the circle, run in the same sense; a whole circle stays whole.
    AcGeCircArc2d& setToComplement();

    // Strictly inside the circle (by more than equalPoint).
    Adesk::Boolean isInside(const AcGePoint2d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;
    // The tangent line at a point of the arc (its vector the direction of travel); false
    // when the point is not on the arc.
    Adesk::Boolean tangent(const AcGePoint2d& pnt, AcGeLine2d& line, const AcGeTol& tol = AcGeContext::gTol) const;
    // The points (intn of them, 0 to 2) where the arc meets a line within both intervals.
    Adesk::Boolean intersectWith(const AcGeLinearEnt2d& line, int& intn, AcGePoint2d& p1, AcGePoint2d& p2,
                                 const AcGeTol& tol = AcGeContext::gTol) const;
    // The points where two arcs meet; concentric circles meet nowhere (intn 0, false).
    Adesk::Boolean intersectWith(const AcGeCircArc2d& arc, int& intn, AcGePoint2d& p1, AcGePoint2d& p2,
                                 const AcGeTol& tol = AcGeContext::gTol) const;

    // AcGeEntity2d
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;
    AcGe::EntityId type() const override { return AcGe::kCircArc2d; }
    AcGeEntity2d* copy() const override;
    // The same circle, the same end points and sweep, run in the same sense.
    Adesk::Boolean isEqualTo(const AcGeEntity2d& entity, const AcGeTol& tol = AcGeContext::gTol) const override;
    // Only maps that scale both directions alike keep a circle: others raise the host
    // error. A mirror turns the sense of travel.
    AcGeCircArc2d& transformBy(const AcGeMatrix2d& xfm) override;
    void print(std::ostream& os) const override;

    // AcGeCurve2d
    void getInterval(AcGeInterval& intrvl) const override;
    using AcGeCurve2d::getInterval;
    // The reference vector moves to the end point, the sense turns, and the angles run
    // from 0 to the sweep.
    AcGeCircArc2d& reverseParam() override;
    AcGePoint2d closestPointTo(const AcGePoint2d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    double paramOf(const AcGePoint2d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    Adesk::Boolean isClosed(const AcGeTol& tol = AcGeContext::gTol) const override;
    Adesk::Boolean isPeriodic(double& period) const override;
    double length(double fromParam, double toParam, double tol = AcGeContext::gTol.equalPoint()) const override;
    double paramAtLength(double datumParam, double length, Adesk::Boolean posParamDir = true,
                         double tol = AcGeContext::gTol.equalPoint()) const override;
    // The circular segment between the arc and its chord; negative for a clockwise run.
    Adesk::Boolean area(double startParam, double endParam, double& value,
                        const AcGeTol& tol = AcGeContext::gTol) const override;
    void getSplitCurves(double param, AcGeCurve2d*& piece1, AcGeCurve2d*& piece2) const override;

protected:
    void evaluate(double param, int numDeriv, AcGePoint2d& point, AcGeVector2d* derivs) const override;
    AcGeBoundBlock2d boxOver(double fromParam, double toParam) const override;

private:
    // The unit vector from the centre towards the point at angle.
    AcGeVector2d directionAt(double angle) const;
    // The angle of pnt about the centre in the arc's own sense, in [0, 2 pi) from refVec.
    double angleOf(const AcGePoint2d& pnt) const;

    AcGePoint2d mCenter;
    double mRadius = 1.0;
    double mStartAng = 0.0;
    double mEndAng = 0.0;
    AcGeVector2d mRefVec = AcGeVector2d::kXAxis;
    bool mClockWise = false;
};

// "AcGeCircArc2d(center (x, y), radius r, angles [s, e], ref (x, y), ccw|cw)", full precision.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeCircArc2d& arc);
