// AecPanel: construction, loops, labels and the class-wide label visibility.
#include "AecPanel.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "AecPanelImp.h"
#include "dbsymtb.h"
#include "app/ModuleClassFlags.h"

ACRX_DXF_DEFINE_MEMBERS(AecPanel, AcDbEntity, Quarvo::kClassDwgVersion, Quarvo::kClassMaintenanceVersion,
                        Quarvo::kClassProxyFlags, QX_PANEL, QX_AEC_DB_APP)

using DbxPanel::PanelLoop;
using DbxPanel::PanelVertex;
using DbxPanel::TextLabel;
using DbxPanel::TextLabelType;

namespace {

bool s_globalTextLabelVisible = true;
bool s_temporaryTextLabelVisibleOverride = false;
AecPanel::PanelIdSet s_temporaryHiddenPanelIds;

bool IsFinite(const AcGePoint2d& p)
{
    return std::isfinite(p.x) && std::isfinite(p.y);
}

// Twice the loop's signed area over its chords (arcs left out): the sign tells the turn.
double ChordArea2(const PanelLoop& loop)
{
    double sum = 0.0;
    for (std::size_t i = 0; i < loop.size(); ++i) {
        const AcGePoint2d& a = loop[i].point;
        const AcGePoint2d& b = loop[(i + 1) % loop.size()].point;
        sum += a.x * b.y - b.x * a.y;
    }
    return sum;
}

}  // namespace

AecPanel::AecPanel() : DataNodeRoot(this), m_imp(std::make_unique<Imp>(this)) {}

AecPanel::~AecPanel() = default;

// ---- loops

int AecPanel::GetLoopCount() const
{
    assertReadEnabled();
    return static_cast<int>(m_imp->loops.size());
}

int AecPanel::GetLoopPointCountAt(int loop) const
{
    assertReadEnabled();
    if (loop < 0 || loop >= static_cast<int>(m_imp->loops.size()))
        return 0;
    return static_cast<int>(m_imp->loops[loop].size());
}

bool AecPanel::GetLoopPointsAt(int loop, AcArray<AcGePoint2d>& points) const
{
    AcArray<double> bulges;
    return GetLoopPointsWithBulgesAt(loop, points, bulges);
}

bool AecPanel::GetLoopPointsWithBulgesAt(int loop, AcArray<AcGePoint2d>& points, AcArray<double>& bulges) const
{
    assertReadEnabled();
    points.setLogicalLength(0);
    bulges.setLogicalLength(0);
    if (loop < 0 || loop >= static_cast<int>(m_imp->loops.size()))
        return false;
    for (const PanelVertex& v : m_imp->loops[loop]) {
        points.append(v.point);
        bulges.append(v.bulge);
    }
    return true;
}

const AcDbPolyline* AecPanel::GetLoopPolylineAt(int loop) const
{
    assertReadEnabled();
    if (loop < 0 || loop >= static_cast<int>(m_imp->loopPolylines.size()))
        return nullptr;
    const AcDbPolyline* polyline = m_imp->loopPolylines[loop].get();
    return polyline != nullptr && polyline->numVerts() > 0 ? polyline : nullptr;
}

