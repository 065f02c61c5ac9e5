#include "views/power_history_chart_model.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ferrow {
namespace {

// Of the candidate steps (ascending), the one by which `span` divides most nearly into
// `desiredCount` parts; on a tie the smaller step. Chosen from the span alone, so that the step
// does not flicker as a window slides across the marks.
template <typename Step, typename Span>
Step stepNearestCount(const std::vector<Step> &candidates, Span span, int desiredCount)
{
    Step best = candidates.front();
    double bestError = std::numeric_limits<double>::infinity();
    for (const Step step : candidates) {
        const double error = std::abs(static_cast<double>(span / step) - desiredCount);
        if (error < bestError) {
            best = step;
            bestError = error;
        }
    }
    return best;
}

} // namespace

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

ValueTicks valueAxisTicks(double lowerW, double upperW, int desiredCount)
{
    ValueTicks ticks;
    if (!std::isfinite(lowerW) || !std::isfinite(upperW) || !(upperW > lowerW) || desiredCount < 1)
        return ticks;
    const double span = upperW - lowerW;
    // Round steps around span / desiredCount, from a decade below to a decade above.
    const int decade = static_cast<int>(std::floor(std::log10(span / desiredCount)));
    std::vector<double> candidates;
    for (int exponent = decade - 1; exponent <= decade + 1; ++exponent) {
        const double power = std::pow(10.0, exponent);
        for (const double mantissa : {1.0, 2.0, 2.5, 5.0}) {
            const double step = mantissa * power;
            if (step >= 1.0 && step == std::round(step)) // whole watts: "%.0f W" never rounds a mark
                candidates.push_back(step);
        }
    }
    if (candidates.empty())
        candidates.push_back(1.0);
    ticks.stepW = stepNearestCount(candidates, span, desiredCount);
    // Multiples of the step, computed from their index so that no error accumulates.
    const double first = std::ceil(lowerW / ticks.stepW);
    const double last = std::floor(upperW / ticks.stepW);
    for (double k = first; k <= last; ++k)
        ticks.valuesW.push_back(k * ticks.stepW + 0.0); // + 0.0 turns a -0 into 0
    return ticks;
}

TimeTicks timeAxisTicks(const ChartWindow &window, std::chrono::seconds utcOffset, int desiredCount)
{
    using namespace std::chrono;
    TimeTicks ticks;
    if (!(window.end > window.start) || desiredCount < 1)
        return ticks;
    static const std::vector<minutes> candidates{minutes(1), minutes(2), minutes(5), minutes(10), minutes(15),
                                                 minutes(20), minutes(30), minutes(60)};
    const duration<double, std::ratio<60>> span = window.end - window.start;
    ticks.step = stepNearestCount(candidates, span, desiredCount);
    // The first local whole multiple of the step at or after the start, in UTC.
    const WallTime::duration step = ticks.step;
    const WallTime::duration localStart = window.start.time_since_epoch() + utcOffset;
    WallTime::duration localTick = localStart - localStart % step;
    if (localTick < localStart)
        localTick += step;
    for (WallTime tick(localTick - utcOffset); tick <= window.end; tick += step)
        ticks.times.push_back(tick);
    return ticks;
}

} // namespace ferrow
