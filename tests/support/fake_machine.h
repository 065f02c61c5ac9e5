#pragma once

#include "platform/common/in_memory_smc.h"
#include "platform/common/self_contained_machine.h"
#include "sources/mac_names.h"
#include "sources/platform_interfaces.h"

namespace ferrow::testing {

// A machine whose every source the test sets by hand.
class FakeMachine final : public SelfContainedMachine, public Clock {
public:
    InMemorySMC smc;
    std::optional<PropertyDictionary> battery;
    std::optional<PropertyList> powerSourceList;
    std::optional<CommandResult> profiler;
    int osMajorVersion = 26;
    bool adapterDetails = false;
    WallTime time = WallTime() + std::chrono::hours(24 * 365 * 56);
    int profilerRuns = 0;
    QStringList lastCommand;
    int powerSourceQueries = 0;

    std::unique_ptr<SMCUserClient> createSMCUserClient() override { return std::make_unique<InMemorySMCClient>(smc); }
    std::unique_ptr<EnergyReportSource> createEnergyReportSource() override { return nullptr; }
    const Clock &clock() const override { return *this; }

    std::optional<PropertyDictionary> registryProperties(const QString &className) override
    {
        return className == MacNames::batteryService ? battery : std::nullopt;
    }
    std::optional<PropertyList> powerSourceDescriptions() override
    {
        ++powerSourceQueries;
        return powerSourceList;
    }
    std::optional<CommandResult> run(const QString &program, const QStringList &arguments) override
    {
        ++profilerRuns;
        lastCommand = QStringList{program} + arguments;
        return profiler;
    }
    int operatingSystemMajorVersion() const override { return osMajorVersion; }
    bool hasExternalPowerAdapterDetails() override { return adapterDetails; }
    WallTime now() const override { return time; }
    double uptimeSeconds() const override { return std::chrono::duration<double>(time.time_since_epoch()).count(); }
};

} // namespace ferrow::testing
