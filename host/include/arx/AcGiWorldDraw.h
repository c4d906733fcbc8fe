// AcGiWorldDraw: the draw of the view-independent graphics of a drawable.
#pragma once

#include "AcGiCommonDraw.h"
#include "AcGiWorldGeometry.h"

class ACHOST_API AcGiWorldDraw : public AcGiCommonDraw {
    ACRX_DECLARE_MEMBERS(AcGiWorldDraw);

public:
    ~AcGiWorldDraw() override;

    virtual AcGiWorldGeometry& geometry() const = 0;

protected:
    AcGiWorldDraw();
};
