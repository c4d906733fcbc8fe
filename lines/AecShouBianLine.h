// AecShouBianLine: a flashing (edge trim, 收边线) line of a cladding layout: a polyline of
// vertices with bulges, drawn as its centre line, as the outline of the band between its
// left and right indents, and with a label naming the flashing item, whose text comes from
// the flashing information ("收边信息", JSON). Drawn by the user on its own (standalone) or
// generated from a division line, whose id it keeps.
#pragma once

#include <memory>

#include "AcString.h"
#include "data/DataNodeRoot.h"
#include "geometry/QxPolylineBasedCurve.h"
#include "geometry/TextLabel.h"

enum ShouBianDrawOptions : Adesk::Int32 {
    CenterLine = 1,
    BoundaryLine = 2,
    TextLabel = 4,
};

class AecShouBianLine : public QxPolylineBasedCurve, public DataNodeRoot {
public:
    ACRX_DECLARE_MEMBERS(AecShouBianLine);

    static constexpr Adesk::Int32 kVersion_1 = 1;
    // Version 2 files the closed flag.
    static constexpr Adesk::Int32 kCurrentVersion = 2;
    // AppendVertex refuses the 10001st vertex.
    static constexpr int kMaxVertices = 10000;
    // Closer than this (in the plan) two vertices are one.
    static constexpr double kVertexTolerance = 1e-5;
    // Indents below this are no indent; others lie in [1, 500].
    static constexpr double kNoIndent = 1e-5;
    static constexpr double kMinIndent = 1.0;
    static constexpr double kMaxIndent = 500.0;
    // A bulge beyond this is an arc of almost a full turn on a vanishing chord.
    static constexpr double kMaxBulge = 1000.0;

    AecShouBianLine();
    ~AecShouBianLine() override;
    AecShouBianLine(const AecShouBianLine&) = delete;
    AecShouBianLine& operator=(const AecShouBianLine&) = delete;

    // ---- geometry: every failed edit leaves the line as it was (3 invalid input, 153
    // a vertex on its neighbour)

    Acad::ErrorStatus AppendVertex(const AcGePoint3d& point, double bulge = 0.0);
    Acad::ErrorStatus InsertVertex(int index, const AcGePoint3d& point);
    Acad::ErrorStatus RemoveVertex(int index);
    Acad::ErrorStatus SetVertexAt(int index, const AcGePoint3d& point);
    Acad::ErrorStatus GetVertexAt(int index, AcGePoint3d& point) const;
    int GetVertexCount() const;
    // Bulge i belongs to the segment from vertex i; an open line has count - 1 segments.
    Acad::ErrorStatus SetBulgeAt(int index, double bulge);
    Acad::ErrorStatus GetBulgeAt(int index, double& bulge) const;
    Acad::ErrorStatus SetClosed(bool closed);
    bool IsClosed() const;
    // Two vertices: start and end.
    Acad::ErrorStatus SetPoints(const AcGePoint3d& start, const AcGePoint3d& end);
    Acad::ErrorStatus SetFromPolyline(const AcDbPolyline* polyline);
    // The origin without vertices.
    AcGePoint3d GetStartPoint() const;
    AcGePoint3d GetEndPoint() const;

    // New polylines owned by the caller: the centre line, and the outline: the left and
    // right offsets of the centre line (left: to the left of travel), an open line's two
    // joined into one closed outline by straight end caps. eOutOfMemory (6) when an offset
    // that was asked for yields nothing.
    AcDbPolyline* CreateCenterPolyline() const;
    Acad::ErrorStatus CreateBoundaryPolylines(AcArray<void*>& out) const;

    // ---- indents and scene

    // 0 (or anything below 1e-5: no indent), or 1 to 500; eOutOfRange (151) otherwise.
    Acad::ErrorStatus SetIndentLeft(double indent);
    Acad::ErrorStatus SetIndentRight(double indent);
    double GetIndentLeft() const;
    double GetIndentRight() const;
    void SetStandalone(bool standalone);
    bool IsStandalone() const;
    void SetSourceDivisionLineId(const AcDbObjectId& id);
    AcDbObjectId GetSourceDivisionLineId() const;
    // eInvalidInput unless finite; z is kept 0.
    Acad::ErrorStatus SetBoundaryIdentifierPoint(const AcGePoint3d& point);
    AcGePoint3d GetBoundaryIdentifierPoint() const;

    // ---- appearance

    void SetDrawOptions(ShouBianDrawOptions options);
    ShouBianDrawOptions GetDrawOptions() const;
    bool IsDrawOptionEnabled(ShouBianDrawOptions options) const;
    // 0 is the entity's own colour; outside 0..256 stores 0.
    void SetLineColorIndex(int index);
    int GetLineColorIndex() const;
    void SetBoundaryColorIndex(int index);
    int GetBoundaryColorIndex() const;
    void SetTextColorIndex(int index);
    int GetTextColorIndex() const;
    void SetLineLayerName(const wchar_t* name);
    AcString GetLineLayerName() const;
    void SetTextLayerName(const wchar_t* name);
    AcString GetTextLayerName() const;
    int GetTextLabelCount() const;
    Acad::ErrorStatus GetTextLabelAt(int index, DbxPanel::TextLabel& label) const;
    // The label keeps the text the flashing information gives it and is placed along the
    // line: at the middle of its length, beyond the left indent, reading along the line.
    Acad::ErrorStatus SetTextLabelAt(int index, const DbxPanel::TextLabel& label);
    void SetShouBianJsonStr(const wchar_t* json);
    AcString GetShouBianJsonStr() const;
    // "number name" from the information's "baseInfo", either alone, or "收边线".
    static AcString LabelTextFromJson(const AcString& json);

    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;

    const AcDbPolyline* GetCurveBaseConstPolyline() const override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    void subList() const override;
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
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

    AcDbPolyline* GetCurveBasePolyline() override;
    void OnBeginModifyPolyline() override;
    void OnEndModifyPolyline() override;

public:
    struct Imp;

private:
    std::unique_ptr<Imp> m_imp;
};
