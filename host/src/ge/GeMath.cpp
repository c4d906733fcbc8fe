// Small pieces of linear algebra that several geometry classes share.
#include "GeMath.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace hostge {

double angleInFullTurn(double angle)
{
    double folded = std::fmod(angle, kTwoPi);
    if (folded < 0.0)
        folded += kTwoPi;
    // fmod of a value just below a whole turn can round up to the turn itself.
    return folded >= kTwoPi ? 0.0 : folded;
}

double sweepBetween(double startAngle, double endAngle)
{
    const double sweep = endAngle - startAngle;
    if (sweep > 0.0 && sweep <= kTwoPi)
        return sweep;
    const double folded = angleInFullTurn(sweep);
    return folded == 0.0 ? kTwoPi : folded;
}

AcGePoint2d coordinatesIn(const AcGeVector3d& u, const AcGeVector3d& v, const AcGeVector3d& w)
{
    // Solve the 2x2 Gram system [u.u u.v; u.v v.v] (s, t) = (w.u, w.v).
    const double uu = u.dotProduct(u);
    const double uv = u.dotProduct(v);
    const double vv = v.dotProduct(v);
    const double wu = w.dotProduct(u);
    const double wv = w.dotProduct(v);
    const double gram = uu * vv - uv * uv;
    return AcGePoint2d((wu * vv - wv * uv) / gram, (wv * uu - wu * uv) / gram);
}

double euclideanLength(double x, double y, double z)
{
    const double squares = x * x + y * y + z * z;
    if (std::isfinite(squares) && squares >= std::numeric_limits<double>::min())
        return std::sqrt(squares);
    const double largest = std::max({std::fabs(x), std::fabs(y), std::fabs(z)});
    if (largest == 0.0 || !std::isfinite(largest))
        return std::sqrt(squares);  // zero, or an infinite or NaN component
    const double a = x / largest;
    const double b = y / largest;
    const double c = z / largest;
    return largest * std::sqrt(a * a + b * b + c * c);
}

}  // namespace hostge
