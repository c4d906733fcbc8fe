// What the overlap and the structural line share as straight layout lines: the strip
// corners with left and right kept relative to start -> end, transformation (a mirror
// swaps the widths), stretch, the three grips, curve edits, osnaps and intersections of
// the drawn parts, and a null filer refused both ways. Each case runs on both lines.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "LineTestSupport.h"
#include "ModuleTestSupport.h"
#include "dbents.h"
#include "dbpl.h"
#include "geplane.h"
#include "lines/AecOverlapLine.h"
#include "lines/AecStructuralLine.h"

namespace {

using namespace linetest;

const double kPi = 3.14159265358979323846;

// How each line names its widths, its outline and the parts it draws.
template <typename T>
struct StripLine;

template <>
struct StripLine<AecOverlapLine> {
    static void SetWidths(AecOverlapLine& line, double left, double right)
    {
        line.SetOverlapLeft(left);
        line.SetOverlapRight(right);
    }
    static double Left(const AecOverlapLine& line) { return line.GetOverlapLeft(); }
    static double Right(const AecOverlapLine& line) { return line.GetOverlapRight(); }
    static AcDbPolyline* Outline(const AecOverlapLine& line) { return line.CreateOverlapBoundaryPolyline(); }
    static void ShowCentreLine(AecOverlapLine& line) { line.SetDrawOptions(kOverlapDrawCenterLine); }
    static void ShowOutline(AecOverlapLine& line) { line.SetDrawOptions(kOverlapDrawBoundary); }
};

template <>
struct StripLine<AecStructuralLine> {
    static void SetWidths(AecStructuralLine& line, double left, double right)
    {
        line.SetMemberWidthLeft(left);
        line.SetMemberWidthRight(right);
    }
    static double Left(const AecStructuralLine& line) { return line.GetMemberWidthLeft(); }
    static double Right(const AecStructuralLine& line) { return line.GetMemberWidthRight(); }
    static AcDbPolyline* Outline(const AecStructuralLine& line) { return line.CreateMemberBoundaryPolyline(); }
    static void ShowCentreLine(AecStructuralLine& line) { line.SetDrawOptions(kStructuralDrawCenterLine); }
    static void ShowOutline(AecStructuralLine& line) { line.SetDrawOptions(kStructuralDrawMemberBoundary); }
};

template <typename T>
class StraightLayoutLineTest : public ::testing::Test {
protected:
    using Strip = StripLine<T>;

    // A line of the given widths, its outline alone shown.
    static std::unique_ptr<T> MakeLine(const AcGePoint3d& start, const AcGePoint3d& end, double left = 10,
                                       double right = 20)
    {
        std::unique_ptr<T> line(new T());
        EXPECT_EQ(line->SetPoints(start, end), Acad::eOk);
        Strip::SetWidths(*line, left, right);
        Strip::ShowOutline(*line);
        return line;
    }

    static std::vector<AcGePoint3d> Corners(const T& line)
    {
        std::unique_ptr<AcDbPolyline> outline(Strip::Outline(line));
        EXPECT_TRUE(outline->isClosed());
        return Vertices(*outline);
    }

    // The outline the line keeps for its draw and explode is the one it would build now:
    // no edit leaves a stale one behind. Asked before an edit, it makes the line keep one.
    static ::testing::AssertionResult KeptOutlineIsCurrent(const T& line)
    {
        AcDbVoidPtrArray pieces;
        if (line.explode(pieces) != Acad::eOk || pieces.length() != 1)
            return ::testing::AssertionFailure() << "explode gave " << pieces.length() << " pieces";
        std::unique_ptr<AcDbPolyline> kept(AcDbPolyline::cast(static_cast<AcRxObject*>(pieces[0])));
        if (kept == nullptr)
            return ::testing::AssertionFailure() << "explode gave no polyline";
        return SamePoints(Vertices(*kept), Corners(line));
    }

