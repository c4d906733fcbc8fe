// AcApDocManagerReactor: the document notifications, each doing nothing by default, and
// the veto a reactor may cast while a lock change is announced.
#include "DocManagerState.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcApDocManagerReactor, AcRxObject)

AcApDocManagerReactor::AcApDocManagerReactor() = default;
AcApDocManagerReactor::~AcApDocManagerReactor() = default;

void AcApDocManagerReactor::documentCreateStarted(AcApDocument*) {}
void AcApDocManagerReactor::documentCreated(AcApDocument*) {}
void AcApDocManagerReactor::documentCreateCanceled(AcApDocument*) {}
void AcApDocManagerReactor::documentToBeDestroyed(AcApDocument*) {}
void AcApDocManagerReactor::documentDestroyed(const ACHAR*) {}
void AcApDocManagerReactor::documentLockModeWillChange(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode,
                                                       AcAp::DocLockMode, const ACHAR*)
{
}
void AcApDocManagerReactor::documentLockModeChangeVetoed(AcApDocument*, const ACHAR*) {}
void AcApDocManagerReactor::documentLockModeChanged(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode,
                                                    AcAp::DocLockMode, const ACHAR*)
{
}
void AcApDocManagerReactor::documentBecameCurrent(AcApDocument*) {}
void AcApDocManagerReactor::documentToBeActivated(AcApDocument*) {}
void AcApDocManagerReactor::documentToBeDeactivated(AcApDocument*) {}
void AcApDocManagerReactor::documentActivated(AcApDocument*) {}
void AcApDocManagerReactor::documentActivationModified(bool) {}

Acad::ErrorStatus AcApDocManagerReactor::veto()
{
    return hostap::DocManagerState::instance().veto();
}
