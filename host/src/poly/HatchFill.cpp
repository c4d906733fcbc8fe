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

// One family of pattern lines, numbered from the extents' low corner so that no number
// grows with the distance to the pattern's base: line j runs along u through
// lo + v (space (j - phase)), and its dashes start where the along-distance from lo
// is dashStart (modulo the period).
struct FamilyFrame {
    AcGePoint2d lo;
    AcGeVector2d u;
    AcGeVector2d v;
    double space = 0.0;
    double phase = 0.0;     // in [0, 1): the line number of lo, less its whole part
    double period = 0.0;    // of the dashes; 0 for a continuous line
    double dashBase = 0.0;  // where line 0's dashes start, modulo the period
    double dashStep = 0.0;  // how far each next line's dashes move, modulo the period

    AcGePoint2d footOf(long long j) const { return lo + v * (space * (static_cast<double>(j) - phase)); }
    double lineNumberAt(const AcGePoint2d& q) const { return (q - lo).dotProduct(v) / space + phase; }
    double dashStart(long long j) const
    {
        return period > 0.0 ? std::fmod(dashBase + std::fmod(dashStep * static_cast<double>(j), period), period) : 0.0;
    }
};

// The remainder of x over the period, 0 when that is beyond the range of numbers.
double remainderOf(double x, double period)
{
    const double r = std::fmod(x, period);
    return std::isfinite(r) ? r : 0.0;
}

// Cuts the stretch [from, to] of line j into its dashes. False, with nothing added, when
// that would make more pieces than the budget left.
bool addDashes(const FamilyFrame& family, long long j, double from, double to, const std::vector<double>& dashes,
               double& budget, std::vector<HatchSegment>& out)
{
    const AcGePoint2d foot = family.footOf(j);
    if (dashes.empty() || family.period <= 0.0) {
        if (--budget < 0.0)
            return false;
        out.push_back({foot + family.u * from, foot + family.u * to});
        return true;
    }
    const double period = family.period;
    const double start = family.dashStart(j);
    const auto drawn = std::count_if(dashes.begin(), dashes.end(), [](double dash) { return dash >= 0.0; });
    if (drawn == 0)
        return true;  // gaps only
    // Whole periods counted from the line's dash start, never stepped through by adding;
    // each period makes at most one piece per drawn dash.
    const double first = std::floor((from - start) / period);
    const double cycles = std::floor((to - start) / period) - first + 1.0;
    budget -= cycles * static_cast<double>(drawn);
    if (!(budget >= 0.0))
        return false;
    const long long count = static_cast<long long>(cycles);
    for (long long c = 0; c < count; ++c) {
        double at = start + (first + static_cast<double>(c)) * period;
        for (double dash : dashes) {
            const double length = std::fabs(dash);
            if (dash > 0.0 && length > kDotDash * period) {
                const double a = std::max(at, from);
                const double b = std::min(at + length, to);
                if (a < b)
                    out.push_back({foot + family.u * a, foot + family.u * b});
            } else if (dash >= 0.0 && at >= from && at <= to) {
                out.push_back({foot + family.u * at, foot + family.u * at});
            }
            at += length;
        }
    }
    return true;
}

// A place where line `line` of a family crosses boundary `loop`, `along` from lo's foot.
struct Crossing {
    long long line;
    double along;
    int loop;
    bool operator<(const Crossing& other) const
    {
        return line != other.line ? line < other.line : along != other.along ? along < other.along : loop < other.loop;
    }
};

// Line numbers are kept within this, so that they count exactly and fit their type.
constexpr double kLargestLineNumber = 4503599627370496.0;  // 2^52

// The crossings of a family's lines with every boundary, found segment by segment over
// the lines that the segment spans (and one more each side, for rounding): the work
// follows the crossings, not the lines times the segments. False when the lines that the
// segments span exceed the budget.
bool familyCrossings(const std::vector<HatchBoundary>& loops, const FamilyFrame& family, double& budget,
                     std::vector<Crossing>& crossings)
{
    std::vector<std::pair<double, int>> hits;
    for (size_t i = 0; i < loops.size(); ++i) {
        for (const BulgeSegment& seg : loops[i].segments) {
            if (seg.isDegenerate())
                continue;
            double lowest = std::fmin(family.lineNumberAt(seg.start()), family.lineNumberAt(seg.end()));
            double highest = std::fmax(family.lineNumberAt(seg.start()), family.lineNumberAt(seg.end()));
            double extremes[2];
            const int count = seg.extremeFractions(family.v, extremes);
            for (int k = 0; k < count; ++k) {
                const double h = family.lineNumberAt(seg.pointAt(extremes[k]));
                lowest = std::fmin(lowest, h);
                highest = std::fmax(highest, h);
            }
            if (!(std::fabs(lowest) < kLargestLineNumber && std::fabs(highest) < kLargestLineNumber))
                return false;
            const double first = std::ceil(lowest) - 1.0;
            const double last = std::floor(highest) + 1.0;
            budget -= std::max(0.0, last - first - 1.0);
            if (budget < 0.0)
                return false;
            for (long long j = static_cast<long long>(first); j <= static_cast<long long>(last); ++j) {
                hits.clear();
                segmentCrossings(seg, static_cast<int>(i), family.footOf(j), family.u, hits);
                for (const auto& hit : hits)
                    crossings.push_back({j, hit.first, hit.second});
            }
        }
    }
    return true;
}

