// Evaluating a hatch's pattern lines: a strip crossed by n lines (up to the host's budget),
// reported as time per line, and the dense record that once took 16 seconds, refused.
#include <benchmark/benchmark.h>

#include <memory>

#include "dbhatch.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

// A strip 1 high and n long under vertical lines 1 apart: n lines, each one piece.
std::unique_ptr<AcDbHatch> strip(double length, const ACHAR* pattern = nullptr, double height = 1.0)
{
    auto hatch = std::make_unique<AcDbHatch>();
    if (pattern == nullptr) {
        hatch->setPattern(AcDbHatch::kUserDefined, L"_USER");
        hatch->setPatternSpace(1.0);
        hatch->setPatternAngle(kPi / 2);
        hatch->setOriginPoint(AcGePoint2d(0.5, 0));
    } else {
        hatch->setPattern(AcDbHatch::kPreDefined, pattern);
    }
    AcGePoint2dArray corners;
    corners.append(AcGePoint2d(0, 0));
    corners.append(AcGePoint2d(length, 0));
    corners.append(AcGePoint2d(length, height));
    corners.append(AcGePoint2d(0, height));
    hatch->appendLoop(AcDbHatch::kExternal, corners, AcGeDoubleArray());
    return hatch;
}

void BM_EvaluateLinesOverAStrip(benchmark::State& state)
{
    const auto n = state.range(0);
    auto hatch = strip(static_cast<double>(n));
    for (auto _ : state)
        benchmark::DoNotOptimize(hatch->evaluateHatch());
    state.counters["per_line"] = benchmark::Counter(
        static_cast<double>(n), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// ANSI31 at scale 1 over a strip 3 by 63,488: some 359,000 lines, more than the budget.
void BM_RefuseADensePattern(benchmark::State& state)
{
    auto hatch = strip(63488.0, L"ANSI31", 3.0);
    for (auto _ : state)
        benchmark::DoNotOptimize(hatch->evaluateHatch());
}

}  // namespace

BENCHMARK(BM_EvaluateLinesOverAStrip)->RangeMultiplier(10)->Range(10, 10000)->Arg(66666);
BENCHMARK(BM_RefuseADensePattern);
