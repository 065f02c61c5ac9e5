#pragma once

#include "apps/app_energy.h"

#include <QString>

#include <array>
#include <vector>

namespace ferrow {

// What the views show of the energy per application, decided from a list; the widgets only lay it out.

inline constexpr std::array<AppPeriod, 4> kAppPeriods = {AppPeriod::session, AppPeriod::today, AppPeriod::sevenDays, AppPeriod::thirtyDays};
const char *appPeriodKey(AppPeriod period);

enum class AppSort { energy, meanPower };

// The applications the details window ranks before the rest are folded into "Other applications".
inline constexpr std::size_t kRankedApps = 12;

// One line of a list as shown.
struct AppRow {
    AppEnergy::Kind kind = AppEnergy::Kind::application;
    QString group; // for the icon: its monogram's colour
    QString icon;
    QString name;      // the application's own, or ours for this program and the two remainders
    QString note;      // on this program's line when its figures cover less than the list's
    QString amount;    // the energy, or the CPU time where the list has no energy
    QString meanPower; // empty where the list has no energy
    QString share;     // of the energy, or of the CPU time
    double shareFraction = 0;
    bool estimated = false; // an energy shared out rather than measured for it
    bool pinned = false;    // this program, kept at the foot although it does not rank

    bool operator==(const AppRow &) const = default;
};

// Whether a list gives energies, or CPU time alone.
bool listsEnergy(const AppEnergyList &list);

// The details window's lines: the first kRankedApps applications by sort (this program wherever it
// ranks), the others folded into the rest, then "Other applications" and "System and other users",
// then this program pinned if it did not rank. Where the list has no energy, by CPU time whatever sort.
std::vector<AppRow> appRows(const AppEnergyList &list, AppSort sort, std::size_t ranked = kRankedApps);
// The popover's: the count applications (this program among them) that used the most.
std::vector<AppRow> topAppRows(const AppEnergyList &list, std::size_t count = 3);

// "23%", "4.2%", "<0.1%"; the dash where there is no share.
QString shareText(std::optional<double> fraction);
// CPU time in seconds under a minute, else as a session's length.
QString cpuTimeText(double seconds);

// How the list's figures were come by, in a sentence.
QString attributionCaption(AttributionMethod method);

// A line as a screen reader reads it: "Browser, 23 percent, 4.1 watt-hours, estimated".
QString spokenAppRow(const AppRow &row, bool withMeanPower, bool listsEnergy);

enum class AppListState { shown, empty, historyOff };
// Nothing to show: for the days before the session, because no history is kept.
AppListState appListState(AppPeriod period, bool historyEnabled, const AppEnergyList &list);

} // namespace ferrow
