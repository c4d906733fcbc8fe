// The lite panel against the host's own entities doing the same work: its outline alone
// against a plain polyline of the same vertices, and hatched against a host hatch over the
// same loop. The panel makes its polylines and hatch afresh for every draw, so these rows
// show what that costs per vertex.
#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "app/ClassRegistration.h"
#include "dbapserv.h"
#include "dbhatch.h"
#include "dbmain.h"
#include "dbpl.h"
#include "headless/RecordingWorldDraw.h"
#include "panel/AecPanelLite.h"
#include "rxregsvc.h"

namespace {

AcDbDatabase* BenchDrawing()
{
    static AcDbDatabase* const drawing = [] {
        Quarvo::RegisterModuleClasses();
        acrxBuildClassHierarchy();
        auto* db = new AcDbDatabase();
        acdbHostApplicationServices()->setWorkingDatabase(db);
        return db;
    }();
    return drawing;
}

// A sheet end cut in n - 2 teeth: n vertices on a 750 wide, 6000 long panel.
void SawToothOutline(int n, AcGePoint2dArray& vertices, AcGeDoubleArray& bulges)
{
    const int teeth = n - 2;
    for (int i = 0; i < teeth; ++i)
        vertices.append(AcGePoint2d(750.0 * i / (teeth - 1), i % 2 == 0 ? 0.0 : 40.0));
    vertices.append(AcGePoint2d(750.0, 6000.0));
    vertices.append(AcGePoint2d(0.0, 6000.0));
    for (int i = 0; i < n; ++i)
        bulges.append(0.0);
}

void DrawRepeatedly(benchmark::State& state, AcDbEntity& entity, int n)
{
    headless::RecordingWorldDraw draw;
    draw.setDatabase(BenchDrawing());
    for (auto _ : state) {
        draw.clear();
        draw.drawDrawable(&entity);
        benchmark::DoNotOptimize(draw.primitives().data());
    }
    state.counters["per_vertex"] =
        benchmark::Counter(n, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

std::unique_ptr<AecPanelLite> LitePanel(int n, const wchar_t* pattern)
{
    AcGePoint2dArray vertices;
    AcGeDoubleArray bulges;
    SawToothOutline(n, vertices, bulges);
    auto panel = std::make_unique<AecPanelLite>();
    panel->AppendLoop(vertices, bulges);
    panel->SetOutlineAndPattern(AcDbHatch::kPreDefined, pattern, 40.0, 0.0, 8, 0.0);
    return panel;
}

void BM_PlainPolylineDraw(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    AcGePoint2dArray vertices;
    AcGeDoubleArray bulges;
    SawToothOutline(n, vertices, bulges);
    AcDbPolyline polyline;
    for (int i = 0; i < n; ++i)
        polyline.addVertexAt(static_cast<unsigned>(i), vertices[i], bulges[i]);
    polyline.setClosed(Adesk::kTrue);
    DrawRepeatedly(state, polyline, n);
}

void BM_LitePanelOutlineDraw(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    std::unique_ptr<AecPanelLite> panel = LitePanel(n, L"");
    DrawRepeatedly(state, *panel, n);
}

void BM_HostHatchDraw(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    std::unique_ptr<AecPanelLite> panel = LitePanel(n, L"ANSI31");
    std::unique_ptr<AcDbHatch> hatch(panel->CreateHatch());
    DrawRepeatedly(state, *hatch, n);
}

void BM_LitePanelHatchedDraw(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    std::unique_ptr<AecPanelLite> panel = LitePanel(n, L"ANSI31");
    DrawRepeatedly(state, *panel, n);
}

void BM_LitePanelArea(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    std::unique_ptr<AecPanelLite> panel = LitePanel(n, L"");
    for (auto _ : state)
        benchmark::DoNotOptimize(panel->GetArea());
    state.counters["per_vertex"] =
        benchmark::Counter(n, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

BENCHMARK(BM_PlainPolylineDraw)->Arg(4)->Arg(100)->Arg(1000);
BENCHMARK(BM_LitePanelOutlineDraw)->Arg(4)->Arg(100)->Arg(1000);
BENCHMARK(BM_HostHatchDraw)->Arg(4)->Arg(100)->Arg(1000);
BENCHMARK(BM_LitePanelHatchedDraw)->Arg(4)->Arg(100)->Arg(1000);
BENCHMARK(BM_LitePanelArea)->Arg(4)->Arg(100)->Arg(1000);

}  // namespace
