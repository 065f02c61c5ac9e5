#include "platform/simulated/simulated_machine.h"
#include "sources/power_sensor_reader.h"

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstddef>

namespace {
std::atomic<std::size_t> allocationCount{0};
}

#if defined(__GLIBC__)
// Counts every heap allocation of this program, Qt's (which go straight to malloc) included.
extern "C" void *__libc_malloc(std::size_t size);
extern "C" void *malloc(std::size_t size)
{
    ++allocationCount;
    return __libc_malloc(size);
}
#define FERROW_COUNTS_ALLOCATIONS 1
#endif

using namespace ferrow;

namespace {

// One reading of the simulated notebook, one simulated second apart: every source is read,
// the model integrates two steps, and the history store records.
void BM_ReadSimulatedNotebook(benchmark::State &state)
{
    auto *machine = new SimulatedMachine({SimulatedPowerModel::Kind::notebook, 1, false, static_cast<int>(state.range(0))});
    PowerSensorReader reader{std::unique_ptr<MachinePlatform>(machine)};
    reader.read();
    std::size_t allocations = 0;
    for (auto _ : state) {
        machine->simulationClock().advance(std::chrono::seconds(1));
        const std::size_t before = allocationCount.load();
        benchmark::DoNotOptimize(reader.read());
        allocations += allocationCount.load() - before;
    }
#ifdef FERROW_COUNTS_ALLOCATIONS
    state.counters["allocs/read"] = benchmark::Counter(static_cast<double>(allocations), benchmark::Counter::kAvgIterations);
#else
    benchmark::DoNotOptimize(allocations);
#endif
}
BENCHMARK(BM_ReadSimulatedNotebook)->Arg(26)->Arg(27)->ArgName("macOS");

} // namespace

BENCHMARK_MAIN();
