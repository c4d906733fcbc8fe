// AecOverlapLine: what the host sees of the line: its draw (the centre line, the two strip
// edges with the covered one dashed, the direction mark), explode, extents, osnaps,
// intersections and the list output.
#include "AecOverlapLine.h"
#include "AecOverlapLineImp.h"
#include "LineDisplaySettings.h"
#include "LineListing.h"
#include "OverlapDirectionMark.h"
#include "Qx/WorldDrawUtil.h"
#include "SavedTraits.h"
#include "acgi.h"
#include "acutads.h"
#include "dbents.h"

namespace {

const ACHAR* const kCoveredLinetype = L"DASHED";
const ACHAR* const kCoveringLinetype = L"CONTINUOUS";

bool Aborted(bool primitiveAborted, AcGiWorldDraw* worldDraw)
{
    return primitiveAborted || worldDraw->regenAbort();
}

// Draws one edge in the linetype of that name when the drawing has it; otherwise in the
// linetype the traits hold.
bool DrawEdge(AcGiWorldDraw* worldDraw, AcDbDatabase* db, const ACHAR* linetype, const AcGePoint3d* edge)
{
    const AcDbObjectId id = LineDisplaySettings::FindLinetype(db, linetype);
    if (!id.isNull())
        worldDraw->subEntityTraits().setLineType(id);
    return worldDraw->geometry().polyline(2, edge);
}

// The mark's shaft, then its head filled.
bool DrawMark(AcGiWorldDraw* worldDraw, const OverlapDirectionMark& mark)
{
    const AcGePoint3d shaft[2] = {mark.HeadBase(), mark.Tail()};
    if (Aborted(worldDraw->geometry().polyline(2, shaft), worldDraw))
        return true;
    AcGiSubEntityTraits& traits = worldDraw->subEntityTraits();
    SavedTraits saved(traits);
    traits.setFillType(kAcGiFillAlways);
    const AcGePoint3d head[3] = {mark.Tip(), mark.HeadCorner(0), mark.HeadCorner(1)};
    const bool aborted = worldDraw->geometry().polygon(3, head);
    saved.Restore();
    return aborted;
}

}  // namespace

Adesk::Boolean AecOverlapLine::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    if (worldDraw == nullptr || worldDraw->regenAbort())
        return Adesk::kTrue;
    Imp& imp = *m_imp;
    imp.Rebuild();
    if (imp.IsShown(kOverlapDrawCenterLine) &&
        Aborted(Qx::WorldDrawUtil::DrawPolyline(worldDraw, imp.centerPolyline), worldDraw))
        return Adesk::kTrue;
    const std::vector<AcGePoint3d> corners = imp.StripCorners();
    if (imp.IsShown(kOverlapDrawBoundary) && corners.size() == 4) {
        // The covered sheet's edge lies hidden under the covering sheet: dashed, and drawn
        // first.
        const AcGePoint3d minusEdge[2] = {corners[0], corners[3]};
        const AcGePoint3d plusEdge[2] = {corners[1], corners[2]};
        const bool leftOverRight = imp.direction == LeftOverRight;
        const AcGePoint3d* covered = leftOverRight ? minusEdge : plusEdge;
        const AcGePoint3d* covering = leftOverRight ? plusEdge : minusEdge;
        AcGiSubEntityTraits& traits = worldDraw->subEntityTraits();
        SavedTraits saved(traits);
        imp.display.ApplyBoundaryStyle(traits, database());
        const bool aborted = Aborted(DrawEdge(worldDraw, database(), kCoveredLinetype, covered), worldDraw) ||
            Aborted(DrawEdge(worldDraw, database(), kCoveringLinetype, covering), worldDraw);
        saved.Restore();
        if (aborted)
            return Adesk::kTrue;
    }
    if (imp.IsShown(kOverlapDrawDirection))
        DrawMark(worldDraw, OverlapDirectionMark(imp.startPoint, imp.endPoint, imp.direction));
    return Adesk::kTrue;
}

// A strip without corners (a line of no length) is not exploded.
Acad::ErrorStatus AecOverlapLine::subExplode(AcDbVoidPtrArray& entitySet) const
{
    assertReadEnabled();
    Imp& imp = *m_imp;
    imp.EnsurePolylines();
    if (imp.IsShown(kOverlapDrawCenterLine)) {
        const Acad::ErrorStatus es = LinePolylines::AppendExplodedCopy(*imp.centerPolyline, *this, entitySet);
        if (es != Acad::eOk)
            return es;
    }
    if (imp.IsShown(kOverlapDrawBoundary) && imp.boundaryPolyline->numVerts() > 0)
        return LinePolylines::AppendExplodedCopy(*imp.boundaryPolyline, *this, entitySet, [&](AcDbEntity& strip) {
            imp.display.ApplyBoundaryStyle(strip, database());
        });
    return Acad::eOk;
}

Acad::ErrorStatus AecOverlapLine::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    const Imp& imp = *m_imp;
    const std::vector<AcGePoint3d> corners = imp.StripCorners();
    if (corners.empty())
        return Acad::eInvalidInput;
    // The ends too, so that the grips lie inside whatever the widths' signs.
    extents = AcDbExtents();
    for (const AcGePoint3d& corner : corners)
        extents.addPoint(corner);
    extents.addPoint(imp.startPoint);
    extents.addPoint(imp.endPoint);
    if (imp.IsShown(kOverlapDrawDirection)) {
        const OverlapDirectionMark mark(imp.startPoint, imp.endPoint, imp.direction);
        for (const AcGePoint3d& p : {mark.Tail(), mark.Tip(), mark.HeadCorner(0), mark.HeadCorner(1)})
            extents.addPoint(p);
    }
    return Acad::eOk;
}

QX_DEFINE_LINE_SNAPS_AND_INTERSECTIONS(AecOverlapLine)

void AecOverlapLine::subList() const
{
    assertReadEnabled();
    const Imp& imp = *m_imp;
    const double length = LineListing::PrintBasicGeometry(L"\n ***搭接线信息*** ", imp.startPoint, imp.endPoint);
    acutPrintf(L"\n  Segment Type: Straight Line");
    acutPrintf(L"\n");
    acutPrintf(L"\n[Overlap Width Info]");
    acutPrintf(L"\n  Left Overlap: %.3f", imp.overlapLeft);
    acutPrintf(L"\n  Right Overlap: %.3f", imp.overlapRight);
    const double width = imp.overlapLeft + imp.overlapRight;
    acutPrintf(L"\n  Total Width: %.3f", width);
    acutPrintf(L"\n  Overlap Area: %.3f", width * length);
    acutPrintf(L"\n");
    acutPrintf(L"\n[Overlap Direction]");
    acutPrintf(L"\n  Direction: %s",
               imp.direction == LeftOverRight ? L"LeftOverRight (左压右)" : L"RightOverLeft (右压左)");
    acutPrintf(L"\n");
    LineListing::PrintJsonSection(imp.json, LineListing::JsonLengths::kShown);

    QxPolylineBasedCurve::subList();
}
