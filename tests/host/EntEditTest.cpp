// Editing the basic curves: grips and stretch points, transforms (and their inverses),
// extents, object snaps and intersections.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>

#include "EntTestSupport.h"
#include "GeTestSupport.h"
#include "dbents.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

using getest::isNear;

AcGePoint3dArray gripsOf(const AcDbEntity& entity)
{
    AcGePoint3dArray points;
    AcDbIntArray modes;
    AcDbIntArray ids;
    EXPECT_EQ(entity.getGripPoints(points, modes, ids), Acad::eOk);
    return points;
}

AcDbIntArray indices(std::initializer_list<int> values)
{
    AcDbIntArray out;
    for (int v : values)
        out.append(v);
    return out;
}

bool containsPoint(const AcGePoint3dArray& points, const AcGePoint3d& p)
{
    for (int i = 0; i < points.length(); ++i) {
        if (points[i].isEqualTo(p, getest::tolerance(1e-9)))
            return true;
    }
    return false;
}

TEST(EntEditTest, LineGripsMoveTheirEnds)
{
    struct Row {
        const char* name;
        std::initializer_list<int> grips;
        AcGePoint3d start;
        AcGePoint3d end;
    };
    const Row rows[] = {
        {"start", {0}, {1, 1, 0}, {4, 0, 0}},
        {"middle moves both", {1}, {1, 1, 0}, {5, 1, 0}},
        {"end", {2}, {0, 0, 0}, {5, 1, 0}},
        {"none", {}, {0, 0, 0}, {4, 0, 0}},
    };
    for (const Row& row : rows) {
        AcDbLine line(AcGePoint3d(0, 0, 0), AcGePoint3d(4, 0, 0));
        const AcGePoint3dArray grips = gripsOf(line);
        ASSERT_EQ(grips.length(), 3);
        EXPECT_TRUE(isNear(grips[1], AcGePoint3d(2, 0, 0)));
        ASSERT_EQ(line.moveGripPointsAt(indices(row.grips), AcGeVector3d(1, 1, 0)), Acad::eOk) << row.name;
        EXPECT_TRUE(isNear(line.startPoint(), row.start)) << row.name;
        EXPECT_TRUE(isNear(line.endPoint(), row.end)) << row.name;
    }
    AcDbLine line(AcGePoint3d(0, 0, 0), AcGePoint3d(4, 0, 0));
    EXPECT_EQ(line.moveGripPointsAt(indices({0, 3}), AcGeVector3d(1, 0, 0)), Acad::eInvalidIndex);
    EXPECT_TRUE(isNear(line.startPoint(), AcGePoint3d(0, 0, 0)));
    AcGePoint3dArray stretch;
    ASSERT_EQ(line.getStretchPoints(stretch), Acad::eOk);
    ASSERT_EQ(stretch.length(), 2);
    ASSERT_EQ(line.moveStretchPointsAt(indices({1}), AcGeVector3d(0, 2, 0)), Acad::eOk);
    EXPECT_TRUE(isNear(line.endPoint(), AcGePoint3d(4, 2, 0)));
}

TEST(EntEditTest, CircleGripsMoveTheCentreOrSetTheRadius)
{
    AcDbCircle circle(AcGePoint3d(1, 1, 0), AcGeVector3d::kZAxis, 2.0);
    const AcGePoint3dArray grips = gripsOf(circle);
    ASSERT_EQ(grips.length(), 5);
    EXPECT_TRUE(isNear(grips[0], AcGePoint3d(1, 1, 0)));
    EXPECT_TRUE(isNear(grips[1], AcGePoint3d(3, 1, 0)));
    EXPECT_TRUE(isNear(grips[2], AcGePoint3d(1, 3, 0)));
    ASSERT_EQ(circle.moveGripPointsAt(indices({1}), AcGeVector3d(1, 0, 0)), Acad::eOk);
    EXPECT_NEAR(circle.radius(), 3.0, 1e-12);
    ASSERT_EQ(circle.moveGripPointsAt(indices({2}), AcGeVector3d(0, 0, 5)), Acad::eOk);  // out of plane: no change
    EXPECT_NEAR(circle.radius(), 3.0, 1e-12);
    EXPECT_EQ(circle.moveGripPointsAt(indices({3}), AcGeVector3d(3, 0, 0)), Acad::eInvalidInput);
    EXPECT_NEAR(circle.radius(), 3.0, 1e-12);
    ASSERT_EQ(circle.moveGripPointsAt(indices({0}), AcGeVector3d(-1, -1, 0)), Acad::eOk);
    EXPECT_TRUE(isNear(circle.center(), AcGePoint3d::kOrigin));
    AcGePoint3dArray stretch;
    circle.getStretchPoints(stretch);
    ASSERT_EQ(stretch.length(), 1);
    EXPECT_TRUE(isNear(stretch[0], AcGePoint3d::kOrigin));
}

