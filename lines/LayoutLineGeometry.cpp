// LayoutLineGeometry: the length rule, the moves of a line's ends and the strip corners.
#include "LayoutLineGeometry.h"

#include <cmath>
#include <utility>

#include "Qx/ConvertUtil.h"
#include "Qx/PolylineUtil.h"
#include "dbpl.h"

bool LayoutLineGeometry::IsFinite(const AcGePoint3d& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

void LayoutLineGeometry::ApplyLengthRule(AcGePoint3d& moved, const AcGePoint3d& fixed,
                                         const AcGeVector3d& fallbackDirection)
{
    moved.z = 0.0;
    const AcGeVector3d offset = moved - fixed;
    const double d = offset.length();
    if (d < kMinimumLength - kLengthRuleSlack) {
        AcGeVector3d u = offset;
        if (d < kDirectionTolerance) {
            u = fallbackDirection;
            if (!(u.length() >= kDirectionTolerance))
                u = AcGeVector3d::kXAxis;
        }
        u = u / u.length();
        moved = fixed + u * kMinimumLength;
    } else if (d > kMaximumLength + kLengthRuleSlack) {
        moved = fixed + (offset / d) * kMaximumLength;
    }
}

void LayoutLineGeometry::PlaceStart(AcGePoint3d& start, AcGePoint3d& end, const AcGePoint3d& point)
{
    const AcGeVector3d previous = end - start;
    start = point;
    ApplyLengthRule(start, end, -previous);
}

void LayoutLineGeometry::PlaceEnd(AcGePoint3d& start, AcGePoint3d& end, const AcGePoint3d& point)
{
    const AcGeVector3d previous = end - start;
    end = point;
    ApplyLengthRule(end, start, previous);
}

void LayoutLineGeometry::PlacePoints(AcGePoint3d& start, AcGePoint3d& end, const AcGePoint3d& newStart,
                                     const AcGePoint3d& newEnd)
{
    const AcGeVector3d previous = end - start;
    start = newStart;
    start.z = 0.0;
    end = newEnd;
    ApplyLengthRule(end, start, previous);
}

bool LayoutLineGeometry::MoveStretchPoint(int index, const AcGeVector3d& offset, AcGePoint3d& start, AcGePoint3d& end)
{
    if (index == 0)
        PlaceStart(start, end, start + offset);
    else if (index == 1)
        PlaceEnd(start, end, end + offset);
    else
        return false;
    return true;
}

void LayoutLineGeometry::TransformEnds(const AcGeMatrix3d& xform, AcGePoint3d& start, AcGePoint3d& end)
{
    start.transformBy(xform);
    end.transformBy(xform);
    start.z = 0.0;
    end.z = 0.0;
    ApplyLengthRule(end, start, end - start);
}

void LayoutLineGeometry::TransformWidths(const AcGeMatrix3d& xform, double& left, double& right)
{
    const double scaledLeft = (xform * AcGeVector3d(left, 0.0, 0.0)).length();
    const double scaledRight = (xform * AcGeVector3d(right, 0.0, 0.0)).length();
    const bool mirror = xform.det() < 0.0;
    left = mirror ? scaledRight : scaledLeft;
    right = mirror ? scaledLeft : scaledRight;
}

void LayoutLineGeometry::TakeEndsFrom(const AcDbPolyline& centre, AcGePoint3d& start, AcGePoint3d& end)
{
    const AcGeVector3d previous = end - start;
    AcGePoint3d first;
    AcGePoint3d last;
    if (centre.numVerts() > 0 && centre.getStartPoint(first) == Acad::eOk && centre.getEndPoint(last) == Acad::eOk &&
        IsFinite(first) && IsFinite(last)) {
        start = first;
        end = last;
    }
    start.z = 0.0;
    end.z = 0.0;
    ApplyLengthRule(end, start, previous);
}

AcGePoint3d LayoutLineGeometry::Midpoint(const AcGePoint3d& start, const AcGePoint3d& end)
{
    return AcGePoint3d((start.x + end.x) * 0.5, (start.y + end.y) * 0.5, 0.0);
}

AcGeVector3d LayoutLineGeometry::ChordNormal(const AcGePoint3d& start, const AcGePoint3d& end)
{
    const AcGeVector3d chord = end - start;
    if (!(chord.length() >= kDirectionTolerance))
        return AcGeVector3d(0.0, 0.0, 0.0);
    AcGeVector3d d = chord.normal();
    d.z = 0.0;
    if (d.isZeroLength())
        return AcGeVector3d(0.0, 0.0, 0.0);
    d.normalize();
    return d.perpVector().normal();
}

std::vector<AcGePoint3d> LayoutLineGeometry::Corners(const AcGePoint3d& start, const AcGePoint3d& end,
                                                     const AcGeVector3d& n, double minusWidth, double plusWidth)
{
    return {start - n * minusWidth, start + n * plusWidth, end + n * plusWidth, end - n * minusWidth};
}

bool LayoutLineGeometry::IsSwapped(const AcGePoint3d& start, const AcGePoint3d& end)
{
    return !(end.x > start.x || (end.x == start.x && end.y > start.y));
}

AcGeVector3d LayoutLineGeometry::StripNormal(const AcGePoint3d& start, const AcGePoint3d& end)
{
    return IsSwapped(start, end) ? ChordNormal(end, start) : ChordNormal(start, end);
}

std::vector<AcGePoint3d> LayoutLineGeometry::StripCorners(const AcGePoint3d& start, const AcGePoint3d& end, double left,
                                                          double right)
{
    const bool swapped = IsSwapped(start, end);
    const AcGePoint3d& a = swapped ? end : start;
    const AcGePoint3d& b = swapped ? start : end;
    const AcGeVector3d n = ChordNormal(a, b);
    if (n.isZeroLength())
        return {};
    return swapped ? Corners(a, b, n, right, left) : Corners(a, b, n, left, right);
}

AcDbPolyline* LayoutLineGeometry::CreatePolyline(const std::vector<AcGePoint3d>& points, bool closed,
                                                 const std::vector<double>& bulges)
{
    std::vector<AcGePoint2d> flat;
    flat.reserve(points.size());
    for (const AcGePoint3d& point : points)
        flat.push_back(Qx::ConvertUtil::ToPoint2d(point));
    return Qx::PolylineUtil::CreatePolyline(flat, bulges, closed);
}
