// Points, vectors and tolerances: the comparison rules exactly at their boundaries (<= for
// equality, strict < for parallel), the perpendicular-vector rules, angles, mirroring and
// projection, and the printing that test failures rely on.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>
#include <string>

#include "GeTestSupport.h"
#include "gegbl.h"
#include "geline2d.h"
#include "gemat2d.h"
#include "gemat3d.h"
#include "gepnt2d.h"
#include "gepnt3d.h"
#include "geplane.h"
#include "gescl3d.h"
#include "gevec2d.h"
#include "gevec3d.h"
#include "headless/HostError.h"

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

double above(double value)
{
    return std::nextafter(value, kInfinity);
}

double below(double value)
{
    return std::nextafter(value, -kInfinity);
}

template <class T>
std::string printed(const T& value)
{
    std::ostringstream os;
    os << value;
    return os.str();
}

TEST(GeToleranceTest, DefaultsAreTheHosts)
{
    const AcGeTol tol;
    EXPECT_EQ(tol.equalPoint(), 1e-10);
    EXPECT_EQ(tol.equalVector(), 1e-12);
    EXPECT_EQ(AcGeContext::gTol.equalPoint(), 1e-10);
    EXPECT_EQ(AcGeContext::gTol.equalVector(), 1e-12);
}

TEST(GeToleranceTest, EqualityHoldsExactlyAtTheTolerance)
{
    struct Row {
        const char* name;
        AcGePoint3d other;
        double distance;  // exact in binary, so the tolerance can sit on it
    };
    const Row rows[] = {
        {"along x", AcGePoint3d(0.5, 0, 0), 0.5},
        {"3-4-5 diagonal", AcGePoint3d(3, 4, 0), 5.0},
        {"default tolerance", AcGePoint3d(0, 0, 1e-10), 1e-10},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const AcGePoint3d origin;
        EXPECT_TRUE(origin.isEqualTo(row.other, getest::tolerance(row.distance)));
        EXPECT_FALSE(origin.isEqualTo(row.other, getest::tolerance(below(row.distance))));
        const AcGeVector3d difference = row.other - origin;
        EXPECT_TRUE(difference.isEqualTo(AcGeVector3d::kIdentity, getest::tolerance(row.distance)));
        EXPECT_FALSE(difference.isEqualTo(AcGeVector3d::kIdentity, getest::tolerance(below(row.distance))));
        EXPECT_TRUE(difference.isZeroLength(getest::tolerance(row.distance)));
        EXPECT_FALSE(difference.isZeroLength(getest::tolerance(below(row.distance))));
    }
    // The operators use the global tolerance: points and vectors use different ones.
    EXPECT_TRUE(AcGePoint3d(0, 0, 0) == AcGePoint3d(1e-10, 0, 0));
    EXPECT_FALSE(AcGePoint3d(0, 0, 0) == AcGePoint3d(2e-10, 0, 0));
    EXPECT_TRUE(AcGeVector3d(0, 0, 0) == AcGeVector3d(1e-12, 0, 0));
    EXPECT_FALSE(AcGeVector3d(0, 0, 0) == AcGeVector3d(2e-12, 0, 0));
    EXPECT_TRUE(AcGePoint2d(0, 0) == AcGePoint2d(0, 1e-10));
    EXPECT_TRUE(AcGePoint2d(0, 0) != AcGePoint2d(0, 2e-10));
}

TEST(GeToleranceTest, UnitLengthHoldsExactlyAtTheTolerance)
{
    const AcGeVector3d longer(1.25, 0, 0);
    EXPECT_TRUE(longer.isUnitLength(getest::tolerance(0.25)));
    EXPECT_FALSE(longer.isUnitLength(getest::tolerance(below(0.25))));
    EXPECT_TRUE(AcGeVector2d(0, 0.75).isUnitLength(getest::tolerance(0.25)));
    EXPECT_TRUE(AcGeVector3d(0.6, 0.8, 0).isUnitLength());
}

