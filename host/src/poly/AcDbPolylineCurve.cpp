// AcDbPolyline: the curve questions answered by parameter, distance and point, the
// derivatives, nearest points, projections and the enclosed area.
#include <cmath>
#include <limits>
#include <memory>

#include "AcDbPolyline.h"
#include "PolylineView.h"

namespace {

using hostpoly::BulgeSegment;
using hostpoly::CurvePlace;
using hostpoly::PolylineView;

// Directions whose sine against the plane is below this count as lying in it.
constexpr double kParallelToPlane = 1e-12;
// Samples per arc before the nearest point seen along a slanted direction is refined.
constexpr int kArcSamples = 32;
// Golden-section steps refining it: (0.618)^80 leaves far less than the rounding of t.
constexpr int kRefineSteps = 80;

// The place on the curve of a world point, which must lie on it.
bool placeOf(const PolylineView& view, const AcGePoint3d& point, CurvePlace& place)
{
    if (view.numVerts() == 0)
        return false;
    place = view.nearest(view.frame().toPlane(point));
    const double height = view.frame().heightOf(point);
    return std::hypot(place.distance, height) <= hostpoly::kOnCurveTolerance;
}

// The fraction of seg nearest q under the squared metric |u|^2 - (d.u)^2 (a view along a
// slanted direction d, |d| < 1), over [lo, hi]: sampled, then refined by golden section.
double nearestSeenAlong(const BulgeSegment& seg, const AcGePoint2d& q, const AcGeVector2d& d, double lo, double hi)
{
    auto cost = [&](double t) {
        const AcGeVector2d u = seg.pointAt(t) - q;
        const double along = u.dotProduct(d);
        return u.lengthSqrd() - along * along;
    };
    if (!seg.isArc()) {
        // A line: the metric's minimum along it is exact.
        const AcGeVector2d v = seg.end() - seg.start();
        const AcGeVector2d w = seg.start() - q;
        const double vv = v.lengthSqrd() - v.dotProduct(d) * v.dotProduct(d);
        const double t = vv <= 0.0 ? lo : -(w.dotProduct(v) - w.dotProduct(d) * v.dotProduct(d)) / vv;
        return std::fmin(std::fmax(t, lo), hi);
    }
    double bestT = lo;
    double best = cost(lo);
    for (int i = 1; i <= kArcSamples; ++i) {
        const double t = lo + (hi - lo) * i / kArcSamples;
        const double c = cost(t);
        if (c < best) {
            best = c;
            bestT = t;
        }
    }
    const double step = (hi - lo) / kArcSamples;
    double a = std::fmax(lo, bestT - step);
    double b = std::fmin(hi, bestT + step);
    const double golden = (std::sqrt(5.0) - 1.0) / 2.0;
    for (int i = 0; i < kRefineSteps && b - a > 0.0; ++i) {
        const double x1 = b - golden * (b - a);
        const double x2 = a + golden * (b - a);
        if (cost(x1) <= cost(x2))
            b = x2;
        else
            a = x1;
    }
    const double refined = (a + b) / 2.0;
    return cost(refined) <= best ? refined : bestT;
}

}  // namespace

Adesk::Boolean AcDbPolyline::isClosed() const
{
    assertReadEnabled();
    return m_closed;
}

Adesk::Boolean AcDbPolyline::isPeriodic() const
{
    return Adesk::kFalse;
}

Adesk::Boolean AcDbPolyline::isPlanar() const
{
    return Adesk::kTrue;
}

