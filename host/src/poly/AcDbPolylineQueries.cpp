// AcDbPolyline: extents, object snaps and intersections with other curves.
#include <algorithm>
#include <cmath>
#include <vector>

#include "AcDbPolyline.h"
#include "PolylineShapes.h"
#include "PolylineView.h"
#include "ge/GeMath.h"

namespace {

using hostpoly::BulgeSegment;
using hostpoly::PolylineView;

// Intersection points closer than this are one point.
constexpr double kSamePoint = hostpoly::kOnCurveTolerance;

void addUnique(std::vector<AcGePoint3d>& points, const AcGePoint3d& p)
{
    for (const AcGePoint3d& q : points) {
        if (q.distanceTo(p) <= kSamePoint)
            return;
    }
    points.push_back(p);
}

// The shapes of an entity, with which of them may be extended: a polyline extends only
// an open one's first and last segments, other curves extend wholly.
struct ExtendableShapes {
    std::vector<hostents::CurveShape> shapes;
    std::vector<bool> extendBack;     // may run on before its start
    std::vector<bool> extendForward;  // may run on past its end
};

bool shapesFor(const AcDbEntity* entity, bool extend, ExtendableShapes& out)
{
    if (const AcDbPolyline* polyline = AcDbPolyline::cast(entity)) {
        const PolylineView view(*polyline);
        std::vector<int> segmentOf;
        hostpoly::polylineShapes(view, out.shapes, &segmentOf);
        const bool open = extend && !view.isClosed();
        for (size_t i = 0; i < out.shapes.size(); ++i) {
            out.extendBack.push_back(open && i == 0);
            out.extendForward.push_back(open && i + 1 == out.shapes.size());
        }
        return true;
    }
    if (!hostents::shapesOf(entity, out.shapes))
        return false;
    out.extendBack.assign(out.shapes.size(), extend);
    out.extendForward.assign(out.shapes.size(), extend);
    return true;
}

// True when a point found on a shape's extension lies on the side it may be extended to.
bool onAllowedSide(const hostents::CurveShape& shape, bool back, bool forward, const AcGePoint3d& p)
{
    if (shape.kind != hostents::CurveShape::kLine || (back && forward))
        return true;
    const AcGeVector3d d = shape.end - shape.start;
    const double dd = d.dotProduct(d);
    const double s = dd == 0.0 ? 0.0 : (p - shape.start).dotProduct(d) / dd;
    const double eps = dd == 0.0 ? 0.0 : kSamePoint / std::sqrt(dd);
    if (back && !forward)
        return s <= 1.0 + eps;
    if (forward && !back)
        return s >= -eps;
    return s >= -eps && s <= 1.0 + eps;
}

// The point of the original shape whose projection along the plane's normal is q.
AcGePoint3d liftTo(const hostents::CurveShape& original, const hostents::CurveShape& projected, const AcGePoint3d& q)
{
    if (original.kind == hostents::CurveShape::kArc)
        return q + (original.arc.center - projected.arc.center);
    const AcGeVector3d d = projected.end - projected.start;
    const double dd = d.dotProduct(d);
    const double s = dd == 0.0 ? 0.0 : (q - projected.start).dotProduct(d) / dd;
    return original.start + (original.end - original.start) * s;
}

Acad::ErrorStatus intersect(const AcDbPolyline* self, const AcDbEntity* other, AcDb::Intersect type,
                            const AcGePlane* projection, AcGePoint3dArray& points)
{
    if (other == nullptr)
        return Acad::eNullEntityPointer;
    const bool extendThis = type == AcDb::kExtendThis || type == AcDb::kExtendBoth;
    const bool extendArg = type == AcDb::kExtendArg || type == AcDb::kExtendBoth;
    ExtendableShapes mine;
    ExtendableShapes theirs;
    shapesFor(self, extendThis, mine);
    if (!shapesFor(other, extendArg, theirs))
        return Acad::eNotImplementedYet;
    std::vector<AcGePoint3d> found;
    for (size_t a = 0; a < mine.shapes.size(); ++a) {
        const bool extA = mine.extendBack[a] || mine.extendForward[a];
        for (size_t b = 0; b < theirs.shapes.size(); ++b) {
            const bool extB = theirs.extendBack[b] || theirs.extendForward[b];
            hostents::CurveShape pa = mine.shapes[a];
            hostents::CurveShape pb = theirs.shapes[b];
            if (projection != nullptr && (!hostents::projectShape(mine.shapes[a], *projection, pa) ||
                                          !hostents::projectShape(theirs.shapes[b], *projection, pb)))
                return Acad::eNotApplicable;
            std::vector<AcGePoint3d> seen;
            hostents::intersectShapes(pa, extA, pb, extB, seen);
            for (const AcGePoint3d& q : seen) {
                if (!onAllowedSide(pa, mine.extendBack[a], mine.extendForward[a], q) ||
                    !onAllowedSide(pb, theirs.extendBack[b], theirs.extendForward[b], q))
                    continue;
                addUnique(found, projection != nullptr ? liftTo(mine.shapes[a], pa, q) : q);
            }
        }
    }
    for (const AcGePoint3d& p : found)
        points.append(p);
    return Acad::eOk;
}

}  // namespace

