// PngRenderer: an SVG picture rendered to a PNG file through librsvg and cairo, with the
// fonts the machine has (the set-up installs one that shows Chinese).
#pragma once

#include <string>

namespace quarvo {

class PngRenderer {
public:
    // The largest side the renderer makes, in pixels: beyond it the image would take
    // gigabytes.
    static constexpr int kMaxSide = 32768;

    // Renders svg at its own size in pixels to path. ToolError when librsvg refuses the
    // picture, the size is out of bounds or the file cannot be written.
    static void Render(const std::string& svg, const std::string& path);
};

}  // namespace quarvo
