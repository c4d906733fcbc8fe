// PolylineView: parameters, lengths, nearest points and area over a polyline's segments.
#include "PolylineView.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "gi/PlaneMath.h"

namespace hostpoly {
namespace {

// Parameters this far outside [0, end] are taken as the end itself: the rounding of a
// parameter computed from a distance or a point.
constexpr double kParamRounding = 1e-10;

double cross(const AcGeVector2d& a, const AcGeVector2d& b)
{
    return a.x * b.y - a.y * b.x;
}

}  // namespace

OcsFrame::OcsFrame(const AcGeVector3d& n, double elevation)
    : origin(AcGePoint3d::kOrigin + n * elevation),
      xAxis(hostgi::ocsXAxis(n)),
      yAxis(hostgi::ocsYAxis(n)),
      normal(n)
{
}

AcGePoint2d OcsFrame::toPlane(const AcGePoint3d& p) const
{
    const AcGeVector3d v = p - origin;
    return AcGePoint2d(v.dotProduct(xAxis), v.dotProduct(yAxis));
}

AcGeVector2d OcsFrame::toPlane(const AcGeVector3d& v) const
{
    return AcGeVector2d(v.dotProduct(xAxis), v.dotProduct(yAxis));
}

PolylineView::PolylineView(const AcDbPolyline& polyline)
    : m_vertices(polyline.m_vertices),
      m_closed(polyline.m_closed),
      m_constantWidth(polyline.m_constantWidth),
      m_frame(polyline.m_normal, polyline.m_elevation)
{
}

int PolylineView::numSegments() const
{
    const int n = numVerts();
    if (n < 2)
        return 0;
    return m_closed ? n : n - 1;
}

double PolylineView::startWidth(int i) const
{
    const double w = m_vertices[i].startWidth;
    return w < 0.0 ? m_constantWidth : w;
}

double PolylineView::endWidth(int i) const
{
    const double w = m_vertices[i].endWidth;
    return w < 0.0 ? m_constantWidth : w;
}

BulgeSegment PolylineView::segment(int i) const
{
    const int next = i + 1 < numVerts() ? i + 1 : 0;
    return BulgeSegment(point(i), point(next), bulge(i));
}

double PolylineView::endParam() const
{
    return static_cast<double>(numSegments());
}

bool PolylineView::locate(double param, int& segmentIndex, double& fraction) const
{
    const int count = numSegments();
    if (!std::isfinite(param) || param < -kParamRounding || param > count + kParamRounding)
        return false;
    if (count == 0) {
        segmentIndex = 0;
        fraction = 0.0;
        return numVerts() > 0;
    }
    const double clamped = std::clamp(param, 0.0, static_cast<double>(count));
    segmentIndex = std::min(static_cast<int>(std::floor(clamped)), count - 1);
    fraction = clamped - segmentIndex;
    return true;
}

AcGePoint2d PolylineView::pointAt(int segmentIndex, double fraction) const
{
    if (numSegments() == 0)
        return point(0);
    return segment(segmentIndex).pointAt(fraction);
}

double PolylineView::totalLength() const
{
    double total = 0.0;
    for (int i = 0; i < numSegments(); ++i)
        total += segment(i).length();
    return total;
}

double PolylineView::lengthTo(int segmentIndex, double fraction) const
{
    double total = 0.0;
    for (int i = 0; i < segmentIndex; ++i)
        total += segment(i).length();
    if (segmentIndex < numSegments())
        total += segment(segmentIndex).length() * fraction;
    return total;
}

bool PolylineView::locateDistance(double dist, int& segmentIndex, double& fraction) const
{
    if (!std::isfinite(dist) || dist < -kOnCurveTolerance || numVerts() == 0)
        return false;
    const int count = numSegments();
    double before = 0.0;
    int lastWithLength = -1;
    for (int i = 0; i < count; ++i) {
        const double len = segment(i).length();
        if (len <= 0.0)
            continue;
        if (dist <= before + len) {
            segmentIndex = i;
            fraction = std::clamp((dist - before) / len, 0.0, 1.0);
            return true;
        }
        before += len;
        lastWithLength = i;
    }
    if (dist > before + kOnCurveTolerance)
        return false;
    // At the very end (or a polyline without length): the end of the last segment.
    segmentIndex = lastWithLength >= 0 ? lastWithLength : 0;
    fraction = lastWithLength >= 0 ? 1.0 : 0.0;
    return true;
}

CurvePlace PolylineView::nearest(const AcGePoint2d& p, bool extendEnds) const
{
    CurvePlace best;
    best.distance = std::numeric_limits<double>::infinity();
    const int count = numSegments();
    if (count == 0) {
        best.point = point(0);
        best.distance = p.distanceTo(best.point);
        return best;
    }
    const bool extend = extendEnds && !m_closed;
    for (int i = 0; i < count; ++i) {
        const BulgeSegment seg = segment(i);
        const bool first = extend && i == 0;
        const bool last = extend && i == count - 1;
        double t = 0.0;
        if (!first && !last) {
            t = seg.nearestFraction(p);
        } else if (!seg.isArc()) {
            t = seg.nearestFractionExtended(p, 0.0);
            if (!first)
                t = std::max(t, 0.0);
            if (!last)
                t = std::min(t, 1.0);
        } else {
            const double turn = seg.fullTurnFraction();
            // The rest of the circle lies before a first segment, after a last one, and is
            // shared between both sides of a single one.
            const double lowest = first && last ? -(turn - 1.0) / 2.0 : first ? 1.0 - turn : 0.0;
            t = seg.nearestFractionExtended(p, lowest);
        }
        const AcGePoint2d q = seg.pointAt(t);
        const double d = p.distanceTo(q);
        if (d < best.distance) {
            best.segment = i;
            best.fraction = t;
            best.point = q;
            best.distance = d;
        }
    }
    return best;
}

double PolylineView::signedArea() const
{
    const int n = numVerts();
    if (n < 2)
        return 0.0;
    const AcGePoint2d& origin = point(0);
    double twice = 0.0;
    for (int i = 0; i < n; ++i)
        twice += cross(point(i) - origin, point(i + 1 < n ? i + 1 : 0) - origin);
    double area = twice / 2.0;
    for (int i = 0; i < numSegments(); ++i)
        area += segment(i).segmentArea();
    return area;
}

}  // namespace hostpoly
