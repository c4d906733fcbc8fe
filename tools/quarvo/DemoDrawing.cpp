// The built-in example: a roof bay inside its layout boundary, laid with thirteen panels
// cut along the arced eave and around the openings they carry, with the division lines
// between its panel zones (straight and arced), the side laps between its sheets, the
// purlins that carry them, three round roof-light openings, a rectangular hatch opening
// with its dimensions, an L-shaped opening, the gable flashings and a rafter.
#include "DemoDrawing.h"

#include <cmath>
#include <vector>

#include "dbmain.h"
#include "dbsymtb.h"
#include "geometry/EntityCreation.h"
#include "lines/AecDivisionLine.h"
#include "lines/AecOverlapLine.h"
#include "lines/AecShouBianLine.h"
#include "lines/AecSteelMember.h"
#include "lines/AecStructuralLine.h"
#include "openings/AecCircleOpening.h"
#include "openings/AecLayoutBoundary.h"
#include "openings/AecPolyOpening.h"
#include "openings/AecRectOpening.h"
#include "panel/AecPanel.h"

namespace quarvo {
namespace {

void AddLayer(AcDbDatabase* db, const ACHAR* name, Adesk::UInt16 colorIndex)
{
    AcDbLayerTable* layers = nullptr;
    if (db->getLayerTable(layers, AcDb::kForWrite) != Acad::eOk)
        return;
    if (!layers->has(name)) {
        auto* layer = new AcDbLayerTableRecord();
        layer->setName(name);
        AcCmColor color;
        color.setColorIndex(colorIndex);
        layer->setColor(color);
        layers->add(layer);
        layer->close();
    }
    layers->close();
}

void AddOpening(AcDbDatabase* db, const AcGePoint3d& center, double radius, const ACHAR* title)
{
    auto* opening = new AecCircleOpening();
    opening->setDatabaseDefaults(db);
    opening->setLayer(L"QX-洞口");
    opening->setCenter(center);
    opening->setRadius(radius);
    CircleOpeningData data = opening->GetData();
    data.titleLabel.SetLabel(title);
    data.titleLabel.SetVisible(true);
    data.titleLabel.SetHeight(radius * 0.6);
    data.titleLabel.SetPosition(center + AcGeVector3d(0, radius * 1.6, 0));
    opening->SetData(data);
    if (AddToCurrentSpace(opening, db) == Acad::eOk)
        opening->close();
    else
        delete opening;
}

void AddDivisionLine(AcDbDatabase* db, const AcGePoint3d& start, const AcGePoint3d& end, double bulge,
                     const ACHAR* number)
{
    auto* line = new AecDivisionLine();
    line->setDatabaseDefaults(db);
    line->setLayer(L"QX-节点线");
    line->SetPoints(start, end);
    line->SetBulge(bulge);
    line->SetIndentLeft(150);
    line->SetIndentRight(250);
    line->SetJieDianBoundaryLayerName(L"QX-节点边界");
    line->SetJieDianBoundaryColorIndex(1);
    AcString json;
    json.format(L"{\"编号\":\"%s\",\"节点类型\":\"屋脊\",\"宽度\":400}", number);
    line->SetNodeBasicJsonStr(json);
    line->SetAccessoryJsonStr(L"[\"自攻螺钉 ST6.3\",\"丁基密封胶带\"]");
    if (AddToCurrentSpace(line, db) == Acad::eOk)
        line->close();
    else
        delete line;
}

// A side lap with its direction mark shown.
void AddOverlapLine(AcDbDatabase* db, const AcGePoint3d& start, const AcGePoint3d& end, OverlapDirection direction,
                    const ACHAR* number)
{
    auto* line = new AecOverlapLine();
    line->setDatabaseDefaults(db);
    line->setLayer(L"QX-搭接线");
    line->SetPoints(start, end);
    line->SetOverlapLeft(150);
    line->SetOverlapRight(150);
    line->SetOverlapDirection(direction);
    line->SetDrawOptions(
        static_cast<OverlapDrawOptions>(kOverlapDrawCenterLine | kOverlapDrawBoundary | kOverlapDrawDirection));
    AcString json;
    json.format(L"{\"编号\":\"%s\",\"搭接方式\":\"一波半\"}", number);
    line->SetNodeBasicJsonStr(json);
    if (AddToCurrentSpace(line, db) == Acad::eOk)
        line->close();
    else
        delete line;
}

// A purlin under the sheets, its indent lines shown.
void AddPurlin(AcDbDatabase* db, const AcGePoint3d& start, const AcGePoint3d& end, const ACHAR* number)
{
    auto* line = new AecStructuralLine();
    line->setDatabaseDefaults(db);
    line->setLayer(L"QX-结构线");
    line->SetPoints(start, end);
    line->SetMemberType(kStructuralBeam);
    line->SetDrawOptions(static_cast<StructuralDrawOptions>(kStructuralDrawCenterLine | kStructuralDrawMemberBoundary |
                                                            kStructuralDrawIndentLines));
    line->SetShouBianLineLayerName(L"QX-收边线");
    AcString json;
    json.format(L"{\"编号\":\"%s\",\"型号\":\"C160x60x20\"}", number);
    line->SetNodeBasicJsonStr(json);
    if (AddToCurrentSpace(line, db) == Acad::eOk)
        line->close();
    else
        delete line;
}

// The drawing's "_Standard" dimension style, in millimetres at 1:100, which the openings
// take by default.
AcDbObjectId AddDimensionStyle(AcDbDatabase* db)
{
    AcDbDimStyleTable* styles = nullptr;
    if (db->getDimStyleTable(styles, AcDb::kForWrite) != Acad::eOk)
        return AcDbObjectId::kNull;
    AcDbObjectId id;
    if (styles->getAt(L"_Standard", id) != Acad::eOk) {
        auto* style = new AcDbDimStyleTableRecord();
        style->setName(L"_Standard");
        style->setDimscale(100);
        style->setDimtxt(2.5);
        style->setDimasz(2.5);
        style->setDimexo(0.625);
        style->setDimexe(1.25);
        style->setDimgap(0.625);
        style->setDimdec(0);
        if (styles->add(id, style) == Acad::eOk)
            style->close();
        else
            delete style;
    }
    styles->close();
    return id;
}

template <typename Entity>
void Append(AcDbDatabase* db, Entity* entity)
{
    if (AddToCurrentSpace(entity, db) == Acad::eOk)
        entity->close();
    else
        delete entity;
}

// The bay's outline: the eave side follows the arced division line.
void AddBoundary(AcDbDatabase* db)
{
    auto* boundary = new AecLayoutBoundary();
    boundary->setDatabaseDefaults(db);
    boundary->setLayer(L"QX-布置轮廓");
    boundary->addVertexAt(0, AcGePoint2d(0, 0));
    boundary->addVertexAt(1, AcGePoint2d(24000, 0));
    boundary->addVertexAt(2, AcGePoint2d(24000, 12000), 0.12);
    boundary->addVertexAt(3, AcGePoint2d(0, 12000));
    boundary->setClosed(Adesk::kTrue);
    LayoutBoundaryData data = boundary->GetImp()->GetData();
    data.titleText = L"布置轮廓 屋面A";
    data.titleHeight = 400;
    // From the centre of the extents down to the middle zone's foot.
    data.titleOffset = AcGePoint3d(-1400, -6120, 0);
    boundary->GetImp()->SetData(data);
    Append(db, boundary);
}

void AddRectOpening(AcDbDatabase* db, const AcDbObjectId& dimStyle)
{
    auto* opening = new AecRectOpening();
    opening->setDatabaseDefaults(db);
    opening->setLayer(L"QX-洞口");
    opening->SetAnchorPosType(AecRectOpening::kCenter);
    opening->Set(AcGePoint3d(14000, 6000, 0), 1200, 900);
    opening->SetTextStyleId(db->textstyle());
    if (!dimStyle.isNull())
        opening->SetDimStyleId(dimStyle);
    opening->SetTitleText(L"检修口 1200×900");
    opening->SetTitleHeight(250);
    opening->SetIsShowDim(true);
    Append(db, opening);
}

void AddLShapedOpening(AcDbDatabase* db)
{
    auto* opening = new AecPolyOpening();
    opening->setDatabaseDefaults(db);
    opening->setLayer(L"QX-洞口");
    const AcGePoint2d corners[] = {{7200, 1200}, {8800, 1200}, {8800, 2200}, {8000, 2200}, {8000, 3400}, {7200, 3400}};
    for (unsigned int i = 0; i < 6; ++i)
        opening->addVertexAt(i, corners[i]);
    opening->setClosed(Adesk::kTrue);
    opening->SetDisplayAidTitle(L"异形窗 L1");
    Append(db, opening);
}

// The eave: the arc over the chord (0,12000)-(24000,12000) that bulges up by 0.12.
struct Eave {
    static constexpr double kBulge = 0.12;
    static constexpr double kChord = 24000.0;
    static double Radius() { return kChord / (2.0 * std::sin(2.0 * std::atan(kBulge))); }
    static AcGePoint2d Center() { return {12000.0, 12000.0 + kBulge * kChord / 2.0 - Radius()}; }
    static double Y(double x)
    {
        const double dx = x - Center().x;
        return Center().y + std::sqrt(Radius() * Radius() - dx * dx);
    }
    // The bulge of the eave's piece from x = from to x = to, run right to left.
    static double Bulge(double from, double to)
    {
        const AcGePoint2d c = Center();
        const double start = std::atan2(Y(from) - c.y, from - c.x);
        const double end = std::atan2(Y(to) - c.y, to - c.x);
        return std::tan((end - start) / 4.0);
    }
};

struct Hole {
    std::vector<AcGePoint2d> points;
    std::vector<double> bulges;
};

// A round hole: two half circles.
Hole RoundHole(double x, double y, double radius)
{
    return {{{x - radius, y}, {x + radius, y}}, {1.0, 1.0}};
}

Hole PolygonHole(std::vector<AcGePoint2d> points)
{
    return {points, std::vector<double>(points.size(), 0.0)};
}

// One sheet from x0 to x1, from the ridge purlin line up to the eave, laid along Y.
void AddPanel(AcDbDatabase* db, int number, double x0, double x1, const std::vector<Hole>& holes)
{
    auto* panel = new AecPanel();
    panel->setDatabaseDefaults(db);
    panel->setLayer(L"QX-板材");
    AcString basic;
    basic.format(L"{\"productSeries\":\"JXB\",\"panelName\":\"屋面夹芯板\",\"banLeiXing\":\"JXB-2000\","
                 L"\"thickness\":0.5,\"standardWidth\":2000,\"innerColor\":\"海蓝\",\"outColor\":\"灰白\","
                 L"\"lengthDirection\":[0,1],\"slopeInputRaw\":\"5%%\",\"slopeAngleRadians\":0.04996,"
                 L"\"anchorModeLength\":1,\"anchorModeWidth\":1,\"constructionArea\":\"屋面A\","
                 L"\"materialCode\":\"M-JXB-50\",\"uniqueNum\":\"P-A%02d\",\"layoutConfigId\":\"LC-A\","
                 L"\"materialData\":{\"芯材\":\"岩棉 50mm\",\"面板\":\"0.5 镀铝锌\"}}",
                 number);
    AcString numbering;
    numbering.format(L"{\"isNumbered\":true,\"finalDisplayNumber\":\"WB-%02d\",\"sequence\":%d,"
                     L"\"customPrefix_1\":\"WB\"}",
                     number, number);
    AcString accessory;
    accessory.format(L"[{\"名称\":\"自攻螺钉 ST6.3×80\",\"数量\":%d},{\"名称\":\"丁基密封胶带\",\"长度\":%.0f}]",
                     static_cast<int>((x1 - x0) / 500.0) * 6, x1 - x0);
    panel->SetAllPanelInfoFromJson(
        basic.kwszPtr(), numbering.kwszPtr(),
        L"{\"patternType\":1,\"patternName\":\"ANSI31\",\"patScale\":1600,\"patternAngle\":0,\"patFillColor\":8}",
        L"{\"direction\":0,\"sequenceNumber\":1,\"relatedPanelHandles\":[]}", L"{\"shapeType\":0,\"position\":0}",
        accessory.kwszPtr());

    AcArray<AcGePoint2d> outline;
    AcArray<double> bulges;
    const AcGePoint2d corners[] = {{x0, 0.0}, {x1, 0.0}, {x1, Eave::Y(x1)}, {x0, Eave::Y(x0)}};
    const double cornerBulges[] = {0.0, 0.0, Eave::Bulge(x1, x0), 0.0};
    for (int i = 0; i < 4; ++i) {
        outline.append(corners[i]);
        bulges.append(cornerBulges[i]);
    }
    panel->SetOuterLoopFromPointsWithBulges(outline, bulges);
    for (const Hole& hole : holes) {
        AcArray<AcGePoint2d> points;
        AcArray<double> holeBulges;
        for (std::size_t i = 0; i < hole.points.size(); ++i) {
            points.append(hole.points[i]);
            holeBulges.append(hole.bulges[i]);
        }
        panel->SetLoopFromPointsWithBulgesAt(panel->GetLoopCount(), points, holeBulges);
    }

    AcString label;
    label.format(L"WB-%02d", number);
    DbxPanel::TextLabel numberLabel;
    numberLabel.SetType(DbxPanel::TextLabelType::kNumber);
    numberLabel.SetString(label);
    numberLabel.SetTextHeight(x1 - x0 < 1500.0 ? 200.0 : 300.0);
    numberLabel.SetDirectionMode(DbxPanel::TextDirectionMode::kPerpendicular);
    panel->SetTextLabel(numberLabel);
    AcString bottom;
    bottom.format(L"JXB-2000 L=%.0f", Eave::Y(0.5 * (x0 + x1)));
    DbxPanel::TextLabel bottomLabel;
    bottomLabel.SetType(DbxPanel::TextLabelType::kBottomText);
    bottomLabel.SetString(bottom);
    bottomLabel.SetTextHeight(150.0);
    bottomLabel.SetPredefinedPositionType(DbxPanel::PredefinedTextPosition::kNearBottomEdge);
    panel->SetTextLabel(bottomLabel);
    Append(db, panel);
}

// Thirteen sheets 2000 wide (half sheets at the gables) with holes 50 clear of the
// openings they carry.
void AddPanels(AcDbDatabase* db)
{
    std::vector<double> joints = {0.0};
    for (double x = 1000.0; x < 24000.0; x += 2000.0)
        joints.push_back(x);
    joints.push_back(24000.0);
    for (std::size_t i = 0; i + 1 < joints.size(); ++i) {
        const double x0 = joints[i];
        const double x1 = joints[i + 1];
        std::vector<Hole> holes;
        if (x0 == 3000.0)
            holes.push_back(RoundHole(4000, 6000, 650));
        if (x0 == 7000.0)
            holes.push_back(
                PolygonHole({{7150, 1150}, {8850, 1150}, {8850, 2250}, {8050, 2250}, {8050, 3450}, {7150, 3450}}));
        if (x0 == 11000.0)
            holes.push_back(RoundHole(12000, 4000, 500));
        if (x0 == 13000.0)
            holes.push_back(PolygonHole({{13350, 5500}, {14650, 5500}, {14650, 6500}, {13350, 6500}}));
        if (x0 == 19000.0)
            holes.push_back(RoundHole(20000, 7500, 350));
        AddPanel(db, static_cast<int>(i) + 1, x0, x1, holes);
    }
}

// The gable flashings up both sides of the bay, labelled from their information.
void AddGableFlashing(AcDbDatabase* db, double x, const ACHAR* number)
{
    auto* line = new AecShouBianLine();
    line->setDatabaseDefaults(db);
    line->setLayer(L"QX-收边线");
    const bool east = x > 0.0;
    // Drawn up the west gable and down the east one, so that the band's left lies outside.
    line->AppendVertex(AcGePoint3d(x, east ? Eave::Y(x) : 0.0, 0));
    line->AppendVertex(AcGePoint3d(x, east ? 0.0 : Eave::Y(x), 0));
    line->SetIndentLeft(150);
    line->SetIndentRight(100);
    line->SetLineLayerName(L"QX-收边线");
    line->SetTextLayerName(L"QX-收边线");
    line->SetDrawOptions(static_cast<ShouBianDrawOptions>(CenterLine | BoundaryLine | TextLabel));
    DbxPanel::TextLabel label;
    label.SetTextHeight(250);
    line->SetTextLabelAt(0, label);
    AcString json;
    json.format(L"{\"baseInfo\":{\"shouBianNumber\":\"%s\",\"shouBianName\":\"山墙包角\"},"
                L"\"规格\":\"0.5 镀铝锌 展开 350\"}",
                number);
    line->SetShouBianJsonStr(json.kwszPtr());
    Append(db, line);
}

// The rafter under the middle of the bay.
void AddRafter(AcDbDatabase* db)
{
    auto* member = new AecSteelMember();
    member->setDatabaseDefaults(db);
    member->setLayer(L"QX-钢构件");
    member->SetPoints(AcGePoint3d(12000, 0, 0), AcGePoint3d(12000, 12000, 0));
    member->SetCenteredWidth(300);
    member->SetKind(kSteelBeam);
    Append(db, member);
}

}  // namespace

void BuildDemoDrawing(AcDbDatabase* db)
{
    EnsureDashedLinetype(db);
    AddLayer(db, L"QX-洞口", 4);
    AddLayer(db, L"QX-节点线", 3);
    AddLayer(db, L"QX-节点边界", 1);
    AddLayer(db, L"QX-搭接线", 6);
    AddLayer(db, L"QX-结构线", 5);
    AddLayer(db, L"QX-收边线", 30);
    AddLayer(db, L"QX-布置轮廓", 6);
    AddLayer(db, L"QX-板材", 3);
    AddLayer(db, L"QX-钢构件", 8);
    const AcDbObjectId dimStyle = AddDimensionStyle(db);

    AddBoundary(db);
    AddPanels(db);

    // Three zones of a 24 m bay, divided by two straight lines and an arced eave line.
    AddDivisionLine(db, AcGePoint3d(9000, 0, 0), AcGePoint3d(9000, 12000, 0), 0.0, L"J-01");
    AddDivisionLine(db, AcGePoint3d(17000, 0, 0), AcGePoint3d(17000, 12000, 0), 0.0, L"J-02");
    AddDivisionLine(db, AcGePoint3d(0, 12000, 0), AcGePoint3d(24000, 12000, 0), -0.12, L"J-03");

    // Two purlins across the bay, and a side lap in each outer zone (the second drawn from
    // the eave down, its right sheet on top).
    AddPurlin(db, AcGePoint3d(0, 3000, 0), AcGePoint3d(24000, 3000, 0), L"L-01");
    AddPurlin(db, AcGePoint3d(0, 9000, 0), AcGePoint3d(24000, 9000, 0), L"L-02");
    AddOverlapLine(db, AcGePoint3d(3000, 0, 0), AcGePoint3d(3000, 12000, 0), LeftOverRight, L"DJ-01");
    AddOverlapLine(db, AcGePoint3d(21000, 12000, 0), AcGePoint3d(21000, 0, 0), RightOverLeft, L"DJ-02");

    AddOpening(db, AcGePoint3d(4000, 6000, 0), 600, L"采光孔 D1200");
    AddOpening(db, AcGePoint3d(12000, 4000, 0), 450, L"排风孔 D900");
    AddOpening(db, AcGePoint3d(20000, 7500, 0), 300, L"管道孔 D600");
    AddRectOpening(db, dimStyle);
    AddLShapedOpening(db);
    AddGableFlashing(db, 0.0, L"SB-01");
    AddGableFlashing(db, 24000.0, L"SB-02");
    AddRafter(db);
}

}  // namespace quarvo
