// quarvo plot: a drawing's model space as an SVG or PNG picture.
#pragma once

#include <string>
#include <vector>

namespace quarvo {

struct PlotOptions {
    std::string modulePath;
    std::string drawing;
    std::string output;  // .svg or .png
    int widthPixels = 1200;
    std::vector<std::string> layers;  // only these layers (all when empty)
};

// The kind of picture a file name asks for: "svg", "png", or empty for neither.
std::string PlotFormatOf(const std::string& path);

int RunPlot(const PlotOptions& options);

}  // namespace quarvo
