#include "platform/recorded/recording_values.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ferrow::RecordingValues {
namespace {

// The members of an SMC entry.
const QString kType = QStringLiteral("type");
const QString kBytes = QStringLiteral("bytes");
const QString kSize = QStringLiteral("size");
// The members of a process.
const QString kPid = QStringLiteral("pid");
const QString kStarted = QStringLiteral("started");
const QString kGroup = QStringLiteral("group");
const QString kName = QStringLiteral("name");
const QString kIcon = QStringLiteral("icon");
const QString kCpuTime = QStringLiteral("cpuTime");
const QString kEnergy = QStringLiteral("energy");
const QString kSelf = QStringLiteral("self");

std::nullopt_t refuse(Problem &problem, QString place, QString text)
{
    problem = {std::move(place), std::move(text)};
    return std::nullopt;
}

bool isSeconds(const QJsonValue &json)
{
    return json.isDouble() && json.toDouble() >= 0;
}

} // namespace

bool isWholeNumber(const QJsonValue &json, double lowest, double highest)
{
    const double number = json.toDouble();
    return json.isDouble() && number == std::floor(number) && number >= lowest && number <= highest;
}

bool isFourCharacterCode(const QString &text)
{
    return text.size() == 4 && std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() >= 0x20 && c.unicode() < 0x7F; });
}

QJsonValue encodeProperty(const PropertyValue &value)
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
                    array.append(encodeProperty(element));
                return array;
            } else if constexpr (std::is_same_v<T, PropertyDictionary>) {
                QJsonObject object;
                for (const auto &[key, element] : v)
                    object.insert(key, encodeProperty(element));
                return object;
            } else {
                return QJsonValue::Null;
            }
        },
        value.value);
}

PropertyValue decodeProperty(const QJsonValue &json)
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
            list.push_back(decodeProperty(element));
        return list;
    }
    case QJsonValue::Object: {
        PropertyDictionary dictionary;
        const QJsonObject object = json.toObject();
        for (auto member = object.begin(); member != object.end(); ++member)
            dictionary.emplace(member.key(), decodeProperty(member.value()));
        return dictionary;
    }
    default:
        return UnsupportedProperty{};
    }
}

QString encodeHex(const std::vector<std::uint8_t> &bytes)
{
    return QString::fromLatin1(QByteArray(reinterpret_cast<const char *>(bytes.data()), static_cast<qsizetype>(bytes.size())).toHex());
}

std::optional<std::vector<std::uint8_t>> decodeHex(const QJsonValue &json)
{
    const QString hex = json.toString();
    const QByteArray bytes = QByteArray::fromHex(hex.toLatin1());
    if (!json.isString() || hex.size() % 2 != 0 || bytes.toHex() != hex.toLower().toLatin1())
        return std::nullopt;
    return std::vector<std::uint8_t>(bytes.begin(), bytes.end());
}

QJsonObject encodeSMCEntry(const InMemorySMC::Entry &entry)
{
    QJsonObject json{{kType, QString::fromStdString(entry.dataType)}, {kBytes, encodeHex(entry.bytes)}};
    if (entry.dataSize != entry.bytes.size())
        json.insert(kSize, static_cast<qint64>(entry.dataSize));
    return json;
}

std::optional<InMemorySMC::Entry> decodeSMCEntry(const QJsonValue &json, const QString &place, Problem &problem)
{
    const QJsonObject entry = json.toObject();
    const QString type = entry.value(kType).toString();
    if (!isFourCharacterCode(type))
        return refuse(problem, place + u'.' + kType, QStringLiteral("expected four ASCII characters, such as \"flt \""));
    std::optional<std::vector<std::uint8_t>> bytes = decodeHex(entry.value(kBytes));
    if (!bytes)
        return refuse(problem, place + u'.' + kBytes, QStringLiteral("expected hexadecimal bytes, two digits each"));
    const QJsonValue size = entry.value(kSize);
    if (!size.isUndefined() && !isWholeNumber(size, 0, 255))
        return refuse(problem, place + u'.' + kSize, QStringLiteral("expected a whole number from 0 to 255"));
    const auto reportedSize = static_cast<std::uint32_t>(size.isUndefined() ? bytes->size() : size.toInt());
    return InMemorySMC::Entry{type.toStdString(), reportedSize, std::move(*bytes)};
}

