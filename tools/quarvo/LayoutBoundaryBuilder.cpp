// The layout boundary from its description: a closed outline, turned counter-clockwise
// unless the description says otherwise, and its title.
#include "LayoutBoundaryBuilder.h"

#include <limits>
#include <memory>

#include "openings/AecBoundaryBaseImp.h"
#include "openings/AecLayoutBoundary.h"

namespace quarvo {
namespace {

// The same outline run the other way: each segment keeps its arc, so its bulge changes sign.
std::vector<LayoutVertex> Reversed(const std::vector<LayoutVertex>& vertices)
{
    const std::size_t n = vertices.size();
    std::vector<LayoutVertex> reversed(n);
    for (std::size_t j = 0; j < n; ++j) {
        reversed[j] = vertices[n - 1 - j];
        // The segment from reversed[j] to reversed[j + 1] is segment n - 2 - j (wrapping) run backwards.
        reversed[j].bulge = -vertices[(2 * n - 2 - j) % n].bulge;
    }
    return reversed;
}

void SetOutline(AecLayoutBoundary& boundary, const std::vector<LayoutVertex>& vertices)
{
    for (unsigned int i = boundary.numVerts(); i > 0; --i)
        boundary.removeVertexAt(i - 1);
    for (std::size_t i = 0; i < vertices.size(); ++i)
        boundary.addVertexAt(static_cast<unsigned int>(i), AcGePoint2d(vertices[i].x, vertices[i].y),
                             vertices[i].bulge);
    boundary.setClosed(Adesk::kTrue);
}

}  // namespace

void BuildLayoutBoundary(JsonObjectReader& item, LayoutContext& context)
{
    auto boundary = std::make_unique<AecLayoutBoundary>();
    const std::vector<LayoutVertex> vertices = item.Vertices("vertices", 3);
    SetOutline(*boundary, vertices);
    if (item.Bool("counterclockwise", true) && !AecBoundaryBaseImp::IsCounterclockwise(boundary.get()))
        SetOutline(*boundary, Reversed(vertices));

    LayoutBoundaryData data = boundary->GetImp()->GetData();
    data.kind = item.Integer("kind", data.kind, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    data.referencePoint = item.Point("referencePoint", data.referencePoint);
    data.referenceSize = item.Number("referenceSize", data.referenceSize);
    if (const rapidjson::Value* title = item.Object("title")) {
        JsonObjectReader label(*title, item.PathOf("title"));
        data.titleText = label.String("text", data.titleText.constPtr()).c_str();
        data.titleVisible = label.Bool("visible", data.titleVisible);
        data.titleHeight = label.PositiveNumber("height", data.titleHeight);
        data.titleOffset = label.Point("offset", data.titleOffset);
        data.titleDirection = label.Direction("direction", data.titleDirection);
        label.Finish();
    }
    boundary->GetImp()->SetData(data);
    context.Add(boundary.release(), item);
}

}  // namespace quarvo
