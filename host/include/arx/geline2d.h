// AcGeLine2d: an unbounded line in the plane through a point along a direction; the point
// at parameter t is pointOnLine() + t * the vector it was built with.
#pragma once

#include <iosfwd>

#include "gelent2d.h"

class ACHOST_API AcGeLine2d : public AcGeLinearEnt2d {
public:
    static const AcGeLine2d kXAxis;
    static const AcGeLine2d kYAxis;

    // The X axis.
    constexpr AcGeLine2d() : AcGeLinearEnt2d(AcGePoint2d(), AcGeVector2d(1, 0)) {}
    // A zero vec raises the host error.
    AcGeLine2d(const AcGePoint2d& pnt, const AcGeVector2d& vec);
    // Parameter 0 at pnt1 and 1 at pnt2; equal points raise the host error.
    AcGeLine2d(const AcGePoint2d& pnt1, const AcGePoint2d& pnt2);

    AcGeLine2d& set(const AcGePoint2d& pnt, const AcGeVector2d& vec);
    AcGeLine2d& set(const AcGePoint2d& pnt1, const AcGePoint2d& pnt2);

    // The points at parameter 0 equal and the parameter vectors equal.
    Adesk::Boolean isEqualTo(const AcGeLine2d& line, const AcGeTol& tol = AcGeContext::gTol) const;

    // AcGeEntity2d
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;
    AcGe::EntityId type() const override { return AcGe::kLine2d; }
    AcGeEntity2d* copy() const override;
    Adesk::Boolean isEqualTo(const AcGeEntity2d& entity, const AcGeTol& tol = AcGeContext::gTol) const override;
    // Transforms the point and the vector; a map that collapses the line raises the host error.
    AcGeLine2d& transformBy(const AcGeMatrix2d& xfm) override;
    void print(std::ostream& os) const override;

    // AcGeCurve2d: unbounded both ways.
    void getInterval(AcGeInterval& intrvl) const override;
    using AcGeCurve2d::getInterval;
    // Keeps the point and turns the vector round.
    AcGeLine2d& reverseParam() override;
    // An unbounded line has no bounded pieces: both are null.
    void getSplitCurves(double param, AcGeCurve2d*& piece1, AcGeCurve2d*& piece2) const override;

private:
    constexpr AcGeLine2d(const AcGeVector2d& vec, int) : AcGeLinearEnt2d(AcGePoint2d(), vec) {}
};

// "AcGeLine2d((x, y), (dx, dy))", full precision.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeLine2d& line);
