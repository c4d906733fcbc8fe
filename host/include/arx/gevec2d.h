// AcGeVector2d: a displacement in the plane. Comparisons follow the host's tolerance
// rules, as for AcGeVector3d.
#pragma once

#include <iosfwd>

#include "gegbl.h"

class AcGeMatrix2d;

class ACHOST_API AcGeVector2d {
public:
    static const AcGeVector2d kIdentity;  // the zero vector, the additive identity
    static const AcGeVector2d kXAxis;
    static const AcGeVector2d kYAxis;

    constexpr AcGeVector2d() = default;
    constexpr AcGeVector2d(double xx, double yy) : x(xx), y(yy) {}

    // The linear part of mat applied: translation does not move a vector.
    friend ACHOST_API AcGeVector2d operator*(const AcGeMatrix2d& mat, const AcGeVector2d& vec);
    friend AcGeVector2d operator*(double scl, const AcGeVector2d& vec) { return vec * scl; }

    AcGeVector2d& setToProduct(const AcGeMatrix2d& mat, const AcGeVector2d& vec);
    AcGeVector2d& setToProduct(const AcGeVector2d& vec, double scl) { return *this = vec * scl; }
    AcGeVector2d& transformBy(const AcGeMatrix2d& leftSide);
    // Counter-clockwise.
    AcGeVector2d& rotateBy(double angle);
    // Reflects in the line through the origin along the given direction.
    AcGeVector2d& mirror(const AcGeVector2d& line);

    AcGeVector2d operator*(double scl) const { return AcGeVector2d(x * scl, y * scl); }
    AcGeVector2d& operator*=(double scl) { x *= scl; y *= scl; return *this; }
    AcGeVector2d operator/(double scl) const { return AcGeVector2d(x / scl, y / scl); }
    AcGeVector2d& operator/=(double scl) { x /= scl; y /= scl; return *this; }
    AcGeVector2d operator+(const AcGeVector2d& v) const { return AcGeVector2d(x + v.x, y + v.y); }
    AcGeVector2d& operator+=(const AcGeVector2d& v) { x += v.x; y += v.y; return *this; }
    AcGeVector2d operator-(const AcGeVector2d& v) const { return AcGeVector2d(x - v.x, y - v.y); }
    AcGeVector2d& operator-=(const AcGeVector2d& v) { x -= v.x; y -= v.y; return *this; }
    AcGeVector2d operator-() const { return AcGeVector2d(-x, -y); }
    AcGeVector2d& setToSum(const AcGeVector2d& v1, const AcGeVector2d& v2) { return *this = v1 + v2; }
    AcGeVector2d& negate() { return *this = -*this; }

    // (-y, x): this vector turned a quarter counter-clockwise, same length.
    AcGeVector2d perpVector() const { return AcGeVector2d(-y, x); }
    // In [0, 2pi): the direction's angle from the X axis, counter-clockwise.
    double angle() const;
    // In [0, pi].
    double angleTo(const AcGeVector2d& vec) const;

    // The unit vector; a vector at most equalVector long is returned unchanged.
    AcGeVector2d normal(const AcGeTol& tol = AcGeContext::gTol) const;
    AcGeVector2d& normalize(const AcGeTol& tol = AcGeContext::gTol);
    // As normalize; flag is k0This when the vector was left unchanged.
    AcGeVector2d& normalize(const AcGeTol& tol, AcGeError& flag);
    double length() const;
    double lengthSqrd() const { return x * x + y * y; }
    double dotProduct(const AcGeVector2d& v) const { return x * v.x + y * v.y; }

    // | |v| - 1 | <= equalVector.
    Adesk::Boolean isUnitLength(const AcGeTol& tol = AcGeContext::gTol) const;
    // |v| <= equalVector.
    Adesk::Boolean isZeroLength(const AcGeTol& tol = AcGeContext::gTol) const;
    // |u1 - u2| < equalVector or |u1 + u2| < equalVector for the unit vectors. The direction
    // predicates answer false when either vector is zero-length (isZeroLength).
    Adesk::Boolean isParallelTo(const AcGeVector2d& vec, const AcGeTol& tol = AcGeContext::gTol) const;
    // As isParallelTo; flag is k0This or k0Arg1 (and the answer false) for a zero vector.
    Adesk::Boolean isParallelTo(const AcGeVector2d& vec, const AcGeTol& tol, AcGeError& flag) const;
    // Parallel and of the same sense: |u1 - u2| < equalVector.
    Adesk::Boolean isCodirectionalTo(const AcGeVector2d& vec, const AcGeTol& tol = AcGeContext::gTol) const;
    Adesk::Boolean isCodirectionalTo(const AcGeVector2d& vec, const AcGeTol& tol, AcGeError& flag) const;
    // |v1 . v2| / (|v1| |v2|) <= equalVector.
    Adesk::Boolean isPerpendicularTo(const AcGeVector2d& vec, const AcGeTol& tol = AcGeContext::gTol) const;
    Adesk::Boolean isPerpendicularTo(const AcGeVector2d& vec, const AcGeTol& tol, AcGeError& flag) const;

    // Within the tolerance (isEqualTo with AcGeContext::gTol).
    bool operator==(const AcGeVector2d& vec) const;
    bool operator!=(const AcGeVector2d& vec) const { return !(*this == vec); }
    // |v1 - v2| <= equalVector.
    Adesk::Boolean isEqualTo(const AcGeVector2d& vec, const AcGeTol& tol = AcGeContext::gTol) const;

    // 0 is x, 1 is y; any other index raises the host error.
    double operator[](unsigned int i) const;
    double& operator[](unsigned int i);
    AcGeVector2d& set(double xx, double yy) { x = xx; y = yy; return *this; }

    double x = 0.0;
    double y = 0.0;
};

// "(x, y)" with every digit a double needs to read back the same.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeVector2d& vec);
