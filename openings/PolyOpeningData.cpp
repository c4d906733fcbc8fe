// PolyOpeningData: the record, its tree form and its transformation.
#include "PolyOpeningData.h"

#include <algorithm>
#include <cmath>

#include "data/DataNode.h"

namespace {

constexpr int kMaxColorIndex = 256;

AcString SegmentLabelName(std::size_t index)
{
    AcString name;
    name.format(L"SegmentLabel_%d", static_cast<int>(index));
    return name;
}

void LoadHeight(const DataNode* node, const ACHAR* key, double& height)
{
    double stored = height;
    if (node->GetValue(key, stored) && std::isfinite(stored) && stored > 0.0)
        height = stored;
}

}  // namespace

void PolyOpeningData::CopyFrom(const PolyOpeningData* other)
{
    if (other != nullptr && other != this)
        *this = *other;
}

void PolyOpeningData::SaveToNodeData(DataNode* node) const
{
    if (node == nullptr)
        return;
    node->SetValue(L"EnableSegmentLabels", enableSegmentLabels);
    node->SetValue(L"TextStyleId", AcDbSoftPointerId(textStyleId));
    node->SetValue(L"ShowCenterCross", showCenterCross);
    node->SetValue(L"SegmentLabelHeight", segmentLabelHeight);
    node->SetValue(L"ColorIndex", colorIndex);
    DataNode* title = node->AddChild(L"TitleLabel");
    title->SetValue(L"Text", titleText);
    title->SetValue(L"Visible", titleVisible);
    title->SetValue(L"Height", titleHeight);
    node->SetValue(L"SegmentLabelCount", static_cast<int>(segmentLabels.size()));
    for (std::size_t i = 0; i < segmentLabels.size(); ++i)
        segmentLabels[i].SetValue(node->AddChild(SegmentLabelName(i)));
}

void PolyOpeningData::LoadFromNodeData(DataNode* node)
{
    if (node == nullptr)
        return;
    node->GetValue(L"EnableSegmentLabels", enableSegmentLabels);
    AcDbSoftPointerId style = textStyleId;
    if (node->GetValue(L"TextStyleId", style))
        textStyleId = style;
    node->GetValue(L"ShowCenterCross", showCenterCross);
    LoadHeight(node, L"SegmentLabelHeight", segmentLabelHeight);
    int color = colorIndex;
    if (node->GetValue(L"ColorIndex", color))
        colorIndex = color >= 0 && color <= kMaxColorIndex ? color : 0;
    if (const DataNode* title = node->GetChild(L"TitleLabel")) {
        title->GetValue(L"Text", titleText);
        title->GetValue(L"Visible", titleVisible);
        LoadHeight(title, L"Height", titleHeight);
    }
    int count = 0;
    if (!node->GetValue(L"SegmentLabelCount", count))
        return;
    // A node holds at most this many children, so no more labels can have been stored.
    count = std::clamp(count, 0, static_cast<int>(DataNode::kMaxChildCount));
    std::vector<TextBaseLabel> labels(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < labels.size(); ++i)
        labels[i].GetValue(node->GetChild(SegmentLabelName(i)));
    segmentLabels.swap(labels);
}

void PolyOpeningData::TransformBy(const AcGeMatrix3d& m)
{
    const double scale = m.scale();
    if (!(std::isfinite(scale) && scale > 0.0))
        return;
    titleHeight *= scale;
    segmentLabelHeight *= scale;
}

void PolyOpeningData::ResizeSegmentLabels(std::size_t count)
{
    segmentLabels.resize(count);
}
