// The description's "litePanels": a lite panel each.
#pragma once

#include "JsonObjectReader.h"
#include "LayoutContext.h"

namespace quarvo {

void BuildLitePanel(JsonObjectReader& item, LayoutContext& context);

}  // namespace quarvo