TEST(EntEditTest, ArcGripsReshapeThroughThreePoints)
{
    AcDbArc arc(AcGePoint3d::kOrigin, 2.0, 0.0, kPi);
    const AcGePoint3dArray grips = gripsOf(arc);
    ASSERT_EQ(grips.length(), 4);
    EXPECT_TRUE(isNear(grips[1], AcGePoint3d(0, 2, 0)));
    EXPECT_TRUE(isNear(grips[3], AcGePoint3d::kOrigin));
    // Lifting the middle to (0, 3): the arc through (2, 0), (0, 3), (-2, 0).
    ASSERT_EQ(arc.moveGripPointsAt(indices({1}), AcGeVector3d(0, 1, 0)), Acad::eOk);
    EXPECT_TRUE(isNear(arc.center(), AcGePoint3d(0, 5.0 / 6.0, 0)));
    EXPECT_NEAR(arc.radius(), 13.0 / 6.0, 1e-12);
    AcGePoint3d start;
    AcGePoint3d end;
    arc.getStartPoint(start);
    arc.getEndPoint(end);
    EXPECT_TRUE(isNear(start, AcGePoint3d(2, 0, 0)));
    EXPECT_TRUE(isNear(end, AcGePoint3d(-2, 0, 0)));
    EXPECT_TRUE(isNear(arc.normal(), AcGeVector3d::kZAxis));
    // Pulling the middle through the chord flips the bulge but keeps the normal.
    ASSERT_EQ(arc.moveGripPointsAt(indices({1}), AcGeVector3d(0, -4, 0)), Acad::eOk);
    EXPECT_TRUE(isNear(arc.normal(), AcGeVector3d::kZAxis));
    arc.getStartPoint(start);
    arc.getEndPoint(end);
    EXPECT_TRUE(isNear(start, AcGePoint3d(-2, 0, 0)));
    EXPECT_TRUE(isNear(end, AcGePoint3d(2, 0, 0)));
    // Into a line: refused.
    const AcGePoint3dArray now = gripsOf(arc);
    EXPECT_EQ(arc.moveGripPointsAt(indices({1}), AcGePoint3d(0, 0, 0) - now[1]), Acad::eInvalidInput);
    ASSERT_EQ(arc.moveGripPointsAt(indices({3}), AcGeVector3d(0, 0, 1)), Acad::eOk);
    EXPECT_NEAR(arc.center().z, 1.0, 1e-12);
}

// Builders of one sample of each curve.
const std::pair<const char*, std::function<AcDbCurve*()>> kCurves[] = {
    {"line", [] { return static_cast<AcDbCurve*>(new AcDbLine(AcGePoint3d(1, 2, 3), AcGePoint3d(-4, 0.5, 2))); }},
    {"circle", [] { return static_cast<AcDbCurve*>(new AcDbCircle(AcGePoint3d(1, 2, 3), AcGeVector3d(1, 1, 1), 2.5)); }},
    {"arc", [] { return static_cast<AcDbCurve*>(new AcDbArc(AcGePoint3d(1, 2, 3), AcGeVector3d(0, 1, 2), 1.5, 0.3, 4.0)); }},
};

AcGeMatrix3d mirrorXZ()
{
    return AcGeMatrix3d::mirroring(AcGePlane::kZXPlane);
}