// Half the larger width of a segment widens its box in the plane.
Acad::ErrorStatus AcDbPolyline::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    const PolylineView view(*this);
    if (view.numVerts() == 0)
        return Acad::eInvalidExtents;
    const hostpoly::OcsFrame& frame = view.frame();
    AcDbExtents box;
    box.addPoint(view.worldPoint(0));
    const AcGeVector3d worldAxes[3] = {AcGeVector3d::kXAxis, AcGeVector3d::kYAxis, AcGeVector3d::kZAxis};
    for (int i = 0; i < view.numSegments(); ++i) {
        const BulgeSegment seg = view.segment(i);
        const double halfWidth = std::max(view.startWidth(i), view.endWidth(i)) / 2.0;
        std::vector<AcGePoint2d> points = {seg.start(), seg.end()};
        for (const AcGeVector3d& axis : worldAxes) {
            double fractions[2];
            const int count = seg.extremeFractions(frame.toPlane(axis), fractions);
            for (int k = 0; k < count; ++k)
                points.push_back(seg.pointAt(fractions[k]));
        }
        for (const AcGePoint2d& p : points) {
            if (halfWidth <= 0.0) {
                box.addPoint(frame.toWorld(p));
                continue;
            }
            for (double sx : {-halfWidth, halfWidth}) {
                for (double sy : {-halfWidth, halfWidth})
                    box.addPoint(frame.toWorld(p + AcGeVector2d(sx, sy)));
            }
        }
    }
    if (m_thickness != 0.0) {
        AcDbExtents top = box;
        top.transformBy(AcGeMatrix3d::translation(m_normal * m_thickness));
        box.addExt(top);
    }
    extents = box;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker,
                                                  const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                  const AcGeMatrix3d&, AcGePoint3dArray& snapPoints,
                                                  AcDbIntArray&) const
{
    assertReadEnabled();
    const PolylineView view(*this);
    if (view.numVerts() == 0)
        return Acad::eOk;
    const hostpoly::OcsFrame& frame = view.frame();
    const AcGePoint2d last = frame.toPlane(lastPoint);
    switch (osnapMode) {
    case AcDb::kOsModeEnd:
        for (int i = 0; i < view.numVerts(); ++i)
            snapPoints.append(view.worldPoint(i));
        return Acad::eOk;
    case AcDb::kOsModeNear:
        snapPoints.append(frame.toWorld(view.nearest(frame.toPlane(pickPoint)).point));
        return Acad::eOk;
    default:
        break;
    }
    for (int i = 0; i < view.numSegments(); ++i) {
        const BulgeSegment seg = view.segment(i);
        if (seg.isDegenerate())
            continue;
        switch (osnapMode) {
        case AcDb::kOsModeMid:
            snapPoints.append(frame.toWorld(seg.pointAt(0.5)));
            break;
        case AcDb::kOsModeCen:
            if (seg.isArc())
                snapPoints.append(frame.toWorld(seg.center()));
            break;
        case AcDb::kOsModeQuad:
            if (seg.isArc()) {
                double fractions[2];
                for (const AcGeVector2d& axis : {AcGeVector2d::kXAxis, AcGeVector2d::kYAxis}) {
                    const int count = seg.extremeFractions(axis, fractions);
                    for (int k = 0; k < count; ++k)
                        snapPoints.append(frame.toWorld(seg.pointAt(fractions[k])));
                }
            }
            break;
        case AcDb::kOsModePerp:
            if (!seg.isArc()) {
                const double t = seg.nearestFractionExtended(last, 0.0);
                if (t >= 0.0 && t <= 1.0)
                    snapPoints.append(frame.toWorld(seg.pointAt(t)));
            } else {
                const AcGeVector2d radial = last - seg.center();
                if (radial.length() == 0.0)
                    break;
                for (double side : {1.0, -1.0}) {
                    const AcGePoint2d p = seg.center() + radial / radial.length() * (side * seg.radius());
                    if (seg.pointAt(seg.nearestFraction(p)).distanceTo(p) <= hostpoly::kOnCurveTolerance)
                        snapPoints.append(frame.toWorld(p));
                }
            }
            break;
        case AcDb::kOsModeTan:
            if (seg.isArc()) {
                const AcGeVector2d toLast = last - seg.center();
                const double d = toLast.length();
                const double r = seg.radius();
                if (d <= r)
                    break;
                const double spread = std::acos(r / d);
                const double base = std::atan2(toLast.y, toLast.x);
                for (double angle : {base + spread, base - spread}) {
                    const AcGePoint2d p = seg.center() + AcGeVector2d(std::cos(angle), std::sin(angle)) * r;
                    if (seg.pointAt(seg.nearestFraction(p)).distanceTo(p) <= hostpoly::kOnCurveTolerance)
                        snapPoints.append(frame.toWorld(p));
                }
            }
            break;
        default:
            return Acad::eOk;
        }
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                                  const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                  const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                                  AcDbIntArray& geomIds, const AcGeMatrix3d&) const
{
    return subGetOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints, geomIds);
}

Acad::ErrorStatus AcDbPolyline::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                                 AcGePoint3dArray& points, Adesk::GsMarker, Adesk::GsMarker) const
{
    assertReadEnabled();
    return intersect(this, pEnt, intType, nullptr, points);
}

Acad::ErrorStatus AcDbPolyline::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                                 const AcGePlane& projPlane, AcGePoint3dArray& points,
                                                 Adesk::GsMarker, Adesk::GsMarker) const
{
    assertReadEnabled();
    return intersect(this, pEnt, intType, &projPlane, points);
}
