// The hatch: its loops in both forms, the areas the styles fill, the pattern lines clipped
// to them (ANSI31 over a square, a hole honoured or ignored), the solid fill's polygons,
// filing, transformation, extents and the list.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "EntTestSupport.h"
#include "GeTestSupport.h"
#include "dbhatch.h"
#include "gearc2d.h"
#include "gelnsg2d.h"
#include "headless/RecordingWorldDraw.h"

namespace {

using getest::isNear;

constexpr double kPi = 3.14159265358979323846;
constexpr double kTol = 1e-9;

AcGePoint2dArray square(double x0, double y0, double size, bool repeatFirst = false)
{
    AcGePoint2dArray points;
    points.append(AcGePoint2d(x0, y0));
    points.append(AcGePoint2d(x0 + size, y0));
    points.append(AcGePoint2d(x0 + size, y0 + size));
    points.append(AcGePoint2d(x0, y0 + size));
    if (repeatFirst)
        points.append(AcGePoint2d(x0, y0));
    return points;
}

// A 10 by 10 square with a 4 by 4 hole in its middle and a 2 by 2 island in the hole.
std::unique_ptr<AcDbHatch> nested(int depth, const ACHAR* pattern = L"LINE")
{
    auto hatch = std::make_unique<AcDbHatch>();
    hatch->setPattern(AcDbHatch::kPreDefined, pattern);
    hatch->appendLoop(AcDbHatch::kExternal, square(0, 0, 10), AcGeDoubleArray());
    if (depth > 1)
        hatch->appendLoop(AcDbHatch::kDefault, square(3, 3, 4), AcGeDoubleArray());
    if (depth > 2)
        hatch->appendLoop(AcDbHatch::kDefault, square(4, 4, 2), AcGeDoubleArray());
    return hatch;
}

double area(const AcDbHatch& hatch)
{
    double value = -1.0;
    EXPECT_EQ(hatch.getArea(value), Acad::eOk);
    return value;
}

TEST(HatchTest, LoopsFromVerticesAndBulges)
{
    AcDbHatch hatch;
    EXPECT_EQ(hatch.appendLoop(AcDbHatch::kExternal, square(0, 0, 2, true), AcGeDoubleArray()), Acad::eOk);
    AcGeDoubleArray bulges;
    bulges.append(1.0);
    bulges.append(1.0);
    AcGePoint2dArray circle;
    circle.append(AcGePoint2d(5, 0));
    circle.append(AcGePoint2d(7, 0));
    EXPECT_EQ(hatch.appendLoop(AcDbHatch::kOutermost, circle, bulges), Acad::eOk);
    ASSERT_EQ(hatch.numLoops(), 2);
    EXPECT_EQ(hatch.loopTypeAt(0), AcDbHatch::kExternal | AcDbHatch::kPolyline);
    EXPECT_EQ(hatch.loopTypeAt(1), AcDbHatch::kOutermost | AcDbHatch::kPolyline);
    EXPECT_EQ(hatch.loopTypeAt(2), -1);

    Adesk::Int32 type = 0;
    AcGePoint2dArray vertices;
    AcGeDoubleArray read;
    ASSERT_EQ(hatch.getLoopAt(0, type, vertices, read), Acad::eOk);
    EXPECT_EQ(vertices.length(), 4) << "the repeated first vertex is dropped";
    EXPECT_EQ(read.length(), 4);
    EXPECT_NEAR(area(hatch), 4.0 + kPi, kTol) << "a square and a circle side by side";

    AcGeVoidPointerArray edges;
    AcGeIntArray types;
    ASSERT_EQ(hatch.getLoopAt(1, type, edges, types), Acad::eOk);
    ASSERT_EQ(edges.length(), 2);
    EXPECT_EQ(types[0], AcDbHatch::kCirArc);
    EXPECT_NEAR(static_cast<AcGeCircArc2d*>(edges[0])->radius(), 1.0, kTol);
    AcDbHatch copy;
    ASSERT_EQ(copy.appendLoop(AcDbHatch::kExternal, edges, types), Acad::eOk);
    EXPECT_NEAR(area(copy), kPi, kTol);
    for (int i = 0; i < edges.length(); ++i)
        delete static_cast<AcGeCurve2d*>(edges[i]);

    // A whole circle given as one edge.
    const AcGeCircArc2d whole(AcGePoint2d(0, 0), 3.0);
    AcGeVoidPointerArray one;
    one.append(const_cast<AcGeCircArc2d*>(&whole));
    AcGeIntArray arcType;
    arcType.append(AcDbHatch::kCirArc);
    AcDbHatch disc;
    ASSERT_EQ(disc.appendLoop(AcDbHatch::kExternal, one, arcType), Acad::eOk);
    EXPECT_NEAR(area(disc), 9 * kPi, kTol);
    // Edges that do not meet, unsupported kinds and bad counts are refused.
    const AcGeLineSeg2d a(AcGePoint2d(0, 0), AcGePoint2d(1, 0));
    const AcGeLineSeg2d b(AcGePoint2d(2, 0), AcGePoint2d(0, 0));
    AcGeVoidPointerArray apart;
    apart.append(const_cast<AcGeLineSeg2d*>(&a));
    apart.append(const_cast<AcGeLineSeg2d*>(&b));
    AcGeIntArray lines;
    lines.append(AcDbHatch::kLine);
    lines.append(AcDbHatch::kLine);
    EXPECT_EQ(disc.appendLoop(AcDbHatch::kExternal, apart, lines), Acad::eInvalidInput);
    lines[1] = AcDbHatch::kSpline;
    EXPECT_EQ(disc.appendLoop(AcDbHatch::kExternal, apart, lines), Acad::eNotImplementedYet);
    AcGeDoubleArray tooFew;
    tooFew.append(0.5);
    EXPECT_EQ(disc.appendLoop(AcDbHatch::kExternal, square(0, 0, 1), tooFew), Acad::eInvalidInput);
    AcGePoint2dArray single;
    single.append(AcGePoint2d(1, 1));
    EXPECT_EQ(disc.appendLoop(AcDbHatch::kExternal, single, AcGeDoubleArray()), Acad::eInvalidInput);
    EXPECT_EQ(disc.numLoops(), 1);

    ASSERT_EQ(hatch.insertLoopAt(0, AcDbHatch::kDefault, square(20, 20, 1), AcGeDoubleArray()), Acad::eOk);
    EXPECT_EQ(hatch.loopTypeAt(0), AcDbHatch::kPolyline);
    ASSERT_EQ(hatch.removeLoopAt(0), Acad::eOk);
    EXPECT_EQ(hatch.removeLoopAt(5), Acad::eInvalidIndex);
    EXPECT_EQ(hatch.numLoops(), 2);
}

TEST(HatchTest, TheStyleDecidesWhatNestedLoopsFill)
{
    struct Row {
        const char* name;
        int depth;
        AcDbHatch::HatchStyle style;
        double area;
    };
    const Row rows[] = {
        {"one loop", 1, AcDbHatch::kNormal, 100},
        {"a hole, normal", 2, AcDbHatch::kNormal, 84},
        {"a hole, outer", 2, AcDbHatch::kOuter, 84},
        {"a hole, ignored", 2, AcDbHatch::kIgnore, 100},
        {"an island in the hole, normal", 3, AcDbHatch::kNormal, 88},
        {"an island in the hole, outer", 3, AcDbHatch::kOuter, 84},
        {"an island in the hole, ignored", 3, AcDbHatch::kIgnore, 100},
    };
    for (const Row& row : rows) {
        auto hatch = nested(row.depth);
        ASSERT_EQ(hatch->setHatchStyle(row.style), Acad::eOk);
        EXPECT_NEAR(area(*hatch), row.area, kTol) << row.name;
        // The clipped lines cover the filled area row by row: each horizontal line 1/8
        // apart covers the area's width there.
        ASSERT_EQ(hatch->evaluateHatch(), Acad::eOk);
        double covered = 0.0;
        for (int i = 0; i < hatch->numHatchLines(); ++i) {
            AcGePoint2d start;
            AcGePoint2d end;
            hatch->getHatchLineDataAt(i, start, end);
            EXPECT_EQ(start.y, end.y);
            covered += start.distanceTo(end);
        }
        EXPECT_NEAR(covered * 0.125, row.area, 0.125 * 10 + kTol) << row.name;
    }
}

// ANSI31 over a 10 by 10 square: lines at 45 degrees, 1/8 apart, 113 of them (the
// diagonal through two corners included once).
TEST(HatchTest, Ansi31OverASquare)
{
    AcDbHatch hatch;
    ASSERT_EQ(hatch.setPattern(AcDbHatch::kPreDefined, L"ansi31"), Acad::eOk);
    EXPECT_STREQ(hatch.patternName(), L"ANSI31");
    hatch.appendLoop(AcDbHatch::kExternal, square(0, 0, 10), AcGeDoubleArray());
    ASSERT_EQ(hatch.evaluateHatch(), Acad::eOk);
    ASSERT_EQ(hatch.numHatchLines(), 113);
    AcGePoint2dArray starts;
    AcGePoint2dArray ends;
    hatch.getHatchLinesData(starts, ends);
    for (int i = 0; i < starts.length(); ++i) {
        const AcGeVector2d along = ends[i] - starts[i];
        EXPECT_NEAR(std::fabs(along.x), std::fabs(along.y), 1e-9) << i;
        EXPECT_GT(along.length(), 0.0);
        for (const AcGePoint2d& p : {starts[i], ends[i]}) {
            EXPECT_GE(p.x, -kTol);
            EXPECT_LE(p.x, 10 + kTol);
            EXPECT_GE(p.y, -kTol);
            EXPECT_LE(p.y, 10 + kTol);
        }
    }
    // Twice the scale and a quarter turn more: lines at 135 degrees 1/4 apart; the one
    // through the corner (0, 0) only touches the square and is no line.
    hatch.setPatternScale(2.0);
    hatch.setPatternAngle(kPi / 2);
    EXPECT_EQ(hatch.numHatchLines(), 0) << "a change drops the evaluated lines";
    ASSERT_EQ(hatch.evaluateHatch(), Acad::eOk);
    EXPECT_EQ(hatch.numHatchLines(), 56);
    hatch.getHatchLinesData(starts, ends);
    const AcGeVector2d along = ends[0] - starts[0];
    EXPECT_NEAR(along.x, -along.y, 1e-9);

    double angle = 0.0;
    double baseX = 0.0;
    double baseY = 0.0;
    double offsetX = 0.0;
    double offsetY = 0.0;
    AcGeDoubleArray dashes;
    ASSERT_EQ(hatch.numPatternDefinitions(), 1);
    ASSERT_EQ(hatch.getPatternDefinitionAt(0, angle, baseX, baseY, offsetX, offsetY, dashes), Acad::eOk);
    EXPECT_NEAR(angle, 3 * kPi / 4, kTol);
    EXPECT_NEAR(offsetY, 0.25, kTol);
    EXPECT_EQ(hatch.getPatternDefinitionAt(1, angle, baseX, baseY, offsetX, offsetY, dashes), Acad::eInvalidIndex);

    hatch.setPatternScale(1e-7);
    EXPECT_EQ(hatch.evaluateHatch(), Acad::eOutOfRange) << "too dense to draw";
    EXPECT_EQ(hatch.numHatchLines(), 0);
}

TEST(HatchTest, AHoleIsHonouredInTheNormalStyle)
{
    auto hatch = nested(2);
    ASSERT_EQ(hatch->evaluateHatch(), Acad::eOk);
    EXPECT_EQ(hatch->numHatchLines(), 112) << "80 rows, 32 of them cut in two by the hole";
    for (int i = 0; i < hatch->numHatchLines(); ++i) {
        AcGePoint2d start;
        AcGePoint2d end;
        hatch->getHatchLineDataAt(i, start, end);
        const AcGePoint2d mid = start + (end - start) * 0.5;
        EXPECT_FALSE(mid.x > 3 && mid.x < 7 && mid.y > 3 && mid.y < 7) << "a line in the hole at " << mid;
    }
    hatch->setHatchStyle(AcDbHatch::kIgnore);
    hatch->evaluateHatch();
    EXPECT_EQ(hatch->numHatchLines(), 80);
}

TEST(HatchTest, PatternsAndTheirDashes)
{
    struct Row {
        const ACHAR* name;
        int families;
        bool dotted;
    };
    const Row rows[] = {{L"SOLID", 0, false}, {L"LINE", 1, false},  {L"ANSI32", 2, false},
                        {L"ANSI37", 2, false}, {L"NET", 2, false},  {L"DOTS", 1, true},
                        {L"CROSS", 2, false},  {L"BRICK", 3, false}};
    for (const Row& row : rows) {
        auto hatch = nested(1, row.name);
        EXPECT_STREQ(hatch->patternName(), row.name);
        EXPECT_EQ(hatch->numPatternDefinitions(), row.families) << hatch->patternName();
        ASSERT_EQ(hatch->evaluateHatch(), Acad::eOk);
        EXPECT_EQ(hatch->numHatchLines() == 0, row.families == 0) << hatch->patternName();
        bool dots = false;
        for (int i = 0; i < hatch->numHatchLines(); ++i) {
            AcGePoint2d start;
            AcGePoint2d end;
            hatch->getHatchLineDataAt(i, start, end);
            dots = dots || start.isEqualTo(end);
            EXPECT_TRUE(start.x >= -kTol && start.x <= 10 + kTol && end.y >= -kTol && end.y <= 10 + kTol);
        }
        EXPECT_EQ(dots, row.dotted) << hatch->patternName();
    }
    AcDbHatch user;
    EXPECT_EQ(user.setPattern(AcDbHatch::kUserDefined, L"whatever"), Acad::eOk);
    EXPECT_STREQ(user.patternName(), L"_USER");
    user.setPatternSpace(2.0);
    user.setPatternDouble(Adesk::kTrue);
    user.appendLoop(AcDbHatch::kExternal, square(0, 0, 10), AcGeDoubleArray());
    EXPECT_EQ(user.numPatternDefinitions(), 2);
    ASSERT_EQ(user.evaluateHatch(), Acad::eOk);
    EXPECT_EQ(user.numHatchLines(), 10) << "5 rows and 5 columns 2 apart";
    EXPECT_EQ(user.setPattern(AcDbHatch::kPreDefined, L"NO_SUCH_PATTERN"), Acad::eInvalidInput);
    EXPECT_STREQ(user.patternName(), L"_USER");
    EXPECT_EQ(user.setPatternScale(0.0), Acad::eInvalidInput);
    EXPECT_EQ(user.setPatternSpace(-1.0), Acad::eInvalidInput);
}

TEST(HatchTest, SolidFillDrawsFilledPolygons)
{
    auto plain = nested(1, L"SOLID");
    EXPECT_TRUE(plain->isSolidFill());
    plain->setElevation(2.0);
    headless::RecordingWorldDraw rec;
    rec.drawDrawable(plain.get());
    ASSERT_EQ(rec.primitives().size(), 1u);
    const headless::RecordedPrimitive& polygon = rec.primitives()[0];
    EXPECT_EQ(polygon.kind, headless::PrimitiveKind::kPolygon);
    EXPECT_EQ(polygon.traits.fillType, kAcGiFillAlways);
    ASSERT_EQ(polygon.points.size(), 4u);
    EXPECT_TRUE(isNear(polygon.points[2], AcGePoint3d(10, 10, 2)));

    auto holed = nested(3, L"SOLID");
    headless::RecordingWorldDraw withHole;
    withHole.drawDrawable(holed.get());
    ASSERT_EQ(withHole.primitives().size(), 2u) << "the outline with its hole, and the island";
    const headless::RecordedPrimitive& shell = withHole.primitives()[0];
    EXPECT_EQ(shell.kind, headless::PrimitiveKind::kShell);
    ASSERT_EQ(shell.integers.size(), 10u);
    EXPECT_EQ(shell.integers[0], 4);
    EXPECT_EQ(shell.integers[5], -4) << "the hole follows as a face of negative count";
    EXPECT_EQ(withHole.primitives()[1].kind, headless::PrimitiveKind::kPolygon);

    auto lines = nested(1);
    headless::RecordingWorldDraw patterned;
    patterned.drawDrawable(lines.get());
    EXPECT_EQ(patterned.primitives().size(), 80u) << "drawn from lines evaluated for the draw";
    EXPECT_EQ(patterned.primitives()[0].kind, headless::PrimitiveKind::kPolyline);
    EXPECT_EQ(patterned.primitives()[0].traits.fillType, kAcGiFillNever);
}

TEST(HatchTest, FilingIsLosslessAndRefusesBadData)
{
    auto hatch = nested(2, L"BRICK");
    hatch->setPatternAngle(0.5);
    hatch->setPatternScale(3.0);
    hatch->setAssociative(Adesk::kTrue);
    hatch->setHatchStyle(AcDbHatch::kOuter);
    hatch->setOriginPoint(AcGePoint2d(1, 2));
    hatch->setElevation(4.0);
    hatch->setNormal(AcGeVector3d(0, 1, 0));
    AcGeDoubleArray bulges;
    for (int i = 0; i < 4; ++i)
        bulges.append(i == 1 ? 0.25 : 0.0);
    hatch->appendLoop(AcDbHatch::kDefault, square(20, 0, 3), bulges);
    const enttest::Bytes bytes = enttest::fileOut(hatch.get());
    AcDbHatch copy;
    ASSERT_EQ(enttest::fileIn(&copy, bytes), Acad::eOk);
    EXPECT_EQ(enttest::fileOut(&copy), bytes);
    EXPECT_STREQ(copy.patternName(), L"BRICK");
    EXPECT_EQ(copy.patternScale(), 3.0);
    EXPECT_TRUE(copy.associative());
    EXPECT_EQ(copy.hatchStyle(), AcDbHatch::kOuter);
    EXPECT_EQ(copy.numLoops(), 3);
    EXPECT_NEAR(area(copy), area(*hatch), kTol);

    AcDbHatch empty;
    const enttest::Bytes plain = enttest::fileOut(&empty);
    enttest::Bytes hugeLoops = plain;
    for (size_t i = plain.size() - 4; i < plain.size(); ++i)
        hugeLoops[i] = 0xFF;
    enttest::Bytes newer = plain;
    // version, type, name (count 0), angle, scale, space, double, origin, associative,
    // normal, elevation, style, loop count: the version sits 2 + 2 + 4 + 24 + 1 + 16 + 1 +
    // 24 + 8 + 2 + 4 bytes before the end.
    newer[plain.size() - 88] = 2;
    const Acad::ErrorStatus huge = enttest::fileIn(&empty, hugeLoops);
    EXPECT_NE(huge, Acad::eOk);
    EXPECT_EQ(empty.numLoops(), 0);
    EXPECT_EQ(enttest::fileIn(&empty, newer), Acad::eMakeMeProxy);
}

TEST(HatchTest, TransformsMoveLoopsAndTurnThePattern)
{
    auto hatch = nested(2, L"ANSI31");
    const double before = area(*hatch);
    ASSERT_EQ(hatch->transformBy(AcGeMatrix3d::rotation(kPi / 2, AcGeVector3d::kZAxis) *
                                 AcGeMatrix3d::scaling(2.0)),
              Acad::eOk);
    EXPECT_NEAR(area(*hatch), 4 * before, 1e-8);
    EXPECT_NEAR(hatch->patternAngle(), kPi / 2, kTol);
    EXPECT_NEAR(hatch->patternScale(), 2.0, kTol);
    AcDbExtents extents;
    ASSERT_EQ(hatch->getGeomExtents(extents), Acad::eOk);
    EXPECT_TRUE(isNear(extents.minPoint(), AcGePoint3d(-20, 0, 0)));
    EXPECT_TRUE(isNear(extents.maxPoint(), AcGePoint3d(0, 20, 0)));

    AcGeDoubleArray bulges;
    bulges.append(0.5);
    bulges.append(0.0);
    bulges.append(0.0);
    bulges.append(0.0);
    AcDbHatch bulged;
    bulged.appendLoop(AcDbHatch::kExternal, square(0, 0, 2), bulges);
    ASSERT_EQ(bulged.transformBy(AcGeMatrix3d::mirroring(AcGePlane::kYZPlane)), Acad::eOk);
    Adesk::Int32 type = 0;
    AcGePoint2dArray vertices;
    AcGeDoubleArray read;
    bulged.getLoopAt(0, type, vertices, read);
    EXPECT_EQ(read[0], -0.5) << "a mirror runs the loop the other way round";
    EXPECT_TRUE(isNear(bulged.normal(), AcGeVector3d::kZAxis));
    AcGeMatrix3d uneven = AcGeMatrix3d::scaling(1.0);
    uneven.entry[0][0] = 3.0;
    EXPECT_EQ(bulged.transformBy(uneven), Acad::eCannotScaleNonUniformly);
}

// A user-defined pattern of vertical lines one apart (at x = 0.5, 1.5, ...) over a strip
// one high and `length` long.
std::unique_ptr<AcDbHatch> strip(double length, const ACHAR* pattern = nullptr, double height = 1.0)
{
    auto hatch = std::make_unique<AcDbHatch>();
    if (pattern == nullptr) {
        hatch->setPattern(AcDbHatch::kUserDefined, L"_USER");
        hatch->setPatternSpace(1.0);
        hatch->setPatternAngle(kPi / 2);
        hatch->setOriginPoint(AcGePoint2d(0.5, 0));
    } else {
        hatch->setPattern(AcDbHatch::kPreDefined, pattern);
    }
    AcGePoint2dArray corners;
    corners.append(AcGePoint2d(0, -height / 2));
    corners.append(AcGePoint2d(length, -height / 2));
    corners.append(AcGePoint2d(length, height / 2));
    corners.append(AcGePoint2d(0, height / 2));
    hatch->appendLoop(AcDbHatch::kExternal, corners, AcGeDoubleArray());
    return hatch;
}

// The work of a pattern is counted, not timed: each boundary segment a line spans and each
// piece made spends one of 200,000. Vertical lines over a strip each span its two long
// edges and make one piece, three apiece; dots along a row cost one each.
TEST(HatchTest, APatternSpendsABudgetOfSpansAndPieces)
{
    struct Row {
        const char* name;
        std::unique_ptr<AcDbHatch> hatch;
        Acad::ErrorStatus status;
        int lines;
    };
    Row rows[] = {
        {"66,666 lines spend 199,998", strip(66666), Acad::eOk, 66666},
        {"66,667 lines would spend 200,001", strip(66667), Acad::eOutOfRange, 0},
        // DOTS: a row at y = 0 with a dot every 1/32 from x = 0 to 5000 inclusive, and the
        // row spanning the strip's two short edges.
        {"160,001 dots and 2 spans", strip(5000, L"DOTS", 0.05), Acad::eOk, 160001},
        {"224,001 dots", strip(7000, L"DOTS", 0.05), Acad::eOutOfRange, 0},
    };
    for (Row& row : rows) {
        EXPECT_EQ(row.hatch->evaluateHatch(), row.status) << row.name;
        EXPECT_EQ(row.hatch->numHatchLines(), row.lines) << row.name;
    }
}

// A pattern based farther away than its line numbers count in whole steps still covers
// the square with lines 1/8 apart, as if based at the square's corner.
TEST(HatchTest, APatternBasedBeyondCountingStillCovers)
{
    auto hatch = nested(1, L"ANSI31");
    ASSERT_EQ(hatch->setOriginPoint(AcGePoint2d(1e300, 0)), Acad::eOk);
    ASSERT_EQ(hatch->evaluateHatch(), Acad::eOk);
    EXPECT_EQ(hatch->numHatchLines(), 113);
}

// A record the fuzzer found, read through the filer as the drawing reader would (the
// fuzz target reads a hatch when the first byte is odd).
void readFoundRecord(const char* file, AcDbHatch& hatch)
{
    std::ifstream in(std::string(QX_FUZZ_CORPUS_DIR) + "/fuzz_polyline_hatch/" + file, std::ios::binary);
    const enttest::Bytes record((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    ASSERT_GT(record.size(), 1u) << file;
    ASSERT_EQ(record[0] % 2, 1) << file;
    ASSERT_EQ(enttest::fileIn(&hatch, enttest::Bytes(record.begin() + 1, record.end())), Acad::eOk) << file;
}

// Found records read, and evaluate and draw at once to what a careful reader makes of them.
TEST(HatchTest, FoundRecordsReadAndEvaluateSanely)
{
    // A strip 3 by 63,488 under ANSI31 at scale 1: some 359,000 lines, which took 16
    // seconds to draw. Refused as too dense, it draws nothing.
    AcDbHatch dense;
    readFoundRecord("hatch_dense_pattern_on_a_long_strip", dense);
    EXPECT_EQ(dense.evaluateHatch(), Acad::eOutOfRange);
    EXPECT_EQ(dense.numHatchLines(), 0);
    headless::RecordingWorldDraw denseDraw;
    denseDraw.drawDrawable(&dense);
    EXPECT_TRUE(denseDraw.primitives().empty());

    // ANSI31 based 8.4e298 away over a loop from (0, 0) to (3, 0) and back within 1e-310
    // of the x axis: the line numbers overflowed their integer. The lines now cross the
    // loop where it is, 1/8 apart along the diagonal: at most the 17 that reach it.
    AcDbHatch far;
    readFoundRecord("hatch_pattern_base_far_away", far);
    ASSERT_EQ(far.evaluateHatch(), Acad::eOk);
    EXPECT_LE(far.numHatchLines(), 17);
    for (int i = 0; i < far.numHatchLines(); ++i) {
        AcGePoint2d start;
        AcGePoint2d end;
        far.getHatchLineDataAt(i, start, end);
        for (const AcGePoint2d& p : {start, end}) {
            EXPECT_NEAR(p.y, 0.0, kTol);
            EXPECT_TRUE(p.x >= -kTol && p.x <= 3 + kTol) << p.x;
        }
    }
}

TEST(HatchTest, Lists)
{
    auto hatch = nested(2, L"ANSI31");
    const std::string text = enttest::listOf(hatch.get());
    EXPECT_NE(text.find("         Hatch pattern    \"ANSI31\"\n"
                        "          Pattern type    Predefined\n"
                        "                 Scale    1.0000\n"
                        "                 Angle    0.0000\n"
                        "                          Nonassociative\n"
                        "           Hatch style    Normal\n"
                        "                 Loops    2\n"
                        "                  area    84.0000"),
              std::string::npos)
        << text;
}

}  // namespace
