// AecDivisionLine: what the host sees of the line: its draw (the boundary on the JieDian
// boundary layer and colour, then the centre line), explode, extents, osnaps,
// intersections and the list output.
#include <cmath>

#include "AecDivisionLine.h"
#include "AecDivisionLineImp.h"
#include "DivisionLineGeometry.h"
#include "LineListing.h"
#include "Qx/WorldDrawUtil.h"
#include "SavedTraits.h"
#include "acgi.h"
#include "acutads.h"

namespace {

// The list calls a segment straight below this bulge.
constexpr double kListStraightBulge = 1e-6;

bool HasVertices(const AcDbPolyline* polyline)
{
    return polyline != nullptr && polyline->numVerts() > 0;
}

}  // namespace

Adesk::Boolean AecDivisionLine::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    Imp& imp = *m_imp;
    if (worldDraw == nullptr || worldDraw->regenAbort())
        return Adesk::kTrue;
    if ((imp.drawOptions & kDrawBoundary) == kDrawBoundary) {
        imp.EnsurePolylines();
        if (HasVertices(imp.boundaryPolyline)) {
            AcGiSubEntityTraits& traits = worldDraw->subEntityTraits();
            SavedTraits saved(traits);
            imp.display.ApplyBoundaryStyle(traits, database());
            const bool aborted = Qx::WorldDrawUtil::DrawPolyline(worldDraw, imp.boundaryPolyline);
            saved.Restore();
            if (aborted || worldDraw->regenAbort())
                return Adesk::kTrue;
        }
    }
    if ((imp.drawOptions & kDrawCenterLine) == kDrawCenterLine) {
        imp.EnsurePolylines();
        Qx::WorldDrawUtil::DrawPolyline(worldDraw, imp.centerPolyline);
    }
    return Adesk::kTrue;
}

// A boundary without corners (a line of no length) is not exploded.
Acad::ErrorStatus AecDivisionLine::subExplode(AcDbVoidPtrArray& entitySet) const
{
    assertReadEnabled();
    Imp& imp = *m_imp;
    imp.EnsurePolylines();
    if ((imp.drawOptions & kDrawBoundary) == kDrawBoundary && HasVertices(imp.boundaryPolyline)) {
        const Acad::ErrorStatus es =
            LinePolylines::AppendExplodedCopy(*imp.boundaryPolyline, *this, entitySet, [&](AcDbEntity& boundary) {
                imp.display.ApplyBoundaryStyle(boundary, database());
            });
        if (es != Acad::eOk)
            return es;
    }
    if ((imp.drawOptions & kDrawCenterLine) == kDrawCenterLine && imp.centerPolyline != nullptr)
        return LinePolylines::AppendExplodedCopy(*imp.centerPolyline, *this, entitySet);
    return Acad::eOk;
}

Acad::ErrorStatus AecDivisionLine::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    AcDbPolyline* boundary = m_imp->BuildBoundaryPolyline();
    if (boundary == nullptr)
        return Acad::eOutOfMemory;
    const Acad::ErrorStatus es = boundary->numVerts() > 0 ? boundary->getGeomExtents(extents) : Acad::eInvalidInput;
    delete boundary;
    return es;
}

QX_DEFINE_LINE_SNAPS_AND_INTERSECTIONS(AecDivisionLine)

void AecDivisionLine::subList() const
{
    assertReadEnabled();
    const Imp& imp = *m_imp;
    const double b = imp.bulge;
    const double chord = LineListing::PrintBasicGeometry(L"\n ***节点线信息*** ", imp.startPoint, imp.endPoint);
    acutPrintf(L"\n  Bulge Value: %.3f", b);
    if (std::fabs(b) < kListStraightBulge) {
        acutPrintf(L"\n  Segment Type: Straight Line");
    } else {
        acutPrintf(L"\n  Segment Type: Arc");
        const AcGePoint3d mid = DivisionLineGeometry::DefaultIdentifierPoint(imp.startPoint, imp.endPoint, b);
        acutPrintf(L"\n  Arc Midpoint: (%.3f, %.3f, %.3f)", mid.x, mid.y, mid.z);
        const double h = chord * b * 0.5;
        const double radius = (4.0 * h * h + chord * chord) / (8.0 * std::fabs(h));
        const double included = 4.0 * std::atan(std::fabs(b));
        acutPrintf(L"\n  Arc Radius: %.3f", radius);
        acutPrintf(L"\n  Arc Length: %.3f", included * radius);
        acutPrintf(L"\n  Central Angle: %.3f deg", included * 180.0 / LineListing::kListPi);
    }

    acutPrintf(L"\n[Width and Indent Info]");
    acutPrintf(L"\n  Left Indent: %.3f", imp.indentLeft);
    acutPrintf(L"\n  Right Indent: %.3f", imp.indentRight);
    const double width = imp.indentLeft + imp.indentRight;
    acutPrintf(L"\n  Total Width: %.3f", width);
    // The chord times the width, for arcs too.
    const double area = width * chord;
    if (std::fabs(b) < kListStraightBulge)
        acutPrintf(L"\n  Contour Area: %.3f", area);
    else
        acutPrintf(L"\n  Contour Area: %.3f (arc segment approximate)", area);

    LineListing::PrintJsonSection(imp.json, LineListing::JsonLengths::kShown);

    QxPolylineBasedCurve::subList();
}
