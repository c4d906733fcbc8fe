// quarvo new: descriptions become drawings whose entities list what was described; every
// refused description names its JSON path and writes nothing.
#include <gtest/gtest.h>

#include <array>
#include <random>

#include "LayoutBuilder.h"
#include "ModuleTestSupport.h"
#include "ToolRun.h"
#include "headless/CommandLine.h"
#include "dbsymtb.h"
#include "openings/AecLayoutBoundary.h"
#include "panel/AecPanel.h"

namespace {

using qxtest::RunQuarvo;

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

// The first entity of db's model space.
AcDbObjectId FirstEntity(AcDbDatabase* db)
{
    AcDbObjectId id;
    AcDbBlockTable* table = nullptr;
    if (db->getBlockTable(table, AcDb::kForRead) != Acad::eOk)
        return id;
    AcDbBlockTableRecord* space = nullptr;
    const Acad::ErrorStatus opened = table->getAt(ACDB_MODEL_SPACE, space, AcDb::kForRead);
    table->close();
    if (opened != Acad::eOk)
        return id;
    AcDbBlockTableRecordIterator* it = nullptr;
    space->newIterator(it);
    if (!it->done())
        it->getEntityId(id);
    delete it;
    space->close();
    return id;
}

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

// One of each line and opening kind besides the first two, with every member away from
// its default, listed back as the entities list themselves.
TEST(NewCommandTest, LinesAndOpeningsListWhatTheirDescriptionsSaid)
{
    const std::string layout = R"({
  "format": "quarvo-layout", "version": 1,
  "layers": [{"name": "QX-搭接线"}, {"name": "QX-洞口"}],
  "overlapLines": [{"layer": "QX-搭接线", "start": {"x": 0, "y": 0}, "end": {"x": 1000, "y": 0},
                    "overlapLeft": 50, "overlapRight": 70, "direction": "rightOverLeft",
                    "drawOptions": ["centerLine", "direction"], "shouBianInfo": {"名称": "搭接"}}],
  "structuralLines": [{"start": {"x": 0, "y": 500}, "end": {"x": 0, "y": 2500}, "memberType": "beam",
                       "memberWidthLeft": 100, "memberWidthRight": 80, "indentLeft": 60, "indentRight": 30}],
  "rectOpenings": [{"layer": "QX-洞口", "anchor": {"x": 100, "y": 200}, "anchorPosition": "center",
                    "width": 1200, "height": 800, "showDimensions": true, "title": {"text": "风机洞口"}}],
  "polyOpenings": [{"layer": "QX-洞口", "vertices": [{"x": 0, "y": 0}, {"x": 1000, "y": 0}, {"x": 500, "y": 800}],
                    "closed": false, "title": {"text": "异形窗 T1", "visible": false}}],
  "steelMembers": [{"start": {"x": 0, "y": 3000}, "end": {"x": 9000, "y": 3000}, "kind": "column",
                    "widthLeft": 150, "widthRight": 90}],
  "flashingLines": [{"vertices": [{"x": 0, "y": 12000}, {"x": 6000, "y": 12500, "bulge": 0.1}, {"x": 12000, "y": 12000}],
                     "indentLeft": 100, "indentRight": 80, "standalone": false, "label": {"height": 300},
                     "drawOptions": ["centerLine", "boundaryLine", "textLabel"],
                     "shouBianInfo": {"baseInfo": {"shouBianNumber": "SB-03", "shouBianName": "屋脊盖板"}}}]
})";
    qxtest::TempFolder folder;
    qxtest::WriteFile(folder / "layout.json", layout);
    const auto built = RunQuarvo({"new", folder / "layout.json", "-o", folder / "layout.qxd"});
    ASSERT_EQ(built.exitCode, 0) << built.err;
    EXPECT_EQ(built.out,
              "Built 6 entities (flashingLines 1, overlapLines 1, polyOpenings 1, rectOpenings 1, steelMembers 1, "
              "structuralLines 1) into " +
                  (folder / "layout.qxd") + "\n");

    const struct {
        const char* type;
        std::vector<std::string> lines;
    } kinds[] = {
        // A 1000 long lap of 50 + 70: a band 120 wide of area 120000.
        {"QX_OVERLAP_LINE",
         {"  End Point: (1000.000, 0.000, 0.000)", "  Left Overlap: 50.000", "  Right Overlap: 70.000",
          "  Total Width: 120.000", "  Overlap Area: 120000.000", "  Direction: RightOverLeft (右压左)",
          "  收边信息: {\"名称\":\"搭接\"}"}},
        // Penetration is width less indent: 100 - 60 and 80 - 30.
        {"QX_STRUCTURAL_LINE",
         {"  Start Point: (0.000, 500.000, 0.000)", "  Member Type: Beam", "  Member Width Left:  100.000",
          "  Member Width Right: 80.000", "  Penetration Left:  40.000  (MemberWidth - Indent)",
          "  Penetration Right: 50.000  (MemberWidth - Indent)"}},
        {"QX_RECT_OPENING", {"锚点: 中心，位置: (100.00, 200.00, 0.00)", "标题: 显示，\"风机洞口\"", "尺寸标注: 开启"}},
        // Open: three vertices make two segments.
        {"QX_POLY_OPENING", {"异形洞口: 3 个顶点，2 个分段，未闭合", "标题: 隐藏，\"异形窗 T1\""}},
        {"QX_STEEL_MEMBER",
         {"  类型: 钢柱", "  终点: (9000.000, 3000.000, 0.000)", "  构件宽度: 240.000", "  左侧宽度: 150.000",
          "  右侧宽度: 90.000"}},
    };
    for (const auto& kind : kinds) {
        const auto listed = RunQuarvo({"list", folder / "layout.qxd", "--type", kind.type});
        ASSERT_EQ(listed.exitCode, 0) << listed.err;
        for (const std::string& line : kind.lines)
            EXPECT_TRUE(Contains(listed.out, "\n" + line + "\n")) << kind.type << ": " << line << "\n" << listed.out;
    }
}

