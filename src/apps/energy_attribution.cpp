#include "apps/energy_attribution.h"

#include <algorithm>

namespace ferrow {

namespace {

// The increase of a cumulative counter; a counter that ran backwards (a reset) gives nothing.
double increase(double now, double before)
{
    return now > before ? now - before : 0.0;
}

} // namespace

std::optional<AttributedInterval> EnergyAttribution::add(const ProcessFrame &frame, const MeasuredEnergy &measured)
{
    const std::optional<double> lastUptimeS = m_lastUptimeS;
    const std::optional<double> lastBusyS = std::exchange(m_lastBusyS, frame.cpuBusyS);
    const std::optional<double> lastTotalS = std::exchange(m_lastTotalS, frame.cpuTotalS);
    m_lastUptimeS = frame.uptimeS;
    QHash<Key, Counters> last = std::exchange(m_last, {});
    m_last.reserve(static_cast<qsizetype>(frame.processes.size()));

    const bool counts = lastUptimeS && frame.uptimeS > *lastUptimeS;
    std::vector<AttributedInterval::Group> groups;
    QHash<QString, std::size_t> groupIndex;
    bool anyEnergy = false;
    for (const ProcessSample &process : frame.processes) {
        const Key key{process.pid, process.startedS};
        if (m_last.contains(key))
            continue; // listed twice: counted once
        m_last.insert(key, Counters{process.cpuTimeS, process.energyJ});
        anyEnergy = anyEnergy || process.energyJ.has_value(); // the system measures, whoever used it
        if (!counts)
            continue;
        Counters before;
        if (const auto found = last.constFind(key); found != last.cend())
            before = *found;
        else if (process.startedS <= *lastUptimeS)
            continue; // there before but not read then: it starts counting now
        else if (process.energyJ)
            before.energyJ = 0.0; // started in this interval: all it used is new

        const double cpuS = increase(process.cpuTimeS, before.cpuTimeS);
        std::optional<double> energyJ;
        if (process.energyJ && before.energyJ)
            energyJ = increase(*process.energyJ, *before.energyJ);
        if (cpuS <= 0 && (!energyJ || *energyJ <= 0) && !process.isSelf)
            continue;

        std::size_t slot = groups.size();
        if (const auto found = groupIndex.constFind(process.group); found != groupIndex.cend()) {
            slot = *found;
        } else {
            groupIndex.insert(process.group, slot);
            groups.push_back({process.group, process.name, process.icon, std::nullopt, 0.0, false});
        }
        AttributedInterval::Group &use = groups[slot];
        use.cpuTimeS += cpuS;
        use.isSelf = use.isSelf || process.isSelf;
        if (energyJ) {
            use.energyJ = use.energyJ.value_or(0.0) + *energyJ;
        }
    }
    if (!counts)
        return std::nullopt;

    AttributedInterval interval;
    interval.durationS = frame.uptimeS - *lastUptimeS;
    std::optional<double> busyS;
    std::optional<double> totalS;
    if (frame.cpuBusyS && lastBusyS && frame.cpuTotalS && lastTotalS) {
        busyS = increase(*frame.cpuBusyS, *lastBusyS);
        totalS = increase(*frame.cpuTotalS, *lastTotalS);
    }
    double processCpuS = 0;
    for (const AttributedInterval::Group &use : groups)
        processCpuS += use.cpuTimeS;
    // The processes' CPU time, or the processors' busy time where that is more (interrupts and
    // kernel threads are busy time of no process): the share of the rest is the system's.
    const double shareBaseS = std::max(processCpuS, busyS.value_or(0.0));

    std::optional<double> poolJ;
    if (anyEnergy) {
        interval.method = AttributionMethod::measured;
    } else if (measured.chipJ) {
        interval.method = AttributionMethod::chipShare;
        poolJ = *measured.chipJ;
    } else if (measured.systemJ && busyS && totalS && *totalS > 0) {
        interval.method = AttributionMethod::systemShare;
        poolJ = *measured.systemJ * std::min(1.0, *busyS / *totalS);
    }
    double attributedJ = 0;
    for (AttributedInterval::Group &use : groups) {
        if (interval.method == AttributionMethod::measured)
            use.energyJ = use.energyJ.value_or(0.0);
        else if (poolJ)
            use.energyJ = shareBaseS > 0 ? *poolJ * use.cpuTimeS / shareBaseS : 0.0;
        else
            use.energyJ.reset();
        attributedJ += use.energyJ.value_or(0.0);
    }
    interval.groups = std::move(groups);
    const std::optional<double> wholeJ = interval.method == AttributionMethod::systemShare ? measured.systemJ : measured.chipJ;
    if (interval.method != AttributionMethod::cpuTime && wholeJ)
        interval.othersJ = std::max(0.0, *wholeJ - attributedJ);
    return interval;
}

} // namespace ferrow
