#include "export/snapshot_json.h"

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

QJsonValue optionalValue(const std::optional<double> &value)
{
    return value ? number(*value) : QJsonValue(QJsonValue::Null);
}

QJsonValue optionalValue(const std::optional<std::int64_t> &value)
{
    return value ? QJsonValue(static_cast<qint64>(*value)) : QJsonValue(QJsonValue::Null);
}

QJsonValue optionalValue(const std::optional<QString> &value)
{
    return value ? QJsonValue(*value) : QJsonValue(QJsonValue::Null);
}

template <typename Enumeration>
QJsonValue optionalRaw(const std::optional<Enumeration> &value)
{
    return value ? QJsonValue(rawValue(*value)) : QJsonValue(QJsonValue::Null);
}

QString isoTime(WallTime time)
{
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch()).count();
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC).toString(Qt::ISODateWithMs);
}

} // namespace

QJsonObject snapshotToJson(const PowerSnapshot &s)
{
    QJsonArray cells;
    for (const double volts : s.cellVoltagesV)
        cells.append(number(volts));

    return QJsonObject{
        {QStringLiteral("dcVoltageV"), number(s.dcVoltageV)},
        {QStringLiteral("dcCurrentA"), number(s.dcCurrentA)},
        {QStringLiteral("dcPowerW"), number(s.dcPowerW)},
        {QStringLiteral("systemPowerW"), number(s.systemPowerW)},
        {QStringLiteral("chipPower"),
         QJsonObject{{QStringLiteral("cpu"), optionalValue(s.chipPower.cpu)},
                     {QStringLiteral("gpu"), optionalValue(s.chipPower.gpu)},
                     {QStringLiteral("ane"), optionalValue(s.chipPower.ane)},
                     {QStringLiteral("ram"), optionalValue(s.chipPower.ram)}}},
        {QStringLiteral("batteryFlowW"), number(s.batteryFlowW)},
        {QStringLiteral("batteryChargePowerW"), number(s.batteryChargePowerW)},
        {QStringLiteral("hasBattery"), s.hasBattery},
        {QStringLiteral("batteryPercent"), static_cast<qint64>(s.batteryPercent)},
        {QStringLiteral("batteryHealthPercent"), optionalValue(s.batteryHealthPercent)},
        {QStringLiteral("batteryHealthCondition"), optionalRaw(s.batteryHealthCondition)},
        {QStringLiteral("batteryTemperatureC"), optionalValue(s.batteryTemperatureC)},
        {QStringLiteral("batteryVoltageV"), optionalValue(s.batteryVoltageV)},
        {QStringLiteral("batteryCurrentA"), optionalValue(s.batteryCurrentA)},
        {QStringLiteral("batteryRailVoltageV"), optionalValue(s.batteryRailVoltageV)},
        {QStringLiteral("cycleCount"), optionalValue(s.cycleCount)},
        {QStringLiteral("designCycleCount"), optionalValue(s.designCycleCount)},
        {QStringLiteral("estimatedMinutesToFull"), optionalValue(s.estimatedMinutesToFull)},
        {QStringLiteral("designCapacityMAH"), optionalValue(s.designCapacityMAH)},
        {QStringLiteral("fullChargeCapacityMAH"), optionalValue(s.fullChargeCapacityMAH)},
        {QStringLiteral("nominalFullChargeCapacityMAH"), optionalValue(s.nominalFullChargeCapacityMAH)},
        {QStringLiteral("remainingCapacityMAH"), optionalValue(s.remainingCapacityMAH)},
        {QStringLiteral("cellVoltagesV"), cells},
        {QStringLiteral("cellVoltageSource"), optionalRaw(s.cellVoltageSource)},
        {QStringLiteral("deviceName"), optionalValue(s.deviceName)},
        {QStringLiteral("batterySerial"), optionalValue(s.batterySerial)},
        {QStringLiteral("totalOperatingMinutes"), optionalValue(s.totalOperatingMinutes)},
        {QStringLiteral("lifetimeMaxTemperatureC"), optionalValue(s.lifetimeMaxTemperatureC)},
        {QStringLiteral("lifetimeMinTemperatureC"), optionalValue(s.lifetimeMinTemperatureC)},
        {QStringLiteral("lifetimeAverageTemperatureC"), optionalValue(s.lifetimeAverageTemperatureC)},
        {QStringLiteral("lifetimeMaxPackVoltageV"), optionalValue(s.lifetimeMaxPackVoltageV)},
        {QStringLiteral("lifetimeMinPackVoltageV"), optionalValue(s.lifetimeMinPackVoltageV)},
        {QStringLiteral("lifetimeMaxChargeCurrentA"), optionalValue(s.lifetimeMaxChargeCurrentA)},
        {QStringLiteral("lifetimeMaxDischargeCurrentA"), optionalValue(s.lifetimeMaxDischargeCurrentA)},
        {QStringLiteral("batterySafetyProtectionCount"), optionalValue(s.batterySafetyProtectionCount)},
        {QStringLiteral("isExternalConnected"), s.isExternalConnected},
        {QStringLiteral("isCharging"), s.isCharging},
        {QStringLiteral("isDataAvailable"), s.isDataAvailable},
        {QStringLiteral("adapterDescription"), optionalValue(s.adapterDescription)},
        {QStringLiteral("updatedAt"), isoTime(s.updatedAt)},
    };
}

} // namespace ferrow
