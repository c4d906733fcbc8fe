// The curve interface of lines, circles and arcs against closed-form answers: parameters,
// points, distances, derivatives, closest points, areas, offsets, splits, extension and
// reversal.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <vector>

#include "EntTestSupport.h"
#include "GeTestSupport.h"
#include "dbents.h"

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTol = 1e-9;

using getest::isNear;

// Owns the entities a curve call hands out.
struct Pieces {
    AcDbVoidPtrArray array;
    ~Pieces()
    {
        for (int i = 0; i < array.length(); ++i)
            delete static_cast<AcDbEntity*>(array[i]);
    }
    template <class T>
    T* at(int i) const
    {
        return T::cast(static_cast<AcDbEntity*>(array[i]));
    }
};

double lengthOf(const AcDbCurve* curve)
{
    double end = 0.0;
    double dist = 0.0;
    curve->getEndParam(end);
    curve->getDistAtParam(end, dist);
    return dist;
}

TEST(EntCurveTest, LineParametersAreDistancesFromTheStart)
{
    const AcDbLine line(AcGePoint3d(1, 2, 0), AcGePoint3d(4, 6, 0));
    double param = -1.0;
    ASSERT_EQ(line.getStartParam(param), Acad::eOk);
    EXPECT_EQ(param, 0.0);
    ASSERT_EQ(line.getEndParam(param), Acad::eOk);
    EXPECT_NEAR(param, 5.0, kTol);

    struct Row {
        double param;
        AcGePoint3d point;
    };
    const Row rows[] = {{0.0, {1, 2, 0}}, {2.5, {2.5, 4, 0}}, {5.0, {4, 6, 0}}};
    for (const Row& row : rows) {
        AcGePoint3d point;
        ASSERT_EQ(line.getPointAtParam(row.param, point), Acad::eOk);
        EXPECT_TRUE(isNear(point, row.point)) << row.param;
        ASSERT_EQ(line.getParamAtPoint(row.point, param), Acad::eOk);
        EXPECT_NEAR(param, row.param, kTol);
        double dist = -1.0;
        ASSERT_EQ(line.getDistAtPoint(row.point, dist), Acad::eOk);
        EXPECT_NEAR(dist, row.param, kTol);
        ASSERT_EQ(line.getPointAtDist(row.param, point), Acad::eOk);
        EXPECT_TRUE(isNear(point, row.point));
        AcGeVector3d deriv;
        ASSERT_EQ(line.getFirstDeriv(row.param, deriv), Acad::eOk);
        EXPECT_TRUE(isNear(deriv, AcGeVector3d(0.6, 0.8, 0)));
        ASSERT_EQ(line.getSecondDeriv(row.point, deriv), Acad::eOk);
        EXPECT_TRUE(isNear(deriv, AcGeVector3d(0, 0, 0)));
    }
    AcGePoint3d point;
    EXPECT_EQ(line.getPointAtParam(5.1, point), Acad::eInvalidInput);
    EXPECT_EQ(line.getPointAtParam(-0.1, point), Acad::eInvalidInput);
    EXPECT_EQ(line.getParamAtPoint(AcGePoint3d(2.5, 4.1, 0), param), Acad::eInvalidInput);
    EXPECT_EQ(line.getParamAtPoint(AcGePoint3d(7, 10, 0), param), Acad::eInvalidInput);
    double area = -1.0;
    ASSERT_EQ(line.getArea(area), Acad::eOk);
    EXPECT_EQ(area, 0.0);
    EXPECT_FALSE(line.isClosed());
    AcGePlane plane;
    AcDb::Planarity planarity = AcDb::kNonPlanar;
    ASSERT_EQ(line.getPlane(plane, planarity), Acad::eOk);
    EXPECT_EQ(planarity, AcDb::kLinear);
    EXPECT_TRUE(plane.isOn(AcGePoint3d(4, 6, 0)));
}

