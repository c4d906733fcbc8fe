// AcGeLineSeg3d: a bounded line segment in space. Its parameter runs from 0 at the
// start point to 1 at the end point. A segment whose ends coincide is allowed (it is a
// point; its direction is zero).
#pragma once

#include <iosfwd>

#include "gelent3d.h"

class ACHOST_API AcGeLineSeg3d : public AcGeLinearEnt3d {
public:
    // From (0, 0, 0) to (1, 0, 0).
    constexpr AcGeLineSeg3d() : AcGeLinearEnt3d(AcGePoint3d(), AcGeVector3d(1, 0, 0)) {}
    AcGeLineSeg3d(const AcGePoint3d& pnt1, const AcGePoint3d& pnt2);
    // From pnt to pnt + vec.
    AcGeLineSeg3d(const AcGePoint3d& pnt, const AcGeVector3d& vec);

    AcGeLineSeg3d& set(const AcGePoint3d& pnt1, const AcGePoint3d& pnt2);
    AcGeLineSeg3d& set(const AcGePoint3d& pnt, const AcGeVector3d& vec);

    AcGePoint3d startPoint() const { return mPoint; }
    AcGePoint3d endPoint() const { return mPoint + mVector; }
    AcGePoint3d midPoint() const { return mPoint + mVector * 0.5; }
    // The point (1 - blendCoeff) start + blendCoeff end.
    AcGePoint3d baryComb(double blendCoeff) const { return mPoint + mVector * blendCoeff; }
    // The whole segment's length.
    double length() const { return mVector.length(); }
    using AcGeLinearEnt3d::length;
    // The plane through the mid point with the segment as its normal; a degenerate segment
    // raises the host error.
    void getBisector(AcGePlane& plane) const;

    // AcGeEntity3d
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;
    AcGe::EntityId type() const override { return AcGe::kLineSeg3d; }
    AcGeEntity3d* copy() const override;
    // The same start and end points.
    Adesk::Boolean isEqualTo(const AcGeEntity3d& entity, const AcGeTol& tol = AcGeContext::gTol) const override;
    AcGeLineSeg3d& transformBy(const AcGeMatrix3d& xfm) override;
    void print(std::ostream& os) const override;

    // AcGeCurve3d: [0, 1].
    void getInterval(AcGeInterval& intrvl) const override;
    using AcGeCurve3d::getInterval;
    // Swaps the end points.
    AcGeLineSeg3d& reverseParam() override;
    // Segments of the same line, each with its own parameter from 0 to 1.
    void getSplitCurves(double param, AcGeCurve3d*& piece1, AcGeCurve3d*& piece2) const override;
};

// "AcGeLineSeg3d((x0, y0, z0), (x1, y1, z1))", full precision.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeLineSeg3d& seg);
