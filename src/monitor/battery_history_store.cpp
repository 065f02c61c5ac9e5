#include "monitor/battery_history_store.h"

#include <QCryptographicHash>

namespace ferrow {
namespace {

// Records of a battery without a serial live in memory only, under this suffix.
const QString kSessionSuffix = QStringLiteral("session");

BatteryElectricalHistory electricalFromStored(const std::optional<QByteArray> &stored)
{
    const std::optional<BatteryElectricalHistory> decoded = stored ? decodeElectricalHistory(*stored) : std::nullopt;
    BatteryElectricalHistory rebuilt;
    if (decoded) {
        // Through the live filters, so stored values out of range drop out one by one.
        rebuilt.record(decoded->maximumVoltageV, decoded->maximumChargeCurrentA);
        rebuilt.record(decoded->minimumVoltageV,
                       decoded->maximumDischargeCurrentA ? std::optional(-*decoded->maximumDischargeCurrentA) : std::nullopt);
    }
    return rebuilt;
}

BatteryTemperatureHistory temperatureFromStored(const std::optional<QByteArray> &stored)
{
    const std::optional<BatteryTemperatureHistory> decoded = stored ? decodeTemperatureHistory(*stored) : std::nullopt;
    return decoded && decoded->isPlausible() ? *decoded : BatteryTemperatureHistory{};
}

// Finds the battery's record (loading it on first use of its key), folds the reading in, and
// saves it when it changed and the battery has an identity.
template <typename Record, typename Load, typename Fold>
Record update(std::map<QString, Record> &records, KeyValueStore &defaults, const QString &prefix,
              const std::optional<QString> &serial, Load load, Fold fold)
{
    const std::optional<QString> identifier = BatteryHistoryStore::batteryIdentifier(serial);
    const QString key = prefix + identifier.value_or(kSessionSuffix);
    auto entry = records.find(key);
    if (entry == records.end())
        entry = records.emplace(key, load(identifier ? defaults.data(key) : std::nullopt)).first;

    Record &record = entry->second;
    const Record before = record;
    fold(record);
    if (identifier && record != before) {
        if (const std::optional<QByteArray> json = encodeRecord(record))
            defaults.setData(key, *json);
    }
    return record;
}

} // namespace

BatteryHistoryStore::BatteryHistoryStore(KeyValueStore &defaults)
    : m_defaults(defaults)
{
}

std::optional<QString> BatteryHistoryStore::batteryIdentifier(const std::optional<QString> &serial)
{
    if (!serial || serial->isEmpty())
        return std::nullopt;
    const QByteArray digest = QCryptographicHash::hash(serial->toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(digest.toHex());
}

BatteryElectricalHistory BatteryHistoryStore::recordElectrical(const std::optional<QString> &serial,
                                                               std::optional<double> voltageV,
                                                               std::optional<double> currentA)
{
    return update(m_histories, m_defaults, kElectricalKeyPrefix, serial, electricalFromStored,
                  [&](BatteryElectricalHistory &record) { record.record(voltageV, currentA); });
}

BatteryTemperatureHistory BatteryHistoryStore::recordTemperature(const std::optional<QString> &serial,
                                                                 std::optional<double> temperatureC)
{
    return update(m_temperatureHistories, m_defaults, kTemperatureKeyPrefix, serial, temperatureFromStored,
                  [&](BatteryTemperatureHistory &record) { record.record(temperatureC); });
}

} // namespace ferrow
