#pragma once

#include "apps/process_sample.h"
#include "platform/common/in_memory_smc.h"
#include "sources/platform_interfaces.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <string>
#include <utility>
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
    // The user's processes, sampled beside the energy frames.
    std::vector<ProcessFrame> processFrames;
    std::optional<PropertyList> powerSources;
    std::optional<CommandResult> systemProfiler;
    // The battery's stored lifetime extremes, by their preference keys, as the store wrote them.
    std::vector<std::pair<QString, QByteArray>> preferences;
};

// The names a recording folder's files go by.
namespace RecordingFormat {
inline const QString machineFile = QStringLiteral("machine.json");
inline const QString batteryFile = QStringLiteral("battery.plist");
} // namespace RecordingFormat

// A recording's files as bytes: battery.plist only where the machine has a battery.
struct RecordingFiles {
    QByteArray machineJson;
    std::optional<QByteArray> batteryPlist;
};

// The files of a recording, as the writer saves them and parseRecording reads them back.
RecordingFiles encodeRecording(const Recording &recording);
// A recording from its files' contents; the paths only name the files in messages.
// On failure the message names the file, the place in it and the problem.
std::optional<Recording> parseRecording(const QByteArray &machineJson, const QString &machinePath,
                                        const std::optional<QByteArray> &batteryPlist, const QString &batteryPath, QString *error);

} // namespace ferrow
