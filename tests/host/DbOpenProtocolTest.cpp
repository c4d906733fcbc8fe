// The open/close protocol: open modes against each other, erased objects, the assertions
// that raise the host error, close/cancel/upgrade/downgrade, and copies.
#include <gtest/gtest.h>

#include "DbTestObjects.h"
#include "dbmain.h"
#include "dbsymtb.h"
#include "headless/HostError.h"
#include "headless/RecordingDwgFiler.h"

namespace {

const char* modeName(AcDb::OpenMode mode)
{
    switch (mode) {
    case AcDb::kForRead: return "read";
    case AcDb::kForWrite: return "write";
    case AcDb::kForNotify: return "notify";
    default: return "?";
    }
}

class DbOpenProtocolTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        registerDbTestClasses();
        auto* thing = new DbTestThing();
        thing->setValue(7);
        ASSERT_EQ(m_db.addAcDbObject(m_id, thing), Acad::eOk);
        ASSERT_EQ(thing->close(), Acad::eOk);
    }

    DbTestThing* open(AcDb::OpenMode mode, Acad::ErrorStatus expected = Acad::eOk, bool openErased = false)
    {
        DbTestThing* thing = nullptr;
        EXPECT_EQ(acdbOpenObject(thing, m_id, mode, openErased), expected) << modeName(mode);
        return thing;
    }

    AcDbDatabase m_db;
    AcDbObjectId m_id;
};

TEST_F(DbOpenProtocolTest, ModesAgainstEachOther)
{
    struct Row {
        AcDb::OpenMode first;
        AcDb::OpenMode second;
        Acad::ErrorStatus expected;
    };
    const Row rows[] = {
        {AcDb::kForRead, AcDb::kForRead, Acad::eOk},
        {AcDb::kForRead, AcDb::kForWrite, Acad::eWasOpenForRead},
        {AcDb::kForWrite, AcDb::kForRead, Acad::eWasOpenForWrite},
        {AcDb::kForWrite, AcDb::kForWrite, Acad::eWasOpenForWrite},
        {AcDb::kForRead, AcDb::kForNotify, Acad::eOk},
        {AcDb::kForWrite, AcDb::kForNotify, Acad::eOk},
        {AcDb::kForNotify, AcDb::kForNotify, Acad::eWasOpenForNotify},
        {AcDb::kForNotify, AcDb::kForWrite, Acad::eWasOpenForNotify},
        {AcDb::kForNotify, AcDb::kForRead, Acad::eOk},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(modeName(row.first)) + " then " + modeName(row.second));
        DbTestThing* first = open(row.first);
        ASSERT_NE(first, nullptr);
        DbTestThing* second = open(row.second, row.expected);
        if (row.expected == Acad::eOk) {
            EXPECT_EQ(second, first);
            EXPECT_EQ(second->close(), Acad::eOk);
        } else {
            EXPECT_EQ(second, nullptr);
        }
        EXPECT_EQ(first->close(), Acad::eOk);
        // Everything closed again: a writer gets in.
        DbTestThing* writer = open(AcDb::kForWrite);
        ASSERT_NE(writer, nullptr);
        writer->close();
    }
}

TEST_F(DbOpenProtocolTest, IdsThatLeadNowhere)
{
    AcDbObject* obj = nullptr;
    EXPECT_EQ(acdbOpenObject(obj, AcDbObjectId::kNull, AcDb::kForRead), Acad::eNullObjectId);
    EXPECT_EQ(acdbOpenObject(obj, m_id, AcDb::kNotOpen), Acad::eInvalidOpenState);
    EXPECT_EQ(obj, nullptr);
}

TEST_F(DbOpenProtocolTest, TypedOpenRefusesAnotherClassAndLeavesItClosed)
{
    AcDbSymbolTable* table = nullptr;
    EXPECT_EQ(acdbOpenObject(table, m_id, AcDb::kForRead), Acad::eNotThatKindOfClass);
    EXPECT_EQ(table, nullptr);
    EXPECT_NE(open(AcDb::kForWrite), nullptr);  // nothing was left open
    open(AcDb::kForWrite, Acad::eWasOpenForWrite);
}

