// OutputFile: how the tool writes its results: into a temporary file beside the target
// that is renamed over it once complete, so that a failed run never leaves half a file
// where a good one was.
#pragma once

#include <string>

namespace quarvo {

class OutputFile {
public:
    // Writes bytes to path. ToolError when it cannot.
    static void Write(const std::string& path, const std::string& bytes);
    // The temporary name beside path that a writer of its own (a library) fills first.
    static std::string TemporaryFor(const std::string& path);
    // Renames temporary over path; ToolError (and the temporary removed) when it cannot.
    static void Replace(const std::string& temporary, const std::string& path);
    // Removes a temporary file left by a failed writer; never fails.
    static void Discard(const std::string& temporary);
};

}  // namespace quarvo
