// The description's "overlapLines": an overlap line each.
#pragma once

#include "JsonObjectReader.h"
#include "LayoutContext.h"

namespace quarvo {

void BuildOverlapLine(JsonObjectReader& item, LayoutContext& context);

}  // namespace quarvo
