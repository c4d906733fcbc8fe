// AcGeEntity2d: the rigid and scaling transforms every entity of the plane takes through
// its transformBy.
#include "geent2d.h"

#include <ostream>

#include "geline2d.h"

AcGeEntity2d::~AcGeEntity2d() = default;

Adesk::Boolean AcGeEntity2d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kEntity2d;
}

AcGeEntity2d& AcGeEntity2d::translateBy(const AcGeVector2d& translateVec)
{
    return transformBy(AcGeMatrix2d::translation(translateVec));
}

AcGeEntity2d& AcGeEntity2d::rotateBy(double angle, const AcGePoint2d& wrtPoint)
{
    return transformBy(AcGeMatrix2d::rotation(angle, wrtPoint));
}

AcGeEntity2d& AcGeEntity2d::mirror(const AcGeLine2d& line)
{
    return transformBy(AcGeMatrix2d::mirroring(line));
}

AcGeEntity2d& AcGeEntity2d::scaleBy(double scaleFactor, const AcGePoint2d& wrtPoint)
{
    return transformBy(AcGeMatrix2d::scaling(scaleFactor, wrtPoint));
}

std::ostream& operator<<(std::ostream& os, const AcGeEntity2d& entity)
{
    entity.print(os);
    return os;
}
