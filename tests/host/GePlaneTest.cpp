// Planes and lines: every way of building a plane gives the same kind of plane (unit
// normal, right-handed axes), distances are signed along the normal, parameters round trip,
// and degenerate input raises the host error.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "GeTestSupport.h"
#include "geline2d.h"
#include "geline3d.h"
#include "gemat2d.h"
#include "gemat3d.h"
#include "geplane.h"
#include "gescl3d.h"
#include "headless/HostError.h"

namespace {

TEST(GePlaneTest, EveryConstructionGivesAUnitNormalAndSignedDistances)
{
    struct Row {
        const char* name;
        AcGePlane plane;
        AcGeVector3d normal;
        double distanceOfProbe;  // signed distance of (5, 5, 10)
    };
    const Row rows[] = {
        {"origin and normal", AcGePlane(AcGePoint3d(1, 2, 3), AcGeVector3d(0, 0, 2)), AcGeVector3d(0, 0, 1), 7},
        {"three points", AcGePlane(AcGePoint3d(1, 0, 0), AcGePoint3d(0, 0, 0), AcGePoint3d(0, 1, 0)),
         AcGeVector3d(0, 0, 1), 10},
        {"three points the other way round", AcGePlane(AcGePoint3d(0, 1, 0), AcGePoint3d(0, 0, 0), AcGePoint3d(1, 0, 0)),
         AcGeVector3d(0, 0, -1), -10},
        {"origin and axes", AcGePlane(AcGePoint3d(0, 0, 5), AcGeVector3d(2, 0, 0), AcGeVector3d(0, 0, 3)),
         AcGeVector3d(0, -1, 0), -5},
        {"coefficients", AcGePlane(0, 0, 2, -8), AcGeVector3d(0, 0, 1), 6},
        {"slanted coefficients", AcGePlane(1, 1, 0, -2), AcGeVector3d(1, 1, 0).normal(), 8 / std::sqrt(2.0)},
        {"the XY plane", AcGePlane::kXYPlane, AcGeVector3d(0, 0, 1), 10},
        {"the YZ plane", AcGePlane::kYZPlane, AcGeVector3d(1, 0, 0), 5},
        {"the ZX plane", AcGePlane::kZXPlane, AcGeVector3d(0, 1, 0), 5},
        {"the default plane", AcGePlane(), AcGeVector3d(0, 0, 1), 10},
    };
    const AcGePoint3d probe(5, 5, 10);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(getest::isNear(row.plane.normal(), row.normal, 1e-15));
        EXPECT_NEAR(row.plane.signedDistanceTo(probe), row.distanceOfProbe, 1e-12);
        EXPECT_NEAR(row.plane.distanceTo(probe), std::fabs(row.distanceOfProbe), 1e-12);
        EXPECT_TRUE(row.plane.isOn(row.plane.pointOnPlane()));
        const AcGePoint3d foot = row.plane.closestPointTo(probe);
        EXPECT_TRUE(row.plane.isOn(foot));
        EXPECT_TRUE(getest::isNear(foot + row.plane.normal() * row.distanceOfProbe, probe));

        double a = 0, b = 0, c = 0, d = 0;
        row.plane.getCoefficients(a, b, c, d);
        EXPECT_NEAR(a * probe.x + b * probe.y + c * probe.z + d, row.distanceOfProbe, 1e-12);

        AcGePoint3d origin;
        AcGeVector3d u;
        AcGeVector3d v;
        row.plane.getCoordSystem(origin, u, v);
        EXPECT_TRUE(u.crossProduct(v).isCodirectionalTo(row.plane.normal()));
    }
}

TEST(GePlaneTest, ANormalAloneGetsTheArbitraryAxes)
{
    struct Row {
        const char* name;
        AcGeVector3d normal;
        AcGeVector3d u;
        AcGeVector3d v;
    };
    const Row rows[] = {
        {"Z", AcGeVector3d(0, 0, 3), AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 0)},
        {"X", AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 0), AcGeVector3d(0, 0, 1)},
        {"-Z", AcGeVector3d(0, 0, -1), AcGeVector3d(-1, 0, 0), AcGeVector3d(0, 1, 0)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AcGePoint3d origin;
        AcGeVector3d u;
        AcGeVector3d v;
        AcGePlane(AcGePoint3d(1, 1, 1), row.normal).getCoordSystem(origin, u, v);
        EXPECT_EQ(origin, AcGePoint3d(1, 1, 1));
        EXPECT_TRUE(getest::isNear(u, row.u, 1e-15));
        EXPECT_TRUE(getest::isNear(v, row.v, 1e-15));
    }
}