    // Start and end as the host curve sees them agree with the line's own.
    static void ExpectCurveEndsAgree(const T& line)
    {
        AcGePoint3d start;
        AcGePoint3d end;
        ASSERT_EQ(line.getStartPoint(start), Acad::eOk);
        ASSERT_EQ(line.getEndPoint(end), Acad::eOk);
        EXPECT_TRUE(qxtest::Near(start, line.GetStartPoint()));
        EXPECT_TRUE(qxtest::Near(end, line.GetEndPoint()));
    }
};

using StraightLayoutLines = ::testing::Types<AecOverlapLine, AecStructuralLine>;
TYPED_TEST_SUITE(StraightLayoutLineTest, StraightLayoutLines);

// Left 10, right 20. n is the host's perpVector of the unit direction from A to B, A being
// the end with the smaller X (smaller Y on a tie); the left width lies on the left of
// start -> end, which is -n when start is A and +n when the line was drawn from B.
TYPED_TEST(StraightLayoutLineTest, StripCornersKeepLeftAndRightRelativeToStartToEnd)
{
    struct Row {
        const char* name;
        AcGePoint3d start;
        AcGePoint3d end;
        std::vector<AcGePoint3d> corners;
    };
    const Row rows[] = {
        {"along +X", P(0, 0), P(100, 0), {P(0, -10), P(0, 20), P(100, 20), P(100, -10)}},
        {"along -X: built from (0,0) to (100,0), widths exchanged",
         P(100, 0),
         P(0, 0),
         {P(0, -20), P(0, 10), P(100, 10), P(100, -20)}},
        {"along +Y: n is -X", P(0, 0), P(0, 100), {P(10, 0), P(-20, 0), P(-20, 100), P(10, 100)}},
        {"along -Y", P(0, 100), P(0, 0), {P(20, 0), P(-10, 0), P(-10, 100), P(20, 100)}},
        {"3-4-5 drawn back down", P(130, 140), P(100, 100), {P(116, 88), P(92, 106), P(122, 146), P(146, 128)}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto line = this->MakeLine(row.start, row.end);
        EXPECT_TRUE(SamePoints(this->Corners(*line), row.corners));
    }

    // A line without length (only a file can make one) has no outline.
    TypeParam empty;
    std::unique_ptr<AcDbPolyline> outline(StripLine<TypeParam>::Outline(empty));
    ASSERT_NE(outline, nullptr);
    EXPECT_EQ(outline->numVerts(), 0u);
    AcDbExtents extents;
    EXPECT_EQ(empty.getGeomExtents(extents), Acad::eInvalidInput);
}

TYPED_TEST(StraightLayoutLineTest, TransformationScalesAndAMirrorSwapsTheWidths)
{
    struct Row {
        const char* name;
        AcGeMatrix3d matrix;
        AcGePoint3d start;
        AcGePoint3d end;
        double left;
        double right;
    };
    const Row rows[] = {
        {"move", AcGeMatrix3d::translation(AcGeVector3d(5, 6, 7)), P(105, 106), P(305, 106), 10, 20},
        {"turn a quarter", AcGeMatrix3d::rotation(kPi / 2, AcGeVector3d::kZAxis, AcGePoint3d::kOrigin), P(-100, 100),
         P(-100, 300), 10, 20},
        {"scale 2", AcGeMatrix3d::scaling(2.0, AcGePoint3d::kOrigin), P(200, 200), P(600, 200), 20, 40},
        {"mirror in the X axis", AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d::kOrigin, AcGeVector3d::kYAxis)),
         P(100, -100), P(300, -100), 20, 10},
        {"mirror in the Y axis: the image runs right to left",
         AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis)), P(-100, 100), P(-300, 100), 20,
         10},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto line = this->MakeLine(P(100, 100), P(300, 100));
        const auto before = this->Corners(*line);
        ASSERT_TRUE(this->KeptOutlineIsCurrent(*line));  // kept before the change
        ASSERT_EQ(line->transformBy(row.matrix), Acad::eOk);
        EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), row.start, 1e-9));
        EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), row.end, 1e-9));
        EXPECT_NEAR(StripLine<TypeParam>::Left(*line), row.left, 1e-9);
        EXPECT_NEAR(StripLine<TypeParam>::Right(*line), row.right, 1e-9);
        // The outline is the image of the old one (Z dropped).
        std::vector<AcGePoint3d> image;
        for (const AcGePoint3d& p : before) {
            AcGePoint3d q = row.matrix * p;
            q.z = 0;
            image.push_back(q);
        }
        EXPECT_TRUE(SamePointSet(this->Corners(*line), image));
        EXPECT_TRUE(this->KeptOutlineIsCurrent(*line));
    }
}

