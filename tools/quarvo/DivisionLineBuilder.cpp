// A division line from its description: the segment, the indents of its outline, the node
// (JieDian) and flashing (ShouBian) display settings and the three information blocks.
#include "DivisionLineBuilder.h"

#include <cstdio>
#include <memory>

#include "lines/AecDivisionLine.h"

namespace quarvo {
namespace {

// The line's own limits: the description is refused rather than silently changed.
constexpr double kMinLength = 5.0;
constexpr double kMaxLength = 512000.0;
constexpr double kMaxBulge = 1000.0;

std::string FormatLength(double length)
{
    char text[32];
    std::snprintf(text, sizeof text, "%g", length);
    return text;
}

double Indent(JsonObjectReader& item, const char* key, double fallback)
{
    const double indent = item.Number(key, fallback);
    if (indent < 0.0)
        throw LayoutError(item.PathOf(key), "must not be negative");
    return indent;
}

}  // namespace

void BuildDivisionLine(JsonObjectReader& item, LayoutContext& context)
{
    auto line = std::make_unique<AecDivisionLine>();
    const AcGePoint3d start = item.RequiredPoint("start");
    const AcGePoint3d end = item.RequiredPoint("end");
    const double length = start.distanceTo(end);
    if (length < kMinLength || length > kMaxLength)
        throw LayoutError(item.path(), "a division line is 5 to 512000 long, this one is " + FormatLength(length));
    const double bulge = item.Number("bulge", 0.0);
    if (bulge < -kMaxBulge || bulge > kMaxBulge)
        throw LayoutError(item.PathOf("bulge"), "must be -1000 to 1000");
    line->SetPoints(start, end);
    line->SetBulge(bulge);
    line->SetIndentLeft(Indent(item, "indentLeft", line->GetIndentLeft()));
    line->SetIndentRight(Indent(item, "indentRight", line->GetIndentRight()));
    if (item.Has("identifierPoint"))
        line->SetBoundaryIdentifierPoint(item.Point("identifierPoint", AcGePoint3d::kOrigin));
    line->SetDrawOptions(static_cast<DrawOptions>(item.Flags(
        "drawOptions", {{"centerLine", kDrawCenterLine}, {"boundary", kDrawBoundary}}, line->GetDrawOptions())));

    if (const rapidjson::Value* jieDian = item.Object("jieDian")) {
        JsonObjectReader settings(*jieDian, item.PathOf("jieDian"));
        line->SetJieDianTextLayerName(context.LayerReference(settings, "textLayer").c_str());
        line->SetJieDianBoundaryLayerName(context.LayerReference(settings, "boundaryLayer").c_str());
        line->SetJieDianTextColorIndex(settings.ColorIndex("textColor", 0));
        line->SetJieDianBoundaryColorIndex(settings.ColorIndex("boundaryColor", 0));
        settings.Finish();
    }
    if (const rapidjson::Value* shouBian = item.Object("shouBian")) {
        JsonObjectReader settings(*shouBian, item.PathOf("shouBian"));
        line->SetShouBianTextLayerName(context.LayerReference(settings, "textLayer").c_str());
        line->SetShouBianLineLayerName(context.LayerReference(settings, "lineLayer").c_str());
        line->SetShouBianTextColorIndex(settings.ColorIndex("textColor", 0));
        line->SetShouBianLineColorIndex(settings.ColorIndex("lineColor", 0));
        settings.Finish();
    }
    line->SetNodeBasicJsonStr(item.InformationBlock("nodeBasicInfo").c_str());
    line->SetShouBianJsonStr(item.InformationBlock("shouBianInfo").c_str());
    line->SetAccessoryJsonStr(item.InformationBlock("accessoryInfo").c_str());
    context.Add(line.release(), item);
}

}  // namespace quarvo
