#include "alerts/alert_rules.h"

#include <benchmark/benchmark.h>

#include <cmath>

using namespace ferrow;

namespace {

PowerSnapshot readingAt(std::int64_t second, bool worthAnAlert)
{
    PowerSnapshot s;
    s.hasBattery = s.isDataAvailable = s.isExternalConnected = true;
    s.dcVoltageV = 20.0;
    s.dcCurrentA = 1.5;
    s.dcPowerW = 30.0;
    s.systemPowerW = 25.0 + 10.0 * std::sin(static_cast<double>(second) / 60.0);
    s.batteryFlowW = worthAnAlert ? -2.0 : 0.1;
    s.batteryPercent = 70;
    s.batteryTemperatureC = worthAnAlert ? 51.0 : 32.0;
    s.batteryCurrentA = worthAnAlert ? -0.2 : 0.01;
    s.cellVoltagesV = {3.850, worthAnAlert ? 3.990 : 3.852, 3.849};
    return s;
}

// One reading once the ten-minute window is full: the steady state of a running application.
void BM_AlertRulesAdd(benchmark::State &state)
{
    const bool worthAnAlert = state.range(0) != 0;
    AlertSettings settings;
    settings.chargeLevelReached = true;
    AlertRules rules(settings);
    std::int64_t second = 0;
    for (; second < 900; ++second)
        rules.add(readingAt(second, worthAnAlert), static_cast<double>(second));
    const PowerSnapshot reading = readingAt(second, worthAnAlert);
    for (auto _ : state) {
        benchmark::DoNotOptimize(rules.add(reading, static_cast<double>(second++)));
    }
    state.counters["active"] = static_cast<double>(rules.activeKinds().size());
}
BENCHMARK(BM_AlertRulesAdd)->Arg(0)->Arg(1)->ArgName("conditionsHold");

} // namespace

BENCHMARK_MAIN();
