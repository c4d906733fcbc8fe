// AecRectOpening: drawing, list output and explode. What the opening draws besides its
// rectangle (the title and the dimensions) is built as plain entities once, so that the
// draw and the explode always agree.
//
// Dimensions, when shown, measure the width above the top edge and the height beside the
// left edge (the title keeps the space below the bottom edge), in the manner of the
// host's aligned dimensions: extension lines that start the style's offset away from the
// corners and run its extension past the dimension line, a dimension line two text
// heights out, oblique ticks of the style's arrow size at its ends (the usual mark in
// building drawings), and the measured length with the style's decimal places centred
// the style's gap above the line, reading upright, in the opening's text style. Every
// size is the style's own times its overall scale.
#include <cmath>

#include "AecRectOpening.h"
#include "AecRectOpeningImp.h"
#include "OpeningStyles.h"
#include "Qx/ConvertUtil.h"
#include "Qx/WorldDrawUtil.h"
#include "acgi.h"
#include "acutads.h"
#include "dbents.h"
#include "dbsymtb.h"

namespace {

// The dimension line lies this many dimension text heights outside the measured edge.
constexpr double kDimensionLineOffsetInTextHeights = 2.0;
// A direction with less X than this (of unit length) counts as vertical when deciding
// which way a dimension text reads.
constexpr double kVerticalTolerance = 1e-9;

const ACHAR* AnchorName(Adesk::Int32 type)
{
    static const ACHAR* const kNames[9] = {L"左上", L"左中", L"左下", L"上中", L"中心",
                                           L"下中", L"右上", L"右中", L"右下"};
    return type >= 0 && type < 9 ? kNames[type] : L"未知";
}

// The sizes of the dimension style, scaled to drawing units.
struct DimensionSizes {
    double textHeight = 0.0;
    double tickSize = 0.0;
    double extensionOffset = 0.0;
    double extensionBeyond = 0.0;
    double textGap = 0.0;
    int decimals = 0;
};

bool ReadDimensionSizes(const AcDbObjectId& styleId, DimensionSizes& sizes)
{
    AcDbDimStyleTableRecord* style = nullptr;
    if (styleId.isNull() || acdbOpenObject(style, styleId, AcDb::kForRead) != Acad::eOk)
        return false;
    const double scale = style->dimscale() > 0.0 ? style->dimscale() : 1.0;
    sizes.textHeight = style->dimtxt() * scale;
    sizes.tickSize = style->dimasz() * scale;
    sizes.extensionOffset = style->dimexo() * scale;
    sizes.extensionBeyond = style->dimexe() * scale;
    sizes.textGap = style->dimgap() * scale;
    sizes.decimals = style->dimdec();
    style->close();
    return std::isfinite(sizes.textHeight) && sizes.textHeight > 0.0;
}

AcDbLine* NewLine(const AcGePoint3d& from, const AcGePoint3d& to)
{
    return new AcDbLine(from, to);
}

// One dimension of the edge from -> to, on the side of outward (a unit vector in the
// plane, at right angles to the edge).
void AddDimension(std::vector<AcDbEntity*>& out, const AcGePoint3d& from, const AcGePoint3d& to,
                  const AcGeVector3d& outward, const DimensionSizes& sizes, const AcDbObjectId& textStyle)
{
    const double lineDistance = sizes.extensionOffset + kDimensionLineOffsetInTextHeights * sizes.textHeight;
    const AcGePoint3d lineStart = from + outward * lineDistance;
    const AcGePoint3d lineEnd = to + outward * lineDistance;
    out.push_back(NewLine(from + outward * sizes.extensionOffset, lineStart + outward * sizes.extensionBeyond));
    out.push_back(NewLine(to + outward * sizes.extensionOffset, lineEnd + outward * sizes.extensionBeyond));
    out.push_back(NewLine(lineStart, lineEnd));

    const AcGeVector3d along = (to - from).normal();
    if (sizes.tickSize > 0.0) {
        const AcGeVector3d tick = (along + outward).normal() * (0.5 * sizes.tickSize);
        out.push_back(NewLine(lineStart - tick, lineStart + tick));
        out.push_back(NewLine(lineEnd - tick, lineEnd + tick));
    }

    TextBaseLabel measure;
    measure.SetLabel(Qx::ConvertUtil::ToString(from.distanceTo(to), sizes.decimals));
    measure.SetHeight(sizes.textHeight);
    const bool readsBackwards =
        along.x < -kVerticalTolerance || (std::fabs(along.x) <= kVerticalTolerance && along.y < 0.0);
    measure.SetTextDirX(readsBackwards ? -along : along);
    measure.SetPosition(lineStart + (lineEnd - lineStart) * 0.5 + outward * (sizes.textGap + 0.5 * sizes.textHeight));
    if (AcDbText* text = measure.CreateDbText(textStyle))
        out.push_back(text);
}

}  // namespace

