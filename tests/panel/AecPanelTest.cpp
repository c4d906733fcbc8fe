// The panel: size limits, holes, filing without a hatch, a full round trip, the list
// output against its golden text, a newer record kept as a proxy that still plots, and a
// block that does not parse.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <cmath>
#include <fstream>
#include <tuple>
#include <memory>
#include <sstream>

#include "DrawingFilePatch.h"
#include "ModuleTestSupport.h"
#include "PanelTestSupport.h"
#include "headless/CommandLine.h"
#include "headless/DrawingFile.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/SvgPlot.h"
#include "headless/TextCodec.h"
#include "panel/AecPanel.h"

namespace {

using paneltest::MakeRectangle;
using paneltest::RichPanel;

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

bool Contains(const std::wstring& text, const std::wstring& part)
{
    return text.find(part) != std::wstring::npos;
}

TEST(AecPanelTest, SizeSettersKeepTheirLimits)
{
    struct Case {
        double size;
        bool accepted;
    };
    const Case cases[] = {{0.5, false}, {0.999, false}, {1.0, true}, {256000.0, true}, {256000.5, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.size);
        AecPanel panel;
        MakeRectangle(panel, 6000, 750);
        EXPECT_EQ(panel.SetGeomLengthAndFlush(c.size, true), c.accepted);
        EXPECT_DOUBLE_EQ(panel.GetGeomLength(), c.accepted ? c.size : 6000.0);
        EXPECT_EQ(panel.SetGeomWidthAndFlush(c.size, true), c.accepted);
        EXPECT_DOUBLE_EQ(panel.GetGeomWidth(), c.accepted ? c.size : 750.0);
    }
    AecPanel empty;
    EXPECT_FALSE(empty.SetGeomLengthAndFlush(1000.0, true));
    EXPECT_FALSE(empty.SetGeomWidthAndFlush(1000.0, true));
    EXPECT_EQ(empty.GetLoopCount(), 0);
}

// A right-anchored panel keeps its right end; the merge length is then unknown.
TEST(AecPanelTest, ALengthChangeMovesTheEndAwayFromTheAnchor)
{
    AecPanel panel;
    MakeRectangle(panel, 6000, 750);
    panel.SetPanelBasicInfoJsonStr(L"{\"lengthDirection\":[1,0],\"anchorModeLength\":3,\"guiBingLength\":6000}");
    ASSERT_TRUE(panel.SetGeomLengthAndFlush(5000, true));
    AcArray<AcGePoint2d> points;
    panel.GetOuterLoopPoints(points);
    ASSERT_EQ(points.length(), 4);
    EXPECT_EQ(points[0], AcGePoint2d(1000, 0));
    EXPECT_EQ(points[1], AcGePoint2d(6000, 0));
    EXPECT_EQ(points[2], AcGePoint2d(6000, 750));
    EXPECT_EQ(points[3], AcGePoint2d(1000, 750));
    DbxPanel::PanelBasicInfo basic;
    ASSERT_TRUE(panel.GetPanelBasicInfo(basic));
    EXPECT_EQ(basic.GetGuiBingLength(), -1);
}

TEST(AecPanelTest, ClearInnerLoopsKeepsOnlyTheOutline)
{
    struct Case {
        int holes;
        int loopsAfter;
    };
    for (const Case& c : {Case{-1, 0}, Case{0, 1}, Case{1, 1}, Case{3, 1}}) {
        SCOPED_TRACE(c.holes);
        AecPanel panel;
        if (c.holes >= 0)
            MakeRectangle(panel, 6000, 750);
        for (int h = 0; h < c.holes; ++h)
            paneltest::AddSquareHole(panel, 1000.0 + 1000.0 * h, 375, 100);
        ASSERT_EQ(panel.GetLoopCount(), c.holes < 0 ? 0 : 1 + c.holes);
        panel.ClearInnerLoops();
        EXPECT_EQ(panel.GetLoopCount(), c.loopsAfter);
        EXPECT_EQ(panel.GetOuterLoopPointCount(), c.holes < 0 ? 0 : 4);
    }
}

TEST(AecPanelTest, LoopSettersRefuseWhatNoOutlineIsAndChangeNothing)
{
    const double nan = std::nan("");
    struct Case {
        const char* what;
        std::vector<AcGePoint2d> points;
        std::vector<double> bulges;
        BoundarySetResult result;
    };
    const Case cases[] = {
        {"two points", {{0, 0}, {10, 0}}, {}, BoundarySetResult::kTooFewVertices},
        {"a repeated point", {{0, 0}, {10, 0}, {10, 0}}, {}, BoundarySetResult::kTooFewVertices},
        {"NaN", {{0, 0}, {10, nan}, {0, 10}}, {}, BoundarySetResult::kNotFinite},
        {"infinite bulge", {{0, 0}, {10, 0}, {0, 10}}, {0, HUGE_VAL, 0}, BoundarySetResult::kNotFinite},
        {"bulge count", {{0, 0}, {10, 0}, {0, 10}}, {0, 0}, BoundarySetResult::kBulgeCountMismatch},
        {"bulge beyond 1000", {{0, 0}, {10, 0}, {0, 10}}, {0, 1000.5, 0}, BoundarySetResult::kBulgeOutOfRange},
        {"no area", {{0, 0}, {10, 0}, {20, 0}}, {}, BoundarySetResult::kZeroArea},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        AecPanel panel;
        MakeRectangle(panel, 6000, 750);
        const qxtest::Bytes before = qxtest::FileOut(&panel);
        AcArray<AcGePoint2d> points;
        AcArray<double> bulges;
        for (const AcGePoint2d& p : c.points)
            points.append(p);
        for (double b : c.bulges)
            bulges.append(b);
        EXPECT_EQ(panel.TrySetOuterLoopFromPointsWithBulges(points, bulges), c.result);
        EXPECT_EQ(qxtest::FileOut(&panel), before);
    }
    AecPanel panel;
    EXPECT_EQ(panel.TrySetLoopFromPointsWithBulgesAt(1, AcArray<AcGePoint2d>(), AcArray<double>()),
              BoundarySetResult::kNoSuchLoop);
}

TEST(AecPanelTest, NormalizingTurnsAClockwiseOutlineAndKeepsItsArcs)
{
    AecPanel panel;
    AcArray<AcGePoint2d> points;
    AcArray<double> bulges;
    // Clockwise, with an arc from (0,750) to (6000,750).
    for (const auto& [x, y, b] :
         {std::tuple<double, double, double>{0, 0, 0}, {0, 750, 0.1}, {6000, 750, 0}, {6000, 0, 0}}) {
        points.append(AcGePoint2d(x, y));
        bulges.append(b);
    }
    ASSERT_TRUE(panel.SetOuterLoopFromPointsWithBulges(points, bulges));
    ASSERT_TRUE(panel.ValidateAndNormalizeOuterLoopGeometry(true));
    panel.GetLoopPointsWithBulgesAt(0, points, bulges);
    ASSERT_EQ(points.length(), 4);
    // Reversed from the last vertex: the arc now runs from (6000,750) to (0,750).
    const AcGePoint2d expected[] = {{6000, 0}, {6000, 750}, {0, 750}, {0, 0}};
    const double expectedBulges[] = {0, -0.1, 0, 0};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(points[i], expected[i]) << i;
        EXPECT_EQ(bulges[i], expectedBulges[i]) << i;
    }
    AecPanel empty;
    EXPECT_FALSE(empty.ValidateAndNormalizeOuterLoopGeometry(true));
    EXPECT_TRUE(empty.ValidateAndNormalizeOuterLoopGeometry(false));
}

