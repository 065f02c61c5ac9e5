#include "history/session_tracker.h"

#include "history/energy_totals.h"
#include "monitor/battery_history_store.h"

#include <algorithm>
#include <cmath>

namespace ferrow {
namespace {

// What a session counts: the battery's energy out on battery; on the adapter, what the adapter
// delivered, or what went into the battery where the adapter is not measured.
double sessionPowerW(const PowerSnapshot &r)
{
    const double flowW = std::isfinite(r.batteryFlowW) ? r.shownBatteryFlowW() : 0.0;
    if (!r.isExternalConnected)
        return std::max(-flowW, 0.0);
    return r.isDataAvailable && std::isfinite(r.dcPowerW) ? r.dcPowerW : std::max(flowW, 0.0);
}

} // namespace

std::optional<SessionRecord> SessionTracker::add(const PowerSnapshot &r, double stepS, UnixSeconds time)
{
    if (!r.hasBattery) {
        std::optional<SessionRecord> ended = std::move(m_current);
        m_current.reset();
        return ended;
    }
    std::optional<SessionRecord> ended;
    const bool gap = m_current && (stepS > kSessionGapS || time - m_current->end > kSessionGapS);
    if (!m_current || m_current->externalPower != r.isExternalConnected || gap) {
        ended = std::move(m_current);
        m_current = SessionRecord{};
        m_current->start = time;
        m_current->externalPower = r.isExternalConnected;
        m_current->startPercent = r.batteryPercent;
        m_current->batteryId = BatteryHistoryStore::batteryIdentifier(r.batterySerial);
    }
    SessionRecord &session = *m_current;
    if (isCoveredStep(stepS) && !gap) {
        const double powerW = sessionPowerW(r);
        session.coveredS += stepS;
        session.energyWh += powerW * stepS / 3600.0;
        session.peakPowerW = std::max(session.peakPowerW.value_or(powerW), powerW);
    }
    session.end = time;
    session.endPercent = r.batteryPercent;
    return ended;
}

} // namespace ferrow
