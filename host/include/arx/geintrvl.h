// AcGeInterval: a range of curve parameters, bounded or unbounded at either end. Values
// within the interval's tolerance of a bound count as inside.
#pragma once

#include <iosfwd>

#include "gegbl.h"

class ACHOST_API AcGeInterval {
public:
    // Parameters closer than this to a bound count as on it, unless the caller gives another.
    static constexpr double kDefaultTolerance = 1e-12;

    // Unbounded at both ends.
    explicit AcGeInterval(double tol = kDefaultTolerance);
    // [min(lower, upper), max(lower, upper)].
    AcGeInterval(double lower, double upper, double tol = kDefaultTolerance);
    // Bounded below by bound when boundedBelow, else bounded above by it.
    AcGeInterval(Adesk::Boolean boundedBelow, double bound, double tol = kDefaultTolerance);

    void getBounds(double& lower, double& upper) const;
    // Meaningful only on a bounded side.
    double lowerBound() const { return mLower; }
    double upperBound() const { return mUpper; }
    double element() const { return mLower; }
    double tolerance() const { return mTol; }
    // upper - lower, or -1 when either side is unbounded.
    double length() const;

    Adesk::Boolean isBounded() const { return mBoundedBelow && mBoundedAbove; }
    Adesk::Boolean isBoundedAbove() const { return mBoundedAbove; }
    Adesk::Boolean isBoundedBelow() const { return mBoundedBelow; }
    Adesk::Boolean isUnBounded() const { return !mBoundedBelow && !mBoundedAbove; }
    // Bounded with both bounds within the tolerance.
    Adesk::Boolean isSingleton() const;
    // Within the tolerance of the range.
    Adesk::Boolean contains(double val) const;

    AcGeInterval& set(double lower, double upper);
    AcGeInterval& set(Adesk::Boolean boundedBelow, double bound);
    AcGeInterval& set();
    AcGeInterval& setLower(double lower);
    AcGeInterval& setUpper(double upper);
    AcGeInterval& setTolerance(double tol);

    // The same sides bounded, bounds within the tolerance.
    bool operator==(const AcGeInterval& intrvl) const;
    bool operator!=(const AcGeInterval& intrvl) const { return !(*this == intrvl); }

private:
    double mLower = 0.0;
    double mUpper = 0.0;
    double mTol = kDefaultTolerance;
    bool mBoundedBelow = false;
    bool mBoundedAbove = false;
};

// "[lower, upper]", with "-inf"/"inf" for an unbounded side.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeInterval& intrvl);
