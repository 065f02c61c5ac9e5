#include "platform/recorded/recording_format.h"

#include "monitor/battery_history_store.h"
#include "platform/recorded/property_list_parser.h"
#include "platform/recorded/property_list_writer.h"
#include "platform/recorded/recording_values.h"

#include <QJsonDocument>

#include <algorithm>
#include <array>

// Each member of machine.json is a row of one table with its name, its writing and its reading, which
// both directions walk; the values inside the members are RecordingValues' pairs.

namespace ferrow {
namespace {

using namespace RecordingValues;

const QString kFormatName = QStringLiteral("ferrow-recording/1");
// The members of an energy frame and of the system profiler's answer.
const QString kUptime = QStringLiteral("uptime");
const QString kChannels = QStringLiteral("channels");
const QString kExitStatus = QStringLiteral("exitStatus");
const QString kOutput = QStringLiteral("output");
// The members of a process frame (uptime as above).
const QString kProcessList = QStringLiteral("list");
const QString kIncludesOtherUsers = QStringLiteral("includesOtherUsers");
const QString kCpuBusy = QStringLiteral("cpuBusy");
const QString kCpuTotal = QStringLiteral("cpuTotal");

bool fail(Problem &problem, QString place, QString text)
{
    problem = {std::move(place), std::move(text)};
    return false;
}

// One energy sample: seconds since boot and every channel's counter.
QJsonObject encodeEnergyFrame(const Recording::EnergyFrame &frame)
{
    QJsonArray channels;
    for (const EnergyChannelSample &channel : frame.channels)
        channels.append(encodeEnergyChannel(channel));
    return {{kUptime, frame.uptimeS}, {kChannels, channels}};
}

bool decodeEnergyFrame(const QJsonValue &json, const QString &place, Recording::EnergyFrame &decoded, Problem &problem)
{
    const QJsonObject frame = json.toObject();
    if (!frame.value(kUptime).isDouble())
        return fail(problem, place + u'.' + kUptime, QStringLiteral("expected seconds since boot"));
    if (!frame.value(kChannels).isArray())
        return fail(problem, place + u'.' + kChannels, QStringLiteral("expected a list of channels"));
    decoded.uptimeS = frame.value(kUptime).toDouble();
    const QJsonArray channels = frame.value(kChannels).toArray();
    for (qsizetype c = 0; c < channels.size(); ++c) {
        std::optional<EnergyChannelSample> channel = decodeEnergyChannel(channels[c]);
        if (!channel)
            return fail(problem, QStringLiteral("%1.%2[%3]").arg(place, kChannels).arg(c),
                        QStringLiteral("expected [group, name, unit, whole-number counter]"));
        decoded.channels.push_back(std::move(*channel));
    }
    return true;
}

// One process sample: seconds since boot, the processor's counters where the system keeps them, and
// every process.
QJsonObject encodeProcessFrame(const ProcessFrame &frame)
{
    QJsonArray processes;
    for (const ProcessSample &process : frame.processes)
        processes.append(encodeProcess(process));
    QJsonObject json{{kUptime, frame.uptimeS}, {kProcessList, processes}};
    if (frame.includesOtherUsers)
        json.insert(kIncludesOtherUsers, true);
    if (frame.cpuBusyS)
        json.insert(kCpuBusy, *frame.cpuBusyS);
    if (frame.cpuTotalS)
        json.insert(kCpuTotal, *frame.cpuTotalS);
    return json;
}

bool decodeProcessFrame(const QJsonValue &json, const QString &place, ProcessFrame &decoded, Problem &problem)
{
    const QJsonObject frame = json.toObject();
    if (!frame.value(kUptime).isDouble())
        return fail(problem, place + u'.' + kUptime, QStringLiteral("expected seconds since boot"));
    if (!frame.value(kProcessList).isArray())
        return fail(problem, place + u'.' + kProcessList, QStringLiteral("expected a list of processes"));
    const QJsonValue others = frame.value(kIncludesOtherUsers);
    if (!others.isUndefined() && !others.isBool())
        return fail(problem, place + u'.' + kIncludesOtherUsers, QStringLiteral("expected true or false"));
    for (const QString &key : {kCpuBusy, kCpuTotal}) {
        const QJsonValue seconds = frame.value(key);
        if (!seconds.isUndefined() && !(seconds.isDouble() && seconds.toDouble() >= 0))
            return fail(problem, place + u'.' + key, QStringLiteral("expected seconds of processor time"));
    }
    decoded.uptimeS = frame.value(kUptime).toDouble();
    decoded.includesOtherUsers = others.toBool(false);
    if (frame.contains(kCpuBusy))
        decoded.cpuBusyS = frame.value(kCpuBusy).toDouble();
    if (frame.contains(kCpuTotal))
        decoded.cpuTotalS = frame.value(kCpuTotal).toDouble();
    const QJsonArray processes = frame.value(kProcessList).toArray();
    for (qsizetype p = 0; p < processes.size(); ++p) {
        std::optional<ProcessSample> process = decodeProcess(processes[p], QStringLiteral("%1.%2[%3]").arg(place, kProcessList).arg(p), problem);
        if (!process)
            return false;
        decoded.processes.push_back(std::move(*process));
    }
    return true;
}

// The members of machine.json. Each decoder is handed its member's name for the places in its messages;
// an absent member (undefined) decodes as its default, and an encoder leaves its member out that way.

QJsonValue encodeFormat(const Recording &) { return kFormatName; }

bool decodeFormat(const QJsonValue &json, const QString &key, Recording &, Problem &problem)
{
    return json.toString() == kFormatName || fail(problem, key, QStringLiteral("expected \"%1\"").arg(kFormatName));
}

QJsonValue encodeDescription(const Recording &recording) { return recording.description; }

bool decodeDescription(const QJsonValue &json, const QString &, Recording &recording, Problem &)
{
    recording.description = json.toString();
    return true;
}

QJsonValue encodeOSMajorVersion(const Recording &recording) { return recording.osMajorVersion; }

bool decodeOSMajorVersion(const QJsonValue &json, const QString &key, Recording &recording, Problem &problem)
{
    if (!isWholeNumber(json, 1, 1000))
        return fail(problem, key, QStringLiteral("expected a whole number"));
    recording.osMajorVersion = json.toInt();
    return true;
}

QJsonValue encodeAdapterDetails(const Recording &recording) { return recording.adapterDetails; }

bool decodeAdapterDetails(const QJsonValue &json, const QString &key, Recording &recording, Problem &problem)
{
    if (!json.isUndefined() && !json.isBool())
        return fail(problem, key, QStringLiteral("expected true or false"));
    recording.adapterDetails = json.toBool(false);
    return true;
}

QJsonValue encodeSMC(const Recording &recording)
{
    QJsonObject keys;
    for (const auto &[name, entry] : recording.smcKeys)
        keys.insert(QString::fromStdString(name), encodeSMCEntry(entry));
    return keys;
}

bool decodeSMC(const QJsonValue &json, const QString &key, Recording &recording, Problem &problem)
{
    if (json.isUndefined())
        return true;
    if (!json.isObject())
        return fail(problem, key, QStringLiteral("expected an object of keys"));
    const QJsonObject keys = json.toObject();
    for (auto member = keys.begin(); member != keys.end(); ++member) {
        const QString place = key + u'.' + member.key();
        if (!isFourCharacterCode(member.key()))
            return fail(problem, place, QStringLiteral("a key is four ASCII characters"));
        std::optional<InMemorySMC::Entry> entry = decodeSMCEntry(member.value(), place, problem);
        if (!entry)
            return false;
        recording.smcKeys.emplace_back(member.key().toStdString(), std::move(*entry));
    }
    return true;
}

// A list of frames, each decoded by decodeFrame at its own place in the file.
template <typename Frame, typename DecodeFrame>
bool decodeFrames(const QJsonValue &json, const QString &key, std::vector<Frame> &decoded, DecodeFrame decodeFrame, Problem &problem)
{
    if (json.isUndefined())
        return true;
    if (!json.isArray())
        return fail(problem, key, QStringLiteral("expected a list of frames"));
    const QJsonArray frames = json.toArray();
    for (qsizetype f = 0; f < frames.size(); ++f) {
        if (!decodeFrame(frames[f], QStringLiteral("%1[%2]").arg(key).arg(f), decoded.emplace_back(), problem))
            return false;
    }
    return true;
}

QJsonValue encodeEnergy(const Recording &recording)
{
    QJsonArray frames;
    for (const Recording::EnergyFrame &frame : recording.energyFrames)
        frames.append(encodeEnergyFrame(frame));
    return frames;
}

bool decodeEnergy(const QJsonValue &json, const QString &key, Recording &recording, Problem &problem)
{
    return decodeFrames(json, key, recording.energyFrames, decodeEnergyFrame, problem);
}

QJsonValue encodeProcesses(const Recording &recording)
{
    if (recording.processFrames.empty())
        return QJsonValue::Undefined;
    QJsonArray frames;
    for (const ProcessFrame &frame : recording.processFrames)
        frames.append(encodeProcessFrame(frame));
    return frames;
}

bool decodeProcesses(const QJsonValue &json, const QString &key, Recording &recording, Problem &problem)
{
    return decodeFrames(json, key, recording.processFrames, decodeProcessFrame, problem);
}

QJsonValue encodePowerSources(const Recording &recording)
{
    return recording.powerSources ? encodeProperty(*recording.powerSources) : QJsonValue(QJsonValue::Undefined);
}

bool decodePowerSources(const QJsonValue &json, const QString &key, Recording &recording, Problem &problem)
{
    if (json.isUndefined())
        return true;
    if (!json.isArray())
        return fail(problem, key, QStringLiteral("expected a list of descriptions"));
    recording.powerSources = std::get<PropertyList>(decodeProperty(json).value);
    return true;
}

// The output is kept as the JSON document the tool printed or, when it printed anything else, as that text.
QJsonValue encodeProfiler(const Recording &recording)
{
    if (!recording.systemProfiler)
        return QJsonValue::Undefined;
    const QByteArray &printed = recording.systemProfiler->standardOutput;
    const QJsonDocument document = QJsonDocument::fromJson(printed);
    return QJsonObject{{kExitStatus, recording.systemProfiler->exitStatus},
                       {kOutput, document.isObject() ? QJsonValue(document.object()) : QJsonValue(QString::fromUtf8(printed))}};
}

bool decodeProfiler(const QJsonValue &json, const QString &key, Recording &recording, Problem &problem)
{
    if (json.isUndefined())
        return true;
    const QJsonObject object = json.toObject();
    const QJsonValue status = object.value(kExitStatus);
    if (!json.isObject() || (!status.isUndefined() && !status.isDouble()))
        return fail(problem, key, QStringLiteral("expected {\"%1\": n, \"%2\": ...}").arg(kExitStatus, kOutput));
    const QJsonValue output = object.value(kOutput);
    QByteArray printed;
    if (output.isString())
        printed = output.toString().toUtf8();
    else if (output.isObject())
        printed = QJsonDocument(output.toObject()).toJson();
    else if (!output.isUndefined())
        return fail(problem, key + u'.' + kOutput, QStringLiteral("expected the JSON the tool printed, or its text"));
    recording.systemProfiler = CommandResult{status.toInt(0), printed};
    return true;
}

// Stored entries are kept as the text they are, valid JSON or not: the store judges them as it would on the machine.
QJsonValue encodePreferences(const Recording &recording)
{
    if (recording.preferences.empty())
        return QJsonValue::Undefined;
    QJsonObject entries;
    for (const auto &[key, stored] : recording.preferences)
        entries.insert(key, QString::fromUtf8(stored));
    return entries;
}

bool decodePreferences(const QJsonValue &json, const QString &key, Recording &recording, Problem &problem)
{
    if (json.isUndefined())
        return true;
    if (!json.isObject())
        return fail(problem, key, QStringLiteral("expected an object of stored entries"));
    const QJsonObject entries = json.toObject();
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        const QString place = key + u'.' + entry.key();
        if (!entry.key().startsWith(BatteryHistoryStore::kElectricalKeyPrefix) && !entry.key().startsWith(BatteryHistoryStore::kTemperatureKeyPrefix))
            return fail(problem, place, QStringLiteral("not a stored battery history entry"));
        if (!entry.value().isString())
            return fail(problem, place, QStringLiteral("expected the stored JSON as a string"));
        recording.preferences.emplace_back(entry.key(), entry.value().toString().toUtf8());
    }
    return true;
}

struct Member {
    QString key;
    QJsonValue (*encode)(const Recording &);
    bool (*decode)(const QJsonValue &json, const QString &key, Recording &recording, Problem &problem);
};

// In the order they are read: a recording with several problems is refused for the first.
const std::array kMembers{
    Member{QStringLiteral("format"), encodeFormat, decodeFormat},
    Member{QStringLiteral("description"), encodeDescription, decodeDescription},
    Member{QStringLiteral("osMajorVersion"), encodeOSMajorVersion, decodeOSMajorVersion},
    Member{QStringLiteral("adapterDetails"), encodeAdapterDetails, decodeAdapterDetails},
    Member{QStringLiteral("smc"), encodeSMC, decodeSMC},
    Member{QStringLiteral("energy"), encodeEnergy, decodeEnergy},
    Member{QStringLiteral("processes"), encodeProcesses, decodeProcesses},
    Member{QStringLiteral("powerSources"), encodePowerSources, decodePowerSources},
    Member{QStringLiteral("systemProfiler"), encodeProfiler, decodeProfiler},
    Member{QStringLiteral("preferences"), encodePreferences, decodePreferences},
};

QJsonObject encodeMachine(const Recording &recording)
{
    QJsonObject root;
    for (const Member &member : kMembers)
        root.insert(member.key, member.encode(recording)); // an undefined value leaves the member out
    return root;
}

bool decodeMachine(const QJsonDocument &document, Recording &recording, Problem &problem)
{
    if (!document.isObject())
        return fail(problem, QStringLiteral("(top level)"), QStringLiteral("expected an object"));
    const QJsonObject root = document.object();
    return std::all_of(kMembers.begin(), kMembers.end(),
                       [&](const Member &member) { return member.decode(root.value(member.key), member.key, recording, problem); });
}

// battery.plist as `ioreg -r -a` prints it: a list of the matching entries, the first one the battery
// (a plain dictionary at the top level is read too).
QByteArray encodeBattery(const PropertyDictionary &battery)
{
    return writePropertyList(PropertyList{battery});
}

std::optional<PropertyDictionary> decodeBattery(const QByteArray &plist, QString &problem)
{
    const std::optional<PropertyValue> parsed = parsePropertyList(plist, &problem);
    if (!parsed)
        return std::nullopt;
    const PropertyValue *entry = &*parsed;
    if (const auto *list = std::get_if<PropertyList>(&parsed->value))
        entry = list->empty() ? nullptr : &list->front();
    const PropertyDictionary *dictionary = propertyDictionary(entry);
    if (!dictionary) {
        problem = QStringLiteral("the first entry is not a dictionary of battery properties");
        return std::nullopt;
    }
    return *dictionary;
}

QString placeOf(const QByteArray &text, int offset)
{
    const QByteArray before = text.left(offset);
    const int line = static_cast<int>(before.count('\n')) + 1;
    const int column = static_cast<int>(offset - (before.lastIndexOf('\n') + 1)) + 1;
    return QStringLiteral("line %1, column %2").arg(line).arg(column);
}

} // namespace

RecordingFiles encodeRecording(const Recording &recording)
{
    return {QJsonDocument(encodeMachine(recording)).toJson(),
            recording.battery ? std::optional(encodeBattery(*recording.battery)) : std::nullopt};
}

std::optional<Recording> parseRecording(const QByteArray &machineJson, const QString &machinePath,
                                        const std::optional<QByteArray> &batteryPlist, const QString &batteryPath, QString *error)
{
    QString ignored;
    QString &message = error ? *error : ignored;
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(machineJson, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        message = QStringLiteral("%1: %2: %3").arg(machinePath, placeOf(machineJson, parseError.offset), parseError.errorString());
        return std::nullopt;
    }
    Recording recording;
    if (Problem problem; !decodeMachine(document, recording, problem)) {
        message = QStringLiteral("%1: %2: %3").arg(machinePath, problem.place, problem.text);
        return std::nullopt;
    }
    if (batteryPlist) {
        QString batteryProblem;
        recording.battery = decodeBattery(*batteryPlist, batteryProblem);
        if (!recording.battery) {
            message = QStringLiteral("%1: %2").arg(batteryPath, batteryProblem);
            return std::nullopt;
        }
    }
    return recording;
}

} // namespace ferrow
