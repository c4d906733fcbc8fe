// AecPanel: size, extents, transform, explode, grips, stretch, snaps, intersections and
// the labels as sub-entities.
#include <algorithm>
#include <cmath>

#include "AecPanel.h"
#include "AecPanelImp.h"
#include "gegbl.h"
#include "geometry/WorkingDatabaseScope.h"

using DbxPanel::PanelLoop;
using DbxPanel::PanelVertex;
using DbxPanel::TextLabel;

namespace {

constexpr Adesk::GsMarker kLabelMarkerBase = 0x20000000;

bool WithinSizeLimits(double size)
{
    return std::isfinite(size) && size >= AecPanel::kMinimumSize && size <= AecPanel::kMaximumSize;
}

// Moves the outline's ends along axis so that its extent along it becomes `size`: the end
// away from the anchor (1 the low end, 2 the middle, 3 the high end; 0 counts as 1).
void ResizeAlong(PanelLoop& outline, const AcGeVector2d& axis, double size, int anchor)
{
    double low = HUGE_VAL;
    double high = -HUGE_VAL;
    for (const PanelVertex& v : outline) {
        const double t = v.point.asVector().dotProduct(axis);
        low = std::min(low, t);
        high = std::max(high, t);
    }
    const double grow = size - (high - low);
    const double tolerance = 1e-9 * std::max(1.0, high - low);
    double lowShift = 0.0;
    double highShift = grow;
    if (anchor == 2) {
        lowShift = -0.5 * grow;
        highShift = 0.5 * grow;
    } else if (anchor == 3) {
        lowShift = -grow;
        highShift = 0.0;
    }
    for (PanelVertex& v : outline) {
        const double t = v.point.asVector().dotProduct(axis);
        if (std::fabs(t - high) <= tolerance)
            v.point += axis * highShift;
        else if (std::fabs(t - low) <= tolerance)
            v.point += axis * lowShift;
    }
}

}  // namespace

// ---- size

double AecPanel::GetGeomLength() const
{
    assertReadEnabled();
    return m_imp->loops.empty() ? 0.0 : 2.0 * m_imp->Box().halfExtentX;
}

double AecPanel::GetGeomWidth() const
{
    assertReadEnabled();
    return m_imp->loops.empty() ? 0.0 : 2.0 * m_imp->Box().halfExtentY;
}

bool AecPanel::SetGeomLengthAndFlush(double length, bool flush)
{
    assertReadEnabled();
    if (!WithinSizeLimits(length) || m_imp->loops.empty() || m_imp->loops[0].empty())
        return false;
    assertWriteEnabled();
    DbxPanel::PanelBasicInfo basic;
    AcString message;
    const int anchor = basic.FromJson(m_imp->basicInfo, message) ? basic.GetAnchorModeLength() : 1;
    ResizeAlong(m_imp->loops[0], m_imp->LayingDirection(), length, anchor);
    if (flush)
        m_imp->ResetSize(0, false);
    return true;
}

bool AecPanel::SetGeomWidthAndFlush(double width, bool flush)
{
    assertReadEnabled();
    if (!WithinSizeLimits(width) || m_imp->loops.empty() || m_imp->loops[0].empty())
        return false;
    assertWriteEnabled();
    DbxPanel::PanelBasicInfo basic;
    AcString message;
    const int anchor = basic.FromJson(m_imp->basicInfo, message) ? basic.GetAnchorModeWidth() : 1;
    const AcGeVector2d u = m_imp->LayingDirection();
    ResizeAlong(m_imp->loops[0], AcGeVector2d(-u.y, u.x), width, anchor);
    if (flush)
        m_imp->ResetSize(1, false);
    return true;
}

// ---- extents, transform, explode

Acad::ErrorStatus AecPanel::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    AcDbExtents box;
    bool any = false;
    for (const auto& polyline : m_imp->loopPolylines) {
        AcDbExtents part;
        if (polyline->numVerts() > 0 && polyline->getGeomExtents(part) == Acad::eOk) {
            box.addExt(part);
            any = true;
        }
    }
    if (!any)
        return Acad::eInvalidExtents;
    extents = box;
    return Acad::eOk;
}

