#include "views/history_model.h"

#include "model/localized_text.h"
#include "model/value_text.h"

#include <QDateTime>

#include <algorithm>
#include <map>

namespace ferrow {
namespace {

constexpr std::size_t kMonthLabelStep = 5;

QDate localDate(UnixSeconds seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds).date();
}

QDate firstOfMonth(const QDate &date)
{
    return QDate(date.year(), date.month(), 1);
}

EnergyBar barOf(const QDate &date, const PeriodEnergy *period)
{
    EnergyBar bar{date, std::nullopt, std::nullopt};
    if (period && period->energy.coveredS > 0) {
        bar.adapterWh = period->energy.adapterWh;
        bar.batteryWh = period->energy.batteryOutWh;
    }
    return bar;
}

bool isFormatLetter(QChar c)
{
    return c.isLetter() && c.unicode() < 128;
}

QString percentText(const std::optional<std::int64_t> &percent)
{
    return percent ? QStringLiteral("%1%").arg(*percent) : absentText();
}

} // namespace

const char *energyRangeKey(EnergyRange range)
{
    switch (range) {
    case EnergyRange::week:
        return "energy_history.week";
    case EnergyRange::month:
        return "energy_history.month";
    case EnergyRange::year:
        return "energy_history.year";
    }
    return "energy_history.week";
}

std::vector<EnergyBar> energyBars(const HistoryOverview &overview, EnergyRange range, const QDate &today)
{
    std::vector<EnergyBar> bars;
    std::map<QDate, const PeriodEnergy *> periods;
    if (range == EnergyRange::year) {
        for (const PeriodEnergy &period : overview.last12Months)
            periods[firstOfMonth(localDate(period.start))] = &period;
        const QDate thisMonth = firstOfMonth(today);
        for (int back = 11; back >= 0; --back) {
            const QDate month = thisMonth.addMonths(-back);
            const auto found = periods.find(month);
            bars.push_back(barOf(month, found == periods.end() ? nullptr : found->second));
        }
        return bars;
    }
    for (const PeriodEnergy &period : overview.last30Days)
        periods[localDate(period.start)] = &period;
    const int days = range == EnergyRange::week ? 7 : 30;
    for (int back = days - 1; back >= 0; --back) {
        const QDate day = today.addDays(-back);
        const auto found = periods.find(day);
        bars.push_back(barOf(day, found == periods.end() ? nullptr : found->second));
    }
    return bars;
}

bool isLabelledBar(std::size_t index, std::size_t count, EnergyRange range)
{
    if (index >= count)
        return false;
    return range != EnergyRange::month || (count - 1 - index) % kMonthLabelStep == 0;
}

QString energyBarLabel(const QDate &date, EnergyRange range, const QLocale &locale)
{
    switch (range) {
    case EnergyRange::week:
        return locale.standaloneDayName(date.dayOfWeek(), QLocale::ShortFormat);
    case EnergyRange::month:
        return locale.toString(date, dayMonthFormat(locale));
    case EnergyRange::year:
        return locale.standaloneMonthName(date.month(), QLocale::ShortFormat);
    }
    return QString();
}

double energyAxisTop(const std::vector<EnergyBar> &bars)
{
    double tallest = 0;
    for (const EnergyBar &bar : bars)
        tallest = std::max(tallest, bar.adapterWh.value_or(0) + bar.batteryWh.value_or(0));
    // Tops whose fifths (the axis's five intervals) are round figures too.
    for (double decade = 10;; decade *= 10)
        for (const double multiple : {1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 7.5})
            if (multiple * decade >= tallest)
                return multiple * decade;
}

QString formatWithout(const QString &format, QChar field, int minimumRun)
{
    // Find the run outside quotes.
    qsizetype start = -1, end = -1;
    bool quoted = false;
    for (qsizetype i = 0; i < format.size();) {
        if (format[i] == u'\'') {
            quoted = !quoted;
            ++i;
            continue;
        }
        qsizetype j = i + 1;
        if (!quoted && format[i] == field) {
            while (j < format.size() && format[j] == field)
                ++j;
            if (j - i >= minimumRun) {
                start = i;
                end = j;
                break;
            }
        }
        i = j;
    }
    if (start < 0)
        return format;

    // Whether any field comes before the run: a leading field takes what follows it, any other
    // what precedes it (but not a letter such as 日, which belongs to the field before).
    bool fieldBefore = false;
    quoted = false;
    for (qsizetype i = 0; i < start; ++i) {
        if (format[i] == u'\'')
            quoted = !quoted;
        else if (!quoted && isFormatLetter(format[i]))
            fieldBefore = true;
    }
    const auto removable = [](QChar c) { return !c.isLetter(); };
    if (!fieldBefore) {
        qsizetype j = end;
        while (j < format.size()) {
            if (format[j] == u'\'') {
                const qsizetype close = format.indexOf(u'\'', j + 1);
                j = close < 0 ? format.size() : close + 1;
            } else if (removable(format[j])) {
                ++j;
            } else {
                break;
            }
        }
        return format.left(start) + format.mid(j);
    }
    qsizetype i = start;
    while (i > 0) {
        if (format[i - 1] == u'\'') {
            if (i < 2)
                break;
            const qsizetype open = format.lastIndexOf(u'\'', i - 2);
            if (open < 0)
                break;
            i = open;
        } else if (removable(format[i - 1])) {
            --i;
        } else {
            break;
        }
    }
    return format.left(i) + format.mid(end);
}

