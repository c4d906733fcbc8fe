// The overlap line's own behaviour: its defaults and list output, the covered edge dashed
// and drawn before the covering one, the direction mark on the covering side at a size
// that follows the line, and what draw options and explode hand out.
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <vector>

#include "LineTestSupport.h"
#include "ModuleTestSupport.h"
#include "dbpl.h"
#include "headless/TextCodec.h"
#include "lines/AecOverlapLine.h"

namespace {

using headless::PrimitiveKind;
using namespace linetest;

OverlapDrawOptions Options(int bits)
{
    return static_cast<OverlapDrawOptions>(bits);
}

std::unique_ptr<AecOverlapLine> MakeLine(const AcGePoint3d& start, const AcGePoint3d& end)
{
    std::unique_ptr<AecOverlapLine> line(new AecOverlapLine());
    EXPECT_EQ(line->SetPoints(start, end), Acad::eOk);
    return line;
}

std::vector<PrimitiveKind> Kinds(const std::vector<headless::RecordedPrimitive>& drawn)
{
    std::vector<PrimitiveKind> kinds;
    for (const auto& primitive : drawn)
        kinds.push_back(primitive.kind);
    return kinds;
}

class AecOverlapLineTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        linesLayer = AddLayer(working.db(), L"LINES");
        boundaryLayer = AddLayer(working.db(), L"JD边界");
    }

    // A line from (0, 0) to (100, 0), left 10 and right 20, in model space on layer
    // "LINES" with colour 5, its strip in the JieDian boundary style (layer "JD边界",
    // colour 3); opened for write.
    AecOverlapLine* AddLine(OverlapDrawOptions options, OverlapDirection direction)
    {
        auto line = MakeLine(P(0, 0), P(100, 0));
        line->SetDrawOptions(options);
        line->SetOverlapDirection(direction);
        line->SetJieDianBoundaryLayerName(L"JD边界");
        line->SetJieDianBoundaryColorIndex(3);
        const AcDbObjectId id = working.Add(line.release());
        AecOverlapLine* opened = nullptr;
        EXPECT_EQ(acdbOpenObject(opened, id, AcDb::kForWrite), Acad::eOk);
        opened->setLayer(linesLayer);
        opened->setColorIndex(5);
        return opened;
    }

    qxtest::WorkingDatabase working;
    AcDbObjectId linesLayer;
    AcDbObjectId boundaryLayer;
};

TEST_F(AecOverlapLineTest, DefaultsOfANewLine)
{
    AecOverlapLine line;
    EXPECT_EQ(line.GetOverlapLeft(), 10.0);
    EXPECT_EQ(line.GetOverlapRight(), 20.0);
    EXPECT_EQ(line.GetOverlapDirection(), LeftOverRight);
    EXPECT_EQ(line.GetDrawOptions(), kOverlapDrawCenterLine | kOverlapDrawBoundary);
    EXPECT_FALSE(line.IsDrawOptionEnabled(kOverlapDrawDirection));
    EXPECT_TRUE(line.GetAccessoryJsonStr().isEmpty());

    // Widths are kept as given, negative ones too; non-finite ones change nothing.
    EXPECT_EQ(line.SetOverlapLeft(-4.5), Acad::eOk);
    EXPECT_EQ(line.GetOverlapLeft(), -4.5);
    EXPECT_EQ(line.SetOverlapRight(std::numeric_limits<double>::quiet_NaN()), Acad::eInvalidInput);
    EXPECT_EQ(line.GetOverlapRight(), 20.0);
    EXPECT_EQ(line.SetOverlapDirection(static_cast<OverlapDirection>(7)), Acad::eOk);
    EXPECT_EQ(line.GetOverlapDirection(), 7);
    line.SetJieDianTextColorIndex(300);
    EXPECT_EQ(line.GetJieDianTextColorIndex(), 0);
}

