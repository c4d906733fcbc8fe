// Qx::PolylineUtil: building host polylines from points and bulges.
#pragma once

#include <vector>

#include "gepnt2d.h"
#include "gepnt3d.h"

class AcDbPolyline;

namespace Qx {

class PolylineUtil {
public:
    // A new polyline, in no database, owned by the caller. bulges may be empty (all
    // straight) or hold one bulge per point; missing bulges are 0.
    static AcDbPolyline* CreatePolyline(const std::vector<AcGePoint2d>& points, const std::vector<double>& bulges,
                                        bool closed);
    // A two-vertex polyline from start to end whose single segment has the given bulge.
    static AcDbPolyline* CreateSegment(const AcGePoint3d& start, const AcGePoint3d& end, double bulge = 0.0);
    // Replaces every vertex of polyline (points, bulges and closed flag).
    static void SetVertices(AcDbPolyline& polyline, const std::vector<AcGePoint2d>& points,
                            const std::vector<double>& bulges, bool closed);
};

}  // namespace Qx
