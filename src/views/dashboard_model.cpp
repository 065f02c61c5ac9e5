#include "views/dashboard_model.h"

#include "model/localized_text.h"
#include "model/value_text.h"

#include <cmath>

namespace ferrow {

StatusIndicator statusIndicator(const PowerSnapshot &snapshot)
{
    if (snapshot.isDataAvailable)
        return {ColorRole::liveGreen, localizedText("status.live")};
    return {ColorRole::orange, localizedText("status.waiting")};
}

std::optional<double> displayVoltageV(const PowerSnapshot &snapshot)
{
    if (!snapshot.isBatterySide())
        return snapshot.dcVoltageV;
    return snapshot.batteryRailVoltageV ? snapshot.batteryRailVoltageV : snapshot.batteryVoltageV;
}

QString meterCaption(const PowerSnapshot &snapshot)
{
    return snapshot.isBatterySide() ? localizedText("power.battery_discharge") : QStringLiteral("DC IN");
}

std::vector<ValueRow> telemetryRows(const PowerSnapshot &s)
{
    if (!s.hasBattery) {
        return {
            {localizedText("power.system_total"), QString::asprintf("%.1f W", s.systemPowerW), ColorRole::primaryText},
            {localizedText("device.power_source"), localizedText("status.external_power"), ColorRole::positive},
            {localizedText("battery.title"), localizedText("battery.not_detected"), ColorRole::secondaryText},
            {localizedText("device.sample_rate"), QStringLiteral("1 Hz"), ColorRole::accent},
        };
    }
    const bool batteryPowered = s.isBatterySide();
    const QString cycles = s.cycleCount ? QString::number(*s.cycleCount) : absentText();
    return {
        {localizedText("battery.cycle_count"), cycles, ColorRole::primaryText},
        {localizedText("battery.voltage"), formatFigure(batteryPowered ? displayVoltageV(s) : s.batteryVoltageV, "%.2f V"),
         ColorRole::primaryText},
        {localizedText("battery.current"), signedCurrentText(batteryPowered ? s.displayCurrentA() : s.batteryCurrentA),
         batteryPowered ? ColorRole::dischargePink : ColorRole::positive},
        {localizedText("battery.charge_status"), s.statusText(), ColorRole::accent},
    };
}

} // namespace ferrow
