// AcGiViewport: the runtime class of the viewport interface.
#include "AcGiViewport.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcGiViewport, AcRxObject)

AcGiViewport::AcGiViewport() = default;

AcGiViewport::~AcGiViewport() = default;
