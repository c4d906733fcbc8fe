// The demo: the module's main job on the built-in example.
#pragma once

#include <string>

namespace quarvo {

struct DemoOptions {
    std::string modulePath;
    std::string outputFolder = "out";
};

// Runs the demo; answers the process exit code.
int RunDemo(const DemoOptions& options);

}  // namespace quarvo
