#pragma once

#include <QString>

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

namespace ferrow {

// A battery flow smaller than this, either way, reads as idle.
inline constexpr double kBatteryFlowDeadBandW = 0.05;

// A battery's flow as shown: below the dead band it is neither charging nor discharging.
inline double shownFlowW(double flowW)
{
    return flowW < kBatteryFlowDeadBandW && flowW > -kBatteryFlowDeadBandW ? 0.0 : flowW;
}

// Wall-clock time with sub-second precision; the history's gap rule needs it.
using WallTime = std::chrono::system_clock::time_point;

// Per-block power of the processor package, in watts; an absent block could not be measured.
struct ChipPower {
    std::optional<double> cpu;
    std::optional<double> gpu;
    std::optional<double> ane;
    std::optional<double> ram;

    bool operator==(const ChipPower &) const = default;
};

enum class BatteryHealthCondition { good, fair, poor };

std::optional<BatteryHealthCondition> batteryHealthConditionFromRaw(QStringView raw);
QString rawValue(BatteryHealthCondition condition);
QString localizedName(BatteryHealthCondition condition);

enum class BatteryCellSource { registry, smc };

std::optional<BatteryCellSource> batteryCellSourceFromRaw(QStringView raw);
QString rawValue(BatteryCellSource source);

// One of several packs in a machine that has more than one (an internal and an external battery),
// with its own figures; the reading's battery fields describe them together.
struct BatteryPack {
    QString name; // the system's name for it, "BAT0"
    std::optional<QString> model;
    std::optional<QString> serial;
    std::int64_t percent = 0;
    std::optional<double> flowW; // positive into the pack
    std::optional<std::int64_t> healthPercent;
    std::optional<std::int64_t> cycleCount;
    std::optional<std::int64_t> designCapacityMAH;
    std::optional<std::int64_t> fullChargeCapacityMAH;
    std::optional<double> temperatureC;
    std::optional<double> voltageV;
    std::optional<double> lifetimeMaxTemperatureC;
    std::optional<double> lifetimeMinTemperatureC;
    std::optional<double> lifetimeMaxPackVoltageV;
    std::optional<double> lifetimeMinPackVoltageV;
    std::optional<double> lifetimeMaxChargeCurrentA;
    std::optional<double> lifetimeMaxDischargeCurrentA;

    bool operator==(const BatteryPack &) const = default;
};

// One complete reading of the machine's power state. Equality is field by field with IEEE
// semantics, so a NaN anywhere makes a snapshot unequal to itself.
struct PowerSnapshot {
    double dcVoltageV = 0;
    double dcCurrentA = 0;
    double dcPowerW = 0;
    double systemPowerW = 0;
    ChipPower chipPower;
    double batteryFlowW = 0; // positive into the battery, negative out of it
    double batteryChargePowerW = 0;
    bool hasBattery = false;
    std::int64_t batteryPercent = 0;
    std::optional<std::int64_t> batteryHealthPercent;
    std::optional<BatteryHealthCondition> batteryHealthCondition;
    std::optional<double> batteryTemperatureC;
    std::optional<double> batteryVoltageV;
    std::optional<double> batteryCurrentA;
    std::optional<double> batteryRailVoltageV;
    std::optional<std::int64_t> cycleCount;
    std::optional<std::int64_t> designCycleCount;
    std::optional<std::int64_t> estimatedMinutesToFull;
    std::optional<std::int64_t> designCapacityMAH;
    std::optional<std::int64_t> fullChargeCapacityMAH;
    std::optional<std::int64_t> nominalFullChargeCapacityMAH;
    std::optional<std::int64_t> remainingCapacityMAH;
    std::vector<double> cellVoltagesV;
    std::optional<BatteryCellSource> cellVoltageSource;
    std::optional<QString> deviceName;
    std::optional<QString> batterySerial;
    std::optional<std::int64_t> totalOperatingMinutes;
    std::optional<double> lifetimeMaxTemperatureC;
    std::optional<double> lifetimeMinTemperatureC;
    std::optional<double> lifetimeAverageTemperatureC;
    std::optional<double> lifetimeMaxPackVoltageV;
    std::optional<double> lifetimeMinPackVoltageV;
    std::optional<double> lifetimeMaxChargeCurrentA;
    std::optional<double> lifetimeMaxDischargeCurrentA;
    std::optional<std::int64_t> batterySafetyProtectionCount;
    bool isExternalConnected = false;
    bool isCharging = false;
    bool isDataAvailable = false;
    std::optional<QString> adapterDescription;
    std::vector<BatteryPack> batteryPacks; // empty unless the machine has more than one
    WallTime updatedAt;

    bool operator==(const PowerSnapshot &) const = default;

    // The reading shown before the first real one; built once, stamped at its first use.
    static const PowerSnapshot &empty();

    // True when the headline figures come from the battery rather than the external input.
    bool isBatterySide() const;

    double shownBatteryFlowW() const { return shownFlowW(batteryFlowW); }
    std::optional<double> displayPowerW() const;
    std::optional<double> displayCurrentA() const;

    const char *statusKey() const;
    QString statusText() const;
    QString powerSourceText() const;
    QString timeToFullText() const;
};

} // namespace ferrow
