// The document layer's runtime classes, and its write gate on the database layer.
#include "DocManagerState.h"
#include "db/WriteGate.h"

namespace hostap {

void registerApClasses()
{
    AcApDocument::rxInit();
    AcApDocumentIterator::rxInit();
    AcApDocManagerReactor::rxInit();
    AcApDocManager::rxInit();
    hostdb::setWriteGate(&DocManagerState::checkWrite);
}

}  // namespace hostap
