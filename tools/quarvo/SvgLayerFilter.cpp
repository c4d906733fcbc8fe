// SvgLayerFilter: only the chosen layers' groups of a plot.
#include "SvgLayerFilter.h"

#include <sstream>

namespace quarvo {
namespace {

constexpr const char* kGroupStart = "<g id=\"layer-";
constexpr const char* kLayerAttribute = "data-layer=\"";

}  // namespace

std::string SvgLayerFilter::Keep(const std::string& svg, const std::set<std::string>& layers)
{
    std::istringstream in(svg);
    std::string out;
    std::string line;
    bool skipping = false;
    while (std::getline(in, line)) {
        if (skipping) {
            skipping = line != "</g>";
            continue;
        }
        if (line.rfind(kGroupStart, 0) == 0) {
            const std::size_t at = line.find(kLayerAttribute);
            const std::size_t start = at == std::string::npos ? at : at + std::string(kLayerAttribute).size();
            const std::size_t end = start == std::string::npos ? start : line.find('"', start);
            const std::string name =
                end == std::string::npos ? std::string() : Unescape(line.substr(start, end - start));
            if (layers.count(name) == 0) {
                skipping = true;
                continue;
            }
        }
        out += line;
        out += '\n';
    }
    return out;
}

std::string SvgLayerFilter::Unescape(const std::string& text)
{
    static const std::pair<const char*, char> kEntities[] = {
        {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};
    std::string out;
    for (std::size_t i = 0; i < text.size();) {
        bool replaced = false;
        if (text[i] == '&') {
            for (const auto& [entity, c] : kEntities) {
                if (text.compare(i, std::string(entity).size(), entity) == 0) {
                    out += c;
                    i += std::string(entity).size();
                    replaced = true;
                    break;
                }
            }
        }
        if (!replaced)
            out += text[i++];
    }
    return out;
}

}  // namespace quarvo
