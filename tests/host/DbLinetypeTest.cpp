// Loading linetypes: the built-in definitions, wildcards, metric files, and parsing a
// linetype file from disk, including the definitions it skips.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

#include "dbmain.h"
#include "dbsymtb.h"

namespace {

struct Pattern {
    std::wstring comments;
    std::vector<double> dashes;
    double length = 0.0;
};

class DbLinetypeTest : public ::testing::Test {
protected:
    bool has(const ACHAR* name)
    {
        AcDbLinetypeTable* table = nullptr;
        EXPECT_EQ(m_db.getLinetypeTable(table), Acad::eOk);
        const bool found = table->has(name);
        table->close();
        return found;
    }

    Pattern pattern(const ACHAR* name)
    {
        Pattern p;
        AcDbLinetypeTable* table = nullptr;
        EXPECT_EQ(m_db.getLinetypeTable(table), Acad::eOk);
        AcDbLinetypeTableRecord* record = nullptr;
        if (table->getAt(name, record, AcDb::kForRead) == Acad::eOk) {
            AcString comments;
            record->comments(comments);
            p.comments = comments.wstr();
            for (int i = 0; i < record->numDashes(); ++i)
                p.dashes.push_back(record->dashLengthAt(i));
            p.length = record->patternLength();
            record->close();
        }
        table->close();
        return p;
    }

    int count()
    {
        AcDbLinetypeTable* table = nullptr;
        EXPECT_EQ(m_db.getLinetypeTable(table), Acad::eOk);
        AcDbLinetypeTableIterator* it = nullptr;
        table->newIterator(it);
        int n = 0;
        for (; !it->done(); it->step())
            ++n;
        delete it;
        table->close();
        return n;
    }

    AcDbDatabase m_db;
};

TEST_F(DbLinetypeTest, BuiltInDefinitionsStandForTheStandardFile)
{
    struct Row {
        const ACHAR* name;
        std::vector<double> dashes;
    };
    const Row rows[] = {
        {L"DASHED", {0.5, -0.25}},
        {L"HIDDEN", {0.25, -0.125}},
        {L"CENTER", {1.25, -0.25, 0.25, -0.25}},
        {L"DASHDOT", {0.5, -0.25, 0.0, -0.25}},
        {L"DOT", {0.0, -0.25}},
        {L"PHANTOM", {1.25, -0.25, 0.25, -0.25, 0.25, -0.25}},
        {L"DASHED2", {0.25, -0.125}},
        {L"HIDDENX2", {0.5, -0.25}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(AcString(row.name).utf8());
        EXPECT_EQ(m_db.loadLineTypeFile(row.name, L"acad.lin"), Acad::eOk);
        const Pattern p = pattern(row.name);
        EXPECT_EQ(p.dashes, row.dashes);
        double length = 0.0;
        for (double dash : row.dashes)
            length += std::abs(dash);
        EXPECT_DOUBLE_EQ(p.length, length);
        EXPECT_FALSE(p.comments.empty());
    }
}

TEST_F(DbLinetypeTest, LoadingAnswersForDuplicatesAndUnknownNames)
{
    EXPECT_EQ(m_db.loadLineTypeFile(L"dashed", L"acad.lin"), Acad::eOk);
    EXPECT_TRUE(has(L"DASHED"));
    EXPECT_EQ(m_db.loadLineTypeFile(L"DASHED", L"acad.lin"), Acad::eDuplicateRecordName);
    EXPECT_EQ(m_db.loadLineTypeFile(L"NOSUCH", L"acad.lin"), Acad::eUndefinedLineType);
    EXPECT_EQ(m_db.loadLineTypeFile(nullptr, L"acad.lin"), Acad::eInvalidInput);
    EXPECT_EQ(m_db.loadLineTypeFile(L"DOT", nullptr), Acad::eOk);
}

TEST_F(DbLinetypeTest, WildcardsLoadWhatMatches)
{
    ASSERT_EQ(m_db.loadLineTypeFile(L"HID*", L"acad.lin"), Acad::eOk);
    EXPECT_TRUE(has(L"HIDDEN"));
    EXPECT_TRUE(has(L"HIDDEN2"));
    EXPECT_TRUE(has(L"HIDDENX2"));
    EXPECT_FALSE(has(L"DASHED"));
    EXPECT_EQ(count(), 6);
    ASSERT_EQ(m_db.loadLineTypeFile(L"D?T", L"acad.lin"), Acad::eOk);
    EXPECT_TRUE(has(L"DOT"));
    ASSERT_EQ(m_db.loadLineTypeFile(L"*", L"acad.lin"), Acad::eOk);  // the rest, no complaint
    EXPECT_EQ(count(), 3 + 24);
    EXPECT_EQ(m_db.loadLineTypeFile(L"*", L"acad.lin"), Acad::eOk);
    EXPECT_EQ(m_db.loadLineTypeFile(L"Z*", L"acad.lin"), Acad::eUndefinedLineType);
}

TEST_F(DbLinetypeTest, MetricFileHasMillimetrePatterns)
{
    ASSERT_EQ(m_db.loadLineTypeFile(L"DASHED", L"acadiso.lin"), Acad::eOk);
    const Pattern p = pattern(L"DASHED");
    ASSERT_EQ(p.dashes.size(), 2u);
    EXPECT_DOUBLE_EQ(p.dashes[0], 12.7);
    EXPECT_DOUBLE_EQ(p.dashes[1], -6.35);
}

TEST_F(DbLinetypeTest, AFileOnDiskIsParsed)
{
    const std::string path = ::testing::TempDir() + "qx_linetypes_test.lin";
    {
        std::ofstream file(path, std::ios::binary);
        file << ";; a linetype file\r\n"
                "*ROOFLINE,Roof line __ . __ . __\r\n"
                "A,1,-.5,0,-.5\r\n"
                "*SPACED , Spaced out \n"
                "  A , +2.0 , -1e0 \n"
                "*COMPLEX,With text\n"
                "A,.5,-.2,[\"T\",STANDARD,S=.1],-.2\n"
                "*TOOMANY,Thirteen dashes\n"
                "A,1,-1,1,-1,1,-1,1,-1,1,-1,1,-1,1\n"
                "*NOPATTERN,Header alone\n"
                "*BADNUMBER,Bad\n"
                "A,1,-x\n"
                "*\xE9\x9D\xA2\xE6\x9D\xBF,Chinese name\n"
                "A,3,-1\n";
    }
    const std::wstring widePath(path.begin(), path.end());
    ASSERT_EQ(m_db.loadLineTypeFile(L"*", widePath.c_str()), Acad::eOk);
    EXPECT_EQ(pattern(L"ROOFLINE").dashes, (std::vector<double>{1, -0.5, 0, -0.5}));
    EXPECT_EQ(pattern(L"ROOFLINE").comments, L"Roof line __ . __ . __");
    EXPECT_EQ(pattern(L"SPACED").dashes, (std::vector<double>{2, -1}));
    EXPECT_EQ(pattern(L"SPACED").comments, L"Spaced out");
    EXPECT_EQ(pattern(L"\x9762\x677F").dashes, (std::vector<double>{3, -1}));
    for (const ACHAR* skipped : {L"COMPLEX", L"TOOMANY", L"NOPATTERN", L"BADNUMBER", L"DASHED"})
        EXPECT_FALSE(has(skipped)) << AcString(skipped).utf8();
    std::remove(path.c_str());
}

}  // namespace
