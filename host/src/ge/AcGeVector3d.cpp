// AcGeVector3d: tolerance predicates, rotation, mirroring and projection of vectors in space.
#include "gevec3d.h"

#include <algorithm>
#include <cmath>

#include "GeFormat.h"
#include "GeMath.h"
#include "gemat3d.h"
#include "geplane.h"
#include "headless/HostError.h"

const AcGeVector3d AcGeVector3d::kIdentity(0.0, 0.0, 0.0);
const AcGeVector3d AcGeVector3d::kXAxis(1.0, 0.0, 0.0);
const AcGeVector3d AcGeVector3d::kYAxis(0.0, 1.0, 0.0);
const AcGeVector3d AcGeVector3d::kZAxis(0.0, 0.0, 1.0);

AcGeVector3d::AcGeVector3d(const AcGePlane& pln, const AcGeVector2d& vec)
{
    set(pln, vec);
}

AcGeVector3d operator*(const AcGeMatrix3d& mat, const AcGeVector3d& vec)
{
    const auto& e = mat.entry;
    return AcGeVector3d(e[0][0] * vec.x + e[0][1] * vec.y + e[0][2] * vec.z,
                        e[1][0] * vec.x + e[1][1] * vec.y + e[1][2] * vec.z,
                        e[2][0] * vec.x + e[2][1] * vec.y + e[2][2] * vec.z);
}

AcGeVector3d& AcGeVector3d::setToProduct(const AcGeMatrix3d& mat, const AcGeVector3d& vec)
{
    return *this = mat * vec;
}

AcGeVector3d& AcGeVector3d::transformBy(const AcGeMatrix3d& leftSide)
{
    return *this = leftSide * *this;
}

AcGeVector3d& AcGeVector3d::rotateBy(double ang, const AcGeVector3d& axis)
{
    if (axis.isZeroLength())
        headless::raiseHostError(L"AcGeVector3d::rotateBy: the axis has zero length");
    return *this = AcGeMatrix3d::rotation(ang, axis) * *this;
}

AcGeVector3d& AcGeVector3d::mirror(const AcGeVector3d& normalToPlane)
{
    if (normalToPlane.isZeroLength())
        headless::raiseHostError(L"AcGeVector3d::mirror: the plane normal has zero length");
    const AcGeVector3d n = normalToPlane.normal();
    return *this -= n * (2.0 * dotProduct(n));
}

AcGeVector2d AcGeVector3d::convert2d(const AcGePlane& pln) const
{
    AcGePoint3d origin;
    AcGeVector3d u;
    AcGeVector3d v;
    pln.getCoordSystem(origin, u, v);
    return hostge::coordinatesIn(u, v, *this).asVector();
}

AcGeVector3d AcGeVector3d::perpVector() const
{
    AcGeVector3d orthoVec;
    AcGeContext::gOrthoVector(*this, orthoVec);
    return orthoVec;
}

double AcGeVector3d::angleTo(const AcGeVector3d& vec) const
{
    // atan2 keeps full accuracy near 0 and pi, where acos of the dot product does not.
    return std::atan2(crossProduct(vec).length(), dotProduct(vec));
}

double AcGeVector3d::angleTo(const AcGeVector3d& vec, const AcGeVector3d& refVec) const
{
    const double angle = angleTo(vec);
    if (angle != 0.0 && crossProduct(vec).dotProduct(refVec) < 0.0)
        return hostge::kTwoPi - angle;
    return angle;
}

double AcGeVector3d::angleOnPlane(const AcGePlane& pln) const
{
    AcGePoint3d origin;
    AcGeVector3d u;
    AcGeVector3d v;
    pln.getCoordSystem(origin, u, v);
    const AcGeVector3d n = pln.normal();
    const AcGeVector3d xAxis = u.normal();
    const AcGeVector3d yAxis = n.crossProduct(xAxis);
    const AcGeVector3d inPlane = orthoProject(n);
    return hostge::angleInFullTurn(std::atan2(inPlane.dotProduct(yAxis), inPlane.dotProduct(xAxis)));
}

