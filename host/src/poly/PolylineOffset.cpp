// PolylineOffset: moved segments with their joins on both sides, cut at every crossing,
// the pieces that lie the offset distance away (on the offset side) kept and joined into
// curves.
#include "PolylineOffset.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "HatchFill.h"
#include "SegmentIntersect.h"
#include "ge/GeMath.h"

namespace hostpoly {
namespace {

// Moved segment ends this close meet without a join.
constexpr double kJoinTolerance = 1e-9;
// Positions along a moved curve this close (in fractions of a piece) are one cut.
constexpr double kCutTolerance = 1e-9;
// A piece lies "at least the distance away" when no part of the polyline is nearer than
// the distance less this share of it (far above the rounding of the moved points).
constexpr double kKeepTolerance = 1e-8;
// Below this sine two segments meeting at a vertex run straight on (or straight back).
constexpr double kStraightTurn = 1e-12;
// Kept pieces whose ends lie this close follow one another.
constexpr double kChainTolerance = 1e-7;

double cross(const AcGeVector2d& a, const AcGeVector2d& b)
{
    return a.x * b.y - a.y * b.x;
}

AcGeVector2d rightNormal(const AcGeVector2d& tangent)
{
    return AcGeVector2d(tangent.y, -tangent.x);
}

// The segment moved dist to its right; an arc that shrinks through its centre becomes the
// line between its moved ends.
BulgeSegment movedSegment(const BulgeSegment& seg, double dist)
{
    const AcGePoint2d start = seg.start() + rightNormal(seg.tangentAt(0.0)) * dist;
    const AcGePoint2d end = seg.end() + rightNormal(seg.tangentAt(1.0)) * dist;
    if (!seg.isArc())
        return BulgeSegment(start, end, 0.0);
    const double radius = seg.radius() + (seg.sweep() > 0.0 ? dist : -dist);
    if (radius <= kOnCurveTolerance)
        return BulgeSegment(start, end, 0.0);
    return BulgeSegment(start, end, seg.bulge());
}

// Where two moved segments meeting at a concave join cross near the vertex, found by
// Newton steps on (u, w): the point reached going back u along the first from its moved
// end equals the point reached going w along the second from its moved start. Every
// term is a small move from those ends, and their gap comes from the two normals alone,
// so the crossing's distance from both segments keeps every digit. Along them a nearly
// straight join's crossing is placed only to the rounding of the normals over the sine of
// the turn (1e-8 of the distance at a turn of 1e-9, more than the crossing's own way back
// from the ends); there the moved ends lie within (turn)^2 of the distance of the other
// segment, so a crossing found that little outside either segment is taken at its end.
// False when they do not cross within both.
constexpr int kCrossingSteps = 30;
// The two points meet when they lie this close, relative to the distance and the moves:
// the rounding of the moves themselves.
constexpr double kMeetShare = 1e-12;
// The rounding of the normals, as a share of the distance: it places the crossing along
// the segments no better than this over the sine of the turn.
constexpr double kNormalRounding = 1e-14;

bool concaveCrossing(const BulgeSegment& first, const BulgeSegment& second, const AcGeVector2d& gap, double dist,
                     AcGeVector2d& fromEnd)
{
    const BulgeSegment back = first.reversed();
    double u = 0.0;
    double w = 0.0;
    for (int step = 0; step < kCrossingSteps; ++step) {
        const AcGeVector2d miss = back.moveFromStart(u) - second.moveFromStart(w) + gap;
        const double reach = std::fabs(dist) + std::fabs(u) * first.length() + std::fabs(w) * second.length();
        const AcGeVector2d du = back.derivAt(u);
        const AcGeVector2d dw = -second.derivAt(w);
        const double det = cross(du, dw);
        if (det == 0.0 || !std::isfinite(det))
            return false;
        if (miss.length() <= kMeetShare * reach) {
            const double sine = std::fabs(det) / (du.length() * dw.length());
            const double slack = kNormalRounding * std::fabs(dist) / sine;
            const double slackU = slack / first.length();
            const double slackW = slack / second.length();
            if (u < -slackU || u > 1.0 + slackU || w < -slackW || w > 1.0 + slackW)
                return false;
            fromEnd = back.moveFromStart(std::clamp(u, 0.0, 1.0));
            return true;
        }
        u -= cross(miss, dw) / det;
        w -= cross(du, miss) / det;
        if (!std::isfinite(u) || !std::isfinite(w) || u < -1.0 || u > 2.0 || w < -1.0 || w > 2.0)
            return false;
    }
    return false;
}

// The moved segments of one side with their joins, in order; chordJoin marks the joins
// that bridge a concave corner.
struct RawOffset {
    std::vector<BulgeSegment> pieces;
    std::vector<bool> chordJoin;
};

RawOffset rawOffset(const std::vector<BulgeSegment>& source, bool closed, double dist)
{
    const size_t count = source.size();
    std::vector<BulgeSegment> moved;
    for (const BulgeSegment& seg : source)
        moved.push_back(movedSegment(seg, dist));
    std::vector<BulgeSegment> joins(count, BulgeSegment(AcGePoint2d(), AcGePoint2d(), 0.0));
    std::vector<bool> hasJoin(count, false);
    const size_t joinCount = closed ? count : count - 1;
    for (size_t i = 0; i < joinCount; ++i) {
        const size_t j = (i + 1) % count;
        const AcGePoint2d e = moved[i].end();
        const AcGePoint2d s = moved[j].start();
        if (e.distanceTo(s) <= kJoinTolerance) {
            moved[j] = BulgeSegment(e, moved[j].end(), moved[j].bulge());
            continue;
        }
        const AcGePoint2d vertex = source[i].end();
        const AcGeVector2d out = source[i].tangentAt(1.0);
        const AcGeVector2d in = source[j].tangentAt(0.0);
        const double turn = cross(out, in);
        const bool reversal = std::fabs(turn) <= kStraightTurn && out.dotProduct(in) < 0.0;
        if (turn * dist > 0.0 || reversal) {
            // Convex on the offset side: round the corner about the vertex.
            double sweep = std::atan2(cross(e - vertex, s - vertex), (e - vertex).dotProduct(s - vertex));
            if (dist > 0.0 && sweep <= 0.0)
                sweep += hostge::kTwoPi;
            if (dist < 0.0 && sweep >= 0.0)
                sweep -= hostge::kTwoPi;
            joins[i] = BulgeSegment(e, s, std::tan(sweep / 4.0));
            hasJoin[i] = true;
            continue;
        }
        // Concave: where the moved segments cross near the vertex, both end there and the
        // stretch of each beyond it (nearer the other segment than the distance) goes.
        AcGeVector2d fromEnd;
        const AcGeVector2d gap = (rightNormal(out) - rightNormal(in)) * dist;
        if (concaveCrossing(moved[i], moved[j], gap, dist, fromEnd)) {
            // Each piece keeps the arc it lies on: its bulge follows from where the meeting
            // point lies on it, whatever the steps' last digits along it.
            const AcGePoint2d meet = vertex + rightNormal(out) * dist + fromEnd;
            const double before = moved[i].nearestFractionNearEnds(meet);
            const double after = moved[j].nearestFractionNearEnds(meet);
            moved[i] = BulgeSegment(moved[i].start(), meet, moved[i].part(0.0, before).bulge());
            moved[j] = BulgeSegment(meet, moved[j].end(), moved[j].part(after, 1.0).bulge());
            continue;
        }
        // Otherwise the chord between the moved ends bridges the corner; it lies nearer
        // the vertex than the distance throughout, and the cutting below takes it away
        // with whatever of the two moved segments overlaps.
        joins[i] = BulgeSegment(e, s, 0.0);
        hasJoin[i] = true;
    }
    RawOffset result;
    for (size_t i = 0; i < count; ++i) {
        result.pieces.push_back(moved[i]);
        result.chordJoin.push_back(false);
        if (hasJoin[i]) {
            result.pieces.push_back(joins[i]);
            result.chordJoin.push_back(!joins[i].isArc());
        }
    }
    return result;
}

// A stretch of one piece of a moved curve, from fraction t0 to t1 (t1 < t0 runs it backwards).
struct Part {
    int piece;
    double t0;
    double t1;
};

struct Slice {
    std::vector<Part> parts;
    AcGePoint2d start;
    AcGePoint2d end;
    bool used = false;
};

// The cuts along one moved curve, each at a position (piece index plus fraction) with the
// point where it was found, so that the pieces on either side of a crossing share it.
class Cutter {
public:
    Cutter(const std::vector<BulgeSegment>& pieces, bool closed, int firstPiece)
        : m_pieces(pieces), m_closed(closed), m_firstPiece(firstPiece)
    {
    }

