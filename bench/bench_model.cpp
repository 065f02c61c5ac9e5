#include "export/metrics_exposition.h"
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

// One scrape's text for a notebook that reports nearly every figure, the exporter's cost per request.
void BM_MetricsExposition(benchmark::State &state)
{
    PowerSnapshot s = readingAt(1, false);
    s.isCharging = true;
    s.systemPowerW = 12.5;
    s.chipPower = {3.2, 0.4, 0.01, 0.6};
    s.batteryChargePowerW = 7.5;
    s.batteryHealthPercent = 93;
    s.batteryHealthCondition = BatteryHealthCondition::good;
    s.batteryTemperatureC = 31.4;
    s.batteryCurrentA = 0.6;
    s.cycleCount = 187;
    s.designCycleCount = 1000;
    s.designCapacityMAH = 6249;
    s.fullChargeCapacityMAH = 5814;
    s.nominalFullChargeCapacityMAH = 5902;
    s.remainingCapacityMAH = 3199;
    s.cellVoltagesV = {4.101, 4.098, 4.103};
    s.deviceName = QStringLiteral("bq40z651");
    s.batterySerial = QStringLiteral("F8Y2K0ABCDEF");
    s.totalOperatingMinutes = 91250;
    s.lifetimeMaxTemperatureC = 41.0;
    s.lifetimeMinTemperatureC = 9.0;
    s.lifetimeAverageTemperatureC = 26.8;
    s.lifetimeMaxPackVoltageV = 12.9;
    s.lifetimeMinPackVoltageV = 9.1;
    s.lifetimeMaxChargeCurrentA = 3.1;
    s.lifetimeMaxDischargeCurrentA = 4.2;
    s.batterySafetyProtectionCount = 0;
    std::size_t bytes = 0;
    for (auto _ : state) {
        const QByteArray text = metricsExposition(&s, u"0.1.0");
        bytes = static_cast<std::size_t>(text.size());
        benchmark::DoNotOptimize(text.constData());
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_MetricsExposition);

} // namespace

BENCHMARK_MAIN();