TEST(EntCurveTest, LineClosestPoints)
{
    const AcDbLine line(AcGePoint3d(1, 2, 0), AcGePoint3d(4, 6, 0));
    struct Row {
        const char* name;
        AcGePoint3d given;
        bool extend;
        AcGePoint3d expected;
    };
    const Row rows[] = {
        {"before the start", {0, 0, 0}, false, {1, 2, 0}},
        {"before the start, extended", {0, 0, 0}, true, {-0.32, 0.24, 0}},
        {"beside", {2.5 + 0.8, 4 - 0.6, 7}, false, {2.5, 4, 0}},
        {"past the end", {10, 10, 0}, false, {4, 6, 0}},
    };
    for (const Row& row : rows) {
        AcGePoint3d onCurve;
        ASSERT_EQ(line.getClosestPointTo(row.given, onCurve, row.extend), Acad::eOk);
        EXPECT_TRUE(isNear(onCurve, row.expected)) << row.name;
    }
    // Seen along Z, a line in a tilted plane is nearest where it passes under the point.
    const AcDbLine rising(AcGePoint3d(0, 0, 0), AcGePoint3d(10, 0, 10));
    AcGePoint3d onCurve;
    ASSERT_EQ(rising.getClosestPointTo(AcGePoint3d(4, 3, 0), AcGeVector3d::kZAxis, onCurve), Acad::eOk);
    EXPECT_TRUE(isNear(onCurve, AcGePoint3d(4, 0, 4)));
}

TEST(EntCurveTest, LineOffsetsSplitsExtensionsAndReversal)
{
    AcDbLine line(AcGePoint3d(1, 2, 0), AcGePoint3d(4, 6, 0));
    line.setColorIndex(3);
    {
        // Positive: to the right of the direction of travel seen from the normal.
        Pieces offset;
        ASSERT_EQ(line.getOffsetCurves(1.0, offset.array), Acad::eOk);
        ASSERT_EQ(offset.array.length(), 1);
        EXPECT_TRUE(isNear(offset.at<AcDbLine>(0)->startPoint(), AcGePoint3d(1.8, 1.4, 0)));
        EXPECT_TRUE(isNear(offset.at<AcDbLine>(0)->endPoint(), AcGePoint3d(4.8, 5.4, 0)));
        EXPECT_EQ(offset.at<AcDbLine>(0)->colorIndex(), 3);
    }
    {
        Pieces pieces;
        AcGeDoubleArray params;
        params.append(3.0);
        params.append(1.0);
        params.append(5.0);
        ASSERT_EQ(line.getSplitCurves(params, pieces.array), Acad::eOk);
        ASSERT_EQ(pieces.array.length(), 3);
        EXPECT_NEAR(lengthOf(pieces.at<AcDbLine>(0)), 1.0, kTol);
        EXPECT_NEAR(lengthOf(pieces.at<AcDbLine>(1)), 2.0, kTol);
        EXPECT_NEAR(lengthOf(pieces.at<AcDbLine>(2)), 2.0, kTol);
        EXPECT_TRUE(isNear(pieces.at<AcDbLine>(2)->endPoint(), AcGePoint3d(4, 6, 0)));
        Pieces refused;
        params.append(6.0);
        EXPECT_EQ(line.getSplitCurves(params, refused.array), Acad::eInvalidInput);
        AcGePoint3dArray points;
        points.append(AcGePoint3d(2.5, 4, 0));
        Pieces byPoint;
        ASSERT_EQ(line.getSplitCurves(points, byPoint.array), Acad::eOk);
        EXPECT_EQ(byPoint.array.length(), 2);
    }
    EXPECT_EQ(line.extend(2.0), Acad::eInvalidInput);
    ASSERT_EQ(line.extend(10.0), Acad::eOk);
    EXPECT_TRUE(isNear(line.endPoint(), AcGePoint3d(7, 10, 0)));
    ASSERT_EQ(line.extend(Adesk::kTrue, AcGePoint3d(-2, -2, 0)), Acad::eOk);
    EXPECT_TRUE(isNear(line.startPoint(), AcGePoint3d(-2, -2, 0)));
    EXPECT_EQ(line.extend(Adesk::kTrue, AcGePoint3d(0, 0, 0)), Acad::eInvalidInput);
    EXPECT_EQ(line.extend(Adesk::kFalse, AcGePoint3d(5, 5, 0)), Acad::eInvalidInput);
    ASSERT_EQ(line.reverseCurve(), Acad::eOk);
    EXPECT_TRUE(isNear(line.startPoint(), AcGePoint3d(7, 10, 0)));
    EXPECT_TRUE(isNear(line.endPoint(), AcGePoint3d(-2, -2, 0)));
}

