#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

namespace ferrow::ReadingRules {

// Below these the input reads as nothing: an adapter's idle noise.
inline constexpr double kInputVoltageFloorV = 0.4;
inline constexpr double kInputCurrentFloorA = 0.05;
// Plausible ranges of the measured input and system power.
inline constexpr double kMaximumInputVoltageV = 300.0;
inline constexpr double kMaximumInputCurrentA = 100.0;
inline constexpr double kMaximumPowerW = 5000.0;
// A battery taking more than this on external power is charging, whatever it says.
inline constexpr double kChargingOverrideW = 0.5;
// The least charge power a time-to-full estimate is made from.
inline constexpr double kEstimateMinimumChargeW = 0.3;
// The largest battery current a reading shows.
inline constexpr double kMaximumBatteryCurrentA = 100.0;
// A capacity beyond this is a garbled figure, not a battery.
inline constexpr std::int64_t kLargestCapacityMAH = 100'000;
// A battery's own time to full up to this; beyond it (65535 is "no estimate") the reading estimates.
inline constexpr std::int64_t kLongestReportedMinutesToFull = 65'534;

inline std::optional<double> within(std::optional<double> value, double lowest, double highest)
{
    return value && std::isfinite(*value) && *value >= lowest && *value <= highest ? value : std::nullopt;
}

// Minutes to fill energyWh at chargePowerW: rounded, at least 1 and at most 5999.
inline std::optional<std::int64_t> minutesToFull(double energyWh, double chargePowerW)
{
    if (!(energyWh > 0) || !(chargePowerW > 0))
        return std::nullopt;
    const double minutes = std::round(energyWh / chargePowerW * 60.0);
    return static_cast<std::int64_t>(std::clamp(minutes, 1.0, 5999.0));
}

} // namespace ferrow::ReadingRules
