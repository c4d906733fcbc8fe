// AcGeEntity2d: the base of the geometric entities of the plane (curves and bound blocks).
// Entities are values: copy() makes an independent duplicate owned by the caller, and the
// transforms change the entity in place.
#pragma once

#include <iosfwd>

#include "gemat2d.h"
#include "gepnt2d.h"

class AcGeLine2d;

class ACHOST_API AcGeEntity2d {
public:
    virtual ~AcGeEntity2d();

    // True for the entity's own kind and every kind it derives from.
    virtual Adesk::Boolean isKindOf(AcGe::EntityId entType) const;
    virtual AcGe::EntityId type() const = 0;
    virtual AcGeEntity2d* copy() const = 0;

    // Of the same type, with the same geometry and parametrisation within the tolerance.
    virtual Adesk::Boolean isEqualTo(const AcGeEntity2d& entity, const AcGeTol& tol = AcGeContext::gTol) const = 0;
    bool operator==(const AcGeEntity2d& entity) const { return isEqualTo(entity); }
    bool operator!=(const AcGeEntity2d& entity) const { return !isEqualTo(entity); }

    // A transform the entity cannot follow (one that collapses it, or that scales a circle
    // unevenly) raises the host error and leaves it unchanged.
    virtual AcGeEntity2d& transformBy(const AcGeMatrix2d& xfm) = 0;
    AcGeEntity2d& translateBy(const AcGeVector2d& translateVec);
    // Counter-clockwise about wrtPoint.
    AcGeEntity2d& rotateBy(double angle, const AcGePoint2d& wrtPoint = AcGePoint2d::kOrigin);
    AcGeEntity2d& mirror(const AcGeLine2d& line);
    AcGeEntity2d& scaleBy(double scaleFactor, const AcGePoint2d& wrtPoint = AcGePoint2d::kOrigin);

    // Within equalPoint of the entity.
    virtual Adesk::Boolean isOn(const AcGePoint2d& pnt, const AcGeTol& tol = AcGeContext::gTol) const = 0;

    // The entity's own printed form, as its operator<< writes it.
    virtual void print(std::ostream& os) const = 0;

protected:
    constexpr AcGeEntity2d() = default;
    AcGeEntity2d(const AcGeEntity2d&) = default;
    AcGeEntity2d& operator=(const AcGeEntity2d&) = default;
};

ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeEntity2d& entity);
