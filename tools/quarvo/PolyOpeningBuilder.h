// The description's "polyOpenings": a polygonal opening each.
#pragma once

#include "JsonObjectReader.h"
#include "LayoutContext.h"

namespace quarvo {

void BuildPolyOpening(JsonObjectReader& item, LayoutContext& context);

}  // namespace quarvo
