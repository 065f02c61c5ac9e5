#pragma once

#include "apps/process_sample.h"
#include "sources/platform_interfaces.h"

#include <QString>

#include <functional>

namespace ferrow {

// Writes a recording of a machine (machine.json, and battery.plist where it has a battery) in the
// format docs/recording-format.md describes: the SMC keys a reading asks for, two energy samples
// with waitOneSecond between them and, where there is a process source, a process sample beside
// each, the power sources, the adapter-details presence, the system profiler's answer, the OS major
// version and the battery's stored lifetime extremes; nothing else.
// On failure the message names the file and the problem.
bool writeRecording(MachinePlatform &machine, ProcessSource *processes, const QString &description,
                    const std::function<void()> &waitOneSecond, const QString &folder, QString *error);

} // namespace ferrow
