// quarvo export-dxf, read back by an independent reader (ezdxf under the system's
// python3): the file audits without errors and holds what the entities drew.
#include <gtest/gtest.h>

#include <cstdio>

#include <rapidjson/document.h>

#include <map>
#include <set>

#include "ToolRun.h"

namespace {

using qxtest::RunQuarvo;

const char* const kPython = "/usr/bin/python3";

// Two division lines (one straight, one an arc with bulge -0.5) and two titled openings.
const char* const kLayout = R"({
  "format": "quarvo-layout", "version": 1,
  "layers": [{"name": "QX-节点线", "color": 3}, {"name": "QX-节点边界", "color": 1}, {"name": "QX-洞口", "color": 4}],
  "divisionLines": [
    {"layer": "QX-节点线", "start": {"x": 0, "y": 0}, "end": {"x": 100, "y": 0},
     "jieDian": {"boundaryLayer": "QX-节点边界", "boundaryColor": 1}},
    {"layer": "QX-节点线", "start": {"x": 0, "y": 200}, "end": {"x": 100, "y": 200}, "bulge": -0.5,
     "drawOptions": ["centerLine"]}
  ],
  "circleOpenings": [
    {"layer": "QX-洞口", "center": {"x": 50, "y": 50}, "radius": 20, "title": {"text": "采光孔 D40", "height": 10}},
    {"layer": "QX-洞口", "center": {"x": 80, "y": 50}, "radius": 5, "title": {"text": "管道孔", "height": 4}}
  ]
})";

class ExportDxfTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        const auto probe = qxtest::RunProgram(kPython, {"-c", "import ezdxf"});
        if (probe.exitCode != 0)
            GTEST_SKIP() << "the system's python3 has no ezdxf (scripts/setup-machine installs python3-ezdxf)";
        qxtest::WriteFile(folder / "layout.json", kLayout);
        ASSERT_EQ(RunQuarvo({"new", folder / "layout.json", "-o", folder / "layout.qxd"}).exitCode, 0);
    }

    qxtest::TempFolder folder;
};

TEST_F(ExportDxfTest, AnIndependentReaderFindsWhatTheEntitiesDrew)
{
    const auto exported = RunQuarvo({"export-dxf", folder / "layout.qxd", "-o", folder / "layout.dxf"});
    ASSERT_EQ(exported.exitCode, 0) << exported.err;
    // Straight line: its outline (a closed four-vertex polyline) and its centre line (a
    // LINE). Arc line, centre only: one polyline with the bulge. Each opening: its circle
    // and its title's one text.
    EXPECT_EQ(exported.out,
              "Exported 7 entities to " + (folder / "layout.dxf") +
                  "\n  CIRCLE     2\n  LINE       1\n  LWPOLYLINE 2\n  TEXT       2\n");

    const auto read = qxtest::RunProgram(kPython, {QUARVO_DXF_READER, folder / "layout.dxf"});
    ASSERT_EQ(read.exitCode, 0) << read.err;
    rapidjson::Document found;
    found.Parse(read.out.c_str());
    ASSERT_TRUE(found.IsObject()) << read.out;

    EXPECT_EQ(found["errors"].Size(), 0u) << read.out;
    std::map<std::string, int> counts;
    for (const auto& count : found["counts"].GetObject())
        counts[count.name.GetString()] = count.value.GetInt();
    EXPECT_EQ(counts, (std::map<std::string, int>{{"CIRCLE", 2}, {"LINE", 1}, {"LWPOLYLINE", 2}, {"TEXT", 2}}));

    std::set<std::string> layers;
    for (const auto& layer : found["layers"].GetArray())
        layers.insert(layer.GetString());
    layers.erase("Defpoints");  // the reader adds it to every drawing it opens
    EXPECT_EQ(layers, (std::set<std::string>{"0", "QX-节点线", "QX-节点边界", "QX-洞口"}));

    std::vector<std::string> texts;
    for (const auto& text : found["texts"].GetArray())
        texts.push_back(text.GetString());
    EXPECT_EQ(texts, (std::vector<std::string>{"采光孔 D40", "管道孔"}));
    EXPECT_DOUBLE_EQ(found["text_heights"][0].GetDouble(), 10.0);
    EXPECT_DOUBLE_EQ(found["text_heights"][1].GetDouble(), 4.0);

    // The outline is drawn on the node boundary layer in red (1); the rest by layer (256).
    std::map<std::string, std::vector<std::string>> placed;
    for (const auto& entity : found["entities"].GetArray())
        placed[entity[0].GetString()].push_back(std::string(entity[1].GetString()) + " " +
                                                std::to_string(entity[2].GetInt()));
    EXPECT_EQ(placed["LWPOLYLINE"], (std::vector<std::string>{"QX-节点边界 1", "QX-节点线 256"}));
    EXPECT_EQ(placed["LINE"], (std::vector<std::string>{"QX-节点线 256"}));
    EXPECT_EQ(placed["CIRCLE"], (std::vector<std::string>{"QX-洞口 256", "QX-洞口 256"}));

    // The arc line keeps its bulge; the outline has none.
    const auto& bulges = found["bulges"];
    ASSERT_EQ(bulges.Size(), 2u);
    EXPECT_EQ(bulges[0].Size(), 4u);
    for (const auto& bulge : bulges[0].GetArray())
        EXPECT_EQ(bulge.GetDouble(), 0.0);
    ASSERT_EQ(bulges[1].Size(), 2u);
    EXPECT_DOUBLE_EQ(bulges[1][0].GetDouble(), -0.5);
}

