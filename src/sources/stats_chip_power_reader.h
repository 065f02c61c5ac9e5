#pragma once

#include "model/power_snapshot.h"
#include "sources/platform_interfaces.h"

#include <QString>

#include <map>
#include <memory>
#include <optional>

namespace ferrow {

// Power of the CPU, GPU, neural engine and DRAM from successive energy counters: the change in
// joules since the previous sample over the monotonic time between them.
class StatsChipPowerReader {
public:
    using EnergyTable = std::map<QString, double>; // joules by domain: "cpu", "gpu", "ane", "ram"

    static constexpr double kMaximumPlausibleW = 500.0;

    StatsChipPowerReader(std::unique_ptr<EnergyReportSource> source, const Clock &clock);

    ChipPower sample();
    std::optional<double> domainWatts(const QString &domain, const EnergyTable &current, double intervalS) const;

    // The domain a channel counts for, or an empty string when it counts for none.
    static QString domainOfChannel(const QString &name);
    // Joules per counter unit, or absent for a unit that is not an energy this code knows.
    static std::optional<double> unitDivisor(const QString &unitLabel);

private:
    std::unique_ptr<EnergyReportSource> m_source;
    const Clock &m_clock;
    bool m_subscribed = false;
    EnergyTable m_previous;
    std::optional<double> m_previousUptime;
};

} // namespace ferrow