// A lite panel of a 1000 x 500 outline with a 200 x 100 hole: the list names its pattern.
TEST(NewCommandTest, ALitePanelListsItsPattern)
{
    const std::string layout = R"({
  "format": "quarvo-layout", "version": 1, "layers": [{"name": "QX-板材"}],
  "litePanels": [{"layer": "QX-板材", "color": 3,
                  "loops": [[{"x": 0, "y": 0}, {"x": 1000, "y": 0}, {"x": 1000, "y": 500}, {"x": 0, "y": 500}],
                            [{"x": 100, "y": 100}, {"x": 300, "y": 100}, {"x": 300, "y": 200}, {"x": 100, "y": 200}]],
                  "pattern": {"type": 1, "name": "ANSI37", "scale": 2.5, "angle": 0.5, "color": 8, "lastValue": 4}}]
})";
    qxtest::TempFolder folder;
    qxtest::WriteFile(folder / "layout.json", layout);
    const auto built = RunQuarvo({"new", folder / "layout.json", "-o", folder / "layout.qxd"});
    ASSERT_EQ(built.exitCode, 0) << built.err;
    EXPECT_EQ(built.out, "Built 1 entities (litePanels 1) into " + (folder / "layout.qxd") + "\n");
    const auto listed = RunQuarvo({"list", folder / "layout.qxd", "--type", "QX_PANEL_LITE"});
    ASSERT_EQ(listed.exitCode, 0) << listed.err;
    EXPECT_TRUE(Contains(listed.out, "Layer: \"QX-板材\"")) << listed.out;
    EXPECT_TRUE(Contains(listed.out, "\n填充图案: ANSI37\n填充比例: 2.5\n")) << listed.out;
}

