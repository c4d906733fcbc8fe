// AecPolyOpeningInspectModeGuard.
#include "AecPolyOpeningInspectModeGuard.h"

#include "AecPolyOpening.h"

// The setting is restored in whichever document is current when the scope ends.
AecPolyOpeningInspectModeGuard::AecPolyOpeningInspectModeGuard(bool inspectMode)
    : m_previous(AecPolyOpening::IsInspectMode())
{
    AecPolyOpening::SetInspectMode(inspectMode);
}

AecPolyOpeningInspectModeGuard::~AecPolyOpeningInspectModeGuard()
{
    AecPolyOpening::SetInspectMode(m_previous);
}
