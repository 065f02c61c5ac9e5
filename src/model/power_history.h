#pragma once

#include "model/power_snapshot.h"

#include <cstdint>
#include <deque>
#include <optional>

namespace ferrow {

// The last hour of the headline power figure, split into segments wherever a reading was
// unusable or readings were more than three seconds apart, so a chart never bridges a gap.
class PowerHistory {
public:
    struct Sample {
        std::int64_t id = 0;
        WallTime date;
        double powerW = 0;
        std::int64_t segment = 0;

        bool operator==(const Sample &) const = default;
    };

    static constexpr std::chrono::seconds kRetention{3600};
    static constexpr std::size_t kMaximumSampleCount = 3600;
    static constexpr std::chrono::duration<double> kGapThreshold{3.0};
    static constexpr double kPlausibleMagnitudeW = 5000.0;

    void append(const PowerSnapshot &snapshot);

    const std::deque<Sample> &samples() const { return m_samples; }
    std::optional<WallTime> updatedAt() const { return m_updatedAt; }
    std::int64_t nextID() const { return m_nextID; }
    std::int64_t segment() const { return m_segment; }
    std::optional<WallTime> previousValidDate() const { return m_previousValidDate; }

    // The power figure the history would store for this reading, or absent when it breaks the run.
    static std::optional<double> usablePowerW(const PowerSnapshot &snapshot);

private:
    std::deque<Sample> m_samples; // front-only trimming keeps appends amortised O(1)
    std::optional<WallTime> m_updatedAt;
    std::int64_t m_nextID = 0;
    std::int64_t m_segment = 0;
    std::optional<WallTime> m_previousValidDate;
};

} // namespace ferrow
