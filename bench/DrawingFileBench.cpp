// Saving and opening drawings of host entities (lines, circles and texts in turn):
// objects per second and bytes per object on file.
#include <benchmark/benchmark.h>

#include <clocale>
#include <memory>
#include <vector>

#include "dbents.h"
#include "dbsymtb.h"
#include "headless/DrawingFile.h"

namespace {

// A drawing with count entities in model space.
std::unique_ptr<AcDbDatabase> drawingOf(int count)
{
    std::setlocale(LC_ALL, "C.UTF-8");
    auto db = std::make_unique<AcDbDatabase>();
    AcDbBlockTable* blocks = nullptr;
    db->getBlockTable(blocks, AcDb::kForRead);
    AcDbBlockTableRecord* model = nullptr;
    blocks->getAt(ACDB_MODEL_SPACE, model, AcDb::kForWrite);
    blocks->close();
    for (int i = 0; i < count; ++i) {
        const double x = (i % 100) * 10.0;
        const double y = (i / 100) * 10.0;
        AcDbEntity* entity = nullptr;
        switch (i % 3) {
        case 0: entity = new AcDbLine(AcGePoint3d(x, y, 0), AcGePoint3d(x + 8, y + 3, 0)); break;
        case 1: entity = new AcDbCircle(AcGePoint3d(x, y, 0), AcGeVector3d::kZAxis, 2.5); break;
        default: entity = new AcDbText(AcGePoint3d(x, y, 0), L"屋面板 P-12", db->textstyle(), 2.5); break;
        }
        model->appendAcDbEntity(entity);
        entity->close();
    }
    model->close();
    return db;
}

void setCounters(benchmark::State& state, std::size_t objects, std::size_t bytes)
{
    state.counters["objects"] = static_cast<double>(objects);
    state.counters["objects_per_second"] =
        benchmark::Counter(static_cast<double>(objects), benchmark::Counter::kIsIterationInvariantRate);
    state.counters["bytes_per_object"] = static_cast<double>(bytes) / static_cast<double>(objects);
}

void BM_SaveDrawing(benchmark::State& state)
{
    const auto db = drawingOf(static_cast<int>(state.range(0)));
    std::vector<std::uint8_t> bytes;
    for (auto _ : state) {
        headless::DrawingFile::write(db.get(), bytes);
        benchmark::DoNotOptimize(bytes.data());
    }
    setCounters(state, static_cast<std::size_t>(db->approxNumObjects()), bytes.size());
}

void BM_OpenDrawing(benchmark::State& state)
{
    std::vector<std::uint8_t> bytes;
    std::size_t objects = 0;
    {
        const auto db = drawingOf(static_cast<int>(state.range(0)));
        headless::DrawingFile::write(db.get(), bytes);
        objects = static_cast<std::size_t>(db->approxNumObjects());
    }
    for (auto _ : state) {
        AcDbDatabase* db = nullptr;
        headless::DrawingFile::read(bytes, db);
        benchmark::DoNotOptimize(db);
        state.PauseTiming();
        delete db;
        state.ResumeTiming();
    }
    setCounters(state, objects, bytes.size());
}

BENCHMARK(BM_SaveDrawing)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenDrawing)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);

}  // namespace
