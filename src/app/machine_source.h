#pragma once

#include "apps/process_sample.h"
#include "model/diagnosis.h"
#include "monitor/snapshot_reader.h"

#include <QString>

#include <memory>
#include <optional>

namespace ferrow {

// Which machine to read: "simulated", "simulated-desktop", "recorded:PATH", "sysfs:ROOT" (a copied
// Linux tree, ROOT/sys/class/...) or "auto": this Mac, or this Linux machine when it has a battery,
// a power supply or a power sensor; else the simulated notebook.
struct MachineSource {
    enum class Kind { automatic, simulatedNotebook, simulatedDesktop, recorded, sysfsTree };
    Kind kind = Kind::automatic;
    QString recordingPath; // the recording folder, or the copied tree's root

    static std::optional<MachineSource> parse(const QString &text);
};

struct OpenedMachine {
    std::unique_ptr<SnapshotReader> reader;
    QString description;    // for a subtitle or a log line: "simulated notebook", "recording foo"
    bool isSimulated = false;
    bool runsInRealTime = true; // false for a recording, which steps through its own frames
    const char *subtitleKey = "app.menu_subtitle"; // the dashboard's subtitle, naming a simulation as such
    // The processor's energy counters are there but only root may read them (see the README).
    bool chipPowerNeedsPermission = false;
    // A Mac, or a recording or simulation of one; otherwise the texts say "this computer".
    bool isMac = true;
    // The machine's processes, for energy per application; nothing where they cannot be read.
    std::unique_ptr<ProcessSource> processes;
};

// Opens the machine, or explains in one line why it could not be opened.
std::optional<OpenedMachine> openMachine(const MachineSource &source, QString *error);

// What the source answers to every question a reading asks, and why a figure is absent: for a
// user to send us. Absent, with the reason in error, when the source cannot be opened.
std::optional<Diagnosis> diagnoseMachine(const MachineSource &source, QString *error);

// Records this machine into folder, for reading back as a source (on Linux, the files a reading
// uses, as sysfs:FOLDER). False, with the reason in error, where that cannot be done.
bool recordMachine(const QString &folder, QString *error);

} // namespace ferrow
