// AcGeLine3d: an unbounded line through a point along a direction; the point at parameter
// t is pointOnLine() + t * the vector it was built with.
#pragma once

#include <iosfwd>

#include "gelent3d.h"

class ACHOST_API AcGeLine3d : public AcGeLinearEnt3d {
public:
    static const AcGeLine3d kXAxis;
    static const AcGeLine3d kYAxis;
    static const AcGeLine3d kZAxis;

    // The X axis.
    constexpr AcGeLine3d() : AcGeLinearEnt3d(AcGePoint3d(), AcGeVector3d(1, 0, 0)) {}
    // A zero vec raises the host error.
    AcGeLine3d(const AcGePoint3d& pnt, const AcGeVector3d& vec);
    // Parameter 0 at pnt1 and 1 at pnt2; equal points raise the host error.
    AcGeLine3d(const AcGePoint3d& pnt1, const AcGePoint3d& pnt2);

    AcGeLine3d& set(const AcGePoint3d& pnt, const AcGeVector3d& vec);
    AcGeLine3d& set(const AcGePoint3d& pnt1, const AcGePoint3d& pnt2);

    // The points at parameter 0 equal and the parameter vectors equal.
    Adesk::Boolean isEqualTo(const AcGeLine3d& line, const AcGeTol& tol = AcGeContext::gTol) const;

    // AcGeEntity3d
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;
    AcGe::EntityId type() const override { return AcGe::kLine3d; }
    AcGeEntity3d* copy() const override;
    Adesk::Boolean isEqualTo(const AcGeEntity3d& entity, const AcGeTol& tol = AcGeContext::gTol) const override;
    // Transforms the point and the vector; a map that collapses the line raises the host error.
    AcGeLine3d& transformBy(const AcGeMatrix3d& xfm) override;
    void print(std::ostream& os) const override;

    // AcGeCurve3d: unbounded both ways.
    void getInterval(AcGeInterval& intrvl) const override;
    using AcGeCurve3d::getInterval;
    // Keeps the point and turns the vector round.
    AcGeLine3d& reverseParam() override;
    // An unbounded line has no bounded pieces: both are null.
    void getSplitCurves(double param, AcGeCurve3d*& piece1, AcGeCurve3d*& piece2) const override;

private:
    constexpr AcGeLine3d(const AcGeVector3d& vec, int) : AcGeLinearEnt3d(AcGePoint3d(), vec) {}
};

// "AcGeLine3d((x, y, z), (dx, dy, dz))", full precision.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeLine3d& line);
