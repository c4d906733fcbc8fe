// AcDbCircle: construction, properties, filing, drawing, listing and editing of a circle.
#include "AcDbCircle.h"

#include <cmath>

#include "AcGiWorldDraw.h"
#include "ArcGeometry.h"
#include "CurveShapes.h"
#include "EntityFiling.h"
#include "EntityListing.h"
#include "gi/PlaneMath.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbCircle, AcDbCurve, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, CIRCLE, HeadlessHost)

namespace {

constexpr Adesk::Int16 kCircleVersion = 1;

bool isUsableRadius(double radius)
{
    return std::isfinite(radius) && radius >= 0.0;
}

}  // namespace

AcDbCircle::AcDbCircle() = default;

AcDbCircle::AcDbCircle(const AcGePoint3d& center, const AcGeVector3d& normal, double radius)
    : m_center(center),
      m_radius(isUsableRadius(radius) ? radius : 0.0),
      m_normal(hostents::isUsableNormal(normal) ? normal / normal.length() : AcGeVector3d::kZAxis)
{
}

AcDbCircle::~AcDbCircle() = default;

AcGePoint3d AcDbCircle::center() const
{
    assertReadEnabled();
    return m_center;
}

Acad::ErrorStatus AcDbCircle::setCenter(const AcGePoint3d& center)
{
    assertWriteEnabled();
    if (!hostents::isFinite(center))
        return Acad::eInvalidInput;
    m_center = center;
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbCircle::radius() const
{
    assertReadEnabled();
    return m_radius;
}

Acad::ErrorStatus AcDbCircle::setRadius(double radius)
{
    assertWriteEnabled();
    if (!isUsableRadius(radius))
        return Acad::eInvalidInput;
    m_radius = radius;
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbCircle::thickness() const
{
    assertReadEnabled();
    return m_thickness;
}

Acad::ErrorStatus AcDbCircle::setThickness(double thickness)
{
    assertWriteEnabled();
    if (!std::isfinite(thickness))
        return Acad::eInvalidInput;
    m_thickness = thickness;
    recordGraphicsModified();
    return Acad::eOk;
}

AcGeVector3d AcDbCircle::normal() const
{
    assertReadEnabled();
    return m_normal;
}

Acad::ErrorStatus AcDbCircle::setNormal(const AcGeVector3d& normal)
{
    assertWriteEnabled();
    if (!hostents::isUsableNormal(normal))
        return Acad::eInvalidInput;
    m_normal = normal / normal.length();
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbCircle::circumference() const
{
    assertReadEnabled();
    return hostgi::kTwoPi * m_radius;
}

Acad::ErrorStatus AcDbCircle::setCircumference(double circumference)
{
    return setRadius(circumference / hostgi::kTwoPi);
}

double AcDbCircle::diameter() const
{
    assertReadEnabled();
    return 2.0 * m_radius;
}

Acad::ErrorStatus AcDbCircle::setDiameter(double diameter)
{
    return setRadius(diameter / 2.0);
}

// On file after the entity's fields: version, centre, radius, normal, thickness.
Acad::ErrorStatus AcDbCircle::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = AcDbCurve::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt16(kCircleVersion);
    filer->writePoint3d(m_center);
    filer->writeDouble(m_radius);
    filer->writeVector3d(m_normal);
    filer->writeDouble(m_thickness);
    return filer->filerStatus();
}

Acad::ErrorStatus AcDbCircle::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    Acad::ErrorStatus es = AcDbCurve::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int16 version = 0;
    es = hostents::readClassVersion(filer, kCircleVersion, version);
    if (es != Acad::eOk)
        return es;
    AcGePoint3d center;
    double radius = 0.0;
    AcGeVector3d normal;
    double thickness = 0.0;
    filer->readPoint3d(&center);
    filer->readDouble(&radius);
    filer->readVector3d(&normal);
    filer->readDouble(&thickness);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (!hostents::isFinite(center) || !isUsableRadius(radius) || !hostents::isUsableNormal(normal) ||
        !std::isfinite(thickness))
        return hostents::improperlyRead(filer);
    m_center = center;
    m_radius = radius;
    m_normal = hostents::unitAsFiled(normal);
    m_thickness = thickness;
    return Acad::eOk;
}

Adesk::Boolean AcDbCircle::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    if (worldDraw == nullptr || worldDraw->regenAbort())
        return Adesk::kTrue;
    if (m_thickness != 0.0)
        worldDraw->subEntityTraits().setThickness(m_thickness);
    worldDraw->geometry().circle(m_center, m_radius, m_normal);
    return Adesk::kTrue;
}

