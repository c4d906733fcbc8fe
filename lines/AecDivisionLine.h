// AecDivisionLine: the division (node) line between layout zones: one straight or arc
// segment, drawn as a centre line and a closed outline set off by a left and a right
// indent, carrying the node (JieDian) and flashing (ShouBian) display settings and three
// opaque JSON blocks for the layout application.
#pragma once

#include <memory>

#include "AcString.h"
#include "LayoutLineMembers.h"
#include "data/DataNodeRoot.h"
#include "geometry/QxPolylineBasedCurve.h"

// Which parts of a division line are drawn and exploded (bit flags).
enum DrawOptions : Adesk::Int32 {
    kDrawCenterLine = 1,
    kDrawBoundary = 2,
};

class AecDivisionLine : public QxPolylineBasedCurve, public DataNodeRoot {
public:
    ACRX_DECLARE_MEMBERS(AecDivisionLine);

    static constexpr Adesk::Int32 kVersion_1 = 1;
    static constexpr Adesk::Int32 kCurrentVersion = kVersion_1;

    AecDivisionLine();
    ~AecDivisionLine() override;
    AecDivisionLine(const AecDivisionLine&) = delete;
    AecDivisionLine& operator=(const AecDivisionLine&) = delete;

    // Start and end, the line held between 5.0 and 512000.0 long.
    QX_DECLARE_LINE_POINT_ACCESSORS()

    // Limited to [-1000, 1000]; eInvalidInput for NaN.
    double GetBulge() const;
    Acad::ErrorStatus SetBulge(double bulge);

    // Any finite value (negative indents are kept); eInvalidInput for non-finite ones.
    double GetIndentLeft() const;
    Acad::ErrorStatus SetIndentLeft(double indent);
    double GetIndentRight() const;
    Acad::ErrorStatus SetIndentRight(double indent);

    // Where the boundary's label goes; Qx::GePointUtil::kUninitializedPoint until the line
    // places it (at its middle) or it is set.
    AcGePoint3d GetBoundaryIdentifierPoint() const;
    Acad::ErrorStatus SetBoundaryIdentifierPoint(const AcGePoint3d& pt);

    DrawOptions GetDrawOptions() const;
    Acad::ErrorStatus SetDrawOptions(DrawOptions options);
    // True when every bit of option is set.
    bool IsDrawOptionEnabled(DrawOptions option) const;

    // The JieDian/ShouBian layer names and colour indices and the three JSON blocks.
    QX_DECLARE_LINE_SETTINGS_ACCESSORS()

    // New polylines in no database, owned by the caller: the open centre line (vertex 0 the
    // start with the bulge, vertex 1 the end), and the closed outline (empty when the line
    // has no length).
    AcDbPolyline* CreateCenterPolyline() const;
    AcDbPolyline* CreateBoundaryPolyline() const;

    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;

    // The pieces of the centre line, as host polylines owned by the caller.
    Acad::ErrorStatus getSplitCurves(const AcGePoint3dArray& points, AcDbVoidPtrArray& curveSegments) const override;
    Acad::ErrorStatus getSplitCurves(const AcGeDoubleArray& params, AcDbVoidPtrArray& curveSegments) const override;

    // The centre polyline, rebuilt from start, end and bulge when a change made it stale.
    const AcDbPolyline* GetCurveBaseConstPolyline() const override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    void subList() const override;
    // Five grips in the grip-data form: start, end, the segment's middle, the boundary
    // identifier and a move grip; the point-array forms are refused so that the host uses these.
    Acad::ErrorStatus subGetGripPoints(AcDbGripDataPtrArray& grips, const double curViewUnitSize, const int gripSize,
                                       const AcGeVector3d& curViewDir, const int bitflags) const override;
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbVoidPtrArray& gripAppData, const AcGeVector3d& offset,
                                          const int bitflags) override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    // Start (0) and end (1).
    Acad::ErrorStatus subGetStretchPoints(AcGePoint3dArray& stretchPoints) const override;
    Acad::ErrorStatus subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    // A mirror swaps the indents so that the outline is the mirror image of the old one.
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;
    // The outline's extents, whatever the draw options; eInvalidInput without an outline.
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    // Osnaps and intersections come from the polylines the draw options show.
    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const override;
    Acad::ErrorStatus subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, AcGePoint3dArray& points,
                                       Adesk::GsMarker thisGsMarker = 0,
                                       Adesk::GsMarker otherGsMarker = 0) const override;
    Acad::ErrorStatus subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, const AcGePlane& projPlane,
                                       AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker = 0,
                                       Adesk::GsMarker otherGsMarker = 0) const override;
    void subGripStatus(const AcDb::GripStat status) override;

    AcDbPolyline* GetCurveBasePolyline() override;
    void OnBeginModifyPolyline() override;
    // Copies the edited centre polyline back into start, end and bulge.
    void OnEndModifyPolyline() override;

private:
    struct Imp;
    std::unique_ptr<Imp> m_imp;
};
