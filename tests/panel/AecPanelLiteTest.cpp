// The lite panel: its area with holes counted in, a round trip of every vertex, bulge and
// pattern value, damaged records refused whole, drawing and explode agreeing, the list,
// and its vertex edits.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <tuple>
#include <vector>

#include "ModuleTestSupport.h"
#include "dbfiler.h"
#include "geplane.h"
#include "headless/MemoryDwgFiler.h"
#include "panel/AecPanelLite.h"

namespace {

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

using Loop = std::vector<std::tuple<double, double, double>>;

Acad::ErrorStatus Append(AecPanelLite& panel, const Loop& loop)
{
    AcArray<AcGePoint2d> vertices;
    AcArray<double> bulges;
    for (const auto& [x, y, b] : loop) {
        vertices.append(AcGePoint2d(x, y));
        bulges.append(b);
    }
    return panel.AppendLoop(vertices, bulges);
}

Loop Rectangle(double x, double y, double width, double height)
{
    return {{x, y, 0}, {x + width, y, 0}, {x + width, y + height, 0}, {x, y + height, 0}};
}

// A 10 by 10 outline with a 4 by 5 hole, hatched.
std::unique_ptr<AecPanelLite> SquareWithHole()
{
    auto panel = std::make_unique<AecPanelLite>();
    Append(*panel, Rectangle(0, 0, 10, 10));
    Append(*panel, Rectangle(3, 3, 4, 5));
    panel->SetOutlineAndPattern(AcDbHatch::kPreDefined, L"ANSI31", 0.5, 0.0, 3, 0.0);
    return panel;
}

TEST(AecPanelLiteTest, TheAreaAddsEveryLoopHolesIncluded)
{
    const double halfDisc = M_PI * 25.0 / 2.0;  // a semicircle of radius 5 on a 10 chord
    struct Case {
        const char* what;
        std::vector<Loop> loops;
        double area;
    };
    const Case cases[] = {
        {"no loops", {}, 0.0},
        {"outline 100 alone", {Rectangle(0, 0, 10, 10)}, 100.0},
        {"outline 100 and a hole of 20", {Rectangle(0, 0, 10, 10), Rectangle(3, 3, 4, 5)}, 120.0},
        {"a closing vertex that repeats the first counts once",
         {{{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}, {0, 0, 0}}},
         100.0},
        {"an arced edge bulging out by a half circle",
         {{{0, 0, 0}, {10, 0, 0}, {10, 10, 1.0}, {0, 10, 0}}},
         100.0 + halfDisc},
        {"a hole of two half circles", {Rectangle(0, 0, 10, 10), {{2, 5, 1.0}, {8, 5, 1.0}}}, 100.0 + M_PI * 9.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        AecPanelLite panel;
        for (const Loop& loop : c.loops)
            ASSERT_EQ(Append(panel, loop), Acad::eOk);
        EXPECT_NEAR(panel.GetArea(), c.area, 1e-9);
    }
}

TEST(AecPanelLiteTest, LoopsAndPatternValuesRefuseWhatCannotBeDrawn)
{
    struct Case {
        const char* what;
        Loop loop;
        bool straightBulges;  // given without bulges
    };
    const double nan = std::nan("");
    const Case refused[] = {
        {"no vertex", {}, false},
        {"one vertex", {{0, 0, 0}}, false},
        {"a coordinate that is not finite", {{0, 0, 0}, {nan, 0, 0}, {0, 5, 0}}, false},
        {"a bulge that is not finite", {{0, 0, 0}, {5, 0, HUGE_VAL}, {0, 5, 0}}, false},
    };
    AecPanelLite panel;
    for (const Case& c : refused) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(Append(panel, c.loop), Acad::eInvalidInput);
    }
    AcArray<AcGePoint2d> three;
    three.append(AcGePoint2d(0, 0));
    three.append(AcGePoint2d(5, 0));
    three.append(AcGePoint2d(0, 5));
    AcArray<double> two;
    two.append(0.0);
    two.append(0.0);
    EXPECT_EQ(panel.AppendLoop(three, two), Acad::eInvalidInput);
    EXPECT_EQ(panel.LoopCount(), 0);
    EXPECT_EQ(panel.AppendLoop(three, AcArray<double>()), Acad::eOk);
    AcArray<AcGePoint2d> vertices;
    AcArray<double> bulges;
    ASSERT_TRUE(panel.GetLoopAt(0, vertices, bulges));
    EXPECT_EQ(bulges.length(), 3);
    EXPECT_EQ(bulges[1], 0.0);
    EXPECT_FALSE(panel.GetLoopAt(1, vertices, bulges));
    EXPECT_TRUE(vertices.isEmpty());
    EXPECT_TRUE(panel.GetLoopVertsAt(-1).isEmpty());

    ASSERT_EQ(panel.SetOutlineAndPattern(AcDbHatch::kCustomDefined, L"NET", 2.0, 0.5, 300, 7.0), Acad::eOk);
    const std::tuple<int, double, double, double> bad[] = {
        {3, 1.0, 0.0, 0.0}, {1, 0.0, 0.0, 0.0}, {1, -1.0, 0.0, 0.0}, {1, 1.0, nan, 0.0}, {1, 1.0, 0.0, HUGE_VAL}};
    for (const auto& [type, scale, angle, last] : bad)
        EXPECT_EQ(
            panel.SetOutlineAndPattern(static_cast<AcDbHatch::HatchPatternType>(type), L"X", scale, angle, 1, last),
            Acad::eInvalidInput);
    EXPECT_EQ(panel.SetPatScale(0.0), Acad::eInvalidInput);
    AcDbHatch::HatchPatternType type;
    AcString name;
    double scale = 0, angle = 0, last = 0;
    int colour = -1;
    panel.GetOutlineAndPattern(type, name, scale, angle, colour, last);
    EXPECT_EQ(type, AcDbHatch::kCustomDefined);
    EXPECT_STREQ(name.kwszPtr(), L"NET");
    EXPECT_EQ(scale, 2.0);
    EXPECT_EQ(angle, 0.5);
    EXPECT_EQ(colour, 0);  // 300 is no colour index: the panel's own
    EXPECT_EQ(last, 7.0);
}

TEST(AecPanelLiteTest, ARoundTripKeepsEveryVertexBulgeAndPatternValue)
{
    AecPanelLite panel;
    const Loop outline = {{0.125, -3.5, 0.0}, {6000.25, 0, -0.41421356237309503}, {6000, 750.75, 1e-7}, {0, 750, 0.5}};
    const Loop hole = {{3100, 375, 1.0}, {2900, 375, 1.0}};
    ASSERT_EQ(Append(panel, outline), Acad::eOk);
    ASSERT_EQ(Append(panel, hole), Acad::eOk);
    ASSERT_EQ(panel.SetOutlineAndPattern(AcDbHatch::kUserDefined, L"用户图案", 37.5, -1.25, 256, 0.0625), Acad::eOk);

    AecPanelLite read;
    ASSERT_EQ(qxtest::FileIn(&read, qxtest::FileOut(&panel)), Acad::eOk);
    ASSERT_EQ(read.LoopCount(), 2);
    const Loop* loops[] = {&outline, &hole};
    for (int i = 0; i < 2; ++i) {
        AcArray<AcGePoint2d> vertices;
        AcArray<double> bulges;
        ASSERT_TRUE(read.GetLoopAt(i, vertices, bulges));
        ASSERT_EQ(vertices.length(), static_cast<int>(loops[i]->size()));
        for (int v = 0; v < vertices.length(); ++v) {
            const auto& [x, y, b] = (*loops[i])[static_cast<std::size_t>(v)];
            EXPECT_EQ(vertices[v], AcGePoint2d(x, y));
            EXPECT_EQ(bulges[v], b);
        }
    }
    AcDbHatch::HatchPatternType type;
    AcString name;
    double scale = 0, angle = 0, last = 0;
    int colour = 0;
    read.GetOutlineAndPattern(type, name, scale, angle, colour, last);
    EXPECT_EQ(type, AcDbHatch::kUserDefined);
    EXPECT_STREQ(name.kwszPtr(), L"用户图案");
    EXPECT_EQ(scale, 37.5);
    EXPECT_EQ(angle, -1.25);
    EXPECT_EQ(colour, 256);
    EXPECT_EQ(last, 0.0625);
}

// The record after the host entity's fields, written value by value as a damaged or
// hostile file would hold it.
qxtest::Bytes LiteRecord(Adesk::UInt16 version, const std::function<void(AcDbDwgFiler&)>& body)
{
    AecPanelLite host;
    headless::MemoryDwgFiler filer(AcDb::kFileFiler);
    host.AcDbEntity::dwgOutFields(&filer);
    filer.writeUInt16(version);
    body(filer);
    return filer.bytes();
}

void WritePattern(AcDbDwgFiler& filer, Adesk::Int32 type, double scale, Adesk::Int32 colour)
{
    filer.writeInt32(type);
    filer.writeString(L"ANSI31");
    filer.writeDouble(scale);
    filer.writeDouble(0.0);
    filer.writeInt32(colour);
    filer.writeDouble(0.0);
}

TEST(AecPanelLiteTest, ADamagedRecordIsRefusedWholeAndChangesNothing)
{
    const auto oneTriangle = [](AcDbDwgFiler& f) {
        f.writeInt32(1);
        f.writeInt32(3);
        for (const auto& [x, y] : {std::pair<double, double>{0, 0}, {5, 0}, {0, 5}}) {
            f.writePoint2d(AcGePoint2d(x, y));
            f.writeDouble(0.0);
        }
    };
    struct Case {
        const char* what;
        Adesk::UInt16 version;
        std::function<void(AcDbDwgFiler&)> body;
        Acad::ErrorStatus status;
    };
    const Case cases[] = {
        {"a newer version", 2, [](AcDbDwgFiler&) {}, Acad::eMakeMeProxy},
        {"a negative loop count", 1, [](AcDbDwgFiler& f) { f.writeInt32(-1); }, Acad::eDwgObjectImproperlyRead},
        {"a vertex count of two thousand million with one vertex behind it", 1,
         [](AcDbDwgFiler& f) {
             f.writeInt32(1);
             f.writeInt32(2000000000);
             f.writePoint2d(AcGePoint2d(1, 1));
             f.writeDouble(0.0);
         },
         Acad::eEndOfFile},
        {"a loop of one vertex", 1,
         [](AcDbDwgFiler& f) {
             f.writeInt32(1);
             f.writeInt32(1);
             f.writePoint2d(AcGePoint2d(1, 1));
             f.writeDouble(0.0);
             WritePattern(f, 1, 1.0, 0);
         },
         Acad::eDwgObjectImproperlyRead},
        {"a pattern type of 7", 1, [&](AcDbDwgFiler& f) { oneTriangle(f), WritePattern(f, 7, 1.0, 0); },
         Acad::eDwgObjectImproperlyRead},
        {"a scale of 0", 1, [&](AcDbDwgFiler& f) { oneTriangle(f), WritePattern(f, 1, 0.0, 0); },
         Acad::eDwgObjectImproperlyRead},
        {"a colour of 999", 1, [&](AcDbDwgFiler& f) { oneTriangle(f), WritePattern(f, 1, 1.0, 999); },
         Acad::eDwgObjectImproperlyRead},
        {"the pattern cut short", 1, [&](AcDbDwgFiler& f) { oneTriangle(f), f.writeInt32(1); }, Acad::eEndOfFile},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        std::unique_ptr<AecPanelLite> panel = SquareWithHole();
        const qxtest::Bytes before = qxtest::FileOut(panel.get());
        EXPECT_EQ(qxtest::FileIn(panel.get(), LiteRecord(c.version, c.body)), c.status);
        EXPECT_EQ(qxtest::FileOut(panel.get()), before);
    }
    std::unique_ptr<AecPanelLite> panel = SquareWithHole();
    EXPECT_EQ(qxtest::FileIn(panel.get(),
                             LiteRecord(1, [&](AcDbDwgFiler& f) { oneTriangle(f), WritePattern(f, 1, 2.0, 5); })),
              Acad::eOk);
    EXPECT_DOUBLE_EQ(panel->GetArea(), 12.5);
    EXPECT_EQ(panel->GetPatScale(), 2.0);
}

TEST(AecPanelLiteTest, ADefaultPanelMakesAHatchWithNoPatternAndNoLoops)
{
    AecPanelLite panel;
    std::unique_ptr<AcDbHatch> hatch(panel.CreateHatch());
    ASSERT_NE(hatch, nullptr);
    EXPECT_EQ(hatch->numLoops(), 0);
    EXPECT_EQ(hatch->objectId(), AcDbObjectId::kNull);
    EXPECT_EQ(hatch->normal(), AcGeVector3d::kZAxis);
    EXPECT_FALSE(hatch->associative());
    // A named pattern over no loops is still a hatch of that pattern.
    panel.SetOutlineAndPattern(AcDbHatch::kPreDefined, L"ANSI31", 2.0, 0.5, 0, 0.0);
    hatch.reset(panel.CreateHatch());
    EXPECT_EQ(hatch->numLoops(), 0);
    EXPECT_STREQ(hatch->patternName(), L"ANSI31");
    EXPECT_EQ(hatch->patternScale(), 2.0);
    EXPECT_EQ(hatch->patternAngle(), 0.5);
}

TEST(AecPanelLiteTest, DrawingAndExplodeShowTheSameLoopsAndHatch)
{
    for (const bool named : {true, false}) {
        SCOPED_TRACE(named ? "with a pattern" : "without a pattern");
        qxtest::WorkingDatabase working;
        std::unique_ptr<AecPanelLite> made = SquareWithHole();
        if (!named)
            made->SetOutlineAndPattern(AcDbHatch::kPreDefined, L"", 1.0, 0.0, 0, 0.0);
        made->setColorIndex(5);
        const AcDbObjectId id = working.Add(made.release());
        AecPanelLite* panel = nullptr;
        ASSERT_EQ(acdbOpenObject(panel, id, AcDb::kForRead), Acad::eOk);

        const auto drawn = qxtest::Draw(panel);
        std::vector<Adesk::LongPtr> markers;
        for (const headless::RecordedPrimitive& p : drawn) {
            if (markers.empty() || markers.back() != p.traits.selectionMarker)
                markers.push_back(p.traits.selectionMarker);
            // The outlines in the panel's colour, the hatch in the pattern's.
            EXPECT_EQ(p.traits.color, p.traits.selectionMarker == 3 ? 3 : 5);
        }
        const std::vector<Adesk::LongPtr> expected =
            named ? std::vector<Adesk::LongPtr>{1, 2, 3} : std::vector<Adesk::LongPtr>{1, 2};
        EXPECT_EQ(markers, expected);

        AcDbVoidPtrArray pieces;
        ASSERT_EQ(panel->explode(pieces), Acad::eOk);
        ASSERT_EQ(pieces.length(), named ? 3 : 2);
        std::vector<headless::RecordedPrimitive> redrawn;
        for (int i = 0; i < pieces.length(); ++i) {
            std::unique_ptr<AcDbEntity> piece(static_cast<AcDbEntity*>(pieces[i]));
            EXPECT_EQ(piece->layerId(), panel->layerId());
            for (headless::RecordedPrimitive p : qxtest::Draw(piece.get())) {
                p.traits.selectionMarker = i + 1;
                redrawn.push_back(p);
            }
            if (i == 2) {
                ASSERT_NE(AcDbHatch::cast(piece.get()), nullptr);
                EXPECT_EQ(piece->colorIndex(), 3);
            } else {
                ASSERT_NE(AcDbPolyline::cast(piece.get()), nullptr);
                EXPECT_EQ(piece->colorIndex(), 5);
            }
        }
        EXPECT_TRUE(qxtest::SamePrimitives(redrawn, drawn, 1e-9));
        panel->close();
    }
}

TEST(AecPanelLiteTest, TheListNamesThePatternAndItsScale)
{
    qxtest::WorkingDatabase working;
    std::unique_ptr<AecPanelLite> made = SquareWithHole();
    made->SetOutlineAndPattern(AcDbHatch::kPreDefined, L"ANSI31", 12.5, 0.0, 3, 0.0);
    const AcDbObjectId id = working.Add(made.release());
    AecPanelLite* panel = nullptr;
    ASSERT_EQ(acdbOpenObject(panel, id, AcDb::kForRead), Acad::eOk);
    ACHAR handle[32];
    id.handle().getIntoAsciiBuffer(handle, 32);
    EXPECT_EQ(qxtest::ListOutput(panel),
              L"\n"
              L"         QX_PANEL_LITE    Layer: \"0\"\n"
              L"                          Space: Model space\n"
              L"                          Handle = " +
                  std::wstring(handle) + L"\n填充图案: ANSI31\n填充比例: 12.5");
    panel->close();
}

TEST(AecPanelLiteTest, VertexEditsGripsAndTransforms)
{
    AecPanelLite panel;
    ASSERT_EQ(Append(panel, Rectangle(0, 0, 10, 10)), Acad::eOk);
    // Nearest the bottom edge: it goes between the first two vertices.
    ASSERT_TRUE(panel.AddVertex(AcGePoint3d(5, -2, 0)));
    AcArray<AcGePoint2d> outline = panel.GetLoopVertsAt(0);
    ASSERT_EQ(outline.length(), 5);
    EXPECT_EQ(outline[1], AcGePoint2d(5, -2));
    EXPECT_DOUBLE_EQ(panel.GetArea(), 110.0);
    EXPECT_FALSE(panel.RemoveVertex(AcGePoint3d(5, -1, 0)));
    EXPECT_TRUE(panel.RemoveVertex(AcGePoint3d(5, -2, 0)));
    EXPECT_DOUBLE_EQ(panel.GetArea(), 100.0);

    // Grips and stretch points: the vertices, outline first; indices beyond them ignored.
    ASSERT_EQ(Append(panel, Rectangle(2, 2, 1, 1)), Acad::eOk);
    AcGePoint3dArray grips;
    AcDbIntArray modes;
    AcDbIntArray ids;
    ASSERT_EQ(panel.getGripPoints(grips, modes, ids), Acad::eOk);
    ASSERT_EQ(grips.length(), 8);
    EXPECT_EQ(grips[4], AcGePoint3d(2, 2, 0));
    AcDbIntArray indices;
    for (int index : {-1, 2, 8})
        indices.append(index);
    ASSERT_EQ(panel.moveStretchPointsAt(indices, AcGeVector3d(0, 5, 0)), Acad::eOk);
    EXPECT_EQ(panel.GetLoopVertsAt(0)[2], AcGePoint2d(10, 15));
    EXPECT_DOUBLE_EQ(panel.GetArea(), 125.0 + 1.0);

    // A mirror keeps the area and turns arcs; a scale by 2 doubles the pattern's scale.
    AecPanelLite arced;
    ASSERT_EQ(Append(arced, {{0, 0, 0.5}, {10, 0, 0}, {10, 10, 0}}), Acad::eOk);
    arced.SetOutlineAndPattern(AcDbHatch::kPreDefined, L"ANSI31", 3.0, 0.25, 0, 0.0);
    const double area = arced.GetArea();
    ASSERT_EQ(arced.transformBy(AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis))),
              Acad::eOk);
    EXPECT_NEAR(arced.GetArea(), area, 1e-9);
    AcArray<AcGePoint2d> vertices;
    AcArray<double> bulges;
    arced.GetLoopAt(0, vertices, bulges);
    EXPECT_EQ(vertices[1], AcGePoint2d(-10, 0));
    EXPECT_EQ(bulges[0], -0.5);
    ASSERT_EQ(arced.transformBy(AcGeMatrix3d::scaling(2.0)), Acad::eOk);
    EXPECT_EQ(arced.GetPatScale(), 6.0);
    EXPECT_NEAR(arced.GetArea(), 4.0 * area, 1e-9);
    AcGeMatrix3d stretch;
    stretch(0, 0) = 2.0;
    EXPECT_EQ(arced.transformBy(stretch), Acad::eCannotScaleNonUniformly);
}

}  // namespace
