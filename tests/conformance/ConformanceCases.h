// The entity classes of the conformance suite. Each joins with a ConformanceCase
// specialisation (a sample instance, the host class it files first, an edit) and one
// entry in ConformanceTypes.
#pragma once

#include <gtest/gtest.h>

#include <tuple>
#include <utility>

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
#include "panel/AecPanelLite.h"

template <typename T>
struct ConformanceCase;

// How a class files its version right after the host class's fields: most as a 32-bit
// integer, some as a 16-bit one.
template <typename T>
struct ClassVersion {
    static constexpr std::size_t kBytes = 4;
    static constexpr long kCurrent = T::kCurrentVersion;
};

template <>
struct ClassVersion<AecPanelLite> {
    static constexpr std::size_t kBytes = 2;
    static constexpr long kCurrent = AecPanelLite::m_curVersion;
};

template <>
struct ConformanceCase<AecPanel> {
    using HostBase = AcDbEntity;
    // A 6000 by 750 sheet laid along X with a round hole, its end cut on an arc, labelled,
    // hatched, and with every information block filled.
    static AecPanel* MakeSample()
    {
        auto* panel = new AecPanel();
        panel->SetAllPanelInfoFromJson(
            L"{\"banLeiXing\":\"YX35-125-750\",\"thickness\":0.6,\"standardWidth\":750,"
            L"\"lengthDirection\":[1,0],\"anchorModeLength\":1,\"anchorModeWidth\":1,\"uniqueNum\":\"P-1\"}",
            L"{\"isNumbered\":true,\"finalDisplayNumber\":\"A-01\",\"sequence\":1}",
            L"{\"patternType\":1,\"patternName\":\"ANSI31\",\"patScale\":40,\"patternAngle\":0,"
            L"\"patFillColor\":8}",
            L"{\"direction\":0,\"sequenceNumber\":1,\"relatedPanelHandles\":[]}", L"{\"shapeType\":0,\"position\":0}",
            L"[{\"名称\":\"螺钉\",\"数量\":12}]");
        AcArray<AcGePoint2d> outline;
        AcArray<double> bulges;
        for (const auto& [x, y, b] :
             {std::tuple<double, double, double>{0, 0, 0}, {6000, 0, 0.2}, {6000, 750, 0}, {0, 750, 0}}) {
            outline.append(AcGePoint2d(x, y));
            bulges.append(b);
        }
        panel->SetOuterLoopFromPointsWithBulges(outline, bulges);
        AcArray<AcGePoint2d> hole;
        AcArray<double> round;
        for (const auto& [x, y] : {std::pair<double, double>{3100, 375}, {3000, 475}, {2900, 375}, {3000, 275}}) {
            hole.append(AcGePoint2d(x, y));
            round.append(0.41421356237309503);
        }
        panel->SetLoopFromPointsWithBulgesAt(1, hole, round);
        panel->SetTextLabel(DbxPanel::TextLabelType::kNumber, L"A-01", DbxPanel::PredefinedTextPosition::kCenter);
        panel->SetTextLabel(DbxPanel::TextLabelType::kBottomText, L"YX35-125-750 L=6000",
                            DbxPanel::PredefinedTextPosition::kNearBottomEdge);
        return panel;
    }
    static void Edit(AecPanel* panel)
    {
        panel->UpdateTextContent(DbxPanel::TextLabelType::kNumber, L"A-02");
        panel->SetGeomLengthAndFlush(6500, true);
    }
};

template <>
struct ConformanceCase<AecPanelLite> {
    using HostBase = AcDbEntity;
    // A 6000 by 750 sheet with one arced end and a round hole, hatched.
    static AecPanelLite* MakeSample()
    {
        auto* panel = new AecPanelLite();
        AcArray<AcGePoint2d> outline;
        AcArray<double> bulges;
        for (const auto& [x, y, b] :
             {std::tuple<double, double, double>{0, 0, 0}, {6000, 0, 0.2}, {6000, 750, 0}, {0, 750, 0}}) {
            outline.append(AcGePoint2d(x, y));
            bulges.append(b);
        }
        panel->AppendLoop(outline, bulges);
        AcArray<AcGePoint2d> hole;
        AcArray<double> round;
        for (const auto& [x, y] : {std::pair<double, double>{3100, 375}, {2900, 375}}) {
            hole.append(AcGePoint2d(x, y));
            round.append(1.0);
        }
        panel->AppendLoop(hole, round);
        panel->SetOutlineAndPattern(AcDbHatch::kPreDefined, L"ANSI31", 40.0, 0.25, 8, 1.5);
        return panel;
    }
    static void Edit(AecPanelLite* panel)
    {
        panel->SetPatScale(60.0);
        panel->AddVertex(AcGePoint3d(3000, -100, 0));
    }
};

