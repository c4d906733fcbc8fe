// AecRectOpening: a rectangular hole in the cladding, placed by an anchor point (one of
// nine points of the rectangle), an X direction, a width and a height. Its rectangle
// answers the curve questions; it draws the rectangle, a title below the bottom edge and,
// when asked, width and height dimensions. The title lives in the node "RectOpeningNode"
// of its data tree; the placement is filed as a typed-array record.
#pragma once

#include <memory>

#include "AcString.h"
#include "data/DataNodeRoot.h"
#include "geometry/QxPolylineBasedCurve.h"
#include "geometry/TextBaseLabel.h"

class AecRectOpening : public QxPolylineBasedCurve, public DataNodeRoot {
public:
    ACRX_DECLARE_MEMBERS(AecRectOpening);

    static constexpr Adesk::Int32 kVersion_1 = 1;
    static constexpr Adesk::Int32 kCurrentVersion = kVersion_1;
    // No edge grip may leave the opening narrower or lower than this.
    static constexpr double kMinimumSize = 100.0;

    // Which point of the rectangle the anchor point is (list names in brackets).
    enum AnchorPosType : Adesk::Int32 {
        kTopLeft = 0,       // 左上
        kMiddleLeft = 1,    // 左中
        kBottomLeft = 2,    // 左下
        kTopCenter = 3,     // 上中
        kCenter = 4,        // 中心
        kBottomCenter = 5,  // 下中
        kTopRight = 6,      // 右上
        kMiddleRight = 7,   // 右中
        kBottomRight = 8,   // 右下
    };

    // A 1000 x 1000 square anchored at its bottom-left corner on the origin, titled "洞口"
    // (height 150, shown), in the working drawing's "_Standard" styles or its current ones.
    AecRectOpening();
    ~AecRectOpening() override;
    AecRectOpening(const AecRectOpening&) = delete;
    AecRectOpening& operator=(const AecRectOpening&) = delete;

    // Sizes must be positive and finite: std::invalid_argument ("Width must be positive",
    // "Height must be positive", or "... must be finite"), with nothing changed.
    void Set(const AcGePoint3d& anchor, double width, double height);
    void SetWidth(double width);
    void SetHeight(double height);
    double GetWidth() const;
    double GetHeight() const;

    // eInvalidInput, with nothing changed, for a non-finite point.
    Acad::ErrorStatus SetAnchorPoint(const AcGePoint3d& anchor);
    AcGePoint3d GetAnchorPoint() const;
    // The anchor moves to the new type's point of the rectangle, so the rectangle stays.
    void SetAnchorPosType(AnchorPosType type);
    AnchorPosType GetAnchorPosType() const;
    // The width direction; only its XY part counts. eInvalidInput for a non-finite
    // direction or one without an XY part.
    Acad::ErrorStatus SetDirX(const AcGeVector3d& dirX);
    AcGeVector3d GetDirX() const;
    AcGePoint3d GetBottomLeftPoint() const;

    void SetIsShowDim(bool show);
    bool IsShowDim() const;
    // The style of the title and the dimension texts, and the style of the dimensions. A
    // style the drawing does not have falls back to its "_Standard" or current one.
    AcDbObjectId GetTextStyleId() const;
    void SetTextStyleId(const AcDbObjectId& styleId);
    AcDbObjectId GetDimStyleId() const;
    void SetDimStyleId(const AcDbObjectId& styleId);

    // The title: its text, height and visibility are set here; its position (one text
    // height below the bottom edge) and direction (the X direction) follow the rectangle.
    TextBaseLabel GetTitleLabel() const;
    void SetTitleText(const AcString& text);
    void SetTitleVisible(bool visible);
    // eInvalidInput, with nothing changed, unless finite and positive.
    Acad::ErrorStatus SetTitleHeight(double height);

    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;

    // The closed rectangle, corners counter-clockwise from the bottom-left one.
    const AcDbPolyline* GetCurveBaseConstPolyline() const override;

protected:
    // The title label's keys in the node "RectOpeningNode" (added when missing).
    void SaveToNode() override;
    void LoadFromNode() override;

    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    void subList() const override;
    // The rectangle as a plain closed polyline, then exactly the annotations the opening
    // draws (title, dimension lines and texts) as plain entities.
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    // Grip-data form: the whole-opening grip at the centre, then one grip at the middle of
    // each edge; the point-array forms are refused so that the host uses these.
    Acad::ErrorStatus subGetGripPoints(AcDbGripDataPtrArray& grips, const double curViewUnitSize, const int gripSize,
                                       const AcGeVector3d& curViewDir, const int bitflags) const override;
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbVoidPtrArray& gripAppData, const AcGeVector3d& offset,
                                          const int bitflags) override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    void subGripStatus(const AcDb::GripStat status) override;

    AcDbPolyline* GetCurveBasePolyline() override;
    // Takes the edited rectangle back: anchor from its start point, width from corners 0-1,
    // height from corners 1-3 (the diagonal), X direction from corners 0-1.
    void OnEndModifyPolyline() override;

private:
    struct Imp;
    std::unique_ptr<Imp> m_imp;
};
