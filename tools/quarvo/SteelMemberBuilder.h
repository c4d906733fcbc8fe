// The description's "steelMembers": a steel member each.
#pragma once

#include "JsonObjectReader.h"
#include "LayoutContext.h"

namespace quarvo {

void BuildSteelMember(JsonObjectReader& item, LayoutContext& context);

}  // namespace quarvo
