// What sharing out the energy costs once the processes are read: one frame of a desktop's 400
// processes in 60 applications attributed against the frame before.

#include "apps/app_energy_ledger.h"
#include "apps/energy_attribution.h"

#include <benchmark/benchmark.h>

using namespace ferrow;

namespace {

void attributeFrame(benchmark::State &state)
{
    const auto processes = static_cast<int>(state.range(0));
    ProcessFrame frame;
    for (int i = 0; i < processes; ++i) {
        const QString group = QStringLiteral("/Applications/Application %1.app").arg(i % 60);
        frame.processes.push_back({1000 + i, 10.0 + i, group, group.section(u'/', -1), group, 1.0, 1.0, i == 0});
    }
    EnergyAttribution attribution;
    AppEnergyLedger session;
    attribution.add(frame, {});
    for (auto _ : state) {
        frame.uptimeS += 5;
        for (ProcessSample &process : frame.processes) {
            process.cpuTimeS += 0.01;
            *process.energyJ += 0.05;
        }
        if (std::optional<AttributedInterval> interval = attribution.add(frame, {30.0, 60.0}))
            session.add(*interval);
    }
    benchmark::DoNotOptimize(session.list());
}
BENCHMARK(attributeFrame)->Arg(400)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
