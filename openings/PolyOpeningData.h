// PolyOpeningData: everything the polygonal opening keeps besides its outline: the title,
// the centre cross, the segment labels of inspect mode, the colour and the text style.
// It lives in the node "PolyOpeningData" of the entity's tree.
#pragma once

#include <vector>

#include "AcString.h"
#include "dbid.h"
#include "gemat3d.h"
#include "geometry/TextBaseLabel.h"

class DataNode;

class PolyOpeningData {
public:
    static constexpr double kDefaultTitleHeight = 300.0;
    static constexpr double kDefaultSegmentLabelHeight = 200.0;

    PolyOpeningData() = default;
    PolyOpeningData(const PolyOpeningData&) = default;
    PolyOpeningData& operator=(const PolyOpeningData&) = default;
    virtual ~PolyOpeningData() = default;

    void CopyFrom(const PolyOpeningData* other);

    // "EnableSegmentLabels", "TextStyleId", "ShowCenterCross", "SegmentLabelHeight",
    // "ColorIndex", the child "TitleLabel" ("Text", "Visible", "Height"), then
    // "SegmentLabelCount" and one child "SegmentLabel_<index>" per segment label.
    void SaveToNodeData(DataNode* node) const;
    // A key the node lacks leaves its field as it was; so do heights that are not finite
    // and positive. A colour index outside 0..256 is read as 0, and the segment label
    // count is held to what a node can hold.
    void LoadFromNodeData(DataNode* node);

    // The two heights follow the matrix's scale when it is positive; nothing else changes.
    void TransformBy(const AcGeMatrix3d& m);
    void ResizeSegmentLabels(std::size_t count);

    bool titleVisible = true;
    AcString titleText = L"异形窗";
    bool showCenterCross = true;
    bool enableSegmentLabels = true;
    double titleHeight = kDefaultTitleHeight;
    double segmentLabelHeight = kDefaultSegmentLabelHeight;
    int colorIndex = 1;
    AcDbObjectId textStyleId;
    std::vector<TextBaseLabel> segmentLabels;
};
