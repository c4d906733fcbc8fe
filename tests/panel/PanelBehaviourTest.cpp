// What a panel does with its labels, its draw, its copies, its drags and a stretch:
// placement by predefined position, readable directions, the visibility switches, the
// drag outline, the ids a copy keeps or drops, the change collector, and a stretch that
// moves the outline only along the laying direction.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>

#include "ModuleTestSupport.h"
#include "PanelTestSupport.h"
#include "dbidmap.h"
#include "headless/CloneCommand.h"
#include "headless/CommandLine.h"
#include "headless/RecordingWorldDraw.h"
#include "panel/AecPanel.h"
#include "panel/LinkageChangeCollector.h"
#include "panel/PanelLabelPlacement.h"

namespace {

using DbxPanel::PredefinedTextPosition;
using DbxPanel::TextLabelType;
using headless::PrimitiveKind;
using paneltest::MakeRectangle;

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

AcGePoint3d LabelPosition(const AecPanel& panel, TextLabelType type)
{
    AcString text;
    AcGePoint3d position;
    EXPECT_TRUE(panel.GetTextLabelContentAndPosition(type, text, position));
    return position;
}

std::size_t Count(const std::vector<headless::RecordedPrimitive>& primitives, PrimitiveKind kind)
{
    std::size_t n = 0;
    for (const auto& p : primitives)
        n += p.kind == kind;
    return n;
}

// ---- placement

TEST(PanelBehaviourTest, NearTheBottomEdgeIsATenthOfTheHeightAtMost50)
{
    struct Case {
        double width;
        double above;
    };
    for (const Case& c : {Case{400, 40}, Case{2000, 50}}) {
        SCOPED_TRACE(c.width);
        AecPanel panel;
        MakeRectangle(panel, 10000, c.width);
        panel.SetPanelBasicInfoJsonStr(L"{\"lengthDirection\":[1,0]}");
        panel.SetTextLabel(TextLabelType::kBottomText, L"L=10000", PredefinedTextPosition::kNearBottomEdge);
        EXPECT_TRUE(qxtest::Near(LabelPosition(panel, TextLabelType::kBottomText), AcGePoint3d(5000, c.above, 0)));
    }
}

// An L: 4000 wide at the bottom, 1000 wide up to 3000.
TEST(PanelBehaviourTest, OutlinePositionsStandOnTheOutlinesExtremes)
{
    const std::vector<AcGePoint2d> outline = {{0, 0}, {4000, 0}, {4000, 1000}, {1000, 1000}, {1000, 3000}, {0, 3000}};
    struct Case {
        int position;
        AcGePoint2d expected;
    };
    // Laid along Y: the box frame's x runs up the plan, its y to the plan's left.
    const Case alongY[] = {{30, {0, 1500}}, {31, {4000, 1500}}, {32, {2000, 0}}, {33, {2000, 3000}}};
    for (const Case& c : alongY) {
        SCOPED_TRACE(c.position);
        const AcGePoint2d at = DbxPanel::PanelLabelPlacement::PositionFor(
            static_cast<PredefinedTextPosition>(c.position), outline, AcGeVector2d(0, 1));
        EXPECT_NEAR(at.x, c.expected.x, 1e-9);
        EXPECT_NEAR(at.y, c.expected.y, 1e-9);
    }
    // Without an outline the default box's edges stand in.
    const AcGePoint2d top =
        DbxPanel::PanelLabelPlacement::PositionFor(PredefinedTextPosition::kOutlineTop, {}, AcGeVector2d(1, 0));
    EXPECT_NEAR(top.y, 50.0, 1e-9);
}

TEST(PanelBehaviourTest, DirectionsAreMadeReadable)
{
    struct Case {
        AcGeVector2d laying;
        AcGeVector3d along;
        AcGeVector3d across;
    };
    const Case cases[] = {
        {{-1, 0}, {1, 0, 0}, {0, 1, 0}},
        {{0, -1}, {0, 1, 0}, {1, 0, 0}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.laying.x);
        AecPanel panel;
        MakeRectangle(panel, 6000, 750);
        AcString json;
        json.format(L"{\"lengthDirection\":[%g,%g]}", c.laying.x, c.laying.y);
        panel.SetPanelBasicInfoJsonStr(json.kwszPtr());
        panel.SetTextLabel(TextLabelType::kNumber, L"A-01");
        panel.SetTextLabel(TextLabelType::kBottomText, L"YX");
        panel.SetTextDirectionMode(TextLabelType::kBottomText, DbxPanel::TextDirectionMode::kPerpendicular);
        DbxPanel::TextLabel label;
        panel.GetTextLabel(TextLabelType::kNumber, label);
        EXPECT_TRUE(qxtest::Near(label.GetDir(), c.along));
        panel.GetTextLabel(TextLabelType::kBottomText, label);
        EXPECT_TRUE(qxtest::Near(label.GetDir(), c.across));
    }
}

// ---- drawing

TEST(PanelBehaviourTest, LabelsDrawOnlyWhenEffectivelyVisible)
{
    std::unique_ptr<AecPanel> panel(paneltest::RichPanel());
    panel->SetTextLabel(TextLabelType::kCustom, L"");
    const auto all = qxtest::Draw(panel.get());
    // The empty custom label is never drawn: the two others are.
    EXPECT_EQ(Count(all, PrimitiveKind::kText), 2u);
    const std::size_t outlines = Count(all, PrimitiveKind::kPline);
    EXPECT_EQ(outlines, 3u);

    AecPanel::SetGlobalTextLabelVisible(false);
    const auto hidden = qxtest::Draw(panel.get());
    AecPanel::SetGlobalTextLabelVisible(true);
    EXPECT_EQ(Count(hidden, PrimitiveKind::kText), 0u);
    EXPECT_EQ(Count(hidden, PrimitiveKind::kPline), outlines);
    EXPECT_EQ(hidden.size(), all.size() - 2);

    qxtest::WorkingDatabase working;
    const AcDbObjectId id = working.Add(paneltest::RichPanel());
    AecPanel::SetTemporaryHiddenPanelIds({id});
    AecPanel* resident = nullptr;
    ASSERT_EQ(acdbOpenObject(resident, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(Count(qxtest::Draw(resident), PrimitiveKind::kText), 0u);
    AecPanel::ClearTemporaryHiddenPanelIds();
    EXPECT_EQ(Count(qxtest::Draw(resident), PrimitiveKind::kText), 2u);
    resident->close();
}

TEST(PanelBehaviourTest, LabelsCarryTheirSelectionMarkers)
{
    std::unique_ptr<AecPanel> panel(paneltest::RichPanel());
    std::vector<Adesk::LongPtr> markers;
    for (const auto& p : qxtest::Draw(panel.get()))
        if (p.kind == PrimitiveKind::kText)
            markers.push_back(p.traits.selectionMarker);
    EXPECT_EQ(markers, (std::vector<Adesk::LongPtr>{0x20000000, 0x20000001}));
}

TEST(PanelBehaviourTest, ADragDrawsTheLoopsOnly)
{
    AecPanel panel;
    MakeRectangle(panel, 6000, 750);
    panel.SetTextLabel(TextLabelType::kNumber, L"A-01");
    headless::RecordingWorldDraw draw;
    draw.setDragging(true);
    draw.drawDrawable(&panel);
    ASSERT_EQ(draw.primitives().size(), 1u);
    EXPECT_EQ(draw.primitives()[0].kind, PrimitiveKind::kPolyline);
    EXPECT_EQ(draw.primitives()[0].points.size(), 5u);  // closed by repeating the first
}

// A loop of one vertex can only come from a file: cut the round hole of the rich panel
// (two vertices, the first at (7900, 375)) down to its first vertex.
TEST(PanelBehaviourTest, ALoopOfOneVertexIsNotDrawnWhileDragging)
{
    std::unique_ptr<AecPanel> panel(paneltest::RichPanel());
    qxtest::Bytes bytes = qxtest::FileOut(panel.get());
    const double x = 7900.0;
    std::uint8_t pattern[4 + 36 + 8] = {2};  // the count 2, an empty reserved record, then x
    std::memcpy(pattern + 40, &x, sizeof x);
    const auto at = std::search(bytes.begin(), bytes.end(), std::begin(pattern), std::end(pattern));
    ASSERT_NE(at, bytes.end());
    *at = 1;
    // One vertex is its reserved record, its point and its bulge.
    const auto second = at + 4 + 36 + 16 + 8;
    bytes.erase(second, second + 36 + 16 + 8);
    AecPanel read;
    ASSERT_EQ(qxtest::FileIn(&read, bytes), Acad::eOk);
    ASSERT_EQ(read.GetLoopPointCountAt(2), 1);

    headless::RecordingWorldDraw draw;
    draw.setDragging(true);
    draw.drawDrawable(&read);
    // The outline (with its arc) and the square hole; nothing for the one vertex.
    ASSERT_EQ(draw.primitives().size(), 2u);
    EXPECT_EQ(draw.primitives()[0].kind, PrimitiveKind::kPline);
    EXPECT_EQ(draw.primitives()[1].kind, PrimitiveKind::kPolyline);
}

// ---- copies

TEST(PanelBehaviourTest, ACopyIntoTheLayoutDropsItsIdsABlockKeepsThem)
{
    struct Case {
        AcDb::DeepCloneType context;
        bool dropped;
    };
    const Case cases[] = {{AcDb::kDcCopy, true},       {AcDb::kDcExplode, true},       {AcDb::kDcInsert, true},
                          {AcDb::kDcInsertCopy, true}, {AcDb::kDcBlock, false},        {AcDb::kDcWblock, false},
                          {AcDb::kDcXrefBind, false},  {AcDb::kDcSymTableMerge, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.context));
        qxtest::WorkingDatabase working;
        const AcDbObjectId id = working.Add(paneltest::RichPanel());
        AcDbIdMapping map;
        ASSERT_EQ(headless::setDeepCloneContext(map, c.context), Acad::eOk);
        AcDbObjectIdArray ids;
        ids.append(id);
        ASSERT_EQ(working.db()->deepCloneObjects(ids, working.db()->currentSpaceId(), map), Acad::eOk);
        AcDbIdPair pair(id, AcDbObjectId::kNull, false);
        ASSERT_TRUE(map.compute(pair));
        AecPanel* clone = nullptr;
        ASSERT_EQ(acdbOpenObject(clone, pair.value(), AcDb::kForRead), Acad::eOk);
        DbxPanel::PanelBasicInfo basic;
        ASSERT_TRUE(clone->GetPanelBasicInfo(basic));
        clone->close();
        EXPECT_EQ(std::wstring(basic.GetUniqueNum().kwszPtr()), c.dropped ? L"" : L"P-S0071");
        EXPECT_EQ(std::wstring(basic.GetLayoutConfigId().kwszPtr()), c.dropped ? L"" : L"LC-2026-11");
        EXPECT_EQ(std::wstring(basic.GetBanLeiXing().kwszPtr()), L"YX35-125-750");
    }
}

TEST(PanelBehaviourTest, ACopyOfAnUnreadableBlockKeepsItAndSaysSoOnce)
{
    qxtest::WorkingDatabase working;
    AecPanel* source = paneltest::RichPanel();
    source->SetPanelBasicInfoJsonStr(L"{\"uniqueNum\": ");
    const AcDbObjectId id = working.Add(source);
    AcDbObjectIdArray ids;
    ids.append(id);
    AcDbObjectIdArray clones;
    headless::CommandLineCapture capture;
    ASSERT_EQ(headless::copyObjects(ids, clones), Acad::eOk);
    const std::wstring message = L"\n[错误] 复制板材的基本信息无法解析，保留原 JSON，未重置编号/配置 ID。\n";
    EXPECT_EQ(capture.text(), message);
    AecPanel* clone = nullptr;
    ASSERT_EQ(acdbOpenObject(clone, clones[0], AcDb::kForRead), Acad::eOk);
    EXPECT_STREQ(clone->GetPanelBasicInfoJsonStr(), L"{\"uniqueNum\": ");
    clone->close();
}

// What a panel draws, one primitive a line, and how many of them its hatch drew.
std::string DrawnBy(const AcDbObjectId& id, std::size_t* hatchPrimitives = nullptr)
{
    AecPanel* panel = nullptr;
    EXPECT_EQ(acdbOpenObject(panel, id, AcDb::kForRead), Acad::eOk);
    headless::RecordingWorldDraw draw;
    draw.drawDrawable(panel);
    panel->close();
    std::string lines;
    std::size_t nested = 0;
    for (const auto& p : draw.primitives()) {
        lines += p.toLine() + "\n";
        nested += p.depth > 0;
    }
    if (hatchPrimitives != nullptr)
        *hatchPrimitives = nested;
    return lines;
}

TEST(PanelBehaviourTest, ACopyFillsAsItsSourceAndTheirEditsStayApart)
{
    qxtest::WorkingDatabase working;
    const AcDbObjectId id = working.Add(paneltest::RichPanel());
    AcDbObjectIdArray ids;
    ids.append(id);
    AcDbObjectIdArray clones;
    headless::CommandLineCapture quiet;
    ASSERT_EQ(headless::copyObjects(ids, clones), Acad::eOk);
    std::size_t hatchPrimitives = 0;
    const std::string source = DrawnBy(id, &hatchPrimitives);
    EXPECT_GT(hatchPrimitives, 0u);
    EXPECT_EQ(DrawnBy(clones[0]), source);

    // A coarser pattern on the copy leaves the source's fill as it was.
    AecPanel* copy = nullptr;
    ASSERT_EQ(acdbOpenObject(copy, clones[0], AcDb::kForWrite), Acad::eOk);
    DbxPanel::HatchPatternInfo hatch;
    ASSERT_TRUE(copy->GetHatchPatternInfo(hatch));
    hatch.SetPatternScale(hatch.GetPatternScale() * 2.0);
    copy->SetHatchPatternInfo(hatch);
    copy->close();
    const std::string copyCoarser = DrawnBy(clones[0]);
    EXPECT_NE(copyCoarser, source);
    EXPECT_EQ(DrawnBy(id), source);

    // A shorter source leaves the copy's fill as it was.
    AecPanel* shortened = nullptr;
    ASSERT_EQ(acdbOpenObject(shortened, id, AcDb::kForWrite), Acad::eOk);
    ASSERT_TRUE(shortened->SetGeomLengthAndFlush(shortened->GetGeomLength() / 2.0, true));
    shortened->close();
    EXPECT_NE(DrawnBy(id), source);
    EXPECT_EQ(DrawnBy(clones[0]), copyCoarser);
}

TEST(PanelBehaviourTest, CreateCopyIsAnExactDuplicate)
{
    std::unique_ptr<AecPanel> panel(paneltest::RichPanel());
    std::unique_ptr<AecPanel> copy(panel->CreateCopy());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(qxtest::FileOut(copy.get()), qxtest::FileOut(panel.get()));
    DbxPanel::PanelBasicInfo basic;
    ASSERT_TRUE(copy->GetPanelBasicInfo(basic));
    EXPECT_EQ(std::wstring(basic.GetUniqueNum().kwszPtr()), L"P-S0071");
}

// ---- the change collector and the drag hook

class CollectorTest : public ::testing::Test {
protected:
    void TearDown() override { DbxPanel::LinkageChangeCollector::DestroyInstance(); }
    DbxPanel::LinkageChangeCollector& collector = DbxPanel::LinkageChangeCollector::Instance();
};

TEST_F(CollectorTest, RecordsOnlyWhileEnabledAndCollectingARealId)
{
    qxtest::WorkingDatabase working;
    AecPanel* made = new AecPanel();
    MakeRectangle(*made, 100, 50);
    const AcDbObjectId id = working.Add(made);
    const DbxPanel::EntityChangeDetail detail;
    collector.RecordChange(id, detail);  // not enabled
    collector.StartCollecting();         // not enabled: stays closed
    EXPECT_FALSE(collector.IsCollecting());
    collector.EnableCollection();
    collector.RecordChange(id, detail);  // enabled, not collecting
    collector.StartCollecting();
    collector.RecordChange(AcDbObjectId::kNull, detail);
    EXPECT_TRUE(collector.GetAllChanges().empty());
    collector.RecordChange(id, detail);
    collector.StopCollecting();
    collector.RecordChange(id, detail);  // after stop
    ASSERT_EQ(collector.GetAllChanges().size(), 1u);
    EXPECT_EQ(collector.GetAllChanges()[0].id, id);
    collector.ForceReset();
    EXPECT_TRUE(collector.GetAllChanges().empty());
    EXPECT_TRUE(collector.IsEnabled());
    collector.DisableCollection();
    EXPECT_FALSE(collector.IsEnabled());
}

// A 10000 long panel along X: the drag records its length along the slope.
TEST_F(CollectorTest, AFinishedDragRecordsTheSlopedLengthAnAbortedOneNothing)
{
    struct Case {
        const wchar_t* basic;
        double length;
    };
    const Case cases[] = {
        {L"{\"lengthDirection\":[1,0],\"slopeAngleRadians\":0}", 10000.0},
        {L"{\"lengthDirection\":[1,0],\"slopeAngleRadians\":0.5}", 10000.0 / std::cos(0.5)},
        {L"", 0.0},
        {L"{\"lengthDirection\":", 0.0},
    };
    collector.EnableCollection();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.length);
        qxtest::WorkingDatabase working;
        AecPanel* made = new AecPanel();
        MakeRectangle(*made, 10000, 750);
        made->SetPanelBasicInfoJsonStr(c.basic);
        const AcDbObjectId id = working.Add(made);
        AecPanel* panel = nullptr;
        ASSERT_EQ(acdbOpenObject(panel, id, AcDb::kForWrite), Acad::eOk);
        collector.StartCollecting();
        panel->dragStatus(AcDb::kDragStart);
        panel->dragStatus(AcDb::kDragAbort);
        EXPECT_TRUE(collector.GetAllChanges().empty());
        panel->dragStatus(AcDb::kDragStart);
        panel->dragStatus(AcDb::kDragEnd);
        panel->close();
        ASSERT_EQ(collector.GetAllChanges().size(), 1u);
        const DbxPanel::ChangeRecord& record = collector.GetAllChanges()[0];
        EXPECT_EQ(record.id, id);
        EXPECT_EQ(record.detail.changeKind, 1);
        EXPECT_NEAR(record.detail.lengthBefore, c.length, 1e-9);
        EXPECT_EQ(record.detail.lengthAfter, 0.0);
        EXPECT_TRUE(record.detail.text.empty());
    }
}

