// AcDbArc: the curve interface over an arc. The parameter is the angle, from the start
// angle to the start angle plus the sweep. Parameters and distances outside the arc, and
// points off it, answer eInvalidInput.
#include <cmath>
#include <vector>

#include "AcDbArc.h"
#include "ArcGeometry.h"
#include "gearc3d.h"
#include "gi/PlaneMath.h"

namespace {

using hostents::ArcGeometry;

AcDbArc* newArcLike(const AcDbArc* from, const AcGePoint3d& center, double radius, double startAngle,
                    double endAngle)
{
    auto* arc = new AcDbArc(center, from->normal(), radius, startAngle, endAngle);
    arc->setPropertiesFrom(from);
    arc->setThickness(from->thickness());
    return arc;
}

}  // namespace

Adesk::Boolean AcDbArc::isClosed() const
{
    return Adesk::kFalse;
}

Adesk::Boolean AcDbArc::isPeriodic() const
{
    return Adesk::kFalse;
}

Adesk::Boolean AcDbArc::isPlanar() const
{
    return Adesk::kTrue;
}

Acad::ErrorStatus AcDbArc::getPlane(AcGePlane& plane, AcDb::Planarity& planarity) const
{
    assertReadEnabled();
    plane = AcGePlane(m_center, m_normal);
    planarity = AcDb::kPlanar;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::getStartParam(double& param) const
{
    assertReadEnabled();
    param = m_startAngle;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::getEndParam(double& param) const
{
    assertReadEnabled();
    param = ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle).endParam();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::getStartPoint(AcGePoint3d& point) const
{
    assertReadEnabled();
    point = ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle).pointAtAngle(m_startAngle);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::getEndPoint(AcGePoint3d& point) const
{
    assertReadEnabled();
    point = ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle).pointAtAngle(m_endAngle);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::getPointAtParam(double param, AcGePoint3d& point) const
{
    assertReadEnabled();
    return ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle).pointAtParam(param, point);
}

Acad::ErrorStatus AcDbArc::getParamAtPoint(const AcGePoint3d& point, double& param) const
{
    assertReadEnabled();
    return ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle).paramAtPoint(point, param);
}

Acad::ErrorStatus AcDbArc::getDistAtParam(double param, double& dist) const
{
    assertReadEnabled();
    return ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle).distAtParam(param, dist);
}

Acad::ErrorStatus AcDbArc::getParamAtDist(double dist, double& param) const
{
    assertReadEnabled();
    return ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle).paramAtDist(dist, param);
}

Acad::ErrorStatus AcDbArc::getDistAtPoint(const AcGePoint3d& point, double& dist) const
{
    double param = 0.0;
    const Acad::ErrorStatus es = getParamAtPoint(point, param);
    if (es != Acad::eOk)
        return es;
    return getDistAtParam(param, dist);
}

Acad::ErrorStatus AcDbArc::getPointAtDist(double dist, AcGePoint3d& point) const
{
    double param = 0.0;
    const Acad::ErrorStatus es = getParamAtDist(dist, param);
    if (es != Acad::eOk)
        return es;
    return getPointAtParam(param, point);
}

Acad::ErrorStatus AcDbArc::getFirstDeriv(double param, AcGeVector3d& firstDeriv) const
{
    assertReadEnabled();
    return ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle).firstDeriv(param, firstDeriv);
}

Acad::ErrorStatus AcDbArc::getFirstDeriv(const AcGePoint3d& point, AcGeVector3d& firstDeriv) const
{
    double param = 0.0;
    const Acad::ErrorStatus es = getParamAtPoint(point, param);
    if (es != Acad::eOk)
        return es;
    return getFirstDeriv(param, firstDeriv);
}

Acad::ErrorStatus AcDbArc::getSecondDeriv(double param, AcGeVector3d& secDeriv) const
{
    assertReadEnabled();
    return ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle).secondDeriv(param, secDeriv);
}

