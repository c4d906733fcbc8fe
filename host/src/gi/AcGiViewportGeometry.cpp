// AcGiViewportGeometry: the runtime class of the viewport draw's geometry.
#include "AcGiViewportGeometry.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcGiViewportGeometry, AcGiGeometry)

AcGiViewportGeometry::AcGiViewportGeometry() = default;

AcGiViewportGeometry::~AcGiViewportGeometry() = default;
