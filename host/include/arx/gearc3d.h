// AcGeCircArc3d: a circular arc in space, or a whole circle. It lies in the plane through
// its centre with the given normal and runs counter-clockwise about the normal; its
// parameter is the angle from refVec(), from startAng() to endAng() (at most a whole turn
// further).
#pragma once

#include <iosfwd>

#include "gecurv3d.h"

class AcGeLinearEnt3d;

class ACHOST_API AcGeCircArc3d : public AcGeCurve3d {
public:
    // The unit circle about the origin in the XY plane.
    AcGeCircArc3d();
    // The whole circle; its reference vector is the normal's perpVector. A zero normal or a
    // negative radius raises the host error.
    AcGeCircArc3d(const AcGePoint3d& cent, const AcGeVector3d& nrm, double radius);
    // The arc from startAngle to endAngle about the normal, measured from refVec (its part
    // perpendicular to the normal); the sweep is endAngle - startAngle brought into (0, 2 pi].
    AcGeCircArc3d(const AcGePoint3d& cent, const AcGeVector3d& nrm, const AcGeVector3d& refVec, double radius,
                  double startAngle = 0.0, double endAngle = 6.28318530717958647692);
    // From startPoint through pnt to endPoint; collinear points raise the host error.
    AcGeCircArc3d(const AcGePoint3d& startPoint, const AcGePoint3d& pnt, const AcGePoint3d& endPoint);

    AcGeCircArc3d& set(const AcGePoint3d& cent, const AcGeVector3d& nrm, double radius);
    AcGeCircArc3d& set(const AcGePoint3d& cent, const AcGeVector3d& nrm, const AcGeVector3d& refVec, double radius,
                       double startAngle, double endAngle);
    AcGeCircArc3d& set(const AcGePoint3d& startPoint, const AcGePoint3d& pnt, const AcGePoint3d& endPoint);

    AcGePoint3d center() const { return mCenter; }
    // Unit length.
    AcGeVector3d normal() const { return mNormal; }
    // Unit length, perpendicular to the normal.
    AcGeVector3d refVec() const { return mRefVec; }
    double radius() const { return mRadius; }
    double startAng() const { return mStartAng; }
    double endAng() const { return mEndAng; }
    AcGePoint3d startPoint() const;
    AcGePoint3d endPoint() const;
    // The plane of the arc through its centre.
    void getPlane(AcGePlane& plane) const;

    AcGeCircArc3d& setCenter(const AcGePoint3d& cent);
    // A zero normal, or a reference vector along it, raises the host error.
    AcGeCircArc3d& setAxes(const AcGeVector3d& normal, const AcGeVector3d& refVec);
    AcGeCircArc3d& setRadius(double radius);
    AcGeCircArc3d& setAngles(double startAngle, double endAngle);

    // In the arc's plane and strictly inside the circle (by more than equalPoint).
    Adesk::Boolean isInside(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;
    // The points (intn of them, 0 to 2) where the arc meets a line within both intervals.
    Adesk::Boolean intersectWith(const AcGeLinearEnt3d& line, int& intn, AcGePoint3d& p1, AcGePoint3d& p2,
                                 const AcGeTol& tol = AcGeContext::gTol) const;
    // The points where two arcs meet, in one plane or along the line where their planes
    // cross; concentric coplanar circles meet nowhere (intn 0, false).
    Adesk::Boolean intersectWith(const AcGeCircArc3d& arc, int& intn, AcGePoint3d& p1, AcGePoint3d& p2,
                                 const AcGeTol& tol = AcGeContext::gTol) const;

    // AcGeEntity3d
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;
    AcGe::EntityId type() const override { return AcGe::kCircArc3d; }
    AcGeEntity3d* copy() const override;
    // The same circle and the same points at the same fractions of the sweep.
    Adesk::Boolean isEqualTo(const AcGeEntity3d& entity, const AcGeTol& tol = AcGeContext::gTol) const override;
    // Only maps that scale the arc's plane alike in every direction keep a circle: others
    // raise the host error. Under a mirror the normal turns over so that the arc keeps its
    // points and sense of travel.
    AcGeCircArc3d& transformBy(const AcGeMatrix3d& xfm) override;
    void print(std::ostream& os) const override;

    // AcGeCurve3d
    void getInterval(AcGeInterval& intrvl) const override;
    using AcGeCurve3d::getInterval;
    // The normal turns over, the reference vector moves to the end point and the angles
    // run from 0 to the sweep.
    AcGeCircArc3d& reverseParam() override;
    AcGePoint3d closestPointTo(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    double paramOf(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    Adesk::Boolean isClosed(const AcGeTol& tol = AcGeContext::gTol) const override;
    Adesk::Boolean isPeriodic(double& period) const override;
    Adesk::Boolean isPlanar(AcGePlane& plane, const AcGeTol& tol = AcGeContext::gTol) const override;
    double length(double fromParam, double toParam, double tol = AcGeContext::gTol.equalPoint()) const override;
    double paramAtLength(double datumParam, double length, Adesk::Boolean posParamDir = true,
                         double tol = AcGeContext::gTol.equalPoint()) const override;
    // The circular segment between the arc and its chord, seen from the normal.
    Adesk::Boolean area(double startParam, double endParam, double& value,
                        const AcGeTol& tol = AcGeContext::gTol) const override;
    void getSplitCurves(double param, AcGeCurve3d*& piece1, AcGeCurve3d*& piece2) const override;

protected:
    void evaluate(double param, int numDeriv, AcGePoint3d& point, AcGeVector3d* derivs) const override;
    AcGeBoundBlock3d boxOver(double fromParam, double toParam) const override;

private:
    // The unit vector from the centre towards the point at angle.
    AcGeVector3d directionAt(double angle) const;
    // The angle of pnt's projection on the plane, in [0, 2 pi) from refVec.
    double angleOf(const AcGePoint3d& pnt) const;

    AcGePoint3d mCenter;
    AcGeVector3d mNormal = AcGeVector3d::kZAxis;
    AcGeVector3d mRefVec = AcGeVector3d::kXAxis;
    double mRadius = 1.0;
    double mStartAng = 0.0;
    double mEndAng = 0.0;
};

// "AcGeCircArc3d(center (..), normal (..), ref (..), radius r, angles [s, e])", full precision.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeCircArc3d& arc);
