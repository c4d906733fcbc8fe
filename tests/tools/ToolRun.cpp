// Running quarvo from the tests: fork and exec with standard output and error in files.
#include "ToolRun.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

namespace qxtest {

ToolRun RunProgram(const std::string& program, const std::vector<std::string>& args)
{
    TempFolder folder;
    const std::string outPath = folder / "out";
    const std::string errPath = folder / "err";
    std::vector<char*> argv;
    argv.push_back(const_cast<char*>(program.c_str()));
    for (const std::string& arg : args)
        argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);

    ToolRun run;
    const pid_t child = fork();
    if (child == 0) {
        const int out = open(outPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        const int err = open(errPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        if (out < 0 || err < 0 || dup2(out, 1) < 0 || dup2(err, 2) < 0)
            _exit(127);
        execv(program.c_str(), argv.data());
        _exit(127);
    }
    int status = 0;
    if (child > 0 && waitpid(child, &status, 0) == child)
        run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    run.out = ReadFile(outPath);
    run.err = ReadFile(errPath);
    return run;
}

ToolRun RunQuarvo(const std::vector<std::string>& args)
{
    return RunProgram(QUARVO_PROGRAM, args);
}

TempFolder::TempFolder()
{
    std::string pattern = ::testing::TempDir() + "quarvo-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr)
        ADD_FAILURE() << "cannot make a temporary folder from " << pattern;
    m_path = pattern;
}

TempFolder::~TempFolder()
{
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
}

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

void WriteFile(const std::string& path, const std::string& bytes)
{
    std::ofstream out(path, std::ios::binary);
    out << bytes;
}

bool FileExists(const std::string& path)
{
    std::error_code error;
    return std::filesystem::exists(path, error);
}

std::string SampleLayout()
{
    return R"({
  "format": "quarvo-layout",
  "version": 1,
  "layers": [{"name": "QX-节点线", "color": 3}, {"name": "QX-节点边界", "color": 1}, {"name": "QX-洞口", "color": 4}],
  "divisionLines": [
    {"layer": "QX-节点线", "start": {"x": 0, "y": 0}, "end": {"x": 100, "y": 0}, "indentLeft": 10, "indentRight": 20,
     "jieDian": {"boundaryLayer": "QX-节点边界", "boundaryColor": 1},
     "nodeBasicInfo": {"编号": "J-01"}, "accessoryInfo": ["螺钉"]}
  ],
  "circleOpenings": [
    {"layer": "QX-洞口", "center": {"x": 50, "y": 50}, "radius": 20, "title": {"text": "采光孔", "height": 10}}
  ]
})";
}

namespace {

const std::string kHandle = "Handle = ";

std::size_t HexDigitsAt(const std::string& text, std::size_t at)
{
    std::size_t end = at;
    while (end < text.size() && std::isxdigit(static_cast<unsigned char>(text[end])))
        ++end;
    return end - at;
}

}  // namespace

std::vector<std::string> HandlesIn(const std::string& listing)
{
    std::vector<std::string> handles;
    for (std::size_t at = listing.find(kHandle); at != std::string::npos; at = listing.find(kHandle, at + 1)) {
        const std::size_t start = at + kHandle.size();
        handles.push_back(listing.substr(start, HexDigitsAt(listing, start)));
    }
    return handles;
}

std::string WithoutHandles(const std::string& listing)
{
    std::string text = listing;
    for (std::size_t at = text.find(kHandle); at != std::string::npos; at = text.find(kHandle, at + 1)) {
        const std::size_t start = at + kHandle.size();
        text.replace(start, HexDigitsAt(text, start), "?");
    }
    return text;
}

std::string AttributeIn(const std::string& text, const std::string& attribute)
{
    const std::string head = attribute + "=\"";
    const std::size_t at = text.find(head);
    if (at == std::string::npos)
        return std::string();
    const std::size_t start = at + head.size();
    const std::size_t end = text.find('"', start);
    return end == std::string::npos ? std::string() : text.substr(start, end - start);
}

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    std::string line;
    while (std::getline(in, line))
        lines.push_back(line);
    return lines;
}

}  // namespace qxtest
