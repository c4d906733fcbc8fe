#include "PanelTestSupport.h"

#include <tuple>

namespace paneltest {

namespace {

void SetLoop(AecPanel& panel, int loop, std::initializer_list<std::tuple<double, double, double>> vertices)
{
    AcArray<AcGePoint2d> points;
    AcArray<double> bulges;
    for (const auto& [x, y, b] : vertices) {
        points.append(AcGePoint2d(x, y));
        bulges.append(b);
    }
    panel.SetLoopFromPointsWithBulgesAt(loop, points, bulges);
}

}  // namespace

void MakeRectangle(AecPanel& panel, double length, double width)
{
    SetLoop(panel, 0, {{0, 0, 0}, {length, 0, 0}, {length, width, 0}, {0, width, 0}});
}

void AddSquareHole(AecPanel& panel, double x, double y, double half)
{
    SetLoop(panel, panel.GetLoopCount(),
            {{x - half, y - half, 0}, {x + half, y - half, 0}, {x + half, y + half, 0}, {x - half, y + half, 0}});
}

AecPanel* RichPanel()
{
    auto* panel = new AecPanel();
    panel->SetAllPanelInfoFromJson(
        L"{\"productSeries\":\"YX\",\"banLeiXing\":\"YX35-125-750\",\"thickness\":0.6,\"standardWidth\":750,"
        L"\"lengthDirection\":[1,0],\"anchorModeLength\":1,\"anchorModeWidth\":2,"
        L"\"panelParameters\":[{\"名称\":\"有效宽度\",\"值\":750}],\"primaryAxis\":\"A\",\"secondaryAxisStart\":\"1\","
        L"\"secondaryAxisEnd\":\"9\",\"constructionArea\":\"1# 厂房屋面\",\"guiBingLength\":12000,"
        L"\"guiBingWidth\":750,\"materialCode\":\"M-YX35\",\"uniqueNum\":\"P-S0071\",\"layoutConfigId\":\"LC-2026-11\","
        L"\"materialData\":{\"基板\":\"镀铝锌 AZ150\"}}",
        L"{\"isNumbered\":true,\"finalDisplayNumber\":\"WM-A-07\",\"sequence\":7,\"customPrefix_1\":\"WM\","
        L"\"mergeSuffix\":\"-1\"}",
        L"{\"patternType\":1,\"patternName\":\"ANSI31\",\"patScale\":40,\"patternAngle\":45,\"patFillColor\":8}",
        L"{\"direction\":1,\"handle\":\"2A\",\"sequenceNumber\":2,\"relatedPanelHandles\":[\"2B\"],"
        L"\"mergedLength\":18000,\"mergedWidth\":750}",
        L"{\"shapeType\":0,\"position\":3}", L"[{\"名称\":\"自攻螺钉\",\"数量\":24}]");
    SetLoop(*panel, 0, {{0, 0, 0}, {12000, 0, 0.25}, {12000, 750, 0}, {6000, 750, 0}, {0, 750, 0}});
    SetLoop(*panel, 1, {{3000, 200, 0}, {3400, 200, 0}, {3400, 500, 0}, {3000, 500, 0}});
    SetLoop(*panel, 2, {{7900, 375, 1.0}, {8100, 375, 1.0}});
    DbxPanel::TextLabel number;
    number.SetType(DbxPanel::TextLabelType::kNumber);
    number.SetString(L"WM-A-07");
    number.SetTextHeight(200);
    number.SetDirectionMode(DbxPanel::TextDirectionMode::kPerpendicular);
    panel->SetTextLabel(number);
    panel->SetTextLabel(DbxPanel::TextLabelType::kBottomText, L"YX35-125-750 L=12000",
                        DbxPanel::PredefinedTextPosition::kNearBottomEdge);
    return panel;
}

}  // namespace paneltest
