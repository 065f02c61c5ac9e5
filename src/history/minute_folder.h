#pragma once

#include "history/history_records.h"

#include <optional>

namespace ferrow {

// Folds the once-a-second readings into one record per minute. Energy is integrated over the
// monotonic clock; the minutes are stamped by wall time that never runs backwards, so a clock set
// back continues where it was rather than filling the same minutes twice.
class MinuteFolder {
public:
    // The reading and the monotonic clock when it arrived. Returns the minute it completed, if any.
    std::optional<MinuteRecord> add(const PowerSnapshot &reading, double monotonicS);
    // The minute so far, closed early (sleep, quit); absent when it covers no time.
    std::optional<MinuteRecord> flush();

    // The time of the last reading on the never-backwards wall clock, and the step before it.
    UnixSeconds lastTime() const { return static_cast<UnixSeconds>(m_lastTime); }
    double lastStepS() const { return m_lastStepS; }

private:
    std::optional<MinuteRecord> finish();

    std::optional<double> m_lastMonotonicS;
    double m_lastTime = 0;
    double m_lastStepS = 0;
    std::optional<MinuteRecord> m_current;
    double m_powerWs = 0; // the headline power's integral over the minute, for its mean
    double m_powerS = 0;
    std::optional<QString> m_serial;
    std::optional<QString> m_batteryId;
};

} // namespace ferrow
