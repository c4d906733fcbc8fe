// Nearly straight arcs, whose centres lie millions of chords away: every question that
// takes a place on such an arc (parameters, nearest points, snaps, intersections, splits,
// hatch lines, offsets) is checked against the same arc worked out by hand in its chord's
// frame, and a seeded sweep over bulges from 1e-13 to 1e-3 and chords from 1e-3 to 1e6
// holds the parameter round trip and the nearest point to it.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "GeTestSupport.h"
#include "PolyTestSupport.h"
#include "dbents.h"
#include "dbhatch.h"

namespace {

using getest::isNear;
using polytest::HandArc;
using polytest::Pieces;

constexpr double kTol = 1e-9;

struct Variant {
    const char* name;
    AcGeMatrix3d xform;
    bool reversed;
};

// Re-running a case reversed, translated or mirrored changes only where its points are.
std::vector<Variant> variants()
{
    return {
        {"as made", AcGeMatrix3d(), false},
        {"reversed", AcGeMatrix3d(), true},
        {"translated", AcGeMatrix3d::translation(AcGeVector3d(1234.5, -678.25, 0)), false},
        {"mirrored", AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d(3, 1, 0), AcGeVector3d(1, 2, 0))), false},
    };
}

std::unique_ptr<AcDbPolyline> variantOf(const AcDbPolyline& original, const Variant& variant)
{
    std::unique_ptr<AcDbPolyline> made(static_cast<AcDbPolyline*>(original.clone()));
    if (variant.reversed)
        made->reverseCurve();
    made->transformBy(variant.xform);
    return made;
}

// The hand-worked arc of a polyline's first segment.
HandArc handArcOf(const AcDbPolyline& pline)
{
    AcGePoint2d a;
    AcGePoint2d b;
    double bulge = 0.0;
    pline.getPointAt(0, a);
    pline.getPointAt(1, b);
    pline.getBulgeAt(0, bulge);
    return HandArc(a, b, bulge);
}

AcGePoint2d flat(const AcGePoint3d& p)
{
    return AcGePoint2d(p.x, p.y);
}

// Each row is a report of a wrong answer, kept with the failure it showed.
TEST(PolyNearlyStraightTest, TheReportedArcs)
{
    for (const Variant& variant : variants()) {
        SCOPED_TRACE(variant.name);
        // A 5-unit chord of bulge 1e-11: the nearest point to (1.5, 2) came out 1.9e-6
        // along the arc from where it is, (1.5 - 1.6e-11, -2.1e-11).
        auto small = variantOf(*polytest::polyline({{0, 0, 1e-11}, {5, 0}}), variant);
        AcGePoint3d nearest;
        const AcGePoint3d given = variant.xform * AcGePoint3d(1.5, 2, 0);
        ASSERT_EQ(small->getClosestPointTo(given, nearest), Acad::eOk);
        EXPECT_TRUE(isNear(nearest, variant.xform * AcGePoint3d(1.5 - 1.6e-11, -2.1e-11, 0), 1e-12));

        // A 10000-unit chord of bulge 5e-6: the point at parameter 0.5 was refused as off
        // the curve (eInvalidInput).
        auto large = variantOf(*polytest::polyline({{0, 0, 5e-6}, {10000, 0}}), variant);
        AcGePoint3d middle;
        ASSERT_EQ(large->getPointAtParam(0.5, middle), Acad::eOk);
        EXPECT_TRUE(isNear(middle, variant.xform * AcGePoint3d(5000, -0.025, 0), 1e-11));
        double param = -1.0;
        ASSERT_EQ(large->getParamAtPoint(middle, param), Acad::eOk);
        EXPECT_NEAR(param, 0.5, 1e-14);
    }
}

// One arc of a 10000-unit chord and bulge 5e-6 (radius 5e8, sagitta 0.025), asked every
// question that takes a place on it; each answer lies on the hand-worked arc.
class NearlyStraightQuestions : public ::testing::Test {
protected:
    std::unique_ptr<AcDbPolyline> arc = polytest::polyline({{0, 0, 5e-6}, {10000, 0}});
    HandArc hand{AcGePoint2d(0, 0), AcGePoint2d(10000, 0), 5e-6};

    ::testing::AssertionResult onArc(const AcGePoint3d& p) const
    {
        const double off = hand.distanceTo(flat(p));
        if (off <= kTol && p.z == 0.0)
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << p << " lies " << off << " off the arc";
    }
    AcGePoint3d handPoint(double x) const
    {
        const AcGePoint2d p = hand.at(x - 5000.0);
        return AcGePoint3d(p.x, p.y, 0);
    }
    AcGePoint3dArray snaps(AcDb::OsnapMode mode, const AcGePoint3d& pick, const AcGePoint3d& last) const
    {
        AcGePoint3dArray points;
        AcDbIntArray ids;
        EXPECT_EQ(arc->getOsnapPoints(mode, 0, pick, last, AcGeMatrix3d(), points, ids), Acad::eOk);
        return points;
    }
};

