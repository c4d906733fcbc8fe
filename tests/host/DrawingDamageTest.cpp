// Damaged and hostile drawing files: cut short, bytes flipped, lengths that lie, not a
// drawing at all, a newer format. The reader reports and skips what is damaged, keeps
// the rest, and never crashes or allocates beyond the file.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>

#include "FileTestSupport.h"
#include "headless/RecordingWorldDraw.h"
#include "headless/SvgPlot.h"
#include "support/SealedDrawing.h"

using namespace filetest;

namespace {

constexpr std::size_t kHeaderBytes = 32;

// Where each record starts and how long its payload is, for a sound file.
struct RecordPlace {
    std::size_t offset;
    std::uint8_t kind;
    std::size_t payload;
};

std::uint64_t little(const Bytes& bytes, std::size_t at, int count)
{
    std::uint64_t value = 0;
    for (int i = count; i-- > 0;)
        value = (value << 8) | bytes[at + static_cast<std::size_t>(i)];
    return value;
}

std::vector<RecordPlace> recordsOf(const Bytes& bytes)
{
    std::vector<RecordPlace> places;
    std::size_t at = kHeaderBytes;
    while (at + 13 <= bytes.size()) {
        const std::size_t length = static_cast<std::size_t>(little(bytes, at + 5, 4));
        places.push_back({at, bytes[at + 4], length});
        at += 13 + length;
    }
    return places;
}

class DrawingDamageTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        FileTestShape::registerWith(AcDbProxyFlags::kAllButCloningAllowed);
        FileTestRecord::registerWith(AcDbProxyFlags::kNoOperation);
        AcDbDatabase db;
        sample = buildSample(&db);
        sound = writeBytes(&db);
    }

    Sample sample;
    Bytes sound;
};

TEST_F(DrawingDamageTest, AFileCutAnywhereOpensWithAMessageOrFailsCleanly)
{
    for (std::size_t cut = 0; cut < sound.size(); cut += 10) {
        SCOPED_TRACE("cut at " + std::to_string(cut));
        const Bytes part(sound.begin(), sound.begin() + static_cast<std::ptrdiff_t>(cut));
        headless::CommandLineCapture capture;
        headless::DrawingReadReport report;
        Acad::ErrorStatus es = Acad::eOk;
        auto db = readBytes(part, &report, &es);
        EXPECT_FALSE(capture.text().empty());
        EXPECT_FALSE(report.complete);
        if (cut < kHeaderBytes) {
            EXPECT_EQ(es, Acad::eUnsupportedFileFormat);
            EXPECT_EQ(db, nullptr);
        } else {
            ASSERT_EQ(es, Acad::eOk);
            ASSERT_NE(db, nullptr);
            EXPECT_NE(capture.utf8().find("ends early"), std::string::npos) << capture.utf8();
            // What was read is a drawing that can be written again.
            writeBytes(db.get());
        }
    }
}

TEST_F(DrawingDamageTest, AFlippedByteInARecordIsReportedByHandleAndSkipped)
{
    const std::string shapeB = [&] {
        std::ostringstream os;
        os << sample.shapeB.handle();
        return os.str();
    }();
    for (const RecordPlace& place : recordsOf(sound)) {
        if (place.kind != 'O' || little(sound, place.offset + 9, 8) != sample.shapeB.handle().value())
            continue;
        Bytes damaged = sound;
        damaged[place.offset + 9 + place.payload / 2] ^= 0x40;
        headless::CommandLineCapture capture;
        headless::DrawingReadReport report;
        auto db = readBytes(damaged, &report);
        ASSERT_NE(db, nullptr);
        EXPECT_EQ(report.skippedRecords, 1);
        EXPECT_FALSE(report.complete);
        EXPECT_NE(capture.utf8().find("(object " + shapeB + "): its checksum does not match its contents; skipped."),
                  std::string::npos)
            << capture.utf8();
        AcDbObjectId id;
        db->getAcDbObjectId(id, false, sample.shapeB.handle());
        EXPECT_FALSE(id.isResident());
        // Everything else is there; the link to the lost shape is kept as a reference.
        EXPECT_EQ(clonetest::entitiesOf(db.get()).size(), 4u);
        AcDbObjectId shapeA;
        db->getAcDbObjectId(shapeA, false, sample.shapeA.handle());
        EXPECT_EQ(clonetest::inspect(shapeA, &FileTestShape::link), id);
        return;
    }
    FAIL() << "no record for the second shape";
}

