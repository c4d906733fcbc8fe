// A division line from its description: the segment, the indents of its outline, the node
// (JieDian) and flashing (ShouBian) display settings and the three information blocks.
#include "DivisionLineBuilder.h"

#include <memory>

#include "LayoutLineReader.h"
#include "lines/AecDivisionLine.h"

namespace quarvo {

void BuildDivisionLine(JsonObjectReader& item, LayoutContext& context)
{
    constexpr double kMaxBulge = 1000.0;
    auto line = std::make_unique<AecDivisionLine>();
    const LayoutSegment segment = ReadLineSegment(item, "a division line");
    const double bulge = item.Number("bulge", 0.0);
    if (bulge < -kMaxBulge || bulge > kMaxBulge)
        throw LayoutError(item.PathOf("bulge"), "must be -1000 to 1000");
    line->SetPoints(segment.start, segment.end);
    line->SetBulge(bulge);
    line->SetIndentLeft(ReadLineDistance(item, "indentLeft", line->GetIndentLeft()));
    line->SetIndentRight(ReadLineDistance(item, "indentRight", line->GetIndentRight()));
    if (item.Has("identifierPoint"))
        line->SetBoundaryIdentifierPoint(item.Point("identifierPoint", AcGePoint3d::kOrigin));
    line->SetDrawOptions(static_cast<DrawOptions>(item.Flags(
        "drawOptions", {{"centerLine", kDrawCenterLine}, {"boundary", kDrawBoundary}}, line->GetDrawOptions())));
    ReadLineSettings(item, context, *line);
    context.Add(line.release(), item);
}

}  // namespace quarvo
