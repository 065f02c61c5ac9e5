#pragma once

#include "alerts/alert.h"

#include <cstdint>

namespace ferrow {

// The values a user may choose for a threshold; anything outside is taken for a stray value
// and replaced by the default.
struct SettingRange {
    double lowest;
    double highest;

    bool contains(double value) const { return value >= lowest && value <= highest; }
};

inline constexpr SettingRange kBatteryHotRangeC{30.0, 70.0};
inline constexpr SettingRange kChargeLevelRangePercent{1.0, 100.0};

// Which alerts the user wants and the thresholds they chose.
struct AlertSettings {
    bool chargerCannotKeepUp = true;
    bool chargingSlowly = true;
    bool batteryHot = true;
    bool cellsOutOfBalance = true;
    bool chargeLevelReached = false; // only for those who ask
    double hotWhileChargingC = 45.0;
    double hotC = 50.0;
    std::int64_t chargeLevelPercent = 80;

    bool isOn(AlertKind kind) const;

    bool operator==(const AlertSettings &) const = default;
};

} // namespace ferrow
