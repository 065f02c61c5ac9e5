#include "platform/recorded/recording_writer.h"

#include "monitor/battery_history_store.h"
#include "platform/recorded/property_list_writer.h"
#include "sources/mac_names.h"
#include "sources/power_sensor_reader.h"
#include "sources/stats_smc.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace ferrow {
namespace {

QJsonValue jsonFromProperty(const PropertyValue &value)
{
    return std::visit(
        [](const auto &v) -> QJsonValue {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, std::int64_t>)
                return static_cast<qint64>(v);
            else if constexpr (std::is_same_v<T, std::uint64_t> || std::is_same_v<T, double>)
                return static_cast<double>(v);
            else if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, QString>)
                return v;
            else if constexpr (std::is_same_v<T, QByteArray>)
                return QString::fromLatin1(v.toBase64());
            else if constexpr (std::is_same_v<T, PropertyList>) {
                QJsonArray array;
                for (const PropertyValue &element : v)
                    array.append(jsonFromProperty(element));
                return array;
            } else if constexpr (std::is_same_v<T, PropertyDictionary>) {
                QJsonObject object;
                for (const auto &[key, element] : v)
                    object.insert(key, jsonFromProperty(element));
                return object;
            } else {
                return QJsonValue::Null;
            }
        },
        value.value);
}

QJsonObject smcKeys(MachinePlatform &machine)
{
    QJsonObject keys;
    StatsSMC smc(machine.createSMCUserClient());
    if (!smc.isOpen())
        return keys;
    for (const std::string &key : PowerSensorReader::smcKeysRead()) {
        SMCValue value;
        value.key = key;
        if (smc.readKey(value) != kIOKitSuccess || value.dataSize == 0)
            continue; // a key the machine does not have
        const auto size = std::min<std::size_t>(value.dataSize, value.bytes.size());
        const QByteArray bytes(reinterpret_cast<const char *>(value.bytes.data()), static_cast<qsizetype>(size));
        QJsonObject entry{{QStringLiteral("type"), QString::fromStdString(value.dataType)},
                          {QStringLiteral("bytes"), QString::fromLatin1(bytes.toHex())}};
        if (size != value.dataSize)
            entry.insert(QStringLiteral("size"), static_cast<qint64>(value.dataSize));
        keys.insert(QString::fromStdString(key), entry);
    }
    return keys;
}

QJsonArray energyFrames(MachinePlatform &machine, const std::function<void()> &waitOneSecond)
{
    QJsonArray frames;
    std::unique_ptr<EnergyReportSource> source = machine.createEnergyReportSource();
    if (!source || !source->subscribe())
        return frames;
    const auto text = [](const std::optional<QString> &t) { return t ? QJsonValue(*t) : QJsonValue(QJsonValue::Null); };
    for (int frame = 0; frame < 2; ++frame) {
        if (frame > 0)
            waitOneSecond();
        const std::optional<std::vector<EnergyChannelSample>> sample = source->sample();
        if (!sample)
            break;
        QJsonArray channels;
        for (const EnergyChannelSample &channel : *sample)
            channels.append(QJsonArray{text(channel.group), text(channel.name), text(channel.unitLabel), static_cast<qint64>(channel.counter)});
        frames.append(QJsonObject{{QStringLiteral("uptime"), machine.clock().uptimeSeconds()}, {QStringLiteral("channels"), channels}});
    }
    return frames;
}

QJsonValue systemProfiler(MachinePlatform &machine)
{
    const std::optional<CommandResult> result =
        machine.commandRunner().run(MacNames::systemProfiler, MacNames::systemProfilerArguments);
    if (!result)
        return QJsonValue::Undefined;
    const QJsonDocument document = QJsonDocument::fromJson(result->standardOutput);
    return QJsonObject{{QStringLiteral("exitStatus"), result->exitStatus},
                       {QStringLiteral("output"), document.isObject() ? QJsonValue(document.object()) : QJsonValue(QString::fromUtf8(result->standardOutput))}};
}

QJsonObject storedEntries(MachinePlatform &machine, const std::optional<PropertyDictionary> &battery)
{
    QJsonObject entries;
    const std::optional<QString> identifier =
        BatteryHistoryStore::batteryIdentifier(propertyString(propertyLookup(battery ? &*battery : nullptr, QStringLiteral("Serial"))));
    if (!identifier)
        return entries;
    for (const QString &prefix : {BatteryHistoryStore::kElectricalKeyPrefix, BatteryHistoryStore::kTemperatureKeyPrefix}) {
        if (const std::optional<QByteArray> stored = machine.preferences().data(prefix + *identifier))
            entries.insert(prefix + *identifier, QString::fromUtf8(*stored));
    }
    return entries;
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
    const std::optional<PropertyDictionary> battery = machine.registry().registryProperties(MacNames::batteryService);

    QJsonObject root{
        {QStringLiteral("format"), QStringLiteral("ferrow-recording/1")},
        {QStringLiteral("description"), description},
        {QStringLiteral("osMajorVersion"), machine.systemInfo().operatingSystemMajorVersion()},
        {QStringLiteral("adapterDetails"), machine.systemInfo().hasExternalPowerAdapterDetails()},
        {QStringLiteral("smc"), smcKeys(machine)},
        {QStringLiteral("energy"), energyFrames(machine, waitOneSecond)},
    };
    if (const std::optional<PropertyList> sources = machine.powerSources().powerSourceDescriptions())
        root.insert(QStringLiteral("powerSources"), jsonFromProperty(*sources));
    if (const QJsonValue profiler = systemProfiler(machine); !profiler.isUndefined())
        root.insert(QStringLiteral("systemProfiler"), profiler);
    if (const QJsonObject entries = storedEntries(machine, battery); !entries.isEmpty())
        root.insert(QStringLiteral("preferences"), entries);

    if (battery && !save(directory.filePath(QStringLiteral("battery.plist")), writePropertyList(PropertyList{*battery}), &message))
        return false;
    return save(directory.filePath(QStringLiteral("machine.json")), QJsonDocument(root).toJson(), &message);
}

} // namespace ferrow
