// Document locks: the modes a context holds, auto-write and protected auto-write, locks of
// other contexts (a command in a document), the lock notifications and their veto, and
// the refusal of writes to a document that is not locked.
#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "CloneTestSupport.h"
#include "acdocman.h"
#include "headless/Session.h"

namespace {

using AcAp::DocLockMode;

class DocumentLockTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        registerCloneTestClasses();
        doc = session.newDocument();
    }
    void TearDown() override
    {
        while (acDocManager->unlockDocument(doc) == Acad::eOk) {
        }
    }

    headless::Session session;
    AcApDocument* doc = nullptr;
};

TEST_F(DocumentLockTest, LockModesHaveTheHostsNumbers)
{
    EXPECT_EQ(AcAp::kNone, 0x00);
    EXPECT_EQ(AcAp::kAutoWrite, 0x01);
    EXPECT_EQ(AcAp::kNotLocked, 0x02);
    EXPECT_EQ(AcAp::kWrite, 0x04);
    EXPECT_EQ(AcAp::kProtectedAutoWrite, 0x14);
    EXPECT_EQ(AcAp::kRead, 0x20);
    EXPECT_EQ(AcAp::kXWrite, 0x40);
    EXPECT_TRUE((AcAp::kProtectedAutoWrite & AcAp::kWrite) != 0);
}

// A sequence of lock calls and the caller's mode after each.
struct LockStep {
    bool lock;  // else unlock
    DocLockMode mode;
    Acad::ErrorStatus expected;
    DocLockMode myModeAfter;
};

struct LockCase {
    const char* name;
    std::vector<LockStep> steps;
};

TEST_F(DocumentLockTest, LocksStackAndUnlockInReverse)
{
    const LockCase cases[] = {
        {"write then unlock",
         {{true, AcAp::kWrite, Acad::eOk, AcAp::kWrite}, {false, AcAp::kNone, Acad::eOk, AcAp::kNotLocked}}},
        {"read under write keeps write",
         {{true, AcAp::kWrite, Acad::eOk, AcAp::kWrite},
          {true, AcAp::kRead, Acad::eOk, AcAp::kWrite},
          {false, AcAp::kNone, Acad::eOk, AcAp::kWrite},
          {false, AcAp::kNone, Acad::eOk, AcAp::kNotLocked}}},
        {"auto-write is a no-op when held",
         {{true, AcAp::kAutoWrite, Acad::eOk, AcAp::kAutoWrite},
          {true, AcAp::kAutoWrite, Acad::eOk, AcAp::kAutoWrite},
          {false, AcAp::kNone, Acad::eOk, AcAp::kNotLocked}}},
        {"any other lock drops auto-write",
         {{true, AcAp::kAutoWrite, Acad::eOk, AcAp::kAutoWrite},
          {true, AcAp::kRead, Acad::eOk, AcAp::kRead},
          {false, AcAp::kNone, Acad::eOk, AcAp::kNotLocked}}},
        {"protected auto-write falls back to auto-write when unlocked",
         {{true, AcAp::kProtectedAutoWrite, Acad::eOk, AcAp::kProtectedAutoWrite},
          {false, AcAp::kNone, Acad::eOk, AcAp::kAutoWrite},
          {false, AcAp::kNone, Acad::eOk, AcAp::kNotLocked}}},
        {"unlocking what is not locked",
         {{false, AcAp::kNone, Acad::eNotApplicable, AcAp::kNotLocked}}},
        {"modes that are no locks",
         {{true, AcAp::kNone, Acad::eInvalidInput, AcAp::kNotLocked},
          {true, AcAp::kNotLocked, Acad::eInvalidInput, AcAp::kNotLocked}}},
    };
    for (const LockCase& c : cases) {
        for (std::size_t i = 0; i < c.steps.size(); ++i) {
            const LockStep& step = c.steps[i];
            const Acad::ErrorStatus es =
                step.lock ? acDocManager->lockDocument(doc, step.mode) : acDocManager->unlockDocument(doc);
            EXPECT_EQ(es, step.expected) << c.name << ", step " << i;
            EXPECT_EQ(doc->myLockMode(), step.myModeAfter) << c.name << ", step " << i;
            // The caller's own locks are not "other contexts'".
            EXPECT_EQ(doc->lockMode(), AcAp::kNotLocked) << c.name << ", step " << i;
            EXPECT_EQ(doc->lockMode(true), step.myModeAfter) << c.name << ", step " << i;
        }
    }
}

TEST_F(DocumentLockTest, ACommandsLockIsAnotherContextsLock)
{
    DocLockMode seenInCommand = AcAp::kNone;
    DocLockMode othersInCommand = AcAp::kNone;
    bool applicationContext = true;
    ASSERT_EQ(acDocManager->lockDocument(doc, AcAp::kRead), Acad::eOk);
    ASSERT_EQ(session.runCommand(doc,
                                 [&] {
                                     seenInCommand = doc->myLockMode();
                                     othersInCommand = doc->lockMode();
                                     applicationContext = acDocManager->isApplicationContext();
                                 }),
              Acad::eLockConflict);  // the application's read lock is in the way
    ASSERT_EQ(acDocManager->unlockDocument(doc), Acad::eOk);
    ASSERT_EQ(session.runCommand(doc,
                                 [&] {
                                     seenInCommand = doc->myLockMode();
                                     othersInCommand = doc->lockMode();
                                     applicationContext = acDocManager->isApplicationContext();
                                 }),
              Acad::eOk);
    EXPECT_EQ(seenInCommand, AcAp::kWrite);
    EXPECT_EQ(othersInCommand, AcAp::kNotLocked);
    EXPECT_FALSE(applicationContext);
    EXPECT_TRUE(acDocManager->isApplicationContext());
    EXPECT_EQ(doc->lockMode(true), AcAp::kNotLocked);
}

