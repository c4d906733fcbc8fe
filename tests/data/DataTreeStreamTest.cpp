// The tree stream: header, node layout, reading of header-less data, limits, unknown tags
// and nesting. The stream is a file format: these transcripts must never change.
#include <gtest/gtest.h>

#include "FilerScript.h"
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

// Files source, reads it into copy with nothing left over, and files copy to the same bytes.
void ExpectReadBackWhole(const TreeTestEntity& source, TreeTestEntity& copy)
{
    headless::MemoryDwgFiler written;
    ASSERT_TRUE(source.TreeOut(&written));
    headless::MemoryDwgFiler reader(written.bytes(), AcDb::kFileFiler, nullptr);
    ASSERT_TRUE(copy.TreeIn(&reader));
    EXPECT_EQ(reader.remaining(), 0u);
    headless::MemoryDwgFiler again;
    ASSERT_TRUE(copy.TreeOut(&again));
    EXPECT_EQ(again.bytes(), written.bytes());
}

TEST_F(DataTreeStreamTest, SmallTreesWriteTheirCountsNamesAndValues)
{
    TreeTestEntity empty;
    EXPECT_EQ(WrittenLines(empty), qxtest::ItemLines({-1001, 1, 0, 0}));

    TreeTestEntity entity;
    entity.GetNode(L"root")->SetValue(L"a", 5);
    entity.AddNode(L"c");
    EXPECT_EQ(WrittenLines(entity), qxtest::ItemLines({-1001, 1, 1, L"a", 0, 5, 1, L"c", 0, 0}));
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
    // clang-format off
    EXPECT_EQ(valueLines, qxtest::ItemLines({
        L"0", 0, 1, L"1", 1, 1.5, L"2", 2, L"文字", L"3", 3, true,
        L"4", 4, AcGePoint2d(1, 2), L"5", 5, AcGePoint3d(1, 2, 3), L"6", 6, AcGeVector2d(0, 1),
        L"7", 7, AcGeVector3d(0, 0, 1), L"8", 8, AcDbSoftPointerId(), L"9", 9, AcDbHardPointerId()}));
    // clang-format on
}

TEST_F(DataTreeStreamTest, ARoundTripIsLosslessAndTheSecondFilingIsIdentical)
{
    TreeTestEntity source;
    DataNode* record = source.AddNode(L"Record");
    record->SetValue(L"width", 300.0);
    record->SetValue(L"name", L"北立面");
    record->AddChild(L"Label")->SetValue(L"pos", AcGePoint3d(10, 20, 0));
    source.GetNode(L"")->SetValue(L"flag", false);
    TreeTestEntity copy;
    ExpectReadBackWhole(source, copy);
    EXPECT_EQ(copy.TreeReadVersion(), 1);

    double width = 0;
    AcString name;
    AcGePoint3d pos;
    bool flag = true;
    ASSERT_NE(copy.GetNode(L"Record"), nullptr);
    EXPECT_TRUE(copy.GetNode(L"Record")->GetValue(L"width", width) && width == 300.0);
    EXPECT_TRUE(copy.GetNode(L"Record")->GetValue(L"name", name) && name == AcString(L"北立面"));
    EXPECT_TRUE(copy.GetNode(L"Record")->GetChild(L"Label")->GetValue(L"pos", pos) && pos == AcGePoint3d(10, 20, 0));
    EXPECT_TRUE(copy.GetNode(L"root")->GetValue(L"flag", flag) && !flag);
}

TEST_F(DataTreeStreamTest, DataWithoutAHeaderIsStillRead)
{
    headless::RecordingDwgFiler filer;
    qxtest::WriteItems(filer, {3, L"x", 0, 10, L"y", 0, 11, L"z", 0, 12, 0});  // the root's value count first
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
    qxtest::WriteItems(filer, {-1001, 2, 1, L"k", 0, 1, 0});
    filer.rewind();
    TreeTestEntity entity;
    entity.GetNode(L"")->SetValue(L"kept", 1);
    EXPECT_FALSE(entity.TreeIn(&filer));
    EXPECT_EQ(entity.TreeReadVersion(), 2);
    EXPECT_EQ(entity.GetNode(L"")->GetAllKeys(), std::vector<AcString>{L"kept"});
    EXPECT_EQ(filer.filerStatus(), Acad::eOk);
}

