// AecPanel: the graphic sub-entities (loop polylines and hatch) and their rebuild, label
// placement, drawing, the copies (deep clone and CreateCopy) and the drag hook.
#include <cmath>

#include "AecPanel.h"
#include "AecPanelImp.h"
#include "PanelLabelPlacement.h"
#include "acgi.h"
#include "afxwin.h"
#include "acutads.h"
#include "dbidmap.h"
#include "data/PackedColor.h"
#include "geometry/ObbCalculator.h"
#include "panel/LinkageChangeCollector.h"

using DbxPanel::PanelLoop;
using DbxPanel::PanelVertex;
using DbxPanel::TextLabel;

namespace {

constexpr Adesk::LongPtr kLabelMarkerBase = 0x20000000;
// Bulges this small draw as straight segments while dragging.
constexpr double kDragArcBulge = 1e-6;

AcGeVector3d Upright(const AcGeVector3d& direction)
{
    const AcGeVector3d flat(direction.x, direction.y, 0.0);
    return flat.isZeroLength() ? AcGeVector3d::kXAxis : flat.normal();
}

// The label's text centred on its position, reading along its direction; true when the
// host asks to stop.
bool DrawLabel(AcGiWorldDraw* worldDraw, const TextLabel& label)
{
    AcGiTextStyle style;
    if (!label.GetTextStyleId().isNull())
        fromAcDbTextStyle(style, label.GetTextStyleId());
    style.setTextSize(label.GetTextHeight());
    style.setXScale(label.GetWidthFactor());
    const AcString& text = label.GetString();
    const AcGePoint2d size = style.extents(text.kwszPtr(), Adesk::kFalse, -1, Adesk::kFalse);
    const AcGeVector3d along = Upright(label.GetDir());
    const AcGeVector3d up = AcGeVector3d::kZAxis.crossProduct(along);
    const AcGePoint3d start = label.GetPos() - along * (0.5 * size.x) - up * (0.5 * size.y);
    return worldDraw->geometry().text(start, AcGeVector3d::kZAxis, along, text.kwszPtr(), -1, Adesk::kFalse, style);
}

// A loop as a polyline of the drag: with its arcs only when it has real ones.
void DrawDragLoop(AcGiWorldDraw* worldDraw, const PanelLoop& loop)
{
    if (loop.size() < 2)
        return;
    bool arcs = false;
    for (const PanelVertex& v : loop)
        arcs = arcs || std::fabs(v.bulge) > kDragArcBulge;
    if (arcs) {
        AcDbPolyline polyline;
        for (std::size_t i = 0; i < loop.size(); ++i)
            polyline.addVertexAt(static_cast<unsigned int>(i), loop[i].point, loop[i].bulge);
        polyline.setClosed(Adesk::kTrue);
        worldDraw->geometry().pline(polyline);
        return;
    }
    std::vector<AcGePoint3d> points;
    for (const PanelVertex& v : loop)
        points.emplace_back(v.point.x, v.point.y, 0.0);
    points.push_back(points.front());
    worldDraw->geometry().polyline(static_cast<Adesk::UInt32>(points.size()), points.data());
}

}  // namespace

// ---- the sub-entities

bool AecPanel::Imp::FitsPolyline(const PanelLoop& loop)
{
    if (loop.size() < 2 || loop.size() > kMaxLoopVertices)
        return false;
    for (const PanelVertex& v : loop) {
        if (!std::isfinite(v.point.x) || !std::isfinite(v.point.y) || !std::isfinite(v.bulge) ||
            std::fabs(v.bulge) > kMaxBulge)
            return false;
    }
    return true;
}

std::shared_ptr<AcDbPolyline> AecPanel::Imp::MakePolyline(const PanelLoop& loop)
{
    // Sized once: a panel keeps its loops' polylines as long as it lives.
    auto polyline = std::make_shared<AcDbPolyline>(static_cast<unsigned int>(loop.size()));
    for (std::size_t i = 0; i < loop.size(); ++i)
        polyline->addVertexAt(static_cast<unsigned int>(i), loop[i].point, loop[i].bulge);
    polyline->setClosed(Adesk::kTrue);
    return polyline;
}

std::vector<AcGePoint2d> AecPanel::Imp::OuterPoints() const
{
    std::vector<AcGePoint2d> points;
    if (!loops.empty())
        for (const PanelVertex& v : loops[0])
            points.push_back(v.point);
    return points;
}

DbxPanel::OBBInfo2D AecPanel::Imp::Box() const
{
    return DbxPanel::ObbCalculator::CalculateSimplified(OuterPoints(), LayingDirection());
}

void AecPanel::Imp::FlushLoopPolylines()
{
    loopPolylines.clear();
    for (std::size_t i = 0; i < loops.size(); ++i) {
        if (!FitsPolyline(loops[i])) {
            acutPrintf(L"\n警告:FlushLoopPoly [%d]顶点数及凸度限制要求不满足，跳过缓存。", static_cast<int>(i));
            loopPolylines.push_back(std::make_shared<AcDbPolyline>());
            continue;
        }
        loopPolylines.push_back(MakePolyline(loops[i]));
    }
}