TYPED_TEST(StraightLayoutLineTest, StretchMovesStartAndEndUnderTheLengthRule)
{
    struct Row {
        const char* name;
        std::vector<int> indices;
        AcGeVector3d offset;
        AcGePoint3d start;
        AcGePoint3d end;
    };
    const Row rows[] = {
        {"end", {1}, AcGeVector3d(50, 0, 0), P(100, 100), P(250, 100)},
        {"start", {0}, AcGeVector3d(0, 50, 0), P(100, 150), P(200, 100)},
        {"end onto the start: 5 along the old direction", {1}, AcGeVector3d(-100, 0, 0), P(100, 100), P(105, 100)},
        {"unknown index: ignored", {7}, AcGeVector3d(10, 10, 0), P(100, 100), P(200, 100)},
        {"no index: the whole line moves", {}, AcGeVector3d(10, 10, 0), P(110, 110), P(210, 110)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto line = this->MakeLine(P(100, 100), P(200, 100));
        AcGePoint3dArray points;
        ASSERT_EQ(line->getStretchPoints(points), Acad::eOk);
        ASSERT_EQ(points.length(), 2);
        EXPECT_TRUE(qxtest::Near(points[0], P(100, 100)));
        EXPECT_TRUE(qxtest::Near(points[1], P(200, 100)));
        AcDbIntArray indices;
        for (int i : row.indices)
            indices.append(i);
        ASSERT_TRUE(this->KeptOutlineIsCurrent(*line));
        ASSERT_EQ(line->moveStretchPointsAt(indices, row.offset), Acad::eOk);
        EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), row.start, 1e-9));
        EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), row.end, 1e-9));
        EXPECT_TRUE(this->KeptOutlineIsCurrent(*line));
    }
}

TYPED_TEST(StraightLayoutLineTest, ThreeGripsStartEndAndAMoveGripAtTheMiddle)
{
    enum { kStart, kEnd, kMove };
    struct Row {
        const char* name;
        int grip;
        AcGeVector3d offset;
        AcGePoint3d start;
        AcGePoint3d end;
    };
    const Row rows[] = {
        {"start", kStart, AcGeVector3d(0, -100, 0), P(100, 0), P(200, 100)},
        {"end too near the start: 5 from it", kEnd, AcGeVector3d(-98, 0, 0), P(100, 100), P(105, 100)},
        {"move: both ends", kMove, AcGeVector3d(10, 20, 0), P(110, 120), P(210, 120)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto line = this->MakeLine(P(100, 100), P(200, 100));
        AcDbGripDataPtrArray grips;
        ASSERT_EQ(line->getGripPoints(grips, 1.0, 5, AcGeVector3d::kZAxis, 0), Acad::eOk);
        ASSERT_EQ(grips.length(), 3);
        EXPECT_TRUE(qxtest::Near(grips[kStart]->gripPoint(), P(100, 100)));
        EXPECT_TRUE(qxtest::Near(grips[kEnd]->gripPoint(), P(200, 100)));
        EXPECT_TRUE(qxtest::Near(grips[kMove]->gripPoint(), P(150, 100)));
        AcDbVoidPtrArray hot;
        hot.append(grips[row.grip]->appData());
        ASSERT_TRUE(this->KeptOutlineIsCurrent(*line));
        ASSERT_EQ(line->moveGripPointsAt(hot, row.offset, 0), Acad::eOk);
        EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), row.start, 1e-9));
        EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), row.end, 1e-9));
        EXPECT_TRUE(this->KeptOutlineIsCurrent(*line));

        // Once the host has deleted the grips, their records move nothing.
        line->gripStatus(AcDb::kGripsToBeDeleted);
        EXPECT_EQ(line->moveGripPointsAt(hot, AcGeVector3d(30, 0, 0), 0), Acad::eOk);
        EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), row.end, 1e-9));
        for (AcDbGripData* grip : grips)
            delete grip;
    }

    // The point-array forms are refused, so that the host uses the grips above.
    auto line = this->MakeLine(P(100, 100), P(200, 100));
    AcGePoint3dArray points;
    AcDbIntArray modes;
    AcDbIntArray ids;
    EXPECT_EQ(line->getGripPoints(points, modes, ids), Acad::eNotImplementedYet);
    AcDbIntArray indices;
    indices.append(0);
    EXPECT_EQ(line->moveGripPointsAt(indices, AcGeVector3d(5, 0, 0)), Acad::eNotImplementedYet);
    EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), P(100, 100)));
}