template <>
struct ConformanceCase<AecSteelMember> {
    using HostBase = AcDbCurve;
    static AecSteelMember* MakeSample()
    {
        auto* member = new AecSteelMember();
        member->SetPoints(AcGePoint3d(500, 300, 0), AcGePoint3d(6500, 1800, 0));
        member->SetWidths(120, 80);
        member->SetKind(kSteelColumn);
        member->SetDisplayOptions(static_cast<SteelMemberDisplayOptions>(kSteelDisplayAxis | kSteelDisplayOutline |
                                                                         kSteelDisplaySectionCross));
        return member;
    }
    static void Edit(AecSteelMember* member)
    {
        member->SetEndPoint(AcGePoint3d(7000, 2000, 0));
        member->SetCenteredWidth(300);
    }
};

template <>
struct ConformanceCase<AecShouBianLine> {
    using HostBase = AcDbCurve;
    // A ridge flashing over three vertices, the second segment an arc, with its band and
    // label shown.
    static AecShouBianLine* MakeSample()
    {
        auto* line = new AecShouBianLine();
        line->AppendVertex(AcGePoint3d(0, 12000, 0), 0.0);
        line->AppendVertex(AcGePoint3d(6000, 12000, 0), 0.15);
        line->AppendVertex(AcGePoint3d(12000, 12500, 0), 0.0);
        line->SetIndentLeft(120);
        line->SetIndentRight(80);
        line->SetDrawOptions(static_cast<ShouBianDrawOptions>(CenterLine | BoundaryLine | TextLabel));
        line->SetShouBianJsonStr(L"{\"baseInfo\":{\"shouBianNumber\":\"SB-03\",\"shouBianName\":\"屋脊盖板\"}}");
        return line;
    }
    static void Edit(AecShouBianLine* line)
    {
        line->SetVertexAt(2, AcGePoint3d(12500, 12600, 0));
        line->SetIndentRight(150);
    }
};

template <>
struct ConformanceCase<AecCircleOpening> {
    using HostBase = AcDbCircle;
    static AecCircleOpening* MakeSample()
    {
        auto* opening = new AecCircleOpening();
        opening->setCenter(AcGePoint3d(1200, 800, 0));
        opening->setRadius(150);
        CircleOpeningData data = opening->GetData();
        data.titleLabel.SetLabel(L"D300");
        data.titleLabel.SetVisible(true);
        data.titleLabel.SetPosition(AcGePoint3d(1200, 1000, 0));
        data.titleLabel.SetHeight(80);
        opening->SetData(data);
        return opening;
    }
    static void Edit(AecCircleOpening* opening)
    {
        opening->setRadius(175);
        CircleOpeningData data = opening->GetData();
        data.titleLabel.SetLabel(L"D350");
        opening->SetData(data);
    }
};

template <>
struct ConformanceCase<AecDivisionLine> {
    using HostBase = AcDbCurve;
    static AecDivisionLine* MakeSample()
    {
        auto* line = new AecDivisionLine();
        line->SetBulge(0.25);  // before the points, so that the label lands on the arc
        line->SetPoints(AcGePoint3d(1000, 500, 0), AcGePoint3d(3400, 1300, 0));
        line->SetIndentLeft(40);
        line->SetIndentRight(60);
        line->SetJieDianBoundaryColorIndex(3);
        line->SetNodeBasicJsonStr(L"{\"编号\":\"JD-7\"}");
        return line;
    }
    static void Edit(AecDivisionLine* line)
    {
        line->SetEndPoint(AcGePoint3d(3600, 1500, 0));
        line->SetIndentRight(75);
        line->SetAccessoryJsonStr(L"[\"螺钉\"]");
    }
};

template <>
struct ConformanceCase<AecOverlapLine> {
    using HostBase = AcDbCurve;
    static AecOverlapLine* MakeSample()
    {
        auto* line = new AecOverlapLine();
        line->SetPoints(AcGePoint3d(3200, 400, 0), AcGePoint3d(900, 1500, 0));  // drawn right to left
        line->SetOverlapLeft(60);
        line->SetOverlapRight(90);
        line->SetOverlapDirection(RightOverLeft);
        line->SetDrawOptions(
            static_cast<OverlapDrawOptions>(kOverlapDrawCenterLine | kOverlapDrawBoundary | kOverlapDrawDirection));
        line->SetJieDianBoundaryColorIndex(2);
        line->SetShouBianJsonStr(L"{\"搭接\":\"两波\"}");
        return line;
    }
    static void Edit(AecOverlapLine* line)
    {
        line->SetStartPoint(AcGePoint3d(3400, 300, 0));
        line->SetOverlapDirection(LeftOverRight);
        line->SetNodeBasicJsonStr(L"{\"编号\":\"DJ-2\"}");
    }
};

