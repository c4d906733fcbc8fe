// AecOverlapLine: the lap between two neighbouring sheets: a straight line with an overlap
// width on its left and on its right, drawn as a centre line and the two long edges of
// the overlap strip (the covered edge dashed, the covering edge continuous) and, when
// asked, a mark saying which sheet lies on top. It carries the node (JieDian) and
// flashing (ShouBian) display settings and three opaque JSON blocks like the division line.
#pragma once

#include <memory>

#include "AcString.h"
#include "LayoutLineMembers.h"
#include "data/DataNodeRoot.h"
#include "geometry/QxPolylineBasedCurve.h"

// Which sheet covers the other. Any value other than LeftOverRight behaves as RightOverLeft.
enum OverlapDirection : Adesk::Int32 {
    LeftOverRight = 0,
    RightOverLeft = 1,
};

// Which parts of an overlap line are drawn and exploded (bit flags).
enum OverlapDrawOptions : Adesk::Int32 {
    kOverlapDrawCenterLine = 1,
    kOverlapDrawBoundary = 2,
    kOverlapDrawDirection = 8,
};

class AecOverlapLine : public QxPolylineBasedCurve, public DataNodeRoot {
public:
    ACRX_DECLARE_MEMBERS(AecOverlapLine);

    static constexpr Adesk::Int32 kVersion_1 = 1;
    static constexpr Adesk::Int32 kCurrentVersion = kVersion_1;

    AecOverlapLine();
    ~AecOverlapLine() override;
    AecOverlapLine(const AecOverlapLine&) = delete;
    AecOverlapLine& operator=(const AecOverlapLine&) = delete;

    // Start and end, the line held between 5.0 and 512000.0 long.
    QX_DECLARE_LINE_POINT_ACCESSORS()

    // The strip's width on each side of start -> end. Any finite value (negative ones are
    // kept); eInvalidInput for non-finite ones.
    double GetOverlapLeft() const;
    Acad::ErrorStatus SetOverlapLeft(double width);
    double GetOverlapRight() const;
    Acad::ErrorStatus SetOverlapRight(double width);

    // Stored as given.
    OverlapDirection GetOverlapDirection() const;
    Acad::ErrorStatus SetOverlapDirection(OverlapDirection direction);

    OverlapDrawOptions GetDrawOptions() const;
    Acad::ErrorStatus SetDrawOptions(OverlapDrawOptions options);
    // True when every bit of option is set.
    bool IsDrawOptionEnabled(OverlapDrawOptions option) const;

    // The JieDian/ShouBian layer names and colour indices and the three JSON blocks.
    QX_DECLARE_LINE_SETTINGS_ACCESSORS()

    // New polylines in no database, owned by the caller: the open centre line from start
    // to end, and the closed strip outline P0 P1 P2 P3 (empty when the line has no length).
    AcDbPolyline* CreateCenterPolyline() const;
    AcDbPolyline* CreateOverlapBoundaryPolyline() const;

    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;

    // The centre polyline, as last rebuilt.
    const AcDbPolyline* GetCurveBaseConstPolyline() const override;

protected:
    // The centre line, the two strip edges (the covered one first), then the direction mark.
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
    // A mirror swaps the widths so that the strip is the mirror image of the old one.
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    // The centre line, then the closed strip outline in the JieDian boundary style.
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;
    // The strip's extents with the direction mark when it is drawn; eInvalidInput for a
    // line without length.
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
