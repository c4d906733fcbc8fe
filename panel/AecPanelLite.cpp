// AecPanelLite: construction, loops, pattern, hatch, area, filing and list.
#include "AecPanelLite.h"

#include <cmath>
#include <limits>

#include "acutads.h"
#include "app/ModuleClassFlags.h"
#include "dbfiler.h"
#include "gegbl.h"

ACRX_DXF_DEFINE_MEMBERS(AecPanelLite, AcDbEntity, Quarvo::kClassDwgVersion, Quarvo::kClassMaintenanceVersion,
                        Quarvo::kClassProxyFlags, QX_PANEL_LITE, QX_AEC_DB_APP)

namespace {

bool IsFinite(const AcGePoint2d& p)
{
    return std::isfinite(p.x) && std::isfinite(p.y);
}

bool IsPatternType(Adesk::Int32 type)
{
    return type >= AcDbHatch::kUserDefined && type <= AcDbHatch::kCustomDefined;
}

bool IsUsableScale(double scale)
{
    return std::isfinite(scale) && scale > 0.0;
}

Adesk::Int32 ColourOrOwn(int colour)
{
    return colour >= 0 && colour <= 256 ? colour : 0;
}

bool IsUsableLoop(const AcArray<AcGePoint2d>& vertices, const AcArray<double>& bulges)
{
    if (vertices.length() < 2 || bulges.length() != vertices.length())
        return false;
    for (int i = 0; i < vertices.length(); ++i) {
        if (!IsFinite(vertices[i]) || !std::isfinite(bulges[i]))
            return false;
    }
    return true;
}

// The vertices that make the closed figure: a last vertex lying on the first, coordinate
// by coordinate within the host's point tolerance, is the loop closing itself and counts
// once.
int ClosedVertexCount(const AcArray<AcGePoint2d>& vertices)
{
    const int count = vertices.length();
    if (count < 3)
        return count;
    const double tolerance = AcGeContext::gTol.equalPoint();
    const AcGePoint2d& first = vertices[0];
    const AcGePoint2d& last = vertices[count - 1];
    if (std::fabs(first.x - last.x) <= tolerance && std::fabs(first.y - last.y) <= tolerance)
        return count - 1;
    return count;
}

AcDbPolyline* MakeLoopPolyline(const AcArray<AcGePoint2d>& vertices, const AcArray<double>& bulges)
{
    auto* polyline = new AcDbPolyline();
    const int count = ClosedVertexCount(vertices);
    for (int i = 0; i < count; ++i)
        polyline->addVertexAt(static_cast<unsigned int>(i), vertices[i], bulges[i]);
    polyline->setClosed(Adesk::kTrue);
    return polyline;
}

double DistanceToSegment(const AcGePoint2d& p, const AcGePoint2d& a, const AcGePoint2d& b)
{
    const AcGeVector2d along = b - a;
    const double lengthSquared = along.dotProduct(along);
    double t = lengthSquared > 0.0 ? (p - a).dotProduct(along) / lengthSquared : 0.0;
    t = std::min(1.0, std::max(0.0, t));
    return p.distanceTo(a + along * t);
}

}  // namespace

AecPanelLite::AecPanelLite() = default;

AecPanelLite::~AecPanelLite() = default;

// ---- loops

int AecPanelLite::LoopCount() const
{
    assertReadEnabled();
    return m_loopVertices.length();
}

bool AecPanelLite::GetLoopAt(int loop, AcArray<AcGePoint2d>& vertices, AcArray<double>& bulges) const
{
    assertReadEnabled();
    vertices.setLogicalLength(0);
    bulges.setLogicalLength(0);
    if (loop < 0 || loop >= m_loopVertices.length())
        return false;
    vertices = m_loopVertices[loop];
    bulges = m_loopBulges[loop];
    return true;
}

AcArray<AcGePoint2d> AecPanelLite::GetLoopVertsAt(int loop) const
{
    assertReadEnabled();
    if (loop < 0 || loop >= m_loopVertices.length())
        return AcArray<AcGePoint2d>();
    return m_loopVertices[loop];
}

Acad::ErrorStatus AecPanelLite::AppendLoop(const AcArray<AcGePoint2d>& vertices, const AcArray<double>& bulges)
{
    AcArray<double> given = bulges;
    if (given.isEmpty())
        for (int i = 0; i < vertices.length(); ++i)
            given.append(0.0);
    if (!IsUsableLoop(vertices, given))
        return Acad::eInvalidInput;
    assertWriteEnabled();
    m_loopVertices.append(vertices);
    m_loopBulges.append(given);
    return Acad::eOk;
}

Acad::ErrorStatus AecPanelLite::AppendLoopFromBoundary(const AcDbPolyline* boundary)
{
    if (boundary == nullptr)
        return Acad::eNullObjectPointer;
    AcArray<AcGePoint2d> vertices;
    AcArray<double> bulges;
    for (unsigned int i = 0; i < boundary->numVerts(); ++i) {
        AcGePoint2d p;
        double bulge = 0.0;
        boundary->getPointAt(i, p);
        boundary->getBulgeAt(i, bulge);
        vertices.append(p);
        bulges.append(bulge);
    }
    return AppendLoop(vertices, bulges);
}