TEST_F(DrawingDamageTest, EveryFlippedByteOpensOrFailsCleanly)
{
    for (std::size_t at = 0; at < sound.size(); at += 3) {
        Bytes damaged = sound;
        damaged[at] ^= 0xFF;
        headless::CommandLineCapture capture;
        Acad::ErrorStatus es = Acad::eOk;
        auto db = readBytes(damaged, nullptr, &es);
        if (at < 8) {
            EXPECT_EQ(es, Acad::eUnsupportedFileFormat) << at;
        } else if (es == Acad::eOk) {
            EXPECT_FALSE(capture.text().empty()) << "byte " << at << " changed silently";
        }
    }
}

TEST_F(DrawingDamageTest, LengthsThatPromiseMoreThanTheFileHoldsAreRefused)
{
    for (const RecordPlace& place : recordsOf(sound)) {
        if (place.kind != 'O' || little(sound, place.offset + 9, 8) != sample.shapeB.handle().value())
            continue;
        Bytes damaged = sound;
        for (std::size_t i = 0; i < 4; ++i)
            damaged[place.offset + 5 + i] = 0xFF;
        headless::CommandLineCapture capture;
        headless::DrawingReadReport report;
        auto db = readBytes(damaged, &report);
        ASSERT_NE(db, nullptr);
        EXPECT_NE(capture.utf8().find("its length (4294967295 bytes) runs past the end of the file"), std::string::npos)
            << capture.utf8();
        EXPECT_EQ(report.skippedRecords, 1);
        // The reader found the next record and read on.
        EXPECT_EQ(clonetest::entitiesOf(db.get()).size(), 4u);
        AcDbObjectId record;
        EXPECT_EQ(db->getAcDbObjectId(record, false, sample.record.handle()), Acad::eOk);
        EXPECT_TRUE(record.isResident());
        return;
    }
    FAIL() << "no record for the second shape";
}

TEST_F(DrawingDamageTest, ACurrentLineweightThatIsNoneOfTheHostsKeepsTheStandardOne)
{
    for (const RecordPlace& place : recordsOf(sound)) {
        if (place.kind != 'D')
            continue;
        // The settings end with the current lineweight, 16 bits; 21080 is no weight at all.
        Bytes damaged = sound;
        const std::size_t weight = place.offset + 9 + place.payload - 2;
        damaged[weight] = 21080 & 0xFF;
        damaged[weight + 1] = 21080 >> 8;
        const std::uint32_t crc = fuzzing::DrawingChecksum(damaged.data() + place.offset + 4, 5 + place.payload);
        for (std::size_t i = 0; i < 4; ++i)
            damaged[place.offset + 9 + place.payload + i] = static_cast<std::uint8_t>(crc >> (8 * i));
        headless::CommandLineCapture capture;
        auto db = readBytes(damaged);
        ASSERT_NE(db, nullptr) << capture.utf8();
        EXPECT_EQ(db->celweight(), AcDb::kLnWtByLayer);
        EXPECT_NE(capture.utf8().find("The drawing's current lineweight (21080) is none of the host's; the standard "
                                      "one is kept."),
                  std::string::npos)
            << capture.utf8();
        EXPECT_EQ(clonetest::entitiesOf(db.get()).size(), 5u);
        return;
    }
    FAIL() << "no drawing settings record";
}

struct HeaderCase {
    const char* name;
    std::function<void(Bytes&)> damage;
    Acad::ErrorStatus expected;
    const char* message;
};

