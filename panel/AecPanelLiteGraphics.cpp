// AecPanelLite: drawing and explode (one routine for both), extents, transform, grips,
// stretch, snaps, intersections and the loops as sub-entities.
#include <cmath>
#include <memory>

#include "AecPanelLite.h"
#include "acgi.h"
#include "AcDbFullSubentPath.h"

namespace {

bool IsEdgeMarker(AcDb::SubentType type)
{
    return type == AcDb::kEdgeSubentType;
}

}  // namespace

// Both paths hand on the same pieces with the same properties: the panel's, and the
// pattern's own colour for the hatch when it has one.
bool AecPanelLite::DrawOrExplode(AcGiWorldDraw* worldDraw, AcArray<void*>& entitySet) const
{
    if (worldDraw != nullptr && worldDraw->regenAbort())
        return false;
    AcArray<AcDbPolyline*> polylines = CreatePolys();
    for (AcDbPolyline* polyline : polylines)
        polyline->setPropertiesFrom(this);
    std::unique_ptr<AcDbHatch> hatch;
    if (!m_patternName.isEmpty()) {
        hatch.reset(CreateHatch());
        hatch->setPropertiesFrom(this);
        if (m_colour != 0)
            hatch->setColorIndex(static_cast<Adesk::UInt16>(m_colour));
        if (hatch->numLoops() == 0)
            hatch.reset();
    }
    if (worldDraw == nullptr) {
        for (AcDbPolyline* polyline : polylines)
            entitySet.append(polyline);
        if (hatch != nullptr)
            entitySet.append(hatch.release());
        return true;
    }
    bool complete = true;
    for (int i = 0; i < polylines.length() && complete; ++i) {
        complete = !worldDraw->regenAbort();
        if (complete) {
            worldDraw->subEntityTraits().setSelectionMarker(i + 1);
            worldDraw->geometry().draw(polylines[i]);
        }
    }
    if (complete && hatch != nullptr && !worldDraw->regenAbort()) {
        worldDraw->subEntityTraits().setSelectionMarker(polylines.length() + 1);
        worldDraw->geometry().draw(hatch.get());
    }
    ReleasePolyArray(polylines);
    return complete;
}

Adesk::Boolean AecPanelLite::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    AcArray<void*> none;
    DrawOrExplode(worldDraw, none);
    return Adesk::kTrue;
}

Acad::ErrorStatus AecPanelLite::subExplode(AcDbVoidPtrArray& entitySet) const
{
    assertReadEnabled();
    DrawOrExplode(nullptr, entitySet);
    return Acad::eOk;
}

Acad::ErrorStatus AecPanelLite::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    AcArray<AcDbPolyline*> polylines = CreatePolys();
    AcDbExtents box;
    bool any = false;
    for (const AcDbPolyline* polyline : polylines) {
        AcDbExtents part;
        if (polyline->getGeomExtents(part) == Acad::eOk) {
            box.addExt(part);
            any = true;
        }
    }
    ReleasePolyArray(polylines);
    if (!any)
        return Acad::eInvalidExtents;
    extents = box;
    return Acad::eOk;
}

// Loops stay arcs only under a uniform scale; the pattern turns and scales with the panel,
// and a mirror turns each arc and the pattern's angle the other way.
Acad::ErrorStatus AecPanelLite::subTransformBy(const AcGeMatrix3d& xform)
{
    if (!xform.isUniScaledOrtho())
        return Acad::eCannotScaleNonUniformly;
    assertWriteEnabled();
    const AcGeVector3d x = xform * AcGeVector3d::kXAxis;
    const AcGeVector3d y = xform * AcGeVector3d::kYAxis;
    const bool mirrored = x.x * y.y - x.y * y.x < 0.0;
    for (int i = 0; i < m_loopVertices.length(); ++i) {
        for (int v = 0; v < m_loopVertices[i].length(); ++v) {
            AcGePoint2d& point = m_loopVertices[i][v];
            const AcGePoint3d moved = xform * AcGePoint3d(point.x, point.y, 0.0);
            point.set(moved.x, moved.y);
            if (mirrored)
                m_loopBulges[i][v] = -m_loopBulges[i][v];
        }
    }
    const double turn = std::atan2(x.y, x.x);
    m_patternAngle = mirrored ? turn - m_patternAngle : m_patternAngle + turn;
    m_patternScale *= xform.scale();
    return Acad::eOk;
}

Acad::ErrorStatus AecPanelLite::subGetTransformedCopy(const AcGeMatrix3d& xform, AcDbEntity*& ent) const
{
    assertReadEnabled();
    ent = nullptr;
    std::unique_ptr<AcDbEntity> copy(AcDbEntity::cast(clone()));
    if (copy == nullptr)
        return Acad::eOutOfMemory;
    const Acad::ErrorStatus es = copy->transformBy(xform);
    if (es != Acad::eOk)
        return es;
    ent = copy.release();
    return Acad::eOk;
}

// ---- grips and stretch: every loop vertex, outline first

std::vector<AcGePoint2d*> AecPanelLite::VertexPointers()
{
    std::vector<AcGePoint2d*> points;
    for (int i = 0; i < m_loopVertices.length(); ++i)
        for (int v = 0; v < m_loopVertices[i].length(); ++v)
            points.push_back(&m_loopVertices[i][v]);
    return points;
}

