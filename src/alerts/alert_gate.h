#pragma once

#include <optional>

namespace ferrow {

// Times are the machine's uptime in seconds: it only moves forward, whatever the wall clock does.

// How long a condition has held without a break.
class HoldTimer {
public:
    // True when the condition has held for holdS up to this reading.
    bool update(bool condition, double uptimeS, double holdS);
    // The condition must be seen holding anew (after a wake).
    void restart() { m_since.reset(); }

private:
    std::optional<double> m_since;
};

// When one alert may speak: once when its condition has held its time, then again only after the
// condition has cleared for a while, never within the repeat interval, never while quiet.
class AlertGate {
public:
    static constexpr double kClearedS = 300;
    static constexpr double kRepeatS = 1800;

    // Whether the alert fires with this reading.
    bool update(bool condition, bool held, double uptimeS, bool quiet);

private:
    std::optional<double> m_clearedSince;
    bool m_armed = true;
    std::optional<double> m_firedAt;
};

} // namespace ferrow