bool AecPanelLite::AddVertex(const AcGePoint3d& point)
{
    const AcGePoint2d p(point.x, point.y);
    if (!IsFinite(p))
        return false;
    assertWriteEnabled();
    if (m_loopVertices.isEmpty()) {
        m_loopVertices.append(AcArray<AcGePoint2d>());
        m_loopBulges.append(AcArray<double>());
    }
    AcArray<AcGePoint2d>& outline = m_loopVertices[0];
    AcArray<double>& bulges = m_loopBulges[0];
    const int count = outline.length();
    int after = count - 1;
    double nearest = std::numeric_limits<double>::infinity();
    for (int i = 0; i < count; ++i) {
        const double distance = DistanceToSegment(p, outline[i], outline[(i + 1) % count]);
        if (distance < nearest) {
            nearest = distance;
            after = i;
        }
    }
    // The split segment can no longer keep its arc: both halves are straight.
    if (after >= 0)
        bulges[after] = 0.0;
    outline.insertAt(after + 1, p);
    bulges.insertAt(after + 1, 0.0);
    return true;
}

bool AecPanelLite::RemoveVertex(const AcGePoint3d& point)
{
    assertReadEnabled();
    const double tolerance = AcGeContext::gTol.equalPoint();
    for (int loop = 0; loop < m_loopVertices.length(); ++loop) {
        const AcArray<AcGePoint2d>& vertices = m_loopVertices[loop];
        if (vertices.length() <= 3)
            continue;
        for (int i = 0; i < vertices.length(); ++i) {
            if (vertices[i].distanceTo(AcGePoint2d(point.x, point.y)) > tolerance)
                continue;
            assertWriteEnabled();
            m_loopVertices[loop].removeAt(i);
            m_loopBulges[loop].removeAt(i);
            return true;
        }
    }
    return false;
}

void AecPanelLite::GetBoundaryPolylines(AcDbPolyline*& outer, AcArray<AcDbPolyline*>& inner) const
{
    assertReadEnabled();
    AcArray<AcDbPolyline*> polylines = CreatePolys();
    outer = polylines.isEmpty() ? nullptr : polylines[0];
    for (int i = 1; i < polylines.length(); ++i)
        inner.append(polylines[i]);
}

AcArray<AcDbPolyline*> AecPanelLite::CreatePolys() const
{
    AcArray<AcDbPolyline*> polylines(m_loopVertices.length());
    for (int i = 0; i < m_loopVertices.length(); ++i)
        polylines.append(MakeLoopPolyline(m_loopVertices[i], m_loopBulges[i]));
    return polylines;
}

void AecPanelLite::ReleasePolyArray(AcArray<AcDbPolyline*>& polylines)
{
    for (AcDbPolyline* polyline : polylines)
        delete polyline;
    polylines.setLogicalLength(0);
}

// ---- pattern, hatch and area

Acad::ErrorStatus AecPanelLite::SetOutlineAndPattern(AcDbHatch::HatchPatternType type, const wchar_t* name,
                                                     double scale, double angle, int colour, double last)
{
    if (!IsPatternType(type) || !IsUsableScale(scale) || !std::isfinite(angle) || !std::isfinite(last))
        return Acad::eInvalidInput;
    assertWriteEnabled();
    m_patternType = type;
    m_patternName = name != nullptr ? name : L"";
    m_patternScale = scale;
    m_patternAngle = angle;
    m_colour = ColourOrOwn(colour);
    m_lastValue = last;
    return Acad::eOk;
}

void AecPanelLite::GetOutlineAndPattern(AcDbHatch::HatchPatternType& type, AcString& name, double& scale, double& angle,
                                        int& colour, double& last) const
{
    assertReadEnabled();
    type = m_patternType;
    name = m_patternName;
    scale = m_patternScale;
    angle = m_patternAngle;
    colour = m_colour;
    last = m_lastValue;
}

double AecPanelLite::GetPatScale() const
{
    assertReadEnabled();
    return m_patternScale;
}

Acad::ErrorStatus AecPanelLite::SetPatScale(double scale)
{
    if (!IsUsableScale(scale))
        return Acad::eInvalidInput;
    assertWriteEnabled();
    m_patternScale = scale;
    return Acad::eOk;
}