TYPED_TEST(StraightLayoutLineTest, CurveEditsComeBackIntoStartAndEnd)
{
    auto line = this->MakeLine(P(100, 100), P(300, 100));
    ASSERT_EQ(line->extend(Adesk::kFalse, P(350, 100)), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), P(350, 100), 1e-9));
    this->ExpectCurveEndsAgree(*line);
    EXPECT_TRUE(this->KeptOutlineIsCurrent(*line));

    // Reversed, the widths stay with their names: the outline changes sides.
    ASSERT_EQ(line->reverseCurve(), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), P(350, 100), 1e-9));
    EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), P(100, 100), 1e-9));
    EXPECT_TRUE(SamePointSet(this->Corners(*line), {P(100, 80), P(100, 110), P(350, 110), P(350, 80)}));
    this->ExpectCurveEndsAgree(*line);
    EXPECT_TRUE(this->KeptOutlineIsCurrent(*line));
}

TYPED_TEST(StraightLayoutLineTest, OsnapsAndIntersectionsComeFromTheDrawnParts)
{
    struct Row {
        const char* name;
        bool outline;
        int ends;
        int crossings;
    };
    const Row rows[] = {
        {"centre line only", false, 2, 1},
        {"outline only", true, 4, 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto line = this->MakeLine(P(100, 100), P(300, 100));
        if (!row.outline)
            StripLine<TypeParam>::ShowCentreLine(*line);
        AcGePoint3dArray snaps;
        AcDbIntArray ids;
        ASSERT_EQ(
            line->getOsnapPoints(AcDb::kOsModeEnd, 0, P(100, 100), P(100, 100), AcGeMatrix3d::kIdentity, snaps, ids),
            Acad::eOk);
        EXPECT_EQ(snaps.length(), row.ends);

        // A line across at X = 200 meets the centre line at Y = 100 and the outline at 90 and 120.
        AcDbLine across(P(200, 0), P(200, 200));
        AcGePoint3dArray points;
        ASSERT_EQ(line->intersectWith(&across, AcDb::kOnBothOperands, points), Acad::eOk);
        ASSERT_EQ(points.length(), row.crossings);
        for (const AcGePoint3d& p : points)
            EXPECT_NEAR(p.x, 200.0, 1e-9);
    }
}

TYPED_TEST(StraightLayoutLineTest, ANullFilerIsRefusedBothWays)
{
    auto line = this->MakeLine(P(100, 100), P(300, 100));
    EXPECT_EQ(line->dwgOutFields(nullptr), Acad::eNullObjectPointer);
    EXPECT_EQ(line->dwgInFields(nullptr), Acad::eNullObjectPointer);
    EXPECT_EQ(static_cast<int>(Acad::eNullObjectPointer), 15);
    EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), P(300, 100)));
}

}  // namespace
