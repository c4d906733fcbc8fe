// The built-in example drawing, damaged every way a disk, a mail or another program might
// damage it: cut at every record boundary and at a sample of other offsets, and a few
// thousand single bytes flipped. Each damaged file opens with a message or fails with a
// clear status; no object of an undamaged record is lost; what opened saves as a file
// that opens again without a complaint.
#include <gtest/gtest.h>

#include <csignal>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "DemoDrawing.h"
#include "ModuleTestSupport.h"
#include "headless/CommandLine.h"
#include "headless/DrawingFile.h"
#include "headless/TextCodec.h"

#include <sys/wait.h>
#include <unistd.h>

namespace {

using Bytes = std::vector<std::uint8_t>;

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

constexpr std::size_t kHeaderBytes = 32;
// Marker, kind and length before the payload; the checksum after it.
constexpr std::size_t kFrameHead = 9;
constexpr std::size_t kFrameTail = 4;

struct Record {
    std::size_t begin;
    std::size_t end;  // one past the checksum
    char kind;
    std::uint64_t handle;  // of an object record, else 0
};

std::uint64_t Little(const Bytes& bytes, std::size_t at, int count)
{
    std::uint64_t value = 0;
    for (int i = count; i-- > 0;)
        value = (value << 8) | bytes[at + static_cast<std::size_t>(i)];
    return value;
}

std::vector<Record> RecordsOf(const Bytes& bytes)
{
    std::vector<Record> records;
    std::size_t at = kHeaderBytes;
    while (at + kFrameHead + kFrameTail <= bytes.size()) {
        const std::size_t length = static_cast<std::size_t>(Little(bytes, at + 5, 4));
        const char kind = static_cast<char>(bytes[at + 4]);
        const std::uint64_t handle = kind == 'O' ? Little(bytes, at + kFrameHead, 8) : 0;
        records.push_back({at, at + kFrameHead + length + kFrameTail, kind, handle});
        at = records.back().end;
    }
    return records;
}

struct Opened {
    Acad::ErrorStatus status = Acad::eOk;
    std::unique_ptr<AcDbDatabase> db;
    headless::DrawingReadReport report;
    std::string messages;
};

Opened Open(const Bytes& bytes)
{
    Opened opened;
    headless::CommandLineCapture capture;
    AcDbDatabase* db = nullptr;
    opened.status = headless::DrawingFile::read(bytes, db, &opened.report);
    opened.db.reset(db);
    opened.messages = capture.utf8();
    return opened;
}

Bytes ReadFile(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return Bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

bool HasObject(AcDbDatabase* db, std::uint64_t handle)
{
    AcDbObjectId id;
    return db->getAcDbObjectId(id, false, AcDbHandle(handle)) == Acad::eOk && id.isResident() && !id.isErased();
}

class DamagedExampleDrawingTest : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        qxtest::WorkingDatabase drawing;
        headless::CommandLineCapture quiet;
        quarvo::BuildDemoDrawing(drawing.db());
        sound = new Bytes();
        ASSERT_EQ(headless::DrawingFile::write(drawing.db(), *sound), Acad::eOk);
        records = new std::vector<Record>(RecordsOf(*sound));
    }
    static void TearDownTestSuite()
    {
        delete records;
        delete sound;
    }

    // Every object of a record that lies wholly outside [damageBegin, damageEnd) is there.
    static void ExpectUndamagedObjectsKept(AcDbDatabase* db, std::size_t damageBegin, std::size_t damageEnd)
    {
        for (const Record& record : *records) {
            if (record.kind != 'O' || (record.end > damageBegin && record.begin < damageEnd))
                continue;
            EXPECT_TRUE(HasObject(db, record.handle)) << "object " << std::hex << record.handle << " lost";
        }
    }

    // What opened saves, and the saved file opens complete.
    static void ExpectSavesSound(AcDbDatabase* db)
    {
        Bytes saved;
        ASSERT_EQ(headless::DrawingFile::write(db, saved), Acad::eOk);
        const Opened again = Open(saved);
        ASSERT_EQ(again.status, Acad::eOk);
        EXPECT_TRUE(again.report.complete) << again.messages;
        EXPECT_EQ(again.report.skippedRecords, 0);
    }

    static Bytes* sound;
    static std::vector<Record>* records;
};

Bytes* DamagedExampleDrawingTest::sound = nullptr;
std::vector<Record>* DamagedExampleDrawingTest::records = nullptr;

TEST_F(DamagedExampleDrawingTest, TheExampleIsSoundAndHasCustomEntities)
{
    const Opened opened = Open(*sound);
    ASSERT_EQ(opened.status, Acad::eOk);
    EXPECT_TRUE(opened.report.complete);
    EXPECT_EQ(opened.report.proxies, 0);
    EXPECT_TRUE(opened.messages.empty()) << opened.messages;
    EXPECT_GT(records->size(), 50u);
    EXPECT_EQ(records->back().end, sound->size());
}

