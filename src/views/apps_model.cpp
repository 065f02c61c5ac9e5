#include "views/apps_model.h"

#include "model/localized_text.h"
#include "model/value_text.h"
#include "views/accessibility_model.h"
#include "views/history_model.h"

#include <algorithm>
#include <cmath>

namespace ferrow {
namespace {

constexpr double kJoulesPerWattHour = 3600;
// This program's figures start when it does: a minute short of the list's is worth saying.
constexpr double kShorterCoverS = 60;

std::optional<double> finite(std::optional<double> value)
{
    return value && std::isfinite(*value) ? value : std::nullopt;
}

double finiteOrZero(double value)
{
    return std::isfinite(value) ? value : 0;
}

bool hasUsedAnything(const AppEnergy &app)
{
    return finite(app.energyJ).value_or(0) > 0 || finiteOrZero(app.cpuTimeS) > 0;
}

bool isApplication(const AppEnergy &app)
{
    return app.kind == AppEnergy::Kind::application || app.kind == AppEnergy::Kind::self;
}

// Ties go to the more energy, then the more CPU time, then the name: a list keeps its order
// from one update to the next.
bool ranksBefore(const AppEnergy &a, const AppEnergy &b, AppSort sort, bool energy)
{
    const auto key = [&](const AppEnergy &app) -> std::optional<double> {
        if (!energy)
            return finiteOrZero(app.cpuTimeS);
        return finite(sort == AppSort::energy ? app.energyJ : app.meanPowerW());
    };
    const std::optional<double> keyA = key(a), keyB = key(b);
    if (keyA.has_value() != keyB.has_value())
        return keyA.has_value(); // an absent figure after every figure
    if (keyA && *keyA != *keyB)
        return *keyA > *keyB;
    const double energyA = finite(a.energyJ).value_or(-1), energyB = finite(b.energyJ).value_or(-1);
    if (energyA != energyB)
        return energyA > energyB;
    if (finiteOrZero(a.cpuTimeS) != finiteOrZero(b.cpuTimeS))
        return finiteOrZero(a.cpuTimeS) > finiteOrZero(b.cpuTimeS);
    if (const int byName = a.name.compare(b.name, Qt::CaseInsensitive))
        return byName < 0;
    return a.group < b.group;
}

std::vector<const AppEnergy *> ranked(const AppEnergyList &list, AppSort sort, bool onlyUsed)
{
    std::vector<const AppEnergy *> apps;
    for (const AppEnergy &app : list.apps) {
        if (isApplication(app) && (!onlyUsed || hasUsedAnything(app)))
            apps.push_back(&app);
    }
    const bool energy = listsEnergy(list);
    std::stable_sort(apps.begin(), apps.end(), [&](const AppEnergy *a, const AppEnergy *b) { return ranksBefore(*a, *b, sort, energy); });
    return apps;
}

QString shownName(const AppEnergy &app)
{
    switch (app.kind) {
    case AppEnergy::Kind::self:
        return localizedText("apps.self");
    case AppEnergy::Kind::others:
        return localizedText("apps.others");
    case AppEnergy::Kind::rest:
        return localizedText("apps.rest");
    case AppEnergy::Kind::application:
        break;
    }
    if (!app.name.trimmed().isEmpty())
        return app.name;
    return app.group.isEmpty() ? absentText() : app.group;
}

AppRow rowOf(const AppEnergy &app, const AppEnergyList &list)
{
    const bool energy = listsEnergy(list);
    AppRow row;
    row.kind = app.kind;
    row.group = app.group;
    row.icon = app.icon;
    row.name = shownName(app);
    if (app.kind == AppEnergy::Kind::self && list.coveredS - app.coveredS > kShorterCoverS)
        row.note = localizedText("apps.since_started");
    const std::optional<double> joules = finite(app.energyJ);
    row.amount = energy ? energyText(joules ? std::optional(*joules / kJoulesPerWattHour) : std::nullopt) : cpuTimeText(app.cpuTimeS);
    if (energy)
        row.meanPower = formatFigure(app.meanPowerW(), "%.1f W");
    const std::optional<double> share = finite(list.share(app));
    row.share = shareText(share);
    // To a thousandth, finer than any bar draws: a row that looks the same compares equal.
    row.shareFraction = std::round(std::clamp(share.value_or(0), 0.0, 1.0) * 1000.0) / 1000.0;
    row.estimated = energy && joules && !app.isMeasured();
    return row;
}

// What the applications past the ranked ones add to the rest.
void fold(AppEnergy &rest, const AppEnergy &app)
{
    if (const std::optional<double> joules = finite(app.energyJ))
        rest.energyJ = rest.energyJ.value_or(0) + *joules;
    rest.cpuTimeS += finiteOrZero(app.cpuTimeS);
    rest.coveredS = std::max(rest.coveredS, app.coveredS);
    rest.method = std::max(rest.method, app.method); // the least measured part decides
}

} // namespace

const char *appPeriodKey(AppPeriod period)
{
    switch (period) {
    case AppPeriod::session:
        return "apps.period_session";
    case AppPeriod::today:
        return "apps.period_today";
    case AppPeriod::sevenDays:
        return "apps.period_7_days";
    case AppPeriod::thirtyDays:
        return "apps.period_30_days";
    }
    return "apps.period_session";
}

bool listsEnergy(const AppEnergyList &list)
{
    return list.method != AttributionMethod::cpuTime;
}

std::vector<AppRow> appRows(const AppEnergyList &list, AppSort sort, std::size_t rankedCount)
{
    const std::vector<const AppEnergy *> apps = ranked(list, sort, false);
    std::vector<AppRow> rows;
    const AppEnergy *pinned = nullptr;
    std::optional<AppEnergy> rest;
    for (std::size_t i = 0; i < apps.size(); ++i) {
        if (i < rankedCount) {
            rows.push_back(rowOf(*apps[i], list));
        } else if (apps[i]->kind == AppEnergy::Kind::self && !pinned) {
            pinned = apps[i];
        } else {
            if (!rest) { // as measured as can be, until a part folded in is less so
                rest = AppEnergy{};
                rest->kind = AppEnergy::Kind::rest;
                rest->method = AttributionMethod::measured;
            }
            fold(*rest, *apps[i]);
        }
    }
    std::vector<const AppEnergy *> others;
    for (const AppEnergy &app : list.apps) {
        if (app.kind == AppEnergy::Kind::rest) {
            if (!rest)
                rest = app;
            else
                fold(*rest, app);
        } else if (app.kind == AppEnergy::Kind::others) {
            others.push_back(&app);
        }
    }
    if (rest)
        rows.push_back(rowOf(*rest, list));
    for (const AppEnergy *app : others)
        rows.push_back(rowOf(*app, list));
    if (pinned) {
        rows.push_back(rowOf(*pinned, list));
        rows.back().pinned = true;
    }
    return rows;
}

std::vector<AppRow> topAppRows(const AppEnergyList &list, std::size_t count)
{
    std::vector<AppRow> rows;
    for (const AppEnergy *app : ranked(list, AppSort::energy, true)) {
        if (rows.size() == count)
            break;
        rows.push_back(rowOf(*app, list));
    }
    return rows;
}

QString shareText(std::optional<double> fraction)
{
    if (!finite(fraction) || *fraction < 0)
        return absentText();
    const double percent = *fraction * 100;
    if (percent == 0)
        return QStringLiteral("0%");
    if (percent < 0.05)
        return QStringLiteral("<0.1%");
    return QString::asprintf(percent < 9.95 ? "%.1f%%" : "%.0f%%", percent);
}

QString cpuTimeText(double seconds)
{
    if (!std::isfinite(seconds) || seconds < 0)
        return absentText();
    if (seconds < 59.5)
        return localizedCount("apps.seconds", std::llround(seconds));
    return sessionDurationText(std::llround(seconds));
}

QString attributionCaption(AttributionMethod method)
{
    switch (method) {
    case AttributionMethod::measured:
        return localizedText("apps.method_measured");
    case AttributionMethod::chipShare:
        return localizedText("apps.method_chip_share");
    case AttributionMethod::systemShare:
        return localizedText("apps.method_system_share");
    case AttributionMethod::cpuTime:
        break;
    }
    return localizedText("apps.method_cpu_time");
}

QString spokenAppRow(const AppRow &row, bool withMeanPower, bool energy)
{
    QString sentence = row.note.isEmpty() ? row.name : localizedFormatText("accessibility.reading", {row.name, row.note});
    sentence = spokenReading(sentence, row.share);
    sentence = spokenReading(sentence, row.amount);
    if (energy && withMeanPower)
        sentence = spokenReading(sentence, row.meanPower);
    if (energy)
        sentence = localizedFormatText("accessibility.reading", {sentence, localizedText(row.estimated ? "apps.estimated" : "apps.measured")});
    return sentence;
}

AppListState appListState(AppPeriod period, bool historyEnabled, const AppEnergyList &list)
{
    if (std::any_of(list.apps.begin(), list.apps.end(), hasUsedAnything))
        return AppListState::shown;
    return period != AppPeriod::session && !historyEnabled ? AppListState::historyOff : AppListState::empty;
}

} // namespace ferrow