    void cutAt(int piece, double t, const AcGePoint2d& point)
    {
        if (!std::isfinite(t))
            return;
        if (t >= 1.0 - kCutTolerance) {
            ++piece;
            t = 0.0;
        }
        if (t <= kCutTolerance)
            t = 0.0;
        if (piece >= static_cast<int>(m_pieces.size())) {
            if (!m_closed)
                return;  // the end of an open curve is an end already
            piece = 0;
        }
        if (!m_closed && piece == 0 && t == 0.0)
            return;
        m_cuts.push_back({piece + t, point});
    }

    std::vector<Slice> slices()
    {
        std::sort(m_cuts.begin(), m_cuts.end(), [](const Cut& a, const Cut& b) { return a.at < b.at; });
        std::vector<Cut> cuts;
        for (const Cut& cut : m_cuts) {
            if (cuts.empty() || cut.at - cuts.back().at > kCutTolerance)
                cuts.push_back(cut);
        }
        const double end = static_cast<double>(m_pieces.size());
        std::vector<Slice> result;
        if (m_closed) {
            if (cuts.empty()) {
                result.push_back(sliceBetween({0.0, m_pieces.front().start()}, {end, m_pieces.front().start()}));
                return result;
            }
            for (size_t i = 0; i < cuts.size(); ++i) {
                const Cut to = i + 1 < cuts.size() ? cuts[i + 1] : Cut{cuts[0].at + end, cuts[0].point};
                result.push_back(sliceBetween(cuts[i], to));
            }
            return result;
        }
        Cut from{0.0, m_pieces.front().start()};
        for (const Cut& cut : cuts) {
            result.push_back(sliceBetween(from, cut));
            from = cut;
        }
        result.push_back(sliceBetween(from, {end, m_pieces.back().end()}));
        return result;
    }

private:
    struct Cut {
        double at;
        AcGePoint2d point;
    };

