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

// Arc fractions are taken from here, so that points near either end of an arc come out
// near 0 or 1.
double nearEnds(const BulgeSegment& seg)
{
    return seg.isArc() ? -(seg.fullTurnFraction() - 1.0) / 2.0 : 0.0;
}

// The fraction of a point on the segment's line or circle.
double fractionOf(const BulgeSegment& seg, const AcGePoint2d& p)
{
    return seg.nearestFractionNearEnds(p);
}

bool within(const BulgeSegment& seg, double t, bool extended)
{
    if (extended)
        return true;
    const double len = seg.length();
    const double eps = len > 0.0 ? kHitTolerance / len : 0.0;
    return t >= -eps && t <= 1.0 + eps;
}

}  // namespace

// Arcs are met from their start points (never about their centres), so that a nearly
// straight arc's meeting points keep their digits.
int intersectSegments(const BulgeSegment& a, const BulgeSegment& b, SegmentHit hits[2], bool extendA, bool extendB)
{
    if (a.isDegenerate() || b.isDegenerate())
        return 0;
    SegmentHit candidates[2];
    int count = 0;
    if (!a.isArc() && !b.isArc()) {
        const AcGeVector2d da = a.end() - a.start();
        const AcGeVector2d db = b.end() - b.start();
        const double den = cross(da, db);
        if (std::fabs(den) <= 1e-12 * da.length() * db.length())
            return 0;
        const double s = cross(b.start() - a.start(), db) / den;
        candidates[count].point = a.start() + da * s;
        candidates[count].ta = s;
        candidates[count].tb = fractionOf(b, candidates[count].point);
        ++count;
    } else if (!a.isArc() || !b.isArc()) {
        const bool lineFirst = !a.isArc();
        const BulgeSegment& line = lineFirst ? a : b;
        const BulgeSegment& arc = lineFirst ? b : a;
        const AcGeVector2d across = (line.end() - line.start()).perpVector();
        double t[2];
        const int n = arc.lineCrossingFractions(line.start(), across, nearEnds(arc), t);
        for (int i = 0; i < n; ++i) {
            const AcGePoint2d p = arc.pointAt(t[i]);
            const double s = fractionOf(line, p);
            candidates[count++] = {lineFirst ? s : t[i], lineFirst ? t[i] : s, p};
        }
    } else {
        double t[2];
        const int n = a.circleCrossingFractions(b, nearEnds(a), t);
        for (int i = 0; i < n; ++i) {
            const AcGePoint2d p = a.pointAt(t[i]);
            candidates[count++] = {t[i], fractionOf(b, p), p};
        }
    }
    int found = 0;
    for (int i = 0; i < count; ++i) {
        const double ta = candidates[i].ta;
        const double tb = candidates[i].tb;
        if (!within(a, ta, extendA) || !within(b, tb, extendB))
            continue;
        hits[found].ta = extendA ? ta : std::clamp(ta, 0.0, 1.0);
        hits[found].tb = extendB ? tb : std::clamp(tb, 0.0, 1.0);
        hits[found].point = candidates[i].point;
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
