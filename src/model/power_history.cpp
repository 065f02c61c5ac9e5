#include "model/power_history.h"

#include <cmath>

namespace ferrow {

std::optional<double> PowerHistory::usablePowerW(const PowerSnapshot &snapshot)
{
    if (!snapshot.isDataAvailable)
        return std::nullopt;
    const std::optional<double> powerW = snapshot.displayPowerW();
    if (!powerW || !std::isfinite(*powerW) || std::fabs(*powerW) > kPlausibleMagnitudeW)
        return std::nullopt;
    return powerW;
}

void PowerHistory::append(const PowerSnapshot &snapshot)
{
    const WallTime date = snapshot.updatedAt;
    if (m_updatedAt && date <= *m_updatedAt)
        return;
    m_updatedAt = date;

    const WallTime oldestKept = date - kRetention;
    while (!m_samples.empty() && m_samples.front().date < oldestKept)
        m_samples.pop_front();
    while (m_samples.size() >= kMaximumSampleCount)
        m_samples.pop_front();

    const std::optional<double> powerW = usablePowerW(snapshot);
    if (!powerW) {
        m_previousValidDate.reset();
        ++m_segment;
        return;
    }
    if (m_previousValidDate && date - *m_previousValidDate > kGapThreshold)
        ++m_segment;
    m_samples.push_back(Sample{m_nextID, date, *powerW, m_segment});
    ++m_nextID;
    m_previousValidDate = date;
}

} // namespace ferrow