BoundarySetResult AecPanel::TrySetLoopFromPointsWithBulgesAt(int loop, const AcArray<AcGePoint2d>& points,
                                                             const AcArray<double>& bulges)
{
    assertWriteEnabled();
    if (loop < 0 || loop > static_cast<int>(m_imp->loops.size()))
        return BoundarySetResult::kNoSuchLoop;
    if (bulges.length() != 0 && bulges.length() != points.length())
        return BoundarySetResult::kBulgeCountMismatch;
    PanelLoop vertices;
    vertices.reserve(static_cast<std::size_t>(points.length()));
    for (int i = 0; i < points.length(); ++i) {
        const double bulge = bulges.length() != 0 ? bulges[i] : 0.0;
        if (!IsFinite(points[i]) || !std::isfinite(bulge))
            return BoundarySetResult::kNotFinite;
        if (std::fabs(bulge) > Imp::kMaxBulge)
            return BoundarySetResult::kBulgeOutOfRange;
        // A vertex on its predecessor is the same vertex.
        if (!vertices.empty() && vertices.back().point.isEqualTo(points[i]))
            continue;
        vertices.push_back({points[i], bulge});
    }
    if (vertices.size() > 1 && vertices.back().point.isEqualTo(vertices.front().point))
        vertices.pop_back();
    if (vertices.size() < 3 && !(vertices.size() == 2 && std::fabs(vertices[0].bulge) > 1e-6))
        return BoundarySetResult::kTooFewVertices;
    if (vertices.size() > Imp::kMaxLoopVertices)
        return BoundarySetResult::kTooManyVertices;
    const bool arcs =
        std::any_of(vertices.begin(), vertices.end(), [](const PanelVertex& v) { return v.bulge != 0.0; });
    if (!arcs && std::fabs(ChordArea2(vertices)) <= 1e-12)
        return BoundarySetResult::kZeroArea;

    if (loop == static_cast<int>(m_imp->loops.size()))
        m_imp->loops.push_back(std::move(vertices));
    else
        m_imp->loops[loop] = std::move(vertices);
    m_imp->Flush(true);
    return BoundarySetResult::kAccepted;
}

bool AecPanel::SetLoopFromPointsAt(int loop, const AcArray<AcGePoint2d>& points)
{
    return TrySetLoopFromPointsWithBulgesAt(loop, points, AcArray<double>()) == BoundarySetResult::kAccepted;
}

bool AecPanel::SetLoopFromPointsWithBulgesAt(int loop, const AcArray<AcGePoint2d>& points,
                                             const AcArray<double>& bulges)
{
    return TrySetLoopFromPointsWithBulgesAt(loop, points, bulges) == BoundarySetResult::kAccepted;
}

bool AecPanel::SetLoopFromPolylineAt(int loop, const AcDbPolyline* polyline)
{
    if (polyline == nullptr)
        return false;
    AcArray<AcGePoint2d> points;
    AcArray<double> bulges;
    for (unsigned int i = 0; i < polyline->numVerts(); ++i) {
        AcGePoint2d p;
        double bulge = 0.0;
        polyline->getPointAt(i, p);
        polyline->getBulgeAt(i, bulge);
        points.append(p);
        bulges.append(bulge);
    }
    return SetLoopFromPointsWithBulgesAt(loop, points, bulges);
}

int AecPanel::GetOuterLoopPointCount() const
{
    return GetLoopPointCountAt(0);
}

bool AecPanel::GetOuterLoopPoints(AcArray<AcGePoint2d>& points) const
{
    return GetLoopPointsAt(0, points);
}

const AcDbPolyline* AecPanel::GetOuterLoopPolyline() const
{
    return GetLoopPolylineAt(0);
}

bool AecPanel::SetOuterLoopFromPoints(const AcArray<AcGePoint2d>& points)
{
    return SetLoopFromPointsAt(0, points);
}

bool AecPanel::SetOuterLoopFromPointsWithBulges(const AcArray<AcGePoint2d>& points, const AcArray<double>& bulges)
{
    return SetLoopFromPointsWithBulgesAt(0, points, bulges);
}

bool AecPanel::SetOuterLoopFromPolyline(const AcDbPolyline* polyline)
{
    return SetLoopFromPolylineAt(0, polyline);
}

BoundarySetResult AecPanel::TrySetOuterLoopFromPointsWithBulges(const AcArray<AcGePoint2d>& points,
                                                                const AcArray<double>& bulges)
{
    return TrySetLoopFromPointsWithBulgesAt(0, points, bulges);
}

void AecPanel::ClearInnerLoops()
{
    assertReadEnabled();
    if (m_imp->loops.size() <= 1)
        return;
    assertWriteEnabled();
    m_imp->loops.resize(1);
    m_imp->Flush(true);
}

