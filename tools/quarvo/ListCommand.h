// quarvo list: the entities' own list output, as the host's LIST shows it.
#pragma once

#include <string>
#include <vector>

namespace quarvo {

struct ListOptions {
    std::string modulePath;
    std::string drawing;
    std::vector<std::string> handles;  // only these, in this order (hexadecimal)
    std::vector<std::string> types;    // only entities of these DXF names
};

// Answers the exit code; ToolError for a bad handle or an unreadable drawing.
int RunList(const ListOptions& options);

}  // namespace quarvo