TEST(EntEditTest, TransformThenInverseRestoresTheCurve)
{
    const AcGeMatrix3d transforms[] = {
        AcGeMatrix3d::translation(AcGeVector3d(5, -3, 2)),
        AcGeMatrix3d::rotation(0.7, AcGeVector3d(1, 2, 3), AcGePoint3d(1, 1, 1)),
        AcGeMatrix3d::scaling(2.5, AcGePoint3d(-1, 0, 4)),
        mirrorXZ(),
    };
    for (const auto& [name, make] : kCurves) {
        for (const AcGeMatrix3d& xform : transforms) {
            std::unique_ptr<AcDbCurve> curve(make());
            const AcGePoint3dArray before = gripsOf(*curve);
            AcGePoint3d mid;
            double end = 0.0;
            curve->getEndParam(end);
            double start = 0.0;
            curve->getStartParam(start);
            curve->getPointAtParam((start + end) / 2, mid);
            ASSERT_EQ(curve->transformBy(xform), Acad::eOk) << name;
            // Points of the curve go where the transform sends them.
            AcGePoint3d movedMid = mid;
            movedMid.transformBy(xform);
            AcGePoint3d onCurve;
            curve->getClosestPointTo(movedMid, onCurve);
            EXPECT_TRUE(isNear(onCurve, movedMid, 1e-9)) << name;
            ASSERT_EQ(curve->transformBy(xform.inverse()), Acad::eOk) << name;
            const AcGePoint3dArray after = gripsOf(*curve);
            ASSERT_EQ(after.length(), before.length());
            for (int i = 0; i < before.length(); ++i)
                EXPECT_TRUE(isNear(after[i], before[i], 1e-9)) << name << " grip " << i;
        }
    }
}

TEST(EntEditTest, CirclesAndArcsRefuseNonUniformScaling)
{
    AcGeMatrix3d squash;
    squash.entry[1][1] = 0.5;
    AcDbCircle circle(AcGePoint3d(1, 1, 0), AcGeVector3d::kZAxis, 2.0);
    EXPECT_EQ(circle.transformBy(squash), Acad::eCannotScaleNonUniformly);
    EXPECT_EQ(circle.radius(), 2.0);
    AcDbArc arc(AcGePoint3d(1, 1, 0), 2.0, 0.0, 1.0);
    EXPECT_EQ(arc.transformBy(squash), Acad::eCannotScaleNonUniformly);
    // Squashing along the normal keeps the circle round.
    AcGeMatrix3d flatten;
    flatten.entry[2][2] = 0.5;
    EXPECT_EQ(circle.transformBy(flatten), Acad::eOk);
    AcDbLine line(AcGePoint3d(0, 0, 0), AcGePoint3d(2, 2, 0));
    ASSERT_EQ(line.transformBy(squash), Acad::eOk);
    EXPECT_TRUE(isNear(line.endPoint(), AcGePoint3d(2, 1, 0)));
}

TEST(EntEditTest, AMirroredArcTurnsItsNormalOverAndKeepsItsPoints)
{
    AcDbArc arc(AcGePoint3d(1, 1, 0), 1.0, 0.0, kPi / 2);
    arc.setThickness(2.0);
    ASSERT_EQ(arc.transformBy(AcGeMatrix3d::mirroring(AcGePlane::kYZPlane)), Acad::eOk);
    EXPECT_TRUE(isNear(arc.center(), AcGePoint3d(-1, 1, 0)));
    EXPECT_TRUE(isNear(arc.normal(), AcGeVector3d(0, 0, -1)));
    EXPECT_EQ(arc.thickness(), -2.0);  // still extruded towards +Z
    AcGePoint3d start;
    AcGePoint3d end;
    arc.getStartPoint(start);
    arc.getEndPoint(end);
    EXPECT_TRUE(isNear(start, AcGePoint3d(-2, 1, 0)));
    EXPECT_TRUE(isNear(end, AcGePoint3d(-1, 2, 0)));
    EXPECT_NEAR(arc.totalAngle(), kPi / 2, 1e-12);
}

