// AcGiWorldGeometry: the geometry of a world (view-independent) draw.
#pragma once

#include "AcGiGeometry.h"

class ACHOST_API AcGiWorldGeometry : public AcGiGeometry {
    ACRX_DECLARE_MEMBERS(AcGiWorldGeometry);

public:
    ~AcGiWorldGeometry() override;

    // Tells the graphics system the drawable's extents (two points: min and max), so that
    // it need not compute them from the primitives.
    virtual void setExtents(AcGePoint3d* newExtents) const = 0;
    // Starts the part of the draw that only sets attributes (used when saving proxy graphics).
    virtual void startAttributesSegment();

protected:
    AcGiWorldGeometry();
};
