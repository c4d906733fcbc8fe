// Curve shapes: extraction from the basic curve entities, intersections, projections.
#include "CurveShapes.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <utility>

#include "AcDbArc.h"
#include "AcDbCircle.h"
#include "AcDbLine.h"
#include "gi/PlaneMath.h"

namespace hostents {
namespace {

// Intersection points closer than this are the same point.
constexpr double kSamePointTolerance = kOnCurveTolerance;
// Below this sine two directions count as parallel.
constexpr double kParallelSine = 1e-12;

std::vector<std::pair<AcRxClass*, ShapeSource>>& sources()
{
    static std::vector<std::pair<AcRxClass*, ShapeSource>> registered;
    return registered;
}

void addPoint(std::vector<AcGePoint3d>& points, const AcGePoint3d& p)
{
    for (const AcGePoint3d& q : points) {
        if (q.distanceTo(p) <= kSamePointTolerance)
            return;
    }
    points.push_back(p);
}

bool withinSegment(double s, double length)
{
    const double tol = length > 0.0 ? kOnCurveTolerance / length : 0.0;
    return s >= -tol && s <= 1.0 + tol;
}

void lineLine(const CurveShape& a, bool extendA, const CurveShape& b, bool extendB, std::vector<AcGePoint3d>& out)
{
    const AcGeVector3d da = a.end - a.start;
    const AcGeVector3d db = b.end - b.start;
    const double aa = da.dotProduct(da);
    const double cc = db.dotProduct(db);
    if (aa == 0.0 || cc == 0.0)
        return;
    const AcGeVector3d w = a.start - b.start;
    const double bb = da.dotProduct(db);
    const double d = da.dotProduct(w);
    const double e = db.dotProduct(w);
    const double den = aa * cc - bb * bb;
    if (den <= kParallelSine * kParallelSine * aa * cc)
        return;
    const double s = (bb * e - cc * d) / den;
    const double t = (aa * e - bb * d) / den;
    const AcGePoint3d p = a.start + da * s;
    const AcGePoint3d q = b.start + db * t;
    if (p.distanceTo(q) > kOnCurveTolerance)
        return;
    if ((!extendA && !withinSegment(s, std::sqrt(aa))) || (!extendB && !withinSegment(t, std::sqrt(cc))))
        return;
    addPoint(out, p + (q - p) * 0.5);
}

// Parameters along the line (start + s (end - start)) where it meets the arc's whole circle.
int lineCircleParams(const AcGePoint3d& start, const AcGeVector3d& d, const ArcGeometry& arc, double params[2])
{
    const AcGeVector3d& n = arc.normal;
    const double dd = d.dotProduct(d);
    if (dd == 0.0)
        return 0;
    const double dn = d.dotProduct(n);
    if (std::fabs(dn) <= kParallelSine * std::sqrt(dd)) {
        // The line runs parallel to the circle's plane: it must lie in it.
        if (std::fabs((start - arc.center).dotProduct(n)) > kOnCurveTolerance)
            return 0;
        const AcGeVector3d f = start - arc.center;
        const double s0 = -f.dotProduct(d) / dd;
        const double h = (f + d * s0).length();
        if (h > arc.radius + kOnCurveTolerance)
            return 0;
        const double half = std::sqrt(std::max(0.0, arc.radius * arc.radius - h * h));
        if (half <= kOnCurveTolerance) {
            params[0] = s0;
            return 1;
        }
        params[0] = s0 - half / std::sqrt(dd);
        params[1] = s0 + half / std::sqrt(dd);
        return 2;
    }
    const double s = (arc.center - start).dotProduct(n) / dn;
    const AcGePoint3d p = start + d * s;
    if (std::fabs(p.distanceTo(arc.center) - arc.radius) > kOnCurveTolerance)
        return 0;
    params[0] = s;
    return 1;
}

void lineArc(const CurveShape& line, bool extendLine, const CurveShape& arc, bool extendArc,
             std::vector<AcGePoint3d>& out)
{
    const AcGeVector3d d = line.end - line.start;
    double params[2];
    const int count = lineCircleParams(line.start, d, arc.arc, params);
    for (int i = 0; i < count; ++i) {
        if (!extendLine && !withinSegment(params[i], d.length()))
            continue;
        const AcGePoint3d p = line.start + d * params[i];
        if (!extendArc && !arc.arc.containsAngle(arc.arc.angleOf(p)))
            continue;
        addPoint(out, p);
    }
}

void arcArc(const CurveShape& a, bool extendA, const CurveShape& b, bool extendB, std::vector<AcGePoint3d>& out)
{
    const ArcGeometry& ga = a.arc;
    const ArcGeometry& gb = b.arc;
    std::vector<AcGePoint3d> candidates;
    const AcGeVector3d axis = ga.normal.crossProduct(gb.normal);
    if (axis.length() <= kParallelSine) {
        if (std::fabs((gb.center - ga.center).dotProduct(ga.normal)) > kOnCurveTolerance)
            return;
        AcGeVector3d v = gb.center - ga.center;
        v = v - ga.normal * v.dotProduct(ga.normal);
        const double d = v.length();
        if (d <= kOnCurveTolerance)
            return;  // concentric: no points, or the same circle
        if (d > ga.radius + gb.radius + kOnCurveTolerance || d < std::fabs(ga.radius - gb.radius) - kOnCurveTolerance)
            return;
        const double x = (ga.radius * ga.radius - gb.radius * gb.radius + d * d) / (2.0 * d);
        const double h = std::sqrt(std::max(0.0, ga.radius * ga.radius - x * x));
        const AcGeVector3d u = v / d;
        const AcGeVector3d w = ga.normal.crossProduct(u);
        candidates.push_back(ga.center + u * x + w * h);
        if (h > kOnCurveTolerance)
            candidates.push_back(ga.center + u * x - w * h);
    } else {
        // The planes meet in a line; the circles can only meet on it.
        const AcGeVector3d& n1 = ga.normal;
        const AcGeVector3d& n2 = gb.normal;
        const double h1 = n1.dotProduct(ga.center.asVector());
        const double h2 = n2.dotProduct(gb.center.asVector());
        const double n12 = n1.dotProduct(n2);
        const double den = n1.dotProduct(n1) * n2.dotProduct(n2) - n12 * n12;
        const AcGePoint3d p0 = AcGePoint3d::kOrigin +
                               (n1 * (h1 * n2.dotProduct(n2) - h2 * n12) + n2 * (h2 * n1.dotProduct(n1) - h1 * n12)) / den;
        double params[2];
        const int count = lineCircleParams(p0, axis, ga, params);
        for (int i = 0; i < count; ++i) {
            const AcGePoint3d p = p0 + axis * params[i];
            if (std::fabs(p.distanceTo(gb.center) - gb.radius) <= kOnCurveTolerance)
                candidates.push_back(p);
        }
    }
    for (const AcGePoint3d& p : candidates) {
        if (!extendA && !ga.containsAngle(ga.angleOf(p)))
            continue;
        if (!extendB && !gb.containsAngle(gb.angleOf(p)))
            continue;
        addPoint(out, p);
    }
}

// The point of the original shape whose projection is q.
AcGePoint3d liftToShape(const CurveShape& original, const CurveShape& projected, const AcGePoint3d& q)
{
    if (original.kind == CurveShape::kArc)
        return q + (original.arc.center - projected.arc.center);
    const AcGeVector3d d = projected.end - projected.start;
    const double dd = d.dotProduct(d);
    const double s = dd == 0.0 ? 0.0 : (q - projected.start).dotProduct(d) / dd;
    return original.start + (original.end - original.start) * s;
}

}  // namespace

CurveShape CurveShape::line(const AcGePoint3d& start, const AcGePoint3d& end)
{
    CurveShape shape;
    shape.kind = kLine;
    shape.start = start;
    shape.end = end;
    return shape;
}

CurveShape CurveShape::circular(const ArcGeometry& arc)
{
    CurveShape shape;
    shape.kind = kArc;
    shape.arc = arc;
    return shape;
}

std::ostream& operator<<(std::ostream& os, const CurveShape& shape)
{
    if (shape.kind == CurveShape::kLine)
        return os << "line " << shape.start << " to " << shape.end;
    return os << shape.arc;
}

void registerShapeSource(AcRxClass* cls, ShapeSource source)
{
    unregisterShapeSource(cls);
    if (cls != nullptr && source != nullptr)
        sources().emplace_back(cls, source);
}

void unregisterShapeSource(AcRxClass* cls)
{
    auto& list = sources();
    list.erase(std::remove_if(list.begin(), list.end(), [cls](const auto& entry) { return entry.first == cls; }),
               list.end());
}

bool hasRegisteredSource(const AcDbEntity* entity)
{
    for (const auto& entry : sources()) {
        if (entity->isKindOf(entry.first))
            return true;
    }
    return false;
}

bool shapesOf(const AcDbEntity* entity, std::vector<CurveShape>& shapes)
{
    if (entity == nullptr)
        return false;
    if (const AcDbLine* line = AcDbLine::cast(entity)) {
        shapes.push_back(CurveShape::line(line->startPoint(), line->endPoint()));
        return true;
    }
    if (const AcDbArc* arc = AcDbArc::cast(entity)) {
        shapes.push_back(CurveShape::circular(ArcGeometry::fromAngles(arc->center(), arc->radius(), arc->normal(),
                                                                      arc->startAngle(), arc->endAngle())));
        return true;
    }
    if (const AcDbCircle* circle = AcDbCircle::cast(entity)) {
        shapes.push_back(CurveShape::circular(ArcGeometry(circle->center(), circle->radius(), circle->normal(),
                                                          0.0, hostgi::kTwoPi)));
        return true;
    }
    for (const auto& entry : sources()) {
        if (entity->isKindOf(entry.first))
            return entry.second(entity, shapes);
    }
    return false;
}

void intersectShapes(const CurveShape& a, bool extendA, const CurveShape& b, bool extendB,
                     std::vector<AcGePoint3d>& points)
{
    if (a.kind == CurveShape::kLine && b.kind == CurveShape::kLine)
        lineLine(a, extendA, b, extendB, points);
    else if (a.kind == CurveShape::kLine)
        lineArc(a, extendA, b, extendB, points);
    else if (b.kind == CurveShape::kLine)
        lineArc(b, extendB, a, extendA, points);
    else
        arcArc(a, extendA, b, extendB, points);
}

bool projectShape(const CurveShape& shape, const AcGePlane& plane, CurveShape& projected)
{
    const AcGeVector3d n = plane.normal();
    const AcGePoint3d origin = plane.pointOnPlane();
    auto project = [&](const AcGePoint3d& p) { return p - n * (p - origin).dotProduct(n); };
    if (shape.kind == CurveShape::kLine) {
        projected = CurveShape::line(project(shape.start), project(shape.end));
        return true;
    }
    if (shape.arc.normal.crossProduct(n).length() > kParallelSine)
        return false;
    projected = shape;
    projected.arc.center = project(shape.arc.center);
    return true;
}

Acad::ErrorStatus intersectEntities(const AcDbEntity* self, const AcDbEntity* other, AcDb::Intersect type,
                                    const AcGePlane* projection, AcGePoint3dArray& points)
{
    if (other == nullptr)
        return Acad::eNullEntityPointer;
    // An entity whose shapes come from a registered source meets things by its own pieces
    // (a polyline keeps its nearly straight arcs precise that way): without a projection
    // the points are the same asked the other way round.
    if (projection == nullptr && hasRegisteredSource(other) && !hasRegisteredSource(self)) {
        AcDb::Intersect swapped = type;
        if (type == AcDb::kExtendThis)
            swapped = AcDb::kExtendArg;
        else if (type == AcDb::kExtendArg)
            swapped = AcDb::kExtendThis;
        return other->intersectWith(self, swapped, points);
    }
    std::vector<CurveShape> mine;
    std::vector<CurveShape> theirs;
    if (!shapesOf(self, mine) || !shapesOf(other, theirs))
        return Acad::eNotImplementedYet;
    const bool extendThis = type == AcDb::kExtendThis || type == AcDb::kExtendBoth;
    const bool extendArg = type == AcDb::kExtendArg || type == AcDb::kExtendBoth;

    std::vector<AcGePoint3d> found;
    for (const CurveShape& a : mine) {
        for (const CurveShape& b : theirs) {
            if (projection == nullptr) {
                intersectShapes(a, extendThis, b, extendArg, found);
                continue;
            }
            CurveShape pa;
            CurveShape pb;
            if (!projectShape(a, *projection, pa) || !projectShape(b, *projection, pb))
                return Acad::eNotApplicable;
            std::vector<AcGePoint3d> seen;
            intersectShapes(pa, extendThis, pb, extendArg, seen);
            for (const AcGePoint3d& q : seen)
                addPoint(found, liftToShape(a, pa, q));
        }
    }
    for (const AcGePoint3d& p : found)
        points.append(p);
    return Acad::eOk;
}

}  // namespace hostents
