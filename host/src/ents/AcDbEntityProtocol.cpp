// AcDbEntity: the host's editing entry points, each forwarding to its sub... function, and
// the host's default behaviour of those functions.
#include <memory>

#include "AcDbEntity.h"
#include "AcDbImpEntity.h"
#include "AcGiDrawableTraits.h"

void AcDbEntity::list() const
{
    subList();
}

Acad::ErrorStatus AcDbEntity::getGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                            AcDbIntArray& geomIds) const
{
    return subGetGripPoints(gripPoints, osnapModes, geomIds);
}

Acad::ErrorStatus AcDbEntity::getGripPoints(AcDbGripDataPtrArray& grips, const double curViewUnitSize,
                                            const int gripSize, const AcGeVector3d& curViewDir,
                                            const int bitflags) const
{
    return subGetGripPoints(grips, curViewUnitSize, gripSize, curViewDir, bitflags);
}

Acad::ErrorStatus AcDbEntity::moveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    return subMoveGripPointsAt(indices, offset);
}

Acad::ErrorStatus AcDbEntity::moveGripPointsAt(const AcDbVoidPtrArray& gripAppData, const AcGeVector3d& offset,
                                               const int bitflags)
{
    return subMoveGripPointsAt(gripAppData, offset, bitflags);
}

Acad::ErrorStatus AcDbEntity::getStretchPoints(AcGePoint3dArray& stretchPoints) const
{
    return subGetStretchPoints(stretchPoints);
}

Acad::ErrorStatus AcDbEntity::moveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    return subMoveStretchPointsAt(indices, offset);
}

Acad::ErrorStatus AcDbEntity::transformBy(const AcGeMatrix3d& xform)
{
    return subTransformBy(xform);
}

Acad::ErrorStatus AcDbEntity::getTransformedCopy(const AcGeMatrix3d& xform, AcDbEntity*& ent) const
{
    return subGetTransformedCopy(xform, ent);
}

Acad::ErrorStatus AcDbEntity::explode(AcDbVoidPtrArray& entitySet) const
{
    return subExplode(entitySet);
}

Acad::ErrorStatus AcDbEntity::getGeomExtents(AcDbExtents& extents) const
{
    return subGetGeomExtents(extents);
}

Acad::ErrorStatus AcDbEntity::getOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                             const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                             const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                             AcDbIntArray& geomIds) const
{
    return subGetOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints, geomIds);
}

Acad::ErrorStatus AcDbEntity::getOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                             const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                             const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                             AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const
{
    return subGetOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints, geomIds,
                             insertionMat);
}

Acad::ErrorStatus AcDbEntity::intersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                            AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker,
                                            Adesk::GsMarker otherGsMarker) const
{
    return subIntersectWith(pEnt, intType, points, thisGsMarker, otherGsMarker);
}

Acad::ErrorStatus AcDbEntity::intersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                            const AcGePlane& projPlane, AcGePoint3dArray& points,
                                            Adesk::GsMarker thisGsMarker, Adesk::GsMarker otherGsMarker) const
{
    return subIntersectWith(pEnt, intType, projPlane, points, thisGsMarker, otherGsMarker);
}

void AcDbEntity::gripStatus(const AcDb::GripStat status)
{
    subGripStatus(status);
}

Acad::ErrorStatus AcDbEntity::highlight(const AcDbFullSubentPath& subId, const Adesk::Boolean highlightAll) const
{
    return subHighlight(subId, highlightAll);
}

Acad::ErrorStatus AcDbEntity::unhighlight(const AcDbFullSubentPath& subId, const Adesk::Boolean highlightAll) const
{
    return subUnhighlight(subId, highlightAll);
}

Acad::ErrorStatus AcDbEntity::getGsMarkersAtSubentPath(const AcDbFullSubentPath& subPath,
                                                       AcArray<Adesk::GsMarker>& gsMarkers) const
{
    return subGetGsMarkersAtSubentPath(subPath, gsMarkers);
}

Acad::ErrorStatus AcDbEntity::getSubentPathsAtGsMarker(AcDb::SubentType type, Adesk::GsMarker gsMark,
                                                       const AcGePoint3d& pickPoint, const AcGeMatrix3d& viewXform,
                                                       int& numPaths, AcDbFullSubentPath*& subentPaths,
                                                       int numInserts, AcDbObjectId* entAndInsertStack) const
{
    return subGetSubentPathsAtGsMarker(type, gsMark, pickPoint, viewXform, numPaths, subentPaths, numInserts,
                                       entAndInsertStack);
}

AcDbEntity* AcDbEntity::subentPtr(const AcDbFullSubentPath& id) const
{
    return subSubentPtr(id);
}

// Drag notifications need no answer from a plain entity.
void AcDbEntity::dragStatus(const AcDb::DragStat)
{
}

// The traits come from the entity's properties; an invisible entity tells the graphics
// system not to draw it.
Adesk::UInt32 AcDbEntity::subSetAttributes(AcGiDrawableTraits* traits)
{
    assertReadEnabled();
    if (traits != nullptr)
        traits->setupForEntity(this);
    Adesk::UInt32 flags = kDrawableIsAnEntity;
    if (m_entityImp->m_visibility == AcDb::kInvisible)
        flags |= kDrawableIsInvisible;
    return flags;
}

