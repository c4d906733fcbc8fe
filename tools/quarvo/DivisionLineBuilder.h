// The layout description's "divisionLines": one division line each.
#pragma once

#include "JsonObjectReader.h"
#include "LayoutContext.h"

namespace quarvo {

void BuildDivisionLine(JsonObjectReader& item, LayoutContext& context);

}  // namespace quarvo
