// AecDivisionLine: registration, the implementation object (refresh and the lazily rebuilt
// centre and boundary polylines), the accessors and the curve-base hooks.
#include "AecDivisionLine.h"

#include <cmath>

#include "AecDivisionLineImp.h"
#include "DivisionLineGeometry.h"
#include "app/ModuleClassFlags.h"
#include "dbmain.h"
#include "dbsymtb.h"

ACRX_DXF_DEFINE_MEMBERS(AecDivisionLine, QxPolylineBasedCurve, Quarvo::kClassDwgVersion,
                        Quarvo::kClassMaintenanceVersion, Quarvo::kClassProxyFlags, QX_DIVISION_LINE, QX_AEC_DB_APP)

namespace {

// The host's value for "no width of its own" on a polyline vertex.
constexpr double kDefaultWidth = -1.0;
// Colour indices outside this range mean the entity's own colour.
constexpr int kLowestColorIndex = 0;
constexpr int kHighestColorIndex = 256;

bool IsFinite(const AcGePoint3d& p)
{
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

int ClampColorIndex(int index)
{
    return index < kLowestColorIndex || index > kHighestColorIndex ? 0 : index;
}

}  // namespace

// ---- implementation object

AcGePoint3d AecDivisionLine::Imp::ChordMidpoint() const
{
    return AcGePoint3d((startPoint.x + endPoint.x) * 0.5, (startPoint.y + endPoint.y) * 0.5, 0.0);
}

AcGePoint3d AecDivisionLine::Imp::EffectiveIdentifierPoint() const
{
    if (HasIdentifierPoint())
        return boundaryIdentifierPoint;
    return DivisionLineGeometry::DefaultIdentifierPoint(startPoint, endPoint, bulge);
}

void AecDivisionLine::Imp::Refresh()
{
    startPoint.z = 0.0;
    endPoint.z = 0.0;
    // A line still lying on the origin has not been placed yet; its label waits for it.
    if (!HasIdentifierPoint() && !startPoint.isEqualTo(AcGePoint3d::kOrigin) &&
        !endPoint.isEqualTo(AcGePoint3d::kOrigin))
        boundaryIdentifierPoint = DivisionLineGeometry::DefaultIdentifierPoint(startPoint, endPoint, bulge);
    Invalidate();
    if (owner->isWriteEnabled())
        owner->recordGraphicsModified();
}

void AecDivisionLine::Imp::Invalidate()
{
    centerPolyline = nullptr;
    boundaryPolyline = nullptr;
    derivedPolylines.clear();
}

void AecDivisionLine::Imp::EnsurePolylines()
{
    if (centerPolyline != nullptr && boundaryPolyline != nullptr)
        return;
    Invalidate();
    derivedPolylines.emplace_back(BuildCenterPolyline());
    centerPolyline = derivedPolylines.back().get();
    derivedPolylines.emplace_back(BuildBoundaryPolyline());
    boundaryPolyline = derivedPolylines.back().get();
}

AcDbPolyline* AecDivisionLine::Imp::BuildCenterPolyline() const
{
    auto* polyline = new AcDbPolyline(2);
    polyline->addVertexAt(0, AcGePoint2d(startPoint.x, startPoint.y), bulge, kDefaultWidth, kDefaultWidth);
    polyline->addVertexAt(1, AcGePoint2d(endPoint.x, endPoint.y), 0.0, kDefaultWidth, kDefaultWidth);
    return polyline;
}

AcDbPolyline* AecDivisionLine::Imp::BuildBoundaryPolyline() const
{
    const DivisionLineGeometry::Outline outline =
        DivisionLineGeometry::ComputeOutline(startPoint, endPoint, bulge, indentLeft, indentRight);
    auto* polyline = new AcDbPolyline(4);
    if (outline.corners.size() >= 4) {
        for (unsigned int i = 0; i < 4; ++i) {
            const AcGePoint3d& corner = outline.corners[i];
            polyline->addVertexAt(i, AcGePoint2d(corner.x, corner.y), 0.0, kDefaultWidth, kDefaultWidth);
        }
        if (std::fabs(outline.bulge) >= DivisionLineGeometry::kStraightBulge) {
            polyline->setBulgeAt(1, outline.bulge);
            polyline->setBulgeAt(3, -outline.bulge);
        }
    }
    polyline->setClosed(Adesk::kTrue);
    return polyline;
}

const DivisionLineGripRecord* AecDivisionLine::Imp::FindGripRecord(const void* appData) const
{
    for (const auto& record : gripRecords)
        if (record.get() == appData)
            return record.get();
    return nullptr;
}

AcDbObjectId AecDivisionLine::Imp::FindLayer(const AcString& name) const
{
    AcDbDatabase* db = owner->database();
    if (name.isEmpty() || db == nullptr)
        return AcDbObjectId::kNull;
    AcDbLayerTable* layers = nullptr;
    if (db->getLayerTable(layers, AcDb::kForRead) != Acad::eOk || layers == nullptr)
        return AcDbObjectId::kNull;
    AcDbObjectId id;
    if (layers->getAt(name.kwszPtr(), id) != Acad::eOk)
        id = AcDbObjectId::kNull;
    layers->close();
    return id;
}

// ---- construction

AecDivisionLine::AecDivisionLine() : DataNodeRoot(this), m_imp(std::make_unique<Imp>(this)) {}

AecDivisionLine::~AecDivisionLine() = default;

// ---- geometry

AcGePoint3d AecDivisionLine::GetStartPoint() const
{
    assertReadEnabled();
    return m_imp->startPoint;
}

Acad::ErrorStatus AecDivisionLine::SetStartPoint(const AcGePoint3d& pt)
{
    assertWriteEnabled(true, true);
    if (!IsFinite(pt))
        return Acad::eInvalidInput;
    const AcGeVector3d previous = m_imp->Direction();
    m_imp->startPoint = pt;
    DivisionLineGeometry::ApplyLengthRule(m_imp->startPoint, m_imp->endPoint, -previous);
    m_imp->Refresh();
    return Acad::eOk;
}

AcGePoint3d AecDivisionLine::GetEndPoint() const
{
    assertReadEnabled();
    return m_imp->endPoint;
}

Acad::ErrorStatus AecDivisionLine::SetEndPoint(const AcGePoint3d& pt)
{
    assertWriteEnabled(true, true);
    if (!IsFinite(pt))
        return Acad::eInvalidInput;
    const AcGeVector3d previous = m_imp->Direction();
    m_imp->endPoint = pt;
    DivisionLineGeometry::ApplyLengthRule(m_imp->endPoint, m_imp->startPoint, previous);
    m_imp->Refresh();
    return Acad::eOk;
}

Acad::ErrorStatus AecDivisionLine::SetPoints(const AcGePoint3d& start, const AcGePoint3d& end)
{
    assertWriteEnabled(true, true);
    if (!IsFinite(start) || !IsFinite(end))
        return Acad::eInvalidInput;
    const AcGeVector3d previous = m_imp->Direction();
    m_imp->startPoint = start;
    m_imp->startPoint.z = 0.0;
    m_imp->endPoint = end;
    DivisionLineGeometry::ApplyLengthRule(m_imp->endPoint, m_imp->startPoint, previous);
    m_imp->Refresh();
    return Acad::eOk;
}

double AecDivisionLine::GetBulge() const
{
    assertReadEnabled();
    return m_imp->bulge;
}

Acad::ErrorStatus AecDivisionLine::SetBulge(double bulge)
{
    assertWriteEnabled(true, true);
    if (std::isnan(bulge))
        return Acad::eInvalidInput;
    m_imp->bulge = DivisionLineGeometry::ClampBulge(bulge);
    m_imp->Refresh();
    return Acad::eOk;
}

double AecDivisionLine::GetIndentLeft() const
{
    assertReadEnabled();
    return m_imp->indentLeft;
}

Acad::ErrorStatus AecDivisionLine::SetIndentLeft(double indent)
{
    assertWriteEnabled(true, true);
    if (!std::isfinite(indent))
        return Acad::eInvalidInput;
    m_imp->indentLeft = indent;
    m_imp->Refresh();
    return Acad::eOk;
}

double AecDivisionLine::GetIndentRight() const
{
    assertReadEnabled();
    return m_imp->indentRight;
}

Acad::ErrorStatus AecDivisionLine::SetIndentRight(double indent)
{
    assertWriteEnabled(true, true);
    if (!std::isfinite(indent))
        return Acad::eInvalidInput;
    m_imp->indentRight = indent;
    m_imp->Refresh();
    return Acad::eOk;
}

AcGePoint3d AecDivisionLine::GetBoundaryIdentifierPoint() const
{
    assertReadEnabled();
    return m_imp->boundaryIdentifierPoint;
}

Acad::ErrorStatus AecDivisionLine::SetBoundaryIdentifierPoint(const AcGePoint3d& pt)
{
    assertWriteEnabled(true, true);
    if (!IsFinite(pt))
        return Acad::eInvalidInput;
    m_imp->boundaryIdentifierPoint = pt;
    return Acad::eOk;
}

// ---- display settings

DrawOptions AecDivisionLine::GetDrawOptions() const
{
    assertReadEnabled();
    return m_imp->drawOptions;
}

Acad::ErrorStatus AecDivisionLine::SetDrawOptions(DrawOptions options)
{
    assertWriteEnabled(true, true);
    m_imp->drawOptions = options;
    recordGraphicsModified();
    return Acad::eOk;
}

bool AecDivisionLine::IsDrawOptionEnabled(DrawOptions option) const
{
    assertReadEnabled();
    return (m_imp->drawOptions & option) == option;
}

// Layer names change what the line draws on; the JSON blocks change nothing drawn.
#define QX_STRING_PROPERTY(NAME, FIELD, DRAWN)                       \
    AcString AecDivisionLine::Get##NAME() const                      \
    {                                                                \
        assertReadEnabled();                                         \
        return m_imp->FIELD;                                         \
    }                                                                \
    Acad::ErrorStatus AecDivisionLine::Set##NAME(const AcString& value) \
    {                                                                \
        assertWriteEnabled(true, true);                              \
        m_imp->FIELD = value;                                        \
        if (DRAWN)                                                   \
            recordGraphicsModified();                                \
        return Acad::eOk;                                            \
    }

QX_STRING_PROPERTY(JieDianTextLayerName, jieDianTextLayerName, true)
QX_STRING_PROPERTY(JieDianBoundaryLayerName, jieDianBoundaryLayerName, true)
QX_STRING_PROPERTY(ShouBianTextLayerName, shouBianTextLayerName, true)
QX_STRING_PROPERTY(ShouBianLineLayerName, shouBianLineLayerName, true)
QX_STRING_PROPERTY(NodeBasicJsonStr, nodeBasicJson, false)
QX_STRING_PROPERTY(ShouBianJsonStr, shouBianJson, false)
QX_STRING_PROPERTY(AccessoryJsonStr, accessoryJson, false)

#undef QX_STRING_PROPERTY

#define QX_COLOR_PROPERTY(NAME, FIELD)                               \
    int AecDivisionLine::Get##NAME() const                           \
    {                                                                \
        assertReadEnabled();                                         \
        return m_imp->FIELD;                                         \
    }                                                                \
    Acad::ErrorStatus AecDivisionLine::Set##NAME(int index)          \
    {                                                                \
        assertWriteEnabled(true, true);                              \
        m_imp->FIELD = ClampColorIndex(index);                       \
        recordGraphicsModified();                                    \
        return Acad::eOk;                                            \
    }

QX_COLOR_PROPERTY(JieDianTextColorIndex, jieDianTextColorIndex)
QX_COLOR_PROPERTY(JieDianBoundaryColorIndex, jieDianBoundaryColorIndex)
QX_COLOR_PROPERTY(ShouBianTextColorIndex, shouBianTextColorIndex)
QX_COLOR_PROPERTY(ShouBianLineColorIndex, shouBianLineColorIndex)

#undef QX_COLOR_PROPERTY

// ---- derived polylines

AcDbPolyline* AecDivisionLine::CreateCenterPolyline() const
{
    assertReadEnabled();
    return m_imp->BuildCenterPolyline();
}

AcDbPolyline* AecDivisionLine::CreateBoundaryPolyline() const
{
    assertReadEnabled();
    return m_imp->BuildBoundaryPolyline();
}

const AcDbPolyline* AecDivisionLine::GetCurveBaseConstPolyline() const
{
    m_imp->EnsurePolylines();
    return m_imp->centerPolyline;
}

AcDbPolyline* AecDivisionLine::GetCurveBasePolyline()
{
    m_imp->EnsurePolylines();
    return m_imp->centerPolyline;
}

void AecDivisionLine::OnBeginModifyPolyline()
{
    QxPolylineBasedCurve::OnBeginModifyPolyline();
}

void AecDivisionLine::OnEndModifyPolyline()
{
    QxPolylineBasedCurve::OnEndModifyPolyline();
    Imp& imp = *m_imp;
    const AcGeVector3d previous = imp.Direction();
    imp.EnsurePolylines();
    const AcDbPolyline* centre = imp.centerPolyline;
    if (centre->numVerts() > 0) {
        AcGePoint3d start;
        AcGePoint3d end;
        if (centre->getStartPoint(start) == Acad::eOk && centre->getEndPoint(end) == Acad::eOk && IsFinite(start) &&
            IsFinite(end)) {
            imp.startPoint = start;
            imp.endPoint = end;
        }
        double bulge = 0.0;
        if (centre->getBulgeAt(0, bulge) == Acad::eOk && !std::isnan(bulge))
            imp.bulge = DivisionLineGeometry::ClampBulge(bulge);
    }
    imp.startPoint.z = 0.0;
    imp.endPoint.z = 0.0;
    DivisionLineGeometry::ApplyLengthRule(imp.endPoint, imp.startPoint, previous);
    imp.Refresh();
}

Acad::ErrorStatus AecDivisionLine::getSplitCurves(const AcGePoint3dArray& points,
                                                  AcDbVoidPtrArray& curveSegments) const
{
    assertReadEnabled();
    m_imp->EnsurePolylines();
    return m_imp->centerPolyline->getSplitCurves(points, curveSegments);
}

Acad::ErrorStatus AecDivisionLine::getSplitCurves(const AcGeDoubleArray& params,
                                                  AcDbVoidPtrArray& curveSegments) const
{
    assertReadEnabled();
    m_imp->EnsurePolylines();
    return m_imp->centerPolyline->getSplitCurves(params, curveSegments);
}
