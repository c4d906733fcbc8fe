// AcGeScale3d: products, comparison and the scaling matrix of three scale factors.
#include "gescl3d.h"

#include <algorithm>
#include <cmath>

#include "GeFormat.h"
#include "gemat3d.h"
#include "headless/HostError.h"

const AcGeScale3d AcGeScale3d::kIdentity(1.0, 1.0, 1.0);

AcGeScale3d AcGeScale3d::operator*(const AcGeScale3d& sclVec) const
{
    return AcGeScale3d(sx * sclVec.sx, sy * sclVec.sy, sz * sclVec.sz);
}

AcGeScale3d& AcGeScale3d::operator*=(const AcGeScale3d& scl)
{
    return *this = *this * scl;
}

AcGeScale3d& AcGeScale3d::setToProduct(const AcGeScale3d& sclVec1, const AcGeScale3d& sclVec2)
{
    return *this = sclVec1 * sclVec2;
}

AcGeScale3d AcGeScale3d::inverse() const
{
    return AcGeScale3d(1.0 / sx, 1.0 / sy, 1.0 / sz);
}

Adesk::Boolean AcGeScale3d::isProportional(const AcGeTol& tol) const
{
    const double largest = std::max({sx, sy, sz});
    const double smallest = std::min({sx, sy, sz});
    return largest - smallest <= tol.equalVector();
}

bool AcGeScale3d::operator==(const AcGeScale3d& sclVec) const
{
    return isEqualTo(sclVec);
}

Adesk::Boolean AcGeScale3d::isEqualTo(const AcGeScale3d& scaleVec, const AcGeTol& tol) const
{
    return std::fabs(sx - scaleVec.sx) <= tol.equalVector() && std::fabs(sy - scaleVec.sy) <= tol.equalVector() &&
           std::fabs(sz - scaleVec.sz) <= tol.equalVector();
}

double AcGeScale3d::operator[](unsigned int i) const
{
    return const_cast<AcGeScale3d&>(*this)[i];
}

double& AcGeScale3d::operator[](unsigned int i)
{
    switch (i) {
    case 0: return sx;
    case 1: return sy;
    case 2: return sz;
    default: headless::raiseHostError(L"AcGeScale3d::operator[]: index %u is outside 0..2", i);
    }
}

AcGeScale3d& AcGeScale3d::set(double xFactor, double yFactor, double zFactor)
{
    sx = xFactor;
    sy = yFactor;
    sz = zFactor;
    return *this;
}

AcGeMatrix3d& AcGeScale3d::getMatrix(AcGeMatrix3d& mat) const
{
    mat.setToIdentity();
    mat.entry[0][0] = sx;
    mat.entry[1][1] = sy;
    mat.entry[2][2] = sz;
    return mat;
}

AcGeScale3d::operator AcGeMatrix3d() const
{
    AcGeMatrix3d mat;
    return getMatrix(mat);
}

AcGeScale3d& AcGeScale3d::extractScale(const AcGeMatrix3d& mat)
{
    AcGePoint3d origin;
    AcGeVector3d x;
    AcGeVector3d y;
    AcGeVector3d z;
    mat.getCoordSystem(origin, x, y, z);
    return set(x.length(), y.length(), z.length());
}

AcGeScale3d& AcGeScale3d::removeScale(AcGeMatrix3d& mat)
{
    extractScale(mat);
    const double factors[3] = {sx, sy, sz};
    for (int col = 0; col < 3; ++col) {
        if (factors[col] == 0.0)
            continue;
        for (int row = 0; row < 3; ++row)
            mat.entry[row][col] /= factors[col];
    }
    return *this;
}

std::ostream& operator<<(std::ostream& os, const AcGeScale3d& scl)
{
    hostge::writeCoordinates(os, {scl.sx, scl.sy, scl.sz});
    return os;
}