// Loops, labels and the laying direction move with the panel; a mirror turns each arc
// the other way, so its bulge changes sign.
Acad::ErrorStatus AecPanel::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    Imp& imp = *m_imp;
    const AcGeVector3d x = xform * AcGeVector3d::kXAxis;
    const AcGeVector3d y = xform * AcGeVector3d::kYAxis;
    const bool mirrored = x.x * y.y - x.y * y.x < 0.0;
    for (PanelLoop& loop : imp.loops) {
        for (PanelVertex& v : loop) {
            const AcGePoint3d p = xform * AcGePoint3d(v.point.x, v.point.y, 0.0);
            v.point.set(p.x, p.y);
            if (mirrored)
                v.bulge = -v.bulge;
        }
    }
    for (TextLabel& label : imp.labels) {
        label.SetPos(xform * label.GetPos());
        label.SetDir(xform * label.GetDir());
    }
    DbxPanel::PanelBasicInfo basic;
    AcString message;
    if (!imp.basicInfo.isEmpty() && basic.FromJson(imp.basicInfo, message)) {
        const AcGeVector2d before = basic.GetLengthDirection();
        const AcGeVector3d after = xform * AcGeVector3d(before.x, before.y, 0.0);
        if (!before.isZeroLength() && !after.isZeroLength() &&
            !AcGeVector2d(after.x, after.y).normal().isEqualTo(before.normal())) {
            const AcGeVector3d unit = after.normal();
            basic.SetLengthDirection(AcGeVector2d(unit.x, unit.y));
            AcString json;
            if (basic.ToJson(json, message))
                imp.basicInfo = json;
        }
    }
    imp.Flush(true);
    return Acad::eOk;
}

Acad::ErrorStatus AecPanel::subExplode(AcDbVoidPtrArray& entitySet) const
{
    assertReadEnabled();
    const Imp& imp = *m_imp;
    for (const auto& polyline : imp.loopPolylines) {
        if (polyline->numVerts() < 2)
            continue;
        auto* copy = new AcDbPolyline();
        for (unsigned int i = 0; i < polyline->numVerts(); ++i) {
            AcGePoint2d p;
            double bulge = 0.0;
            polyline->getPointAt(i, p);
            polyline->getBulgeAt(i, bulge);
            copy->addVertexAt(i, p, bulge);
        }
        copy->setClosed(Adesk::kTrue);
        copy->setPropertiesFrom(this);
        entitySet.append(copy);
    }
    if (imp.hatchDisplayEnabled && imp.hatch != nullptr) {
        if (AcDbHatch* hatch = AcDbHatch::cast(imp.hatch->clone())) {
            hatch->setPropertiesFrom(this);
            hatch->setColorIndex(imp.hatch->colorIndex());
            entitySet.append(hatch);
        }
    }
    const WorkingDatabaseScope scope(database());
    for (const TextLabel& label : imp.labels) {
        if (!IsTextLabelEffectivelyVisible(label))
            continue;
        if (AcDbText* text = label.CreateDbText())
            entitySet.append(text);
    }
    return Acad::eOk;
}

// ---- grips and stretch

