// AecBoundaryBaseImp: orientation and label placement for boundary outlines.
#include "AecBoundaryBaseImp.h"

#include <vector>

#include "acutads.h"
#include "dbpl.h"
#include "geometry/TextBaseLabel.h"

namespace {

// The shoelace sum must be below this (not just below zero) for counter-clockwise, so
// that an outline without area counts as clockwise.
constexpr double kOrientationTolerance = 1e-9;
// Without a positive label height the label goes this far (times the scale) below.
constexpr double kDefaultLabelDistance = 10.0;
// Edges shorter than this get no label.
constexpr double kMinimumEdgeLength = 1.0;
// Labels this high or lower keep this distance from their edge, whatever the scale.
constexpr double kSmallLabelHeight = 1.0;
constexpr double kSmallLabelDistance = 15.0;

}  // namespace

bool AecBoundaryBaseImp::IsCounterclockwise(const AcDbPolyline* outline)
{
    if (outline == nullptr || outline->numVerts() < 3)
        return false;
    const unsigned int n = outline->numVerts();
    double sum = 0.0;
    for (unsigned int i = 0; i < n; ++i) {
        AcGePoint2d p;
        AcGePoint2d q;
        outline->getPointAt(i, p);
        outline->getPointAt((i + 1) % n, q);
        sum += (p.y + q.y) * (q.x - p.x);
    }
    return sum < -kOrientationTolerance;
}

// The outline's closed flag goes with the copy, so that a closing arc is reversed with
// the rest.
bool AecBoundaryBaseImp::EnsureCounterclockwiseAndAdjustLabelPosition(AcGePoint3d& labelPosition, AcDbPolyline* outline,
                                                                      double height, double scale)
{
    if (outline == nullptr || outline->numVerts() < 2)
        return false;
    if (!IsCounterclockwise(outline)) {
        acutPrintf(L"\n准备反转顶点,确保逆时针.");
        AcDbPolyline reversed;
        const unsigned int n = outline->numVerts();
        for (unsigned int i = 0; i < n; ++i) {
            AcGePoint2d point;
            double bulge = 0.0;
            outline->getPointAt(i, point);
            outline->getBulgeAt(i, bulge);
            reversed.addVertexAt(i, point, bulge);
        }
        reversed.setClosed(outline->isClosed());
        reversed.reverseCurve();
        outline->reset(Adesk::kFalse, 0);
        for (unsigned int i = 0; i < n; ++i) {
            AcGePoint2d point;
            double bulge = 0.0;
            reversed.getPointAt(i, point);
            reversed.getBulgeAt(i, bulge);
            outline->addVertexAt(i, point, bulge, -1.0, -1.0);
        }
    }
    AcDbExtents extents;
    if (outline->getGeomExtents(extents) != Acad::eOk)
        return false;
    const double distance = (height > 0.0 ? height : kDefaultLabelDistance) * scale;
    const AcGePoint3d& low = extents.minPoint();
    labelPosition = AcGePoint3d(low.x, low.y - distance, low.z);
    return true;
}

bool AecBoundaryBaseImp::AdjustEdgeLabelPosition(AcGePoint3d& labelPosition, const AcDbPolyline* outline,
                                                 const TextBaseLabel& label, int edgeIndex, double scale)
{
    if (outline == nullptr || outline->numVerts() < 2 || label.GetLabel().isEmpty())
        return false;
    const unsigned int n = outline->numVerts();
    if (edgeIndex < 0 || static_cast<unsigned int>(edgeIndex) >= n)
        return false;
    const unsigned int i = static_cast<unsigned int>(edgeIndex);
    AcGePoint3d p;
    AcGePoint3d q;
    outline->getPointAt(i, p);
    outline->getPointAt((i + 1) % n, q);
    const AcGeVector3d edge = q - p;
    if (edge.length() < kMinimumEdgeLength)
        return false;
    AcGeVector3d away = edge.normal().perpVector().normal();
    if (IsCounterclockwise(outline))
        away = -away;
    const double distance = label.GetHeight() <= kSmallLabelHeight ? kSmallLabelDistance : label.GetHeight() * scale;
    labelPosition = p + edge * 0.5 + away * distance;
    return true;
}
