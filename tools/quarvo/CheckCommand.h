// quarvo check: what is wrong with a drawing: damaged or skipped records, objects kept as
// proxies, entities whose own data does not hold together, and what the entities
// themselves warn about while they draw and list.
#pragma once

#include <string>
#include <vector>

namespace quarvo {

struct CheckOptions {
    std::string modulePath;
    std::string drawing;
};

// Prints one line per finding, then a summary; kExitOk when clean, kExitFindings when
// anything was found, ToolError (kExitError) when the file is not a readable drawing.
int RunCheck(const CheckOptions& options);

}  // namespace quarvo