Acad::ErrorStatus AcDbPolyline::getPlane(AcGePlane& plane, AcDb::Planarity& planarity) const
{
    assertReadEnabled();
    const PolylineView view(*this);
    plane.set(view.frame().origin, view.frame().xAxis, view.frame().yAxis);
    planarity = AcDb::kPlanar;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getStartParam(double& param) const
{
    assertReadEnabled();
    param = 0.0;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getEndParam(double& param) const
{
    assertReadEnabled();
    param = PolylineView(*this).endParam();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getStartPoint(AcGePoint3d& point) const
{
    return getPointAtParam(0.0, point);
}

Acad::ErrorStatus AcDbPolyline::getEndPoint(AcGePoint3d& point) const
{
    assertReadEnabled();
    return getPointAtParam(PolylineView(*this).endParam(), point);
}

Acad::ErrorStatus AcDbPolyline::getPointAtParam(double param, AcGePoint3d& point) const
{
    assertReadEnabled();
    const PolylineView view(*this);
    if (view.numVerts() == 0)
        return Acad::eDegenerateGeometry;
    int segment = 0;
    double fraction = 0.0;
    if (!view.locate(param, segment, fraction))
        return Acad::eInvalidInput;
    point = view.frame().toWorld(view.pointAt(segment, fraction));
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getParamAtPoint(const AcGePoint3d& point, double& param) const
{
    assertReadEnabled();
    const PolylineView view(*this);
    if (view.numVerts() == 0)
        return Acad::eDegenerateGeometry;
    CurvePlace place;
    if (!placeOf(view, point, place))
        return Acad::eInvalidInput;
    param = PolylineView::paramOf(place);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getDistAtParam(double param, double& dist) const
{
    assertReadEnabled();
    const PolylineView view(*this);
    if (view.numVerts() == 0)
        return Acad::eDegenerateGeometry;
    int segment = 0;
    double fraction = 0.0;
    if (!view.locate(param, segment, fraction))
        return Acad::eInvalidInput;
    dist = view.lengthTo(segment, fraction);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getParamAtDist(double dist, double& param) const
{
    assertReadEnabled();
    const PolylineView view(*this);
    if (view.numVerts() == 0)
        return Acad::eDegenerateGeometry;
    int segment = 0;
    double fraction = 0.0;
    if (!view.locateDistance(dist, segment, fraction))
        return Acad::eInvalidInput;
    param = segment + fraction;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getDistAtPoint(const AcGePoint3d& point, double& dist) const
{
    double param = 0.0;
    const Acad::ErrorStatus es = getParamAtPoint(point, param);
    if (es != Acad::eOk)
        return es;
    return getDistAtParam(param, dist);
}

Acad::ErrorStatus AcDbPolyline::getPointAtDist(double dist, AcGePoint3d& point) const
{
    assertReadEnabled();
    const PolylineView view(*this);
    if (view.numVerts() == 0)
        return Acad::eDegenerateGeometry;
    int segment = 0;
    double fraction = 0.0;
    if (!view.locateDistance(dist, segment, fraction))
        return Acad::eInvalidInput;
    point = view.frame().toWorld(view.pointAt(segment, fraction));
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getFirstDeriv(double param, AcGeVector3d& firstDeriv) const
{
    assertReadEnabled();
    const PolylineView view(*this);
    if (view.numSegments() == 0)
        return Acad::eDegenerateGeometry;
    int segment = 0;
    double fraction = 0.0;
    if (!view.locate(param, segment, fraction))
        return Acad::eInvalidInput;
    firstDeriv = view.frame().toWorld(view.segment(segment).derivAt(fraction));
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getFirstDeriv(const AcGePoint3d& point, AcGeVector3d& firstDeriv) const
{
    double param = 0.0;
    const Acad::ErrorStatus es = getParamAtPoint(point, param);
    if (es != Acad::eOk)
        return es;
    return getFirstDeriv(param, firstDeriv);
}

Acad::ErrorStatus AcDbPolyline::getSecondDeriv(double param, AcGeVector3d& secDeriv) const
{
    assertReadEnabled();
    const PolylineView view(*this);
    if (view.numSegments() == 0)
        return Acad::eDegenerateGeometry;
    int segment = 0;
    double fraction = 0.0;
    if (!view.locate(param, segment, fraction))
        return Acad::eInvalidInput;
    secDeriv = view.frame().toWorld(view.segment(segment).secondDerivAt(fraction));
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getSecondDeriv(const AcGePoint3d& point, AcGeVector3d& secDeriv) const
{
    double param = 0.0;
    const Acad::ErrorStatus es = getParamAtPoint(point, param);
    if (es != Acad::eOk)
        return es;
    return getSecondDeriv(param, secDeriv);
}

// The nearest point in space of a flat curve is the nearest point to the given point's
// foot on its plane.
Acad::ErrorStatus AcDbPolyline::getClosestPointTo(const AcGePoint3d& givenPoint, AcGePoint3d& pointOnCurve,
                                                  Adesk::Boolean extend) const
{
    assertReadEnabled();
    const PolylineView view(*this);
    if (view.numVerts() == 0)
        return Acad::eDegenerateGeometry;
    const CurvePlace place = view.nearest(view.frame().toPlane(givenPoint), extend);
    pointOnCurve = view.frame().toWorld(place.point);
    return Acad::eOk;
}

// Seen along a slanted direction the plane is foreshortened along the direction's trace on
// it by cos(slant): distances are measured in that metric from where the sight line
// through the given point pierces the plane.
Acad::ErrorStatus AcDbPolyline::getClosestPointTo(const AcGePoint3d& givenPoint, const AcGeVector3d& direction,
                                                  AcGePoint3d& pointOnCurve, Adesk::Boolean extend) const
{
    assertReadEnabled();
    const PolylineView view(*this);
    if (view.numVerts() == 0)
        return Acad::eDegenerateGeometry;
    const double len = direction.length();
    if (!std::isfinite(len) || len == 0.0)
        return Acad::eInvalidInput;
    const AcGeVector3d unit = direction / len;
    const double across = unit.dotProduct(view.frame().normal);
    if (std::fabs(across) <= kParallelToPlane)
        return Acad::eInvalidInput;
    const AcGePoint3d pierce = givenPoint - unit * (view.frame().heightOf(givenPoint) / across);
    const AcGePoint2d q = view.frame().toPlane(pierce);
    const AcGeVector2d d = view.frame().toPlane(unit);
    if (view.numSegments() == 0) {
        pointOnCurve = view.worldPoint(0);
        return Acad::eOk;
    }
    const bool open = !view.isClosed() && extend;
    const int count = view.numSegments();
    double best = std::numeric_limits<double>::infinity();
    AcGePoint2d bestPoint;
    for (int i = 0; i < count; ++i) {
        const BulgeSegment seg = view.segment(i);
        double lo = 0.0;
        double hi = 1.0;
        if (open && i == 0)
            lo = seg.isArc() ? 1.0 - seg.fullTurnFraction() : -std::numeric_limits<double>::max();
        if (open && i == count - 1)
            hi = seg.isArc() ? lo + seg.fullTurnFraction() : std::numeric_limits<double>::max();
        const double t = nearestSeenAlong(seg, q, d, lo, hi);
        const AcGeVector2d u = seg.pointAt(t) - q;
        const double cost = u.lengthSqrd() - u.dotProduct(d) * u.dotProduct(d);
        if (cost < best) {
            best = cost;
            bestPoint = seg.pointAt(t);
        }
    }
    pointOnCurve = view.frame().toWorld(bestPoint);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getOrthoProjectedCurve(const AcGePlane& plane, AcDbCurve*& projCurve) const
{
    return getProjectedCurve(plane, plane.normal(), projCurve);
}

// Projected onto a parallel plane the polyline keeps its shape, widths and normal at a new
// elevation. Onto a slanted plane only straight segments stay what they are: the vertices
// are projected into the plane's own coordinate system (its normal turned to the
// polyline's side) and arcs answer eNotApplicable.
Acad::ErrorStatus AcDbPolyline::getProjectedCurve(const AcGePlane& plane, const AcGeVector3d& projDir,
                                                  AcDbCurve*& projCurve) const
{
    assertReadEnabled();
    projCurve = nullptr;
    const AcGeVector3d n = plane.normal();
    const double dn = projDir.dotProduct(n);
    if (projDir.length() == 0.0 || std::fabs(dn) <= kParallelToPlane * projDir.length())
        return Acad::eInvalidInput;
    const PolylineView view(*this);
    auto project = [&](const AcGePoint3d& p) { return p - projDir * ((p - plane.pointOnPlane()).dotProduct(n) / dn); };
    const bool parallel = n.crossProduct(m_normal).length() <= kParallelToPlane;
    if (!parallel && hasBulges())
        return Acad::eNotApplicable;

    std::unique_ptr<AcDbPolyline> projected(newLike());
    projected->m_vertices = m_vertices;
    projected->m_closed = m_closed;
    if (parallel) {
        const AcGePoint3d moved = project(view.frame().origin);
        const AcGeVector2d shift = view.frame().toPlane(moved - view.frame().origin);
        for (Vertex& vertex : projected->m_vertices)
            vertex.point += shift;
        projected->m_elevation = view.frame().heightOf(moved) + m_elevation;
    } else {
        const AcGeVector3d newNormal = n.dotProduct(m_normal) < 0.0 ? -n : n;
        const hostpoly::OcsFrame target(newNormal, 0.0);
        double elevation = 0.0;
        for (size_t i = 0; i < m_vertices.size(); ++i) {
            const AcGePoint3d p = project(view.worldPoint(static_cast<int>(i)));
            projected->m_vertices[i].point = target.toPlane(p);
            elevation = target.heightOf(p);
        }
        projected->m_normal = newNormal;
        projected->m_elevation = elevation;
    }
    projCurve = projected.release();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getArea(double& area) const
{
    assertReadEnabled();
    area = std::fabs(PolylineView(*this).signedArea());
    return Acad::eOk;
}
