// The lightweight polyline's vertex list: insertion before an index, removal, index
// errors, bulges, widths (set, not set, constant), identifiers, segment kinds and the
// segments as geometry-library curves, reset, and points in world coordinates.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "GeTestSupport.h"
#include "PolyTestSupport.h"
#include "gearc2d.h"
#include "gearc3d.h"
#include "gelnsg2d.h"
#include "gelnsg3d.h"

namespace {

using getest::isNear;
using polytest::kPi;
using polytest::V;

constexpr double kTol = 1e-9;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(PolyVertexTest, VerticesGoInBeforeTheirIndex)
{
    AcDbPolyline pline;
    EXPECT_EQ(pline.addVertexAt(0, AcGePoint2d(2, 0)), Acad::eOk);
    EXPECT_EQ(pline.addVertexAt(0, AcGePoint2d(0, 0)), Acad::eOk);
    EXPECT_EQ(pline.addVertexAt(1, AcGePoint2d(1, 0)), Acad::eOk);
    EXPECT_EQ(pline.addVertexAt(3, AcGePoint2d(3, 0)), Acad::eOk) << "numVerts appends";
    EXPECT_EQ(pline.addVertexAt(5, AcGePoint2d(9, 9)), Acad::eInvalidIndex);
    ASSERT_EQ(pline.numVerts(), 4u);
    for (unsigned i = 0; i < 4; ++i) {
        AcGePoint2d p;
        ASSERT_EQ(pline.getPointAt(i, p), Acad::eOk);
        EXPECT_EQ(p.x, i);
    }
    EXPECT_EQ(pline.removeVertexAt(1), Acad::eOk);
    EXPECT_EQ(pline.numVerts(), 3u);
    EXPECT_EQ(pline.removeVertexAt(3), Acad::eInvalidIndex);

    struct Call {
        const char* name;
        Acad::ErrorStatus status;
    };
    AcGePoint2d p2;
    AcGePoint3d p3;
    double b = 0.0;
    double w1 = 0.0;
    double w2 = 0.0;
    Adesk::Int32 id = 0;
    const Call calls[] = {
        {"getPointAt 2d", pline.getPointAt(3, p2)},
        {"getPointAt 3d", pline.getPointAt(7, p3)},
        {"setPointAt", pline.setPointAt(3, AcGePoint2d())},
        {"getBulgeAt", pline.getBulgeAt(3, b)},
        {"setBulgeAt", pline.setBulgeAt(3, 0.5)},
        {"getWidthsAt", pline.getWidthsAt(3, w1, w2)},
        {"setWidthsAt", pline.setWidthsAt(3, 1, 1)},
        {"getVertexIdentifierAt", pline.getVertexIdentifierAt(3, id)},
        {"setVertexIdentifierAt", pline.setVertexIdentifierAt(3, 7)},
    };
    for (const Call& call : calls)
        EXPECT_EQ(call.status, Acad::eInvalidIndex) << call.name;
    EXPECT_EQ(pline.addVertexAt(0, AcGePoint2d(kNaN, 0)), Acad::eInvalidInput);
    EXPECT_EQ(pline.setBulgeAt(0, kNaN), Acad::eInvalidInput);
    EXPECT_EQ(pline.setWidthsAt(0, kNaN, 1), Acad::eInvalidInput);
    EXPECT_EQ(pline.numVerts(), 3u) << "refused input changes nothing";
}

TEST(PolyVertexTest, WidthsNotSetReadAsTheConstantWidth)
{
    auto pline = polytest::polyline({{0, 0}, {10, 0}, {10, 10}});
    double start = -5.0;
    double end = -5.0;
    double constant = -5.0;
    ASSERT_EQ(pline->getWidthsAt(1, start, end), Acad::eOk);
    EXPECT_EQ(start, 0.0);
    EXPECT_FALSE(pline->hasWidth());
    ASSERT_EQ(pline->getConstantWidth(constant), Acad::eOk);
    EXPECT_EQ(constant, 0.0);

    ASSERT_EQ(pline->setConstantWidth(0.5), Acad::eOk);
    pline->getWidthsAt(2, start, end);
    EXPECT_EQ(start, 0.5);
    EXPECT_EQ(end, 0.5);
    EXPECT_TRUE(pline->hasWidth());

    ASSERT_EQ(pline->setWidthsAt(1, 0.5, 2.0), Acad::eOk);
    constant = -7.0;
    EXPECT_EQ(pline->getConstantWidth(constant), Acad::eNotApplicable);
    EXPECT_EQ(constant, -7.0) << "left untouched";
    ASSERT_EQ(pline->setWidthsAt(1, -1, -1), Acad::eOk) << "-1 clears the widths back to not set";
    EXPECT_EQ(pline->getConstantWidth(constant), Acad::eOk);
    EXPECT_EQ(pline->setConstantWidth(-1), Acad::eInvalidInput);

    auto wide = std::make_unique<AcDbPolyline>();
    wide->addVertexAt(0, AcGePoint2d(0, 0), 0.0, 1.0, 3.0, 42);
    Adesk::Int32 id = 0;
    wide->getVertexIdentifierAt(0, id);
    EXPECT_EQ(id, 42);
    EXPECT_TRUE(wide->hasVertexIdentifiers());
    wide->getWidthsAt(0, start, end);
    EXPECT_EQ(start, 1.0);
    EXPECT_EQ(end, 3.0);
}

TEST(PolyVertexTest, SegmentKindsAndGeometry)
{
    auto pline = polytest::polyline({{0, 0, 0}, {4, 0, 1}, {4, 4}, {4, 4}, {0, 4}});
    struct Row {
        unsigned index;
        AcDbPolyline::SegType type;
    };
    const Row open[] = {{0, AcDbPolyline::kLine},
                        {1, AcDbPolyline::kArc},
                        {2, AcDbPolyline::kCoincident},
                        {3, AcDbPolyline::kLine},
                        {4, AcDbPolyline::kPoint},
                        {5, AcDbPolyline::kEmpty}};
    for (const Row& row : open)
        EXPECT_EQ(pline->segType(row.index), row.type) << row.index;
    pline->setClosed(true);
    EXPECT_EQ(pline->segType(4), AcDbPolyline::kLine) << "the closing segment";
    EXPECT_EQ(AcDbPolyline().segType(0), AcDbPolyline::kEmpty);
    EXPECT_EQ(polytest::polyline({{1, 1}})->segType(0), AcDbPolyline::kPoint);

    AcGeLineSeg2d line;
    ASSERT_EQ(pline->getLineSegAt(0, line), Acad::eOk);
    EXPECT_TRUE(isNear(line.endPoint(), AcGePoint2d(4, 0)));
    EXPECT_EQ(pline->getLineSegAt(1, line), Acad::eNotApplicable);
    EXPECT_EQ(pline->getLineSegAt(2, line), Acad::eDegenerateGeometry);
    EXPECT_EQ(pline->getLineSegAt(9, line), Acad::eInvalidIndex);

    AcGeCircArc2d arc;
    ASSERT_EQ(pline->getArcSegAt(1, arc), Acad::eOk);
    EXPECT_TRUE(isNear(arc.center(), AcGePoint2d(4, 2)));
    EXPECT_NEAR(arc.radius(), 2.0, kTol);
    EXPECT_TRUE(isNear(arc.startPoint(), AcGePoint2d(4, 0)));
    EXPECT_TRUE(isNear(arc.endPoint(), AcGePoint2d(4, 4)));
    EXPECT_EQ(pline->getArcSegAt(0, arc), Acad::eNotApplicable);

    pline->setElevation(3.0);
    AcGeCircArc3d arc3;
    ASSERT_EQ(pline->getArcSegAt(1, arc3), Acad::eOk);
    EXPECT_TRUE(isNear(arc3.center(), AcGePoint3d(4, 2, 3)));
    EXPECT_TRUE(isNear(arc3.evalPoint((arc3.startAng() + arc3.endAng()) / 2), AcGePoint3d(6, 2, 3)));
    AcGeLineSeg3d line3;
    ASSERT_EQ(pline->getLineSegAt(4, line3), Acad::eOk);
    EXPECT_TRUE(isNear(line3.startPoint(), AcGePoint3d(0, 4, 3)));

    double param = -1.0;
    EXPECT_TRUE(pline->onSegAt(1, AcGePoint2d(6, 2), param));
    EXPECT_NEAR(param, 1.5, kTol);
    EXPECT_FALSE(pline->onSegAt(0, AcGePoint2d(6, 2), param));
    EXPECT_TRUE(pline->hasBulges());
    EXPECT_FALSE(pline->isOnlyLines());
    EXPECT_TRUE(polytest::polyline({{0, 0}, {1, 1}})->isOnlyLines());
}

// A clockwise arc segment seen from the normal is a counter-clockwise arc about the
// opposite normal.
TEST(PolyVertexTest, ClockwiseArcsInSpaceTurnAboutTheOppositeNormal)
{
    auto pline = polytest::polyline({{0, 0, -1}, {2, 0}});
    AcGeCircArc3d arc;
    ASSERT_EQ(pline->getArcSegAt(0, arc), Acad::eOk);
    EXPECT_TRUE(isNear(arc.normal(), AcGeVector3d(0, 0, -1)));
    EXPECT_TRUE(isNear(arc.startPoint(), AcGePoint3d(0, 0, 0)));
    EXPECT_TRUE(isNear(arc.evalPoint((arc.startAng() + arc.endAng()) / 2), AcGePoint3d(1, 1, 0)));
}

TEST(PolyVertexTest, PointsInSpaceFollowTheNormalAndElevation)
{
    auto pline = polytest::polyline({{1, 2}, {3, 4}});
    pline->setElevation(5.0);
    EXPECT_EQ(pline->setNormal(AcGeVector3d(0, 0, -2)), Acad::eOk);
    EXPECT_TRUE(isNear(pline->normal(), AcGeVector3d(0, 0, -1)));
    AcGePoint3d p;
    ASSERT_EQ(pline->getPointAt(0, p), Acad::eOk);
    // The arbitrary axis of -Z is -X: (1, 2) lies at (-1, 2), 5 along -Z.
    EXPECT_TRUE(isNear(p, AcGePoint3d(-1, 2, -5)));
    EXPECT_EQ(pline->setNormal(AcGeVector3d()), Acad::eInvalidInput);
    ASSERT_EQ(pline->setNormal(AcGeVector3d(1, 0, 0)), Acad::eOk);
    pline->getPointAt(1, p);
    EXPECT_TRUE(isNear(p, AcGePoint3d(5, 3, 4)));
    AcGePlane plane;
    AcDb::Planarity planarity = AcDb::kNonPlanar;
    ASSERT_EQ(pline->getPlane(plane, planarity), Acad::eOk);
    EXPECT_EQ(planarity, AcDb::kPlanar);
    EXPECT_TRUE(plane.isOn(p));
}

TEST(PolyVertexTest, ResetKeepsOrDropsVertices)
{
    auto pline = polytest::polyline({{0, 0}, {1, 0}, {2, 0}, {3, 0}});
    ASSERT_EQ(pline->reset(Adesk::kTrue, 2), Acad::eOk);
    EXPECT_EQ(pline->numVerts(), 2u);
    ASSERT_EQ(pline->reset(Adesk::kTrue, 10), Acad::eOk);
    EXPECT_EQ(pline->numVerts(), 2u) << "kept vertices are not padded";
    ASSERT_EQ(pline->reset(Adesk::kFalse, 4000000000u), Acad::eOk) << "a huge hint claims no memory";
    EXPECT_EQ(pline->numVerts(), 0u);
    pline->minimizeMemory();
    pline->maximizeMemory();
    EXPECT_EQ(AcDbPolyline(4000000000u).numVerts(), 0u);
}

}  // namespace