struct CircleRow {
    const char* name;
    AcGeVector3d normal;
    double param;
    AcGePoint3d point;        // centre (1, 1, 0), radius 2
    AcGeVector3d firstDeriv;
};

TEST(EntCurveTest, CircleParametersAreAnglesInTheObjectSystem)
{
    const CircleRow rows[] = {
        {"z up, 0", AcGeVector3d::kZAxis, 0.0, {3, 1, 0}, {0, 2, 0}},
        {"z up, quarter", AcGeVector3d::kZAxis, kPi / 2, {1, 3, 0}, {-2, 0, 0}},
        {"z up, half", AcGeVector3d::kZAxis, kPi, {-1, 1, 0}, {0, -2, 0}},
        // The object x axis of -Z is -X (Y x N), its y axis Y.
        {"z down, 0", AcGeVector3d(0, 0, -1), 0.0, {-1, 1, 0}, {0, 2, 0}},
        {"z down, quarter", AcGeVector3d(0, 0, -1), kPi / 2, {1, 3, 0}, {2, 0, 0}},
        // The object x axis of X is Y (Z x N), its y axis Z.
        {"x normal, quarter", AcGeVector3d::kXAxis, kPi / 2, {1, 1, 2}, {0, -2, 0}},
    };
    for (const CircleRow& row : rows) {
        const AcDbCircle circle(AcGePoint3d(1, 1, 0), row.normal, 2.0);
        AcGePoint3d point;
        ASSERT_EQ(circle.getPointAtParam(row.param, point), Acad::eOk) << row.name;
        EXPECT_TRUE(isNear(point, row.point)) << row.name;
        double param = -1.0;
        ASSERT_EQ(circle.getParamAtPoint(row.point, param), Acad::eOk) << row.name;
        EXPECT_NEAR(param, row.param, kTol) << row.name;
        double dist = -1.0;
        ASSERT_EQ(circle.getDistAtParam(row.param, dist), Acad::eOk);
        EXPECT_NEAR(dist, 2.0 * row.param, kTol) << row.name;
        AcGeVector3d deriv;
        ASSERT_EQ(circle.getFirstDeriv(row.param, deriv), Acad::eOk);
        EXPECT_TRUE(isNear(deriv, row.firstDeriv)) << row.name;
        ASSERT_EQ(circle.getSecondDeriv(row.param, deriv), Acad::eOk);
        EXPECT_TRUE(isNear(deriv, (AcGePoint3d(1, 1, 0) - row.point))) << row.name;
    }
    const AcDbCircle circle(AcGePoint3d(1, 1, 0), AcGeVector3d::kZAxis, 2.0);
    EXPECT_TRUE(circle.isClosed());
    EXPECT_TRUE(circle.isPeriodic());
    double value = 0.0;
    circle.getEndParam(value);
    EXPECT_NEAR(value, 2 * kPi, kTol);
    circle.getArea(value);
    EXPECT_NEAR(value, 4 * kPi, kTol);
    EXPECT_NEAR(circle.circumference(), 4 * kPi, kTol);
    EXPECT_EQ(circle.diameter(), 4.0);
    ASSERT_EQ(circle.getParamAtDist(kPi, value), Acad::eOk);
    EXPECT_NEAR(value, kPi / 2, kTol);
    AcGePoint3d start;
    AcGePoint3d end;
    circle.getStartPoint(start);
    circle.getEndPoint(end);
    EXPECT_TRUE(isNear(start, end));
    EXPECT_EQ(circle.getParamAtPoint(AcGePoint3d(1, 1, 0), value), Acad::eInvalidInput);
    AcGePoint3d closest;
    ASSERT_EQ(circle.getClosestPointTo(AcGePoint3d(5, 1, 3), closest), Acad::eOk);
    EXPECT_TRUE(isNear(closest, AcGePoint3d(3, 1, 0)));
    // Seen along X the circle is a segment of the Y axis: the point above (1, 2) is nearest.
    ASSERT_EQ(circle.getClosestPointTo(AcGePoint3d(9, 2, 0), AcGeVector3d::kXAxis, closest), Acad::eOk);
    EXPECT_NEAR(closest.y, 2.0, 1e-7);
    EXPECT_NEAR((closest - AcGePoint3d(1, 1, 0)).length(), 2.0, 1e-9);
}

