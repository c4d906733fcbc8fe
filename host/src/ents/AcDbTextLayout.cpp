// AcDbText: alignment, extents, drawing, grips and transforms, all over the text frame
// of the font model (TextFrame.h).
#include <cmath>
#include <utility>

#include "AcDbText.h"
#include "AcGiWorldDraw.h"
#include "ArcGeometry.h"
#include "EntityFiling.h"
#include "TextFrame.h"
#include "gi/FontModel.h"
#include "gi/PlaneMath.h"

namespace {

bool isTwoPointMode(AcDb::TextHorzMode mode)
{
    return mode == AcDb::kTextAlign || mode == AcDb::kTextFit;
}

}  // namespace

void AcDbText::recomputeAlignment()
{
    if (isTwoPointMode(m_horizontalMode)) {
        // The two points fix the direction and the length the text must fill.
        AcGeVector3d span = m_alignmentPoint - m_position;
        span -= m_normal * span.dotProduct(m_normal);
        const double length = span.length();
        if (length <= hostents::kOnCurveTolerance)
            return;
        m_rotation = hostents::rotationOf(m_normal, span);
        const double units = hostgi::FontModel::advanceUnits(hostgi::FontModel::displayed(m_text.kwszPtr(), -1, false));
        if (units <= 0.0)
            return;
        if (m_horizontalMode == AcDb::kTextAlign)
            m_height = length / (units * m_widthFactor);
        else if (m_height > 0.0)
            m_widthFactor = length / (units * m_height);
        return;
    }
    if (m_horizontalMode == AcDb::kTextLeft && m_verticalMode == AcDb::kTextBase) {
        m_alignmentPoint = m_position;
        return;
    }
    const hostents::TextFrame frame = hostents::TextFrame::of(m_normal, m_rotation, m_height, m_widthFactor,
                                                              m_text.kwszPtr(), m_mirroredInX, m_mirroredInY);
    double x = 0.0;
    double y = 0.0;
    frame.justificationOffset(m_horizontalMode, m_verticalMode, x, y);
    m_position = frame.at(m_alignmentPoint, -x, -y);
}

Acad::ErrorStatus AcDbText::adjustAlignment(const AcDbDatabase*)
{
    assertWriteEnabled();
    recomputeAlignment();
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::subClose()
{
    if (isWriteEnabled())
        recomputeAlignment();
    return AcDbEntity::subClose();
}

Acad::ErrorStatus AcDbText::getBoundingPoints(AcGePoint3dArray& points) const
{
    assertReadEnabled();
    const hostents::TextFrame frame = hostents::TextFrame::of(m_normal, m_rotation, m_height, m_widthFactor,
                                                              m_text.kwszPtr(), m_mirroredInX, m_mirroredInY);
    const double w = m_mirroredInX ? -frame.width : frame.width;
    const double h = m_mirroredInY ? -m_height : m_height;
    const double shear = std::tan(m_oblique);
    points.append(frame.at(m_position, h * shear, h));
    points.append(frame.at(m_position, w + h * shear, h));
    points.append(frame.at(m_position, 0.0, 0.0));
    points.append(frame.at(m_position, w, 0.0));
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    if (hostgi::FontModel::displayed(m_text.kwszPtr(), -1, false).empty())
        return Acad::eNullExtents;
    const hostents::TextFrame frame = hostents::TextFrame::of(m_normal, m_rotation, m_height, m_widthFactor,
                                                              m_text.kwszPtr(), m_mirroredInX, m_mirroredInY);
    const double w = m_mirroredInX ? -frame.width : frame.width;
    const double shear = std::tan(m_oblique);
    AcDbExtents ext;
    for (double y : {-hostgi::FontModel::kDescent * m_height, m_height}) {
        const double yy = m_mirroredInY ? -y : y;
        for (double x : {0.0, w}) {
            const AcGePoint3d corner = frame.at(m_position, x + yy * shear, yy);
            ext.addPoint(corner);
            if (m_thickness != 0.0)
                ext.addPoint(corner + m_normal * m_thickness);
        }
    }
    extents = ext;
    return Acad::eOk;
}

// One text primitive in the text's style, with its own height, width factor and slant.
Adesk::Boolean AcDbText::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    if (worldDraw == nullptr || worldDraw->regenAbort())
        return Adesk::kTrue;
    AcGiTextStyle style;
    if (!m_textStyle.isNull())
        fromAcDbTextStyle(style, m_textStyle);
    style.setTextSize(m_height);
    style.setXScale(m_widthFactor);
    style.setObliquingAngle(m_oblique);
    style.setBackward(m_mirroredInX);
    style.setUpsideDown(m_mirroredInY);
    if (m_thickness != 0.0)
        worldDraw->subEntityTraits().setThickness(m_thickness);
    const hostents::TextFrame frame = hostents::TextFrame::of(m_normal, m_rotation, m_height, m_widthFactor,
                                                              L"", m_mirroredInX, m_mirroredInY);
    worldDraw->geometry().text(m_position, m_normal, frame.direction, m_text.kwszPtr(), -1, Adesk::kFalse, style);
    return Adesk::kTrue;
}

