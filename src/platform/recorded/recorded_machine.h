#pragma once

#include "apps/process_sample.h"
#include "platform/common/in_memory_smc.h"
#include "platform/common/self_contained_machine.h"
#include "platform/recorded/recording_format.h"
#include "sources/platform_interfaces.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace ferrow {

// Reads a recording folder: machine.json, and battery.plist unless the machine has no battery.
// On failure the message names the file, the place in it and the problem.
std::optional<Recording> loadRecording(const QString &folder, QString *error);

// One reading of a recorded machine, taken after the reading that sets the chip baseline.
std::optional<PowerSnapshot> readRecordedSnapshot(const QString &folder, QString *error);

// Replays a recording: the SMC, the battery service, power sources and profiler answer as recorded;
// each chip sample steps to the next energy frame, whose uptime the clock then reports; the
// processes step through their own frames.
class RecordedMachine final : public SelfContainedMachine, public Clock {
public:
    explicit RecordedMachine(Recording recording);

    std::unique_ptr<SMCUserClient> createSMCUserClient() override;
    std::unique_ptr<EnergyReportSource> createEnergyReportSource() override;
    const Clock &clock() const override { return *this; }

    std::optional<PropertyDictionary> registryProperties(const QString &className) override;
    std::optional<PropertyList> powerSourceDescriptions() override { return m_recording.powerSources; }
    std::optional<CommandResult> run(const QString &program, const QStringList &arguments) override;
    int operatingSystemMajorVersion() const override { return m_recording.osMajorVersion; }
    bool hasExternalPowerAdapterDetails() override { return m_recording.adapterDetails; }
    WallTime now() const override { return std::chrono::system_clock::now(); }
    double uptimeSeconds() const override;

    // The next energy frame (the last one repeats once the recording runs out).
    std::optional<std::vector<EnergyChannelSample>> nextEnergyFrame();
    // A source that gives each process frame in turn, the last one repeating; nothing where the
    // recording has none.
    std::unique_ptr<ProcessSource> createProcessSource() const;

private:
    Recording m_recording;
    InMemorySMC m_smc;
    std::optional<std::size_t> m_frame;
};

} // namespace ferrow
