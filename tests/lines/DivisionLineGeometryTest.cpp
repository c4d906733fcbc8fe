// The division line's plane geometry against hand-computed answers: outline corners of
// straight and arc segments (re-run translated, reversed and mirrored), the default label
// point and the length rule.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "ModuleTestSupport.h"
#include "lines/DivisionLineGeometry.h"
#include "lines/LayoutLineGeometry.h"

namespace {

using Outline = DivisionLineGeometry::Outline;

const double kPi = 3.14159265358979323846;
const double kQuarterBulge = std::tan(kPi / 8.0);  // a 90 degree arc
const double kRoot2 = std::sqrt(2.0);

AcGePoint3d P(double x, double y)
{
    return AcGePoint3d(x, y, 0.0);
}

::testing::AssertionResult SameCorners(const std::vector<AcGePoint3d>& actual,
                                       const std::vector<AcGePoint3d>& expected, double tol = 1e-9)
{
    if (actual.size() != expected.size())
        return ::testing::AssertionFailure() << actual.size() << " corners against " << expected.size();
    for (std::size_t i = 0; i < actual.size(); ++i)
        if (actual[i].distanceTo(expected[i]) > tol)
            return ::testing::AssertionFailure() << "corner " << i << ": " << actual[i] << " instead of "
                                                 << expected[i];
    return ::testing::AssertionSuccess();
}

AcGePoint3d MirrorX(const AcGePoint3d& p)
{
    return AcGePoint3d(p.x, -p.y, p.z);
}

struct OutlineRow {
    const char* name;
    AcGePoint3d start;
    AcGePoint3d end;
    double bulge;
    double left;
    double right;
    std::vector<AcGePoint3d> corners;
    double outlineBulge;
};

// n is the host's perpVector of the unit direction: the direction turned +90 degrees.
const std::vector<OutlineRow>& OutlineRows()
{
    static const std::vector<OutlineRow> rows = {
        {"along X: left 10 below, right 20 above", P(0, 0), P(100, 0), 0.0, 10, 20,
         {P(0, -10), P(0, 20), P(100, 20), P(100, -10)}, 0.0},
        {"along Y: n points to -X", P(0, 0), P(0, 100), 0.0, 10, 20,
         {P(10, 0), P(-20, 0), P(-20, 100), P(10, 100)}, 0.0},
        {"3-4-5 diagonal", P(100, 100), P(130, 140), 0.0, 10, 20,
         {P(108, 94), P(84, 112), P(114, 152), P(138, 134)}, 0.0},
        {"negative indent crosses over", P(0, 0), P(100, 0), 0.0, -5, 20,
         {P(0, 5), P(0, 20), P(100, 20), P(100, 5)}, 0.0},
        // Centre (50, 50), radius 50 sqrt 2; the right side runs inside at r - 20, the left
        // outside at r + 10.
        {"quarter arc", P(0, 0), P(100, 0), kQuarterBulge, 10, 20,
         {P(-10 / kRoot2, -10 / kRoot2), P(20 / kRoot2, 20 / kRoot2), P(100 - 20 / kRoot2, 20 / kRoot2),
          P(100 + 10 / kRoot2, -10 / kRoot2)},
         kQuarterBulge},
        // Centre (50, 0): the radial at the start is perpendicular to n, so the left side
        // is the outer one.
        {"anticlockwise half circle", P(0, 0), P(100, 0), 1.0, 10, 20,
         {P(-10, 0), P(20, 0), P(80, 0), P(110, 0)}, 1.0},
        {"clockwise half circle", P(0, 0), P(100, 0), -1.0, 10, 20,
         {P(-10, 0), P(20, 0), P(80, 0), P(110, 0)}, -1.0},
        // Centre (50, -50): the radial at the start points along +n, so the right side is
        // the outer one.
        {"clockwise quarter arc", P(0, 0), P(100, 0), -kQuarterBulge, 10, 20,
         {P(10 / kRoot2, -10 / kRoot2), P(-20 / kRoot2, 20 / kRoot2), P(100 + 20 / kRoot2, 20 / kRoot2),
          P(100 - 10 / kRoot2, -10 / kRoot2)},
         -kQuarterBulge},
        {"no length: no outline", P(7, 7), P(7, 7), 0.5, 10, 20, {}, 0.0},
        {"shorter than the direction tolerance", P(0, 0), P(9e-6, 0), 0.0, 10, 20, {}, 0.0},
    };
    return rows;
}

TEST(DivisionLineGeometryTest, OutlineCorners)
{
    for (const OutlineRow& row : OutlineRows()) {
        SCOPED_TRACE(row.name);
        const Outline outline =
            DivisionLineGeometry::ComputeOutline(row.start, row.end, row.bulge, row.left, row.right);
        EXPECT_TRUE(SameCorners(outline.corners, row.corners)) << outline;
        EXPECT_NEAR(outline.bulge, row.outlineBulge, 1e-12);
    }
}

TEST(DivisionLineGeometryTest, OutlineVariants)
{
    const AcGeVector3d shift(250, -75, 0);
    for (const OutlineRow& row : OutlineRows()) {
        SCOPED_TRACE(row.name);
        const Outline original =
            DivisionLineGeometry::ComputeOutline(row.start, row.end, row.bulge, row.left, row.right);
        const std::vector<AcGePoint3d>& c = original.corners;

        // Translated: the same outline, moved.
        const Outline moved =
            DivisionLineGeometry::ComputeOutline(row.start + shift, row.end + shift, row.bulge, row.left, row.right);
        std::vector<AcGePoint3d> expectedMoved;
        for (const AcGePoint3d& p : c)
            expectedMoved.push_back(p + shift);
        EXPECT_TRUE(SameCorners(moved.corners, expectedMoved, 1e-9)) << "translated";
        EXPECT_NEAR(moved.bulge, original.bulge, 1e-12);

        // A half circle's radial at the start is square to n, so the side test has no
        // preference: the left side lies outside whichever way the arc runs, and turning the
        // line round does not give the same region.
        if (c.empty() || std::fabs(std::fabs(row.bulge) - 1.0) < 1e-12)
            continue;
        // Reversed with the indents swapped: the same region, entered at the old end.
        const Outline reversed =
            DivisionLineGeometry::ComputeOutline(row.end, row.start, -row.bulge, row.right, row.left);
        EXPECT_TRUE(SameCorners(reversed.corners, {c[2], c[3], c[0], c[1]}, 1e-9)) << "reversed";
        EXPECT_NEAR(reversed.bulge, -original.bulge, 1e-12);

        // Mirrored in the X axis with the bulge negated and the indents swapped: the mirror
        // image, with the sides exchanged.
        const Outline mirrored = DivisionLineGeometry::ComputeOutline(MirrorX(row.start), MirrorX(row.end),
                                                                      -row.bulge, row.right, row.left);
        EXPECT_TRUE(
            SameCorners(mirrored.corners, {MirrorX(c[1]), MirrorX(c[0]), MirrorX(c[3]), MirrorX(c[2])}, 1e-9))
            << "mirrored";
        EXPECT_NEAR(mirrored.bulge, -original.bulge, 1e-12);
    }
}

TEST(DivisionLineGeometryTest, ArcOfABulgedSegment)
{
    DivisionLineGeometry::Arc arc;
    ASSERT_TRUE(DivisionLineGeometry::ComputeArc(P(0, 0), P(100, 0), kQuarterBulge, arc));
    EXPECT_TRUE(qxtest::Near(arc.center, P(50, 50), 1e-9)) << arc;
    EXPECT_TRUE(qxtest::Near(arc.midpoint, P(50, 50 - 50 * kRoot2), 1e-9)) << arc;
    EXPECT_NEAR(arc.radius, 50 * kRoot2, 1e-9);
    EXPECT_NEAR(arc.sweep, kPi / 2, 1e-12);

    ASSERT_TRUE(DivisionLineGeometry::ComputeArc(P(100, 0), P(0, 0), kQuarterBulge, arc));
    EXPECT_TRUE(qxtest::Near(arc.center, P(50, -50), 1e-9)) << arc;

    EXPECT_FALSE(DivisionLineGeometry::ComputeArc(P(3, 4), P(3, 4), 1.0, arc)) << "no chord";
    EXPECT_FALSE(DivisionLineGeometry::ComputeArc(P(0, 0), P(100, 0), 0.0, arc)) << "straight";
}

TEST(DivisionLineGeometryTest, DefaultIdentifierPoint)
{
    struct Row {
        const char* name;
        AcGePoint3d start;
        AcGePoint3d end;
        double bulge;
        AcGePoint3d expected;
    };
    const Row rows[] = {
        {"straight: chord midpoint", P(100, 200), P(400, 600), 0.0, P(250, 400)},
        {"tiny bulge counts as straight", P(0, 0), P(100, 0), 1e-11, P(50, 0)},
        {"quarter arc: below the chord", P(0, 0), P(100, 0), kQuarterBulge, P(50, 50 - 50 * kRoot2)},
        {"anticlockwise half circle", P(0, 0), P(100, 0), 1.0, P(50, -50)},
        {"clockwise half circle", P(0, 0), P(100, 0), -1.0, P(50, 50)},
        {"arc without chord: the chord midpoint", P(5, 5), P(5, 5), 1.0, P(5, 5)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(qxtest::Near(DivisionLineGeometry::DefaultIdentifierPoint(row.start, row.end, row.bulge),
                                 row.expected, 1e-9));
    }
}

TEST(DivisionLineGeometryTest, PointOnSegment)
{
    EXPECT_TRUE(qxtest::Near(DivisionLineGeometry::PointOnSegment(P(0, 0), P(100, 0), 0.0, 0.25), P(25, 0)));
    // A quarter of the way round the half circle about (50, 0), going anticlockwise from 180 degrees.
    EXPECT_TRUE(qxtest::Near(DivisionLineGeometry::PointOnSegment(P(0, 0), P(100, 0), 1.0, 0.25),
                             P(50 - 50 / kRoot2, -50 / kRoot2), 1e-9));
    EXPECT_TRUE(qxtest::Near(DivisionLineGeometry::PointOnSegment(P(0, 0), P(100, 0), 1.0, 1.0), P(100, 0), 1e-9));
}

TEST(DivisionLineGeometryTest, LengthRule)
{
    struct Row {
        const char* name;
        AcGePoint3d moved;
        AcGePoint3d fixed;
        AcGeVector3d fallback;
        AcGePoint3d expected;
    };
    const Row rows[] = {
        {"exactly 5: stays", P(13, 14), P(10, 10), AcGeVector3d(1, 0, 0), P(13, 14)},
        {"shorter: 5 along itself", P(11, 11), P(10, 10), AcGeVector3d(1, 0, 0),
         P(10 + 5 / kRoot2, 10 + 5 / kRoot2)},
        {"on the fixed point: along the fallback", P(10, 10), P(10, 10), AcGeVector3d(0, 2, 0), P(10, 15)},
        {"on the fixed point, no fallback: along X", P(10, 10), P(10, 10), AcGeVector3d(0, 0, 0), P(15, 10)},
        {"fallback shorter than the tolerance: along X", P(10, 10), P(10, 10), AcGeVector3d(0, 5e-6, 0),
         P(15, 10)},
        {"too long: cut to 512000", P(600000, 0), P(0, 0), AcGeVector3d(1, 0, 0), P(512000, 0)},
        {"in range: only Z goes", AcGePoint3d(40, 30, 7), P(0, 0), AcGeVector3d(1, 0, 0), P(40, 30)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AcGePoint3d moved = row.moved;
        LayoutLineGeometry::ApplyLengthRule(moved, row.fixed, row.fallback);
        EXPECT_TRUE(qxtest::Near(moved, row.expected, 1e-9));
        // The rule is settled: applying it again changes no bit.
        AcGePoint3d again = moved;
        LayoutLineGeometry::ApplyLengthRule(again, row.fixed, row.fallback);
        EXPECT_EQ(again.x, moved.x);
        EXPECT_EQ(again.y, moved.y);
    }
}

TEST(DivisionLineGeometryTest, BulgeLimits)
{
    EXPECT_EQ(DivisionLineGeometry::ClampBulge(5000.0), 1000.0);
    EXPECT_EQ(DivisionLineGeometry::ClampBulge(-5000.0), -1000.0);
    EXPECT_EQ(DivisionLineGeometry::ClampBulge(0.5), 0.5);
}

}  // namespace
