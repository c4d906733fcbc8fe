// AecDivisionLine: what the host sees of the line: its draw (the boundary on the JieDian
// boundary layer and colour, then the centre line), explode, extents, osnaps,
// intersections and the list output.
#include <cmath>

#include "AecDivisionLine.h"
#include "AecDivisionLineImp.h"
#include "DivisionLineGeometry.h"
#include "Qx/WorldDrawUtil.h"
#include "acgi.h"
#include "acutads.h"
#include "data/PackedColor.h"

namespace {

// The list prints angles with this rounded pi, as it always has.
constexpr double kListPi = 3.14159265359;
// The list calls a segment straight below this bulge.
constexpr double kListStraightBulge = 1e-6;
// Below this chord the list takes the X axis as the direction.
constexpr double kListChordTolerance = 1e-5;

// Every trait a draw can change, taken on construction and put back by Restore.
class SavedTraits {
public:
    explicit SavedTraits(AcGiSubEntityTraits& traits)
        : m_traits(traits),
          m_trueColor(traits.trueColor()),
          m_layer(traits.layerId()),
          m_linetype(traits.lineTypeId()),
          m_fill(traits.fillType()),
          m_lineWeight(traits.lineWeight()),
          m_linetypeScale(traits.lineTypeScale()),
          m_thickness(traits.thickness())
    {
    }

    void Restore()
    {
        m_traits.setLayer(m_layer);
        m_traits.setTrueColor(m_trueColor);
        m_traits.setLineType(m_linetype);
        m_traits.setFillType(m_fill);
        m_traits.setLineWeight(m_lineWeight);
        m_traits.setLineTypeScale(m_linetypeScale);
        m_traits.setThickness(m_thickness);
    }

private:
    AcGiSubEntityTraits& m_traits;
    AcCmEntityColor m_trueColor;
    AcDbObjectId m_layer;
    AcDbObjectId m_linetype;
    AcGiFillType m_fill;
    AcDb::LineWeight m_lineWeight;
    double m_linetypeScale;
    double m_thickness;
};

bool HasVertices(const AcDbPolyline* polyline)
{
    return polyline != nullptr && polyline->numVerts() > 0;
}

// A copy of the polyline with the line's properties, for explode.
Acad::ErrorStatus ClonePolyline(const AcDbPolyline* polyline, const AcDbEntity* from, AcDbEntity*& copy)
{
    copy = nullptr;
    AcRxObject* object = polyline->clone();
    if (object == nullptr)
        return Acad::eOutOfMemory;
    copy = AcDbEntity::cast(object);
    if (copy == nullptr) {
        delete object;
        return Acad::eWrongObjectType;
    }
    copy->setPropertiesFrom(from);
    return Acad::eOk;
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
            const AcDbObjectId layer = imp.FindLayer(imp.jieDianBoundaryLayerName);
            if (!layer.isNull())
                traits.setLayer(layer);
            if (imp.jieDianBoundaryColorIndex != 0)
                traits.setTrueColor(PackedColor::FromLegacyInt(imp.jieDianBoundaryColorIndex).ToAcCmEntityColor());
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
        AcDbEntity* boundary = nullptr;
        const Acad::ErrorStatus es = ClonePolyline(imp.boundaryPolyline, this, boundary);
        if (es != Acad::eOk)
            return es;
        const AcDbObjectId layer = imp.FindLayer(imp.jieDianBoundaryLayerName);
        if (!layer.isNull())
            boundary->setLayer(layer);
        if (imp.jieDianBoundaryColorIndex != 0)
            boundary->setColorIndex(static_cast<Adesk::UInt16>(imp.jieDianBoundaryColorIndex));
        entitySet.append(boundary);
    }
    if ((imp.drawOptions & kDrawCenterLine) == kDrawCenterLine && imp.centerPolyline != nullptr) {
        AcDbEntity* centre = nullptr;
        const Acad::ErrorStatus es = ClonePolyline(imp.centerPolyline, this, centre);
        if (es != Acad::eOk)
            return es;
        entitySet.append(centre);
    }
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

Acad::ErrorStatus AecDivisionLine::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                                     const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                     const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                                     AcDbIntArray& geomIds) const
{
    assertReadEnabled();
    return m_imp->QueryShownPolylines([&](const AcDbPolyline& polyline) {
        return polyline.getOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints,
                                       geomIds);
    });
}

