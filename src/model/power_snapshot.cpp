#include "model/power_snapshot.h"

#include "model/localized_text.h"
#include "model/value_text.h"

#include <cmath>

namespace ferrow {
namespace {

constexpr double kChargingPowerThresholdW = 0.3;
constexpr double kConnectedInputVoltageV = 0.1;

} // namespace

std::optional<BatteryHealthCondition> batteryHealthConditionFromRaw(QStringView raw)
{
    if (raw == u"good")
        return BatteryHealthCondition::good;
    if (raw == u"fair")
        return BatteryHealthCondition::fair;
    if (raw == u"poor")
        return BatteryHealthCondition::poor;
    return std::nullopt;
}

QString rawValue(BatteryHealthCondition condition)
{
    switch (condition) {
    case BatteryHealthCondition::good:
        return QStringLiteral("good");
    case BatteryHealthCondition::fair:
        return QStringLiteral("fair");
    case BatteryHealthCondition::poor:
        return QStringLiteral("poor");
    }
    return {};
}

QString localizedName(BatteryHealthCondition condition)
{
    switch (condition) {
    case BatteryHealthCondition::good:
        return localizedText("battery.health.good");
    case BatteryHealthCondition::fair:
        return localizedText("battery.health.fair");
    case BatteryHealthCondition::poor:
        return localizedText("battery.health.poor");
    }
    return {};
}

std::optional<BatteryCellSource> batteryCellSourceFromRaw(QStringView raw)
{
    if (raw == u"registry")
        return BatteryCellSource::registry;
    if (raw == u"smc")
        return BatteryCellSource::smc;
    return std::nullopt;
}

QString rawValue(BatteryCellSource source)
{
    switch (source) {
    case BatteryCellSource::registry:
        return QStringLiteral("registry");
    case BatteryCellSource::smc:
        return QStringLiteral("smc");
    }
    return {};
}

const PowerSnapshot &PowerSnapshot::empty()
{
    static const PowerSnapshot emptySnapshot = [] {
        PowerSnapshot snapshot;
        snapshot.updatedAt = std::chrono::system_clock::now();
        return snapshot;
    }();
    return emptySnapshot;
}

bool PowerSnapshot::isBatterySide() const
{
    if (!hasBattery)
        return false;
    if (!isExternalConnected)
        return true;
    // A NaN flow compares false here, so it keeps the input side.
    return !isCharging && batteryFlowW < -kBatteryFlowDeadBandW;
}

std::optional<double> PowerSnapshot::displayPowerW() const
{
    if (!isBatterySide())
        return dcPowerW;
    if (!isDataAvailable)
        return std::nullopt;
    return shownBatteryFlowW();
}

std::optional<double> PowerSnapshot::displayCurrentA() const
{
    if (!isBatterySide())
        return dcCurrentA;
    if (!isDataAvailable)
        return std::nullopt;
    const std::optional<double> divisorV = batteryRailVoltageV ? batteryRailVoltageV : batteryVoltageV;
    if (!divisorV)
        return std::nullopt;
    // No zero guard: 0 V yields an infinity (or NaN), which the views show as it is.
    return shownBatteryFlowW() / *divisorV;
}

const char *PowerSnapshot::statusKey() const
{
    if (!hasBattery)
        return "status.external_power";
    if (!isDataAvailable)
        return "status.waiting_telemetry";
    if (!isExternalConnected)
        return "status.on_battery";
    if (isCharging && batteryChargePowerW > kChargingPowerThresholdW)
        return "status.charging";
    if (batteryPercent < 100)
        return "status.power_connected";
    return "status.fully_charged";
}

QString PowerSnapshot::statusText() const
{
    return localizedText(statusKey());
}

QString PowerSnapshot::powerSourceText() const
{
    if (!hasBattery && isExternalConnected)
        return localizedText("power.ac_connected");
    if (hasBattery && isExternalConnected && dcVoltageV > kConnectedInputVoltageV)
        return QString::asprintf("USB-C PD \u00B7 %.1f V", dcVoltageV);
    return localizedText("power.dc_disconnected");
}

QString PowerSnapshot::timeToFullText() const
{
    if (!estimatedMinutesToFull || *estimatedMinutesToFull < 1)
        return absentText();
    const std::int64_t minutes = *estimatedMinutesToFull;
    if (minutes < 60)
        return localizedFormat("duration.minutes", {minutes});
    return localizedFormat("duration.hours_minutes", {minutes / 60, minutes % 60});
}

} // namespace ferrow
