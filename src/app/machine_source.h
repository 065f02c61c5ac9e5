#pragma once

#include "sources/platform_interfaces.h"

#include <QString>

#include <memory>
#include <optional>

namespace ferrow {

// Which machine to read: "simulated", "simulated-desktop", "recorded:PATH" or "auto" (the real
// machine where this build has a backend for it, else the simulated notebook).
struct MachineSource {
    enum class Kind { automatic, simulatedNotebook, simulatedDesktop, recorded };
    Kind kind = Kind::automatic;
    QString recordingPath;

    static std::optional<MachineSource> parse(const QString &text);
};

struct OpenedMachine {
    std::unique_ptr<MachinePlatform> platform;
    QString description;    // for a subtitle or a log line: "simulated notebook", "recording foo"
    bool isSimulated = false;
    bool runsInRealTime = true; // false for a recording, which steps through its own frames
    const char *subtitleKey = "app.menu_subtitle"; // the dashboard's subtitle, naming a simulation as such
};

// Opens the machine, or explains in one line why it could not be opened.
std::optional<OpenedMachine> openMachine(const MachineSource &source, QString *error);

} // namespace ferrow
