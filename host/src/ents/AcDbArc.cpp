// AcDbArc: construction, properties, filing, drawing, listing and editing of an arc.
#include "AcDbArc.h"

#include <cmath>

#include "AcGiWorldDraw.h"
#include "ArcGeometry.h"
#include "CurveShapes.h"
#include "EntityFiling.h"
#include "EntityListing.h"
#include "gi/PlaneMath.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbArc, AcDbCurve, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, ARC, HeadlessHost)

namespace {

constexpr Adesk::Int16 kArcVersion = 1;

bool isUsableRadius(double radius)
{
    return std::isfinite(radius) && radius >= 0.0;
}

double sweepOf(double start, double end)
{
    const double sweep = hostgi::normalizeAngle(end - start);
    return sweep == 0.0 ? hostgi::kTwoPi : sweep;
}

}  // namespace

AcDbArc::AcDbArc() = default;

AcDbArc::AcDbArc(const AcGePoint3d& center, double radius, double startAngle, double endAngle)
    : AcDbArc(center, AcGeVector3d::kZAxis, radius, startAngle, endAngle)
{
}

AcDbArc::AcDbArc(const AcGePoint3d& center, const AcGeVector3d& normal, double radius, double startAngle,
                 double endAngle)
    : m_center(center),
      m_radius(isUsableRadius(radius) ? radius : 0.0),
      m_startAngle(hostgi::normalizeAngle(startAngle)),
      m_endAngle(hostgi::normalizeAngle(endAngle)),
      m_normal(hostents::isUsableNormal(normal) ? normal / normal.length() : AcGeVector3d::kZAxis)
{
}

AcDbArc::~AcDbArc() = default;

AcGePoint3d AcDbArc::center() const
{
    assertReadEnabled();
    return m_center;
}

