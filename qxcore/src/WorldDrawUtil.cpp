// Qx::WorldDrawUtil.
#include "Qx/WorldDrawUtil.h"

#include "acgi.h"
#include "dbpl.h"

namespace Qx {

bool WorldDrawUtil::DrawPolyline(AcGiWorldDraw* worldDraw, const AcDbPolyline* polyline)
{
    if (worldDraw == nullptr || polyline == nullptr || polyline->numVerts() == 0)
        return false;
    return worldDraw->geometry().pline(*polyline);
}

}  // namespace Qx
