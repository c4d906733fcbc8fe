// AcGeSurface: the base of the surfaces in space. A surface maps parameter pairs (u, v)
// to points; closest points and parameters are answered by each surface class.
#pragma once

#include "geent3d.h"

class ACHOST_API AcGeSurface : public AcGeEntity3d {
public:
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;

    // The parameters of the surface's point closest to pnt.
    virtual AcGePoint2d paramOf(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const = 0;
    virtual AcGePoint3d evalPoint(const AcGePoint2d& param) const = 0;
    virtual AcGePoint3d closestPointTo(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const = 0;
    double distanceTo(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const;
    // At most equalPoint from the surface.
    Adesk::Boolean isOn(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;

protected:
    constexpr AcGeSurface() = default;
    AcGeSurface(const AcGeSurface&) = default;
    AcGeSurface& operator=(const AcGeSurface&) = default;
};
