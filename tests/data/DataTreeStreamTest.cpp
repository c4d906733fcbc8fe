// The tree stream: header, node layout, reading of header-less data, limits and unknown
// tags. The stream is a file format: these transcripts must never change.
#include <gtest/gtest.h>

#include "TreeTestEntity.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/RecordingDwgFiler.h"

namespace {

class DataTreeStreamTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { TreeTestEntity::EnsureRegistered(); }
};

std::vector<std::string> WrittenLines(const TreeTestEntity& entity)
{
    headless::RecordingDwgFiler filer;
    EXPECT_TRUE(entity.TreeOut(&filer));
    return filer.lines();
}

TEST_F(DataTreeStreamTest, AnEmptyRootIsFourIntegers)
{
    TreeTestEntity entity;
    const std::vector<std::string> expected = {"writeInt32 -1001", "writeInt32 1", "writeInt32 0", "writeInt32 0"};
    EXPECT_EQ(WrittenLines(entity), expected);
}

TEST_F(DataTreeStreamTest, ValuesThenChildrenEachWithTheirNames)
{
    TreeTestEntity entity;
    entity.GetNode(L"root")->SetValue(L"a", 5);
    entity.AddNode(L"c");
    const std::vector<std::string> expected = {
        "writeInt32 -1001", "writeInt32 1",  // header
        "writeInt32 1",                      // one value
        "writeString \"a\"", "writeInt32 0", "writeInt32 5",
        "writeInt32 1",  // one child
        "writeString \"c\"", "writeInt32 0", "writeInt32 0",
    };
    EXPECT_EQ(WrittenLines(entity), expected);
}

TEST_F(DataTreeStreamTest, EveryValueTypeHasItsTagAndOneCall)
{
    TreeTestEntity entity;
    DataNode* node = entity.AddNode(L"n");
    node->SetValue(L"0", 1);
    node->SetValue(L"1", 1.5);
    node->SetValue(L"2", L"文字");
    node->SetValue(L"3", true);
    node->SetValue(L"4", AcGePoint2d(1, 2));
    node->SetValue(L"5", AcGePoint3d(1, 2, 3));
    node->SetValue(L"6", AcGeVector2d(0, 1));
    node->SetValue(L"7", AcGeVector3d(0, 0, 1));
    node->SetValue(L"8", AcDbSoftPointerId());
    node->SetValue(L"9", AcDbHardPointerId());
    const std::vector<std::string> lines = WrittenLines(entity);
    const std::vector<std::string> valueLines(lines.begin() + 6, lines.end() - 1);
    const std::vector<std::string> expected = {
        "writeString \"0\"", "writeInt32 0", "writeInt32 1",
        "writeString \"1\"", "writeInt32 1", "writeDouble 1.5",
        "writeString \"2\"", "writeInt32 2", "writeString \"文字\"",
        "writeString \"3\"", "writeInt32 3", "writeBool true",
        "writeString \"4\"", "writeInt32 4", "writePoint2d (1, 2)",
        "writeString \"5\"", "writeInt32 5", "writePoint3d (1, 2, 3)",
        "writeString \"6\"", "writeInt32 6", "writeVector2d (0, 1)",
        "writeString \"7\"", "writeInt32 7", "writeVector3d (0, 0, 1)",
        "writeString \"8\"", "writeInt32 8", "writeSoftPointerId null",
        "writeString \"9\"", "writeInt32 9", "writeHardPointerId null",
    };
    EXPECT_EQ(valueLines, expected);
}

