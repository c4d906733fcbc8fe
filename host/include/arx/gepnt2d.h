// AcGePoint2d: a position in the plane. Two points are equal when they lie at most
// equalPoint apart.
#pragma once

#include <iosfwd>

#include "gevec2d.h"

class AcGeLine2d;
class AcGeMatrix2d;

class ACHOST_API AcGePoint2d {
public:
    static const AcGePoint2d kOrigin;

    constexpr AcGePoint2d() = default;
    constexpr AcGePoint2d(double xx, double yy) : x(xx), y(yy) {}

    // The whole of mat applied, translation included.
    friend ACHOST_API AcGePoint2d operator*(const AcGeMatrix2d& mat, const AcGePoint2d& pnt);
    friend AcGePoint2d operator*(double scl, const AcGePoint2d& pnt) { return pnt * scl; }

    AcGePoint2d& setToProduct(const AcGeMatrix2d& mat, const AcGePoint2d& pnt);
    AcGePoint2d& transformBy(const AcGeMatrix2d& leftSide);
    // Counter-clockwise about wrtPoint.
    AcGePoint2d& rotateBy(double angle, const AcGePoint2d& wrtPoint = AcGePoint2d::kOrigin);
    AcGePoint2d& mirror(const AcGeLine2d& line);
    AcGePoint2d& scaleBy(double scaleFactor, const AcGePoint2d& wrtPoint = AcGePoint2d::kOrigin);

    AcGePoint2d operator*(double scl) const { return AcGePoint2d(x * scl, y * scl); }
    AcGePoint2d& operator*=(double scl) { x *= scl; y *= scl; return *this; }
    AcGePoint2d operator/(double scl) const { return AcGePoint2d(x / scl, y / scl); }
    AcGePoint2d& operator/=(double scl) { x /= scl; y /= scl; return *this; }
    AcGePoint2d operator+(const AcGeVector2d& v) const { return AcGePoint2d(x + v.x, y + v.y); }
    AcGePoint2d& operator+=(const AcGeVector2d& v) { x += v.x; y += v.y; return *this; }
    AcGePoint2d operator-(const AcGeVector2d& v) const { return AcGePoint2d(x - v.x, y - v.y); }
    AcGePoint2d& operator-=(const AcGeVector2d& v) { x -= v.x; y -= v.y; return *this; }
    AcGePoint2d& setToSum(const AcGePoint2d& pnt, const AcGeVector2d& vec) { return *this = pnt + vec; }
    AcGeVector2d operator-(const AcGePoint2d& p) const { return AcGeVector2d(x - p.x, y - p.y); }
    AcGeVector2d asVector() const { return AcGeVector2d(x, y); }

    double distanceTo(const AcGePoint2d& pnt) const;

    // Within the tolerance (isEqualTo with AcGeContext::gTol).
    bool operator==(const AcGePoint2d& pnt) const;
    bool operator!=(const AcGePoint2d& pnt) const { return !(*this == pnt); }
    // |p1 - p2| <= equalPoint.
    Adesk::Boolean isEqualTo(const AcGePoint2d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;

    // 0 is x, 1 is y; any other index raises the host error.
    double operator[](unsigned int i) const;
    double& operator[](unsigned int i);
    AcGePoint2d& set(double xx, double yy) { x = xx; y = yy; return *this; }

    double x = 0.0;
    double y = 0.0;
};

// "(x, y)" with every digit a double needs to read back the same.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGePoint2d& pnt);
