// AecSteelMember: a straight steel beam (钢梁) or column (钢柱) of the supporting
// structure, drawn as its axis, the outline of its band and a width text. A new member runs
// from the origin 1000 along X, 100 wide on each side, a beam showing axis and outline.
#pragma once

#include <memory>

#include "geometry/QxPolylineBasedCurve.h"

enum SteelMemberKind : Adesk::Int32 {
    kSteelBeam = 0,
    kSteelColumn = 1,
};

// Which parts a member draws (bit flags); a member always draws at least its outline.
enum SteelMemberDisplayOptions : Adesk::Int32 {
    kSteelDisplayAxis = 1,
    kSteelDisplayOutline = 2,
    // The band's two diagonals, drawn first: the cross that marks a member cut in section.
    kSteelDisplaySectionCross = 4,
    kSteelDisplayNoWidthText = 8,
};

class AecSteelMember : public QxPolylineBasedCurve {
public:
    ACRX_DECLARE_MEMBERS(AecSteelMember);

    static constexpr Adesk::Int32 kCurrentVersion = 1;
    static constexpr double kMinimumWidth = 1.0;
    static constexpr double kMaximumWidth = 2000.0;

    AecSteelMember();
    ~AecSteelMember() override;
    AecSteelMember(const AecSteelMember&) = delete;
    AecSteelMember& operator=(const AecSteelMember&) = delete;

    // The axis's ends, kept in the plan (z 0); eInvalidInput, with nothing changed, for
    // coordinates that are not finite.
    Acad::ErrorStatus SetPoints(const AcGePoint3d& start, const AcGePoint3d& end);
    Acad::ErrorStatus SetStartPoint(const AcGePoint3d& start);
    Acad::ErrorStatus SetEndPoint(const AcGePoint3d& end);
    AcGePoint3d GetStartPoint() const;
    AcGePoint3d GetEndPoint() const;

    // Widths never fail: one that is not finite becomes 1.0, above 2000.0 becomes 2000.0,
    // below 1.0 becomes 1.0.
    void SetLeftWidth(double width);
    void SetRightWidth(double width);
    void SetWidths(double left, double right);
    // Half of width on each side, each half held to the same limits.
    void SetCenteredWidth(double width);
    double GetLeftWidth() const;
    double GetRightWidth() const;
    double GetTotalWidth() const;

    void SetKind(SteelMemberKind kind);
    SteelMemberKind GetKind() const;

    // Only the low four bits are kept, and the outline is added when neither axis nor
    // outline is asked for.
    void SetDisplayOptions(SteelMemberDisplayOptions options);
    SteelMemberDisplayOptions GetDisplayOptions() const;
    bool IsDisplayOptionEnabled(SteelMemberDisplayOptions option) const;
    static SteelMemberDisplayOptions NormalizeDisplayOptions(Adesk::Int32 options);
    static double NormalizeWidth(double width);

    // New polylines owned by the caller: the axis from start to end, and the closed band,
    // its corners counter-clockwise from the start's right: start and end offset by the
    // right width, then end and start offset by the left width.
    AcDbPolyline* CreateAxisPolyline() const;
    AcDbPolyline* CreateOutlinePolyline() const;
    // "梁宽 300" or "柱宽 300": the total width.
    AcString WidthText() const;

    // Version 1; reading refuses a newer version (eMakeMeProxy) and a record with a value
    // that is not finite (eDwgObjectImproperlyRead), leaving the member as it was.
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;

    // The axis.
    const AcDbPolyline* GetCurveBaseConstPolyline() const override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    void subList() const override;
    Acad::ErrorStatus subGetGripPoints(AcDbGripDataPtrArray& grips, const double curViewUnitSize, const int gripSize,
                                       const AcGeVector3d& curViewDir, const int bitflags) const override;
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbVoidPtrArray& gripAppData, const AcGeVector3d& offset,
                                          const int bitflags) override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    Acad::ErrorStatus subGetStretchPoints(AcGePoint3dArray& stretchPoints) const override;
    Acad::ErrorStatus subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
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
    void OnEndModifyPolyline() override;

private:
    struct Imp;
    std::unique_ptr<Imp> m_imp;
};
