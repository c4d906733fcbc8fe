// HatchFill: crossings of lines with boundaries (half-open, so that a line through a
// vertex counts it once), nesting, filled area, clipped pattern lines and solid regions.
#include "HatchFill.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace hostpoly {
namespace {

// Bisection steps that pin a crossing on an arc piece to the last bits of its fraction.
constexpr int kBisectionSteps = 64;
// How far (in fractions of the arc) a crossing found from the circle may lie outside the
// monotone piece it is asked of: the rounding of its angle.
constexpr double kPieceSlack = 1e-9;
// Dashes shorter than this share of their pattern's period count as dots.
constexpr double kDotDash = 1e-12;

double cross(const AcGeVector2d& a, const AcGeVector2d& b)
{
    return a.x * b.y - a.y * b.x;
}

void crossings(const HatchBoundary& loop, int loopIndex, const AcGePoint2d& p, const AcGeVector2d& d,
               std::vector<std::pair<double, int>>& out)
{
    for (const BulgeSegment& seg : loop.segments)
        segmentCrossings(seg, loopIndex, p, d, out);
}

AcGePoint2d representativePoint(const HatchBoundary& loop)
{
    const BulgeSegment* longest = nullptr;
    for (const BulgeSegment& seg : loop.segments) {
        if (longest == nullptr || seg.length() > longest->length())
            longest = &seg;
    }
    return longest == nullptr ? AcGePoint2d() : longest->pointAt(0.5);
}

bool fills(int style, int insideCount, int outermostInside)
{
    switch (style) {
    case kFillOuter:
        return insideCount == 1;
    case kFillIgnore:
        return outermostInside > 0;
    default:
        return insideCount % 2 == 1;
    }
}

void bounds(const std::vector<HatchBoundary>& loops, AcGePoint2d& lo, AcGePoint2d& hi)
{
    bool first = true;
    for (const HatchBoundary& loop : loops) {
        for (const BulgeSegment& seg : loop.segments) {
            AcGePoint2d a;
            AcGePoint2d b;
            seg.bounds(a, b);
            if (first) {
                lo = a;
                hi = b;
                first = false;
            }
            lo.set(std::fmin(lo.x, a.x), std::fmin(lo.y, a.y));
            hi.set(std::fmax(hi.x, b.x), std::fmax(hi.y, b.y));
        }
    }
}

// Cuts the stretch [from, to] of a line into its dashes, measured from the line's base.
void addDashes(const AcGePoint2d& base, const AcGeVector2d& u, double from, double to,
               const std::vector<double>& dashes, std::vector<HatchSegment>& out)
{
    if (dashes.empty()) {
        out.push_back({base + u * from, base + u * to});
        return;
    }
    double period = 0.0;
    for (double dash : dashes)
        period += std::fabs(dash);
    if (period <= 0.0) {
        out.push_back({base + u * from, base + u * to});
        return;
    }
    double at = std::floor(from / period) * period;
    while (at <= to) {
        for (double dash : dashes) {
            const double length = std::fabs(dash);
            if (dash > 0.0 && length > kDotDash * period) {
                const double a = std::max(at, from);
                const double b = std::min(at + length, to);
                if (a < b)
                    out.push_back({base + u * a, base + u * b});
            } else if (dash >= 0.0 && at >= from && at <= to) {
                out.push_back({base + u * at, base + u * at});
            }
            at += length;
            if (at > to)
                break;
        }
    }
}

std::vector<AcGePoint2d> polygonOf(const HatchBoundary& loop)
{
    std::vector<AcGePoint2d> points;
    for (const BulgeSegment& seg : loop.segments) {
        points.push_back(seg.start());
        if (!seg.isArc())
            continue;
        const int steps = std::max(1, static_cast<int>(std::ceil(std::fabs(seg.sweep()) / kFillChordAngle)));
        for (int i = 1; i < steps; ++i)
            points.push_back(seg.pointAt(static_cast<double>(i) / steps));
    }
    return points;
}

}  // namespace

