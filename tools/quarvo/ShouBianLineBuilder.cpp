// A flashing line from its description: a polyline of vertices with bulges, the band's
// indents, its layers and colours, its label and the flashing information its label
// text is taken from.
#include "ShouBianLineBuilder.h"

#include <memory>

#include "LayoutLabelReader.h"
#include "lines/AecShouBianLine.h"

namespace quarvo {
namespace {

std::string VertexPath(JsonObjectReader& item, std::size_t i)
{
    return item.PathOf("vertices") + "[" + std::to_string(i) + "]";
}

double Indent(JsonObjectReader& item, const char* key)
{
    const double indent = item.Number(key, 0.0);
    if (!(indent == 0.0 || (indent >= 1.0 && indent <= 500.0)))
        throw LayoutError(item.PathOf(key), "must be 0, or 1 to 500");
    return indent;
}

}  // namespace

void BuildShouBianLine(JsonObjectReader& item, LayoutContext& context)
{
    auto line = std::make_unique<AecShouBianLine>();
    const std::vector<LayoutVertex> vertices = item.Vertices("vertices", 2);
    const bool closed = item.Bool("closed", false);
    line->SetClosed(closed);
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const Acad::ErrorStatus es =
            line->AppendVertex(AcGePoint3d(vertices[i].x, vertices[i].y, 0.0), vertices[i].bulge);
        if (es != Acad::eOk)
            throw LayoutError(VertexPath(item, i),
                              i > 0 && vertices[i].x == vertices[i - 1].x && vertices[i].y == vertices[i - 1].y
                                  ? "repeats the vertex before it"
                                  : "the flashing line refuses this vertex");
    }
    line->SetIndentLeft(Indent(item, "indentLeft"));
    line->SetIndentRight(Indent(item, "indentRight"));
    line->SetStandalone(item.Bool("standalone", true));
    line->SetBoundaryIdentifierPoint(item.Point("identifierPoint", AcGePoint3d::kOrigin));
    line->SetDrawOptions(static_cast<ShouBianDrawOptions>(
        item.Flags("drawOptions", {{"centerLine", 1}, {"boundaryLine", 2}, {"textLabel", 4}}, 3)));
    const std::wstring lineLayer = context.LayerReference(item, "lineLayer");
    if (!lineLayer.empty())
        line->SetLineLayerName(lineLayer.c_str());
    const std::wstring textLayer = context.LayerReference(item, "textLayer");
    if (!textLayer.empty())
        line->SetTextLayerName(textLayer.c_str());
    line->SetLineColorIndex(item.ColorIndex("lineColor", 0));
    line->SetBoundaryColorIndex(item.ColorIndex("boundaryColor", 0));
    line->SetTextColorIndex(item.ColorIndex("textColor", 0));
    if (const rapidjson::Value* label = item.Object("label")) {
        JsonObjectReader values(*label, item.PathOf("label"));
        const DbxPanel::TextLabel text = ReadTextLabel(values, context, false, context.LayerId(textLayer));
        values.Finish();
        line->SetTextLabelAt(0, text);
    }
    // Last: the label's text follows the flashing information.
    line->SetShouBianJsonStr(item.InformationBlock("shouBianInfo").c_str());
    context.Add(line.release(), item);
}

}  // namespace quarvo
