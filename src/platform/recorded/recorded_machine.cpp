#include "platform/recorded/recorded_machine.h"

#include "monitor/battery_history_store.h"
#include "platform/recorded/property_list_parser.h"
#include "sources/power_sensor_reader.h"
#include "sources/stats_smc.h"

#include <QDir>
#include <algorithm>
#include <limits>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace ferrow {
namespace {

constexpr qint64 kMaximumFileSize = 16 * 1024 * 1024;

// A problem found at a place in a file: the message the user sees.
struct LoadError {
    QString message;
};

QString placeOf(const QByteArray &text, int offset)
{
    const QByteArray before = text.left(offset);
    const int line = static_cast<int>(before.count('\n')) + 1;
    const int column = static_cast<int>(offset - (before.lastIndexOf('\n') + 1)) + 1;
    return QStringLiteral("line %1, column %2").arg(line).arg(column);
}

std::optional<QByteArray> readFile(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1: cannot be read: %2").arg(path, file.errorString());
        return std::nullopt;
    }
    if (file.size() > kMaximumFileSize) {
        *error = QStringLiteral("%1: larger than %2 MiB, not a recording").arg(path).arg(kMaximumFileSize / 1024 / 1024);
        return std::nullopt;
    }
    return file.readAll();
}

// SMC keys and types: four printable ASCII characters.
bool isFourCharacterCode(const QString &text)
{
    return text.size() == 4 && std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() >= 0x20 && c.unicode() < 0x7F; });
}

// Untyped values from JSON: whole numbers become integers, as the platform would keep them.
PropertyValue propertyFromJson(const QJsonValue &json)
{
    switch (json.type()) {
    case QJsonValue::Bool:
        return json.toBool();
    case QJsonValue::Double: {
        const double number = json.toDouble();
        const qint64 integer = json.toInteger(std::numeric_limits<qint64>::min());
        if (integer != std::numeric_limits<qint64>::min() && static_cast<double>(integer) == number)
            return static_cast<std::int64_t>(integer);
        return number;
    }
    case QJsonValue::String:
        return json.toString();
    case QJsonValue::Array: {
        PropertyList list;
        for (const QJsonValue &element : json.toArray())
            list.push_back(propertyFromJson(element));
        return list;
    }
    case QJsonValue::Object: {
        PropertyDictionary dictionary;
        const QJsonObject object = json.toObject();
        for (auto member = object.begin(); member != object.end(); ++member)
            dictionary.emplace(member.key(), propertyFromJson(member.value()));
        return dictionary;
    }
    default:
        return UnsupportedProperty{};
    }
}

class MachineFileReader {
public:
    explicit MachineFileReader(QString path) : m_path(std::move(path)) {}

    bool read(const QByteArray &text, Recording &recording, QString *error)
    {
        QJsonParseError parseError;
        const QJsonDocument document = QJsonDocument::fromJson(text, &parseError);
        if (parseError.error != QJsonParseError::NoError) {
            *error = QStringLiteral("%1: %2: %3").arg(m_path, placeOf(text, parseError.offset), parseError.errorString());
            return false;
        }
        if (!document.isObject())
            return fail(error, QStringLiteral("(top level)"), QStringLiteral("expected an object"));
        const QJsonObject root = document.object();

        if (root.value(u"format").toString() != u"ferrow-recording/1")
            return fail(error, QStringLiteral("format"), QStringLiteral("expected \"ferrow-recording/1\""));
        recording.description = root.value(u"description").toString();
        const QJsonValue version = root.value(u"osMajorVersion");
        if (!version.isDouble() || version.toDouble() != std::floor(version.toDouble()) || version.toDouble() < 1 || version.toDouble() > 1000)
            return fail(error, QStringLiteral("osMajorVersion"), QStringLiteral("expected a whole number"));
        recording.osMajorVersion = version.toInt();
        const QJsonValue adapter = root.value(u"adapterDetails");
        if (!adapter.isUndefined() && !adapter.isBool())
            return fail(error, QStringLiteral("adapterDetails"), QStringLiteral("expected true or false"));
        recording.adapterDetails = adapter.toBool(false);

        return readSMC(root.value(u"smc"), recording, error) && readEnergy(root.value(u"energy"), recording, error)
            && readPowerSources(root.value(u"powerSources"), recording, error)
            && readProfiler(root.value(u"systemProfiler"), recording, error)
            && readPreferences(root.value(u"preferences"), recording, error);
    }

private:
    bool fail(QString *error, const QString &place, const QString &problem) const
    {
        *error = QStringLiteral("%1: %2: %3").arg(m_path, place, problem);
        return false;
    }

