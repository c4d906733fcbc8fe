// Editing panels as the host does: a stretch that keeps only the part along the laying
// direction, a copy of part of a merge group, and an explode.
//
// Usage: panel_editing MODULE
#include <cstdio>
#include <string>

#include "acutads.h"
#include "dbmain.h"
#include "geometry/EntityCreation.h"
#include "headless/CloneCommand.h"
#include "headless/Session.h"
#include "headless/TextCodec.h"
#include "panel/AecPanel.h"
#include "rxdlinkr.h"

namespace {

AecPanel* MakePanel(double y0, double y1)
{
    auto* panel = new AecPanel();
    AcArray<AcGePoint2d> outline;
    outline.append(AcGePoint2d(0, y0));
    outline.append(AcGePoint2d(750, y0));
    outline.append(AcGePoint2d(750, y1));
    outline.append(AcGePoint2d(0, y1));
    panel->SetOuterLoopFromPoints(outline);
    panel->SetPanelBasicInfoJsonStr(L"{\"lengthDirection\":[0,1],\"guiBingLength\":6000}");
    return panel;
}

AcString HandleOf(const AcDbObjectId& id)
{
    ACHAR text[32] = {};
    id.handle().getIntoAsciiBuffer(text, 32);
    return AcString(text);
}

// Two sheets of one merge group: each names the other.
void Merge(const AcDbObjectId& a, const AcDbObjectId& b)
{
    for (const auto& [self, other] : {std::make_pair(a, b), std::make_pair(b, a)}) {
        AecPanel* panel = nullptr;
        if (acdbOpenObject(panel, self, AcDb::kForWrite) != Acad::eOk)
            continue;
        DbxPanel::PanelMergeInfo merge;
        merge.SetDirection(1);
        merge.SetHandle(HandleOf(self));
        merge.SetRelatedPanelHandles({HandleOf(other)});
        panel->SetPanelMergeInfo(merge);
        panel->close();
    }
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: panel_editing MODULE\n");
        return 2;
    }
    const std::wstring module = headless::fromUtf8(argv[1]);
    if (!acrxDynamicLinker->loadModule(module.c_str(), false))
        return 1;
    {
        headless::Session session;
        AcApDocument* doc = session.newDocument();
        session.runCommand(doc, [doc] {
            AecPanel* lower = MakePanel(0, 6000);
            AecPanel* upper = MakePanel(5800, 9000);
            AddToCurrentSpace(lower, doc->database());
            AddToCurrentSpace(upper, doc->database());
            const AcDbObjectId lowerId = lower->objectId();
            const AcDbObjectId upperId = upper->objectId();
            lower->close();
            upper->close();
            Merge(lowerId, upperId);

            // A stretch of the top edge by (300, 500): a panel laid along Y grows by 500 only.
            AecPanel* panel = nullptr;
            acdbOpenObject(panel, lowerId, AcDb::kForWrite);
            AcDbIntArray topEdge;
            topEdge.append(2);
            topEdge.append(3);
            panel->moveStretchPointsAt(topEdge, AcGeVector3d(300, 500, 0));
            acutPrintf(L"Stretched: %.0f long, %.0f wide\n", panel->GetGeomLength(), panel->GetGeomWidth());
            panel->close();

            // Copying one sheet of the group: the copy leaves the group, with one alert.
            AcDbObjectIdArray ids;
            ids.append(lowerId);
            AcDbObjectIdArray copies;
            headless::copyObjects(ids, copies);

            // Explode: the loop polylines and the label texts as plain entities.
            acdbOpenObject(panel, copies[0], AcDb::kForRead);
            AcDbVoidPtrArray pieces;
            panel->explode(pieces);
            acutPrintf(L"Exploded into %d entities\n", pieces.length());
            for (void* piece : pieces)
                delete static_cast<AcDbEntity*>(piece);
            panel->close();
        });
    }
    acrxDynamicLinker->unloadModule(module.c_str(), false);
    return 0;
}