TEST_F(DrawingDamageTest, FilesThatAreNotDrawingsOrTooNewAreRefused)
{
    const HeaderCase cases[] = {
        {"empty", [](Bytes& b) { b.clear(); }, Acad::eUnsupportedFileFormat, "not a drawing file"},
        {"other magic", [](Bytes& b) { b[0] = 'P'; }, Acad::eUnsupportedFileFormat, "not a drawing file"},
        {"newer major version", [](Bytes& b) { b[8] = 2; }, Acad::eInvalidDwgVersion,
         "format version 2.1; this host reads version 1 files"},
        {"version zero", [](Bytes& b) { b[8] = 0; }, Acad::eInvalidDwgVersion, "format version 0.1"},
        {"damaged header", [](Bytes& b) { b[20] ^= 1; }, Acad::eOk, "header is damaged"},
        {"trailing bytes", [](Bytes& b) { b.insert(b.end(), 7, 0xAB); }, Acad::eOk,
         "7 bytes after the end of the drawing were ignored"},
    };
    for (const HeaderCase& c : cases) {
        Bytes bytes = sound;
        c.damage(bytes);
        headless::CommandLineCapture capture;
        Acad::ErrorStatus es = Acad::eOk;
        auto db = readBytes(bytes, nullptr, &es);
        EXPECT_EQ(es, c.expected) << c.name;
        EXPECT_EQ(db != nullptr, c.expected == Acad::eOk) << c.name;
        EXPECT_NE(capture.utf8().find(c.message), std::string::npos) << c.name << ": " << capture.utf8();
    }
}

// What a damaged primitive would be: an arc of a type the host does not know, a pline
// whose normal is not a unit vector.
std::string malformedPrimitive(const headless::RecordedPrimitive& p)
{
    if (p.kind == headless::PrimitiveKind::kArc && !p.integers.empty() && (p.integers[0] < 0 || p.integers[0] > 2))
        return "an arc of type " + std::to_string(p.integers[0]);
    if (p.kind == headless::PrimitiveKind::kPline &&
        (p.vectors.empty() || !(std::fabs(p.vectors[0].length() - 1.0) < 1e-9)))
        return "a pline without a unit normal";
    return {};
}

// Every drawing of the fuzzer's seeds, its findings among them, read as the fuzzer read
// it: it opens or is refused with a status; once open, every entity draws only well-formed
// primitives, the drawing plots, and it saves a file that opens again. Two findings kept
// graphics for entities whose class is not loaded that no host could draw: a polyline
// whose normal is so long its length overflows (no plane can be built on it), and an arc
// of a type that is none of the host's three; what is left out of them is not drawn.
TEST(DrawingFindingsTest, EveryKeptFuzzDrawingOpensDrawsPlotsAndSavesOnceSealed)
{
    const std::filesystem::path seeds = std::filesystem::path(QX_FUZZ_CORPUS_DIR) / "fuzz_drawing_file";
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(seeds))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    int opened = 0;
    bool findingsOpened[2] = {false, false};
    for (const std::filesystem::path& file : files) {
        SCOPED_TRACE(file.filename().string());
        headless::CommandLineCapture capture;
        std::ifstream in(file, std::ios::binary);
        const Bytes found((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        auto db = readBytes(fuzzing::SealedDrawing(found));
        if (db == nullptr)
            continue;
        ++opened;
        const std::string name = file.filename().string();
        findingsOpened[0] |= name == "kept_polyline_normal_overflowing_its_length";
        findingsOpened[1] |= name == "kept_arc_of_unknown_type";
        for (const AcDbObjectId& id : clonetest::entitiesOf(db.get())) {
            AcDbEntity* entity = nullptr;
            ASSERT_EQ(acdbOpenObject(entity, id, AcDb::kForRead), Acad::eOk);
            headless::RecordingWorldDraw draw;
            draw.drawDrawable(entity);
            entity->close();
            for (const headless::RecordedPrimitive& p : draw.primitives())
                EXPECT_EQ(malformedPrimitive(p), "") << p;
        }
        EXPECT_FALSE(headless::SvgPlot::render(db.get()).empty());
        EXPECT_NE(readBytes(writeBytes(db.get())), nullptr);
    }
    EXPECT_GE(opened, 8);
    EXPECT_TRUE(findingsOpened[0]);
    EXPECT_TRUE(findingsOpened[1]);
}

}  // namespace
