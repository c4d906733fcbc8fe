// AcGiCommonDraw: what world and viewport draws share: the traits, the regeneration type,
// the abort and drag state, the context and the tessellation settings.
#pragma once

#include "AcGiContext.h"
#include "AcGiGeometry.h"
#include "AcGiSubEntityTraits.h"
#include "acgidefs.h"
#include "gepnt3d.h"

class ACHOST_API AcGiCommonDraw : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcGiCommonDraw);

public:
    ~AcGiCommonDraw() override;

    virtual AcGiGeometry* rawGeometry() const = 0;
    virtual AcGiRegenType regenType() const = 0;
    // True when the user or the system has asked to stop; drawables should return early.
    virtual Adesk::Boolean regenAbort() const = 0;
    virtual AcGiSubEntityTraits& subEntityTraits() const = 0;
    virtual Adesk::Boolean isDragging() const = 0;
    virtual AcGiContext* context() = 0;
    virtual Adesk::UInt32 numberOfIsolines() const = 0;
    // The largest distance allowed between a curve and the segments that stand for it.
    virtual double deviation(const AcGiDeviationType type, const AcGePoint3d& point) const = 0;

protected:
    AcGiCommonDraw();
};
