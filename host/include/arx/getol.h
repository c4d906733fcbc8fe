// AcGeTol: the two tolerances every geometric comparison takes, one for points (a
// distance) and one for vectors (a difference of directions). The global default is
// AcGeContext::gTol.
#pragma once

#include <iosfwd>

#include "adesk.h"

class ACHOST_API AcGeTol {
public:
    // The host's defaults.
    static constexpr double kDefaultEqualPoint = 1e-10;
    static constexpr double kDefaultEqualVector = 1e-12;

    constexpr AcGeTol() = default;

    double equalPoint() const { return mEqualPoint; }
    double equalVector() const { return mEqualVector; }
    void setEqualPoint(double val) { mEqualPoint = val; }
    void setEqualVector(double val) { mEqualVector = val; }

private:
    double mEqualPoint = kDefaultEqualPoint;
    double mEqualVector = kDefaultEqualVector;
};

ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeTol& tol);
