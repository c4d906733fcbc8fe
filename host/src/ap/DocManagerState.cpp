// The document manager's documents: opening and closing them, which one is current and
// active, and the command contexts they run commands in.
#include "DocManagerState.h"

#include <algorithm>

#include "AcDbDatabase.h"
#include "dbapserv.h"
#include "headless/TextCodec.h"

namespace hostap {

namespace {

// The file name without its folder.
AcString titleOf(const AcString& fileName)
{
    const std::wstring path = fileName.kwszPtr();
    const std::size_t slash = path.find_last_of(L"/\\");
    return AcString(slash == std::wstring::npos ? path.c_str() : path.c_str() + slash + 1);
}

}  // namespace

DocManagerState& DocManagerState::instance()
{
    return of(acDocManagerPtr());
}

DocManagerState::~DocManagerState()
{
    for (AcApDocument* doc : documents)
        delete doc;
}

bool DocManagerState::isManaged(const AcApDocument* doc) const
{
    return doc != nullptr && std::find(documents.begin(), documents.end(), doc) != documents.end();
}

// The order of the notifications is the headless host's choice (the host does not
// document it): the new document is announced, becomes active and current, and is then
// reported created, so that documentCreated finds it current.
AcApDocument* DocManagerState::openDocument(std::unique_ptr<AcDbDatabase> database, const AcString& fileName)
{
    auto* doc = new AcApDocument();
    DocumentState& state = of(doc);
    state.database = std::move(database);
    if (fileName.isEmpty()) {
        const std::wstring untitled = L"Drawing" + std::to_wstring(++m_untitled) + L".qxd";
        state.fileName = untitled.c_str();
        state.untitled = true;
    } else {
        state.fileName = fileName;
    }
    state.title = titleOf(state.fileName);
    notify([&](AcApDocManagerReactor* r) { r->documentCreateStarted(doc); });
    documents.push_back(doc);
    activate(doc);
    notify([&](AcApDocManagerReactor* r) { r->documentCreated(doc); });
    return doc;
}

void DocManagerState::renameDocument(AcApDocument* doc, const AcString& fileName)
{
    DocumentState& state = of(doc);
    state.fileName = fileName;
    state.title = titleOf(fileName);
    state.untitled = false;
}

// The document opened after it, else the one before it.
AcApDocument* DocManagerState::successorOf(const AcApDocument* doc) const
{
    const auto it = std::find(documents.begin(), documents.end(), doc);
    if (it == documents.end())
        return nullptr;
    if (it + 1 != documents.end())
        return *(it + 1);
    return it != documents.begin() ? *(it - 1) : nullptr;
}

Acad::ErrorStatus DocManagerState::closeDocument(AcApDocument* doc)
{
    if (!isManaged(doc))
        return Acad::eNoDocument;
    if (of(doc).commandsRunning > 0)
        return Acad::eInvalidContext;  // a document cannot close under its own command
    notify([&](AcApDocManagerReactor* r) { r->documentToBeDestroyed(doc); });
    AcApDocument* next = successorOf(doc);
    documents.erase(std::find(documents.begin(), documents.end(), doc));
    for (AcApDocument* other : documents)
        of(other).locks.erase(doc);  // locks its commands held elsewhere go with it
    if (active == doc || current == doc) {
        if (active == doc)
            active = nullptr;
        if (current == doc) {
            current = nullptr;
            acdbHostApplicationServices()->setWorkingDatabase(nullptr);
        }
        if (next != nullptr)
            activate(next);
    }
    const AcString fileName = of(doc).fileName;
    delete doc;
    notify([&](AcApDocManagerReactor* r) { r->documentDestroyed(fileName.kwszPtr()); });
    return Acad::eOk;
}

Acad::ErrorStatus DocManagerState::makeCurrent(AcApDocument* doc)
{
    if (!isManaged(doc))
        return Acad::eNoDocument;
    if (current == doc)
        return Acad::eOk;
    current = doc;
    acdbHostApplicationServices()->setWorkingDatabase(of(doc).database.get());
    notify([&](AcApDocManagerReactor* r) { r->documentBecameCurrent(doc); });
    return Acad::eOk;
}

Acad::ErrorStatus DocManagerState::activate(AcApDocument* doc)
{
    if (!isManaged(doc))
        return Acad::eNoDocument;
    if (active == doc)
        return makeCurrent(doc);
    AcApDocument* previous = active;
    if (previous != nullptr)
        notify([&](AcApDocManagerReactor* r) { r->documentToBeDeactivated(previous); });
    notify([&](AcApDocManagerReactor* r) { r->documentToBeActivated(doc); });
    active = doc;
    makeCurrent(doc);
    notify([&](AcApDocManagerReactor* r) { r->documentActivated(doc); });
    return Acad::eOk;
}

void DocManagerState::enterCommand(AcApDocument* doc)
{
    ++of(doc).commandsRunning;
    m_contexts.push_back(doc);
}

void DocManagerState::leaveCommand(AcApDocument* doc)
{
    --of(doc).commandsRunning;
    const auto it = std::find(m_contexts.rbegin(), m_contexts.rend(), doc);
    if (it != m_contexts.rend())
        m_contexts.erase(std::next(it).base());
}

}  // namespace hostap
