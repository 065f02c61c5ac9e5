#pragma once

#include "sources/platform_interfaces.h"

#include <atomic>
#include <chrono>

namespace ferrow {

// The simulated machine's clock: either the real one, or a manual one that tests move forward
// (accelerated time, no waiting). Uptime is what the simulation integrates over.
class SimulationClock final : public Clock {
public:
    static SimulationClock realTime() { return SimulationClock(true); }
    static SimulationClock manual() { return SimulationClock(false); }

    SimulationClock(const SimulationClock &other)
        : m_realTime(other.m_realTime)
        , m_startedAt(other.m_startedAt)
        , m_manualUptime(other.m_manualUptime.load())
        , m_manualWallOffset(other.m_manualWallOffset.load())
    {
    }

    bool isRealTime() const { return m_realTime; }

    // Manual clocks only: moves both uptime and wall time forward.
    void advance(std::chrono::nanoseconds step)
    {
        m_manualUptime += step.count();
        m_manualWallOffset += step.count();
    }
    // Manual clocks only: moves the wall clock alone (either way), as a user setting the time would.
    void moveWallClock(std::chrono::nanoseconds step) { m_manualWallOffset += step.count(); }

    WallTime now() const override
    {
        if (m_realTime)
            return std::chrono::system_clock::now();
        return kManualEpoch + std::chrono::duration_cast<WallTime::duration>(std::chrono::nanoseconds(m_manualWallOffset.load()));
    }

    double uptimeSeconds() const override
    {
        if (m_realTime)
            return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_startedAt).count();
        return static_cast<double>(m_manualUptime.load()) / 1e9;
    }

private:
    // A fixed start for manual clocks, so accelerated runs are repeatable: 2026-01-01 00:00 UTC.
    static constexpr WallTime kManualEpoch = WallTime(std::chrono::seconds(1'767'225'600));

    explicit SimulationClock(bool realTime) : m_realTime(realTime) {}

    bool m_realTime;
    std::chrono::steady_clock::time_point m_startedAt = std::chrono::steady_clock::now();
    std::atomic<std::int64_t> m_manualUptime = 0;
    std::atomic<std::int64_t> m_manualWallOffset = 0;
};

} // namespace ferrow
