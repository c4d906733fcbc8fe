// The tree guards itself through its owner: an entity in a database must be open for
// read to read its tree and open for write to change it. (The host's undo restores the
// tree because it files the entity: the conformance suite's undo test covers it.)
#include <gtest/gtest.h>

#include "TreeTestEntity.h"
#include "headless/HostError.h"
#include "dbsymtb.h"

namespace {

class DataTreeOwnershipTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { TreeTestEntity::EnsureRegistered(); }

    void SetUp() override
    {
        auto* entity = new TreeTestEntity();
        entity->AddNode(L"Record")->SetValue(L"width", 300.0);
        AcDbBlockTableRecord* modelSpace = nullptr;
        ASSERT_EQ(acdbOpenObject(modelSpace, db.currentSpaceId(), AcDb::kForWrite), Acad::eOk);
        ASSERT_EQ(modelSpace->appendAcDbEntity(id, entity), Acad::eOk);
        entity->close();
        modelSpace->close();
    }

    TreeTestEntity* Open(AcDb::OpenMode mode)
    {
        TreeTestEntity* entity = nullptr;
        EXPECT_EQ(acdbOpenObject(entity, id, mode), Acad::eOk);
        return entity;
    }

    AcDbDatabase db;
    AcDbObjectId id;
};

TEST_F(DataTreeOwnershipTest, ReadsNeedTheEntityOpenForRead)
{
    TreeTestEntity* entity = Open(AcDb::kForRead);
    DataNode* record = entity->GetNode(L"Record");
    ASSERT_NE(record, nullptr);
    double width = 0;
    EXPECT_TRUE(record->GetValue(L"width", width));
    EXPECT_EQ(width, 300.0);
    entity->close();

    // Closed: reading a key that is there raises the host error.
    EXPECT_THROW(record->GetValue(L"width", width), headless::HostError);
    EXPECT_THROW(record->GetAllKeys(), headless::HostError);
    // A missing key is answered without touching the entity.
    EXPECT_FALSE(record->GetValue(L"missing", width));
}

TEST_F(DataTreeOwnershipTest, WritesNeedTheEntityOpenForWrite)
{
    TreeTestEntity* entity = Open(AcDb::kForRead);
    DataNode* record = entity->GetNode(L"Record");
    EXPECT_THROW(record->SetValue(L"width", 1.0), headless::HostError);
    EXPECT_THROW(record->RemoveKey(L"width"), headless::HostError);
    EXPECT_THROW(entity->AddNode(L"New"), headless::HostError);
    // Finding an existing child is not a write.
    EXPECT_EQ(entity->AddNode(L"Record"), record);
    EXPECT_FALSE(entity->isModified());
    entity->close();

    entity = Open(AcDb::kForWrite);
    entity->GetNode(L"Record")->SetValue(L"width", 450.0);
    EXPECT_TRUE(entity->isModified());
    entity->close();
}

}  // namespace