TEST(GePlaneTest, ParametersRoundTripOnSkewAxes)
{
    const AcGePlane skew(AcGePoint3d(1, 1, 1), AcGeVector3d(2, 0, 0), AcGeVector3d(1, 1, 0));
    const AcGePoint2d params[] = {AcGePoint2d(0, 0), AcGePoint2d(0.5, -2), AcGePoint2d(-30, 17.25)};
    for (const AcGePoint2d& param : params) {
        SCOPED_TRACE(::testing::Message() << param);
        const AcGePoint3d point = skew.evalPoint(param);
        EXPECT_TRUE(skew.isOn(point));
        EXPECT_TRUE(getest::isNear(skew.paramOf(point), param, 1e-12));
        EXPECT_TRUE(getest::isNear(skew.paramOf(point + skew.normal() * 4.0), param, 1e-12));
        EXPECT_TRUE(getest::isNear(AcGePoint3d(skew, param), point));
    }
    EXPECT_TRUE(getest::isNear(skew.evalPoint(AcGePoint2d(1, 1)), AcGePoint3d(4, 2, 1)));
}

TEST(GePlaneTest, OnThePlaneWithinEqualPoint)
{
    const AcGePlane plane = AcGePlane::kXYPlane;
    EXPECT_TRUE(plane.isOn(AcGePoint3d(3, 4, 1e-10)));
    EXPECT_TRUE(plane.isOn(AcGePoint3d(3, 4, -1e-10)));
    EXPECT_FALSE(plane.isOn(AcGePoint3d(3, 4, 2e-10)));
    EXPECT_TRUE(plane.isOn(AcGePoint3d(3, 4, 0.5), getest::tolerance(0.5)));
}

TEST(GePlaneTest, ParallelCoplanarAndIntersections)
{
    const AcGePlane high(AcGePoint3d(0, 0, 4), AcGeVector3d(0, 0, 1));
    const AcGePlane highDown(AcGePoint3d(7, 7, 4), AcGeVector3d(0, 0, -3));
    const AcGePlane low = AcGePlane::kXYPlane;
    EXPECT_TRUE(high.isParallelTo(low));
    EXPECT_TRUE(high.isParallelTo(highDown));
    EXPECT_TRUE(high.isCoplanarTo(highDown));
    EXPECT_FALSE(high.isCoplanarTo(low));
    EXPECT_FALSE(high.isParallelTo(AcGePlane::kYZPlane));

    AcGePoint3d hit;
    EXPECT_TRUE(high.intersectWith(AcGeLine3d(AcGePoint3d(1, 1, 0), AcGeVector3d(1, 0, 2)), hit));
    EXPECT_TRUE(getest::isNear(hit, AcGePoint3d(3, 1, 4)));
    hit = AcGePoint3d(-1, -1, -1);
    EXPECT_FALSE(high.intersectWith(AcGeLine3d(AcGePoint3d(1, 1, 0), AcGeVector3d(1, 1, 0)), hit));
    EXPECT_EQ(hit, AcGePoint3d(-1, -1, -1));
}

TEST(GePlaneTest, TransformedPlanesCarryTheirPoints)
{
    const AcGePlane plane(AcGePoint3d(1, 2, 3), AcGeVector3d(1, 0, 1), AcGeVector3d(0, 2, 0));
    const AcGeMatrix3d xform = AcGeMatrix3d::translation(AcGeVector3d(-4, 0, 9)) *
                               AcGeMatrix3d::rotation(0.8, AcGeVector3d(1, 1, 1)) * AcGeMatrix3d::scaling(3);
    AcGePlane moved = plane;
    moved.transformBy(xform);
    for (const AcGePoint2d& param : {AcGePoint2d(0, 0), AcGePoint2d(2, -1), AcGePoint2d(-5, 3)}) {
        EXPECT_TRUE(moved.isOn(xform * plane.evalPoint(param), getest::tolerance(1e-9)));
        EXPECT_TRUE(getest::isNear(moved.evalPoint(param), xform * plane.evalPoint(param)));
    }
    EXPECT_TRUE(getest::isNear(moved.normal(), (xform * plane.normal()).normal(), 1e-12));

    AcGePlane mirrored = plane;
    mirrored.transformBy(AcGeMatrix3d::mirroring(AcGePlane::kXYPlane));
    // The normal is that of the mirrored axes, not the mirrored normal (-1, 0, -1).
    EXPECT_TRUE(getest::isNear(mirrored.normal(), AcGeVector3d(1, 0, 1).normal(), 1e-12));

    AcGePlane flattened = plane;
    EXPECT_THROW(flattened.transformBy(AcGeMatrix3d(AcGeScale3d(1, 0, 1))), headless::HostError);
}

