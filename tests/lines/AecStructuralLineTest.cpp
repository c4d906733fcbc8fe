// The structural line's own behaviour: its defaults and list output (penetrations, no
// JSON length lines), the member outline in the JieDian boundary style and the dashed
// indent lines in the ShouBian line style, indents wider than the member, and explode.
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <vector>

#include "LineTestSupport.h"
#include "ModuleTestSupport.h"
#include "dbpl.h"
#include "headless/TextCodec.h"
#include "lines/AecStructuralLine.h"

namespace {

using headless::PrimitiveKind;
using namespace linetest;

std::unique_ptr<AecStructuralLine> MakeLine(const AcGePoint3d& start, const AcGePoint3d& end)
{
    std::unique_ptr<AecStructuralLine> line(new AecStructuralLine());
    EXPECT_EQ(line->SetPoints(start, end), Acad::eOk);
    return line;
}

bool IsClosedPline(const headless::RecordedPrimitive& p)
{
    return p.kind == PrimitiveKind::kPline && p.integers.size() >= 3 && p.integers[2] == 1;
}

class AecStructuralLineTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        linesLayer = AddLayer(working.db(), L"LINES");
        boundaryLayer = AddLayer(working.db(), L"JD边界");
        shouBianLayer = AddLayer(working.db(), L"SB线");
    }

    // A default line from (0, 0) to (1000, 0) in model space on layer "LINES" with colour 5
    // and linetype scale 2, its outline in the JieDian boundary style (layer "JD边界",
    // colour 3) and its indent lines on shouBianLayerName in colour shouBianColor; opened
    // for write.
    AecStructuralLine* AddLine(int options, const ACHAR* shouBianLayerName, int shouBianColor)
    {
        auto line = MakeLine(P(0, 0), P(1000, 0));
        line->SetDrawOptions(static_cast<StructuralDrawOptions>(options));
        line->SetJieDianBoundaryLayerName(L"JD边界");
        line->SetJieDianBoundaryColorIndex(3);
        line->SetShouBianLineLayerName(shouBianLayerName);
        line->SetShouBianLineColorIndex(shouBianColor);
        const AcDbObjectId id = working.Add(line.release());
        AecStructuralLine* opened = nullptr;
        EXPECT_EQ(acdbOpenObject(opened, id, AcDb::kForWrite), Acad::eOk);
        opened->setLayer(linesLayer);
        opened->setColorIndex(5);
        opened->setLinetypeScale(2.0);
        return opened;
    }

    qxtest::WorkingDatabase working;
    AcDbObjectId linesLayer;
    AcDbObjectId boundaryLayer;
    AcDbObjectId shouBianLayer;
};

TEST_F(AecStructuralLineTest, DefaultsOfANewLine)
{
    AecStructuralLine line;
    EXPECT_EQ(line.GetMemberWidthLeft(), 75.0);
    EXPECT_EQ(line.GetMemberWidthRight(), 75.0);
    EXPECT_EQ(line.GetIndentLeft(), 50.0);
    EXPECT_EQ(line.GetIndentRight(), 50.0);
    EXPECT_EQ(line.GetMemberType(), kStructuralColumn);
    EXPECT_EQ(line.GetDrawOptions(), kStructuralDrawCenterLine | kStructuralDrawMemberBoundary);
    EXPECT_FALSE(line.IsDrawOptionEnabled(kStructuralDrawIndentLines));

    // Nothing is clamped but non-finite values, which change nothing.
    EXPECT_EQ(line.SetIndentLeft(-20), Acad::eOk);
    EXPECT_EQ(line.GetIndentLeft(), -20.0);
    EXPECT_EQ(line.SetMemberWidthRight(std::numeric_limits<double>::infinity()), Acad::eInvalidInput);
    EXPECT_EQ(line.GetMemberWidthRight(), 75.0);
    line.SetShouBianLineColorIndex(-1);
    EXPECT_EQ(line.GetShouBianLineColorIndex(), 0);
}

