#include "sources/battery_temperature_reader.h"

#include "sources/mac_names.h"

#include <cmath>

namespace ferrow {
namespace {

constexpr const char *kSensorKeys[] = {"TB1T", "TB2T"};

} // namespace

std::vector<std::string> BatteryTemperatureReader::smcKeys()
{
    return {std::begin(kSensorKeys), std::end(kSensorKeys)};
}

bool isPlausibleBatteryTemperature(double celsius)
{
    return std::isfinite(celsius) && celsius >= -20.0 && celsius <= 100.0;
}

std::vector<std::optional<double>> BatteryTemperatureReader::readSensors(StatsSMC &smc)
{
    std::vector<std::optional<double>> celsius;
    for (const std::string &key : m_availableKeys.keys(smc, kSensorKeys))
        celsius.push_back(smc.readDouble(key));
    return celsius;
}

std::optional<double> resolveTemperature(std::optional<double> registryC, bool hasBattery, int osMajorVersion,
                                         BatteryTemperatureReader &reader, StatsSMC &smc)
{
    if (!hasBattery)
        return std::nullopt;
    const std::optional<double> fallbackC =
        registryC && isPlausibleBatteryTemperature(*registryC) ? registryC : std::nullopt;
    if (osMajorVersion < MacNames::firstVersionWithSMCSensors)
        return fallbackC;

    double sumC = 0;
    int count = 0;
    for (const std::optional<double> &sensorC : reader.readSensors(smc)) {
        if (sensorC && isPlausibleBatteryTemperature(*sensorC)) {
            sumC += *sensorC;
            ++count;
        }
    }
    return count == 0 ? fallbackC : std::optional<double>(sumC / count);
}

} // namespace ferrow
