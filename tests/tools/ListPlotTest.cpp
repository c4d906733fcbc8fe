// quarvo list and plot on a drawing made from the sample description, and the command
// line's answers to bad arguments.
#include <gtest/gtest.h>

#include "ToolRun.h"

namespace {

using qxtest::RunQuarvo;

class ListPlotTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        qxtest::WriteFile(folder / "layout.json", qxtest::SampleLayout());
        const auto built = RunQuarvo({"new", folder / "layout.json", "-o", drawing});
        ASSERT_EQ(built.exitCode, 0) << built.err;
    }

    // The handles the full list shows, in drawing order.
    std::vector<std::string> Handles() { return qxtest::HandlesIn(RunQuarvo({"list", drawing}).out); }

    qxtest::TempFolder folder;
    const std::string drawing = folder / "layout.qxd";
};

TEST_F(ListPlotTest, ListsTheChosenHandlesInTheOrderGiven)
{
    const std::vector<std::string> handles = Handles();
    ASSERT_EQ(handles.size(), 2u);
    const auto both = RunQuarvo({"list", drawing, "--handle", handles[1], "--handle", handles[0]});
    ASSERT_EQ(both.exitCode, 0) << both.err;
    const std::size_t opening = both.out.find("圆形洞口");
    const std::size_t line = both.out.find("节点线信息");
    ASSERT_NE(opening, std::string::npos);
    ASSERT_NE(line, std::string::npos);
    EXPECT_LT(opening, line);

    const auto bad = RunQuarvo({"list", drawing, "--handle", "G1"});
    EXPECT_EQ(bad.exitCode, 2);
    EXPECT_EQ(bad.err, "quarvo: \"G1\" is not a handle (a hexadecimal number such as 2A)\n");
    const auto absent = RunQuarvo({"list", drawing, "--handle", "FFFFF"});
    EXPECT_EQ(absent.exitCode, 2);
    EXPECT_EQ(absent.err, "quarvo: the drawing has no object with handle FFFFF\n");
    const auto none = RunQuarvo({"list", drawing, "--type", "QX_PANEL"});
    EXPECT_EQ(none.exitCode, 0);
    EXPECT_EQ(none.out, "");
}

TEST_F(ListPlotTest, PlotsSvgWithOnlyTheChosenLayers)
{
    const auto all = RunQuarvo({"plot", drawing, "-o", folder / "all.svg", "--width", "600"});
    ASSERT_EQ(all.exitCode, 0) << all.err;
    const std::string svg = qxtest::ReadFile(folder / "all.svg");
    EXPECT_NE(svg.find("width=\"600\""), std::string::npos);
    for (const char* layer : {"QX-节点线", "QX-节点边界", "QX-洞口"})
        EXPECT_NE(svg.find(std::string("data-layer=\"") + layer + "\""), std::string::npos) << layer;

    const auto some = RunQuarvo({"plot", drawing, "-o", folder / "some.svg", "--layers", "QX-洞口", "QX-节点边界"});
    ASSERT_EQ(some.exitCode, 0) << some.err;
    const std::string part = qxtest::ReadFile(folder / "some.svg");
    EXPECT_EQ(part.find("data-layer=\"QX-节点线\""), std::string::npos);
    EXPECT_NE(part.find("data-layer=\"QX-洞口\""), std::string::npos);
    EXPECT_NE(part.find("<circle"), std::string::npos);
    EXPECT_NE(part.find("采光孔"), std::string::npos);
    EXPECT_NE(part.find("data-layer=\"QX-节点边界\""), std::string::npos);
    // The frame stays the whole drawing's, so that plots of layers lie over each other.
    EXPECT_FALSE(qxtest::AttributeIn(svg, "viewBox").empty());
    EXPECT_EQ(qxtest::AttributeIn(part, "viewBox"), qxtest::AttributeIn(svg, "viewBox"));

    const auto unknown = RunQuarvo({"plot", drawing, "-o", folder / "x.svg", "--layers", "QX-板材"});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_EQ(unknown.err, "quarvo: the drawing has no layer \"QX-板材\"\n");
    EXPECT_FALSE(qxtest::FileExists(folder / "x.svg"));
}

TEST_F(ListPlotTest, RendersPngOfTheAskedWidth)
{
    const auto run = RunQuarvo({"plot", drawing, "-o", folder / "plot.PNG", "--width", "320"});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    const std::string png = qxtest::ReadFile(folder / "plot.PNG");
    ASSERT_GT(png.size(), 24u);
    EXPECT_EQ(png.substr(0, 8), std::string("\x89PNG\r\n\x1a\n", 8));
    // The header chunk's width, big-endian, right after "IHDR".
    EXPECT_EQ(png.substr(12, 4), "IHDR");
    const auto byte = [&](std::size_t i) { return static_cast<unsigned>(static_cast<unsigned char>(png[i])); };
    EXPECT_EQ((byte(16) << 24) | (byte(17) << 16) | (byte(18) << 8) | byte(19), 320u);

    const auto jpeg = RunQuarvo({"plot", drawing, "-o", folder / "plot.jpg"});
    EXPECT_EQ(jpeg.exitCode, 2);
    EXPECT_EQ(jpeg.err, "quarvo: the output " + (folder / "plot.jpg") + " must end in .svg or .png\n");
}

TEST_F(ListPlotTest, EveryCommandHasHelpAndRefusesBadArgumentsInOneLine)
{
    for (const char* command : {"new", "list", "plot", "export-dxf", "check", "copy", "demo"}) {
        SCOPED_TRACE(command);
        const auto help = RunQuarvo({command, "--help"});
        EXPECT_EQ(help.exitCode, 0);
        EXPECT_NE(help.out.find(std::string("Usage: quarvo ") + command), std::string::npos) << help.out;
        const auto bad = RunQuarvo({command, "--no-such-option"});
        EXPECT_EQ(bad.exitCode, 2);
        EXPECT_EQ(qxtest::Lines(bad.err).size(), 1u) << bad.err;
        EXPECT_EQ(bad.err.rfind("quarvo: ", 0), 0u) << bad.err;
    }
    const std::vector<std::vector<std::string>> bad = {
        {},
        {"frobnicate"},
        {"plot", drawing, "-o", folder / "p.svg", "--width", "5"},
        {"plot", drawing, "-o", folder / "p.svg", "--width", "wide"},
        {"copy", drawing},
        {"--module", folder / "Nothing.dbx", "list", drawing},
    };
    for (const auto& args : bad) {
        const auto run = RunQuarvo(args);
        EXPECT_EQ(run.exitCode, 2) << run.err;
        EXPECT_EQ(qxtest::Lines(run.err).size(), 1u) << run.err;
    }
}

TEST_F(ListPlotTest, UnreadableDrawingsEndWithOneLine)
{
    qxtest::WriteFile(folder / "text.qxd", "not a drawing at all, only some text long enough");
    const std::vector<std::pair<std::string, std::string>> cases = {
        {folder / "missing.qxd", ": no such file"},
        {folder / "text.qxd", ": not a drawing file"},
        {folder / "", ": is a folder, not a drawing"},
    };
    for (const auto& [file, why] : cases) {
        for (const char* command : {"list", "check"}) {
            const auto run = RunQuarvo({command, file});
            EXPECT_EQ(run.exitCode, 2) << command << " " << file;
            EXPECT_EQ(run.err, "quarvo: " + file + why + "\n");
        }
    }
}

}  // namespace
