// AcGeVector3d: a displacement in space. Comparisons follow the host's tolerance rules:
// equal when the difference is at most equalVector long; parallel when the unit vectors
// (or one and the other's negation) differ by strictly less than equalVector.
#pragma once

#include <iosfwd>

#include "gegbl.h"

class AcGeMatrix3d;
class AcGePlane;
class AcGeVector2d;

class ACHOST_API AcGeVector3d {
public:
    static const AcGeVector3d kIdentity;  // the zero vector, the additive identity
    static const AcGeVector3d kXAxis;
    static const AcGeVector3d kYAxis;
    static const AcGeVector3d kZAxis;

    constexpr AcGeVector3d() = default;
    constexpr AcGeVector3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}
    // The vector vec.x * u + vec.y * v in the plane's axes.
    AcGeVector3d(const AcGePlane& pln, const AcGeVector2d& vec);

    // The linear part of mat applied: translation does not move a vector.
    friend ACHOST_API AcGeVector3d operator*(const AcGeMatrix3d& mat, const AcGeVector3d& vec);
    friend AcGeVector3d operator*(double scl, const AcGeVector3d& vec) { return vec * scl; }

    AcGeVector3d& setToProduct(const AcGeMatrix3d& mat, const AcGeVector3d& vec);
    AcGeVector3d& setToProduct(const AcGeVector3d& vec, double scl) { return *this = vec * scl; }
    AcGeVector3d& transformBy(const AcGeMatrix3d& leftSide);
    // Counter-clockwise seen from the tip of axis; raises the host error for a zero axis.
    AcGeVector3d& rotateBy(double ang, const AcGeVector3d& axis);
    // Reflects in the plane through the origin with the given normal.
    AcGeVector3d& mirror(const AcGeVector3d& normalToPlane);
    // The coordinates, in the plane's axes, of this vector's projection onto the plane.
    AcGeVector2d convert2d(const AcGePlane& pln) const;

    AcGeVector3d operator*(double scl) const { return AcGeVector3d(x * scl, y * scl, z * scl); }
    AcGeVector3d& operator*=(double scl) { x *= scl; y *= scl; z *= scl; return *this; }
    AcGeVector3d operator/(double scl) const { return AcGeVector3d(x / scl, y / scl, z / scl); }
    AcGeVector3d& operator/=(double scl) { x /= scl; y /= scl; z /= scl; return *this; }
    AcGeVector3d operator+(const AcGeVector3d& v) const { return AcGeVector3d(x + v.x, y + v.y, z + v.z); }
    AcGeVector3d& operator+=(const AcGeVector3d& v) { x += v.x; y += v.y; z += v.z; return *this; }
    AcGeVector3d operator-(const AcGeVector3d& v) const { return AcGeVector3d(x - v.x, y - v.y, z - v.z); }
    AcGeVector3d& operator-=(const AcGeVector3d& v) { x -= v.x; y -= v.y; z -= v.z; return *this; }
    AcGeVector3d operator-() const { return AcGeVector3d(-x, -y, -z); }
    AcGeVector3d& setToSum(const AcGeVector3d& v1, const AcGeVector3d& v2) { return *this = v1 + v2; }
    AcGeVector3d& negate() { return *this = -*this; }

    // A vector orthogonal to this one, from AcGeContext::gOrthoVector (by default Z x v,
    // or Y x v near the Z axis: not normalised, and zero for a zero vector).
    AcGeVector3d perpVector() const;
    // In [0, pi].
    double angleTo(const AcGeVector3d& vec) const;
    // In [0, 2pi): counter-clockwise from this to vec seen from the tip of refVec.
    double angleTo(const AcGeVector3d& vec, const AcGeVector3d& refVec) const;
    // In [0, 2pi): the angle of this vector's projection onto the plane, from the plane's
    // u axis, counter-clockwise about its normal.
    double angleOnPlane(const AcGePlane& pln) const;

    // The unit vector; a vector at most equalVector long is returned unchanged.
    AcGeVector3d normal(const AcGeTol& tol = AcGeContext::gTol) const;
    AcGeVector3d& normalize(const AcGeTol& tol = AcGeContext::gTol);
    // As normalize; flag is k0This when the vector was left unchanged.
    AcGeVector3d& normalize(const AcGeTol& tol, AcGeError& flag);
    double length() const;
    double lengthSqrd() const { return x * x + y * y + z * z; }
    // | |v| - 1 | <= equalVector.
    Adesk::Boolean isUnitLength(const AcGeTol& tol = AcGeContext::gTol) const;
    // |v| <= equalVector.
    Adesk::Boolean isZeroLength(const AcGeTol& tol = AcGeContext::gTol) const;
    // |u1 - u2| < equalVector or |u1 + u2| < equalVector for the unit vectors. The direction
    // predicates answer false when either vector is zero-length (isZeroLength).
    Adesk::Boolean isParallelTo(const AcGeVector3d& vec, const AcGeTol& tol = AcGeContext::gTol) const;
    // As isParallelTo; flag is k0This or k0Arg1 (and the answer false) for a zero vector.
    Adesk::Boolean isParallelTo(const AcGeVector3d& vec, const AcGeTol& tol, AcGeError& flag) const;
    // Parallel and of the same sense: |u1 - u2| < equalVector.
    Adesk::Boolean isCodirectionalTo(const AcGeVector3d& vec, const AcGeTol& tol = AcGeContext::gTol) const;
    Adesk::Boolean isCodirectionalTo(const AcGeVector3d& vec, const AcGeTol& tol, AcGeError& flag) const;
    // |v1 . v2| / (|v1| |v2|) <= equalVector.
    Adesk::Boolean isPerpendicularTo(const AcGeVector3d& vec, const AcGeTol& tol = AcGeContext::gTol) const;
    Adesk::Boolean isPerpendicularTo(const AcGeVector3d& vec, const AcGeTol& tol, AcGeError& flag) const;

    double dotProduct(const AcGeVector3d& v) const { return x * v.x + y * v.y + z * v.z; }
    AcGeVector3d crossProduct(const AcGeVector3d& v) const
    {
        return AcGeVector3d(y * v.z - z * v.y, z * v.x - x * v.z, x * v.y - y * v.x);
    }
    // The rotation that turns this vector's direction into vec's: about axis when one is
    // given (the angle measured between their projections onto the plane normal to axis),
    // otherwise about this x vec.
    AcGeMatrix3d rotateTo(const AcGeVector3d& vec, const AcGeVector3d& axis = AcGeVector3d::kIdentity) const;

    // Projects along projectDirection onto the plane through the origin with planeNormal.
    // A direction parallel to that plane has no projection: the vector comes back unchanged.
    AcGeVector3d project(const AcGeVector3d& planeNormal, const AcGeVector3d& projectDirection) const;
    // As project; flag is k0Arg1 for a zero normal, k0Arg2 for a zero direction,
    // kPerpendicularArg1Arg2 for a direction parallel to the plane.
    AcGeVector3d project(const AcGeVector3d& planeNormal, const AcGeVector3d& projectDirection,
                         const AcGeTol& tol, AcGeError& flag) const;
    // Drops the component along planeNormal (unchanged for a zero normal).
    AcGeVector3d orthoProject(const AcGeVector3d& planeNormal) const;
    // As orthoProject; flag is k0Arg1 for a zero normal.
    AcGeVector3d orthoProject(const AcGeVector3d& planeNormal, const AcGeTol& tol, AcGeError& flag) const;

    // Within the tolerance (isEqualTo with AcGeContext::gTol).
    bool operator==(const AcGeVector3d& vec) const;
    bool operator!=(const AcGeVector3d& vec) const { return !(*this == vec); }
    // |v1 - v2| <= equalVector.
    Adesk::Boolean isEqualTo(const AcGeVector3d& vec, const AcGeTol& tol = AcGeContext::gTol) const;

    // 0 is x, 1 is y, 2 is z; any other index raises the host error.
    double operator[](unsigned int i) const;
    double& operator[](unsigned int i);
    // The index of the coordinate largest in magnitude (the first of equals).
    unsigned int largestElement() const;
    AcGeVector3d& set(double xx, double yy, double zz) { x = xx; y = yy; z = zz; return *this; }
    AcGeVector3d& set(const AcGePlane& pln, const AcGeVector2d& vec);

    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

// "(x, y, z)" with every digit a double needs to read back the same.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeVector3d& vec);
