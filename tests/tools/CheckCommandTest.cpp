// quarvo check on prepared drawings: clean, a damaged record, a proxy, an information
// block that does not parse, and a file that is no drawing.
#include <gtest/gtest.h>

#include <algorithm>

#include "DrawingFilePatch.h"
#include "ToolRun.h"

namespace {

using qxtest::RunQuarvo;

class CheckCommandTest : public ::testing::Test {
protected:
    // A drawing from the sample description with nodeBasicInfo replaced by block.
    std::string MakeDrawing(const std::string& name, const std::string& block = "{\"编号\": \"J-01\"}")
    {
        std::string layout = qxtest::SampleLayout();
        const std::string node = "{\"编号\": \"J-01\"}";
        layout.replace(layout.find(node), node.size(), block);
        qxtest::WriteFile(folder / (name + ".json"), layout);
        const std::string drawing = folder / (name + ".qxd");
        const auto built = RunQuarvo({"new", folder / (name + ".json"), "-o", drawing});
        EXPECT_EQ(built.exitCode, 0) << built.err;
        return drawing;
    }

    std::string HandleOf(const std::string& drawing, const std::string& type)
    {
        const std::vector<std::string> handles = qxtest::HandlesIn(RunQuarvo({"list", drawing, "--type", type}).out);
        return handles.empty() ? std::string() : handles[0];
    }

    qxtest::TempFolder folder;
};

TEST_F(CheckCommandTest, ACleanDrawingAnswersZero)
{
    const auto run = RunQuarvo({"check", MakeDrawing("clean")});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, "Clean: 2 entities checked.\n");
}

TEST_F(CheckCommandTest, FindsAnInformationBlockThatDoesNotParse)
{
    // A string block is stored as given: here, JSON cut short after its first member name.
    const std::string drawing = MakeDrawing("block", "\"{\\\"编号\\\": \"");
    const std::string handle = HandleOf(drawing, "QX_DIVISION_LINE");
    const auto run = RunQuarvo({"check", drawing});
    EXPECT_EQ(run.exitCode, 1);
    const auto lines = qxtest::Lines(run.out);
    ASSERT_EQ(lines.size(), 2u) << run.out;
    EXPECT_EQ(lines[0].rfind(handle + " QX_DIVISION_LINE: 节点基本信息 is not valid JSON (at byte 11: ", 0), 0u)
        << lines[0];
    EXPECT_EQ(lines[1], "1 finding in 2 entities.");
}

// Every kind that keeps information blocks has them checked, each block by its name.
TEST_F(CheckCommandTest, FindsTheBlocksOfEveryKindThatKeepsThem)
{
    qxtest::WriteFile(folder / "lines.json", R"({"format": "quarvo-layout", "version": 1,
      "overlapLines": [{"start": {"x": 0, "y": 0}, "end": {"x": 100, "y": 0}, "accessoryInfo": "[1,"}],
      "structuralLines": [{"start": {"x": 0, "y": 0}, "end": {"x": 0, "y": 100}, "shouBianInfo": "{}x"}],
      "panels": [{"loops": [[{"x": 0, "y": 0}, {"x": 9, "y": 0}, {"x": 0, "y": 9}]], "hatchInfo": "{\"patScale\""}]})");
    const auto built = RunQuarvo({"new", folder / "lines.json", "-o", folder / "lines.qxd"});
    ASSERT_EQ(built.exitCode, 0) << built.err;
    const std::string overlap = HandleOf(folder / "lines.qxd", "QX_OVERLAP_LINE");
    const std::string structural = HandleOf(folder / "lines.qxd", "QX_STRUCTURAL_LINE");
    const std::string panel = HandleOf(folder / "lines.qxd", "QX_PANEL");
    const auto run = RunQuarvo({"check", folder / "lines.qxd"});
    EXPECT_EQ(run.exitCode, 1);
    const auto lines = qxtest::Lines(run.out);
    ASSERT_EQ(lines.size(), 4u) << run.out;
    EXPECT_EQ(lines[0].rfind(panel + " QX_PANEL: 填充图案信息 is not valid JSON (", 0), 0u) << lines[0];
    EXPECT_EQ(lines[1].rfind(overlap + " QX_OVERLAP_LINE: 辅配件信息 is not valid JSON (", 0), 0u) << lines[1];
    EXPECT_EQ(lines[2].rfind(structural + " QX_STRUCTURAL_LINE: 收边信息 is not valid JSON (", 0), 0u) << lines[2];
    EXPECT_EQ(lines[3], "3 findings in 3 entities.");
}

