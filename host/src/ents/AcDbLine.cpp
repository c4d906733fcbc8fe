// AcDbLine: construction, properties, filing, drawing, listing and editing of a line.
#include "AcDbLine.h"

#include <cmath>

#include "AcGiWorldDraw.h"
#include "CurveShapes.h"
#include "EntityFiling.h"
#include "EntityListing.h"
#include "gi/PlaneMath.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbLine, AcDbCurve, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, LINE, HeadlessHost)

namespace {

constexpr Adesk::Int16 kLineVersion = 1;

}  // namespace

AcDbLine::AcDbLine() = default;

AcDbLine::AcDbLine(const AcGePoint3d& start, const AcGePoint3d& end) : m_start(start), m_end(end)
{
}

AcDbLine::~AcDbLine() = default;

AcGePoint3d AcDbLine::startPoint() const
{
    assertReadEnabled();
    return m_start;
}

Acad::ErrorStatus AcDbLine::setStartPoint(const AcGePoint3d& point)
{
    assertWriteEnabled();
    if (!hostents::isFinite(point))
        return Acad::eInvalidInput;
    m_start = point;
    recordGraphicsModified();
    return Acad::eOk;
}

AcGePoint3d AcDbLine::endPoint() const
{
    assertReadEnabled();
    return m_end;
}

Acad::ErrorStatus AcDbLine::setEndPoint(const AcGePoint3d& point)
{
    assertWriteEnabled();
    if (!hostents::isFinite(point))
        return Acad::eInvalidInput;
    m_end = point;
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbLine::thickness() const
{
    assertReadEnabled();
    return m_thickness;
}

Acad::ErrorStatus AcDbLine::setThickness(double thickness)
{
    assertWriteEnabled();
    if (!std::isfinite(thickness))
        return Acad::eInvalidInput;
    m_thickness = thickness;
    recordGraphicsModified();
    return Acad::eOk;
}

AcGeVector3d AcDbLine::normal() const
{
    assertReadEnabled();
    return m_normal;
}

Acad::ErrorStatus AcDbLine::setNormal(const AcGeVector3d& normal)
{
    assertWriteEnabled();
    if (!hostents::isUsableNormal(normal))
        return Acad::eInvalidInput;
    m_normal = normal / normal.length();
    recordGraphicsModified();
    return Acad::eOk;
}

// On file after the entity's fields: version, start, end, normal, thickness.
Acad::ErrorStatus AcDbLine::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = AcDbCurve::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt16(kLineVersion);
    filer->writePoint3d(m_start);
    filer->writePoint3d(m_end);
    filer->writeVector3d(m_normal);
    filer->writeDouble(m_thickness);
    return filer->filerStatus();
}

Acad::ErrorStatus AcDbLine::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    Acad::ErrorStatus es = AcDbCurve::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int16 version = 0;
    es = hostents::readClassVersion(filer, kLineVersion, version);
    if (es != Acad::eOk)
        return es;
    AcGePoint3d start;
    AcGePoint3d end;
    AcGeVector3d normal;
    double thickness = 0.0;
    filer->readPoint3d(&start);
    filer->readPoint3d(&end);
    filer->readVector3d(&normal);
    filer->readDouble(&thickness);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (!hostents::isFinite(start) || !hostents::isFinite(end) || !hostents::isUsableNormal(normal) ||
        !std::isfinite(thickness))
        return hostents::improperlyRead(filer);
    m_start = start;
    m_end = end;
    m_normal = hostents::unitAsFiled(normal);
    m_thickness = thickness;
    return Acad::eOk;
}

// One polyline; a thickness is passed on as the trait, extruding along the normal.
Adesk::Boolean AcDbLine::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    if (worldDraw == nullptr || worldDraw->regenAbort())
        return Adesk::kTrue;
    if (m_thickness != 0.0)
        worldDraw->subEntityTraits().setThickness(m_thickness);
    const AcGePoint3d points[2] = {m_start, m_end};
    worldDraw->geometry().polyline(2, points, &m_normal);
    return Adesk::kTrue;
}

void AcDbLine::subList() const
{
    assertReadEnabled();
    AcDbCurve::subList();
    const AcGeVector3d delta = m_end - m_start;
    hostents::listPoint(L"from point", m_start);
    hostents::listPoint(L"to point", m_end);
    hostents::listValue(L"length", delta.length());
    const double angle = (delta.x == 0.0 && delta.y == 0.0) ? 0.0 : hostgi::normalizeAngle(std::atan2(delta.y, delta.x));
    hostents::listAngle(L"angle in XY plane", angle);
    hostents::listVector(L"delta", delta);
    if (m_thickness != 0.0)
        hostents::listValue(L"thickness", m_thickness);
    if (m_normal != AcGeVector3d::kZAxis)
        hostents::listVector(L"normal", m_normal);
}

