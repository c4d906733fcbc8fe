// Where two polyline segments meet, and a grid that finds the segments near a place, so
// that the offset can look for crossings and distances among thousands of segments
// without comparing every pair.
#pragma once

#include <unordered_map>
#include <vector>

#include "BulgeSegment.h"

namespace hostpoly {

// A meeting point with its fraction along each segment.
struct SegmentHit {
    double ta = 0.0;
    double tb = 0.0;
    AcGePoint2d point;
};

// The points where a meets b (at most two), within both segments unless extended (an
// extended segment is its whole line or circle). Overlapping parallel lines and
// concentric arcs have no single meeting point and give none.
int intersectSegments(const BulgeSegment& a, const BulgeSegment& b, SegmentHit hits[2], bool extendA = false,
                      bool extendB = false);

// The distance from p to the nearest point of a segment.
double distanceToSegment(const BulgeSegment& segment, const AcGePoint2d& p);

// A hashed grid over the boxes of a set of segments, its cells about twice the typical
// segment's size, so that a query near a place meets only the segments near it however
// many there are. Boxes spanning many cells are kept aside and met by every query.
class SegmentIndex {
public:
    explicit SegmentIndex(const std::vector<BulgeSegment>& segments);

    // The indices of the segments whose boxes, grown by margin, meet the box [lo, hi];
    // each index once, in no particular order.
    void query(const AcGePoint2d& lo, const AcGePoint2d& hi, double margin, std::vector<int>& out) const;

private:
    long long cellOf(double v, double origin) const;
    void consider(int i, const AcGePoint2d& lo, const AcGePoint2d& hi, double margin, std::vector<int>& out) const;

    std::vector<AcGePoint2d> m_lo;
    std::vector<AcGePoint2d> m_hi;
    AcGePoint2d m_origin;
    double m_cell = 1.0;
    std::unordered_map<unsigned long long, std::vector<int>> m_cells;
    std::vector<int> m_wide;
    mutable std::vector<unsigned> m_seen;
    mutable unsigned m_stamp = 0;
};

}  // namespace hostpoly
