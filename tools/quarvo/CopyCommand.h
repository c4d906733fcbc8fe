// quarvo copy: the host's copy command on some objects of a drawing.
#pragma once

#include <string>
#include <vector>

namespace quarvo {

struct CopyOptions {
    std::string modulePath;
    std::string drawing;
    std::vector<std::string> handles;
    std::string output;  // the drawing itself when empty
};

int RunCopy(const CopyOptions& options);

}  // namespace quarvo
