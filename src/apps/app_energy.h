#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace ferrow {

// How a stretch's energy was shared out among applications, from the best to the least measured.
enum class AttributionMethod {
    measured,    // the kernel's energy per process; what remains of the chip's energy is the system's
    chipShare,   // the chip's measured energy shared by each process's CPU time
    systemShare, // the processor's share of the machine's measured power, shared by CPU time
    cpuTime,     // no energy to share: CPU time alone
};

// The method of two stretches together: the less exact of those that found energy at all, so that
// a stretch with nothing to share (the first readings, a sensor that paused) leaves the label alone.
AttributionMethod combinedMethod(AttributionMethod a, AttributionMethod b);

// "measured", "chip_share", "system_share", "cpu_time": the exports' names.
const char *attributionMethodName(AttributionMethod method);
std::optional<AttributionMethod> attributionMethodFromName(QStringView name);

// The stretches a list covers: the current session (since plugging in or unplugging), the local
// day so far, and the last 7 and 30 days.
enum class AppPeriod { session, today, sevenDays, thirtyDays };
// "session", "today", "7d", "30d": the command line's and the exports' names.
const char *appPeriodName(AppPeriod period);
std::optional<AppPeriod> appPeriodFromName(QStringView name);

// One line of an applications list.
struct AppEnergy {
    enum class Kind {
        application,
        self,   // this program: always listed
        others, // "System and other users": what the chip used beyond the user's processes
        rest,   // the applications below the stored top ones
    };
    Kind kind = Kind::application;
    QString group; // as in ProcessSample; empty for others and rest
    QString name;  // empty for others and rest: the views name them
    QString icon;  // as in ProcessSample
    std::optional<double> energyJ; // absent where only CPU time is known
    double cpuTimeS = 0;
    double coveredS = 0; // the time the figures cover: the mean power's denominator
    AttributionMethod method = AttributionMethod::cpuTime;

    bool isMeasured() const { return method == AttributionMethod::measured && kind != Kind::others; }
    std::optional<double> meanPowerW() const
    {
        return energyJ && coveredS > 0 ? std::optional(*energyJ / coveredS) : std::nullopt;
    }
};

// "application", "self", "others", "rest": the exports' names.
const char *appKindName(AppEnergy::Kind kind);

// A period's list, most energy first (CPU time where there is no energy); self is in it wherever
// it ranks.
struct AppEnergyList {
    std::vector<AppEnergy> apps;
    double coveredS = 0;
    // The least measured method of any stretch in the period: a list is as exact as its weakest part.
    AttributionMethod method = AttributionMethod::cpuTime;

    std::optional<double> totalJ() const;
    // The app's share of the period's energy in 0…1, or of its CPU time where nothing in the
    // period measured energy.
    std::optional<double> share(const AppEnergy &app) const;
};

// Most energy first; CPU time where neither has energy, then the name, so the order is stable.
void sortMostFirst(std::vector<AppEnergy> &apps);

} // namespace ferrow
