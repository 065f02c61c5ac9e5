#pragma once

#include "model/power_snapshot.h"
#include "sources/platform_interfaces.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <cstdint>
#include <optional>

namespace ferrow {

// The battery's health: the system profiler's maximum-capacity percentage (run at most every six
// hours, cached in between), the capacity ratio as its fallback, and the system's own condition.
class BatteryHealthSources {
public:
    static constexpr std::chrono::seconds kSystemHealthRefreshInterval{21600};

    BatteryHealthSources(CommandRunner &runner, PowerSourceList &powerSources, const Clock &clock);

    std::optional<std::int64_t> systemBatteryHealthPercent();
    std::optional<BatteryHealthCondition> readBatteryHealthCondition();
    static std::optional<std::int64_t> capacityHealthPercent(std::optional<std::int64_t> capacityMAH,
                                                             std::optional<std::int64_t> designCapacityMAH);

    // The first usable maximum-capacity percentage in the profiler's JSON, if any.
    static std::optional<std::int64_t> maximumCapacityPercentFromProfiler(const QByteArray &json);
    // "87%", "%92%" or "87": a whole number with percent signs only at its ends.
    static std::optional<std::int64_t> parsePercentText(QStringView text);

    std::optional<std::int64_t> cachedSystemBatteryHealthPercent() const { return m_cachedPercent; }
    std::optional<WallTime> lastSystemBatteryHealthReadAt() const { return m_lastReadAt; }

private:
    CommandRunner &m_runner;
    PowerSourceList &m_powerSources;
    const Clock &m_clock;
    std::optional<std::int64_t> m_cachedPercent;
    std::optional<WallTime> m_lastReadAt;
};

} // namespace ferrow
