#include "views/power_history_chart_model.h"

#include <algorithm>

namespace ferrow {

ChartWindow chartWindow(const PowerHistory &history, int minutes, WallTime now)
{
    const WallTime end = history.updatedAt().value_or(now);
    return {end - std::chrono::minutes(minutes), end};
}

std::size_t firstVisibleSample(const PowerHistory &history, WallTime windowStart)
{
    const auto &samples = history.samples();
    const auto first = std::lower_bound(samples.begin(), samples.end(), windowStart,
                                        [](const PowerHistory::Sample &sample, WallTime start) { return sample.date < start; });
    return static_cast<std::size_t>(first - samples.begin());
}

ChartStatistics chartStatistics(const PowerHistory &history, std::size_t firstVisible)
{
    const auto &samples = history.samples();
    ChartStatistics statistics;
    if (firstVisible >= samples.size())
        return statistics;
    double sum = 0, lowest = samples[firstVisible].powerW, highest = lowest;
    for (std::size_t i = firstVisible; i < samples.size(); ++i) {
        const double powerW = samples[i].powerW;
        sum += powerW;
        lowest = std::min(lowest, powerW);
        highest = std::max(highest, powerW);
    }
    statistics.averageW = sum / static_cast<double>(samples.size() - firstVisible);
    statistics.peakW = highest;
    statistics.lowerW = std::min(0.0, 1.15 * lowest);
    statistics.upperW = std::max(10.0, 1.15 * highest);
    return statistics;
}

} // namespace ferrow
