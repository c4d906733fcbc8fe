// AcGiDrawable: the host's draw entry points, each forwarding to the drawable's sub... form.
#include "AcGiDrawable.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcGiDrawable, AcRxObject)

AcGiDrawable::AcGiDrawable() = default;

AcGiDrawable::~AcGiDrawable() = default;

Adesk::UInt32 AcGiDrawable::setAttributes(AcGiDrawableTraits* traits)
{
    return subSetAttributes(traits);
}

Adesk::Boolean AcGiDrawable::worldDraw(AcGiWorldDraw* worldDraw)
{
    return subWorldDraw(worldDraw);
}

void AcGiDrawable::viewportDraw(AcGiViewportDraw* viewportDraw)
{
    subViewportDraw(viewportDraw);
}