// The example roof, every kind of entity: the independent reader audits the file without
// errors and counts what the exporter says it wrote; the Chinese texts come through.
TEST_F(ExportDxfTest, TheExampleRoofExportsWhatAnIndependentReaderCounts)
{
    const std::string drawing = folder / "roof.qxd";
    ASSERT_EQ(RunQuarvo({"new", std::string(QX_EXAMPLES_DIR) + "/roof-layout.json", "-o", drawing}).exitCode, 0);
    const auto exported = RunQuarvo({"export-dxf", drawing, "-o", folder / "roof.dxf"});
    ASSERT_EQ(exported.exitCode, 0) << exported.err;
    std::map<std::string, int> said;
    for (const std::string& line : qxtest::Lines(exported.out)) {
        char type[32] = {};
        int count = 0;
        if (line.rfind("  ", 0) == 0 && std::sscanf(line.c_str(), " %31s %d", type, &count) == 2)
            said[type] = count;
    }
    ASSERT_FALSE(said.empty()) << exported.out;

    const auto read = qxtest::RunProgram(kPython, {QUARVO_DXF_READER, folder / "roof.dxf"});
    ASSERT_EQ(read.exitCode, 0) << read.err;
    rapidjson::Document found;
    found.Parse(read.out.c_str());
    ASSERT_TRUE(found.IsObject());
    EXPECT_EQ(found["errors"].Size(), 0u);
    std::map<std::string, int> counts;
    for (const auto& count : found["counts"].GetObject())
        counts[count.name.GetString()] = count.value.GetInt();
    EXPECT_EQ(counts, said);
    std::set<std::string> texts;
    for (const auto& text : found["texts"].GetArray())
        texts.insert(text.GetString());
    for (const char* text : {"S-01-1", "SB-03 屋脊盖板", "梁宽 300", "管道孔 D300"})
        EXPECT_EQ(texts.count(text), 1u) << text;
}

TEST_F(ExportDxfTest, AnUnwritableFileEndsWithOneLine)
{
    const auto run = RunQuarvo({"export-dxf", folder / "layout.qxd", "-o", folder / "no/such/x.dxf"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err, "quarvo: cannot write " + (folder / "no/such/x.dxf") + "\n");
}

}  // namespace
