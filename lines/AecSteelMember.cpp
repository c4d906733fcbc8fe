// AecSteelMember: registration, the fields and their normalising setters, the axis and
// outline caches, filing, and editing through the host (transform, stretch, grips).
#include "AecSteelMember.h"

#include <algorithm>
#include <cmath>

#include "LayoutLineGeometry.h"
#include "LayoutLineMembers.h"
#include "LinePolylines.h"
#include "StraightLineGrips.h"
#include "app/ModuleClassFlags.h"
#include "dbfiler.h"

ACRX_DXF_DEFINE_MEMBERS(AecSteelMember, QxPolylineBasedCurve, Quarvo::kClassDwgVersion,
                        Quarvo::kClassMaintenanceVersion, Quarvo::kClassProxyFlags, QX_STEEL_MEMBER, QX_AEC_DB_APP)

struct AecSteelMember::Imp {
    explicit Imp(AecSteelMember* o) : owner(o) {}

    AecSteelMember* owner;
    std::unique_ptr<AcDbPolyline> axis;
    std::unique_ptr<AcDbPolyline> outline;
    AcGePoint3d startPoint = AcGePoint3d::kOrigin;
    AcGePoint3d endPoint = AcGePoint3d(1000.0, 0.0, 0.0);
    double leftWidth = 100.0;
    double rightWidth = 100.0;
    bool column = false;
    SteelMemberDisplayOptions display =
        static_cast<SteelMemberDisplayOptions>(kSteelDisplayAxis | kSteelDisplayOutline);
    StraightLineGrips grips;

    bool Shows(SteelMemberDisplayOptions option) const { return (display & option) == option; }

    // The band's corners counter-clockwise from the start's right; none without length.
    std::vector<AcGePoint3d> Corners() const
    {
        AcGeVector3d along = endPoint - startPoint;
        along.z = 0.0;
        if (along.isZeroLength())
            return {};
        along.normalize();
        const AcGeVector3d left(-along.y, along.x, 0.0);
        return {startPoint - left * rightWidth, endPoint - left * rightWidth, endPoint + left * leftWidth,
                startPoint + left * leftWidth};
    }

    AcDbPolyline* Axis()
    {
        if (axis == nullptr)
            axis.reset(LayoutLineGeometry::CreatePolyline({startPoint, endPoint}, false));
        return axis.get();
    }

    AcDbPolyline* Outline()
    {
        if (outline == nullptr)
            outline.reset(LayoutLineGeometry::CreatePolyline(Corners(), true));
        return outline.get();
    }

    LinePolylines ShownPolylines()
    {
        LinePolylines shown;
        if (Shows(kSteelDisplayOutline))
            shown.Add(Outline());
        if (Shows(kSteelDisplayAxis))
            shown.Add(Axis());
        return shown;
    }

    // After every change: in the plan, both caches dropped, the host told.
    void Changed()
    {
        startPoint.z = 0.0;
        endPoint.z = 0.0;
        axis.reset();
        outline.reset();
        if (owner->isWriteEnabled())
            owner->recordGraphicsModified();
    }
};

AecSteelMember::AecSteelMember() : m_imp(std::make_unique<Imp>(this)) {}

AecSteelMember::~AecSteelMember() = default;

// ---- normalising

double AecSteelMember::NormalizeWidth(double width)
{
    if (!std::isfinite(width))
        return kMinimumWidth;
    return std::max(kMinimumWidth, std::min(width, kMaximumWidth));
}

SteelMemberDisplayOptions AecSteelMember::NormalizeDisplayOptions(Adesk::Int32 options)
{
    Adesk::Int32 kept = options & 0xF;
    if ((kept & (kSteelDisplayAxis | kSteelDisplayOutline)) == 0)
        kept |= kSteelDisplayOutline;
    return static_cast<SteelMemberDisplayOptions>(kept);
}

// ---- accessors

Acad::ErrorStatus AecSteelMember::SetPoints(const AcGePoint3d& start, const AcGePoint3d& end)
{
    assertWriteEnabled();
    if (!LayoutLineGeometry::IsFinite(start) || !LayoutLineGeometry::IsFinite(end))
        return Acad::eInvalidInput;
    m_imp->startPoint = start;
    m_imp->endPoint = end;
    m_imp->Changed();
    return Acad::eOk;
}

Acad::ErrorStatus AecSteelMember::SetStartPoint(const AcGePoint3d& start)
{
    assertReadEnabled();
    return SetPoints(start, m_imp->endPoint);
}

Acad::ErrorStatus AecSteelMember::SetEndPoint(const AcGePoint3d& end)
{
    assertReadEnabled();
    return SetPoints(m_imp->startPoint, end);
}

AcGePoint3d AecSteelMember::GetStartPoint() const
{
    assertReadEnabled();
    return m_imp->startPoint;
}

AcGePoint3d AecSteelMember::GetEndPoint() const
{
    assertReadEnabled();
    return m_imp->endPoint;
}

void AecSteelMember::SetLeftWidth(double width)
{
    SetWidths(width, GetRightWidth());
}

void AecSteelMember::SetRightWidth(double width)
{
    SetWidths(GetLeftWidth(), width);
}

void AecSteelMember::SetWidths(double left, double right)
{
    assertWriteEnabled();
    m_imp->leftWidth = NormalizeWidth(left);
    m_imp->rightWidth = NormalizeWidth(right);
    m_imp->Changed();
}

void AecSteelMember::SetCenteredWidth(double width)
{
    SetWidths(width * 0.5, width * 0.5);
}

