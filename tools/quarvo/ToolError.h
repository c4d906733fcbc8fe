// ToolError: what ends a command with exit code 2: a bad argument, an unreadable file, a
// layout description the tool refuses. Its message is one line; main shows it on stderr.
#pragma once

#include <stdexcept>
#include <string>

namespace quarvo {

// The exit codes every command answers with.
enum ExitCode : int {
    kExitOk = 0,
    kExitFindings = 1,  // check found something
    kExitError = 2,     // bad argument, unreadable file, refused description
};

class ToolError : public std::runtime_error {
public:
    explicit ToolError(const std::string& message) : std::runtime_error(message) {}
};

}  // namespace quarvo
