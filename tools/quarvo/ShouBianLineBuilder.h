// The description's "flashingLines": a flashing line each.
#pragma once

#include "JsonObjectReader.h"
#include "LayoutContext.h"

namespace quarvo {

void BuildShouBianLine(JsonObjectReader& item, LayoutContext& context);

}  // namespace quarvo