TEST(EntEditTest, ExtentsHoldTheCurveTightly)
{
    struct Row {
        const char* name;
        std::function<AcDbEntity*()> make;
        AcGePoint3d min;
        AcGePoint3d max;
    };
    const double r2 = std::sqrt(2.0);
    const Row rows[] = {
        {"line", [] { return new AcDbLine(AcGePoint3d(3, -1, 2), AcGePoint3d(-1, 4, 0)); }, {-1, -1, 0}, {3, 4, 2}},
        {"circle", [] { return new AcDbCircle(AcGePoint3d(1, 1, 0), AcGeVector3d::kZAxis, 2.0); }, {-1, -1, 0}, {3, 3, 0}},
        {"tilted circle", [] { return new AcDbCircle(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis, 1.0); },
         {0, -1, -1}, {0, 1, 1}},
        {"quarter arc", [] { return new AcDbArc(AcGePoint3d::kOrigin, 2.0, 0.0, kPi / 2); }, {0, 0, 0}, {2, 2, 0}},
        {"arc over the top", [] { return new AcDbArc(AcGePoint3d::kOrigin, 2.0, kPi / 4, 3 * kPi / 4); },
         {-r2, r2, 0}, {r2, 2, 0}},
        {"arc across zero", [] { return new AcDbArc(AcGePoint3d::kOrigin, 1.0, 1.5 * kPi, 0.5 * kPi); },
         {0, -1, 0}, {1, 1, 0}},
    };
    for (const Row& row : rows) {
        std::unique_ptr<AcDbEntity> entity(row.make());
        AcDbExtents extents;
        ASSERT_EQ(entity->getGeomExtents(extents), Acad::eOk) << row.name;
        EXPECT_TRUE(isNear(extents.minPoint(), row.min)) << row.name << " " << extents;
        EXPECT_TRUE(isNear(extents.maxPoint(), row.max)) << row.name << " " << extents;
        // (An arc's centre grip lies off the arc: the stretch points are the ones on it.)
        AcGePoint3dArray onCurve;
        entity->getStretchPoints(onCurve);
        for (int i = 0; i < onCurve.length(); ++i)
            EXPECT_TRUE(extents.contains(onCurve[i])) << row.name;
    }
}

TEST(EntEditTest, ObjectSnaps)
{
    struct Row {
        const char* name;
        std::function<AcDbEntity*()> make;
        AcDb::OsnapMode mode;
        AcGePoint3d pick;
        AcGePoint3d last;
        std::vector<AcGePoint3d> expected;
    };
    auto line = [] { return new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(4, 0, 0)); };
    auto circle = [] { return new AcDbCircle(AcGePoint3d(0, 0, 0), AcGeVector3d::kZAxis, 1.0); };
    auto arc = [] { return new AcDbArc(AcGePoint3d(0, 0, 0), 1.0, 0.0, kPi / 2); };
    const double h = std::sqrt(0.5);
    const AcGePoint3d o = AcGePoint3d::kOrigin;
    const Row rows[] = {
        {"line end", line, AcDb::kOsModeEnd, o, o, {{0, 0, 0}, {4, 0, 0}}},
        {"line mid", line, AcDb::kOsModeMid, o, o, {{2, 0, 0}}},
        {"line near", line, AcDb::kOsModeNear, {1, 3, 0}, o, {{1, 0, 0}}},
        {"line perp", line, AcDb::kOsModePerp, o, {3, 5, 0}, {{3, 0, 0}}},
        {"line perp beyond", line, AcDb::kOsModePerp, o, {6, 5, 0}, {}},
        {"line centre", line, AcDb::kOsModeCen, o, o, {}},
        {"circle centre", circle, AcDb::kOsModeCen, o, o, {{0, 0, 0}}},
        {"circle quadrants", circle, AcDb::kOsModeQuad, o, o, {{1, 0, 0}, {0, 1, 0}, {-1, 0, 0}, {0, -1, 0}}},
        {"circle end", circle, AcDb::kOsModeEnd, o, o, {}},
        {"circle near", circle, AcDb::kOsModeNear, {3, 3, 0}, o, {{h, h, 0}}},
        {"circle perp", circle, AcDb::kOsModePerp, o, {0, 5, 0}, {{0, 1, 0}, {0, -1, 0}}},
        {"circle tangents", circle, AcDb::kOsModeTan, o, {2, 0, 0}, {{0.5, std::sqrt(0.75), 0}, {0.5, -std::sqrt(0.75), 0}}},
        {"arc ends", arc, AcDb::kOsModeEnd, o, o, {{1, 0, 0}, {0, 1, 0}}},
        {"arc mid", arc, AcDb::kOsModeMid, o, o, {{h, h, 0}}},
        {"arc quadrants", arc, AcDb::kOsModeQuad, o, o, {{1, 0, 0}, {0, 1, 0}}},
        {"arc tangent", arc, AcDb::kOsModeTan, o, {2, 0, 0}, {{0.5, std::sqrt(0.75), 0}}},
    };
    for (const Row& row : rows) {
        std::unique_ptr<AcDbEntity> entity(row.make());
        AcGePoint3dArray snaps;
        AcDbIntArray ids;
        ASSERT_EQ(entity->getOsnapPoints(row.mode, 0, row.pick, row.last, AcGeMatrix3d::kIdentity, snaps, ids),
                  Acad::eOk)
            << row.name;
        ASSERT_EQ(snaps.length(), static_cast<int>(row.expected.size())) << row.name;
        for (const AcGePoint3d& p : row.expected)
            EXPECT_TRUE(containsPoint(snaps, p)) << row.name << " " << p;
        AcGePoint3dArray viaInsert;
        entity->getOsnapPoints(row.mode, 0, row.pick, row.last, AcGeMatrix3d::kIdentity, viaInsert, ids,
                               AcGeMatrix3d::kIdentity);
        EXPECT_EQ(viaInsert.length(), snaps.length()) << row.name;
    }
}