QJsonArray encodeEnergyChannel(const EnergyChannelSample &channel)
{
    const auto text = [](const std::optional<QString> &t) { return t ? QJsonValue(*t) : QJsonValue(QJsonValue::Null); };
    return {text(channel.group), text(channel.name), text(channel.unitLabel), static_cast<qint64>(channel.counter)};
}

std::optional<EnergyChannelSample> decodeEnergyChannel(const QJsonValue &json)
{
    const QJsonArray channel = json.toArray();
    const bool textsValid = channel.size() == 4 && std::all_of(channel.begin(), channel.begin() + 3, [](const QJsonValue &v) {
                                return v.isString() || v.isNull();
                            });
    const qint64 counter = channel.size() == 4 ? channel[3].toInteger(std::numeric_limits<qint64>::min()) : 0;
    if (!textsValid || counter == std::numeric_limits<qint64>::min())
        return std::nullopt;
    const auto text = [&](qsizetype i) { return channel[i].isString() ? std::optional(channel[i].toString()) : std::nullopt; };
    return EnergyChannelSample{text(0), text(1), text(2), counter};
}

QJsonObject encodeProcess(const ProcessSample &process)
{
    QJsonObject json{{kPid, static_cast<qint64>(process.pid)},
                     {kStarted, process.startedS},
                     {kGroup, process.group},
                     {kName, process.name},
                     {kCpuTime, process.cpuTimeS}};
    if (!process.icon.isEmpty())
        json.insert(kIcon, process.icon);
    if (process.energyJ)
        json.insert(kEnergy, *process.energyJ);
    if (process.isSelf)
        json.insert(kSelf, true);
    return json;
}

std::optional<ProcessSample> decodeProcess(const QJsonValue &json, const QString &place, Problem &problem)
{
    const QJsonObject object = json.toObject();
    const auto member = [&](const QString &key) { return object.value(key); };
    const auto at = [&](const QString &key) { return place + u'.' + key; };
    if (!json.isObject())
        return refuse(problem, place, QStringLiteral("expected a process"));
    if (!isWholeNumber(member(kPid), 0, std::numeric_limits<std::int32_t>::max()))
        return refuse(problem, at(kPid), QStringLiteral("expected a whole number from 0 to 2147483647"));
    if (!isSeconds(member(kStarted)))
        return refuse(problem, at(kStarted), QStringLiteral("expected seconds since boot"));
    if (!member(kGroup).isString() || member(kGroup).toString().isEmpty())
        return refuse(problem, at(kGroup), QStringLiteral("expected the group's text"));
    if (!member(kName).isString())
        return refuse(problem, at(kName), QStringLiteral("expected the name's text"));
    if (!member(kIcon).isUndefined() && !member(kIcon).isString())
        return refuse(problem, at(kIcon), QStringLiteral("expected the icon's text"));
    if (!isSeconds(member(kCpuTime)))
        return refuse(problem, at(kCpuTime), QStringLiteral("expected seconds of CPU time"));
    if (!member(kEnergy).isUndefined() && !(member(kEnergy).isDouble() && member(kEnergy).toDouble() >= 0))
        return refuse(problem, at(kEnergy), QStringLiteral("expected joules"));
    if (!member(kSelf).isUndefined() && !member(kSelf).isBool())
        return refuse(problem, at(kSelf), QStringLiteral("expected true or false"));
    ProcessSample process;
    process.pid = member(kPid).toInteger();
    process.startedS = member(kStarted).toDouble();
    process.group = member(kGroup).toString();
    process.name = member(kName).toString();
    process.icon = member(kIcon).toString();
    process.cpuTimeS = member(kCpuTime).toDouble();
    if (member(kEnergy).isDouble())
        process.energyJ = member(kEnergy).toDouble();
    process.isSelf = member(kSelf).toBool(false);
    return process;
}

} // namespace ferrow::RecordingValues
