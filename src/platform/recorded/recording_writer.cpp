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

// Two samples a second apart, the processes' taken right after the energy's.
void sampleFrames(MachinePlatform &machine, ProcessSource *processes, const std::function<void()> &waitOneSecond, Recording &recording)
{
    std::unique_ptr<EnergyReportSource> energy = machine.createEnergyReportSource();
    bool energyFlows = energy && energy->subscribe();
    for (int frame = 0; frame < 2 && (energyFlows || processes); ++frame) {
        if (frame > 0)
            waitOneSecond();
        if (energyFlows) {
            std::optional<std::vector<EnergyChannelSample>> sample = energy->sample();
            if (sample)
                recording.energyFrames.push_back({machine.clock().uptimeSeconds(), std::move(*sample)});
            energyFlows = sample.has_value();
        }
        if (processes) {
            if (std::optional<ProcessFrame> sample = processes->sample())
                recording.processFrames.push_back(std::move(*sample));
        }
    }
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
Recording capture(MachinePlatform &machine, ProcessSource *processes, const QString &description, const std::function<void()> &waitOneSecond)
{
    Recording recording;
    recording.description = description;
    recording.battery = machine.registry().registryProperties(MacNames::batteryService);
    recording.osMajorVersion = machine.systemInfo().operatingSystemMajorVersion();
    recording.adapterDetails = machine.systemInfo().hasExternalPowerAdapterDetails();
    recording.smcKeys = smcKeys(machine);
    sampleFrames(machine, processes, waitOneSecond, recording);
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

bool writeRecording(MachinePlatform &machine, ProcessSource *processes, const QString &description,
                    const std::function<void()> &waitOneSecond, const QString &folder, QString *error)
{
    QString ignored;
    QString &message = error ? *error : ignored;
    if (!QDir().mkpath(folder)) {
        message = QStringLiteral("%1: cannot be made").arg(folder);
        return false;
    }
    const QDir directory(folder);
    const RecordingFiles files = encodeRecording(capture(machine, processes, description, waitOneSecond));
    if (files.batteryPlist && !save(directory.filePath(RecordingFormat::batteryFile), *files.batteryPlist, &message))
        return false;
    return save(directory.filePath(RecordingFormat::machineFile), files.machineJson, &message);
}

} // namespace ferrow