TEST(GePlaneTest, DegenerateInputRaises)
{
    const std::pair<const char*, std::function<void()>> rows[] = {
        {"zero normal", [] { AcGePlane(AcGePoint3d(1, 1, 1), AcGeVector3d(0, 0, 1e-13)); }},
        {"collinear points", [] { AcGePlane(AcGePoint3d(1, 1, 1), AcGePoint3d(0, 0, 0), AcGePoint3d(2, 2, 2)); }},
        {"repeated point", [] { AcGePlane(AcGePoint3d(0, 0, 0), AcGePoint3d(0, 0, 0), AcGePoint3d(2, 2, 2)); }},
        {"parallel axes", [] { AcGePlane(AcGePoint3d(), AcGeVector3d(1, 2, 3), AcGeVector3d(-2, -4, -6)); }},
        {"zero coefficients", [] { AcGePlane(0, 0, 0, 5); }},
        {"line of zero direction", [] { AcGeLine3d(AcGePoint3d(1, 1, 1), AcGeVector3d(0, 0, 0)); }},
        {"line through one point", [] { AcGeLine3d(AcGePoint3d(1, 1, 1), AcGePoint3d(1, 1, 1 + 1e-11)); }},
        {"2D line through one point", [] { AcGeLine2d(AcGePoint2d(1, 1), AcGePoint2d(1, 1)); }},
        {"line collapsed by a map",
         [] { AcGeLine3d(AcGePoint3d(), AcGeVector3d(0, 0, 1)).transformBy(AcGeScale3d(1, 1, 0)); }},
    };
    for (const auto& [name, build] : rows) {
        SCOPED_TRACE(name);
        EXPECT_THROW(build(), headless::HostError);
    }
}

TEST(GeLineTest, ClosestPointsParametersAndComparison)
{
    const AcGeLine3d line(AcGePoint3d(1, 0, 0), AcGePoint3d(1, 4, 0));
    EXPECT_EQ(line.evalPoint(1.0), AcGePoint3d(1, 4, 0));
    EXPECT_EQ(line.direction(), AcGeVector3d(0, 1, 0));
    EXPECT_EQ(line.paramOf(AcGePoint3d(7, 2, 3)), 0.5);
    EXPECT_EQ(line.closestPointTo(AcGePoint3d(7, 2, 3)), AcGePoint3d(1, 2, 0));
    EXPECT_NEAR(line.distanceTo(AcGePoint3d(4, -9, 4)), 5.0, 1e-15);
    EXPECT_TRUE(AcGeLine3d::kYAxis.isOn(AcGePoint3d(1e-10, 100, 0)));
    EXPECT_FALSE(AcGeLine3d::kYAxis.isOn(AcGePoint3d(2e-10, 100, 0)));

    const AcGeLine3d sameParametrisation(AcGePoint3d(1, 0, 0), AcGeVector3d(0, 4, 0));
    const AcGeLine3d slower(AcGePoint3d(1, 0, 0), AcGeVector3d(0, 1, 0));
    const AcGeLine3d shifted(AcGePoint3d(1, -3, 0), AcGeVector3d(0, -2, 0));
    EXPECT_TRUE(line.isEqualTo(sameParametrisation));
    EXPECT_FALSE(line.isEqualTo(slower));
    EXPECT_TRUE(line.isColinearTo(shifted));
    EXPECT_FALSE(line.isColinearTo(AcGeLine3d(AcGePoint3d(2, 0, 0), AcGeVector3d(0, 1, 0))));
    EXPECT_TRUE(line.isParallelTo(AcGeLine3d(AcGePoint3d(2, 0, 0), AcGeVector3d(0, 1, 0))));

    AcGeLine3d moved = line;
    moved.transformBy(AcGeMatrix3d::translation(AcGeVector3d(0, 0, 5)));
    EXPECT_EQ(moved.pointOnLine(), AcGePoint3d(1, 0, 5));
    EXPECT_EQ(moved.evalPoint(1.0), AcGePoint3d(1, 4, 5));

    EXPECT_EQ(AcGeLine3d::kYAxis.direction(), AcGeVector3d::kYAxis);
    EXPECT_EQ(AcGeLine3d::kZAxis.pointOnLine(), AcGePoint3d::kOrigin);
    EXPECT_EQ(AcGeLine3d().direction(), AcGeVector3d::kXAxis);
}

TEST(GeLineTest, LinesInThePlane)
{
    const AcGeLine2d line(AcGePoint2d(0, 1), AcGeVector2d(2, 2));
    EXPECT_TRUE(getest::isNear(line.direction(), AcGeVector2d(1, 1).normal(), 1e-15));
    EXPECT_EQ(line.closestPointTo(AcGePoint2d(2, 1)), AcGePoint2d(1, 2));
    EXPECT_EQ(line.paramOf(AcGePoint2d(2, 1)), 0.5);
    EXPECT_NEAR(line.distanceTo(AcGePoint2d(2, 1)), std::sqrt(2.0), 1e-15);
    EXPECT_TRUE(line.isOn(AcGePoint2d(-3, -2)));
    EXPECT_TRUE(line.isColinearTo(AcGeLine2d(AcGePoint2d(5, 6), AcGePoint2d(4, 5))));
    EXPECT_FALSE(line.isEqualTo(AcGeLine2d(AcGePoint2d(5, 6), AcGePoint2d(4, 5))));
    AcGeLine2d turned = line;
    turned.transformBy(AcGeMatrix2d::rotation(3.14159265358979323846 / 2));
    EXPECT_TRUE(getest::isNear(turned.pointOnLine(), AcGePoint2d(-1, 0)));
    EXPECT_TRUE(getest::isNear(turned.direction(), AcGeVector2d(-1, 1).normal(), 1e-15));
    EXPECT_EQ(AcGeLine2d::kYAxis.direction(), AcGeVector2d::kYAxis);
}

}  // namespace
