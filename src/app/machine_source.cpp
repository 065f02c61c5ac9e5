#include "app/machine_source.h"

#include "app/app_settings.h"
#include "history/history_database.h"
#include "history/history_recorder.h"
#include "platform/native_machine.h"
#include "platform/recorded/recorded_machine.h"
#include "platform/simulated/simulated_machine.h"
#include "platform/simulated/simulated_processes.h"
#include "sources/mac_source_diagnosis.h"
#include "sources/power_sensor_reader.h"

#include <QDateTime>
#include <QFileInfo>
#include <QSettings>

namespace ferrow {

std::optional<MachineSource> MachineSource::parse(const QString &text)
{
    if (text == u"auto")
        return MachineSource{Kind::automatic, {}};
    if (text == u"simulated")
        return MachineSource{Kind::simulatedNotebook, {}};
    if (text == u"simulated-desktop")
        return MachineSource{Kind::simulatedDesktop, {}};
    if (text.startsWith(u"recorded:") && text.size() > 9)
        return MachineSource{Kind::recorded, text.mid(9)};
    if (text.startsWith(u"sysfs:") && text.size() > 6)
        return MachineSource{Kind::sysfsTree, text.mid(6)};
    return std::nullopt;
}

namespace {

const char *const kInsteadOfThisMachine = "simulated notebook (this machine shows no battery, power supply or power sensor)";

// A machine read through the Mac's own sources that is not this machine: a simulation or a
// recording.
struct MacSources {
    std::unique_ptr<MachinePlatform> platform;
    std::unique_ptr<ProcessSource> processes;
    QString description;
    bool isSimulated = false;
    bool runsInRealTime = true;
    const char *subtitleKey = "app.menu_subtitle";
};

std::optional<MacSources> openMacSources(const MachineSource &source, QString *error)
{
    using Kind = SimulatedPowerModel::Kind;
    const auto simulated = [](Kind kind, const char *description, const char *subtitleKey) {
        SimulatedMachine::Options options;
        options.kind = kind;
        auto machine = std::make_unique<SimulatedMachine>(options);
        auto processes = std::make_unique<SimulatedProcessSource>(*machine);
        return MacSources{std::move(machine), std::move(processes), QString::fromLatin1(description), true, true, subtitleKey};
    };
    switch (source.kind) {
    case MachineSource::Kind::automatic:
        return simulated(Kind::notebook, kInsteadOfThisMachine, "app.menu_subtitle_simulated");
    case MachineSource::Kind::simulatedNotebook:
        return simulated(Kind::notebook, "simulated notebook", "app.menu_subtitle_simulated");
    case MachineSource::Kind::simulatedDesktop:
        return simulated(Kind::desktop, "simulated desktop", "app.menu_subtitle_simulated_desktop");
    case MachineSource::Kind::sysfsTree:
    case MachineSource::Kind::recorded:
        break;
    }
    std::optional<Recording> recording = loadRecording(source.recordingPath, error);
    if (!recording)
        return std::nullopt;
    const QString description = recording->description.isEmpty() ? source.recordingPath : recording->description;
    auto machine = std::make_unique<RecordedMachine>(std::move(*recording));
    std::unique_ptr<ProcessSource> processes = machine->createProcessSource();
    return MacSources{std::move(machine), std::move(processes), QStringLiteral("recording of ") + description, false, false};
}

OpenedMachine openedFrom(NativeMachine native)
{
    OpenedMachine opened;
    opened.reader = std::move(native.reader);
    opened.description = std::move(native.description);
    opened.chipPowerNeedsPermission = native.chipPowerNeedsPermission;
    opened.isMac = native.isMac;
    opened.processes = std::move(native.processes);
    return opened;
}

// Whether the energy history is kept, where, and since when; or why not. Read-only, so it is safe
// while the application writes.
QString historyState()
{
    if (!readPreferences(QSettings()).keepHistory)
        return QStringLiteral("off (the setting in the details window)");
    const QString path = HistoryRecorder::defaultDatabasePath();
    if (!QFileInfo::exists(path))
        return QStringLiteral("none yet; it will be kept in %1").arg(path);
    const HistoryDatabase database(path, HistoryDatabase::Mode::readOnly);
    if (!database.isOpen())
        return QStringLiteral("not kept: %1").arg(database.error());
    const std::optional<UnixSeconds> since = database.firstRecord();
    return since ? QStringLiteral("kept in %1 since %2").arg(path, QDateTime::fromSecsSinceEpoch(*since).toString(Qt::ISODate))
                 : QStringLiteral("kept in %1, empty so far").arg(path);
}

// What is read, and for this machine where its preferences (and so its battery's lifetime
// extremes) are kept; a copy, a recording or a simulation keeps them in memory only.
DiagnosisSection programSection(const QString &reads, bool thisMachine)
{
    DiagnosisSection section{QStringLiteral("Ferrow"), {}};
    section.add(QStringLiteral("reads"), reads);
    if (thisMachine) {
        section.add(QStringLiteral("preferences"), QSettings().fileName());
        section.add(QStringLiteral("history"), historyState());
    }
    return section;
}

Diagnosis joined(DiagnosisSection first, Diagnosis rest)
{
    rest.insert(rest.begin(), std::move(first));
    return rest;
}

} // namespace

std::optional<OpenedMachine> openMachine(const MachineSource &source, QString *error)
{
    if (source.kind == MachineSource::Kind::automatic) {
        if (std::optional<NativeMachine> native = openThisMachine())
            return openedFrom(std::move(*native));
    } else if (source.kind == MachineSource::Kind::sysfsTree) {
        std::optional<NativeMachine> native = openCopiedMachine(source.recordingPath, error);
        return native ? std::optional(openedFrom(std::move(*native))) : std::nullopt;
    }
    std::optional<MacSources> mac = openMacSources(source, error);
    if (!mac)
        return std::nullopt;
    OpenedMachine opened;
    opened.reader = std::make_unique<PowerSensorReader>(std::move(mac->platform));
    opened.description = std::move(mac->description);
    opened.isSimulated = mac->isSimulated;
    opened.runsInRealTime = mac->runsInRealTime;
    opened.subtitleKey = mac->subtitleKey;
    opened.processes = std::move(mac->processes);
    return opened;
}

std::optional<Diagnosis> diagnoseMachine(const MachineSource &source, QString *error)
{
    if (source.kind == MachineSource::Kind::automatic) {
        // What this machine answers even when it has nothing to read: that is what a report needs.
        std::optional<NativeMachine> native = openThisMachine();
        const QString reads = native ? native->description : QString::fromLatin1(kInsteadOfThisMachine);
        native.reset(); // the diagnosis asks the machine afresh, with no reader holding it open
        DiagnosisSection program = programSection(reads, true);
        Diagnosis machine = diagnoseThisMachine(program);
        return joined(std::move(program), std::move(machine));
    }
    if (source.kind == MachineSource::Kind::sysfsTree) {
        std::optional<Diagnosis> copy = diagnoseCopiedMachine(source.recordingPath, error);
        if (!copy)
            return std::nullopt;
        return joined(programSection(QStringLiteral("copied tree at ") + source.recordingPath, false), std::move(*copy));
    }
    std::optional<MacSources> machine = openMacSources(source, error);
    if (!machine)
        return std::nullopt;
    return joined(programSection(machine->description, false), diagnoseMacSources(*machine->platform));
}

bool recordMachine(const QString &folder, QString *error)
{
    return recordThisMachine(folder, error);
}

} // namespace ferrow