void AcDbCircle::subList() const
{
    assertReadEnabled();
    AcDbCurve::subList();
    hostents::listPoint(L"center point", m_center);
    hostents::listValue(L"radius", m_radius);
    hostents::listValue(L"circumference", hostgi::kTwoPi * m_radius);
    hostents::listValue(L"area", hostgi::kPi * m_radius * m_radius);
    if (m_thickness != 0.0)
        hostents::listValue(L"thickness", m_thickness);
    if (m_normal != AcGeVector3d::kZAxis)
        hostents::listVector(L"normal", m_normal);
}

Acad::ErrorStatus AcDbCircle::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&, AcDbIntArray&) const
{
    assertReadEnabled();
    const hostents::ArcGeometry geom(m_center, m_radius, m_normal, 0.0, hostgi::kTwoPi);
    gripPoints.append(m_center);
    for (int i = 0; i < 4; ++i)
        gripPoints.append(geom.pointAtAngle(i * hostgi::kPi / 2.0));
    return Acad::eOk;
}

// Grip 0 moves the circle; a quadrant grip sets the radius to the in-plane distance of the
// moved grip from the centre. A zero radius is refused and nothing changes.
Acad::ErrorStatus AcDbCircle::subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    assertWriteEnabled();
    if (!hostents::isFinite(offset))
        return Acad::eInvalidInput;
    int quadrant = -1;
    bool moveCenter = false;
    for (int i = 0; i < indices.length(); ++i) {
        if (indices[i] < 0 || indices[i] > 4)
            return Acad::eInvalidIndex;
        if (indices[i] == 0)
            moveCenter = true;
        else
            quadrant = indices[i];
    }
    if (moveCenter)
        return transformBy(AcGeMatrix3d::translation(offset));
    if (quadrant < 0 || offset.length() == 0.0)
        return Acad::eOk;
    const hostents::ArcGeometry geom(m_center, m_radius, m_normal, 0.0, hostgi::kTwoPi);
    const AcGeVector3d v = geom.pointAtAngle((quadrant - 1) * hostgi::kPi / 2.0) + offset - m_center;
    const double radius = (v - m_normal * v.dotProduct(m_normal)).length();
    if (radius <= hostents::kOnCurveTolerance)
        return Acad::eInvalidInput;
    m_radius = radius;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::subGetStretchPoints(AcGePoint3dArray& stretchPoints) const
{
    assertReadEnabled();
    stretchPoints.append(m_center);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    assertWriteEnabled();
    for (int i = 0; i < indices.length(); ++i) {
        if (indices[i] != 0)
            return Acad::eInvalidIndex;
    }
    if (indices.length() == 0)
        return Acad::eOk;
    return transformBy(AcGeMatrix3d::translation(offset));
}

Acad::ErrorStatus AcDbCircle::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    hostents::ArcGeometry geom(m_center, m_radius, m_normal, 0.0, hostgi::kTwoPi);
    double thickness = m_thickness;
    const Acad::ErrorStatus es = geom.transformBy(xform, &thickness);
    if (es != Acad::eOk)
        return es;
    m_center = geom.center;
    m_radius = geom.radius;
    m_normal = geom.normal;
    m_thickness = thickness;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    const hostents::ArcGeometry geom(m_center, m_radius, m_normal, 0.0, hostgi::kTwoPi);
    AcDbExtents ext = geom.extents();
    if (m_thickness != 0.0) {
        AcDbExtents top = ext;
        top.transformBy(AcGeMatrix3d::translation(m_normal * m_thickness));
        ext.addExt(top);
    }
    extents = ext;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker,
                                                const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                const AcGeMatrix3d&, AcGePoint3dArray& snapPoints,
                                                AcDbIntArray&) const
{
    assertReadEnabled();
    const hostents::ArcGeometry geom(m_center, m_radius, m_normal, 0.0, hostgi::kTwoPi);
    geom.osnapPoints(osnapMode, pickPoint, lastPoint, snapPoints);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                                const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                                AcDbIntArray& geomIds, const AcGeMatrix3d&) const
{
    return subGetOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints, geomIds);
}

Acad::ErrorStatus AcDbCircle::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                               AcGePoint3dArray& points, Adesk::GsMarker, Adesk::GsMarker) const
{
    assertReadEnabled();
    return hostents::intersectEntities(this, pEnt, intType, nullptr, points);
}

Acad::ErrorStatus AcDbCircle::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                               const AcGePlane& projPlane, AcGePoint3dArray& points,
                                               Adesk::GsMarker, Adesk::GsMarker) const
{
    assertReadEnabled();
    return hostents::intersectEntities(this, pEnt, intType, &projPlane, points);
}