Adesk::Boolean AcDbEntity::subWorldDraw(AcGiWorldDraw*)
{
    return Adesk::kTrue;
}

void AcDbEntity::subViewportDraw(AcGiViewportDraw*)
{
}

// The new grip protocol is not implemented by default, so that the host asks the old form.
Acad::ErrorStatus AcDbEntity::subGetGripPoints(AcDbGripDataPtrArray&, const double, const int,
                                               const AcGeVector3d&, const int) const
{
    return Acad::eNotImplemented;
}

// An entity has no grips unless its class gives it some.
Acad::ErrorStatus AcDbEntity::subGetGripPoints(AcGePoint3dArray&, AcDbIntArray&, AcDbIntArray&) const
{
    assertReadEnabled();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::subMoveGripPointsAt(const AcDbIntArray&, const AcGeVector3d& offset)
{
    return transformBy(AcGeMatrix3d::translation(offset));
}

Acad::ErrorStatus AcDbEntity::subMoveGripPointsAt(const AcDbVoidPtrArray&, const AcGeVector3d& offset, const int)
{
    return transformBy(AcGeMatrix3d::translation(offset));
}

// The stretch points are the grip points unless the class says otherwise.
Acad::ErrorStatus AcDbEntity::subGetStretchPoints(AcGePoint3dArray& stretchPoints) const
{
    AcDbIntArray osnapModes;
    AcDbIntArray geomIds;
    return getGripPoints(stretchPoints, osnapModes, geomIds);
}

Acad::ErrorStatus AcDbEntity::subMoveStretchPointsAt(const AcDbIntArray&, const AcGeVector3d& offset)
{
    return transformBy(AcGeMatrix3d::translation(offset));
}

Acad::ErrorStatus AcDbEntity::subTransformBy(const AcGeMatrix3d&)
{
    return Acad::eNotApplicable;
}

// A copy in no database, owned by the caller; nothing is made when the copy refuses the transform.
Acad::ErrorStatus AcDbEntity::subGetTransformedCopy(const AcGeMatrix3d& xform, AcDbEntity*& ent) const
{
    ent = nullptr;
    std::unique_ptr<AcRxObject> copy(clone());
    AcDbEntity* copied = AcDbEntity::cast(copy.get());
    if (copied == nullptr)
        return Acad::eNotApplicable;
    const Acad::ErrorStatus es = copied->transformBy(xform);
    if (es != Acad::eOk)
        return es;
    copy.release();
    ent = copied;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::subExplode(AcDbVoidPtrArray&) const
{
    return Acad::eNotApplicable;
}

Acad::ErrorStatus AcDbEntity::subGetGeomExtents(AcDbExtents&) const
{
    return Acad::eInvalidExtents;
}

// A plain entity offers no snap points and no intersections: classes with geometry override
// these, and callers take eNotImplemented as "none" rather than as a failure.
Acad::ErrorStatus AcDbEntity::subGetOsnapPoints(AcDb::OsnapMode, Adesk::GsMarker, const AcGePoint3d&,
                                                const AcGePoint3d&, const AcGeMatrix3d&, AcGePoint3dArray&,
                                                AcDbIntArray&) const
{
    return Acad::eNotImplemented;
}

Acad::ErrorStatus AcDbEntity::subGetOsnapPoints(AcDb::OsnapMode, Adesk::GsMarker, const AcGePoint3d&,
                                                const AcGePoint3d&, const AcGeMatrix3d&, AcGePoint3dArray&,
                                                AcDbIntArray&, const AcGeMatrix3d&) const
{
    return Acad::eNotImplemented;
}

Acad::ErrorStatus AcDbEntity::subIntersectWith(const AcDbEntity*, AcDb::Intersect, AcGePoint3dArray&,
                                               Adesk::GsMarker, Adesk::GsMarker) const
{
    return Acad::eNotImplemented;
}

Acad::ErrorStatus AcDbEntity::subIntersectWith(const AcDbEntity*, AcDb::Intersect, const AcGePlane&,
                                               AcGePoint3dArray&, Adesk::GsMarker, Adesk::GsMarker) const
{
    return Acad::eNotImplemented;
}

void AcDbEntity::subGripStatus(const AcDb::GripStat)
{
}

// Highlighting is a display matter; the headless host has no display to change.
Acad::ErrorStatus AcDbEntity::subHighlight(const AcDbFullSubentPath&, const Adesk::Boolean) const
{
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::subUnhighlight(const AcDbFullSubentPath&, const Adesk::Boolean) const
{
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::subGetGsMarkersAtSubentPath(const AcDbFullSubentPath&,
                                                          AcArray<Adesk::GsMarker>&) const
{
    return Acad::eNotApplicable;
}

Acad::ErrorStatus AcDbEntity::subGetSubentPathsAtGsMarker(AcDb::SubentType, Adesk::GsMarker, const AcGePoint3d&,
                                                          const AcGeMatrix3d&, int& numPaths,
                                                          AcDbFullSubentPath*& subentPaths, int,
                                                          AcDbObjectId*) const
{
    numPaths = 0;
    subentPaths = nullptr;
    return Acad::eNotApplicable;
}

AcDbEntity* AcDbEntity::subSubentPtr(const AcDbFullSubentPath&) const
{
    return nullptr;
}
