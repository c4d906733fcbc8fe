// AcArray's misuse reports: the template raises the host error through these so that its
// header needs nothing from the headless host.
#include "acarrayhelper.h"

#include "headless/HostError.h"

namespace AcArrayDetail {

void raiseIndexError(const ACHAR* call, int index, int length)
{
    headless::raiseHostError(L"%s: index %d is outside the array of length %d", call, index, length);
}

void raiseEmptyError(const ACHAR* call)
{
    headless::raiseHostError(L"%s: the array is empty", call);
}

void raiseLengthError(const ACHAR* call, long long requested)
{
    headless::raiseHostError(L"%s: %lld is not a valid length", call, requested);
}

}  // namespace AcArrayDetail
