// quarvo copy: the host's copy command makes new entities that list as their originals do.
#include <gtest/gtest.h>

#include "ToolRun.h"

namespace {

using qxtest::RunQuarvo;

TEST(CopyCommandTest, CopiesListLikeTheirOriginalsUnderNewHandles)
{
    qxtest::TempFolder folder;
    const std::string drawing = folder / "layout.qxd";
    qxtest::WriteFile(folder / "layout.json", qxtest::SampleLayout());
    ASSERT_EQ(RunQuarvo({"new", folder / "layout.json", "-o", drawing}).exitCode, 0);
    const auto before = RunQuarvo({"list", drawing});
    const std::vector<std::string> handles = qxtest::HandlesIn(before.out);
    ASSERT_EQ(handles.size(), 2u);
    const std::string original = handles[0];
    const std::string bytes = qxtest::ReadFile(drawing);

    const auto copied = RunQuarvo({"copy", drawing, "--handles", original, "-o", folder / "copy.qxd"});
    ASSERT_EQ(copied.exitCode, 0) << copied.err;
    const std::string said = "\nCopied 1 object: " + original + " -> ";
    const std::size_t at = copied.out.find(said);
    ASSERT_NE(at, std::string::npos) << copied.out;
    const std::string copy = qxtest::Lines(copied.out.substr(at + said.size()))[0];
    EXPECT_FALSE(copy.empty());
    EXPECT_NE(copy, original);
    EXPECT_EQ(qxtest::ReadFile(drawing), bytes);  // -o leaves the drawing as it was

    const auto clone = RunQuarvo({"list", folder / "copy.qxd", "--handle", copy});
    const auto source = RunQuarvo({"list", drawing, "--handle", original});
    ASSERT_EQ(clone.exitCode, 0) << clone.err;
    EXPECT_EQ(qxtest::WithoutHandles(clone.out), qxtest::WithoutHandles(source.out));
    EXPECT_NE(clone.out.find("节点基本信息: {\"编号\":\"J-01\"}"), std::string::npos);

    const auto all = RunQuarvo({"list", folder / "copy.qxd"});
    EXPECT_EQ(qxtest::HandlesIn(all.out).size(), 3u);

    // Without -o the drawing itself takes the copies.
    ASSERT_EQ(RunQuarvo({"copy", drawing, "--handles", original}).exitCode, 0);
    const auto again = RunQuarvo({"list", drawing});
    EXPECT_EQ(qxtest::HandlesIn(again.out).size(), 3u);

    const auto twice = RunQuarvo({"copy", drawing, "--handles", original, original});
    EXPECT_EQ(twice.exitCode, 2);
    EXPECT_EQ(twice.err, "quarvo: handle " + original + " is given twice\n");
    // Handle 1 is the drawing's block table, not something a copy command selects.
    const auto table = RunQuarvo({"copy", drawing, "--handles", "1"});
    EXPECT_EQ(table.exitCode, 2);
    EXPECT_EQ(table.err, "quarvo: object 1 is not an entity\n");
}

// Copying one panel of a two-panel merge group dissolves the copy's group, with one alert.
TEST(CopyCommandTest, CopyingPartOfAMergeGroupAlertsOnce)
{
    qxtest::TempFolder folder;
    const std::string drawing = folder / "group.qxd";
    qxtest::WriteFile(folder / "group.json", R"({"format": "quarvo-layout", "version": 1, "panels": [
      {"loops": [[{"x": 0, "y": 0}, {"x": 750, "y": 0}, {"x": 750, "y": 6000}, {"x": 0, "y": 6000}]],
       "mergeInfo": {"direction": 1, "sequenceNumber": 1, "relatedPanels": [1]}},
      {"loops": [[{"x": 0, "y": 5800}, {"x": 750, "y": 5800}, {"x": 750, "y": 9000}, {"x": 0, "y": 9000}]],
       "mergeInfo": {"direction": 1, "sequenceNumber": 2, "relatedPanels": [0]}}]})");
    ASSERT_EQ(RunQuarvo({"new", folder / "group.json", "-o", drawing}).exitCode, 0);
    const std::vector<std::string> handles = qxtest::HandlesIn(RunQuarvo({"list", drawing}).out);
    ASSERT_EQ(handles.size(), 2u);

    const auto part = RunQuarvo({"copy", drawing, "--handles", handles[0], "-o", folder / "part.qxd"});
    ASSERT_EQ(part.exitCode, 0) << part.err;
    const std::string alert = "[alert] 检测到合并板或转角板未完整复制,已将本次复制出的相关板材转为普通直板。\n"
                              "请完整框选同一合并组/转角组后再复制。";
    std::size_t alerts = 0;
    for (std::size_t at = part.out.find(alert); at != std::string::npos; at = part.out.find(alert, at + 1))
        ++alerts;
    EXPECT_EQ(alerts, 1u) << part.out;

    const auto whole = RunQuarvo({"copy", drawing, "--handles", handles[0], handles[1], "-o", folder / "whole.qxd"});
    ASSERT_EQ(whole.exitCode, 0) << whole.err;
    EXPECT_EQ(whole.out.find("[alert]"), std::string::npos) << whole.out;
}

}  // namespace
