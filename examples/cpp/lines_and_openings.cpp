// The layout lines and the openings: a side lap, a purlin, a flashing line with its band,
// a steel member, and a round, a rectangular and a polygonal opening inside a boundary.
//
// Usage: lines_and_openings MODULE
#include <cstdio>
#include <memory>
#include <string>

#include "acutads.h"
#include "headless/TextCodec.h"
#include "lines/AecOverlapLine.h"
#include "lines/AecShouBianLine.h"
#include "lines/AecSteelMember.h"
#include "lines/AecStructuralLine.h"
#include "openings/AecCircleOpening.h"
#include "openings/AecPolyOpening.h"
#include "openings/AecRectOpening.h"
#include "rxdlinkr.h"

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: lines_and_openings MODULE\n");
        return 2;
    }
    const std::wstring module = headless::fromUtf8(argv[1]);
    if (!acrxDynamicLinker->loadModule(module.c_str(), false))
        return 1;
    {
        // A side lap: the right sheet lies on the left one.
        AecOverlapLine lap;
        lap.SetPoints(AcGePoint3d(3000, 0, 0), AcGePoint3d(3000, 12000, 0));
        lap.SetOverlapLeft(100);
        lap.SetOverlapRight(100);
        lap.SetOverlapDirection(RightOverLeft);

        // A purlin, its member 150 wide, the sheets screwed 50 in from each side.
        AecStructuralLine purlin;
        purlin.SetPoints(AcGePoint3d(0, 3000, 0), AcGePoint3d(24000, 3000, 0));
        purlin.SetMemberType(kStructuralBeam);
        purlin.SetMemberWidthLeft(75);
        purlin.SetMemberWidthRight(75);

        // A ridge flashing: its label text comes from its information.
        AecShouBianLine flashing;
        flashing.AppendVertex(AcGePoint3d(0, 12000, 0));
        flashing.AppendVertex(AcGePoint3d(24000, 12000, 0));
        flashing.SetIndentLeft(250);
        flashing.SetIndentRight(250);
        flashing.SetShouBianJsonStr(L"{\"baseInfo\":{\"shouBianNumber\":\"SB-03\",\"shouBianName\":\"屋脊盖板\"}}");
        DbxPanel::TextLabel label;
        flashing.GetTextLabelAt(0, label);
        AcArray<void*> band;
        flashing.CreateBoundaryPolylines(band);
        acutPrintf(L"Flashing \"%s\": %d closed outline\n", label.GetString().kwszPtr(), band.length());
        for (void* outline : band)
            delete static_cast<AcDbPolyline*>(outline);

        // A rafter 300 wide: widths are held to 1..2000 on each side.
        AecSteelMember rafter;
        rafter.SetPoints(AcGePoint3d(12000, 0, 0), AcGePoint3d(12000, 12000, 0));
        rafter.SetCenteredWidth(300);
        acutPrintf(L"Rafter: %s\n", rafter.WidthText().kwszPtr());

        // Openings: a pipe, a skylight anchored at its centre, an L-shaped vent.
        AecCircleOpening pipe;
        pipe.setCenter(AcGePoint3d(4000, 6000, 0));
        pipe.setRadius(150);
        AecRectOpening skylight;
        skylight.SetAnchorPosType(AecRectOpening::kCenter);
        skylight.Set(AcGePoint3d(14000, 6000, 0), 1200, 900);
        AecPolyOpening vent;
        const AcGePoint2d corners[] = {{7200, 1200}, {8800, 1200}, {8800, 2200},
                                       {8000, 2200}, {8000, 3400}, {7200, 3400}};
        for (unsigned int i = 0; i < 6; ++i)
            vent.addVertexAt(i, corners[i]);
        vent.setClosed(Adesk::kTrue);
        AcGePoint3d inside;
        vent.GetInnerReferencePoint(inside);
        acutPrintf(L"Skylight corner: (%.0f, %.0f); vent's inner point: (%.0f, %.0f)\n",
                   skylight.GetBottomLeftPoint().x, skylight.GetBottomLeftPoint().y, inside.x, inside.y);
    }
    acrxDynamicLinker->unloadModule(module.c_str(), false);
    return 0;
}
