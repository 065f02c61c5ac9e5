#pragma once

#include "alerts/alert.h"
#include "alerts/alert_gate.h"
#include "alerts/alert_settings.h"
#include "alerts/windowed_mean.h"
#include "model/power_snapshot.h"

#include <array>
#include <vector>

namespace ferrow {

// Every alert, the most urgent first.
inline constexpr std::array kAlertKinds{AlertKind::batteryHot, AlertKind::cellsOutOfBalance, AlertKind::chargerCannotKeepUp,
                                        AlertKind::chargingSlowly, AlertKind::chargeLevelReached};

// Decides, reading by reading, which alerts to give. Fed once a second with the machine's uptime
// (which never runs backwards and stands still in sleep); the wall clock plays no part.
class AlertRules {
public:
    static constexpr double kQuietS = 60; // after start and after wake, while readings settle

    explicit AlertRules(const AlertSettings &settings = {});

    void setSettings(const AlertSettings &settings) { m_settings = settings; }
    const AlertSettings &settings() const { return m_settings; }

    // The alerts that fire with this reading, most urgent first. A reading whose uptime is not
    // finite or runs backwards is ignored.
    std::vector<Alert> add(const PowerSnapshot &reading, double uptimeS);
    void noteWake(double uptimeS);

    // The alerts switched on whose condition has held its time with the last reading, most
    // urgent first; given or held back alike.
    std::vector<AlertKind> activeKinds() const;

private:
    struct Watch {
        HoldTimer hold;
        AlertGate gate;
        bool active = false;
    };

    Watch &watch(AlertKind kind) { return m_watches[static_cast<std::size_t>(kind)]; }
    void followCharge(const PowerSnapshot &reading);

    AlertSettings m_settings;
    std::array<Watch, kAlertKinds.size()> m_watches;
    WindowedMean m_systemPowerW;
    std::optional<double> m_latestS;
    double m_quietUntilS = 0;
    bool m_belowLevelThisCharge = false;
    bool m_levelReachedThisCharge = false;
};

} // namespace ferrow