TEST_F(DamagedExampleDrawingTest, CutAtEveryRecordBoundaryAndSampledOffsets)
{
    std::vector<std::size_t> cuts;
    for (std::size_t at = 0; at < kHeaderBytes; at += 7)
        cuts.push_back(at);
    for (const Record& record : *records)
        cuts.push_back(record.begin);
    for (std::size_t at = kHeaderBytes; at < sound->size(); at += 401)
        cuts.push_back(at);
    for (std::size_t cut : cuts) {
        SCOPED_TRACE("cut at " + std::to_string(cut));
        const Opened opened = Open(Bytes(sound->begin(), sound->begin() + static_cast<std::ptrdiff_t>(cut)));
        if (cut < kHeaderBytes) {
            EXPECT_EQ(opened.status, Acad::eUnsupportedFileFormat);
            EXPECT_EQ(opened.db, nullptr);
            continue;
        }
        ASSERT_EQ(opened.status, Acad::eOk);
        EXPECT_FALSE(opened.report.complete);
        EXPECT_NE(opened.messages.find("ends early"), std::string::npos) << opened.messages;
        ExpectUndamagedObjectsKept(opened.db.get(), cut, sound->size());
        ExpectSavesSound(opened.db.get());
    }
}

TEST_F(DamagedExampleDrawingTest, ThousandsOfFlippedBytesOpenWithAMessageOrFailCleanly)
{
    std::mt19937 random(22);
    std::uniform_int_distribution<std::size_t> offset(0, sound->size() - 1);
    std::uniform_int_distribution<int> bit(0, 7);
    for (int flip = 0; flip < 2000; ++flip) {
        const std::size_t at = offset(random);
        Bytes damaged = *sound;
        damaged[at] ^= static_cast<std::uint8_t>(1u << bit(random));
        SCOPED_TRACE("byte " + std::to_string(at));
        const Opened opened = Open(damaged);
        if (opened.status != Acad::eOk) {
            EXPECT_TRUE(opened.status == Acad::eUnsupportedFileFormat || opened.status == Acad::eInvalidDwgVersion)
                << acadErrorStatusText(opened.status);
            EXPECT_LT(at, kHeaderBytes);
            EXPECT_FALSE(opened.messages.empty());
            continue;
        }
        EXPECT_FALSE(opened.messages.empty()) << "a changed byte went unnoticed";
        // A damaged class record leaves its objects without a class; elsewhere only the
        // object of the damaged record may go.
        bool classDamaged = false;
        for (const Record& record : *records)
            classDamaged = classDamaged || (record.kind == 'C' && at >= record.begin && at < record.end);
        if (!classDamaged && at >= kHeaderBytes)
            ExpectUndamagedObjectsKept(opened.db.get(), at, at + 1);
        // Saving is the same code whatever was damaged; one in eight keeps the run short.
        if (flip % 8 == 0)
            ExpectSavesSound(opened.db.get());
    }
}

TEST_F(DamagedExampleDrawingTest, ASaveKilledAtAnyMomentLeavesTheOldFileOrTheNewOne)
{
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("qx-interrupted-save-" + std::to_string(static_cast<long>(getpid())));
    std::filesystem::create_directories(folder);
    const std::filesystem::path file = folder / "roof.qxd";
    {
        AcDbDatabase empty;
        ASSERT_EQ(headless::DrawingFile::save(&empty, headless::fromUtf8(file.string())), Acad::eOk);
    }
    const Bytes old = ReadFile(file);
    const Opened example = Open(*sound);
    ASSERT_EQ(example.status, Acad::eOk);
    int replaced = 0;
    // Kills spread over the first 0.4 s, then on until a save has finished once: a loaded
    // machine may need longer for the whole save.
    for (int delay = 0; delay < 400000 || (replaced == 0 && delay < 30000000); delay = delay * 3 / 2 + 50) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            headless::CommandLineCapture quiet;
            headless::DrawingFile::save(example.db.get(), headless::fromUtf8(file.string()));
            _exit(0);
        }
        usleep(static_cast<useconds_t>(delay));
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        const Bytes now = ReadFile(file);
        SCOPED_TRACE("killed after " + std::to_string(delay) + " us");
        ASSERT_TRUE(now == old || now == *sound) << "a partial file of " << now.size() << " bytes";
        replaced += now == *sound ? 1 : 0;
        // Put the old file back for the next round.
        std::ofstream(file, std::ios::binary | std::ios::trunc)
            .write(reinterpret_cast<const char*>(old.data()), static_cast<std::streamsize>(old.size()));
    }
    std::filesystem::remove_all(folder);
    // Somewhere the save must have finished, or the test saw nothing but the old file.
    EXPECT_GT(replaced, 0);
}

}  // namespace
