// AcGiViewportGeometry: the geometry of a viewport (view-dependent) draw: the world
// primitives plus polylines and polygons in eye and display coordinates.
#pragma once

#include "AcGiGeometry.h"

class ACHOST_API AcGiViewportGeometry : public AcGiGeometry {
    ACRX_DECLARE_MEMBERS(AcGiViewportGeometry);

public:
    ~AcGiViewportGeometry() override;

    virtual Adesk::Boolean polylineEye(const Adesk::UInt32 nbPoints, const AcGePoint3d* points) const = 0;
    virtual Adesk::Boolean polygonEye(const Adesk::UInt32 nbPoints, const AcGePoint3d* points) const = 0;
    virtual Adesk::Boolean polylineDc(const Adesk::UInt32 nbPoints, const AcGePoint3d* points) const = 0;
    virtual Adesk::Boolean polygonDc(const Adesk::UInt32 nbPoints, const AcGePoint3d* points) const = 0;

protected:
    AcGiViewportGeometry();
};
