// A polygonal opening from its description: the outline, the title, the centre cross and
// the segment labels shown in inspect mode.
#include "PolyOpeningBuilder.h"

#include <memory>

#include "headless/TextCodec.h"
#include "openings/AecPolyOpening.h"

namespace quarvo {

void BuildPolyOpening(JsonObjectReader& item, LayoutContext& context)
{
    auto opening = std::make_unique<AecPolyOpening>();
    const std::vector<LayoutVertex> vertices = item.Vertices("vertices", 3);
    for (std::size_t i = 0; i < vertices.size(); ++i)
        opening->addVertexAt(static_cast<unsigned int>(i), AcGePoint2d(vertices[i].x, vertices[i].y),
                             vertices[i].bulge);
    const bool closed = item.Bool("closed", true);
    opening->setClosed(closed ? Adesk::kTrue : Adesk::kFalse);

    PolyOpeningData data = opening->GetData();
    if (const rapidjson::Value* title = item.Object("title")) {
        JsonObjectReader label(*title, item.PathOf("title"));
        data.titleText = label.String("text", data.titleText.constPtr()).c_str();
        data.titleVisible = label.Bool("visible", data.titleVisible);
        data.titleHeight = label.PositiveNumber("height", data.titleHeight);
        label.Finish();
    }
    data.showCenterCross = item.Bool("showCenterCross", data.showCenterCross);
    if (const rapidjson::Value* labels = item.Object("segmentLabels")) {
        JsonObjectReader segment(*labels, item.PathOf("segmentLabels"));
        data.enableSegmentLabels = segment.Bool("enabled", data.enableSegmentLabels);
        data.segmentLabelHeight = segment.PositiveNumber("height", data.segmentLabelHeight);
        if (const rapidjson::Value* texts = segment.Array("texts")) {
            const std::size_t segments = closed ? vertices.size() : vertices.size() - 1;
            if (texts->Size() > segments)
                throw LayoutError(segment.PathOf("texts"),
                                  "one text per segment: the outline has " + std::to_string(segments));
            data.ResizeSegmentLabels(texts->Size());
            for (rapidjson::SizeType i = 0; i < texts->Size(); ++i) {
                const std::string path = segment.PathOf("texts") + "[" + std::to_string(i) + "]";
                if (!(*texts)[i].IsString())
                    throw LayoutError(path, "must be a string");
                data.segmentLabels[i].SetLabel(
                    headless::fromUtf8(std::string((*texts)[i].GetString(), (*texts)[i].GetStringLength())).c_str());
            }
        }
        segment.Finish();
    }
    data.colorIndex = item.ColorIndex("colorIndex", data.colorIndex);
    opening->SetData(data);
    context.Add(opening.release(), item);
}

}  // namespace quarvo
