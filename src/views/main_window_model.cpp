#include "views/main_window_model.h"

#include "model/localized_text.h"
#include "model/value_text.h"
#include "views/battery_status_model.h"
#include "views/dashboard_model.h"

#include <QLocale>
#include <QTime>

#include <algorithm>
#include <cmath>

namespace ferrow {
namespace {

constexpr double kFollowBand = 52;
const QString kBullet = QStringLiteral("\u2022");

ColorRole flowTint(double shownFlowW)
{
    return shownFlowW > 0 ? ColorRole::positive : shownFlowW < 0 ? ColorRole::dischargePink : ColorRole::primaryText;
}


} // namespace

const char *sectionTitleKey(MainSection section)
{
    switch (section) {
    case MainSection::overview:
        return "section.overview";
    case MainSection::power:
        return "section.power";
    case MainSection::battery:
        return "section.battery";
    case MainSection::cells:
        return "section.cells";
    case MainSection::energy:
        return "section.energy_history";
    case MainSection::applications:
        return "section.applications";
    case MainSection::history:
        return "section.device";
    }
    return "section.overview";
}

std::optional<MainSection> sectionFollowingScroll(const std::map<MainSection, double> &topOffsets)
{
    std::optional<std::pair<MainSection, double>> reached, nearest;
    for (const auto &[section, offset] : topOffsets) {
        if (offset <= kFollowBand && (!reached || offset > reached->second))
            reached = {section, offset};
        if (!nearest || offset < nearest->second)
            nearest = {section, offset};
    }
    if (reached)
        return reached->first;
    return nearest ? std::optional(nearest->first) : std::nullopt;
}

const char *overviewTitleKey(const PowerSnapshot &s)
{
    if (!s.hasBattery)
        return "overview.external_power";
    if (s.isExternalConnected)
        return s.isCharging ? "overview.charging" : "status.power_connected";
    return "status.on_battery";
}

const char *overviewSubtitleKey(const PowerSnapshot &s)
{
    if (!s.hasBattery)
        return "overview.no_battery_subtitle";
    return s.isExternalConnected ? "overview.power_distribution_subtitle" : "overview.battery_subtitle";
}

QString batteryPowerText(const PowerSnapshot &s)
{
    if (!s.isDataAvailable || !std::isfinite(s.batteryFlowW))
        return absentText();
    return signedWattsText(s.shownBatteryFlowW());
}

QString maskedSerial(const PowerSnapshot &s)
{
    return s.hasBattery ? maskedSerial(s.batterySerial) : absentText();
}

QString maskedSerial(const std::optional<QString> &optionalSerial)
{
    if (!optionalSerial || optionalSerial->isEmpty())
        return absentText();
    const QString &serial = *optionalSerial;
    if (serial.size() < 9)
        return kBullet.repeated(serial.size());
    return serial.left(4) + kBullet.repeated(4) + serial.right(4);
}

QString durationText(std::optional<std::int64_t> minutes)
{
    if (!minutes)
        return absentText();
    const std::int64_t m = *minutes;
    if (m >= 1440)
        return localizedFormat("duration.days_hours", {m / 1440, (m / 60) % 24});
    if (m / 60 == 0)
        return localizedFormat("duration.minutes", {m % 60});
    return localizedFormat("duration.hours_minutes", {m / 60, m % 60});
}

QString capacityText(std::optional<std::int64_t> mAh)
{
    return mAh ? localizedFormat("capacity.mah", {*mAh}) : absentText();
}

QString countText(std::optional<std::int64_t> count)
{
    return count ? localizedCount("count.times", *count) : absentText();
}

int cellGridColumns(std::size_t cellCount)
{
    return static_cast<int>(std::min<std::size_t>(cellCount, 4));
}

double cellBarFraction(double volts)
{
    return std::clamp((std::min(volts, 4.25) - 3.0) / 1.25, 0.0, 1.0);
}

std::vector<ValueRow> distributionRows(const PowerSnapshot &s)
{
    std::vector<ValueRow> rows = {
        {localizedText("power.dc_input"), QString::asprintf("%.1f W", s.dcPowerW)},
        {localizedText("power.system_total"), QString::asprintf("%.1f W", s.systemPowerW)},
    };
    if (s.hasBattery)
        rows.push_back({localizedText("power.battery_power"), batteryPowerText(s), flowTint(s.shownBatteryFlowW())});
    if (s.adapterDescription && !s.adapterDescription->isEmpty())
        rows.push_back({localizedText("power.adapter"), *s.adapterDescription});
    return rows;
}

QString distributionCaption(const PowerSnapshot &s)
{
    return s.hasBattery ? QStringLiteral("DC IN \u2212 System Total") : QStringLiteral("PSTR \u00B7 System Total");
}

std::vector<ValueRow> batteryRows(const PowerSnapshot &s)
{
    return {
        {localizedText("battery.health"), batteryHealthText(s), ColorRole::positive},
        {localizedText("battery.cycle_count"), countText(s.cycleCount)},
        {localizedText("battery.temperature"), batteryTemperatureText(s.batteryTemperatureC)},
        {localizedText("battery.design_capacity"), capacityText(s.designCapacityMAH)},
        {localizedText("battery.full_charge_capacity"), capacityText(s.fullChargeCapacityMAH)},
        {localizedText("battery.nominal_full_charge_capacity"), capacityText(s.nominalFullChargeCapacityMAH)},
    };
}

std::vector<ValueRow> deviceRows(const PowerSnapshot &s)
{
    return {
        {localizedText("device.sample_rate"), localizedText("device.once_per_second")},
        {localizedText("device.gpu_power"), formatFigure(s.chipPower.gpu, "%.2f W")},
        {localizedText("device.battery_serial"), maskedSerial(s)},
        {localizedText("device.total_operating_time"), durationText(s.totalOperatingMinutes)},
    };
}

std::vector<ValueRow> lifetimeRows(const PowerSnapshot &s)
{
    return {
        {localizedText("history.max_battery_temperature"), formatFigure(s.lifetimeMaxTemperatureC, "%.1f \u00B0C")},
        {localizedText("history.min_battery_temperature"), formatFigure(s.lifetimeMinTemperatureC, "%.1f \u00B0C")},
        {localizedText("history.average_battery_temperature"), formatFigure(s.lifetimeAverageTemperatureC, "%.1f \u00B0C")},
        {localizedText("history.max_pack_voltage"), formatFigure(s.lifetimeMaxPackVoltageV, "%.3f V")},
        {localizedText("history.min_pack_voltage"), formatFigure(s.lifetimeMinPackVoltageV, "%.3f V")},
        {localizedText("history.max_charge_current"), formatFigure(s.lifetimeMaxChargeCurrentA, "%.3f A")},
        {localizedText("history.max_discharge_current"), formatFigure(s.lifetimeMaxDischargeCurrentA, "%.3f A")},
        {localizedText("history.safety_protection_count"), countText(s.batterySafetyProtectionCount)},
    };
}

QString batteryPackTitle(const BatteryPack &pack)
{
    return pack.model && !pack.model->isEmpty() ? pack.name + QStringLiteral(" \u00B7 ") + *pack.model : pack.name;
}

std::vector<ValueRow> batteryPackRows(const BatteryPack &pack)
{
    const std::optional<double> flowW = pack.flowW ? std::optional(shownFlowW(*pack.flowW)) : std::nullopt;
    return {
        {localizedText("battery.pack_charge"), QStringLiteral("%1%").arg(pack.percent), ColorRole::positive},
        {localizedText("power.battery_power"), flowW ? signedWattsText(*flowW) : absentText(), flowTint(flowW.value_or(0))},
        {localizedText("battery.health"), batteryHealthText(pack.healthPercent, std::nullopt)},
        {localizedText("battery.cycle_count"), countText(pack.cycleCount)},
        {localizedText("battery.temperature"), batteryTemperatureText(pack.temperatureC)},
        {localizedText("battery.voltage"), formatFigure(pack.voltageV, "%.3f V")},
        {localizedText("battery.design_capacity"), capacityText(pack.designCapacityMAH)},
        {localizedText("battery.full_charge_capacity"), capacityText(pack.fullChargeCapacityMAH)},
        {localizedText("device.battery_serial"), maskedSerial(pack.serial)},
        {localizedText("history.max_battery_temperature"), formatFigure(pack.lifetimeMaxTemperatureC, "%.1f \u00B0C")},
        {localizedText("history.min_battery_temperature"), formatFigure(pack.lifetimeMinTemperatureC, "%.1f \u00B0C")},
        {localizedText("history.max_pack_voltage"), formatFigure(pack.lifetimeMaxPackVoltageV, "%.3f V")},
        {localizedText("history.min_pack_voltage"), formatFigure(pack.lifetimeMinPackVoltageV, "%.3f V")},
        {localizedText("history.max_charge_current"), formatFigure(pack.lifetimeMaxChargeCurrentA, "%.3f A")},
        {localizedText("history.max_discharge_current"), formatFigure(pack.lifetimeMaxDischargeCurrentA, "%.3f A")},
    };
}

} // namespace ferrow
