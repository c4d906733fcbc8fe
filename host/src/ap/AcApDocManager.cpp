// AcApDocManager: the host's one document manager, made on first use and kept for the
// life of the process (like the class registry).
#include <algorithm>

#include "DocManagerState.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcApDocManager, AcRxObject)

AcApDocManager* acDocManagerPtr()
{
    static AcApDocManager* manager = new AcApDocManager();
    return manager;
}

AcApDocManager::AcApDocManager() : m_state(new hostap::DocManagerState(this)) {}

AcApDocManager::~AcApDocManager()
{
    delete m_state;
}

AcApDocument* AcApDocManager::curDocument() const
{
    return m_state->current;
}

AcApDocument* AcApDocManager::mdiActiveDocument() const
{
    return m_state->active;
}

int AcApDocManager::documentCount() const
{
    return static_cast<int>(m_state->documents.size());
}

AcApDocument* AcApDocManager::document(const AcDbDatabase* db) const
{
    if (db == nullptr)
        return nullptr;
    for (AcApDocument* doc : m_state->documents) {
        if (doc->database() == db)
            return doc;
    }
    return nullptr;
}

bool AcApDocManager::isApplicationContext() const
{
    return m_state->currentContext() == nullptr;
}

Acad::ErrorStatus AcApDocManager::lockDocument(AcApDocument* doc, AcAp::DocLockMode mode,
                                               const ACHAR* pGlobalCmdName, const ACHAR* /*pLocalCmdName*/,
                                               bool /*prompt*/)
{
    return m_state->lock(doc, mode, pGlobalCmdName);
}

Acad::ErrorStatus AcApDocManager::unlockDocument(AcApDocument* doc)
{
    return m_state->unlock(doc);
}

Acad::ErrorStatus AcApDocManager::setCurDocument(AcApDocument* doc, AcAp::DocLockMode mode, bool activate)
{
    if (!m_state->isManaged(doc))
        return Acad::eNoDocument;
    if (mode != AcAp::kNone) {
        const Acad::ErrorStatus es = m_state->lock(doc, mode, nullptr);
        if (es != Acad::eOk)
            return es;
    }
    return activate ? m_state->activate(doc) : m_state->makeCurrent(doc);
}

// Scripts do not exist headless; bPassScript changes nothing.
Acad::ErrorStatus AcApDocManager::activateDocument(AcApDocument* doc, bool /*bPassScript*/)
{
    return m_state->activate(doc);
}

Acad::ErrorStatus AcApDocManager::closeDocument(AcApDocument* doc)
{
    return m_state->closeDocument(doc);
}

AcApDocumentIterator* AcApDocManager::newAcApDocumentIterator()
{
    return new AcApDocumentIterator();
}

void AcApDocManager::addReactor(AcApDocManagerReactor* reactor)
{
    auto& reactors = m_state->reactors;
    if (reactor != nullptr && std::find(reactors.begin(), reactors.end(), reactor) == reactors.end())
        reactors.push_back(reactor);
}

void AcApDocManager::removeReactor(AcApDocManagerReactor* reactor)
{
    auto& reactors = m_state->reactors;
    reactors.erase(std::remove(reactors.begin(), reactors.end(), reactor), reactors.end());
}
