// AcApDocument: a drawing open in the host, with its file name and its locks.
#include "AcDbDatabase.h"
#include "DocManagerState.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcApDocument, AcRxObject)

AcApDocument::AcApDocument() : m_state(new hostap::DocumentState()) {}

AcApDocument::~AcApDocument()
{
    delete m_state;
}

AcDbDatabase* AcApDocument::database() const
{
    return m_state->database.get();
}

const ACHAR* AcApDocument::fileName() const
{
    return m_state->fileName.kwszPtr();
}

const ACHAR* AcApDocument::docTitle() const
{
    return m_state->title.kwszPtr();
}

AcAp::DocLockMode AcApDocument::lockMode(bool includeMyLocks) const
{
    return m_state->modeOfOthers(hostap::DocManagerState::instance().currentContext(), includeMyLocks);
}

AcAp::DocLockMode AcApDocument::myLockMode() const
{
    return m_state->modeOf(hostap::DocManagerState::instance().currentContext());
}

bool AcApDocument::isQuiescent() const
{
    return m_state->commandsRunning == 0;
}