TEST_F(DataTreeStreamTest, ARoundTripIsLosslessAndTheSecondFilingIsIdentical)
{
    TreeTestEntity source;
    DataNode* record = source.AddNode(L"Record");
    record->SetValue(L"width", 300.0);
    record->SetValue(L"name", L"北立面");
    record->SetValue(L"count", 12);
    record->AddChild(L"Label")->SetValue(L"pos", AcGePoint3d(10, 20, 0));
    source.GetNode(L"")->SetValue(L"flag", false);

    headless::MemoryDwgFiler first;
    ASSERT_TRUE(source.TreeOut(&first));
    headless::MemoryDwgFiler reader(first.bytes(), AcDb::kFileFiler, nullptr);
    TreeTestEntity copy;
    ASSERT_TRUE(copy.TreeIn(&reader));
    EXPECT_EQ(reader.filerStatus(), Acad::eOk);
    EXPECT_EQ(reader.remaining(), 0u);
    EXPECT_EQ(copy.TreeReadVersion(), 1);

    double width = 0;
    AcString name;
    int count = 0;
    AcGePoint3d pos;
    bool flag = true;
    ASSERT_NE(copy.GetNode(L"Record"), nullptr);
    EXPECT_TRUE(copy.GetNode(L"Record")->GetValue(L"width", width));
    EXPECT_TRUE(copy.GetNode(L"Record")->GetValue(L"name", name));
    EXPECT_TRUE(copy.GetNode(L"Record")->GetValue(L"count", count));
    EXPECT_TRUE(copy.GetNode(L"Record")->GetChild(L"Label")->GetValue(L"pos", pos));
    EXPECT_TRUE(copy.GetNode(L"root")->GetValue(L"flag", flag));
    EXPECT_EQ(width, 300.0);
    EXPECT_EQ(name, AcString(L"北立面"));
    EXPECT_EQ(count, 12);
    EXPECT_EQ(pos, AcGePoint3d(10, 20, 0));
    EXPECT_FALSE(flag);

    headless::MemoryDwgFiler second;
    ASSERT_TRUE(copy.TreeOut(&second));
    EXPECT_EQ(second.bytes(), first.bytes());
}

TEST_F(DataTreeStreamTest, DataWithoutAHeaderIsStillRead)
{
    headless::RecordingDwgFiler filer;
    filer.writeInt32(3);  // the root's value count: no magic number
    for (int i = 0; i < 3; ++i) {
        filer.writeString(AcString(i == 0 ? L"x" : (i == 1 ? L"y" : L"z")));
        filer.writeInt32(0);
        filer.writeInt32(10 + i);
    }
    filer.writeInt32(0);
    filer.rewind();
    TreeTestEntity entity;
    EXPECT_TRUE(entity.TreeIn(&filer));
    EXPECT_EQ(entity.TreeReadVersion(), 0);
    EXPECT_EQ(entity.GetNode(L"")->GetAllKeys().size(), 3u);
    int z = 0;
    EXPECT_TRUE(entity.GetNode(L"")->GetValue(L"z", z));
    EXPECT_EQ(z, 12);
}

TEST_F(DataTreeStreamTest, ANewerTreeFormatIsNotRead)
{
    headless::RecordingDwgFiler filer;
    filer.writeInt32(-1001);
    filer.writeInt32(2);
    filer.writeInt32(1);
    filer.writeString(AcString(L"k"));
    filer.writeInt32(0);
    filer.writeInt32(1);
    filer.rewind();
    TreeTestEntity entity;
    entity.GetNode(L"")->SetValue(L"kept", 1);
    EXPECT_FALSE(entity.TreeIn(&filer));
    EXPECT_EQ(entity.TreeReadVersion(), 2);
    EXPECT_TRUE(entity.GetNode(L"")->HasKey(L"kept"));
    EXPECT_FALSE(entity.GetNode(L"")->HasKey(L"k"));
    EXPECT_EQ(filer.filerStatus(), Acad::eOk);
}

// Writes a root with count values "k<i>" = i and no children.
void WriteRootWithValues(headless::RecordingDwgFiler& filer, int declared, int actual)
{
    filer.writeInt32(-1001);
    filer.writeInt32(1);
    filer.writeInt32(declared);
    for (int i = 0; i < actual; ++i) {
        AcString key;
        key.format(L"k%d", i);
        filer.writeString(key);
        filer.writeInt32(0);
        filer.writeInt32(i);
    }
    filer.writeInt32(0);
    filer.rewind();
}

