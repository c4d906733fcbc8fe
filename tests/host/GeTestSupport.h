// Comparisons for the geometry tests: near-equality within an explicit tolerance that
// prints both values (in full precision) when it fails.
#pragma once

#include <gtest/gtest.h>

#include <sstream>

#include "getol.h"

namespace getest {

inline AcGeTol tolerance(double both)
{
    AcGeTol tol;
    tol.setEqualPoint(both);
    tol.setEqualVector(both);
    return tol;
}

// For any geometry value with isEqualTo(other, AcGeTol).
template <class T>
::testing::AssertionResult isNear(const T& actual, const T& expected, double within = 1e-9)
{
    if (actual.isEqualTo(expected, tolerance(within)))
        return ::testing::AssertionSuccess();
    std::ostringstream os;
    os << actual << " is not within " << within << " of " << expected;
    return ::testing::AssertionFailure() << os.str();
}

}  // namespace getest
