#include "platform/linux/chip_energy_source.h"

#include <cmath>
#include <utility>

namespace ferrow {
namespace {

// Well inside a 64-bit counter; the integrated energy starts again from 0 there, which costs
// one reading its graphics power.
constexpr double kGraphicsEnergyRestartNJ = 4e18;

} // namespace

ChipEnergyFiles ChipEnergyFiles::discover(SysfsFiles &files, std::vector<std::string> gpuPowerFiles)
{
    ChipEnergyFiles layout;
    layout.gpuPowerFiles = std::move(gpuPowerFiles);
    std::vector<Counter> packages, cores, uncores;
    const std::string base = files.path("sys/class/powercap/");
    for (const std::string &zone : files.list(base)) {
        // "intel-rapl:0" is a package and "intel-rapl:0:1" a domain inside it, on AMD processors too.
        if (!zone.starts_with("intel-rapl:"))
            continue;
        const std::string folder = base + zone + '/';
        const std::optional<std::string> name = files.readText(folder + "name");
        if (!name)
            continue;
        ++layout.raplZones;
        const Counter counter{folder + "energy_uj", files.readInteger(folder + "max_energy_range_uj")};
        if (!files.readInteger(counter.path))
            continue;
        ++layout.readableRaplZones;
        if (name->starts_with("package"))
            packages.push_back(counter);
        else if (*name == "core")
            cores.push_back(counter);
        else if (*name == "uncore")
            uncores.push_back(counter);
        else if (*name == "dram")
            layout.ram.push_back(counter);
        // "psys" counts the whole platform, not the processor.
    }
    layout.cpu = cores.empty() ? std::move(packages) : std::move(cores);
    if (layout.gpuPowerFiles.empty())
        layout.gpu = std::move(uncores);
    return layout;
}

ChipEnergySource::ChipEnergySource(SysfsFiles &files, const ChipEnergyFiles &layout, const Clock &clock)
    : m_files(files)
    , m_clock(clock)
    , m_gpuPowerFiles(layout.gpuPowerFiles)
{
    const auto add = [this](const char *channel, const std::vector<ChipEnergyFiles::Counter> &counters) {
        if (counters.empty())
            return;
        Domain domain{QString::fromLatin1(channel), {}, std::nullopt};
        for (const ChipEnergyFiles::Counter &counter : counters)
            domain.counters.push_back({counter, std::nullopt, 0});
        m_domains.push_back(std::move(domain));
    };
    add("CPU Energy", layout.cpu);
    add("GPU Energy", layout.gpu);
    add("DRAM Energy", layout.ram);
}

std::optional<std::vector<EnergyChannelSample>> ChipEnergySource::sample()
{
    std::vector<EnergyChannelSample> channels;
    for (Domain &domain : m_domains) {
        if (const std::optional<std::int64_t> totalUJ = sampleDomain(domain))
            channels.push_back({m_group, domain.channel, m_microjoules, *totalUJ});
    }
    if (const std::optional<std::int64_t> energyNJ = sampleGraphicsPower())
        channels.push_back({m_group, m_graphicsChannel, m_nanojoules, *energyNJ});
    return channels;
}

std::optional<std::int64_t> ChipEnergySource::sampleDomain(Domain &domain)
{
    bool complete = true;
    std::int64_t totalUJ = 0;
    for (Counter &counter : domain.counters) {
        const std::optional<std::int64_t> rawUJ = m_files.readInteger(counter.files.path);
        if (!rawUJ || *rawUJ < 0) {
            complete = false;
            continue;
        }
        if (counter.lastUJ) {
            std::int64_t deltaUJ = *rawUJ - *counter.lastUJ;
            const std::optional<std::int64_t> range = counter.files.rangeUJ;
            if (deltaUJ < 0 && range && *range >= *counter.lastUJ)
                deltaUJ += *range; // wrapped at the end of its range
            if (deltaUJ >= 0)
                counter.totalUJ += deltaUJ; // otherwise reset (across a suspend): counting goes on from here
        }
        counter.lastUJ = rawUJ;
        totalUJ += counter.totalUJ;
    }
    if (!complete)
        return std::nullopt;
    const bool moved = !domain.lastTotalUJ || *domain.lastTotalUJ != totalUJ;
    domain.lastTotalUJ = totalUJ;
    return moved ? std::optional(totalUJ) : std::nullopt;
}

std::optional<std::int64_t> ChipEnergySource::sampleGraphicsPower()
{
    if (m_gpuPowerFiles.empty())
        return std::nullopt;
    std::optional<double> powerUW;
    for (const std::string &path : m_gpuPowerFiles) {
        // A card that is asleep answers with an error; the others still count.
        if (const std::optional<std::int64_t> value = m_files.readInteger(path); value && *value >= 0)
            powerUW = powerUW.value_or(0) + static_cast<double>(*value);
    }
    // Timed as late as possible: the reader divides by the time it takes right after this sample.
    const double uptimeS = m_clock.uptimeSeconds();
    const std::optional<double> lastUptimeS = std::exchange(m_lastUptimeS, uptimeS);
    if (!powerUW)
        return std::nullopt;
    if (lastUptimeS && uptimeS > *lastUptimeS)
        m_gpuEnergyNJ += *powerUW * (uptimeS - *lastUptimeS) * 1e3;
    if (!(m_gpuEnergyNJ < kGraphicsEnergyRestartNJ))
        m_gpuEnergyNJ = 0;
    return std::llround(m_gpuEnergyNJ);
}

} // namespace ferrow
