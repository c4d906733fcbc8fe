// AcGeVector2d: tolerance predicates, rotation and mirroring of vectors in the plane.
#include "gevec2d.h"

#include <algorithm>
#include <cmath>

#include "GeFormat.h"
#include "GeMath.h"
#include "gemat2d.h"
#include "headless/HostError.h"

const AcGeVector2d AcGeVector2d::kIdentity(0.0, 0.0);
const AcGeVector2d AcGeVector2d::kXAxis(1.0, 0.0);
const AcGeVector2d AcGeVector2d::kYAxis(0.0, 1.0);

AcGeVector2d operator*(const AcGeMatrix2d& mat, const AcGeVector2d& vec)
{
    const auto& e = mat.entry;
    return AcGeVector2d(e[0][0] * vec.x + e[0][1] * vec.y, e[1][0] * vec.x + e[1][1] * vec.y);
}

AcGeVector2d& AcGeVector2d::setToProduct(const AcGeMatrix2d& mat, const AcGeVector2d& vec)
{
    return *this = mat * vec;
}

AcGeVector2d& AcGeVector2d::transformBy(const AcGeMatrix2d& leftSide)
{
    return *this = leftSide * *this;
}

AcGeVector2d& AcGeVector2d::rotateBy(double angle)
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return set(c * x - s * y, s * x + c * y);
}

AcGeVector2d& AcGeVector2d::mirror(const AcGeVector2d& line)
{
    if (line.isZeroLength())
        headless::raiseHostError(L"AcGeVector2d::mirror: the line direction has zero length");
    const AcGeVector2d d = line.normal();
    return *this = d * (2.0 * dotProduct(d)) - *this;
}

double AcGeVector2d::angle() const
{
    return hostge::angleInFullTurn(std::atan2(y, x));
}

double AcGeVector2d::angleTo(const AcGeVector2d& vec) const
{
    // atan2 keeps full accuracy near 0 and pi, where acos of the dot product does not.
    return std::atan2(std::fabs(x * vec.y - y * vec.x), dotProduct(vec));
}

AcGeVector2d AcGeVector2d::normal(const AcGeTol& tol) const
{
    AcGeVector2d unit = *this;
    return unit.normalize(tol);
}

AcGeVector2d& AcGeVector2d::normalize(const AcGeTol& tol)
{
    AcGeError flag = AcGe::kOk;
    return normalize(tol, flag);
}

AcGeVector2d& AcGeVector2d::normalize(const AcGeTol& tol, AcGeError& flag)
{
    const double len = length();
    if (len <= tol.equalVector()) {
        flag = AcGe::k0This;
        return *this;
    }
    flag = AcGe::kOk;
    const double largest = std::max(std::fabs(x), std::fabs(y));
    if (std::isinf(len) && std::isfinite(largest)) {
        // Longer than any double: brought down by its largest component first, so that the
        // direction survives instead of every component dividing to zero.
        *this /= largest;
        return *this /= length();
    }
    return *this /= len;
}

double AcGeVector2d::length() const
{
    return hostge::euclideanLength(x, y, 0.0);
}

Adesk::Boolean AcGeVector2d::isUnitLength(const AcGeTol& tol) const
{
    return std::fabs(length() - 1.0) <= tol.equalVector();
}

Adesk::Boolean AcGeVector2d::isZeroLength(const AcGeTol& tol) const
{
    return length() <= tol.equalVector();
}

Adesk::Boolean AcGeVector2d::isParallelTo(const AcGeVector2d& vec, const AcGeTol& tol) const
{
    AcGeError flag = AcGe::kOk;
    return isParallelTo(vec, tol, flag);
}

Adesk::Boolean AcGeVector2d::isParallelTo(const AcGeVector2d& vec, const AcGeTol& tol, AcGeError& flag) const
{
    if (isCodirectionalTo(vec, tol, flag))
        return true;
    if (flag != AcGe::kOk)
        return false;
    return (normal(tol) + vec.normal(tol)).length() < tol.equalVector();
}

Adesk::Boolean AcGeVector2d::isCodirectionalTo(const AcGeVector2d& vec, const AcGeTol& tol) const
{
    AcGeError flag = AcGe::kOk;
    return isCodirectionalTo(vec, tol, flag);
}

Adesk::Boolean AcGeVector2d::isCodirectionalTo(const AcGeVector2d& vec, const AcGeTol& tol, AcGeError& flag) const
{
    flag = isZeroLength(tol) ? AcGe::k0This : vec.isZeroLength(tol) ? AcGe::k0Arg1 : AcGe::kOk;
    if (flag != AcGe::kOk)
        return false;
    return (normal(tol) - vec.normal(tol)).length() < tol.equalVector();
}

Adesk::Boolean AcGeVector2d::isPerpendicularTo(const AcGeVector2d& vec, const AcGeTol& tol) const
{
    AcGeError flag = AcGe::kOk;
    return isPerpendicularTo(vec, tol, flag);
}

Adesk::Boolean AcGeVector2d::isPerpendicularTo(const AcGeVector2d& vec, const AcGeTol& tol, AcGeError& flag) const
{
    flag = isZeroLength(tol) ? AcGe::k0This : vec.isZeroLength(tol) ? AcGe::k0Arg1 : AcGe::kOk;
    if (flag != AcGe::kOk)
        return false;
    return std::fabs(dotProduct(vec)) / (length() * vec.length()) <= tol.equalVector();
}

bool AcGeVector2d::operator==(const AcGeVector2d& vec) const
{
    return isEqualTo(vec);
}

Adesk::Boolean AcGeVector2d::isEqualTo(const AcGeVector2d& vec, const AcGeTol& tol) const
{
    return (*this - vec).length() <= tol.equalVector();
}

double AcGeVector2d::operator[](unsigned int i) const
{
    return const_cast<AcGeVector2d&>(*this)[i];
}

double& AcGeVector2d::operator[](unsigned int i)
{
    switch (i) {
    case 0: return x;
    case 1: return y;
    default: headless::raiseHostError(L"AcGeVector2d::operator[]: index %u is outside 0..1", i);
    }
}

std::ostream& operator<<(std::ostream& os, const AcGeVector2d& vec)
{
    hostge::writeCoordinates(os, {vec.x, vec.y});
    return os;
}
