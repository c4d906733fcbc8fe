// The typed channels: the filer adapter makes exactly one typed filer call per operation,
// the in-memory channel keeps a cursor per type, and the prefetch adapter hands back the
// integer that was read ahead.
#include <gtest/gtest.h>

#include "data/ArrayDataIoAdapter.h"
#include "data/DwgFilerIoAdapter.h"
#include "data/PrefetchDwgFilerIoAdapter.h"
#include "headless/RecordingDwgFiler.h"

namespace {

TEST(DwgFilerIoAdapterTest, EachOperationIsOneTypedFilerCall)
{
    headless::RecordingDwgFiler filer;
    DwgFilerIoAdapter io(&filer);
    io.Write(AcString(L"板"));
    io.Write(AcGePoint2d(1, 2));
    io.Write(AcGePoint3d(1, 2, 3));
    io.Write(AcGeVector2d(0, 1));
    io.Write(AcGeVector3d(0, 0, 1));
    io.Write(2.5);
    io.Write(Adesk::UInt32(7));
    io.Write(Adesk::Int32(-7));
    io.Write(true);
    io.Write(AcDbSoftPointerId());
    io.Write(AcDbHardPointerId());
    const std::vector<std::string> expected = {
        "writeString \"板\"", "writePoint2d (1, 2)", "writePoint3d (1, 2, 3)", "writeVector2d (0, 1)",
        "writeVector3d (0, 0, 1)", "writeDouble 2.5", "writeUInt32 7", "writeInt32 -7", "writeBool true",
        "writeSoftPointerId null", "writeHardPointerId null",
    };
    EXPECT_EQ(filer.lines(), expected);

    filer.rewind();
    filer.clearLines();
    AcString s;
    AcGePoint2d p2;
    AcGePoint3d p3;
    AcGeVector2d v2;
    AcGeVector3d v3;
    double d = 0;
    Adesk::UInt32 u = 0;
    Adesk::Int32 i = 0;
    bool b = false;
    AcDbSoftPointerId soft;
    AcDbHardPointerId hard;
    io.Read(s);
    io.Read(p2);
    io.Read(p3);
    io.Read(v2);
    io.Read(v3);
    io.Read(d);
    io.Read(u);
    io.Read(i);
    io.Read(b);
    io.Read(soft);
    io.Read(hard);
    EXPECT_EQ(filer.filerStatus(), Acad::eOk);
    EXPECT_EQ(s, AcString(L"板"));
    EXPECT_EQ(p3, AcGePoint3d(1, 2, 3));
    EXPECT_EQ(v2, AcGeVector2d(0, 1));
    EXPECT_EQ(d, 2.5);
    EXPECT_EQ(u, 7u);
    EXPECT_EQ(i, -7);
    EXPECT_TRUE(b);
    ASSERT_EQ(filer.lines().size(), expected.size());
    EXPECT_EQ(filer.lines()[0].rfind("readString", 0), 0u);
    EXPECT_EQ(filer.lines()[9].rfind("readSoftPointerId", 0), 0u);
    EXPECT_EQ(filer.lines()[10].rfind("readHardPointerId", 0), 0u);
}

TEST(DwgFilerIoAdapterTest, IdVectorsAreACountThenTheIds)
{
    headless::RecordingDwgFiler filer;
    DwgFilerIoAdapter io(&filer);
    io.Write(std::vector<AcDbSoftPointerId>(2));
    io.Write(std::vector<AcDbHardPointerId>(1));
    const std::vector<std::string> expected = {"writeInt32 2", "writeSoftPointerId null", "writeSoftPointerId null",
                                               "writeInt32 1", "writeHardPointerId null"};
    EXPECT_EQ(filer.lines(), expected);

    filer.rewind();
    std::vector<AcDbSoftPointerId> soft(5);
    std::vector<AcDbHardPointerId> hard;
    io.Read(soft);
    io.Read(hard);
    EXPECT_EQ(soft.size(), 2u);
    EXPECT_EQ(hard.size(), 1u);
}

TEST(DwgFilerIoAdapterTest, HostileIdCountsNeitherCrashNorAllocate)
{
    headless::RecordingDwgFiler negative;
    negative.writeInt32(-1);
    negative.rewind();
    DwgFilerIoAdapter io(&negative);
    std::vector<AcDbSoftPointerId> ids;
    EXPECT_THROW(io.Read(ids), std::length_error);

    // A count far beyond the data reads what is there and stops at the filer's failure.
    headless::RecordingDwgFiler huge;
    huge.writeInt32(2000000000);
    huge.writeSoftPointerId(AcDbSoftPointerId());
    huge.rewind();
    io.SetFiler(&huge);
    io.Read(ids);
    EXPECT_EQ(ids.size(), 1u);
    EXPECT_NE(huge.filerStatus(), Acad::eOk);
}

TEST(ArrayDataIoAdapterTest, CursorsArePerType)
{
    ArrayDataIoAdapter io;
    io.Write(Adesk::Int32(5));
    io.Write(2.5);
    io.Write(Adesk::Int32(6));
    double d = 0;
    Adesk::Int32 first = 0;
    Adesk::Int32 second = 0;
    io.Read(d);
    io.Read(first);
    io.Read(second);
    EXPECT_EQ(d, 2.5);
    EXPECT_EQ(first, 5);
    EXPECT_EQ(second, 6);
}

TEST(ArrayDataIoAdapterTest, ReadingPastTheEndLeavesTheTargetAndAdvances)
{
    ArrayDataIoAdapter io;
    Adesk::Int32 target = 42;
    io.Read(target);
    EXPECT_EQ(target, 42);
    io.Write(Adesk::Int32(9));  // lands at index 0, behind the cursor
    io.Read(target);
    EXPECT_EQ(target, 42);

    io.Reset();
    io.Write(Adesk::Int32(9));
    io.Read(target);
    EXPECT_EQ(target, 9);
}

TEST(ArrayDataIoAdapterTest, EveryTypeRoundTrips)
{
    ArrayDataIoAdapter io;
    io.Write(true);
    io.Write(false);
    io.Write(Adesk::UInt32(0xFFFFFFFFu));
    io.Write(AcString(L"洞口"));
    io.Write(AcGePoint2d(3, 4));
    io.Write(AcGePoint3d(5, 6, 7));
    io.Write(AcGeVector2d(-1, 0));
    io.Write(AcGeVector3d(0, -1, 0));
    bool t = false;
    bool f = true;
    Adesk::UInt32 u = 0;
    AcString s;
    AcGePoint2d p2;
    AcGePoint3d p3;
    AcGeVector2d v2;
    AcGeVector3d v3;
    io.Read(t);
    io.Read(f);
    io.Read(u);
    io.Read(s);
    io.Read(p2);
    io.Read(p3);
    io.Read(v2);
    io.Read(v3);
    EXPECT_TRUE(t);
    EXPECT_FALSE(f);
    EXPECT_EQ(u, 0xFFFFFFFFu);
    EXPECT_EQ(s, AcString(L"洞口"));
    EXPECT_EQ(p2, AcGePoint2d(3, 4));
    EXPECT_EQ(p3, AcGePoint3d(5, 6, 7));
    EXPECT_EQ(v2, AcGeVector2d(-1, 0));
    EXPECT_EQ(v3, AcGeVector3d(0, -1, 0));
}

TEST(PrefetchAdapterTest, GivesBackTheReadAheadIntegerOnce)
{
    ArrayDataIoAdapter inner;
    inner.Write(Adesk::Int32(11));
    inner.Write(1.5);
    PrefetchDwgFilerIoAdapter io(&inner, 7);
    Adesk::Int32 first = 0;
    Adesk::Int32 second = 0;
    double d = 0;
    io.Read(d);  // other types forward straight away
    io.Read(first);
    io.Read(second);
    EXPECT_EQ(d, 1.5);
    EXPECT_EQ(first, 7);
    EXPECT_EQ(second, 11);
}

}  // namespace