Acad::ErrorStatus AecDivisionLine::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                                     const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                     const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                                     AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const
{
    assertReadEnabled();
    return m_imp->QueryShownPolylines([&](const AcDbPolyline& polyline) {
        return polyline.getOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints,
                                       geomIds, insertionMat);
    });
}

Acad::ErrorStatus AecDivisionLine::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                                    AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker,
                                                    Adesk::GsMarker otherGsMarker) const
{
    assertReadEnabled();
    return m_imp->QueryShownPolylines([&](const AcDbPolyline& polyline) {
        return polyline.intersectWith(pEnt, intType, points, thisGsMarker, otherGsMarker);
    });
}

Acad::ErrorStatus AecDivisionLine::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                                    const AcGePlane& projPlane, AcGePoint3dArray& points,
                                                    Adesk::GsMarker thisGsMarker, Adesk::GsMarker otherGsMarker) const
{
    assertReadEnabled();
    return m_imp->QueryShownPolylines([&](const AcDbPolyline& polyline) {
        return polyline.intersectWith(pEnt, intType, projPlane, points, thisGsMarker, otherGsMarker);
    });
}

void AecDivisionLine::subList() const
{
    assertReadEnabled();
    const Imp& imp = *m_imp;
    const AcGePoint3d& s = imp.startPoint;
    const AcGePoint3d& e = imp.endPoint;
    const double b = imp.bulge;
    const double chord = s.distanceTo(e);

    acutPrintf(L"\n ***节点线信息*** ");
    acutPrintf(L"\n[Basic Geometry Info]");
    acutPrintf(L"\n  Start Point: (%.3f, %.3f, %.3f)", s.x, s.y, s.z);
    acutPrintf(L"\n  End Point: (%.3f, %.3f, %.3f)", e.x, e.y, e.z);
    acutPrintf(L"\n  Segment Length: %.3f", chord);
    const AcGeVector3d direction = chord < kListChordTolerance ? AcGeVector3d::kXAxis : (e - s) / chord;
    double angle = std::atan2(direction.y, direction.x) * 180.0 / kListPi;
    if (angle < 0.0)
        angle += 360.0;
    acutPrintf(L"\n  Direction Angle: %.3f deg", angle);
    acutPrintf(L"\n  Bulge Value: %.3f", b);
    if (std::fabs(b) < kListStraightBulge) {
        acutPrintf(L"\n  Segment Type: Straight Line");
    } else {
        acutPrintf(L"\n  Segment Type: Arc");
        const AcGePoint3d mid = DivisionLineGeometry::DefaultIdentifierPoint(s, e, b);
        acutPrintf(L"\n  Arc Midpoint: (%.3f, %.3f, %.3f)", mid.x, mid.y, mid.z);
        const double h = chord * b * 0.5;
        const double radius = (4.0 * h * h + chord * chord) / (8.0 * std::fabs(h));
        const double included = 4.0 * std::atan(std::fabs(b));
        acutPrintf(L"\n  Arc Radius: %.3f", radius);
        acutPrintf(L"\n  Arc Length: %.3f", included * radius);
        acutPrintf(L"\n  Central Angle: %.3f deg", included * 180.0 / kListPi);
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

    acutPrintf(L"\n[JSON Data Info]");
    if (imp.nodeBasicJson.isEmpty()) {
        acutPrintf(L"\n  节点基本信息: [无数据]");
    } else {
        acutPrintf(L"\n  节点基本信息: %s", imp.nodeBasicJson.kwszPtr());
        acutPrintf(L"\n  基本信息长度: %d 字符", imp.nodeBasicJson.length());
    }
    if (imp.shouBianJson.isEmpty()) {
        acutPrintf(L"\n  收边信息: [无数据]");
    } else {
        acutPrintf(L"\n  收边信息: %s", imp.shouBianJson.kwszPtr());
        acutPrintf(L"\n  收边信息长度: %d 字符", imp.shouBianJson.length());
    }
    if (imp.accessoryJson.isEmpty()) {
        acutPrintf(L"\n  辅配件信息: [无数据]");
    } else {
        acutPrintf(L"\n  辅配件信息: %s", imp.accessoryJson.kwszPtr());
        acutPrintf(L"\n  辅配件信息长度: %d 字符", imp.accessoryJson.length());
    }

    QxPolylineBasedCurve::subList();
}
