// The module's entities at layout scale, each kind against the plain host entity of the same
// vertices, in the same run: save and open (entities per second, bytes per entity on file),
// regen (world draw of every entity), list, deep clone of all, and heap bytes per entity.
// Every kind of LayoutKinds() runs at 1,000, 10,000 and 100,000 entities, so the per-entity
// figures show the curve; bench/layout-ratios.py turns the JSON output into ratios.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <clocale>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "LayoutKinds.h"
#include "app/ClassRegistration.h"
#include "dbapserv.h"
#include "dbidmap.h"
#include "dbsymtb.h"
#include "headless/CommandLine.h"
#include "headless/DrawingFile.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/RecordingDwgFiler.h"
#include "headless/RecordingWorldDraw.h"
#include "headless/TextCodec.h"
#include "panel/AecPanel.h"
#include "rxregsvc.h"

namespace {

using bench::LayoutKind;

enum class Side { kCustom, kPlain };

// The module's classes, once for the whole run.
void RegisterOnce()
{
    static const bool registered = [] {
        std::setlocale(LC_ALL, "C.UTF-8");
        Quarvo::RegisterModuleClasses();
        acrxBuildClassHierarchy();
        acdbHostApplicationServices()->setWorkingDatabase(new AcDbDatabase());
        headless::setCommandLineEcho(false);
        return true;
    }();
    (void)registered;
}

AcDbObjectId ModelSpaceOf(AcDbDatabase* db)
{
    AcDbBlockTable* blocks = nullptr;
    db->getBlockTable(blocks, AcDb::kForRead);
    AcDbObjectId model;
    blocks->getAt(ACDB_MODEL_SPACE, model);
    blocks->close();
    return model;
}

// The model space entities of db, in order.
AcDbObjectIdArray EntitiesOf(AcDbDatabase* db)
{
    AcDbObjectIdArray ids;
    AcDbBlockTableRecord* model = nullptr;
    acdbOpenObject(model, ModelSpaceOf(db), AcDb::kForRead);
    AcDbBlockTableRecordIterator* it = nullptr;
    model->newIterator(it);
    for (; !it->done(); it->step()) {
        AcDbObjectId id;
        it->getEntityId(id);
        ids.append(id);
    }
    delete it;
    model->close();
    return ids;
}

// A drawing of count entities of kind (its module entity, or its plain counterpart).
std::unique_ptr<AcDbDatabase> LayoutOf(const LayoutKind& kind, Side side, int count)
{
    auto db = std::make_unique<AcDbDatabase>();
    AcDbBlockTableRecord* model = nullptr;
    acdbOpenObject(model, ModelSpaceOf(db.get()), AcDb::kForWrite);
    for (int i = 0; i < count; ++i) {
        AcDbEntity* entity = side == Side::kCustom ? kind.makeCustom(db.get(), i) : kind.makePlain(db.get(), i);
        model->appendAcDbEntity(entity);
        entity->close();
    }
    model->close();
    return db;
}

std::size_t FileSizeOf(AcDbDatabase* db)
{
    std::vector<std::uint8_t> bytes;
    headless::DrawingFile::write(db, bytes);
    return bytes.size();
}

void SetRate(benchmark::State& state, int count)
{
    state.counters["entities_per_second"] = benchmark::Counter(count, benchmark::Counter::kIsIterationInvariantRate);
    state.counters["ns_per_entity"] =
        benchmark::Counter(count * 1e-9, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// Counts the JSON text an object files: the strings that hold a JSON object or array, in
// the two bytes a UTF-16 code unit takes on file.
class JsonTextCounter : public headless::RecordingDwgFiler {
public:
    std::size_t bytes = 0;

    Acad::ErrorStatus writeString(const ACHAR* value) override
    {
        count(value != nullptr ? value : L"");
        return headless::RecordingDwgFiler::writeString(value);
    }
    Acad::ErrorStatus writeString(const AcString& value) override
    {
        count(value.kwszPtr());
        return headless::RecordingDwgFiler::writeString(value);
    }

private:
    void count(const ACHAR* text)
    {
        if (text[0] == L'{' || text[0] == L'[')
            bytes += 2 * headless::toUtf16(text).size();
    }
};

// What measure answers for each entity of db, on average.
double AveragePerEntity(AcDbDatabase* db, const std::function<std::size_t(const AcDbEntity*)>& measure)
{
    const AcDbObjectIdArray ids = EntitiesOf(db);
    std::size_t total = 0;
    for (const AcDbObjectId& id : ids) {
        AcDbEntity* entity = nullptr;
        if (acdbOpenObject(entity, id, AcDb::kForRead) != Acad::eOk)
            continue;
        total += measure(entity);
        entity->close();
    }
    return ids.isEmpty() ? 0.0 : static_cast<double>(total) / ids.length();
}

// The bytes of the entities' own records (what their dwgOut writes through a file filer),
// a share of what a drawing holds for them besides the kept graphics and the framing.
double RecordBytesPerEntity(AcDbDatabase* db)
{
    return AveragePerEntity(db, [db](const AcDbEntity* entity) {
        headless::MemoryDwgFiler filer(AcDb::kFileFiler, db);
        entity->dwgOut(&filer);
        return filer.bytes().size();
    });
}

double JsonBytesPerEntity(AcDbDatabase* db)
{
    return AveragePerEntity(db, [](const AcDbEntity* entity) {
        JsonTextCounter counter;  // one an entity: the filer keeps every value it is given
        entity->dwgOut(&counter);
        return counter.bytes;
    });
}

void Save(benchmark::State& state, const LayoutKind& kind, Side side)
{
    RegisterOnce();
    const int count = static_cast<int>(state.range(0));
    const auto db = LayoutOf(kind, side, count);
    const std::size_t emptyBytes = FileSizeOf(std::make_unique<AcDbDatabase>().get());
    std::vector<std::uint8_t> bytes;
    for (auto _ : state) {
        if (headless::DrawingFile::write(db.get(), bytes) != Acad::eOk)
            state.SkipWithError("the drawing could not be written");
        benchmark::DoNotOptimize(bytes.data());
    }
    SetRate(state, count);
    state.counters["bytes_per_entity"] = static_cast<double>(bytes.size() - emptyBytes) / count;
    state.counters["record_bytes_per_entity"] = RecordBytesPerEntity(db.get());
    if (side == Side::kCustom)
        state.counters["json_bytes_per_entity"] = JsonBytesPerEntity(db.get());
}

void Open(benchmark::State& state, const LayoutKind& kind, Side side)
{
    RegisterOnce();
    const int count = static_cast<int>(state.range(0));
    std::vector<std::uint8_t> bytes;
    headless::DrawingFile::write(LayoutOf(kind, side, count).get(), bytes);
    for (auto _ : state) {
        AcDbDatabase* db = nullptr;
        headless::DrawingReadReport report;
        if (headless::DrawingFile::read(bytes, db, &report) != Acad::eOk || report.proxies != 0)
            state.SkipWithError("the drawing did not open whole");
        benchmark::DoNotOptimize(db);
        state.PauseTiming();
        delete db;
        state.ResumeTiming();
    }
    SetRate(state, count);
}

void Regen(benchmark::State& state, const LayoutKind& kind, Side side)
{
    RegisterOnce();
    const int count = static_cast<int>(state.range(0));
    const auto db = LayoutOf(kind, side, count);
    const AcDbObjectIdArray ids = EntitiesOf(db.get());
    headless::RecordingWorldDraw draw;
    draw.setDatabase(db.get());
    std::size_t primitives = 0;
    for (auto _ : state) {
        draw.clear();
        for (const AcDbObjectId& id : ids) {
            AcDbEntity* entity = nullptr;
            acdbOpenObject(entity, id, AcDb::kForRead);
            draw.drawDrawable(entity);
            entity->close();
        }
        primitives = draw.primitives().size();
        benchmark::DoNotOptimize(primitives);
    }
    SetRate(state, count);
    state.counters["primitives_per_entity"] = static_cast<double>(primitives) / count;
}

void List(benchmark::State& state, const LayoutKind& kind, Side side)
{
    RegisterOnce();
    const int count = static_cast<int>(state.range(0));
    const auto db = LayoutOf(kind, side, count);
    const AcDbObjectIdArray ids = EntitiesOf(db.get());
    headless::CommandLineCapture capture;
    for (auto _ : state) {
        capture.clear();
        for (const AcDbObjectId& id : ids) {
            AcDbEntity* entity = nullptr;
            acdbOpenObject(entity, id, AcDb::kForRead);
            entity->list();
            entity->close();
        }
        benchmark::DoNotOptimize(capture.text().data());
    }
    SetRate(state, count);
}

void DeepClone(benchmark::State& state, const LayoutKind& kind, Side side)
{
    RegisterOnce();
    const int count = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        auto db = LayoutOf(kind, side, count);
        const AcDbObjectIdArray ids = EntitiesOf(db.get());
        const AcDbObjectId model = ModelSpaceOf(db.get());
        state.ResumeTiming();
        AcDbIdMapping map;
        if (db->deepCloneObjects(ids, model, map) != Acad::eOk)
            state.SkipWithError("the entities could not be cloned");
        state.PauseTiming();
        db.reset();
        state.ResumeTiming();
    }
    SetRate(state, count);
}

// Heap bytes that a drawing holds per entity beyond the empty drawing: the C library's
// count of bytes in use, which every host and module allocation goes through.
void Memory(benchmark::State& state, const LayoutKind& kind, Side side)
{
    RegisterOnce();
    const int count = static_cast<int>(state.range(0));
    double bytesPerEntity = 0.0;
    for (auto _ : state) {
        const auto empty = std::make_unique<AcDbDatabase>();
        const std::size_t before = mallinfo2().uordblks;
        auto db = LayoutOf(kind, side, count);
        const std::size_t after = mallinfo2().uordblks;
        bytesPerEntity = (static_cast<double>(after) - static_cast<double>(before)) / count;
        benchmark::DoNotOptimize(db.get());
    }
    state.counters["heap_bytes_per_entity"] = bytesPerEntity;
}

// Parsing a panel's information blocks into their typed forms, as every command that reads
// a panel's data does: blocks per second and UTF-8 bytes of JSON per second.
void BM_ParsePanelBlocks(benchmark::State& state)
{
    RegisterOnce();
    const auto kind = std::find_if(bench::LayoutKinds().begin(), bench::LayoutKinds().end(),
                                   [](const LayoutKind& k) { return std::string(k.name) == "panel"; });
    const auto db = std::make_unique<AcDbDatabase>();
    std::unique_ptr<AcDbEntity> entity(kind->makeCustom(db.get(), 17));
    const auto* panel = AecPanel::cast(entity.get());
    std::size_t jsonBytes = 0;
    for (const wchar_t* text : {panel->GetPanelBasicInfoJsonStr(), panel->GetNumberingAndEncodingInfoJsonStr(),
                                panel->GetPanelMergeInfoJsonStr(), panel->GetHatchPatternInfoJsonStr()})
        jsonBytes += headless::toUtf8(text).size();
    for (auto _ : state) {
        DbxPanel::PanelBasicInfo basic;
        DbxPanel::NumberingAndEncodingInfo numbering;
        DbxPanel::PanelMergeInfo merge;
        DbxPanel::HatchPatternInfo hatch;
        const bool parsed = panel->GetPanelBasicInfo(basic) && panel->GetNumberingAndEncodingInfo(numbering) &&
            panel->GetPanelMergeInfo(merge) && panel->GetHatchPatternInfo(hatch);
        if (!parsed)
            state.SkipWithError("a block did not parse");
        benchmark::DoNotOptimize(basic);
    }
    state.counters["panels_per_second"] = benchmark::Counter(1, benchmark::Counter::kIsIterationInvariantRate);
    state.counters["json_bytes_per_second"] =
        benchmark::Counter(static_cast<double>(jsonBytes), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_ParsePanelBlocks)->Name("layout/parse_blocks/panel");

using Operation = void (*)(benchmark::State&, const LayoutKind&, Side);

struct NamedOperation {
    const char* name;
    Operation run;
};

const NamedOperation kOperations[] = {
    {"save", Save}, {"open", Open}, {"regen", Regen}, {"list", List}, {"clone", DeepClone}, {"memory", Memory},
};

// Registers operation x kind x side at every layout size: names read
// "layout/<operation>/<kind>/<custom|plain>/<count>".
const bool g_registered = [] {
    for (const NamedOperation& operation : kOperations) {
        for (const LayoutKind& kind : bench::LayoutKinds()) {
            for (const Side side : {Side::kCustom, Side::kPlain}) {
                const std::string name = std::string("layout/") + operation.name + "/" + kind.name + "/" +
                    (side == Side::kCustom ? "custom" : "plain");
                auto* registered = benchmark::RegisterBenchmark(name.c_str(), operation.run, kind, side)
                                       ->RangeMultiplier(10)
                                       ->Range(1000, 100000)
                                       ->Unit(benchmark::kMillisecond);
                if (operation.run == Memory)
                    registered->Iterations(1);
            }
        }
    }
    return true;
}();

}  // namespace
