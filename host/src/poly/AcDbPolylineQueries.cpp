// AcDbPolyline: extents, object snaps and intersections with other curves.
#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "AcDbPolyline.h"
#include "PolylineShapes.h"
#include "PolylineView.h"
#include "SegmentIntersect.h"
#include "ge/GeMath.h"

namespace {

using hostpoly::BulgeSegment;
using hostpoly::PolylineView;

// Intersection points closer than this are one point.
constexpr double kSamePoint = hostpoly::kOnCurveTolerance;

// How far past its end (as a fraction) a point still lies on the arc.
double onArc(const BulgeSegment& seg)
{
    return hostpoly::kOnCurveTolerance / seg.length();
}

void addUnique(std::vector<AcGePoint3d>& points, const AcGePoint3d& p)
{
    for (const AcGePoint3d& q : points) {
        if (q.distanceTo(p) <= kSamePoint)
            return;
    }
    points.push_back(p);
}

// Pieces of another entity, each with the side it may be extended to: a polyline extends
// only an open one's first segment back and its last one on, other curves wholly. An
// extended arc is its whole circle.
struct Extendable {
    bool back = false;
    bool forward = false;
    bool any() const { return back || forward; }
};

// This polyline's segments of length, with their shapes in space for the pieces of other
// entities that leave its plane.
struct OwnPieces {
    std::vector<BulgeSegment> segments;
    std::vector<hostents::CurveShape> shapes;
    std::vector<Extendable> extend;
};

OwnPieces ownPieces(const PolylineView& view, bool extend)
{
    OwnPieces own;
    std::vector<int> segmentOf;
    hostpoly::polylineShapes(view, own.shapes, &segmentOf);
    const bool open = extend && !view.isClosed();
    for (size_t i = 0; i < segmentOf.size(); ++i) {
        own.segments.push_back(view.segment(segmentOf[i]));
        own.extend.push_back({open && i == 0, open && i + 1 == segmentOf.size()});
    }
    return own;
}

// A piece of another entity: in this polyline's plane as a segment when it lies in it
// (or, with a projection, is seen in it), else as its shape in space.
struct OtherPiece {
    bool inPlane = false;
    BulgeSegment segment{AcGePoint2d(), AcGePoint2d(), 0.0};
    hostents::CurveShape shape;
    Extendable extend;
};

bool isNormalParallel(const AcGeVector3d& a, const AcGeVector3d& b)
{
    return a.crossProduct(b).length() <= hostge::kParallelSine * a.length() * b.length();
}

// An arc shape as one or two segments in the plane (a segment turns less than a whole
// turn; a circle is two halves).
void arcSegments(const hostpoly::OcsFrame& frame, const hostents::ArcGeometry& arc, std::vector<BulgeSegment>& out)
{
    const double sense = arc.normal.dotProduct(frame.normal) > 0.0 ? 1.0 : -1.0;
    const int halves = arc.sweep > hostge::kTwoPi / 2.0 ? 2 : 1;
    const double step = arc.sweep / halves;
    for (int i = 0; i < halves; ++i) {
        const AcGePoint2d from = frame.toPlane(arc.pointAtAngle(arc.startAngle + step * i));
        const AcGePoint2d to = frame.toPlane(arc.pointAtAngle(arc.startAngle + step * (i + 1)));
        out.emplace_back(from, to, sense * std::tan(step / 4.0));
    }
}

// The other entity's pieces; false when its class gives none. Another polyline in (or,
// with a projection along the normal, parallel to) this plane gives its own segments, so
// that its nearly straight arcs keep their precision.
bool otherPieces(const PolylineView& mine, const AcDbEntity* other, bool extend, bool projected,
                 std::vector<OtherPiece>& out)
{
    const hostpoly::OcsFrame& frame = mine.frame();
    const double tol = hostpoly::kOnCurveTolerance;
    if (const AcDbPolyline* polyline = AcDbPolyline::cast(other)) {
        const PolylineView theirs(*polyline);
        const bool parallel = isNormalParallel(theirs.frame().normal, frame.normal);
        if (parallel && (projected || std::fabs(frame.heightOf(theirs.frame().origin)) <= tol)) {
            const bool open = extend && !theirs.isClosed();
            const double sense = theirs.frame().normal.dotProduct(frame.normal) > 0.0 ? 1.0 : -1.0;
            std::vector<BulgeSegment> segments;
            for (int i = 0; i < theirs.numSegments(); ++i) {
                const BulgeSegment seg = theirs.segment(i);
                if (!seg.isDegenerate())
                    segments.emplace_back(frame.toPlane(theirs.frame().toWorld(seg.start())),
                                          frame.toPlane(theirs.frame().toWorld(seg.end())), sense * seg.bulge());
            }
            for (size_t i = 0; i < segments.size(); ++i) {
                OtherPiece piece;
                piece.inPlane = true;
                piece.segment = segments[i];
                piece.extend = {open && i == 0, open && i + 1 == segments.size()};
                out.push_back(piece);
            }
            return true;
        }
    }
    std::vector<hostents::CurveShape> shapes;
    std::vector<Extendable> extents;
    if (AcDbPolyline::cast(other) != nullptr) {
        const PolylineView theirs(*AcDbPolyline::cast(other));
        std::vector<int> segmentOf;
        hostpoly::polylineShapes(theirs, shapes, &segmentOf);
        const bool open = extend && !theirs.isClosed();
        for (size_t i = 0; i < shapes.size(); ++i)
            extents.push_back({open && i == 0, open && i + 1 == shapes.size()});
    } else {
        if (!hostents::shapesOf(other, shapes))
            return false;
        extents.assign(shapes.size(), {extend, extend});
    }
    const AcGePlane plane(frame.origin, frame.normal);
    for (size_t i = 0; i < shapes.size(); ++i) {
        hostents::CurveShape shape = shapes[i];
        OtherPiece piece;
        piece.shape = shape;
        piece.extend = extents[i];
        if (projected && !hostents::projectShape(shapes[i], plane, shape)) {
            out.push_back(piece);  // left for the projection to refuse
            continue;
        }
        std::vector<BulgeSegment> segments;
        if (shape.kind == hostents::CurveShape::kLine) {
            if (std::fabs(frame.heightOf(shape.start)) <= tol && std::fabs(frame.heightOf(shape.end)) <= tol)
                segments.emplace_back(frame.toPlane(shape.start), frame.toPlane(shape.end), 0.0);
        } else if (isNormalParallel(shape.arc.normal, frame.normal) &&
                   std::fabs(frame.heightOf(shape.arc.center)) <= tol) {
            arcSegments(frame, shape.arc, segments);
        }
        if (segments.empty()) {
            out.push_back(piece);
            continue;
        }
        // An extended arc is its whole circle already through its first half.
        if (shape.kind == hostents::CurveShape::kArc && piece.extend.any())
            segments.erase(segments.begin() + 1, segments.end());
        for (const BulgeSegment& seg : segments) {
            piece.inPlane = true;
            piece.segment = seg;
            out.push_back(piece);
        }
    }
    return true;
}

// True when a point found on a segment's extension lies on the side it may be extended
// to: an extended line runs on only that way; an extended arc is its whole circle.
bool onAllowedSide(const BulgeSegment& seg, const Extendable& extend, double t)
{
    if (seg.isArc() || (extend.back && extend.forward))
        return true;
    const double len = seg.length();
    const double eps = len > 0.0 ? kSamePoint / len : 0.0;
    const double lo = extend.back ? -std::numeric_limits<double>::infinity() : -eps;
    const double hi = extend.forward ? std::numeric_limits<double>::infinity() : 1.0 + eps;
    return t >= lo && t <= hi;
}

// The same for a shape in space, by where the point lies along a line.
bool onAllowedSide(const hostents::CurveShape& shape, const Extendable& extend, const AcGePoint3d& p)
{
    if (shape.kind != hostents::CurveShape::kLine || (extend.back && extend.forward))
        return true;
    const AcGeVector3d d = shape.end - shape.start;
    const double dd = d.dotProduct(d);
    const double s = dd == 0.0 ? 0.0 : (p - shape.start).dotProduct(d) / dd;
    const double eps = dd == 0.0 ? 0.0 : kSamePoint / std::sqrt(dd);
    if (extend.back && !extend.forward)
        return s <= 1.0 + eps;
    if (extend.forward && !extend.back)
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

// Where a line that leaves the plane pierces it on the segment: the point, or none.
bool pierce(const hostpoly::OcsFrame& frame, const BulgeSegment& seg, const Extendable& segExtend,
            const hostents::CurveShape& line, const Extendable& lineExtend, AcGePoint3d& point)
{
    const double ha = frame.heightOf(line.start);
    const double hb = frame.heightOf(line.end);
    if (ha == hb)
        return false;
    const double s = ha / (ha - hb);
    const double len = line.start.distanceTo(line.end);
    const double eps = len > 0.0 ? kSamePoint / len : 0.0;
    if ((!lineExtend.back && s < -eps) || (!lineExtend.forward && s > 1.0 + eps))
        return false;
    point = line.start + (line.end - line.start) * s;
    const AcGePoint2d q = frame.toPlane(point);
    double t = seg.nearestFraction(q);
    if (segExtend.any()) {
        // The rest of an arc's circle lies before a first segment, after a last one, and
        // is shared between both sides of a single one.
        const double turn = seg.fullTurnFraction();
        double lowest = 0.0;
        if (segExtend.back)
            lowest = segExtend.forward ? -(turn - 1.0) / 2.0 : 1.0 - turn;
        t = seg.nearestFractionExtended(q, lowest);
    }
    return seg.pointAt(t).distanceTo(q) <= kSamePoint && onAllowedSide(seg, segExtend, t);
}

// Pieces in this plane meet segment to segment, worked from the segments' own ends and
// bulges; pieces that leave it meet this polyline's shapes in space. Seen along a plane
// parallel to this one, the other entity is first seen in this plane, so that the points
// lie on this polyline; along any other plane, the shapes are projected onto it.
Acad::ErrorStatus intersect(const AcDbPolyline* self, const AcDbEntity* other, AcDb::Intersect type,
                            const AcGePlane* projection, AcGePoint3dArray& points)
{
    if (other == nullptr)
        return Acad::eNullEntityPointer;
    const bool extendThis = type == AcDb::kExtendThis || type == AcDb::kExtendBoth;
    const bool extendArg = type == AcDb::kExtendArg || type == AcDb::kExtendBoth;
    const PolylineView view(*self);
    const OwnPieces mine = ownPieces(view, extendThis);
    const bool alongNormal = projection != nullptr && isNormalParallel(projection->normal(), view.frame().normal);
    const AcGePlane* across = alongNormal ? nullptr : projection;
    std::vector<OtherPiece> theirs;
    if (!otherPieces(view, other, extendArg, alongNormal, theirs))
        return Acad::eNotImplementedYet;
    if (across != nullptr) {
        // Seen along a slanted direction nothing stays in this plane.
        for (OtherPiece& piece : theirs)
            piece.inPlane = false;
    }
    std::vector<AcGePoint3d> found;
    for (size_t a = 0; a < mine.segments.size(); ++a) {
        for (const OtherPiece& piece : theirs) {
            if (piece.inPlane) {
                hostpoly::SegmentHit hits[2];
                const int n = hostpoly::intersectSegments(mine.segments[a], piece.segment, hits, mine.extend[a].any(),
                                                          piece.extend.any());
                for (int k = 0; k < n; ++k) {
                    if (onAllowedSide(mine.segments[a], mine.extend[a], hits[k].ta) &&
                        onAllowedSide(piece.segment, piece.extend, hits[k].tb))
                        addUnique(found, view.frame().toWorld(hits[k].point));
                }
                continue;
            }
            if (across == nullptr && piece.shape.kind == hostents::CurveShape::kLine) {
                AcGePoint3d p;
                if (pierce(view.frame(), mine.segments[a], mine.extend[a], piece.shape, piece.extend, p))
                    addUnique(found, p);
                continue;
            }
            hostents::CurveShape pa = mine.shapes[a];
            hostents::CurveShape pb = piece.shape;
            if (across != nullptr &&
                (!hostents::projectShape(mine.shapes[a], *across, pa) ||
                 !hostents::projectShape(piece.shape, *across, pb)))
                return Acad::eNotApplicable;
            if (alongNormal &&
                !hostents::projectShape(piece.shape, AcGePlane(view.frame().origin, view.frame().normal), pb))
                return Acad::eNotApplicable;
            std::vector<AcGePoint3d> seen;
            hostents::intersectShapes(pa, mine.extend[a].any(), pb, piece.extend.any(), seen);
            for (const AcGePoint3d& q : seen) {
                if (!onAllowedSide(pa, mine.extend[a], q) || !onAllowedSide(pb, piece.extend, q))
                    continue;
                addUnique(found, across != nullptr ? liftTo(mine.shapes[a], pa, q) : q);
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
            } else if (((last - seg.start()) + seg.radialAt(0.0)).length() > 0.0) {
                // The foot on the circle and the point opposite it, where they lie on the arc.
                const double nearFoot = seg.nearestFractionExtended(last, 0.0);
                const double turn = seg.fullTurnFraction();
                const double farFoot = nearFoot + turn / 2.0 < turn ? nearFoot + turn / 2.0 : nearFoot - turn / 2.0;
                for (double t : {nearFoot, farFoot}) {
                    if (t <= 1.0 + onArc(seg))
                        snapPoints.append(frame.toWorld(seg.pointAt(std::min(t, 1.0))));
                }
            }
            break;
        case AcDb::kOsModeTan: {
            double fractions[2];
            const int count = seg.tangentFractions(last, 0.0, fractions);
            for (int k = 0; k < count; ++k) {
                if (fractions[k] <= 1.0 + onArc(seg))
                    snapPoints.append(frame.toWorld(seg.pointAt(std::min(fractions[k], 1.0))));
            }
            break;
        }
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
