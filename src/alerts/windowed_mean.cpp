#include "alerts/windowed_mean.h"

#include <cmath>

namespace ferrow {

void WindowedMean::add(double uptimeS, double value)
{
    if (!m_since)
        m_since = uptimeS;
    m_latestS = uptimeS;
    while (m_count > 0 && m_slots[m_oldest].uptimeS <= uptimeS - m_windowS)
        dropOldest();
    if (!std::isfinite(value))
        return;
    if (m_count == kSlots)
        dropOldest();
    m_slots[(m_oldest + m_count) % kSlots] = {uptimeS, value};
    ++m_count;
    m_sum += value; // the rounding that adding and taking away leave behind stays far below a milliwatt
}

void WindowedMean::dropOldest()
{
    m_sum -= m_slots[m_oldest].value;
    m_oldest = (m_oldest + 1) % kSlots;
    --m_count;
}

void WindowedMean::clear()
{
    m_oldest = m_count = 0;
    m_sum = 0;
    m_since.reset();
}

std::optional<double> WindowedMean::mean() const
{
    if (!m_since || m_latestS - *m_since < m_windowS || m_count == 0)
        return std::nullopt;
    return m_sum / static_cast<double>(m_count);
}

} // namespace ferrow
