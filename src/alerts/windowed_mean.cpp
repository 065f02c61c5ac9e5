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
    m_sum += value;
    // Adding and taking away leaves rounding behind; start the sum afresh once per ring.
    if (++m_addsSinceExactSum == kSlots) {
        m_addsSinceExactSum = 0;
        m_sum = 0;
        for (std::size_t i = 0; i < m_count; ++i)
            m_sum += m_slots[(m_oldest + i) % kSlots].value;
    }
}

void WindowedMean::dropOldest()
{
    m_sum -= m_slots[m_oldest].value;
    m_oldest = (m_oldest + 1) % kSlots;
    if (--m_count == 0)
        m_sum = 0;
}

void WindowedMean::clear()
{
    m_oldest = m_count = m_addsSinceExactSum = 0;
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
