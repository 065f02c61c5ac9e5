#include "alerts/alert_rules.h"

#include "alerts/alert_conditions.h"
#include "alerts/alert_text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ferrow {

AlertRules::AlertRules(const AlertSettings &settings)
    : m_settings(settings)
    , m_systemPowerW(kMeanDrawWindowS)
{
}

void AlertRules::followCharge(const PowerSnapshot &reading)
{
    // A charge lasts from plugging in to unplugging: a battery topped up now and then at its
    // limit is still the same charge. Being below the level first is what makes it "reached".
    if (!reading.hasBattery || !reading.isExternalConnected) {
        m_belowLevelThisCharge = m_levelReachedThisCharge = false;
        return;
    }
    if (reading.batteryPercent < m_settings.chargeLevelPercent)
        m_belowLevelThisCharge = true;
    else if (m_belowLevelThisCharge)
        m_levelReachedThisCharge = true;
}

std::vector<Alert> AlertRules::add(const PowerSnapshot &reading, double uptimeS)
{
    if (!std::isfinite(uptimeS) || (m_latestS && uptimeS < *m_latestS))
        return {};
    if (!m_latestS)
        m_quietUntilS = std::max(m_quietUntilS, uptimeS + kQuietS);
    m_latestS = uptimeS;
    m_systemPowerW.add(uptimeS, reading.isDataAvailable ? reading.systemPowerW : std::numeric_limits<double>::quiet_NaN());
    followCharge(reading);
    const std::optional<double> meanSystemPowerW = m_systemPowerW.mean();

    const auto on = [&](AlertKind kind, bool condition) { return condition && m_settings.isOn(kind); };
    const bool fallsShort = on(AlertKind::chargerCannotKeepUp, chargerFallsShort(reading));
    const bool slow = on(AlertKind::chargingSlowly, chargesSlowly(reading, meanSystemPowerW));
    const bool hotCharging = on(AlertKind::batteryHot, hotWhileCharging(reading, m_settings));
    const bool hot = on(AlertKind::batteryHot, hotAtAnyTime(reading, m_settings));
    const bool apart = on(AlertKind::cellsOutOfBalance, cellsApart(reading));
    const bool reached = on(AlertKind::chargeLevelReached, m_levelReachedThisCharge);

    const auto hold = [&](AlertKind kind, bool condition, double holdS) { return watch(kind).hold.update(condition, uptimeS, holdS); };
    struct Check {
        bool condition = false;
        bool held = false;
    };
    std::array<Check, kAlertKinds.size()> checks;
    const auto check = [&](AlertKind kind) -> Check & { return checks[static_cast<std::size_t>(kind)]; };
    check(AlertKind::chargerCannotKeepUp) = {fallsShort, hold(AlertKind::chargerCannotKeepUp, fallsShort, kChargerHoldS)};
    check(AlertKind::chargingSlowly) = {slow, hold(AlertKind::chargingSlowly, slow, kSlowChargeHoldS)};
    check(AlertKind::batteryHot) = {hotCharging || hot, hold(AlertKind::batteryHot, hotCharging, kHotWhileChargingHoldS) || hot};
    check(AlertKind::cellsOutOfBalance) = {apart, hold(AlertKind::cellsOutOfBalance, apart, kCellsHoldS)};
    check(AlertKind::chargeLevelReached) = {reached, reached};

    const bool quiet = uptimeS < m_quietUntilS;
    std::vector<Alert> fired;
    for (const AlertKind kind : kAlertKinds) {
        Watch &w = watch(kind);
        w.active = check(kind).held;
        if (w.gate.update(check(kind).condition, w.active, uptimeS, quiet))
            fired.push_back(describeAlert(kind, reading, m_settings, meanSystemPowerW));
    }
    return fired;
}

void AlertRules::noteWake(double uptimeS)
{
    if (!std::isfinite(uptimeS))
        return;
    m_quietUntilS = std::max(uptimeS, m_latestS.value_or(uptimeS)) + kQuietS;
    // Uptime stands still in sleep, so what came before would pass for the last few minutes.
    for (Watch &w : m_watches)
        w.hold.restart();
    m_systemPowerW.clear();
}

std::vector<AlertKind> AlertRules::activeKinds() const
{
    std::vector<AlertKind> active;
    for (const AlertKind kind : kAlertKinds) {
        if (m_watches[static_cast<std::size_t>(kind)].active)
            active.push_back(kind);
    }
    return active;
}

} // namespace ferrow