    bool readSMC(const QJsonValue &smc, Recording &recording, QString *error) const
    {
        if (smc.isUndefined())
            return true;
        if (!smc.isObject())
            return fail(error, QStringLiteral("smc"), QStringLiteral("expected an object of keys"));
        const QJsonObject keys = smc.toObject();
        for (auto key = keys.begin(); key != keys.end(); ++key) {
            const QString name = key.key();
            const QString place = QStringLiteral("smc.%1").arg(name);
            if (!isFourCharacterCode(name))
                return fail(error, place, QStringLiteral("a key is four ASCII characters"));
            const QJsonObject entry = key.value().toObject();
            const QString type = entry.value(u"type").toString();
            if (!isFourCharacterCode(type))
                return fail(error, place + QStringLiteral(".type"), QStringLiteral("expected four ASCII characters, such as \"flt \""));
            const QString hex = entry.value(u"bytes").toString();
            const auto bytes = QByteArray::fromHex(hex.toLatin1());
            if (!entry.value(u"bytes").isString() || hex.size() % 2 != 0 || bytes.toHex() != hex.toLower().toLatin1())
                return fail(error, place + QStringLiteral(".bytes"), QStringLiteral("expected hexadecimal bytes, two digits each"));
            const QJsonValue size = entry.value(u"size");
            if (!size.isUndefined() && (!size.isDouble() || size.toDouble() < 0 || size.toDouble() > 255 || size.toDouble() != std::floor(size.toDouble())))
                return fail(error, place + QStringLiteral(".size"), QStringLiteral("expected a whole number from 0 to 255"));
            const auto reportedSize = static_cast<std::uint32_t>(size.isUndefined() ? bytes.size() : size.toInt());
            recording.smcKeys.emplace_back(name.toStdString(),
                                           InMemorySMC::Entry{type.toStdString(), reportedSize, std::vector<std::uint8_t>(bytes.begin(), bytes.end())});
        }
        return true;
    }

    bool readEnergy(const QJsonValue &energy, Recording &recording, QString *error) const
    {
        if (energy.isUndefined())
            return true;
        if (!energy.isArray())
            return fail(error, QStringLiteral("energy"), QStringLiteral("expected a list of frames"));
        const QJsonArray frames = energy.toArray();
        for (qsizetype f = 0; f < frames.size(); ++f) {
            const QString place = QStringLiteral("energy[%1]").arg(f);
            const QJsonObject frame = frames[f].toObject();
            if (!frame.value(u"uptime").isDouble())
                return fail(error, place + QStringLiteral(".uptime"), QStringLiteral("expected seconds since boot"));
            if (!frame.value(u"channels").isArray())
                return fail(error, place + QStringLiteral(".channels"), QStringLiteral("expected a list of channels"));
            Recording::EnergyFrame parsed{frame.value(u"uptime").toDouble(), {}};
            const QJsonArray channels = frame.value(u"channels").toArray();
            for (qsizetype c = 0; c < channels.size(); ++c) {
                // [group, name, unit, counter]; a text may be null, as the platform may leave it out.
                const QJsonArray channel = channels[c].toArray();
                const auto text = [&](int i) { return channel[i].isString() ? std::optional(channel[i].toString()) : std::nullopt; };
                const bool textsValid = channel.size() == 4 && std::all_of(channel.begin(), channel.begin() + 3, [](const QJsonValue &v) {
                                            return v.isString() || v.isNull();
                                        });
                const qint64 counter = channel.size() == 4 ? channel[3].toInteger(std::numeric_limits<qint64>::min()) : 0;
                if (!textsValid || counter == std::numeric_limits<qint64>::min())
                    return fail(error, QStringLiteral("%1.channels[%2]").arg(place).arg(c),
                                QStringLiteral("expected [group, name, unit, whole-number counter]"));
                parsed.channels.push_back({text(0), text(1), text(2), counter});
            }
            recording.energyFrames.push_back(std::move(parsed));
        }
        return true;
    }