TEST_F(DataTreeStreamTest, ValueCountLimitIs4096)
{
    struct Row {
        const char* what;
        int declared;
        bool accepted;
        std::size_t keys;
    };
    const Row rows[] = {
        {"at the limit", 4096, true, 4096},
        {"one above", 4097, false, 0},
        {"negative", -1, false, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        headless::RecordingDwgFiler filer;
        WriteRootWithValues(filer, row.declared, row.accepted ? row.declared : 0);
        TreeTestEntity entity;
        entity.GetNode(L"")->SetValue(L"old", 1);
        EXPECT_EQ(entity.TreeIn(&filer), row.accepted);
        EXPECT_EQ(entity.GetNode(L"")->GetAllKeys().size(), row.keys);
    }
}

TEST_F(DataTreeStreamTest, AnUnknownTagEndsTheNodeKeepingWhatWasRead)
{
    headless::RecordingDwgFiler filer;
    filer.writeInt32(-1001);
    filer.writeInt32(1);
    filer.writeInt32(3);
    filer.writeString(AcString(L"first"));
    filer.writeInt32(0);
    filer.writeInt32(1);
    filer.writeString(AcString(L"second"));
    filer.writeInt32(10);  // no such type
    filer.writeInt32(2);
    filer.writeString(AcString(L"third"));
    filer.writeInt32(0);
    filer.writeInt32(3);
    filer.writeInt32(0);
    filer.rewind();
    TreeTestEntity entity;
    entity.AddNode(L"child");
    EXPECT_FALSE(entity.TreeIn(&filer));
    const auto keys = entity.GetNode(L"")->GetAllKeys();
    ASSERT_EQ(keys.size(), 1u);
    EXPECT_EQ(keys[0], AcString(L"first"));
    EXPECT_NE(entity.GetNode(L"child"), nullptr);  // children were left as they were
}

TEST_F(DataTreeStreamTest, RepeatedKeysAndNamesKeepTheFirst)
{
    headless::RecordingDwgFiler filer;
    filer.writeInt32(-1001);
    filer.writeInt32(1);
    filer.writeInt32(2);
    filer.writeString(AcString(L"k"));
    filer.writeInt32(0);
    filer.writeInt32(1);
    filer.writeString(AcString(L"k"));
    filer.writeInt32(0);
    filer.writeInt32(2);
    filer.writeInt32(2);
    filer.writeString(AcString(L"c"));
    filer.writeInt32(1);
    filer.writeString(AcString(L"v"));
    filer.writeInt32(0);
    filer.writeInt32(7);
    filer.writeInt32(0);
    filer.writeString(AcString(L"c"));
    filer.writeInt32(0);
    filer.writeInt32(0);
    filer.rewind();
    TreeTestEntity entity;
    EXPECT_TRUE(entity.TreeIn(&filer));
    int k = 0;
    int v = 0;
    EXPECT_TRUE(entity.GetNode(L"")->GetValue(L"k", k));
    EXPECT_EQ(k, 1);
    EXPECT_TRUE(entity.GetNode(L"c")->GetValue(L"v", v));
    EXPECT_EQ(v, 7);
}

TEST_F(DataTreeStreamTest, BadChildCountsEmptyTheChildren)
{
    headless::RecordingDwgFiler filer;
    filer.writeInt32(-1001);
    filer.writeInt32(1);
    filer.writeInt32(0);
    filer.writeInt32(5000);
    filer.rewind();
    TreeTestEntity entity;
    entity.AddNode(L"old");
    EXPECT_FALSE(entity.TreeIn(&filer));
    EXPECT_TRUE(entity.GetNode(L"")->GetAllChildNames().empty());
}

TEST_F(DataTreeStreamTest, HostileNestingAndTruncationNeitherCrashNorLoop)
{
    // Ten thousand nested children: deeper than any real tree.
    headless::MemoryDwgFiler deep;
    deep.writeInt32(-1001);
    deep.writeInt32(1);
    for (int i = 0; i < 10000; ++i) {
        deep.writeInt32(0);
        deep.writeInt32(1);
        deep.writeString(AcString(L"n"));
    }
    headless::MemoryDwgFiler reader(deep.bytes(), AcDb::kFileFiler, nullptr);
    TreeTestEntity entity;
    entity.TreeIn(&reader);
    int depth = 0;
    for (DataNode* node = entity.GetNode(L""); node != nullptr; node = node->GetChild(L"n"))
        ++depth;
    EXPECT_LE(depth, DataNode::kMaxDepth + 2);

    // Every prefix of a valid stream reads without trouble.
    TreeTestEntity source;
    source.AddNode(L"a")->SetValue(L"x", AcGePoint3d(1, 2, 3));
    source.AddNode(L"b")->SetValue(L"s", L"text");
    headless::MemoryDwgFiler whole;
    source.TreeOut(&whole);
    for (std::size_t cut = 0; cut < whole.bytes().size(); ++cut) {
        std::vector<std::uint8_t> prefix(whole.bytes().begin(), whole.bytes().begin() + static_cast<long>(cut));
        headless::MemoryDwgFiler truncated(prefix, AcDb::kFileFiler, nullptr);
        TreeTestEntity target;
        target.TreeIn(&truncated);
        EXPECT_NE(truncated.filerStatus(), Acad::eOk) << "cut at " << cut;
    }
}

}  // namespace
