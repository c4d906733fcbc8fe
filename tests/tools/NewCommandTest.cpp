// quarvo new: descriptions become drawings whose entities list what was described; every
// refused description names its JSON path and writes nothing.
#include <gtest/gtest.h>

#include <random>

#include "LayoutBuilder.h"
#include "ModuleTestSupport.h"
#include "ToolRun.h"
#include "headless/CommandLine.h"

namespace {

using qxtest::RunQuarvo;

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

TEST(NewCommandTest, EachKindListsWhatItsDescriptionSaid)
{
    qxtest::TempFolder folder;
    qxtest::WriteFile(folder / "layout.json", qxtest::SampleLayout());
    const auto built = RunQuarvo({"new", folder / "layout.json", "-o", folder / "layout.qxd"});
    ASSERT_EQ(built.exitCode, 0) << built.err;
    EXPECT_EQ(built.out, "Built 2 entities (circleOpenings 1, divisionLines 1) into " + (folder / "layout.qxd") + "\n");

    const auto lines = RunQuarvo({"list", folder / "layout.qxd", "--type", "QX_DIVISION_LINE"});
    ASSERT_EQ(lines.exitCode, 0) << lines.err;
    // A 100 long line with indents 10 and 20: an outline 30 wide of area 3000.
    for (const char* line :
         {"  Start Point: (0.000, 0.000, 0.000)", "  End Point: (100.000, 0.000, 0.000)", "  Segment Length: 100.000",
          "  Left Indent: 10.000", "  Right Indent: 20.000", "  Total Width: 30.000", "  Contour Area: 3000.000",
          "  节点基本信息: {\"编号\":\"J-01\"}", "  基本信息长度: 13 字符", "  收边信息: [无数据]",
          "  辅配件信息: [\"螺钉\"]", "  辅配件信息长度: 6 字符"})
        EXPECT_TRUE(Contains(lines.out, std::string("\n") + line + "\n")) << line << "\n" << lines.out;
    EXPECT_TRUE(Contains(lines.out, "Layer: \"QX-节点线\"")) << lines.out;
    EXPECT_FALSE(Contains(lines.out, "QX_CIRCLE_OPENING"));

    const auto openings = RunQuarvo({"list", folder / "layout.qxd", "--type", "qx_circle_opening"});
    ASSERT_EQ(openings.exitCode, 0) << openings.err;
    EXPECT_TRUE(Contains(openings.out, "\n圆形洞口: 圆心 (50.00, 50.00, 0.00)，半径 20.00，直径 40.00\n"))
        << openings.out;
    EXPECT_TRUE(Contains(openings.out, "\n标题: 显示，\"采光孔\"\n")) << openings.out;
    EXPECT_TRUE(Contains(openings.out, "Layer: \"QX-洞口\"")) << openings.out;
}

struct RefusedCase {
    const char* name;
    const char* description;
    const char* message;  // what follows "quarvo: " on stderr
};

// A minimal valid description with the members given spliced in at the top level.
std::string Layout(const std::string& members)
{
    return R"({"format": "quarvo-layout", "version": 1, "layers": [{"name": "A"}])" +
        (members.empty() ? std::string() : ", " + members) + "}";
}

const char* const kLine = R"("start": {"x": 0, "y": 0}, "end": {"x": 100, "y": 0})";

std::string Line(const std::string& extra)
{
    return R"("divisionLines": [{)" + std::string(kLine) + (extra.empty() ? "" : ", " + extra) + "}]";
}

std::string Opening(const std::string& extra)
{
    return R"("circleOpenings": [{"center": {"x": 0, "y": 0}, "radius": 5)" + (extra.empty() ? "" : ", " + extra) +
        "}]";
}

TEST(NewCommandTest, RefusesEveryBadDescriptionByItsPathAndWritesNothing)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {R"({"format": )", "line 1, column 12: not JSON: Invalid value."},
        {R"({"version": 1})", "format: must be \"quarvo-layout\""},
        {R"({"format": "quarvo-layout"})", "the layout: needs \"version\""},
        {R"({"format": "quarvo-layout", "version": 2})", "version: must be 1"},
        {R"([1, 2])", "the layout: must be an object"},
        {Layout(R"("panel": [])"), "the layout: unknown member \"panel\""},
        {R"({"format": "quarvo-layout", "version": 1, "layers": [{"name": "A"}, {"name": "A"}]})",
         "layers[1].name: the layer \"A\" is given twice"},
        {R"({"format": "quarvo-layout", "version": 1, "layers": [{"color": 3}]})", "layers[0]: a layer needs a name"},
        {Layout(Line(R"("layer": "B")")), "divisionLines[0].layer: no layer \"B\" is declared in layers"},
        {Layout(R"("divisionLines": {})"), "divisionLines: must be an array"},
        {Layout(R"("divisionLines": [{"start": {"x": 0}, "end": {"x": 1, "y": 1}}])"),
         "divisionLines[0].start: a point needs x and y"},
        {Layout(R"("divisionLines": [{"end": {"x": 1, "y": 1}}])"), "divisionLines[0]: needs \"start\""},
        {Layout(R"("divisionLines": [{"start": {"x": 0, "y": 0}, "end": {"x": 3, "y": 0}}])"),
         "divisionLines[0]: a division line is 5 to 512000 long, this one is 3"},
        {Layout(R"("divisionLines": [{"start": {"x": 0, "y": 0}, "end": {"x": 1e12, "y": 0}}])"),
         "divisionLines[0].end.x: must lie within ±1e9"},
        {Layout(Line(R"("bulge": 2000)")), "divisionLines[0].bulge: must be -1000 to 1000"},
        {Layout(Line(R"("indentLeft": -1)")), "divisionLines[0].indentLeft: must not be negative"},
        {Layout(Line(R"("drawOptions": ["centerLine", "outline"])")),
         "divisionLines[0].drawOptions[1]: must be one of \"centerLine\", \"boundary\""},
        {Layout(Line(R"("jieDian": {"boundaryColor": 300})")),
         "divisionLines[0].jieDian.boundaryColor: must be 0 to 256"},
        {Layout(Line(R"("jieDian": {"boundaryLayer": "C"})")),
         "divisionLines[0].jieDian.boundaryLayer: no layer \"C\" is declared in layers"},
        {Layout(Line(R"("shouBian": {"lineColour": 1})")), "divisionLines[0].shouBian: unknown member \"lineColour\""},
        {Layout(Line(R"("nodeBasicInfo": 5)")),
         "divisionLines[0].nodeBasicInfo: must be a JSON object, an array or a string"},
        {Layout(Line(R"("color": 1.5)")), "divisionLines[0].color: must be a whole number"},
        {Layout(R"("circleOpenings": [{"center": {"x": 0, "y": 0}, "radius": 0}])"),
         "circleOpenings[0].radius: must be greater than 0"},
        {Layout(Opening(R"("radius": 0)")), "circleOpenings[0]: member \"radius\" is given twice"},
        {Layout(R"("circleOpenings": [{"center": {"x": 0, "y": 0}, "radius": "5"}])"),
         "circleOpenings[0].radius: must be a number"},
        {Layout(R"("circleOpenings": [{"radius": 5}])"), "circleOpenings[0]: needs \"center\""},
        {Layout(R"("circleOpenings": [{"center": {"x": 0, "y": 0, "bulge": 1}, "radius": 5}])"),
         "circleOpenings[0].center: a point has no bulge"},
        {Layout(Opening(R"("title": {"txt": "A"})")), "circleOpenings[0].title: unknown member \"txt\""},
        {Layout(Opening(R"("title": {"direction": {"x": 0, "y": 0}})")),
         "circleOpenings[0].title.direction: a direction needs a length"},
        {Layout(Opening(R"("title": {"visible": "yes"})")), "circleOpenings[0].title.visible: must be true or false"},
        {Layout(R"("circleOpenings": [{"center": {"x": 0, "y": 0}, "radius": 5}, 7])"),
         "circleOpenings[1]: must be an object"},
        {Layout(R"("name": )" + std::string(70, '[') + std::string(70, ']')),
         "the layout: nested deeper than 64 levels"},
    };
    qxtest::TempFolder folder;
    const std::string output = folder / "out.qxd";
    for (const auto& [description, message] : cases) {
        SCOPED_TRACE(description);
        qxtest::WriteFile(folder / "bad.json", description);
        qxtest::WriteFile(output, "an older drawing");
        const auto run = RunQuarvo({"new", folder / "bad.json", "-o", output});
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_EQ(run.err, "quarvo: " + message + "\n");
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(qxtest::ReadFile(output), "an older drawing");
    }
}