TEST_F(AecOverlapLineTest, ListOutput)
{
    auto line = MakeLine(P(100, 200), P(400, 600));
    line->SetOverlapDirection(RightOverLeft);
    line->SetNodeBasicJsonStr(L"{\"编号\":\"DJ-01\"}");
    const std::wstring own = L"\n ***搭接线信息*** "
                             L"\n[Basic Geometry Info]"
                             L"\n  Start Point: (100.000, 200.000, 0.000)"
                             L"\n  End Point: (400.000, 600.000, 0.000)"
                             L"\n  Segment Length: 500.000"
                             L"\n  Direction Angle: 53.130 deg"
                             L"\n  Segment Type: Straight Line"
                             L"\n"
                             L"\n[Overlap Width Info]"
                             L"\n  Left Overlap: 10.000"
                             L"\n  Right Overlap: 20.000"
                             L"\n  Total Width: 30.000"
                             L"\n  Overlap Area: 15000.000"
                             L"\n"
                             L"\n[Overlap Direction]"
                             L"\n  Direction: RightOverLeft (右压左)"
                             L"\n"
                             L"\n[JSON Data Info]"
                             L"\n  节点基本信息: {\"编号\":\"DJ-01\"}"
                             L"\n  基本信息长度: 14 字符"
                             L"\n  收边信息: [无数据]"
                             L"\n  辅配件信息: [无数据]";
    const std::wstring output = qxtest::ListOutput(line.get());
    ASSERT_GT(output.size(), own.size()) << headless::toUtf8(output);
    EXPECT_EQ(output.substr(0, own.size()), own) << headless::toUtf8(output);
    EXPECT_NE(output.find(L"QX_OVERLAP_LINE", own.size()), std::wstring::npos) << headless::toUtf8(output);

    // Direction 0 reads left over right; every other value right over left.
    struct Row {
        int direction;
        const wchar_t* text;
    };
    for (const Row& row :
         {Row{0, L"\n  Direction: LeftOverRight (左压右)\n"}, Row{5, L"\n  Direction: RightOverLeft (右压左)\n"}}) {
        line->SetOverlapDirection(static_cast<OverlapDirection>(row.direction));
        EXPECT_NE(qxtest::ListOutput(line.get()).find(row.text), std::wstring::npos) << row.direction;
    }
}

// The strip of the line (0,0)-(100,0) has P0 (0,-10), P1 (0,20), P2 (100,20), P3 (100,-10).
TEST_F(AecOverlapLineTest, TheCoveredEdgeIsDashedAndDrawnFirst)
{
    const AcDbObjectId dashed = LoadDashed(working.db());
    ASSERT_FALSE(dashed.isNull());
    const AcDbObjectId continuous = working.db()->continuousLinetype();
    const std::vector<AcGePoint3d> minusEdge = {P(0, -10), P(100, -10)};
    const std::vector<AcGePoint3d> plusEdge = {P(0, 20), P(100, 20)};
    struct Row {
        const char* name;
        int direction;
        const std::vector<AcGePoint3d>* covered;
        const std::vector<AcGePoint3d>* covering;
    };
    const Row rows[] = {
        {"left over right: P0-P3 covered", LeftOverRight, &minusEdge, &plusEdge},
        {"right over left: P1-P2 covered", RightOverLeft, &plusEdge, &minusEdge},
        {"any other direction: as right over left", 2, &plusEdge, &minusEdge},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AecOverlapLine* line = AddLine(kOverlapDrawBoundary, static_cast<OverlapDirection>(row.direction));
        const auto drawn = qxtest::Draw(line);
        ASSERT_EQ(drawn.size(), 2u);
        EXPECT_TRUE(SamePoints(drawn[0].points, *row.covered));
        EXPECT_EQ(drawn[0].traits.linetypeId, dashed);
        EXPECT_TRUE(SamePoints(drawn[1].points, *row.covering));
        EXPECT_EQ(drawn[1].traits.linetypeId, continuous);
        for (const auto& edge : drawn) {
            EXPECT_EQ(edge.kind, PrimitiveKind::kPolyline);
            EXPECT_EQ(edge.traits.layerId, boundaryLayer);
            EXPECT_EQ(edge.traits.color, 3);
        }
        line->close();
    }
}