// Left on the baseline: the position. Aligned and fit: both points. Otherwise the
// alignment point.
Acad::ErrorStatus AcDbText::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&, AcDbIntArray&) const
{
    assertReadEnabled();
    if (isTwoPointMode(m_horizontalMode)) {
        gripPoints.append(m_position);
        gripPoints.append(m_alignmentPoint);
    } else if (m_horizontalMode == AcDb::kTextLeft && m_verticalMode == AcDb::kTextBase) {
        gripPoints.append(m_position);
    } else {
        gripPoints.append(m_alignmentPoint);
    }
    return Acad::eOk;
}

// The one grip of a justified text moves it; each grip of aligned and fit text moves its
// own point and the text refits between them.
Acad::ErrorStatus AcDbText::subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    assertWriteEnabled();
    const int gripCount = isTwoPointMode(m_horizontalMode) ? 2 : 1;
    bool moved[2] = {false, false};
    for (int i = 0; i < indices.length(); ++i) {
        if (indices[i] < 0 || indices[i] >= gripCount)
            return Acad::eInvalidIndex;
        moved[indices[i]] = true;
    }
    if (!hostents::isFinite(offset))
        return Acad::eInvalidInput;
    if (gripCount == 1 || (moved[0] && moved[1])) {
        if (moved[0])
            return transformBy(AcGeMatrix3d::translation(offset));
        return Acad::eOk;
    }
    if (moved[0])
        m_position += offset;
    if (moved[1])
        m_alignmentPoint += offset;
    recomputeAlignment();
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker, const AcGePoint3d&,
                                              const AcGePoint3d&, const AcGeMatrix3d&, AcGePoint3dArray& snapPoints,
                                              AcDbIntArray&) const
{
    assertReadEnabled();
    if (osnapMode == AcDb::kOsModeIns) {
        AcGePoint3dArray grips;
        AcDbIntArray modes;
        AcDbIntArray ids;
        subGetGripPoints(grips, modes, ids);
        for (int i = 0; i < grips.length(); ++i)
            snapPoints.append(grips[i]);
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                              const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                              const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                              AcDbIntArray& geomIds, const AcGeMatrix3d&) const
{
    return subGetOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints, geomIds);
}

Acad::ErrorStatus AcDbText::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    if (hostgi::isTranslationOnly(xform)) {
        m_position.transformBy(xform);
        m_alignmentPoint.transformBy(xform);
        recordGraphicsModified();
        return Acad::eOk;
    }
    const hostents::TextFrame frame =
        hostents::TextFrame::of(m_normal, m_rotation, m_height, m_widthFactor, L"", false, false);
    AcGeVector3d direction;
    AcGeVector3d up;
    AcGeVector3d normal;
    double along = 0.0;
    double across = 0.0;
    if (!hostents::readableFrame(xform, frame.direction, frame.up, direction, up, normal, along, across))
        return Acad::eCannotScaleNonUniformly;
    AcGePoint3d position = m_position;
    AcGePoint3d alignment = m_alignmentPoint;
    position.transformBy(xform);
    alignment.transformBy(xform);
    // Aligned and fit text runs from the position to the alignment point: keep it reading forwards.
    if (isTwoPointMode(m_horizontalMode) && (alignment - position).dotProduct(direction) < 0.0)
        std::swap(position, alignment);
    AcGeVector3d extrusion = m_normal;
    extrusion.transformBy(xform);
    m_thickness *= extrusion.dotProduct(normal);
    m_height *= across;
    m_widthFactor *= along / across;
    m_normal = normal;
    m_rotation = hostents::rotationOf(normal, direction);
    m_position = position;
    m_alignmentPoint = alignment;
    recomputeAlignment();
    recordGraphicsModified();
    return Acad::eOk;
}
