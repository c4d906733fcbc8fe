// AcGePoint3d: a position in space. Two points are equal when they lie at most
// equalPoint apart.
#pragma once

#include <iosfwd>

#include "gepnt2d.h"
#include "gevec3d.h"

class AcGeMatrix3d;
class AcGePlane;

class ACHOST_API AcGePoint3d {
public:
    static const AcGePoint3d kOrigin;

    constexpr AcGePoint3d() = default;
    constexpr AcGePoint3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}
    // The plane's point at the parameters pnt (origin + pnt.x * u + pnt.y * v).
    AcGePoint3d(const AcGePlane& pln, const AcGePoint2d& pnt);

    // The whole of mat applied, translation included (divided through by the fourth
    // coordinate when mat is a perspective matrix).
    friend ACHOST_API AcGePoint3d operator*(const AcGeMatrix3d& mat, const AcGePoint3d& pnt);
    friend AcGePoint3d operator*(double scl, const AcGePoint3d& pnt) { return pnt * scl; }

    AcGePoint3d& setToProduct(const AcGeMatrix3d& mat, const AcGePoint3d& pnt);
    AcGePoint3d& transformBy(const AcGeMatrix3d& leftSide);
    // Counter-clockwise about the axis through wrtPoint along vec, seen from vec's tip;
    // raises the host error for a zero vec.
    AcGePoint3d& rotateBy(double angle, const AcGeVector3d& vec, const AcGePoint3d& wrtPoint = AcGePoint3d::kOrigin);
    AcGePoint3d& mirror(const AcGePlane& pln);
    AcGePoint3d& scaleBy(double scaleFactor, const AcGePoint3d& wrtPoint = AcGePoint3d::kOrigin);
    // Along vec onto the plane; a vec parallel to the plane gives the point unchanged.
    AcGePoint3d project(const AcGePlane& pln, const AcGeVector3d& vec) const;
    // The plane's point closest to this one.
    AcGePoint3d orthoProject(const AcGePlane& pln) const;
    // The plane's parameters of this point's orthogonal projection onto it.
    AcGePoint2d convert2d(const AcGePlane& pln) const;

    AcGePoint3d operator*(double scl) const { return AcGePoint3d(x * scl, y * scl, z * scl); }
    AcGePoint3d& operator*=(double scl) { x *= scl; y *= scl; z *= scl; return *this; }
    AcGePoint3d operator/(double scl) const { return AcGePoint3d(x / scl, y / scl, z / scl); }
    AcGePoint3d& operator/=(double scl) { x /= scl; y /= scl; z /= scl; return *this; }
    AcGePoint3d operator+(const AcGeVector3d& v) const { return AcGePoint3d(x + v.x, y + v.y, z + v.z); }
    AcGePoint3d& operator+=(const AcGeVector3d& v) { x += v.x; y += v.y; z += v.z; return *this; }
    AcGePoint3d operator-(const AcGeVector3d& v) const { return AcGePoint3d(x - v.x, y - v.y, z - v.z); }
    AcGePoint3d& operator-=(const AcGeVector3d& v) { x -= v.x; y -= v.y; z -= v.z; return *this; }
    AcGePoint3d& setToSum(const AcGePoint3d& pnt, const AcGeVector3d& vec) { return *this = pnt + vec; }
    AcGeVector3d operator-(const AcGePoint3d& p) const { return AcGeVector3d(x - p.x, y - p.y, z - p.z); }
    AcGeVector3d asVector() const { return AcGeVector3d(x, y, z); }

    double distanceTo(const AcGePoint3d& pnt) const;

    // Within the tolerance (isEqualTo with AcGeContext::gTol).
    bool operator==(const AcGePoint3d& pnt) const;
    bool operator!=(const AcGePoint3d& pnt) const { return !(*this == pnt); }
    // |p1 - p2| <= equalPoint.
    Adesk::Boolean isEqualTo(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;

    // 0 is x, 1 is y, 2 is z; any other index raises the host error.
    double operator[](unsigned int i) const;
    double& operator[](unsigned int i);
    AcGePoint3d& set(double xx, double yy, double zz) { x = xx; y = yy; z = zz; return *this; }
    AcGePoint3d& set(const AcGePlane& pln, const AcGePoint2d& pnt);

    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

// "(x, y, z)" with every digit a double needs to read back the same.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGePoint3d& pnt);
