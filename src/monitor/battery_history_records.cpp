#include "monitor/battery_history_records.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace ferrow {
namespace {

constexpr double kMinimumVoltageV = 2.0;
constexpr double kMaximumVoltageV = 30.0;
constexpr double kMaximumCurrentMagnitudeA = 100.0;
constexpr double kMinimumTemperatureC = -20.0;
constexpr double kMaximumTemperatureC = 100.0;

bool within(const std::optional<double> &value, double low, double high)
{
    return value && std::isfinite(*value) && *value >= low && *value <= high;
}

void raiseTo(std::optional<double> &extreme, double value)
{
    extreme = extreme ? std::max(*extreme, value) : value;
}

void lowerTo(std::optional<double> &extreme, double value)
{
    extreme = extreme ? std::min(*extreme, value) : value;
}

// Absent fields are left out; a value JSON cannot carry makes the whole record unencodable.
bool putOptional(QJsonObject &object, QLatin1StringView key, const std::optional<double> &value)
{
    if (!value)
        return true;
    if (!std::isfinite(*value))
        return false;
    object.insert(key, *value);
    return true;
}

// Missing and null both read as absent; any other non-number makes the record unreadable.
bool takeOptional(const QJsonObject &object, QLatin1StringView key, std::optional<double> &value)
{
    const QJsonValue member = object.value(key);
    if (member.isUndefined() || member.isNull())
        return true;
    if (!member.isDouble())
        return false;
    value = member.toDouble();
    return true;
}

std::optional<QJsonObject> parseObject(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return std::nullopt;
    return document.object();
}

// A JSON number that is a whole number from 0 to the largest unsigned 64-bit value.
std::optional<std::uint64_t> unsignedCount(const QJsonValue &member)
{
    if (!member.isDouble())
        return std::nullopt;
    const qint64 asInteger = member.toInteger(-1);
    if (asInteger >= 0)
        return static_cast<std::uint64_t>(asInteger);
    const double asDouble = member.toDouble();
    constexpr double twoTo64 = 18446744073709551616.0;
    if (asDouble >= 0 && asDouble < twoTo64 && std::trunc(asDouble) == asDouble)
        return static_cast<std::uint64_t>(asDouble);
    return std::nullopt;
}

// The count read from its digits where it is written as a plain integer, so that one near the
// ceiling of 64 bits survives; other spellings (1e3, 5.0) as the JSON number they are.
std::optional<std::uint64_t> storedCount(const QByteArray &json, const QJsonObject &object)
{
    static const QRegularExpression plainInteger(QStringLiteral(R"("sampleCount"\s*:\s*([0-9]+)\s*[,}])"));
    const QRegularExpressionMatch match = plainInteger.match(QString::fromUtf8(json));
    if (!match.hasMatch())
        return unsignedCount(object.value(QLatin1StringView("sampleCount")));
    const QByteArray digits = match.captured(1).toLatin1();
    std::uint64_t count = 0;
    const auto [end, error] = std::from_chars(digits.constData(), digits.constData() + digits.size(), count);
    if (error != std::errc() || end != digits.constData() + digits.size())
        return std::nullopt; // beyond 64 bits
    return count;
}

} // namespace

void BatteryElectricalHistory::record(std::optional<double> voltageV, std::optional<double> currentA)
{
    if (within(voltageV, kMinimumVoltageV, kMaximumVoltageV)) {
        raiseTo(maximumVoltageV, *voltageV);
        lowerTo(minimumVoltageV, *voltageV);
    }
    if (within(currentA, -kMaximumCurrentMagnitudeA, kMaximumCurrentMagnitudeA)) {
        if (*currentA > 0)
            raiseTo(maximumChargeCurrentA, *currentA);
        else if (*currentA < 0)
            raiseTo(maximumDischargeCurrentA, -*currentA);
    }
}

void BatteryTemperatureHistory::record(std::optional<double> temperatureC)
{
    if (!within(temperatureC, kMinimumTemperatureC, kMaximumTemperatureC))
        return;
    if (sampleCount == std::numeric_limits<std::uint64_t>::max())
        return;
    const double t = *temperatureC;
    raiseTo(maximumC, t);
    lowerTo(minimumC, t);
    ++sampleCount;
    const double previousAverage = averageC.value_or(t);
    averageC = previousAverage + (t - previousAverage) / static_cast<double>(sampleCount);
}

bool BatteryTemperatureHistory::isPlausible() const
{
    return sampleCount != 0 && within(maximumC, kMinimumTemperatureC, kMaximumTemperatureC)
        && within(minimumC, kMinimumTemperatureC, kMaximumTemperatureC)
        && within(averageC, kMinimumTemperatureC, kMaximumTemperatureC) && *minimumC <= *averageC
        && *averageC <= *maximumC;
}

std::optional<QByteArray> encodeRecord(const BatteryElectricalHistory &record)
{
    QJsonObject object;
    if (!putOptional(object, QLatin1StringView("maximumVoltageV"), record.maximumVoltageV)
        || !putOptional(object, QLatin1StringView("minimumVoltageV"), record.minimumVoltageV)
        || !putOptional(object, QLatin1StringView("maximumChargeCurrentA"), record.maximumChargeCurrentA)
        || !putOptional(object, QLatin1StringView("maximumDischargeCurrentA"), record.maximumDischargeCurrentA))
        return std::nullopt;
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<QByteArray> encodeRecord(const BatteryTemperatureHistory &record)
{
    QJsonObject object;
    if (!putOptional(object, QLatin1StringView("maximumC"), record.maximumC)
        || !putOptional(object, QLatin1StringView("minimumC"), record.minimumC)
        || !putOptional(object, QLatin1StringView("averageC"), record.averageC))
        return std::nullopt;
    // The count as the integer it is: JSON numbers pass through doubles, exact only up to 2^53.
    QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
    json.chop(1);
    if (!object.isEmpty())
        json += ',';
    return json + "\"sampleCount\":" + QByteArray::number(static_cast<qulonglong>(record.sampleCount)) + '}';
}

std::optional<BatteryElectricalHistory> decodeElectricalHistory(const QByteArray &json)
{
    const std::optional<QJsonObject> object = parseObject(json);
    BatteryElectricalHistory record;
    if (!object || !takeOptional(*object, QLatin1StringView("maximumVoltageV"), record.maximumVoltageV)
        || !takeOptional(*object, QLatin1StringView("minimumVoltageV"), record.minimumVoltageV)
        || !takeOptional(*object, QLatin1StringView("maximumChargeCurrentA"), record.maximumChargeCurrentA)
        || !takeOptional(*object, QLatin1StringView("maximumDischargeCurrentA"), record.maximumDischargeCurrentA))
        return std::nullopt;
    return record;
}

std::optional<BatteryTemperatureHistory> decodeTemperatureHistory(const QByteArray &json)
{
    const std::optional<QJsonObject> object = parseObject(json);
    BatteryTemperatureHistory record;
    if (!object || !takeOptional(*object, QLatin1StringView("maximumC"), record.maximumC)
        || !takeOptional(*object, QLatin1StringView("minimumC"), record.minimumC)
        || !takeOptional(*object, QLatin1StringView("averageC"), record.averageC))
        return std::nullopt;
    const std::optional<std::uint64_t> count = storedCount(json, *object);
    if (!count)
        return std::nullopt;
    record.sampleCount = *count;
    return record;
}

} // namespace ferrow