TEST_F(NearlyStraightQuestions, Snaps)
{
    const AcGePoint3d above(2500, 100, 0);
    const AcGePoint3d foot = handPoint(5000.0 + hand.nearestX(flat(above)));
    AcGePoint3dArray near = snaps(AcDb::kOsModeNear, above, above);
    ASSERT_EQ(near.length(), 1);
    EXPECT_TRUE(isNear(near[0], foot, kTol));
    AcGePoint3dArray perp = snaps(AcDb::kOsModePerp, above, above);
    ASSERT_EQ(perp.length(), 1) << "the foot; the point opposite it lies off the arc";
    EXPECT_TRUE(isNear(perp[0], foot, kTol));

    AcGePoint3dArray quad = snaps(AcDb::kOsModeQuad, above, above);
    ASSERT_EQ(quad.length(), 1) << "only the lowest point lies within the sweep";
    EXPECT_TRUE(isNear(quad[0], AcGePoint3d(5000, -0.025, 0), kTol));

    // From 1e-4 below the lowest point the tangents touch about sqrt(2 R 1e-4) = 316.2
    // either side of it.
    const AcGePoint3d below(5000, -0.025 - 1e-4, 0);
    AcGePoint3dArray tan = snaps(AcDb::kOsModeTan, below, below);
    ASSERT_EQ(tan.length(), 2);
    for (const AcGePoint3d& touch : tan) {
        EXPECT_TRUE(onArc(touch));
        EXPECT_NEAR(std::fabs(touch.x - 5000), std::sqrt(2 * 5e8 * 1e-4), 1e-3);
        double param = 0.0;
        AcGeVector3d tangent;
        ASSERT_EQ(arc->getParamAtPoint(touch, param), Acad::eOk);
        arc->getFirstDeriv(param, tangent);
        const AcGeVector3d toBelow = below - touch;
        EXPECT_LT(std::fabs(toBelow.normal().crossProduct(tangent.normal()).z), 1e-12) << "the tangent runs through";
    }
}

TEST_F(NearlyStraightQuestions, Intersections)
{
    // A vertical line at x = 2500 meets the arc at height -(0.025 - 2500^2 / (2 R)).
    AcDbLine vertical(AcGePoint3d(2500, -1, 0), AcGePoint3d(2500, 1, 0));
    for (bool lineAsks : {false, true}) {
        AcGePoint3dArray points;
        if (lineAsks)
            ASSERT_EQ(vertical.intersectWith(arc.get(), AcDb::kOnBothOperands, points), Acad::eOk);
        else
            ASSERT_EQ(arc->intersectWith(&vertical, AcDb::kOnBothOperands, points), Acad::eOk);
        ASSERT_EQ(points.length(), 1) << lineAsks;
        EXPECT_TRUE(isNear(points[0], handPoint(2500), kTol)) << lineAsks;
    }

    // A second nearly straight arc, bulging the other way across a slanted chord, crosses
    // it once; the point lies on both.
    auto other = polytest::polyline({{0, -0.05, -5e-6}, {10000, 0.03}});
    const HandArc otherHand(AcGePoint2d(0, -0.05), AcGePoint2d(10000, 0.03), -5e-6);
    AcGePoint3dArray points;
    ASSERT_EQ(arc->intersectWith(other.get(), AcDb::kOnBothOperands, points), Acad::eOk);
    ASSERT_EQ(points.length(), 1);
    EXPECT_TRUE(onArc(points[0]));
    EXPECT_LT(otherHand.distanceTo(flat(points[0])), kTol);
}

TEST_F(NearlyStraightQuestions, SplitsAndOffsets)
{
    AcGePoint3d cut;
    arc->getPointAtParam(0.3, cut);
    AcGePoint3dArray at;
    at.append(cut);
    Pieces pieces;
    ASSERT_EQ(arc->getSplitCurves(at, pieces.array), Acad::eOk);
    ASSERT_EQ(pieces.size(), 2);
    AcGePoint3d join;
    pieces.at(0)->getEndPoint(join);
    EXPECT_TRUE(onArc(join));
    EXPECT_NEAR(polytest::lengthOf(*pieces.at(0)) + polytest::lengthOf(*pieces.at(1)), polytest::lengthOf(*arc), kTol);

    for (double distance : {1.0, -1.0}) {
        Pieces offsets;
        ASSERT_EQ(arc->getOffsetCurves(distance, offsets.array), Acad::eOk);
        ASSERT_EQ(offsets.size(), 1);
        for (const AcGePoint3d& p : polytest::samples(*offsets.at(0), 32))
            EXPECT_NEAR(hand.distanceTo(flat(p)), 1.0, kTol) << distance << " at " << p;
    }
}

