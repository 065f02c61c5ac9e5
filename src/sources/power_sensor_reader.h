#pragma once

#include "monitor/battery_history_store.h"
#include "monitor/snapshot_reader.h"
#include "sources/battery_cell_reader.h"
#include "sources/battery_health_sources.h"
#include "sources/battery_temperature_reader.h"
#include "sources/key_probe.h"
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
    void persist() override;

    // Every SMC key a reading may ask for, power, cell and temperature keys alike.
    static std::vector<std::string> smcKeysRead();

    // The power keys found on the first read; absent before it, then fixed for the process.
    const std::optional<std::set<std::string>> &availableSMCKeys() const { return m_powerKeys.found(); }

private:
    // What a read has gathered so far that its later steps need besides the snapshot.
    struct Reading;

    StatsSMC &smc();
    StatsChipPowerReader &chipReader();
    BatteryHistoryStore &historyStore();
    std::optional<double> readPowerKey(const std::string &key, double lowest, double highest);

    // The steps of read(), in the order it takes them.
    void readInputPower(Reading &r, PowerSnapshot &s);
    void readBatteryService(Reading &r, PowerSnapshot &s);
    void readFlowsAndChargeState(const Reading &r, PowerSnapshot &s);
    static void readCapacities(Reading &r, PowerSnapshot &s);
    void readHealth(PowerSnapshot &s);
    void readCellsAndTemperature(const Reading &r, PowerSnapshot &s);
    static void readPackElectrics(Reading &r, PowerSnapshot &s);
    void recordLifetimeExtremes(const Reading &r, PowerSnapshot &s);
    static void readTimeToFull(const Reading &r, PowerSnapshot &s);
    static void readCountsAndNames(const Reading &r, PowerSnapshot &s);
    void completeSnapshot(const Reading &r, PowerSnapshot &s);

    std::unique_ptr<MachinePlatform> m_platform;
    std::unique_ptr<StatsSMC> m_smc;
    std::unique_ptr<StatsChipPowerReader> m_chipReader;
    BatteryCellReader m_cellReader;
    BatteryTemperatureReader m_temperatureReader;
    std::unique_ptr<BatteryHistoryStore> m_batteryHistoryStore;
    KeyProbe<std::set<std::string>> m_powerKeys;
    BatteryHealthSources m_health;
};

} // namespace ferrow
