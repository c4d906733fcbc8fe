// The guide's code blocks are excerpts of the example programs the tests run: each must
// stand, line for line, in one of them, or the guide has gone stale.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::string ReadFile(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// The bodies of the guide's ```cpp blocks.
std::vector<std::string> CppBlocks(const std::string& guide)
{
    std::vector<std::string> blocks;
    const std::string open = "```cpp\n";
    for (std::size_t at = guide.find(open); at != std::string::npos; at = guide.find(open, at)) {
        at += open.size();
        const std::size_t end = guide.find("```", at);
        if (end == std::string::npos)
            break;
        blocks.push_back(guide.substr(at, end - at));
        at = end + 3;
    }
    return blocks;
}

TEST(GuideSnippetsTest, EveryCodeBlockIsAnExcerptOfAnExampleProgram)
{
    const std::string guide = ReadFile(std::string(QX_SOURCE_DIR) + "/docs/guide.md");
    ASSERT_FALSE(guide.empty());
    std::vector<std::string> programs;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(QX_SOURCE_DIR) + "/examples/cpp"))
        if (entry.path().extension() == ".cpp")
            programs.push_back(ReadFile(entry.path()));
    ASSERT_FALSE(programs.empty());
    const std::vector<std::string> blocks = CppBlocks(guide);
    EXPECT_GE(blocks.size(), 8u);
    for (const std::string& block : blocks) {
        bool found = false;
        for (const std::string& program : programs)
            found = found || program.find(block) != std::string::npos;
        EXPECT_TRUE(found) << "not in any example program:\n" << block;
    }
}

}  // namespace
