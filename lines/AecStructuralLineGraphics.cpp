// AecStructuralLine: what the host sees of the line: its draw (the member outline, the
// dashed indent lines, the centre line), explode, extents, osnaps, intersections and the
// list output.
#include "AecStructuralLine.h"
#include "AecStructuralLineImp.h"
#include "LineListing.h"
#include "Qx/WorldDrawUtil.h"
#include "SavedTraits.h"
#include "acgi.h"
#include "acutads.h"
#include "dbents.h"

namespace {

bool HasVertices(const AcDbPolyline* polyline)
{
    return polyline->numVerts() > 0;
}

// Draws the polylines that have vertices; true when the regeneration was aborted.
bool DrawAll(AcGiWorldDraw* worldDraw, std::initializer_list<const AcDbPolyline*> polylines)
{
    for (const AcDbPolyline* polyline : polylines)
        if (HasVertices(polyline) && (Qx::WorldDrawUtil::DrawPolyline(worldDraw, polyline) || worldDraw->regenAbort()))
            return true;
    return false;
}

}  // namespace

Adesk::Boolean AecStructuralLine::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    if (worldDraw == nullptr || worldDraw->regenAbort())
        return Adesk::kTrue;
    Imp& imp = *m_imp;
    AcGiSubEntityTraits& traits = worldDraw->subEntityTraits();
    if (imp.IsShown(kStructuralDrawMemberBoundary)) {
        SavedTraits saved(traits);
        imp.display.ApplyBoundaryStyle(traits, database());
        const bool aborted = DrawAll(worldDraw, {imp.MemberBoundary()});
        saved.Restore();
        if (aborted)
            return Adesk::kTrue;
    }
    if (imp.IsShown(kStructuralDrawIndentLines)) {
        SavedTraits saved(traits);
        imp.display.ApplyShouBianLineStyle(traits, database(), linetypeScale());
        const bool aborted = DrawAll(worldDraw, {imp.IndentLineLeft(), imp.IndentLineRight()});
        saved.Restore();
        if (aborted)
            return Adesk::kTrue;
    }
    if (imp.IsShown(kStructuralDrawCenterLine))
        DrawAll(worldDraw, {imp.CenterPolyline()});
    return Adesk::kTrue;
}

// What is drawn, in the same order and styles; parts without corners are left out.
Acad::ErrorStatus AecStructuralLine::subExplode(AcDbVoidPtrArray& entitySet) const
{
    assertReadEnabled();
    Imp& imp = *m_imp;
    AcDbDatabase* db = database();
    if (imp.IsShown(kStructuralDrawMemberBoundary) && HasVertices(imp.MemberBoundary())) {
        const Acad::ErrorStatus es =
            LinePolylines::AppendExplodedCopy(*imp.MemberBoundary(), *this, entitySet, [&](AcDbEntity& boundary) {
                imp.display.ApplyBoundaryStyle(boundary, db);
            });
        if (es != Acad::eOk)
            return es;
    }
    if (imp.IsShown(kStructuralDrawIndentLines)) {
        for (const AcDbPolyline* indentLine : {imp.IndentLineLeft(), imp.IndentLineRight()}) {
            if (!HasVertices(indentLine))
                continue;
            const Acad::ErrorStatus es =
                LinePolylines::AppendExplodedCopy(*indentLine, *this, entitySet, [&](AcDbEntity& piece) {
                    imp.display.ApplyShouBianLineStyle(piece, db);
                });
            if (es != Acad::eOk)
                return es;
        }
    }
    if (imp.IsShown(kStructuralDrawCenterLine))
        return LinePolylines::AppendExplodedCopy(*imp.CenterPolyline(), *this, entitySet);
    return Acad::eOk;
}

Acad::ErrorStatus AecStructuralLine::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    const Imp& imp = *m_imp;
    const std::vector<AcGePoint3d> members = imp.MemberCorners();
    if (members.empty())
        return Acad::eInvalidInput;
    // The ends too, so that the grips lie inside whatever the widths' signs.
    extents = AcDbExtents();
    for (const AcGePoint3d& corner : members)
        extents.addPoint(corner);
    for (const AcGePoint3d& corner : imp.IndentCorners())
        extents.addPoint(corner);
    extents.addPoint(imp.startPoint);
    extents.addPoint(imp.endPoint);
    return Acad::eOk;
}

QX_DEFINE_LINE_SNAPS_AND_INTERSECTIONS(AecStructuralLine)

// No length lines after the JSON blocks, unlike the division and overlap lines; the two
// spaces after "Left:" line the values up with the "Right:" lines.
void AecStructuralLine::subList() const
{
    assertReadEnabled();
    const Imp& imp = *m_imp;
    LineListing::PrintBasicGeometry(L"\n ***结构线信息*** ", imp.startPoint, imp.endPoint);
    acutPrintf(L"\n  Segment Type: Straight Line");
    acutPrintf(L"\n  Member Type: %s", imp.memberType == kStructuralBeam ? L"Beam" : L"Column");
    acutPrintf(L"\n");
    acutPrintf(L"\n[Structural Member Info]");
    acutPrintf(L"\n  Member Width Left:  %.3f", imp.memberWidthLeft);
    acutPrintf(L"\n  Member Width Right: %.3f", imp.memberWidthRight);
    acutPrintf(L"\n  Indent Left:  %.3f", imp.indentLeft);
    acutPrintf(L"\n  Indent Right: %.3f", imp.indentRight);
    acutPrintf(L"\n  Penetration Left:  %.3f  (MemberWidth - Indent)", imp.memberWidthLeft - imp.indentLeft);
    acutPrintf(L"\n  Penetration Right: %.3f  (MemberWidth - Indent)", imp.memberWidthRight - imp.indentRight);
    acutPrintf(L"\n");
    LineListing::PrintJsonSection(imp.json, LineListing::JsonLengths::kOmitted);

    QxPolylineBasedCurve::subList();
}