std::vector<AcDbEntity*> AecRectOpening::Imp::CreateAnnotations(AcDbDatabase* db) const
{
    std::vector<AcDbEntity*> entities;
    const AcDbObjectId textStyle =
        OpeningStyles::ResolveTextStyle(textStyleId, OpeningStyles::DefaultTextStyle(db), db);
    if (textStyle.isNull())
        return entities;
    // The title reads from below the bottom-left corner along the bottom edge.
    if (title.IsVisible()) {
        if (AcDbMText* text = title.CreateText(title.GetPosition(), textStyle, AcDbMText::kMiddleLeft))
            entities.push_back(text);
    }
    if (!showDim)
        return entities;
    DimensionSizes sizes;
    const AcDbObjectId dimStyle = OpeningStyles::ResolveDimStyle(dimStyleId, OpeningStyles::DefaultDimStyle(db), db);
    if (!ReadDimensionSizes(dimStyle, sizes))
        return entities;
    const RectOpeningFrame::Corners c = frame.GetCorners();
    AddDimension(entities, c[3], c[2], frame.V(), sizes, textStyle);
    AddDimension(entities, c[0], c[3], -frame.U(), sizes, textStyle);
    return entities;
}

Adesk::Boolean AecRectOpening::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    if (Qx::WorldDrawUtil::DrawPolyline(worldDraw, m_imp->rectangle.get()))
        return Adesk::kTrue;
    for (AcDbEntity* entity : m_imp->CreateAnnotations(m_imp->DatabaseToUse())) {
        if (!worldDraw->regenAbort())
            entity->worldDraw(worldDraw);
        delete entity;
    }
    return Adesk::kTrue;
}

Acad::ErrorStatus AecRectOpening::subExplode(AcDbVoidPtrArray& entitySet) const
{
    assertReadEnabled();
    const AcDbPolyline& rectangle = *m_imp->rectangle;
    auto* outline = new AcDbPolyline();
    for (unsigned int i = 0; i < rectangle.numVerts(); ++i) {
        AcGePoint2d point;
        rectangle.getPointAt(i, point);
        outline->addVertexAt(i, point);
    }
    outline->setElevation(rectangle.elevation());
    outline->setClosed(Adesk::kTrue);
    outline->setPropertiesFrom(this);
    entitySet.append(outline);
    for (AcDbEntity* entity : m_imp->CreateAnnotations(m_imp->DatabaseToUse())) {
        entity->setPropertiesFrom(this);
        entitySet.append(entity);
    }
    return Acad::eOk;
}

// After the host's lines: the size and corner, the anchor, the title, its style (with the
// drawing's fall-back when the stored one is gone) and whether dimensions show.
void AecRectOpening::subList() const
{
    assertReadEnabled();
    QxPolylineBasedCurve::subList();
    const Imp& imp = *m_imp;
    const AcGePoint3d b = imp.frame.BottomLeft();
    const AcGeVector3d u = imp.frame.U();
    acutPrintf(L"\n矩形洞口: 宽 %.2f，高 %.2f，左下角 (%.2f, %.2f, %.2f)，X 方向 (%.4f, %.4f)", imp.frame.width,
               imp.frame.height, b.x, b.y, b.z, u.x, u.y);
    const AcGePoint3d& a = imp.frame.anchor;
    acutPrintf(L"\n锚点: %s，位置: (%.2f, %.2f, %.2f)", AnchorName(imp.frame.anchorType), a.x, a.y, a.z);
    acutPrintf(L"\n标题: %s，\"%s\"", imp.title.IsVisible() ? L"显示" : L"隐藏", imp.title.GetLabel().kwszPtr());
    AcDbDatabase* db = imp.DatabaseToUse();
    bool fellBack = false;
    const AcDbObjectId style =
        OpeningStyles::ResolveTextStyle(imp.textStyleId, OpeningStyles::DefaultTextStyle(db), db, &fellBack);
    OpeningStyles::ListTextStyle(style, fellBack);
    acutPrintf(L"\n尺寸标注: %s", imp.showDim ? L"开启" : L"关闭");
}