TEST(EntEditTest, IntersectionsBetweenLinesCirclesAndArcs)
{
    struct Row {
        const char* name;
        std::function<AcDbEntity*()> a;
        std::function<AcDbEntity*()> b;
        AcDb::Intersect type;
        std::vector<AcGePoint3d> expected;
    };
    auto lineAB = [](AcGePoint3d p, AcGePoint3d q) { return [p, q] { return static_cast<AcDbEntity*>(new AcDbLine(p, q)); }; };
    auto unitCircle = [] { return static_cast<AcDbEntity*>(new AcDbCircle(AcGePoint3d::kOrigin, AcGeVector3d::kZAxis, 1.0)); };
    auto upperArc = [] { return static_cast<AcDbEntity*>(new AcDbArc(AcGePoint3d::kOrigin, 1.0, 0.0, kPi)); };
    const double s = std::sqrt(0.75);
    const Row rows[] = {
        {"crossing lines", lineAB({0, 0, 0}, {2, 2, 0}), lineAB({0, 2, 0}, {2, 0, 0}), AcDb::kOnBothOperands, {{1, 1, 0}}},
        {"parallel lines", lineAB({0, 0, 0}, {2, 0, 0}), lineAB({0, 1, 0}, {2, 1, 0}), AcDb::kExtendBoth, {}},
        {"skew lines", lineAB({0, 0, 0}, {2, 0, 0}), lineAB({1, -1, 1}, {1, 1, 1}), AcDb::kExtendBoth, {}},
        {"short of each other", lineAB({0, 0, 0}, {1, 0, 0}), lineAB({2, -1, 0}, {2, -0.5, 0}), AcDb::kOnBothOperands, {}},
        {"extend this", lineAB({0, 0, 0}, {1, 0, 0}), lineAB({2, -1, 0}, {2, 1, 0}), AcDb::kExtendThis, {{2, 0, 0}}},
        {"extend the other", lineAB({0, 0, 0}, {1, 0, 0}), lineAB({2, -1, 0}, {2, 1, 0}), AcDb::kExtendArg, {}},
        {"extend both", lineAB({0, 0, 0}, {1, 0, 0}), lineAB({2, -1, 0}, {2, -0.5, 0}), AcDb::kExtendBoth, {{2, 0, 0}}},
        {"line through circle", lineAB({-2, 0.5, 0}, {2, 0.5, 0}), unitCircle, AcDb::kOnBothOperands, {{-s, 0.5, 0}, {s, 0.5, 0}}},
        {"tangent line", lineAB({-2, 1, 0}, {2, 1, 0}), unitCircle, AcDb::kOnBothOperands, {{0, 1, 0}}},
        {"line piercing the plane", lineAB({0, 1, -1}, {0, 1, 1}), unitCircle, AcDb::kOnBothOperands, {{0, 1, 0}}},
        {"line under the arc", lineAB({-2, -0.5, 0}, {2, -0.5, 0}), upperArc, AcDb::kOnBothOperands, {}},
        {"line under the extended arc", lineAB({-2, -0.5, 0}, {2, -0.5, 0}), upperArc, AcDb::kExtendArg,
         {{-s, -0.5, 0}, {s, -0.5, 0}}},
        {"two circles", unitCircle,
         [] { return static_cast<AcDbEntity*>(new AcDbCircle(AcGePoint3d(1, 0, 0), AcGeVector3d::kZAxis, 1.0)); },
         AcDb::kOnBothOperands, {{0.5, s, 0}, {0.5, -s, 0}}},
        {"arc and circle", upperArc,
         [] { return static_cast<AcDbEntity*>(new AcDbCircle(AcGePoint3d(1, 0, 0), AcGeVector3d::kZAxis, 1.0)); },
         AcDb::kOnBothOperands, {{0.5, s, 0}}},
        {"crossed circles", unitCircle,
         [] { return static_cast<AcDbEntity*>(new AcDbCircle(AcGePoint3d(0, 0, 0), AcGeVector3d::kXAxis, 1.0)); },
         AcDb::kOnBothOperands, {{0, 1, 0}, {0, -1, 0}}},
        {"apart", unitCircle,
         [] { return static_cast<AcDbEntity*>(new AcDbCircle(AcGePoint3d(5, 0, 0), AcGeVector3d::kZAxis, 1.0)); },
         AcDb::kExtendBoth, {}},
    };
    for (const Row& row : rows) {
        std::unique_ptr<AcDbEntity> a(row.a());
        std::unique_ptr<AcDbEntity> b(row.b());
        AcGePoint3dArray points;
        ASSERT_EQ(a->intersectWith(b.get(), row.type, points), Acad::eOk) << row.name;
        ASSERT_EQ(points.length(), static_cast<int>(row.expected.size())) << row.name;
        for (const AcGePoint3d& p : row.expected)
            EXPECT_TRUE(containsPoint(points, p)) << row.name << " " << p;
        // The same points the other way round, with the extension modes swapped.
        const AcDb::Intersect swapped = row.type == AcDb::kExtendThis  ? AcDb::kExtendArg
                                        : row.type == AcDb::kExtendArg ? AcDb::kExtendThis
                                                                       : row.type;
        AcGePoint3dArray back;
        ASSERT_EQ(b->intersectWith(a.get(), swapped, back), Acad::eOk) << row.name;
        EXPECT_EQ(back.length(), points.length()) << row.name;
    }
}

