// Meeting points of line and arc segments, distances to them, and the grid that narrows
// the search to nearby segments.
#include "SegmentIntersect.h"

#include <algorithm>
#include <cmath>

namespace hostpoly {
namespace {

// Meeting points this close to a segment's end still belong to it (drawing units).
constexpr double kHitTolerance = 1e-9;
// Grid cells are this many typical segment sizes across.
constexpr double kCellsPerSegment = 2.0;
// Cells smaller than this (drawing units) would only come from points on top of each other.
constexpr double kSmallestCell = 1e-9;
// Boxes over more cells than this are kept aside rather than entered in each cell.
constexpr long long kMaxCellsPerBox = 64;
// Cell numbers are kept within this, so that they fit the key.
constexpr long long kCellLimit = 1LL << 30;

// The hash key of a cell: both numbers' low 32 bits.
unsigned long long keyOf(long long x, long long y)
{
    return (static_cast<unsigned long long>(x) << 32) ^ (static_cast<unsigned long long>(y) & 0xFFFFFFFFULL);
}

double cross(const AcGeVector2d& a, const AcGeVector2d& b)
{
    return a.x * b.y - a.y * b.x;
}

// The fraction of a point on the segment's line or circle, arcs measured so that points
// near either end come out near 0 or 1.
double fractionOf(const BulgeSegment& seg, const AcGePoint2d& p)
{
    if (!seg.isArc())
        return seg.nearestFractionExtended(p, 0.0);
    return seg.nearestFractionExtended(p, -(seg.fullTurnFraction() - 1.0) / 2.0);
}

bool within(const BulgeSegment& seg, double t, bool extended)
{
    if (extended)
        return true;
    const double len = seg.length();
    const double eps = len > 0.0 ? kHitTolerance / len : 0.0;
    return t >= -eps && t <= 1.0 + eps;
}

// Points where a line (through p along d) meets a circle: up to two, as parameters along d.
int lineCircle(const AcGePoint2d& p, const AcGeVector2d& d, const AcGePoint2d& c, double r, double s[2])
{
    const double dd = d.lengthSqrd();
    if (dd == 0.0)
        return 0;
    const double along = (c - p).dotProduct(d) / dd;
    const AcGePoint2d foot = p + d * along;
    const double h = foot.distanceTo(c);
    if (h > r + kHitTolerance)
        return 0;
    const double half = std::sqrt(std::max(0.0, r * r - h * h));
    if (half <= kHitTolerance) {
        s[0] = along;
        return 1;
    }
    const double step = half / std::sqrt(dd);
    s[0] = along - step;
    s[1] = along + step;
    return 2;
}

}  // namespace

int intersectSegments(const BulgeSegment& a, const BulgeSegment& b, SegmentHit hits[2], bool extendA, bool extendB)
{
    if (a.isDegenerate() || b.isDegenerate())
        return 0;
    AcGePoint2d candidates[2];
    int count = 0;
    if (!a.isArc() && !b.isArc()) {
        const AcGeVector2d da = a.end() - a.start();
        const AcGeVector2d db = b.end() - b.start();
        const double den = cross(da, db);
        if (std::fabs(den) <= 1e-12 * da.length() * db.length())
            return 0;
        const double s = cross(b.start() - a.start(), db) / den;
        candidates[count++] = a.start() + da * s;
    } else if (!a.isArc() || !b.isArc()) {
        const BulgeSegment& line = a.isArc() ? b : a;
        const BulgeSegment& arc = a.isArc() ? a : b;
        double s[2];
        const AcGeVector2d d = line.end() - line.start();
        const int n = lineCircle(line.start(), d, arc.center(), arc.radius(), s);
        for (int i = 0; i < n; ++i)
            candidates[count++] = line.start() + d * s[i];
    } else {
        const AcGePoint2d ca = a.center();
        const AcGePoint2d cb = b.center();
        const double ra = a.radius();
        const double rb = b.radius();
        const AcGeVector2d between = cb - ca;
        const double d = between.length();
        if (d <= kHitTolerance || d > ra + rb + kHitTolerance || d < std::fabs(ra - rb) - kHitTolerance)
            return 0;
        const AcGeVector2d u = between / d;
        const double x = (ra * ra - rb * rb + d * d) / (2.0 * d);
        const double h = std::sqrt(std::max(0.0, ra * ra - x * x));
        candidates[count++] = ca + u * x + u.perpVector() * h;
        if (h > kHitTolerance)
            candidates[count++] = ca + u * x - u.perpVector() * h;
    }
    int found = 0;
    for (int i = 0; i < count; ++i) {
        const double ta = fractionOf(a, candidates[i]);
        const double tb = fractionOf(b, candidates[i]);
        if (!within(a, ta, extendA) || !within(b, tb, extendB))
            continue;
        hits[found].ta = extendA ? ta : std::clamp(ta, 0.0, 1.0);
        hits[found].tb = extendB ? tb : std::clamp(tb, 0.0, 1.0);
        hits[found].point = candidates[i];
        ++found;
    }
    return found;
}

double distanceToSegment(const BulgeSegment& segment, const AcGePoint2d& p)
{
    return p.distanceTo(segment.pointAt(segment.nearestFraction(p)));
}

SegmentIndex::SegmentIndex(const std::vector<BulgeSegment>& segments) : m_seen(segments.size(), 0)
{
    double extent = 0.0;
    int counted = 0;
    for (size_t i = 0; i < segments.size(); ++i) {
        AcGePoint2d a;
        AcGePoint2d b;
        segments[i].bounds(a, b);
        m_lo.push_back(a);
        m_hi.push_back(b);
        const double size = std::fmax(b.x - a.x, b.y - a.y);
        if (std::isfinite(size)) {
            extent += size;
            ++counted;
        }
        if (i == 0 || a.x < m_origin.x)
            m_origin.x = a.x;
        if (i == 0 || a.y < m_origin.y)
            m_origin.y = a.y;
    }
    if (!std::isfinite(m_origin.x) || !std::isfinite(m_origin.y))
        m_origin = AcGePoint2d();
    m_cell = counted > 0 ? kCellsPerSegment * extent / counted : 1.0;
    if (!(m_cell > kSmallestCell) || !std::isfinite(m_cell))
        m_cell = 1.0;
    for (size_t i = 0; i < segments.size(); ++i) {
        const long long x0 = cellOf(m_lo[i].x, m_origin.x);
        const long long x1 = cellOf(m_hi[i].x, m_origin.x);
        const long long y0 = cellOf(m_lo[i].y, m_origin.y);
        const long long y1 = cellOf(m_hi[i].y, m_origin.y);
        if ((x1 - x0 + 1) * (y1 - y0 + 1) > kMaxCellsPerBox) {
            m_wide.push_back(static_cast<int>(i));
            continue;
        }
        for (long long y = y0; y <= y1; ++y) {
            for (long long x = x0; x <= x1; ++x)
                m_cells[keyOf(x, y)].push_back(static_cast<int>(i));
        }
    }
}

long long SegmentIndex::cellOf(double v, double origin) const
{
    const double at = std::floor((v - origin) / m_cell);
    if (!(at > -kCellLimit))
        return -kCellLimit;  // also for a value that is not a number
    return at >= kCellLimit ? kCellLimit : static_cast<long long>(at);
}

void SegmentIndex::consider(int i, const AcGePoint2d& lo, const AcGePoint2d& hi, double margin,
                            std::vector<int>& out) const
{
    if (m_seen[i] == m_stamp)
        return;
    m_seen[i] = m_stamp;
    if (m_lo[i].x > hi.x + margin || m_hi[i].x < lo.x - margin || m_lo[i].y > hi.y + margin ||
        m_hi[i].y < lo.y - margin)
        return;
    out.push_back(i);
}

void SegmentIndex::query(const AcGePoint2d& lo, const AcGePoint2d& hi, double margin, std::vector<int>& out) const
{
    out.clear();
    if (m_lo.empty())
        return;
    if (++m_stamp == 0) {
        std::fill(m_seen.begin(), m_seen.end(), 0);
        m_stamp = 1;
    }
    for (int i : m_wide)
        consider(i, lo, hi, margin, out);
    const long long x0 = cellOf(lo.x - margin, m_origin.x);
    const long long x1 = cellOf(hi.x + margin, m_origin.x);
    const long long y0 = cellOf(lo.y - margin, m_origin.y);
    const long long y1 = cellOf(hi.y + margin, m_origin.y);
    // A query wider than the occupied cells reads every cell instead.
    if (static_cast<double>(x1 - x0 + 1) * static_cast<double>(y1 - y0 + 1) > static_cast<double>(m_cells.size())) {
        for (const auto& cell : m_cells) {
            for (int i : cell.second)
                consider(i, lo, hi, margin, out);
        }
        return;
    }
    for (long long y = y0; y <= y1; ++y) {
        for (long long x = x0; x <= x1; ++x) {
            const auto found = m_cells.find(keyOf(x, y));
            if (found == m_cells.end())
                continue;
            for (int i : found->second)
                consider(i, lo, hi, margin, out);
        }
    }
}

}  // namespace hostpoly
