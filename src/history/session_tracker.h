#pragma once

#include "history/history_records.h"

#include <optional>

namespace ferrow {

// A stretch longer than this without readings ends the session, as a plug or unplug does.
inline constexpr double kSessionGapS = 600.0;

// Follows the current stretch on battery or on external power, from the same readings and clock
// as the minutes. It lives in memory: a restart or a gap starts a new one.
class SessionTracker {
public:
    // One reading: the step since the one before on the monotonic clock, and its never-backwards
    // wall time. Returns the session it ended, if any.
    std::optional<SessionRecord> add(const PowerSnapshot &reading, double stepS, UnixSeconds time);

    const std::optional<SessionRecord> &current() const { return m_current; }

private:
    std::optional<SessionRecord> m_current;
};

} // namespace ferrow
