#pragma once

#include "model/power_history.h"

#include <optional>

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

} // namespace ferrow
