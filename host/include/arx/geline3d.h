// AcGeLine3d: an unbounded line through a point along a direction; the point at parameter
// t is pointOnLine() + t * the vector it was built with.
#pragma once

#include <iosfwd>

#include "gepnt3d.h"
#include "gevec3d.h"

class AcGeMatrix3d;

class ACHOST_API AcGeLine3d {
public:
    static const AcGeLine3d kXAxis;
    static const AcGeLine3d kYAxis;
    static const AcGeLine3d kZAxis;

    // The X axis.
    constexpr AcGeLine3d() : mVector(1, 0, 0) {}
    // A zero vec raises the host error.
    AcGeLine3d(const AcGePoint3d& pnt, const AcGeVector3d& vec);
    // Parameter 0 at pnt1 and 1 at pnt2; equal points raise the host error.
    AcGeLine3d(const AcGePoint3d& pnt1, const AcGePoint3d& pnt2);

    AcGeLine3d& set(const AcGePoint3d& pnt, const AcGeVector3d& vec);
    AcGeLine3d& set(const AcGePoint3d& pnt1, const AcGePoint3d& pnt2);

    AcGePoint3d pointOnLine() const { return mPoint; }
    // Unit length.
    AcGeVector3d direction() const;
    AcGePoint3d evalPoint(double param) const { return mPoint + mVector * param; }
    // The parameter of pnt's orthogonal projection onto the line.
    double paramOf(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;
    AcGePoint3d closestPointTo(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;
    double distanceTo(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;
    // Distance at most equalPoint.
    Adesk::Boolean isOn(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;
    Adesk::Boolean isParallelTo(const AcGeLine3d& line, const AcGeTol& tol = AcGeContext::gTol) const;
    // Parallel, and the other line's point on this line.
    Adesk::Boolean isColinearTo(const AcGeLine3d& line, const AcGeTol& tol = AcGeContext::gTol) const;
    // The points at parameter 0 equal and the parameter vectors equal.
    Adesk::Boolean isEqualTo(const AcGeLine3d& line, const AcGeTol& tol = AcGeContext::gTol) const;

    // Transforms the point and the vector; a map that collapses the line raises the host error.
    AcGeLine3d& transformBy(const AcGeMatrix3d& xfm);

private:
    friend ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeLine3d& line);
    constexpr AcGeLine3d(const AcGeVector3d& vec, int) : mVector(vec) {}

    AcGePoint3d mPoint;
    AcGeVector3d mVector;
};

// "AcGeLine3d((x, y, z), (dx, dy, dz))", full precision.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeLine3d& line);
