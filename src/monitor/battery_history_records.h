#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>

namespace ferrow {

// Lifetime extremes of a battery's pack voltage and currents.
struct BatteryElectricalHistory {
    std::optional<double> maximumVoltageV;
    std::optional<double> minimumVoltageV;
    std::optional<double> maximumChargeCurrentA;
    std::optional<double> maximumDischargeCurrentA; // a positive magnitude

    // Folds in one reading; implausible values are ignored. currentA is positive while charging.
    void record(std::optional<double> voltageV, std::optional<double> currentA);

    bool operator==(const BatteryElectricalHistory &) const = default;
};

// Lifetime extremes and running mean of a battery's temperature.
struct BatteryTemperatureHistory {
    std::optional<double> maximumC;
    std::optional<double> minimumC;
    std::optional<double> averageC;
    std::uint64_t sampleCount = 0;

    void record(std::optional<double> temperatureC);
    bool isPlausible() const;

    bool operator==(const BatteryTemperatureHistory &) const = default;
};

// The stored form: one compact JSON object, absent fields left out.
std::optional<QByteArray> encodeRecord(const BatteryElectricalHistory &record);
std::optional<QByteArray> encodeRecord(const BatteryTemperatureHistory &record);
std::optional<BatteryElectricalHistory> decodeElectricalHistory(const QByteArray &json);
std::optional<BatteryTemperatureHistory> decodeTemperatureHistory(const QByteArray &json);

} // namespace ferrow
