// Drawing the openings against the host's own polyline drawing the same outline: the
// polygonal opening (outline, title and cross at its inner point) on outlines of 4 to
// 10,000 vertices, and the rectangular opening with its dimensions. Reported per vertex
// where the outline grows, so that the ratio to the plain polyline shows.
#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "app/ClassRegistration.h"
#include "dbapserv.h"
#include "dbmain.h"
#include "dbpl.h"
#include "headless/RecordingWorldDraw.h"
#include "openings/AecPolyOpening.h"
#include "openings/AecRectOpening.h"
#include "rxregsvc.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

// The module's classes and a working drawing, once for the whole run.
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

// A closed star of n vertices, alternately 40% and 100% of its radius out: concave, so
// that its centroid is no help and the inner point search has work to do.
template <typename Outline>
void MakeStar(Outline& outline, int n)
{
    const double radius = 100.0 * n;
    for (int i = 0; i < n; ++i) {
        const double angle = 2.0 * kPi * i / n;
        const double r = i % 2 == 0 ? radius : 0.4 * radius;
        outline.addVertexAt(static_cast<unsigned>(i), AcGePoint2d(r * std::cos(angle), r * std::sin(angle)));
    }
    outline.setClosed(Adesk::kTrue);
}

void Draw(benchmark::State& state, AcDbEntity& entity, int n)
{
    headless::RecordingWorldDraw draw;
    draw.setDatabase(Drawing());
    for (auto _ : state) {
        draw.clear();
        draw.drawDrawable(&entity);
        benchmark::DoNotOptimize(draw.primitives().data());
    }
    state.counters["per_vertex"] =
        benchmark::Counter(n, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_PlainPolylineDraw(benchmark::State& state)
{
    Drawing();
    const int n = static_cast<int>(state.range(0));
    AcDbPolyline outline;
    MakeStar(outline, n);
    Draw(state, outline, n);
}

void BM_PolyOpeningDraw(benchmark::State& state)
{
    Drawing();
    const int n = static_cast<int>(state.range(0));
    AecPolyOpening opening;
    MakeStar(opening, n);
    Draw(state, opening, n);
}

void BM_RectOpeningDrawWithDimensions(benchmark::State& state)
{
    Drawing();
    AecRectOpening opening;
    opening.SetIsShowDim(true);
    Draw(state, opening, 4);
}

BENCHMARK(BM_PlainPolylineDraw)->Arg(4)->Arg(100)->Arg(1000)->Arg(10000);
BENCHMARK(BM_PolyOpeningDraw)->Arg(4)->Arg(100)->Arg(1000)->Arg(10000);
BENCHMARK(BM_RectOpeningDrawWithDimensions);

}  // namespace
