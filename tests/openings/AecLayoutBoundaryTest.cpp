// The layout boundary: its title at the centre of its extents, its record on three filing
// levels with their versions, its implementation object, and the two placement helpers of
// the boundary family.
#include <gtest/gtest.h>

#include "DrawingFilePatch.h"
#include "ModuleTestSupport.h"
#include "geometry/TextBaseLabel.h"
#include "headless/CommandLine.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/RecordingDwgFiler.h"
#include "openings/AecBoundaryBaseImp.h"
#include "openings/AecLayoutBoundary.h"

namespace {

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

struct Vertex {
    AcGePoint2d point;
    double bulge;
};
using Vertices = std::vector<Vertex>;

void SetVertices(AcDbPolyline& outline, const Vertices& vertices, bool closed = true)
{
    for (unsigned int i = 0; i < vertices.size(); ++i)
        outline.addVertexAt(i, vertices[i].point, vertices[i].bulge);
    outline.setClosed(closed);
}

Vertices VerticesOf(const AcDbPolyline& outline)
{
    Vertices vertices;
    for (unsigned int i = 0; i < outline.numVerts(); ++i) {
        Vertex v{};
        outline.getPointAt(i, v.point);
        outline.getBulgeAt(i, v.bulge);
        vertices.push_back(v);
    }
    return vertices;
}

::testing::AssertionResult SameVertices(const Vertices& actual, const Vertices& expected)
{
    if (actual.size() != expected.size())
        return ::testing::AssertionFailure() << actual.size() << " vertices instead of " << expected.size();
    for (std::size_t i = 0; i < actual.size(); ++i) {
        if (actual[i].point.distanceTo(expected[i].point) > 1e-12 || actual[i].bulge != expected[i].bulge)
            return ::testing::AssertionFailure()
                << "vertex " << i << " is " << actual[i].point << " bulge " << actual[i].bulge;
    }
    return ::testing::AssertionSuccess();
}

class AecLayoutBoundaryTest : public ::testing::Test {
protected:
    qxtest::WorkingDatabase working;
};

TEST_F(AecLayoutBoundaryTest, TheTitleStandsAtTheCentreOfTheExtents)
{
    struct Row {
        const char* what;
        Vertices outline;
        void (*edit)(LayoutBoundaryData&);
        bool drawn;
        AcGePoint3d position;
    };
    const Row rows[] = {
        {"a new boundary",
         {{{0, 0}, 0}, {{4000, 0}, 0}, {{4000, 2000}, 0}, {{0, 2000}, 0}},
         [](LayoutBoundaryData&) {},
         true,
         {2000, 1000, 0}},
        {"with an offset",
         {{{0, 0}, 0}, {{4000, 0}, 0}, {{4000, 2000}, 0}, {{0, 2000}, 0}},
         [](LayoutBoundaryData& d) { d.titleOffset = AcGePoint3d(-500, 300, 0); },
         true,
         {1500, 1300, 0}},
        // The top is a half circle of radius 2000 above y = 2000: the extents reach 4000.
        {"an arc widens the extents",
         {{{0, 0}, 0}, {{4000, 0}, 0}, {{4000, 2000}, 1}, {{0, 2000}, 0}},
         [](LayoutBoundaryData&) {},
         true,
         {2000, 2000, 0}},
        {"hidden",
         {{{0, 0}, 0}, {{4000, 0}, 0}, {{4000, 2000}, 0}},
         [](LayoutBoundaryData& d) { d.titleVisible = false; },
         false,
         {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        AecLayoutBoundary boundary;
        SetVertices(boundary, row.outline);
        LayoutBoundaryData data = boundary.GetImp()->GetData();
        row.edit(data);
        boundary.GetImp()->SetData(data);
        const auto drawn = qxtest::Draw(&boundary);
        ASSERT_EQ(drawn.size(), row.drawn ? 2u : 1u);
        EXPECT_EQ(drawn[0].kind, headless::PrimitiveKind::kPline);
        if (!row.drawn)
            continue;
        const headless::RecordedPrimitive& title = drawn[1];
        EXPECT_EQ(title.text, L"布置轮廓");
        EXPECT_TRUE(qxtest::Near(title.points[0], row.position, 1e-9));
        EXPECT_TRUE(qxtest::Near(title.vectors[1], AcGeVector3d::kXAxis));
        EXPECT_EQ(title.numbers[0], 100);  // height
        EXPECT_EQ(title.numbers[1], 1);    // width factor
    }
}

TEST_F(AecLayoutBoundaryTest, FilesTheImplementationThenTheDataFieldByField)
{
    AecLayoutBoundary boundary;
    SetVertices(boundary, {{{0, 0}, 0}, {{3000, 0}, 0}, {{0, 2000}, 0}});
    LayoutBoundaryData data = boundary.GetImp()->GetData();
    data.kind = 3;
    data.referencePoint = AcGePoint3d(10, 20, 0);
    data.referenceSize = 250;
    data.firstFlag = false;
    data.titleText = L"A 区";
    data.titleOffset = AcGePoint3d(0, -800, 0);
    data.titleHeight = 350;
    data.titleDirection = AcGeVector3d(0, 1, 0);
    boundary.GetImp()->SetData(data);
    headless::RecordingDwgFiler baseOnly;
    boundary.AcDbPolyline::dwgOutFields(&baseOnly);
    const auto lines = qxtest::FilingTranscript(&boundary);
    const std::vector<std::string> own(lines.begin() + static_cast<long>(baseOnly.lines().size()), lines.end());
    // clang-format off
    const std::vector<std::string> expected = {
        "writeInt32 1",  // implementation version
        "writeInt32 0",  // data version
        "writeInt32 3", "writePoint3d (10, 20, 0)", "writeDouble 250", "writeBool false", "writeBool true",
        "writeString \"A 区\"", "writePoint3d (0, -800, 0)", "writeDouble 350", "writeVector3d (0, 1, 0)",
        "writeSoftPointerId null",
    };
    // clang-format on
    EXPECT_EQ(own, expected);
}

TEST_F(AecLayoutBoundaryTest, NewerVersionsOnEitherLevelAreRefused)
{
    AecLayoutBoundary boundary;
    SetVertices(boundary, {{{0, 0}, 0}, {{3000, 0}, 0}, {{0, 2000}, 0}});
    const qxtest::Bytes bytes = qxtest::FileOut(&boundary, working.db());
    headless::MemoryDwgFiler polylinePart(AcDb::kFileFiler, working.db());
    boundary.AcDbPolyline::dwgOutFields(&polylinePart);
    const std::size_t at = polylinePart.bytes().size();
    struct Row {
        const char* what;
        std::size_t offset;
        std::int32_t version;
        Acad::ErrorStatus status;
    };
    const Row rows[] = {
        {"implementation version 2", at, 2, Acad::eMakeMeProxy},
        {"data version 1", at + 4, 1, Acad::eMakeMeProxy},
        {"the current versions", at, 1, Acad::eOk},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        qxtest::Bytes patched = bytes;
        qxtest::PutInt32(patched, row.offset, row.version);
        AecLayoutBoundary target;
        EXPECT_EQ(qxtest::FileIn(&target, patched, working.db()), row.status);
        EXPECT_EQ(static_cast<int>(row.status), row.status == Acad::eOk ? 0 : 301);
        // A refused record leaves the target's data as it was.
        EXPECT_EQ(target.GetImp()->GetData().titleText, AcString(L"布置轮廓"));
    }
    AecLayoutBoundary none;
    EXPECT_EQ(none.dwgInFields(nullptr), Acad::eNullObjectPointer);
    EXPECT_EQ(none.dwgOutFields(nullptr), Acad::eNullObjectPointer);
}

TEST_F(AecLayoutBoundaryTest, TheDataFollowsOnlyItsOwnTransformAndCopiesStandAlone)
{
    AecLayoutBoundary boundary;
    SetVertices(boundary, {{{0, 0}, 0}, {{3000, 0}, 0}, {{0, 2000}, 0}});
    LayoutBoundaryData data;
    data.referencePoint = AcGePoint3d(100, 0, 0);
    data.titleOffset = AcGePoint3d(0, 50, 0);
    boundary.GetImp()->SetData(data);
    const AcGeMatrix3d turn = AcGeMatrix3d::rotation(1.5707963267948966, AcGeVector3d::kZAxis);
    ASSERT_EQ(boundary.transformBy(turn), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(boundary.GetImp()->GetData().referencePoint, AcGePoint3d(100, 0, 0)));

    boundary.GetImp()->TransformBy(turn);
    const LayoutBoundaryData& turned = boundary.GetImp()->GetData();
    EXPECT_TRUE(qxtest::Near(turned.referencePoint, AcGePoint3d(0, 100, 0), 1e-12));
    EXPECT_TRUE(qxtest::Near(turned.titleOffset, AcGePoint3d(-50, 0, 0), 1e-12));
    EXPECT_TRUE(qxtest::Near(turned.titleDirection, AcGeVector3d(0, 1, 0), 1e-12));

    const AecLayoutBoundaryImp copy(*boundary.GetImp());
    EXPECT_EQ(copy.GetOwner(), nullptr);
    EXPECT_TRUE(qxtest::Near(copy.GetData().referencePoint, AcGePoint3d(0, 100, 0), 1e-12));
}

TEST_F(AecLayoutBoundaryTest, OutlinesAreTurnedCounterclockwiseWithTheLabelBelow)
{
    struct Row {
        const char* what;
        Vertices outline;
        double height;
        double scale;
        bool reversed;
        Vertices after;
        AcGePoint3d label;
    };
    const Vertices counterclockwise = {{{0, 0}, 0}, {{1000, 0}, 0}, {{1000, 1000}, 0}, {{0, 1000}, 0}};
    const Row rows[] = {
        {"a clockwise square, no height",
         {{{0, 0}, 0}, {{0, 1000}, 0}, {{1000, 1000}, 0}, {{1000, 0}, 0}},
         0,
         3,
         true,
         {{{1000, 0}, 0}, {{1000, 1000}, 0}, {{0, 1000}, 0}, {{0, 0}, 0}},
         {0, -30, 0}},
        {"a counter-clockwise square", counterclockwise, 40, 2, false, counterclockwise, {0, -80, 0}},
        {"a collinear triangle counts as clockwise",
         {{{0, 0}, 0}, {{500, 0}, 0}, {{1000, 0}, 0}},
         0,
         1,
         true,
         {{{1000, 0}, 0}, {{500, 0}, 0}, {{0, 0}, 0}},
         {0, -10, 0}},
        // Each arc keeps its place and turns the other way; the closing arc stays closing
        // and reaches 250 below the square, so the label goes 10 below that.
        {"clockwise with arcs",
         {{{0, 0}, 0.25}, {{0, 1000}, 0}, {{1000, 1000}, 0}, {{1000, 0}, -0.5}},
         10,
         1,
         true,
         {{{1000, 0}, 0}, {{1000, 1000}, 0}, {{0, 1000}, -0.25}, {{0, 0}, 0.5}},
         {0, -260, 0}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        AcDbPolyline outline;
        SetVertices(outline, row.outline);
        AcGePoint3d label;
        headless::CommandLineCapture capture;
        ASSERT_TRUE(
            AecBoundaryBaseImp::EnsureCounterclockwiseAndAdjustLabelPosition(label, &outline, row.height, row.scale));
        EXPECT_EQ(capture.text(), row.reversed ? L"\n准备反转顶点,确保逆时针." : L"");
        EXPECT_TRUE(SameVertices(VerticesOf(outline), row.after));
        EXPECT_TRUE(outline.isClosed());
        EXPECT_TRUE(qxtest::Near(label, row.label, 1e-9));
    }
    AcGePoint3d untouched(1, 2, 3);
    EXPECT_FALSE(AecBoundaryBaseImp::EnsureCounterclockwiseAndAdjustLabelPosition(untouched, nullptr, 0, 1));
    EXPECT_TRUE(qxtest::Near(untouched, AcGePoint3d(1, 2, 3)));
}

TEST_F(AecLayoutBoundaryTest, EdgeLabelsStandOutsideTheOutline)
{
    const Vertices counterclockwise = {{{0, 0}, 0}, {{1000, 0}, 0}, {{1000, 0.5}, 0}, {{0, 1000}, 0}};
    const Vertices clockwise = {{{0, 0}, 0}, {{0, 1000}, 0}, {{1000, 1000}, 0}, {{1000, 0}, 0}};
    struct Row {
        const char* what;
        const Vertices* outline;
        int edge;
        const ACHAR* text;
        double height;
        double scale;
        bool placed;
        AcGePoint3d position;
    };
    const Row rows[] = {
        {"a small label keeps 15", &counterclockwise, 0, L"E1", 0.5, 4, true, {500, -15, 0}},
        {"a label's height times the scale", &counterclockwise, 0, L"E1", 100, 2, true, {500, -200, 0}},
        {"the closing edge", &counterclockwise, 3, L"E4", 100, 1, true, {-100, 500, 0}},
        {"a clockwise outline, outside to the left", &clockwise, 0, L"W", 100, 1, true, {-100, 500, 0}},
        {"an edge shorter than 1.0", &counterclockwise, 1, L"E2", 100, 1, false, {}},
        {"no text", &counterclockwise, 0, L"", 100, 1, false, {}},
        {"no such edge", &counterclockwise, 4, L"E5", 100, 1, false, {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        AcDbPolyline outline;
        SetVertices(outline, *row.outline);
        TextBaseLabel label;
        label.SetLabel(row.text);
        label.SetHeight(row.height);
        const AcGePoint3d before(7, 8, 9);
        AcGePoint3d position = before;
        EXPECT_EQ(AecBoundaryBaseImp::AdjustEdgeLabelPosition(position, &outline, label, row.edge, row.scale),
                  row.placed);
        EXPECT_TRUE(qxtest::Near(position, row.placed ? row.position : before, 1e-9));
    }
}

}  // namespace
