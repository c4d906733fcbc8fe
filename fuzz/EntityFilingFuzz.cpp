// Feeds arbitrary bytes to the filing of every entity class of the module: the first byte
// picks the class from the table below, the rest is what its dwgInFields reads. Whatever
// the bytes, reading must neither crash nor read out of bounds nor allocate without bound,
// and an entity that was read must file out, draw, explode and list.
#include <cstdint>
#include <iterator>
#include <memory>
#include <vector>

#include "dbmain.h"
#include "headless/CommandLine.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/RecordingWorldDraw.h"
#include "rxregsvc.h"
#include "support/FuzzDrawing.h"

namespace {

// The classes by the first byte (modulo the count). Append new classes at the end, so
// that the seeds keep meaning the class they were written for.
const ACHAR* const kEntityClasses[] = {
    L"AecRectOpening",     // 0
    L"AecPolyOpening",     // 1
    L"AecLayoutBoundary",  // 2
    L"AecPanelLite",       // 3
    L"AecCircleOpening",   // 4
    L"AecDivisionLine",    // 5
    L"AecOverlapLine",     // 6
    L"AecStructuralLine",  // 7
    L"AecSteelMember",     // 8
    L"AecPanel",           // 9
};

AcDbEntity* NewEntity(std::uint8_t kind)
{
    const ACHAR* name = kEntityClasses[kind % std::size(kEntityClasses)];
    const AcRxClass* cls = acrxFindAcRxClass(name);
    return cls != nullptr ? AcDbEntity::cast(cls->create()) : nullptr;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    AcDbDatabase* db = fuzzing::WorkingDrawing();
    headless::CommandLineCapture quiet;
    std::unique_ptr<AcDbEntity> entity(NewEntity(data[0]));
    if (entity == nullptr)
        return 0;
    headless::MemoryDwgFiler reader(std::vector<std::uint8_t>(data + 1, data + size), AcDb::kFileFiler, db);
    if (entity->dwgInFields(&reader) != Acad::eOk)
        return 0;
    headless::MemoryDwgFiler writer(AcDb::kFileFiler, db);
    entity->dwgOutFields(&writer);
    headless::RecordingWorldDraw draw;
    draw.setDatabase(db);
    draw.drawDrawable(entity.get());
    AcDbVoidPtrArray pieces;
    entity->explode(pieces);
    for (void* piece : pieces)
        delete static_cast<AcDbEntity*>(piece);
    entity->list();
    return 0;
}
