#pragma once

#include "apps/app_energy.h"
#include "history/energy_totals.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace ferrow {

// Seconds since 1970-01-01 UTC; the database's time.
using UnixSeconds = std::int64_t;

// One minute of readings (or, rolled up, one hour): its energy and how the headline power and the
// battery stood. start is the first second of the minute in UTC.
struct MinuteRecord {
    UnixSeconds start = 0;
    EnergyTotals energy;
    std::optional<double> minPowerW;
    std::optional<double> meanPowerW;
    std::optional<double> maxPowerW;
    std::optional<std::int64_t> batteryPercent; // at the end of the minute
    std::optional<double> batteryTemperatureC;
    bool externalPower = false;
    bool charging = false;
    std::optional<QString> batteryId; // the lifetime store's hash of the serial
};

// A continuous stretch on battery or on external power.
struct SessionRecord {
    UnixSeconds start = 0;
    UnixSeconds end = 0;
    bool externalPower = false;
    std::optional<std::int64_t> startPercent;
    std::optional<std::int64_t> endPercent;
    double energyWh = 0; // out of the battery on battery; delivered by the adapter (or into the battery) on it
    double coveredS = 0;
    std::optional<double> peakPowerW;
    std::optional<QString> batteryId;

    std::optional<double> meanPowerW() const { return coveredS > 0 ? std::optional(energyWh * 3600.0 / coveredS) : std::nullopt; }
};

// A battery's condition on one day.
struct BatteryDayRecord {
    QString batteryId;
    QString day; // the local date, "2026-11-24"
    std::optional<std::int64_t> healthPercent;
    std::optional<std::int64_t> fullChargeCapacityMAH;
    std::optional<std::int64_t> designCapacityMAH;
    std::optional<std::int64_t> cycleCount;
};

// The applications' energy in one minute: its top applications, this program, the system's
// remainder and one line for the rest.
struct AppMinuteRecord {
    UnixSeconds start = 0;
    AppEnergyList apps;
};

} // namespace ferrow