QString dayMonthFormat(const QLocale &locale)
{
    return formatWithout(locale.dateFormat(QLocale::ShortFormat), u'y');
}

QString sessionDurationText(std::int64_t seconds)
{
    const std::int64_t minutes = std::max<std::int64_t>(seconds, 0) / 60;
    const std::int64_t hours = minutes / 60;
    const std::int64_t days = hours / 24;
    const auto pair = [](const char *largeKey, std::int64_t large, const char *smallKey, std::int64_t small) {
        const QString first = localizedCount(largeKey, large);
        return small == 0 ? first : localizedFormatText("session.two_units", {first, localizedCount(smallKey, small)});
    };
    if (days > 0)
        return pair("session.days", days, "session.hours", hours % 24);
    if (hours > 0)
        return pair("session.hours", hours, "session.minutes", minutes % 60);
    return localizedCount("session.minutes", minutes);
}

SessionRowText sessionRowText(const SessionRecord &s, const QLocale &locale)
{
    const QDateTime start = QDateTime::fromSecsSinceEpoch(s.start);
    const QString started = locale.toString(start.date(), QLocale::ShortFormat) + u' ' + timeOfDayText(start.time(), locale, Seconds::hidden);
    return {
        localizedText(s.externalPower ? "session.on_adapter" : "session.on_battery"),
        started + QStringLiteral(" \u00B7 ") + sessionDurationText(s.end - s.start),
        percentText(s.startPercent) + QStringLiteral(" \u2192 ") + percentText(s.endPercent),
        energyText(s.energyWh),
        localizedFormatText("session.mean_peak", {formatFigure(s.meanPowerW(), "%.1f W"), formatFigure(s.peakPowerW, "%.1f W")}),
    };
}

QString currentSessionText(const SessionRecord &s, UnixSeconds now)
{
    return localizedFormatText(s.externalPower ? "session.on_adapter_for" : "session.on_battery_for",
                               {sessionDurationText(now - s.start), energyText(s.energyWh)});
}

std::vector<BatterySeries> batterySeries(const std::vector<BatteryDayRecord> &days)
{
    std::vector<BatterySeries> series;
    for (const BatteryDayRecord &record : days) {
        const QDate day = QDate::fromString(record.day, Qt::ISODate);
        if (!day.isValid() || record.batteryId.isEmpty())
            continue;
        auto battery = std::find_if(series.begin(), series.end(), [&](const BatterySeries &s) { return s.batteryId == record.batteryId; });
        if (battery == series.end())
            battery = series.insert(series.end(), BatterySeries{record.batteryId, shortBatteryId(record.batteryId), {}, {}});
        if (record.healthPercent)
            battery->healthPercent.push_back({day, static_cast<double>(*record.healthPercent)});
        if (record.fullChargeCapacityMAH)
            battery->fullChargeMAH.push_back({day, static_cast<double>(*record.fullChargeCapacityMAH)});
    }
    const auto byDay = [](const BatteryPoint &a, const BatteryPoint &b) { return a.day < b.day; };
    for (BatterySeries &battery : series) {
        std::stable_sort(battery.healthPercent.begin(), battery.healthPercent.end(), byDay);
        std::stable_sort(battery.fullChargeMAH.begin(), battery.fullChargeMAH.end(), byDay);
    }
    return series;
}

QString shortBatteryId(const QString &batteryId)
{
    return batteryId.left(8);
}

HistoryState historyState(bool enabled, const HistoryOverview &overview)
{
    if (!enabled)
        return HistoryState::off;
    if (!overview.error.isEmpty())
        return HistoryState::failing;
    return overview.since ? HistoryState::kept : HistoryState::empty;
}

QString historyCaption(bool enabled, const HistoryOverview &overview, const QLocale &locale)
{
    switch (historyState(enabled, overview)) {
    case HistoryState::off:
        return localizedText("energy_history.off");
    case HistoryState::failing:
        return localizedFormatText("energy_history.failing", {overview.error});
    case HistoryState::empty:
        return localizedText("energy_history.empty");
    case HistoryState::kept:
        break;
    }
    const QDate since = localDate(*overview.since);
    return localizedFormatText("energy_history.since",
                               {locale.toString(since, formatWithout(locale.dateFormat(QLocale::LongFormat), u'd', 3))});
}

} // namespace ferrow
