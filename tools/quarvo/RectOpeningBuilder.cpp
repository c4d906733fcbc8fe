// A rectangular opening from its description: the anchor and which corner or middle it
// is, the size, the X direction, the dimensions and the title.
#include "RectOpeningBuilder.h"

#include <memory>

#include "dbmain.h"
#include "openings/AecRectOpening.h"

namespace quarvo {

void BuildRectOpening(JsonObjectReader& item, LayoutContext& context)
{
    auto opening = std::make_unique<AecRectOpening>();
    const AcGePoint3d anchor = item.RequiredPoint("anchor");
    const double width = item.RequiredPositiveNumber("width");
    const double height = item.RequiredPositiveNumber("height");
    opening->SetAnchorPosType(
        static_cast<AecRectOpening::AnchorPosType>(item.Choice("anchorPosition",
                                                               {{"topLeft", AecRectOpening::kTopLeft},
                                                                {"middleLeft", AecRectOpening::kMiddleLeft},
                                                                {"bottomLeft", AecRectOpening::kBottomLeft},
                                                                {"topCenter", AecRectOpening::kTopCenter},
                                                                {"center", AecRectOpening::kCenter},
                                                                {"bottomCenter", AecRectOpening::kBottomCenter},
                                                                {"topRight", AecRectOpening::kTopRight},
                                                                {"middleRight", AecRectOpening::kMiddleRight},
                                                                {"bottomRight", AecRectOpening::kBottomRight}},
                                                               AecRectOpening::kBottomLeft)));
    opening->Set(anchor, width, height);
    opening->SetDirX(item.Direction("xDirection", AcGeVector3d::kXAxis));
    opening->SetIsShowDim(item.Bool("showDimensions", false));
    if (context.db() != nullptr)
        opening->SetTextStyleId(context.db()->textstyle());
    if (const rapidjson::Value* title = item.Object("title")) {
        JsonObjectReader label(*title, item.PathOf("title"));
        opening->SetTitleText(label.String("text", L"洞口").c_str());
        opening->SetTitleHeight(label.PositiveNumber("height", 150.0));
        opening->SetTitleVisible(label.Bool("visible", true));
        label.Finish();
    }
    context.Add(opening.release(), item);
}

}  // namespace quarvo
