// Drawing files with every class loaded: byte-identical round trips, objects and
// references that come back, drawing settings, erased objects, and saving safely.
#include <gtest/gtest.h>

#include "FileTestSupport.h"

using namespace filetest;

namespace {

class DrawingFileTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        FileTestShape::registerWith(AcDbProxyFlags::kAllButCloningAllowed);
        FileTestRecord::registerWith(AcDbProxyFlags::kNoOperation);
        db = std::make_unique<AcDbDatabase>();
        sample = buildSample(db.get());
    }
    void TearDown() override { db.reset(); }

    std::unique_ptr<AcDbDatabase> db;
    Sample sample;
};

AcDbObjectId sameHandle(AcDbDatabase* db, AcDbObjectId original)
{
    AcDbObjectId id;
    db->getAcDbObjectId(id, false, original.handle());
    return id;
}

TEST_F(DrawingFileTest, WritingTwiceGivesTheSameBytes)
{
    EXPECT_EQ(writeBytes(db.get()), writeBytes(db.get()));
}

TEST_F(DrawingFileTest, ReadingAndWritingAgainGivesTheSameBytes)
{
    const Bytes first = writeBytes(db.get());
    headless::DrawingReadReport report;
    auto read = readBytes(first, &report);
    ASSERT_NE(read, nullptr);
    EXPECT_TRUE(report.complete);
    EXPECT_EQ(report.proxies, 0);
    EXPECT_TRUE(report.messages.empty()) << headless::toUtf8(report.messages.front());
    const Bytes second = writeBytes(read.get());
    EXPECT_EQ(second, first);
    auto again = readBytes(second);
    EXPECT_EQ(writeBytes(again.get()), second);
}

TEST_F(DrawingFileTest, ObjectsComeBackWithTheirFieldsAndReferences)
{
    auto read = readBytes(writeBytes(db.get()));
    ASSERT_NE(read, nullptr);
    using clonetest::inspect;
    const AcDbObjectId shapeA = sameHandle(read.get(), sample.shapeA);
    const AcDbObjectId shapeB = sameHandle(read.get(), sample.shapeB);
    EXPECT_EQ(inspect(shapeA, &FileTestShape::label), AcString(L"转角板"));
    EXPECT_EQ(inspect(shapeA, &FileTestShape::radius), 4.0);
    // A reference to an object later in the file resolves too.
    EXPECT_EQ(inspect(shapeA, &FileTestShape::link), shapeB);
    EXPECT_EQ(inspect(sameHandle(read.get(), sample.record), &FileTestRecord::target), shapeA);
    EXPECT_EQ(clonetest::nameOf(inspect(sameHandle(read.get(), sample.line), &AcDbEntity::layerId)),
              AcString(L"roof"));
    EXPECT_EQ(std::wstring(inspect(sameHandle(read.get(), sample.text), &AcDbText::textStringConst)), L"屋面板 A-1");
    EXPECT_EQ(clonetest::entitiesOf(read.get()).size(), 5u);
    EXPECT_EQ(read->handseed(), db->handseed());
    // New objects get handles the drawing never used.
    const AcDbObjectId added = clonetest::addLink(read.get(), 1);
    EXPECT_GE(added.handle().value(), db->handseed().value());
}

TEST_F(DrawingFileTest, DrawingSettingsComeBack)
{
    ASSERT_EQ(db->setClayer(sample.roofLayer), Acad::eOk);
    ASSERT_EQ(db->setCeltscale(2.5), Acad::eOk);
    ASSERT_EQ(db->setCelweight(AcDb::kLnWt035), Acad::eOk);
    AcCmColor red;
    red.setColorIndex(1);
    ASSERT_EQ(db->setCecolor(red), Acad::eOk);
    auto read = readBytes(writeBytes(db.get()));
    EXPECT_EQ(clonetest::nameOf(read->clayer()), AcString(L"roof"));
    EXPECT_EQ(read->celtscale(), 2.5);
    EXPECT_EQ(read->celweight(), AcDb::kLnWt035);
    EXPECT_EQ(read->cecolor().colorIndex(), 1);
}

TEST_F(DrawingFileTest, ErasedObjectsAreNotWritten)
{
    clonetest::edit<AcDbCircle>(sample.circle, [](AcDbCircle* c) { c->erase(); });
    auto read = readBytes(writeBytes(db.get()));
    AcDbObject* obj = nullptr;
    EXPECT_EQ(acdbOpenObject(obj, sameHandle(read.get(), sample.circle), AcDb::kForRead, true),
              Acad::ePermanentlyErased);
    EXPECT_EQ(clonetest::entitiesOf(read.get()).size(), 4u);
}

TEST_F(DrawingFileTest, OpenSaveOpenSaveGivesIdenticalFiles)
{
    TempFile first("first.qxd");
    TempFile second("second.qxd");
    ASSERT_EQ(headless::DrawingFile::save(db.get(), first.path()), Acad::eOk);
    AcDbDatabase* opened = nullptr;
    ASSERT_EQ(headless::DrawingFile::open(first.path(), opened), Acad::eOk);
    std::unique_ptr<AcDbDatabase> owned(opened);
    ASSERT_EQ(headless::DrawingFile::save(opened, second.path()), Acad::eOk);
    EXPECT_EQ(first.contents(), second.contents());
    EXPECT_FALSE(first.contents().empty());
}

TEST_F(DrawingFileTest, AFailedSaveLeavesTheOldFileAsItWas)
{
    TempFile file("kept.qxd");
    ASSERT_EQ(headless::DrawingFile::save(db.get(), file.path()), Acad::eOk);
    const Bytes good = file.contents();
    clonetest::edit<FileTestRecord>(sample.record, [](FileTestRecord* r) { r->setNumber(-1); });
    headless::CommandLineCapture capture;
    EXPECT_EQ(headless::DrawingFile::save(db.get(), file.path()), Acad::eInvalidInput);
    EXPECT_NE(capture.utf8().find("could not be filed"), std::string::npos) << capture.utf8();
    EXPECT_EQ(file.contents(), good);
}

TEST_F(DrawingFileTest, SavingWhereNoFileCanBeMadeFailsWithAMessage)
{
    headless::CommandLineCapture capture;
    EXPECT_EQ(headless::DrawingFile::save(db.get(), L"/nonexistent-folder/x.qxd"), Acad::eFilerError);
    EXPECT_NE(capture.utf8().find("Cannot write the drawing file"), std::string::npos);
    AcDbDatabase* opened = nullptr;
    EXPECT_EQ(headless::DrawingFile::open(L"/nonexistent-folder/x.qxd", opened), Acad::eFilerError);
    EXPECT_EQ(opened, nullptr);
}

}  // namespace
