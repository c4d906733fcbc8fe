// The polyline's segments as curve shapes in world coordinates.
#include "PolylineShapes.h"

#include <cmath>

namespace hostpoly {

void polylineShapes(const PolylineView& view, std::vector<hostents::CurveShape>& shapes, std::vector<int>* segmentOf)
{
    const OcsFrame& frame = view.frame();
    for (int i = 0; i < view.numSegments(); ++i) {
        const BulgeSegment seg = view.segment(i);
        if (seg.isDegenerate())
            continue;
        if (!seg.isArc()) {
            shapes.push_back(hostents::CurveShape::line(frame.toWorld(seg.start()), frame.toWorld(seg.end())));
        } else {
            // Arc shapes run counter-clockwise about the normal: a clockwise segment is
            // the same arc from its end to its start.
            const AcGePoint2d center = seg.center();
            const AcGeVector2d from = seg.radialAt(seg.sweep() > 0.0 ? 0.0 : 1.0);
            const double startAngle = std::atan2(from.y, from.x);
            shapes.push_back(hostents::CurveShape::circular(hostents::ArcGeometry(
                frame.toWorld(center), seg.radius(), frame.normal, startAngle, std::fabs(seg.sweep()))));
        }
        if (segmentOf != nullptr)
            segmentOf->push_back(i);
    }
}

bool polylineShapeSource(const AcDbEntity* entity, std::vector<hostents::CurveShape>& shapes)
{
    const AcDbPolyline* polyline = AcDbPolyline::cast(entity);
    if (polyline == nullptr)
        return false;
    polyline->assertReadEnabled();
    polylineShapes(PolylineView(*polyline), shapes);
    return true;
}

}  // namespace hostpoly