bool AecPanel::ValidateAndNormalizeOuterLoopGeometry(bool requireValid)
{
    assertReadEnabled();
    if (m_imp->loops.empty())
        return !requireValid;
    PanelLoop outline;
    for (const PanelVertex& v : m_imp->loops[0]) {
        if (!IsFinite(v.point) || !std::isfinite(v.bulge))
            return !requireValid;
        if (outline.empty() || !outline.back().point.isEqualTo(v.point))
            outline.push_back(v);
    }
    if (outline.size() > 1 && outline.back().point.isEqualTo(outline.front().point))
        outline.pop_back();
    const double area2 = ChordArea2(outline);
    if (outline.size() < 3 || std::fabs(area2) <= 1e-12)
        return !requireValid;
    if (area2 < 0.0) {
        // The same outline the other way round: segment i runs backwards as segment n-2-i.
        const std::size_t n = outline.size();
        PanelLoop reversed(n);
        for (std::size_t j = 0; j < n; ++j) {
            reversed[j].point = outline[n - 1 - j].point;
            reversed[j].bulge = -outline[(2 * n - 2 - j) % n].bulge;
        }
        outline = std::move(reversed);
    }
    const bool same = outline.size() == m_imp->loops[0].size() &&
        std::equal(outline.begin(), outline.end(), m_imp->loops[0].begin(),
                   [](const PanelVertex& a, const PanelVertex& b) { return a.point == b.point && a.bulge == b.bulge; });
    if (!same) {
        assertWriteEnabled();
        m_imp->loops[0] = std::move(outline);
        m_imp->Flush(true);
    }
    return true;
}

AcDbPolyline* AecPanel::GetCurveBasePolyline()
{
    assertReadEnabled();
    return m_imp->loopPolylines.empty() ? nullptr : m_imp->loopPolylines[0].get();
}

const AcDbPolyline* AecPanel::GetCurveBaseConstPolyline() const
{
    return GetLoopPolylineAt(0);
}

// ---- labels

void AecPanel::SetTextLabel(const TextLabel& label)
{
    assertWriteEnabled();
    if (TextLabel* existing = m_imp->FindLabel(label.GetType()))
        *existing = label;
    else
        m_imp->labels.push_back(label);
    m_imp->PlaceLabels();
    recordGraphicsModified();
}

void AecPanel::SetTextLabel(TextLabelType type, const AcString& text)
{
    assertReadEnabled();
    TextLabel label;
    if (const TextLabel* existing = m_imp->FindLabel(type))
        label = *existing;
    label.SetType(type);
    label.SetString(text);
    SetTextLabel(label);
}

void AecPanel::SetTextLabel(TextLabelType type, const AcString& text, DbxPanel::PredefinedTextPosition position)
{
    assertReadEnabled();
    TextLabel label;
    if (const TextLabel* existing = m_imp->FindLabel(type))
        label = *existing;
    label.SetType(type);
    label.SetString(text);
    label.SetPredefinedPositionType(position);
    SetTextLabel(label);
}

void AecPanel::SetTextLabel(TextLabelType type, const AcString& text, const AcGePoint3d& position)
{
    assertReadEnabled();
    TextLabel label;
    if (const TextLabel* existing = m_imp->FindLabel(type))
        label = *existing;
    label.SetType(type);
    label.SetString(text);
    label.SetPredefinedPositionType(DbxPanel::PredefinedTextPosition::kManual);
    label.SetPos(position);
    SetTextLabel(label);
}

bool AecPanel::GetTextLabel(TextLabelType type, TextLabel& label) const
{
    assertReadEnabled();
    const TextLabel* found = m_imp->FindLabel(type);
    if (found == nullptr)
        return false;
    label = *found;
    return true;
}

