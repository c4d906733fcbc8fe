// The description's "rectOpenings": a rectangular opening each.
#pragma once

#include "JsonObjectReader.h"
#include "LayoutContext.h"

namespace quarvo {

void BuildRectOpening(JsonObjectReader& item, LayoutContext& context);

}  // namespace quarvo
