#include "platform/common/in_memory_key_value_store.h"
#include "platform/linux/linux_power_reader.h"
#include "read_timing.h"

using namespace ferrow;

namespace {

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

} // namespace