TEST_F(DbOpenProtocolTest, ErasedObjectsOpenOnlyWhenAskedFor)
{
    DbTestThing* thing = open(AcDb::kForWrite);
    ASSERT_EQ(thing->erase(), Acad::eOk);
    EXPECT_TRUE(thing->isErased());
    EXPECT_EQ(thing->erase(), Acad::eWasErased);
    thing->close();
    EXPECT_TRUE(m_id.isErased());

    open(AcDb::kForRead, Acad::eWasErased);
    thing = open(AcDb::kForWrite, Acad::eOk, true);
    ASSERT_NE(thing, nullptr);
    EXPECT_EQ(thing->value(), 7);
    EXPECT_EQ(thing->erase(false), Acad::eOk);
    EXPECT_EQ(thing->erase(false), Acad::eWasNotErased);
    thing->close();
    EXPECT_NE(open(AcDb::kForRead), nullptr);
}

TEST_F(DbOpenProtocolTest, ErasingNeedsWriteAndADatabase)
{
    DbTestThing* thing = open(AcDb::kForRead);
    EXPECT_EQ(thing->erase(), Acad::eNotOpenForWrite);
    thing->close();
    DbTestThing loose;
    EXPECT_EQ(loose.erase(), Acad::eNotInDatabase);
}

TEST_F(DbOpenProtocolTest, WritingThroughAReadOpenRaisesTheHostError)
{
    DbTestThing* thing = open(AcDb::kForRead);
    ASSERT_NE(thing, nullptr);
    try {
        thing->setValue(8);
        FAIL() << "no host error";
    } catch (const headless::HostError& error) {
        const std::string message = error.what();
        EXPECT_NE(message.find("assertWriteEnabled"), std::string::npos) << message;
        EXPECT_NE(message.find("DbTestThing"), std::string::npos) << message;
        EXPECT_NE(message.find("open for read"), std::string::npos) << message;
    }
    EXPECT_EQ(thing->value(), 7);
    thing->close();
}

TEST_F(DbOpenProtocolTest, ReadingAClosedObjectRaisesTheHostError)
{
    DbTestThing* thing = open(AcDb::kForRead);
    thing->close();
    try {
        (void)thing->value();
        FAIL() << "no host error";
    } catch (const headless::HostError& error) {
        const std::string message = error.what();
        EXPECT_NE(message.find("assertReadEnabled"), std::string::npos) << message;
        EXPECT_NE(message.find("DbTestThing"), std::string::npos) << message;
    }
    EXPECT_THROW(thing->assertNotifyEnabled(), headless::HostError);
}

TEST_F(DbOpenProtocolTest, AnObjectInNoDatabaseIsAlwaysOpen)
{
    DbTestThing loose;
    EXPECT_TRUE(loose.isReadEnabled());
    EXPECT_TRUE(loose.isWriteEnabled());
    EXPECT_TRUE(loose.isNotifyEnabled());
    loose.setValue(3);
    EXPECT_EQ(loose.value(), 3);
    EXPECT_TRUE(loose.objectId().isNull());
    EXPECT_EQ(loose.database(), nullptr);
    EXPECT_TRUE(loose.handle().isNull());
    EXPECT_EQ(loose.close(), Acad::eNotInDatabase);
}

TEST_F(DbOpenProtocolTest, ClosingWhatIsNotOpenIsRefused)
{
    DbTestThing* thing = open(AcDb::kForRead);
    EXPECT_EQ(thing->close(), Acad::eOk);
    EXPECT_EQ(thing->close(), Acad::eInvalidOpenState);
}

