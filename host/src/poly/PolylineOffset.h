// PolylineOffset: the offset curves of a lightweight polyline, worked in its plane.
//
// Every segment moves the distance to its right (seen from the normal; a negative distance
// moves it left): a line stays parallel, an arc keeps its centre and changes its radius,
// and an arc that would shrink through its centre collapses to the chord of its moved
// ends. Where the corner between two segments is convex on the offset side the moved
// segments are joined by an arc about the vertex; where it is concave, they end where they
// cross near the vertex (worked from the vertex, so that a nearly straight corner keeps
// its digits), or, when they do not cross there, are bridged by the chord between their
// moved ends.
//
// That raw offset is cut wherever it crosses itself, crosses the other side's raw offset,
// or (open polylines) the circles of the offset distance about the two ends. A piece is
// kept when it runs along no bridging chord (every inner point of one lies nearer the
// vertex than the distance), and its middle lies at least the distance from every part of
// the polyline (and, for a closed polyline, on the offset side: inside or outside); kept
// pieces are joined end to start, and what joins up no longer than the joining tolerance
// is dropped. A closed polyline thus gives the edge of the area at least the distance from
// it on its offset side, an open one the parts of its moved curve that keep the distance.
//
// "Ordinary" polylines, for which this is exactly the host's offset: open or closed,
// lines and arcs in any mix, not crossing themselves (adjacent segments included), any
// distance. An outline offset inwards past its narrowest part splits into several
// outlines or vanishes; a notch narrower than twice the distance is bridged. Overlapping
// collinear or concentric pieces of the raw offset meet at no single point and are not
// cut against each other.
#pragma once

#include <vector>

#include "PolylineView.h"
#include "acadstrc.h"

namespace hostpoly {

struct OffsetVertex {
    AcGePoint2d point;
    double bulge = 0.0;
};

// One offset curve: its vertices in the polyline's plane; a closed one does not repeat
// its first vertex.
struct OffsetChain {
    std::vector<OffsetVertex> vertices;
    bool closed = false;
};

// eDegenerateGeometry when the polyline has no segment of length; eInvalidInput for a
// non-finite distance. An offset that leaves nothing answers eOk with no chains.
Acad::ErrorStatus offsetPolyline(const PolylineView& view, double distance, std::vector<OffsetChain>& chains);

}  // namespace hostpoly