    bool readPowerSources(const QJsonValue &sources, Recording &recording, QString *error) const
    {
        if (sources.isUndefined())
            return true;
        if (!sources.isArray())
            return fail(error, QStringLiteral("powerSources"), QStringLiteral("expected a list of descriptions"));
        recording.powerSources = std::get<PropertyList>(propertyFromJson(sources).value);
        return true;
    }

    bool readProfiler(const QJsonValue &profiler, Recording &recording, QString *error) const
    {
        if (profiler.isUndefined())
            return true;
        const QJsonObject object = profiler.toObject();
        const QJsonValue status = object.value(u"exitStatus");
        if (!profiler.isObject() || (!status.isUndefined() && !status.isDouble()))
            return fail(error, QStringLiteral("systemProfiler"), QStringLiteral("expected {\"exitStatus\": n, \"output\": ...}"));
        const QJsonValue output = object.value(u"output");
        QByteArray bytes;
        if (output.isString())
            bytes = output.toString().toUtf8(); // recorded as printed, whatever it was
        else if (output.isObject())
            bytes = QJsonDocument(output.toObject()).toJson();
        else if (!output.isUndefined())
            return fail(error, QStringLiteral("systemProfiler.output"), QStringLiteral("expected the JSON the tool printed, or its text"));
        recording.systemProfiler = CommandResult{status.toInt(0), bytes};
        return true;
    }

    bool readPreferences(const QJsonValue &preferences, Recording &recording, QString *error) const
    {
        if (preferences.isUndefined())
            return true;
        if (!preferences.isObject())
            return fail(error, QStringLiteral("preferences"), QStringLiteral("expected an object of stored entries"));
        const QJsonObject entries = preferences.toObject();
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
            const QString place = QStringLiteral("preferences.%1").arg(entry.key());
            if (!entry.key().startsWith(BatteryHistoryStore::kElectricalKeyPrefix)
                && !entry.key().startsWith(BatteryHistoryStore::kTemperatureKeyPrefix))
                return fail(error, place, QStringLiteral("not a stored battery history entry"));
            if (!entry.value().isString())
                return fail(error, place, QStringLiteral("expected the stored JSON as a string"));
            // Kept as the text it is, valid JSON or not: the store judges it as it would on the machine.
            recording.preferences.emplace_back(entry.key(), entry.value().toString().toUtf8());
        }
        return true;
    }

    QString m_path;
};

class RecordedEnergySource final : public EnergyReportSource {
public:
    explicit RecordedEnergySource(RecordedMachine &machine, bool hasFrames) : m_machine(machine), m_hasFrames(hasFrames) {}
    bool subscribe() override { return m_hasFrames; }
    std::optional<std::vector<EnergyChannelSample>> sample() override { return m_machine.nextEnergyFrame(); }

private:
    RecordedMachine &m_machine;
    bool m_hasFrames;
};

} // namespace

