// The built-in example: a roof bay with three roof-light openings, the division lines
// between its panel zones (straight and arced), the side laps between its sheets and the
// purlins that carry them.
#include "DemoDrawing.h"

#include "dbmain.h"
#include "dbsymtb.h"
#include "geometry/EntityCreation.h"
#include "lines/AecDivisionLine.h"
#include "lines/AecOverlapLine.h"
#include "lines/AecStructuralLine.h"
#include "openings/AecCircleOpening.h"

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
}

}  // namespace quarvo
