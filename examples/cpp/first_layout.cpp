// The first layout: load the module into a headless session, lay a panel and a division
// line in a new drawing, save it, open it again, list what is in it and plot it.
//
// Usage: first_layout MODULE OUT_FOLDER
#include <cstdio>
#include <string>

#include "acutads.h"
#include "dbmain.h"
#include "dbsymtb.h"
#include "geometry/EntityCreation.h"
#include "headless/Session.h"
#include "headless/SvgPlot.h"
#include "headless/TextCodec.h"
#include "lines/AecDivisionLine.h"
#include "panel/AecPanel.h"
#include "rxdlinkr.h"

namespace {

// A 6000 by 750 sheet laid along X, numbered and described.
AecPanel* MakePanel()
{
    auto* panel = new AecPanel();
    AcArray<AcGePoint2d> outline;
    outline.append(AcGePoint2d(0, 0));
    outline.append(AcGePoint2d(6000, 0));
    outline.append(AcGePoint2d(6000, 750));
    outline.append(AcGePoint2d(0, 750));
    panel->SetOuterLoopFromPoints(outline);
    panel->SetPanelBasicInfoJsonStr(
        L"{\"banLeiXing\":\"YX35-125-750\",\"thickness\":0.6,\"standardWidth\":750,\"lengthDirection\":[1,0]}");
    panel->SetHatchPatternInfoJsonStr(
        L"{\"patternType\":1,\"patternName\":\"ANSI31\",\"patScale\":400,\"patternAngle\":0,\"patFillColor\":8}");
    panel->SetTextLabel(DbxPanel::TextLabelType::kNumber, L"A-01", DbxPanel::PredefinedTextPosition::kCenter);
    panel->FlushGraphicSubEntities(false);
    return panel;
}

// The joint at the panel's end.
AecDivisionLine* MakeDivisionLine()
{
    auto* line = new AecDivisionLine();
    line->SetPoints(AcGePoint3d(6000, -500, 0), AcGePoint3d(6000, 1250, 0));
    line->SetIndentLeft(100);
    line->SetIndentRight(100);
    line->SetNodeBasicJsonStr(L"{\"编号\":\"J-01\"}");
    return line;
}

// Every entity of model space lists itself.
void ListModelSpace(AcDbDatabase* db)
{
    AcDbBlockTableRecord* space = nullptr;
    if (acdbOpenObject(space, db->currentSpaceId(), AcDb::kForRead) != Acad::eOk)
        return;
    AcDbBlockTableRecordIterator* it = nullptr;
    space->newIterator(it);
    for (; !it->done(); it->step()) {
        AcDbEntity* entity = nullptr;
        if (it->getEntity(entity, AcDb::kForRead) == Acad::eOk) {
            entity->list();
            entity->close();
        }
    }
    delete it;
    space->close();
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: first_layout MODULE OUT_FOLDER\n");
        return 2;
    }
    const std::wstring module = headless::fromUtf8(argv[1]);
    const std::wstring drawing = headless::fromUtf8(argv[2]) + L"/first.qxd";

    // Loading the module registers its classes with the host.
    if (!acrxDynamicLinker->loadModule(module.c_str(), false))
        return 1;
    {
        headless::Session session;
        AcApDocument* doc = session.newDocument();
        // Edits run as a command of the document: locked, current, one undo group.
        session.runCommand(doc, [doc] {
            for (AcDbEntity* entity :
                 {static_cast<AcDbEntity*>(MakePanel()), static_cast<AcDbEntity*>(MakeDivisionLine())})
                if (AddToCurrentSpace(entity, doc->database()) == Acad::eOk)
                    entity->close();
        });
        if (session.saveAs(doc, drawing) != Acad::eOk)
            return 1;
        session.close(doc);

        // Opened again, the entities come back whole; nothing is a proxy.
        AcApDocument* reopened = nullptr;
        headless::DrawingReadReport report;
        if (session.openDocument(drawing, reopened, &report) != Acad::eOk)
            return 1;
        acutPrintf(L"Reopened: %d objects, %d proxies\n", report.objects, report.proxies);
        ListModelSpace(reopened->database());
        headless::SvgPlot::plot(reopened->database(), headless::fromUtf8(argv[2]) + L"/first.svg",
                                headless::SvgPlotOptions());
        session.close(reopened);
    }
    acrxDynamicLinker->unloadModule(module.c_str(), false);
    return 0;
}
