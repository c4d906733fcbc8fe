// AcDbCircle: the curve interface over a circle. The parameter is the angle from the x
// axis of the normal's object coordinate system; a circle is closed and periodic, so any
// parameter names a point. Points off the circle answer eInvalidInput.
#include <cmath>
#include <vector>

#include "AcDbArc.h"
#include "AcDbCircle.h"
#include "ArcGeometry.h"
#include "gearc3d.h"
#include "gi/PlaneMath.h"

namespace {

using hostents::ArcGeometry;

ArcGeometry geometryOf(const AcGePoint3d& center, double radius, const AcGeVector3d& normal)
{
    return ArcGeometry(center, radius, normal, 0.0, hostgi::kTwoPi);
}

AcDbCircle* newCircleLike(const AcDbCircle* from, const AcGePoint3d& center, const AcGeVector3d& normal,
                          double radius)
{
    auto* circle = new AcDbCircle(center, normal, radius);
    circle->setPropertiesFrom(from);
    circle->setThickness(from->thickness());
    return circle;
}

}  // namespace

Adesk::Boolean AcDbCircle::isClosed() const
{
    return Adesk::kTrue;
}

Adesk::Boolean AcDbCircle::isPeriodic() const
{
    return Adesk::kTrue;
}

Adesk::Boolean AcDbCircle::isPlanar() const
{
    return Adesk::kTrue;
}

