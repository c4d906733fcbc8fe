// A lite panel from its description: its loops and the pattern that fills them.
#include "LitePanelBuilder.h"

#include <memory>

#include "panel/AecPanelLite.h"

namespace quarvo {

void BuildLitePanel(JsonObjectReader& item, LayoutContext& context)
{
    auto panel = std::make_unique<AecPanelLite>();
    const std::vector<std::vector<LayoutVertex>> loops = item.Loops("loops");
    for (std::size_t i = 0; i < loops.size(); ++i) {
        AcArray<AcGePoint2d> vertices;
        AcArray<double> bulges;
        for (const LayoutVertex& v : loops[i]) {
            vertices.append(AcGePoint2d(v.x, v.y));
            bulges.append(v.bulge);
        }
        if (panel->AppendLoop(vertices, bulges) != Acad::eOk)
            throw LayoutError(item.PathOf("loops") + "[" + std::to_string(i) + "]", "the panel refuses this loop");
    }
    if (const rapidjson::Value* pattern = item.Object("pattern")) {
        JsonObjectReader fill(*pattern, item.PathOf("pattern"));
        const int type =
            fill.Integer("type", AcDbHatch::kPreDefined, AcDbHatch::kUserDefined, AcDbHatch::kCustomDefined);
        const std::wstring name = fill.String("name", L"");
        const double scale = fill.PositiveNumber("scale", 1.0);
        const double angle = fill.Number("angle", 0.0);
        const int color = fill.ColorIndex("color", 0);
        const double last = fill.Number("lastValue", 0.0);
        fill.Finish();
        panel->SetOutlineAndPattern(static_cast<AcDbHatch::HatchPatternType>(type), name.c_str(), scale, angle, color,
                                    last);
    }
    context.Add(panel.release(), item);
}

}  // namespace quarvo
