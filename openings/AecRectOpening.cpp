// AecRectOpening: construction, the placement and style accessors, the title in the data
// tree, and filing. After the host entity's fields: the class version, the placement as a
// typed-array record (nine counted groups), then the data tree.
#include "AecRectOpening.h"

#include <cmath>
#include <stdexcept>

#include "AecRectOpeningImp.h"
#include "OpeningStyles.h"
#include "app/ModuleClassFlags.h"
#include "data/DwgFilerIoAdapter.h"
#include "data/TypedArrayRecord.h"
#include "dbapserv.h"
#include "dbfiler.h"

ACRX_DXF_DEFINE_MEMBERS(AecRectOpening, QxPolylineBasedCurve, Quarvo::kClassDwgVersion,
                        Quarvo::kClassMaintenanceVersion, Quarvo::kClassProxyFlags, QX_RECT_OPENING, QX_AEC_DB_APP)

namespace {

const ACHAR* const kTitleNode = L"RectOpeningNode";
const ACHAR* const kDefaultTitle = L"洞口";
constexpr double kDefaultTitleHeight = 150.0;

bool IsFinite(const AcGePoint3d& p)
{
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

bool IsFinite(const AcGeVector3d& v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

bool IsUsableSize(double size)
{
    return std::isfinite(size) && size > 0.0;
}

bool IsUsableDirection(const AcGeVector3d& dir)
{
    return IsFinite(dir) && !AcGeVector3d(dir.x, dir.y, 0.0).isZeroLength();
}

// Sizes are the one place where this class reports bad input by exception.
void CheckSize(double size, const char* positiveMessage, const char* finiteMessage)
{
    if (std::isnan(size) || size <= 0.0)
        throw std::invalid_argument(positiveMessage);
    if (!std::isfinite(size))
        throw std::invalid_argument(finiteMessage);
}

void CheckWidth(double width)
{
    CheckSize(width, "Width must be positive", "Width must be finite");
}

void CheckHeight(double height)
{
    CheckSize(height, "Height must be positive", "Height must be finite");
}

}  // namespace

AecRectOpening::Imp::Imp(AecRectOpening* o) : owner(o), rectangle(std::make_unique<AcDbPolyline>())
{
    AcDbDatabase* working = acdbHostApplicationServices()->workingDatabase();
    textStyleId = OpeningStyles::DefaultTextStyle(working);
    dimStyleId = OpeningStyles::DefaultDimStyle(working);
    title.SetLabel(kDefaultTitle);
    title.SetHeight(kDefaultTitleHeight);
    title.SetVisible(true);
    RebuildRectangle();
    PlaceTitle();
}

void AecRectOpening::Imp::RebuildRectangle()
{
    rectangle->reset(Adesk::kFalse, 4);
    const RectOpeningFrame::Corners corners = frame.GetCorners();
    for (unsigned int i = 0; i < 4; ++i)
        rectangle->addVertexAt(i, AcGePoint2d(corners[i].x, corners[i].y));
    rectangle->setElevation(frame.anchor.z);
    rectangle->setClosed(Adesk::kTrue);
}

void AecRectOpening::Imp::PlaceTitle()
{
    const AcGeVector3d dir = frame.U();
    const AcGeVector3d below = -frame.V();
    title.SetTextDirX(dir);
    title.SetPosition(frame.BottomLeft() + below * title.GetHeight());
}

void AecRectOpening::Imp::Update()
{
    RebuildRectangle();
    owner->SaveToNode();
}

AcDbDatabase* AecRectOpening::Imp::DatabaseToUse() const
{
    AcDbDatabase* db = owner->database();
    return db != nullptr ? db : acdbHostApplicationServices()->workingDatabase();
}

const AecRectOpeningUnits::OpeningGripData* AecRectOpening::Imp::FindGrip(const void* appData) const
{
    for (const auto& grip : grips) {
        if (grip.get() == appData)
            return grip.get();
    }
    return nullptr;
}

AecRectOpening::AecRectOpening() : DataNodeRoot(this), m_imp(std::make_unique<Imp>(this)) {}

AecRectOpening::~AecRectOpening() = default;

void AecRectOpening::Set(const AcGePoint3d& anchor, double width, double height)
{
    CheckWidth(width);
    CheckHeight(height);
    if (!IsFinite(anchor))
        throw std::invalid_argument("Anchor point must be finite");
    assertWriteEnabled();
    m_imp->frame.anchor = anchor;
    m_imp->frame.width = width;
    m_imp->frame.height = height;
    m_imp->Update();
}

void AecRectOpening::SetWidth(double width)
{
    CheckWidth(width);
    assertWriteEnabled();
    m_imp->frame.width = width;
    m_imp->Update();
}

void AecRectOpening::SetHeight(double height)
{
    CheckHeight(height);
    assertWriteEnabled();
    m_imp->frame.height = height;
    m_imp->Update();
}

double AecRectOpening::GetWidth() const
{
    assertReadEnabled();
    return m_imp->frame.width;
}

double AecRectOpening::GetHeight() const
{
    assertReadEnabled();
    return m_imp->frame.height;
}

Acad::ErrorStatus AecRectOpening::SetAnchorPoint(const AcGePoint3d& anchor)
{
    if (!IsFinite(anchor))
        return Acad::eInvalidInput;
    assertWriteEnabled();
    m_imp->frame.anchor = anchor;
    m_imp->Update();
    return Acad::eOk;
}

AcGePoint3d AecRectOpening::GetAnchorPoint() const
{
    assertReadEnabled();
    return m_imp->frame.anchor;
}

void AecRectOpening::SetAnchorPosType(AnchorPosType type)
{
    assertWriteEnabled();
    RectOpeningFrame& frame = m_imp->frame;
    if (type != frame.anchorType)
        frame.anchor = RectOpeningFrame::AnchorOn(frame.GetCorners(), type);
    frame.anchorType = type;
    m_imp->Update();
}

AecRectOpening::AnchorPosType AecRectOpening::GetAnchorPosType() const
{
    assertReadEnabled();
    return static_cast<AnchorPosType>(m_imp->frame.anchorType);
}

Acad::ErrorStatus AecRectOpening::SetDirX(const AcGeVector3d& dirX)
{
    if (!IsUsableDirection(dirX))
        return Acad::eInvalidInput;
    assertWriteEnabled();
    m_imp->frame.dirX = AcGeVector3d(dirX.x, dirX.y, 0.0);
    m_imp->Update();
    return Acad::eOk;
}

AcGeVector3d AecRectOpening::GetDirX() const
{
    assertReadEnabled();
    return m_imp->frame.dirX;
}

AcGePoint3d AecRectOpening::GetBottomLeftPoint() const
{
    assertReadEnabled();
    return m_imp->frame.BottomLeft();
}

void AecRectOpening::SetIsShowDim(bool show)
{
    assertWriteEnabled();
    m_imp->showDim = show;
}

bool AecRectOpening::IsShowDim() const
{
    assertReadEnabled();
    return m_imp->showDim;
}

AcDbObjectId AecRectOpening::GetTextStyleId() const
{
    assertReadEnabled();
    return m_imp->textStyleId;
}

void AecRectOpening::SetTextStyleId(const AcDbObjectId& styleId)
{
    assertWriteEnabled();
    m_imp->textStyleId = styleId;
}

AcDbObjectId AecRectOpening::GetDimStyleId() const
{
    assertReadEnabled();
    return m_imp->dimStyleId;
}

void AecRectOpening::SetDimStyleId(const AcDbObjectId& styleId)
{
    assertWriteEnabled();
    m_imp->dimStyleId = styleId;
}

TextBaseLabel AecRectOpening::GetTitleLabel() const
{
    assertReadEnabled();
    return m_imp->title;
}

void AecRectOpening::SetTitleText(const AcString& text)
{
    assertWriteEnabled();
    m_imp->title.SetLabel(text);
    SaveToNode();
}

void AecRectOpening::SetTitleVisible(bool visible)
{
    assertWriteEnabled();
    m_imp->title.SetVisible(visible);
    SaveToNode();
}

Acad::ErrorStatus AecRectOpening::SetTitleHeight(double height)
{
    if (!IsUsableSize(height))
        return Acad::eInvalidInput;
    assertWriteEnabled();
    m_imp->title.SetHeight(height);
    SaveToNode();
    return Acad::eOk;
}

const AcDbPolyline* AecRectOpening::GetCurveBaseConstPolyline() const
{
    return m_imp->rectangle.get();
}

AcDbPolyline* AecRectOpening::GetCurveBasePolyline()
{
    return m_imp->rectangle.get();
}

void AecRectOpening::SaveToNode()
{
    m_imp->PlaceTitle();
    m_imp->title.SetValue(AddNode(kTitleNode));
}

// A stored height that is not a usable size leaves the title's height as it was.
void AecRectOpening::LoadFromNode()
{
    DataNode* node = GetNode(kTitleNode);
    if (node == nullptr)
        return;
    TextBaseLabel loaded = m_imp->title;
    loaded.GetValue(node);
    if (!IsUsableSize(loaded.GetHeight()))
        loaded.SetHeight(m_imp->title.GetHeight());
    m_imp->title = loaded;
}

Acad::ErrorStatus AecRectOpening::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = QxPolylineBasedCurve::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt32(kCurrentVersion);

    const Imp& imp = *m_imp;
    TypedArrayRecord record;
    record.bools = {imp.showDim};
    record.ints = {imp.frame.anchorType};
    record.doubles = {imp.frame.width, imp.frame.height};
    record.vectors = {imp.frame.dirX};
    record.points = {imp.frame.anchor};
    record.hardIds = {imp.textStyleId, imp.dimStyleId};
    DwgFilerIoAdapter io(filer);
    record.Write(io);

    DataNodeRoot::DataOut(filer);
    return filer->filerStatus();
}

// Values are taken by position as far as each stored count reaches; whatever a shorter
// record lacks keeps the value the opening held. Sizes that are not positive and finite,
// non-finite points and directions without an XY part are not taken (no writer makes
// them). An unknown anchor type is kept: it anchors at the bottom-left corner and lists
// as unknown.
Acad::ErrorStatus AecRectOpening::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = QxPolylineBasedCurve::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int32 version = 0;
    filer->readInt32(&version);
    if (version > kCurrentVersion)
        return Acad::eMakeMeProxy;

