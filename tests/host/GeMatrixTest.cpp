// The matrices: scale() and det() of rotations, scales and mirrors, inverse times matrix
// is the identity, composition order, coordinate systems, planes to world and back.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "GeTestSupport.h"
#include "geline2d.h"
#include "geline3d.h"
#include "gemat2d.h"
#include "gemat3d.h"
#include "geplane.h"
#include "gescl3d.h"
#include "headless/HostError.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

AcGeMatrix3d shear()
{
    AcGeMatrix3d mat;
    return mat.setCoordSystem(AcGePoint3d::kOrigin, AcGeVector3d(1, 0, 0), AcGeVector3d(1, 1, 0),
                              AcGeVector3d(0, 0, 1));
}

TEST(GeMatrixPropertiesTest, ScaleDetAndShapeOfTheUsualMaps)
{
    struct Row {
        const char* name;
        AcGeMatrix3d matrix;
        double det;
        double scale;
        bool uniScaledOrtho;
        bool scaledOrtho;
        bool singular;
    };
    const AcGePlane slanted(AcGePoint3d(1, 2, 3), AcGeVector3d(1, -1, 2));
    const AcGeMatrix3d rotation = AcGeMatrix3d::rotation(0.9, AcGeVector3d(1, 2, -2), AcGePoint3d(3, 0, 1));
    const Row rows[] = {
        {"identity", AcGeMatrix3d::kIdentity, 1, 1, true, true, false},
        {"translation", AcGeMatrix3d::translation(AcGeVector3d(5, -2, 7)), 1, 1, true, true, false},
        {"rotation about an offset axis", rotation, 1, 1, true, true, false},
        {"uniform scale about a point", AcGeMatrix3d::scaling(2.5, AcGePoint3d(1, 1, 1)), 15.625, 2.5, true, true,
         false},
        {"non-uniform scale", AcGeScale3d(2, 3, 4), 24, 4, false, true, false},
        {"rotated non-uniform scale", rotation * AcGeMatrix3d(AcGeScale3d(0.5, 1, 3)), 1.5, 3, false, true, false},
        {"mirror in a plane", AcGeMatrix3d::mirroring(slanted), -1, 1, true, true, false},
        {"mirror through a point", AcGeMatrix3d::mirroring(AcGePoint3d(4, -1, 2)), -1, 1, true, true, false},
        {"mirror in a line is a half turn", AcGeMatrix3d::mirroring(AcGeLine3d(AcGePoint3d(1, 1, 0), AcGeVector3d(0, 1, 1))),
         1, 1, true, true, false},
        {"scaled mirror", AcGeMatrix3d::mirroring(slanted) * AcGeMatrix3d::scaling(2), -8, 2, true, true, false},
        {"shear", shear(), 1, std::sqrt(2.0), false, false, false},
        {"flattening", AcGeScale3d(1, 1, 0), 0, 1, false, false, true},
        {"small uniform scale is regular", AcGeMatrix3d::scaling(1e-6), 1e-18, 1e-6, true, true, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_NEAR(row.matrix.det(), row.det, 1e-12 * std::fabs(row.det) + 1e-30) << row.matrix;
        EXPECT_NEAR(row.matrix.scale(), row.scale, 1e-14 * row.scale);
        EXPECT_EQ(row.matrix.isUniScaledOrtho(), row.uniScaledOrtho);
        EXPECT_EQ(row.matrix.isScaledOrtho(), row.scaledOrtho);
        EXPECT_EQ(row.matrix.isSingular(), row.singular);
    }
}

TEST(GeMatrixPropertiesTest, MirrorsMapLikeThePointAndVectorMirrors)
{
    const AcGePlane slanted(AcGePoint3d(1, 2, 3), AcGeVector3d(1, -1, 2));
    const AcGeMatrix3d mirror = AcGeMatrix3d::mirroring(slanted);
    for (const AcGePoint3d& p : {AcGePoint3d(0, 0, 0), AcGePoint3d(1, 2, 3), AcGePoint3d(-4, 7, 0.5)}) {
        AcGePoint3d mirrored = p;
        mirrored.mirror(slanted);
        EXPECT_TRUE(getest::isNear(mirror * p, mirrored));
        EXPECT_TRUE(getest::isNear(mirror * (mirror * p), p));
        EXPECT_NEAR(slanted.signedDistanceTo(mirror * p), -slanted.signedDistanceTo(p), 1e-12);
    }
    AcGeVector3d v(3, 1, -1);
    const AcGeVector3d mapped = mirror * v;
    EXPECT_TRUE(getest::isNear(mapped, v.mirror(slanted.normal())));

    const AcGeMatrix3d halfTurn = AcGeMatrix3d::mirroring(AcGeLine3d(AcGePoint3d(0, 0, 1), AcGeVector3d::kXAxis));
    EXPECT_TRUE(getest::isNear(halfTurn * AcGePoint3d(5, 1, 1), AcGePoint3d(5, -1, 1)));
    EXPECT_TRUE(getest::isNear(halfTurn * AcGePoint3d(5, 0, 3), AcGePoint3d(5, 0, -1)));
    EXPECT_TRUE(getest::isNear(AcGeMatrix3d::mirroring(AcGePoint3d(1, 1, 1)) * AcGePoint3d(0, 2, 4),
                               AcGePoint3d(2, 0, -2)));
}

TEST(GeMatrixInverseTest, InverseTimesMatrixIsTheIdentityForRandomAffineMaps)
{
    std::mt19937 random(20240611);
    std::uniform_real_distribution<double> coordinate(-100.0, 100.0);
    std::uniform_real_distribution<double> factor(0.2, 5.0);
    std::uniform_real_distribution<double> angle(-kPi, kPi);
    const auto randomVector = [&] { return AcGeVector3d(coordinate(random), coordinate(random), coordinate(random)); };
    for (int i = 0; i < 200; ++i) {
        const AcGeMatrix3d mat = AcGeMatrix3d::translation(randomVector()) *
                                 AcGeMatrix3d::rotation(angle(random), randomVector()) *
                                 AcGeMatrix3d(AcGeScale3d(factor(random), -factor(random), factor(random))) *
                                 AcGeMatrix3d::rotation(angle(random), randomVector()) * shear();
        const AcGeMatrix3d inv = mat.inverse();
        ASSERT_TRUE(getest::isNear(inv * mat, AcGeMatrix3d::kIdentity, 1e-9)) << "case " << i;
        ASSERT_TRUE(getest::isNear(mat * inv, AcGeMatrix3d::kIdentity, 1e-9)) << "case " << i;
        const AcGePoint3d p = AcGePoint3d::kOrigin + randomVector();
        ASSERT_TRUE(getest::isNear(inv * (mat * p), p, 1e-9)) << "case " << i;
        AcGeMatrix3d inverted = mat;
        inverted.invert();
        ASSERT_TRUE(getest::isNear(inverted, inv, 1e-12)) << "case " << i;
        EXPECT_EQ(inv.entry[3][0], 0.0);
        EXPECT_EQ(inv.entry[3][3], 1.0);
    }
}

TEST(GeMatrixInverseTest, ProjectiveMatricesInvertToo)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> entry(-1.0, 1.0);
    for (int i = 0; i < 50; ++i) {
        AcGeMatrix3d mat;
        for (auto& row : mat.entry) {
            for (double& value : row)
                value = entry(random);
        }
        if (mat.isSingular(getest::tolerance(1e-3)))
            continue;
        ASSERT_TRUE(getest::isNear(mat * mat.inverse(), AcGeMatrix3d::kIdentity, 1e-9)) << mat;
    }
}

