// Qx::PolylineUtil.
#include "Qx/PolylineUtil.h"

#include "dbpl.h"

namespace Qx {

void PolylineUtil::SetVertices(AcDbPolyline& polyline, const std::vector<AcGePoint2d>& points,
                               const std::vector<double>& bulges, bool closed)
{
    polyline.reset(false, static_cast<unsigned int>(points.size()));
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double bulge = i < bulges.size() ? bulges[i] : 0.0;
        polyline.addVertexAt(static_cast<unsigned int>(i), points[i], bulge);
    }
    polyline.setClosed(closed);
}

AcDbPolyline* PolylineUtil::CreatePolyline(const std::vector<AcGePoint2d>& points, const std::vector<double>& bulges,
                                           bool closed)
{
    auto* polyline = new AcDbPolyline(static_cast<unsigned int>(points.size()));
    SetVertices(*polyline, points, bulges, closed);
    return polyline;
}

AcDbPolyline* PolylineUtil::CreateSegment(const AcGePoint3d& start, const AcGePoint3d& end, double bulge)
{
    return CreatePolyline({AcGePoint2d(start.x, start.y), AcGePoint2d(end.x, end.y)}, {bulge, 0.0}, false);
}

}  // namespace Qx
