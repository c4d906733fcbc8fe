// The graphics a drawing keeps for entities of module classes: a host without the class
// draws exactly what the entity drew, whatever kinds, traits and styles it used; the form
// on file spends bytes only on what changes; drawings of the first format still open with
// their graphics.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "FileTestSupport.h"
#include "dbproxy.h"
#include "headless/RecordingWorldDraw.h"
#include "support/SealedDrawing.h"

using namespace filetest;

namespace {

// Drawn as a save draws for the graphics it keeps (whose fill mode a proxy's replay then
// follows), so that entity and proxy are seen the same way.
std::vector<headless::RecordedPrimitive> drawnPrimitives(AcDbObjectId id)
{
    AcDbEntity* entity = nullptr;
    if (acdbOpenObject(entity, id, AcDb::kForRead) != Acad::eOk)
        return {};
    headless::RecordingWorldDraw draw;
    draw.setRegenType(kAcGiSaveWorldDrawForProxy);
    draw.drawDrawable(entity);
    entity->close();
    return draw.primitives();
}

std::string transcriptOf(AcDbObjectId id)
{
    std::string lines;
    for (const headless::RecordedPrimitive& p : drawnPrimitives(id))
        lines += p.toLine() + "\n";
    return lines;
}

class DrawingKeptGraphicsTest : public ::testing::Test {
protected:
    void SetUp() override { FileTestSketch::registerWith(AcDbProxyFlags::kAllButCloningAllowed); }
    void TearDown() override { FileTestSketch::registerWith(AcDbProxyFlags::kAllButCloningAllowed); }

    // A drawing holding one sketch, saved with the class loaded.
    Bytes savedSketch(int plainLines, std::string* transcript = nullptr,
                      std::vector<headless::RecordedPrimitive>* primitives = nullptr)
    {
        AcDbDatabase db;
        auto* sketch = new FileTestSketch();
        sketch->setPlainLines(plainLines);
        const AcDbObjectId made = clonetest::append(&db, sketch);
        if (transcript != nullptr)
            *transcript = transcriptOf(made);
        if (primitives != nullptr)
            *primitives = drawnPrimitives(made);
        return writeBytes(&db);
    }
};

TEST_F(DrawingKeptGraphicsTest, AProxyDrawsEveryKindOfPrimitiveAsItsEntityDrewIt)
{
    std::string drawnByTheEntity;
    std::vector<headless::RecordedPrimitive> primitives;
    const Bytes saved = savedSketch(2, &drawnByTheEntity, &primitives);
    // Ten kinds, and the nested line one level down.
    std::set<std::string> kinds;
    for (const headless::RecordedPrimitive& p : primitives)
        kinds.insert(headless::primitiveKindName(p.kind));
    EXPECT_EQ(kinds.size(), 10u);
    ASSERT_TRUE(std::any_of(primitives.begin(), primitives.end(),
                            [](const headless::RecordedPrimitive& p) { return p.depth == 1; }));

    FileTestSketch::unregister();
    headless::DrawingReadReport report;
    auto read = readBytes(saved, &report);
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(report.proxies, 1);
    const AcDbObjectId proxy = clonetest::entitiesOf(read.get()).at(0);
    EXPECT_EQ(transcriptOf(proxy), drawnByTheEntity);
    EXPECT_EQ(writeBytes(read.get()), saved);

    // The transcript rounds; the points come back to the bit, in the plane z = 0 or not.
    const std::vector<headless::RecordedPrimitive> replayed = drawnPrimitives(proxy);
    ASSERT_EQ(replayed.size(), primitives.size());
    for (std::size_t i = 0; i < primitives.size(); ++i) {
        if (primitives[i].kind != headless::PrimitiveKind::kPolyline)
            continue;
        ASSERT_EQ(replayed[i].points.size(), primitives[i].points.size()) << i;
        for (std::size_t k = 0; k < primitives[i].points.size(); ++k) {
            const AcGePoint3d& was = primitives[i].points[k];
            const AcGePoint3d& now = replayed[i].points[k];
            EXPECT_TRUE(was.x == now.x && was.y == now.y && was.z == now.z) << i << ' ' << k;
        }
    }
}

TEST_F(DrawingKeptGraphicsTest, ALineThatRepeatsTheTraitsBeforeItTakesOnlyItsKindPartsPointsAndMarker)
{
    // Kind 1 byte, parts 2, the count of points 1 and two points in the plane z = 0 as
    // 2 x 2 doubles (32), the count of integers 1 and the base marker every polyline
    // records (-1, zigzag-coded in one byte); no depth, style or traits.
    const std::size_t perLine = 1 + 2 + 1 + 32 + 1 + 1;
    const Bytes two = savedSketch(2);
    const Bytes five = savedSketch(5);
    EXPECT_EQ(five.size() - two.size(), 3 * perLine);
}

// The sample of the first format (1.0): graphics with every part of every primitive.
Bytes firstFormatDrawing()
{
    const std::filesystem::path file = std::filesystem::path(QX_FUZZ_CORPUS_DIR) / "fuzz_drawing_file" / "module_lines";
    std::ifstream in(file, std::ios::binary);
    return fuzzing::SealedDrawing(Bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>()));
}

TEST(DrawingFirstFormatTest, KeptGraphicsOfTheFirstFormatOpenAndSaveInTheCompactForm)
{
    const Bytes first = firstFormatDrawing();
    ASSERT_GT(first.size(), 32u);
    ASSERT_EQ(first[10], 0);  // minor version 0
    headless::CommandLineCapture capture;
    headless::DrawingReadReport report;
    auto read = readBytes(first, &report);
    ASSERT_NE(read, nullptr);
    EXPECT_TRUE(report.complete);
    EXPECT_GE(report.proxies, 3);  // the module is not loaded here
    EXPECT_EQ(capture.utf8().find("damaged"), std::string::npos) << capture.utf8();
    std::vector<std::string> drawnFromFirst;
    for (const AcDbObjectId& id : clonetest::entitiesOf(read.get()))
        drawnFromFirst.push_back(transcriptOf(id));
    ASSERT_FALSE(drawnFromFirst.empty());
    for (const std::string& transcript : drawnFromFirst)
        EXPECT_FALSE(transcript.empty());

    const Bytes resaved = writeBytes(read.get());
    EXPECT_EQ(resaved[10], 1);
    EXPECT_LT(resaved.size(), first.size());
    auto again = readBytes(resaved);
    ASSERT_NE(again, nullptr);
    std::vector<std::string> drawnFromCompact;
    for (const AcDbObjectId& id : clonetest::entitiesOf(again.get()))
        drawnFromCompact.push_back(transcriptOf(id));
    EXPECT_EQ(drawnFromCompact, drawnFromFirst);
    EXPECT_EQ(writeBytes(again.get()), resaved);
}

}  // namespace
