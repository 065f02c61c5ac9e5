#pragma once

#include "monitor/battery_history_store.h"
#include "monitor/key_value_store.h"
#include "monitor/snapshot_reader.h"
#include "platform/linux/chip_energy_source.h"
#include "platform/linux/hwmon_sensors.h"
#include "platform/linux/power_supplies.h"
#include "platform/linux/sysfs_files.h"
#include "sources/platform_interfaces.h"
#include "sources/stats_chip_power_reader.h"

#include <memory>

namespace ferrow {

// A Linux machine read through the kernel's own files, in the kernel's units, straight into a
// reading: the battery's status word, its power or voltage times current, its charge or energy
// counters; the SMC's input and system power where hwmon shows them (Apple silicon); RAPL and
// graphics energy through the same counter arithmetic as a Mac's. What is there is found once.
class LinuxPowerReader final : public SnapshotReader {
public:
    // Preferences keep the battery's lifetime extremes; the clock times the energy counters (the
    // machine's monotonic clock when none is given).
    LinuxPowerReader(std::unique_ptr<SysfsFiles> files, std::unique_ptr<KeyValueStore> preferences,
                     std::unique_ptr<Clock> clock = nullptr);
    ~LinuxPowerReader() override;

    // A battery, an external supply or a power sensor: something here worth reading.
    bool hasPowerSources() const;
    // Processor energy counters exist, but none can be read by this user.
    bool chipPowerNeedsPermission() const { return m_chip.needsPermission(); }

    PowerSnapshot read() override;
    void persist() override { m_preferences->flush(); }

private:
    std::optional<double> sensor(const char *smcKey, double highest);
    // Every figure of the battery itself, and its lifetime extremes.
    void readBattery(PowerSnapshot &s, const BatteryReading &battery, const std::vector<BatteryReading> &packs);

    std::unique_ptr<SysfsFiles> m_files;
    std::unique_ptr<KeyValueStore> m_preferences;
    std::unique_ptr<Clock> m_clock;
    PowerSupplies m_supplies;
    HwmonSensors m_hwmon;
    ChipEnergyFiles m_chip;
    StatsChipPowerReader m_chipReader;
    BatteryHistoryStore m_history;
};

// Copies every file one reading of the machine under sourceRoot uses to the same place under
// folder (which must be new or empty), so that the copy reads the same as sysfs:FOLDER.
bool recordSysfsTree(const std::string &sourceRoot, const QString &folder, QString *error);

} // namespace ferrow
