// The polyline's segments as the curve shapes in space that the host intersects the basic
// curves with, and the source that lets lines, circles and arcs intersect polylines.
#pragma once

#include <vector>

#include "PolylineView.h"
#include "ents/CurveShapes.h"

namespace hostpoly {

// One shape per segment of length, in order; segmentOf (when given) receives each shape's
// segment index.
void polylineShapes(const PolylineView& view, std::vector<hostents::CurveShape>& shapes,
                    std::vector<int>* segmentOf = nullptr);

// The shape source registered for AcDbPolyline and the classes derived from it.
bool polylineShapeSource(const AcDbEntity* entity, std::vector<hostents::CurveShape>& shapes);

}  // namespace hostpoly