std::uint64_t AecPanel::Imp::HatchInputsNow() const
{
    // FNV-1a over the loops' vertices and the hatch information's characters: 64 bits, so
    // that two different inputs taken for the same is not a practical concern.
    std::uint64_t digest = 14695981039346656037ull;
    const auto mix = [&digest](const void* data, std::size_t size) {
        const auto* bytes = static_cast<const unsigned char*>(data);
        for (std::size_t i = 0; i < size; ++i) {
            digest ^= bytes[i];
            digest *= 1099511628211ull;
        }
    };
    for (const PanelLoop& loop : loops) {
        const std::uint64_t count = loop.size();
        mix(&count, sizeof count);
        for (const PanelVertex& v : loop) {
            const double values[3] = {v.point.x, v.point.y, v.bulge};
            mix(values, sizeof values);
        }
    }
    mix(hatchInfo.kwszPtr(), sizeof(wchar_t) * static_cast<std::size_t>(hatchInfo.length()));
    return digest == 0 ? 1 : digest;
}

void AecPanel::Imp::AdoptHatchOf(const Imp& source)
{
    if (source.hatchInputs == 0 || loops.size() != source.loops.size() || hatchInfo != source.hatchInfo)
        return;
    for (std::size_t i = 0; i < loops.size(); ++i) {
        const PanelLoop& mine = loops[i];
        const PanelLoop& theirs = source.loops[i];
        if (mine.size() != theirs.size())
            return;
        for (std::size_t j = 0; j < mine.size(); ++j)
            if (mine[j].point.x != theirs[j].point.x || mine[j].point.y != theirs[j].point.y ||
                mine[j].bulge != theirs[j].bulge)
                return;
    }
    if (source.HatchInputsNow() != source.hatchInputs)
        return;  // the source changed since its hatch was evaluated
    hatch = source.hatch;
    hatchPresent = source.hatchPresent;
    hatchInputs = source.hatchInputs;
}

// The hatch of the hatch information over the loops the polylines hold: the outline as the
// external loop, the holes inside it; not associative (the panel rebuilds it itself).
void AecPanel::Imp::FlushHatch()
{
    const std::uint64_t inputs = HatchInputsNow();
    if (inputs == hatchInputs)
        return;  // evaluating the same inputs again gives the same hatch
    hatchInputs = inputs;
    hatch.reset();
    hatchPresent = false;
    DbxPanel::HatchPatternInfo info;
    if (!info.FromJson(hatchInfo) || !info.IsHatchEnabled() || loopPolylines.empty() ||
        loopPolylines[0]->numVerts() == 0)
        return;
    auto made = std::make_shared<AcDbHatch>();
    made->setNormal(AcGeVector3d::kZAxis);
    made->setElevation(0.0);
    made->setAssociative(Adesk::kFalse);
    if (made->setPatternScale(info.GetPatternScale()) != Acad::eOk ||
        made->setPatternAngle(info.GetPatternAngle() * M_PI / 180.0) != Acad::eOk ||
        made->setPattern(static_cast<AcDbHatch::HatchPatternType>(info.GetPatternType()),
                         info.GetPatternName().kwszPtr()) != Acad::eOk)
        return;
    made->setColorIndex(static_cast<Adesk::UInt16>(info.GetFillColor()));
    for (std::size_t i = 0; i < loops.size(); ++i) {
        if (loopPolylines[i]->numVerts() == 0)
            continue;
        AcGePoint2dArray vertices;
        AcGeDoubleArray bulges;
        for (const PanelVertex& v : loops[i]) {
            vertices.append(v.point);
            bulges.append(v.bulge);
        }
        made->appendLoop(i == 0 ? AcDbHatch::kExternal : AcDbHatch::kDefault, vertices, bulges);
    }
    if (made->evaluateHatch() != Acad::eOk)
        return;
    hatch = std::move(made);
    hatchPresent = true;
}

void AecPanel::Imp::PlaceLabels()
{
    DbxPanel::PanelLabelPlacement::Place(labels, OuterPoints(), LayingDirection());
}

void AecPanel::Imp::Flush(bool notify)
{
    FlushLoopPolylines();
    FlushHatch();
    PlaceLabels();
    if (notify)
        owner->recordGraphicsModified();
}

DbxPanel::TextLabel* AecPanel::Imp::FindLabel(DbxPanel::TextLabelType type)
{
    for (TextLabel& label : labels)
        if (label.GetType() == type)
            return &label;
    return nullptr;
}

const DbxPanel::TextLabel* AecPanel::Imp::FindLabel(DbxPanel::TextLabelType type) const
{
    return const_cast<Imp*>(this)->FindLabel(type);
}

// ---- drawing

