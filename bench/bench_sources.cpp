#include "platform/common/in_memory_smc.h"
#include "sources/stats_chip_power_reader.h"
#include "sources/stats_smc.h"

#include <benchmark/benchmark.h>

using namespace ferrow;

namespace {

// One readDouble through the real wire block: two user-client calls and the decoding.
void BM_ReadDouble(benchmark::State &state)
{
    auto *table = new InMemorySMC;
    table->setKey("PDTR", "flt ", smcBytesOfFloat(23.4f));
    table->setKey("TB1T", "sp78", smcBytesOfFixedPoint(31.5, 8));
    table->setKey("VD0R", "ui16", smcBytesOfUnsigned(20100, 2));
    StatsSMC smc{std::unique_ptr<SMCUserClient>(table)};
    const char *keys[] = {"PDTR", "TB1T", "VD0R"};
    const char *key = keys[state.range(0)];
    for (auto _ : state)
        benchmark::DoNotOptimize(smc.readDouble(key));
    state.SetLabel(key);
}
BENCHMARK(BM_ReadDouble)->DenseRange(0, 2);

class SteadyClock final : public Clock {
public:
    WallTime now() const override { return {}; }
    double uptimeSeconds() const override { return uptimeS += 1.0; }
    mutable double uptimeS = 0;
};

// The channel list of a machine with two CPU clusters: energy channels among many others.
class RealisticEnergySource final : public EnergyReportSource {
public:
    bool subscribe() override { return true; }
    std::optional<std::vector<EnergyChannelSample>> sample() override
    {
        static const char *const names[] = {
            "ECPU0", "ECPU1", "ECPU2", "ECPU3", "PCPU0", "PCPU1", "PCPU2", "PCPU3", "PCPU4", "PCPU5",
            "ECPU", "PCPU", "EACC_CPU Energy", "PACC0_CPU Energy", "PACC1_CPU Energy", "CPU Energy",
            "GPU0", "GPU Energy", "ANE0", "ANE", "DRAM0", "DRAM", "DCS0", "DCS1", "AMCC0", "AMCC1",
            "DISP", "DISPEXT", "ISP", "AVE", "MSR", "PCIe", "SIO", "AOP", "SOC_AON", "GPU SRAM0"};
        m_counter += 1000;
        std::vector<EnergyChannelSample> channels;
        channels.reserve(std::size(names));
        for (const char *name : names)
            channels.push_back({QStringLiteral("Energy Model"), QString::fromLatin1(name), QStringLiteral("mJ"), m_counter});
        return channels;
    }

private:
    std::int64_t m_counter = 0;
};

void BM_ChipPowerSample(benchmark::State &state)
{
    SteadyClock clock;
    StatsChipPowerReader reader(std::make_unique<RealisticEnergySource>(), clock);
    reader.sample();
    for (auto _ : state)
        benchmark::DoNotOptimize(reader.sample());
    state.counters["channels"] = 36;
}
BENCHMARK(BM_ChipPowerSample);

} // namespace

BENCHMARK_MAIN();