// ---- stretch

class StretchTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        MakeRectangle(panel, 6000, 750);
        panel.SetPanelBasicInfoJsonStr(L"{\"lengthDirection\":[1,0],\"guiBingLength\":6000,\"guiBingWidth\":750}");
        panel.SetNumberingAndEncodingInfoJsonStr(L"{\"isNumbered\":true,\"finalDisplayNumber\":\"A-01\"}");
    }
    AcGePoint2d Vertex(int i)
    {
        AcArray<AcGePoint2d> points;
        panel.GetOuterLoopPoints(points);
        return points[i];
    }
    int GuiBing(bool length)
    {
        DbxPanel::PanelBasicInfo basic;
        EXPECT_TRUE(panel.GetPanelBasicInfo(basic));
        return length ? basic.GetGuiBingLength() : basic.GetGuiBingWidth();
    }
    AecPanel panel;
};

TEST_F(StretchTest, OnlyThePartAlongTheLayingDirectionMoves)
{
    AcGePoint3dArray points;
    ASSERT_EQ(panel.getStretchPoints(points), Acad::eOk);
    ASSERT_EQ(points.length(), 4);
    AcDbIntArray right;
    right.append(1);
    right.append(2);
    ASSERT_EQ(panel.moveStretchPointsAt(right, AcGeVector3d(100, 50, 30)), Acad::eOk);
    EXPECT_EQ(Vertex(1), AcGePoint2d(6100, 0));
    EXPECT_EQ(Vertex(2), AcGePoint2d(6100, 750));
    EXPECT_EQ(GuiBing(true), -1);
    EXPECT_EQ(GuiBing(false), 750);
    DbxPanel::NumberingAndEncodingInfo numbering;
    ASSERT_TRUE(panel.GetNumberingAndEncodingInfo(numbering));
    EXPECT_TRUE(numbering.IsNumbered());
    EXPECT_EQ(std::wstring(numbering.GetFinalDisplayNumber().kwszPtr()), L"A-01");
}

