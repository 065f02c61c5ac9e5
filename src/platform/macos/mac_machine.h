#pragma once

#include "model/diagnosis.h"
#include "platform/common/process_command_runner.h"
#include "platform/common/settings_key_value_store.h"
#include "platform/macos/iokit_battery_sources.h"
#include "sources/platform_interfaces.h"

namespace ferrow {

// The Mac this program runs on: IOKit's SMC and registry, IOReport, the power-source service,
// the system profiler, and the user's preferences.
class MacMachine final : public MachinePlatform, public SystemInfo, public Clock {
public:
    std::unique_ptr<SMCUserClient> createSMCUserClient() override;
    std::unique_ptr<EnergyReportSource> createEnergyReportSource() override;
    RegistryPropertySource &registry() override { return m_registry; }
    PowerSourceList &powerSources() override { return m_powerSources; }
    CommandRunner &commandRunner() override { return m_runner; }
    KeyValueStore &preferences() override { return m_preferences; }
    SystemInfo &systemInfo() override { return *this; }
    const Clock &clock() const override { return *this; }

    // The model identifier and the system version, as "Mac15,6, macOS 26.1", for a recording.
    static QString modelAndSystem();
    // The system's versions and the activity assertion, then what each source answers.
    Diagnosis diagnose();

    int operatingSystemMajorVersion() const override;
    bool hasExternalPowerAdapterDetails() override { return m_powerSources.hasExternalPowerAdapterDetails(); }
    WallTime now() const override { return std::chrono::system_clock::now(); }
    // Seconds since boot, not counting sleep, like the system's own uptime.
    double uptimeSeconds() const override;

private:
    IOKitRegistry m_registry;
    IOKitPowerSources m_powerSources;
    ProcessCommandRunner m_runner;
    SettingsKeyValueStore m_preferences;
};

} // namespace ferrow
