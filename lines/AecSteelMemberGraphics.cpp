// AecSteelMember: its draw (section cross, outline, axis, width text), explode, extents
// and list output.
#include <algorithm>
#include <cmath>
#include <memory>

#include "AecSteelMember.h"
#include "LayoutLineGeometry.h"
#include "LinePolylines.h"
#include "Qx/WorldDrawUtil.h"
#include "acgi.h"
#include "acutads.h"
#include "dbapserv.h"
#include "dbents.h"
#include "dbmain.h"
#include "geometry/TextBaseLabel.h"
#include "geometry/WorkingDatabaseScope.h"

namespace {

// The width text stands beside the band on its left, reading along the axis, half the
// total width high within 100 to 250.
TextBaseLabel WidthLabel(const AecSteelMember& member)
{
    TextBaseLabel label;
    label.SetLabel(member.WidthText());
    const double height = std::max(100.0, std::min(250.0, 0.5 * member.GetTotalWidth()));
    label.SetHeight(height);
    const AcGePoint3d start = member.GetStartPoint();
    const AcGePoint3d end = member.GetEndPoint();
    AcGeVector3d along = end - start;
    along.z = 0.0;
    if (along.isZeroLength())
        along = AcGeVector3d::kXAxis;
    along.normalize();
    // Read left to right: a direction pointing back is turned round.
    const bool backwards = along.x < -1e-9 || (std::fabs(along.x) <= 1e-9 && along.y < 0.0);
    const AcGeVector3d reading = backwards ? -along : along;
    const AcGeVector3d left(-along.y, along.x, 0.0);
    label.SetPosition(LayoutLineGeometry::Midpoint(start, end) + left * (member.GetLeftWidth() + 0.75 * height));
    label.SetTextDirX(reading);
    return label;
}

std::unique_ptr<AcDbText> CreateWidthText(const AecSteelMember& member)
{
    AcDbDatabase* db =
        member.database() != nullptr ? member.database() : acdbHostApplicationServices()->workingDatabase();
    return std::unique_ptr<AcDbText>(
        WidthLabel(member).CreateDbText(db != nullptr ? db->textstyle() : AcDbObjectId::kNull));
}

// The band's two diagonals.
std::vector<std::unique_ptr<AcDbLine>> SectionCross(const AcDbPolyline* outline)
{
    std::vector<std::unique_ptr<AcDbLine>> lines;
    if (outline->numVerts() != 4)
        return lines;
    AcGePoint3d corners[4];
    for (unsigned int i = 0; i < 4; ++i)
        outline->getPointAt(i, corners[i]);
    lines.push_back(std::make_unique<AcDbLine>(corners[0], corners[2]));
    lines.push_back(std::make_unique<AcDbLine>(corners[1], corners[3]));
    return lines;
}

}  // namespace

Adesk::Boolean AecSteelMember::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    if (worldDraw == nullptr || worldDraw->regenAbort())
        return Adesk::kTrue;
    const std::unique_ptr<AcDbPolyline> outline(CreateOutlinePolyline());
    if (IsDisplayOptionEnabled(kSteelDisplaySectionCross)) {
        for (const auto& line : SectionCross(outline.get())) {
            const AcGePoint3d ends[2] = {line->startPoint(), line->endPoint()};
            if (worldDraw->geometry().polyline(2, ends))
                return Adesk::kTrue;
        }
    }
    if (IsDisplayOptionEnabled(kSteelDisplayOutline) && outline->numVerts() > 0 &&
        Qx::WorldDrawUtil::DrawPolyline(worldDraw, outline.get()))
        return Adesk::kTrue;
    if (IsDisplayOptionEnabled(kSteelDisplayAxis)) {
        const std::unique_ptr<AcDbPolyline> axis(CreateAxisPolyline());
        if (Qx::WorldDrawUtil::DrawPolyline(worldDraw, axis.get()))
            return Adesk::kTrue;
    }
    if (!IsDisplayOptionEnabled(kSteelDisplayNoWidthText)) {
        // The text, in no drawing, resolves its style in the working database while drawn.
        const WorkingDatabaseScope scope(database());
        if (std::unique_ptr<AcDbText> text = CreateWidthText(*this))
            worldDraw->geometry().draw(text.get());
    }
    return Adesk::kTrue;
}

// What is drawn, as plain entities with the member's properties.
Acad::ErrorStatus AecSteelMember::subExplode(AcDbVoidPtrArray& entitySet) const
{
    assertReadEnabled();
    std::vector<AcDbEntity*> pieces;
    const std::unique_ptr<AcDbPolyline> outline(CreateOutlinePolyline());
    if (IsDisplayOptionEnabled(kSteelDisplaySectionCross))
        for (auto& line : SectionCross(outline.get()))
            pieces.push_back(line.release());
    if (IsDisplayOptionEnabled(kSteelDisplayOutline) && outline->numVerts() > 0)
        pieces.push_back(CreateOutlinePolyline());
    if (IsDisplayOptionEnabled(kSteelDisplayAxis))
        pieces.push_back(CreateAxisPolyline());
    if (!IsDisplayOptionEnabled(kSteelDisplayNoWidthText))
        if (std::unique_ptr<AcDbText> text = CreateWidthText(*this))
            pieces.push_back(text.release());
    for (AcDbEntity* piece : pieces) {
        if (!piece->isKindOf(AcDbText::desc()))
            piece->setPropertiesFrom(this);
        entitySet.append(piece);
    }
    return Acad::eOk;
}

Acad::ErrorStatus AecSteelMember::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    extents = AcDbExtents();
    const std::unique_ptr<AcDbPolyline> outline(CreateOutlinePolyline());
    for (unsigned int i = 0; i < outline->numVerts(); ++i) {
        AcGePoint3d corner;
        outline->getPointAt(i, corner);
        extents.addPoint(corner);
    }
    extents.addPoint(GetStartPoint());
    extents.addPoint(GetEndPoint());
    return Acad::eOk;
}

void AecSteelMember::subList() const
{
    assertReadEnabled();
    QxPolylineBasedCurve::subList();
    const AcGePoint3d start = GetStartPoint();
    const AcGePoint3d end = GetEndPoint();
    acutPrintf(L"\n ***钢构件信息*** ");
    acutPrintf(L"\n  类型: %s", GetKind() == kSteelBeam ? L"钢梁" : L"钢柱");
    acutPrintf(L"\n  起点: (%.3f, %.3f, %.3f)", start.x, start.y, start.z);
    acutPrintf(L"\n  终点: (%.3f, %.3f, %.3f)", end.x, end.y, end.z);
    acutPrintf(L"\n  构件宽度: %.3f", GetTotalWidth());
    acutPrintf(L"\n  左侧宽度: %.3f", GetLeftWidth());
    acutPrintf(L"\n  右侧宽度: %.3f", GetRightWidth());
}
