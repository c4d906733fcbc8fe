// The lightweight polyline as an entity: filing (lossless, byte-identical, refusing bad
// data without change), the pline primitive it draws, its list, grips and stretch,
// explosion, extents with arcs and widths, object snaps and intersections with the other
// curves in every extension mode.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "EntTestSupport.h"
#include "GeTestSupport.h"
#include "PolyTestSupport.h"
#include "dbents.h"
#include "headless/RecordingWorldDraw.h"

namespace {

using getest::isNear;
using polytest::kPi;
using polytest::Pieces;
using polytest::V;

constexpr double kTol = 1e-9;

// The unit-high house: a 2 by 2 square whose top is a half circle bulging up to y = 3.
std::unique_ptr<AcDbPolyline> house()
{
    return polytest::polyline({{0, 0}, {2, 0}, {2, 2, 1.0}, {0, 2}}, true);
}

// Bytes from the end of a filed polyline without vertices: the fields after the count
// (two flags, three doubles, a vector) and the count itself.
constexpr size_t kAfterCount = 1 + 1 + 8 + 8 + 8 + 24;

std::unique_ptr<AcDbPolyline> everyField()
{
    auto pline = std::make_unique<AcDbPolyline>();
    pline->addVertexAt(0, AcGePoint2d(1.5, -2.25), 0.5, 0.25, 0.75, 17);
    pline->addVertexAt(1, AcGePoint2d(4, 1), -0.125);
    pline->addVertexAt(2, AcGePoint2d(-3, 7), 0.0, 2.0, 0.0, -4);
    pline->setClosed(true);
    pline->setPlinegen(true);
    pline->setElevation(-6.5);
    pline->setThickness(1.25);
    pline->setNormal(AcGeVector3d(0.6, 0, 0.8));
    return pline;
}

TEST(PolyEntityTest, FilingIsLosslessAndByteIdentical)
{
    auto pline = everyField();
    pline->setColorIndex(3);
    const enttest::Bytes bytes = enttest::fileOut(pline.get());
    AcDbPolyline copy;
    ASSERT_EQ(enttest::fileIn(&copy, bytes), Acad::eOk);
    EXPECT_EQ(enttest::fileOut(&copy), bytes);
    EXPECT_TRUE(copy.isClosed());
    EXPECT_TRUE(copy.hasPlinegen());
    EXPECT_EQ(copy.elevation(), -6.5);
    EXPECT_EQ(copy.thickness(), 1.25);
    EXPECT_TRUE(isNear(copy.normal(), AcGeVector3d(0.6, 0, 0.8)));
    EXPECT_EQ(copy.colorIndex(), 3);
    ASSERT_EQ(copy.numVerts(), 3u);
    double start = 0.0;
    double end = 0.0;
    Adesk::Int32 id = 0;
    double bulge = 0.0;
    copy.getWidthsAt(0, start, end);
    copy.getVertexIdentifierAt(2, id);
    copy.getBulgeAt(1, bulge);
    EXPECT_EQ(start, 0.25);
    EXPECT_EQ(end, 0.75);
    EXPECT_EQ(id, -4);
    EXPECT_EQ(bulge, -0.125);
    AcGePoint2d p;
    copy.getPointAt(0, p);
    EXPECT_EQ(p.x, 1.5);
    EXPECT_EQ(p.y, -2.25);
}

TEST(PolyEntityTest, BadDataIsRefusedWithoutChange)
{
    AcDbPolyline empty;
    const enttest::Bytes bytes = enttest::fileOut(&empty);
    const size_t countAt = bytes.size() - kAfterCount - 4;
    auto pline = everyField();
    const enttest::Bytes before = enttest::fileOut(pline.get());

    struct Row {
        const char* name;
        enttest::Bytes data;
        Acad::ErrorStatus status;
    };
    enttest::Bytes hugeCount = bytes;
    std::fill(hugeCount.begin() + countAt, hugeCount.begin() + countAt + 4, 0xFF);
    enttest::Bytes newer = bytes;
    newer[countAt - 2] = 2;
    enttest::Bytes zeroNormal = bytes;
    std::fill(zeroNormal.end() - 24, zeroNormal.end(), 0);
    enttest::Bytes badWidth = enttest::fileOut(polytest::polyline({{0, 0}, {1, 1}}).get());
    const double negative = -2.0;
    std::memcpy(&badWidth[badWidth.size() - 4 - 16], &negative, sizeof negative);
    enttest::Bytes truncated(bytes.begin(), bytes.end() - 3);
    // The entity's own fields are read before the polyline's: the target shares them with
    // the bytes, so that what must stay unchanged is the polyline's part.
    const Row rows[] = {
        {"a count far beyond the data", hugeCount, Acad::eEndOfFile},
        {"a newer version", newer, Acad::eMakeMeProxy},
        {"a zero normal", zeroNormal, Acad::eDwgObjectImproperlyRead},
        {"a width below zero other than -1", badWidth, Acad::eDwgObjectImproperlyRead},
        {"cut short", truncated, Acad::eEndOfFile},
    };
    for (const Row& row : rows) {
        const Acad::ErrorStatus status = enttest::fileIn(pline.get(), row.data);
        EXPECT_NE(status, Acad::eOk) << row.name;
        if (row.status != Acad::eEndOfFile) {
            EXPECT_EQ(status, row.status) << row.name;
        }
        EXPECT_EQ(enttest::fileOut(pline.get()), before) << row.name << ": nothing is lost";
    }
}

TEST(PolyEntityTest, DrawsThroughThePlinePrimitive)
{
    auto pline = house();
    pline->setElevation(1.0);
    pline->setWidthsAt(1, 0.5, 0.25);
    pline->setColorIndex(4);
    headless::RecordingWorldDraw rec;
    EXPECT_TRUE(rec.drawDrawable(pline.get()));
    ASSERT_EQ(rec.primitives().size(), 1u);
    const headless::RecordedPrimitive& prim = rec.primitives()[0];
    EXPECT_EQ(prim.kind, headless::PrimitiveKind::kPline);
    EXPECT_EQ(prim.traits.color, 4);
    ASSERT_EQ(prim.points.size(), 4u);
    EXPECT_TRUE(isNear(prim.points[2], AcGePoint3d(2, 2, 1)));
    ASSERT_EQ(prim.vectors.size(), 1u);
    EXPECT_TRUE(isNear(prim.vectors[0], AcGeVector3d::kZAxis));
    // elevation, then bulge, start width and end width of each vertex
    ASSERT_EQ(prim.numbers.size(), 1u + 4u * 3u);
    EXPECT_EQ(prim.numbers[0], 1.0);
    EXPECT_EQ(prim.numbers[1 + 2 * 3], 1.0) << "the arc's bulge";
    EXPECT_EQ(prim.numbers[1 + 1 * 3 + 1], 0.5);
    EXPECT_EQ(prim.numbers[1 + 1 * 3 + 2], 0.25);
    // from index, segments, closed
    ASSERT_EQ(prim.integers.size(), 3u);
    EXPECT_EQ(prim.integers[2], 1);

    pline->setThickness(2.0);
    headless::RecordingWorldDraw thick;
    thick.drawDrawable(pline.get());
    EXPECT_EQ(thick.primitives()[0].traits.thickness, 2.0);
    headless::RecordingWorldDraw aborted;
    aborted.abortNow();
    aborted.drawDrawable(pline.get());
    EXPECT_TRUE(aborted.primitives().empty());
}

TEST(PolyEntityTest, ListsVerticesWithTheirArcs)
{
    enttest::WorkingDatabase wdb;
    auto* pline = house().release();
    pline->setDatabaseDefaults();
    const AcDbObjectId id = wdb.addToModelSpace(pline);
    AcDbEntity* opened = nullptr;
    ASSERT_EQ(acdbOpenAcDbEntity(opened, id, AcDb::kForRead), Acad::eOk);
    std::string text = enttest::listOf(opened);
    opened->close();
    const std::string handle = enttest::text(id.handle());
    text.replace(text.find("Handle = " + handle) + 9, handle.size(), "<h>");
    EXPECT_EQ(text,
              "\n"
              "            LWPOLYLINE    Layer: \"0\"\n"
              "                          Space: Model space\n"
              "                          Handle = <h>\n"
              "                          Closed\n"
              "        Constant width    0.0000\n"
              "                  area    5.5708\n"
              "             perimeter    9.1416\n"
              "              at point    X=0.0000  Y=0.0000  Z=0.0000\n"
              "              at point    X=2.0000  Y=0.0000  Z=0.0000\n"
              "              at point    X=2.0000  Y=2.0000  Z=0.0000\n"
              "                 bulge    1.0000\n"
              "                center    X=1.0000  Y=2.0000  Z=0.0000\n"
              "                radius    1.0000\n"
              "           start angle    0.0000\n"
              "             end angle    180.0000\n"
              "              at point    X=0.0000  Y=2.0000  Z=0.0000");

    auto tapered = polytest::polyline({{0, 0}, {3, 0}});
    tapered->setWidthsAt(0, 1.0, 0.5);
    const std::string widths = enttest::listOf(tapered.get());
    EXPECT_NE(widths.find("        starting width    1.0000\n          ending width    0.5000"), std::string::npos)
        << widths;
    EXPECT_NE(widths.find("                length    3.0000"), std::string::npos) << widths;
}

TEST(PolyEntityTest, GripsAndStretchPointsAreTheVertices)
{
    auto pline = house();
    pline->setElevation(2.0);
    AcGePoint3dArray grips;
    AcDbIntArray modes;
    AcDbIntArray ids;
    ASSERT_EQ(pline->getGripPoints(grips, modes, ids), Acad::eOk);
    ASSERT_EQ(grips.length(), 4);
    EXPECT_TRUE(isNear(grips[3], AcGePoint3d(0, 2, 2)));
    AcDbIntArray which;
    which.append(2);
    which.append(2);
    ASSERT_EQ(pline->moveGripPointsAt(which, AcGeVector3d(1, 0.5, 9)), Acad::eOk);
    AcGePoint2d moved;
    pline->getPointAt(2, moved);
    EXPECT_TRUE(isNear(moved, AcGePoint2d(3, 2.5))) << "moved once, in the plane";
    AcGePoint3dArray stretch;
    ASSERT_EQ(pline->getStretchPoints(stretch), Acad::eOk);
    EXPECT_EQ(stretch.length(), 4);
    AcDbIntArray corners;
    corners.append(0);
    corners.append(1);
    ASSERT_EQ(pline->moveStretchPointsAt(corners, AcGeVector3d(0, -1, 0)), Acad::eOk);
    pline->getPointAt(1, moved);
    EXPECT_TRUE(isNear(moved, AcGePoint2d(2, -1)));
    AcDbIntArray beyond;
    beyond.append(4);
    EXPECT_EQ(pline->moveGripPointsAt(beyond, AcGeVector3d(1, 0, 0)), Acad::eInvalidIndex);
}

TEST(PolyEntityTest, ExplodesIntoLinesAndArcs)
{
    auto pline = house();
    pline->setColorIndex(5);
    pline->setThickness(0.5);
    Pieces parts;
    ASSERT_EQ(pline->explode(parts.array), Acad::eOk);
    ASSERT_EQ(parts.size(), 4);
    int lines = 0;
    for (int i = 0; i < parts.size(); ++i) {
        EXPECT_EQ(parts.at<AcDbEntity>(i)->colorIndex(), 5);
        if (parts.at<AcDbLine>(i) != nullptr)
            ++lines;
    }
    EXPECT_EQ(lines, 3);
    const AcDbArc* arc = parts.at<AcDbArc>(2);
    ASSERT_NE(arc, nullptr);
    EXPECT_TRUE(isNear(arc->center(), AcGePoint3d(1, 2, 0)));
    EXPECT_NEAR(arc->radius(), 1.0, kTol);
    EXPECT_NEAR(arc->startAngle(), 0.0, kTol);
    EXPECT_NEAR(arc->endAngle(), kPi, kTol);
    EXPECT_EQ(arc->thickness(), 0.5);
    // A clockwise arc explodes into the same counter-clockwise arc, from its end.
    pline->reverseCurve();
    Pieces again;
    pline->explode(again.array);
    const AcDbArc* same = again.at<AcDbArc>(0);
    ASSERT_NE(same, nullptr);
    EXPECT_NEAR(same->startAngle(), 0.0, kTol);
    EXPECT_NEAR(same->endAngle(), kPi, kTol);
}

TEST(PolyEntityTest, ExtentsHoldArcsWidthsAndThickness)
{
    struct Row {
        const char* name;
        double width;
        double thickness;
        AcGePoint3d min;
        AcGePoint3d max;
    };
    const Row rows[] = {
        {"plain", 0.0, 0.0, {0, 0, 0}, {2, 3, 0}},
        {"wide", 0.5, 0.0, {-0.25, -0.25, 0}, {2.25, 3.25, 0}},
        {"thick", 0.0, 2.0, {0, 0, 0}, {2, 3, 2}},
    };
    for (const Row& row : rows) {
        auto pline = house();
        pline->setConstantWidth(row.width);
        pline->setThickness(row.thickness);
        AcDbExtents extents;
        ASSERT_EQ(pline->getGeomExtents(extents), Acad::eOk);
        EXPECT_TRUE(isNear(extents.minPoint(), row.min)) << row.name;
        EXPECT_TRUE(isNear(extents.maxPoint(), row.max)) << row.name;
    }
    AcDbExtents none;
    EXPECT_EQ(AcDbPolyline().getGeomExtents(none), Acad::eInvalidExtents);
}

TEST(PolyEntityTest, ObjectSnaps)
{
    auto pline = house();
    struct Row {
        AcDb::OsnapMode mode;
        std::vector<AcGePoint3d> expected;
    };
    const double spread = std::acos(1.0 / 8.0);
    const Row rows[] = {
        {AcDb::kOsModeEnd, {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}}},
        {AcDb::kOsModeMid, {{1, 0, 0}, {2, 1, 0}, {1, 3, 0}, {0, 1, 0}}},
        {AcDb::kOsModeCen, {{1, 2, 0}}},
        {AcDb::kOsModeQuad, {{2, 2, 0}, {0, 2, 0}, {1, 3, 0}}},
        {AcDb::kOsModeNear, {{2, 1, 0}}},
        {AcDb::kOsModePerp, {{1, 0, 0}, {1, 3, 0}}},
        {AcDb::kOsModeTan,
         {{1 + std::cos(kPi / 2 + spread), 2 + std::sin(kPi / 2 + spread), 0},
          {1 + std::cos(kPi / 2 - spread), 2 + std::sin(kPi / 2 - spread), 0}}},
        {AcDb::kOsModeNode, {}},
        {AcDb::kOsModeIns, {}},
    };
    for (const Row& row : rows) {
        AcGePoint3dArray snaps;
        AcDbIntArray ids;
        ASSERT_EQ(pline->getOsnapPoints(row.mode, 0, AcGePoint3d(3, 1, 0), AcGePoint3d(1, 10, 0), AcGeMatrix3d(), snaps,
                                        ids),
                  Acad::eOk);
        ASSERT_EQ(snaps.length(), static_cast<int>(row.expected.size())) << row.mode;
        for (const AcGePoint3d& want : row.expected) {
            const bool found = std::any_of(snaps.begin(), snaps.end(), [&](const AcGePoint3d& p) { return isNear(p, want); });
            EXPECT_TRUE(found) << row.mode << " " << want;
        }
    }
}

