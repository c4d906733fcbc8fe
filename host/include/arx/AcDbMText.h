// AcDbMText: multiline text in a box: a location, a text height, a defined width (0: no
// wrapping), an attachment that says which point of the box the location is, and a
// direction in the plane of its normal. The contents carry the host's formatting codes
// (\P a new paragraph, {...} groups, \f...; and the like); the headless host lays the
// lines out with its fixed font model.
#pragma once

#include "AcDbEntity.h"
#include "acutmem.h"

class ACHOST_API AcDbMText : public AcDbEntity {
    ACRX_DECLARE_MEMBERS(AcDbMText);

public:
    enum AttachmentPoint {
        kTopLeft = 1,
        kTopCenter = 2,
        kTopRight = 3,
        kMiddleLeft = 4,
        kMiddleCenter = 5,
        kMiddleRight = 6,
        kBottomLeft = 7,
        kBottomCenter = 8,
        kBottomRight = 9,
        kBaseLeft = 10,
        kBaseCenter = 11,
        kBaseRight = 12,
        kBaseAlign = 13,
        kBottomAlign = 14,
        kMiddleAlign = 15,
        kTopAlign = 16,
        kBaseFit = 17,
        kBottomFit = 18,
        kMiddleFit = 19,
        kTopFit = 20,
        kBaseMid = 21,
        kBottomMid = 22,
        kMiddleMid = 23,
        kTopMid = 24,
    };
    enum FlowDirection { kLtoR = 1, kRtoL = 2, kTtoB = 3, kBtoT = 4, kByStyle = 5 };

    // Empty contents at the origin: top left, height 0, width 0, normal Z, direction X.
    AcDbMText();
    ~AcDbMText() override;

    AcGePoint3d location() const;
    Acad::ErrorStatus setLocation(const AcGePoint3d& point);
    AcGeVector3d normal() const;
    // eInvalidInput for a zero vector; the direction becomes the x axis of the new
    // normal's object coordinate system.
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);
    // Unit length, in the plane of the normal.
    AcGeVector3d direction() const;
    // Taken into the plane of the normal; eInvalidInput when nothing of it lies there.
    Acad::ErrorStatus setDirection(const AcGeVector3d& direction);
    // The direction's angle from the x axis of the normal's object coordinate system.
    double rotation() const;
    Acad::ErrorStatus setRotation(double rotation);
    // The defined width: lines wrap at it; 0 does not wrap.
    double width() const;
    Acad::ErrorStatus setWidth(double width);
    double textHeight() const;
    Acad::ErrorStatus setTextHeight(double height);
    AcDbObjectId textStyle() const;
    Acad::ErrorStatus setTextStyle(AcDbObjectId style);
    AttachmentPoint attachment() const;
    // Keeps the location and moves the text. The single-line text variants (10 and up)
    // are refused with eInvalidInput.
    Acad::ErrorStatus setAttachment(AttachmentPoint attachment);
    // Keeps the text where it is and moves the location to the new attachment point.
    Acad::ErrorStatus setAttachmentMovingLocation(AttachmentPoint attachment);
    // Kept and filed; the headless host lays every flow out left to right.
    FlowDirection flowDirection() const;
    Acad::ErrorStatus setFlowDirection(FlowDirection flow);
    // 0.25 to 4; the distance between baselines is 5/3 of the text height times it.
    double lineSpacingFactor() const;
    Acad::ErrorStatus setLineSpacingFactor(double factor);

    // Copies the caller frees with acutDelString: the contents with their codes, and the
    // plain text (codes resolved, paragraphs joined by line feeds).
    ACHAR* contents() const;
    Acad::ErrorStatus contents(AcString& text) const;
    ACHAR* text() const;
    // Answers the number of characters stored (a null text stores nothing and answers 0).
    int setContents(const ACHAR* text);

    // The laid-out size: the widest line, and cap height plus line pitch per further line.
    double actualHeight() const;
    double actualWidth() const;
    // Corners of the box (defined width, or actual width when it is 0): top left, top
    // right, bottom left, bottom right.
    Acad::ErrorStatus getBoundingPoints(AcGePoint3dArray& points) const;

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;
    // A text without a style takes the database's current text style.
    void subSetDatabaseDefaults(AcDbDatabase* db) override;

protected:
    // One text primitive per laid-out line.
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    void subList() const override;
    // One grip: the location, which moves the text.
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const override;
    // Uniform scales, rotations, moves and mirrors (a mirror keeps the text readable, as
    // for single-line text); anything else is eCannotScaleNonUniformly.
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    // Each laid-out line becomes a single-line text, left on its baseline.
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;

private:
    AcGePoint3d m_location;
    AcGeVector3d m_normal = AcGeVector3d::kZAxis;
    AcGeVector3d m_direction = AcGeVector3d::kXAxis;
    double m_width = 0.0;
    double m_textHeight = 0.0;
    double m_lineSpacingFactor = 1.0;
    AttachmentPoint m_attachment = kTopLeft;
    FlowDirection m_flowDirection = kLtoR;
    AcString m_contents;
    AcDbObjectId m_textStyle;
};
