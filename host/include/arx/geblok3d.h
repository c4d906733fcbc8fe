// AcGeBoundBlock3d: a block that bounds geometry in space. The headless host keeps every
// block as a box with sides along the coordinate axes (isBox() is always true); a
// transformed block is the box around the transformed corners.
#pragma once

#include <iosfwd>

#include "geent3d.h"

class ACHOST_API AcGeBoundBlock3d : public AcGeEntity3d {
public:
    // The single point at the origin.
    AcGeBoundBlock3d();
    // The box spanned by two opposite corners, in any order.
    AcGeBoundBlock3d(const AcGePoint3d& point1, const AcGePoint3d& point2);

    void getMinMaxPoints(AcGePoint3d& point1, AcGePoint3d& point2) const;
    AcGeBoundBlock3d& set(const AcGePoint3d& point1, const AcGePoint3d& point2);
    // Grows the box to hold the point.
    AcGeBoundBlock3d& extend(const AcGePoint3d& point);
    // Grows (or, negative, shrinks down to its centre) every side by distance.
    AcGeBoundBlock3d& swell(double distance);
    // Inside or on the box.
    Adesk::Boolean contains(const AcGePoint3d& point) const;
    Adesk::Boolean isDisjoint(const AcGeBoundBlock3d& block) const;
    Adesk::Boolean isBox() const { return true; }
    // Blocks stay boxes; the flag is accepted and has no effect.
    AcGeBoundBlock3d& setToBox(Adesk::Boolean toBox);

    // AcGeEntity3d
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;
    AcGe::EntityId type() const override { return AcGe::kBoundBlock3d; }
    AcGeEntity3d* copy() const override;
    Adesk::Boolean isEqualTo(const AcGeEntity3d& entity, const AcGeTol& tol = AcGeContext::gTol) const override;
    AcGeBoundBlock3d& transformBy(const AcGeMatrix3d& xfm) override;
    // Inside or on the box, within equalPoint.
    Adesk::Boolean isOn(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    void print(std::ostream& os) const override;

private:
    AcGePoint3d mMin;
    AcGePoint3d mMax;
};

// "AcGeBoundBlock3d((minx, miny, minz), (maxx, maxy, maxz))", full precision.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeBoundBlock3d& block);
