// AecShouBianLine: the centre line and the outline built from the host's offset curves,
// the label's place, the draw, explode, extents, snaps, intersections and the list.
#include <algorithm>
#include <cmath>

#include "AecShouBianLine.h"
#include "AecShouBianLineImp.h"
#include "LinePolylines.h"
#include "Qx/WorldDrawUtil.h"
#include "SavedTraits.h"
#include "acgi.h"
#include "acutads.h"
#include "data/PackedColor.h"
#include "dbapserv.h"
#include "dbents.h"
#include "dbmain.h"
#include "dbsymtb.h"
#include "geometry/WorkingDatabaseScope.h"

namespace {

// The offsets of centre at distance (the host's sign: positive to the right of travel).
Acad::ErrorStatus Offset(const AcDbPolyline& centre, double distance, std::vector<std::unique_ptr<AcDbPolyline>>& out)
{
    AcDbVoidPtrArray curves;
    const Acad::ErrorStatus es = centre.getOffsetCurves(distance, curves);
    std::size_t made = 0;
    for (void* curve : curves) {
        std::unique_ptr<AcRxObject> owned(static_cast<AcRxObject*>(curve));
        if (AcDbPolyline* polyline = AcDbPolyline::cast(owned.get())) {
            owned.release();
            out.emplace_back(polyline);
            ++made;
        }
    }
    return made > 0 ? Acad::eOk : (es != Acad::eOk ? Acad::eOutOfMemory : Acad::eOutOfMemory);
}

// An open line's band as one closed outline: the left side start to end, a straight cap
// across the end, the right side back to the start, and a straight cap across the start.
std::unique_ptr<AcDbPolyline> Joined(const AcDbPolyline& left, const AcDbPolyline& right)
{
    auto outline = std::make_unique<AcDbPolyline>();
    unsigned int at = 0;
    for (unsigned int i = 0; i < left.numVerts(); ++i) {
        AcGePoint2d p;
        double bulge = 0.0;
        left.getPointAt(i, p);
        if (i + 1 < left.numVerts())
            left.getBulgeAt(i, bulge);
        outline->addVertexAt(at++, p, bulge);
    }
    for (unsigned int j = right.numVerts(); j > 0; --j) {
        AcGePoint2d p;
        double bulge = 0.0;
        right.getPointAt(j - 1, p);
        if (j > 1) {
            right.getBulgeAt(j - 2, bulge);
            bulge = -bulge;
        }
        outline->addVertexAt(at++, p, bulge);
    }
    outline->setClosed(Adesk::kTrue);
    return outline;
}

// The layer of that name in db, or null.
AcDbObjectId LayerNamed(AcDbDatabase* db, const AcString& name)
{
    AcDbObjectId id;
    AcDbLayerTable* layers = nullptr;
    if (db == nullptr || name.isEmpty() || db->getLayerTable(layers, AcDb::kForRead) != Acad::eOk)
        return id;
    layers->getAt(name.kwszPtr(), id);
    layers->close();
    return id;
}

void ApplyStyle(AcGiSubEntityTraits& traits, AcDbDatabase* db, const AcString& layer, int colorIndex)
{
    const AcDbObjectId layerId = LayerNamed(db, layer);
    if (!layerId.isNull())
        traits.setLayer(layerId);
    if (colorIndex != 0)
        traits.setTrueColor(PackedColor::FromLegacyInt(colorIndex).ToAcCmEntityColor());
}

void ApplyStyle(AcDbEntity& entity, AcDbDatabase* db, const AcString& layer, int colorIndex)
{
    const AcDbObjectId layerId = LayerNamed(db, layer);
    if (!layerId.isNull())
        entity.setLayer(layerId);
    if (colorIndex != 0)
        entity.setColor(PackedColor::FromLegacyInt(colorIndex).ToAcCmColor());
}

AcDbDatabase* DatabaseOf(const AcDbEntity& entity)
{
    return entity.database() != nullptr ? entity.database() : acdbHostApplicationServices()->workingDatabase();
}

}  // namespace

// ---- centre line and outline

