// ObbCalculator: the box is aligned with the given direction rather than searched for the
// smallest orientation, so one pass over the points projected on the two axes suffices.
#include "ObbCalculator.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace DbxPanel {

namespace {

// Half the side of the box that stands in when there is nothing to enclose.
constexpr double kDefaultHalfExtent = 50.0;

}  // namespace

OBBInfo2D ObbCalculator::CalculateSimplified(const std::vector<AcGePoint2d>& points, const AcGeVector2d& direction)
{
    if (!std::isfinite(direction.x) || !std::isfinite(direction.y) || direction.isZeroLength(AcGeContext::gTol))
        return CreateDefaultObb(AcGeVector2d::kXAxis);
    if (points.empty())
        return CreateDefaultObb(direction);

    const AcGeVector2d u = direction.normal(AcGeContext::gTol);
    double minA = DBL_MAX;
    double maxA = -DBL_MAX;
    double minB = DBL_MAX;
    double maxB = -DBL_MAX;
    for (const AcGePoint2d& q : points) {
        const double a = q.x * u.x + q.y * u.y;
        const double b = q.y * u.x - q.x * u.y;
        minA = std::min(minA, a);
        maxA = std::max(maxA, a);
        minB = std::min(minB, b);
        maxB = std::max(maxB, b);
    }
    const double ca = (maxA + minA) / 2.0;
    const double cb = (maxB + minB) / 2.0;

    OBBInfo2D box;
    box.halfExtentX = (maxA - minA) / 2.0;
    box.halfExtentY = (maxB - minB) / 2.0;
    box.center = AcGePoint2d::kOrigin + ca * u + cb * AcGeVector2d(-u.y, u.x);
    SetFrame(box, u);
    return box;
}

OBBInfo2D ObbCalculator::CreateDefaultObb(const AcGeVector2d& direction)
{
    OBBInfo2D box;
    box.halfExtentX = kDefaultHalfExtent;
    box.halfExtentY = kDefaultHalfExtent;
    SetFrame(box, direction.normal(AcGeContext::gTol));
    return box;
}

void ObbCalculator::SetFrame(OBBInfo2D& box, const AcGeVector2d& u)
{
    box.axisX = u;
    box.axisY = AcGeVector2d(-u.y, u.x);
    box.localToWorld.setCoordSystem(box.center, box.axisX, box.axisY);
    box.worldToLocal = box.localToWorld.inverse();
}

}  // namespace DbxPanel
