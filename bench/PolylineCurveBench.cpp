// The polyline's main curve questions on outlines of 4 to 10,000 vertices (every other
// segment an arc), reported as time per vertex so that the growth with size shows.
#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "dbents.h"
#include "dbpl.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

// A closed wavy ring of n vertices whose segments are all about 10 long (its radius grows
// with n), the vertices alternately 3 inside and outside the circle, every other segment
// an arc of bulge 0.2: a polyline whose pieces have the same size whatever their number.
std::unique_ptr<AcDbPolyline> ring(int n)
{
    auto pline = std::make_unique<AcDbPolyline>(static_cast<unsigned>(n));
    const double base = 10.0 * n / (2.0 * kPi) + 20.0;
    for (int i = 0; i < n; ++i) {
        const double angle = 2.0 * kPi * i / n;
        const double radius = base + (i % 2 == 0 ? 3.0 : -3.0);
        pline->addVertexAt(static_cast<unsigned>(i), AcGePoint2d(radius * std::cos(angle), radius * std::sin(angle)),
                           i % 2 == 0 ? 0.2 : 0.0);
    }
    pline->setClosed(Adesk::kTrue);
    return pline;
}

void perVertex(benchmark::State& state, int n)
{
    state.counters["per_vertex"] =
        benchmark::Counter(n, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_GetDistAtParam(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    auto pline = ring(n);
    const double param = n * 0.9;
    for (auto _ : state) {
        double dist = 0.0;
        pline->getDistAtParam(param, dist);
        benchmark::DoNotOptimize(dist);
    }
    perVertex(state, n);
}

void BM_GetParamAtDist(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    auto pline = ring(n);
    double end = 0.0;
    double length = 0.0;
    pline->getEndParam(end);
    pline->getDistAtParam(end, length);
    for (auto _ : state) {
        double param = 0.0;
        pline->getParamAtDist(length * 0.9, param);
        benchmark::DoNotOptimize(param);
    }
    perVertex(state, n);
}

void BM_GetClosestPointTo(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    auto pline = ring(n);
    const AcGePoint3d given(0.3 * n, 1.5 * n, 20);
    for (auto _ : state) {
        AcGePoint3d onCurve;
        pline->getClosestPointTo(given, onCurve);
        benchmark::DoNotOptimize(onCurve);
    }
    perVertex(state, n);
}

void BM_GetOffsetCurves(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    auto pline = ring(n);
    for (auto _ : state) {
        AcDbVoidPtrArray offsets;
        pline->getOffsetCurves(-1.0, offsets);
        for (int i = 0; i < offsets.length(); ++i)
            delete static_cast<AcDbEntity*>(offsets[i]);
    }
    perVertex(state, n);
}

void BM_GetGeomExtents(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    auto pline = ring(n);
    for (auto _ : state) {
        AcDbExtents extents;
        pline->getGeomExtents(extents);
        benchmark::DoNotOptimize(extents);
    }
    perVertex(state, n);
}

void BM_IntersectWithLine(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    auto pline = ring(n);
    const AcDbLine across(AcGePoint3d(-4.0 * n, 10, 0), AcGePoint3d(4.0 * n, 30, 0));
    for (auto _ : state) {
        AcGePoint3dArray points;
        pline->intersectWith(&across, AcDb::kOnBothOperands, points);
        benchmark::DoNotOptimize(points);
    }
    perVertex(state, n);
}

void sizes(benchmark::internal::Benchmark* bench)
{
    for (int n : {4, 16, 64, 256, 1024, 10000})
        bench->Arg(n);
}

BENCHMARK(BM_GetDistAtParam)->Apply(sizes);
BENCHMARK(BM_GetParamAtDist)->Apply(sizes);
BENCHMARK(BM_GetClosestPointTo)->Apply(sizes);
BENCHMARK(BM_GetOffsetCurves)->Apply(sizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_GetGeomExtents)->Apply(sizes);
BENCHMARK(BM_IntersectWithLine)->Apply(sizes);

}  // namespace
