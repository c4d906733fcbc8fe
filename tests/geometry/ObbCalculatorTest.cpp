// The oriented bounding box: named cases with their expected boxes, every box checked for
// the properties that make it the box (unit frame, matrices that invert each other, every
// point inside, the extremes on its edges), and re-run reversed and translated.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "geometry/ObbCalculator.h"

namespace {

using DbxPanel::ObbCalculator;
using DbxPanel::OBBInfo2D;

constexpr double kTol = 1e-9;
const double kHalfRoot2 = std::sqrt(0.5);

::testing::AssertionResult Near(const AcGePoint2d& a, const AcGePoint2d& b)
{
    if (std::abs(a.x - b.x) <= kTol && std::abs(a.y - b.y) <= kTol)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << a << " is not " << b;
}

::testing::AssertionResult Near(const AcGeVector2d& a, const AcGeVector2d& b)
{
    return Near(AcGePoint2d(a.x, a.y), AcGePoint2d(b.x, b.y));
}

struct Case {
    const char* name;
    std::vector<AcGePoint2d> points;
    AcGeVector2d direction;
    AcGePoint2d center;
    AcGeVector2d axisX;
    AcGeVector2d axisY;
    double halfX;
    double halfY;
};

std::vector<Case> Cases()
{
    const std::vector<AcGePoint2d> rectangle = {{0, 0}, {10, 0}, {10, 4}, {0, 4}};
    // A square of side root 2 standing on its corner, centred on (1, 0).
    const std::vector<AcGePoint2d> diamond = {{0, 0}, {1, 1}, {2, 0}, {1, -1}};
    const AcGeVector2d diagonal(kHalfRoot2, kHalfRoot2);
    const AcGeVector2d antiDiagonal(-kHalfRoot2, kHalfRoot2);
    const AcGeVector2d notANumber(std::numeric_limits<double>::quiet_NaN(), 1);
    const double h = kHalfRoot2;
    return {
        {"zero direction with points: the default square on X", rectangle, {0, 0}, {0, 0}, {1, 0}, {0, 1}, 50, 50},
        {"no points: the default square turned to the direction", {}, {0, 2}, {0, 0}, {0, 1}, {-1, 0}, 50, 50},
        {"one point: a box of no size on it", {{3, 4}}, {1, 1}, {3, 4}, diagonal, antiDiagonal, 0, 0},
        {"10 x 4 rectangle along X", rectangle, {1, 0}, {5, 2}, {1, 0}, {0, 1}, 5, 2},
        {"10 x 4 rectangle along Y", rectangle, {0, 1}, {5, 2}, {0, 1}, {-1, 0}, 2, 5},
        {"10 x 4 rectangle against X", rectangle, {-3, 0}, {5, 2}, {-1, 0}, {0, -1}, 5, 2},
        {"diamond along the diagonal", diamond, {1, 1}, {1, 0}, diagonal, antiDiagonal, h, h},
        {"a direction of NaN counts as none", rectangle, notANumber, {0, 0}, {1, 0}, {0, 1}, 50, 50},
    };
}

void ExpectBox(const OBBInfo2D& box, const Case& expected)
{
    EXPECT_TRUE(Near(box.center, expected.center));
    EXPECT_TRUE(Near(box.axisX, expected.axisX));
    EXPECT_TRUE(Near(box.axisY, expected.axisY));
    EXPECT_NEAR(box.halfExtentX, expected.halfX, kTol);
    EXPECT_NEAR(box.halfExtentY, expected.halfY, kTol);
}

// The frame is the box's: the local origin is the centre, local x runs along axisX, the
// two matrices undo each other.
void ExpectFrame(const OBBInfo2D& box)
{
    EXPECT_NEAR(box.axisX.length(), 1.0, kTol);
    EXPECT_NEAR(box.axisX.dotProduct(box.axisY), 0.0, kTol);
    EXPECT_NEAR(box.axisX.x * box.axisY.y - box.axisX.y * box.axisY.x, 1.0, kTol);  // +90 degrees
    EXPECT_TRUE(Near(box.localToWorld * AcGePoint2d(0, 0), box.center));
    EXPECT_TRUE(Near(box.localToWorld * AcGePoint2d(1, 0), box.center + box.axisX));
    EXPECT_TRUE(Near(box.localToWorld * AcGePoint2d(0, 1), box.center + box.axisY));
    EXPECT_TRUE(Near(box.worldToLocal * box.center, AcGePoint2d(0, 0)));
    const AcGePoint2d probe(123.5, -7.25);
    EXPECT_TRUE(Near(box.localToWorld * (box.worldToLocal * probe), probe));
}

// Every point lies inside, and the points reach all four edges.
void ExpectEnclosing(const OBBInfo2D& box, const std::vector<AcGePoint2d>& points)
{
    double maxX = 0.0;
    double maxY = 0.0;
    for (const AcGePoint2d& point : points) {
        const AcGePoint2d local = box.worldToLocal * point;
        EXPECT_LE(std::abs(local.x), box.halfExtentX + kTol) << point;
        EXPECT_LE(std::abs(local.y), box.halfExtentY + kTol) << point;
        maxX = std::max(maxX, std::abs(local.x));
        maxY = std::max(maxY, std::abs(local.y));
    }
    EXPECT_NEAR(maxX, box.halfExtentX, kTol);
    EXPECT_NEAR(maxY, box.halfExtentY, kTol);
}

bool HasDirection(const Case& row)
{
    return std::isfinite(row.direction.x) && std::isfinite(row.direction.y) && row.direction.length() > 0.0;
}

TEST(ObbCalculatorTest, CasesGiveTheirBoxes)
{
    for (const Case& row : Cases()) {
        SCOPED_TRACE(row.name);
        const OBBInfo2D box = ObbCalculator::CalculateSimplified(row.points, row.direction);
        ExpectBox(box, row);
        ExpectFrame(box);
        if (HasDirection(row) && !row.points.empty())
            ExpectEnclosing(box, row.points);
    }
}

TEST(ObbCalculatorTest, OrderOfThePointsDoesNotMatter)
{
    for (const Case& row : Cases()) {
        SCOPED_TRACE(row.name);
        std::vector<AcGePoint2d> reversed(row.points.rbegin(), row.points.rend());
        ExpectBox(ObbCalculator::CalculateSimplified(reversed, row.direction), row);
        std::vector<AcGePoint2d> rotated = row.points;
        if (!rotated.empty())
            std::rotate(rotated.begin(), rotated.begin() + 1, rotated.end());
        ExpectBox(ObbCalculator::CalculateSimplified(rotated, row.direction), row);
    }
}

TEST(ObbCalculatorTest, TranslatingThePointsMovesOnlyTheCentre)
{
    const AcGeVector2d shift(1000, -250);
    for (const Case& row : Cases()) {
        if (!HasDirection(row) || row.points.empty())
            continue;  // the default boxes stay at the origin
        SCOPED_TRACE(row.name);
        std::vector<AcGePoint2d> moved;
        for (const AcGePoint2d& point : row.points)
            moved.push_back(point + shift);
        Case expected = row;
        expected.center = row.center + shift;
        const OBBInfo2D box = ObbCalculator::CalculateSimplified(moved, row.direction);
        ExpectBox(box, expected);
        ExpectFrame(box);
        ExpectEnclosing(box, moved);
    }
}

}  // namespace