Acad::ErrorStatus AcDbCircle::getPlane(AcGePlane& plane, AcDb::Planarity& planarity) const
{
    assertReadEnabled();
    plane = AcGePlane(m_center, m_normal);
    planarity = AcDb::kPlanar;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::getStartParam(double& param) const
{
    assertReadEnabled();
    param = 0.0;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::getEndParam(double& param) const
{
    assertReadEnabled();
    param = hostgi::kTwoPi;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::getStartPoint(AcGePoint3d& point) const
{
    assertReadEnabled();
    point = geometryOf(m_center, m_radius, m_normal).pointAtAngle(0.0);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::getEndPoint(AcGePoint3d& point) const
{
    return getStartPoint(point);
}

Acad::ErrorStatus AcDbCircle::getPointAtParam(double param, AcGePoint3d& point) const
{
    assertReadEnabled();
    return geometryOf(m_center, m_radius, m_normal).pointAtParam(param, point);
}

Acad::ErrorStatus AcDbCircle::getParamAtPoint(const AcGePoint3d& point, double& param) const
{
    assertReadEnabled();
    return geometryOf(m_center, m_radius, m_normal).paramAtPoint(point, param);
}

Acad::ErrorStatus AcDbCircle::getDistAtParam(double param, double& dist) const
{
    assertReadEnabled();
    return geometryOf(m_center, m_radius, m_normal).distAtParam(param, dist);
}

Acad::ErrorStatus AcDbCircle::getParamAtDist(double dist, double& param) const
{
    assertReadEnabled();
    return geometryOf(m_center, m_radius, m_normal).paramAtDist(dist, param);
}

Acad::ErrorStatus AcDbCircle::getDistAtPoint(const AcGePoint3d& point, double& dist) const
{
    double param = 0.0;
    const Acad::ErrorStatus es = getParamAtPoint(point, param);
    if (es != Acad::eOk)
        return es;
    return getDistAtParam(param, dist);
}

Acad::ErrorStatus AcDbCircle::getPointAtDist(double dist, AcGePoint3d& point) const
{
    double param = 0.0;
    const Acad::ErrorStatus es = getParamAtDist(dist, param);
    if (es != Acad::eOk)
        return es;
    return getPointAtParam(param, point);
}

Acad::ErrorStatus AcDbCircle::getFirstDeriv(double param, AcGeVector3d& firstDeriv) const
{
    assertReadEnabled();
    return geometryOf(m_center, m_radius, m_normal).firstDeriv(param, firstDeriv);
}

Acad::ErrorStatus AcDbCircle::getFirstDeriv(const AcGePoint3d& point, AcGeVector3d& firstDeriv) const
{
    double param = 0.0;
    const Acad::ErrorStatus es = getParamAtPoint(point, param);
    if (es != Acad::eOk)
        return es;
    return getFirstDeriv(param, firstDeriv);
}

Acad::ErrorStatus AcDbCircle::getSecondDeriv(double param, AcGeVector3d& secDeriv) const
{
    assertReadEnabled();
    return geometryOf(m_center, m_radius, m_normal).secondDeriv(param, secDeriv);
}

Acad::ErrorStatus AcDbCircle::getSecondDeriv(const AcGePoint3d& point, AcGeVector3d& secDeriv) const
{
    double param = 0.0;
    const Acad::ErrorStatus es = getParamAtPoint(point, param);
    if (es != Acad::eOk)
        return es;
    return getSecondDeriv(param, secDeriv);
}

Acad::ErrorStatus AcDbCircle::getClosestPointTo(const AcGePoint3d& givenPoint, AcGePoint3d& pointOnCurve,
                                                Adesk::Boolean) const
{
    assertReadEnabled();
    pointOnCurve = geometryOf(m_center, m_radius, m_normal).closestPoint(givenPoint, true);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::getClosestPointTo(const AcGePoint3d& givenPoint, const AcGeVector3d& direction,
                                                AcGePoint3d& pointOnCurve, Adesk::Boolean) const
{
    assertReadEnabled();
    return geometryOf(m_center, m_radius, m_normal).closestPointAlong(givenPoint, direction, true, pointOnCurve);
}

Acad::ErrorStatus AcDbCircle::getOrthoProjectedCurve(const AcGePlane& plane, AcDbCurve*& projCurve) const
{
    return getProjectedCurve(plane, plane.normal(), projCurve);
}

// Only a projection that keeps the circle a circle is made (the plane parallel to the
// circle, the direction along the normal is not required); others answer eNotApplicable.
Acad::ErrorStatus AcDbCircle::getProjectedCurve(const AcGePlane& plane, const AcGeVector3d& projDir,
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
    projCurve = newCircleLike(this, center, m_normal, m_radius);
    return Acad::eOk;
}

// A positive distance makes the circle larger; a result without radius is refused.
Acad::ErrorStatus AcDbCircle::getOffsetCurves(double offsetDist, AcDbVoidPtrArray& offsetCurves) const
{
    assertReadEnabled();
    if (!std::isfinite(offsetDist) || m_radius + offsetDist <= hostents::kOnCurveTolerance)
        return Acad::eInvalidInput;
    offsetCurves.append(newCircleLike(this, m_center, m_normal, m_radius + offsetDist));
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::getOffsetCurvesGivenPlaneNormal(const AcGeVector3d& normal, double offsetDist,
                                                              AcDbVoidPtrArray& offsetCurves) const
{
    assertReadEnabled();
    if (normal.length() == 0.0 || normal.crossProduct(m_normal).length() > hostents::kOnCurveTolerance * normal.length())
        return Acad::eInvalidInput;
    return getOffsetCurves(offsetDist, offsetCurves);
}

// The circle is cut at every split angle: the pieces are arcs from each cut to the next,
// the last one running round to the first cut. One cut gives one whole-turn arc.
Acad::ErrorStatus AcDbCircle::getSplitCurves(const AcGeDoubleArray& params, AcDbVoidPtrArray& curveSegments) const
{
    assertReadEnabled();
    if (params.length() == 0)
        return Acad::eInvalidInput;
    std::vector<double> values;
    for (int i = 0; i < params.length(); ++i)
        values.push_back(params[i]);
    std::vector<double> offsets;
    const ArcGeometry geom = geometryOf(m_center, m_radius, m_normal);
    if (!geom.splitOffsets(values.data(), static_cast<int>(values.size()), offsets))
        return Acad::eInvalidInput;
    for (size_t i = 0; i < offsets.size(); ++i) {
        const double from = offsets[i];
        const double to = i + 1 < offsets.size() ? offsets[i + 1] : offsets[0] + hostgi::kTwoPi;
        auto* arc = new AcDbArc(m_center, m_normal, m_radius, from, to);
        arc->setPropertiesFrom(this);
        arc->setThickness(m_thickness);
        curveSegments.append(arc);
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::getSplitCurves(const AcGePoint3dArray& points, AcDbVoidPtrArray& curveSegments) const
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

// A closed curve has no end to extend.
Acad::ErrorStatus AcDbCircle::extend(double)
{
    return Acad::eNotApplicable;
}

Acad::ErrorStatus AcDbCircle::extend(Adesk::Boolean, const AcGePoint3d&)
{
    return Acad::eNotApplicable;
}

Acad::ErrorStatus AcDbCircle::getArea(double& area) const
{
    assertReadEnabled();
    area = hostgi::kPi * m_radius * m_radius;
    return Acad::eOk;
}

// Reversing turns the normal over: the same points, run the other way round.
Acad::ErrorStatus AcDbCircle::reverseCurve()
{
    assertWriteEnabled();
    m_normal = -m_normal;
    m_thickness = -m_thickness;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::getAcGeCurve(AcGeCurve3d*& curve, const AcGeTol&) const
{
    assertReadEnabled();
    curve = new AcGeCircArc3d(m_center, m_normal, hostgi::ocsXAxis(m_normal), m_radius, 0.0, hostgi::kTwoPi);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::setFromAcGeCurve(const AcGeCurve3d& curve, AcGeVector3d*, const AcGeTol&)
{
    assertWriteEnabled();
    double period = 0.0;
    if (curve.type() != AcGe::kCircArc3d || !curve.isPeriodic(period))
        return Acad::eInvalidInput;
    const auto& arc = static_cast<const AcGeCircArc3d&>(curve);
    m_center = arc.center();
    m_normal = arc.normal();
    m_radius = arc.radius();
    recordGraphicsModified();
    return Acad::eOk;
}
