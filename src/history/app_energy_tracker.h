#pragma once

#include "apps/app_energy_ledger.h"
#include "apps/energy_attribution.h"
#include "history/energy_totals.h"
#include "history/history_records.h"

#include <optional>

namespace ferrow {

// Turns process frames, and the readings between them, into the applications' energy: the current
// session's list, this program's own use since it started, and one record a minute for the store.
// Pure: the caller owns the clocks, the threads and the disk.
class AppEnergyTracker {
public:
    // Applications a stored minute keeps by name; the rest share one line.
    static constexpr std::size_t kStoredApplications = 5;

    // A reading held for stepS seconds: the energy to share out at the next frame.
    void addReading(const PowerSnapshot &reading, double stepS);
    // A frame taken at time (the minutes' never-backwards wall clock) in the session that started
    // at sessionStart. Returns the minute it completed, if any.
    std::optional<AppMinuteRecord> addFrame(const ProcessFrame &frame, UnixSeconds time, std::optional<UnixSeconds> sessionStart);
    // The minute so far, closed early (sleep, quit).
    std::optional<AppMinuteRecord> flush();

    // The current session's applications, with this program's line since it started.
    AppEnergyList session() const;
    // This program since it started; its time is the time it has been sampled.
    const AppEnergy &self() const { return m_self; }

private:
    MeasuredEnergy takePool();

    EnergyTotals m_pool;
    EnergyAttribution m_attribution;
    AppEnergyLedger m_session;
    std::optional<UnixSeconds> m_sessionStart;
    AppEnergyLedger m_minute;
    UnixSeconds m_minuteStart = 0;
    AppEnergy m_self{AppEnergy::Kind::self, {}, {}, {}, std::nullopt, 0.0, 0.0, AttributionMethod::cpuTime};
};

// Where a stored period starts at now: the session's start, local midnight, 7 or 30 days back.
UnixSeconds appPeriodStart(AppPeriod period, UnixSeconds now, UnixSeconds sessionStart);

// The list with this program's line replaced by its use since it started: the one line that
// always shows, whatever the period.
AppEnergyList withSelfSinceStart(AppEnergyList list, const AppEnergy &self);

} // namespace ferrow
