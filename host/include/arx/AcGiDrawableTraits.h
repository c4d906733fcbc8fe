// AcGiDrawableTraits: the traits a drawable sets in its setAttributes call, before it
// draws: the sub-entity traits plus the set-up from an entity's own properties.
#pragma once

#include "AcGiSubEntityTraits.h"

class AcDbEntity;

class ACHOST_API AcGiDrawableTraits : public AcGiSubEntityTraits {
    ACRX_DECLARE_MEMBERS(AcGiDrawableTraits);

public:
    ~AcGiDrawableTraits() override;

    // Sets colour (the entity's true colour), layer, linetype, lineweight and linetype
    // scale from the entity's properties.
    virtual void setupForEntity(AcDbEntity* entity);

protected:
    AcGiDrawableTraits();
};
