#include "export/snapshot_json.h"

#include "model/snapshot_fields.h"

#include <QDateTime>
#include <QJsonArray>

#include <cmath>

namespace ferrow {
namespace {

// JSON has no NaN or infinity: such a figure is written as null.
QJsonValue number(double value)
{
    return std::isfinite(value) ? QJsonValue(value) : QJsonValue(QJsonValue::Null);
}

QJsonValue jsonValue(const FieldValue &value)
{
    struct Visitor {
        QJsonValue operator()(std::monostate) const { return QJsonValue::Null; }
        QJsonValue operator()(bool flag) const { return flag; }
        QJsonValue operator()(std::int64_t count) const { return static_cast<qint64>(count); }
        QJsonValue operator()(double measure) const { return number(measure); }
        QJsonValue operator()(const QString &text) const { return text; }
        QJsonValue operator()(const std::vector<double> &measures) const
        {
            QJsonArray array;
            for (const double measure : measures)
                array.append(number(measure));
            return array;
        }
        QJsonValue operator()(WallTime time) const
        {
            const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch()).count();
            return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC).toString(Qt::ISODateWithMs);
        }
    };
    return std::visit(Visitor{}, value);
}

QJsonValue optionalJson(const std::optional<double> &value)
{
    return value ? number(*value) : QJsonValue(QJsonValue::Null);
}

QJsonValue optionalJson(const std::optional<std::int64_t> &value)
{
    return value ? QJsonValue(static_cast<qint64>(*value)) : QJsonValue(QJsonValue::Null);
}

QJsonValue optionalJson(const std::optional<QString> &value)
{
    return value ? QJsonValue(*value) : QJsonValue(QJsonValue::Null);
}

QJsonObject packToJson(const BatteryPack &pack)
{
    return {
        {QStringLiteral("name"), pack.name},
        {QStringLiteral("model"), optionalJson(pack.model)},
        {QStringLiteral("serial"), optionalJson(pack.serial)},
        {QStringLiteral("percent"), static_cast<qint64>(pack.percent)},
        {QStringLiteral("flowW"), optionalJson(pack.flowW)},
        {QStringLiteral("healthPercent"), optionalJson(pack.healthPercent)},
        {QStringLiteral("cycleCount"), optionalJson(pack.cycleCount)},
        {QStringLiteral("designCapacityMAH"), optionalJson(pack.designCapacityMAH)},
        {QStringLiteral("fullChargeCapacityMAH"), optionalJson(pack.fullChargeCapacityMAH)},
        {QStringLiteral("temperatureC"), optionalJson(pack.temperatureC)},
        {QStringLiteral("voltageV"), optionalJson(pack.voltageV)},
        {QStringLiteral("lifetimeMaxTemperatureC"), optionalJson(pack.lifetimeMaxTemperatureC)},
        {QStringLiteral("lifetimeMinTemperatureC"), optionalJson(pack.lifetimeMinTemperatureC)},
        {QStringLiteral("lifetimeMaxPackVoltageV"), optionalJson(pack.lifetimeMaxPackVoltageV)},
        {QStringLiteral("lifetimeMinPackVoltageV"), optionalJson(pack.lifetimeMinPackVoltageV)},
        {QStringLiteral("lifetimeMaxChargeCurrentA"), optionalJson(pack.lifetimeMaxChargeCurrentA)},
        {QStringLiteral("lifetimeMaxDischargeCurrentA"), optionalJson(pack.lifetimeMaxDischargeCurrentA)},
    };
}

} // namespace

QJsonObject snapshotToJson(const PowerSnapshot &s)
{
    QJsonObject json;
    for (const SnapshotField &field : snapshotFields()) {
        if (!field.name)
            continue;
        const QString name = QString::fromLatin1(field.name);
        const qsizetype dot = name.indexOf(u'.');
        if (dot < 0) {
            json.insert(name, jsonValue(field.value(s)));
            continue;
        }
        const QString outer = name.first(dot);
        QJsonObject nested = json.value(outer).toObject();
        nested.insert(name.sliced(dot + 1), jsonValue(field.value(s)));
        json.insert(outer, nested);
    }
    // Only a machine with several packs lists them; their sum is the battery above.
    QJsonArray packs;
    for (const BatteryPack &pack : s.batteryPacks)
        packs.append(packToJson(pack));
    json.insert(QStringLiteral("batteryPacks"), packs);
    return json;
}

} // namespace ferrow
