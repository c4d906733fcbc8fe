// PolygonInnerPoint: the point of a polygon where a label sits best: inside it and as far
// from its edges as possible (its pole of inaccessibility), also when the polygon is
// concave and its centroid lies outside or near an edge.
#pragma once

#include <vector>

#include "gepnt2d.h"

class AcDbPolyline;

class PolygonInnerPoint {
public:
    // The polygon is closed implicitly. Found to within a thousandth of the polygon's
    // larger extent: among the points that good, the one nearest the centroid, so that a
    // polygon with a ridge of equally good points (a long rectangle) gives its centre.
    // Fewer than three points or no area: the centre of the points' extents. No points,
    // or coordinates too far apart to measure: false.
    static bool Find(const std::vector<AcGePoint2d>& polygon, AcGePoint2d& point);

    // The polyline's vertices in its own plane, arcs replaced by chords fine enough for
    // placing a label.
    static std::vector<AcGePoint2d> Flatten(const AcDbPolyline& polyline);

    // Distance from point to the polygon's boundary, negative outside.
    static double SignedDistance(const std::vector<AcGePoint2d>& polygon, const AcGePoint2d& point);
};
