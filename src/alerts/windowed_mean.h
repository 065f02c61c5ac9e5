#pragma once

#include <array>
#include <cstddef>
#include <optional>

namespace ferrow {

// The mean of a figure over the last window of uptime, in fixed memory: a ring of the readings
// inside the window (at most one a second is expected; beyond kSlots the oldest go first) and
// their running sum.
class WindowedMean {
public:
    static constexpr std::size_t kSlots = 600;

    explicit WindowedMean(double windowS) : m_windowS(windowS) {}

    // Readings come in uptime order; a value that is not finite is left out.
    void add(double uptimeS, double value);
    void clear();
    // Absent until the readings reach back over the whole window.
    std::optional<double> mean() const;

private:
    struct Slot {
        double uptimeS = 0;
        double value = 0;
    };

    void dropOldest();

    double m_windowS;
    std::array<Slot, kSlots> m_slots{};
    std::size_t m_oldest = 0;
    std::size_t m_count = 0;
    double m_sum = 0;
    std::optional<double> m_since; // the first reading since the window was cleared
    double m_latestS = 0;
};

} // namespace ferrow
