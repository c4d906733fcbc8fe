// AcGeLineSeg2d: a bounded line segment in the plane. Its parameter runs from 0 at the
// start point to 1 at the end point. A segment whose ends coincide is allowed (it is a
// point; its direction is zero).
#pragma once

#include <iosfwd>

#include "gelent2d.h"

class ACHOST_API AcGeLineSeg2d : public AcGeLinearEnt2d {
public:
    // From (0, 0) to (1, 0).
    constexpr AcGeLineSeg2d() : AcGeLinearEnt2d(AcGePoint2d(), AcGeVector2d(1, 0)) {}
    AcGeLineSeg2d(const AcGePoint2d& pnt1, const AcGePoint2d& pnt2);
    // From pnt to pnt + vec.
    AcGeLineSeg2d(const AcGePoint2d& pnt, const AcGeVector2d& vec);

    AcGeLineSeg2d& set(const AcGePoint2d& pnt1, const AcGePoint2d& pnt2);
    AcGeLineSeg2d& set(const AcGePoint2d& pnt, const AcGeVector2d& vec);

    AcGePoint2d startPoint() const { return mPoint; }
    AcGePoint2d endPoint() const { return mPoint + mVector; }
    AcGePoint2d midPoint() const { return mPoint + mVector * 0.5; }
    // The point (1 - blendCoeff) start + blendCoeff end.
    AcGePoint2d baryComb(double blendCoeff) const { return mPoint + mVector * blendCoeff; }
    // The whole segment's length.
    double length() const { return mVector.length(); }
    using AcGeLinearEnt2d::length;
    // The perpendicular bisector, through the mid point, its vector the segment's turned a
    // quarter counter-clockwise; a degenerate segment raises the host error.
    void getBisector(AcGeLine2d& line) const;

    // AcGeEntity2d
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;
    AcGe::EntityId type() const override { return AcGe::kLineSeg2d; }
    AcGeEntity2d* copy() const override;
    // The same start and end points.
    Adesk::Boolean isEqualTo(const AcGeEntity2d& entity, const AcGeTol& tol = AcGeContext::gTol) const override;
    AcGeLineSeg2d& transformBy(const AcGeMatrix2d& xfm) override;
    void print(std::ostream& os) const override;

    // AcGeCurve2d: [0, 1].
    void getInterval(AcGeInterval& intrvl) const override;
    using AcGeCurve2d::getInterval;
    // Swaps the end points.
    AcGeLineSeg2d& reverseParam() override;
    // Segments of the same line, each with its own parameter from 0 to 1.
    void getSplitCurves(double param, AcGeCurve2d*& piece1, AcGeCurve2d*& piece2) const override;
};

// "AcGeLineSeg2d((x0, y0), (x1, y1))", full precision.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeLineSeg2d& seg);