TEST(EntCurveTest, CircleOffsetsSplitsAndReversal)
{
    AcDbCircle circle(AcGePoint3d(1, 1, 0), AcGeVector3d::kZAxis, 2.0);
    {
        Pieces larger;
        ASSERT_EQ(circle.getOffsetCurves(0.5, larger.array), Acad::eOk);
        EXPECT_EQ(larger.at<AcDbCircle>(0)->radius(), 2.5);
        Pieces none;
        EXPECT_EQ(circle.getOffsetCurves(-2.0, none.array), Acad::eInvalidInput);
        EXPECT_EQ(none.array.length(), 0);
    }
    {
        Pieces arcs;
        AcGeDoubleArray params;
        params.append(kPi);
        params.append(kPi / 2);
        ASSERT_EQ(circle.getSplitCurves(params, arcs.array), Acad::eOk);
        ASSERT_EQ(arcs.array.length(), 2);
        EXPECT_NEAR(arcs.at<AcDbArc>(0)->startAngle(), kPi / 2, kTol);
        EXPECT_NEAR(arcs.at<AcDbArc>(0)->endAngle(), kPi, kTol);
        EXPECT_NEAR(arcs.at<AcDbArc>(1)->totalAngle(), 1.5 * kPi, kTol);
        Pieces whole;
        AcGeDoubleArray one;
        one.append(1.0);
        ASSERT_EQ(circle.getSplitCurves(one, whole.array), Acad::eOk);
        ASSERT_EQ(whole.array.length(), 1);
        EXPECT_NEAR(whole.at<AcDbArc>(0)->totalAngle(), 2 * kPi, kTol);
    }
    EXPECT_EQ(circle.extend(1.0), Acad::eNotApplicable);
    ASSERT_EQ(circle.reverseCurve(), Acad::eOk);
    EXPECT_TRUE(isNear(circle.normal(), AcGeVector3d(0, 0, -1)));
    AcGePoint3d point;
    circle.getPointAtParam(kPi / 2, point);
    EXPECT_TRUE(isNear(point, AcGePoint3d(1, 3, 0)));  // now reached through -X
}

TEST(EntCurveTest, ArcParametersRunFromTheStartAngle)
{
    struct Row {
        const char* name;
        double start;
        double end;
        double endParam;
        double length;
        double area;  // between the arc and its chord
    };
    const Row rows[] = {
        {"quarter", 0.0, kPi / 2, kPi / 2, kPi, kPi - 2.0},
        {"across zero", 1.5 * kPi, kPi / 2, 2.5 * kPi, 2 * kPi, 2 * kPi},
        {"three quarters", kPi / 2, 0.0, 2 * kPi, 3 * kPi, 2 * (1.5 * kPi + 1.0)},
    };
    for (const Row& row : rows) {
        const AcDbArc arc(AcGePoint3d::kOrigin, 2.0, row.start, row.end);
        double value = -1.0;
        arc.getStartParam(value);
        EXPECT_NEAR(value, row.start, kTol) << row.name;
        arc.getEndParam(value);
        EXPECT_NEAR(value, row.endParam, kTol) << row.name;
        EXPECT_NEAR(arc.length(), row.length, kTol) << row.name;
        arc.getArea(value);
        EXPECT_NEAR(value, row.area, kTol) << row.name;
        AcGePoint3d start;
        AcGePoint3d end;
        arc.getStartPoint(start);
        arc.getEndPoint(end);
        EXPECT_TRUE(isNear(start, AcGePoint3d(2 * std::cos(row.start), 2 * std::sin(row.start), 0))) << row.name;
        EXPECT_TRUE(isNear(end, AcGePoint3d(2 * std::cos(row.end), 2 * std::sin(row.end), 0))) << row.name;
        double param = -1.0;
        ASSERT_EQ(arc.getParamAtPoint(end, param), Acad::eOk);
        EXPECT_NEAR(param, row.endParam, kTol) << row.name;
        ASSERT_EQ(arc.getParamAtDist(row.length / 2, param), Acad::eOk);
        AcGePoint3d mid;
        arc.getPointAtParam(param, mid);
        const double midAngle = row.start + row.length / 4;
        EXPECT_TRUE(isNear(mid, AcGePoint3d(2 * std::cos(midAngle), 2 * std::sin(midAngle), 0))) << row.name;
    }
    const AcDbArc arc(AcGePoint3d::kOrigin, 2.0, 0.0, kPi / 2);
    double param = 0.0;
    EXPECT_EQ(arc.getParamAtPoint(AcGePoint3d(0, -2, 0), param), Acad::eInvalidInput);
    AcGePoint3d point;
    EXPECT_EQ(arc.getPointAtParam(kPi, point), Acad::eInvalidInput);
    EXPECT_EQ(arc.getParamAtDist(4.0, param), Acad::eInvalidInput);
    AcGePoint3d closest;
    arc.getClosestPointTo(AcGePoint3d(-3, -1, 0), closest, Adesk::kFalse);
    EXPECT_TRUE(isNear(closest, AcGePoint3d(0, 2, 0)));
    arc.getClosestPointTo(AcGePoint3d(-3, -1, 0), closest, Adesk::kTrue);
    EXPECT_TRUE(isNear(closest, AcGePoint3d(-3, -1, 0) * (2.0 / std::sqrt(10.0))));
}

