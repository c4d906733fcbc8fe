// MemoryDwgFiler: the byte layout (pinned: it is the drawing file's), a round trip of every
// typed operation, the sticky status, truncated and hostile input, and references.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>

#include "acutmem.h"
#include "dbmain.h"
#include "headless/MemoryDwgFiler.h"

namespace {

using headless::MemoryDwgFiler;
using Bytes = std::vector<std::uint8_t>;

// One write of every kind, with values that use every byte of their width.
void writeEverything(AcDbDwgFiler& f, const AcDbObjectId& id)
{
    char chunk[] = {'x', 'y', 'z'};
    const std::uint8_t raw[] = {0xDE, 0xAD, 0xBE, 0xEF};
    f.writeInt8(-5);
    f.writeUInt8(0xAB);
    f.writeInt16(-2);
    f.writeUInt16(0xBEEF);
    f.writeInt32(-123456789);
    f.writeUInt32(0xDEADBEEFu);
    f.writeInt64(-1234567890123456789LL);
    f.writeUInt64(0xFEDCBA9876543210ull);
    f.writeBool(true);
    f.writeBoolean(false);
    f.writeDouble(-1.0 / 3.0);
    f.writeString(L"Standard");
    f.writeString(AcString(L"\x9762\x677F \x00E9"));  // 面板 é
    f.writeAcDbHandle(AcDbHandle(0x1F));
    f.writeHardOwnershipId(id);
    f.writeSoftOwnershipId(AcDbObjectId::kNull);
    f.writeHardPointerId(id);
    f.writeSoftPointerId(id);
    f.writePoint2d(AcGePoint2d(1.5, -2.5));
    f.writePoint3d(AcGePoint3d(1, 2, 3));
    f.writeVector2d(AcGeVector2d(0, -1));
    f.writeVector3d(AcGeVector3d(0, 0, 1));
    f.writeScale3d(AcGeScale3d(2, 3, 4));
    f.writeBChunk(ads_binary{3, chunk});
    f.writeBytes(raw, sizeof raw);
}

// Reads back what writeEverything wrote and checks every value while the status is eOk.
Acad::ErrorStatus readEverything(AcDbDwgFiler& f, const AcDbObjectId& id)
{
    Adesk::Int8 i8 = 0;
    Adesk::UInt8 u8 = 0;
    Adesk::Int16 i16 = 0;
    Adesk::UInt16 u16 = 0;
    Adesk::Int32 i32 = 0;
    Adesk::UInt32 u32 = 0;
    Adesk::Int64 i64 = 0;
    Adesk::UInt64 u64 = 0;
    bool b = false;
    Adesk::Boolean boolean = true;
    double d = 0.0;
    ACHAR* text = nullptr;
    AcString wide;
    AcDbHandle handle;
    AcDbHardOwnershipId hardOwner;
    AcDbSoftOwnershipId softOwner;
    AcDbHardPointerId hardPointer;
    AcDbSoftPointerId softPointer;
    AcGePoint2d p2;
    AcGePoint3d p3;
    AcGeVector2d v2;
    AcGeVector3d v3;
    AcGeScale3d scale;
    ads_binary chunk{0, nullptr};
    std::uint8_t raw[4] = {};

    auto check = [&f](bool ok, const char* what) {
        if (f.filerStatus() == Acad::eOk) {
            EXPECT_TRUE(ok) << what;
        }
    };
    f.readInt8(&i8);
    check(i8 == -5, "int8");
    f.readUInt8(&u8);
    check(u8 == 0xAB, "uint8");
    f.readInt16(&i16);
    check(i16 == -2, "int16");
    f.readUInt16(&u16);
    check(u16 == 0xBEEF, "uint16");
    f.readInt32(&i32);
    check(i32 == -123456789, "int32");
    f.readUInt32(&u32);
    check(u32 == 0xDEADBEEFu, "uint32");
    f.readInt64(&i64);
    check(i64 == -1234567890123456789LL, "int64");
    f.readUInt64(&u64);
    check(u64 == 0xFEDCBA9876543210ull, "uint64");
    f.readBool(&b);
    check(b, "bool");
    f.readBoolean(&boolean);
    check(!boolean, "boolean");
    f.readDouble(&d);
    check(d == -1.0 / 3.0, "double");
    f.readString(&text);
    check(text != nullptr && std::wcscmp(text, L"Standard") == 0, "string");
    acutDelString(text);
    f.readString(wide);
    check(wide == AcString(L"\x9762\x677F \x00E9"), "wide string");
    f.readAcDbHandle(&handle);
    check(handle == AcDbHandle(0x1F), "handle");
    f.readHardOwnershipId(&hardOwner);
    check(hardOwner == id, "hard owner");
    f.readSoftOwnershipId(&softOwner);
    check(softOwner.isNull(), "soft owner");
    f.readHardPointerId(&hardPointer);
    check(hardPointer == id, "hard pointer");
    f.readSoftPointerId(&softPointer);
    check(softPointer == id, "soft pointer");
    f.readPoint2d(&p2);
    check(p2.x == 1.5 && p2.y == -2.5, "point2d");
    f.readPoint3d(&p3);
    check(p3.x == 1 && p3.y == 2 && p3.z == 3, "point3d");
    f.readVector2d(&v2);
    check(v2.x == 0 && v2.y == -1, "vector2d");
    f.readVector3d(&v3);
    check(v3.x == 0 && v3.y == 0 && v3.z == 1, "vector3d");
    f.readScale3d(&scale);
    check(scale.sx == 2 && scale.sy == 3 && scale.sz == 4, "scale3d");
    f.readBChunk(&chunk);
    check(chunk.clen == 3 && chunk.buf != nullptr && std::memcmp(chunk.buf, "xyz", 3) == 0, "bchunk");
    delete[] chunk.buf;
    f.readBytes(raw, sizeof raw);
    check(raw[0] == 0xDE && raw[3] == 0xEF, "bytes");
    return f.filerStatus();
}

TEST(DbMemoryFilerTest, EveryTypedOperationRoundTrips)
{
    AcDbDatabase db;
    MemoryDwgFiler out(AcDb::kFileFiler, &db);
    writeEverything(out, db.layerZero());
    ASSERT_EQ(out.filerStatus(), Acad::eOk);
    MemoryDwgFiler in(out.bytes(), AcDb::kFileFiler, &db);
    EXPECT_EQ(readEverything(in, db.layerZero()), Acad::eOk);
    EXPECT_EQ(in.remaining(), 0u);
}

TEST(DbMemoryFilerTest, LayoutOfASmallSequence)
{
    AcDbDatabase db;
    MemoryDwgFiler f(AcDb::kFileFiler, &db);
    f.writeInt32(1);
    f.writeDouble(1.0);
    f.writeString(L"Ab");
    f.writeString(L"\U0001F600");
    f.writeBool(true);
    f.writeHardPointerId(db.currentSpaceId());
    f.writeInt16(-2);
    f.writePoint2d(AcGePoint2d(0.5, -2.0));
    char xyz[] = {'x', 'y', 'z'};
    f.writeBChunk(ads_binary{3, xyz});
    f.writeHardPointerId(AcDbObjectId::kNull);
    const Bytes expected = {
        0x01, 0x00, 0x00, 0x00,                          // Int32 1
        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xF0, 0x3F,  // double 1.0
        0x02, 0x00, 0x00, 0x00, 0x41, 0x00, 0x62, 0x00,  // "Ab": count, UTF-16LE
        0x02, 0x00, 0x00, 0x00, 0x3D, 0xD8, 0x00, 0xDE,  // U+1F600 as a surrogate pair
        0x01,                                            // true
        0x06, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,  // model space, handle 6
        0xFE, 0xFF,                                      // Int16 -2
        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xE0, 0x3F,  // 0.5
        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xC0,  // -2.0
        0x03, 0x00, 0x78, 0x79, 0x7A,                    // chunk: 16-bit length, bytes
        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,  // null reference
    };
    EXPECT_EQ(f.bytes(), expected);
    EXPECT_EQ(f.tell(), static_cast<Adesk::Int64>(expected.size()));
}

TEST(DbMemoryFilerTest, TruncatedInputFailsAtEveryLengthWithoutHarm)
{
    AcDbDatabase db;
    MemoryDwgFiler out(AcDb::kFileFiler, &db);
    writeEverything(out, db.layerZero());
    const Bytes& all = out.bytes();
    for (size_t length = 0; length < all.size(); ++length) {
        SCOPED_TRACE(length);
        MemoryDwgFiler in(Bytes(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(length)),
                          AcDb::kFileFiler, &db);
        EXPECT_EQ(readEverything(in, db.layerZero()), Acad::eEndOfFile);
    }
}

TEST(DbMemoryFilerTest, StatusIsStickyUntilReset)
{
    MemoryDwgFiler f;
    f.writeInt32(5);
    f.setFilerStatus(Acad::eInvalidInput);
    EXPECT_EQ(f.writeInt32(6), Acad::eInvalidInput);
    EXPECT_EQ(f.writeString(L"lost"), Acad::eInvalidInput);
    EXPECT_EQ(f.bytes().size(), 4u);
    f.seek(0, AcDb::kSeekFromStart);
    Adesk::Int32 value = -1;
    EXPECT_EQ(f.readInt32(&value), Acad::eInvalidInput);
    EXPECT_EQ(value, -1);
    f.resetFilerStatus();
    EXPECT_EQ(f.readInt32(&value), Acad::eOk);
    EXPECT_EQ(value, 5);
    EXPECT_EQ(f.readInt32(&value), Acad::eEndOfFile);
    EXPECT_EQ(f.readDouble(nullptr), Acad::eEndOfFile);
}

TEST(DbMemoryFilerTest, HostileLengthsFailBeforeAllocating)
{
    struct Row {
        const char* what;
        bool isString;
        Bytes bytes;
        Acad::ErrorStatus expected;
    };
    const Row rows[] = {
        {"string longer than the data", true, {0xFF, 0xFF, 0xFF, 0xFF, 0x41, 0x00}, Acad::eEndOfFile},
        {"string one unit short", true, {0x02, 0x00, 0x00, 0x00, 0x41, 0x00, 0x42}, Acad::eEndOfFile},
        {"negative chunk", false, {0xFF, 0xFF, 0x00}, Acad::eFilerError},
        {"chunk longer than the data", false, {0xFF, 0x7F, 0x01, 0x02}, Acad::eEndOfFile},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        MemoryDwgFiler f(row.bytes, AcDb::kFileFiler, nullptr);
        if (row.isString) {
            AcString text(L"kept");
            EXPECT_EQ(f.readString(text), row.expected);
            EXPECT_EQ(text, AcString(L"kept"));
        } else {
            ads_binary chunk{9, nullptr};
            EXPECT_EQ(f.readBChunk(&chunk), row.expected);
            EXPECT_EQ(chunk.buf, nullptr);
            EXPECT_EQ(chunk.clen, 0);
        }
        EXPECT_EQ(f.filerStatus(), row.expected);
    }
}

TEST(DbMemoryFilerTest, BooleansAreZeroOrOne)
{
    MemoryDwgFiler f(Bytes{0x00, 0x01, 0x02}, AcDb::kFileFiler, nullptr);
    bool value = true;
    EXPECT_EQ(f.readBool(&value), Acad::eOk);
    EXPECT_FALSE(value);
    EXPECT_EQ(f.readBool(&value), Acad::eOk);
    EXPECT_TRUE(value);
    EXPECT_EQ(f.readBool(&value), Acad::eFilerError);
}

TEST(DbMemoryFilerTest, DoublesKeepTheirBits)
{
    const double values[] = {0.0, -0.0, std::numeric_limits<double>::denorm_min(),
                             std::numeric_limits<double>::infinity(), std::nan("1"), 1e300};
    MemoryDwgFiler f;
    for (double v : values)
        f.writeDouble(v);
    f.seek(0, AcDb::kSeekFromStart);
    for (double v : values) {
        double read = 0.0;
        ASSERT_EQ(f.readDouble(&read), Acad::eOk);
        EXPECT_EQ(std::memcmp(&read, &v, sizeof v), 0);
    }
}

TEST(DbMemoryFilerTest, FileFilersRefuseAddresses)
{
    int target = 0;
    MemoryDwgFiler file(AcDb::kFileFiler);
    EXPECT_EQ(file.writeAddress(&target), Acad::eNotApplicable);
    EXPECT_EQ(file.filerStatus(), Acad::eNotApplicable);

    MemoryDwgFiler undo(AcDb::kUndoFiler);
    ASSERT_EQ(undo.writeAddress(&target), Acad::eOk);
    undo.seek(0, AcDb::kSeekFromStart);
    void* read = nullptr;
    ASSERT_EQ(undo.readAddress(&read), Acad::eOk);
    EXPECT_EQ(read, &target);
}

TEST(DbMemoryFilerTest, SeekStaysInsideTheData)
{
    MemoryDwgFiler f;
    f.writeInt32(1);
    f.writeInt32(2);
    struct Row {
        Adesk::Int64 offset;
        int method;
        Acad::ErrorStatus expected;
        Adesk::Int64 position;
    };
    const Row rows[] = {
        {4, AcDb::kSeekFromStart, Acad::eOk, 4},
        {-4, AcDb::kSeekFromCurrent, Acad::eOk, 0},
        {-4, AcDb::kSeekFromEnd, Acad::eOk, 4},
        {0, AcDb::kSeekFromEnd, Acad::eOk, 8},
        {9, AcDb::kSeekFromStart, Acad::eInvalidInput, 8},
        {-1, AcDb::kSeekFromStart, Acad::eInvalidInput, 8},
        {std::numeric_limits<Adesk::Int64>::min(), AcDb::kSeekFromEnd, Acad::eInvalidInput, 8},
        {0, 7, Acad::eInvalidInput, 8},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.offset);
        f.resetFilerStatus();
        EXPECT_EQ(f.seek(row.offset, row.method), row.expected);
        EXPECT_EQ(f.tell(), row.position);
    }
    f.resetFilerStatus();
    f.seek(4, AcDb::kSeekFromStart);
    f.writeInt32(3);  // overwrites the second value
    f.seek(0, AcDb::kSeekFromStart);
    Adesk::Int32 a = 0, b = 0;
    f.readInt32(&a);
    f.readInt32(&b);
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, 3);
}

