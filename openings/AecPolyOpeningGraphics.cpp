// AecPolyOpening: drawing. The outline as a plain polyline in the entity's own properties;
// then, in the record's colour and text style, the title at the inner reference point,
// the segment labels of inspect mode and the centre cross.
//
// The centre cross marks the inner reference point: two strokes along the X and Y axes,
// each as long as half the title height. While it shows, the title stands clear above it
// (its middle one title height above the point); without it the title is centred on the
// point. Texts are centred on their points; segment labels read along their segment,
// turned so that none reads upside down.
#include <cmath>

#include "AecPolyOpening.h"
#include "PolygonInnerPoint.h"
#include "acgi.h"
#include "data/PackedColor.h"

namespace {

// The cross's strokes are this many title heights long.
constexpr double kCrossSizeInTitleHeights = 0.5;
// With the cross shown, the title's middle is this many title heights above the point.
constexpr double kTitleLiftInTitleHeights = 1.0;
// Segment labels stand this many label heights off their segment, on its right.
constexpr double kSegmentLabelOffsetInHeights = 1.5;
// A direction with less X than this (of unit length) counts as vertical when deciding
// which way a text reads.
constexpr double kVerticalTolerance = 1e-9;

bool IsPositive(double value)
{
    return std::isfinite(value) && value > 0.0;
}

// Draws text centred on center, reading along direction (in the XY plane).
bool DrawCenteredText(AcGiWorldDraw* worldDraw, AcGiTextStyle style, const AcGePoint3d& center,
                      const AcGeVector3d& direction, double height, const AcString& text)
{
    if (text.isEmpty())
        return false;
    style.setTextSize(height);
    const AcGePoint2d size = style.extents(text.kwszPtr(), Adesk::kFalse, -1, Adesk::kFalse);
    const AcGeVector3d up = AcGeVector3d::kZAxis.crossProduct(direction);
    const AcGePoint3d start = center - direction * (0.5 * size.x) - up * (0.5 * size.y);
    return worldDraw->geometry().text(start, AcGeVector3d::kZAxis, direction, text.kwszPtr(), -1, Adesk::kFalse, style);
}

AcGeVector3d UprightDirection(const AcGeVector3d& along)
{
    const AcGeVector3d flat = AcGeVector3d(along.x, along.y, 0.0).normal();
    const bool backwards = flat.x < -kVerticalTolerance || (std::fabs(flat.x) <= kVerticalTolerance && flat.y < 0.0);
    return backwards ? -flat : flat;
}

}  // namespace

Adesk::Boolean AecPolyOpening::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    const unsigned int n = numVerts();
    {
        AcDbPolyline outline;
        for (unsigned int i = 0; i < n; ++i) {
            AcGePoint2d point;
            double bulge = 0.0;
            double startWidth = 0.0;
            double endWidth = 0.0;
            getPointAt(i, point);
            getBulgeAt(i, bulge);
            getWidthsAt(i, startWidth, endWidth);
            outline.addVertexAt(i, point, bulge, startWidth, endWidth);
        }
        outline.setElevation(elevation());
        outline.setNormal(normal());
        outline.setClosed(isClosed());
        outline.setPlinegen(Adesk::kFalse);
        outline.setPropertiesFrom(this);
        worldDraw->geometry().draw(&outline);
    }
    if (worldDraw->regenAbort())
        return Adesk::kTrue;

    const PolyOpeningData& data = *m_data;
    if (data.colorIndex != 0)
        worldDraw->subEntityTraits().setTrueColor(PackedColor::FromACI(data.colorIndex).ToAcCmEntityColor());
    AcGiTextStyle style;
    const AcDbObjectId styleId = ResolveTextStyle();
    if (!styleId.isNull())
        fromAcDbTextStyle(style, styleId);

    AcGePoint3d inner;
    const bool hasInner = GetInnerReferencePoint(inner);
    const bool showCross = hasInner && data.showCenterCross;
    const double titleHeight = IsPositive(data.titleHeight) ? data.titleHeight : PolyOpeningData::kDefaultTitleHeight;
    if (hasInner && data.titleVisible && IsPositive(data.titleHeight)) {
        const double lift = showCross ? kTitleLiftInTitleHeights * titleHeight : 0.0;
        if (DrawCenteredText(worldDraw, style, inner + AcGeVector3d::kYAxis * lift, AcGeVector3d::kXAxis,
                             data.titleHeight, data.titleText))
            return Adesk::kTrue;
    }

    const double labelHeight = data.segmentLabelHeight;
    if (data.enableSegmentLabels && IsInspectMode() && IsPositive(labelHeight) && n >= 2) {
        const AcGeMatrix3d toWorld = OutlineToWorld();
        const unsigned int segments = isClosed() ? n : n - 1;
        for (unsigned int i = 0; i < segments; ++i) {
            AcGePoint2d p;
            AcGePoint2d q;
            getPointAt(i, p);
            getPointAt((i + 1) % n, q);
            const AcGeVector2d d = q - p;
            if (d.isZeroLength())
                continue;
            const AcGeVector2d right = AcGeVector2d(d.y, -d.x).normal();
            const AcGePoint2d at = p + d * 0.5 + right * (kSegmentLabelOffsetInHeights * labelHeight);
            AcString text;
            if (i < data.segmentLabels.size())
                text = data.segmentLabels[i].GetLabel();
            else
                text.format(L"Segment_%u", i + 1);
            const AcGePoint3d center = toWorld * AcGePoint3d(at.x, at.y, elevation());
            const AcGeVector3d along = toWorld * AcGeVector3d(d.x, d.y, 0.0);
            if (DrawCenteredText(worldDraw, style, center, UprightDirection(along), labelHeight, text))
                return Adesk::kTrue;
        }
    }

    if (showCross) {
        const double arm = 0.5 * kCrossSizeInTitleHeights * titleHeight;
        const AcGePoint3d horizontal[2] = {inner - AcGeVector3d::kXAxis * arm, inner + AcGeVector3d::kXAxis * arm};
        const AcGePoint3d vertical[2] = {inner - AcGeVector3d::kYAxis * arm, inner + AcGeVector3d::kYAxis * arm};
        if (!worldDraw->geometry().polyline(2, horizontal))
            worldDraw->geometry().polyline(2, vertical);
    }
    return Adesk::kTrue;
}