TEST(PolyEntityTest, IntersectionsInEveryExtensionMode)
{
    auto square = polytest::polyline({{0, 0}, {4, 0}, {4, 4}, {0, 4}}, true);
    auto ell = polytest::polyline({{0, 0}, {4, 0}, {4, 4}});
    struct Row {
        const char* name;
        const AcDbPolyline* polyline;
        std::unique_ptr<AcDbEntity> other;
        AcDb::Intersect mode;
        std::vector<AcGePoint3d> expected;
    };
    Row rows[] = {
        {"line across", square.get(), std::make_unique<AcDbLine>(AcGePoint3d(-1, 2, 0), AcGePoint3d(5, 2, 0)),
         AcDb::kOnBothOperands, {{0, 2, 0}, {4, 2, 0}}},
        {"short line inside", square.get(), std::make_unique<AcDbLine>(AcGePoint3d(1, 2, 0), AcGePoint3d(3, 2, 0)),
         AcDb::kOnBothOperands, {}},
        {"short line extended", square.get(), std::make_unique<AcDbLine>(AcGePoint3d(1, 2, 0), AcGePoint3d(3, 2, 0)),
         AcDb::kExtendArg, {{0, 2, 0}, {4, 2, 0}}},
        {"circle at a corner", square.get(), std::make_unique<AcDbCircle>(AcGePoint3d(4, 4, 0), AcGeVector3d::kZAxis, 1.0),
         AcDb::kOnBothOperands, {{3, 4, 0}, {4, 3, 0}}},
        {"arc", square.get(), std::make_unique<AcDbArc>(AcGePoint3d(2, 4, 0), 1.0, kPi, 2 * kPi),
         AcDb::kOnBothOperands, {{1, 4, 0}, {3, 4, 0}}},
        {"polyline", square.get(), polytest::polyline({{2, -1}, {2, 5}}), AcDb::kOnBothOperands,
         {{2, 0, 0}, {2, 4, 0}}},
        {"before an open start", ell.get(), std::make_unique<AcDbLine>(AcGePoint3d(-2, -1, 0), AcGePoint3d(-2, 5, 0)),
         AcDb::kOnBothOperands, {}},
        {"before an open start, extended", ell.get(),
         std::make_unique<AcDbLine>(AcGePoint3d(-2, -1, 0), AcGePoint3d(-2, 5, 0)), AcDb::kExtendThis, {{-2, 0, 0}}},
        {"past the end, both extended", ell.get(),
         std::make_unique<AcDbLine>(AcGePoint3d(6, 6, 0), AcGePoint3d(8, 6, 0)), AcDb::kExtendBoth, {{4, 6, 0}}},
        // Extending the first segment runs it back from its start, never on past its end.
        {"beyond the first segment's end", ell.get(),
         std::make_unique<AcDbLine>(AcGePoint3d(6, -1, 0), AcGePoint3d(6, 1, 0)), AcDb::kExtendThis, {}},
        // A polyline argument extends its first segment back and its last one on, not its middle.
        {"polyline argument", square.get(), polytest::polyline({{2, 5}, {2, 6}, {3, 6}, {3, 5}}),
         AcDb::kOnBothOperands, {}},
        {"extended polyline argument", square.get(), polytest::polyline({{2, 5}, {2, 6}, {3, 6}, {3, 5}}),
         AcDb::kExtendArg, {{2, 4, 0}, {2, 0, 0}, {3, 4, 0}, {3, 0, 0}}},
    };
    for (Row& row : rows) {
        AcGePoint3dArray points;
        ASSERT_EQ(row.polyline->intersectWith(row.other.get(), row.mode, points), Acad::eOk) << row.name;
        EXPECT_EQ(points.length(), static_cast<int>(row.expected.size())) << row.name;
        for (const AcGePoint3d& want : row.expected) {
            const bool found = std::any_of(points.begin(), points.end(), [&](const AcGePoint3d& p) { return isNear(p, want); });
            EXPECT_TRUE(found) << row.name << " " << want;
        }
    }
    // The basic curves find the polyline too.
    AcDbLine across(AcGePoint3d(-1, 2, 0), AcGePoint3d(5, 2, 0));
    AcGePoint3dArray points;
    ASSERT_EQ(across.intersectWith(square.get(), AcDb::kOnBothOperands, points), Acad::eOk);
    EXPECT_EQ(points.length(), 2);
    // Seen along Z from above, a polyline raised to z = 5 still meets the line.
    square->setElevation(5.0);
    points.removeAll();
    ASSERT_EQ(square->intersectWith(&across, AcDb::kOnBothOperands, AcGePlane::kXYPlane, points), Acad::eOk);
    ASSERT_EQ(points.length(), 2);
    EXPECT_EQ(points[0].z, 5.0) << "the points lie on this polyline";
}

}  // namespace