TEST(GeMatrixInverseTest, SingularMatricesRaiseOrAnswerFalse)
{
    const AcGeMatrix3d flat = AcGeScale3d(1, 0, 1);
    EXPECT_THROW(flat.inverse(), headless::HostError);
    AcGeMatrix3d copy = flat;
    EXPECT_THROW(copy.invert(), headless::HostError);
    AcGeMatrix3d untouched = AcGeMatrix3d::translation(AcGeVector3d(1, 2, 3));
    EXPECT_FALSE(flat.inverse(untouched, 1e-12));
    EXPECT_EQ(untouched, AcGeMatrix3d::translation(AcGeVector3d(1, 2, 3)));
    // Two equal axes: no zero column, but no volume either.
    AcGeMatrix3d dependent;
    dependent.setCoordSystem(AcGePoint3d(1, 1, 1), AcGeVector3d(1, 2, 3), AcGeVector3d(0, 1, 0), AcGeVector3d(2, 4, 6));
    EXPECT_TRUE(dependent.isSingular());
    EXPECT_THROW(dependent.inverse(), headless::HostError);
}

TEST(GeMatrixCompositionTest, TheRightHandFactorAppliesFirst)
{
    const AcGeMatrix3d turn = AcGeMatrix3d::rotation(kPi / 2, AcGeVector3d::kZAxis);
    const AcGeMatrix3d move = AcGeMatrix3d::translation(AcGeVector3d(10, 0, 0));
    const AcGePoint3d p(1, 0, 0);
    EXPECT_TRUE(getest::isNear((move * turn) * p, AcGePoint3d(10, 1, 0)));
    EXPECT_TRUE(getest::isNear((turn * move) * p, AcGePoint3d(0, 11, 0)));
    EXPECT_TRUE(getest::isNear((move * turn) * p, move * (turn * p)));

    AcGeMatrix3d post = move;
    post.postMultBy(turn);
    AcGeMatrix3d pre = move;
    pre.preMultBy(turn);
    AcGeMatrix3d product;
    product.setToProduct(move, turn);
    EXPECT_TRUE(getest::isNear(post, move * turn));
    EXPECT_TRUE(getest::isNear(pre, turn * move));
    EXPECT_TRUE(getest::isNear(product, move * turn));
    AcGeMatrix3d accumulated = move;
    accumulated *= turn;
    EXPECT_TRUE(getest::isNear(accumulated, move * turn));
}

