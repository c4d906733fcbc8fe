// AcGiGeometry: the runtime class of the primitive interface and its one drawn default,
// the world line.
#include "AcGiGeometry.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcGiGeometry, AcRxObject)

AcGiGeometry::AcGiGeometry() = default;

AcGiGeometry::~AcGiGeometry() = default;

Adesk::Boolean AcGiGeometry::worldLine(const AcGePoint3d points[2])
{
    AcGeMatrix3d worldToModel;
    getWorldToModelTransform(worldToModel);
    const AcGePoint3d model[2] = {worldToModel * points[0], worldToModel * points[1]};
    return polyline(2, model);
}
