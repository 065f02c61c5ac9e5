#include "platform/linux/battery_properties.h"

#include <cmath>
#include <cstdlib>

namespace ferrow {
namespace {

// Far beyond anything real, and small enough that the unit conversions cannot overflow.
constexpr std::int64_t kLargestTemperatureDeciC = 100'000;
constexpr std::int64_t kLongestTimeToFullS = 100'000'000;

// Micro-units to milli-units, to the nearest; absent beyond what a property can hold.
std::optional<std::int64_t> milli(std::optional<double> micro)
{
    if (!micro || !std::isfinite(*micro) || std::fabs(*micro) > 1e15)
        return std::nullopt;
    return std::llround(*micro / 1000.0);
}

std::optional<double> asDouble(std::optional<std::int64_t> value)
{
    return value ? std::optional(static_cast<double>(*value)) : std::nullopt;
}

// A capacity in µAh, or in µWh over the lowest design voltage (µV): the battery's charge scale.
std::optional<std::int64_t> capacityMAH(std::optional<std::int64_t> value, const BatteryReading &battery)
{
    if (!value || *value <= 0)
        return std::nullopt;
    if (!battery.energyUnits)
        return milli(asDouble(value));
    if (!battery.voltageMinDesignUV || *battery.voltageMinDesignUV <= 0)
        return std::nullopt;
    return milli(static_cast<double>(*value) / static_cast<double>(*battery.voltageMinDesignUV) * 1e6);
}

// The battery's current magnitude in µA: its own, or its power over its voltage.
std::optional<double> currentMagnitudeUA(const BatteryReading &battery)
{
    if (battery.currentUA)
        return std::fabs(static_cast<double>(*battery.currentUA));
    if (battery.powerUW && battery.voltageUV && *battery.voltageUV > 0)
        return std::fabs(static_cast<double>(*battery.powerUW)) / static_cast<double>(*battery.voltageUV) * 1e6;
    return std::nullopt;
}

// The battery's power magnitude in µW: its own, or its voltage times its current.
std::optional<double> powerMagnitudeUW(const BatteryReading &battery)
{
    if (battery.powerUW)
        return std::fabs(static_cast<double>(*battery.powerUW));
    if (battery.currentUA && battery.voltageUV)
        return std::fabs(static_cast<double>(*battery.currentUA)) * static_cast<double>(*battery.voltageUV) / 1e6;
    return std::nullopt;
}

void put(PropertyDictionary &dictionary, const char *key, std::optional<std::int64_t> value)
{
    if (value)
        dictionary.emplace(QLatin1StringView(key), *value);
}

void put(PropertyDictionary &dictionary, const char *key, const std::optional<std::string> &value)
{
    if (value)
        dictionary.emplace(QLatin1StringView(key), QString::fromStdString(*value));
}

} // namespace

PropertyDictionary batteryProperties(const BatteryReading &battery, std::optional<bool> externalOnline)
{
    PropertyDictionary properties;
    properties.emplace(QStringLiteral("BatteryInstalled"), true);
    if (externalOnline)
        properties.emplace(QStringLiteral("ExternalConnected"), *externalOnline);
    const bool charging = battery.status == "Charging";
    const bool discharging = battery.status == "Discharging";
    if (battery.status)
        properties.emplace(QStringLiteral("IsCharging"), charging);

    std::optional<std::int64_t> percent = battery.capacityPercent;
    if (!percent && battery.now && battery.full && *battery.full > 0)
        percent = milli(static_cast<double>(*battery.now) / static_cast<double>(*battery.full) * 100.0 * 1000.0); // to the nearest percent
    if (percent) {
        properties.emplace(QStringLiteral("CurrentCapacity"), *percent);
        properties.emplace(QStringLiteral("MaxCapacity"), 100);
    }
    put(properties, "DesignCapacity", capacityMAH(battery.fullDesign, battery));
    put(properties, "AppleRawMaxCapacity", capacityMAH(battery.full, battery));
    if (const std::optional<std::int64_t> remaining = capacityMAH(battery.now, battery))
        properties.emplace(QStringLiteral("BatteryData"), PropertyDictionary{{QStringLiteral("RemainingCapacity"), *remaining}});

    put(properties, "Voltage", milli(asDouble(battery.voltageUV)));
    // Positive into the battery. Drivers disagree on the sign (or give none), the status does not.
    if (const std::optional<double> magnitude = currentMagnitudeUA(battery)) {
        double signedUA = magnitude.value();
        if (discharging || (!charging && battery.currentUA && *battery.currentUA < 0))
            signedUA = -signedUA;
        put(properties, "Amperage", milli(signedUA));
    }
    if (battery.temperatureDeciC && *battery.temperatureDeciC >= -kLargestTemperatureDeciC
        && *battery.temperatureDeciC <= kLargestTemperatureDeciC)
        properties.emplace(QStringLiteral("Temperature"), *battery.temperatureDeciC * 10);
    // Drivers that do not count cycles say 0.
    if (battery.cycleCount && *battery.cycleCount > 0)
        properties.emplace(QStringLiteral("CycleCount"), *battery.cycleCount);
    if (battery.timeToFullS && *battery.timeToFullS > 0 && *battery.timeToFullS <= kLongestTimeToFullS)
        properties.emplace(QStringLiteral("AvgTimeToFull"), (*battery.timeToFullS + 30) / 60);
    put(properties, "Serial", battery.serialNumber);
    put(properties, "DeviceName", battery.modelName);

    // On battery alone the system draws exactly what the battery gives. With anything external
    // online the system's draw is not measured here, so it stays unknown.
    if (discharging && externalOnline != true) {
        if (const std::optional<std::int64_t> loadMW = milli(powerMagnitudeUW(battery)))
            properties.emplace(QStringLiteral("PowerTelemetryData"), PropertyDictionary{{QStringLiteral("SystemLoad"), *loadMW}});
    }
    return properties;
}

} // namespace ferrow
