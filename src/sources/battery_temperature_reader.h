#pragma once

#include "sources/key_probe.h"
#include "sources/stats_smc.h"

#include <optional>
#include <string>
#include <vector>

namespace ferrow {

// The battery temperature sensors "TB1T" and "TB2T".
class BatteryTemperatureReader {
public:
    static std::vector<std::string> smcKeys();
    std::vector<std::optional<double>> readSensors(StatsSMC &smc);
    // The sensors found on this machine; absent until the first read, then fixed for the process.
    const std::optional<std::vector<std::string>> &availableKeys() const { return m_availableKeys.found(); }

private:
    KeyProbe<std::vector<std::string>> m_availableKeys;
};

// Whether a battery temperature in °C is one a working battery can have.
bool isPlausibleBatteryTemperature(double celsius);

// The temperature to show: from macOS 27 on, the mean of the plausible sensors; otherwise, or when
// none is plausible, the registry value.
std::optional<double> resolveTemperature(std::optional<double> registryC, bool hasBattery, int osMajorVersion,
                                         BatteryTemperatureReader &reader, StatsSMC &smc);

} // namespace ferrow