template <>
struct ConformanceCase<AecStructuralLine> {
    using HostBase = AcDbCurve;
    static AecStructuralLine* MakeSample()
    {
        auto* line = new AecStructuralLine();
        line->SetPoints(AcGePoint3d(600, 2400, 0), AcGePoint3d(4200, 900, 0));
        line->SetMemberType(kStructuralBeam);
        line->SetMemberWidthLeft(80);
        line->SetMemberWidthRight(70);
        line->SetIndentLeft(55);
        line->SetIndentRight(90);  // wider than the member on that side
        line->SetDrawOptions(static_cast<StructuralDrawOptions>(
            kStructuralDrawCenterLine | kStructuralDrawMemberBoundary | kStructuralDrawIndentLines));
        line->SetShouBianLineColorIndex(6);
        line->SetAccessoryJsonStr(L"[\"檩托\"]");
        return line;
    }
    static void Edit(AecStructuralLine* line)
    {
        line->SetEndPoint(AcGePoint3d(4500, 1100, 0));
        line->SetIndentLeft(40);
        line->SetMemberType(kStructuralColumn);
    }
};

template <>
struct ConformanceCase<AecRectOpening> {
    using HostBase = AcDbCurve;
    static AecRectOpening* MakeSample()
    {
        auto* opening = new AecRectOpening();
        opening->Set(AcGePoint3d(2000, 1500, 0), 1200, 800);
        opening->SetDirX(AcGeVector3d(3, 1, 0));
        opening->SetAnchorPosType(AecRectOpening::kCenter);
        opening->SetTitleText(L"RO-1 1200x800");
        opening->SetIsShowDim(true);
        return opening;
    }
    static void Edit(AecRectOpening* opening)
    {
        opening->SetWidth(1500);
        opening->SetTitleText(L"RO-1 1500x800");
    }
};

template <>
struct ConformanceCase<AecPolyOpening> {
    using HostBase = AcDbPolyline;
    // A pentagon whose top is an arc.
    static AecPolyOpening* MakeSample()
    {
        auto* opening = new AecPolyOpening();
        opening->addVertexAt(0, AcGePoint2d(0, 0));
        opening->addVertexAt(1, AcGePoint2d(3000, 0));
        opening->addVertexAt(2, AcGePoint2d(3000, 1500), 0.3);
        opening->addVertexAt(3, AcGePoint2d(1000, 2200));
        opening->addVertexAt(4, AcGePoint2d(0, 1500));
        opening->setClosed(Adesk::kTrue);
        PolyOpeningData data = opening->GetData();
        data.titleText = L"异形窗 W-3";
        data.colorIndex = 5;
        data.ResizeSegmentLabels(2);
        data.segmentLabels[1].SetLabel(L"右边");
        opening->SetData(data);
        return opening;
    }
    static void Edit(AecPolyOpening* opening)
    {
        opening->setPointAt(3, AcGePoint2d(1200, 2400));
        opening->SetDisplayAidTitle(L"异形窗 W-4");
    }
};

template <>
struct ConformanceCase<AecLayoutBoundary> {
    using HostBase = AcDbPolyline;
    static AecLayoutBoundary* MakeSample()
    {
        auto* boundary = new AecLayoutBoundary();
        boundary->addVertexAt(0, AcGePoint2d(-500, -500));
        boundary->addVertexAt(1, AcGePoint2d(9500, -500));
        boundary->addVertexAt(2, AcGePoint2d(9500, 6500), -0.2);
        boundary->addVertexAt(3, AcGePoint2d(-500, 6500));
        boundary->setClosed(Adesk::kTrue);
        LayoutBoundaryData data = boundary->GetImp()->GetData();
        data.kind = 2;
        data.titleText = L"布置轮廓 A";
        data.titleOffset = AcGePoint3d(-1000, -2500, 0);
        data.titleHeight = 300;
        boundary->GetImp()->SetData(data);
        return boundary;
    }
    static void Edit(AecLayoutBoundary* boundary)
    {
        boundary->setPointAt(1, AcGePoint2d(10500, -500));
        LayoutBoundaryData data = boundary->GetImp()->GetData();
        data.titleHeight = 350;
        boundary->GetImp()->SetData(data);
    }
};

using ConformanceTypes =
    ::testing::Types<AecPanel, AecPanelLite, AecCircleOpening, AecDivisionLine, AecOverlapLine, AecStructuralLine,
                     AecSteelMember, AecShouBianLine, AecRectOpening, AecPolyOpening, AecLayoutBoundary>;
