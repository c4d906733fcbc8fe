// Wblock clone into another drawing: references between clones translated, references
// to what stayed behind nulled, hard pointers followed, symbol table records matched by
// name or brought along.
#include <gtest/gtest.h>

#include "CloneTestSupport.h"

using namespace clonetest;

namespace {

class CloneWblockTest : public ::testing::Test {
protected:
    void SetUp() override { registerCloneTestClasses(); }

    AcDbObjectId cloneOf(const AcDbIdMapping& map, AcDbObjectId key)
    {
        AcDbIdPair pair(key, AcDbObjectId(), false);
        return map.compute(pair) ? pair.value() : AcDbObjectId();
    }

    Acad::ErrorStatus wblock(std::initializer_list<AcDbObjectId> ids, AcDbIdMapping& map,
                             AcDb::DuplicateRecordCloning drc = AcDb::kDrcIgnore)
    {
        AcDbObjectIdArray array;
        for (const AcDbObjectId& id : ids)
            array.append(id);
        return source.wblockCloneObjects(array, dest.currentSpaceId(), map, drc);
    }

    AcDbDatabase source;
    AcDbDatabase dest;
};

TEST_F(CloneWblockTest, ClonesInTheOtherDrawingReferToEachOther)
{
    const AcDbObjectId a = addLink(&source, 1);
    const AcDbObjectId b = addLink(&source, 2);
    edit<CloneTestLink>(a, [&](CloneTestLink* l) {
        l->setSoftRef(b);
        l->setHardRef(b);
    });
    edit<CloneTestLink>(b, [&](CloneTestLink* l) { l->setSoftRef(a); });

    AcDbIdMapping map;
    ASSERT_EQ(wblock({a, b}, map), Acad::eOk);
    const AcDbObjectId a2 = cloneOf(map, a);
    const AcDbObjectId b2 = cloneOf(map, b);
    ASSERT_EQ(a2.database(), &dest);
    ASSERT_EQ(b2.database(), &dest);
    EXPECT_EQ(inspect(a2, &CloneTestLink::softRef), b2);
    EXPECT_EQ(inspect(a2, &CloneTestLink::hardRef), b2);
    EXPECT_EQ(inspect(b2, &CloneTestLink::softRef), a2);
    EXPECT_EQ(entitiesOf(&dest), (std::vector<AcDbObjectId>{a2, b2}));
    EXPECT_EQ(map.deepCloneContext(), AcDb::kDcWblkObjects);
    AcDbDatabase* orig = nullptr;
    map.origDb(orig);
    EXPECT_EQ(orig, &source);
}

TEST_F(CloneWblockTest, SoftPointersToWhatStayedBehindBecomeNullAndHardPointersBringItAlong)
{
    const AcDbObjectId a = addLink(&source, 1);
    const AcDbObjectId soft = addLink(&source, 2);
    const AcDbObjectId hard = addLink(&source, 3);
    edit<CloneTestLink>(a, [&](CloneTestLink* l) {
        l->setSoftRef(soft);
        l->setHardRef(hard);
    });

    AcDbIdMapping map;
    ASSERT_EQ(wblock({a}, map), Acad::eOk);
    const AcDbObjectId a2 = cloneOf(map, a);
    EXPECT_TRUE(inspect(a2, &CloneTestLink::softRef).isNull());
    EXPECT_TRUE(cloneOf(map, soft).isNull());
    const AcDbObjectId hard2 = cloneOf(map, hard);
    ASSERT_FALSE(hard2.isNull());
    EXPECT_EQ(inspect(a2, &CloneTestLink::hardRef), hard2);
    EXPECT_EQ(inspect(hard2, &CloneTestLink::tag), 3);
    // The pointed-at entity went to the destination's block of the same name.
    EXPECT_EQ(entitiesOf(&dest), (std::vector<AcDbObjectId>{a2, hard2}));
}

TEST_F(CloneWblockTest, LayersAreMatchedByNameOrBroughtAlong)
{
    const AcDbObjectId walls = addLayer(&source, L"Walls", 1);
    const AcDbObjectId onWalls = addLink(&source, 1);
    const AcDbObjectId onZero = addLink(&source, 2);
    edit<CloneTestLink>(onWalls, [&](CloneTestLink* l) { l->setLayer(walls); });

    AcDbIdMapping map;
    ASSERT_EQ(wblock({onWalls, onZero}, map), Acad::eOk);
    const AcDbObjectId wallsClone = inspect(cloneOf(map, onWalls), &AcDbEntity::layerId);
    EXPECT_EQ(wallsClone.database(), &dest);
    EXPECT_EQ(nameOf(wallsClone), AcString(L"Walls"));
    EXPECT_EQ(inspect(cloneOf(map, onZero), &AcDbEntity::layerId), dest.layerZero());
    // The layer's own linetype is the destination's record of the same name.
    EXPECT_EQ(inspect(wallsClone, &AcDbLayerTableRecord::linetypeObjectId), dest.continuousLinetype());
    AcDbIdPair zeroPair(source.layerZero(), AcDbObjectId(), false);
    ASSERT_TRUE(map.compute(zeroPair));
    EXPECT_FALSE(zeroPair.isCloned());
    EXPECT_EQ(zeroPair.value(), dest.layerZero());
}

struct DuplicateCase {
    const char* name;
    AcDb::DuplicateRecordCloning drc;
    Adesk::UInt16 colorAfter;
};

TEST_F(CloneWblockTest, ADuplicateLayerIsKeptOrReplacedAsAsked)
{
    const DuplicateCase cases[] = {
        {"ignore keeps the destination's", AcDb::kDrcIgnore, 3},
        {"replace takes the source's", AcDb::kDrcReplace, 1},
        {"mangling is not supported and keeps the destination's", AcDb::kDrcMangleName, 3},
    };
    for (const DuplicateCase& c : cases) {
        AcDbDatabase from;
        AcDbDatabase to;
        const AcDbObjectId walls = addLayer(&from, L"Walls", 1);
        const AcDbObjectId destWalls = addLayer(&to, L"walls", 3);
        const AcDbObjectId link = addLink(&from, 1);
        edit<CloneTestLink>(link, [&](CloneTestLink* l) { l->setLayer(walls); });
        AcDbIdMapping map;
        AcDbObjectIdArray ids;
        ids.append(link);
        ASSERT_EQ(from.wblockCloneObjects(ids, to.currentSpaceId(), map, c.drc), Acad::eOk) << c.name;
        EXPECT_EQ(map.duplicateRecordCloning(), c.drc) << c.name;
        EXPECT_EQ(inspect(cloneOf(map, link), &AcDbEntity::layerId), destWalls) << c.name;
        EXPECT_EQ(inspect(destWalls, &AcDbLayerTableRecord::color).colorIndex(), c.colorAfter) << c.name;
    }
}

TEST_F(CloneWblockTest, OwnedObjectsComeAlongIntoTheOtherDrawing)
{
    const AcDbObjectId a = addLink(&source, 1);
    auto* note = new CloneTestNote();
    note->setNumber(7);
    AcDbObjectId noteId;
    ASSERT_EQ(source.addAcDbObject(noteId, note), Acad::eOk);
    note->close();
    edit<CloneTestLink>(a, [&](CloneTestLink* l) { l->setNote(noteId); });

    AcDbIdMapping map;
    ASSERT_EQ(wblock({a}, map), Acad::eOk);
    const AcDbObjectId note2 = inspect(cloneOf(map, a), &CloneTestLink::note);
    ASSERT_FALSE(note2.isNull());
    EXPECT_EQ(note2.database(), &dest);
    EXPECT_EQ(inspect(note2, &CloneTestNote::number), 7);
    EXPECT_EQ(inspect(note2, &AcDbObject::ownerId), cloneOf(map, a));
}

}  // namespace