TEST_F(DocumentLockTest, WritesToAnUnlockedDocumentAreRefused)
{
    AcDbDatabase* db = doc->database();
    AcDbBlockTableRecord* model = nullptr;
    EXPECT_EQ(acdbOpenObject(model, db->currentSpaceId(), AcDb::kForWrite), Acad::eLockViolation);
    // Reading needs no lock.
    ASSERT_EQ(acdbOpenObject(model, db->currentSpaceId(), AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(model->upgradeOpen(), Acad::eLockViolation);
    model->close();
    ASSERT_EQ(acDocManager->lockDocument(doc, AcAp::kRead), Acad::eOk);
    EXPECT_EQ(acdbOpenObject(model, db->currentSpaceId(), AcDb::kForWrite), Acad::eLockViolation);
    ASSERT_EQ(acDocManager->unlockDocument(doc), Acad::eOk);
    ASSERT_EQ(acDocManager->lockDocument(doc), Acad::eOk);  // kWrite by default
    ASSERT_EQ(acdbOpenObject(model, db->currentSpaceId(), AcDb::kForWrite), Acad::eOk);
    model->close();
    ASSERT_EQ(acDocManager->unlockDocument(doc), Acad::eOk);
    // A drawing that is no document's needs no lock.
    AcDbDatabase loose;
    EXPECT_EQ(clonetest::entitiesOf(&loose).size(), 0u);
    clonetest::addLink(&loose, 1);
    EXPECT_EQ(clonetest::entitiesOf(&loose).size(), 1u);
}

class LockReactor : public AcApDocManagerReactor {
public:
    void documentLockModeWillChange(AcApDocument*, DocLockMode myCurrent, DocLockMode myNew, DocLockMode,
                                    const ACHAR*) override
    {
        changes.push_back({myCurrent, myNew});
        if (refuse)
            vetoResult = veto();
    }
    void documentLockModeChangeVetoed(AcApDocument*, const ACHAR* command) override
    {
        vetoed = command != nullptr ? command : L"";
    }
    void documentLockModeChanged(AcApDocument*, DocLockMode previous, DocLockMode current, DocLockMode whole,
                                 const ACHAR*) override
    {
        done.push_back({previous, current});
        lastWhole = whole;
    }
    Acad::ErrorStatus outsideVeto() { return veto(); }

    bool refuse = false;
    Acad::ErrorStatus vetoResult = Acad::eOk;
    std::wstring vetoed;
    std::vector<std::pair<DocLockMode, DocLockMode>> changes;
    std::vector<std::pair<DocLockMode, DocLockMode>> done;
    DocLockMode lastWhole = AcAp::kNone;
};

TEST_F(DocumentLockTest, ReactorsAreToldOfLockChangesAndMayVetoThem)
{
    LockReactor reactor;
    acDocManager->addReactor(&reactor);
    ASSERT_EQ(acDocManager->lockDocument(doc, AcAp::kWrite), Acad::eOk);
    ASSERT_EQ(acDocManager->unlockDocument(doc), Acad::eOk);
    using Change = std::pair<DocLockMode, DocLockMode>;
    EXPECT_EQ(reactor.changes, (std::vector<Change>{{AcAp::kNotLocked, AcAp::kWrite}, {AcAp::kWrite, AcAp::kNotLocked}}));
    EXPECT_EQ(reactor.done, reactor.changes);
    EXPECT_EQ(reactor.lastWhole, AcAp::kNotLocked);

    reactor.refuse = true;
    EXPECT_EQ(acDocManager->lockDocument(doc, AcAp::kXWrite, L"STRETCH"), Acad::eVetoed);
    EXPECT_EQ(reactor.vetoResult, Acad::eOk);
    EXPECT_EQ(reactor.vetoed, L"STRETCH");
    EXPECT_EQ(doc->myLockMode(), AcAp::kNotLocked);
    EXPECT_EQ(reactor.outsideVeto(), Acad::eNotApplicable);
    acDocManager->removeReactor(&reactor);
}

TEST_F(DocumentLockTest, SetCurDocumentCanLockOnTheWay)
{
    AcApDocument* other = session.newDocument();
    ASSERT_EQ(acDocManager->curDocument(), other);
    ASSERT_EQ(acDocManager->setCurDocument(doc, AcAp::kWrite, true), Acad::eOk);
    EXPECT_EQ(acDocManager->curDocument(), doc);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), doc);
    EXPECT_EQ(doc->myLockMode(), AcAp::kWrite);
}

}  // namespace
