#include "platform/simulated/simulated_machine.h"
#include "sources/power_sensor_reader.h"

#include "allocation_count.h"
#include "read_timing.h"

using namespace ferrow;

namespace {

// One reading of the simulated notebook, one simulated second apart: every source is read,
// the model integrates two steps, and the history store records.
void BM_ReadSimulatedNotebook(benchmark::State &state)
{
    auto *machine = new SimulatedMachine({SimulatedPowerModel::Kind::notebook, 1, false, static_cast<int>(state.range(0))});
    PowerSensorReader reader{std::unique_ptr<MachinePlatform>(machine)};
    timeReads(state, reader, [machine] { machine->simulationClock().advance(std::chrono::seconds(1)); });
}
BENCHMARK(BM_ReadSimulatedNotebook)->Arg(26)->Arg(27)->ArgName("macOS");

} // namespace

BENCHMARK_MAIN();
