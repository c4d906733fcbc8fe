// The typed channels: the filer adapter makes exactly one typed filer call per operation,
// the in-memory channel keeps a cursor per type, and the prefetch adapter hands back the
// integer that was read ahead.
#include <gtest/gtest.h>

#include <tuple>

#include "data/ArrayDataIoAdapter.h"
#include "data/DwgFilerIoAdapter.h"
#include "data/PrefetchDwgFilerIoAdapter.h"
#include "headless/RecordingDwgFiler.h"

namespace {

template <typename... T>
void WriteAll(IDataIO& io, const T&... values)
{
    (io.Write(values), ...);
}

template <typename... T>
void ReadAll(IDataIO& io, T&... values)
{
    (io.Read(values), ...);
}

// One value of every type a channel carries, written and read in one order.
struct EveryType {
    AcString s = L"板";
    AcGePoint2d p2{1, 2};
    AcGePoint3d p3{1, 2, 3};
    AcGeVector2d v2{0, 1};
    AcGeVector3d v3{0, 0, 1};
    double d = 2.5;
    Adesk::UInt32 u = 0xFFFFFFFFu;
    Adesk::Int32 i = -7;
    bool b = true;

    void Write(IDataIO& io) const { WriteAll(io, s, p2, p3, v2, v3, d, u, i, b); }
    void Read(IDataIO& io) { ReadAll(io, s, p2, p3, v2, v3, d, u, i, b); }
    bool operator==(const EveryType& o) const
    {
        return std::tie(s, p2, p3, v2, v3, d, u, i, b) == std::tie(o.s, o.p2, o.p3, o.v2, o.v3, o.d, o.u, o.i, o.b);
    }
};

const EveryType kBlank{L"", {0, 0}, {0, 0, 0}, {1, 0}, {1, 0, 0}, 0, 0, 0, false};

TEST(DataChannelTest, EveryTypeIsOneTypedFilerCallAndRoundTripsThroughBothChannels)
{
    headless::RecordingDwgFiler filer;
    DwgFilerIoAdapter overFiler(&filer);
    EveryType().Write(overFiler);
    overFiler.Write(AcDbSoftPointerId());
    overFiler.Write(AcDbHardPointerId());
    const std::vector<std::string> expected = {
        "writeString \"板\"",      "writePoint2d (1, 2)",     "writePoint3d (1, 2, 3)",  "writeVector2d (0, 1)",
        "writeVector3d (0, 0, 1)", "writeDouble 2.5",         "writeUInt32 4294967295",  "writeInt32 -7",
        "writeBool true",          "writeSoftPointerId null", "writeHardPointerId null",
    };
    EXPECT_EQ(filer.lines(), expected);
    filer.rewind();
    EveryType fromFiler = kBlank;
    fromFiler.Read(overFiler);
    EXPECT_EQ(filer.filerStatus(), Acad::eOk);
    EXPECT_TRUE(fromFiler == EveryType());

    ArrayDataIoAdapter inMemory;
    EveryType().Write(inMemory);
    EveryType fromMemory = kBlank;
    fromMemory.Read(inMemory);
    EXPECT_TRUE(fromMemory == EveryType());
}

TEST(DataChannelTest, IdVectorsAreACountThenTheIdsAndHostileCountsAllocateNothing)
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

    headless::RecordingDwgFiler negative;
    negative.writeInt32(-1);
    negative.rewind();
    io.SetFiler(&negative);
    EXPECT_THROW(io.Read(soft), std::length_error);

    // A count far beyond the data reads what is there and stops at the filer's failure.
    headless::RecordingDwgFiler huge;
    huge.writeInt32(2000000000);
    huge.writeSoftPointerId(AcDbSoftPointerId());
    huge.rewind();
    io.SetFiler(&huge);
    io.Read(soft);
    EXPECT_EQ(soft.size(), 1u);
    EXPECT_NE(huge.filerStatus(), Acad::eOk);
}

TEST(DataChannelTest, TheInMemoryChannelKeepsACursorPerTypeThatRunsPastTheEnd)
{
    ArrayDataIoAdapter io;
    Adesk::Int32 target = 42;
    io.Read(target);  // nothing there: the target stays, the cursor moves on
    EXPECT_EQ(target, 42);
    io.Write(Adesk::Int32(5));  // lands behind the cursor
    io.Write(2.5);
    io.Write(Adesk::Int32(6));
    double d = 0;
    io.Read(d);
    io.Read(target);
    EXPECT_EQ(d, 2.5);
    EXPECT_EQ(target, 6);

    io.Reset();
    io.Write(false);
    bool b = true;
    io.Read(b);
    EXPECT_FALSE(b);
}

TEST(DataChannelTest, ThePrefetchAdapterGivesBackTheReadAheadIntegerOnce)
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
