#pragma once

#include "platform/common/in_memory_smc.h"
#include "platform/common/self_contained_machine.h"
#include "platform/simulated/simulated_power_model.h"
#include "platform/simulated/simulation_clock.h"
#include "sources/platform_interfaces.h"

namespace ferrow {

// A simulated Apple-silicon notebook or desktop that hands the reader raw, platform-shaped data:
// SMC keys with their real types and byte layouts, the battery service's property dictionary,
// energy-report channels, the power-source list and the system profiler's JSON. The model runs
// on the machine's clock: real time for the application, manual time for tests.
class SimulatedMachine final : public SelfContainedMachine {
public:
    struct Options {
        SimulatedPowerModel::Kind kind = SimulatedPowerModel::Kind::notebook;
        std::uint64_t seed = 1;
        bool realTime = true;
        int osMajorVersion = 26;
    };

    explicit SimulatedMachine(Options options);

    SimulationClock &simulationClock() { return m_clock; }
    SimulatedPowerModel &model() { return m_model; }

    // Faults, for tests that want a machine misbehaving.
    InMemorySMC &smc() { return m_smc; }
    void setBatteryServicePresent(bool present) { m_batteryServicePresent = present; }
    void setBatterySerial(const QString &serial) { m_batterySerial = serial; }
    InMemoryKeyValueStore &inMemoryPreferences() { return m_preferences; }

    std::unique_ptr<SMCUserClient> createSMCUserClient() override;
    std::unique_ptr<EnergyReportSource> createEnergyReportSource() override;
    const Clock &clock() const override { return m_clock; }

    std::optional<PropertyDictionary> registryProperties(const QString &className) override;
    std::optional<PropertyList> powerSourceDescriptions() override;
    std::optional<CommandResult> run(const QString &program, const QStringList &arguments) override;
    int operatingSystemMajorVersion() const override { return m_options.osMajorVersion; }
    bool hasExternalPowerAdapterDetails() override;

    // Brings the model up to the clock and the SMC's keys up to the model.
    void sync();
    std::optional<std::vector<EnergyChannelSample>> energyChannels();

private:
    void publishSMCKeys();
    PropertyDictionary batteryProperties() const;

    Options m_options;
    SimulationClock m_clock;
    SimulatedPowerModel m_model;
    InMemorySMC m_smc;
    bool m_batteryServicePresent = true;
    QString m_batterySerial = QStringLiteral("SIMF8Y2K0NOTEBK");
};

} // namespace ferrow