Acad::ErrorStatus AecPanelLite::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&, AcDbIntArray&) const
{
    assertReadEnabled();
    for (const AcArray<AcGePoint2d>& loop : m_loopVertices)
        for (const AcGePoint2d& p : loop)
            gripPoints.append(AcGePoint3d(p.x, p.y, 0.0));
    return Acad::eOk;
}

// Indices that name no vertex are ignored; a vertex named twice moves once.
Acad::ErrorStatus AecPanelLite::subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    if (!std::isfinite(offset.x) || !std::isfinite(offset.y))
        return Acad::eInvalidInput;
    assertWriteEnabled();
    const std::vector<AcGePoint2d*> points = VertexPointers();
    std::vector<bool> moved(points.size(), false);
    for (int index : indices) {
        if (index < 0 || static_cast<std::size_t>(index) >= points.size() || moved[static_cast<std::size_t>(index)])
            continue;
        moved[static_cast<std::size_t>(index)] = true;
        *points[static_cast<std::size_t>(index)] += AcGeVector2d(offset.x, offset.y);
    }
    return Acad::eOk;
}

Acad::ErrorStatus AecPanelLite::subGetStretchPoints(AcGePoint3dArray& stretchPoints) const
{
    AcDbIntArray osnapModes;
    AcDbIntArray geomIds;
    return subGetGripPoints(stretchPoints, osnapModes, geomIds);
}

Acad::ErrorStatus AecPanelLite::subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    return subMoveGripPointsAt(indices, offset);
}

// ---- snaps and intersections: those of the loop polylines

Acad::ErrorStatus AecPanelLite::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                                  const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                  const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                                  AcDbIntArray& geomIds) const
{
    assertReadEnabled();
    AcArray<AcDbPolyline*> polylines = CreatePolys();
    for (const AcDbPolyline* polyline : polylines)
        polyline->getOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints, geomIds);
    ReleasePolyArray(polylines);
    return Acad::eOk;
}

Acad::ErrorStatus AecPanelLite::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                                 AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker,
                                                 Adesk::GsMarker otherGsMarker) const
{
    assertReadEnabled();
    if (pEnt == nullptr)
        return Acad::eNullObjectPointer;
    AcArray<AcDbPolyline*> polylines = CreatePolys();
    for (const AcDbPolyline* polyline : polylines)
        polyline->intersectWith(pEnt, intType, points, thisGsMarker, otherGsMarker);
    ReleasePolyArray(polylines);
    return Acad::eOk;
}

Acad::ErrorStatus AecPanelLite::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                                 const AcGePlane& projPlane, AcGePoint3dArray& points,
                                                 Adesk::GsMarker thisGsMarker, Adesk::GsMarker otherGsMarker) const
{
    assertReadEnabled();
    if (pEnt == nullptr)
        return Acad::eNullObjectPointer;
    AcArray<AcDbPolyline*> polylines = CreatePolys();
    for (const AcDbPolyline* polyline : polylines)
        polyline->intersectWith(pEnt, intType, projPlane, points, thisGsMarker, otherGsMarker);
    ReleasePolyArray(polylines);
    return Acad::eOk;
}

// ---- the loops as edge sub-entities

int AecPanelLite::LoopOfMarker(Adesk::GsMarker marker) const
{
    return marker >= 1 && marker <= m_loopVertices.length() ? static_cast<int>(marker) : 0;
}

Acad::ErrorStatus AecPanelLite::subGetGsMarkersAtSubentPath(const AcDbFullSubentPath& subPath,
                                                            AcArray<Adesk::GsMarker>& gsMarkers) const
{
    assertReadEnabled();
    const Adesk::GsMarker marker = subPath.subentId().index();
    if (!IsEdgeMarker(subPath.subentId().type()) || LoopOfMarker(marker) == 0)
        return Acad::eInvalidInput;
    gsMarkers.append(marker);
    return Acad::eOk;
}

Acad::ErrorStatus AecPanelLite::subGetSubentPathsAtGsMarker(AcDb::SubentType type, Adesk::GsMarker gsMark,
                                                            const AcGePoint3d&, const AcGeMatrix3d&, int& numPaths,
                                                            AcDbFullSubentPath*& subentPaths, int, AcDbObjectId*) const
{
    assertReadEnabled();
    numPaths = 0;
    subentPaths = nullptr;
    if (!IsEdgeMarker(type) || LoopOfMarker(gsMark) == 0)
        return Acad::eInvalidInput;
    subentPaths = new AcDbFullSubentPath[1];
    subentPaths[0] = AcDbFullSubentPath(objectId(), AcDb::kEdgeSubentType, gsMark);
    numPaths = 1;
    return Acad::eOk;
}

AcDbEntity* AecPanelLite::subSubentPtr(const AcDbFullSubentPath& id) const
{
    assertReadEnabled();
    const int marker = LoopOfMarker(id.subentId().index());
    if (!IsEdgeMarker(id.subentId().type()) || marker == 0)
        return nullptr;
    AcArray<AcDbPolyline*> polylines = CreatePolys();
    AcDbPolyline* loop = polylines[marker - 1];
    polylines.removeAt(marker - 1);
    ReleasePolyArray(polylines);
    loop->setPropertiesFrom(this);
    return loop;
}