// A piece counts when its ends lie strictly on different sides of the line, a point on
// the line counting as below it: a line through a vertex is crossed once or not at all.
// Crossings beyond the range of numbers (boundaries read from damaged data) are left out.
void segmentCrossings(const BulgeSegment& seg, int tag, const AcGePoint2d& p, const AcGeVector2d& d,
                      std::vector<std::pair<double, int>>& out)
{
    if (seg.isDegenerate())
        return;
    const AcGeVector2d n = d.perpVector();
    auto above = [&](const AcGePoint2d& q) { return (q - p).dotProduct(n) > 0.0; };
    auto add = [&](const AcGePoint2d& x) {
        const double along = (x - p).dotProduct(d);
        if (std::isfinite(along))
            out.emplace_back(along, tag);
    };
    if (!seg.isArc()) {
        const double ha = (seg.start() - p).dotProduct(n);
        const double hb = (seg.end() - p).dotProduct(n);
        if ((ha > 0.0) != (hb > 0.0))
            add(seg.start() + (seg.end() - seg.start()) * (ha / (ha - hb)));
        return;
    }
    // Pieces of the arc on which the height above the line only rises or only falls.
    double cuts[4] = {0.0, 0.0, 0.0, 1.0};
    double extremes[2];
    const int count = seg.extremeFractions(n, extremes);
    if (count == 2 && extremes[1] < extremes[0])
        std::swap(extremes[0], extremes[1]);
    int pieces = 1;
    for (int i = 0; i < count; ++i) {
        if (extremes[i] > 0.0 && extremes[i] < 1.0)
            cuts[pieces++] = extremes[i];
    }
    cuts[pieces] = 1.0;
    for (int i = 0; i < pieces; ++i) {
        const double ta = cuts[i];
        const double tb = cuts[i + 1];
        // The segment's own end points, so that neighbours agree on them exactly.
        const AcGePoint2d pa = ta == 0.0 ? seg.start() : seg.pointAt(ta);
        const AcGePoint2d pb = tb == 1.0 ? seg.end() : seg.pointAt(tb);
        const bool startAbove = above(pa);
        if (startAbove == above(pb))
            continue;
        // The circle meets the line at most twice; the piece holds exactly one of them.
        const AcGePoint2d c = seg.center();
        const double r = seg.radius();
        const double h = (c - p).dotProduct(n);
        const double reach = std::sqrt(std::max(0.0, r * r - h * h));
        const AcGePoint2d foot = c - n * h;
        bool found = false;
        for (const AcGePoint2d& x : {foot - d * reach, foot + d * reach}) {
            const double t = seg.nearestFractionExtended(x, ta - kPieceSlack);
            if (t <= tb + kPieceSlack && x.distanceTo(seg.pointAt(t)) <= kOnCurveTolerance * std::max(1.0, r)) {
                add(x);
                found = true;
                break;
            }
        }
        if (found)
            continue;
        // Rounding near a tangency: pin the crossing down by halving.
        double lo = ta;
        double hi = tb;
        for (int k = 0; k < kBisectionSteps; ++k) {
            const double mid = (lo + hi) / 2.0;
            if (above(seg.pointAt(mid)) == startAbove)
                lo = mid;
            else
                hi = mid;
        }
        add(seg.pointAt((lo + hi) / 2.0));
    }
}

bool isInside(const HatchBoundary& loop, const AcGePoint2d& point)
{
    std::vector<std::pair<double, int>> hits;
    crossings(loop, 0, point, AcGeVector2d::kXAxis, hits);
    int ahead = 0;
    for (const auto& hit : hits) {
        if (hit.first > 0.0)
            ++ahead;
    }
    return ahead % 2 == 1;
}

std::vector<int> nestingDepths(const std::vector<HatchBoundary>& loops)
{
    std::vector<int> depths(loops.size(), 0);
    for (size_t i = 0; i < loops.size(); ++i) {
        const AcGePoint2d probe = representativePoint(loops[i]);
        for (size_t j = 0; j < loops.size(); ++j) {
            if (i != j && isInside(loops[j], probe))
                ++depths[i];
        }
    }
    return depths;
}

double boundaryArea(const HatchBoundary& loop)
{
    if (loop.segments.empty())
        return 0.0;
    const AcGePoint2d origin = loop.segments.front().start();
    double area = 0.0;
    for (const BulgeSegment& seg : loop.segments)
        area += 0.5 * cross(seg.start() - origin, seg.end() - origin) + seg.segmentArea();
    return area;
}

double filledArea(const std::vector<HatchBoundary>& loops, const std::vector<int>& depths, int style)
{
    double total = 0.0;
    for (size_t i = 0; i < loops.size(); ++i) {
        const double area = std::fabs(boundaryArea(loops[i]));
        switch (style) {
        case kFillOuter:
            total += depths[i] == 0 ? area : depths[i] == 1 ? -area : 0.0;
            break;
        case kFillIgnore:
            total += depths[i] == 0 ? area : 0.0;
            break;
        default:
            total += depths[i] % 2 == 0 ? area : -area;
            break;
        }
    }
    return total;
}

