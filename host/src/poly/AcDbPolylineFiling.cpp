// AcDbPolyline: filing, drawing and the list output.
#include <cmath>
#include <vector>

#include "AcDbPolyline.h"
#include "AcGiWorldDraw.h"
#include "PolylineView.h"
#include "ents/EntityFiling.h"
#include "ents/EntityListing.h"
#include "ge/GeMath.h"

namespace {

// The polyline's own fields on file: version 1.
constexpr Adesk::Int16 kPolylineVersion = 1;

bool isFiledWidth(double width)
{
    return std::isfinite(width) && (width >= 0.0 || width == -1.0);
}

}  // namespace

// On file after the curve's fields: version, vertex count, closed, linetype generation,
// constant width, elevation, thickness, normal, then per vertex its point, bulge, start
// width, end width and identifier.
Acad::ErrorStatus AcDbPolyline::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = AcDbCurve::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt16(kPolylineVersion);
    filer->writeUInt32(static_cast<Adesk::UInt32>(m_vertices.size()));
    filer->writeBool(m_closed);
    filer->writeBool(m_plinegen);
    filer->writeDouble(m_constantWidth);
    filer->writeDouble(m_elevation);
    filer->writeDouble(m_thickness);
    filer->writeVector3d(m_normal);
    for (const Vertex& vertex : m_vertices) {
        filer->writePoint2d(vertex.point);
        filer->writeDouble(vertex.bulge);
        filer->writeDouble(vertex.startWidth);
        filer->writeDouble(vertex.endWidth);
        filer->writeInt32(vertex.identifier);
    }
    return filer->filerStatus();
}

// Vertices are read one by one as the data holds them: a count that promises more than
// the filer has ends the read at the filer's error, never in one large allocation.
Acad::ErrorStatus AcDbPolyline::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    Acad::ErrorStatus es = AcDbCurve::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int16 version = 0;
    es = hostents::readClassVersion(filer, kPolylineVersion, version);
    if (es != Acad::eOk)
        return es;
    Adesk::UInt32 count = 0;
    bool closed = false;
    bool plinegen = false;
    double constantWidth = 0.0;
    double elevation = 0.0;
    double thickness = 0.0;
    AcGeVector3d normal;
    filer->readUInt32(&count);
    filer->readBool(&closed);
    filer->readBool(&plinegen);
    filer->readDouble(&constantWidth);
    filer->readDouble(&elevation);
    filer->readDouble(&thickness);
    filer->readVector3d(&normal);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (!std::isfinite(constantWidth) || constantWidth < 0.0 || !std::isfinite(elevation) ||
        !std::isfinite(thickness) || !hostents::isUsableNormal(normal))
        return hostents::improperlyRead(filer);
    std::vector<Vertex> vertices;
    for (Adesk::UInt32 i = 0; i < count; ++i) {
        Vertex vertex;
        filer->readPoint2d(&vertex.point);
        filer->readDouble(&vertex.bulge);
        filer->readDouble(&vertex.startWidth);
        filer->readDouble(&vertex.endWidth);
        filer->readInt32(&vertex.identifier);
        if (filer->filerStatus() != Acad::eOk)
            return filer->filerStatus();
        if (!std::isfinite(vertex.point.x) || !std::isfinite(vertex.point.y) || !std::isfinite(vertex.bulge) ||
            !isFiledWidth(vertex.startWidth) || !isFiledWidth(vertex.endWidth))
            return hostents::improperlyRead(filer);
        vertices.push_back(vertex);
    }
    m_vertices.swap(vertices);
    m_closed = closed;
    m_plinegen = plinegen;
    m_constantWidth = constantWidth;
    m_elevation = elevation;
    m_thickness = thickness;
    m_normal = hostents::unitAsFiled(normal);
    return Acad::eOk;
}

Adesk::Boolean AcDbPolyline::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    if (worldDraw == nullptr || worldDraw->regenAbort())
        return Adesk::kTrue;
    if (m_thickness != 0.0)
        worldDraw->subEntityTraits().setThickness(m_thickness);
    worldDraw->geometry().pline(*this, 0, 0);
    return Adesk::kTrue;
}

void AcDbPolyline::subList() const
{
    assertReadEnabled();
    AcDbCurve::subList();
    const hostpoly::PolylineView view(*this);
    hostents::listNote(AcString(m_closed ? L"Closed" : L"Open"));
    double constantWidth = 0.0;
    const bool constant = getConstantWidth(constantWidth) == Acad::eOk;
    if (constant)
        hostents::listValue(L"Constant width", constantWidth);
    if (m_elevation != 0.0)
        hostents::listValue(L"elevation", m_elevation);
    if (m_thickness != 0.0)
        hostents::listValue(L"thickness", m_thickness);
    if (m_normal != AcGeVector3d::kZAxis)
        hostents::listVector(L"normal", m_normal);
    hostents::listValue(L"area", std::fabs(view.signedArea()));
    hostents::listValue(m_closed ? L"perimeter" : L"length", view.totalLength());
    for (int i = 0; i < view.numVerts(); ++i) {
        hostents::listPoint(L"at point", view.worldPoint(i));
        if (i < view.numSegments() && view.segment(i).isArc()) {
            const hostpoly::BulgeSegment seg = view.segment(i);
            const AcGePoint2d c = seg.center();
            hostents::listValue(L"bulge", seg.bulge());
            hostents::listPoint(L"center", view.frame().toWorld(c));
            hostents::listValue(L"radius", seg.radius());
            hostents::listAngle(L"start angle",
                                hostge::angleInFullTurn(std::atan2(seg.start().y - c.y, seg.start().x - c.x)));
            hostents::listAngle(L"end angle", hostge::angleInFullTurn(std::atan2(seg.end().y - c.y, seg.end().x - c.x)));
        }
        if (!constant) {
            hostents::listValue(L"starting width", view.startWidth(i));
            hostents::listValue(L"ending width", view.endWidth(i));
        }
    }
}
