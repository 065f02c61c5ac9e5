#pragma once

#include "apps/process_sample.h"
#include "model/diagnosis.h"
#include "monitor/snapshot_reader.h"

#include <QString>

#include <memory>
#include <optional>

namespace ferrow {

// What the operating system's backend offers a program without a display. Each backend under
// platform/ (macos, linux, null) defines these functions; the build links exactly one of them.

struct NativeMachine {
    std::unique_ptr<SnapshotReader> reader;
    QString description; // "this Mac", "copied tree at /tmp/x"
    // The processor's energy counters are there but only an administrator may read them.
    bool chipPowerNeedsPermission = false;
    // Whether the texts may call it "this Mac"; otherwise they say "this computer".
    bool isMac = true;
    // This machine's processes, where the backend can enumerate them; nothing for a copy.
    std::unique_ptr<ProcessSource> processes;
};

// This machine, or nothing when it has nothing to read (no battery, supply or power sensor, or a
// system this program has no backend for).
std::optional<NativeMachine> openThisMachine();
// A copy of this system's power files (ROOT/sys/class/... on Linux), read as a machine; the
// reason in error where this system has no such copies or root holds none.
std::optional<NativeMachine> openCopiedMachine(const QString &root, QString *error);

// What this machine (or a copy) answers to every question a reading asks. Facts about the system
// itself (versions, the kernel) go into program.
Diagnosis diagnoseThisMachine(DiagnosisSection &program);
std::optional<Diagnosis> diagnoseCopiedMachine(const QString &root, QString *error);

// Records this machine into folder for reading back with the source recordingSourcePrefix()
// followed by the folder. False, with the reason in error, where that cannot be done.
bool recordThisMachine(const QString &folder, QString *error);
QString recordingSourcePrefix();

// Keeps a once-a-second timer on its pace for as long as the result lives (a system that naps
// background processes stretches their timers). Nothing to hold where there is no such nap.
std::shared_ptr<const void> keepTimersOnPace();

// Quits the running QCoreApplication on an interrupt or termination signal. The handler only
// writes to a pipe that the event loop watches: nothing in it calls into Qt.
void quitOnInterruptSignal();

// Whether a window can be shown at all (a Linux console has no display to open).
bool hasDisplay();
// Settings of the windowing system that must be made before the application object exists.
void prepareEnvironment();

} // namespace ferrow