Adesk::Boolean AecPanel::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    if (worldDraw->regenAbort())
        return Adesk::kTrue;
    const Imp& imp = *m_imp;
    if (worldDraw->isDragging()) {
        for (const PanelLoop& loop : imp.loops)
            DrawDragLoop(worldDraw, loop);
        return Adesk::kTrue;
    }
    // Each primitive answers whether the host asks to stop.
    for (const auto& polyline : imp.loopPolylines) {
        if (polyline->numVerts() >= 2 && worldDraw->geometry().pline(*polyline))
            return Adesk::kTrue;
    }
    worldDraw->subEntityTraits().setSelectionMarker(0);
    if (imp.hatchDisplayEnabled && imp.hatch != nullptr && worldDraw->geometry().draw(imp.hatch.get()))
        return Adesk::kTrue;

    const bool hidden = IsPanelTextTemporarilyHidden(objectId());
    const AcDbObjectId* lastLayer = nullptr;
    Adesk::UInt32 lastColor = 0;
    for (std::size_t i = 0; i < imp.labels.size(); ++i) {
        const TextLabel& label = imp.labels[i];
        worldDraw->subEntityTraits().setSelectionMarker(kLabelMarkerBase + static_cast<Adesk::LongPtr>(i));
        if (!IsTextLabelEffectivelyVisible(label) || hidden)
            continue;
        if (!label.GetLayerId().isNull() && (lastLayer == nullptr || *lastLayer != label.GetLayerId())) {
            worldDraw->subEntityTraits().setLayer(label.GetLayerId());
            lastLayer = &label.GetLayerId();
        }
        if (label.GetColorPacked() != 0 && label.GetColorPacked() != lastColor) {
            worldDraw->subEntityTraits().setTrueColor(PackedColor(label.GetColorPacked()).ToAcCmEntityColor());
            lastColor = label.GetColorPacked();
        }
        if (DrawLabel(worldDraw, label))
            return Adesk::kTrue;
    }
    return Adesk::kTrue;
}

AcDbText* AecPanel::CreateDbTextByType(DbxPanel::TextLabelType type) const
{
    assertReadEnabled();
    const TextLabel* label = m_imp->FindLabel(type);
    return label != nullptr ? label->CreateDbText() : nullptr;
}

Acad::ErrorStatus AecPanel::subGetClassID(CLSID* classId) const
{
    assertReadEnabled();
    return AcDbEntity::subGetClassID(classId);
}

// ---- copies

Acad::ErrorStatus AecPanel::subDeepClone(AcDbObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                         Adesk::Boolean isPrimary) const
{
    const Acad::ErrorStatus es = AcDbEntity::subDeepClone(owner, clone, idMap, isPrimary);
    const int context = static_cast<int>(idMap.deepCloneContext());
    // Copy, explode, insert and insert-copy make new panels of the layout; a block or a
    // wblock keeps what it takes.
    const bool newPanels = context >= 0 && context < 11 && ((1091 >> context) & 1) != 0;
    AecPanel* copy = clone != nullptr ? AecPanel::cast(clone) : nullptr;
    if (!newPanels || copy == nullptr)
        return es;
    DbxPanel::PanelBasicInfo basic;
    AcString message;
    if (copy->GetPanelBasicInfo(basic, &message)) {
        basic.SetUniqueNum(AcString());
        basic.SetLayoutConfigId(AcString());
        copy->SetPanelBasicInfo(basic);
    } else {
        acutPrintf(L"\n[错误] 复制板材的基本信息无法解析，保留原 JSON，未重置编号/配置 ID。\n");
    }
    copy->m_imp->AdoptHatchOf(*m_imp);
    copy->m_imp->Flush(false);
    return es;
}

AecPanel* AecPanel::CreateCopy() const
{
    assertReadEnabled();
    std::unique_ptr<AecPanel> copy;
    try {
        copy = std::make_unique<AecPanel>();
        Imp& to = *copy->m_imp;
        const Imp& from = *m_imp;
        to.basicInfo = from.basicInfo;
        to.numberingInfo = from.numberingInfo;
        to.hatchInfo = from.hatchInfo;
        to.mergeInfo = from.mergeInfo;
        to.shapeInfo = from.shapeInfo;
        to.accessoryInfo = from.accessoryInfo;
        to.loops = from.loops;
        to.labels = from.labels;
        to.hatchDisplayEnabled = from.hatchDisplayEnabled;
        to.AdoptHatchOf(from);
        to.Flush(false);
    } catch (...) {
        return nullptr;
    }
    return copy.release();
}

// ---- drag

void AecPanel::dragStatus(const AcDb::DragStat status)
{
    AcDbEntity::dragStatus(status);
    Imp& imp = *m_imp;
    switch (status) {
    case AcDb::kDragStart:
        imp.dragSnapshot = imp.loops;
        imp.dragStartLength = imp.SlopedLength();
        break;
    case AcDb::kDragEnd:
        if (DbxPanel::LinkageChangeCollector::Instance().IsCollecting()) {
            DbxPanel::EntityChangeDetail detail;
            detail.changeKind = DbxPanel::EntityChangeDetail::kDragFinished;
            detail.lengthBefore = imp.dragStartLength;
            detail.tickCount = GetTickCount();
            DbxPanel::LinkageChangeCollector::Instance().RecordChange(objectId(), detail);
        }
        imp.dragSnapshot.clear();
        imp.dragStartLength = 0.0;
        break;
    case AcDb::kDragAbort:
        imp.dragSnapshot.clear();
        imp.dragStartLength = 0.0;
        break;
    default: break;
    }
}
