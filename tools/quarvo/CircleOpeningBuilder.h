// The layout description's "circleOpenings": one circle opening each.
#pragma once

#include "JsonObjectReader.h"
#include "LayoutContext.h"

namespace quarvo {

void BuildCircleOpening(JsonObjectReader& item, LayoutContext& context);

}  // namespace quarvo
