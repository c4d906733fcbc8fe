// Damaged and hostile drawing files: cut short, bytes flipped, lengths that lie, not a
// drawing at all, a newer format. The reader reports and skips what is damaged, keeps
// the rest, and never crashes or allocates beyond the file.
#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "FileTestSupport.h"

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

// zlib's CRC-32, which frames every record, bit by bit.
std::uint32_t crc32Of(const std::uint8_t* data, std::size_t size)
{
    std::uint32_t crc = 0xFFFFFFFFu;
    for (std::size_t i = 0; i < size; ++i) {
        crc ^= data[i];
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    return ~crc;
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
        const std::uint32_t crc = crc32Of(damaged.data() + place.offset + 4, 5 + place.payload);
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
         "format version 2.0; this host reads version 1 files"},
        {"version zero", [](Bytes& b) { b[8] = 0; }, Acad::eInvalidDwgVersion, "format version 0.0"},
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

}  // namespace
