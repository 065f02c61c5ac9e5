#pragma once

#include "model/power_history.h"

#include <chrono>
#include <optional>
#include <vector>

namespace ferrow {

// What the history chart shows for a window of the last few minutes.
struct ChartWindow {
    WallTime start;
    WallTime end;
};

// Ends at the history's last reading (or now when there is none), so an old history still shows
// its own last minutes rather than an empty stretch up to the present.
ChartWindow chartWindow(const PowerHistory &history, int minutes, WallTime now);

// Index of the first sample dated at or after the window's start; samples are in date order.
std::size_t firstVisibleSample(const PowerHistory &history, WallTime windowStart);

struct ChartStatistics {
    std::optional<double> averageW;
    std::optional<double> peakW;
    double lowerW = 0; // the vertical range, with room above the peak and below a negative dip
    double upperW = 10;
};
ChartStatistics chartStatistics(const PowerHistory &history, std::size_t firstVisible);

inline constexpr int kChartWindowChoices[] = {5, 15, 60};

// About this many marks on each axis, as the Part's "desired count 4".
inline constexpr int kChartDesiredTickCount = 4;

// The Part's point "symbol size 5" is an area in square points; the dot with that area is about
// 2.5 points across (2 * sqrt(5 / pi)).
inline constexpr double kChartPointDiameter = 2.523;

// Marks on the vertical axis: round values (1, 2, 2.5 or 5 times a power of ten watts, never a
// step under 1 W, so that every "%.0f W" label is exact) spaced so that the range spans about
// `desiredCount` steps; only the values inside the range are marked, the range itself is not
// widened. Ascending; zero is +0, never -0.
struct ValueTicks {
    double stepW = 0;
    std::vector<double> valuesW;
};
ValueTicks valueAxisTicks(double lowerW, double upperW, int desiredCount = kChartDesiredTickCount);

// Marks on the time axis: whole minutes of local time (1, 2, 5, 10, 15, 20, 30 or 60 minutes
// apart, about `desiredCount` steps across the window) that fall inside the window, oldest first.
// `utcOffset` is local time's offset from UTC, so that a 15- or 30-minute step lands on the
// quarter and half hours of the clock the user reads.
struct TimeTicks {
    std::chrono::minutes step{1};
    std::vector<WallTime> times;
};
TimeTicks timeAxisTicks(const ChartWindow &window, std::chrono::seconds utcOffset,
                        int desiredCount = kChartDesiredTickCount);

} // namespace ferrow