TEST(EntCurveTest, ArcOffsetsSplitsExtensionsAndReversal)
{
    AcDbArc arc(AcGePoint3d(1, 0, 0), 2.0, 0.0, kPi);
    {
        Pieces pieces;
        AcGeDoubleArray params;
        params.append(kPi / 2);
        params.append(0.0);
        ASSERT_EQ(arc.getSplitCurves(params, pieces.array), Acad::eOk);
        ASSERT_EQ(pieces.array.length(), 2);
        EXPECT_NEAR(pieces.at<AcDbArc>(0)->totalAngle(), kPi / 2, kTol);
        EXPECT_NEAR(pieces.at<AcDbArc>(1)->startAngle(), kPi / 2, kTol);
        Pieces offset;
        ASSERT_EQ(arc.getOffsetCurves(-1.0, offset.array), Acad::eOk);
        EXPECT_EQ(offset.at<AcDbArc>(0)->radius(), 1.0);
        EXPECT_NEAR(offset.at<AcDbArc>(0)->endAngle(), kPi, kTol);
    }
    EXPECT_EQ(arc.extend(kPi / 2), Acad::eInvalidInput);
    ASSERT_EQ(arc.extend(1.5 * kPi), Acad::eOk);
    EXPECT_NEAR(arc.endAngle(), 1.5 * kPi, kTol);
    EXPECT_EQ(arc.extend(-kPi), Acad::eInvalidInput);  // would close the turn
    ASSERT_EQ(arc.extend(Adesk::kTrue, AcGePoint3d(1 + std::sqrt(2.0), -std::sqrt(2.0), 0)), Acad::eOk);
    EXPECT_NEAR(arc.startAngle(), 1.75 * kPi, kTol);
    EXPECT_EQ(arc.extend(Adesk::kFalse, AcGePoint3d(9, 9, 0)), Acad::eInvalidInput);

    AcGePoint3d start;
    AcGePoint3d end;
    arc.getStartPoint(start);
    arc.getEndPoint(end);
    const double length = arc.length();
    ASSERT_EQ(arc.reverseCurve(), Acad::eOk);
    AcGePoint3d newStart;
    AcGePoint3d newEnd;
    arc.getStartPoint(newStart);
    arc.getEndPoint(newEnd);
    EXPECT_TRUE(isNear(newStart, end));
    EXPECT_TRUE(isNear(newEnd, start));
    EXPECT_NEAR(arc.length(), length, kTol);
    EXPECT_TRUE(isNear(arc.normal(), AcGeVector3d(0, 0, -1)));
}

}  // namespace
