// AcDbPolyline: construction, the vertex list and the polyline's own properties.
#include "AcDbPolyline.h"

#include <algorithm>
#include <cmath>

#include "PolylineView.h"
#include "gearc2d.h"
#include "gearc3d.h"
#include "gelnsg2d.h"
#include "gelnsg3d.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbPolyline, AcDbCurve, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, LWPOLYLINE,
                        HeadlessHost)

namespace {

// Room kept ahead for a vertex count the caller announces; more grows as vertices come,
// so that an absurd count cannot claim memory by itself.
constexpr unsigned int kMaxReservedVertices = 1u << 16;

bool isFinite(const AcGePoint2d& p)
{
    return std::isfinite(p.x) && std::isfinite(p.y);
}

// A width as stored: negative means "not set" and is kept as -1.
bool storedWidth(double width, double& stored)
{
    if (std::isnan(width) || std::isinf(width))
        return false;
    stored = width < 0.0 ? -1.0 : width;
    return true;
}

}  // namespace

AcDbPolyline::AcDbPolyline() = default;

AcDbPolyline::AcDbPolyline(unsigned int num_verts)
{
    m_vertices.reserve(std::min(num_verts, kMaxReservedVertices));
}

AcDbPolyline::~AcDbPolyline() = default;

Acad::ErrorStatus AcDbPolyline::addVertexAt(unsigned int index, const AcGePoint2d& pt, double bulge,
                                            double startWidth, double endWidth, Adesk::Int32 vertexIdentifier)
{
    assertWriteEnabled();
    if (index > m_vertices.size())
        return Acad::eInvalidIndex;
    Vertex vertex;
    if (!isFinite(pt) || !std::isfinite(bulge) || !storedWidth(startWidth, vertex.startWidth) ||
        !storedWidth(endWidth, vertex.endWidth))
        return Acad::eInvalidInput;
    vertex.point = pt;
    vertex.bulge = bulge;
    vertex.identifier = vertexIdentifier;
    m_vertices.insert(m_vertices.begin() + index, vertex);
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::removeVertexAt(unsigned int index)
{
    assertWriteEnabled();
    if (!isValidIndex(index))
        return Acad::eInvalidIndex;
    m_vertices.erase(m_vertices.begin() + index);
    recordGraphicsModified();
    return Acad::eOk;
}

unsigned int AcDbPolyline::numVerts() const
{
    assertReadEnabled();
    return static_cast<unsigned int>(m_vertices.size());
}

Acad::ErrorStatus AcDbPolyline::getPointAt(unsigned int index, AcGePoint2d& pt) const
{
    assertReadEnabled();
    if (!isValidIndex(index))
        return Acad::eInvalidIndex;
    pt = m_vertices[index].point;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getPointAt(unsigned int index, AcGePoint3d& pt) const
{
    assertReadEnabled();
    if (!isValidIndex(index))
        return Acad::eInvalidIndex;
    pt = hostpoly::PolylineView(*this).worldPoint(static_cast<int>(index));
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setPointAt(unsigned int index, const AcGePoint2d& pt)
{
    assertWriteEnabled();
    if (!isValidIndex(index))
        return Acad::eInvalidIndex;
    if (!isFinite(pt))
        return Acad::eInvalidInput;
    m_vertices[index].point = pt;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getBulgeAt(unsigned int index, double& bulge) const
{
    assertReadEnabled();
    if (!isValidIndex(index))
        return Acad::eInvalidIndex;
    bulge = m_vertices[index].bulge;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setBulgeAt(unsigned int index, double bulge)
{
    assertWriteEnabled();
    if (!isValidIndex(index))
        return Acad::eInvalidIndex;
    if (!std::isfinite(bulge))
        return Acad::eInvalidInput;
    m_vertices[index].bulge = bulge;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getWidthsAt(unsigned int index, double& startWidth, double& endWidth) const
{
    assertReadEnabled();
    if (!isValidIndex(index))
        return Acad::eInvalidIndex;
    const hostpoly::PolylineView view(*this);
    startWidth = view.startWidth(static_cast<int>(index));
    endWidth = view.endWidth(static_cast<int>(index));
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setWidthsAt(unsigned int index, double startWidth, double endWidth)
{
    assertWriteEnabled();
    if (!isValidIndex(index))
        return Acad::eInvalidIndex;
    double start = 0.0;
    double end = 0.0;
    if (!storedWidth(startWidth, start) || !storedWidth(endWidth, end))
        return Acad::eInvalidInput;
    m_vertices[index].startWidth = start;
    m_vertices[index].endWidth = end;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getVertexIdentifierAt(unsigned int index, Adesk::Int32& vertexIdentifier) const
{
    assertReadEnabled();
    if (!isValidIndex(index))
        return Acad::eInvalidIndex;
    vertexIdentifier = m_vertices[index].identifier;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setVertexIdentifierAt(unsigned int index, Adesk::Int32 suggestedValue)
{
    assertWriteEnabled();
    if (!isValidIndex(index))
        return Acad::eInvalidIndex;
    m_vertices[index].identifier = suggestedValue;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getConstantWidth(double& width) const
{
    assertReadEnabled();
    const hostpoly::PolylineView view(*this);
    double common = m_constantWidth;
    for (int i = 0; i < view.numVerts(); ++i) {
        if (i == 0)
            common = view.startWidth(0);
        if (view.startWidth(i) != common || view.endWidth(i) != common)
            return Acad::eNotApplicable;
    }
    width = common;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setConstantWidth(double width)
{
    assertWriteEnabled();
    if (!std::isfinite(width) || width < 0.0)
        return Acad::eInvalidInput;
    m_constantWidth = width;
    for (Vertex& vertex : m_vertices) {
        vertex.startWidth = -1.0;
        vertex.endWidth = -1.0;
    }
    recordGraphicsModified();
    return Acad::eOk;
}

Adesk::Boolean AcDbPolyline::isOnlyLines() const
{
    return !hasBulges();
}

// A bulge counts wherever it is stored, also on an open polyline's last vertex.
Adesk::Boolean AcDbPolyline::hasBulges() const
{
    assertReadEnabled();
    return std::any_of(m_vertices.begin(), m_vertices.end(),
                       [](const Vertex& v) { return std::fabs(v.bulge) > hostpoly::kStraightBulge; });
}

Adesk::Boolean AcDbPolyline::hasVertexIdentifiers() const
{
    assertReadEnabled();
    return std::any_of(m_vertices.begin(), m_vertices.end(), [](const Vertex& v) { return v.identifier != 0; });
}

Adesk::Boolean AcDbPolyline::hasWidth() const
{
    assertReadEnabled();
    const hostpoly::PolylineView view(*this);
    for (int i = 0; i < view.numVerts(); ++i) {
        if (view.startWidth(i) != 0.0 || view.endWidth(i) != 0.0)
            return true;
    }
    return false;
}

AcDbPolyline::SegType AcDbPolyline::segType(unsigned int index) const
{
    assertReadEnabled();
    const hostpoly::PolylineView view(*this);
    if (view.numVerts() == 0 || !isValidIndex(index))
        return kEmpty;
    if (static_cast<int>(index) >= view.numSegments())
        return kPoint;
    const hostpoly::BulgeSegment seg = view.segment(static_cast<int>(index));
    if (seg.isDegenerate())
        return kCoincident;
    return seg.isArc() ? kArc : kLine;
}

Acad::ErrorStatus AcDbPolyline::getLineSegAt(unsigned int index, AcGeLineSeg2d& ln) const
{
    switch (segType(index)) {
    case kLine:
        break;
    case kArc:
        return Acad::eNotApplicable;
    case kCoincident:
        return Acad::eDegenerateGeometry;
    default:
        return Acad::eInvalidIndex;
    }
    const hostpoly::BulgeSegment seg = hostpoly::PolylineView(*this).segment(static_cast<int>(index));
    ln.set(seg.start(), seg.end());
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getLineSegAt(unsigned int index, AcGeLineSeg3d& ln) const
{
    AcGeLineSeg2d flat;
    const Acad::ErrorStatus es = getLineSegAt(index, flat);
    if (es != Acad::eOk)
        return es;
    const hostpoly::PolylineView view(*this);
    ln.set(view.frame().toWorld(flat.startPoint()), view.frame().toWorld(flat.endPoint()));
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getArcSegAt(unsigned int index, AcGeCircArc2d& arc) const
{
    switch (segType(index)) {
    case kArc:
        break;
    case kLine:
        return Acad::eNotApplicable;
    case kCoincident:
        return Acad::eDegenerateGeometry;
    default:
        return Acad::eInvalidIndex;
    }
    const hostpoly::BulgeSegment seg = hostpoly::PolylineView(*this).segment(static_cast<int>(index));
    arc.set(seg.start(), seg.end(), seg.bulge(), Adesk::kFalse);
    return Acad::eOk;
}

// A clockwise arc is counter-clockwise about the opposite normal.
Acad::ErrorStatus AcDbPolyline::getArcSegAt(unsigned int index, AcGeCircArc3d& arc) const
{
    AcGeCircArc2d flat;
    const Acad::ErrorStatus es = getArcSegAt(index, flat);
    if (es != Acad::eOk)
        return es;
    const hostpoly::PolylineView view(*this);
    const hostpoly::BulgeSegment seg = view.segment(static_cast<int>(index));
    const AcGeVector3d normal = seg.sweep() > 0.0 ? view.frame().normal : -view.frame().normal;
    const AcGeVector3d ref = view.frame().toWorld(seg.start() - seg.center());
    arc.set(view.frame().toWorld(seg.center()), normal, ref, seg.radius(), 0.0, std::fabs(seg.sweep()));
    return Acad::eOk;
}

Adesk::Boolean AcDbPolyline::onSegAt(unsigned int index, const AcGePoint2d& pt2d, double& param) const
{
    assertReadEnabled();
    const hostpoly::PolylineView view(*this);
    if (!isValidIndex(index) || static_cast<int>(index) >= view.numSegments())
        return false;
    const hostpoly::BulgeSegment seg = view.segment(static_cast<int>(index));
    const double t = seg.nearestFraction(pt2d);
    if (seg.pointAt(t).distanceTo(pt2d) > hostpoly::kOnCurveTolerance)
        return false;
    param = index + t;
    return true;
}

void AcDbPolyline::setClosed(Adesk::Boolean closed)
{
    assertWriteEnabled();
    m_closed = closed;
    recordGraphicsModified();
}

void AcDbPolyline::setPlinegen(Adesk::Boolean plinegen)
{
    assertWriteEnabled();
    m_plinegen = plinegen;
    recordGraphicsModified();
}

Adesk::Boolean AcDbPolyline::hasPlinegen() const
{
    assertReadEnabled();
    return m_plinegen;
}

double AcDbPolyline::elevation() const
{
    assertReadEnabled();
    return m_elevation;
}

// A non-finite elevation is ignored (the call has no status to refuse it with).
void AcDbPolyline::setElevation(double elev)
{
    assertWriteEnabled();
    if (!std::isfinite(elev))
        return;
    m_elevation = elev;
    recordGraphicsModified();
}

double AcDbPolyline::thickness() const
{
    assertReadEnabled();
    return m_thickness;
}

Acad::ErrorStatus AcDbPolyline::setThickness(double thickness)
{
    assertWriteEnabled();
    if (!std::isfinite(thickness))
        return Acad::eInvalidInput;
    m_thickness = thickness;
    recordGraphicsModified();
    return Acad::eOk;
}

AcGeVector3d AcDbPolyline::normal() const
{
    assertReadEnabled();
    return m_normal;
}

Acad::ErrorStatus AcDbPolyline::setNormal(const AcGeVector3d& normal)
{
    assertWriteEnabled();
    const double len = normal.length();
    if (!std::isfinite(len) || len == 0.0)
        return Acad::eInvalidInput;
    m_normal = normal / len;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::reset(Adesk::Boolean reuse, unsigned int numVerts)
{
    assertWriteEnabled();
    if (reuse) {
        if (numVerts < m_vertices.size())
            m_vertices.resize(numVerts);
    } else {
        m_vertices.clear();
        m_vertices.reserve(std::min(numVerts, kMaxReservedVertices));
    }
    recordGraphicsModified();
    return Acad::eOk;
}

void AcDbPolyline::minimizeMemory()
{
    assertWriteEnabled(false, false);
    m_vertices.shrink_to_fit();
}

// The vertices are kept in their full form already.
void AcDbPolyline::maximizeMemory()
{
    assertWriteEnabled(false, false);
}