AcDbPolyline* AecShouBianLine::Imp::BuildCenter() const
{
    auto* polyline = new AcDbPolyline();
    for (std::size_t i = 0; i < vertices.size(); ++i)
        polyline->addVertexAt(static_cast<unsigned int>(i), vertices[i].point, vertices[i].bulge);
    polyline->setClosed(closed ? Adesk::kTrue : Adesk::kFalse);
    return polyline;
}

AcDbPolyline* AecShouBianLine::Imp::Center()
{
    if (center == nullptr)
        center.reset(BuildCenter());
    return center.get();
}

Acad::ErrorStatus AecShouBianLine::Imp::BuildBoundaries(std::vector<std::unique_ptr<AcDbPolyline>>& out) const
{
    if (vertices.size() < 2 || (indentLeft < kNoIndent && indentRight < kNoIndent))
        return Acad::eOk;
    const std::unique_ptr<AcDbPolyline> centre(BuildCenter());
    std::vector<std::unique_ptr<AcDbPolyline>> left;
    std::vector<std::unique_ptr<AcDbPolyline>> right;
    if (indentLeft >= kNoIndent && Offset(*centre, -indentLeft, left) != Acad::eOk)
        return Acad::eOutOfMemory;
    if (indentRight >= kNoIndent && Offset(*centre, indentRight, right) != Acad::eOk)
        return Acad::eOutOfMemory;
    if (!closed && left.size() == 1 && right.size() == 1) {
        out.push_back(Joined(*left[0], *right[0]));
        return Acad::eOk;
    }
    for (auto* side : {&left, &right})
        for (auto& curve : *side)
            out.push_back(std::move(curve));
    return Acad::eOk;
}

const std::vector<std::unique_ptr<AcDbPolyline>>& AecShouBianLine::Imp::Boundaries()
{
    if (boundaries.empty())
        BuildBoundaries(boundaries);
    return boundaries;
}

// The label stands at the middle of the line's length, clear of the band on its left,
// reading along the line there (turned round where it would read backwards).
void AecShouBianLine::Imp::PlaceLabel() const
{
    if (labelPlaced)
        return;
    labelPlaced = true;
    if (labels.empty() || vertices.size() < 2)
        return;
    const std::unique_ptr<AcDbPolyline> centre(BuildCenter());
    double end = 0.0;
    double length = 0.0;
    double middle = 0.0;
    AcGePoint3d at;
    AcGeVector3d along;
    if (centre->getEndParam(end) != Acad::eOk || centre->getDistAtParam(end, length) != Acad::eOk ||
        centre->getParamAtDist(0.5 * length, middle) != Acad::eOk || centre->getPointAtParam(middle, at) != Acad::eOk ||
        centre->getFirstDeriv(middle, along) != Acad::eOk || along.isZeroLength())
        return;
    along.z = 0.0;
    along.normalize();
    const AcGeVector3d left(-along.y, along.x, 0.0);
    DbxPanel::TextLabel& label = labels[0];
    const double clearance = indentLeft + 0.75 * label.GetTextHeight();
    label.SetPos(at + left * clearance);
    const bool backwards = along.x < -1e-9 || (std::fabs(along.x) <= 1e-9 && along.y < 0.0);
    label.SetDir(backwards ? -along : along);
}

AcDbPolyline* AecShouBianLine::CreateCenterPolyline() const
{
    assertReadEnabled();
    return m_imp->BuildCenter();
}

Acad::ErrorStatus AecShouBianLine::CreateBoundaryPolylines(AcArray<void*>& out) const
{
    assertReadEnabled();
    std::vector<std::unique_ptr<AcDbPolyline>> made;
    const Acad::ErrorStatus es = m_imp->BuildBoundaries(made);
    for (auto& polyline : made)
        out.append(polyline.release());
    return es;
}

// ---- what the host sees

