// AcGiViewport: the view a viewport draw is made for: its transforms between model, world
// and eye coordinates, and its camera.
#pragma once

#include "gemat3d.h"
#include "gepnt3d.h"
#include "gevec3d.h"
#include "rxboiler.h"

class ACHOST_API AcGiViewport : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcGiViewport);

public:
    ~AcGiViewport() override;

    virtual void getModelToEyeTransform(AcGeMatrix3d& xform) const = 0;
    virtual void getEyeToModelTransform(AcGeMatrix3d& xform) const = 0;
    virtual void getWorldToEyeTransform(AcGeMatrix3d& xform) const = 0;
    virtual void getEyeToWorldTransform(AcGeMatrix3d& xform) const = 0;
    virtual Adesk::Boolean isPerspective() const = 0;
    virtual void getCameraLocation(AcGePoint3d& location) const = 0;
    virtual void getCameraTarget(AcGePoint3d& target) const = 0;
    virtual void getCameraUpVector(AcGeVector3d& upVector) const = 0;
    virtual Adesk::ULongPtr viewportId() const = 0;
    virtual double linetypeScaleMultiplier() const = 0;

protected:
    AcGiViewport();
};