Acad::ErrorStatus AecPanel::subGetGripPoints(AcGePoint3dArray&, AcDbIntArray&, AcDbIntArray&) const
{
    assertReadEnabled();
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AecPanel::subGetGripPoints(AcDbGripDataPtrArray& grips, const double, const int, const AcGeVector3d&,
                                             const int) const
{
    assertReadEnabled();
    const Imp& imp = *m_imp;
    imp.grips.Clear();
    if (imp.loops.empty() || imp.loops[0].empty())
        return Acad::eOk;
    for (const PanelVertex& v : imp.loops[0])
        grips.append(imp.grips.HandOut(Imp::Grip::kVertex, AcGePoint3d(v.point.x, v.point.y, 0.0)));
    const DbxPanel::OBBInfo2D box = imp.Box();
    grips.append(imp.grips.HandOut(Imp::Grip::kMove, AcGePoint3d(box.center.x, box.center.y, 0.0)));
    return Acad::eOk;
}

Acad::ErrorStatus AecPanel::subMoveGripPointsAt(const AcDbIntArray&, const AcGeVector3d&)
{
    assertWriteEnabled();
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AecPanel::subMoveGripPointsAt(const AcDbVoidPtrArray& gripAppData, const AcGeVector3d& offset,
                                                const int)
{
    assertWriteEnabled();
    AcDbIntArray vertices;
    bool move = false;
    for (int i = 0; i < gripAppData.length(); ++i) {
        const auto* record = m_imp->grips.Find(gripAppData[i]);
        if (record == nullptr)
            continue;
        if (record->kind == Imp::Grip::kMove)
            move = true;
        else
            vertices.append(record->order);
    }
    if (move)
        return offset.isZeroLength() ? Acad::eOk : subTransformBy(AcGeMatrix3d::translation(offset));
    if (vertices.isEmpty())
        return Acad::eOk;
    return subMoveStretchPointsAt(vertices, offset);
}

void AecPanel::subGripStatus(const AcDb::GripStat status)
{
    AcDbEntity::subGripStatus(status);
    if (status == AcDb::kGripsToBeDeleted)
        m_imp->grips.Clear();
}

Acad::ErrorStatus AecPanel::subGetStretchPoints(AcGePoint3dArray& stretchPoints) const
{
    assertReadEnabled();
    stretchPoints.setLogicalLength(0);
    if (!m_imp->loops.empty())
        for (const PanelVertex& v : m_imp->loops[0])
            stretchPoints.append(AcGePoint3d(v.point.x, v.point.y, 0.0));
    return Acad::eOk;
}

Acad::ErrorStatus AecPanel::subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    assertWriteEnabled();
    return m_imp->StretchOuterVertices(indices, offset);
}

Acad::ErrorStatus AecPanel::Imp::StretchOuterVertices(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    if (indices.isEmpty() || offset.isZeroLength(AcGeContext::gTol))
        return Acad::eOk;
    if (loops.empty())
        return Acad::eInvalidInput;
    DbxPanel::PanelBasicInfo basic;
    AcString message;
    if (basicInfo.isEmpty() || !basic.FromJson(basicInfo, message))
        return Acad::eInvalidInput;
    AcGeVector2d u = basic.GetLengthDirection();
    if (u.isZeroLength(AcGeContext::gTol))
        return Acad::eInvalidInput;
    u.normalize(AcGeContext::gTol);
    // Only the part along the laying direction: a stretch never widens or skews a panel.
    const AcGeVector2d along = u * (offset.x * u.x + offset.y * u.y);
    bool moved = false;
    PanelLoop& outline = loops[0];
    for (int i = 0; i < indices.length(); ++i) {
        const int index = indices[i];
        if (index < 0 || index >= static_cast<int>(outline.size()))
            continue;
        outline[index].point += along;
        moved = true;
    }
    if (!moved)
        return Acad::eOk;
    FlushLoopPolylines();
    FlushHatch();
    ResetSize(0, true);
    return Acad::eOk;
}

// ---- snaps and intersections: those of the loop polylines

Acad::ErrorStatus AecPanel::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                              const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                              const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                              AcDbIntArray& geomIds) const
{
    assertReadEnabled();
    for (const auto& polyline : m_imp->loopPolylines) {
        if (polyline->numVerts() >= 2)
            polyline->getOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints, geomIds);
    }
    return Acad::eOk;
}

Acad::ErrorStatus AecPanel::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                              const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                              const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                              AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const
{
    assertReadEnabled();
    for (const auto& polyline : m_imp->loopPolylines) {
        if (polyline->numVerts() >= 2)
            polyline->getOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints, geomIds,
                                     insertionMat);
    }
    return Acad::eOk;
}

