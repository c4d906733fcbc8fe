// AcGeLine2d: an unbounded line in the plane through a point along a direction; the point
// at parameter t is pointOnLine() + t * the vector it was built with.
#pragma once

#include <iosfwd>

#include "gepnt2d.h"
#include "gevec2d.h"

class AcGeMatrix2d;

class ACHOST_API AcGeLine2d {
public:
    static const AcGeLine2d kXAxis;
    static const AcGeLine2d kYAxis;

    // The X axis.
    constexpr AcGeLine2d() : mVector(1, 0) {}
    // A zero vec raises the host error.
    AcGeLine2d(const AcGePoint2d& pnt, const AcGeVector2d& vec);
    // Parameter 0 at pnt1 and 1 at pnt2; equal points raise the host error.
    AcGeLine2d(const AcGePoint2d& pnt1, const AcGePoint2d& pnt2);

    AcGeLine2d& set(const AcGePoint2d& pnt, const AcGeVector2d& vec);
    AcGeLine2d& set(const AcGePoint2d& pnt1, const AcGePoint2d& pnt2);

    AcGePoint2d pointOnLine() const { return mPoint; }
    // Unit length.
    AcGeVector2d direction() const;
    AcGePoint2d evalPoint(double param) const { return mPoint + mVector * param; }
    // The parameter of pnt's orthogonal projection onto the line.
    double paramOf(const AcGePoint2d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;
    AcGePoint2d closestPointTo(const AcGePoint2d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;
    double distanceTo(const AcGePoint2d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;
    // Distance at most equalPoint.
    Adesk::Boolean isOn(const AcGePoint2d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;
    Adesk::Boolean isParallelTo(const AcGeLine2d& line, const AcGeTol& tol = AcGeContext::gTol) const;
    // Parallel, and the other line's point on this line.
    Adesk::Boolean isColinearTo(const AcGeLine2d& line, const AcGeTol& tol = AcGeContext::gTol) const;
    // The points at parameter 0 equal and the parameter vectors equal.
    Adesk::Boolean isEqualTo(const AcGeLine2d& line, const AcGeTol& tol = AcGeContext::gTol) const;

    // Transforms the point and the vector; a map that collapses the line raises the host error.
    AcGeLine2d& transformBy(const AcGeMatrix2d& xfm);

private:
    friend ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeLine2d& line);
    constexpr AcGeLine2d(const AcGeVector2d& vec, int) : mVector(vec) {}

    AcGePoint2d mPoint;
    AcGeVector2d mVector;
};

// "AcGeLine2d((x, y), (dx, dy))", full precision.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeLine2d& line);