TEST(GeToleranceTest, ParallelIsStrictAndPerpendicularIsNot)
{
    struct Row {
        const char* name;
        AcGeVector3d a;
        AcGeVector3d b;
    };
    const Row rows[] = {
        {"slightly turned", AcGeVector3d(1, 0, 0), AcGeVector3d(1, 1e-6, 0)},
        {"long and short", AcGeVector3d(0, 0, 250), AcGeVector3d(2e-4, 0, 0.5)},
        {"opposite senses", AcGeVector3d(1, 2, 3), AcGeVector3d(-2, -4, -6.001)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        // The tolerance is set to the rule's own measure: parallel needs strictly less.
        const bool sameSense = row.a.dotProduct(row.b) > 0;
        const AcGeVector3d ub = sameSense ? row.b.normal() : -row.b.normal();
        const double gap = (row.a.normal() - ub).length();
        EXPECT_FALSE(row.a.isParallelTo(row.b, getest::tolerance(gap)));
        EXPECT_TRUE(row.a.isParallelTo(row.b, getest::tolerance(above(gap))));
        EXPECT_TRUE(row.b.isParallelTo(row.a, getest::tolerance(above(gap))));
        EXPECT_EQ(row.a.isCodirectionalTo(row.b, getest::tolerance(above(gap))), sameSense);

        const AcGeVector3d across = row.a.crossProduct(AcGeVector3d(0.3, -0.2, 0.7)) + row.a * 1e-7;
        const double cosine = std::fabs(row.a.dotProduct(across)) / (row.a.length() * across.length());
        EXPECT_TRUE(row.a.isPerpendicularTo(across, getest::tolerance(cosine)));
        EXPECT_FALSE(row.a.isPerpendicularTo(across, getest::tolerance(below(cosine))));
    }
    const AcGeVector2d a2(3, 4);
    const double gap2 = (a2.normal() - AcGeVector2d(3, 4.001).normal()).length();
    EXPECT_FALSE(a2.isParallelTo(AcGeVector2d(3, 4.001), getest::tolerance(gap2)));
    EXPECT_TRUE(a2.isParallelTo(AcGeVector2d(-3, -4.001), getest::tolerance(above(gap2))));
    EXPECT_FALSE(a2.isCodirectionalTo(AcGeVector2d(-3, -4), getest::tolerance(0.1)));
    EXPECT_TRUE(a2.isPerpendicularTo(a2.perpVector()));
}

TEST(GeToleranceTest, ZeroVectorsHaveNoDirection)
{
    const AcGeVector3d tiny(0, 0, 1e-12);
    AcGeError flag = AcGe::kOk;
    EXPECT_FALSE(tiny.isParallelTo(AcGeVector3d::kZAxis, AcGeContext::gTol, flag));
    EXPECT_EQ(flag, AcGe::k0This);
    EXPECT_FALSE(AcGeVector3d::kZAxis.isPerpendicularTo(tiny, AcGeContext::gTol, flag));
    EXPECT_EQ(flag, AcGe::k0Arg1);
    EXPECT_FALSE(AcGeVector3d::kIdentity.isParallelTo(AcGeVector3d::kIdentity));
    EXPECT_FALSE(AcGeVector2d::kIdentity.isCodirectionalTo(AcGeVector2d::kXAxis));
    EXPECT_TRUE(AcGeVector3d::kXAxis.isParallelTo(AcGeVector3d::kXAxis, AcGeContext::gTol, flag));
    EXPECT_EQ(flag, AcGe::kOk);
}

TEST(GeToleranceTest, NormalizeLeavesVectorsAtMostEqualVectorLongUnchanged)
{
    struct Row {
        const char* name;
        AcGeVector3d vector;
        bool normalizes;
    };
    const Row rows[] = {
        {"zero", AcGeVector3d(0, 0, 0), false},
        {"exactly equalVector long", AcGeVector3d(0, 1e-12, 0), false},
        {"just longer", AcGeVector3d(0, above(1e-12), 0), true},
        {"long", AcGeVector3d(3, 4, 12), true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AcGeVector3d v = row.vector;
        AcGeError flag = AcGe::kOk;
        v.normalize(AcGeContext::gTol, flag);
        EXPECT_EQ(flag, row.normalizes ? AcGe::kOk : AcGe::k0This);
        if (row.normalizes) {
            EXPECT_NEAR(v.length(), 1.0, 1e-15);
            EXPECT_TRUE(v.isCodirectionalTo(row.vector));
        } else {
            EXPECT_EQ(v.x, row.vector.x);
            EXPECT_EQ(v.y, row.vector.y);
            EXPECT_EQ(v.z, row.vector.z);
        }
        EXPECT_EQ(row.vector.normal().x, v.x);
        EXPECT_EQ(row.vector.normal().y, v.y);
    }
    AcGeVector2d v2(0, 1e-12);
    AcGeError flag = AcGe::kOk;
    v2.normalize(AcGeContext::gTol, flag);
    EXPECT_EQ(flag, AcGe::k0This);
    EXPECT_EQ(v2.y, 1e-12);
    EXPECT_EQ(AcGeVector2d(0, -7).normal(), AcGeVector2d(0, -1));
}

TEST(GeToleranceTest, VectorsFarFromUnitLengthKeepTheirLengthAndDirection)
{
    // Their squares overflow or underflow a double; the length and the direction must not.
    const double half = std::sqrt(0.5);
    struct Row {
        const char* name;
        AcGeVector3d vector;
        double length;  // infinity: longer than any double
        AcGeVector3d unit;
    };
    const Row rows[] = {
        {"squares overflow", AcGeVector3d(3e200, 4e200, 0), 5e200, AcGeVector3d(0.6, 0.8, 0)},
        {"squares overflow, negative", AcGeVector3d(0, -4e200, 3e200), 5e200, AcGeVector3d(0, -0.8, 0.6)},
        {"near the largest double", AcGeVector3d(1e308, 0, 1e308), 1e308 * std::sqrt(2.0), AcGeVector3d(half, 0, half)},
        {"longer than any double", AcGeVector3d(1.5e308, 0, 1.5e308), HUGE_VAL, AcGeVector3d(half, 0, half)},
        {"squares underflow", AcGeVector3d(3e-200, 4e-200, 0), 5e-200, AcGeVector3d(3e-200, 4e-200, 0)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_DOUBLE_EQ(row.vector.length(), row.length);
        AcGeVector3d unit = row.vector;
        AcGeError flag = AcGe::kOk;
        unit.normalize(AcGeContext::gTol, flag);
        // A vector shorter than the tolerance stays as it is.
        EXPECT_EQ(flag, row.length > 1e-12 ? AcGe::kOk : AcGe::k0This);
        EXPECT_DOUBLE_EQ(unit.x, row.unit.x);
        EXPECT_DOUBLE_EQ(unit.y, row.unit.y);
        EXPECT_DOUBLE_EQ(unit.z, row.unit.z);
    }
    const AcGeVector2d flat(-3e200, 4e200);
    EXPECT_DOUBLE_EQ(flat.length(), 5e200);
    EXPECT_DOUBLE_EQ(flat.normal().x, -0.6);
    EXPECT_DOUBLE_EQ(flat.normal().y, 0.8);
    EXPECT_DOUBLE_EQ(AcGeVector2d(1.5e308, -1.5e308).normal().y, -half);
}

TEST(GePerpVectorTest, FollowsTheArbitraryAxisRule)
{
    struct Row {
        const char* name;
        AcGeVector3d vector;
        AcGeVector3d expected;
    };
    const double limit = 1.0 / 64.0;
    const Row rows[] = {
        {"X gives Y", AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 0)},
        {"Y gives -X", AcGeVector3d(0, 1, 0), AcGeVector3d(-1, 0, 0)},
        {"XY-plane vectors turn a quarter", AcGeVector3d(3, 4, 0), AcGeVector3d(-4, 3, 0)},
        {"Z uses the Y rule", AcGeVector3d(0, 0, 1), AcGeVector3d(1, 0, 0)},
        {"-Z uses the Y rule", AcGeVector3d(0, 0, -2), AcGeVector3d(-2, 0, 0)},
        {"near Z uses the Y rule", AcGeVector3d(0.01, -0.01, 1), AcGeVector3d(1, 0, -0.01)},
        {"x exactly 1/64 uses the Z rule", AcGeVector3d(limit, 0, 1), AcGeVector3d(0, limit, 0)},
        {"y exactly 1/64 uses the Z rule", AcGeVector3d(0, -limit, 1), AcGeVector3d(limit, 0, 0)},
        {"zero stays zero", AcGeVector3d(0, 0, 0), AcGeVector3d(0, 0, 0)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const AcGeVector3d perp = row.vector.perpVector();
        EXPECT_TRUE(getest::isNear(perp, row.expected, 1e-15));
        EXPECT_EQ(perp.dotProduct(row.vector), 0.0) << perp;
    }
}

TEST(GePerpVectorTest, IsOrthogonalAndNonZeroForAnyDirection)
{
    for (int i = 0; i < 200; ++i) {
        const double theta = 0.0317 * i;
        const double phi = 0.0151 * i;
        const AcGeVector3d v(std::sin(phi) * std::cos(theta), std::sin(phi) * std::sin(theta), std::cos(phi));
        const AcGeVector3d perp = v.perpVector();
        EXPECT_TRUE(perp.isPerpendicularTo(v)) << v << " -> " << perp;
        // The rule keeps away from zero: at least 1/64 long for a unit vector.
        EXPECT_GE(perp.length(), 1.0 / 64.0 * 0.999) << v;
    }
}

void swapAxes(const AcGeVector3d& in, AcGeVector3d& out)
{
    out.set(-in.z, 0, in.x);
}

TEST(GePerpVectorTest, AsksTheContextHook)
{
    const auto saved = AcGeContext::gOrthoVector;
    AcGeContext::gOrthoVector = swapAxes;
    const AcGeVector3d perp = AcGeVector3d(1, 0, 0).perpVector();
    AcGeContext::gOrthoVector = saved;
    EXPECT_EQ(perp, AcGeVector3d(0, 0, 1));
    EXPECT_EQ(AcGeVector3d(1, 0, 0).perpVector(), AcGeVector3d(0, 1, 0));
}

TEST(GePerpVectorTest, TwoDimensionalPerpIsMinusYX)
{
    EXPECT_EQ(AcGeVector2d(1, 0).perpVector(), AcGeVector2d(0, 1));
    EXPECT_EQ(AcGeVector2d(0, 1).perpVector(), AcGeVector2d(-1, 0));
    const AcGeVector2d v(3, -4);
    EXPECT_EQ(v.perpVector().x, 4.0);
    EXPECT_EQ(v.perpVector().y, 3.0);
    EXPECT_EQ(v.perpVector().length(), v.length());
}

TEST(GeAngleTest, AnglesAndTheirRanges)
{
    struct Row {
        const char* name;
        double actual;
        double expected;
    };
    const AcGeVector3d x = AcGeVector3d::kXAxis;
    const AcGeVector3d y = AcGeVector3d::kYAxis;
    const AcGeVector3d z = AcGeVector3d::kZAxis;
    const Row rows[] = {
        {"X to Y", x.angleTo(y), kPi / 2},
        {"Y to X is not signed", y.angleTo(x), kPi / 2},
        {"opposite", x.angleTo(-x * 3), kPi},
        {"same", x.angleTo(x * 2), 0.0},
        {"tiny angle keeps its accuracy", x.angleTo(AcGeVector3d(1, 1e-9, 0)), 1e-9},
        {"X to Y seen from +Z", x.angleTo(y, z), kPi / 2},
        {"X to Y seen from -Z", x.angleTo(y, -z), 3 * kPi / 2},
        {"Y to X seen from +Z", y.angleTo(x, z), 3 * kPi / 2},
        {"2D angle of -Y", AcGeVector2d(0, -1).angle(), 3 * kPi / 2},
        {"2D angle of X", AcGeVector2d(5, 0).angle(), 0.0},
        {"2D angle of -X", AcGeVector2d(-5, 0).angle(), kPi},
        {"2D angleTo is not signed", AcGeVector2d(0, -1).angleTo(AcGeVector2d(1, 0)), kPi / 2},
        {"angle on the XY plane", AcGeVector3d(-1, -1, 7).angleOnPlane(AcGePlane::kXYPlane), 5 * kPi / 4},
        {"angle on the YZ plane", AcGeVector3d(9, 0, 2).angleOnPlane(AcGePlane::kYZPlane), kPi / 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_NEAR(row.actual, row.expected, 1e-15 * (1 + row.expected));
    }
}

TEST(GeTransformTest, PointsTakeTheTranslationAndVectorsDoNot)
{
    const AcGeMatrix3d move = AcGeMatrix3d::translation(AcGeVector3d(10, -5, 2));
    const AcGeMatrix3d turnAndMove = move * AcGeMatrix3d::rotation(kPi / 2, AcGeVector3d::kZAxis);

    EXPECT_EQ(move * AcGePoint3d(1, 2, 3), AcGePoint3d(11, -3, 5));
    EXPECT_EQ(move * AcGeVector3d(1, 2, 3), AcGeVector3d(1, 2, 3));
    EXPECT_TRUE(getest::isNear(turnAndMove * AcGePoint3d(1, 0, 0), AcGePoint3d(10, -4, 2)));
    EXPECT_TRUE(getest::isNear(turnAndMove * AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 0)));

    AcGePoint3d p(1, 0, 0);
    AcGeVector3d v(1, 0, 0);
    p.transformBy(turnAndMove);
    v.transformBy(turnAndMove);
    EXPECT_TRUE(getest::isNear(p - AcGePoint3d(10, -5, 2), v));

    const AcGeMatrix2d move2 = AcGeMatrix2d::translation(AcGeVector2d(3, 4));
    EXPECT_EQ(move2 * AcGePoint2d(1, 1), AcGePoint2d(4, 5));
    EXPECT_EQ(move2 * AcGeVector2d(1, 1), AcGeVector2d(1, 1));
}

TEST(GeTransformTest, PointsRotateAboutTheirCentre)
{
    struct Row {
        const char* name;
        AcGePoint3d point;
        double angle;
        AcGeVector3d axis;
        AcGePoint3d centre;
        AcGePoint3d expected;
    };
    const Row rows[] = {
        {"quarter turn about a centre", AcGePoint3d(2, 1, 0), kPi / 2, AcGeVector3d::kZAxis, AcGePoint3d(1, 1, 0),
         AcGePoint3d(1, 2, 0)},
        {"clockwise seen from -Z", AcGePoint3d(2, 1, 0), kPi / 2, -AcGeVector3d::kZAxis, AcGePoint3d(1, 1, 0),
         AcGePoint3d(1, 0, 0)},
        {"the centre stays", AcGePoint3d(4, 5, 6), 1.234, AcGeVector3d(1, 2, 3), AcGePoint3d(4, 5, 6),
         AcGePoint3d(4, 5, 6)},
        {"a point on the axis stays", AcGePoint3d(2, 4, 6), 2.5, AcGeVector3d(1, 2, 3), AcGePoint3d::kOrigin,
         AcGePoint3d(2, 4, 6)},
        {"third turn about the diagonal cycles the axes", AcGePoint3d(1, 0, 0), 2 * kPi / 3, AcGeVector3d(5, 5, 5),
         AcGePoint3d::kOrigin, AcGePoint3d(0, 1, 0)},
        {"half turn about X at height", AcGePoint3d(0, 1, 1), kPi, AcGeVector3d::kXAxis, AcGePoint3d(0, 0, 2),
         AcGePoint3d(0, -1, 3)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AcGePoint3d p = row.point;
        p.rotateBy(row.angle, row.axis, row.centre);
        EXPECT_TRUE(getest::isNear(p, row.expected));
        EXPECT_NEAR(p.distanceTo(row.centre), row.point.distanceTo(row.centre), 1e-12);
    }
    AcGePoint2d p2(2, 1);
    p2.rotateBy(kPi / 2, AcGePoint2d(1, 1));
    EXPECT_TRUE(getest::isNear(p2, AcGePoint2d(1, 2)));
    AcGeVector2d v2(1, 0);
    EXPECT_TRUE(getest::isNear(v2.rotateBy(-kPi / 2), AcGeVector2d(0, -1)));
    AcGeVector3d v3(1, 0, 0);
    EXPECT_TRUE(getest::isNear(v3.rotateBy(kPi / 2, AcGeVector3d::kYAxis), AcGeVector3d(0, 0, -1)));
    EXPECT_THROW(AcGePoint3d(1, 0, 0).rotateBy(1.0, AcGeVector3d::kIdentity), headless::HostError);
}

TEST(GeTransformTest, MirroringAndScaling)
{
    AcGePoint3d p(1, 2, 3);
    p.mirror(AcGePlane(AcGePoint3d(0, 0, 1), AcGeVector3d(0, 0, -4)));
    EXPECT_EQ(p, AcGePoint3d(1, 2, -1));
    AcGeVector3d v(1, 2, 3);
    EXPECT_EQ(v.mirror(AcGeVector3d(0, 5, 0)), AcGeVector3d(1, -2, 3));
    AcGeVector2d v2(1, 2);
    EXPECT_TRUE(getest::isNear(v2.mirror(AcGeVector2d(1, 1)), AcGeVector2d(2, 1)));
    AcGePoint2d p2(3, 0);
    EXPECT_TRUE(getest::isNear(p2.mirror(AcGeLine2d(AcGePoint2d(0, 1), AcGeVector2d(1, 1))), AcGePoint2d(-1, 4)));
    AcGePoint3d q(3, 3, 3);
    EXPECT_EQ(q.scaleBy(2.0, AcGePoint3d(1, 2, 3)), AcGePoint3d(5, 4, 3));
    AcGePoint2d q2(3, 3);
    EXPECT_EQ(q2.scaleBy(-1.0, AcGePoint2d(1, 1)), AcGePoint2d(-1, -1));
}

TEST(GeProjectionTest, VectorsProjectOntoPlanesThroughTheOrigin)
{
    const AcGeVector3d v(1, 2, 3);
    EXPECT_EQ(v.orthoProject(AcGeVector3d(0, 0, 9)), AcGeVector3d(1, 2, 0));
    EXPECT_EQ(AcGeVector3d(0, 0, 1).project(AcGeVector3d::kZAxis, AcGeVector3d(1, 0, -1)), AcGeVector3d(1, 0, 0));
    EXPECT_EQ(v.project(AcGeVector3d::kZAxis, AcGeVector3d::kZAxis), AcGeVector3d(1, 2, 0));

    AcGeError flag = AcGe::kOk;
    EXPECT_EQ(v.project(AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, AcGeContext::gTol, flag), v);
    EXPECT_EQ(flag, AcGe::kPerpendicularArg1Arg2);
    EXPECT_EQ(v.project(AcGeVector3d::kIdentity, AcGeVector3d::kXAxis, AcGeContext::gTol, flag), v);
    EXPECT_EQ(flag, AcGe::k0Arg1);
    EXPECT_EQ(v.project(AcGeVector3d::kZAxis, AcGeVector3d::kIdentity, AcGeContext::gTol, flag), v);
    EXPECT_EQ(flag, AcGe::k0Arg2);
    EXPECT_EQ(v.orthoProject(AcGeVector3d::kIdentity, AcGeContext::gTol, flag), v);
    EXPECT_EQ(flag, AcGe::k0Arg1);
}

TEST(GeProjectionTest, PointsProjectOntoPlanesAndConvertTo2d)
{
    const AcGePlane tilted(AcGePoint3d(1, 1, 1), AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 1));
    const AcGePoint3d p(4, 5, -2);
    const AcGePoint3d foot = p.orthoProject(tilted);
    EXPECT_TRUE(tilted.isOn(foot));
    EXPECT_TRUE((p - foot).isParallelTo(tilted.normal()));

    const AcGePoint3d along = p.project(tilted, AcGeVector3d(0, 0, 1));
    EXPECT_TRUE(tilted.isOn(along));
    EXPECT_EQ(along.x, p.x);
    EXPECT_EQ(along.y, p.y);
    EXPECT_EQ(p.project(tilted, AcGeVector3d(1, 1, 1)), p) << "a direction within the plane has no projection";

    const AcGePoint2d params = p.convert2d(tilted);
    EXPECT_TRUE(getest::isNear(AcGePoint3d(tilted, params), foot));
    const AcGeVector3d w(2, -3, 0.5);
    EXPECT_TRUE(getest::isNear(AcGeVector3d(tilted, w.convert2d(tilted)), w.orthoProject(tilted.normal())));
}

TEST(GeRotateToTest, TurnsOneDirectionOntoAnother)
{
    struct Row {
        const char* name;
        AcGeVector3d from;
        AcGeVector3d to;
        AcGeVector3d axis;
    };
    const Row rows[] = {
        {"general", AcGeVector3d(1, 2, 3), AcGeVector3d(-3, 0.5, 2), AcGeVector3d::kIdentity},
        {"same direction", AcGeVector3d(1, 2, 3), AcGeVector3d(2, 4, 6), AcGeVector3d::kIdentity},
        {"opposite", AcGeVector3d(1, 2, 3), AcGeVector3d(-1, -2, -3), AcGeVector3d::kIdentity},
        {"about Z", AcGeVector3d(1, 0, 0), AcGeVector3d(0, -1, 0), AcGeVector3d::kZAxis},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const AcGeMatrix3d rotation = row.from.rotateTo(row.to, row.axis);
        EXPECT_TRUE((rotation * row.from).isCodirectionalTo(row.to, getest::tolerance(1e-12))) << rotation;
        EXPECT_NEAR(rotation.det(), 1.0, 1e-12);
    }
}

TEST(GeAccessTest, IndicesOutsideTheCoordinatesRaise)
{
    AcGePoint3d p(1, 2, 3);
    AcGeVector3d v(-1, 5, 2);
    AcGePoint2d p2(1, 2);
    AcGeVector2d v2(1, 2);
    AcGeScale3d s(2, 3, 4);
    EXPECT_EQ(p[2], 3.0);
    p[0] = 7;
    EXPECT_EQ(p.x, 7.0);
    EXPECT_EQ(v.largestElement(), 1u);
    EXPECT_EQ(AcGeVector3d(0, 2, -2).largestElement(), 1u);
    EXPECT_EQ(AcGeVector3d(0, 0, -2).largestElement(), 2u);
    EXPECT_EQ(s[1], 3.0);
    EXPECT_THROW(p[3], headless::HostError);
    EXPECT_THROW(v[3], headless::HostError);
    EXPECT_THROW(p2[2], headless::HostError);
    EXPECT_THROW(v2[2], headless::HostError);
    EXPECT_THROW(s[3], headless::HostError);
}

TEST(GePrintTest, CoordinatesPrintInFullPrecision)
{
    EXPECT_EQ(printed(AcGePoint3d(0.1, -2, 1e-300)), "(0.1, -2, 1e-300)");
    EXPECT_EQ(printed(AcGeVector3d(1.0 / 3.0, 0, 0)), "(0.3333333333333333, 0, 0)");
    EXPECT_EQ(printed(AcGePoint2d(1 + 1e-15, 2)), "(1.000000000000001, 2)");
    EXPECT_EQ(printed(AcGeVector2d(-0.5, 3)), "(-0.5, 3)");
    EXPECT_EQ(printed(AcGeScale3d(1, 2, 3)), "(1, 2, 3)");
    EXPECT_EQ(printed(AcGeMatrix3d::translation(AcGeVector3d(1, 2, 3))),
              "[(1, 0, 0, 1), (0, 1, 0, 2), (0, 0, 1, 3), (0, 0, 0, 1)]");
    EXPECT_EQ(printed(AcGeMatrix2d::scaling(2)), "[(2, 0, 0), (0, 2, 0), (0, 0, 1)]");
    EXPECT_EQ(printed(AcGeTol()), "AcGeTol(equalPoint 1e-10, equalVector 1e-12)");
    EXPECT_EQ(printed(AcGePlane::kXYPlane), "AcGePlane(origin (0, 0, 0), u (1, 0, 0), v (0, 1, 0), normal (0, 0, 1))");
    EXPECT_EQ(printed(AcGeLine2d(AcGePoint2d(1, 2), AcGeVector2d(0, 3))), "AcGeLine2d((1, 2), (0, 3))");
    // The stream's own settings do not cut digits.
    std::ostringstream os;
    os.precision(2);
    os << AcGePoint3d(1.23456, 0, 0);
    EXPECT_EQ(os.str(), "(1.23456, 0, 0)");
}

TEST(GeScaleTest, FactorsMultiplyAndMakeMatrices)
{
    EXPECT_EQ(AcGeScale3d(), AcGeScale3d(1, 1, 1));
    EXPECT_EQ(AcGeScale3d(2, 3, 4) * AcGeScale3d(0.5, 2, -1), AcGeScale3d(1, 6, -4));
    EXPECT_EQ(AcGeScale3d(2, 4, 8).inverse(), AcGeScale3d(0.5, 0.25, 0.125));
    EXPECT_TRUE(AcGeScale3d(2).isProportional());
    EXPECT_FALSE(AcGeScale3d(2, 2, 2.001).isProportional());

    const AcGeMatrix3d scaling = AcGeScale3d(2, 3, 4);
    EXPECT_EQ(scaling * AcGePoint3d(1, 1, 1), AcGePoint3d(2, 3, 4));

    AcGeMatrix3d rotated = AcGeMatrix3d::rotation(0.7, AcGeVector3d(1, 1, 0)) * scaling;
    AcGeScale3d extracted;
    extracted.extractScale(rotated);
    EXPECT_TRUE(getest::isNear(extracted, AcGeScale3d(2, 3, 4), 1e-12));
    extracted.removeScale(rotated);
    EXPECT_TRUE(rotated.isUniScaledOrtho());
    EXPECT_NEAR(rotated.scale(), 1.0, 1e-12);
}

}  // namespace
