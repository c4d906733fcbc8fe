// AecOverlapLine: registration, the implementation object (the eager rebuild of the centre
// line and strip outline), the accessors and the curve-base hooks.
#include "AecOverlapLine.h"

#include <cmath>

#include "AecOverlapLineImp.h"
#include "LayoutLineGeometry.h"
#include "app/ModuleClassFlags.h"

ACRX_DXF_DEFINE_MEMBERS(AecOverlapLine, QxPolylineBasedCurve, Quarvo::kClassDwgVersion,
                        Quarvo::kClassMaintenanceVersion, Quarvo::kClassProxyFlags, QX_OVERLAP_LINE, QX_AEC_DB_APP)

// ---- implementation object

std::vector<AcGePoint3d> AecOverlapLine::Imp::StripCorners() const
{
    return LayoutLineGeometry::StripCorners(startPoint, endPoint, overlapLeft, overlapRight);
}

void AecOverlapLine::Imp::Rebuild()
{
    startPoint.z = 0.0;
    endPoint.z = 0.0;
    centerPolyline = nullptr;
    boundaryPolyline = nullptr;
    derivedPolylines.clear();
    derivedPolylines.emplace_back(BuildCenterPolyline());
    centerPolyline = derivedPolylines.back().get();
    derivedPolylines.emplace_back(BuildBoundaryPolyline());
    boundaryPolyline = derivedPolylines.back().get();
}

void AecOverlapLine::Imp::Changed()
{
    Rebuild();
    if (owner->isWriteEnabled())
        owner->recordGraphicsModified();
}

void AecOverlapLine::Imp::EnsurePolylines()
{
    if (centerPolyline == nullptr || boundaryPolyline == nullptr)
        Rebuild();
}

AcDbPolyline* AecOverlapLine::Imp::BuildCenterPolyline() const
{
    return LayoutLineGeometry::CreatePolyline({startPoint, endPoint}, false);
}

AcDbPolyline* AecOverlapLine::Imp::BuildBoundaryPolyline() const
{
    return LayoutLineGeometry::CreatePolyline(StripCorners(), true);
}

LinePolylines AecOverlapLine::Imp::ShownPolylines()
{
    EnsurePolylines();
    LinePolylines shown;
    if (IsShown(kOverlapDrawCenterLine))
        shown.Add(centerPolyline);
    if (IsShown(kOverlapDrawBoundary))
        shown.Add(boundaryPolyline);
    return shown;
}

// ---- construction

AecOverlapLine::AecOverlapLine() : DataNodeRoot(this), m_imp(std::make_unique<Imp>(this)) {}

AecOverlapLine::~AecOverlapLine() = default;

// ---- geometry

QX_DEFINE_LINE_POINT_ACCESSORS(AecOverlapLine, Changed)

QX_DEFINE_LINE_LENGTH_ACCESSOR(AecOverlapLine, OverlapLeft, overlapLeft, Changed)
QX_DEFINE_LINE_LENGTH_ACCESSOR(AecOverlapLine, OverlapRight, overlapRight, Changed)

OverlapDirection AecOverlapLine::GetOverlapDirection() const
{
    assertReadEnabled();
    return m_imp->direction;
}

Acad::ErrorStatus AecOverlapLine::SetOverlapDirection(OverlapDirection direction)
{
    assertWriteEnabled(true, true);
    m_imp->direction = direction;
    m_imp->Changed();
    return Acad::eOk;
}

// ---- display settings

OverlapDrawOptions AecOverlapLine::GetDrawOptions() const
{
    assertReadEnabled();
    return m_imp->drawOptions;
}

Acad::ErrorStatus AecOverlapLine::SetDrawOptions(OverlapDrawOptions options)
{
    assertWriteEnabled(true, true);
    m_imp->drawOptions = options;
    m_imp->Changed();
    return Acad::eOk;
}

bool AecOverlapLine::IsDrawOptionEnabled(OverlapDrawOptions option) const
{
    assertReadEnabled();
    return m_imp->IsShown(option);
}

QX_DEFINE_LINE_SETTINGS_ACCESSORS(AecOverlapLine)

// ---- derived polylines

AcDbPolyline* AecOverlapLine::CreateCenterPolyline() const
{
    assertReadEnabled();
    return m_imp->BuildCenterPolyline();
}

AcDbPolyline* AecOverlapLine::CreateOverlapBoundaryPolyline() const
{
    assertReadEnabled();
    return m_imp->BuildBoundaryPolyline();
}

const AcDbPolyline* AecOverlapLine::GetCurveBaseConstPolyline() const
{
    m_imp->EnsurePolylines();
    return m_imp->centerPolyline;
}

AcDbPolyline* AecOverlapLine::GetCurveBasePolyline()
{
    m_imp->EnsurePolylines();
    return m_imp->centerPolyline;
}

void AecOverlapLine::OnBeginModifyPolyline()
{
    QxPolylineBasedCurve::OnBeginModifyPolyline();
}

void AecOverlapLine::OnEndModifyPolyline()
{
    QxPolylineBasedCurve::OnEndModifyPolyline();
    Imp& imp = *m_imp;
    imp.EnsurePolylines();
    LayoutLineGeometry::TakeEndsFrom(*imp.centerPolyline, imp.startPoint, imp.endPoint);
    imp.Changed();
}
