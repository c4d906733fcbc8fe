// The clone notifications: the event object in the system registry, one begin and one
// end per operation in begin -> beginXlation -> end order, and the abort paths.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CloneTestSupport.h"
#include "headless/CloneCommand.h"
#include "rxevent.h"

using namespace clonetest;

namespace {

// Writes each notification as a word; can refuse the translation or erase nothing.
class JournalReactor : public AcRxEventReactor {
public:
    void beginDeepClone(AcDbDatabase* to, AcDbIdMapping& map) override
    {
        note("begin", map);
        destination = to;
    }
    void beginWblockObjects(AcDbDatabase*, AcDbIdMapping& map) override { note("beginWblockObjects", map); }
    void beginDeepCloneXlation(AcDbIdMapping& map, Acad::ErrorStatus* status) override
    {
        note("xlation", map);
        pairsAtXlation = map.numPairs();
        if (refuseWith != Acad::eOk)
            *status = refuseWith;
    }
    void abortDeepClone(AcDbIdMapping& map) override { note("abort", map); }
    void endDeepClone(AcDbIdMapping& map) override
    {
        note("end", map);
        // Clones are closed by now: a reactor may open them for write.
        AcDbIdMappingIter it(map);
        for (it.start(); !it.done(); it.next()) {
            AcDbIdPair pair;
            it.getMap(pair);
            AcDbObject* clone = nullptr;
            if (pair.isCloned() && acdbOpenObject(clone, pair.value(), AcDb::kForWrite) == Acad::eOk) {
                ++clonesOpenedAtEnd;
                clone->close();
            }
        }
    }

    void note(const char* word, AcDbIdMapping& map)
    {
        words.push_back(word);
        maps.push_back(&map);
    }

    std::vector<std::string> words;
    std::vector<const AcDbIdMapping*> maps;
    AcDbDatabase* destination = nullptr;
    Acad::ErrorStatus refuseWith = Acad::eOk;
    int pairsAtXlation = -1;
    int clonesOpenedAtEnd = 0;
};

class CloneEventTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        registerCloneTestClasses();
        ASSERT_NE(acrxEvent, nullptr);
        acrxEvent->addReactor(&reactor);
        a = addLink(&db, 1);
        b = addLink(&db, 2);
        ids.append(a);
        ids.append(b);
    }
    void TearDown() override
    {
        acrxEvent->removeReactor(&reactor);
        CloneTestLink::failingTag = -1;
    }

    AcDbDatabase db;
    JournalReactor reactor;
    AcDbObjectId a;
    AcDbObjectId b;
    AcDbObjectIdArray ids;
};

TEST_F(CloneEventTest, TheEventObjectIsInTheSystemRegistry)
{
    AcRxObject* registered = acrxSysRegistry()->at(L"AcRxEvent");
    ASSERT_NE(registered, nullptr);
    EXPECT_EQ(AcRxEvent::cast(registered), acrxEvent);
}

TEST_F(CloneEventTest, ACopySendsBeginXlationAndEndOnce)
{
    AcDbIdMapping map;
    ASSERT_EQ(db.deepCloneObjects(ids, db.currentSpaceId(), map), Acad::eOk);
    EXPECT_EQ(reactor.words, (std::vector<std::string>{"begin", "xlation", "end"}));
    for (const AcDbIdMapping* seen : reactor.maps)
        EXPECT_EQ(seen, &map);
    EXPECT_EQ(reactor.destination, &db);
    EXPECT_EQ(reactor.pairsAtXlation, 2);
    EXPECT_EQ(reactor.clonesOpenedAtEnd, 2);
}

TEST_F(CloneEventTest, DeferredCallsMakeOneOperation)
{
    AcDbIdMapping map;
    AcDbObjectIdArray first;
    first.append(a);
    AcDbObjectIdArray second;
    second.append(b);
    ASSERT_EQ(db.deepCloneObjects(first, db.currentSpaceId(), map, true), Acad::eOk);
    EXPECT_EQ(reactor.words, (std::vector<std::string>{"begin"}));
    ASSERT_EQ(db.deepCloneObjects(second, db.currentSpaceId(), map), Acad::eOk);
    EXPECT_EQ(reactor.words, (std::vector<std::string>{"begin", "xlation", "end"}));
}

TEST_F(CloneEventTest, EachCopyIsItsOwnOperation)
{
    for (int copy = 0; copy < 3; ++copy) {
        AcDbObjectIdArray clones;
        ASSERT_EQ(headless::copyObjects(ids, clones), Acad::eOk);
    }
    EXPECT_EQ(std::count(reactor.words.begin(), reactor.words.end(), "end"), 3);
    EXPECT_EQ(std::count(reactor.words.begin(), reactor.words.end(), "begin"), 3);
}

TEST_F(CloneEventTest, AWblockAlsoTellsWhichDrawingObjectsComeFrom)
{
    AcDbDatabase dest;
    AcDbIdMapping map;
    ASSERT_EQ(db.wblockCloneObjects(ids, dest.currentSpaceId(), map, AcDb::kDrcIgnore), Acad::eOk);
    EXPECT_EQ(reactor.words, (std::vector<std::string>{"begin", "beginWblockObjects", "xlation", "end"}));
    EXPECT_EQ(reactor.destination, &dest);
}

TEST_F(CloneEventTest, ARefusedTranslationAbortsAndErasesTheClones)
{
    reactor.refuseWith = Acad::eUserBreak;
    AcDbIdMapping map;
    EXPECT_EQ(db.deepCloneObjects(ids, db.currentSpaceId(), map), Acad::eUserBreak);
    EXPECT_EQ(reactor.words, (std::vector<std::string>{"begin", "xlation", "abort"}));
    EXPECT_EQ(entitiesOf(&db), (std::vector<AcDbObjectId>{a, b}));
    AcDbIdPair pair(a, AcDbObjectId(), false);
    ASSERT_TRUE(map.compute(pair));
    EXPECT_TRUE(pair.value().isErased());
}

TEST_F(CloneEventTest, AFailingCloneAbortsTheWholeOperation)
{
    CloneTestLink::failingTag = 2;
    AcDbIdMapping map;
    EXPECT_EQ(db.deepCloneObjects(ids, db.currentSpaceId(), map), Acad::eNotApplicable);
    EXPECT_EQ(reactor.words, (std::vector<std::string>{"begin", "abort"}));
    EXPECT_EQ(entitiesOf(&db), (std::vector<AcDbObjectId>{a, b}));
}

TEST_F(CloneEventTest, AReactorRemovedDuringANotificationIsNotToldAgain)
{
    struct SelfRemoving : AcRxEventReactor {
        int told = 0;
        void beginDeepClone(AcDbDatabase*, AcDbIdMapping&) override
        {
            ++told;
            acrxEvent->removeReactor(this);
        }
        void endDeepClone(AcDbIdMapping&) override { ++told; }
    } selfRemoving;
    acrxEvent->addReactor(&selfRemoving);
    acrxEvent->addReactor(&selfRemoving);  // once only
    AcDbIdMapping map;
    ASSERT_EQ(db.deepCloneObjects(ids, db.currentSpaceId(), map), Acad::eOk);
    EXPECT_EQ(selfRemoving.told, 1);
    EXPECT_EQ(reactor.words.back(), "end");
}

}  // namespace
