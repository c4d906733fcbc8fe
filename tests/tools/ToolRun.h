// Running quarvo as a program from the tests, and the files the tests make for it.
#pragma once

#include <string>
#include <vector>

namespace qxtest {

struct ToolRun {
    int exitCode = -1;
    std::string out;  // standard output
    std::string err;  // standard error
};

// Runs program with args (no shell) and collects what it printed and its exit code.
ToolRun RunProgram(const std::string& program, const std::vector<std::string>& args);
// quarvo with args.
ToolRun RunQuarvo(const std::vector<std::string>& args);

// A new empty folder for one test, removed with everything in it at the end.
class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    // path of name inside the folder.
    std::string operator/(const std::string& name) const { return m_path + "/" + name; }

private:
    std::string m_path;
};

std::string ReadFile(const std::string& path);
void WriteFile(const std::string& path, const std::string& bytes);
bool FileExists(const std::string& path);

// A layout description of two layers, a division line from (0,0) to (100,0) with indents
// 10 and 20 and a node block, and a circle opening at (50,50) of radius 20 titled 采光孔.
std::string SampleLayout();

// The handles a list output shows ("Handle = 2A"), in order.
std::vector<std::string> HandlesIn(const std::string& listing);
// The list output with every handle replaced by "?".
std::string WithoutHandles(const std::string& listing);
// The first value of attribute in text (name="value"), or empty.
std::string AttributeIn(const std::string& text, const std::string& attribute);

// The lines of text, without their line ends.
std::vector<std::string> Lines(const std::string& text);

}  // namespace qxtest