// A clockwise outline is turned round: the same vertices the other way, each arc kept by
// negating its bulge; the title is the description's.
TEST(NewCommandTest, ABoundaryIsLaidCounterClockwiseWithItsTitle)
{
    const std::string layout = R"({"format": "quarvo-layout", "version": 1, "boundary": {
        "vertices": [{"x": 0, "y": 0}, {"x": 0, "y": 100, "bulge": 0.25}, {"x": 200, "y": 100}, {"x": 200, "y": 0}],
        "title": {"text": "A 区", "height": 30, "offset": {"x": 5, "y": -40}}, "kind": 2, "referenceSize": 50}})";
    qxtest::WorkingDatabase working;
    rapidjson::Document document;
    quarvo::LayoutBuilder::Parse(layout, document);
    std::map<std::string, int> built;
    quarvo::LayoutBuilder::Build(document, working.db(), built);
    ASSERT_EQ(built["boundary"], 1);

    AecLayoutBoundary* boundary = nullptr;
    ASSERT_EQ(acdbOpenObject(boundary, FirstEntity(working.db()), AcDb::kForRead), Acad::eOk);
    const bool closed = boundary->isClosed();
    std::vector<std::array<double, 3>> vertices;
    for (unsigned int i = 0; i < boundary->numVerts(); ++i) {
        AcGePoint2d point;
        double bulge = 0.0;
        boundary->getPointAt(i, point);
        boundary->getBulgeAt(i, bulge);
        vertices.push_back({point.x, point.y, bulge});
    }
    const LayoutBoundaryData data = boundary->GetImp()->GetData();
    boundary->close();

    EXPECT_TRUE(closed);
    // Given (0,0) (0,100)~ (200,100) (200,0); reversed from the last: the arc from (0,100)
    // to (200,100) now runs from (200,100) to (0,100).
    const std::vector<std::array<double, 3>> expected = {{200, 0, 0}, {200, 100, -0.25}, {0, 100, 0}, {0, 0, 0}};
    EXPECT_EQ(vertices, expected);
    EXPECT_EQ(std::wstring(data.titleText.kwszPtr()), L"A 区");
    EXPECT_EQ(data.titleHeight, 30.0);
    EXPECT_EQ(data.titleOffset, AcGePoint3d(5, -40, 0));
    EXPECT_EQ(data.kind, 2);
    EXPECT_EQ(data.referenceSize, 50.0);
}

