// Qx::MathUtil.
#include "Qx/MathUtil.h"

#include <cmath>

namespace Qx {

bool MathUtil::IsZero(double value, double tolerance)
{
    return std::fabs(value) <= tolerance;
}

bool MathUtil::IsEqual(double a, double b, double tolerance)
{
    return std::fabs(a - b) <= tolerance;
}

bool MathUtil::IsFinite(double value)
{
    return std::isfinite(value);
}

double MathUtil::NormalizeAngle(double radians)
{
    if (!std::isfinite(radians))
        return 0.0;
    double angle = std::fmod(radians, 2.0 * kPi);
    if (angle < 0.0)
        angle += 2.0 * kPi;
    // fmod of a value just below a multiple of 2*pi can round up to exactly 2*pi.
    return angle >= 2.0 * kPi ? 0.0 : angle;
}

double MathUtil::Clamp(double value, double low, double high)
{
    return value < low ? low : (value > high ? high : value);
}

}  // namespace Qx