    Imp& imp = *m_imp;
    RectOpeningFrame& frame = imp.frame;
    TypedArrayRecord record;
    DwgFilerIoAdapter io(filer);
    record.Read(io);
    TypedArrayRecord::Take(record.bools, 0, imp.showDim);
    TypedArrayRecord::Take(record.ints, 0, frame.anchorType);
    double size = 0.0;
    if (TypedArrayRecord::TakeFinite(record.doubles, 0, size) && size > 0.0)
        frame.width = size;
    if (TypedArrayRecord::TakeFinite(record.doubles, 1, size) && size > 0.0)
        frame.height = size;
    AcGeVector3d dirX;
    if (TypedArrayRecord::Take(record.vectors, 0, dirX) && IsUsableDirection(dirX))
        frame.dirX = AcGeVector3d(dirX.x, dirX.y, 0.0);
    AcGePoint3d anchor;
    if (TypedArrayRecord::Take(record.points, 0, anchor) && IsFinite(anchor))
        frame.anchor = anchor;
    AcDbHardPointerId style;
    if (TypedArrayRecord::Take(record.hardIds, 0, style))
        imp.textStyleId = style;
    if (TypedArrayRecord::Take(record.hardIds, 1, style))
        imp.dimStyleId = style;

    DataNodeRoot::DataIn(filer);
    LoadFromNode();
    imp.RebuildRectangle();
    imp.PlaceTitle();
    return filer->filerStatus();
}
