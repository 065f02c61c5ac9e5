#pragma once

#include "platform/linux/sysfs_files.h"
#include "sources/platform_interfaces.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ferrow {

// Where the processor's energy can be read, found once: powercap's RAPL zones by domain, and
// graphics power from hwmon.
struct ChipEnergyFiles {
    struct Counter {
        std::string path;                     // energy_uj
        std::optional<std::int64_t> rangeUJ; // where the counter wraps
    };
    std::vector<Counter> cpu; // the cores' zones, or the packages' where there is no core zone
    std::vector<Counter> gpu; // the graphics plane ("uncore") where no card reports its power
    std::vector<Counter> ram;
    std::vector<std::string> gpuPowerFiles; // µW
    int raplZones = 0;                      // zones found
    int readableRaplZones = 0;

    static ChipEnergyFiles discover(SysfsFiles &files, std::vector<std::string> gpuPowerFiles);
    // RAPL zones exist but none can be read: energy_uj is root's alone on current kernels.
    bool needsPermission() const { return raplZones > 0 && readableRaplZones == 0; }
};

// The processor's energy as the reader's energy channels ("Energy Model", CPU, GPU and DRAM):
// RAPL counters unwrapped at their range and summed over packages, and graphics power integrated
// over the clock's uptime where a card reports power rather than energy. A counter that has not
// moved since the last sample is left out, since a live one always moves: a copied tree then
// gives no chip power instead of 0 W.
class ChipEnergySource final : public EnergyReportSource {
public:
    ChipEnergySource(SysfsFiles &files, const ChipEnergyFiles &layout, const Clock &clock);

    bool subscribe() override { return !m_domains.empty() || !m_gpuPowerFiles.empty(); }
    std::optional<std::vector<EnergyChannelSample>> sample() override;

private:
    struct Counter {
        ChipEnergyFiles::Counter files;
        std::optional<std::int64_t> lastUJ;
        std::int64_t totalUJ = 0;
    };
    struct Domain {
        QString channel;
        std::vector<Counter> counters;
        std::optional<std::int64_t> lastTotalUJ;
    };

    std::optional<std::int64_t> sampleDomain(Domain &domain);
    std::optional<std::int64_t> sampleGraphicsPower();

    SysfsFiles &m_files;
    const Clock &m_clock;
    // Made once: every sample shares them.
    const QString m_group = QStringLiteral("Energy Model");
    const QString m_graphicsChannel = QStringLiteral("GPU Energy");
    const QString m_microjoules = QStringLiteral("uJ");
    const QString m_nanojoules = QStringLiteral("nJ");
    std::vector<Domain> m_domains;
    std::vector<std::string> m_gpuPowerFiles;
    double m_gpuEnergyNJ = 0;
    std::optional<double> m_lastUptimeS;
};

} // namespace ferrow
