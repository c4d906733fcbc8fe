// The description's "panels": a panel each.
#pragma once

#include "JsonObjectReader.h"
#include "LayoutContext.h"

namespace quarvo {

void BuildPanel(JsonObjectReader& item, LayoutContext& context);

}  // namespace quarvo
