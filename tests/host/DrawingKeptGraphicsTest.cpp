// The graphics a drawing keeps for entities of module classes: a host without the class
// draws exactly what the entity drew, whatever kinds, traits and styles it used; the form
// on file spends bytes only on what changes; drawings of the first format still open with
// their graphics.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "DrawingFilePatch.h"
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
    // The kind (one byte), the parts word (two), the count of points (one) and two points
    // in the plane z = 0 as 2 x 2 doubles (32), the count of integers (one) and the base
    // marker every polyline records (-1, zigzag-coded in one byte); no depth, style or
    // traits.
    const std::size_t perLine = 1 + 2 + 1 + 32 + 1 + 1;
    const Bytes two = savedSketch(2);
    const Bytes five = savedSketch(5);
    EXPECT_EQ(five.size() - two.size(), 3 * perLine);
}

// A kept graphics block written by hand, as the drawing format describes it.
class Block {
public:
    Block& u8(std::uint8_t value) { return little(value, 1); }
    Block& u16(std::uint16_t value) { return little(value, 2); }
    Block& u32(std::uint32_t value) { return little(value, 4); }
    Block& f64(double value)
    {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        return little(bits, 8);
    }
    // Seven bits a byte, low bits first.
    Block& var(std::uint64_t value)
    {
        for (; value >= 0x80; value >>= 7)
            bytes.push_back(static_cast<std::uint8_t>((value & 0x7F) | 0x80));
        bytes.push_back(static_cast<std::uint8_t>(value));
        return *this;
    }
    Block& zigzag(std::int64_t value)
    {
        return var(value >= 0 ? 2 * static_cast<std::uint64_t>(value) : 2 * static_cast<std::uint64_t>(-value) - 1);
    }
    // A primitive's kind and its parts word.
    Block& primitive(std::uint8_t kind, std::uint16_t parts) { return u8(kind).u16(parts); }

    std::vector<std::uint8_t> bytes;

private:
    Block& little(std::uint64_t value, int size)
    {
        for (int i = 0; i < size; ++i)
            bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
        return *this;
    }
};

// The parts bits and primitive kinds of the drawing format.
enum : std::uint16_t {
    kDepth = 1,
    kPoints = 2,
    kFlat = 4,
    kVectors = 8,
    kNumbers = 16,
    kIntegers = 32,
    kMarker = 256,
    kUnitZ = 1024,
    kSparse = 2048,
};
enum : std::uint8_t { kCircle = 0, kPolyline = 2 };

Block twoFlatPoints(Block block)
{
    return block.var(2).f64(0.0).f64(0.0).f64(10.0).f64(0.0);
}

struct BlockCase {
    const char* name;
    Block block;
    // Lines the proxy draws (each must appear, in this order), or none when the block is
    // damaged and the proxy keeps no graphics.
    std::vector<std::string> drawn;
};

TEST_F(DrawingKeptGraphicsTest, HandWrittenBlocksDrawAsTheFormatSaysOrAreLeftOutWhole)
{
    std::vector<std::uint8_t> zeroBitMaps(25, 0);
    Block sparseBeyondTheBlock = Block().u32(1).primitive(kPolyline, kNumbers | kSparse).var(200);
    sparseBeyondTheBlock.bytes.insert(sparseBeyondTheBlock.bytes.end(), zeroBitMaps.begin(), zeroBitMaps.end());
    Block elevenByteCount = Block().u32(1).primitive(kPolyline, kPoints | kFlat);
    for (int i = 0; i < 10; ++i)
        elevenByteCount.u8(0x80);
    elevenByteCount.u8(0x01);

    const BlockCase cases[] = {
        {"a polyline in the plane z = 0",
         twoFlatPoints(Block().u32(1).primitive(kPolyline, kPoints | kFlat)),
         {"polyline n=2 (0,0,0) (10,0,0) |"}},
        {"a circle: the z axis as a bit, its radius sparse",
         Block()
             .u32(1)
             .primitive(kCircle, kPoints | kFlat | kUnitZ | kNumbers | kSparse)
             .var(1)
             .f64(5.0)
             .f64(5.0)
             .var(1)
             .u8(0x01)
             .f64(2.5),
         {"circle center=(5,5,0) normal=(0,0,1) radius=2.5 |"}},
        {"a base marker zigzag-coded",
         twoFlatPoints(Block().u32(1).primitive(kPolyline, kPoints | kFlat | kIntegers)).var(1).zigzag(7),
         {"polyline n=2 (0,0,0) (10,0,0) baseMarker=7 |"}},
        {"a selection marker kept by the primitive after",
         twoFlatPoints(twoFlatPoints(Block().u32(2).primitive(kPolyline, kPoints | kFlat | kMarker))
                           .zigzag(-3)
                           .primitive(kPolyline, kPoints | kFlat)),
         {"polyline n=2 (0,0,0) (10,0,0) |", "marker=-3", "polyline n=2 (0,0,0) (10,0,0) |", "marker=-3"}},
        {"a reserved parts bit", twoFlatPoints(Block().u32(1).primitive(kPolyline, kPoints | kFlat | 0x1000)), {}},
        {"flat points without points", Block().u32(1).primitive(kPolyline, kFlat), {}},
        {"the z axis and vectors besides", Block().u32(1).primitive(kCircle, kUnitZ | kVectors).var(0), {}},
        {"sparse numbers without numbers", Block().u32(1).primitive(kPolyline, kSparse), {}},
        {"a count of eleven bytes", elevenByteCount, {}},
        {"a depth beyond an int",
         twoFlatPoints(Block().u32(1).primitive(kPolyline, kDepth | kPoints | kFlat).var(std::uint64_t(1) << 31)),
         {}},
        {"more primitives than the block holds", Block().u32(1000).primitive(kPolyline, 0), {}},
        {"sparse zeros beyond one number a byte of the block", sparseBeyondTheBlock, {}},
    };
    for (const BlockCase& c : cases) {
        SCOPED_TRACE(c.name);
        FileTestSketch::registerWith(AcDbProxyFlags::kAllButCloningAllowed);
        AcDbDatabase db;
        const AcDbObjectId id = clonetest::append(&db, new FileTestSketch());
        Bytes file = writeBytes(&db);
        FileTestSketch::unregister();
        ASSERT_TRUE(qxtest::PatchObjectGraphics(file, id.handle(),
                                                [&](std::vector<std::uint8_t>& kept) { kept = c.block.bytes; }));
        headless::CommandLineCapture capture;
        auto read = readBytes(file);
        ASSERT_NE(read, nullptr);
        const std::string transcript = transcriptOf(clonetest::entitiesOf(read.get()).at(0));
        const bool leftOut = capture.utf8().find("are damaged and were left out") != std::string::npos;
        EXPECT_EQ(leftOut, c.drawn.empty()) << capture.utf8();
        if (c.drawn.empty()) {
            EXPECT_EQ(transcript, "");
        }
        std::size_t at = 0;
        for (const std::string& line : c.drawn) {
            at = transcript.find(line, at);
            ASSERT_NE(at, std::string::npos) << line << "\n" << transcript;
            at += line.size();
        }
    }
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