TEST(NewCommandTest, RefusesKindsTheModuleDoesNotHaveYet)
{
    const std::vector<std::pair<std::string, std::string>> kinds = {
        {R"("boundary": {"vertices": []})", "boundary"},      {R"("panels": [{}])", "panels[0]"},
        {R"("litePanels": [{}])", "litePanels[0]"},           {R"("overlapLines": [{}])", "overlapLines[0]"},
        {R"("structuralLines": [{}])", "structuralLines[0]"}, {R"("flashingLines": [{}])", "flashingLines[0]"},
        {R"("steelMembers": [{}])", "steelMembers[0]"},       {R"("rectOpenings": [{}])", "rectOpenings[0]"},
        {R"("polyOpenings": [{}])", "polyOpenings[0]"},
    };
    qxtest::TempFolder folder;
    for (const auto& [members, path] : kinds) {
        SCOPED_TRACE(members);
        qxtest::WriteFile(folder / "kind.json", Layout(Line("") + ", " + members));
        const auto run = RunQuarvo({"new", folder / "kind.json", "-o", folder / "kind.qxd"});
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_EQ(run.err, "quarvo: " + path + ": entity kind not available in this build\n");
        EXPECT_FALSE(qxtest::FileExists(folder / "kind.qxd"));
    }
    // An empty array of such a kind asks for nothing.
    qxtest::WriteFile(folder / "empty.json", Layout(Line("") + R"(, "panels": [])"));
    EXPECT_EQ(RunQuarvo({"new", folder / "empty.json", "-o", folder / "empty.qxd"}).exitCode, 0);
}

