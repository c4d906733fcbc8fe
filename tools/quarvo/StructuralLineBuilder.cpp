// A structural line (a beam or a column under the sheets) from its description: the
// segment, the member's widths, the indent lines, and the settings every layout line shares.
#include "StructuralLineBuilder.h"

#include <memory>

#include "LayoutLineReader.h"
#include "lines/AecStructuralLine.h"

namespace quarvo {

void BuildStructuralLine(JsonObjectReader& item, LayoutContext& context)
{
    auto line = std::make_unique<AecStructuralLine>();
    const LayoutSegment segment = ReadLineSegment(item, "a structural line");
    line->SetPoints(segment.start, segment.end);
    line->SetMemberType(static_cast<StructuralMemberType>(
        item.Choice("memberType", {{"beam", kStructuralBeam}, {"column", kStructuralColumn}}, line->GetMemberType())));
    line->SetMemberWidthLeft(ReadLineDistance(item, "memberWidthLeft", line->GetMemberWidthLeft()));
    line->SetMemberWidthRight(ReadLineDistance(item, "memberWidthRight", line->GetMemberWidthRight()));
    line->SetIndentLeft(ReadLineDistance(item, "indentLeft", line->GetIndentLeft()));
    line->SetIndentRight(ReadLineDistance(item, "indentRight", line->GetIndentRight()));
    line->SetDrawOptions(
        static_cast<StructuralDrawOptions>(item.Flags("drawOptions",
                                                      {{"centerLine", kStructuralDrawCenterLine},
                                                       {"memberBoundary", kStructuralDrawMemberBoundary},
                                                       {"indentLines", kStructuralDrawIndentLines}},
                                                      line->GetDrawOptions())));
    ReadLineSettings(item, context, *line);
    context.Add(line.release(), item);
}

}  // namespace quarvo
