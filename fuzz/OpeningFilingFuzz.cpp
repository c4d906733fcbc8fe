// Feeds arbitrary bytes to the filing of the rectangular and polygonal openings and the
// layout boundary (the first byte chooses which). Whatever the bytes, reading must neither
// crash nor read out of bounds nor allocate without bound, and an entity that was read
// must file out, draw and list.
#include <cstdint>
#include <memory>
#include <vector>

#include "app/ClassRegistration.h"
#include "dbapserv.h"
#include "dbmain.h"
#include "headless/CommandLine.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/RecordingWorldDraw.h"
#include "openings/AecLayoutBoundary.h"
#include "openings/AecPolyOpening.h"
#include "openings/AecRectOpening.h"
#include "rxregsvc.h"

namespace {

// The classes registered and a working drawing for the styles, once for the whole run.
AcDbDatabase* Drawing()
{
    static AcDbDatabase* db = [] {
        Quarvo::RegisterModuleClasses();
        acrxBuildClassHierarchy();
        auto* created = new AcDbDatabase();
        acdbHostApplicationServices()->setWorkingDatabase(created);
        return created;
    }();
    return db;
}

AcDbEntity* NewEntity(std::uint8_t kind)
{
    switch (kind % 3) {
    case 0: return new AecRectOpening();
    case 1: return new AecPolyOpening();
    default: return new AecLayoutBoundary();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    AcDbDatabase* db = Drawing();
    headless::CommandLineCapture quiet;
    std::unique_ptr<AcDbEntity> entity(NewEntity(data[0]));
    headless::MemoryDwgFiler reader(std::vector<std::uint8_t>(data + 1, data + size), AcDb::kFileFiler, db);
    if (entity->dwgInFields(&reader) != Acad::eOk)
        return 0;
    headless::MemoryDwgFiler writer(AcDb::kFileFiler, db);
    entity->dwgOutFields(&writer);
    headless::RecordingWorldDraw draw;
    draw.setDatabase(db);
    draw.drawDrawable(entity.get());
    entity->list();
    return 0;
}
