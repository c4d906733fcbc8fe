// Documents: a session's new, opened, saved, switched and closed drawings, what the
// document reactors are told, and per-document data that follows the current document.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "AcApDMgr.h"
#include "FileTestSupport.h"
#include "dbapserv.h"
#include "headless/DatabaseAccess.h"
#include "headless/Session.h"

using namespace filetest;

namespace {

// Writes each notification as "event title".
class JournalReactor : public AcApDocManagerReactor {
public:
    void documentCreateStarted(AcApDocument* doc) override { note("createStarted", doc); }
    void documentCreated(AcApDocument* doc) override { note("created", doc); }
    void documentToBeDestroyed(AcApDocument* doc) override { note("toBeDestroyed", doc); }
    void documentDestroyed(const ACHAR* fileName) override
    {
        words.push_back("destroyed " + headless::toUtf8(fileName));
    }
    void documentBecameCurrent(AcApDocument* doc) override { note("becameCurrent", doc); }
    void documentToBeActivated(AcApDocument* doc) override { note("toBeActivated", doc); }
    void documentToBeDeactivated(AcApDocument* doc) override { note("toBeDeactivated", doc); }
    void documentActivated(AcApDocument* doc) override { note("activated", doc); }

    void note(const char* word, AcApDocument* doc)
    {
        words.push_back(std::string(word) + " " + headless::toUtf8(doc->docTitle()));
    }
    std::vector<std::string> words;
};

class DocumentTest : public ::testing::Test {
protected:
    void SetUp() override { acDocManager->addReactor(&reactor); }
    void TearDown() override { acDocManager->removeReactor(&reactor); }

    JournalReactor reactor;
};

TEST_F(DocumentTest, ANewDocumentIsAnnouncedMadeCurrentAndReportedCreated)
{
    headless::Session session;
    AcApDocument* first = session.newDocument();
    const std::string title = headless::toUtf8(first->docTitle());
    EXPECT_EQ(title.rfind("Drawing", 0), 0u);
    EXPECT_EQ(title.substr(title.size() - 4), ".qxd");
    EXPECT_EQ(reactor.words, (std::vector<std::string>{"createStarted " + title, "toBeActivated " + title,
                                                         "becameCurrent " + title, "activated " + title,
                                                         "created " + title}));
    EXPECT_EQ(acDocManager->curDocument(), first);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), first);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), first->database());
    EXPECT_EQ(acDocManager->document(first->database()), first);
    EXPECT_TRUE(first->isQuiescent());
}

TEST_F(DocumentTest, SwitchingAndClosingDocumentsTellsTheReactors)
{
    headless::Session session;
    AcApDocument* first = session.newDocument();
    AcApDocument* second = session.newDocument();
    const std::string a = headless::toUtf8(first->docTitle());
    const std::string b = headless::toUtf8(second->docTitle());
    EXPECT_EQ(acDocManager->documentCount(), 2);
    reactor.words.clear();

    ASSERT_EQ(acDocManager->setCurDocument(first), Acad::eOk);
    EXPECT_EQ(acDocManager->curDocument(), first);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), second);  // current, not activated
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), first->database());
    ASSERT_EQ(acDocManager->activateDocument(first), Acad::eOk);
    ASSERT_EQ(session.close(first), Acad::eOk);
    EXPECT_EQ(reactor.words,
              (std::vector<std::string>{"becameCurrent " + a, "toBeDeactivated " + b, "toBeActivated " + a,
                                        "activated " + a, "toBeDestroyed " + a, "toBeActivated " + b,
                                        "becameCurrent " + b, "activated " + b, "destroyed " + a}));
    EXPECT_EQ(acDocManager->curDocument(), second);
    EXPECT_EQ(acDocManager->documentCount(), 1);
    EXPECT_EQ(acDocManager->closeDocument(first), Acad::eNoDocument);
    EXPECT_EQ(acDocManager->setCurDocument(nullptr), Acad::eNoDocument);
}

TEST_F(DocumentTest, TheIteratorWalksTheOpenDocumentsInOrder)
{
    headless::Session session;
    std::vector<AcApDocument*> opened = {session.newDocument(), session.newDocument(), session.newDocument()};
    std::vector<AcApDocument*> walked;
    AcApDocumentIterator* it = acDocManager->newAcApDocumentIterator();
    for (; !it->done(); it->step())
        walked.push_back(it->document());
    delete it;
    EXPECT_EQ(walked, opened);
}

TEST_F(DocumentTest, WithoutDocumentsNothingIsCurrent)
{
    {
        headless::Session session;
        session.newDocument();
    }
    EXPECT_EQ(acDocManager->documentCount(), 0);
    EXPECT_EQ(acDocManager->curDocument(), nullptr);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
}

struct Counter {
    int value = 0;
};

TEST_F(DocumentTest, PerDocumentDataFollowsTheCurrentDocumentAndGoesWithIt)
{
    headless::Session session;
    AcApDataManager<Counter> data;
    AcApDocument* first = session.newDocument();
    data.docData().value = 1;
    AcApDocument* second = session.newDocument();
    EXPECT_EQ(data.docData().value, 0);  // made on first use
    data.docData().value = 2;
    acDocManager->setCurDocument(first);
    EXPECT_EQ(data.docData().value, 1);
    EXPECT_EQ(data.docData(second).value, 2);
    session.close(second);
    // The closed document's data went with it: a document at the same address starts afresh.
    EXPECT_EQ(data.docData(second).value, 0);
}

TEST_F(DocumentTest, DrawingsAreSavedOpenedAndRenamedThroughTheSession)
{
    FileTestShape::registerWith(AcDbProxyFlags::kAllButCloningAllowed);
    FileTestRecord::registerWith(AcDbProxyFlags::kNoOperation);
    TempFile file("roof.qxd");
    headless::Session session;
    AcApDocument* doc = session.newDocument();
    EXPECT_EQ(session.save(doc), Acad::eNotApplicable);  // never saved: no file yet
    ASSERT_EQ(session.runCommand(doc, [&] { buildSample(doc->database()); }), Acad::eOk);
    ASSERT_EQ(session.saveAs(doc, file.path()), Acad::eOk);
    EXPECT_EQ(std::wstring(doc->fileName()), file.path());
    EXPECT_EQ(std::wstring(doc->docTitle()).substr(std::wstring(doc->docTitle()).size() - 8), L"roof.qxd");
    ASSERT_EQ(session.save(doc), Acad::eOk);
    const Bytes saved = file.contents();

    AcApDocument* reopened = nullptr;
    headless::DrawingReadReport report;
    ASSERT_EQ(session.openDocument(file.path(), reopened, &report), Acad::eOk);
    EXPECT_EQ(acDocManager->curDocument(), reopened);
    EXPECT_EQ(report.objects, static_cast<int>(headless::DatabaseAccess::objectIds(doc->database()).size()));
    EXPECT_EQ(writeBytes(reopened->database()), saved);
    AcApDocument* missing = nullptr;
    EXPECT_EQ(session.openDocument(L"/nonexistent-folder/none.qxd", missing), Acad::eFilerError);
    EXPECT_EQ(missing, nullptr);
}

}  // namespace