Acad::ErrorStatus AcDbLine::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&, AcDbIntArray&) const
{
    assertReadEnabled();
    gripPoints.append(m_start);
    gripPoints.append(m_start + (m_end - m_start) * 0.5);
    gripPoints.append(m_end);
    return Acad::eOk;
}

// Grip 0 moves the start, 2 the end, 1 the whole line. An unknown index changes nothing.
Acad::ErrorStatus AcDbLine::subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    assertWriteEnabled();
    bool moveStart = false;
    bool moveEnd = false;
    for (int i = 0; i < indices.length(); ++i) {
        switch (indices[i]) {
        case 0: moveStart = true; break;
        case 1: moveStart = moveEnd = true; break;
        case 2: moveEnd = true; break;
        default: return Acad::eInvalidIndex;
        }
    }
    if (!hostents::isFinite(offset))
        return Acad::eInvalidInput;
    if (moveStart)
        m_start += offset;
    if (moveEnd)
        m_end += offset;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::subGetStretchPoints(AcGePoint3dArray& stretchPoints) const
{
    assertReadEnabled();
    stretchPoints.append(m_start);
    stretchPoints.append(m_end);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    assertWriteEnabled();
    AcDbIntArray gripIndices;
    for (int i = 0; i < indices.length(); ++i) {
        if (indices[i] != 0 && indices[i] != 1)
            return Acad::eInvalidIndex;
        gripIndices.append(indices[i] == 0 ? 0 : 2);
    }
    return subMoveGripPointsAt(gripIndices, offset);
}

// Any affine transform keeps a line a line; the thickness follows the scale along the normal.
Acad::ErrorStatus AcDbLine::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    AcGeVector3d extrusion = m_normal;
    extrusion.transformBy(xform);
    m_start.transformBy(xform);
    m_end.transformBy(xform);
    const double scale = extrusion.length();
    if (scale > 0.0 && !hostgi::isTranslationOnly(xform)) {
        m_normal = extrusion / scale;
        m_thickness *= scale;
    }
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    AcDbExtents ext;
    ext.addPoint(m_start);
    ext.addPoint(m_end);
    if (m_thickness != 0.0) {
        ext.addPoint(m_start + m_normal * m_thickness);
        ext.addPoint(m_end + m_normal * m_thickness);
    }
    extents = ext;
    return Acad::eOk;
}

// Snap points lie on the segment: the perpendicular foot only when it falls between the ends.
Acad::ErrorStatus AcDbLine::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker,
                                              const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                              const AcGeMatrix3d&, AcGePoint3dArray& snapPoints,
                                              AcDbIntArray&) const
{
    assertReadEnabled();
    const AcGeVector3d d = m_end - m_start;
    const double dd = d.dotProduct(d);
    switch (osnapMode) {
    case AcDb::kOsModeEnd:
        snapPoints.append(m_start);
        snapPoints.append(m_end);
        break;
    case AcDb::kOsModeMid:
        snapPoints.append(m_start + d * 0.5);
        break;
    case AcDb::kOsModeNear: {
        AcGePoint3d near;
        getClosestPointTo(pickPoint, near, Adesk::kFalse);
        snapPoints.append(near);
        break;
    }
    case AcDb::kOsModePerp:
        if (dd > 0.0) {
            const double s = (lastPoint - m_start).dotProduct(d) / dd;
            if (s >= 0.0 && s <= 1.0)
                snapPoints.append(m_start + d * s);
        }
        break;
    default:
        break;
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                              const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                              const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                              AcDbIntArray& geomIds, const AcGeMatrix3d&) const
{
    return subGetOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints, geomIds);
}

Acad::ErrorStatus AcDbLine::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                             AcGePoint3dArray& points, Adesk::GsMarker, Adesk::GsMarker) const
{
    assertReadEnabled();
    return hostents::intersectEntities(this, pEnt, intType, nullptr, points);
}

Acad::ErrorStatus AcDbLine::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                             const AcGePlane& projPlane, AcGePoint3dArray& points, Adesk::GsMarker,
                                             Adesk::GsMarker) const
{
    assertReadEnabled();
    return hostents::intersectEntities(this, pEnt, intType, &projPlane, points);
}
