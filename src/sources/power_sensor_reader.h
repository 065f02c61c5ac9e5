#pragma once

#include "monitor/battery_history_store.h"
#include "monitor/snapshot_reader.h"
#include "sources/battery_cell_reader.h"
#include "sources/battery_health_sources.h"
#include "sources/battery_temperature_reader.h"
#include "sources/platform_interfaces.h"
#include "sources/stats_chip_power_reader.h"
#include "sources/stats_smc.h"

#include <memory>
#include <optional>
#include <set>
#include <string>

namespace ferrow {

// Turns everything a machine reports about its power into one snapshot: the SMC's power keys, a
// chip energy sample, the battery service's properties, the health sources, cells, temperature,
// and the per-battery history. Every source failure leaves only its own fields at 0, false or absent.
class PowerSensorReader final : public SnapshotReader {
public:
    explicit PowerSensorReader(std::unique_ptr<MachinePlatform> platform);

    PowerSnapshot read() override;

    // Every SMC key a reading may ask for, power, cell and temperature keys alike.
    static std::vector<std::string> smcKeysRead();

    // The power keys found on the first read; absent before it, then fixed for the process.
    const std::optional<std::set<std::string>> &availableSMCKeys() const { return m_availableSMCKeys; }

private:
    StatsSMC &smc();
    BatteryHistoryStore &historyStore();
    void discoverPowerKeys();
    std::optional<double> readPowerKey(const std::string &key, double lowest, double highest);

    std::unique_ptr<MachinePlatform> m_platform;
    std::unique_ptr<StatsSMC> m_smc;
    std::unique_ptr<StatsChipPowerReader> m_chipReader;
    BatteryCellReader m_cellReader;
    BatteryTemperatureReader m_temperatureReader;
    std::unique_ptr<BatteryHistoryStore> m_batteryHistoryStore;
    std::optional<std::set<std::string>> m_availableSMCKeys;
    BatteryHealthSources m_health;
};

} // namespace ferrow
