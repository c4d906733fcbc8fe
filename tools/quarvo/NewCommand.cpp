// quarvo new: parse, build in a new document as one command, save.
#include "NewCommand.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "LayoutBuilder.h"
#include "ToolError.h"
#include "ToolSession.h"

namespace quarvo {
namespace {

// A description larger than this is not a layout; reading it would only exhaust memory.
constexpr std::uintmax_t kMaxDescriptionBytes = 256u << 20;

std::string ReadDescription(const std::string& path)
{
    const std::filesystem::path file = std::filesystem::u8path(path);
    std::error_code error;
    if (!std::filesystem::exists(file, error))
        throw ToolError(path + ": no such file");
    if (!std::filesystem::is_regular_file(file, error))
        throw ToolError(path + ": not a file");
    const std::uintmax_t size = std::filesystem::file_size(file, error);
    if (error || size > kMaxDescriptionBytes)
        throw ToolError(path + ": larger than 256 MiB, not a layout description");
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    if (!in && !in.eof())
        throw ToolError(path + ": cannot be read");
    return text.str();
}

}  // namespace

int RunNew(const NewOptions& options)
{
    const std::string text = ReadDescription(options.layout);
    rapidjson::Document document;
    LayoutBuilder::Parse(text, document);

    ToolSession tool(options.modulePath);
    AcApDocument* doc = tool.New();
    std::map<std::string, int> built;
    const Acad::ErrorStatus ran = tool.session().runCommand(
        doc, [&] { LayoutBuilder::Build(document, doc->database(), built); }, L"QXNEW");
    if (ran != Acad::eOk)
        throw ToolError("the new drawing cannot be changed");
    tool.SaveAs(doc, options.output);

    int total = 0;
    std::string kinds;
    for (const auto& [kind, count] : built) {
        total += count;
        kinds += (kinds.empty() ? "" : ", ") + kind + " " + std::to_string(count);
    }
    std::printf("Built %d entities%s into %s\n", total, kinds.empty() ? "" : (" (" + kinds + ")").c_str(),
                options.output.c_str());
    return kExitOk;
}

}  // namespace quarvo
