// AecStructuralLine: registration, the implementation object (the lazily built centre
// line, member outline and indent lines), the accessors and the curve-base hooks.
#include "AecStructuralLine.h"

#include <cmath>

#include "AecStructuralLineImp.h"
#include "LayoutLineGeometry.h"
#include "app/ModuleClassFlags.h"

ACRX_DXF_DEFINE_MEMBERS(AecStructuralLine, QxPolylineBasedCurve, Quarvo::kClassDwgVersion,
                        Quarvo::kClassMaintenanceVersion, Quarvo::kClassProxyFlags, QX_STRUCTURAL_LINE, QX_AEC_DB_APP)

namespace {

// The open line from corner `from` to corner `to`; empty without corners.
AcDbPolyline* CornerLine(const std::vector<AcGePoint3d>& corners, std::size_t from, std::size_t to)
{
    if (corners.size() < 4)
        return LayoutLineGeometry::CreatePolyline({}, false);
    return LayoutLineGeometry::CreatePolyline({corners[from], corners[to]}, false);
}

}  // namespace

// ---- implementation object

std::vector<AcGePoint3d> AecStructuralLine::Imp::MemberCorners() const
{
    return LayoutLineGeometry::StripCorners(startPoint, endPoint, memberWidthLeft, memberWidthRight);
}

std::vector<AcGePoint3d> AecStructuralLine::Imp::IndentCorners() const
{
    return LayoutLineGeometry::StripCorners(startPoint, endPoint, indentLeft, indentRight);
}

void AecStructuralLine::Imp::Changed()
{
    startPoint.z = 0.0;
    endPoint.z = 0.0;
    Invalidate();
    if (owner->isWriteEnabled())
        owner->recordGraphicsModified();
}

void AecStructuralLine::Imp::Invalidate()
{
    centerPolyline = nullptr;
    memberBoundary = nullptr;
    indentLineLeft = nullptr;
    indentLineRight = nullptr;
    derivedPolylines.clear();
}

AcDbPolyline* AecStructuralLine::Imp::Cached(AcDbPolyline*& cache, AcDbPolyline* (Imp::*build)() const)
{
    if (cache == nullptr) {
        derivedPolylines.emplace_back((this->*build)());
        cache = derivedPolylines.back().get();
    }
    return cache;
}

AcDbPolyline* AecStructuralLine::Imp::CenterPolyline()
{
    return Cached(centerPolyline, &Imp::BuildCenterPolyline);
}

AcDbPolyline* AecStructuralLine::Imp::MemberBoundary()
{
    return Cached(memberBoundary, &Imp::BuildMemberBoundary);
}

AcDbPolyline* AecStructuralLine::Imp::IndentLineLeft()
{
    return Cached(indentLineLeft, &Imp::BuildIndentLineLeft);
}

AcDbPolyline* AecStructuralLine::Imp::IndentLineRight()
{
    return Cached(indentLineRight, &Imp::BuildIndentLineRight);
}

AcDbPolyline* AecStructuralLine::Imp::BuildCenterPolyline() const
{
    return LayoutLineGeometry::CreatePolyline({startPoint, endPoint}, false);
}

AcDbPolyline* AecStructuralLine::Imp::BuildMemberBoundary() const
{
    return LayoutLineGeometry::CreatePolyline(MemberCorners(), true);
}

AcDbPolyline* AecStructuralLine::Imp::BuildIndentLineLeft() const
{
    return CornerLine(IndentCorners(), 0, 3);
}

AcDbPolyline* AecStructuralLine::Imp::BuildIndentLineRight() const
{
    return CornerLine(IndentCorners(), 1, 2);
}

LinePolylines AecStructuralLine::Imp::ShownPolylines()
{
    LinePolylines shown;
    if (IsShown(kStructuralDrawMemberBoundary))
        shown.Add(MemberBoundary());
    if (IsShown(kStructuralDrawIndentLines)) {
        shown.Add(IndentLineLeft());
        shown.Add(IndentLineRight());
    }
    if (IsShown(kStructuralDrawCenterLine))
        shown.Add(CenterPolyline());
    return shown;
}

// ---- construction

AecStructuralLine::AecStructuralLine() : DataNodeRoot(this), m_imp(std::make_unique<Imp>(this)) {}

AecStructuralLine::~AecStructuralLine() = default;

// ---- geometry

QX_DEFINE_LINE_POINT_ACCESSORS(AecStructuralLine, Changed)

StructuralMemberType AecStructuralLine::GetMemberType() const
{
    assertReadEnabled();
    return m_imp->memberType;
}

Acad::ErrorStatus AecStructuralLine::SetMemberType(StructuralMemberType type)
{
    assertWriteEnabled(true, true);
    m_imp->memberType = type;
    return Acad::eOk;
}

QX_DEFINE_LINE_LENGTH_ACCESSOR(AecStructuralLine, MemberWidthLeft, memberWidthLeft, Changed)
QX_DEFINE_LINE_LENGTH_ACCESSOR(AecStructuralLine, MemberWidthRight, memberWidthRight, Changed)
QX_DEFINE_LINE_LENGTH_ACCESSOR(AecStructuralLine, IndentLeft, indentLeft, Changed)
QX_DEFINE_LINE_LENGTH_ACCESSOR(AecStructuralLine, IndentRight, indentRight, Changed)

// ---- display settings

StructuralDrawOptions AecStructuralLine::GetDrawOptions() const
{
    assertReadEnabled();
    return m_imp->drawOptions;
}

Acad::ErrorStatus AecStructuralLine::SetDrawOptions(StructuralDrawOptions options)
{
    assertWriteEnabled(true, true);
    m_imp->drawOptions = options;
    recordGraphicsModified();
    return Acad::eOk;
}

bool AecStructuralLine::IsDrawOptionEnabled(StructuralDrawOptions option) const
{
    assertReadEnabled();
    return m_imp->IsShown(option);
}

QX_DEFINE_LINE_SETTINGS_ACCESSORS(AecStructuralLine)

// ---- derived polylines

AcDbPolyline* AecStructuralLine::CreateCenterPolyline() const
{
    assertReadEnabled();
    return m_imp->BuildCenterPolyline();
}

AcDbPolyline* AecStructuralLine::CreateMemberBoundaryPolyline() const
{
    assertReadEnabled();
    return m_imp->BuildMemberBoundary();
}

AcDbPolyline* AecStructuralLine::CreateIndentLineLeft() const
{
    assertReadEnabled();
    return m_imp->BuildIndentLineLeft();
}

AcDbPolyline* AecStructuralLine::CreateIndentLineRight() const
{
    assertReadEnabled();
    return m_imp->BuildIndentLineRight();
}

const AcDbPolyline* AecStructuralLine::GetCurveBaseConstPolyline() const
{
    return m_imp->CenterPolyline();
}

AcDbPolyline* AecStructuralLine::GetCurveBasePolyline()
{
    return m_imp->CenterPolyline();
}

void AecStructuralLine::OnBeginModifyPolyline()
{
    QxPolylineBasedCurve::OnBeginModifyPolyline();
}

void AecStructuralLine::OnEndModifyPolyline()
{
    QxPolylineBasedCurve::OnEndModifyPolyline();
    Imp& imp = *m_imp;
    LayoutLineGeometry::TakeEndsFrom(*imp.CenterPolyline(), imp.startPoint, imp.endPoint);
    imp.Changed();
}
