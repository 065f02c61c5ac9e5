#include "alerts/alert_text.h"

#include "alerts/alert_conditions.h"
#include "model/localized_text.h"
#include "model/value_text.h"

#include <algorithm>
#include <cmath>

namespace ferrow {
namespace {

QString watts(std::optional<double> value)
{
    return formatFigure(value, "%.1f W");
}

QString celsius(std::optional<double> value)
{
    return formatFigure(value, "%.1f \u00B0C");
}

QString forMinutes(double seconds)
{
    return localizedCount("alert.for_minutes", std::llround(seconds / 60));
}

QString chargerBody(const PowerSnapshot &s)
{
    const std::optional<double> ratingW = adapterRatingW(s);
    if (!ratingW) {
        return localizedFormatText("alert.charger_cannot_keep_up.body_unmeasured",
                                   {forMinutes(kChargerHoldS), watts(s.systemPowerW), signedWattsText(s.batteryFlowW)});
    }
    return localizedFormatText("alert.charger_cannot_keep_up.body",
                               {forMinutes(kChargerHoldS), watts(ratingW), formatFigure(s.dcVoltageV, "%.2f V"),
                                formatFigure(s.dcCurrentA, "%.3f A"), watts(s.systemPowerW), signedWattsText(s.batteryFlowW)});
}

QString slowChargeBody(const PowerSnapshot &s, std::optional<double> meanSystemPowerW)
{
    if (onFiveVolts(s)) {
        return localizedFormatText("alert.charging_slowly.body_five_volts",
                                   {formatFigure(s.dcVoltageV, "%.2f V"), watts(adapterRatingW(s)), watts(s.systemPowerW),
                                    signedWattsText(s.batteryFlowW)});
    }
    return localizedFormatText("alert.charging_slowly.body_adapter",
                               {localizedCount("alert.over_last_minutes", std::llround(kMeanDrawWindowS / 60)),
                                watts(adapterRatingW(s)), watts(meanSystemPowerW)});
}

QString hotBody(const PowerSnapshot &s, const AlertSettings &settings)
{
    if (hotAtAnyTime(s, settings))
        return localizedFormatText("alert.battery_hot.body", {celsius(s.batteryTemperatureC), celsius(settings.hotC)});
    return localizedFormatText("alert.battery_hot.body_charging",
                               {celsius(settings.hotWhileChargingC), forMinutes(kHotWhileChargingHoldS), celsius(s.batteryTemperatureC)});
}

QString cellsBody(const PowerSnapshot &s)
{
    const auto [lowest, highest] = std::minmax_element(s.cellVoltagesV.begin(), s.cellVoltagesV.end());
    const bool any = lowest != s.cellVoltagesV.end();
    const std::optional<double> spreadV = cellSpreadV(s);
    return localizedFormatText("alert.cells_out_of_balance.body",
                               {formatFigure(kCellSpreadLimitMV, "%.0f mV"), forMinutes(kCellsHoldS),
                                formatFigure(spreadV ? std::optional(*spreadV * 1000) : std::nullopt, "%.0f mV"),
                                formatFigure(any ? std::optional(*lowest) : std::nullopt, "%.3f V"),
                                formatFigure(any ? std::optional(*highest) : std::nullopt, "%.3f V")});
}

} // namespace

QString alertTitle(AlertKind kind)
{
    switch (kind) {
    case AlertKind::chargerCannotKeepUp:
        return localizedText("alert.charger_cannot_keep_up.title");
    case AlertKind::chargingSlowly:
        return localizedText("alert.charging_slowly.title");
    case AlertKind::batteryHot:
        return localizedText("alert.battery_hot.title");
    case AlertKind::cellsOutOfBalance:
        return localizedText("alert.cells_out_of_balance.title");
    case AlertKind::chargeLevelReached:
        return localizedText("alert.charge_level_reached.title");
    }
    return {};
}

Alert describeAlert(AlertKind kind, const PowerSnapshot &reading, const AlertSettings &settings,
                    std::optional<double> meanSystemPowerW)
{
    Alert alert{kind, alertTitle(kind), {}};
    switch (kind) {
    case AlertKind::chargerCannotKeepUp:
        alert.body = chargerBody(reading);
        break;
    case AlertKind::chargingSlowly:
        alert.body = slowChargeBody(reading, meanSystemPowerW);
        break;
    case AlertKind::batteryHot:
        alert.body = hotBody(reading, settings);
        break;
    case AlertKind::cellsOutOfBalance:
        alert.body = cellsBody(reading);
        break;
    case AlertKind::chargeLevelReached:
        alert.body = localizedFormatText("alert.charge_level_reached.body", {QStringLiteral("%1%").arg(settings.chargeLevelPercent)});
        break;
    }
    return alert;
}

QString activeAlertText(const std::vector<AlertKind> &active)
{
    if (active.empty())
        return {};
    const QString first = alertTitle(active.front());
    if (active.size() == 1)
        return first;
    return localizedCountText("alert.active_several", static_cast<std::int64_t>(active.size() - 1), {first});
}

} // namespace ferrow