TEST_F(DbOpenProtocolTest, UpgradeAndDowngrade)
{
    DbTestThing* thing = open(AcDb::kForRead);
    ASSERT_EQ(thing->upgradeOpen(), Acad::eOk);
    EXPECT_TRUE(thing->isWriteEnabled());
    thing->setValue(9);
    EXPECT_EQ(thing->upgradeOpen(), Acad::eWasOpenForWrite);
    ASSERT_EQ(thing->downgradeOpen(), Acad::eOk);
    EXPECT_FALSE(thing->isWriteEnabled());
    EXPECT_EQ(thing->downgradeOpen(), Acad::eWasNotOpenForWrite);
    EXPECT_NE(open(AcDb::kForRead), nullptr);  // a second reader
    EXPECT_EQ(thing->upgradeOpen(), Acad::eHadMultipleReaders);
    thing->close();
    thing->close();
    EXPECT_EQ(open(AcDb::kForRead)->value(), 9);
}

TEST_F(DbOpenProtocolTest, CancelPutsBackWhatTheWriteChanged)
{
    DbTestThing* thing = open(AcDb::kForWrite);
    thing->setValue(100);
    thing->setText(L"changed");
    EXPECT_TRUE(thing->isModified());
    ASSERT_EQ(thing->cancel(), Acad::eOk);
    thing = open(AcDb::kForRead);
    EXPECT_EQ(thing->value(), 7);
    EXPECT_EQ(thing->text(), AcString(L""));
    EXPECT_FALSE(thing->isModified());
    thing->close();
}

TEST_F(DbOpenProtocolTest, CancellingANewObjectErasesIt)
{
    auto* thing = new DbTestThing();
    AcDbObjectId id;
    ASSERT_EQ(m_db.addAcDbObject(id, thing), Acad::eOk);
    ASSERT_EQ(thing->cancel(), Acad::eOk);
    EXPECT_TRUE(id.isErased());
}

TEST_F(DbOpenProtocolTest, CloneCopiesTheFieldsIntoNoDatabase)
{
    DbTestThing* thing = open(AcDb::kForWrite);
    thing->setText(L"copy me");
    thing->setLength(2.5);
    thing->setReference(m_db.layerZero());
    auto* copy = DbTestThing::cast(thing->clone());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->database(), nullptr);
    EXPECT_TRUE(copy->ownerId().isNull());
    EXPECT_EQ(copy->value(), 7);
    EXPECT_EQ(copy->text(), AcString(L"copy me"));
    EXPECT_EQ(copy->length(), 2.5);
    EXPECT_EQ(copy->reference(), m_db.layerZero());

    DbTestThing other;
    EXPECT_EQ(other.copyFrom(thing), Acad::eOk);
    EXPECT_EQ(other.text(), AcString(L"copy me"));
    AcDbDatabase unrelated;
    EXPECT_EQ(other.copyFrom(&unrelated), Acad::eNotThatKindOfClass);
    delete copy;
    thing->close();
}

TEST_F(DbOpenProtocolTest, FileFilingStartsWithTheOwner)
{
    DbTestThing* thing = open(AcDb::kForWrite);
    thing->setOwnerId(m_db.currentSpaceId());
    thing->setText(L"a \"quoted\" word");
    thing->setLength(-0.0);
    headless::RecordingDwgFiler filer;
    ASSERT_EQ(thing->dwgOut(&filer), Acad::eOk);
    const std::vector<std::string> expected = {
        "writeSoftPointerId 6",
        "writeInt32 1",
        "writeInt32 7",
        "writeString \"a \\\"quoted\\\" word\"",
        "writeDouble 0",
        "writeHardPointerId null",
    };
    EXPECT_EQ(filer.lines(), expected);

    headless::RecordingDwgFiler copyFiler(AcDb::kCopyFiler);
    ASSERT_EQ(thing->dwgOut(&copyFiler), Acad::eOk);
    EXPECT_EQ(copyFiler.lines().front(), "writeInt32 1");  // copies start without an owner
    thing->close();
}

TEST_F(DbOpenProtocolTest, NewerVersionIsRefusedForAProxy)
{
    headless::RecordingDwgFiler filer;
    filer.writeSoftPointerId(AcDbObjectId::kNull);
    filer.writeInt32(DbTestThing::kVersion + 1);
    filer.rewind();
    DbTestThing thing;
    EXPECT_EQ(thing.dwgIn(&filer), Acad::eMakeMeProxy);
}

}  // namespace
