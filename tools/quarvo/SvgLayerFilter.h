// SvgLayerFilter: keeps only some layers of a plot. The host's plot puts each layer's
// shapes in one group (<g id="layer-..." data-layer="NAME"> ... </g>, one shape a line);
// the filter drops the groups of the other layers and keeps the frame of the whole
// drawing, so that plots of different layers of one drawing lie over each other.
#pragma once

#include <set>
#include <string>

namespace quarvo {

class SvgLayerFilter {
public:
    // layers: names as UTF-8.
    static std::string Keep(const std::string& svg, const std::set<std::string>& layers);
    // The text of an XML attribute value with its entities replaced.
    static std::string Unescape(const std::string& text);
};

}  // namespace quarvo
