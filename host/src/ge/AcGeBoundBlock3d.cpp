// AcGeBoundBlock3d: axis-aligned boxes in space.
#include "geblok3d.h"

#include <algorithm>
#include <cmath>
#include <ostream>

namespace {

AcGePoint3d lowest(const AcGePoint3d& a, const AcGePoint3d& b)
{
    return AcGePoint3d(std::fmin(a.x, b.x), std::fmin(a.y, b.y), std::fmin(a.z, b.z));
}

AcGePoint3d highest(const AcGePoint3d& a, const AcGePoint3d& b)
{
    return AcGePoint3d(std::fmax(a.x, b.x), std::fmax(a.y, b.y), std::fmax(a.z, b.z));
}

}  // namespace

AcGeBoundBlock3d::AcGeBoundBlock3d() = default;

AcGeBoundBlock3d::AcGeBoundBlock3d(const AcGePoint3d& point1, const AcGePoint3d& point2)
{
    set(point1, point2);
}

void AcGeBoundBlock3d::getMinMaxPoints(AcGePoint3d& point1, AcGePoint3d& point2) const
{
    point1 = mMin;
    point2 = mMax;
}

AcGeBoundBlock3d& AcGeBoundBlock3d::set(const AcGePoint3d& point1, const AcGePoint3d& point2)
{
    mMin = lowest(point1, point2);
    mMax = highest(point1, point2);
    return *this;
}

AcGeBoundBlock3d& AcGeBoundBlock3d::extend(const AcGePoint3d& point)
{
    mMin = lowest(mMin, point);
    mMax = highest(mMax, point);
    return *this;
}

AcGeBoundBlock3d& AcGeBoundBlock3d::swell(double distance)
{
    const AcGePoint3d center = mMin + (mMax - mMin) / 2.0;
    const AcGeVector3d grow(distance, distance, distance);
    mMin = lowest(mMin - grow, center);
    mMax = highest(mMax + grow, center);
    return *this;
}

Adesk::Boolean AcGeBoundBlock3d::contains(const AcGePoint3d& point) const
{
    return point.x >= mMin.x && point.x <= mMax.x && point.y >= mMin.y && point.y <= mMax.y && point.z >= mMin.z &&
           point.z <= mMax.z;
}

Adesk::Boolean AcGeBoundBlock3d::isDisjoint(const AcGeBoundBlock3d& block) const
{
    return block.mMin.x > mMax.x || block.mMax.x < mMin.x || block.mMin.y > mMax.y || block.mMax.y < mMin.y ||
           block.mMin.z > mMax.z || block.mMax.z < mMin.z;
}

AcGeBoundBlock3d& AcGeBoundBlock3d::setToBox(Adesk::Boolean)
{
    return *this;
}

Adesk::Boolean AcGeBoundBlock3d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kBoundBlock3d || AcGeEntity3d::isKindOf(entType);
}

AcGeEntity3d* AcGeBoundBlock3d::copy() const
{
    return new AcGeBoundBlock3d(*this);
}

Adesk::Boolean AcGeBoundBlock3d::isEqualTo(const AcGeEntity3d& entity, const AcGeTol& tol) const
{
    if (entity.type() != AcGe::kBoundBlock3d)
        return false;
    const auto& other = static_cast<const AcGeBoundBlock3d&>(entity);
    return mMin.isEqualTo(other.mMin, tol) && mMax.isEqualTo(other.mMax, tol);
}

AcGeBoundBlock3d& AcGeBoundBlock3d::transformBy(const AcGeMatrix3d& xfm)
{
    AcGeBoundBlock3d moved(xfm * mMin, xfm * mMin);
    for (int i = 0; i < 8; ++i) {
        const AcGePoint3d corner((i & 1) ? mMax.x : mMin.x, (i & 2) ? mMax.y : mMin.y, (i & 4) ? mMax.z : mMin.z);
        moved.extend(xfm * corner);
    }
    return *this = moved;
}

Adesk::Boolean AcGeBoundBlock3d::isOn(const AcGePoint3d& pnt, const AcGeTol& tol) const
{
    const double e = tol.equalPoint();
    return pnt.x >= mMin.x - e && pnt.x <= mMax.x + e && pnt.y >= mMin.y - e && pnt.y <= mMax.y + e &&
           pnt.z >= mMin.z - e && pnt.z <= mMax.z + e;
}

void AcGeBoundBlock3d::print(std::ostream& os) const
{
    os << "AcGeBoundBlock3d(" << mMin << ", " << mMax << ')';
}

std::ostream& operator<<(std::ostream& os, const AcGeBoundBlock3d& block)
{
    block.print(os);
    return os;
}
