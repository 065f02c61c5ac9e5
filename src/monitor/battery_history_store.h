#pragma once

#include "monitor/battery_history_records.h"
#include "monitor/key_value_store.h"

#include <QString>

#include <map>
#include <optional>

namespace ferrow {

// Per-battery lifetime extremes kept in the user's preferences, keyed by a hash of the serial
// number. Each key is read at most once per process; after that the record in memory is the truth.
class BatteryHistoryStore {
public:
    static inline const QString kElectricalKeyPrefix = QStringLiteral("batteryElectricalHistory.v1.");
    static inline const QString kTemperatureKeyPrefix = QStringLiteral("batteryTemperatureHistory.v1.");

    explicit BatteryHistoryStore(KeyValueStore &defaults);

    BatteryElectricalHistory recordElectrical(const std::optional<QString> &serial, std::optional<double> voltageV,
                                              std::optional<double> currentA);
    BatteryTemperatureHistory recordTemperature(const std::optional<QString> &serial, std::optional<double> temperatureC);

    // SHA-256 of the serial as 64 lowercase hex digits; absent for a missing or empty serial.
    static std::optional<QString> batteryIdentifier(const std::optional<QString> &serial);

private:
    KeyValueStore &m_defaults;
    std::map<QString, BatteryElectricalHistory> m_histories;
    std::map<QString, BatteryTemperatureHistory> m_temperatureHistories;
};

} // namespace ferrow