double AecSteelMember::GetLeftWidth() const
{
    assertReadEnabled();
    return m_imp->leftWidth;
}

double AecSteelMember::GetRightWidth() const
{
    assertReadEnabled();
    return m_imp->rightWidth;
}

double AecSteelMember::GetTotalWidth() const
{
    assertReadEnabled();
    return m_imp->leftWidth + m_imp->rightWidth;
}

void AecSteelMember::SetKind(SteelMemberKind kind)
{
    assertWriteEnabled();
    m_imp->column = kind != kSteelBeam;
    recordGraphicsModified();
}

SteelMemberKind AecSteelMember::GetKind() const
{
    assertReadEnabled();
    return m_imp->column ? kSteelColumn : kSteelBeam;
}

void AecSteelMember::SetDisplayOptions(SteelMemberDisplayOptions options)
{
    assertWriteEnabled();
    m_imp->display = NormalizeDisplayOptions(options);
    recordGraphicsModified();
}

SteelMemberDisplayOptions AecSteelMember::GetDisplayOptions() const
{
    assertReadEnabled();
    return m_imp->display;
}

bool AecSteelMember::IsDisplayOptionEnabled(SteelMemberDisplayOptions option) const
{
    assertReadEnabled();
    return m_imp->Shows(option);
}

AcDbPolyline* AecSteelMember::CreateAxisPolyline() const
{
    assertReadEnabled();
    return LayoutLineGeometry::CreatePolyline({m_imp->startPoint, m_imp->endPoint}, false);
}

AcDbPolyline* AecSteelMember::CreateOutlinePolyline() const
{
    assertReadEnabled();
    return LayoutLineGeometry::CreatePolyline(m_imp->Corners(), true);
}

AcString AecSteelMember::WidthText() const
{
    assertReadEnabled();
    AcString text;
    text.format(m_imp->column ? L"柱宽 %g" : L"梁宽 %g", m_imp->leftWidth + m_imp->rightWidth);
    return text;
}

const AcDbPolyline* AecSteelMember::GetCurveBaseConstPolyline() const
{
    return m_imp->Axis();
}

AcDbPolyline* AecSteelMember::GetCurveBasePolyline()
{
    return m_imp->Axis();
}

void AecSteelMember::OnBeginModifyPolyline()
{
    QxPolylineBasedCurve::OnBeginModifyPolyline();
}

void AecSteelMember::OnEndModifyPolyline()
{
    QxPolylineBasedCurve::OnEndModifyPolyline();
    const AcDbPolyline* axis = m_imp->Axis();
    if (axis->numVerts() >= 2) {
        AcGePoint3d start;
        AcGePoint3d end;
        axis->getPointAt(0, start);
        axis->getPointAt(axis->numVerts() - 1, end);
        if (LayoutLineGeometry::IsFinite(start) && LayoutLineGeometry::IsFinite(end)) {
            m_imp->startPoint = start;
            m_imp->endPoint = end;
        }
    }
    m_imp->Changed();
}

// ---- filing

Acad::ErrorStatus AecSteelMember::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = QxPolylineBasedCurve::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    const Imp& imp = *m_imp;
    filer->writeInt32(kCurrentVersion);
    filer->writePoint3d(imp.startPoint);
    filer->writePoint3d(imp.endPoint);
    filer->writeDouble(imp.leftWidth);
    filer->writeDouble(imp.rightWidth);
    filer->writeInt32(imp.column ? 1 : 0);
    filer->writeInt32(imp.display);
    return filer->filerStatus();
}

Acad::ErrorStatus AecSteelMember::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = QxPolylineBasedCurve::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int32 version = 0;
    filer->readInt32(&version);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (version > kCurrentVersion)
        return Acad::eMakeMeProxy;
    AcGePoint3d start;
    AcGePoint3d end;
    double left = 0.0;
    double right = 0.0;
    Adesk::Int32 kind = 0;
    Adesk::Int32 display = 0;
    filer->readPoint3d(&start);
    filer->readPoint3d(&end);
    filer->readDouble(&left);
    filer->readDouble(&right);
    filer->readInt32(&kind);
    filer->readInt32(&display);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (!LayoutLineGeometry::IsFinite(start) || !LayoutLineGeometry::IsFinite(end) || !std::isfinite(left) ||
        !std::isfinite(right))
        return Acad::eDwgObjectImproperlyRead;
    Imp& imp = *m_imp;
    imp.startPoint = start;
    imp.endPoint = end;
    imp.leftWidth = NormalizeWidth(left);
    imp.rightWidth = NormalizeWidth(right);
    imp.column = kind != 0;
    imp.display = NormalizeDisplayOptions(display);
    imp.Changed();
    return Acad::eOk;
}

// ---- editing

// The ends move with the matrix; the widths scale with it, a mirror exchanging them.
Acad::ErrorStatus AecSteelMember::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    Imp& imp = *m_imp;
    LayoutLineGeometry::TransformEnds(xform, imp.startPoint, imp.endPoint);
    LayoutLineGeometry::TransformWidths(xform, imp.leftWidth, imp.rightWidth);
    imp.leftWidth = NormalizeWidth(imp.leftWidth);
    imp.rightWidth = NormalizeWidth(imp.rightWidth);
    imp.Changed();
    return Acad::eOk;
}

QX_DEFINE_LINE_STRETCH(AecSteelMember, Changed)

QX_DEFINE_STRAIGHT_LINE_GRIPS(AecSteelMember, Changed)

QX_DEFINE_LINE_SNAPS_AND_INTERSECTIONS(AecSteelMember)
