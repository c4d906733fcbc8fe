// AcGiViewportDraw: the runtime class of the viewport draw.
#include "AcGiViewportDraw.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcGiViewportDraw, AcGiCommonDraw)

AcGiViewportDraw::AcGiViewportDraw() = default;

AcGiViewportDraw::~AcGiViewportDraw() = default;
