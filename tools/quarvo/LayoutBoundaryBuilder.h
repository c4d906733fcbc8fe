// The description's "boundary": the layout boundary.
#pragma once

#include "JsonObjectReader.h"
#include "LayoutContext.h"

namespace quarvo {

void BuildLayoutBoundary(JsonObjectReader& item, LayoutContext& context);

}  // namespace quarvo