Acad::ErrorStatus AcDbArc::setCenter(const AcGePoint3d& center)
{
    assertWriteEnabled();
    if (!hostents::isFinite(center))
        return Acad::eInvalidInput;
    m_center = center;
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbArc::radius() const
{
    assertReadEnabled();
    return m_radius;
}

Acad::ErrorStatus AcDbArc::setRadius(double radius)
{
    assertWriteEnabled();
    if (!isUsableRadius(radius))
        return Acad::eInvalidInput;
    m_radius = radius;
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbArc::startAngle() const
{
    assertReadEnabled();
    return m_startAngle;
}

Acad::ErrorStatus AcDbArc::setStartAngle(double angle)
{
    assertWriteEnabled();
    if (!std::isfinite(angle))
        return Acad::eInvalidInput;
    m_startAngle = hostgi::normalizeAngle(angle);
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbArc::endAngle() const
{
    assertReadEnabled();
    return m_endAngle;
}

Acad::ErrorStatus AcDbArc::setEndAngle(double angle)
{
    assertWriteEnabled();
    if (!std::isfinite(angle))
        return Acad::eInvalidInput;
    m_endAngle = hostgi::normalizeAngle(angle);
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbArc::totalAngle() const
{
    assertReadEnabled();
    return sweepOf(m_startAngle, m_endAngle);
}

double AcDbArc::length() const
{
    assertReadEnabled();
    return m_radius * sweepOf(m_startAngle, m_endAngle);
}

double AcDbArc::thickness() const
{
    assertReadEnabled();
    return m_thickness;
}

Acad::ErrorStatus AcDbArc::setThickness(double thickness)
{
    assertWriteEnabled();
    if (!std::isfinite(thickness))
        return Acad::eInvalidInput;
    m_thickness = thickness;
    recordGraphicsModified();
    return Acad::eOk;
}

AcGeVector3d AcDbArc::normal() const
{
    assertReadEnabled();
    return m_normal;
}

Acad::ErrorStatus AcDbArc::setNormal(const AcGeVector3d& normal)
{
    assertWriteEnabled();
    if (!hostents::isUsableNormal(normal))
        return Acad::eInvalidInput;
    m_normal = normal / normal.length();
    recordGraphicsModified();
    return Acad::eOk;
}

// On file after the entity's fields: version, centre, radius, start angle, end angle,
// normal, thickness.
Acad::ErrorStatus AcDbArc::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = AcDbCurve::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt16(kArcVersion);
    filer->writePoint3d(m_center);
    filer->writeDouble(m_radius);
    filer->writeDouble(m_startAngle);
    filer->writeDouble(m_endAngle);
    filer->writeVector3d(m_normal);
    filer->writeDouble(m_thickness);
    return filer->filerStatus();
}

Acad::ErrorStatus AcDbArc::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    Acad::ErrorStatus es = AcDbCurve::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int16 version = 0;
    es = hostents::readClassVersion(filer, kArcVersion, version);
    if (es != Acad::eOk)
        return es;
    AcGePoint3d center;
    double radius = 0.0;
    double startAngle = 0.0;
    double endAngle = 0.0;
    AcGeVector3d normal;
    double thickness = 0.0;
    filer->readPoint3d(&center);
    filer->readDouble(&radius);
    filer->readDouble(&startAngle);
    filer->readDouble(&endAngle);
    filer->readVector3d(&normal);
    filer->readDouble(&thickness);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (!hostents::isFinite(center) || !isUsableRadius(radius) || !std::isfinite(startAngle) ||
        !std::isfinite(endAngle) || !hostents::isUsableNormal(normal) || !std::isfinite(thickness))
        return hostents::improperlyRead(filer);
    m_center = center;
    m_radius = radius;
    m_startAngle = hostgi::normalizeAngle(startAngle);
    m_endAngle = hostgi::normalizeAngle(endAngle);
    m_normal = hostents::unitAsFiled(normal);
    m_thickness = thickness;
    return Acad::eOk;
}

Adesk::Boolean AcDbArc::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    if (worldDraw == nullptr || worldDraw->regenAbort())
        return Adesk::kTrue;
    if (m_thickness != 0.0)
        worldDraw->subEntityTraits().setThickness(m_thickness);
    const hostents::ArcGeometry geom = hostents::ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle);
    const AcGeVector3d startVector = geom.pointAtAngle(m_startAngle) - m_center;
    worldDraw->geometry().circularArc(m_center, m_radius, m_normal,
                                      m_radius > 0.0 ? startVector : hostgi::ocsXAxis(m_normal), geom.sweep);
    return Adesk::kTrue;
}

void AcDbArc::subList() const
{
    assertReadEnabled();
    AcDbCurve::subList();
    const hostents::ArcGeometry geom = hostents::ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle);
    hostents::listPoint(L"center point", m_center);
    hostents::listValue(L"radius", m_radius);
    hostents::listAngle(L"start angle", m_startAngle);
    hostents::listAngle(L"end angle", m_endAngle);
    hostents::listAngle(L"total angle", geom.sweep);
    hostents::listValue(L"length", geom.length());
    hostents::listValue(L"area", geom.area());
    if (m_thickness != 0.0)
        hostents::listValue(L"thickness", m_thickness);
    if (m_normal != AcGeVector3d::kZAxis)
        hostents::listVector(L"normal", m_normal);
}

Acad::ErrorStatus AcDbArc::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&, AcDbIntArray&) const
{
    assertReadEnabled();
    const hostents::ArcGeometry geom = hostents::ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle);
    gripPoints.append(geom.pointAtAngle(m_startAngle));
    gripPoints.append(geom.pointAtAngle(m_startAngle + geom.sweep / 2.0));
    gripPoints.append(geom.pointAtAngle(geom.endAngle()));
    gripPoints.append(m_center);
    return Acad::eOk;
}