bool AecPanel::GetTextLabel(int index, TextLabel& label) const
{
    assertReadEnabled();
    if (index < 0 || index >= static_cast<int>(m_imp->labels.size()))
        return false;
    label = m_imp->labels[index];
    return true;
}

int AecPanel::GetTextLabelCount() const
{
    assertReadEnabled();
    return static_cast<int>(m_imp->labels.size());
}

bool AecPanel::HasTextLabel(TextLabelType type) const
{
    assertReadEnabled();
    return m_imp->FindLabel(type) != nullptr;
}

bool AecPanel::RemoveTextLabel(TextLabelType type)
{
    assertReadEnabled();
    auto& labels = m_imp->labels;
    const auto found =
        std::find_if(labels.begin(), labels.end(), [type](const TextLabel& l) { return l.GetType() == type; });
    if (found == labels.end())
        return false;
    assertWriteEnabled();
    labels.erase(found);
    recordGraphicsModified();
    return true;
}

namespace {

// Runs edit on the label of that type, open for write; false without such a label.
bool EditLabel(AecPanel& panel, AecPanel::Imp& imp, TextLabelType type, const std::function<void(TextLabel&)>& edit)
{
    panel.assertReadEnabled();
    if (imp.FindLabel(type) == nullptr)
        return false;
    panel.assertWriteEnabled();
    edit(*imp.FindLabel(type));
    panel.recordGraphicsModified();
    return true;
}

}  // namespace

bool AecPanel::UpdateTextContent(TextLabelType type, const AcString& text)
{
    return EditLabel(*this, *m_imp, type, [&](TextLabel& l) { l.SetString(text); });
}

bool AecPanel::GetTextLabelContentAndPosition(TextLabelType type, AcString& text, AcGePoint3d& position) const
{
    assertReadEnabled();
    const TextLabel* label = m_imp->FindLabel(type);
    if (label == nullptr)
        return false;
    text = label->GetString();
    position = label->GetPos();
    return true;
}

int AecPanel::GetTextLabelColorIndex(TextLabelType type) const
{
    assertReadEnabled();
    const TextLabel* label = m_imp->FindLabel(type);
    return label != nullptr ? label->GetColorIndex() : 0;
}

bool AecPanel::SetTextLabelColorIndex(TextLabelType type, int index)
{
    return EditLabel(*this, *m_imp, type, [&](TextLabel& l) { l.SetColorIndex(index); });
}

Adesk::UInt32 AecPanel::GetTextLabelColorPacked(TextLabelType type) const
{
    assertReadEnabled();
    const TextLabel* label = m_imp->FindLabel(type);
    return label != nullptr ? label->GetColorPacked() : 0;
}

bool AecPanel::SetTextLabelColorPacked(TextLabelType type, Adesk::UInt32 packed)
{
    return EditLabel(*this, *m_imp, type, [&](TextLabel& l) { l.SetColorPacked(packed); });
}

AcDbObjectId AecPanel::GetTextLabelLayerId(TextLabelType type) const
{
    assertReadEnabled();
    const TextLabel* label = m_imp->FindLabel(type);
    return label != nullptr ? label->GetLayerId() : AcDbObjectId::kNull;
}

// A null id puts the label on the panel's own layer; an id that names no layer is refused.
bool AecPanel::SetTextLabelLayerId(TextLabelType type, const AcDbObjectId& layerId)
{
    if (!layerId.isNull()) {
        AcDbObject* named = nullptr;
        if (acdbOpenObject(named, layerId, AcDb::kForRead) != Acad::eOk)
            return false;
        const bool isLayer = AcDbLayerTableRecord::cast(named) != nullptr;
        named->close();
        if (!isLayer)
            return false;
    }
    return EditLabel(*this, *m_imp, type, [&](TextLabel& l) { l.SetLayerId(layerId); });
}

DbxPanel::TextDirectionMode AecPanel::GetTextDirectionMode(TextLabelType type) const
{
    assertReadEnabled();
    const TextLabel* label = m_imp->FindLabel(type);
    return label != nullptr ? label->GetDirectionMode() : DbxPanel::TextDirectionMode::kAlongReference;
}

