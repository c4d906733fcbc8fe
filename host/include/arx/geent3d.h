// AcGeEntity3d: the base of the geometric entities of space (curves, surfaces and bound
// blocks). Entities are values: copy() makes an independent duplicate owned by the caller,
// and the transforms change the entity in place.
#pragma once

#include <iosfwd>

#include "gemat3d.h"
#include "gepnt3d.h"

class AcGePlane;

class ACHOST_API AcGeEntity3d {
public:
    virtual ~AcGeEntity3d();

    // True for the entity's own kind and every kind it derives from.
    virtual Adesk::Boolean isKindOf(AcGe::EntityId entType) const;
    virtual AcGe::EntityId type() const = 0;
    virtual AcGeEntity3d* copy() const = 0;

    // Of the same type, with the same geometry and parametrisation within the tolerance.
    virtual Adesk::Boolean isEqualTo(const AcGeEntity3d& entity, const AcGeTol& tol = AcGeContext::gTol) const = 0;
    bool operator==(const AcGeEntity3d& entity) const { return isEqualTo(entity); }
    bool operator!=(const AcGeEntity3d& entity) const { return !isEqualTo(entity); }

    // A transform the entity cannot follow (one that collapses it, or that scales a circle
    // unevenly) raises the host error and leaves it unchanged.
    virtual AcGeEntity3d& transformBy(const AcGeMatrix3d& xfm) = 0;
    AcGeEntity3d& translateBy(const AcGeVector3d& translateVec);
    // Counter-clockwise about the axis through wrtPoint, seen from the axis' tip.
    AcGeEntity3d& rotateBy(double angle, const AcGeVector3d& vec, const AcGePoint3d& wrtPoint = AcGePoint3d::kOrigin);
    AcGeEntity3d& mirror(const AcGePlane& plane);
    AcGeEntity3d& scaleBy(double scaleFactor, const AcGePoint3d& wrtPoint = AcGePoint3d::kOrigin);

    // Within equalPoint of the entity.
    virtual Adesk::Boolean isOn(const AcGePoint3d& pnt, const AcGeTol& tol = AcGeContext::gTol) const = 0;

    // The entity's own printed form, as its operator<< writes it.
    virtual void print(std::ostream& os) const = 0;

protected:
    constexpr AcGeEntity3d() = default;
    AcGeEntity3d(const AcGeEntity3d&) = default;
    AcGeEntity3d& operator=(const AcGeEntity3d&) = default;
};

ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeEntity3d& entity);