Adesk::Boolean AecShouBianLine::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    if (worldDraw == nullptr || worldDraw->regenAbort())
        return Adesk::kTrue;
    Imp& imp = *m_imp;
    AcDbDatabase* db = DatabaseOf(*this);
    AcGiSubEntityTraits& traits = worldDraw->subEntityTraits();
    if (IsDrawOptionEnabled(BoundaryLine)) {
        SavedTraits saved(traits);
        ApplyStyle(traits, db, imp.lineLayer, imp.boundaryColor);
        for (const auto& outline : imp.Boundaries()) {
            if (Qx::WorldDrawUtil::DrawPolyline(worldDraw, outline.get())) {
                saved.Restore();
                return Adesk::kTrue;
            }
        }
        saved.Restore();
    }
    if (IsDrawOptionEnabled(CenterLine) && imp.vertices.size() >= 2) {
        SavedTraits saved(traits);
        ApplyStyle(traits, db, imp.lineLayer, imp.lineColor);
        const bool aborted = Qx::WorldDrawUtil::DrawPolyline(worldDraw, imp.Center());
        saved.Restore();
        if (aborted)
            return Adesk::kTrue;
    }
    imp.PlaceLabel();
    if (IsDrawOptionEnabled(TextLabel) && !imp.labels.empty() && imp.labels[0].IsVisible() &&
        !imp.labels[0].GetString().isEmpty()) {
        const WorkingDatabaseScope scope(database());
        std::unique_ptr<AcDbText> text(imp.labels[0].CreateDbText());
        if (text != nullptr) {
            ApplyStyle(*text, db, imp.textLayer, imp.textColor);
            SavedTraits saved(traits);
            worldDraw->geometry().draw(text.get());
            saved.Restore();
        }
    }
    return Adesk::kTrue;
}

// What is drawn, as plain entities in the same layers and colours.
Acad::ErrorStatus AecShouBianLine::subExplode(AcDbVoidPtrArray& entitySet) const
{
    assertReadEnabled();
    Imp& imp = *m_imp;
    AcDbDatabase* db = DatabaseOf(*this);
    if (IsDrawOptionEnabled(BoundaryLine))
        for (const auto& outline : imp.Boundaries()) {
            const Acad::ErrorStatus es =
                LinePolylines::AppendExplodedCopy(*outline, *this, entitySet, [&](AcDbEntity& piece) {
                    ApplyStyle(piece, db, imp.lineLayer, imp.boundaryColor);
                });
            if (es != Acad::eOk)
                return es;
        }
    if (IsDrawOptionEnabled(CenterLine) && imp.vertices.size() >= 2) {
        const Acad::ErrorStatus es =
            LinePolylines::AppendExplodedCopy(*imp.Center(), *this, entitySet, [&](AcDbEntity& piece) {
                ApplyStyle(piece, db, imp.lineLayer, imp.lineColor);
            });
        if (es != Acad::eOk)
            return es;
    }
    imp.PlaceLabel();
    if (IsDrawOptionEnabled(TextLabel) && !imp.labels.empty() && imp.labels[0].IsVisible() &&
        !imp.labels[0].GetString().isEmpty()) {
        const WorkingDatabaseScope scope(database());
        if (AcDbText* text = imp.labels[0].CreateDbText()) {
            ApplyStyle(*text, db, imp.textLayer, imp.textColor);
            entitySet.append(text);
        }
    }
    return Acad::eOk;
}

Acad::ErrorStatus AecShouBianLine::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    Imp& imp = *m_imp;
    if (imp.vertices.empty())
        return Acad::eInvalidExtents;
    AcDbExtents box;
    AcDbExtents part;
    if (imp.Center()->numVerts() > 0 && imp.Center()->getGeomExtents(part) == Acad::eOk)
        box.addExt(part);
    for (const ShouBianVertex& v : imp.vertices)
        box.addPoint(AcGePoint3d(v.point.x, v.point.y, 0.0));
    for (const auto& outline : imp.Boundaries())
        if (outline->getGeomExtents(part) == Acad::eOk)
            box.addExt(part);
    extents = box;
    return Acad::eOk;
}