TEST(AecPanelTest, APanelWithoutHatchFilesTwoFlagsAndReadsBackWithoutOne)
{
    AecPanel panel;
    MakeRectangle(panel, 6000, 750);
    panel.SetHatchDisplayEnabled(true);
    // The record ends with "display enabled", "no hatch" and the data tree, which a panel
    // without loops or hatch shows on its own after the same two flags.
    AecPanel bare;
    const auto bareLines = qxtest::FilingTranscript(&bare);
    const std::vector<std::string> flags = {"writeBool true", "writeBool false"};
    const auto treeAt = std::search(bareLines.rbegin(), bareLines.rend(), flags.rbegin(), flags.rend()).base();
    const std::vector<std::string> tail(treeAt - 2, bareLines.end());
    const auto lines = qxtest::FilingTranscript(&panel);
    ASSERT_GT(lines.size(), tail.size());
    EXPECT_EQ(std::vector<std::string>(lines.end() - static_cast<long>(tail.size()), lines.end()), tail);

    AecPanel read;
    ASSERT_EQ(qxtest::FileIn(&read, qxtest::FileOut(&panel)), Acad::eOk);
    EXPECT_TRUE(Contains(qxtest::ListOutput(&read), L"\n└─ 填充实体存在: 否"));
    EXPECT_EQ(qxtest::FileOut(&read), qxtest::FileOut(&panel));
}