Acad::ErrorStatus clipPatternLines(const std::vector<HatchBoundary>& loops, const std::vector<int>& depths, int style,
                                   const std::vector<PatternLine>& pattern, std::vector<HatchSegment>& out)
{
    if (loops.empty())
        return Acad::eOk;
    AcGePoint2d lo;
    AcGePoint2d hi;
    bounds(loops, lo, hi);
    const AcGePoint2d corners[4] = {lo, AcGePoint2d(hi.x, lo.y), hi, AcGePoint2d(lo.x, hi.y)};
    const double diagonal = lo.distanceTo(hi);

    // The families, their line ranges, and an upper bound of the pieces they can make.
    struct Family {
        const PatternLine* line;
        AcGeVector2d u;
        AcGeVector2d v;
        long long first;
        long long last;
    };
    std::vector<Family> families;
    double estimate = 0.0;
    for (const PatternLine& line : pattern) {
        if (std::fabs(line.offsetY) <= 0.0 || !std::isfinite(line.offsetY))
            continue;  // lines that do not step across never cover an area
        const AcGeVector2d u(std::cos(line.angle), std::sin(line.angle));
        const AcGeVector2d v = u.perpVector();
        const AcGePoint2d base(line.baseX, line.baseY);
        double minH = 0.0;
        double maxH = 0.0;
        for (int i = 0; i < 4; ++i) {
            const double h = (corners[i] - base).dotProduct(v) / line.offsetY;
            minH = i == 0 ? h : std::fmin(minH, h);
            maxH = i == 0 ? h : std::fmax(maxH, h);
        }
        const double count = std::floor(maxH) - std::ceil(minH) + 1.0;
        if (count <= 0.0)
            continue;
        double perLine = 1.0;
        double period = 0.0;
        for (double dash : line.dashes)
            period += std::fabs(dash);
        if (period > 0.0)
            perLine = (diagonal / period + 2.0) * static_cast<double>(line.dashes.size());
        estimate += count * (perLine + loops.size());
        if (!std::isfinite(estimate) || estimate > kMaxHatchSegments)
            return Acad::eOutOfRange;
        families.push_back({&line, u, v, static_cast<long long>(std::ceil(minH)), static_cast<long long>(std::floor(maxH))});
    }

    std::vector<std::pair<double, int>> hits;
    std::vector<char> inside(loops.size());
    for (const Family& family : families) {
        const PatternLine& line = *family.line;
        for (long long k = family.first; k <= family.last; ++k) {
            const AcGePoint2d base = AcGePoint2d(line.baseX, line.baseY) + family.u * (line.offsetX * k) +
                                     family.v * (line.offsetY * k);
            hits.clear();
            for (size_t i = 0; i < loops.size(); ++i)
                crossings(loops[i], static_cast<int>(i), base, family.u, hits);
            std::sort(hits.begin(), hits.end());
            std::fill(inside.begin(), inside.end(), 0);
            int insideCount = 0;
            int outermostInside = 0;
            bool filling = false;
            double fillStart = 0.0;
            for (const auto& hit : hits) {
                const int i = hit.second;
                inside[i] = !inside[i];
                const int step = inside[i] ? 1 : -1;
                insideCount += step;
                if (depths[i] == 0)
                    outermostInside += step;
                const bool now = fills(style, insideCount, outermostInside);
                if (now && !filling)
                    fillStart = hit.first;
                else if (!now && filling && hit.first > fillStart)
                    addDashes(base, family.u, fillStart, hit.first, line.dashes, out);
                filling = now;
            }
        }
    }
    return Acad::eOk;
}

std::vector<FillRegion> fillRegions(const std::vector<HatchBoundary>& loops, const std::vector<int>& depths, int style)
{
    std::vector<FillRegion> regions;
    for (size_t i = 0; i < loops.size(); ++i) {
        const bool outline = style == kFillNormal ? depths[i] % 2 == 0 : depths[i] == 0;
        if (!outline)
            continue;
        FillRegion region;
        region.outline = polygonOf(loops[i]);
        if (style != kFillIgnore) {
            for (size_t j = 0; j < loops.size(); ++j) {
                if (depths[j] == depths[i] + 1 && isInside(loops[i], representativePoint(loops[j])))
                    region.holes.push_back(polygonOf(loops[j]));
            }
        }
        regions.push_back(std::move(region));
    }
    return regions;
}

}  // namespace hostpoly
