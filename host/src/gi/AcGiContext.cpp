// AcGiContext: the runtime class of the draw context.
#include "AcGiContext.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcGiContext, AcRxObject)

AcGiContext::AcGiContext() = default;

AcGiContext::~AcGiContext() = default;
