// AcGiDrawableTraits: setting the traits up from an entity's display properties.
#include "AcGiDrawableTraits.h"

#include "AcDbEntity.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcGiDrawableTraits, AcGiSubEntityTraits)

AcGiDrawableTraits::AcGiDrawableTraits() = default;

AcGiDrawableTraits::~AcGiDrawableTraits() = default;

void AcGiDrawableTraits::setupForEntity(AcDbEntity* entity)
{
    if (entity == nullptr)
        return;
    // An index colour goes through setColor so that back ends that only know indices see it.
    const AcCmEntityColor color = entity->entityColor();
    if (color.isByColor())
        setTrueColor(color);
    else
        setColor(static_cast<Adesk::UInt16>(color.colorIndex()));
    setLayer(entity->layerId());
    setLineType(entity->linetypeId());
    setLineWeight(entity->lineWeight());
    setLineTypeScale(entity->linetypeScale());
}
