#pragma once

#include "apps/app_energy.h"
#include "apps/process_sample.h"

#include <QHash>

#include <optional>
#include <utility>
#include <vector>

namespace ferrow {

// The energy the machine measured between two process frames: what is shared out.
struct MeasuredEnergy {
    std::optional<double> chipJ;   // the processor package: CPU, GPU, neural engine and memory
    std::optional<double> systemJ; // the whole machine
};

// What each group of processes used between two frames.
struct AttributedInterval {
    struct Group {
        QString group;
        QString name;
        QString icon;
        std::optional<double> energyJ;
        double cpuTimeS = 0;
        bool isSelf = false;
    };
    double durationS = 0;
    AttributionMethod method = AttributionMethod::cpuTime;
    std::vector<Group> groups; // those that used something, and this program always
    // What the measured energy holds beyond the groups: the system and other users' processes.
    std::optional<double> othersJ;
};

// Shares out the measured energy among the processes of consecutive frames. A process is known by
// its pid and start, so a reused pid starts afresh; what a process used before it exited stays
// where it was counted; a counter that runs backwards rebases and counts nothing. Nothing is ever
// negative, and every joule is counted once.
class EnergyAttribution {
public:
    // The next frame and the energy measured since the one before; nothing for the first frame or
    // after the clock stepped back.
    std::optional<AttributedInterval> add(const ProcessFrame &frame, const MeasuredEnergy &measured);

private:
    struct Counters {
        double cpuTimeS = 0;
        std::optional<double> energyJ;
    };
    using Key = std::pair<std::int64_t, double>; // pid, start

    std::optional<double> m_lastUptimeS;
    std::optional<double> m_lastBusyS;
    std::optional<double> m_lastTotalS;
    QHash<Key, Counters> m_last;
};

} // namespace ferrow
