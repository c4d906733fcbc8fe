// AcGeBoundBlock2d: axis-aligned boxes of the plane.
#include "geblok2d.h"

#include <algorithm>
#include <cmath>
#include <ostream>

AcGeBoundBlock2d::AcGeBoundBlock2d() = default;

AcGeBoundBlock2d::AcGeBoundBlock2d(const AcGePoint2d& point1, const AcGePoint2d& point2)
{
    set(point1, point2);
}

void AcGeBoundBlock2d::getMinMaxPoints(AcGePoint2d& point1, AcGePoint2d& point2) const
{
    point1 = mMin;
    point2 = mMax;
}

AcGeBoundBlock2d& AcGeBoundBlock2d::set(const AcGePoint2d& point1, const AcGePoint2d& point2)
{
    mMin.set(std::fmin(point1.x, point2.x), std::fmin(point1.y, point2.y));
    mMax.set(std::fmax(point1.x, point2.x), std::fmax(point1.y, point2.y));
    return *this;
}

AcGeBoundBlock2d& AcGeBoundBlock2d::extend(const AcGePoint2d& point)
{
    mMin.set(std::fmin(mMin.x, point.x), std::fmin(mMin.y, point.y));
    mMax.set(std::fmax(mMax.x, point.x), std::fmax(mMax.y, point.y));
    return *this;
}

AcGeBoundBlock2d& AcGeBoundBlock2d::swell(double distance)
{
    const AcGePoint2d center((mMin.x + mMax.x) / 2.0, (mMin.y + mMax.y) / 2.0);
    mMin.set(std::fmin(mMin.x - distance, center.x), std::fmin(mMin.y - distance, center.y));
    mMax.set(std::fmax(mMax.x + distance, center.x), std::fmax(mMax.y + distance, center.y));
    return *this;
}

Adesk::Boolean AcGeBoundBlock2d::contains(const AcGePoint2d& point) const
{
    return point.x >= mMin.x && point.x <= mMax.x && point.y >= mMin.y && point.y <= mMax.y;
}

Adesk::Boolean AcGeBoundBlock2d::isDisjoint(const AcGeBoundBlock2d& block) const
{
    return block.mMin.x > mMax.x || block.mMax.x < mMin.x || block.mMin.y > mMax.y || block.mMax.y < mMin.y;
}

AcGeBoundBlock2d& AcGeBoundBlock2d::setToBox(Adesk::Boolean)
{
    return *this;
}

Adesk::Boolean AcGeBoundBlock2d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kBoundBlock2d || AcGeEntity2d::isKindOf(entType);
}

AcGeEntity2d* AcGeBoundBlock2d::copy() const
{
    return new AcGeBoundBlock2d(*this);
}

Adesk::Boolean AcGeBoundBlock2d::isEqualTo(const AcGeEntity2d& entity, const AcGeTol& tol) const
{
    if (entity.type() != AcGe::kBoundBlock2d)
        return false;
    const auto& other = static_cast<const AcGeBoundBlock2d&>(entity);
    return mMin.isEqualTo(other.mMin, tol) && mMax.isEqualTo(other.mMax, tol);
}

AcGeBoundBlock2d& AcGeBoundBlock2d::transformBy(const AcGeMatrix2d& xfm)
{
    const AcGePoint2d corners[4] = {mMin, AcGePoint2d(mMax.x, mMin.y), mMax, AcGePoint2d(mMin.x, mMax.y)};
    AcGeBoundBlock2d moved(xfm * corners[0], xfm * corners[0]);
    for (const AcGePoint2d& corner : corners)
        moved.extend(xfm * corner);
    return *this = moved;
}

Adesk::Boolean AcGeBoundBlock2d::isOn(const AcGePoint2d& pnt, const AcGeTol& tol) const
{
    const double e = tol.equalPoint();
    return pnt.x >= mMin.x - e && pnt.x <= mMax.x + e && pnt.y >= mMin.y - e && pnt.y <= mMax.y + e;
}

void AcGeBoundBlock2d::print(std::ostream& os) const
{
    os << "AcGeBoundBlock2d(" << mMin << ", " << mMax << ')';
}

std::ostream& operator<<(std::ostream& os, const AcGeBoundBlock2d& block)
{
    block.print(os);
    return os;
}