TEST(AecPanelTest, EverythingComesBackFromTheBinaryFilerAndTheDrawingFile)
{
    std::unique_ptr<AecPanel> panel(RichPanel());
    const qxtest::Bytes bytes = qxtest::FileOut(panel.get());
    AecPanel read;
    ASSERT_EQ(qxtest::FileIn(&read, bytes), Acad::eOk);
    EXPECT_EQ(qxtest::FileOut(&read), bytes);
    ASSERT_EQ(read.GetLoopCount(), 3);
    AcArray<AcGePoint2d> points;
    AcArray<double> bulges;
    read.GetLoopPointsWithBulgesAt(0, points, bulges);
    ASSERT_EQ(points.length(), 5);
    EXPECT_EQ(points[2], AcGePoint2d(12000, 750));
    EXPECT_EQ(bulges[1], 0.25);
    read.GetLoopPointsWithBulgesAt(2, points, bulges);
    EXPECT_EQ(bulges[0], 1.0);
    EXPECT_STREQ(read.GetPanelAccessoryInfoJsonStr(), L"[{\"名称\":\"自攻螺钉\",\"数量\":24}]");
    EXPECT_STREQ(read.GetPanelShapeInfoJsonStr(), panel->GetPanelShapeInfoJsonStr());
    DbxPanel::TextLabel number;
    ASSERT_TRUE(read.GetTextLabel(DbxPanel::TextLabelType::kNumber, number));
    EXPECT_EQ(std::wstring(number.GetString().kwszPtr()), L"WM-A-07");
    EXPECT_EQ(read.GetTextLabelCount(), 2);

    // Through a saved and reopened drawing, byte for byte.
    qxtest::WorkingDatabase working;
    const AcDbObjectId id = working.Add(RichPanel());
    std::vector<std::uint8_t> file;
    ASSERT_EQ(headless::DrawingFile::write(working.db(), file), Acad::eOk);
    AcDbDatabase* reopened = nullptr;
    ASSERT_EQ(headless::DrawingFile::read(file, reopened), Acad::eOk);
    std::unique_ptr<AcDbDatabase> owner(reopened);
    AcDbObjectId again;
    ASSERT_EQ(reopened->getAcDbObjectId(again, false, id.handle()), Acad::eOk);
    AecPanel* loaded = nullptr;
    ASSERT_EQ(acdbOpenObject(loaded, again, AcDb::kForRead), Acad::eOk);
    const qxtest::Bytes reread = qxtest::FileOut(loaded, reopened);
    loaded->close();
    AecPanel* original = nullptr;
    ASSERT_EQ(acdbOpenObject(original, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(reread, qxtest::FileOut(original, working.db()));
    original->close();
}

// With QX_UPDATE_GOLDEN set, the test writes what it got instead, for review in the diff.
std::string ReadGolden(const std::string& name, const std::string& got)
{
    if (std::getenv("QX_UPDATE_GOLDEN") != nullptr)
        std::ofstream(std::string(QX_PANEL_GOLDEN_DIR) + "/" + name, std::ios::binary) << got;
    std::ifstream in(std::string(QX_PANEL_GOLDEN_DIR) + "/" + name, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

TEST(AecPanelTest, TheListIsTheGoldenText)
{
    qxtest::WorkingDatabase working;
    const AcDbObjectId id = working.Add(RichPanel());
    AecPanel* panel = nullptr;
    ASSERT_EQ(acdbOpenObject(panel, id, AcDb::kForRead), Acad::eOk);
    const std::string listed = headless::toUtf8(qxtest::ListOutput(panel));
    panel->close();
    EXPECT_EQ(listed, ReadGolden("rich-panel-list.txt", listed));
}

TEST(AecPanelTest, AVersionTwoRecordIsKeptAsAProxyThatStillPlots)
{
    qxtest::WorkingDatabase working;
    const AcDbObjectId id = working.Add(RichPanel());
    AecPanel* panel = nullptr;
    ASSERT_EQ(acdbOpenObject(panel, id, AcDb::kForRead), Acad::eOk);
    headless::MemoryDwgFiler hostPart(AcDb::kFileFiler, working.db());
    ASSERT_EQ(panel->AcDbEntity::dwgOutFields(&hostPart), Acad::eOk);
    std::unique_ptr<AecPanel> twin(new AecPanel());
    qxtest::Bytes bytes = qxtest::FileOut(panel);
    panel->close();
    qxtest::PutInt32(bytes, hostPart.bytes().size(), 2);
    EXPECT_EQ(static_cast<int>(qxtest::FileIn(twin.get(), bytes, working.db())), 301);

    std::vector<std::uint8_t> file;
    ASSERT_EQ(headless::DrawingFile::write(working.db(), file), Acad::eOk);
    ASSERT_TRUE(qxtest::PatchObjectBytes(file, id.handle(), [&](std::vector<std::uint8_t>& record) {
        qxtest::PutInt32(record, hostPart.bytes().size(), 2);
    }));
    AcDbDatabase* reopened = nullptr;
    headless::DrawingReadReport report;
    headless::CommandLineCapture quiet;
    ASSERT_EQ(headless::DrawingFile::read(file, reopened, &report), Acad::eOk);
    std::unique_ptr<AcDbDatabase> owner(reopened);
    EXPECT_EQ(report.proxies, 1);
    // The proxy draws what the panel drew: the 12 m outline and its texts.
    const std::string svg = headless::SvgPlot::render(reopened);
    EXPECT_NE(svg.find("12000"), std::string::npos) << svg.substr(0, 2000);
    EXPECT_NE(svg.find(">WM-A-07</text>"), std::string::npos);
}

TEST(AecPanelTest, ABlockThatDoesNotParseIsListedAsFailedWhileThePanelWorks)
{
    std::unique_ptr<AecPanel> panel(RichPanel());
    panel->SetPanelMergeInfoJsonStr(L"{\"direction\": ");
    const std::wstring listed = qxtest::ListOutput(panel.get());
    EXPECT_TRUE(Contains(listed, L"\n├─ 数据解析: 基础=成功, 编号=成功, 填充=成功, 合并=失败, 形状=成功")) << listed;
    EXPECT_TRUE(Contains(listed, L"\n├─ 合并方向: 0"));
    EXPECT_FALSE(qxtest::Draw(panel.get()).empty());
    AecPanel read;
    ASSERT_EQ(qxtest::FileIn(&read, qxtest::FileOut(panel.get())), Acad::eOk);
    EXPECT_STREQ(read.GetPanelMergeInfoJsonStr(), L"{\"direction\": ");
}

// A loop that no setter would take can still come from a file: the rebuild skips it with
// its warning and the panel goes on without that outline.
TEST(AecPanelTest, ALoopBeyondThePolylinesLimitsIsSkippedWithAWarning)
{
    std::unique_ptr<AecPanel> panel(paneltest::RichPanel());
    qxtest::Bytes bytes = qxtest::FileOut(panel.get());
    const std::uint8_t quarter[] = {0, 0, 0, 0, 0, 0, 0xD0, 0x3F};  // the outline's first bulge, 0.25
    const auto at = std::search(bytes.begin(), bytes.end(), std::begin(quarter), std::end(quarter));
    ASSERT_NE(at, bytes.end());
    const double huge = 5000.0;
    std::memcpy(&*at, &huge, sizeof huge);
    AecPanel read;
    ASSERT_EQ(qxtest::FileIn(&read, bytes), Acad::eOk);
    headless::CommandLineCapture capture;
    read.FlushGraphicSubEntities(false);
    EXPECT_EQ(capture.text(), L"\n警告:FlushLoopPoly [0]顶点数及凸度限制要求不满足，跳过缓存。");
    EXPECT_EQ(read.GetLoopPolylineAt(0), nullptr);
    EXPECT_NE(read.GetLoopPolylineAt(1), nullptr);
    // Neither the outline nor the hatch it bounds is drawn; the holes and labels are.
    const auto drawn = qxtest::Draw(&read);
    std::size_t plines = 0;
    for (const auto& p : drawn)
        plines += p.kind == headless::PrimitiveKind::kPline;
    EXPECT_EQ(plines, 2u);
}

TEST(AecPanelTest, ADamagedRecordLeavesThePanelAsItWas)
{
    std::unique_ptr<AecPanel> panel(RichPanel());
    const qxtest::Bytes bytes = qxtest::FileOut(panel.get());
    for (std::size_t cut : {bytes.size() / 4, bytes.size() / 2, bytes.size() - 40}) {
        SCOPED_TRACE(cut);
        AecPanel target;
        MakeRectangle(target, 1000, 500);
        const qxtest::Bytes before = qxtest::FileOut(&target);
        EXPECT_NE(qxtest::FileIn(&target, qxtest::Bytes(bytes.begin(), bytes.begin() + static_cast<long>(cut))),
                  Acad::eOk);
        EXPECT_EQ(qxtest::FileOut(&target), before);
    }
}

}  // namespace