    // The parts from one cut to a later one (wrapping round a closed curve).
    Slice sliceBetween(const Cut& fromCut, const Cut& toCut) const
    {
        const int count = static_cast<int>(m_pieces.size());
        Slice slice;
        double from = fromCut.at;
        int index = static_cast<int>(std::floor(from));
        double t = from - index;
        while (from < toCut.at - kCutTolerance) {
            const double stop = std::min(toCut.at - index, 1.0);
            if (stop - t > kCutTolerance)
                slice.parts.push_back({m_firstPiece + index % count, t, stop});
            from = index + stop;
            ++index;
            t = 0.0;
        }
        slice.start = fromCut.point;
        slice.end = toCut.point;
        return slice;
    }

    const std::vector<BulgeSegment>& m_pieces;
    bool m_closed;
    int m_firstPiece;
    std::vector<Cut> m_cuts;
};

// Cuts a moved curve wherever it crosses itself (targets null) or the target segments
// (which are cut too when they have a cutter of their own).
void cutAtCrossings(const std::vector<BulgeSegment>& pieces, bool closed, Cutter& cutter,
                    const std::vector<BulgeSegment>* targets, Cutter* targetCutter,
                    const std::function<bool(int piece, int target)>& passes = nullptr)
{
    const std::vector<BulgeSegment>& against = targets != nullptr ? *targets : pieces;
    if (against.empty())
        return;
    const SegmentIndex index(against);
    const int count = static_cast<int>(pieces.size());
    std::vector<int> near;
    for (int i = 0; i < count; ++i) {
        AcGePoint2d lo;
        AcGePoint2d hi;
        pieces[i].bounds(lo, hi);
        index.query(lo, hi, kJoinTolerance, near);
        for (int j : near) {
            if ((targets == nullptr && j <= i) || (passes && passes(i, j)))
                continue;
            SegmentHit hits[2];
            const int n = intersectSegments(pieces[i], against[j], hits);
            for (int k = 0; k < n; ++k) {
                if (targets == nullptr) {
                    // Neighbours share their joint; that is no crossing.
                    if (j == i + 1 && hits[k].ta >= 1.0 - kCutTolerance && hits[k].tb <= kCutTolerance)
                        continue;
                    if (closed && i == 0 && j == count - 1 && hits[k].ta <= kCutTolerance &&
                        hits[k].tb >= 1.0 - kCutTolerance)
                        continue;
                    cutter.cutAt(j, hits[k].tb, hits[k].point);
                } else if (targetCutter != nullptr) {
                    targetCutter->cutAt(j, hits[k].tb, hits[k].point);
                }
                cutter.cutAt(i, hits[k].ta, hits[k].point);
            }
        }
    }
}

// A whole circle as two half turns.
void addCircle(const AcGePoint2d& center, double radius, std::vector<BulgeSegment>& out)
{
    const AcGePoint2d east = center + AcGeVector2d(radius, 0.0);
    const AcGePoint2d west = center - AcGeVector2d(radius, 0.0);
    out.emplace_back(east, west, 1.0);
    out.emplace_back(west, east, 1.0);
}

double sliceLength(const std::vector<BulgeSegment>& pieces, const Slice& slice)
{
    double total = 0.0;
    for (const Part& part : slice.parts)
        total += pieces[part.piece].length() * std::fabs(part.t1 - part.t0);
    return total;
}

// The point halfway along a slice.
AcGePoint2d sliceMiddle(const std::vector<BulgeSegment>& pieces, const Slice& slice)
{
    double remaining = sliceLength(pieces, slice) / 2.0;
    for (const Part& part : slice.parts) {
        const double len = pieces[part.piece].length() * std::fabs(part.t1 - part.t0);
        if (remaining <= len && len > 0.0)
            return pieces[part.piece].pointAt(part.t0 + (part.t1 - part.t0) * remaining / len);
        remaining -= len;
    }
    return slice.end;
}

// What the source polyline answers about places: how near it comes, and (closed) whether
// a place lies inside it.
class SourceQueries {
public:
    explicit SourceQueries(const std::vector<BulgeSegment>& source) : m_source(source), m_index(source)
    {
        for (size_t i = 0; i < source.size(); ++i) {
            AcGePoint2d lo;
            AcGePoint2d hi;
            source[i].bounds(lo, hi);
            m_right = i == 0 ? hi.x : std::fmax(m_right, hi.x);
        }
    }