std::optional<Recording> parseRecording(const QByteArray &machineJson, const QString &machinePath,
                                        const std::optional<QByteArray> &batteryPlist, const QString &batteryPath, QString *error)
{
    QString ignored;
    QString &message = error ? *error : ignored;
    Recording recording;
    if (!MachineFileReader(machinePath).read(machineJson, recording, &message))
        return std::nullopt;
    if (!batteryPlist)
        return recording;

    QString problem;
    const std::optional<PropertyValue> parsed = parsePropertyList(*batteryPlist, &problem);
    if (!parsed) {
        message = QStringLiteral("%1: %2").arg(batteryPath, problem);
        return std::nullopt;
    }
    // `ioreg -r -a` prints a list of matching entries; the first one is the battery.
    const PropertyValue *entry = &*parsed;
    if (const auto *list = std::get_if<PropertyList>(&parsed->value))
        entry = list->empty() ? nullptr : &list->front();
    const PropertyDictionary *dictionary = propertyDictionary(entry);
    if (!dictionary) {
        message = QStringLiteral("%1: the first entry is not a dictionary of battery properties").arg(batteryPath);
        return std::nullopt;
    }
    recording.battery = *dictionary;
    return recording;
}

std::optional<Recording> loadRecording(const QString &folder, QString *error)
{
    QString ignored;
    QString &message = error ? *error : ignored;
    const QDir directory(folder);
    if (!directory.exists()) {
        message = QStringLiteral("%1: no such recording folder").arg(folder);
        return std::nullopt;
    }
    const QString machinePath = directory.filePath(QStringLiteral("machine.json"));
    const std::optional<QByteArray> machineText = readFile(machinePath, &message);
    if (!machineText)
        return std::nullopt;
    const QString batteryPath = directory.filePath(QStringLiteral("battery.plist"));
    std::optional<QByteArray> batteryText;
    if (QFile::exists(batteryPath)) {
        batteryText = readFile(batteryPath, &message);
        if (!batteryText)
            return std::nullopt;
    }
    return parseRecording(*machineText, machinePath, batteryText, batteryPath, &message);
}

std::optional<PowerSnapshot> readRecordedSnapshot(const QString &folder, QString *error)
{
    std::optional<Recording> recording = loadRecording(folder, error);
    if (!recording)
        return std::nullopt;
    PowerSensorReader reader{std::make_unique<RecordedMachine>(std::move(*recording))};
    reader.read();
    return reader.read();
}

RecordedMachine::RecordedMachine(Recording recording)
    : m_recording(std::move(recording))
{
    for (const auto &[key, entry] : m_recording.smcKeys)
        m_smc.setEntry(key, entry);
    for (const auto &[key, stored] : m_recording.preferences)
        m_preferences.setData(key, stored);
}

std::unique_ptr<SMCUserClient> RecordedMachine::createSMCUserClient()
{
    return std::make_unique<InMemorySMCClient>(m_smc);
}

std::unique_ptr<EnergyReportSource> RecordedMachine::createEnergyReportSource()
{
    return std::make_unique<RecordedEnergySource>(*this, !m_recording.energyFrames.empty());
}

std::optional<PropertyDictionary> RecordedMachine::registryProperties(const QString &className)
{
    return className == u"AppleSmartBattery" ? m_recording.battery : std::nullopt;
}

std::optional<CommandResult> RecordedMachine::run(const QString &program, const QStringList &)
{
    return program == u"/usr/sbin/system_profiler" ? m_recording.systemProfiler : std::nullopt;
}

std::optional<std::vector<EnergyChannelSample>> RecordedMachine::nextEnergyFrame()
{
    if (m_recording.energyFrames.empty())
        return std::nullopt;
    m_frame = m_frame ? std::min(*m_frame + 1, m_recording.energyFrames.size() - 1) : 0;
    return m_recording.energyFrames[*m_frame].channels;
}

double RecordedMachine::uptimeSeconds() const
{
    return m_frame ? m_recording.energyFrames[*m_frame].uptimeS : 0.0;
}

} // namespace ferrow
