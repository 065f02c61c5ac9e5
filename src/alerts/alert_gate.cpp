#include "alerts/alert_gate.h"

namespace ferrow {

bool HoldTimer::update(bool condition, double uptimeS, double holdS)
{
    if (!condition) {
        m_since.reset();
        return false;
    }
    if (!m_since)
        m_since = uptimeS;
    return uptimeS - *m_since >= holdS;
}

bool AlertGate::update(bool condition, bool held, double uptimeS, bool quiet)
{
    if (!condition) {
        if (!m_clearedSince)
            m_clearedSince = uptimeS;
        return false;
    }
    // Cleared from its first clear reading up to this one.
    if (m_clearedSince && uptimeS - *m_clearedSince >= kClearedS)
        m_armed = true;
    m_clearedSince.reset();
    if (!held || !m_armed || quiet || (m_firedAt && uptimeS - *m_firedAt < kRepeatS))
        return false;
    m_armed = false;
    m_firedAt = uptimeS;
    return true;
}

} // namespace ferrow