// Grip 3 (the centre) moves the arc. Grips 0, 1 and 2 reshape it through the start, middle
// and end points as moved; the arc keeps its normal's side, and three points in a line
// are refused with eInvalidInput, changing nothing.
Acad::ErrorStatus AcDbArc::subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    assertWriteEnabled();
    if (!hostents::isFinite(offset))
        return Acad::eInvalidInput;
    bool moved[4] = {false, false, false, false};
    for (int i = 0; i < indices.length(); ++i) {
        if (indices[i] < 0 || indices[i] > 3)
            return Acad::eInvalidIndex;
        moved[indices[i]] = true;
    }
    if (moved[3] || (moved[0] && moved[1] && moved[2]))
        return transformBy(AcGeMatrix3d::translation(offset));
    if (!(moved[0] || moved[1] || moved[2]) || offset.length() == 0.0)
        return Acad::eOk;

    const hostents::ArcGeometry geom = hostents::ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle);
    AcGePoint3d points[3] = {geom.pointAtAngle(m_startAngle), geom.pointAtAngle(m_startAngle + geom.sweep / 2.0),
                             geom.pointAtAngle(geom.endAngle())};
    for (int i = 0; i < 3; ++i) {
        if (moved[i])
            points[i] += offset;
    }
    AcGePoint3d center;
    double radius = 0.0;
    AcGeVector3d normal;
    if (!hostgi::circleThrough(points[0], points[1], points[2], center, radius, normal))
        return Acad::eInvalidInput;
    AcGePoint3d from = points[0];
    AcGePoint3d to = points[2];
    if (normal.dotProduct(m_normal) < 0.0) {
        normal = -normal;
        std::swap(from, to);
    }
    const hostents::ArcGeometry reshaped(center, radius, normal, 0.0, hostgi::kTwoPi);
    m_center = center;
    m_radius = radius;
    m_normal = normal;
    m_startAngle = reshaped.angleOf(from);
    m_endAngle = reshaped.angleOf(to);
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::subGetStretchPoints(AcGePoint3dArray& stretchPoints) const
{
    assertReadEnabled();
    AcGePoint3dArray grips;
    AcDbIntArray modes;
    AcDbIntArray ids;
    subGetGripPoints(grips, modes, ids);
    for (int i = 0; i < 3; ++i)
        stretchPoints.append(grips[i]);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    assertWriteEnabled();
    for (int i = 0; i < indices.length(); ++i) {
        if (indices[i] < 0 || indices[i] > 2)
            return Acad::eInvalidIndex;
    }
    return subMoveGripPointsAt(indices, offset);
}

Acad::ErrorStatus AcDbArc::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    hostents::ArcGeometry geom = hostents::ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle);
    double thickness = m_thickness;
    const Acad::ErrorStatus es = geom.transformBy(xform, &thickness);
    if (es != Acad::eOk)
        return es;
    m_center = geom.center;
    m_radius = geom.radius;
    m_normal = geom.normal;
    m_startAngle = geom.startAngle;
    m_endAngle = hostgi::normalizeAngle(geom.endAngle());
    m_thickness = thickness;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    AcDbExtents ext = hostents::ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle).extents();
    if (m_thickness != 0.0) {
        AcDbExtents top = ext;
        top.transformBy(AcGeMatrix3d::translation(m_normal * m_thickness));
        ext.addExt(top);
    }
    extents = ext;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker,
                                             const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                             const AcGeMatrix3d&, AcGePoint3dArray& snapPoints, AcDbIntArray&) const
{
    assertReadEnabled();
    hostents::ArcGeometry::fromAngles(m_center, m_radius, m_normal, m_startAngle, m_endAngle)
        .osnapPoints(osnapMode, pickPoint, lastPoint, snapPoints);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                             const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                             const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                             AcDbIntArray& geomIds, const AcGeMatrix3d&) const
{
    return subGetOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints, geomIds);
}

Acad::ErrorStatus AcDbArc::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                            AcGePoint3dArray& points, Adesk::GsMarker, Adesk::GsMarker) const
{
    assertReadEnabled();
    return hostents::intersectEntities(this, pEnt, intType, nullptr, points);
}

Acad::ErrorStatus AcDbArc::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                            const AcGePlane& projPlane, AcGePoint3dArray& points, Adesk::GsMarker,
                                            Adesk::GsMarker) const
{
    assertReadEnabled();
    return hostents::intersectEntities(this, pEnt, intType, &projPlane, points);
}
