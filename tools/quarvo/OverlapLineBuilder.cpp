// An overlap line from its description: the segment, the widths of the lapped band, which
// sheet lies on top, and the settings every layout line shares.
#include "OverlapLineBuilder.h"

#include <memory>

#include "LayoutLineReader.h"
#include "lines/AecOverlapLine.h"

namespace quarvo {

void BuildOverlapLine(JsonObjectReader& item, LayoutContext& context)
{
    auto line = std::make_unique<AecOverlapLine>();
    const LayoutSegment segment = ReadLineSegment(item, "an overlap line");
    line->SetPoints(segment.start, segment.end);
    line->SetOverlapLeft(ReadLineDistance(item, "overlapLeft", line->GetOverlapLeft()));
    line->SetOverlapRight(ReadLineDistance(item, "overlapRight", line->GetOverlapRight()));
    line->SetOverlapDirection(static_cast<OverlapDirection>(
        item.Choice("direction", {{"leftOverRight", LeftOverRight}, {"rightOverLeft", RightOverLeft}}, LeftOverRight)));
    line->SetDrawOptions(static_cast<OverlapDrawOptions>(item.Flags("drawOptions",
                                                                    {{"centerLine", kOverlapDrawCenterLine},
                                                                     {"boundary", kOverlapDrawBoundary},
                                                                     {"direction", kOverlapDrawDirection}},
                                                                    line->GetDrawOptions())));
    ReadLineSettings(item, context, *line);
    context.Add(line.release(), item);
}

}  // namespace quarvo
