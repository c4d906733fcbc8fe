// Feeds arbitrary bytes to the lite panel's filing. Whatever the bytes, reading must
// neither crash nor read out of bounds nor allocate without bound (the counts are hostile),
// and a panel that was read must file out, draw, explode, list and report its area.
#include <cstdint>
#include <memory>
#include <vector>

#include "dbmain.h"
#include "headless/CommandLine.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/RecordingWorldDraw.h"
#include "panel/AecPanelLite.h"
#include "support/FuzzDrawing.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    AcDbDatabase* db = fuzzing::WorkingDrawing();
    headless::CommandLineCapture quiet;
    AecPanelLite panel;
    headless::MemoryDwgFiler reader(std::vector<std::uint8_t>(data, data + size), AcDb::kFileFiler, db);
    if (panel.dwgInFields(&reader) != Acad::eOk)
        return 0;
    headless::MemoryDwgFiler writer(AcDb::kFileFiler, db);
    panel.dwgOutFields(&writer);
    headless::RecordingWorldDraw draw;
    draw.setDatabase(db);
    draw.drawDrawable(&panel);
    AcDbVoidPtrArray pieces;
    panel.explode(pieces);
    for (void* piece : pieces)
        delete static_cast<AcDbEntity*>(piece);
    panel.list();
    panel.GetArea();
    return 0;
}