AcGeVector3d AcGeVector3d::normal(const AcGeTol& tol) const
{
    AcGeVector3d unit = *this;
    return unit.normalize(tol);
}

AcGeVector3d& AcGeVector3d::normalize(const AcGeTol& tol)
{
    AcGeError flag = AcGe::kOk;
    return normalize(tol, flag);
}

AcGeVector3d& AcGeVector3d::normalize(const AcGeTol& tol, AcGeError& flag)
{
    const double len = length();
    if (len <= tol.equalVector()) {
        flag = AcGe::k0This;
        return *this;
    }
    flag = AcGe::kOk;
    const double largest = std::max({std::fabs(x), std::fabs(y), std::fabs(z)});
    if (std::isinf(len) && std::isfinite(largest)) {
        // Longer than any double: brought down by its largest component first, so that the
        // direction survives instead of every component dividing to zero.
        *this /= largest;
        return *this /= length();
    }
    return *this /= len;
}

double AcGeVector3d::length() const
{
    return hostge::euclideanLength(x, y, z);
}

Adesk::Boolean AcGeVector3d::isUnitLength(const AcGeTol& tol) const
{
    return std::fabs(length() - 1.0) <= tol.equalVector();
}

Adesk::Boolean AcGeVector3d::isZeroLength(const AcGeTol& tol) const
{
    return length() <= tol.equalVector();
}

Adesk::Boolean AcGeVector3d::isParallelTo(const AcGeVector3d& vec, const AcGeTol& tol) const
{
    AcGeError flag = AcGe::kOk;
    return isParallelTo(vec, tol, flag);
}

Adesk::Boolean AcGeVector3d::isParallelTo(const AcGeVector3d& vec, const AcGeTol& tol, AcGeError& flag) const
{
    if (isCodirectionalTo(vec, tol, flag))
        return true;
    if (flag != AcGe::kOk)
        return false;
    return (normal(tol) + vec.normal(tol)).length() < tol.equalVector();
}

Adesk::Boolean AcGeVector3d::isCodirectionalTo(const AcGeVector3d& vec, const AcGeTol& tol) const
{
    AcGeError flag = AcGe::kOk;
    return isCodirectionalTo(vec, tol, flag);
}

Adesk::Boolean AcGeVector3d::isCodirectionalTo(const AcGeVector3d& vec, const AcGeTol& tol, AcGeError& flag) const
{
    flag = isZeroLength(tol) ? AcGe::k0This : vec.isZeroLength(tol) ? AcGe::k0Arg1 : AcGe::kOk;
    if (flag != AcGe::kOk)
        return false;
    return (normal(tol) - vec.normal(tol)).length() < tol.equalVector();
}

Adesk::Boolean AcGeVector3d::isPerpendicularTo(const AcGeVector3d& vec, const AcGeTol& tol) const
{
    AcGeError flag = AcGe::kOk;
    return isPerpendicularTo(vec, tol, flag);
}

Adesk::Boolean AcGeVector3d::isPerpendicularTo(const AcGeVector3d& vec, const AcGeTol& tol, AcGeError& flag) const
{
    flag = isZeroLength(tol) ? AcGe::k0This : vec.isZeroLength(tol) ? AcGe::k0Arg1 : AcGe::kOk;
    if (flag != AcGe::kOk)
        return false;
    return std::fabs(dotProduct(vec)) / (length() * vec.length()) <= tol.equalVector();
}