Acad::ErrorStatus AecPanel::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, AcGePoint3dArray& points,
                                             Adesk::GsMarker thisGsMarker, Adesk::GsMarker otherGsMarker) const
{
    assertReadEnabled();
    if (pEnt == nullptr)
        return Acad::eNullObjectPointer;
    for (const auto& polyline : m_imp->loopPolylines) {
        if (polyline->numVerts() >= 2)
            polyline->intersectWith(pEnt, intType, points, thisGsMarker, otherGsMarker);
    }
    return Acad::eOk;
}

Acad::ErrorStatus AecPanel::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                             const AcGePlane& projPlane, AcGePoint3dArray& points,
                                             Adesk::GsMarker thisGsMarker, Adesk::GsMarker otherGsMarker) const
{
    assertReadEnabled();
    if (pEnt == nullptr)
        return Acad::eNullObjectPointer;
    for (const auto& polyline : m_imp->loopPolylines) {
        if (polyline->numVerts() >= 2)
            polyline->intersectWith(pEnt, intType, projPlane, points, thisGsMarker, otherGsMarker);
    }
    return Acad::eOk;
}

// ---- the labels as sub-entities, picked by their selection markers

Acad::ErrorStatus AecPanel::subHighlight(const AcDbFullSubentPath& subId, const Adesk::Boolean highlightAll) const
{
    assertReadEnabled();
    return AcDbEntity::subHighlight(subId, highlightAll);
}

Acad::ErrorStatus AecPanel::subUnhighlight(const AcDbFullSubentPath& subId, const Adesk::Boolean highlightAll) const
{
    assertReadEnabled();
    return AcDbEntity::subUnhighlight(subId, highlightAll);
}

Acad::ErrorStatus AecPanel::subGetGsMarkersAtSubentPath(const AcDbFullSubentPath& subPath,
                                                        AcArray<Adesk::GsMarker>& gsMarkers) const
{
    assertReadEnabled();
    const Adesk::GsMarker marker = subPath.subentId().index();
    if (subPath.subentId().type() != AcDb::kClassSubentType || marker < kLabelMarkerBase ||
        marker >= kLabelMarkerBase + static_cast<Adesk::GsMarker>(m_imp->labels.size()))
        return Acad::eInvalidInput;
    gsMarkers.append(marker);
    return Acad::eOk;
}

Acad::ErrorStatus AecPanel::subGetSubentPathsAtGsMarker(AcDb::SubentType type, Adesk::GsMarker gsMark,
                                                        const AcGePoint3d&, const AcGeMatrix3d&, int& numPaths,
                                                        AcDbFullSubentPath*& subentPaths, int, AcDbObjectId*) const
{
    assertReadEnabled();
    numPaths = 0;
    subentPaths = nullptr;
    if (type != AcDb::kClassSubentType || gsMark < kLabelMarkerBase ||
        gsMark >= kLabelMarkerBase + static_cast<Adesk::GsMarker>(m_imp->labels.size()))
        return Acad::eInvalidInput;
    subentPaths = new AcDbFullSubentPath[1];
    subentPaths[0] = AcDbFullSubentPath(objectId(), AcDb::kClassSubentType, gsMark);
    numPaths = 1;
    return Acad::eOk;
}

AcDbEntity* AecPanel::subSubentPtr(const AcDbFullSubentPath& id) const
{
    assertReadEnabled();
    const Adesk::GsMarker marker = id.subentId().index();
    if (id.subentId().type() != AcDb::kClassSubentType || marker < kLabelMarkerBase ||
        marker >= kLabelMarkerBase + static_cast<Adesk::GsMarker>(m_imp->labels.size()))
        return nullptr;
    return m_imp->labels[static_cast<std::size_t>(marker - kLabelMarkerBase)].CreateDbText();
}
