// A steel member from its description: the axis, beam or column, the band's widths and
// what is displayed.
#include "SteelMemberBuilder.h"

#include <memory>

#include "lines/AecSteelMember.h"

namespace quarvo {
namespace {

// The member would clamp a width into 1..2000; a description is refused instead.
double Width(JsonObjectReader& item, const char* key, double fallback)
{
    const double width = item.Number(key, fallback);
    if (width < 1.0 || width > 2000.0)
        throw LayoutError(item.PathOf(key), "must be 1 to 2000");
    return width;
}

}  // namespace

void BuildSteelMember(JsonObjectReader& item, LayoutContext& context)
{
    auto member = std::make_unique<AecSteelMember>();
    const AcGePoint3d start = item.RequiredPoint("start");
    const AcGePoint3d end = item.RequiredPoint("end");
    if (start.isEqualTo(end))
        throw LayoutError(item.path(), "a steel member needs two different ends");
    member->SetPoints(start, end);
    member->SetKind(static_cast<SteelMemberKind>(item.Choice("kind", {{"beam", 0}, {"column", 1}}, 0)));
    if (item.Has("width")) {
        if (item.Has("widthLeft") || item.Has("widthRight"))
            throw LayoutError(item.path(), "give \"width\" or \"widthLeft\" and \"widthRight\", not both");
        const double width = item.Number("width", 200.0);
        if (width < 2.0 || width > 4000.0)
            throw LayoutError(item.PathOf("width"), "must be 2 to 4000: each side is 1 to 2000");
        member->SetCenteredWidth(width);
    } else {
        member->SetWidths(Width(item, "widthLeft", 100.0), Width(item, "widthRight", 100.0));
    }
    member->SetDisplayOptions(static_cast<SteelMemberDisplayOptions>(
        item.Flags("displayOptions", {{"axis", 1}, {"outline", 2}, {"extra", 4}, {"noWidthText", 8}}, 3)));
    context.Add(member.release(), item);
}

}  // namespace quarvo
