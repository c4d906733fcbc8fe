// The division line as a host curve: the curve questions answered by its centre polyline
// follow every edit, the curve edits (reverse, extend) come back into start, end and
// bulge, and splits, osnaps and intersections come from the parts that are drawn.
#include <gtest/gtest.h>

#include <cmath>

#include "DivisionLineTestSupport.h"
#include "dbents.h"

namespace {

using namespace linetest;

const double kPi = 3.14159265358979323846;

AcGePoint3d Closest(const AcDbCurve& curve, const AcGePoint3d& to)
{
    AcGePoint3d on;
    EXPECT_EQ(curve.getClosestPointTo(to, on), Acad::eOk);
    return on;
}

// The curve's ends are the line's, whatever happened to it.
::testing::AssertionResult EndsAgree(const AecDivisionLine& line)
{
    AcGePoint3d start;
    AcGePoint3d end;
    line.getStartPoint(start);
    line.getEndPoint(end);
    if (start.distanceTo(line.GetStartPoint()) <= 1e-9 && end.distanceTo(line.GetEndPoint()) <= 1e-9)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "the curve runs " << start << " - " << end;
}

TEST(AecDivisionLineCurveTest, CurveQuestionsFollowEveryEdit)
{
    auto line = MakeLine(P(100, 100), P(300, 100));
    double param = -1;
    EXPECT_TRUE(line->getEndParam(param) == Acad::eOk && param == 1.0);
    EXPECT_NEAR(Length(*line), 200.0, 1e-9);
    EXPECT_TRUE(qxtest::Near(Closest(*line, P(150, 50)), P(150, 100), 1e-9));

    // A half circle about (200, 100), anticlockwise from start to end: it runs below.
    line->SetBulge(1.0);
    EXPECT_NEAR(Length(*line), kPi * 100, 1e-9);
    AcGePoint3d middle;
    EXPECT_EQ(line->getPointAtParam(0.5, middle), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(middle, P(200, 0), 1e-9));

    line->SetBulge(0.0);
    line->SetEndPoint(P(100, 400));
    EXPECT_NEAR(Length(*line), 300.0, 1e-9);
    EXPECT_TRUE(EndsAgree(*line));
    line->transformBy(AcGeMatrix3d::translation(AcGeVector3d(-100, 0, 0)));
    EXPECT_TRUE(qxtest::Near(Closest(*line, P(-50, 250)), P(0, 250), 1e-9));
    AcDbIntArray end;
    end.append(1);
    line->moveStretchPointsAt(end, AcGeVector3d(0, 100, 0));
    EXPECT_NEAR(Length(*line), 400.0, 1e-9);
    EXPECT_TRUE(EndsAgree(*line));
}

TEST(AecDivisionLineCurveTest, ReverseSwapsTheEndsAndNegatesTheBulge)
{
    auto line = MakeLine(P(100, 100), P(300, 100), 1.0);
    const AcGePoint3d label = line->GetBoundaryIdentifierPoint();
    ASSERT_EQ(line->reverseCurve(), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), P(300, 100), 1e-9));
    EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), P(100, 100), 1e-9));
    EXPECT_NEAR(line->GetBulge(), -1.0, 1e-12);
    EXPECT_TRUE(qxtest::Near(line->GetBoundaryIdentifierPoint(), label));
    // The same arc, run the other way.
    EXPECT_TRUE(qxtest::Near(Closest(*line, P(200, -50)), P(200, 0), 1e-9));
}

TEST(AecDivisionLineCurveTest, ExtendLengthensTheLine)
{
    const struct {
        const char* what;
        bool byParam;
        double param;
        bool atStart;
        AcGePoint3d to, start, end;
    } rows[] = {
        {"end to parameter 1.5", true, 1.5, false, P(0, 0), P(100, 100), P(400, 100)},
        {"start to parameter -0.25", true, -0.25, false, P(0, 0), P(50, 100), P(300, 100)},
        {"start to a point", false, 0, true, P(60, 100), P(60, 100), P(300, 100)},
        {"end to a point", false, 0, false, P(350, 100), P(100, 100), P(350, 100)},
        {"beyond the longest line: cut back", true, 5000, false, P(0, 0), P(100, 100), P(512100, 100)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        auto line = MakeLine(P(100, 100), P(300, 100));
        ASSERT_EQ(row.byParam ? line->extend(row.param) : line->extend(row.atStart, row.to), Acad::eOk);
        EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), row.start, 1e-6));
        EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), row.end, 1e-6));
        EXPECT_NEAR(Length(*line), row.start.distanceTo(row.end), 1e-6);
    }
}

TEST(AecDivisionLineCurveTest, SplittingCutsTheCentreLine)
{
    auto line = MakeLine(P(100, 100), P(300, 100), 0.5);
    AcGeDoubleArray params;
    params.append(0.5);
    AcDbVoidPtrArray pieces;
    ASSERT_EQ(line->getSplitCurves(params, pieces), Acad::eOk);
    ASSERT_EQ(pieces.length(), 2);
    double total = 0;
    for (void* piece : pieces) {
        std::unique_ptr<AcDbPolyline> polyline(AcDbPolyline::cast(static_cast<AcRxObject*>(piece)));
        ASSERT_NE(polyline, nullptr);
        total += Length(*polyline);
    }
    EXPECT_NEAR(total, Length(*line), 1e-9);
}

TEST(AecDivisionLineCurveTest, OsnapsAndIntersectionsComeFromTheDrawnParts)
{
    // A line across at X = 200 meets the centre line at Y = 100 and the outline at 90 and 120.
    const struct {
        const char* what;
        DrawOptions options;
        int ends, crossings;
    } rows[] = {
        {"centre line only", kDrawCenterLine, 2, 1},
        {"boundary only", kDrawBoundary, 4, 2},
        {"both", static_cast<DrawOptions>(3), 6, 3},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        auto line = MakeLine(P(100, 100), P(300, 100));
        line->SetDrawOptions(row.options);
        AcGePoint3dArray snaps;
        AcDbIntArray ids;
        const AcGeMatrix3d& identity = AcGeMatrix3d::kIdentity;
        ASSERT_EQ(line->getOsnapPoints(AcDb::kOsModeEnd, 0, P(100, 100), P(100, 100), identity, snaps, ids), Acad::eOk);
        EXPECT_EQ(snaps.length(), row.ends);
        AcDbLine across(P(200, 0), P(200, 200));
        AcGePoint3dArray points;
        ASSERT_EQ(line->intersectWith(&across, AcDb::kOnBothOperands, points), Acad::eOk);
        EXPECT_EQ(points.length(), row.crossings);
        for (const AcGePoint3d& p : points)
            EXPECT_NEAR(p.x, 200.0, 1e-9);
    }
}

}  // namespace