Acad::ErrorStatus AcDbArc::getSecondDeriv(const AcGePoint3d& point, AcGeVector3d& secDeriv) const
{
    double param = 0.0;
    const Acad::ErrorStatus es = getParamAtPoint(point, param);
    if (es != Acad::eOk)
        return es;
    return getSecondDeriv(param, secDeriv);
}

// With extend, the nearest point of the arc's whole circle.
Acad::ErrorStatus AcDbArc::getClosestPointTo(const AcGePoint3d& givenPoint, AcGePoint3d& pointOnCurve,
                                             Adesk::Boolean extend) const
{
    assertReadEnabled();
    pointOnCurve =
        ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle).closestPoint(givenPoint, extend);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::getClosestPointTo(const AcGePoint3d& givenPoint, const AcGeVector3d& direction,
                                             AcGePoint3d& pointOnCurve, Adesk::Boolean extend) const
{
    assertReadEnabled();
    return ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle)
        .closestPointAlong(givenPoint, direction, extend, pointOnCurve);
}

Acad::ErrorStatus AcDbArc::getOrthoProjectedCurve(const AcGePlane& plane, AcDbCurve*& projCurve) const
{
    return getProjectedCurve(plane, plane.normal(), projCurve);
}

// Only a plane parallel to the arc keeps it an arc; others answer eNotApplicable.
Acad::ErrorStatus AcDbArc::getProjectedCurve(const AcGePlane& plane, const AcGeVector3d& projDir,
                                             AcDbCurve*& projCurve) const
{
    assertReadEnabled();
    projCurve = nullptr;
    const AcGeVector3d n = plane.normal();
    const double dn = projDir.dotProduct(n);
    if (std::fabs(dn) <= hostents::kOnCurveTolerance * projDir.length())
        return Acad::eInvalidInput;
    if (n.crossProduct(m_normal).length() > hostents::kOnCurveTolerance)
        return Acad::eNotApplicable;
    const AcGePoint3d center = m_center - projDir * ((m_center - plane.pointOnPlane()).dotProduct(n) / dn);
    projCurve = newArcLike(this, center, m_radius, m_startAngle, m_endAngle);
    return Acad::eOk;
}

