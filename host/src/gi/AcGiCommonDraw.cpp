// AcGiCommonDraw: the runtime class of the draw objects' common interface.
#include "AcGiCommonDraw.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcGiCommonDraw, AcRxObject)

AcGiCommonDraw::AcGiCommonDraw() = default;

AcGiCommonDraw::~AcGiCommonDraw() = default;