TEST(EntEditTest, ApparentIntersectionsLieOnThisEntity)
{
    // Seen from above, a raised line crosses the circle; the points answered are on the line.
    const AcDbLine raised(AcGePoint3d(-2, 0, 3), AcGePoint3d(2, 0, 3));
    const AcDbCircle circle(AcGePoint3d::kOrigin, AcGeVector3d::kZAxis, 1.0);
    AcGePoint3dArray points;
    ASSERT_EQ(raised.intersectWith(&circle, AcDb::kOnBothOperands, AcGePlane::kXYPlane, points), Acad::eOk);
    ASSERT_EQ(points.length(), 2);
    EXPECT_TRUE(containsPoint(points, AcGePoint3d(1, 0, 3)));
    EXPECT_TRUE(containsPoint(points, AcGePoint3d(-1, 0, 3)));
    // A circle seen edge-on is no circle.
    AcGePoint3dArray none;
    EXPECT_EQ(circle.intersectWith(&raised, AcDb::kOnBothOperands, AcGePlane::kYZPlane, none), Acad::eNotApplicable);
    AcDbText text;
    EXPECT_EQ(circle.intersectWith(&text, AcDb::kOnBothOperands, none), Acad::eNotImplementedYet);
    EXPECT_EQ(circle.intersectWith(nullptr, AcDb::kOnBothOperands, none), Acad::eNullEntityPointer);
}

}  // namespace
