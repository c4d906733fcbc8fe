// AcDbLine: the curve interface over a segment. The parameter is the distance from the
// start point. Parameters and distances outside the segment, and points off it, answer
// eInvalidInput (the host does not document the status; this is the natural one).
#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "AcDbLine.h"
#include "ArcGeometry.h"
#include "EntityFiling.h"
#include "gelnsg3d.h"
#include "gi/PlaneMath.h"

namespace {

using hostents::kOnCurveTolerance;

bool withinLength(double value, double length)
{
    return value >= -kOnCurveTolerance && value <= length + kOnCurveTolerance;
}

double clampTo(double value, double length)
{
    return std::min(std::max(value, 0.0), length);
}

AcGeVector3d unitDirection(const AcGePoint3d& start, const AcGePoint3d& end)
{
    const AcGeVector3d d = end - start;
    const double len = d.length();
    return len == 0.0 ? AcGeVector3d::kXAxis : d / len;
}

// A new line in no database with this line's properties.
AcDbLine* newLineLike(const AcDbLine* from, const AcGePoint3d& start, const AcGePoint3d& end)
{
    auto* line = new AcDbLine(start, end);
    line->setPropertiesFrom(from);
    line->setNormal(from->normal());
    line->setThickness(from->thickness());
    return line;
}

}  // namespace

Adesk::Boolean AcDbLine::isClosed() const
{
    return Adesk::kFalse;
}

Adesk::Boolean AcDbLine::isPeriodic() const
{
    return Adesk::kFalse;
}

Adesk::Boolean AcDbLine::isPlanar() const
{
    return Adesk::kTrue;
}

