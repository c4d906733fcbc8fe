// AcDbText: single-line text. Its position is the start of the baseline; for every
// justification but left, aligned and fit on the baseline the alignment point is the one
// that counts, and the position follows from it (adjustAlignment, or on close). The
// headless host measures text with its fixed font model (see AcGiTextStyle::extents).
#pragma once

#include "AcDbEntity.h"
#include "acutmem.h"

class ACHOST_API AcDbText : public AcDbEntity {
    ACRX_DECLARE_MEMBERS(AcDbText);

public:
    // Empty text at the origin: left on the baseline, height 0, width factor 1, normal Z.
    AcDbText();
    AcDbText(const AcGePoint3d& position, const ACHAR* text, AcDbObjectId style = AcDbObjectId::kNull,
             double height = 0.0, double rotation = 0.0);
    ~AcDbText() override;

    AcGePoint3d position() const;
    Acad::ErrorStatus setPosition(const AcGePoint3d& position);
    AcGePoint3d alignmentPoint() const;
    Acad::ErrorStatus setAlignmentPoint(const AcGePoint3d& point);
    // Left on the baseline: the position is the insertion point.
    Adesk::Boolean isDefaultAlignment() const;
    AcGeVector3d normal() const;
    // eInvalidInput for a zero vector; stored at unit length.
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);
    double thickness() const;
    Acad::ErrorStatus setThickness(double thickness);
    // Radians, measured from the vertical.
    double oblique() const;
    Acad::ErrorStatus setOblique(double oblique);
    // Radians from the x axis of the normal's object coordinate system.
    double rotation() const;
    Acad::ErrorStatus setRotation(double rotation);
    double height() const;
    // eInvalidInput for a negative or non-finite height.
    Acad::ErrorStatus setHeight(double height);
    double widthFactor() const;
    // eInvalidInput unless finite and positive.
    Acad::ErrorStatus setWidthFactor(double widthFactor);
    // Drawn backwards (mirrored in X) or upside down (mirrored in Y).
    Adesk::Boolean isMirroredInX() const;
    Acad::ErrorStatus mirrorInX(Adesk::Boolean mirror);
    Adesk::Boolean isMirroredInY() const;
    Acad::ErrorStatus mirrorInY(Adesk::Boolean mirror);
    AcDb::TextHorzMode horizontalMode() const;
    Acad::ErrorStatus setHorizontalMode(AcDb::TextHorzMode mode);
    AcDb::TextVertMode verticalMode() const;
    Acad::ErrorStatus setVerticalMode(AcDb::TextVertMode mode);

    // A copy the caller frees with acutDelString.
    ACHAR* textString() const;
    Acad::ErrorStatus textString(AcString& text) const;
    const ACHAR* textStringConst() const;
    // A null text is refused with eInvalidInput.
    Acad::ErrorStatus setTextString(const ACHAR* text);
    AcDbObjectId textStyle() const;
    Acad::ErrorStatus setTextStyle(AcDbObjectId style);

    // The corners of the text box (cap height, no descent): top left, top right, bottom
    // left, bottom right.
    Acad::ErrorStatus getBoundingPoints(AcGePoint3dArray& points) const;
    // Recomputes the derived point from the authoritative one: the position from the
    // alignment point, or for aligned and fit text the height or width factor and the
    // rotation from the two points. Changes nothing for an empty text of those modes.
    Acad::ErrorStatus adjustAlignment(const AcDbDatabase* db = nullptr);

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;
    // A text without a style takes the database's current text style.
    void subSetDatabaseDefaults(AcDbDatabase* db) override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    void subList() const override;
    // Grips: the position, and the alignment point when it is not the default alignment.
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    // Insertion snaps the position (and the alignment point); Node is not a text snap.
    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const override;
    // Moves, turns and scales the text. It must keep the text's axes perpendicular
    // (eCannotScaleNonUniformly otherwise); a mirror keeps the text readable: the
    // justification point is mirrored and the text reads in the direction nearest to its
    // old one.
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    // From the font model: the text's advance by cap height plus descent; eNullExtents for
    // an empty text.
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    // A changed text recomputes its derived point as it is closed.
    Acad::ErrorStatus subClose() override;

private:
    void recomputeAlignment();

    AcGePoint3d m_position;
    AcGePoint3d m_alignmentPoint;
    AcGeVector3d m_normal = AcGeVector3d::kZAxis;
    double m_thickness = 0.0;
    double m_height = 0.0;
    double m_rotation = 0.0;
    double m_widthFactor = 1.0;
    double m_oblique = 0.0;
    bool m_mirroredInX = false;
    bool m_mirroredInY = false;
    AcDb::TextHorzMode m_horizontalMode = AcDb::kTextLeft;
    AcDb::TextVertMode m_verticalMode = AcDb::kTextBase;
    AcString m_text;
    AcDbObjectId m_textStyle;
};