    // No part of the polyline lies nearer to p than the distance (less the tolerance).
    bool keepsDistance(const AcGePoint2d& p, double dist) const
    {
        const double limit = dist - kKeepTolerance * std::max(1.0, dist);
        m_index.query(p, p, dist, m_near);
        for (int j : m_near) {
            if (distanceToSegment(m_source[j], p) < limit)
                return false;
        }
        return true;
    }

    // Inside the closed polyline: an odd number of crossings along +X.
    bool isInside(const AcGePoint2d& p) const
    {
        m_index.query(p, AcGePoint2d(std::fmax(m_right, p.x), p.y), 0.0, m_near);
        m_hits.clear();
        for (int j : m_near)
            segmentCrossings(m_source[j], j, p, AcGeVector2d::kXAxis, m_hits);
        int ahead = 0;
        for (const auto& hit : m_hits) {
            if (hit.first > 0.0)
                ++ahead;
        }
        return ahead % 2 == 1;
    }

private:
    const std::vector<BulgeSegment>& m_source;
    SegmentIndex m_index;
    double m_right = 0.0;
    mutable std::vector<int> m_near;
    mutable std::vector<std::pair<double, int>> m_hits;
};

// The kept slices joined end to start: each chain follows on with a slice that starts
// where it ends, the next one along the same moved curve when there is a choice. Slices
// are looked up by their start's x in a sorted list, so that joining stays near linear.
std::vector<std::vector<Part>> joinSlices(std::vector<Slice>& slices, std::vector<bool>& closedChains)
{
    std::vector<std::pair<double, size_t>> byStart;
    std::vector<std::pair<double, size_t>> byEnd;
    for (size_t i = 0; i < slices.size(); ++i) {
        byStart.emplace_back(slices[i].start.x, i);
        byEnd.emplace_back(slices[i].end.x, i);
    }
    std::sort(byStart.begin(), byStart.end());
    std::sort(byEnd.begin(), byEnd.end());
    // The unused slices whose start (or end) lies at p, lowest index after `after` first.
    auto find = [&](const std::vector<std::pair<double, size_t>>& sorted, bool atStart, const AcGePoint2d& p,
                    size_t after, size_t skip) -> int {
        auto it = std::lower_bound(sorted.begin(), sorted.end(), std::make_pair(p.x - kChainTolerance, size_t(0)));
        int best = -1;
        size_t bestRank = 0;
        for (; it != sorted.end() && it->first <= p.x + kChainTolerance; ++it) {
            const size_t j = it->second;
            const AcGePoint2d& q = atStart ? slices[j].start : slices[j].end;
            if (j == skip || slices[j].used || q.distanceTo(p) > kChainTolerance)
                continue;
            const size_t rank = (j + slices.size() - after) % slices.size();
            if (best < 0 || rank < bestRank) {
                best = static_cast<int>(j);
                bestRank = rank;
            }
        }
        return best;
    };
    std::vector<std::vector<Part>> chains;
    // Chains that begin at a loose end first, then the loops.
    for (int pass = 0; pass < 2; ++pass) {
        for (size_t s = 0; s < slices.size(); ++s) {
            if (slices[s].used || (pass == 0 && find(byEnd, false, slices[s].start, s, s) >= 0))
                continue;
            std::vector<Part> chain;
            size_t current = s;
            slices[current].used = true;
            chain.insert(chain.end(), slices[current].parts.begin(), slices[current].parts.end());
            bool closed = false;
            while (true) {
                if (slices[current].end.distanceTo(slices[s].start) <= kChainTolerance) {
                    closed = true;
                    break;
                }
                const int next = find(byStart, true, slices[current].end, current + 1, current);
                if (next < 0)
                    break;
                current = static_cast<size_t>(next);
                slices[current].used = true;
                chain.insert(chain.end(), slices[current].parts.begin(), slices[current].parts.end());
            }
            chains.push_back(std::move(chain));
            closedChains.push_back(closed);
        }
    }
    return chains;
}

// The vertices of a chain; parts cut from one piece at a place that turned out not to
// matter are put back together.
OffsetChain chainVertices(const std::vector<BulgeSegment>& pieces, const std::vector<Part>& parts, bool closed)
{
    std::vector<Part> merged;
    for (const Part& part : parts) {
        if (!merged.empty() && merged.back().piece == part.piece && std::fabs(merged.back().t1 - part.t0) <= kCutTolerance)
            merged.back().t1 = part.t1;
        else
            merged.push_back(part);
    }
    OffsetChain chain;
    chain.closed = closed;
    AcGePoint2d last;
    for (const Part& part : merged) {
        const BulgeSegment seg = pieces[part.piece].part(part.t0, part.t1);
        if (seg.isDegenerate())
            continue;
        chain.vertices.push_back({seg.start(), seg.bulge()});
        last = seg.end();
    }
    if (!closed && !chain.vertices.empty())
        chain.vertices.push_back({last, 0.0});
    return chain;
}

// A slice run the other way.
Slice reversedSlice(const Slice& slice)
{
    Slice reversed;
    for (auto it = slice.parts.rbegin(); it != slice.parts.rend(); ++it)
        reversed.parts.push_back({it->piece, it->t1, it->t0});
    reversed.start = slice.end;
    reversed.end = slice.start;
    return reversed;
}

}  // namespace

// A closed polyline's offset is the edge of the area on its offset side (its inside or
// its outside) that lies at least the distance from it. For an outline that does not cross
// itself that edge is made of this side's moved curve alone; where an outline crosses
// itself, parts of the other side's moved curve can border the area too, and are taken
// run the other way. An open polyline's offset is the part of its moved curve that keeps
// the distance.
Acad::ErrorStatus offsetPolyline(const PolylineView& view, double distance, std::vector<OffsetChain>& chains)
{
    if (!std::isfinite(distance))
        return Acad::eInvalidInput;
    std::vector<BulgeSegment> source;
    for (int i = 0; i < view.numSegments(); ++i) {
        const BulgeSegment seg = view.segment(i);
        if (!seg.isDegenerate())
            source.push_back(seg);
    }
    if (source.empty())
        return Acad::eDegenerateGeometry;
    // A loop of one segment would join the segment to itself; it can only be a
    // degenerate loop, and is offset as the open segment it is.
    const bool closed = view.isClosed() && source.size() > 1;
    const RawOffset thisSide = rawOffset(source, closed, distance);
    const std::vector<BulgeSegment>& raw = thisSide.pieces;
    if (distance == 0.0) {
        std::vector<Part> whole;
        for (size_t i = 0; i < raw.size(); ++i)
            whole.push_back({static_cast<int>(i), 0.0, 1.0});
        chains.push_back(chainVertices(raw, whole, closed));
        return Acad::eOk;
    }

    // Every moved piece in one list: this side's first, then the other side's.
    const RawOffset otherRaw = rawOffset(source, closed, -distance);
    const std::vector<BulgeSegment>& otherSide = otherRaw.pieces;
    std::vector<BulgeSegment> pieces = raw;
    pieces.insert(pieces.end(), otherSide.begin(), otherSide.end());
    std::vector<bool> chordJoin = thisSide.chordJoin;
    chordJoin.insert(chordJoin.end(), otherRaw.chordJoin.begin(), otherRaw.chordJoin.end());
    Cutter thisCutter(raw, closed, 0);
    Cutter otherCutter(otherSide, closed, static_cast<int>(raw.size()));
    cutAtCrossings(raw, closed, thisCutter, nullptr, nullptr);
    cutAtCrossings(raw, closed, thisCutter, &otherSide, closed ? &otherCutter : nullptr);
    if (closed) {
        cutAtCrossings(otherSide, closed, otherCutter, nullptr, nullptr);
    } else {
        // The moved first segment touches the circle about the start where it starts and
        // meets it nowhere else (the two circles, or the line and the circle, are tangent
        // there); likewise the last at the end. Cut there, a touch that rounding turns into
        // two crossings would leave a sliver.
        std::vector<BulgeSegment> caps;
        addCircle(source.front().start(), std::fabs(distance), caps);
        addCircle(source.back().end(), std::fabs(distance), caps);
        // (An arc that shrank through its centre became a chord and touches nothing.)
        const int last = static_cast<int>(raw.size()) - 1;
        const bool firstTouches = raw.front().isArc() == source.front().isArc();
        const bool lastTouches = raw.back().isArc() == source.back().isArc();
        cutAtCrossings(raw, closed, thisCutter, &caps, nullptr, [&](int piece, int cap) {
            return (piece == 0 && cap < 2 && firstTouches) || (piece == last && cap >= 2 && lastTouches);
        });
    }

    const SourceQueries queries(source);
    // The offset side of a closed polyline is its inside when the distance runs towards
    // it: to the left of a counter-clockwise outline, to the right of a clockwise one.
    const bool wantInside = (view.signedArea() > 0.0) == (distance < 0.0);
    // A slice that runs along a chord bridging a concave corner never keeps the distance:
    // every inner point of that chord lies nearer the vertex. Judging it by its middle
    // alone would keep the small loop of a nearly straight corner, whose middle falls
    // short of the distance by less than any tolerance. Otherwise a piece of this side
    // that keeps the distance lies on the offset side; one of the other side must be asked.
    auto keep = [&](const Slice& slice, bool otherSide) {
        if (slice.parts.empty() || sliceLength(pieces, slice) <= kJoinTolerance)
            return false;
        for (const Part& part : slice.parts) {
            if (chordJoin[part.piece] && pieces[part.piece].length() * std::fabs(part.t1 - part.t0) > kJoinTolerance)
                return false;
        }
        const AcGePoint2d middle = sliceMiddle(pieces, slice);
        return queries.keepsDistance(middle, std::fabs(distance)) &&
               (!otherSide || queries.isInside(middle) == wantInside);
    };
    std::vector<Slice> kept;
    for (Slice& slice : thisCutter.slices()) {
        if (keep(slice, false))
            kept.push_back(std::move(slice));
    }
    if (closed) {
        for (const Slice& slice : otherCutter.slices()) {
            if (keep(slice, true))
                kept.push_back(reversedSlice(slice));
        }
    }
    std::vector<bool> closedChains;
    const std::vector<std::vector<Part>> joined = joinSlices(kept, closedChains);
    for (size_t i = 0; i < joined.size(); ++i) {
        // A chain no longer than the tolerance that joins its slices cannot be told from a
        // point: it is what is left of a crossing, not a curve.
        double length = 0.0;
        for (const Part& part : joined[i])
            length += pieces[part.piece].length() * std::fabs(part.t1 - part.t0);
        OffsetChain chain = chainVertices(pieces, joined[i], closedChains[i]);
        if (chain.vertices.size() >= 2 && length > kChainTolerance)
            chains.push_back(std::move(chain));
    }
    return Acad::eOk;
}

}  // namespace hostpoly
