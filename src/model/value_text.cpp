#include "model/value_text.h"

#include "model/localized_text.h"

#include <cmath>

namespace ferrow {

QString absentText()
{
    return QString::fromUtf16(kAbsentText);
}

QString formatFigure(std::optional<double> value, const char *format)
{
    return value && std::isfinite(*value) ? QString::asprintf(format, *value) : absentText();
}

QString signedCurrentText(std::optional<double> currentA)
{
    if (!currentA || !std::isfinite(*currentA))
        return absentText();
    return (*currentA > 0 ? QStringLiteral("+") : QString()) + QString::asprintf("%.3f A", *currentA);
}

QString signedWattsText(double watts)
{
    if (!std::isfinite(watts))
        return absentText();
    return (watts > 0 ? QStringLiteral("+") : QString()) + QString::asprintf("%.1f W", watts);
}

QString energyText(std::optional<double> wattHours)
{
    if (!wattHours || !std::isfinite(*wattHours) || *wattHours < 0)
        return absentText();
    const double wh = *wattHours + 0.0; // -0 reads as 0
    // Each step is taken on the figure as it would be rounded, so no figure reads "100 mWh" or "1.00 Wh".
    if (std::round(wh * 1000) < 100)
        return QString::asprintf("%.0f mWh", wh * 1000);
    if (wh < 0.995)
        return QString::asprintf("%.2f Wh", wh);
    if (wh < 99.95)
        return QString::asprintf("%.1f Wh", wh);
    return QString::asprintf("%.0f Wh", wh);
}

namespace {

// The long format is the one with seconds; it also names the time zone ("t", maybe in brackets
// or after a comma).
QString withoutTimeZone(QString format)
{
    bool quoted = false;
    for (qsizetype i = 0; i < format.size(); ++i) {
        if (format[i] == u'\'')
            quoted = !quoted;
        if (quoted || format[i] != u't')
            continue;
        qsizetype from = i, to = i + 1;
        if (from > 0 && to < format.size() && QStringLiteral("([").contains(format[from - 1]) && QStringLiteral(")]").contains(format[to])) {
            --from;
            ++to;
        }
        while (from > 0 && (format[from - 1] == u' ' || format[from - 1] == u','))
            --from;
        format.remove(from, to - from);
        break;
    }
    return format.trimmed();
}

} // namespace

QString timeOfDayText(const QTime &time, const QLocale &locale, Seconds seconds)
{
    if (seconds == Seconds::shown)
        return locale.toString(time, withoutTimeZone(locale.timeFormat(QLocale::LongFormat)));
    QString format = locale.timeFormat(QLocale::ShortFormat);
    format.remove(QStringLiteral(":ss"));
    return locale.toString(time, format);
}

} // namespace ferrow
