// AcGeBoundBlock2d: a block that bounds geometry of the plane. The headless host keeps
// every block as a box with sides along the coordinate axes (isBox() is always true); a
// transformed block is the box around the transformed corners.
#pragma once

#include <iosfwd>

#include "geent2d.h"

class ACHOST_API AcGeBoundBlock2d : public AcGeEntity2d {
public:
    // The single point at the origin.
    AcGeBoundBlock2d();
    // The box spanned by two opposite corners, in any order.
    AcGeBoundBlock2d(const AcGePoint2d& point1, const AcGePoint2d& point2);

    void getMinMaxPoints(AcGePoint2d& point1, AcGePoint2d& point2) const;
    AcGeBoundBlock2d& set(const AcGePoint2d& point1, const AcGePoint2d& point2);
    // Grows the box to hold the point.
    AcGeBoundBlock2d& extend(const AcGePoint2d& point);
    // Grows (or, negative, shrinks down to its centre) every side by distance.
    AcGeBoundBlock2d& swell(double distance);
    // Inside or on the box.
    Adesk::Boolean contains(const AcGePoint2d& point) const;
    Adesk::Boolean isDisjoint(const AcGeBoundBlock2d& block) const;
    Adesk::Boolean isBox() const { return true; }
    // Blocks stay boxes; the flag is accepted and has no effect.
    AcGeBoundBlock2d& setToBox(Adesk::Boolean toBox);

    // AcGeEntity2d
    Adesk::Boolean isKindOf(AcGe::EntityId entType) const override;
    AcGe::EntityId type() const override { return AcGe::kBoundBlock2d; }
    AcGeEntity2d* copy() const override;
    Adesk::Boolean isEqualTo(const AcGeEntity2d& entity, const AcGeTol& tol = AcGeContext::gTol) const override;
    AcGeBoundBlock2d& transformBy(const AcGeMatrix2d& xfm) override;
    // Inside or on the box, within equalPoint.
    Adesk::Boolean isOn(const AcGePoint2d& pnt, const AcGeTol& tol = AcGeContext::gTol) const override;
    void print(std::ostream& os) const override;

private:
    AcGePoint2d mMin;
    AcGePoint2d mMax;
};

// "AcGeBoundBlock2d((minx, miny), (maxx, maxy))", full precision.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeBoundBlock2d& block);
