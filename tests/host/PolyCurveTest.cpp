// The lightweight polyline as a host curve, against closed-form answers: parameters,
// lengths and derivatives on lines and arcs, areas with arcs, nearest points with and
// without extension or a viewing direction, and the curve edits (offset, split, extend,
// reverse, projection, conversion to the geometry library's curves).
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "GeTestSupport.h"
#include "PolyTestSupport.h"
#include "dbents.h"
#include "gearc3d.h"
#include "gecomp3d.h"
#include "gelnsg3d.h"

namespace {

using getest::isNear;
using polytest::kPi;
using polytest::Pieces;
using polytest::V;

constexpr double kTol = 1e-9;

// A half circle below the chord from (0, 0) to (2, 0): bulge 1 runs counter-clockwise.
TEST(PolyCurveTest, AnArcSegmentsLengthMidpointAndDerivatives)
{
    auto pline = polytest::polyline({{0, 0, 1.0}, {2, 0}});
    double end = 0.0;
    ASSERT_EQ(pline->getEndParam(end), Acad::eOk);
    EXPECT_EQ(end, 1.0);
    EXPECT_NEAR(polytest::lengthOf(*pline), kPi, kTol);

    AcGePoint3d mid;
    ASSERT_EQ(pline->getPointAtParam(0.5, mid), Acad::eOk);
    EXPECT_TRUE(isNear(mid, AcGePoint3d(1, -1, 0)));
    double param = -1.0;
    ASSERT_EQ(pline->getParamAtPoint(AcGePoint3d(1, -1, 0), param), Acad::eOk);
    EXPECT_NEAR(param, 0.5, kTol);
    double dist = -1.0;
    ASSERT_EQ(pline->getDistAtParam(0.5, dist), Acad::eOk);
    EXPECT_NEAR(dist, kPi / 2, kTol);
    AcGePoint3d atDist;
    ASSERT_EQ(pline->getPointAtDist(kPi / 4, atDist), Acad::eOk);
    EXPECT_TRUE(isNear(atDist, AcGePoint3d(1 - std::sqrt(0.5), -std::sqrt(0.5), 0)));

    AcGeVector3d first;
    AcGeVector3d second;
    ASSERT_EQ(pline->getFirstDeriv(0.5, first), Acad::eOk);
    EXPECT_TRUE(isNear(first, AcGeVector3d(kPi, 0, 0))) << "the tangent, radius times sweep long";
    ASSERT_EQ(pline->getSecondDeriv(AcGePoint3d(1, -1, 0), second), Acad::eOk);
    EXPECT_TRUE(isNear(second, AcGeVector3d(0, kPi * kPi, 0))) << "towards the centre, sweep squared";

    // A quarter circle of radius 1: bulge tan(pi / 8).
    auto quarter = polytest::polyline({{1, 0, std::tan(kPi / 8)}, {0, 1}});
    EXPECT_NEAR(polytest::lengthOf(*quarter), kPi / 2, kTol);
    ASSERT_EQ(quarter->getPointAtParam(0.5, mid), Acad::eOk);
    EXPECT_TRUE(isNear(mid, AcGePoint3d(std::sqrt(0.5), std::sqrt(0.5), 0)));
}

TEST(PolyCurveTest, ParametersCountVerticesAndRefuseWhatIsOffTheCurve)
{
    auto pline = polytest::polyline({{0, 0}, {3, 0}, {3, 4}});
    struct Row {
        double param;
        AcGePoint3d point;
        double dist;
    };
    const Row rows[] = {{0.0, {0, 0, 0}, 0.0}, {0.5, {1.5, 0, 0}, 1.5}, {1.0, {3, 0, 0}, 3.0},
                        {1.25, {3, 1, 0}, 4.0}, {2.0, {3, 4, 0}, 7.0}};
    for (const Row& row : rows) {
        AcGePoint3d point;
        ASSERT_EQ(pline->getPointAtParam(row.param, point), Acad::eOk);
        EXPECT_TRUE(isNear(point, row.point)) << row.param;
        double dist = -1.0;
        ASSERT_EQ(pline->getDistAtPoint(row.point, dist), Acad::eOk);
        EXPECT_NEAR(dist, row.dist, kTol);
        double param = -1.0;
        ASSERT_EQ(pline->getParamAtDist(row.dist, param), Acad::eOk);
        EXPECT_NEAR(param, row.param, kTol);
    }
    AcGeVector3d deriv;
    ASSERT_EQ(pline->getFirstDeriv(1.0, deriv), Acad::eOk);
    EXPECT_TRUE(isNear(deriv, AcGeVector3d(0, 4, 0))) << "at an interior vertex the following segment answers";
    ASSERT_EQ(pline->getFirstDeriv(2.0, deriv), Acad::eOk);
    EXPECT_TRUE(isNear(deriv, AcGeVector3d(0, 4, 0))) << "at the end the last one";

    AcGePoint3d point;
    double value = 0.0;
    EXPECT_EQ(pline->getPointAtParam(2.1, point), Acad::eInvalidInput);
    EXPECT_EQ(pline->getPointAtParam(-0.1, point), Acad::eInvalidInput);
    EXPECT_EQ(pline->getParamAtDist(7.5, value), Acad::eInvalidInput);
    EXPECT_EQ(pline->getParamAtDist(-1.0, value), Acad::eInvalidInput);
    EXPECT_EQ(pline->getParamAtPoint(AcGePoint3d(1.5, 0.1, 0), value), Acad::eInvalidInput);
    EXPECT_EQ(pline->getParamAtPoint(AcGePoint3d(1.5, 0, 0.1), value), Acad::eInvalidInput) << "above the plane";
    EXPECT_EQ(AcDbPolyline().getPointAtParam(0.0, point), Acad::eDegenerateGeometry);

    pline->setClosed(true);
    pline->getEndParam(value);
    EXPECT_EQ(value, 3.0);
    EXPECT_NEAR(polytest::lengthOf(*pline), 12.0, kTol);
    ASSERT_EQ(pline->getParamAtPoint(AcGePoint3d(0, 0, 0), value), Acad::eOk);
    EXPECT_EQ(value, 0.0) << "the start of a closed polyline is parameter 0, not the end";
}

// The unit square with its top edge replaced by a half circle bulging out: 4 + pi / 2.
TEST(PolyCurveTest, AreasCountArcsAndCloseOpenPolylinesByTheChord)
{
    const std::vector<V> house = {{0, 0}, {2, 0}, {2, 2, 1.0}, {0, 2}};
    struct Row {
        const char* name;
        std::vector<V> vertices;
        bool closed;
        double area;
    };
    const Row rows[] = {
        {"closed, counter-clockwise", house, true, 4 + kPi / 2},
        {"closed, clockwise", {{0, 2, 0}, {2, 2, -1.0}, {2, 0}, {0, 0}}, true, 4 + kPi / 2},
        {"open, closed by the chord", house, false, 4 + kPi / 2},
        {"arc bulging in", {{0, 0}, {2, 0}, {2, 2, -1.0}, {0, 2}}, true, 4 - kPi / 2},
        {"a circle of two half turns", {{1, 0, 1.0}, {-1, 0, 1.0}}, true, kPi},
        {"a line", {{0, 0}, {5, 5}}, false, 0.0},
    };
    for (const Row& row : rows) {
        auto pline = polytest::polyline(row.vertices, row.closed);
        EXPECT_NEAR(polytest::areaOf(*pline), row.area, kTol) << row.name;
    }
    auto closed = polytest::polyline(house, true);
    EXPECT_NEAR(polytest::lengthOf(*closed), 6 + kPi, kTol);
}

TEST(PolyCurveTest, NearestPointsWithAndWithoutExtension)
{
    auto pline = polytest::polyline({{0, 0}, {4, 0}, {4, 4}});
    struct Row {
        const char* name;
        AcGePoint3d given;
        bool extend;
        AcGePoint3d nearest;
    };
    const Row rows[] = {
        {"before the start", {-3, 1, 0}, false, {0, 0, 0}},
        {"before the start, extended", {-3, 1, 0}, true, {-3, 0, 0}},
        {"past the end", {5, 8, 0}, false, {4, 4, 0}},
        {"past the end, extended", {5, 8, 0}, true, {4, 8, 0}},
        {"beside, above the plane", {2, 1, 7}, false, {2, 0, 0}},
    };
    for (const Row& row : rows) {
        AcGePoint3d onCurve;
        ASSERT_EQ(pline->getClosestPointTo(row.given, onCurve, row.extend), Acad::eOk);
        EXPECT_TRUE(isNear(onCurve, row.nearest)) << row.name;
    }
    // A closed polyline has no ends to extend.
    pline->setClosed(true);
    AcGePoint3d onCurve;
    pline->getClosestPointTo(AcGePoint3d(-3, 1, 0), onCurve, Adesk::kTrue);
    EXPECT_TRUE(isNear(onCurve, AcGePoint3d(0, 0, 0)));

    // An open arc extends round its circle.
    auto quarter = polytest::polyline({{1, 0, std::tan(kPi / 8)}, {0, 1}});
    quarter->getClosestPointTo(AcGePoint3d(-3, 0, 0), onCurve, Adesk::kTrue);
    EXPECT_TRUE(isNear(onCurve, AcGePoint3d(-1, 0, 0)));
    quarter->getClosestPointTo(AcGePoint3d(-3, 0, 0), onCurve, Adesk::kFalse);
    EXPECT_TRUE(isNear(onCurve, AcGePoint3d(0, 1, 0)));
}

TEST(PolyCurveTest, NearestPointsSeenAlongADirection)
{
    // Seen along (0, 1, 1) the sight line through (3, 4, 4) meets the plane at (3, 0, 0).
    auto along = polytest::polyline({{0, 0}, {10, 0}});
    AcGePoint3d onCurve;
    ASSERT_EQ(along->getClosestPointTo(AcGePoint3d(3, 4, 4), AcGeVector3d(0, 1, 1), onCurve), Acad::eOk);
    EXPECT_TRUE(isNear(onCurve, AcGePoint3d(3, 0, 0)));
    // Foreshortened along y, the y axis is nearest at its foot level with the sight line.
    auto across = polytest::polyline({{0, -10}, {0, 10}});
    ASSERT_EQ(across->getClosestPointTo(AcGePoint3d(3, 4, 4), AcGeVector3d(0, 1, 1), onCurve), Acad::eOk);
    EXPECT_TRUE(isNear(onCurve, AcGePoint3d(0, 0, 0)));
    // A circle of radius 5 seen from (0, 0, 10) along (0, 1, 1): the sight line lands at
    // (0, -10, 0), nearest to the circle's point (0, -5).
    auto circle = polytest::polyline({{5, 0, 1.0}, {-5, 0, 1.0}}, true);
    ASSERT_EQ(circle->getClosestPointTo(AcGePoint3d(0, 0, 10), AcGeVector3d(0, 1, 1), onCurve), Acad::eOk);
    EXPECT_TRUE(isNear(onCurve, AcGePoint3d(0, -5, 0), 1e-7));
    EXPECT_EQ(circle->getClosestPointTo(AcGePoint3d(0, 0, 10), AcGeVector3d(1, 1, 0), onCurve), Acad::eInvalidInput)
        << "a direction in the plane sees no point";
}

// A 10 by 4 rectangle, counter-clockwise: outwards its corners are rounded about the old
// corners; inwards they meet at the trimmed corners.
TEST(PolyCurveTest, RectangleOffsetsOutwardsAndInwards)
{
    const std::vector<V> rectangle = {{0, 0}, {10, 0}, {10, 4}, {0, 4}};
    const double round = std::tan(kPi / 8);
    struct Row {
        const char* name;
        std::vector<V> vertices;
        double distance;
        std::vector<V> expected;
    };
    const Row rows[] = {
        {"outwards",
         rectangle,
         1.0,
         {{0, -1}, {10, -1, round}, {11, 0}, {11, 4, round}, {10, 5}, {0, 5, round}, {-1, 4}, {-1, 0, round}}},
        {"inwards", rectangle, -1.0, {{1, 1}, {9, 1}, {9, 3}, {1, 3}}},
        {"clockwise, positive goes in", {{0, 4}, {10, 4}, {10, 0}, {0, 0}}, 1.0, {{1, 3}, {9, 3}, {9, 1}, {1, 1}}},
        {"translated", {{5, 5}, {15, 5}, {15, 9}, {5, 9}}, -1.0, {{6, 6}, {14, 6}, {14, 8}, {6, 8}}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto pline = polytest::polyline(row.vertices, true);
        Pieces offsets;
        ASSERT_EQ(pline->getOffsetCurves(row.distance, offsets.array), Acad::eOk);
        ASSERT_EQ(offsets.size(), 1);
        const AcDbPolyline* result = offsets.at(0);
        EXPECT_TRUE(result->isClosed());
        ASSERT_EQ(result->numVerts(), row.expected.size());
        for (unsigned i = 0; i < result->numVerts(); ++i) {
            AcGePoint2d p;
            double bulge = 0.0;
            result->getPointAt(i, p);
            result->getBulgeAt(i, bulge);
            EXPECT_TRUE(isNear(p, AcGePoint2d(row.expected[i].x, row.expected[i].y))) << i;
            EXPECT_NEAR(bulge, row.expected[i].bulge, kTol) << i;
        }
    }
    auto outwards = polytest::polyline(rectangle, true);
    Pieces grown;
    outwards->getOffsetCurves(1.0, grown.array);
    EXPECT_NEAR(polytest::areaOf(*grown.at(0)), 40 + 28 + kPi, 1e-8);
    EXPECT_NEAR(polytest::lengthOf(*grown.at(0)), 28 + 2 * kPi, 1e-8);

    // Past half its height the rectangle has nothing left inside.
    Pieces gone;
    ASSERT_EQ(outwards->getOffsetCurves(-2.5, gone.array), Acad::eOk);
    EXPECT_EQ(gone.size(), 0);
    // An open line moves to its right: along +X that is towards -Y.
    auto line = polytest::polyline({{0, 0}, {10, 0}});
    Pieces moved;
    ASSERT_EQ(line->getOffsetCurves(2.0, moved.array), Acad::eOk);
    ASSERT_EQ(moved.size(), 1);
    AcGePoint3d start;
    AcGePoint3d end;
    moved.at(0)->getStartPoint(start);
    moved.at(0)->getEndPoint(end);
    EXPECT_TRUE(isNear(start, AcGePoint3d(0, -2, 0)));
    EXPECT_TRUE(isNear(end, AcGePoint3d(10, -2, 0)));
    Pieces seenFromBelow;
    ASSERT_EQ(line->getOffsetCurvesGivenPlaneNormal(AcGeVector3d(0, 0, -1), 2.0, seenFromBelow.array), Acad::eOk);
    seenFromBelow.at(0)->getStartPoint(start);
    EXPECT_TRUE(isNear(start, AcGePoint3d(0, 2, 0))) << "seen from below the right side is +Y";
    EXPECT_EQ(line->getOffsetCurvesGivenPlaneNormal(AcGeVector3d(1, 0, 0), 2.0, seenFromBelow.array), Acad::eInvalidInput);
    EXPECT_EQ(AcDbPolyline().getOffsetCurves(1.0, seenFromBelow.array), Acad::eDegenerateGeometry);
}

// A circle of two half turns and a slot: arcs keep their centres and change their radius.
TEST(PolyCurveTest, OffsetsFollowArcs)
{
    auto circle = polytest::polyline({{2, 0, 1.0}, {-2, 0, 1.0}}, true);
    for (double distance : {1.5, -1.5}) {
        Pieces offsets;
        ASSERT_EQ(circle->getOffsetCurves(distance, offsets.array), Acad::eOk);
        ASSERT_EQ(offsets.size(), 1) << distance;
        EXPECT_NEAR(polytest::areaOf(*offsets.at(0)), kPi * (2 + distance) * (2 + distance), 1e-8);
        EXPECT_EQ(offsets.at(0)->numVerts(), 2u);
    }
    Pieces none;
    ASSERT_EQ(circle->getOffsetCurves(-2.5, none.array), Acad::eOk);
    EXPECT_EQ(none.size(), 0) << "a circle shrunk through its centre leaves nothing";

    // A U turn: two lines joined by a half circle of radius 1, offset inside by 0.5 and
    // outside by 0.5: the inner arc has radius 0.5, the outer 1.5.
    auto turn = polytest::polyline({{0, 0}, {5, 0, 1.0}, {5, 2}, {0, 2}});
    for (double distance : {0.5, -0.5}) {
        Pieces offsets;
        ASSERT_EQ(turn->getOffsetCurves(distance, offsets.array), Acad::eOk);
        ASSERT_EQ(offsets.size(), 1);
        EXPECT_NEAR(polytest::lengthOf(*offsets.at(0)), 10 + kPi * (1 + distance), 1e-8) << distance;
    }
}

// A 20 by 20 square with a slot 2 wide and 10 deep cut down from the top: 3 inwards the
// offset passes round below the slot; 3 outwards it bridges the slot's mouth where the
// arcs about its two corners meet.
TEST(PolyCurveTest, OffsetsBridgeNarrowNotches)
{
    auto slotted = polytest::polyline({{0, 0}, {20, 0}, {20, 20}, {11, 20}, {11, 10}, {9, 10}, {9, 20}, {0, 20}}, true);
    for (double distance : {-3.0, 3.0}) {
        SCOPED_TRACE(distance);
        Pieces offsets;
        ASSERT_EQ(slotted->getOffsetCurves(distance, offsets.array), Acad::eOk);
        ASSERT_EQ(offsets.size(), 1);
        EXPECT_TRUE(offsets.at(0)->isClosed());
        for (const AcGePoint3d& sample : polytest::samples(*offsets.at(0), 8))
            EXPECT_NEAR(polytest::distanceTo(*slotted, sample), 3.0, 1e-9) << sample;
        const AcGePoint3d expected = distance < 0 ? AcGePoint3d(10, 7, 0) : AcGePoint3d(10, 20 + std::sqrt(8.0), 0);
        EXPECT_NEAR(polytest::distanceTo(*offsets.at(0), expected), 0.0, 1e-9);
    }
}

TEST(PolyCurveTest, SplittingOpenAndClosedPolylines)
{
    auto pline = polytest::polyline({{0, 0}, {4, 0, 1.0}, {4, 4}});
    const double total = polytest::lengthOf(*pline);
    Pieces pieces;
    AcGeDoubleArray params;
    params.append(1.5);
    params.append(0.5);
    params.append(0.5);
    params.append(0.0);
    ASSERT_EQ(pline->getSplitCurves(params, pieces.array), Acad::eOk);
    ASSERT_EQ(pieces.size(), 3) << "sorted, repeated cuts and the start add nothing";
    double sum = 0.0;
    for (int i = 0; i < pieces.size(); ++i)
        sum += polytest::lengthOf(*pieces.at(i));
    EXPECT_NEAR(sum, total, kTol);
    AcGePoint3d p;
    pieces.at(1)->getStartPoint(p);
    EXPECT_TRUE(isNear(p, AcGePoint3d(2, 0, 0)));
    pieces.at(1)->getEndPoint(p);
    EXPECT_TRUE(isNear(p, AcGePoint3d(6, 2, 0)));
    double bulge = 0.0;
    pieces.at(1)->getBulgeAt(1, bulge);
    EXPECT_NEAR(bulge, std::tan(kPi / 8), kTol) << "half the arc";

    auto square = polytest::polyline({{0, 0}, {4, 0}, {4, 4}, {0, 4}}, true);
    Pieces halves;
    AcGePoint3dArray points;
    points.append(AcGePoint3d(4, 0, 0));
    points.append(AcGePoint3d(0, 4, 0));
    ASSERT_EQ(square->getSplitCurves(points, halves.array), Acad::eOk);
    ASSERT_EQ(halves.size(), 2);
    EXPECT_EQ(halves.at(1)->numVerts(), 3u) << "the second half runs on through the start vertex";
    halves.at(1)->getPointAt(1, p);
    EXPECT_TRUE(isNear(p, AcGePoint3d(0, 0, 0)));
    EXPECT_FALSE(halves.at(0)->isClosed());
    Pieces opened;
    AcGeDoubleArray one;
    one.append(2.0);
    ASSERT_EQ(square->getSplitCurves(one, opened.array), Acad::eOk);
    ASSERT_EQ(opened.size(), 1) << "one cut opens a closed polyline";
    EXPECT_EQ(opened.at(0)->numVerts(), 5u);
    EXPECT_NEAR(polytest::lengthOf(*opened.at(0)), 16.0, kTol);

    Pieces refused;
    AcGePoint3dArray off;
    off.append(AcGePoint3d(2, 2, 0));
    EXPECT_EQ(square->getSplitCurves(off, refused.array), Acad::eInvalidInput);
    EXPECT_EQ(square->getSplitCurves(AcGeDoubleArray(), refused.array), Acad::eInvalidInput);
}

TEST(PolyCurveTest, ExtendingTheEnds)
{
    auto line = polytest::polyline({{0, 0}, {4, 0}});
    ASSERT_EQ(line->extend(-0.5), Acad::eOk);
    AcGePoint3d p;
    line->getStartPoint(p);
    EXPECT_TRUE(isNear(p, AcGePoint3d(-2, 0, 0)));
    ASSERT_EQ(line->extend(Adesk::kFalse, AcGePoint3d(8, 0, 0)), Acad::eOk);
    line->getEndPoint(p);
    EXPECT_TRUE(isNear(p, AcGePoint3d(8, 0, 0)));
    EXPECT_EQ(line->extend(0.5), Acad::eInvalidInput) << "inside the curve";
    EXPECT_EQ(line->extend(Adesk::kTrue, AcGePoint3d(3, 0, 0)), Acad::eInvalidInput) << "not beyond the start";
    EXPECT_EQ(line->extend(Adesk::kTrue, AcGePoint3d(-5, 1, 0)), Acad::eInvalidInput) << "off the line";

    auto quarter = polytest::polyline({{1, 0, std::tan(kPi / 8)}, {0, 1}});
    ASSERT_EQ(quarter->extend(2.0), Acad::eOk);
    quarter->getEndPoint(p);
    EXPECT_TRUE(isNear(p, AcGePoint3d(-1, 0, 0)));
    double bulge = 0.0;
    quarter->getBulgeAt(0, bulge);
    EXPECT_NEAR(bulge, 1.0, kTol);
    EXPECT_EQ(quarter->extend(5.0), Acad::eInvalidInput) << "an arc cannot close its circle";
    ASSERT_EQ(quarter->extend(Adesk::kTrue, AcGePoint3d(0, -1, 0)), Acad::eOk);
    quarter->getStartPoint(p);
    EXPECT_TRUE(isNear(p, AcGePoint3d(0, -1, 0)));
    EXPECT_NEAR(polytest::lengthOf(*quarter), 1.5 * kPi, kTol);

    auto closed = polytest::polyline({{0, 0}, {1, 0}, {1, 1}}, true);
    EXPECT_EQ(closed->extend(4.0), Acad::eNotApplicable);
}

TEST(PolyCurveTest, ReversingKeepsTheShape)
{
    auto pline = std::make_unique<AcDbPolyline>();
    pline->addVertexAt(0, AcGePoint2d(0, 0), 0.5, 1.0, 2.0, 11);
    pline->addVertexAt(1, AcGePoint2d(1, 0), -0.25, 3.0, 4.0, 12);
    pline->addVertexAt(2, AcGePoint2d(2, 1), 0.3, 5.0, 6.0, 13);
    auto original = polytest::samples(*pline);
    ASSERT_EQ(pline->reverseCurve(), Acad::eOk);
    struct Row {
        AcGePoint2d point;
        double bulge;
        double startWidth;
        double endWidth;
        Adesk::Int32 id;
    };
    const Row expected[] = {{{2, 1}, 0.25, 4.0, 3.0, 13}, {{1, 0}, -0.5, 2.0, 1.0, 12}, {{0, 0}, 0.3, 5.0, 6.0, 11}};
    for (unsigned i = 0; i < 3; ++i) {
        AcGePoint2d p;
        double bulge = 0.0;
        double s = 0.0;
        double e = 0.0;
        Adesk::Int32 id = 0;
        pline->getPointAt(i, p);
        pline->getBulgeAt(i, bulge);
        pline->getWidthsAt(i, s, e);
        pline->getVertexIdentifierAt(i, id);
        EXPECT_TRUE(isNear(p, expected[i].point)) << i;
        EXPECT_EQ(bulge, expected[i].bulge) << i;
        EXPECT_EQ(s, expected[i].startWidth) << i;
        EXPECT_EQ(e, expected[i].endWidth) << i;
        EXPECT_EQ(id, expected[i].id) << i;
    }
    const auto reversed = polytest::samples(*pline);
    ASSERT_EQ(reversed.size(), original.size());
    for (size_t i = 0; i < original.size(); ++i)
        EXPECT_TRUE(isNear(reversed[i], original[original.size() - 1 - i])) << i;

    // Closed: the closing segment stays the closing segment, run backwards.
    auto closed = polytest::polyline({{0, 0, 0.1}, {4, 0, 0.2}, {4, 4, 0.3}}, true);
    const double area = polytest::areaOf(*closed);
    closed->reverseCurve();
    double bulge = 0.0;
    closed->getBulgeAt(2, bulge);
    EXPECT_EQ(bulge, -0.3);
    closed->getBulgeAt(0, bulge);
    EXPECT_EQ(bulge, -0.2);
    EXPECT_NEAR(polytest::areaOf(*closed), area, kTol);
}

TEST(PolyCurveTest, ProjectionsKeepArcsOnlyOnParallelPlanes)
{
    auto pline = polytest::polyline({{0, 0}, {2, 0, 1.0}, {2, 2}});
    AcDbCurve* projected = nullptr;
    ASSERT_EQ(pline->getProjectedCurve(AcGePlane(AcGePoint3d(0, 0, 5), AcGeVector3d::kZAxis), AcGeVector3d(1, 0, 1),
                                       projected),
              Acad::eOk);
    std::unique_ptr<AcDbCurve> owned(projected);
    AcGePoint3d p;
    owned->getStartPoint(p);
    EXPECT_TRUE(isNear(p, AcGePoint3d(5, 0, 5)));
    EXPECT_NEAR(polytest::lengthOf(*owned), polytest::lengthOf(*pline), kTol);
    ASSERT_EQ(pline->getOrthoProjectedCurve(AcGePlane(AcGePoint3d(0, 0, -3), AcGeVector3d(0, 0, -1)), projected),
              Acad::eOk);
    owned.reset(projected);
    owned->getEndPoint(p);
    EXPECT_TRUE(isNear(p, AcGePoint3d(2, 2, -3)));
    EXPECT_EQ(pline->getOrthoProjectedCurve(AcGePlane(AcGePoint3d(), AcGeVector3d(1, 0, 1)), projected),
              Acad::eNotApplicable);
    auto lines = polytest::polyline({{0, 0}, {2, 0}, {2, 2}});
    ASSERT_EQ(lines->getOrthoProjectedCurve(AcGePlane(AcGePoint3d(), AcGeVector3d(1, 0, 1)), projected), Acad::eOk);
    owned.reset(projected);
    owned->getPointAtParam(1.0, p);
    EXPECT_TRUE(isNear(p, AcGePoint3d(1, 0, -1)));
    EXPECT_EQ(lines->getProjectedCurve(AcGePlane::kXYPlane, AcGeVector3d(1, 0, 0), projected), Acad::eInvalidInput);
}

TEST(PolyCurveTest, ConversionToAndFromGeometryCurves)
{
    auto pline = polytest::polyline({{0, 0}, {4, 0, 1.0}, {4, 4, -0.5}, {0, 4}}, true);
    pline->setElevation(2.0);
    AcGeCurve3d* curve = nullptr;
    ASSERT_EQ(pline->getAcGeCurve(curve), Acad::eOk);
    std::unique_ptr<AcGeCurve3d> owned(curve);
    ASSERT_EQ(owned->type(), AcGe::kCompositeCrv3d);
    AcGeVoidPointerArray list;
    static_cast<AcGeCompositeCurve3d*>(owned.get())->getCurveList(list);
    ASSERT_EQ(list.length(), 4);
    EXPECT_EQ(static_cast<AcGeCurve3d*>(list[1])->type(), AcGe::kCircArc3d);
    AcGeInterval intrvl;
    owned->getInterval(intrvl);
    EXPECT_NEAR(owned->length(intrvl.lowerBound(), intrvl.upperBound()), polytest::lengthOf(*pline), kTol);

    AcDbPolyline copy;
    ASSERT_EQ(copy.setFromAcGeCurve(*owned), Acad::eOk);
    EXPECT_TRUE(copy.isClosed());
    EXPECT_EQ(copy.elevation(), 2.0);
    ASSERT_EQ(copy.numVerts(), 4u);
    for (unsigned i = 0; i < 4; ++i) {
        AcGePoint2d a;
        AcGePoint2d b;
        double ba = 0.0;
        double bb = 0.0;
        pline->getPointAt(i, a);
        copy.getPointAt(i, b);
        pline->getBulgeAt(i, ba);
        copy.getBulgeAt(i, bb);
        EXPECT_TRUE(isNear(a, b)) << i;
        EXPECT_NEAR(ba, bb, kTol) << i;
    }

    ASSERT_EQ(copy.setFromAcGeCurve(AcGeLineSeg3d(AcGePoint3d(1, 1, 3), AcGePoint3d(5, 1, 3))), Acad::eOk);
    EXPECT_EQ(copy.numVerts(), 2u);
    EXPECT_FALSE(copy.isClosed());
    EXPECT_EQ(copy.elevation(), 3.0);
    const AcGeCircArc3d tilted(AcGePoint3d(0, 0, 0), AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 0), 2.0, 0.0, kPi);
    ASSERT_EQ(copy.setFromAcGeCurve(tilted), Acad::eOk);
    EXPECT_TRUE(isNear(copy.normal(), AcGeVector3d(1, 0, 0)));
    EXPECT_NEAR(polytest::lengthOf(copy), 2 * kPi, kTol);
    EXPECT_EQ(copy.setFromAcGeCurve(AcGeCircArc3d(AcGePoint3d(), AcGeVector3d::kZAxis, 1.0)), Acad::eInvalidInput)
        << "a whole circle";
    EXPECT_EQ(copy.numVerts(), 2u) << "a refused curve changes nothing";
}

TEST(PolyCurveTest, BasicCurvesConvertToGeometryCurves)
{
    AcDbLine line(AcGePoint3d(1, 2, 3), AcGePoint3d(4, 6, 3));
    AcGeCurve3d* curve = nullptr;
    ASSERT_EQ(line.getAcGeCurve(curve), Acad::eOk);
    std::unique_ptr<AcGeCurve3d> owned(curve);
    ASSERT_EQ(owned->type(), AcGe::kLineSeg3d);
    EXPECT_NEAR(owned->length(0, 1), 5.0, kTol);
    ASSERT_EQ(line.setFromAcGeCurve(AcGeLineSeg3d(AcGePoint3d(0, 0, 0), AcGePoint3d(0, 7, 0))), Acad::eOk);
    EXPECT_TRUE(isNear(line.endPoint(), AcGePoint3d(0, 7, 0)));
    EXPECT_EQ(line.setFromAcGeCurve(AcGeCircArc3d()), Acad::eInvalidInput);

    AcDbArc arc(AcGePoint3d(1, 1, 0), AcGeVector3d(0, 0, -1), 2.0, 0.5, 2.0);
    ASSERT_EQ(arc.getAcGeCurve(curve), Acad::eOk);
    owned.reset(curve);
    ASSERT_EQ(owned->type(), AcGe::kCircArc3d);
    AcGePoint3d start;
    AcGePoint3d end;
    arc.getStartPoint(start);
    arc.getEndPoint(end);
    AcGeInterval intrvl;
    AcGePoint3d geStart;
    AcGePoint3d geEnd;
    owned->getInterval(intrvl, geStart, geEnd);
    EXPECT_TRUE(isNear(geStart, start));
    EXPECT_TRUE(isNear(geEnd, end));
    AcDbArc copy;
    ASSERT_EQ(copy.setFromAcGeCurve(*owned), Acad::eOk);
    EXPECT_NEAR(copy.length(), arc.length(), kTol);
    copy.getStartPoint(geStart);
    EXPECT_TRUE(isNear(geStart, start));
    EXPECT_EQ(copy.setFromAcGeCurve(AcGeCircArc3d()), Acad::eInvalidInput) << "a whole circle is no arc";

    AcDbCircle circle(AcGePoint3d(5, 5, 5), AcGeVector3d(1, 1, 0), 3.0);
    ASSERT_EQ(circle.getAcGeCurve(curve), Acad::eOk);
    owned.reset(curve);
    double period = 0.0;
    EXPECT_TRUE(owned->isPeriodic(period));
    owned->getInterval(intrvl);
    EXPECT_NEAR(owned->length(intrvl.lowerBound(), intrvl.upperBound()), 6 * kPi, kTol);
    AcDbCircle other;
    ASSERT_EQ(other.setFromAcGeCurve(*owned), Acad::eOk);
    EXPECT_TRUE(isNear(other.center(), AcGePoint3d(5, 5, 5)));
    EXPECT_NEAR(other.radius(), 3.0, kTol);
    EXPECT_EQ(other.setFromAcGeCurve(AcGeLineSeg3d()), Acad::eInvalidInput);
}

}  // namespace