// Orders crossings as their operator< does (by line, then along, then loop). Line numbers
// span little more than the crossings count, so the crossings are dealt to one bucket per
// line and only each line's few crossings are compared.
void sortCrossings(std::vector<Crossing>& crossings, std::vector<Crossing>& scratch, std::vector<size_t>& starts)
{
    constexpr size_t kSmall = 32;
    if (crossings.size() <= kSmall) {
        std::sort(crossings.begin(), crossings.end());
        return;
    }
    const auto [lowest, highest] = std::minmax_element(
        crossings.begin(), crossings.end(), [](const Crossing& a, const Crossing& b) { return a.line < b.line; });
    const long long first = lowest->line;
    const auto span = static_cast<unsigned long long>(highest->line - first) + 1;
    if (span > 4 * crossings.size()) {
        std::sort(crossings.begin(), crossings.end());
        return;
    }
    starts.assign(span + 1, 0);
    for (const Crossing& c : crossings)
        ++starts[static_cast<size_t>(c.line - first) + 1];
    for (size_t k = 1; k <= span; ++k)
        starts[k] += starts[k - 1];
    scratch.resize(crossings.size());
    for (const Crossing& c : crossings)
        scratch[starts[static_cast<size_t>(c.line - first)]++] = c;
    // Each start now marks its bucket's end.
    size_t begin = 0;
    for (size_t k = 0; k < span; ++k) {
        if (starts[k] - begin > 1)
            std::sort(scratch.begin() + static_cast<std::ptrdiff_t>(begin),
                      scratch.begin() + static_cast<std::ptrdiff_t>(starts[k]));
        begin = starts[k];
    }
    crossings.swap(scratch);
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
        // Worked from the arc's start point, so that nearly straight arcs keep their digits.
        double fractions[2];
        const int met = seg.lineCrossingFractions(p, n, ta - kPieceSlack, fractions);
        bool found = false;
        for (int k = 0; k < met && !found; ++k) {
            if (fractions[k] <= tb + kPieceSlack) {
                add(seg.pointAt(std::clamp(fractions[k], ta, tb)));
                found = true;
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
    if (!std::isfinite(lo.x) || !std::isfinite(lo.y) || !std::isfinite(hi.x) || !std::isfinite(hi.y))
        return Acad::eOutOfRange;

    double budget = kMaxHatchPieces;
    const size_t before = out.size();
    auto refuse = [&]() {
        out.resize(before);
        return Acad::eOutOfRange;
    };
    std::vector<Crossing> crossings;
    std::vector<Crossing> sortScratch;
    std::vector<size_t> bucketStarts;
    std::vector<char> inside(loops.size());
    for (const PatternLine& line : pattern) {
        double period = 0.0;
        for (double dash : line.dashes)
            period += std::fabs(dash);
        // Lines that do not step across never cover an area; a family whose numbers run
        // beyond the range of numbers places no line anywhere.
        if (std::fabs(line.offsetY) <= 0.0 || !std::isfinite(line.offsetY) || !std::isfinite(line.offsetX) ||
            !std::isfinite(line.angle) || !std::isfinite(line.baseX) || !std::isfinite(line.baseY) ||
            !std::isfinite(period))
            continue;
        FamilyFrame family;
        family.lo = lo;
        family.u = AcGeVector2d(std::cos(line.angle), std::sin(line.angle));
        family.v = family.u.perpVector();
        family.space = line.offsetY;
        const AcGePoint2d base(line.baseX, line.baseY);
        // lo lies on line number (lo - base).v / space; lines are numbered from its whole part.
        const double atLo = (lo - base).dotProduct(family.v) / family.space;
        if (!std::isfinite(atLo))
            continue;
        const double whole = std::floor(atLo);
        family.phase = atLo - whole;
        family.period = period;
        if (period > 0.0) {
            // Line k's dashes start at its base point, (base - lo).u + k offsetX along.
            family.dashBase = remainderOf(remainderOf((base - lo).dotProduct(family.u), period) +
                                              remainderOf(line.offsetX * whole, period),
                                          period);
            family.dashStep = remainderOf(line.offsetX, period);
        }

        crossings.clear();
        if (!familyCrossings(loops, family, budget, crossings))
            return refuse();
        sortCrossings(crossings, sortScratch, bucketStarts);
        for (size_t start = 0; start < crossings.size();) {
            size_t end = start;
            while (end < crossings.size() && crossings[end].line == crossings[start].line)
                ++end;
            std::fill(inside.begin(), inside.end(), 0);
            int insideCount = 0;
            int outermostInside = 0;
            bool filling = false;
            double fillStart = 0.0;
            for (size_t k = start; k < end; ++k) {
                const Crossing& hit = crossings[k];
                const int i = hit.loop;
                inside[i] = !inside[i];
                const int step = inside[i] ? 1 : -1;
                insideCount += step;
                if (depths[i] == 0)
                    outermostInside += step;
                const bool now = fills(style, insideCount, outermostInside);
                if (now && !filling)
                    fillStart = hit.along;
                else if (!now && filling && hit.along > fillStart &&
                         !addDashes(family, hit.line, fillStart, hit.along, line.dashes, budget, out))
                    return refuse();
                filling = now;
            }
            start = end;
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