// The arc closed by its chord and hatched with vertical lines 1000 apart: each line runs
// from the chord down to the arc.
TEST_F(NearlyStraightQuestions, HatchLinesEndOnTheArc)
{
    AcDbHatch hatch;
    ASSERT_EQ(hatch.setPattern(AcDbHatch::kUserDefined, L"_USER"), Acad::eOk);
    hatch.setPatternSpace(1000.0);
    hatch.setPatternAngle(polytest::kPi / 2);
    hatch.setOriginPoint(AcGePoint2d(500, 0));
    AcGePoint2dArray vertices;
    vertices.append(AcGePoint2d(0, 0));
    vertices.append(AcGePoint2d(10000, 0));
    AcGeDoubleArray bulges;
    bulges.append(5e-6);
    bulges.append(0.0);
    ASSERT_EQ(hatch.appendLoop(AcDbHatch::kExternal, vertices, bulges), Acad::eOk);
    ASSERT_EQ(hatch.evaluateHatch(), Acad::eOk);
    ASSERT_EQ(hatch.numHatchLines(), 10) << "x = 500, 1500, ... 9500";
    for (int i = 0; i < hatch.numHatchLines(); ++i) {
        AcGePoint2d start;
        AcGePoint2d end;
        hatch.getHatchLineDataAt(i, start, end);
        const AcGePoint2d& low = start.y < end.y ? start : end;
        const AcGePoint2d& high = start.y < end.y ? end : start;
        EXPECT_NEAR(high.y, 0.0, kTol);
        EXPECT_LT(hand.distanceTo(low), kTol) << low;
    }
}

// Seeded sweep: chords 1e-3 to 1e6 and bulges 1e-13 to 1e-3 (both log-uniform, either
// sign), anywhere within 1e4 of the origin, each case in every variant. A point from
// getPointAtParam lies on the hand-worked arc and gives its parameter back, and
// getClosestPointTo answers a point of the arc no farther than the hand-worked nearest.
TEST(PolyNearlyStraightTest, APointKeepsItsParameterAndNoNearestPointIsFarther)
{
    constexpr int kCases = 2500;
    std::mt19937 rng(611);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    polytest::SweepFailures fail;
    for (int i = 0; i < kCases; ++i) {
        const double chord = std::pow(10.0, -3.0 + 9.0 * unit(rng));
        const double bulge = (unit(rng) < 0.5 ? -1.0 : 1.0) * std::pow(10.0, -13.0 + 10.0 * unit(rng));
        const double angle = 2.0 * polytest::kPi * unit(rng);
        const AcGePoint2d start(2e4 * unit(rng) - 1e4, 2e4 * unit(rng) - 1e4);
        const AcGePoint2d end = start + AcGeVector2d(std::cos(angle), std::sin(angle)) * chord;
        const double t = unit(rng);
        const double across = 0.6 * unit(rng) - 0.3;
        const double along = 1.5 * unit(rng) - 0.75;
        auto original = polytest::polyline({{start.x, start.y, bulge}, {end.x, end.y}});
        for (const Variant& variant : variants()) {
            auto pline = variantOf(*original, variant);
            const HandArc hand = handArcOf(*pline);
            const double scale = chord + std::fabs(hand.middle.x) + std::fabs(hand.middle.y);
            const double tol = 1e-13 * scale;
            std::ostringstream name;
            name.precision(17);
            name << "case " << i << " " << variant.name << ": chord " << chord << " bulge " << bulge << ", ";

            AcGePoint3d p;
            double back = -1.0;
            if (pline->getPointAtParam(t, p) != Acad::eOk || hand.distanceTo(flat(p)) > tol) {
                fail(name.str() + "the point at the parameter lies off the arc");
                continue;
            }
            if (pline->getParamAtPoint(p, back) != Acad::eOk || std::fabs(back - t) * chord > tol) {
                fail(name.str() + "the point does not give its parameter back");
                continue;
            }
            const AcGePoint2d q = hand.middle + hand.along * (along * chord) + hand.left * (across * chord);
            AcGePoint3d nearest;
            pline->getClosestPointTo(AcGePoint3d(q.x, q.y, 0), nearest);
            if (hand.distanceTo(flat(nearest)) > tol || q.distanceTo(flat(nearest)) > hand.distanceTo(q) + tol)
                fail(name.str() + "the nearest point is not the nearest");
        }
    }
    EXPECT_EQ(fail.count(), 0);
}

}  // namespace
