// AcGeEntity3d: the rigid and scaling transforms every entity of space takes through its
// transformBy.
#include "geent3d.h"

#include <ostream>

#include "geplane.h"

AcGeEntity3d::~AcGeEntity3d() = default;

Adesk::Boolean AcGeEntity3d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kEntity3d;
}

AcGeEntity3d& AcGeEntity3d::translateBy(const AcGeVector3d& translateVec)
{
    return transformBy(AcGeMatrix3d::translation(translateVec));
}

AcGeEntity3d& AcGeEntity3d::rotateBy(double angle, const AcGeVector3d& vec, const AcGePoint3d& wrtPoint)
{
    return transformBy(AcGeMatrix3d::rotation(angle, vec, wrtPoint));
}

AcGeEntity3d& AcGeEntity3d::mirror(const AcGePlane& plane)
{
    return transformBy(AcGeMatrix3d::mirroring(plane));
}

AcGeEntity3d& AcGeEntity3d::scaleBy(double scaleFactor, const AcGePoint3d& wrtPoint)
{
    return transformBy(AcGeMatrix3d::scaling(scaleFactor, wrtPoint));
}

std::ostream& operator<<(std::ostream& os, const AcGeEntity3d& entity)
{
    entity.print(os);
    return os;
}
