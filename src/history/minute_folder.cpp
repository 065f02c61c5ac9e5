#include "history/minute_folder.h"

#include "monitor/battery_history_store.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace ferrow {

std::optional<MinuteRecord> MinuteFolder::add(const PowerSnapshot &r, double monotonicS)
{
    const bool first = !m_lastMonotonicS;
    const double stepS = first ? 0.0 : monotonicS - *m_lastMonotonicS;
    m_lastMonotonicS = monotonicS;
    m_lastStepS = stepS;
    const double wall = std::chrono::duration<double>(r.updatedAt.time_since_epoch()).count();
    m_lastTime = first || wall >= m_lastTime ? wall : m_lastTime + std::clamp(stepS, 0.0, kLongestCoveredStepS);
    const auto minuteStart = static_cast<UnixSeconds>(std::floor(m_lastTime / 60.0)) * 60;

    std::optional<MinuteRecord> finished;
    if (m_current && m_current->start != minuteStart)
        finished = finish();
    if (!m_current) {
        m_current = MinuteRecord{};
        m_current->start = minuteStart;
    }
    MinuteRecord &minute = *m_current;
    if (isCoveredStep(stepS)) {
        minute.energy.add(r, stepS);
        if (const std::optional<double> powerW = r.displayPowerW(); powerW && std::isfinite(*powerW)) {
            minute.minPowerW = std::min(minute.minPowerW.value_or(*powerW), *powerW);
            minute.maxPowerW = std::max(minute.maxPowerW.value_or(*powerW), *powerW);
            m_powerWs += *powerW * stepS;
            m_powerS += stepS;
        }
    }
    minute.batteryPercent = r.hasBattery ? std::optional(r.batteryPercent) : std::nullopt;
    minute.batteryTemperatureC = r.batteryTemperatureC;
    minute.externalPower = r.isExternalConnected;
    minute.charging = r.isCharging;
    if (r.batterySerial != m_serial) {
        m_serial = r.batterySerial;
        m_batteryId = BatteryHistoryStore::batteryIdentifier(m_serial);
    }
    minute.batteryId = r.hasBattery ? m_batteryId : std::nullopt;
    return finished;
}

std::optional<MinuteRecord> MinuteFolder::flush()
{
    return m_current ? finish() : std::nullopt;
}

std::optional<MinuteRecord> MinuteFolder::finish()
{
    MinuteRecord minute = std::move(*m_current);
    m_current.reset();
    if (m_powerS > 0)
        minute.meanPowerW = m_powerWs / m_powerS;
    m_powerWs = 0;
    m_powerS = 0;
    if (minute.energy.coveredS <= 0)
        return std::nullopt;
    return minute;
}

} // namespace ferrow
