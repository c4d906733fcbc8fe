// OverlapDirectionMark: the arrow's points.
#include "OverlapDirectionMark.h"

#include <algorithm>

#include "LayoutLineGeometry.h"

OverlapDirectionMark::OverlapDirectionMark(const AcGePoint3d& start, const AcGePoint3d& end, int direction)
    : m_middle(LayoutLineGeometry::Midpoint(start, end))
{
    AcGeVector3d n = LayoutLineGeometry::StripNormal(start, end);
    if (n.isZeroLength())
        n = AcGeVector3d::kYAxis;
    m_side = direction == 0 ? -n : n;
    m_across = AcGeVector3d(-m_side.y, m_side.x, 0.0);
    const double length = AcGeVector3d(end.x - start.x, end.y - start.y, 0.0).length();
    m_size = std::clamp(length * kSizeFraction, kMinimumSize, kMaximumSize);
}

AcGePoint3d OverlapDirectionMark::Tail() const
{
    return m_middle + m_side * m_size;
}

AcGePoint3d OverlapDirectionMark::Tip() const
{
    return m_middle + m_side * (m_size * kTipGapFraction);
}

AcGePoint3d OverlapDirectionMark::HeadBase() const
{
    return Tip() + m_side * (m_size * kHeadLengthFraction);
}

AcGePoint3d OverlapDirectionMark::HeadCorner(int which) const
{
    const double halfWidth = m_size * kHeadHalfWidthFraction;
    return HeadBase() + m_across * (which == 0 ? halfWidth : -halfWidth);
}
