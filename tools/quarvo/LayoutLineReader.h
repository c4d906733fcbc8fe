// What the straight layout lines (division, overlap and structural lines) read alike from a
// layout description: the segment under the lines' length rule, and the node (JieDian) and
// flashing (ShouBian) display settings with the three information blocks, which the three
// lines define with the same accessors.
#pragma once

#include <cstdio>
#include <string>

#include "JsonObjectReader.h"
#include "LayoutContext.h"

namespace quarvo {

struct LayoutSegment {
    AcGePoint3d start;
    AcGePoint3d end;
};

// "start" and "end", refused unless 5 to 512000 apart: the lines would move an end to keep
// that rule, and a description is refused rather than silently changed. kind names the
// line in the refusal ("a division line").
inline LayoutSegment ReadLineSegment(JsonObjectReader& item, const char* kind)
{
    constexpr double kMinLength = 5.0;
    constexpr double kMaxLength = 512000.0;
    const LayoutSegment segment{item.RequiredPoint("start"), item.RequiredPoint("end")};
    const double length = segment.start.distanceTo(segment.end);
    if (length < kMinLength || length > kMaxLength) {
        char text[32];
        std::snprintf(text, sizeof text, "%g", length);
        throw LayoutError(item.path(), std::string(kind) + " is 5 to 512000 long, this one is " + text);
    }
    return segment;
}

// A width or indent of a line's outline, not negative.
inline double ReadLineDistance(JsonObjectReader& item, const char* key, double fallback)
{
    const double distance = item.Number(key, fallback);
    if (distance < 0.0)
        throw LayoutError(item.PathOf(key), "must not be negative");
    return distance;
}

// "jieDian", "shouBian", "nodeBasicInfo", "shouBianInfo" and "accessoryInfo".
template <class Line>
void ReadLineSettings(JsonObjectReader& item, LayoutContext& context, Line& line)
{
    if (const rapidjson::Value* jieDian = item.Object("jieDian")) {
        JsonObjectReader settings(*jieDian, item.PathOf("jieDian"));
        line.SetJieDianTextLayerName(context.LayerReference(settings, "textLayer").c_str());
        line.SetJieDianBoundaryLayerName(context.LayerReference(settings, "boundaryLayer").c_str());
        line.SetJieDianTextColorIndex(settings.ColorIndex("textColor", 0));
        line.SetJieDianBoundaryColorIndex(settings.ColorIndex("boundaryColor", 0));
        settings.Finish();
    }
    if (const rapidjson::Value* shouBian = item.Object("shouBian")) {
        JsonObjectReader settings(*shouBian, item.PathOf("shouBian"));
        line.SetShouBianTextLayerName(context.LayerReference(settings, "textLayer").c_str());
        line.SetShouBianLineLayerName(context.LayerReference(settings, "lineLayer").c_str());
        line.SetShouBianTextColorIndex(settings.ColorIndex("textColor", 0));
        line.SetShouBianLineColorIndex(settings.ColorIndex("lineColor", 0));
        settings.Finish();
    }
    line.SetNodeBasicJsonStr(item.InformationBlock("nodeBasicInfo").c_str());
    line.SetShouBianJsonStr(item.InformationBlock("shouBianInfo").c_str());
    line.SetAccessoryJsonStr(item.InformationBlock("accessoryInfo").c_str());
}

}  // namespace quarvo
