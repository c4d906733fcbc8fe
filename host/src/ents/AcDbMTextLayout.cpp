// AcDbMText: drawing, extents, transform and explode over the laid-out lines (MTextLayout.h).
#include <algorithm>
#include <cmath>

#include "AcDbMText.h"
#include "AcDbText.h"
#include "AcGiWorldDraw.h"
#include "ArcGeometry.h"
#include "MTextLayout.h"
#include "TextFrame.h"
#include "gi/FontModel.h"
#include "gi/PlaneMath.h"

Adesk::Boolean AcDbMText::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    if (worldDraw == nullptr || worldDraw->regenAbort())
        return Adesk::kTrue;
    AcGiTextStyle style;
    if (!m_textStyle.isNull())
        fromAcDbTextStyle(style, m_textStyle);
    style.setTextSize(m_textHeight);
    style.setXScale(1.0);
    style.setObliquingAngle(0.0);
    const AcGeVector3d up = m_normal.crossProduct(m_direction);
    const hostents::MTextLayout layout(m_contents.wstr(), m_textHeight, m_width, m_lineSpacingFactor, m_attachment);
    for (const hostents::MTextLayout::Line& line : layout.lines()) {
        if (line.text.empty())
            continue;
        const AcGePoint3d start = m_location + m_direction * line.x + up * line.y;
        if (worldDraw->geometry().text(start, m_normal, m_direction, line.text.c_str(), -1, Adesk::kFalse, style))
            break;
    }
    return Adesk::kTrue;
}

Acad::ErrorStatus AcDbMText::getBoundingPoints(AcGePoint3dArray& points) const
{
    assertReadEnabled();
    const hostents::MTextLayout layout(m_contents.wstr(), m_textHeight, m_width, m_lineSpacingFactor, m_attachment);
    const AcGeVector3d up = m_normal.crossProduct(m_direction);
    const double left = layout.boxLeft();
    const double right = left + layout.boxWidth();
    const double top = layout.boxTop();
    const double bottom = top - layout.actualHeight();
    points.append(m_location + m_direction * left + up * top);
    points.append(m_location + m_direction * right + up * top);
    points.append(m_location + m_direction * left + up * bottom);
    points.append(m_location + m_direction * right + up * bottom);
    return Acad::eOk;
}

// The laid-out lines, each from cap height to descent; eNullExtents when nothing shows.
Acad::ErrorStatus AcDbMText::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    const hostents::MTextLayout layout(m_contents.wstr(), m_textHeight, m_width, m_lineSpacingFactor, m_attachment);
    const AcGeVector3d up = m_normal.crossProduct(m_direction);
    AcDbExtents ext;
    bool any = false;
    for (const hostents::MTextLayout::Line& line : layout.lines()) {
        if (line.width <= 0.0)
            continue;
        any = true;
        for (double y : {line.y - hostgi::FontModel::kDescent * m_textHeight, line.y + m_textHeight}) {
            ext.addPoint(m_location + m_direction * line.x + up * y);
            ext.addPoint(m_location + m_direction * (line.x + line.width) + up * y);
        }
    }
    if (!any)
        return Acad::eNullExtents;
    extents = ext;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMText::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&, AcDbIntArray&) const
{
    assertReadEnabled();
    gripPoints.append(m_location);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMText::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker, const AcGePoint3d&,
                                               const AcGePoint3d&, const AcGeMatrix3d&,
                                               AcGePoint3dArray& snapPoints, AcDbIntArray&) const
{
    assertReadEnabled();
    if (osnapMode == AcDb::kOsModeIns)
        snapPoints.append(m_location);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMText::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                               const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                               const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                               AcDbIntArray& geomIds, const AcGeMatrix3d&) const
{
    return subGetOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints, geomIds);
}

Acad::ErrorStatus AcDbMText::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    if (hostgi::isTranslationOnly(xform)) {
        m_location.transformBy(xform);
        recordGraphicsModified();
        return Acad::eOk;
    }
    AcGeVector3d direction;
    AcGeVector3d up;
    AcGeVector3d normal;
    double along = 0.0;
    double across = 0.0;
    if (!hostents::readableFrame(xform, m_direction, m_normal.crossProduct(m_direction), direction, up, normal, along,
                                 across) ||
        std::fabs(along - across) > hostents::kOnCurveTolerance * std::max(along, across))
        return Acad::eCannotScaleNonUniformly;
    m_location.transformBy(xform);
    m_direction = direction;
    m_normal = normal;
    m_textHeight *= across;
    m_width *= along;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMText::subExplode(AcDbVoidPtrArray& entitySet) const
{
    assertReadEnabled();
    const hostents::MTextLayout layout(m_contents.wstr(), m_textHeight, m_width, m_lineSpacingFactor, m_attachment);
    const AcGeVector3d up = m_normal.crossProduct(m_direction);
    const double rotation = hostents::rotationOf(m_normal, m_direction);
    for (const hostents::MTextLayout::Line& line : layout.lines()) {
        if (line.text.empty())
            continue;
        auto* text = new AcDbText(m_location + m_direction * line.x + up * line.y, line.text.c_str(), m_textStyle,
                                  m_textHeight, rotation);
        text->setPropertiesFrom(this);
        text->setNormal(m_normal);
        entitySet.append(text);
    }
    return Acad::eOk;
}
