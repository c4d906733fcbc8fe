// Qx::MathUtil: the tolerance tests and constants the entities share.
#pragma once

namespace Qx {

class MathUtil {
public:
    static constexpr double kPi = 3.14159265358979323846;
    // Lengths closer than this are the same length (drawing units).
    static constexpr double kLengthTolerance = 1e-6;

    static bool IsZero(double value, double tolerance = kLengthTolerance);
    static bool IsEqual(double a, double b, double tolerance = kLengthTolerance);
    // Not NaN and not infinite.
    static bool IsFinite(double value);
    static double DegreesToRadians(double degrees) { return degrees * kPi / 180.0; }
    static double RadiansToDegrees(double radians) { return radians * 180.0 / kPi; }
    // The angle brought into [0, 2*pi).
    static double NormalizeAngle(double radians);
    // value limited to [low, high].
    static double Clamp(double value, double low, double high);
};

}  // namespace Qx
