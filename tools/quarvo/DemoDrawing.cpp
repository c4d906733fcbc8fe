// The built-in example: a roof bay inside its layout boundary, with the division lines
// between its panel zones (straight and arced), the side laps between its sheets, the
// purlins that carry them, three round roof-light openings, a rectangular hatch opening
// with its dimensions and an L-shaped opening.
#include "DemoDrawing.h"

#include "dbmain.h"
#include "dbsymtb.h"
#include "geometry/EntityCreation.h"
#include "lines/AecDivisionLine.h"
#include "lines/AecOverlapLine.h"
#include "lines/AecStructuralLine.h"
#include "openings/AecCircleOpening.h"
#include "openings/AecLayoutBoundary.h"
#include "openings/AecPolyOpening.h"
#include "openings/AecRectOpening.h"

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
    opening->Set(AcGePoint3d(20000, 3500, 0), 2400, 1500);
    opening->SetTextStyleId(db->textstyle());
    if (!dimStyle.isNull())
        opening->SetDimStyleId(dimStyle);
    opening->SetTitleText(L"检修口 2400×1500");
    opening->SetTitleHeight(250);
    opening->SetIsShowDim(true);
    Append(db, opening);
}

void AddLShapedOpening(AcDbDatabase* db)
{
    auto* opening = new AecPolyOpening();
    opening->setDatabaseDefaults(db);
    opening->setLayer(L"QX-洞口");
    const AcGePoint2d corners[] = {{1200, 1200}, {6000, 1200}, {6000, 3000}, {3600, 3000}, {3600, 4800}, {1200, 4800}};
    for (unsigned int i = 0; i < 6; ++i)
        opening->addVertexAt(i, corners[i]);
    opening->setClosed(Adesk::kTrue);
    opening->SetDisplayAidTitle(L"异形窗 L1");
    Append(db, opening);
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
    const AcDbObjectId dimStyle = AddDimensionStyle(db);

    AddBoundary(db);

    // Three zones of a 24 m bay, divided by two straight lines and an arced eave line.
    AddDivisionLine(db, AcGePoint3d(8000, 0, 0), AcGePoint3d(8000, 12000, 0), 0.0, L"J-01");
    AddDivisionLine(db, AcGePoint3d(16000, 0, 0), AcGePoint3d(16000, 12000, 0), 0.0, L"J-02");
    AddDivisionLine(db, AcGePoint3d(0, 12000, 0), AcGePoint3d(24000, 12000, 0), -0.12, L"J-03");

    // Two purlins across the bay, and a side lap in each outer zone (the second drawn from
    // the eave down, its right sheet on top).
    AddPurlin(db, AcGePoint3d(0, 3000, 0), AcGePoint3d(24000, 3000, 0), L"L-01");
    AddPurlin(db, AcGePoint3d(0, 9000, 0), AcGePoint3d(24000, 9000, 0), L"L-02");
    AddOverlapLine(db, AcGePoint3d(2000, 0, 0), AcGePoint3d(2000, 12000, 0), LeftOverRight, L"DJ-01");
    AddOverlapLine(db, AcGePoint3d(21500, 12000, 0), AcGePoint3d(21500, 0, 0), RightOverLeft, L"DJ-02");

    AddOpening(db, AcGePoint3d(4000, 6000, 0), 600, L"采光孔 D1200");
    AddOpening(db, AcGePoint3d(12000, 4000, 0), 450, L"排风孔 D900");
    AddOpening(db, AcGePoint3d(20000, 7500, 0), 300, L"管道孔 D600");
    AddRectOpening(db, dimStyle);
    AddLShapedOpening(db);
}

}  // namespace quarvo
