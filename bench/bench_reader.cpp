#include "platform/simulated/simulated_machine.h"
#include "sources/power_sensor_reader.h"

#include <QtGlobal>

#if defined(Q_OS_LINUX)
#include "platform/common/in_memory_key_value_store.h"
#include "platform/linux/linux_power_reader.h"
#endif

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

// Times reader.read() after a baseline reading, with beforeEach run outside the timing, and
// counts the heap allocations of one read where the C library lets us.
template <typename BeforeEach>
void timeReads(benchmark::State &state, SnapshotReader &reader, BeforeEach beforeEach)
{
    reader.read();
    std::size_t allocations = 0;
    for (auto _ : state) {
        beforeEach();
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

// One reading of the simulated notebook, one simulated second apart: every source is read,
// the model integrates two steps, and the history store records.
void BM_ReadSimulatedNotebook(benchmark::State &state)
{
    auto *machine = new SimulatedMachine({SimulatedPowerModel::Kind::notebook, 1, false, static_cast<int>(state.range(0))});
    PowerSensorReader reader{std::unique_ptr<MachinePlatform>(machine)};
    timeReads(state, reader, [machine] { machine->simulationClock().advance(std::chrono::seconds(1)); });
}
BENCHMARK(BM_ReadSimulatedNotebook)->Arg(26)->Arg(27)->ArgName("macOS");

#if defined(Q_OS_LINUX)
// One reading of a Linux machine from its kernel files: a notebook's battery and supplies with
// five RAPL zones, or an Apple-silicon notebook's SMC sensors through hwmon. Every file is opened
// and read as on the machine itself, from a copied tree.
void BM_ReadLinuxMachine(benchmark::State &state, const char *tree)
{
    LinuxPowerReader reader(std::make_unique<SysfsFiles>(std::string(FERROW_SOURCE_DIR "/tests/fixtures/") + tree),
                            std::make_unique<InMemoryKeyValueStore>());
    timeReads(state, reader, [] {});
}
BENCHMARK_CAPTURE(BM_ReadLinuxMachine, intel_notebook, "sysfs-intel-notebook");
BENCHMARK_CAPTURE(BM_ReadLinuxMachine, apple_notebook, "sysfs-apple-notebook");
#endif

} // namespace

BENCHMARK_MAIN();