AcDbHatch* AecPanelLite::CreateHatch() const
{
    assertReadEnabled();
    auto* hatch = new AcDbHatch();
    hatch->setNormal(AcGeVector3d::kZAxis);
    hatch->setAssociative(Adesk::kFalse);
    hatch->setElevation(0.0);
    if (m_patternName.isEmpty())
        return hatch;
    if (hatch->setPatternScale(m_patternScale) != Acad::eOk || hatch->setPatternAngle(m_patternAngle) != Acad::eOk ||
        hatch->setPattern(m_patternType, m_patternName.kwszPtr()) != Acad::eOk)
        return hatch;
    if (m_colour != 0)
        hatch->setColorIndex(static_cast<Adesk::UInt16>(m_colour));
    for (int i = 0; i < m_loopVertices.length(); ++i) {
        const int count = ClosedVertexCount(m_loopVertices[i]);
        AcGePoint2dArray vertices;
        AcGeDoubleArray bulges;
        for (int v = 0; v < count; ++v) {
            vertices.append(m_loopVertices[i][v]);
            bulges.append(m_loopBulges[i][v]);
        }
        hatch->appendLoop(i == 0 ? AcDbHatch::kExternal : AcDbHatch::kDefault, vertices, bulges);
    }
    hatch->evaluateHatch();
    return hatch;
}

double AecPanelLite::GetArea() const
{
    assertReadEnabled();
    AcArray<AcDbPolyline*> polylines = CreatePolys();
    double sum = 0.0;
    for (const AcDbPolyline* polyline : polylines) {
        double area = 0.0;
        if (polyline->getArea(area) == Acad::eOk)
            sum += area;
    }
    ReleasePolyArray(polylines);
    return sum;
}

// ---- filing: the version, the loops vertex by vertex, then the six pattern values

Acad::ErrorStatus AecPanelLite::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = AcDbEntity::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeUInt16(m_curVersion);
    filer->writeInt32(m_loopVertices.length());
    for (int i = 0; i < m_loopVertices.length(); ++i) {
        filer->writeInt32(m_loopVertices[i].length());
        for (int v = 0; v < m_loopVertices[i].length(); ++v) {
            filer->writePoint2d(m_loopVertices[i][v]);
            filer->writeDouble(m_loopBulges[i][v]);
        }
    }
    filer->writeInt32(m_patternType);
    filer->writeString(m_patternName);
    filer->writeDouble(m_patternScale);
    filer->writeDouble(m_patternAngle);
    filer->writeInt32(m_colour);
    filer->writeDouble(m_lastValue);
    return filer->filerStatus();
}

// The whole record is read before the panel takes any of it; counts are believed only as
// far as the data really goes, and a value no setter would take marks the record damaged.
Acad::ErrorStatus AecPanelLite::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = AcDbEntity::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::UInt16 version = 0;
    filer->readUInt16(&version);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (version > m_curVersion)
        return Acad::eMakeMeProxy;

    const auto damaged = [filer] {
        if (filer->filerStatus() == Acad::eOk)
            filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return filer->filerStatus();
    };
    AcArray<AcArray<AcGePoint2d>> loopVertices(0, 8);
    AcArray<AcArray<double>> loopBulges(0, 8);
    Adesk::Int32 loopCount = 0;
    filer->readInt32(&loopCount);
    if (filer->filerStatus() != Acad::eOk || loopCount < 0)
        return damaged();
    for (Adesk::Int32 i = 0; i < loopCount; ++i) {
        Adesk::Int32 vertexCount = 0;
        filer->readInt32(&vertexCount);
        if (filer->filerStatus() != Acad::eOk || vertexCount < 0)
            return damaged();
        AcArray<AcGePoint2d> vertices(0, 8);
        AcArray<double> bulges(0, 8);
        for (Adesk::Int32 v = 0; v < vertexCount; ++v) {
            AcGePoint2d point;
            double bulge = 0.0;
            filer->readPoint2d(&point);
            filer->readDouble(&bulge);
            if (filer->filerStatus() != Acad::eOk)
                return filer->filerStatus();
            vertices.append(point);
            bulges.append(bulge);
        }
        if (!IsUsableLoop(vertices, bulges))
            return damaged();
        loopVertices.append(vertices);
        loopBulges.append(bulges);
    }
    Adesk::Int32 type = 0;
    AcString name;
    double scale = 0.0;
    double angle = 0.0;
    Adesk::Int32 colour = 0;
    double last = 0.0;
    filer->readInt32(&type);
    filer->readString(name);
    filer->readDouble(&scale);
    filer->readDouble(&angle);
    filer->readInt32(&colour);
    filer->readDouble(&last);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (!IsPatternType(type) || !IsUsableScale(scale) || !std::isfinite(angle) || !std::isfinite(last) ||
        ColourOrOwn(colour) != colour)
        return damaged();

    m_loopVertices = loopVertices;
    m_loopBulges = loopBulges;
    m_patternType = static_cast<AcDbHatch::HatchPatternType>(type);
    m_patternName = name;
    m_patternScale = scale;
    m_patternAngle = angle;
    m_colour = colour;
    m_lastValue = last;
    return Acad::eOk;
}

void AecPanelLite::subList() const
{
    assertReadEnabled();
    AcDbEntity::subList();
    acutPrintf(L"\n填充图案: %s", m_patternName.kwszPtr());
    acutPrintf(L"\n填充比例: %g", m_patternScale);
}
