// RecordingDwgFiler: the transcript lines of typed calls and the replay of written values.
#include <gtest/gtest.h>

#include <functional>

#include "acutmem.h"
#include "dbmain.h"
#include "headless/RecordingDwgFiler.h"

namespace {

using headless::RecordingDwgFiler;

TEST(DbRecordingFilerTest, TranscriptShowsEveryCallWithItsValue)
{
    AcDbDatabase db;
    RecordingDwgFiler f;
    char chunk[] = {0x01, 0x7F};
    f.writeInt32(-7);
    f.writeUInt8(200);
    f.writeBool(true);
    f.writeDouble(0.1 + 0.2);  // twelve digits hide the last bits
    f.writeDouble(-0.0);
    f.writeString(L"line\n\"two\"");
    f.writeString(AcString(L"\x9762\x677F"));
    f.writePoint3d(AcGePoint3d(1, 2.5, -3));
    f.writeVector2d(AcGeVector2d(0, 1e-20));
    f.writeScale3d(AcGeScale3d(1, 1, 1));
    f.writeHardPointerId(db.layerZero());
    f.writeSoftPointerId(AcDbObjectId::kNull);
    f.writeAcDbHandle(AcDbHandle(0xAB));
    f.writeBChunk(ads_binary{2, chunk});
    f.writeAddress(&db);
    const std::string expected =
        "writeInt32 -7\n"
        "writeUInt8 200\n"
        "writeBool true\n"
        "writeDouble 0.3\n"
        "writeDouble 0\n"
        "writeString \"line\\n\\\"two\\\"\"\n"
        "writeString \"\xE9\x9D\xA2\xE6\x9D\xBF\"\n"
        "writePoint3d (1, 2.5, -3)\n"
        "writeVector2d (0, 1e-20)\n"
        "writeScale3d (1, 1, 1)\n"
        "writeHardPointerId B\n"
        "writeSoftPointerId null\n"
        "writeAcDbHandle AB\n"
        "writeBChunk 2 [01 7F]\n"
        "writeAddress set\n";
    EXPECT_EQ(f.transcript(), expected);
    EXPECT_EQ(f.writtenCount(), 15);
}

TEST(DbRecordingFilerTest, ReplayGivesBackTheWrittenValues)
{
    AcDbDatabase db;
    RecordingDwgFiler f;
    f.writeInt16(-3);
    f.writeString(L"Standard");
    f.writeHardOwnershipId(db.layerTableId());
    f.writePoint2d(AcGePoint2d(4, 5));
    f.rewind();
    f.clearLines();

    Adesk::Int16 i16 = 0;
    ACHAR* text = nullptr;
    AcDbHardOwnershipId id;
    AcGePoint2d point;
    EXPECT_EQ(f.readInt16(&i16), Acad::eOk);
    EXPECT_EQ(f.readString(&text), Acad::eOk);
    EXPECT_EQ(f.readHardOwnershipId(&id), Acad::eOk);
    EXPECT_EQ(f.readPoint2d(&point), Acad::eOk);
    EXPECT_EQ(i16, -3);
    EXPECT_STREQ(text, L"Standard");
    acutDelString(text);
    EXPECT_EQ(id, db.layerTableId());
    EXPECT_EQ(point.x, 4);
    EXPECT_EQ(f.lines().front(), "readInt16 -3");
    EXPECT_EQ(f.readInt32(nullptr), Acad::eEndOfFile);
    EXPECT_EQ(f.lines().back(), "readInt32 failed (eEndOfFile)");
}

TEST(DbRecordingFilerTest, ReadOfAnotherTypeIsAFilerError)
{
    struct Row {
        const char* what;
        std::function<void(RecordingDwgFiler&)> write;
        std::function<Acad::ErrorStatus(RecordingDwgFiler&)> read;
        Acad::ErrorStatus expected;
    };
    const Row rows[] = {
        {"int32 read as double", [](RecordingDwgFiler& f) { f.writeInt32(1); },
         [](RecordingDwgFiler& f) { return f.readDouble(nullptr); }, Acad::eFilerError},
        {"hard pointer read as soft", [](RecordingDwgFiler& f) { f.writeHardPointerId(AcDbObjectId::kNull); },
         [](RecordingDwgFiler& f) {
             AcDbSoftPointerId id;
             return f.readSoftPointerId(&id);
         },
         Acad::eFilerError},
        {"bool read as boolean", [](RecordingDwgFiler& f) { f.writeBool(true); },
         [](RecordingDwgFiler& f) {
             Adesk::Boolean b = false;
             return f.readBoolean(&b);
         },
         Acad::eOk},
        {"bytes of another length", [](RecordingDwgFiler& f) { f.writeBytes("ab", 2); },
         [](RecordingDwgFiler& f) {
             char buffer[3];
             return f.readBytes(buffer, 3);
         },
         Acad::eFilerError},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        RecordingDwgFiler f;
        row.write(f);
        f.rewind();
        EXPECT_EQ(row.read(f), row.expected);
        EXPECT_EQ(f.filerStatus(), row.expected);
    }
}

TEST(DbRecordingFilerTest, StickyStatusSkipsAndSaysSo)
{
    RecordingDwgFiler f;
    f.setFilerStatus(Acad::eMakeMeProxy);
    EXPECT_EQ(f.writeInt32(1), Acad::eMakeMeProxy);
    EXPECT_EQ(f.writtenCount(), 0);
    EXPECT_EQ(f.lines().back(), "writeInt32 skipped (eMakeMeProxy)");
}

}  // namespace