bool AecPanel::SetTextDirectionMode(TextLabelType type, DbxPanel::TextDirectionMode mode)
{
    const bool set = EditLabel(*this, *m_imp, type, [&](TextLabel& l) { l.SetDirectionMode(mode); });
    if (set)
        m_imp->PlaceLabels();
    return set;
}

bool AecPanel::SetTextFixedAngle(TextLabelType type, double radians)
{
    if (!std::isfinite(radians))
        return false;
    const bool set = EditLabel(*this, *m_imp, type, [&](TextLabel& l) { l.SetFixedAngleRadians(radians); });
    if (set)
        m_imp->PlaceLabels();
    return set;
}

bool AecPanel::SetTextLabelFromDbText(TextLabelType type, const AcDbText* text)
{
    if (text == nullptr)
        return false;
    assertReadEnabled();
    TextLabel label;
    if (const TextLabel* existing = m_imp->FindLabel(type))
        label = *existing;
    label.SetType(type);
    label.SetString(AcString(text->textStringConst()));
    label.SetPos(text->position());
    label.SetTextHeight(text->height());
    label.SetWidthFactor(text->widthFactor());
    label.SetTextStyleId(text->textStyle());
    label.SetDir(AcGeVector3d(std::cos(text->rotation()), std::sin(text->rotation()), 0.0));
    label.SetLayerId(text->layerId());
    label.SetColorPacked(0);
    if (!text->color().isByLayer())
        label.SetColorIndex(text->colorIndex());
    label.SetPredefinedPositionType(DbxPanel::PredefinedTextPosition::kManual);
    SetTextLabel(label);
    return true;
}

// ---- display

void AecPanel::SetHatchDisplayEnabled(bool enabled)
{
    assertWriteEnabled();
    m_imp->hatchDisplayEnabled = enabled;
    recordGraphicsModified();
}

bool AecPanel::IsHatchDisplayEnabled() const
{
    assertReadEnabled();
    return m_imp->hatchDisplayEnabled;
}

void AecPanel::FlushGraphicSubEntities(bool notify)
{
    assertReadEnabled();
    if (notify)
        assertWriteEnabled(false, true);
    m_imp->Flush(notify);
}

void AecPanel::SetGlobalTextLabelVisible(bool visible)
{
    s_globalTextLabelVisible = visible;
}

bool AecPanel::IsGlobalTextLabelVisible()
{
    return s_globalTextLabelVisible;
}

void AecPanel::SetTemporaryTextLabelVisibleOverride(bool on)
{
    s_temporaryTextLabelVisibleOverride = on;
}

bool AecPanel::IsTemporaryTextLabelVisibleOverride()
{
    return s_temporaryTextLabelVisibleOverride;
}

std::size_t AecPanel::AcDbObjectIdHash::operator()(const AcDbObjectId& id) const
{
    return std::hash<Adesk::IntPtr>()(id.asOldId());
}

void AecPanel::SetTemporaryHiddenPanelIds(const PanelIdSet& ids)
{
    s_temporaryHiddenPanelIds = ids;
}

void AecPanel::AddTemporaryHiddenPanelIds(const PanelIdSet& ids)
{
    s_temporaryHiddenPanelIds.insert(ids.begin(), ids.end());
}

void AecPanel::ClearTemporaryHiddenPanelIds()
{
    s_temporaryHiddenPanelIds.clear();
}

bool AecPanel::IsPanelTextTemporarilyHidden(const AcDbObjectId& id)
{
    return !s_temporaryHiddenPanelIds.empty() && s_temporaryHiddenPanelIds.count(id) != 0;
}

bool AecPanel::IsTextLabelEffectivelyVisible(const TextLabel& label)
{
    return s_globalTextLabelVisible && !label.GetString().isEmpty() && label.IsVisible();
}