TEST_F(CheckCommandTest, FindsADamagedRecord)
{
    const std::string drawing = MakeDrawing("damaged");
    std::string bytes = qxtest::ReadFile(drawing);
    // The opening's title 采光孔 is filed as UTF-16: 采 is C7 91. Changing it breaks the
    // checksum of the opening's record.
    const std::size_t at = bytes.find(std::string("\xC7\x91", 2));
    ASSERT_NE(at, std::string::npos);
    bytes[at] = 'X';
    qxtest::WriteFile(drawing, bytes);

    const auto run = RunQuarvo({"check", drawing});
    EXPECT_EQ(run.exitCode, 1) << run.err;
    const auto lines = qxtest::Lines(run.out);
    ASSERT_FALSE(lines.empty());
    EXPECT_NE(run.out.find("its checksum does not match its contents; skipped."), std::string::npos) << run.out;
    EXPECT_EQ(lines.back(),
              std::to_string(lines.size() - 1) + " finding" + (lines.size() == 2 ? "" : "s") + " in 1 entity.");
}

TEST_F(CheckCommandTest, FindsARecordItsClassRefusedKeptAsAProxy)
{
    const std::string drawing = MakeDrawing("proxy");
    const std::string handle = HandleOf(drawing, "QX_DIVISION_LINE");
    std::string text = qxtest::ReadFile(drawing);
    std::vector<std::uint8_t> file(text.begin(), text.end());
    // The line's own record starts with its version, then one bool (true) and five ints.
    const std::vector<std::uint8_t> start = {1, 0, 0, 0, 1, 0, 0, 0, 1, 5, 0, 0, 0};
    bool patched = false;
    ASSERT_TRUE(qxtest::PatchObjectBytes(
        file, AcDbHandle(std::stoull(handle, nullptr, 16)), [&](std::vector<std::uint8_t>& bytes) {
            auto found = std::search(bytes.begin(), bytes.end(), start.begin(), start.end());
            if (found == bytes.end())
                return;
            *found = 2;  // a newer version than the module reads
            patched = true;
        }));
    ASSERT_TRUE(patched);
    qxtest::WriteFile(drawing, std::string(file.begin(), file.end()));

    const auto run = RunQuarvo({"check", drawing});
    EXPECT_EQ(run.exitCode, 1) << run.err;
    EXPECT_NE(run.out.find(handle +
                           " QX_DIVISION_LINE: kept as a proxy: its class refused the data (a newer "
                           "version, or damaged)\n"),
              std::string::npos)
        << run.out;
    // The proxy keeps what it drew: it still lists, plots and exports.
    EXPECT_EQ(RunQuarvo({"plot", drawing, "-o", folder / "proxy.svg"}).exitCode, 0);
}

TEST_F(CheckCommandTest, AFileThatIsNoDrawingAnswersTwo)
{
    const std::string drawing = MakeDrawing("cut");
    const std::string bytes = qxtest::ReadFile(drawing);
    qxtest::WriteFile(folder / "header.qxd", bytes.substr(0, 20));
    const auto run = RunQuarvo({"check", folder / "header.qxd"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(qxtest::Lines(run.err).size(), 1u) << run.err;
}

}  // namespace