TEST_F(StretchTest, AcrossTheLayingDirectionNothingMovesButTheSizeIsReset)
{
    AcDbIntArray right;
    right.append(1);
    ASSERT_EQ(panel.moveStretchPointsAt(right, AcGeVector3d(0, 80, 0)), Acad::eOk);
    EXPECT_EQ(Vertex(1), AcGePoint2d(6000, 0));
    EXPECT_EQ(GuiBing(true), -1);
}

TEST_F(StretchTest, IndicesOutsideTheOutlineAreIgnored)
{
    AcDbIntArray outside;
    outside.append(-1);
    outside.append(4);
    const qxtest::Bytes before = qxtest::FileOut(&panel);
    ASSERT_EQ(panel.moveStretchPointsAt(outside, AcGeVector3d(100, 0, 0)), Acad::eOk);
    EXPECT_EQ(qxtest::FileOut(&panel), before);
}

TEST_F(StretchTest, AnUnreadableBasicBlockRefusesTheStretch)
{
    panel.SetPanelBasicInfoJsonStr(L"[");
    AcDbIntArray right;
    right.append(1);
    EXPECT_EQ(panel.moveStretchPointsAt(right, AcGeVector3d(100, 0, 0)), Acad::eInvalidInput);
    EXPECT_EQ(Vertex(1), AcGePoint2d(6000, 0));
    AcGePoint3dArray gripPoints;
    AcDbIntArray modes;
    AcDbIntArray geomIds;
    EXPECT_EQ(static_cast<int>(panel.getGripPoints(gripPoints, modes, geomIds)), 1);
}

}  // namespace
