// AecDivisionLine: registration, the implementation object (refresh and the lazily rebuilt
// centre and boundary polylines), the accessors and the curve-base hooks.
#include "AecDivisionLine.h"

#include <cmath>

#include "AecDivisionLineImp.h"
#include "DivisionLineGeometry.h"
#include "LayoutLineGeometry.h"
#include "Qx/PolylineUtil.h"
#include "app/ModuleClassFlags.h"

ACRX_DXF_DEFINE_MEMBERS(AecDivisionLine, QxPolylineBasedCurve, Quarvo::kClassDwgVersion,
                        Quarvo::kClassMaintenanceVersion, Quarvo::kClassProxyFlags, QX_DIVISION_LINE, QX_AEC_DB_APP)

// ---- implementation object

AcGePoint3d AecDivisionLine::Imp::ChordMidpoint() const
{
    return LayoutLineGeometry::Midpoint(startPoint, endPoint);
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
    return Qx::PolylineUtil::CreateSegment(startPoint, endPoint, bulge);
}

AcDbPolyline* AecDivisionLine::Imp::BuildBoundaryPolyline() const
{
    const DivisionLineGeometry::Outline outline =
        DivisionLineGeometry::ComputeOutline(startPoint, endPoint, bulge, indentLeft, indentRight);
    if (outline.corners.size() < 4)
        return LayoutLineGeometry::CreatePolyline({}, true);
    std::vector<double> bulges;
    // The side P1-P2 runs round with the centre line; the side P3-P0 comes back the other way.
    if (std::fabs(outline.bulge) >= DivisionLineGeometry::kStraightBulge)
        bulges = {0.0, outline.bulge, 0.0, -outline.bulge};
    return LayoutLineGeometry::CreatePolyline(outline.corners, true, bulges);
}

LinePolylines AecDivisionLine::Imp::ShownPolylines()
{
    EnsurePolylines();
    LinePolylines shown;
    if ((drawOptions & kDrawCenterLine) == kDrawCenterLine)
        shown.Add(centerPolyline);
    if ((drawOptions & kDrawBoundary) == kDrawBoundary)
        shown.Add(boundaryPolyline);
    return shown;
}

// ---- construction

AecDivisionLine::AecDivisionLine() : DataNodeRoot(this), m_imp(std::make_unique<Imp>(this)) {}

AecDivisionLine::~AecDivisionLine() = default;

// ---- geometry

QX_DEFINE_LINE_POINT_ACCESSORS(AecDivisionLine, Refresh)

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

QX_DEFINE_LINE_LENGTH_ACCESSOR(AecDivisionLine, IndentLeft, indentLeft, Refresh)
QX_DEFINE_LINE_LENGTH_ACCESSOR(AecDivisionLine, IndentRight, indentRight, Refresh)

AcGePoint3d AecDivisionLine::GetBoundaryIdentifierPoint() const
{
    assertReadEnabled();
    return m_imp->boundaryIdentifierPoint;
}

Acad::ErrorStatus AecDivisionLine::SetBoundaryIdentifierPoint(const AcGePoint3d& pt)
{
    assertWriteEnabled(true, true);
    if (!LayoutLineGeometry::IsFinite(pt))
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

QX_DEFINE_LINE_SETTINGS_ACCESSORS(AecDivisionLine)

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
    imp.EnsurePolylines();
    const AcDbPolyline* centre = imp.centerPolyline;
    double bulge = 0.0;
    if (centre->numVerts() > 0 && centre->getBulgeAt(0, bulge) == Acad::eOk && !std::isnan(bulge))
        imp.bulge = DivisionLineGeometry::ClampBulge(bulge);
    LayoutLineGeometry::TakeEndsFrom(*centre, imp.startPoint, imp.endPoint);
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
