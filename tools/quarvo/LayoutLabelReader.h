// A label of a layout description: a text shown on a panel, or the flashing line's label.
#pragma once

#include "JsonObjectReader.h"
#include "LayoutContext.h"
#include "geometry/TextLabel.h"

namespace quarvo {

// Reads label (members "type", "text", "visible", "height", "widthFactor", "position",
// "predefinedPosition", "directionMode", "fixedAngle", "direction", "layer", "color") over
// the defaults of a new label. A panel's labels must say their type; the label lies on
// ownerLayer unless it names a layer of its own.
DbxPanel::TextLabel ReadTextLabel(JsonObjectReader& label, const LayoutContext& context, bool typeRequired,
                                  const AcDbObjectId& ownerLayer);

}  // namespace quarvo
