// The editor's coordinate services for the headless host's one fixed view and its world
// user coordinate system: acedTrans and acedCoordFromPixelToWorld.
#include "AcDbCurve.h"
#include "aced.h"
#include "acedads.h"
#include "dbmain.h"
#include "gemat3d.h"
#include "geplane.h"

namespace {

// The world-to-system transform of a from/to argument; false for an unknown system.
bool worldToSystem(const resbuf* system, AcGeMatrix3d& worldTo)
{
    if (system == nullptr)
        return false;
    switch (system->restype) {
    case RTSHORT:
        // World, user (the world), view (plan view at the origin) and paper space view.
        if (system->resval.rint < 0 || system->resval.rint > 3)
            return false;
        worldTo = AcGeMatrix3d::kIdentity;
        return true;
    case RT3DPOINT: {
        const AcGeVector3d normal(system->resval.rpoint[0], system->resval.rpoint[1], system->resval.rpoint[2]);
        if (normal.isZeroLength())
            return false;
        worldTo = AcGeMatrix3d::worldToPlane(normal);
        return true;
    }
    case RTENAME: {
        // The headless host's entity names carry the entity's id (AcDbObjectId::asOldId).
        AcDbObjectId id;
        id.setFromOldId(system->resval.rlname[0]);
        AcDbEntity* entity = nullptr;
        if (id.isNull() || !id.isValid() || acdbOpenObject(entity, id, AcDb::kForRead) != Acad::eOk)
            return false;
        worldTo = AcGeMatrix3d::kIdentity;
        if (const AcDbCurve* curve = AcDbCurve::cast(entity)) {
            AcGePlane plane;
            AcDb::Planarity planarity = AcDb::kNonPlanar;
            if (curve->getPlane(plane, planarity) == Acad::eOk && planarity == AcDb::kPlanar)
                worldTo = AcGeMatrix3d::worldToPlane(plane.normal());
        }
        entity->close();
        return true;
    }
    default:
        return false;
    }
}

}  // namespace

int acedTrans(const ads_point pt, const resbuf* from, const resbuf* to, int disp, ads_point result)
{
    AcGeMatrix3d fromWorld;
    AcGeMatrix3d toWorld;
    if (!worldToSystem(from, fromWorld) || !worldToSystem(to, toWorld))
        return RTERROR;
    // Paper space display coordinates pair only with a viewport's display coordinates.
    const bool fromPaper = from->restype == RTSHORT && from->resval.rint == 3;
    const bool toPaper = to->restype == RTSHORT && to->resval.rint == 3;
    if ((fromPaper && !(to->restype == RTSHORT && to->resval.rint == 2)) ||
        (toPaper && !(from->restype == RTSHORT && from->resval.rint == 2)))
        return RTERROR;
    const AcGeMatrix3d xform = toWorld * fromWorld.inverse();
    if (disp != 0) {
        AcGeVector3d v(pt[0], pt[1], pt[2]);
        v.transformBy(xform);
        result[0] = v.x;
        result[1] = v.y;
        result[2] = v.z;
    } else {
        AcGePoint3d p(pt[0], pt[1], pt[2]);
        p.transformBy(xform);
        result[0] = p.x;
        result[1] = p.y;
        result[2] = p.z;
    }
    return RTNORM;
}

Adesk::Boolean acedCoordFromPixelToWorld(const CPoint& ptIn, AcGePoint3d& ptOut)
{
    ptOut.set(ptIn.x - kHeadlessViewWidth / 2.0, kHeadlessViewHeight / 2.0 - ptIn.y, 0.0);
    return Adesk::kTrue;
}

Adesk::Boolean acedCoordFromPixelToWorld(int windnum, CPoint ptIn, double ptOut[3])
{
    if (windnum < 0 || ptOut == nullptr)
        return Adesk::kFalse;
    AcGePoint3d world;
    acedCoordFromPixelToWorld(ptIn, world);
    ptOut[0] = world.x;
    ptOut[1] = world.y;
    ptOut[2] = world.z;
    return Adesk::kTrue;
}