TEST(NewCommandTest, UnreadableFilesAndBadArgumentsEndWithOneLine)
{
    qxtest::TempFolder folder;
    const auto missing = RunQuarvo({"new", folder / "missing.json", "-o", folder / "x.qxd"});
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_EQ(missing.err, "quarvo: " + (folder / "missing.json") + ": no such file\n");
    const auto noOutput = RunQuarvo({"new", folder / "missing.json"});
    EXPECT_EQ(noOutput.exitCode, 2);
    EXPECT_EQ(qxtest::Lines(noOutput.err).size(), 1u) << noOutput.err;
    EXPECT_NE(noOutput.err.find("--output"), std::string::npos) << noOutput.err;
    qxtest::WriteFile(folder / "layout.json", qxtest::SampleLayout());
    const auto unwritable = RunQuarvo({"new", folder / "layout.json", "-o", folder / "no/such/folder.qxd"});
    EXPECT_EQ(unwritable.exitCode, 2);
    EXPECT_EQ(unwritable.err, "quarvo: cannot write " + (folder / "no/such/folder.qxd") + "\n");
}

// Whatever the bytes, the builder either builds or refuses with a path: it never crashes,
// reads out of bounds or throws anything else (the sanitizers watch the memory).
TEST(NewCommandTest, DamagedDescriptionsAreBuiltOrRefusedNeverMore)
{
    const std::string sample = qxtest::SampleLayout();
    const std::string alphabet = "{}[]\",:-.0123456789eE xyz";
    std::mt19937 random(20240611);
    int refused = 0;
    for (int round = 0; round < 400; ++round) {
        std::string text = sample;
        const int edits = 1 + static_cast<int>(random() % 3);
        for (int e = 0; e < edits && !text.empty(); ++e) {
            const std::size_t at = random() % text.size();
            switch (random() % 3) {
            case 0: text.erase(at, 1 + random() % 8); break;
            case 1: text.insert(at, 1, alphabet[random() % alphabet.size()]); break;
            default: text[at] = alphabet[random() % alphabet.size()]; break;
            }
        }
        SCOPED_TRACE(text);
        qxtest::WorkingDatabase working;
        headless::CommandLineCapture quiet;
        try {
            rapidjson::Document document;
            quarvo::LayoutBuilder::Parse(text, document);
            std::map<std::string, int> built;
            quarvo::LayoutBuilder::Build(document, working.db(), built);
        } catch (const quarvo::LayoutError& error) {
            ++refused;
            EXPECT_NE(std::string(error.what()).find(": "), std::string::npos);
        }
    }
    EXPECT_GT(refused, 200);  // most edits break the description
}

}  // namespace