namespace {

LinePolylines Shown(AecShouBianLine::Imp& imp)
{
    LinePolylines shown;
    shown.Add(imp.Center());
    for (const auto& outline : imp.Boundaries())
        shown.Add(outline.get());
    return shown;
}

}  // namespace

Acad::ErrorStatus AecShouBianLine::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                                     const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                     const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                                     AcDbIntArray& geomIds) const
{
    assertReadEnabled();
    return Shown(*m_imp).GetOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints,
                                        geomIds);
}

Acad::ErrorStatus AecShouBianLine::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                                     const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                     const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                                     AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const
{
    assertReadEnabled();
    return Shown(*m_imp).GetOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints,
                                        geomIds, insertionMat);
}

Acad::ErrorStatus AecShouBianLine::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                                    AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker,
                                                    Adesk::GsMarker otherGsMarker) const
{
    assertReadEnabled();
    return Shown(*m_imp).IntersectWith(pEnt, intType, points, thisGsMarker, otherGsMarker);
}

Acad::ErrorStatus AecShouBianLine::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                                    const AcGePlane& projPlane, AcGePoint3dArray& points,
                                                    Adesk::GsMarker thisGsMarker, Adesk::GsMarker otherGsMarker) const
{
    assertReadEnabled();
    return Shown(*m_imp).IntersectWith(pEnt, intType, projPlane, points, thisGsMarker, otherGsMarker);
}

void AecShouBianLine::subList() const
{
    assertReadEnabled();
    Imp& imp = *m_imp;
    const AcGePoint3d start = GetStartPoint();
    const AcGePoint3d end = GetEndPoint();
    double length = 0.0;
    double endParam = 0.0;
    if (imp.vertices.size() >= 2 && imp.Center()->getEndParam(endParam) == Acad::eOk)
        imp.Center()->getDistAtParam(endParam, length);
    acutPrintf(L"\n ***收边线信息*** ");
    acutPrintf(L"\n[Basic Geometry Info]");
    acutPrintf(L"\n  Vertex Count: %d", static_cast<int>(imp.vertices.size()));
    acutPrintf(L"\n  Start Point: (%.3f, %.3f, %.3f)", start.x, start.y, start.z);
    acutPrintf(L"\n  End Point: (%.3f, %.3f, %.3f)", end.x, end.y, end.z);
    acutPrintf(L"\n  Length: %.3f", length);
    acutPrintf(L"\n");
    acutPrintf(L"\n[Indent Info]");
    acutPrintf(L"\n  Left Indent: %.3f", imp.indentLeft);
    acutPrintf(L"\n  Right Indent: %.3f", imp.indentRight);
    acutPrintf(L"\n  Total Width: %.3f", imp.indentLeft + imp.indentRight);
    acutPrintf(L"\n");
    acutPrintf(L"\n[Scene Info]");
    acutPrintf(L"\n  Is Standalone: %s", imp.standalone ? L"Yes" : L"No");
    acutPrintf(L"\n  Boundary Identifier: (%.3f, %.3f, %.3f)", imp.identifierPoint.x, imp.identifierPoint.y,
               imp.identifierPoint.z);
    acutPrintf(L"\n");
    acutPrintf(L"\n[Draw Options]");
    acutPrintf(L"\n  CenterLine: %s", (imp.drawOptions & CenterLine) != 0 ? L"On" : L"Off");
    acutPrintf(L"\n  BoundaryLine: %s", (imp.drawOptions & BoundaryLine) != 0 ? L"On" : L"Off");
    acutPrintf(L"\n  TextLabel: %s", (imp.drawOptions & TextLabel) != 0 ? L"On" : L"Off");
    acutPrintf(L"\n");
    acutPrintf(L"\n[JSON Data Info]");
    if (!imp.json.isEmpty()) {
        acutPrintf(L"\n  收边信息: %s", imp.json.kwszPtr());
        acutPrintf(L"\n  收边信息长度: %d 字符", static_cast<int>(imp.json.length()));
    } else {
        acutPrintf(L"\n  收边信息: [无数据]");
    }
    // Then the host's own lines, as the other layout lines give them.
    QxPolylineBasedCurve::subList();
}
