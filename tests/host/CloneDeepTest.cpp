// Deep clone within one drawing: clones, pairs, references translated to the clones,
// owned objects brought along, contexts, and misuse of the operation.
#include <gtest/gtest.h>

#include "CloneTestSupport.h"
#include "headless/CloneCommand.h"

using namespace clonetest;

namespace {

class CloneDeepTest : public ::testing::Test {
protected:
    void SetUp() override { registerCloneTestClasses(); }

    // Two links that point at each other: a.soft -> b, a.hard -> b, b.soft -> a.
    void makePair()
    {
        a = addLink(&db, 1);
        b = addLink(&db, 2);
        edit<CloneTestLink>(a, [&](CloneTestLink* l) {
            l->setSoftRef(b);
            l->setHardRef(b);
        });
        edit<CloneTestLink>(b, [&](CloneTestLink* l) { l->setSoftRef(a); });
    }

    AcDbObjectId cloneOf(const AcDbIdMapping& map, AcDbObjectId key)
    {
        AcDbIdPair pair(key, AcDbObjectId(), false);
        EXPECT_TRUE(map.compute(pair)) << "no pair for " << key;
        return pair.value();
    }

    AcDbDatabase db;
    AcDbObjectId a;
    AcDbObjectId b;
};

TEST_F(CloneDeepTest, ClonesOfObjectsThatReferToEachOtherReferToTheClones)
{
    makePair();
    AcDbIdMapping map;
    AcDbObjectIdArray ids;
    ids.append(a);
    ids.append(b);
    ASSERT_EQ(db.deepCloneObjects(ids, db.currentSpaceId(), map), Acad::eOk);

    const AcDbObjectId a2 = cloneOf(map, a);
    const AcDbObjectId b2 = cloneOf(map, b);
    ASSERT_FALSE(a2.isNull());
    ASSERT_FALSE(b2.isNull());
    EXPECT_NE(a2, a);
    EXPECT_EQ(inspect(a2, &CloneTestLink::softRef), b2);
    EXPECT_EQ(inspect(a2, &CloneTestLink::hardRef), b2);
    EXPECT_EQ(inspect(b2, &CloneTestLink::softRef), a2);
    EXPECT_EQ(inspect(a2, &CloneTestLink::tag), 1);
    EXPECT_EQ(inspect(b2, &CloneTestLink::tag), 2);
    // The sources are untouched.
    EXPECT_EQ(inspect(a, &CloneTestLink::softRef), b);
    EXPECT_EQ(inspect(b, &CloneTestLink::softRef), a);
    // The clones were appended to the owner, after the sources.
    EXPECT_EQ(entitiesOf(&db), (std::vector<AcDbObjectId>{a, b, a2, b2}));
    EXPECT_EQ(inspect(a2, &AcDbObject::ownerId), db.currentSpaceId());
}

TEST_F(CloneDeepTest, PairsRecordPrimaryClonesInOrder)
{
    makePair();
    AcDbIdMapping map;
    AcDbObjectIdArray ids;
    ids.append(b);
    ids.append(a);
    ASSERT_EQ(db.deepCloneObjects(ids, db.currentSpaceId(), map), Acad::eOk);

    AcDbDatabase* dest = nullptr;
    AcDbDatabase* orig = nullptr;
    map.destDb(dest);
    map.origDb(orig);
    EXPECT_EQ(dest, &db);
    EXPECT_EQ(orig, &db);
    EXPECT_EQ(map.deepCloneContext(), AcDb::kDcCopy);
    std::vector<AcDbObjectId> keys;
    AcDbIdMappingIter it(map);
    for (it.start(); !it.done(); it.next()) {
        AcDbIdPair pair;
        ASSERT_TRUE(it.getMap(pair));
        EXPECT_TRUE(pair.isCloned()) << pair;
        EXPECT_TRUE(pair.isPrimary()) << pair;
        keys.push_back(pair.key());
    }
    EXPECT_EQ(keys, (std::vector<AcDbObjectId>{b, a}));
}

TEST_F(CloneDeepTest, ReferencesToObjectsNotClonedStayWithinTheDrawing)
{
    makePair();
    AcDbIdMapping map;
    AcDbObjectIdArray ids;
    ids.append(a);
    ASSERT_EQ(db.deepCloneObjects(ids, db.currentSpaceId(), map), Acad::eOk);
    const AcDbObjectId a2 = cloneOf(map, a);
    EXPECT_EQ(inspect(a2, &CloneTestLink::softRef), b);
    EXPECT_EQ(inspect(a2, &CloneTestLink::hardRef), b);
    EXPECT_EQ(map.numPairs(), 1);  // deep clone does not follow pointers
}

TEST_F(CloneDeepTest, OwnedObjectsComeAlongAsNonPrimaryClonesOwnedByTheClone)
{
    a = addLink(&db, 1);
    auto* note = new CloneTestNote();
    note->setNumber(42);
    AcDbObjectId noteId;
    ASSERT_EQ(db.addAcDbObject(noteId, note), Acad::eOk);
    note->close();
    edit<CloneTestLink>(a, [&](CloneTestLink* l) { l->setNote(noteId); });
    edit<CloneTestNote>(noteId, [&](CloneTestNote* n) { n->setOwnerId(a); });

    AcDbIdMapping map;
    AcDbObjectIdArray ids;
    ids.append(a);
    ASSERT_EQ(db.deepCloneObjects(ids, db.currentSpaceId(), map), Acad::eOk);

    const AcDbObjectId a2 = cloneOf(map, a);
    AcDbIdPair notePair(noteId, AcDbObjectId(), false);
    ASSERT_TRUE(map.compute(notePair));
    EXPECT_TRUE(notePair.isCloned());
    EXPECT_FALSE(notePair.isPrimary());
    const AcDbObjectId note2 = notePair.value();
    EXPECT_NE(note2, noteId);
    EXPECT_EQ(inspect(a2, &CloneTestLink::note), note2);
    EXPECT_EQ(inspect(note2, &AcDbObject::ownerId), a2);
    EXPECT_EQ(inspect(note2, &CloneTestNote::number), 42);
    // The owned note is not an entity of the block.
    EXPECT_EQ(entitiesOf(&db).size(), 2u);
}

TEST_F(CloneDeepTest, ClonesIntoAnotherBlockOfTheDrawing)
{
    makePair();
    AcDbBlockTable* blocks = nullptr;
    ASSERT_EQ(db.getBlockTable(blocks, AcDb::kForWrite), Acad::eOk);
    auto* block = new AcDbBlockTableRecord();
    block->setName(L"PANELS");
    AcDbObjectId blockId;
    ASSERT_EQ(blocks->add(blockId, block), Acad::eOk);
    block->close();
    blocks->close();

    AcDbIdMapping map;
    AcDbObjectIdArray ids;
    ids.append(a);
    ids.append(b);
    ASSERT_EQ(db.deepCloneObjects(ids, blockId, map), Acad::eOk);
    const std::vector<AcDbObjectId> inBlock = entitiesOf(&db, blockId);
    ASSERT_EQ(inBlock.size(), 2u);
    EXPECT_EQ(inspect(inBlock[0], &CloneTestLink::softRef), inBlock[1]);
    EXPECT_EQ(inspect(inBlock[0], &AcDbObject::ownerId), blockId);
}

TEST_F(CloneDeepTest, DeferredCallsTranslateAcrossOwnersAtTheLastCall)
{
    makePair();
    AcDbBlockTable* blocks = nullptr;
    ASSERT_EQ(db.getBlockTable(blocks, AcDb::kForWrite), Acad::eOk);
    auto* block = new AcDbBlockTableRecord();
    block->setName(L"OTHER");
    AcDbObjectId blockId;
    ASSERT_EQ(blocks->add(blockId, block), Acad::eOk);
    block->close();
    blocks->close();

    AcDbIdMapping map;
    AcDbObjectIdArray first;
    first.append(a);
    AcDbObjectIdArray second;
    second.append(b);
    ASSERT_EQ(db.deepCloneObjects(first, db.currentSpaceId(), map, true), Acad::eOk);
    // Not yet translated: the clone still names the source.
    EXPECT_EQ(inspect(cloneOf(map, a), &CloneTestLink::softRef), b);
    ASSERT_EQ(db.deepCloneObjects(second, blockId, map, false), Acad::eOk);
    EXPECT_EQ(inspect(cloneOf(map, a), &CloneTestLink::softRef), cloneOf(map, b));
    EXPECT_EQ(inspect(cloneOf(map, b), &CloneTestLink::softRef), cloneOf(map, a));
    EXPECT_EQ(inspect(cloneOf(map, b), &AcDbObject::ownerId), blockId);
}

TEST_F(CloneDeepTest, ClonesAreClosedAndUsableAfterwards)
{
    makePair();
    AcDbObjectIdArray ids;
    ids.append(a);
    AcDbObjectIdArray clones;
    ASSERT_EQ(headless::copyObjects(ids, clones), Acad::eOk);
    ASSERT_EQ(clones.length(), 1);
    AcDbObject* obj = nullptr;
    ASSERT_EQ(acdbOpenObject(obj, clones[0], AcDb::kForWrite), Acad::eOk);
    EXPECT_FALSE(obj->isAcDbObjectIdsInFlux());
    EXPECT_EQ(obj->erase(), Acad::eOk);
    obj->close();
}

struct MisuseCase {
    const char* name;
    std::function<Acad::ErrorStatus(AcDbDatabase&, AcDbDatabase&, AcDbObjectId)> call;
    Acad::ErrorStatus expected;
};

TEST_F(CloneDeepTest, MisuseIsRefusedWithTheHostStatus)
{
    a = addLink(&db, 1);
    const MisuseCase cases[] = {
        {"owner in another drawing",
         [](AcDbDatabase&, AcDbDatabase& other, AcDbObjectId id) {
             AcDbIdMapping map;
             AcDbObjectIdArray ids;
             ids.append(id);
             return id.database()->deepCloneObjects(ids, other.currentSpaceId(), map);
         },
         Acad::eWrongDatabase},
        {"object of another drawing",
         [](AcDbDatabase&, AcDbDatabase& other, AcDbObjectId id) {
             AcDbIdMapping map;
             AcDbObjectIdArray ids;
             ids.append(id);
             return other.deepCloneObjects(ids, other.currentSpaceId(), map);
         },
         Acad::eWrongDatabase},
        {"null owner",
         [](AcDbDatabase& self, AcDbDatabase&, AcDbObjectId id) {
             AcDbIdMapping map;
             AcDbObjectIdArray ids;
             ids.append(id);
             return self.deepCloneObjects(ids, AcDbObjectId(), map);
         },
         Acad::eNullObjectId},
        {"null id",
         [](AcDbDatabase& self, AcDbDatabase&, AcDbObjectId) {
             AcDbIdMapping map;
             AcDbObjectIdArray ids;
             ids.append(AcDbObjectId());
             return self.deepCloneObjects(ids, self.currentSpaceId(), map);
         },
         Acad::eNullObjectId},
        {"mapping of a finished operation",
         [](AcDbDatabase& self, AcDbDatabase&, AcDbObjectId id) {
             AcDbIdMapping map;
             AcDbObjectIdArray ids;
             ids.append(id);
             self.deepCloneObjects(ids, self.currentSpaceId(), map);
             return self.deepCloneObjects(ids, self.currentSpaceId(), map);
         },
         Acad::eInvalidIdMap},
    };
    AcDbDatabase other;
    for (const MisuseCase& c : cases)
        EXPECT_EQ(c.call(db, other, a), c.expected) << c.name;
}

TEST_F(CloneDeepTest, TheContextIsTheCommandsChoiceOrCopy)
{
    a = addLink(&db, 1);
    AcDbObjectIdArray ids;
    ids.append(a);
    const AcDb::DeepCloneType chosen[] = {AcDb::kDcExplode, AcDb::kDcInsert, AcDb::kDcInsertCopy};
    for (AcDb::DeepCloneType context : chosen) {
        AcDbIdMapping map;
        ASSERT_EQ(headless::setDeepCloneContext(map, context), Acad::eOk);
        ASSERT_EQ(db.deepCloneObjects(ids, db.currentSpaceId(), map), Acad::eOk);
        EXPECT_EQ(map.deepCloneContext(), context);
        EXPECT_EQ(headless::setDeepCloneContext(map, AcDb::kDcCopy), Acad::eInvalidContext);
    }
}

TEST(IdMappingTest, PairsAreAssignedLookedUpChangedAndDeleted)
{
    AcDbDatabase db;
    const AcDbObjectId k1 = db.layerZero();
    const AcDbObjectId k2 = db.continuousLinetype();
    const AcDbObjectId v = db.byLayerLinetype();
    AcDbIdMapping map;
    EXPECT_EQ(map.deepCloneContext(), AcDb::kDcCopy);
    EXPECT_EQ(map.duplicateRecordCloning(), AcDb::kDrcNotApplicable);
    AcDbDatabase* dest = &db;
    map.destDb(dest);
    EXPECT_EQ(dest, nullptr);

    EXPECT_EQ(map.assign(AcDbIdPair(AcDbObjectId(), v, true)), Acad::eNullObjectId);
    EXPECT_EQ(map.assign(AcDbIdPair(k1, v, true, true)), Acad::eOk);
    EXPECT_EQ(map.assign(AcDbIdPair(k2, AcDbObjectId(), false)), Acad::eOk);
    AcDbIdPair found(k1, AcDbObjectId(), false);
    ASSERT_TRUE(map.compute(found));
    EXPECT_EQ(found, AcDbIdPair(k1, v, true, true, true));

    EXPECT_TRUE(map.change(AcDbIdPair(k1, v, false, false, false)));
    ASSERT_TRUE(map.compute(found));
    EXPECT_FALSE(found.isCloned());
    EXPECT_FALSE(found.isOwnerXlated());
    EXPECT_FALSE(map.change(AcDbIdPair(v, v, true)));

    EXPECT_TRUE(map.del(k1));
    EXPECT_FALSE(map.del(k1));
    EXPECT_FALSE(map.compute(found));
    AcDbIdMappingIter it(map);
    AcDbIdPair only;
    ASSERT_TRUE(it.getMap(only));
    EXPECT_EQ(only.key(), k2);
    EXPECT_FALSE(it.next());
    EXPECT_TRUE(it.done());
}

}  // namespace