AcGeMatrix3d AcGeVector3d::rotateTo(const AcGeVector3d& vec, const AcGeVector3d& axis) const
{
    if (isZeroLength() || vec.isZeroLength())
        return AcGeMatrix3d::kIdentity;
    if (!axis.isZeroLength()) {
        const AcGeVector3d n = axis.normal();
        const AcGeVector3d from = orthoProject(n);
        const AcGeVector3d to = vec.orthoProject(n);
        if (from.isZeroLength() || to.isZeroLength())
            return AcGeMatrix3d::kIdentity;
        return AcGeMatrix3d::rotation(from.angleTo(to, n), n);
    }
    const AcGeVector3d cross = crossProduct(vec);
    if (!cross.isZeroLength())
        return AcGeMatrix3d::rotation(angleTo(vec), cross);
    // Parallel: nothing to do in the same sense, a half turn about any normal otherwise.
    if (dotProduct(vec) > 0.0)
        return AcGeMatrix3d::kIdentity;
    return AcGeMatrix3d::rotation(hostge::kTwoPi / 2.0, perpVector());
}

AcGeVector3d AcGeVector3d::project(const AcGeVector3d& planeNormal, const AcGeVector3d& projectDirection) const
{
    AcGeError flag = AcGe::kOk;
    return project(planeNormal, projectDirection, AcGeContext::gTol, flag);
}

AcGeVector3d AcGeVector3d::project(const AcGeVector3d& planeNormal, const AcGeVector3d& projectDirection,
                                   const AcGeTol& tol, AcGeError& flag) const
{
    if (planeNormal.isZeroLength(tol)) {
        flag = AcGe::k0Arg1;
        return *this;
    }
    if (projectDirection.isZeroLength(tol)) {
        flag = AcGe::k0Arg2;
        return *this;
    }
    if (projectDirection.isPerpendicularTo(planeNormal, tol)) {
        flag = AcGe::kPerpendicularArg1Arg2;
        return *this;
    }
    flag = AcGe::kOk;
    return *this - projectDirection * (dotProduct(planeNormal) / projectDirection.dotProduct(planeNormal));
}

AcGeVector3d AcGeVector3d::orthoProject(const AcGeVector3d& planeNormal) const
{
    AcGeError flag = AcGe::kOk;
    return orthoProject(planeNormal, AcGeContext::gTol, flag);
}

AcGeVector3d AcGeVector3d::orthoProject(const AcGeVector3d& planeNormal, const AcGeTol& tol, AcGeError& flag) const
{
    if (planeNormal.isZeroLength(tol)) {
        flag = AcGe::k0Arg1;
        return *this;
    }
    flag = AcGe::kOk;
    const AcGeVector3d n = planeNormal.normal(tol);
    return *this - n * dotProduct(n);
}

bool AcGeVector3d::operator==(const AcGeVector3d& vec) const
{
    return isEqualTo(vec);
}

Adesk::Boolean AcGeVector3d::isEqualTo(const AcGeVector3d& vec, const AcGeTol& tol) const
{
    return (*this - vec).length() <= tol.equalVector();
}

double AcGeVector3d::operator[](unsigned int i) const
{
    return const_cast<AcGeVector3d&>(*this)[i];
}

double& AcGeVector3d::operator[](unsigned int i)
{
    switch (i) {
    case 0: return x;
    case 1: return y;
    case 2: return z;
    default: headless::raiseHostError(L"AcGeVector3d::operator[]: index %u is outside 0..2", i);
    }
}

unsigned int AcGeVector3d::largestElement() const
{
    const double ax = std::fabs(x);
    const double ay = std::fabs(y);
    const double az = std::fabs(z);
    if (ax >= ay && ax >= az)
        return 0;
    return ay >= az ? 1 : 2;
}

AcGeVector3d& AcGeVector3d::set(const AcGePlane& pln, const AcGeVector2d& vec)
{
    AcGePoint3d origin;
    AcGeVector3d u;
    AcGeVector3d v;
    pln.getCoordSystem(origin, u, v);
    return *this = u * vec.x + v * vec.y;
}

std::ostream& operator<<(std::ostream& os, const AcGeVector3d& vec)
{
    hostge::writeCoordinates(os, {vec.x, vec.y, vec.z});
    return os;
}