TEST_F(DataTreeStreamTest, ValueCountLimitIs4096)
{
    const struct {
        const char* what;
        int declared;
        bool accepted;
    } rows[] = {{"at the limit", 4096, true}, {"one above", 4097, false}, {"negative", -1, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        headless::RecordingDwgFiler filer;
        qxtest::WriteItems(filer, {-1001, 1, row.declared});
        for (int i = 0; row.accepted && i < row.declared; ++i) {
            AcString key;
            key.format(L"k%d", i);
            qxtest::WriteItems(filer, {key.kwszPtr(), 0, i});
        }
        filer.writeInt32(0);
        filer.rewind();
        TreeTestEntity entity;
        entity.GetNode(L"")->SetValue(L"old", 1);
        EXPECT_EQ(entity.TreeIn(&filer), row.accepted);
        EXPECT_EQ(entity.GetNode(L"")->GetAllKeys().size(), row.accepted ? 4096u : 0u);
    }
}

TEST_F(DataTreeStreamTest, AnUnknownTagEndsTheNodeKeepingWhatWasRead)
{
    headless::RecordingDwgFiler filer;
    // There is no type 10.
    qxtest::WriteItems(filer, {-1001, 1, 3, L"first", 0, 1, L"second", 10, 2, L"third", 0, 3, 0});
    filer.rewind();
    TreeTestEntity entity;
    entity.AddNode(L"child");
    EXPECT_FALSE(entity.TreeIn(&filer));
    EXPECT_EQ(entity.GetNode(L"")->GetAllKeys(), std::vector<AcString>{L"first"});
    EXPECT_NE(entity.GetNode(L"child"), nullptr);  // children were left as they were
}

TEST_F(DataTreeStreamTest, RepeatedKeysAndNamesKeepTheFirst)
{
    headless::RecordingDwgFiler filer;
    qxtest::WriteItems(filer, {-1001, 1, 2, L"k", 0, 1, L"k", 0, 2, 2, L"c", 1, L"v", 0, 7, 0, L"c", 0, 0});
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
    qxtest::WriteItems(filer, {-1001, 1, 0, 5000});
    filer.rewind();
    TreeTestEntity entity;
    entity.AddNode(L"old");
    EXPECT_FALSE(entity.TreeIn(&filer));
    EXPECT_TRUE(entity.GetNode(L"")->GetAllChildNames().empty());
}

// Follows the chain of nodes named "n" below the root: how many there are, and whether
// every one of them has that one child and no values.
int ChainLength(const TreeTestEntity& entity, bool& onlyTheChain)
{
    onlyTheChain = true;
    int levels = 0;
    for (DataNode* node = entity.GetNode(L""); node != nullptr; node = node->GetChild(L"n"), ++levels) {
        const auto children = node->GetAllChildNames();
        onlyTheChain = onlyTheChain && children.size() <= 1 && (children.empty() || children[0] == L"n");
    }
    return levels - 1;
}

TEST_F(DataTreeStreamTest, TheDeepestTreeThatCanBeBuiltReadsBackWhole)
{
    TreeTestEntity source;
    DataNode* node = source.GetNode(L"");
    for (int level = 1; level <= 256; ++level) {
        node = node->AddChild(L"n");
        ASSERT_NE(node, nullptr) << "level " << level;
    }
    node->SetValue(L"bottom", 256);
    EXPECT_EQ(node->AddChild(L"n"), nullptr);  // a 257th level is refused, and nothing changes
    EXPECT_TRUE(node->GetAllChildNames().empty());
    TreeTestEntity copy;
    ExpectReadBackWhole(source, copy);
    bool onlyTheChain = false;
    EXPECT_EQ(ChainLength(copy, onlyTheChain), 256);
    EXPECT_TRUE(onlyTheChain);
}

// A chain of 257 nodes below the root, whose last holds a value; the root has a second
// child "after" holding a value too.
std::vector<std::uint8_t> TooDeepStream(std::size_t* refusedAt)
{
    headless::MemoryDwgFiler filer;
    qxtest::WriteItems(filer, {-1001, 1, 0, 2});
    for (int level = 1; level <= 256; ++level)
        qxtest::WriteItems(filer, {L"n", 0, 1});
    *refusedAt = filer.bytes().size();
    qxtest::WriteItems(filer, {L"n", 1, L"x", 0, 7, 0, L"after", 1, L"y", 0, 8, 0});
    return filer.bytes();
}

TEST_F(DataTreeStreamTest, AStreamOneLevelTooDeepFailsTheReadAndReadsNoFurther)
{
    std::size_t refusedAt = 0;
    const std::vector<std::uint8_t> bytes = TooDeepStream(&refusedAt);
    headless::MemoryDwgFiler reader(bytes, AcDb::kFileFiler, nullptr);
    TreeTestEntity entity;
    EXPECT_FALSE(entity.TreeIn(&reader));
    EXPECT_EQ(reader.filerStatus(), Acad::eOk);
    // The read stopped at the 256th level's child count: nothing after it became names or values.
    EXPECT_EQ(reader.remaining(), bytes.size() - refusedAt);
    bool onlyTheChain = false;
    EXPECT_EQ(ChainLength(entity, onlyTheChain), 256);
    EXPECT_TRUE(onlyTheChain);
}

TEST_F(DataTreeStreamTest, EveryPrefixOfAStreamReadsWithoutTrouble)
{
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
