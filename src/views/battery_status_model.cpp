#include "views/battery_status_model.h"

#include "model/localized_text.h"
#include "model/value_text.h"

#include <algorithm>
#include <cmath>

namespace ferrow {

QString batteryHealthText(const PowerSnapshot &s)
{
    return batteryHealthText(s.batteryHealthPercent, s.batteryHealthCondition);
}

QString batteryHealthText(std::optional<std::int64_t> percent, std::optional<BatteryHealthCondition> condition)
{
    if (!percent)
        return absentText();
    if (!condition)
        return QString::number(*percent) + u'%';
    QString text = localizedText("battery.health_value");
    if (!text.contains(u'%'))
        return text;
    return text.arg(static_cast<qlonglong>(*percent)).arg(localizedName(*condition));
}

std::array<BatteryCardFigure, 3> batteryCardFigures(const PowerSnapshot &s)
{
    return {{{"battery.estimated_full", s.timeToFullText(), false},
             {"battery.health", batteryHealthText(s), true},
             {"battery.temperature", batteryTemperatureText(s.batteryTemperatureC), false}}};
}

QString batteryTemperatureText(std::optional<double> celsius)
{
    return formatFigure(celsius, "%.1f \u00B0C");
}

double segmentFillFraction(std::int64_t level, int index)
{
    return std::clamp((static_cast<double>(level) - 10.0 * index) / 10.0, 0.0, 1.0);
}

MeterValueText meterValueText(std::optional<double> value)
{
    if (!value || !std::isfinite(*value))
        return {absentText(), QString()};
    const QString text = QString::asprintf("%.5f", *value);
    return {text.chopped(2), text.right(2)};
}

QString meterAccessibleText(const QString &code, std::optional<double> value, const QString &unit)
{
    const QString figure = formatFigure(value, "%.5f");
    return code + u' ' + figure + u' ' + unit;
}

} // namespace ferrow
