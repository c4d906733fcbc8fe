// The polygonal opening: segment labels and the per-document inspect mode, the point that
// carries the title and the centre cross inside concave outlines, the record in the data
// tree, its transformation and its list output.
#include <gtest/gtest.h>

#include <cmath>

#include "ModuleTestSupport.h"
#include "headless/RecordingDwgFiler.h"
#include "headless/Session.h"
#include "headless/TextCodec.h"
#include "openings/AecPolyOpening.h"
#include "openings/AecPolyOpeningInspectModeGuard.h"

namespace {

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

using Outline = std::vector<AcGePoint2d>;

void SetOutline(AecPolyOpening& opening, const Outline& points, bool closed)
{
    for (unsigned int i = 0; i < points.size(); ++i)
        opening.addVertexAt(i, points[i]);
    opening.setClosed(closed);
}

std::vector<std::wstring> TextsDrawn(AecPolyOpening& opening)
{
    std::vector<std::wstring> texts;
    for (const headless::RecordedPrimitive& p : qxtest::Draw(&opening)) {
        if (p.kind == headless::PrimitiveKind::kText)
            texts.push_back(p.text);
    }
    return texts;
}

// The distance from point to the nearest edge of a closed outline, negative outside.
double SignedDistance(const Outline& outline, const AcGePoint2d& point)
{
    bool inside = false;
    double nearest = HUGE_VAL;
    for (std::size_t i = 0, j = outline.size() - 1; i < outline.size(); j = i++) {
        const AcGePoint2d& a = outline[i];
        const AcGePoint2d& b = outline[j];
        if ((a.y > point.y) != (b.y > point.y) && point.x < (b.x - a.x) * (point.y - a.y) / (b.y - a.y) + a.x)
            inside = !inside;
        const AcGeVector2d ab = b - a;
        const double t = std::clamp((point - a).dotProduct(ab) / ab.lengthSqrd(), 0.0, 1.0);
        nearest = std::min(nearest, point.distanceTo(a + ab * t));
    }
    return inside ? nearest : -nearest;
}

class AecPolyOpeningTest : public ::testing::Test {
protected:
    qxtest::WorkingDatabase working;
};

TEST_F(AecPolyOpeningTest, SegmentLabelsShowOnlyInInspectMode)
{
    const Outline square = {{0, 0}, {1000, 0}, {1000, 1000}, {0, 1000}};
    struct Row {
        const char* what;
        bool closed;
        bool inspect;
        bool enabled;
        std::vector<std::wstring> texts;
    };
    const Row rows[] = {
        {"a new opening outside inspect mode", false, false, true, {L"异形窗"}},
        {"open, four vertices", false, true, true, {L"异形窗", L"Segment_1", L"Segment_2", L"Segment_3"}},
        {"closed, four vertices",
         true,
         true,
         true,
         {L"异形窗", L"Segment_1", L"Segment_2", L"Segment_3", L"Segment_4"}},
        {"labels not allowed", true, true, false, {L"异形窗"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        AecPolyOpeningInspectModeGuard inspect(row.inspect);
        AecPolyOpening opening;
        SetOutline(opening, square, row.closed);
        opening.SetSegmentLabelsInInspectModeVisible(row.enabled);
        EXPECT_EQ(TextsDrawn(opening), row.texts);
    }

    // A stored label gives its text to its segment, an empty one hides it; labels stand
    // 1.5 label heights off the segment's middle, on its right, centred there, reading
    // left to right or upwards.
    AecPolyOpeningInspectModeGuard inspect(true);
    AecPolyOpening opening;
    SetOutline(opening, square, true);
    PolyOpeningData data = opening.GetData();
    data.ResizeSegmentLabels(2);
    data.segmentLabels[1].SetLabel(L"东侧");
    ASSERT_EQ(opening.SetData(data), Acad::eOk);
    EXPECT_EQ(TextsDrawn(opening), (std::vector<std::wstring>{L"异形窗", L"东侧", L"Segment_3", L"Segment_4"}));
    // "Segment_3" runs right to left along the top: nine characters 0.6 x 200 wide,
    // centred at (500, 1300), reading left to right.
    const auto drawn = qxtest::Draw(&opening);
    const auto top = std::find_if(drawn.begin(), drawn.end(),
                                  [](const headless::RecordedPrimitive& p) { return p.text == L"Segment_3"; });
    ASSERT_NE(top, drawn.end());
    EXPECT_TRUE(qxtest::Near(top->points[0], AcGePoint3d(500 - 540, 1300 - 100, 0), 1e-9));
    EXPECT_TRUE(qxtest::Near(top->vectors[1], AcGeVector3d(1, 0, 0)));
    // The right side's label reads upwards, the top's left to right.
    const auto east = std::find_if(drawn.begin(), drawn.end(),
                                   [](const headless::RecordedPrimitive& p) { return p.text == L"东侧"; });
    ASSERT_NE(east, drawn.end());
    EXPECT_TRUE(qxtest::Near(east->vectors[1], AcGeVector3d(0, 1, 0)));
}

TEST_F(AecPolyOpeningTest, TheInspectModeBelongsToTheCurrentDocument)
{
    headless::Session session;
    AcApDocument* first = session.newDocument();
    AcApDocument* second = session.newDocument();
    EXPECT_FALSE(AecPolyOpening::IsInspectMode());
    AecPolyOpening::SetInspectMode(true);
    EXPECT_TRUE(AecPolyOpening::IsInspectMode());

    ASSERT_EQ(session.setCurrent(first), Acad::eOk);
    EXPECT_FALSE(AecPolyOpening::IsInspectMode());
    ASSERT_EQ(session.setCurrent(second), Acad::eOk);
    EXPECT_TRUE(AecPolyOpening::IsInspectMode());

    // A closed document takes its setting with it.
    ASSERT_EQ(session.close(second), Acad::eOk);
    EXPECT_FALSE(AecPolyOpening::IsInspectMode());
    session.newDocument();
    EXPECT_FALSE(AecPolyOpening::IsInspectMode());
}

TEST_F(AecPolyOpeningTest, NestedGuardsRestoreInReverseOrder)
{
    AecPolyOpening::SetInspectMode(false);
    {
        AecPolyOpeningInspectModeGuard outer(true);
        EXPECT_TRUE(AecPolyOpening::IsInspectMode());
        {
            AecPolyOpeningInspectModeGuard inner(false);
            EXPECT_FALSE(AecPolyOpening::IsInspectMode());
            {
                AecPolyOpeningInspectModeGuard innermost(true);
                EXPECT_TRUE(AecPolyOpening::IsInspectMode());
            }
            EXPECT_FALSE(AecPolyOpening::IsInspectMode());
        }
        EXPECT_TRUE(AecPolyOpening::IsInspectMode());
    }
    EXPECT_FALSE(AecPolyOpening::IsInspectMode());
}

// The title and the cross go to the point inside the outline that lies farthest from its
// edges; each outline is also tried moved and turned, which must not change how far that
// is. The largest distances are worked out by hand: the L's circle touches both outer
// sides at its corner and the inner corner, r = 1000 (2 - sqrt 2).
TEST_F(AecPolyOpeningTest, TheInnerPointLiesDeepInsideConcaveOutlines)
{
    struct Row {
        const char* what;
        Outline outline;
        double deepest;
    };
    const Row rows[] = {
        {"square", {{0, 0}, {1000, 0}, {1000, 1000}, {0, 1000}}, 500},
        {"long rectangle", {{0, 0}, {4000, 0}, {4000, 1000}, {0, 1000}}, 500},
        {"L", {{0, 0}, {2000, 0}, {2000, 1000}, {1000, 1000}, {1000, 2000}, {0, 2000}}, 1000 * (2 - std::sqrt(2.0))},
        // Its centroid (1500, 916.7) lies in the notch, outside.
        {"U", {{0, 0}, {3000, 0}, {3000, 2000}, {2000, 2000}, {2000, 500}, {1000, 500}, {1000, 2000}, {0, 2000}}, 500},
        {"right triangle 3-4-5 x 1000", {{0, 0}, {4000, 0}, {0, 3000}}, 1000},
        // Once made the first grid of cells a million cells long.
        {"a strip a million times longer than wide", {{0, 0}, {1e6, 0}, {1e6, 1}, {0, 1}}, 0.5},
    };
    struct Variant {
        const char* what;
        AcGeMatrix3d move;
    };
    const Variant variants[] = {
        {"as given", AcGeMatrix3d::kIdentity},
        {"moved", AcGeMatrix3d::translation(AcGeVector3d(-7300, 12500, 0))},
        {"turned", AcGeMatrix3d::rotation(0.6, AcGeVector3d::kZAxis, AcGePoint3d(100, 50, 0))},
    };
    for (const Row& row : rows) {
        for (const Variant& variant : variants) {
            SCOPED_TRACE(std::string(row.what) + ", " + variant.what);
            Outline moved;
            for (const AcGePoint2d& p : row.outline) {
                const AcGePoint3d q = variant.move * AcGePoint3d(p.x, p.y, 0);
                moved.emplace_back(q.x, q.y);
            }
            AecPolyOpening opening;
            SetOutline(opening, moved, true);
            AcGePoint3d inner;
            ASSERT_TRUE(opening.GetInnerReferencePoint(inner));
            const double distance = SignedDistance(moved, AcGePoint2d(inner.x, inner.y));
            // Found to a thousandth of the larger extent.
            EXPECT_GE(distance, row.deepest - 5.0) << inner;
            EXPECT_LE(distance, row.deepest + 1e-6) << inner;
        }
    }

    // A square's point is its centre; the title stands a title height above it and the
    // cross spans half a title height around it.
    AecPolyOpening square;
    SetOutline(square, rows[0].outline, true);
    const auto drawn = qxtest::Draw(&square);
    ASSERT_EQ(drawn.size(), 4u);
    EXPECT_EQ(drawn[1].text, L"异形窗");
    // Three full-width characters 300 wide each, 300 high, middle at (500, 800).
    EXPECT_TRUE(qxtest::Near(drawn[1].points[0], AcGePoint3d(50, 650, 0), 1e-9));
    EXPECT_TRUE(qxtest::Near(drawn[2].points[0], AcGePoint3d(425, 500, 0), 1e-9));
    EXPECT_TRUE(qxtest::Near(drawn[2].points[1], AcGePoint3d(575, 500, 0), 1e-9));
    EXPECT_TRUE(qxtest::Near(drawn[3].points[0], AcGePoint3d(500, 425, 0), 1e-9));
    EXPECT_TRUE(qxtest::Near(drawn[3].points[1], AcGePoint3d(500, 575, 0), 1e-9));
    // Without the cross the title is centred on the point.
    square.SetCenterCrossVisible(false);
    const auto plain = qxtest::Draw(&square);
    ASSERT_EQ(plain.size(), 2u);
    EXPECT_TRUE(qxtest::Near(plain[1].points[0], AcGePoint3d(50, 350, 0), 1e-9));
}

// An outline whose extent cannot be measured has no inner point: it draws only itself.
TEST_F(AecPolyOpeningTest, AnOutlineTooLargeToMeasureDrawsNoTitleOrCross)
{
    AecPolyOpening opening;
    SetOutline(opening, {{0, 0}, {1e308, 0}, {-1e308, 1e308}}, true);
    AcGePoint3d inner;
    EXPECT_FALSE(opening.GetInnerReferencePoint(inner));
    const auto drawn = qxtest::Draw(&opening);
    ASSERT_EQ(drawn.size(), 1u);
    EXPECT_EQ(drawn[0].kind, headless::PrimitiveKind::kPline);
}

TEST_F(AecPolyOpeningTest, ANewOpeningListsItsShapeTitleStyleAndInspectMode)
{
    AecPolyOpeningInspectModeGuard inspect(false);
    AecPolyOpening opening;
    SetOutline(opening, {{0, 0}, {1000, 0}, {1000, 1000}, {0, 1000}}, false);
    const std::wstring output = qxtest::ListOutput(&opening);
    const std::wstring own = L"\n异形洞口: 4 个顶点，3 个分段，未闭合"
                             L"\n标题: 显示，\"异形窗\""
                             L"\n文字样式: Standard（默认兜底）"
                             L"\n检查模式: 关闭，分段标签: 允许";
    ASSERT_GE(output.size(), own.size());
    EXPECT_EQ(output.substr(output.size() - own.size()), own) << headless::toUtf8(output);
}

// The record travels only in the tree, under its own keys; a tree that lacks keys or holds
// hostile values leaves the record's own values.
TEST_F(AecPolyOpeningTest, TheRecordTravelsInTheTreeAndLoadingKeepsWhatItLacks)
{
    AecPolyOpening opening;
    SetOutline(opening, {{0, 0}, {1000, 0}, {500, 800}}, true);
    opening.SetDisplayAidTitle(L"三角窗");
    headless::RecordingDwgFiler baseOnly;
    opening.AcDbPolyline::dwgOutFields(&baseOnly);
    const auto lines = qxtest::FilingTranscript(&opening);
    const std::vector<std::string> own(lines.begin() + static_cast<long>(baseOnly.lines().size()), lines.end());
    // clang-format off
    const std::vector<std::string> expected = {
        "writeInt32 1",                                                  // class version
        "writeInt32 -1001", "writeInt32 1", "writeInt32 0", "writeInt32 1",  // header, root
        "writeString \"PolyOpeningData\"", "writeInt32 6",
        "writeString \"ColorIndex\"", "writeInt32 0", "writeInt32 1",
        "writeString \"EnableSegmentLabels\"", "writeInt32 3", "writeBool true",
        "writeString \"SegmentLabelCount\"", "writeInt32 0", "writeInt32 0",
        "writeString \"SegmentLabelHeight\"", "writeInt32 1", "writeDouble 200",
        "writeString \"ShowCenterCross\"", "writeInt32 3", "writeBool true",
        "writeString \"TextStyleId\"", "writeInt32 8", "writeSoftPointerId null",
        "writeInt32 1", "writeString \"TitleLabel\"", "writeInt32 3",
        "writeString \"Height\"", "writeInt32 1", "writeDouble 300",
        "writeString \"Text\"", "writeInt32 2", "writeString \"三角窗\"",
        "writeString \"Visible\"", "writeInt32 3", "writeBool true",
        "writeInt32 0",
    };
    // clang-format on
    EXPECT_EQ(own, expected);

    // A tree written elsewhere: a colour index out of range, a negative height, a
    // hostile label count and no title.
    AecPolyOpening written;
    SetOutline(written, {{0, 0}, {1000, 0}, {500, 800}}, true);
    DataNode* node = written.AddNode(L"PolyOpeningData");
    node->SetValue(L"ColorIndex", 300);
    node->SetValue(L"SegmentLabelHeight", -20.0);
    node->SetValue(L"SegmentLabelCount", 1 << 30);
    node->AddChild(L"SegmentLabel_1")->SetValue(L"label", AcString(L"北"));
    AecPolyOpening read;
    ASSERT_EQ(qxtest::FileIn(&read, qxtest::FileOut(&written, working.db()), working.db()), Acad::eOk);
    const PolyOpeningData data = read.GetData();
    EXPECT_EQ(data.colorIndex, 0);
    EXPECT_EQ(data.segmentLabelHeight, 200);
    EXPECT_EQ(data.titleText, AcString(L"异形窗"));
    EXPECT_TRUE(data.titleVisible);
    ASSERT_EQ(data.segmentLabels.size(), 4096u);
    EXPECT_EQ(data.segmentLabels[1].GetLabel(), AcString(L"北"));
}

TEST_F(AecPolyOpeningTest, TransformsScaleTheTextHeights)
{
    AecPolyOpening opening;
    SetOutline(opening, {{0, 0}, {1000, 0}, {500, 800}}, true);
    ASSERT_EQ(opening.transformBy(AcGeMatrix3d::scaling(2.0, AcGePoint3d(500, 0, 0)) *
                                  AcGeMatrix3d::rotation(0.3, AcGeVector3d::kZAxis)),
              Acad::eOk);
    EXPECT_NEAR(opening.GetData().titleHeight, 600, 1e-9);
    EXPECT_NEAR(opening.GetData().segmentLabelHeight, 400, 1e-9);
    // Written back to the tree: a copy filed from it has the new heights.
    AecPolyOpening copy;
    ASSERT_EQ(qxtest::FileIn(&copy, qxtest::FileOut(&opening, working.db()), working.db()), Acad::eOk);
    EXPECT_NEAR(copy.GetData().titleHeight, 600, 1e-9);
}

}  // namespace
