// Session: documents opened, saved and closed for a test or tool, and commands run in them.
#include "headless/Session.h"

#include <algorithm>
#include <memory>

#include "AcDbDatabase.h"
#include "ap/DocManagerState.h"
#include "headless/UndoHistory.h"

namespace headless {

namespace {

hostap::DocManagerState& manager()
{
    return hostap::DocManagerState::instance();
}

}  // namespace

Session::Session() = default;

Session::~Session()
{
    while (!m_documents.empty())
        close(m_documents.back());
}

AcApDocument* Session::newDocument()
{
    AcApDocument* doc = manager().openDocument(std::make_unique<AcDbDatabase>(true), AcString());
    m_documents.push_back(doc);
    return doc;
}

Acad::ErrorStatus Session::openDocument(const std::wstring& path, AcApDocument*& doc, DrawingReadReport* report)
{
    doc = nullptr;
    AcDbDatabase* db = nullptr;
    const Acad::ErrorStatus es = DrawingFile::open(path, db, report);
    if (es != Acad::eOk)
        return es;
    doc = manager().openDocument(std::unique_ptr<AcDbDatabase>(db), AcString(path.c_str()));
    m_documents.push_back(doc);
    return Acad::eOk;
}

Acad::ErrorStatus Session::save(AcApDocument* doc)
{
    if (!manager().isManaged(doc))
        return Acad::eNoDocument;
    if (hostap::DocManagerState::of(doc).untitled)
        return Acad::eNotApplicable;
    return DrawingFile::save(doc->database(), doc->fileName());
}

Acad::ErrorStatus Session::saveAs(AcApDocument* doc, const std::wstring& path)
{
    if (!manager().isManaged(doc))
        return Acad::eNoDocument;
    const Acad::ErrorStatus es = DrawingFile::save(doc->database(), path);
    if (es == Acad::eOk)
        manager().renameDocument(doc, AcString(path.c_str()));
    return es;
}

Acad::ErrorStatus Session::setCurrent(AcApDocument* doc)
{
    return acDocManager->setCurDocument(doc);
}

Acad::ErrorStatus Session::activate(AcApDocument* doc)
{
    return acDocManager->activateDocument(doc);
}

Acad::ErrorStatus Session::close(AcApDocument* doc)
{
    const Acad::ErrorStatus es = acDocManager->closeDocument(doc);
    forget(doc);
    return es;
}

void Session::forget(AcApDocument* doc)
{
    m_documents.erase(std::remove(m_documents.begin(), m_documents.end(), doc), m_documents.end());
}

Acad::ErrorStatus Session::runCommand(AcApDocument* doc, const std::function<void()>& body, const ACHAR* name)
{
    hostap::DocManagerState& state = manager();
    if (!state.isManaged(doc))
        return Acad::eNoDocument;
    state.enterCommand(doc);
    Acad::ErrorStatus es = state.lock(doc, AcAp::kWrite, name);
    if (es != Acad::eOk) {
        state.leaveCommand(doc);
        return es;
    }
    // Releases what the command took, also when the body throws.
    struct Release {
        hostap::DocManagerState& state;
        AcApDocument* doc;
        UndoHistory& undo;
        ~Release()
        {
            undo.endGroup();
            state.unlock(doc);
            state.leaveCommand(doc);
        }
    } release{state, doc, UndoHistory::of(doc->database())};
    state.makeCurrent(doc);
    release.undo.beginGroup();
    body();
    return Acad::eOk;
}

}  // namespace headless
