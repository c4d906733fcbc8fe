// What a cladding layout holds, kind by kind, with information blocks of the size and
// shape the layout application writes.
#include "LayoutKinds.h"

#include <cmath>
#include <string>

#include "dbents.h"
#include "dbpl.h"
#include "lines/AecDivisionLine.h"
#include "lines/AecOverlapLine.h"
#include "lines/AecStructuralLine.h"
#include "openings/AecCircleOpening.h"
#include "openings/AecLayoutBoundary.h"
#include "openings/AecLayoutBoundaryImp.h"
#include "openings/AecPolyOpening.h"
#include "openings/AecRectOpening.h"
#include "panel/AecPanel.h"

namespace bench {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kPitch = 1000.0;  // grid spacing between entities

AcGePoint2d Cell(int i)
{
    return AcGePoint2d((i % 300) * kPitch, (i / 300) * kPitch);
}

std::wstring Number(const wchar_t* prefix, int i)
{
    return prefix + std::to_wstring(i);
}

// The three blocks of a layout line, about 600 bytes of UTF-8 together.
template <typename Line>
void SetLineBlocks(Line& line, const wchar_t* kind, int i)
{
    line.SetNodeBasicJsonStr((L"{\"编号\":\"" + Number(L"J-", i) + L"\",\"节点类型\":\"" + kind +
                              L"\",\"规格\":\"C180×70×20×2.5\",\"材质\":\"Q355B\",\"长度\":72000.0,"
                              L"\"施工区域\":\"1# 厂房屋面\",\"图号\":\"JG-03\",\"备注\":\"\"}")
                                 .c_str());
    line.SetShouBianJsonStr(L"{\"收边类型\":\"屋脊盖板\",\"展开宽度\":480,\"厚度\":0.6,\"颜色\":\"灰白\","
                            L"\"折弯数\":4,\"搭接长度\":150.0}");
    line.SetAccessoryJsonStr(L"[{\"名称\":\"自攻螺钉 ST6.3x25\",\"数量\":48},{\"名称\":\"丁基密封胶带\","
                             L"\"长度\":1000.0},{\"名称\":\"堵头\",\"数量\":2}]");
}

AcDbPolyline* PlainPolyline(const AcGePoint2d* points, int count, bool closed)
{
    auto* polyline = new AcDbPolyline(static_cast<unsigned>(count));
    for (int k = 0; k < count; ++k)
        polyline->addVertexAt(static_cast<unsigned>(k), points[k]);
    polyline->setClosed(closed ? Adesk::kTrue : Adesk::kFalse);
    return polyline;
}

// The 2-vertex segment of line i.
void Segment(int i, AcGePoint3d& start, AcGePoint3d& end)
{
    const AcGePoint2d origin = Cell(i);
    start = AcGePoint3d(origin.x, origin.y, 0.0);
    end = AcGePoint3d(origin.x + 800.0, origin.y + 300.0, 0.0);
}

AcDbEntity* PlainSegment(AcDbDatabase*, int i)
{
    AcGePoint3d start, end;
    Segment(i, start, end);
    const AcGePoint2d points[] = {AcGePoint2d(start.x, start.y), AcGePoint2d(end.x, end.y)};
    return PlainPolyline(points, 2, false);
}

AcDbEntity* DivisionLine(AcDbDatabase*, int i)
{
    auto* line = new AecDivisionLine();
    AcGePoint3d start, end;
    Segment(i, start, end);
    line->SetPoints(start, end);
    line->SetIndentLeft(150.0);
    line->SetIndentRight(150.0);
    SetLineBlocks(*line, L"屋脊", i);
    return line;
}

AcDbEntity* OverlapLine(AcDbDatabase*, int i)
{
    auto* line = new AecOverlapLine();
    AcGePoint3d start, end;
    Segment(i, start, end);
    line->SetPoints(start, end);
    line->SetOverlapLeft(100.0);
    line->SetOverlapRight(100.0);
    SetLineBlocks(*line, L"搭接", i);
    return line;
}

AcDbEntity* StructuralLine(AcDbDatabase*, int i)
{
    auto* line = new AecStructuralLine();
    AcGePoint3d start, end;
    Segment(i, start, end);
    line->SetPoints(start, end);
    line->SetMemberWidthLeft(50.0);
    line->SetMemberWidthRight(50.0);
    SetLineBlocks(*line, L"檩条", i);
    return line;
}

AcDbEntity* CircleOpening(AcDbDatabase*, int i)
{
    auto* opening = new AecCircleOpening();
    const AcGePoint2d origin = Cell(i);
    const AcGePoint3d center(origin.x, origin.y, 0.0);
    opening->setCenter(center);
    opening->setRadius(150.0);
    CircleOpeningData data = opening->GetData();
    data.titleLabel.SetLabel(Number(L"管道孔 D300-", i).c_str());
    data.titleLabel.SetHeight(150.0);
    data.titleLabel.SetPosition(center + AcGeVector3d(0.0, 300.0, 0.0));
    opening->SetData(data);
    return opening;
}

AcDbEntity* PlainCircle(AcDbDatabase*, int i)
{
    const AcGePoint2d origin = Cell(i);
    return new AcDbCircle(AcGePoint3d(origin.x, origin.y, 0.0), AcGeVector3d::kZAxis, 150.0);
}

// The four corners of rectangular opening i, as its anchor (bottom left), width and height give them.
void RectCorners(int i, AcGePoint2d corners[4])
{
    const AcGePoint2d origin = Cell(i);
    corners[0] = origin;
    corners[1] = origin + AcGeVector2d(500.0, 0.0);
    corners[2] = origin + AcGeVector2d(500.0, 700.0);
    corners[3] = origin + AcGeVector2d(0.0, 700.0);
}

AcDbEntity* RectOpening(AcDbDatabase* db, int i)
{
    auto* opening = new AecRectOpening();
    const AcGePoint2d origin = Cell(i);
    opening->Set(AcGePoint3d(origin.x, origin.y, 0.0), 500.0, 700.0);
    opening->SetTextStyleId(db->textstyle());
    opening->SetTitleText(Number(L"采光窗 ", i).c_str());
    opening->SetTitleHeight(150.0);
    return opening;
}

AcDbEntity* PlainRect(AcDbDatabase*, int i)
{
    AcGePoint2d corners[4];
    RectCorners(i, corners);
    return PlainPolyline(corners, 4, true);
}

// A pentagon like a ventilator cap's cut-out.
void PolyCorners(int i, AcGePoint2d corners[5])
{
    const AcGePoint2d origin = Cell(i);
    corners[0] = origin;
    corners[1] = origin + AcGeVector2d(400.0, 0.0);
    corners[2] = origin + AcGeVector2d(400.0, 300.0);
    corners[3] = origin + AcGeVector2d(200.0, 500.0);
    corners[4] = origin + AcGeVector2d(0.0, 300.0);
}

AcDbEntity* PolyOpening(AcDbDatabase*, int i)
{
    auto* opening = new AecPolyOpening();
    AcGePoint2d corners[5];
    PolyCorners(i, corners);
    for (unsigned k = 0; k < 5; ++k)
        opening->addVertexAt(k, corners[k]);
    opening->setClosed(Adesk::kTrue);
    PolyOpeningData data = opening->GetData();
    data.titleText = Number(L"排风帽 P", i).c_str();
    data.titleHeight = 150.0;
    opening->SetData(data);
    return opening;
}

AcDbEntity* PlainPoly(AcDbDatabase*, int i)
{
    AcGePoint2d corners[5];
    PolyCorners(i, corners);
    return PlainPolyline(corners, 5, true);
}

// A bay outline of 12 vertices (a stepped roof plan), counterclockwise.
void BoundaryCorners(int i, AcGePoint2d corners[12])
{
    const AcGePoint2d origin = Cell(i);
    const double steps[12][2] = {{0, 0},     {900, 0},   {900, 200}, {800, 200}, {800, 400}, {900, 400},
                                 {900, 900}, {500, 900}, {500, 800}, {400, 800}, {400, 900}, {0, 900}};
    for (int k = 0; k < 12; ++k)
        corners[k] = origin + AcGeVector2d(steps[k][0], steps[k][1]);
}

AcDbEntity* LayoutBoundary(AcDbDatabase*, int i)
{
    auto* boundary = new AecLayoutBoundary();
    AcGePoint2d corners[12];
    BoundaryCorners(i, corners);
    for (unsigned k = 0; k < 12; ++k)
        boundary->addVertexAt(k, corners[k]);
    boundary->setClosed(Adesk::kTrue);
    LayoutBoundaryData data = boundary->GetImp()->GetData();
    data.titleText = Number(L"厂房屋面布置轮廓 ", i).c_str();
    data.titleHeight = 60.0;
    boundary->GetImp()->SetData(data);
    return boundary;
}

AcDbEntity* PlainBoundary(AcDbDatabase*, int i)
{
    AcGePoint2d corners[12];
    BoundaryCorners(i, corners);
    return PlainPolyline(corners, 12, true);
}

// A roof sheet 750 wide and 6,000 long whose top end is cut to a shallow zigzag, so that
// its outline has 4 to 40 vertices as i runs on; counterclockwise.
void PanelOutline(int i, AcArray<AcGePoint2d>& points)
{
    const AcGePoint2d origin = Cell(i) * 8.0;
    const int vertices = 4 + i % 37;
    points.append(origin);
    points.append(origin + AcGeVector2d(750.0, 0.0));
    const int top = vertices - 2;
    for (int k = 0; k < top; ++k)
        points.append(origin + AcGeVector2d(750.0 - 750.0 * k / (top - 1), 6000.0 + (k % 2) * 40.0));
}

AcDbEntity* Panel(AcDbDatabase*, int i)
{
    auto* panel = new AecPanel();
    AcArray<AcGePoint2d> outline;
    PanelOutline(i, outline);
    panel->SetOuterLoopFromPoints(outline);
    if (i % 3 == 0) {  // a pipe penetration
        const AcGePoint2d corner = outline[0] + AcGeVector2d(275.0, 2500.0);
        AcArray<AcGePoint2d> hole;
        hole.append(corner);
        hole.append(corner + AcGeVector2d(200.0, 0.0));
        hole.append(corner + AcGeVector2d(200.0, 200.0));
        hole.append(corner + AcGeVector2d(0.0, 200.0));
        panel->SetLoopFromPointsAt(1, hole);
    }
    const std::wstring number = Number(L"S-01-", i);
    panel->SetAllPanelInfoFromJson(
        (L"{\"productSeries\":\"YX\",\"panelName\":\"屋面板\",\"banLeiXing\":\"YX35-125-750\",\"roofPanelHand\":0,"
         L"\"roofPanelXingShi\":1,\"thickness\":0.6,\"standardWidth\":750.0,\"innerColor\":\"海蓝\",\"outColor\":"
         L"\"灰白\",\"isPositivePressure\":true,\"installationPosition\":1,\"contractNum\":\"HT-2026-118\","
         L"\"directionType\":1,\"lengthDirection\":[0,1],\"textXDirection\":[1,0],\"slopeInputRaw\":\"5%\","
         L"\"slopeAngleRadians\":0.049958395721942765,\"anchorModeLength\":1,\"anchorModeWidth\":1,"
         L"\"panelParameters\":[{\"名称\":\"有效宽度\",\"值\":750.0}],\"primaryAxis\":\"A\",\"secondaryAxisStart\":"
         L"\"1\",\"secondaryAxisEnd\":\"9\",\"constructionArea\":\"1# 厂房屋面\",\"materialCode\":"
         L"\"M-YX35-125-750\",\"uniqueNum\":\"" +
         Number(L"P-", i) +
         L"\",\"layoutConfigId\":\"LC-2026-11\",\"materialData\":{\"基板\":\"镀铝锌 AZ150\",\"涂层\":\"PE\"}}")
            .c_str(),
        (L"{\"isNumbered\":true,\"finalDisplayNumber\":\"" + number + L"\",\"sequence\":" + std::to_wstring(i) +
         L",\"customPrefix_1\":\"WM\",\"shapeSuffix\":\"\",\"drawingNumSuffix\":\"\",\"mergeSuffix\":\"\","
         L"\"customSuffix\":\"\"}")
            .c_str(),
        L"{\"patternType\":1,\"patternName\":\"ANSI31\",\"patScale\":2400,\"patternAngle\":0,\"patFillColor\":8}",
        L"{\"direction\":1,\"sequenceNumber\":1,\"mergedLength\":18000.0,\"mergedWidth\":750.0,"
        L"\"relatedPanels\":[1]}",
        L"{}", L"[{\"名称\":\"自攻螺钉 ST6.3x25\",\"数量\":21},{\"名称\":\"丁基密封胶带\",\"长度\":750.0}]");
    panel->SetTextLabel(DbxPanel::TextLabelType::kNumber, number.c_str());
    panel->SetTextLabel(DbxPanel::TextLabelType::kLength, L"L=6000");
    panel->SetTextLabel(DbxPanel::TextLabelType::kPanelType, L"YX35-125-750");
    // As the layout application (and quarvo new) does once a panel's blocks are set: the
    // hatch is filled here, not by the first operation that is measured.
    panel->FlushGraphicSubEntities(false);
    return panel;
}

AcDbEntity* PlainPanel(AcDbDatabase*, int i)
{
    AcArray<AcGePoint2d> outline;
    PanelOutline(i, outline);
    return PlainPolyline(outline.asArrayPtr(), outline.length(), true);
}

}  // namespace

const std::vector<LayoutKind>& LayoutKinds()
{
    static const std::vector<LayoutKind> kinds = {
        {"division_line", DivisionLine, PlainSegment},       // a straight node line, three blocks
        {"overlap_line", OverlapLine, PlainSegment},         // a side lap, three blocks
        {"structural_line", StructuralLine, PlainSegment},   // a purlin, three blocks
        {"circle_opening", CircleOpening, PlainCircle},      // a pipe hole with its title
        {"rect_opening", RectOpening, PlainRect},            // a roof light with its title
        {"poly_opening", PolyOpening, PlainPoly},            // a pentagon with its title
        {"layout_boundary", LayoutBoundary, PlainBoundary},  // a 12-vertex bay outline
        {"panel", Panel, PlainPanel},                        // 4-40 vertices, a hole, labels, blocks
    };
    return kinds;
}

}  // namespace bench
