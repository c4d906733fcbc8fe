// quarvo new: a drawing from a layout description (docs/layout-format.md).
#pragma once

#include <string>

namespace quarvo {

struct NewOptions {
    std::string modulePath;
    std::string layout;  // the description, JSON
    std::string output;  // the drawing to write
};

// Writes the drawing only when the whole description was built; a refused description
// is a ToolError naming the JSON path and the reason, and nothing is written.
int RunNew(const NewOptions& options);

}  // namespace quarvo
