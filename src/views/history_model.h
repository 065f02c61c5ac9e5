#pragma once

#include "history/history_recorder.h"

#include <QDate>
#include <QLocale>
#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace ferrow {

// The energy chart's ranges: days of the last week or month, or months of the last year.
enum class EnergyRange { week, month, year };
inline constexpr std::array<EnergyRange, 3> kEnergyRanges = {EnergyRange::week, EnergyRange::month, EnergyRange::year};
const char *energyRangeKey(EnergyRange range);

// One day's or month's bar. Both parts absent: nothing was recorded then, a gap rather than a zero.
struct EnergyBar {
    QDate date; // the day, or the first day of the month
    std::optional<double> adapterWh;
    std::optional<double> batteryWh; // out of the battery

    bool isGap() const { return !adapterWh && !batteryWh; }
};

// A bar for every day or month of the range that ends with today, oldest first, recorded or not.
std::vector<EnergyBar> energyBars(const HistoryOverview &overview, EnergyRange range, const QDate &today);
// Whether the axis names bar index of count: all of a week or a year, every fifth day back from today.
bool isLabelledBar(std::size_t index, std::size_t count, EnergyRange range);
QString energyBarLabel(const QDate &date, EnergyRange range, const QLocale &locale);
// The top of the energy axis: the tallest stack rounded up to a round figure (10 Wh at least).
double energyAxisTop(const std::vector<EnergyBar> &bars);

// A date format with one field taken out along with the separators and quoted words that tie it to
// its neighbours: the year out of the short format gives a day and month in the locale's order.
// Only runs of the field at least minimumRun long go ("dddd" the weekday, but not "d" the day).
QString formatWithout(const QString &format, QChar field, int minimumRun = 1);
QString dayMonthFormat(const QLocale &locale);

// "1 h 12 min", "35 min", "2 d 3 h": a session's length with each count in its plural form.
QString sessionDurationText(std::int64_t seconds);

// A session as the History section lists it.
struct SessionRowText {
    QString title;   // "On battery", "On the adapter"
    QString when;    // start date and time · duration
    QString percent; // "80% → 52%"
    QString energy;  // "8.4 Wh"
    QString power;   // mean and peak
};
SessionRowText sessionRowText(const SessionRecord &session, const QLocale &locale);
// The popover's line: "On battery for 1 h 12 min · 8.4 Wh used".
QString currentSessionText(const SessionRecord &session, UnixSeconds now);

// One battery's daily health and full-charge capacity, oldest first; days without a value are left out.
struct BatteryPoint {
    QDate day;
    double value = 0;
};
struct BatterySeries {
    QString batteryId;
    QString label;
    std::vector<BatteryPoint> healthPercent;
    std::vector<BatteryPoint> fullChargeMAH;
};
std::vector<BatterySeries> batterySeries(const std::vector<BatteryDayRecord> &days);
// The first eight characters of the hash: enough to tell a machine's batteries apart.
QString shortBatteryId(const QString &batteryId);

enum class HistoryState { off, failing, empty, kept };
HistoryState historyState(bool enabled, const HistoryOverview &overview);
// The line over the section: why nothing is kept, that nothing is yet, or since when it is.
QString historyCaption(bool enabled, const HistoryOverview &overview, const QLocale &locale);

} // namespace ferrow
