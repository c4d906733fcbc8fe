// AecStructuralLine: a supporting structural member (a beam or a column) under the
// cladding, drawn in plan as a straight centre line, a closed member outline set off by a
// left and a right member width, and two dashed indent lines inside it at the left and
// right indent distances; the difference between width and indent on each side is the
// penetration the list reports. It carries the node (JieDian) and flashing (ShouBian)
// display settings and three opaque JSON blocks like the division line.
#pragma once

#include <memory>

#include "AcString.h"
#include "LayoutLineMembers.h"
#include "data/DataNodeRoot.h"
#include "geometry/QxPolylineBasedCurve.h"

// What the member is. Any value other than kStructuralBeam lists as a column.
enum StructuralMemberType : Adesk::Int32 {
    kStructuralBeam = 0,
    kStructuralColumn = 1,
};

// Which parts of a structural line are drawn and exploded (bit flags).
enum StructuralDrawOptions : Adesk::Int32 {
    kStructuralDrawCenterLine = 1,
    kStructuralDrawMemberBoundary = 2,
    kStructuralDrawIndentLines = 4,
};

class AecStructuralLine : public QxPolylineBasedCurve, public DataNodeRoot {
public:
    ACRX_DECLARE_MEMBERS(AecStructuralLine);

    static constexpr Adesk::Int32 kVersion_1 = 1;
    static constexpr Adesk::Int32 kCurrentVersion = kVersion_1;

    AecStructuralLine();
    ~AecStructuralLine() override;
    AecStructuralLine(const AecStructuralLine&) = delete;
    AecStructuralLine& operator=(const AecStructuralLine&) = delete;

    // Start and end, the line held between 5.0 and 512000.0 long.
    QX_DECLARE_LINE_POINT_ACCESSORS()

    // Stored as given.
    StructuralMemberType GetMemberType() const;
    Acad::ErrorStatus SetMemberType(StructuralMemberType type);

    // Widths and indents on each side of start -> end. Any finite value, nothing clamped:
    // an indent wider than its member width puts the indent line outside the outline.
    // eInvalidInput for non-finite values.
    double GetMemberWidthLeft() const;
    Acad::ErrorStatus SetMemberWidthLeft(double width);
    double GetMemberWidthRight() const;
    Acad::ErrorStatus SetMemberWidthRight(double width);
    double GetIndentLeft() const;
    Acad::ErrorStatus SetIndentLeft(double indent);
    double GetIndentRight() const;
    Acad::ErrorStatus SetIndentRight(double indent);

    StructuralDrawOptions GetDrawOptions() const;
    Acad::ErrorStatus SetDrawOptions(StructuralDrawOptions options);
    // True when every bit of option is set.
    bool IsDrawOptionEnabled(StructuralDrawOptions option) const;

    // The JieDian/ShouBian layer names and colour indices and the three JSON blocks.
    QX_DECLARE_LINE_SETTINGS_ACCESSORS()

    // New polylines in no database, owned by the caller: the open centre line from start
    // to end; the closed member outline P0 P1 P2 P3; the left indent line P0 -> P3 and the
    // right one P1 -> P2 of the indent corners. Each is empty when the line has no length.
    AcDbPolyline* CreateCenterPolyline() const;
    AcDbPolyline* CreateMemberBoundaryPolyline() const;
    AcDbPolyline* CreateIndentLineLeft() const;
    AcDbPolyline* CreateIndentLineRight() const;

    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;

    // The centre polyline, rebuilt from start and end when a change made it stale.
    const AcDbPolyline* GetCurveBaseConstPolyline() const override;

protected:
    // The member outline (JieDian boundary style), the two indent lines (ShouBian line
    // style, dashed), then the centre line.
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    void subList() const override;
    // Three grips in the grip-data form: start, end and a move grip at the middle; the
    // point-array forms are refused so that the host uses these.
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
    // A mirror swaps the widths and the indents so that the outline and the indent lines
    // are the mirror image of the old ones.
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    // The drawn polylines, in the order and styles they are drawn in.
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;
    // The box of the member outline and the indent lines, whatever the draw options;
    // eInvalidInput for a line without length.
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
    // Copies the edited centre polyline back into start and end.
    void OnEndModifyPolyline() override;

private:
    struct Imp;
    std::unique_ptr<Imp> m_imp;
};