// A line lies in many planes: the one answered contains it and is perpendicular to the
// line's normal when that is possible.
Acad::ErrorStatus AcDbLine::getPlane(AcGePlane& plane, AcDb::Planarity& planarity) const
{
    assertReadEnabled();
    const AcGeVector3d d = unitDirection(m_start, m_end);
    AcGeVector3d n = m_normal - d * m_normal.dotProduct(d);
    if (n.length() <= kOnCurveTolerance)
        n = hostgi::ocsXAxis(d);
    plane = AcGePlane(m_start, n / n.length());
    planarity = AcDb::kLinear;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getStartParam(double& param) const
{
    assertReadEnabled();
    param = 0.0;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getEndParam(double& param) const
{
    assertReadEnabled();
    param = m_start.distanceTo(m_end);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getStartPoint(AcGePoint3d& point) const
{
    assertReadEnabled();
    point = m_start;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getEndPoint(AcGePoint3d& point) const
{
    assertReadEnabled();
    point = m_end;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getPointAtParam(double param, AcGePoint3d& point) const
{
    assertReadEnabled();
    const double length = m_start.distanceTo(m_end);
    if (!withinLength(param, length))
        return Acad::eInvalidInput;
    point = m_start + unitDirection(m_start, m_end) * clampTo(param, length);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getParamAtPoint(const AcGePoint3d& point, double& param) const
{
    assertReadEnabled();
    const double length = m_start.distanceTo(m_end);
    const double s = (point - m_start).dotProduct(unitDirection(m_start, m_end));
    if (!withinLength(s, length))
        return Acad::eInvalidInput;
    const double along = clampTo(s, length);
    if (point.distanceTo(m_start + unitDirection(m_start, m_end) * along) > kOnCurveTolerance)
        return Acad::eInvalidInput;
    param = along;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getDistAtParam(double param, double& dist) const
{
    assertReadEnabled();
    const double length = m_start.distanceTo(m_end);
    if (!withinLength(param, length))
        return Acad::eInvalidInput;
    dist = clampTo(param, length);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getParamAtDist(double dist, double& param) const
{
    return getDistAtParam(dist, param);
}

Acad::ErrorStatus AcDbLine::getDistAtPoint(const AcGePoint3d& point, double& dist) const
{
    return getParamAtPoint(point, dist);
}

Acad::ErrorStatus AcDbLine::getPointAtDist(double dist, AcGePoint3d& point) const
{
    return getPointAtParam(dist, point);
}

// The parameter is arc length, so the first derivative is the unit direction.
Acad::ErrorStatus AcDbLine::getFirstDeriv(double param, AcGeVector3d& firstDeriv) const
{
    assertReadEnabled();
    if (!withinLength(param, m_start.distanceTo(m_end)))
        return Acad::eInvalidInput;
    firstDeriv = unitDirection(m_start, m_end);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getFirstDeriv(const AcGePoint3d& point, AcGeVector3d& firstDeriv) const
{
    double param = 0.0;
    const Acad::ErrorStatus es = getParamAtPoint(point, param);
    if (es != Acad::eOk)
        return es;
    return getFirstDeriv(param, firstDeriv);
}

Acad::ErrorStatus AcDbLine::getSecondDeriv(double param, AcGeVector3d& secDeriv) const
{
    assertReadEnabled();
    if (!withinLength(param, m_start.distanceTo(m_end)))
        return Acad::eInvalidInput;
    secDeriv = AcGeVector3d::kIdentity;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getSecondDeriv(const AcGePoint3d& point, AcGeVector3d& secDeriv) const
{
    double param = 0.0;
    const Acad::ErrorStatus es = getParamAtPoint(point, param);
    if (es != Acad::eOk)
        return es;
    return getSecondDeriv(param, secDeriv);
}

Acad::ErrorStatus AcDbLine::getClosestPointTo(const AcGePoint3d& givenPoint, AcGePoint3d& pointOnCurve,
                                              Adesk::Boolean extend) const
{
    assertReadEnabled();
    const AcGeVector3d u = unitDirection(m_start, m_end);
    double s = (givenPoint - m_start).dotProduct(u);
    if (!extend)
        s = clampTo(s, m_start.distanceTo(m_end));
    pointOnCurve = m_start + u * s;
    return Acad::eOk;
}

// The point of the line nearest to the given point as seen along the direction.
Acad::ErrorStatus AcDbLine::getClosestPointTo(const AcGePoint3d& givenPoint, const AcGeVector3d& direction,
                                              AcGePoint3d& pointOnCurve, Adesk::Boolean extend) const
{
    assertReadEnabled();
    const double dirLength = direction.length();
    if (dirLength == 0.0 || !std::isfinite(dirLength))
        return Acad::eInvalidInput;
    const AcGeVector3d view = direction / dirLength;
    const AcGeVector3d d = m_end - m_start;
    const AcGeVector3d w = m_start - givenPoint;
    const AcGeVector3d dPerp = d - view * d.dotProduct(view);
    const AcGeVector3d wPerp = w - view * w.dotProduct(view);
    const double dd = dPerp.dotProduct(dPerp);
    // Seen end-on the line is a point: its start stands for all of it.
    double s = dd <= 0.0 ? 0.0 : -wPerp.dotProduct(dPerp) / dd;
    if (!extend)
        s = std::min(std::max(s, 0.0), 1.0);
    pointOnCurve = m_start + d * s;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getOrthoProjectedCurve(const AcGePlane& plane, AcDbCurve*& projCurve) const
{
    return getProjectedCurve(plane, plane.normal(), projCurve);
}

Acad::ErrorStatus AcDbLine::getProjectedCurve(const AcGePlane& plane, const AcGeVector3d& projDir,
                                              AcDbCurve*& projCurve) const
{
    assertReadEnabled();
    projCurve = nullptr;
    const AcGeVector3d n = plane.normal();
    const double dn = projDir.dotProduct(n);
    if (std::fabs(dn) <= kOnCurveTolerance * projDir.length())
        return Acad::eInvalidInput;
    const AcGePoint3d origin = plane.pointOnPlane();
    auto project = [&](const AcGePoint3d& p) { return p - projDir * ((p - origin).dotProduct(n) / dn); };
    AcDbLine* line = newLineLike(this, project(m_start), project(m_end));
    line->setNormal(n);
    projCurve = line;
    return Acad::eOk;
}

// A positive distance offsets to the right of the direction of travel seen from the
// normal, as for polylines.
Acad::ErrorStatus AcDbLine::getOffsetCurves(double offsetDist, AcDbVoidPtrArray& offsetCurves) const
{
    assertReadEnabled();
    return getOffsetCurvesGivenPlaneNormal(m_normal, offsetDist, offsetCurves);
}

Acad::ErrorStatus AcDbLine::getOffsetCurvesGivenPlaneNormal(const AcGeVector3d& normal, double offsetDist,
                                                            AcDbVoidPtrArray& offsetCurves) const
{
    assertReadEnabled();
    if (!std::isfinite(offsetDist) || normal.length() == 0.0)
        return Acad::eInvalidInput;
    const AcGeVector3d side = (m_end - m_start).crossProduct(normal);
    const double sideLength = side.length();
    if (sideLength <= kOnCurveTolerance)
        return Acad::eInvalidInput;
    const AcGeVector3d shift = side / sideLength * offsetDist;
    offsetCurves.append(newLineLike(this, m_start + shift, m_end + shift));
    return Acad::eOk;
}

// Pieces run from split point to split point in ascending order; split points at the
// ends add nothing. A parameter outside the line refuses the whole split.
Acad::ErrorStatus AcDbLine::getSplitCurves(const AcGeDoubleArray& params, AcDbVoidPtrArray& curveSegments) const
{
    assertReadEnabled();
    if (params.length() == 0)
        return Acad::eInvalidInput;
    const double length = m_start.distanceTo(m_end);
    std::vector<double> cuts;
    for (int i = 0; i < params.length(); ++i) {
        if (!withinLength(params[i], length))
            return Acad::eInvalidInput;
        cuts.push_back(clampTo(params[i], length));
    }
    std::sort(cuts.begin(), cuts.end());
    const AcGeVector3d u = unitDirection(m_start, m_end);
    double from = 0.0;
    cuts.push_back(length);
    for (double to : cuts) {
        if (to - from <= kOnCurveTolerance)
            continue;
        curveSegments.append(newLineLike(this, m_start + u * from, m_start + u * to));
        from = to;
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getSplitCurves(const AcGePoint3dArray& points, AcDbVoidPtrArray& curveSegments) const
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

// Lengthens the line to the parameter: before the start moves the start, past the end
// the end. A parameter inside the line is refused.
Acad::ErrorStatus AcDbLine::extend(double newParam)
{
    assertWriteEnabled();
    const double length = m_start.distanceTo(m_end);
    if (length == 0.0 || !std::isfinite(newParam))
        return Acad::eInvalidInput;
    const AcGeVector3d u = unitDirection(m_start, m_end);
    if (newParam < 0.0)
        m_start = m_start + u * newParam;
    else if (newParam > length)
        m_end = m_start + u * newParam;
    else
        return Acad::eInvalidInput;
    recordGraphicsModified();
    return Acad::eOk;
}

// The point must lie on the line's extension beyond the chosen end.
Acad::ErrorStatus AcDbLine::extend(Adesk::Boolean extendStart, const AcGePoint3d& toPoint)
{
    assertWriteEnabled();
    const double length = m_start.distanceTo(m_end);
    if (length == 0.0)
        return Acad::eInvalidInput;
    const AcGeVector3d u = unitDirection(m_start, m_end);
    const double s = (toPoint - m_start).dotProduct(u);
    if (toPoint.distanceTo(m_start + u * s) > kOnCurveTolerance)
        return Acad::eInvalidInput;
    if (extendStart ? s > kOnCurveTolerance : s < length - kOnCurveTolerance)
        return Acad::eInvalidInput;
    (extendStart ? m_start : m_end) = toPoint;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getArea(double& area) const
{
    assertReadEnabled();
    area = 0.0;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::reverseCurve()
{
    assertWriteEnabled();
    std::swap(m_start, m_end);
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getAcGeCurve(AcGeCurve3d*& curve, const AcGeTol&) const
{
    assertReadEnabled();
    curve = new AcGeLineSeg3d(m_start, m_end);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::setFromAcGeCurve(const AcGeCurve3d& curve, AcGeVector3d* normal, const AcGeTol&)
{
    assertWriteEnabled();
    if (curve.type() != AcGe::kLineSeg3d || (normal != nullptr && !hostents::isUsableNormal(*normal)))
        return Acad::eInvalidInput;
    const auto& seg = static_cast<const AcGeLineSeg3d&>(curve);
    m_start = seg.startPoint();
    m_end = seg.endPoint();
    if (normal != nullptr)
        m_normal = *normal / normal->length();
    recordGraphicsModified();
    return Acad::eOk;
}
