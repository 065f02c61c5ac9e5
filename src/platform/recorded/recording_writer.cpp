#include "platform/recorded/recording_writer.h"

#include "monitor/battery_history_store.h"
#include "platform/recorded/recording_format.h"
#include "sources/mac_names.h"
#include "sources/power_sensor_reader.h"
#include "sources/stats_smc.h"

#include <QDir>
#include <QSaveFile>

#include <algorithm>

namespace ferrow {
namespace {

std::vector<std::pair<std::string, InMemorySMC::Entry>> smcKeys(MachinePlatform &machine)
{
    std::vector<std::pair<std::string, InMemorySMC::Entry>> keys;
    StatsSMC smc(machine.createSMCUserClient());
    if (!smc.isOpen())
        return keys;
    for (const std::string &key : PowerSensorReader::smcKeysRead()) {
        SMCValue value;
        value.key = key;
        if (smc.readKey(value) != kIOKitSuccess || value.dataSize == 0)
            continue; // a key the machine does not have
        const auto size = static_cast<std::ptrdiff_t>(std::min<std::size_t>(value.dataSize, value.bytes.size()));
        keys.emplace_back(key, InMemorySMC::Entry{value.dataType, value.dataSize, std::vector<std::uint8_t>(value.bytes.begin(), value.bytes.begin() + size)});
    }
    return keys;
}

std::vector<Recording::EnergyFrame> energyFrames(MachinePlatform &machine, const std::function<void()> &waitOneSecond)
{
    std::vector<Recording::EnergyFrame> frames;
    std::unique_ptr<EnergyReportSource> source = machine.createEnergyReportSource();
    if (!source || !source->subscribe())
        return frames;
    for (int frame = 0; frame < 2; ++frame) {
        if (frame > 0)
            waitOneSecond();
        std::optional<std::vector<EnergyChannelSample>> sample = source->sample();
        if (!sample)
            break;
        frames.push_back({machine.clock().uptimeSeconds(), std::move(*sample)});
    }
    return frames;
}

std::vector<std::pair<QString, QByteArray>> storedEntries(MachinePlatform &machine, const std::optional<PropertyDictionary> &battery)
{
    std::vector<std::pair<QString, QByteArray>> entries;
    const std::optional<QString> identifier =
        BatteryHistoryStore::batteryIdentifier(propertyString(propertyLookup(battery ? &*battery : nullptr, QStringLiteral("Serial"))));
    if (!identifier)
        return entries;
    for (const QString &prefix : {BatteryHistoryStore::kElectricalKeyPrefix, BatteryHistoryStore::kTemperatureKeyPrefix}) {
        if (std::optional<QByteArray> stored = machine.preferences().data(prefix + *identifier))
            entries.emplace_back(prefix + *identifier, std::move(*stored));
    }
    return entries;
}

// Asked in the order recordings have always been made in: a machine that moves on while it is recorded (the
// simulated one) gives the answers of the same moments.
Recording capture(MachinePlatform &machine, const QString &description, const std::function<void()> &waitOneSecond)
{
    Recording recording;
    recording.description = description;
    recording.battery = machine.registry().registryProperties(MacNames::batteryService);
    recording.osMajorVersion = machine.systemInfo().operatingSystemMajorVersion();
    recording.adapterDetails = machine.systemInfo().hasExternalPowerAdapterDetails();
    recording.smcKeys = smcKeys(machine);
    recording.energyFrames = energyFrames(machine, waitOneSecond);
    recording.powerSources = machine.powerSources().powerSourceDescriptions();
    recording.systemProfiler = machine.commandRunner().run(MacNames::systemProfiler, MacNames::systemProfilerArguments);
    recording.preferences = storedEntries(machine, recording.battery);
    return recording;
}

bool save(const QString &path, const QByteArray &contents, QString *error)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.commit())
        return true;
    *error = QStringLiteral("%1: cannot be written: %2").arg(path, file.errorString());
    return false;
}

} // namespace

bool writeRecording(MachinePlatform &machine, const QString &description, const std::function<void()> &waitOneSecond,
                    const QString &folder, QString *error)
{
    QString ignored;
    QString &message = error ? *error : ignored;
    if (!QDir().mkpath(folder)) {
        message = QStringLiteral("%1: cannot be made").arg(folder);
        return false;
    }
    const QDir directory(folder);
    const RecordingFiles files = encodeRecording(capture(machine, description, waitOneSecond));
    if (files.batteryPlist && !save(directory.filePath(RecordingFormat::batteryFile), *files.batteryPlist, &message))
        return false;
    return save(directory.filePath(RecordingFormat::machineFile), files.machineJson, &message);
}

} // namespace ferrow