TEST_F(AecOverlapLineTest, WithoutADashedLinetypeTheCoveredEdgeKeepsTheTraitsLinetype)
{
    AecOverlapLine* line = AddLine(Options(kOverlapDrawCenterLine | kOverlapDrawBoundary), LeftOverRight);
    const auto drawn = qxtest::Draw(line);
    ASSERT_EQ(drawn.size(), 3u);
    EXPECT_EQ(drawn[0].kind, PrimitiveKind::kPline);  // the centre line, in the line's own traits
    EXPECT_EQ(drawn[1].traits.linetypeId, drawn[0].traits.linetypeId);
    EXPECT_EQ(drawn[1].traits.linetypeId, line->linetypeId());
    EXPECT_EQ(drawn[2].traits.linetypeId, working.db()->continuousLinetype());
    line->close();
}

TEST_F(AecOverlapLineTest, DrawOptionsPickTheParts)
{
    LoadDashed(working.db());
    const auto pline = PrimitiveKind::kPline;
    const auto polyline = PrimitiveKind::kPolyline;
    const auto polygon = PrimitiveKind::kPolygon;
    struct Row {
        const char* name;
        int options;
        std::vector<PrimitiveKind> kinds;
    };
    const Row rows[] = {
        {"nothing", 0, {}},
        {"centre line", 1, {pline}},
        {"strip edges", 2, {polyline, polyline}},
        {"the mark alone: shaft and head", 8, {polyline, polygon}},
        {"everything, the mark last", 11, {pline, polyline, polyline, polyline, polygon}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AecOverlapLine* line = AddLine(Options(row.options), LeftOverRight);
        EXPECT_EQ(Kinds(qxtest::Draw(line)), row.kinds);
        line->close();
    }
}

// The mark is an arrow on the covering side, pointing at the line: shaft from the head's
// base out to the tail, head tip a tenth of the size short of the line. Its size is a
// tenth of the line's length, held to 100..1000; the head is 0.35 of it long and 0.3 wide.
TEST_F(AecOverlapLineTest, TheDirectionMarkStandsOnTheCoveringSide)
{
    struct Row {
        const char* name;
        AcGePoint3d start;
        AcGePoint3d end;
        int direction;
        AcGePoint3d tail;
        AcGePoint3d base;
        AcGePoint3d tip;
        double halfWidth;  // of the head, along the line
    };
    const Row rows[] = {
        {"left over right: below a line along X, size 200", P(0, 0), P(2000, 0), LeftOverRight, P(1000, -200),
         P(1000, -90), P(1000, -20), 30},
        {"right over left: above", P(0, 0), P(2000, 0), RightOverLeft, P(1000, 200), P(1000, 90), P(1000, 20), 30},
        {"drawn right to left: the strip's normal, the side of its dashed edge", P(2000, 0), P(0, 0), LeftOverRight,
         P(1000, -200), P(1000, -90), P(1000, -20), 30},
        {"along Y: the normal is -X", P(0, 0), P(0, 3000), LeftOverRight, P(300, 1500), P(135, 1500), P(30, 1500), 45},
        {"the shortest line: no smaller than 100", P(0, 0), P(5, 0), LeftOverRight, P(2.5, -100), P(2.5, -45),
         P(2.5, -10), 15},
        {"a long line: no larger than 1000", P(0, 0), P(100000, 0), RightOverLeft, P(50000, 1000), P(50000, 450),
         P(50000, 100), 150},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto made = MakeLine(row.start, row.end);
        made->SetDrawOptions(kOverlapDrawDirection);
        made->SetOverlapDirection(static_cast<OverlapDirection>(row.direction));
        const auto drawn = qxtest::Draw(made.get());
        ASSERT_EQ(drawn.size(), 2u);
        EXPECT_TRUE(SamePoints(drawn[0].points, {row.base, row.tail}, 1e-6));
        ASSERT_EQ(drawn[1].points.size(), 3u);
        EXPECT_TRUE(qxtest::Near(drawn[1].points[0], row.tip, 1e-6));
        // The head's base corners lie either side of the shaft, across it.
        for (int corner = 1; corner <= 2; ++corner) {
            const AcGeVector3d off = drawn[1].points[corner] - row.base;
            EXPECT_NEAR(off.length(), row.halfWidth, 1e-6) << corner;
            EXPECT_NEAR(off.dotProduct(row.tail - row.base), 0.0, 1e-6) << corner;
        }
        EXPECT_TRUE(qxtest::Near(drawn[1].points[1] + (drawn[1].points[2] - row.base), row.base, 1e-6));
        EXPECT_EQ(drawn[1].traits.fillType, kAcGiFillAlways);
        EXPECT_NE(drawn[0].traits.fillType, kAcGiFillAlways);
    }

    // A line without length has the Y axis for its normal.
    AecOverlapLine empty;
    empty.SetDrawOptions(kOverlapDrawDirection);
    const auto drawn = qxtest::Draw(&empty);
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_TRUE(SamePoints(drawn[0].points, {P(0, -45), P(0, -100)}, 1e-9));
    EXPECT_TRUE(qxtest::Near(drawn[1].points[0], P(0, -10), 1e-9));
}

TEST_F(AecOverlapLineTest, TheMarkWidensTheExtents)
{
    auto line = MakeLine(P(0, 0), P(2000, 0));
    AcDbExtents extents;
    ASSERT_EQ(line->getGeomExtents(extents), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(extents.minPoint(), P(0, -10)));
    EXPECT_TRUE(qxtest::Near(extents.maxPoint(), P(2000, 20)));
    line->SetDrawOptions(Options(kOverlapDrawBoundary | kOverlapDrawDirection));
    ASSERT_EQ(line->getGeomExtents(extents), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(extents.minPoint(), P(0, -200), 1e-9));
    EXPECT_TRUE(qxtest::Near(extents.maxPoint(), P(2000, 20)));
}

TEST_F(AecOverlapLineTest, ExplodeGivesTheCentreLineThenTheStripOutline)
{
    struct Row {
        const char* name;
        int options;
        bool centre;
        bool strip;
    };
    const Row rows[] = {
        {"both, the centre line first", 3, true, true},
        {"strip only", 2, false, true},
        {"the mark is not exploded", 9, true, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AecOverlapLine* line = AddLine(Options(row.options), RightOverLeft);
        AcDbVoidPtrArray pieces;
        ASSERT_EQ(line->explode(pieces), Acad::eOk);
        ASSERT_EQ(pieces.length(), (row.centre ? 1 : 0) + (row.strip ? 1 : 0));
        int next = 0;
        if (row.centre) {
            std::unique_ptr<AcDbPolyline> centre(AcDbPolyline::cast(static_cast<AcRxObject*>(pieces[next++])));
            ASSERT_NE(centre, nullptr);
            EXPECT_FALSE(centre->isClosed());
            EXPECT_TRUE(SamePoints(Vertices(*centre), {P(0, 0), P(100, 0)}));
            EXPECT_EQ(centre->layerId(), linesLayer);
            EXPECT_EQ(centre->colorIndex(), 5);
        }
        if (row.strip) {
            std::unique_ptr<AcDbPolyline> strip(AcDbPolyline::cast(static_cast<AcRxObject*>(pieces[next++])));
            ASSERT_NE(strip, nullptr);
            EXPECT_TRUE(strip->isClosed());
            EXPECT_TRUE(SamePoints(Vertices(*strip), {P(0, -10), P(0, 20), P(100, 20), P(100, -10)}));
            EXPECT_EQ(strip->layerId(), boundaryLayer);
            EXPECT_EQ(strip->colorIndex(), 3);
        }
        line->close();
    }
}

}  // namespace
