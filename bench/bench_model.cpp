#include "model/power_history.h"
#include "model/power_snapshot.h"

#include <benchmark/benchmark.h>

#include <cmath>

using namespace ferrow;

namespace {

PowerSnapshot readingAt(std::int64_t second, bool onBattery)
{
    PowerSnapshot s;
    s.hasBattery = true;
    s.isExternalConnected = !onBattery;
    s.isDataAvailable = true;
    s.dcPowerW = 20.0 + std::sin(static_cast<double>(second));
    s.dcCurrentA = s.dcPowerW / 20.0;
    s.batteryFlowW = onBattery ? -8.5 : 4.0;
    s.batteryVoltageV = 12.4;
    s.batteryRailVoltageV = 12.6;
    s.batteryPercent = 80;
    s.estimatedMinutesToFull = 95;
    s.updatedAt = WallTime() + std::chrono::seconds(1'700'000'000 + second);
    return s;
}

// One append to a history that already holds a full hour: trim one, add one.
void BM_PowerHistoryAppendSteadyState(benchmark::State &state)
{
    PowerHistory history;
    std::int64_t second = 0;
    for (; second < 3600; ++second)
        history.append(readingAt(second, false));
    for (auto _ : state) {
        history.append(readingAt(second++, false));
        benchmark::DoNotOptimize(history.samples().back());
    }
    state.counters["samples"] = static_cast<double>(history.samples().size());
}
BENCHMARK(BM_PowerHistoryAppendSteadyState);

void BM_DisplayFigures(benchmark::State &state)
{
    const PowerSnapshot snapshot = readingAt(1, state.range(0) != 0);
    for (auto _ : state) {
        benchmark::DoNotOptimize(snapshot.displayPowerW());
        benchmark::DoNotOptimize(snapshot.displayCurrentA());
    }
}
BENCHMARK(BM_DisplayFigures)->Arg(0)->Arg(1)->ArgName("onBattery");

void BM_StatusAndSourceTexts(benchmark::State &state)
{
    const PowerSnapshot snapshot = readingAt(1, false);
    for (auto _ : state) {
        benchmark::DoNotOptimize(snapshot.statusText());
        benchmark::DoNotOptimize(snapshot.powerSourceText());
        benchmark::DoNotOptimize(snapshot.timeToFullText());
    }
}
BENCHMARK(BM_StatusAndSourceTexts);

void BM_SnapshotEquality(benchmark::State &state)
{
    const PowerSnapshot a = readingAt(1, false);
    const PowerSnapshot b = a;
    for (auto _ : state)
        benchmark::DoNotOptimize(a == b);
}
BENCHMARK(BM_SnapshotEquality);

} // namespace

BENCHMARK_MAIN();
