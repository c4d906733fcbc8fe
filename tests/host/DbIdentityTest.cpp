// Object identity: handle text forms, ids and their stubs, adding objects to a database,
// looking them up by handle, and what ids answer once their database is gone.
#include <gtest/gtest.h>

#include <cstring>
#include <sstream>

#include "DbTestObjects.h"
#include "dbapserv.h"
#include "dbmain.h"
#include "dbsymtb.h"
#include "headless/DatabaseAccess.h"

namespace {

std::string textOf(const AcDbHandle& handle)
{
    std::ostringstream os;
    os << handle;
    return os.str();
}

std::wstring bufferTextOf(const AcDbHandle& handle)
{
    ACHAR buffer[17];
    handle.getIntoAsciiBuffer(buffer);
    return buffer;
}

class DbIdentityTest : public ::testing::Test {
protected:
    void SetUp() override { registerDbTestClasses(); }

    // A thing added to db and closed.
    AcDbObjectId addThing(AcDbDatabase& db, int value)
    {
        auto* thing = new DbTestThing();
        thing->setValue(value);
        AcDbObjectId id;
        EXPECT_EQ(db.addAcDbObject(id, thing), Acad::eOk);
        EXPECT_EQ(thing->close(), Acad::eOk);
        return id;
    }
};

TEST(DbHandleTest, TextFormIsUpperCaseHexWithoutLeadingZeros)
{
    struct Row {
        Adesk::UInt64 value;
        const char* text;
    };
    const Row rows[] = {
        {0, "0"},
        {1, "1"},
        {0x1F, "1F"},
        {0x100, "100"},
        {0xABCDEF0123456789ull, "ABCDEF0123456789"},
        {0xFFFFFFFFFFFFFFFFull, "FFFFFFFFFFFFFFFF"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(textOf(AcDbHandle(row.value)), row.text);
        EXPECT_EQ(bufferTextOf(AcDbHandle(row.value)), std::wstring(row.text, row.text + std::strlen(row.text)));
    }
}

TEST(DbHandleTest, ParsingAcceptsHexAndRefusesEverythingElse)
{
    struct Row {
        const wchar_t* text;
        Adesk::UInt64 value;  // 0: refused (null handle)
    };
    const Row rows[] = {
        {L"1F", 0x1F},
        {L"1f", 0x1F},
        {L"0001F", 0x1F},
        {L"FFFFFFFFFFFFFFFF", 0xFFFFFFFFFFFFFFFFull},
        {L"0000000000000000000001", 1},  // leading zeros do not count against the width
        {L"10000000000000000", 0},       // 65 bits
        {L"", 0},
        {L"1G", 0},
        {L" 1F", 0},
        {L"-1", 0},
        {nullptr, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text != nullptr ? row.text : L"(null)");
        EXPECT_EQ(AcDbHandle(row.text).value(), row.value);
    }
}

TEST(DbHandleTest, TooSmallBufferGetsAnEmptyText)
{
    ACHAR buffer[3] = {L'x', L'x', L'x'};
    AcDbHandle(0x1234).getIntoAsciiBuffer(buffer, 3);
    EXPECT_EQ(buffer[0], L'\0');
    AcDbHandle(0x12).getIntoAsciiBuffer(buffer, 3);
    EXPECT_EQ(std::wstring(buffer), L"12");
}

TEST_F(DbIdentityTest, AddedObjectReopensWithItsHandleAndOwner)
{
    AcDbDatabase db;
    const AcDbHandle seed = db.handseed();
    auto* thing = new DbTestThing();
    thing->setOwnerId(db.currentSpaceId());
    AcDbObjectId id;
    ASSERT_EQ(db.addAcDbObject(id, thing), Acad::eOk);
    EXPECT_EQ(thing->objectId(), id);
    EXPECT_TRUE(thing->isNewObject());
    EXPECT_TRUE(thing->isWriteEnabled());
    ASSERT_EQ(thing->close(), Acad::eOk);

    DbTestThing* reopened = nullptr;
    ASSERT_EQ(acdbOpenObject(reopened, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(reopened, thing);
    EXPECT_EQ(reopened->handle(), seed);
    EXPECT_EQ(reopened->ownerId(), db.currentSpaceId());
    EXPECT_EQ(reopened->database(), &db);
    EXPECT_FALSE(reopened->isNewObject());
    EXPECT_EQ(reopened->close(), Acad::eOk);

    EXPECT_EQ(id.handle(), seed);
    EXPECT_EQ(id.database(), &db);
    EXPECT_EQ(id.objectClass(), DbTestThing::desc());
    EXPECT_TRUE(id.isValid());
    EXPECT_TRUE(id.isResident());
    EXPECT_TRUE(id.isWellBehaved());
    EXPECT_EQ(db.handseed().value(), seed.value() + 1);
}

TEST_F(DbIdentityTest, HandlesGrowAndLookUpFindsTheSameId)
{
    AcDbDatabase db;
    const AcDbObjectId a = addThing(db, 1);
    const AcDbObjectId b = addThing(db, 2);
    EXPECT_EQ(b.handle().value(), a.handle().value() + 1);

    AcDbObjectId found;
    EXPECT_EQ(db.getAcDbObjectId(found, false, b.handle()), Acad::eOk);
    EXPECT_EQ(found, b);
    EXPECT_EQ(db.getAcDbObjectId(found, false, AcDbHandle(0x7777)), Acad::eUnknownHandle);
    EXPECT_TRUE(found.isNull());
    EXPECT_EQ(db.getAcDbObjectId(found, true, AcDbHandle()), Acad::eNullHandle);
}

TEST_F(DbIdentityTest, StubForAnUnknownHandleWaitsForItsObject)
{
    AcDbDatabase db;
    AcDbObjectId placeholder;
    ASSERT_EQ(db.getAcDbObjectId(placeholder, true, AcDbHandle(0x500)), Acad::eOk);
    EXPECT_FALSE(placeholder.isResident());
    EXPECT_GT(db.handseed().value(), 0x500u);
    AcDbObject* obj = nullptr;
    EXPECT_EQ(acdbOpenObject(obj, placeholder, AcDb::kForRead), Acad::ePermanentlyErased);

    auto* thing = new DbTestThing();
    AcDbObjectId id;
    ASSERT_EQ(headless::DatabaseAccess::addObjectWithHandle(&db, thing, AcDbHandle(0x500), id), Acad::eOk);
    EXPECT_EQ(id, placeholder);
    EXPECT_TRUE(placeholder.isResident());
    thing->close();

    auto* other = new DbTestThing();
    EXPECT_EQ(headless::DatabaseAccess::addObjectWithHandle(&db, other, AcDbHandle(0x500), id), Acad::eHandleInUse);
    delete other;
}

TEST_F(DbIdentityTest, AddingRefusesNullAndResidentObjects)
{
    AcDbDatabase db;
    AcDbObjectId id;
    EXPECT_EQ(db.addAcDbObject(id, nullptr), Acad::eNullObjectPointer);
    auto* thing = new DbTestThing();
    ASSERT_EQ(db.addAcDbObject(id, thing), Acad::eOk);
    AcDbObjectId again;
    EXPECT_EQ(db.addAcDbObject(again, thing), Acad::eAlreadyInDb);
    AcDbDatabase other;
    EXPECT_EQ(other.addAcDbObject(again, thing), Acad::eAlreadyInDb);
    thing->close();
}

TEST_F(DbIdentityTest, ObjectIdsListEveryObjectInHandleOrder)
{
    AcDbDatabase db;
    const AcDbObjectId thing = addThing(db, 1);
    const std::vector<AcDbObjectId> ids = headless::DatabaseAccess::objectIds(&db);
    ASSERT_FALSE(ids.empty());
    for (size_t i = 1; i < ids.size(); ++i)
        EXPECT_LT(ids[i - 1].handle(), ids[i].handle());
    EXPECT_EQ(ids.front(), db.blockTableId());
    EXPECT_EQ(ids.back(), thing);
    EXPECT_EQ(static_cast<size_t>(db.approxNumObjects()), ids.size());
}

TEST_F(DbIdentityTest, DestroyingTheDatabaseDeletesItsObjectsAndKillsItsIds)
{
    const int before = DbTestThing::destroyed;
    AcDbObjectId id;
    {
        AcDbDatabase db;
        id = addThing(db, 1);
        addThing(db, 2);
    }
    EXPECT_EQ(DbTestThing::destroyed, before + 2);
    EXPECT_FALSE(id.isNull());
    EXPECT_FALSE(id.isValid());
    EXPECT_FALSE(id.isResident());
    EXPECT_EQ(id.database(), nullptr);
    AcDbObject* obj = nullptr;
    EXPECT_EQ(acdbOpenObject(obj, id, AcDb::kForRead), Acad::eInvalidObjectId);
    EXPECT_EQ(obj, nullptr);
}

TEST_F(DbIdentityTest, IdsPrintTheirHandle)
{
    AcDbDatabase db;
    std::ostringstream os;
    os << db.blockTableId() << ' ' << AcDbObjectId::kNull;
    EXPECT_EQ(os.str(), "(1) (null)");
}

TEST_F(DbIdentityTest, EffectivelyErasedFollowsTheOwners)
{
    AcDbDatabase db;
    const AcDbObjectId parent = addThing(db, 1);
    auto* child = new DbTestThing();
    child->setOwnerId(parent);
    AcDbObjectId childId;
    ASSERT_EQ(db.addAcDbObject(childId, child), Acad::eOk);
    child->close();
    EXPECT_FALSE(childId.isEffectivelyErased());

    AcDbObject* obj = nullptr;
    ASSERT_EQ(acdbOpenObject(obj, parent, AcDb::kForWrite), Acad::eOk);
    ASSERT_EQ(obj->erase(), Acad::eOk);
    obj->close();
    EXPECT_FALSE(childId.isErased());
    EXPECT_TRUE(childId.isEffectivelyErased());
}

TEST_F(DbIdentityTest, WorkingDatabaseForgetsADestroyedDatabase)
{
    auto* db = new AcDbDatabase();
    acdbHostApplicationServices()->setWorkingDatabase(db);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), db);
    delete db;
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
}

}  // namespace
