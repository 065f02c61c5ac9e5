#pragma once

#include "platform/common/in_memory_smc.h"
#include "platform/common/self_contained_machine.h"
#include "sources/platform_interfaces.h"

#include <QString>

#include <optional>
#include <vector>

namespace ferrow {

// What a recording of a real Mac holds; see docs/recording-format.md.
struct Recording {
    struct EnergyFrame {
        double uptimeS = 0;
        std::vector<EnergyChannelSample> channels;
    };

    QString description;
    int osMajorVersion = 26;
    std::optional<PropertyDictionary> battery;
    std::vector<std::pair<std::string, InMemorySMC::Entry>> smcKeys;
    bool adapterDetails = false;
    std::vector<EnergyFrame> energyFrames;
    std::optional<PropertyList> powerSources;
    std::optional<CommandResult> systemProfiler;
    // The battery's stored lifetime extremes, by their preference keys, as the store wrote them.
    std::vector<std::pair<QString, QByteArray>> preferences;
};

// Reads a recording folder: machine.json, and battery.plist unless the machine has no battery.
// On failure the message names the file, the place in it and the problem.
std::optional<Recording> loadRecording(const QString &folder, QString *error);
// The same from the files' contents; the paths only name the files in messages.
std::optional<Recording> parseRecording(const QByteArray &machineJson, const QString &machinePath,
                                        const std::optional<QByteArray> &batteryPlist, const QString &batteryPath, QString *error);

// One reading of a recorded machine, taken after the reading that sets the chip baseline.
std::optional<PowerSnapshot> readRecordedSnapshot(const QString &folder, QString *error);

// Replays a recording: the SMC, the battery service, power sources and profiler answer as recorded;
// each chip sample steps to the next energy frame, whose uptime the clock then reports.
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

private:
    Recording m_recording;
    InMemorySMC m_smc;
    std::optional<std::size_t> m_frame;
};

} // namespace ferrow
