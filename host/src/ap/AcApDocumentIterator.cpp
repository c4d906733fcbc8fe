// AcApDocumentIterator: the open documents in the order they were opened.
#include "DocManagerState.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcApDocumentIterator, AcRxObject)

AcApDocumentIterator::AcApDocumentIterator() = default;

AcApDocumentIterator::~AcApDocumentIterator() = default;

bool AcApDocumentIterator::done() const
{
    return m_index >= static_cast<int>(hostap::DocManagerState::instance().documents.size());
}

void AcApDocumentIterator::step()
{
    if (!done())
        ++m_index;
}

AcApDocument* AcApDocumentIterator::document()
{
    return done() ? nullptr : hostap::DocManagerState::instance().documents[static_cast<std::size_t>(m_index)];
}
