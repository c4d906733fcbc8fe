// AcGiViewportDraw: the draw of the view-dependent graphics of a drawable, made once per
// viewport when its world draw asked for it.
#pragma once

#include "AcGiCommonDraw.h"
#include "AcGiViewport.h"
#include "AcGiViewportGeometry.h"

class ACHOST_API AcGiViewportDraw : public AcGiCommonDraw {
    ACRX_DECLARE_MEMBERS(AcGiViewportDraw);

public:
    ~AcGiViewportDraw() override;

    virtual AcGiViewport& viewport() const = 0;
    virtual AcGiViewportGeometry& geometry() const = 0;
    virtual Adesk::UInt32 sequenceNumber() const = 0;
    virtual Adesk::Boolean isValidId(const Adesk::ULongPtr acgiId) const = 0;
    virtual AcDbObjectId viewportObjectId() const = 0;

protected:
    AcGiViewportDraw();
};
