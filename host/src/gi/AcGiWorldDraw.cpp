// AcGiWorldDraw: the runtime class of the world draw.
#include "AcGiWorldDraw.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcGiWorldDraw, AcGiCommonDraw)

AcGiWorldDraw::AcGiWorldDraw() = default;

AcGiWorldDraw::~AcGiWorldDraw() = default;
