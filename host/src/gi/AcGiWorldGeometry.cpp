// AcGiWorldGeometry: the runtime class of the world draw's geometry.
#include "AcGiWorldGeometry.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcGiWorldGeometry, AcGiGeometry)

AcGiWorldGeometry::AcGiWorldGeometry() = default;

AcGiWorldGeometry::~AcGiWorldGeometry() = default;

// Back ends that save proxy graphics mark the segment; others have nothing to do.
void AcGiWorldGeometry::startAttributesSegment()
{
}