TEST_F(AecStructuralLineTest, ListOutput)
{
    auto line = MakeLine(P(0, 0), P(1000, 0));
    line->SetShouBianJsonStr(L"{\"类型\":\"檩条\"}");
    const std::wstring own = L"\n ***结构线信息*** "
                             L"\n[Basic Geometry Info]"
                             L"\n  Start Point: (0.000, 0.000, 0.000)"
                             L"\n  End Point: (1000.000, 0.000, 0.000)"
                             L"\n  Segment Length: 1000.000"
                             L"\n  Direction Angle: 0.000 deg"
                             L"\n  Segment Type: Straight Line"
                             L"\n  Member Type: Column"
                             L"\n"
                             L"\n[Structural Member Info]"
                             L"\n  Member Width Left:  75.000"
                             L"\n  Member Width Right: 75.000"
                             L"\n  Indent Left:  50.000"
                             L"\n  Indent Right: 50.000"
                             L"\n  Penetration Left:  25.000  (MemberWidth - Indent)"
                             L"\n  Penetration Right: 25.000  (MemberWidth - Indent)"
                             L"\n"
                             L"\n[JSON Data Info]"
                             L"\n  节点基本信息: [无数据]"
                             L"\n  收边信息: {\"类型\":\"檩条\"}"
                             L"\n  辅配件信息: [无数据]";
    const std::wstring output = qxtest::ListOutput(line.get());
    ASSERT_GT(output.size(), own.size()) << headless::toUtf8(output);
    EXPECT_EQ(output.substr(0, own.size()), own) << headless::toUtf8(output);
    EXPECT_NE(output.find(L"QX_STRUCTURAL_LINE", own.size()), std::wstring::npos) << headless::toUtf8(output);

    struct Row {
        const char* name;
        int memberType;
        double indentLeft;
        const wchar_t* expected;
    };
    const Row rows[] = {
        {"a beam", kStructuralBeam, 50, L"\n  Member Type: Beam\n"},
        {"any other type is a column", 9, 50, L"\n  Member Type: Column\n"},
        {"an indent wider than the member: listed as it is", kStructuralColumn, 100,
         L"\n  Penetration Left:  -25.000  (MemberWidth - Indent)"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        line->SetMemberType(static_cast<StructuralMemberType>(row.memberType));
        line->SetIndentLeft(row.indentLeft);
        const std::wstring listed = qxtest::ListOutput(line.get());
        EXPECT_NE(listed.find(row.expected), std::wstring::npos) << headless::toUtf8(listed);
    }
}

// Defaults: member widths 75 and indents 50 on both sides of (0,0)-(1000,0).
TEST_F(AecStructuralLineTest, DrawsA150WideOutlineAndDashedIndentLinesAt50)
{
    const AcDbObjectId dashed = LoadDashed(working.db());
    AecStructuralLine* line = AddLine(7, L"SB线", 4);
    auto drawn = qxtest::Draw(line);
    ASSERT_EQ(drawn.size(), 4u);

    EXPECT_TRUE(IsClosedPline(drawn[0]));
    EXPECT_TRUE(SamePoints(drawn[0].points, {P(0, -75), P(0, 75), P(1000, 75), P(1000, -75)}));
    EXPECT_EQ(drawn[0].traits.layerId, boundaryLayer);
    EXPECT_EQ(drawn[0].traits.color, 3);

    EXPECT_TRUE(SamePoints(drawn[1].points, {P(0, -50), P(1000, -50)}));
    EXPECT_TRUE(SamePoints(drawn[2].points, {P(0, 50), P(1000, 50)}));
    for (std::size_t i = 1; i <= 2; ++i) {
        EXPECT_EQ(drawn[i].kind, PrimitiveKind::kPline) << i;
        EXPECT_FALSE(IsClosedPline(drawn[i])) << i;
        EXPECT_EQ(drawn[i].traits.layerId, shouBianLayer) << i;
        EXPECT_EQ(drawn[i].traits.color, 4) << i;
        EXPECT_EQ(drawn[i].traits.linetypeId, dashed) << i;
        EXPECT_EQ(drawn[i].traits.linetypeScale, 2.0) << i;
    }

    EXPECT_TRUE(SamePoints(drawn[3].points, {P(0, 0), P(1000, 0)}));
    EXPECT_EQ(drawn[3].traits.layerId, linesLayer);
    EXPECT_EQ(drawn[3].traits.color, 5);
    EXPECT_EQ(drawn[3].traits.linetypeId, line->linetypeId());

    // A change drops what was built: the next draw shows it.
    line->SetIndentRight(60);
    drawn = qxtest::Draw(line);
    ASSERT_EQ(drawn.size(), 4u);
    EXPECT_TRUE(SamePoints(drawn[2].points, {P(0, 60), P(1000, 60)}));
    line->close();
}

TEST_F(AecStructuralLineTest, IndentLinesAloneInTheLinesOwnStyleWhenTheDrawingLacksTheirs)
{
    AecStructuralLine* line = AddLine(kStructuralDrawIndentLines, L"无此图层", 0);
    const auto drawn = qxtest::Draw(line);
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_TRUE(SamePoints(drawn[0].points, {P(0, -50), P(1000, -50)}));
    EXPECT_TRUE(SamePoints(drawn[1].points, {P(0, 50), P(1000, 50)}));
    for (const auto& indentLine : drawn) {
        EXPECT_EQ(indentLine.traits.layerId, linesLayer);
        EXPECT_EQ(indentLine.traits.color, 5);
        EXPECT_EQ(indentLine.traits.linetypeId, line->linetypeId());
    }
    line->close();
}

// Left and right indent lines run P0 -> P3 and P1 -> P2 of the indent corners, which are
// built from the end with the smaller X (see the strip corners of the layout lines).
TEST_F(AecStructuralLineTest, IndentLinesWiderThanTheMemberLieOutsideTheOutline)
{
    struct Row {
        const char* name;
        AcGePoint3d start;
        AcGePoint3d end;
        std::vector<AcGePoint3d> left;
        std::vector<AcGePoint3d> right;
    };
    const Row rows[] = {
        {"left to right", P(0, 0), P(1000, 0), {P(0, -100), P(1000, -100)}, {P(0, 50), P(1000, 50)}},
        {"right to left: widths exchanged", P(1000, 0), P(0, 0), {P(0, -50), P(1000, -50)}, {P(0, 100), P(1000, 100)}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto line = MakeLine(row.start, row.end);
        line->SetIndentLeft(100);
        EXPECT_TRUE(SamePoints(TakeVertices(line->CreateIndentLineLeft()), row.left));
        EXPECT_TRUE(SamePoints(TakeVertices(line->CreateIndentLineRight()), row.right));
        // The outline stays at 75; the extents take in the indent lines too.
        AcDbExtents extents;
        ASSERT_EQ(line->getGeomExtents(extents), Acad::eOk);
        EXPECT_TRUE(qxtest::Near(extents.minPoint(), P(0, row.left[0].y < -75 ? -100 : -75)));
        EXPECT_TRUE(qxtest::Near(extents.maxPoint(), P(1000, row.right[0].y > 75 ? 100 : 75)));
    }

    // A line without length has none.
    AecStructuralLine empty;
    EXPECT_TRUE(TakeVertices(empty.CreateIndentLineLeft()).empty());
    EXPECT_TRUE(TakeVertices(empty.CreateIndentLineRight()).empty());
}

TEST_F(AecStructuralLineTest, ExplodeHandsOutWhatIsDrawnInTheSameStyles)
{
    const AcDbObjectId dashed = LoadDashed(working.db());
    AecStructuralLine* line = AddLine(7, L"SB线", 4);
    AcDbVoidPtrArray pieces;
    ASSERT_EQ(line->explode(pieces), Acad::eOk);
    ASSERT_EQ(pieces.length(), 4);
    std::vector<std::unique_ptr<AcDbPolyline>> polylines;
    for (void* piece : pieces) {
        polylines.emplace_back(AcDbPolyline::cast(static_cast<AcRxObject*>(piece)));
        ASSERT_NE(polylines.back(), nullptr);
        EXPECT_EQ(polylines.back()->linetypeScale(), 2.0);
    }
    EXPECT_TRUE(polylines[0]->isClosed());
    EXPECT_TRUE(SamePoints(Vertices(*polylines[0]), {P(0, -75), P(0, 75), P(1000, 75), P(1000, -75)}));
    EXPECT_EQ(polylines[0]->layerId(), boundaryLayer);
    EXPECT_EQ(polylines[0]->colorIndex(), 3);
    for (std::size_t i = 1; i <= 2; ++i) {
        EXPECT_EQ(polylines[i]->layerId(), shouBianLayer) << i;
        EXPECT_EQ(polylines[i]->colorIndex(), 4) << i;
        EXPECT_EQ(polylines[i]->linetypeId(), dashed) << i;
    }
    EXPECT_TRUE(SamePoints(Vertices(*polylines[1]), {P(0, -50), P(1000, -50)}));
    EXPECT_TRUE(SamePoints(Vertices(*polylines[3]), {P(0, 0), P(1000, 0)}));
    EXPECT_EQ(polylines[3]->layerId(), linesLayer);
    EXPECT_EQ(polylines[3]->colorIndex(), 5);
    line->close();
}

}  // namespace
