#pragma once

#include <QLocale>
#include <QString>
#include <QTime>

#include <optional>

namespace ferrow {

// How every view, the terminal line and the menu-bar figure turn values into text.

// The dash that stands for a value that could not be read.
QString absentText();
// "%.1f W"-style figures; an absent or non-finite value (a 0 V divisor) shows the dash, never "inf".
QString formatFigure(std::optional<double> value, const char *format);
// "+1.500 A" above zero, "0.000 A" at zero, "-0.250 A" below.
QString signedCurrentText(std::optional<double> currentA);
// "+12.3 W" into the battery, "-4.0 W" out of it; the dash for a value that is not finite.
QString signedWattsText(double watts);
// Energy as precise as its size calls for: "123 Wh", "12.4 Wh", "0.83 Wh", "35 mWh"; the dash for
// an absent, negative or non-finite value.
QString energyText(std::optional<double> wattHours);

enum class Seconds { shown, hidden };
// A clock time in the locale's own style, without the time zone (a clock on this machine has no
// need of it); Seconds::hidden for chart marks.
QString timeOfDayText(const QTime &time, const QLocale &locale, Seconds seconds = Seconds::shown);

} // namespace ferrow