TEST(GeMatrixCompositionTest, TransposeOfARotationIsItsInverse)
{
    const AcGeMatrix3d turn = AcGeMatrix3d::rotation(1.1, AcGeVector3d(3, -1, 2));
    AcGeMatrix3d transposed = turn;
    transposed.transposeIt();
    EXPECT_TRUE(getest::isNear(transposed, turn.inverse(), 1e-14));
    EXPECT_EQ(transposed.entry[0][1], turn.entry[1][0]);
    EXPECT_TRUE(getest::isNear(turn.transpose(), transposed, 0.0));
}

TEST(GeMatrixComparisonTest, TranslationsCompareAsPointsAndAxesAsVectors)
{
    struct Row {
        const char* name;
        unsigned int row;
        unsigned int col;
        double change;  // to an entry that is 0 in the identity, so the change is exact
        bool equal;
    };
    const Row rows[] = {
        {"translation off by equalPoint", 0, 3, 1e-10, true},
        {"translation off by twice equalPoint", 1, 3, 2e-10, false},
        {"axis off by equalVector", 2, 1, 1e-12, true},
        {"axis off by twice equalVector", 0, 1, 2e-12, false},
        {"perspective entry off by twice equalVector", 3, 2, 2e-12, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AcGeMatrix3d changed;
        changed(row.row, row.col) = row.change;
        EXPECT_EQ(changed.isEqualTo(AcGeMatrix3d::kIdentity), row.equal) << changed;
        EXPECT_EQ(changed == AcGeMatrix3d::kIdentity, row.equal);
    }
    AcGeMatrix3d mat;
    EXPECT_THROW(mat(4, 0), headless::HostError);
    EXPECT_THROW(static_cast<const AcGeMatrix3d&>(mat)(0, 4), headless::HostError);
}

TEST(GeCoordSystemTest, SetAndGetCoordSystemAreInverse)
{
    const AcGePoint3d origin(1, 2, 3);
    const AcGeVector3d x(0, 1, 0);
    const AcGeVector3d y(-1, 0, 0);
    const AcGeVector3d z(0, 0, 2);
    AcGeMatrix3d mat;
    mat.setCoordSystem(origin, x, y, z);
    EXPECT_EQ(mat * AcGePoint3d::kOrigin, origin);
    EXPECT_EQ(mat * AcGePoint3d(1, 1, 1), origin + x + y + z);
    EXPECT_EQ(mat.translation(), origin.asVector());
    AcGePoint3d o;
    AcGeVector3d gx;
    AcGeVector3d gy;
    AcGeVector3d gz;
    mat.getCoordSystem(o, gx, gy, gz);
    EXPECT_EQ(o, origin);
    EXPECT_EQ(gx, x);
    EXPECT_EQ(gy, y);
    EXPECT_EQ(gz, z);
    mat.setTranslation(AcGeVector3d(9, 9, 9));
    EXPECT_EQ(mat * AcGePoint3d::kOrigin, AcGePoint3d(9, 9, 9));
    EXPECT_EQ(mat * AcGeVector3d(1, 0, 0), x);
}

TEST(GeCoordSystemTest, AlignCoordSysMapsOneSystemOntoTheOther)
{
    const AcGePoint3d fromOrigin(1, 1, 0);
    const AcGeVector3d fromAxes[3] = {AcGeVector3d(1, 1, 0), AcGeVector3d(-1, 1, 0), AcGeVector3d(0, 0, 3)};
    const AcGePoint3d toOrigin(-5, 2, 8);
    const AcGeVector3d toAxes[3] = {AcGeVector3d(0, 0, 1), AcGeVector3d(2, 0, 0), AcGeVector3d(0, 1, 0)};
    const AcGeMatrix3d align = AcGeMatrix3d::alignCoordSys(fromOrigin, fromAxes[0], fromAxes[1], fromAxes[2],
                                                           toOrigin, toAxes[0], toAxes[1], toAxes[2]);
    EXPECT_TRUE(getest::isNear(align * fromOrigin, toOrigin));
    for (int i = 0; i < 3; ++i) {
        SCOPED_TRACE(i);
        EXPECT_TRUE(getest::isNear(align * (fromOrigin + fromAxes[i]), toOrigin + toAxes[i]));
        EXPECT_TRUE(getest::isNear(align * fromAxes[i], toAxes[i]));
    }
    EXPECT_THROW(AcGeMatrix3d::alignCoordSys(fromOrigin, fromAxes[0], fromAxes[0], fromAxes[2], toOrigin, toAxes[0],
                                             toAxes[1], toAxes[2]),
                 headless::HostError);
}

TEST(GePlaneToWorldTest, BareNormalsFollowTheArbitraryAxisRule)
{
    struct Row {
        const char* name;
        AcGeVector3d normal;
        AcGeVector3d xAxis;
        AcGeVector3d yAxis;
    };
    const Row rows[] = {
        {"Z is the world", AcGeVector3d(0, 0, 5), AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 0)},
        {"-Z", AcGeVector3d(0, 0, -1), AcGeVector3d(-1, 0, 0), AcGeVector3d(0, 1, 0)},
        {"X", AcGeVector3d(2, 0, 0), AcGeVector3d(0, 1, 0), AcGeVector3d(0, 0, 1)},
        {"Y", AcGeVector3d(0, 1, 0), AcGeVector3d(-1, 0, 0), AcGeVector3d(0, 0, 1)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const AcGeMatrix3d toWorld = AcGeMatrix3d::planeToWorld(row.normal);
        EXPECT_TRUE(getest::isNear(toWorld * AcGeVector3d::kXAxis, row.xAxis, 1e-15));
        EXPECT_TRUE(getest::isNear(toWorld * AcGeVector3d::kYAxis, row.yAxis, 1e-15));
        EXPECT_TRUE(getest::isNear(toWorld * AcGeVector3d::kZAxis, row.normal.normal(), 1e-15));
    }
    EXPECT_TRUE(getest::isNear(AcGeMatrix3d::planeToWorld(AcGeVector3d::kZAxis), AcGeMatrix3d::kIdentity, 0.0));
    EXPECT_THROW(AcGeMatrix3d::planeToWorld(AcGeVector3d::kIdentity), headless::HostError);
}

TEST(GePlaneToWorldTest, IsRigidAndWorldToPlaneUndoesIt)
{
    const AcGeVector3d normals[] = {AcGeVector3d(1, 2, 3), AcGeVector3d(0.001, -0.002, 1), AcGeVector3d(-1, 0, 0)};
    for (const AcGeVector3d& normal : normals) {
        SCOPED_TRACE(::testing::Message() << normal);
        const AcGeMatrix3d toWorld = AcGeMatrix3d::planeToWorld(normal);
        EXPECT_TRUE(toWorld.isUniScaledOrtho());
        EXPECT_NEAR(toWorld.det(), 1.0, 1e-14);
        EXPECT_NEAR(toWorld.scale(), 1.0, 1e-14);
        EXPECT_TRUE((toWorld * AcGeVector3d(3, -4, 0)).isPerpendicularTo(normal));
        EXPECT_TRUE(getest::isNear(AcGeMatrix3d::worldToPlane(normal) * toWorld, AcGeMatrix3d::kIdentity, 1e-14));
    }

    const AcGePlane plane(AcGePoint3d(4, 5, 6), AcGeVector3d(2, 0, 0), AcGeVector3d(1, 3, 1));
    const AcGeMatrix3d planeToWorld = AcGeMatrix3d::planeToWorld(plane);
    EXPECT_TRUE(getest::isNear(planeToWorld * AcGePoint3d::kOrigin, plane.pointOnPlane()));
    EXPECT_TRUE(getest::isNear(planeToWorld * AcGeVector3d::kXAxis, AcGeVector3d::kXAxis));
    EXPECT_TRUE(getest::isNear(planeToWorld * AcGeVector3d::kZAxis, plane.normal()));
    EXPECT_TRUE(plane.isOn(planeToWorld * AcGePoint3d(7, -2, 0)));
    EXPECT_NEAR(plane.signedDistanceTo(planeToWorld * AcGePoint3d(7, -2, 1.5)), 1.5, 1e-12);
    const AcGePoint3d world(-3, 8, 1);
    EXPECT_TRUE(getest::isNear(planeToWorld * (AcGeMatrix3d::worldToPlane(plane) * world), world));
}

TEST(GeMatrix2dTest, ScaleDetAndShapeOfTheUsualMaps)
{
    struct Row {
        const char* name;
        AcGeMatrix2d matrix;
        double det;
        double scale;
        bool uniScaledOrtho;
    };
    AcGeMatrix2d sheared;
    sheared.setCoordSystem(AcGePoint2d(1, 1), AcGeVector2d(1, 0), AcGeVector2d(1, 1));
    const Row rows[] = {
        {"identity", AcGeMatrix2d::kIdentity, 1, 1, true},
        {"rotation", AcGeMatrix2d::rotation(2.0, AcGePoint2d(3, 4)), 1, 1, true},
        {"scaling", AcGeMatrix2d::scaling(3, AcGePoint2d(1, 0)), 9, 3, true},
        {"mirror in a line", AcGeMatrix2d::mirroring(AcGeLine2d(AcGePoint2d(0, 1), AcGeVector2d(1, 2))), -1, 1, true},
        {"mirror through a point is a half turn", AcGeMatrix2d::mirroring(AcGePoint2d(2, 2)), 1, 1, true},
        {"shear", sheared, 1, std::sqrt(2.0), false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_NEAR(row.matrix.det(), row.det, 1e-14 * std::fabs(row.det));
        EXPECT_NEAR(row.matrix.scale(), row.scale, 1e-14 * row.scale);
        EXPECT_EQ(row.matrix.isUniScaledOrtho(), row.uniScaledOrtho);
        EXPECT_TRUE(getest::isNear(row.matrix * row.matrix.inverse(), AcGeMatrix2d::kIdentity, 1e-12));
    }
}

TEST(GeMatrix2dTest, MapsPointsLikeThePointFunctions)
{
    EXPECT_TRUE(getest::isNear(AcGeMatrix2d::rotation(kPi / 2, AcGePoint2d(1, 1)) * AcGePoint2d(2, 1),
                               AcGePoint2d(1, 2)));
    const AcGeLine2d line(AcGePoint2d(0, 1), AcGeVector2d(1, 1));
    AcGePoint2d mirrored(3, 0);
    mirrored.mirror(line);
    EXPECT_TRUE(getest::isNear(AcGeMatrix2d::mirroring(line) * AcGePoint2d(3, 0), mirrored));
    EXPECT_TRUE(getest::isNear(AcGeMatrix2d::mirroring(AcGePoint2d(1, 1)) * AcGePoint2d(3, 0), AcGePoint2d(-1, 2)));

    const AcGeMatrix2d align = AcGeMatrix2d::alignCoordSys(AcGePoint2d(1, 1), AcGeVector2d(1, 0), AcGeVector2d(0, 1),
                                                           AcGePoint2d(0, 5), AcGeVector2d(0, 2), AcGeVector2d(-2, 0));
    EXPECT_TRUE(getest::isNear(align * AcGePoint2d(2, 1), AcGePoint2d(0, 7)));
    EXPECT_TRUE(getest::isNear(align * AcGePoint2d(1, 2), AcGePoint2d(-2, 5)));
    AcGePoint2d origin;
    AcGeVector2d e0;
    AcGeVector2d e1;
    align.getCoordSystem(origin, e0, e1);
    EXPECT_TRUE(getest::isNear(e0, AcGeVector2d(0, 2)));

    EXPECT_THROW(AcGeMatrix2d::scaling(0.0).inverse(), headless::HostError);
    EXPECT_THROW(AcGeMatrix2d::alignCoordSys(AcGePoint2d(), AcGeVector2d(1, 1), AcGeVector2d(2, 2), AcGePoint2d(),
                                             AcGeVector2d(1, 0), AcGeVector2d(0, 1)),
                 headless::HostError);
    AcGeMatrix2d mat;
    EXPECT_THROW(mat(3, 0), headless::HostError);
}

}  // namespace