// Two panels of one merge group name each other by handle once both exist; the labels,
// holes and blocks come back as the description gave them.
TEST(NewCommandTest, PanelsListWhatTheirDescriptionsSaidAndGroupsNameHandles)
{
    const std::string layout = R"({"format": "quarvo-layout", "version": 1,
  "layers": [{"name": "QX-板材", "color": 3}],
  "panels": [
    {"layer": "QX-板材",
     "loops": [[{"x": 0, "y": 0}, {"x": 750, "y": 0}, {"x": 750, "y": 6000, "bulge": 0.1}, {"x": 0, "y": 6000}],
               [{"x": 300, "y": 2900}, {"x": 450, "y": 2900}, {"x": 450, "y": 3100}, {"x": 300, "y": 3100}]],
     "labels": [{"type": 0, "text": "A-01", "directionMode": "perpendicular"},
                {"type": 3, "text": "YX35-125-750", "predefinedPosition": 20, "height": 150}],
     "basicInfo": {"banLeiXing": "YX35-125-750", "thickness": 0.6, "lengthDirection": [0, 1]},
     "mergeInfo": {"direction": 1, "sequenceNumber": 1, "relatedPanels": [1]},
     "accessoryInfo": ["丁基胶带"]},
    {"loops": [[{"x": 0, "y": 5800}, {"x": 750, "y": 5800}, {"x": 750, "y": 9000}, {"x": 0, "y": 9000}]],
     "basicInfo": {"lengthDirection": [0, 1]},
     "mergeInfo": {"direction": 1, "sequenceNumber": 2, "relatedPanels": [0]}, "hatchDisplay": false}
  ]})";
    qxtest::TempFolder folder;
    qxtest::WriteFile(folder / "panels.json", layout);
    const auto built = RunQuarvo({"new", folder / "panels.json", "-o", folder / "panels.qxd"});
    ASSERT_EQ(built.exitCode, 0) << built.err;
    const auto listed = RunQuarvo({"list", folder / "panels.qxd", "--type", "QX_PANEL"});
    ASSERT_EQ(listed.exitCode, 0) << listed.err;
    const std::vector<std::string> handles = qxtest::HandlesIn(listed.out);
    ASSERT_EQ(handles.size(), 2u);
    for (const char* line : {"├─ 板型: YX35-125-750", "├─ 回路 1 (内轮廓/孔洞): 4 个顶点",
                             "├─   顶点 2: [ X: 750.0000, Y: 6000.0000 ] | 凸度: 0.1000", "├─ 编号 0: \"A-01\"",
                             "├─ 底部文字 1: \"YX35-125-750\"",
                             // Laid along Y, the box's bottom is the plan's right: 50 in from x = 750.
                             "├─   位置: (700.000, 3000.000, 0.000)", "├─ 几何长度: 6000.00 mm", "└─ 关联板材数量: 1"})
        EXPECT_TRUE(Contains(listed.out, std::string("\n") + line + "\n")) << line << "\n" << listed.out;

    // Each panel's merge block names itself and the other.
    qxtest::WorkingDatabase working;
    rapidjson::Document document;
    quarvo::LayoutBuilder::Parse(layout, document);
    std::map<std::string, int> counts;
    quarvo::LayoutBuilder::Build(document, working.db(), counts);
    std::vector<std::wstring> merges;
    std::vector<std::wstring> own;
    AcDbBlockTableRecordIterator* it = nullptr;
    AcDbBlockTableRecord* space = nullptr;
    ASSERT_EQ(acdbOpenObject(space, working.db()->currentSpaceId(), AcDb::kForRead), Acad::eOk);
    space->newIterator(it);
    for (; !it->done(); it->step()) {
        AecPanel* panel = nullptr;
        AcDbObjectId id;
        it->getEntityId(id);
        if (acdbOpenObject(panel, id, AcDb::kForRead) != Acad::eOk)
            continue;
        DbxPanel::PanelMergeInfo merge;
        EXPECT_TRUE(panel->GetPanelMergeInfo(merge));
        own.push_back(merge.GetHandle().kwszPtr());
        merges.push_back(merge.GetRelatedPanelHandles().size() == 1 ? merge.GetRelatedPanelHandles()[0].kwszPtr()
                                                                    : L"?");
        ACHAR handle[32] = {};
        id.handle().getIntoAsciiBuffer(handle, 32);
        EXPECT_EQ(own.back(), handle);
        panel->close();
    }
    delete it;
    space->close();
    ASSERT_EQ(merges.size(), 2u);
    EXPECT_EQ(merges[0], own[1]);
    EXPECT_EQ(merges[1], own[0]);
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
        {Layout(R"("overlapLines": [{"start": {"x": 0, "y": 0}, "end": {"x": 0, "y": 4}}])"),
         "overlapLines[0]: an overlap line is 5 to 512000 long, this one is 4"},
        {Layout(R"("overlapLines": [{)" + std::string(kLine) + R"(, "direction": "up"}])"),
         "overlapLines[0].direction: must be one of \"leftOverRight\", \"rightOverLeft\""},
        {Layout(R"("structuralLines": [{)" + std::string(kLine) + R"(, "indentRight": -5}])"),
         "structuralLines[0].indentRight: must not be negative"},
        {Layout(R"("structuralLines": [{)" + std::string(kLine) + R"(, "memberType": "truss"}])"),
         "structuralLines[0].memberType: must be one of \"beam\", \"column\""},
        {Layout(R"("boundary": {"vertices": [{"x": 0, "y": 0}, {"x": 1, "y": 0}]})"),
         "boundary.vertices: needs at least 3 vertices"},
        {Layout(R"("rectOpenings": [{"anchor": {"x": 0, "y": 0}, "width": 10}])"), "rectOpenings[0]: needs \"height\""},
        {Layout(R"("polyOpenings": [{"vertices": [{"x": 0, "y": 0}, {"x": 9, "y": 0}, {"x": 0, "y": 9}],
                     "segmentLabels": {"texts": ["a", "b", "c", "d"]}}])"),
         "polyOpenings[0].segmentLabels.texts: one text per segment: the outline has 3"},
        {Layout(R"("panels": [{"loops": [[{"x": 0, "y": 0}, {"x": 9, "y": 0}, {"x": 18, "y": 0}]]}])"),
         "panels[0].loops[0]: the loop encloses nothing"},
        {Layout(R"("panels": [{"loops": [[{"x": 0, "y": 0}, {"x": 9, "y": 0}, {"x": 0, "y": 9}]],
                     "labels": [{"type": 0}, {"type": 0}]}])"),
         "panels[0].labels[1].type: a panel has one label of each type, 0 is given twice"},
        {Layout(R"("panels": [{"loops": [[{"x": 0, "y": 0}, {"x": 9, "y": 0}, {"x": 0, "y": 9}]],
                     "labels": [{"text": "A"}]}])"),
         "panels[0].labels[0]: needs \"type\""},
        {Layout(R"("panels": [{"loops": [[{"x": 0, "y": 0}, {"x": 9, "y": 0}, {"x": 0, "y": 9}]],
                     "mergeInfo": {"relatedPanels": [3]}}])"),
         "panels[0].mergeInfo.relatedPanels[0]: no panel 3 in panels"},
        {Layout(R"("panels": [{"loops": [[{"x": 0, "y": 0}, {"x": 9, "y": 0}, {"x": 0, "y": 9}]],
                     "shapeInfo": {"relatedPanels": [0]}}])"),
         "panels[0].shapeInfo.relatedPanels[0]: a panel is not its own member"},
        {Layout(R"("litePanels": [{"pattern": {"name": "ANSI31"}}])"), "litePanels[0]: needs \"loops\""},
        {Layout(R"("litePanels": [{"loops": [[{"x": 0, "y": 0}, {"x": 9, "y": 0}, {"x": 0, "y": 9}]],
                   "pattern": {"type": 3}}])"),
         "litePanels[0].pattern.type: must be 0 to 2"},
        {Layout(R"("litePanels": [{"loops": [[{"x": 0, "y": 0}, {"x": 9, "y": 0}, {"x": 0, "y": 9}]],
                   "pattern": {"scale": 0}}])"),
         "litePanels[0].pattern.scale: must be greater than 0"},
        {Layout(R"("steelMembers": [{"start": {"x": 0, "y": 0}, "end": {"x": 0, "y": 0}}])"),
         "steelMembers[0]: a steel member needs two different ends"},
        {Layout(R"("steelMembers": [{"start": {"x": 0, "y": 0}, "end": {"x": 9, "y": 0}, "widthLeft": 2500}])"),
         "steelMembers[0].widthLeft: must be 1 to 2000"},
        {Layout(R"("steelMembers": [{"start": {"x": 0, "y": 0}, "end": {"x": 9, "y": 0}, "width": 300,
                     "widthRight": 20}])"),
         "steelMembers[0]: give \"width\" or \"widthLeft\" and \"widthRight\", not both"},
        {Layout(R"("flashingLines": [{"vertices": [{"x": 0, "y": 0}, {"x": 9, "y": 0}], "indentLeft": 0.5}])"),
         "flashingLines[0].indentLeft: must be 0, or 1 to 500"},
        {Layout(R"("flashingLines": [{"vertices": [{"x": 0, "y": 0}, {"x": 9, "y": 0}, {"x": 9, "y": 0}]}])"),
         "flashingLines[0].vertices[2]: repeats the vertex before it"},
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

// The example roof of examples/ uses every kind of the format: it builds whole, and the
// drawing checks clean.
TEST(NewCommandTest, TheExampleRoofBuildsEveryKindAndChecksClean)
{
    qxtest::TempFolder folder;
    const std::string drawing = folder / "roof.qxd";
    const auto built = RunQuarvo({"new", std::string(QX_EXAMPLES_DIR) + "/roof-layout.json", "-o", drawing});
    ASSERT_EQ(built.exitCode, 0) << built.err;
    // 96 south columns of two sheets and 94 north sheets; 24 purlins, 9 rafters, 5 flashings.
    EXPECT_EQ(built.out,
              "Built 345 entities (boundary 1, circleOpenings 4, divisionLines 2, flashingLines 5, "
              "litePanels 8, overlapLines 1, panels 286, polyOpenings 1, rectOpenings 4, steelMembers 9, "
              "structuralLines 24) into " +
                  drawing + "\n");
    const auto checked = RunQuarvo({"check", drawing});
    EXPECT_EQ(checked.exitCode, 0) << checked.out;
    EXPECT_EQ(checked.out, "Clean: 345 entities checked.\n");
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
