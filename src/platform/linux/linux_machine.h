#pragma once

#include "platform/linux/chip_energy_source.h"
#include "platform/linux/hwmon_sensors.h"
#include "platform/linux/power_supplies.h"
#include "platform/linux/sysfs_files.h"
#include "sources/platform_interfaces.h"

#include <memory>

namespace ferrow {

// A Linux machine read through the kernel's own files: its battery as the battery service's
// property dictionary, the SMC's power keys where hwmon or the supplies measure them, and RAPL and
// graphics energy as energy channels. What is there is found once, at construction.
class LinuxMachine final : public MachinePlatform,
                           public RegistryPropertySource,
                           public PowerSourceList,
                           public CommandRunner,
                           public SystemInfo {
public:
    // Preferences keep the battery's lifetime extremes; the clock times the energy counters (the
    // machine's monotonic clock when none is given).
    LinuxMachine(std::unique_ptr<SysfsFiles> files, std::unique_ptr<KeyValueStore> preferences,
                 std::unique_ptr<Clock> clock = nullptr);
    ~LinuxMachine() override;

    // A battery, an external supply or a power sensor: something here worth reading.
    bool hasPowerSources() const;
    // Processor energy counters exist, but none can be read by this user.
    bool chipPowerNeedsPermission() const { return m_chip.needsPermission(); }

    std::unique_ptr<SMCUserClient> createSMCUserClient() override;
    std::unique_ptr<EnergyReportSource> createEnergyReportSource() override;
    RegistryPropertySource &registry() override { return *this; }
    PowerSourceList &powerSources() override { return *this; }
    CommandRunner &commandRunner() override { return *this; }
    KeyValueStore &preferences() override { return *m_preferences; }
    SystemInfo &systemInfo() override { return *this; }
    const Clock &clock() const override { return *m_clock; }

    std::optional<PropertyDictionary> registryProperties(const QString &className) override;
    // No power-source service and no system profiler here: health comes from the capacities.
    std::optional<PropertyList> powerSourceDescriptions() override { return std::nullopt; }
    std::optional<CommandResult> run(const QString &, const QStringList &) override { return std::nullopt; }
    int operatingSystemMajorVersion() const override;
    // Asked only when no supply says whether it is online: a charging battery has power from somewhere.
    bool hasExternalPowerAdapterDetails() override { return m_lastBatteryCharging; }

private:
    std::unique_ptr<SysfsFiles> m_files;
    std::unique_ptr<KeyValueStore> m_preferences;
    std::unique_ptr<Clock> m_clock;
    PowerSupplies m_supplies;
    HwmonSensors m_hwmon;
    ChipEnergyFiles m_chip;
    bool m_lastBatteryCharging = false;
};

// Copies every file one reading of the machine under sourceRoot uses to the same place under
// folder (which must be new or empty), so that the copy reads the same as sysfs:FOLDER.
bool recordSysfsTree(const std::string &sourceRoot, const QString &folder, QString *error);

} // namespace ferrow
