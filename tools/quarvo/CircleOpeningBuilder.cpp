// A circle opening from its description: centre, radius and an optional title.
#include "CircleOpeningBuilder.h"

#include <memory>

#include "openings/AecCircleOpening.h"

namespace quarvo {

void BuildCircleOpening(JsonObjectReader& item, LayoutContext& context)
{
    auto opening = std::make_unique<AecCircleOpening>();
    const AcGePoint3d center = item.RequiredPoint("center");
    const double radius = item.RequiredPositiveNumber("radius");
    opening->setCenter(center);
    opening->setRadius(radius);
    if (const rapidjson::Value* title = item.Object("title")) {
        JsonObjectReader label(*title, item.PathOf("title"));
        CircleOpeningData data = opening->GetData();
        data.titleLabel.SetLabel(label.String("text", L"").c_str());
        data.titleLabel.SetVisible(label.Bool("visible", true));
        const double height = label.PositiveNumber("height", TextBaseLabel::kDefaultHeight);
        data.titleLabel.SetHeight(height);
        // Without a position the title stands clear above the circle.
        data.titleLabel.SetPosition(label.Point("position", center + AcGeVector3d(0.0, radius + height, 0.0)));
        data.titleLabel.SetTextDirX(label.Direction("direction", AcGeVector3d::kXAxis));
        data.titleLabel.SetExtension(label.String("extension", L"").c_str());
        label.Finish();
        opening->SetData(data);
    }
    context.Add(opening.release(), item);
}

}  // namespace quarvo
