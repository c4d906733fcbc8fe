// AecPolyOpening: the record and its tree form, the per-document inspect mode, filing,
// transformation and list output. After the polyline's fields: the class version, then
// the data tree, which carries the whole record.
#include "AecPolyOpening.h"

#include <algorithm>
#include <cmath>

#include "AcApDMgr.h"
#include "AecPolyOpeningDocData.h"
#include "OpeningStyles.h"
#include "PolygonInnerPoint.h"
#include "app/ModuleClassFlags.h"
#include "acutads.h"
#include "dbapserv.h"
#include "dbfiler.h"
#include "dbmain.h"

ACRX_DXF_DEFINE_MEMBERS(AecPolyOpening, AcDbPolyline, Quarvo::kClassDwgVersion, Quarvo::kClassMaintenanceVersion,
                        Quarvo::kClassProxyFlags, QX_POLY_OPENING, QX_AEC_DB_APP)

namespace {

const ACHAR* const kRecordNode = L"PolyOpeningData";
constexpr int kMaxColorIndex = 256;

// Made on first use; it follows the documents through the host's document reactor and
// goes with the module.
AcApDataManager<AecPolyOpeningDocData>& InspectModeData()
{
    static AcApDataManager<AecPolyOpeningDocData> manager;
    return manager;
}

bool IsUsableHeight(double height)
{
    return std::isfinite(height);
}

unsigned int SegmentCount(const AcDbPolyline& outline)
{
    const unsigned int n = outline.numVerts();
    if (outline.isClosed())
        return n;
    return n > 0 ? n - 1 : 0;
}

}  // namespace

AecPolyOpening::AecPolyOpening() : DataNodeRoot(this), m_data(std::make_unique<PolyOpeningData>()) {}

AecPolyOpening::~AecPolyOpening() = default;

void AecPolyOpening::SetInspectMode(bool inspectMode)
{
    InspectModeData().docData().inspectMode = inspectMode;
}

bool AecPolyOpening::IsInspectMode()
{
    return InspectModeData().docData().inspectMode;
}

PolyOpeningData AecPolyOpening::GetData() const
{
    assertReadEnabled();
    return *m_data;
}

Acad::ErrorStatus AecPolyOpening::SetData(const PolyOpeningData& data)
{
    if (!IsUsableHeight(data.titleHeight) || !IsUsableHeight(data.segmentLabelHeight))
        return Acad::eInvalidInput;
    assertWriteEnabled();
    m_data->CopyFrom(&data);
    if (m_data->colorIndex < 0 || m_data->colorIndex > kMaxColorIndex)
        m_data->colorIndex = 0;
    Update();
    return Acad::eOk;
}

void AecPolyOpening::SetDisplayAidTitle(const AcString& title)
{
    assertWriteEnabled();
    m_data->titleText = title;
    Update();
}

void AecPolyOpening::SetDisplayAidTitleVisible(bool visible)
{
    assertWriteEnabled();
    m_data->titleVisible = visible;
    Update();
}

void AecPolyOpening::SetCenterCrossVisible(bool visible)
{
    assertWriteEnabled();
    m_data->showCenterCross = visible;
    Update();
}

void AecPolyOpening::SetSegmentLabelsInInspectModeVisible(bool visible)
{
    assertWriteEnabled();
    m_data->enableSegmentLabels = visible;
    Update();
}

void AecPolyOpening::Update()
{
    SaveToNode();
}

bool AecPolyOpening::GetInnerReferencePoint(AcGePoint3d& point) const
{
    assertReadEnabled();
    std::vector<AcGePoint2d> outline = PolygonInnerPoint::Flatten(*this);
    // The same outline to the last bit has the same point (coordinates that are not
    // numbers never compare equal, so they are searched again).
    const auto sameAsMemo = [&outline](const InnerPointMemo& memo) {
        return std::equal(outline.begin(), outline.end(), memo.outline.begin(), memo.outline.end(),
                          [](const AcGePoint2d& a, const AcGePoint2d& b) { return a.x == b.x && a.y == b.y; });
    };
    if (m_innerPointMemo == nullptr || !sameAsMemo(*m_innerPointMemo)) {
        auto memo = std::make_unique<InnerPointMemo>();
        memo->found = PolygonInnerPoint::Find(outline, memo->inner);
        memo->outline = std::move(outline);
        m_innerPointMemo = std::move(memo);
    }
    if (!m_innerPointMemo->found)
        return false;
    const AcGePoint2d& inner = m_innerPointMemo->inner;
    point = OutlineToWorld() * AcGePoint3d(inner.x, inner.y, elevation());
    return true;
}

AcGeMatrix3d AecPolyOpening::OutlineToWorld() const
{
    const AcGeVector3d n = normal();
    const bool usable = std::isfinite(n.x) && std::isfinite(n.y) && std::isfinite(n.z) && !n.isZeroLength();
    return AcGeMatrix3d::planeToWorld(usable ? n : AcGeVector3d::kZAxis);
}

AcDbObjectId AecPolyOpening::ResolveTextStyle(bool* fellBack) const
{
    AcDbDatabase* db = database() != nullptr ? database() : acdbHostApplicationServices()->workingDatabase();
    const AcDbObjectId current = db != nullptr ? db->textstyle() : AcDbObjectId::kNull;
    return OpeningStyles::ResolveTextStyle(m_data->textStyleId, current, db, fellBack);
}

void AecPolyOpening::SaveToNode()
{
    m_data->SaveToNodeData(AddNode(kRecordNode));
}

void AecPolyOpening::LoadFromNode()
{
    if (DataNode* node = GetNode(kRecordNode))
        m_data->LoadFromNodeData(node);
}

Acad::ErrorStatus AecPolyOpening::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = AcDbPolyline::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt32(kCurrentVersion);
    DataNodeRoot::DataOut(filer);
    return filer->filerStatus();
}

Acad::ErrorStatus AecPolyOpening::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = AcDbPolyline::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int32 version = 0;
    filer->readInt32(&version);
    if (version > kCurrentVersion)
        return Acad::eMakeMeProxy;
    DataNodeRoot::DataIn(filer);
    LoadFromNode();
    return filer->filerStatus();
}

Acad::ErrorStatus AecPolyOpening::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    const Acad::ErrorStatus es = AcDbPolyline::subTransformBy(xform);
    if (es != Acad::eOk)
        return es;
    m_data->TransformBy(xform);
    Update();
    return Acad::eOk;
}

// After the polyline's own lines: the shape, the title, the text style the draw uses (the
// drawing's current one, marked as a fall-back, when the record's is unset or gone), and
// the inspect mode of the current document with whether segment labels are allowed.
void AecPolyOpening::subList() const
{
    assertReadEnabled();
    AcDbPolyline::subList();
    const PolyOpeningData& data = *m_data;
    acutPrintf(L"\n异形洞口: %u 个顶点，%u 个分段，%s", numVerts(), SegmentCount(*this),
               isClosed() ? L"闭合" : L"未闭合");
    acutPrintf(L"\n标题: %s，\"%s\"", data.titleVisible ? L"显示" : L"隐藏", data.titleText.kwszPtr());
    bool fellBack = false;
    const AcDbObjectId style = ResolveTextStyle(&fellBack);
    OpeningStyles::ListTextStyle(style, fellBack);
    acutPrintf(L"\n检查模式: %s，分段标签: %s", IsInspectMode() ? L"开启" : L"关闭",
               data.enableSegmentLabels ? L"允许" : L"禁止");
}