// A positive distance makes the radius larger; a result without radius is refused.
Acad::ErrorStatus AcDbArc::getOffsetCurves(double offsetDist, AcDbVoidPtrArray& offsetCurves) const
{
    assertReadEnabled();
    if (!std::isfinite(offsetDist) || m_radius + offsetDist <= hostents::kOnCurveTolerance)
        return Acad::eInvalidInput;
    offsetCurves.append(newArcLike(this, m_center, m_radius + offsetDist, m_startAngle, m_endAngle));
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::getOffsetCurvesGivenPlaneNormal(const AcGeVector3d& normal, double offsetDist,
                                                           AcDbVoidPtrArray& offsetCurves) const
{
    assertReadEnabled();
    if (normal.length() == 0.0 || normal.crossProduct(m_normal).length() > hostents::kOnCurveTolerance * normal.length())
        return Acad::eInvalidInput;
    return getOffsetCurves(offsetDist, offsetCurves);
}

// Pieces run from cut to cut in ascending angle; cuts at the ends add nothing.
Acad::ErrorStatus AcDbArc::getSplitCurves(const AcGeDoubleArray& params, AcDbVoidPtrArray& curveSegments) const
{
    assertReadEnabled();
    if (params.length() == 0)
        return Acad::eInvalidInput;
    std::vector<double> values;
    for (int i = 0; i < params.length(); ++i)
        values.push_back(params[i]);
    const ArcGeometry geom = ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle);
    std::vector<double> offsets;
    if (!geom.splitOffsets(values.data(), static_cast<int>(values.size()), offsets))
        return Acad::eInvalidInput;
    const double angularTol = m_radius > 0.0 ? hostents::kOnCurveTolerance / m_radius : 0.0;
    offsets.push_back(geom.sweep);
    double from = 0.0;
    for (double to : offsets) {
        if (to - from <= angularTol)
            continue;
        curveSegments.append(newArcLike(this, m_center, m_radius, m_startAngle + from, m_startAngle + to));
        from = to;
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::getSplitCurves(const AcGePoint3dArray& points, AcDbVoidPtrArray& curveSegments) const
{
    assertReadEnabled();
    AcGeDoubleArray params;
    for (int i = 0; i < points.length(); ++i) {
        double param = 0.0;
        if (getParamAtPoint(points[i], param) != Acad::eOk)
            return Acad::eInvalidInput;
        params.append(param);
    }
    return getSplitCurves(params, curveSegments);
}

// Lengthens the arc to the angle: before the start moves the start, past the end the end.
// An angle inside the arc, or one that would close the turn, is refused.
Acad::ErrorStatus AcDbArc::extend(double newParam)
{
    assertWriteEnabled();
    if (!std::isfinite(newParam))
        return Acad::eInvalidInput;
    const ArcGeometry geom = ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle);
    if (newParam < geom.startParam()) {
        if (geom.endParam() - newParam >= hostgi::kTwoPi)
            return Acad::eInvalidInput;
        m_startAngle = hostgi::normalizeAngle(newParam);
    } else if (newParam > geom.endParam()) {
        if (newParam - geom.startParam() >= hostgi::kTwoPi)
            return Acad::eInvalidInput;
        m_endAngle = hostgi::normalizeAngle(newParam);
    } else {
        return Acad::eInvalidInput;
    }
    recordGraphicsModified();
    return Acad::eOk;
}

// The point must lie on the arc's circle, outside the arc.
Acad::ErrorStatus AcDbArc::extend(Adesk::Boolean extendStart, const AcGePoint3d& toPoint)
{
    assertWriteEnabled();
    const ArcGeometry geom = ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle);
    if (!geom.isOn(toPoint, true))
        return Acad::eInvalidInput;
    const double angle = geom.angleOf(toPoint);
    if (geom.containsAngle(angle))
        return Acad::eInvalidInput;
    (extendStart ? m_startAngle : m_endAngle) = angle;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::getArea(double& area) const
{
    assertReadEnabled();
    area = ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle).area();
    return Acad::eOk;
}

// Reversing turns the normal over; the end point becomes the start.
Acad::ErrorStatus AcDbArc::reverseCurve()
{
    assertWriteEnabled();
    const ArcGeometry geom = ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle);
    const AcGePoint3d start = geom.pointAtAngle(m_startAngle);
    const AcGePoint3d end = geom.pointAtAngle(m_endAngle);
    const ArcGeometry flipped(m_center, m_radius, -m_normal, 0.0, hostgi::kTwoPi);
    m_normal = -m_normal;
    m_thickness = -m_thickness;
    if (m_radius > 0.0) {
        m_startAngle = flipped.angleOf(end);
        m_endAngle = flipped.angleOf(start);
    }
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::getAcGeCurve(AcGeCurve3d*& curve, const AcGeTol&) const
{
    assertReadEnabled();
    const ArcGeometry geom = ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle);
    curve = new AcGeCircArc3d(m_center, m_normal, hostgi::ocsXAxis(m_normal), m_radius, geom.startAngle,
                              geom.endAngle());
    return Acad::eOk;
}

// The arc keeps the curve's own normal: its start and end angles are measured about it.
Acad::ErrorStatus AcDbArc::setFromAcGeCurve(const AcGeCurve3d& curve, AcGeVector3d*, const AcGeTol&)
{
    assertWriteEnabled();
    double period = 0.0;
    if (curve.type() != AcGe::kCircArc3d || curve.isPeriodic(period))
        return Acad::eInvalidInput;
    const auto& arc = static_cast<const AcGeCircArc3d&>(curve);
    const ArcGeometry plane(arc.center(), arc.radius(), arc.normal(), 0.0, hostgi::kTwoPi);
    m_center = arc.center();
    m_normal = arc.normal();
    m_radius = arc.radius();
    m_startAngle = plane.angleOf(arc.startPoint());
    m_endAngle = plane.angleOf(arc.endPoint());
    recordGraphicsModified();
    return Acad::eOk;
}
