// The description's "structuralLines": a structural line each.
#pragma once

#include "JsonObjectReader.h"
#include "LayoutContext.h"

namespace quarvo {

void BuildStructuralLine(JsonObjectReader& item, LayoutContext& context);

}  // namespace quarvo
