#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace ferrow {

// One process as the system reports it. Counters run from the process's start, so two samples
// give what it used in between.
struct ProcessSample {
    std::int64_t pid = 0;
    // When it started, in seconds on the frames' uptime clock: with the pid, tells a reused pid apart
    // and whether it started after the frame before.
    double startedS = 0;
    // What it belongs to: an application bundle's path, a desktop application's id, else the
    // executable's name. Helpers and services of an application share its group.
    QString group;
    QString name; // the group's name for people, valid UTF-8 on one line
    // Where the desktop keeps the group's icon: a bundle's path (its own icon), an icon theme's
    // name or an image file's path; empty where it has none.
    QString icon;
    double cpuTimeS = 0; // user and system time
    // The kernel's own measure of the energy it used, where the system keeps one.
    std::optional<double> energyJ;
    bool isSelf = false; // this program
};

// Every readable process at one moment.
struct ProcessFrame {
    double uptimeS = 0;
    std::vector<ProcessSample> processes;
    // The processors' busy and total time over all cores since boot, where the system counts them
    // (Linux /proc/stat): the processor's share of the machine's power.
    std::optional<double> cpuBusyS;
    std::optional<double> cpuTotalS;
    // Whether other users' processes are in the list; without them their share is what remains.
    bool includesOtherUsers = false;
};

// Enumerates processes. Called on one thread at a time, at most once a second.
class ProcessSource {
public:
    virtual ~ProcessSource() = default;
    // Absent when nothing can be read at all; a process that cannot be read is left out.
    virtual std::optional<ProcessFrame> sample() = 0;
};

} // namespace ferrow