TEST(DbMemoryFilerTest, ReferencesResolveThroughTheDatabase)
{
    AcDbDatabase db;
    AcDbDatabase other;
    MemoryDwgFiler out(AcDb::kFileFiler, &db);
    out.writeHardPointerId(db.layerZero());
    AcDbHandle unknown(0x9999);
    out.writeAcDbHandle(unknown);  // same bytes as a reference to an unknown handle
    const Bytes bytes = out.bytes();

    struct Row {
        const char* what;
        AcDbDatabase* database;
        bool createStubs;
    };
    const Row rows[] = {{"same database", &db, false}, {"no database", nullptr, false},
                        {"creating stubs", &other, true}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        MemoryDwgFiler in(bytes, AcDb::kFileFiler, row.database);
        in.setCreatesStubs(row.createStubs);
        AcDbHardPointerId first;
        AcDbSoftPointerId second;
        ASSERT_EQ(in.readHardPointerId(&first), Acad::eOk);
        ASSERT_EQ(in.readSoftPointerId(&second), Acad::eOk);
        if (row.database == &db) {
            EXPECT_EQ(first, db.layerZero());
            EXPECT_TRUE(second.isNull());
        } else if (row.database == nullptr) {
            EXPECT_TRUE(first.isNull());
            EXPECT_TRUE(second.isNull());
        } else {
            EXPECT_EQ(first.handle(), db.layerZero().handle());
            EXPECT_EQ(first.database(), &other);
            EXPECT_EQ(second.handle(), unknown);
            EXPECT_FALSE(second.isResident());
        }
    }
}

TEST(DbMemoryFilerTest, AFilerWithoutADatabaseTakesTheFirstReferences)
{
    AcDbDatabase db;
    MemoryDwgFiler f(AcDb::kCopyFiler);
    f.writeSoftPointerId(db.layerZero());
    EXPECT_EQ(f.database(), &db);
    f.seek(0, AcDb::kSeekFromStart);
    AcDbSoftPointerId id;
    f.readSoftPointerId(&id);
    EXPECT_EQ(id, db.layerZero());
}

}  // namespace
