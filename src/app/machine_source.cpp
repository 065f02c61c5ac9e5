#include "app/machine_source.h"

#include "platform/recorded/recorded_machine.h"
#include "platform/simulated/simulated_machine.h"
#include "sources/mac_source_diagnosis.h"
#include "sources/power_sensor_reader.h"

#include <QSettings>

#if defined(Q_OS_MACOS)
#include "platform/macos/mac_machine.h"
#include "platform/recorded/recording_writer.h"

#include <QThread>
#elif defined(Q_OS_LINUX)
#include "platform/common/in_memory_key_value_store.h"
#include "platform/common/settings_key_value_store.h"
#include "platform/linux/linux_diagnosis.h"
#include "platform/linux/linux_power_reader.h"

#include <QFile>
#endif

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

// A machine read through the Mac's own sources: the Mac itself, or one that reproduces a Mac.
struct MacSources {
    std::unique_ptr<MachinePlatform> platform;
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
        return MacSources{std::make_unique<SimulatedMachine>(options), QString::fromLatin1(description), true, true, subtitleKey};
    };
    switch (source.kind) {
    case MachineSource::Kind::automatic:
#if defined(Q_OS_MACOS)
        return MacSources{std::make_unique<MacMachine>(), QStringLiteral("this Mac")};
#else
        return simulated(Kind::notebook, "simulated notebook (this machine shows no battery, power supply or power sensor)",
                         "app.menu_subtitle_simulated");
#endif
    case MachineSource::Kind::simulatedNotebook:
        return simulated(Kind::notebook, "simulated notebook", "app.menu_subtitle_simulated");
    case MachineSource::Kind::simulatedDesktop:
        return simulated(Kind::desktop, "simulated desktop", "app.menu_subtitle_simulated_desktop");
    case MachineSource::Kind::sysfsTree:
        if (error)
            *error = QStringLiteral("sysfs:%1: copied Linux trees are read by Linux builds only").arg(source.recordingPath);
        return std::nullopt;
    case MachineSource::Kind::recorded:
        break;
    }
    std::optional<Recording> recording = loadRecording(source.recordingPath, error);
    if (!recording)
        return std::nullopt;
    const QString description = recording->description.isEmpty() ? source.recordingPath : recording->description;
    return MacSources{std::make_unique<RecordedMachine>(std::move(*recording)), QStringLiteral("recording of ") + description, false, false};
}

#if defined(Q_OS_LINUX)
bool isCopiedTree(const QString &root, QString *error)
{
    if (QFile::exists(root + QStringLiteral("/sys/class")))
        return true;
    if (error)
        *error = QStringLiteral("%1: no sys/class folder in it, so not a copied tree").arg(root);
    return false;
}

// This machine when it has anything to read, or a copied tree (read in real time, as a machine,
// so that a graphics card's recorded power integrates as it would live; a copy's battery extremes
// stay out of the user's own). Nothing where this machine has nothing.
std::optional<OpenedMachine> openLinuxMachine(const MachineSource &source, QString *error, bool *isLinux)
{
    *isLinux = false;
    std::unique_ptr<LinuxPowerReader> reader;
    QString description;
    if (source.kind == MachineSource::Kind::automatic) {
        reader = std::make_unique<LinuxPowerReader>(std::make_unique<SysfsFiles>(), std::make_unique<SettingsKeyValueStore>());
        if (!reader->hasPowerSources())
            return std::nullopt;
        description = QStringLiteral("this Linux machine");
    } else if (source.kind == MachineSource::Kind::sysfsTree) {
        *isLinux = true;
        if (!isCopiedTree(source.recordingPath, error))
            return std::nullopt;
        reader = std::make_unique<LinuxPowerReader>(std::make_unique<SysfsFiles>(QFile::encodeName(source.recordingPath).toStdString()),
                                                    std::make_unique<InMemoryKeyValueStore>());
        description = QStringLiteral("copied tree at ") + source.recordingPath;
    } else {
        return std::nullopt;
    }
    *isLinux = true;
    OpenedMachine opened{nullptr, std::move(description)};
    opened.chipPowerNeedsPermission = reader->chipPowerNeedsPermission();
    opened.reader = std::move(reader);
    return opened;
}
#endif

} // namespace

std::optional<OpenedMachine> openMachine(const MachineSource &source, QString *error)
{
#if defined(Q_OS_LINUX)
    bool isLinux = false;
    if (std::optional<OpenedMachine> opened = openLinuxMachine(source, error, &isLinux); opened || isLinux)
        return opened;
#endif
    std::optional<MacSources> mac = openMacSources(source, error);
    if (!mac)
        return std::nullopt;
    return OpenedMachine{std::make_unique<PowerSensorReader>(std::move(mac->platform)), std::move(mac->description), mac->isSimulated,
                         mac->runsInRealTime, mac->subtitleKey};
}

namespace {

// What is read, and for this machine where its battery's lifetime extremes are kept (a copy,
// a recording or a simulation keeps them in memory only).
DiagnosisSection programSection(const QString &reads, bool thisMachine)
{
    DiagnosisSection section{QStringLiteral("Ferrow"), {}};
    section.add(QStringLiteral("reads"), reads);
    if (thisMachine)
        section.add(QStringLiteral("preferences"), QSettings().fileName());
    return section;
}

Diagnosis joined(DiagnosisSection first, Diagnosis rest)
{
    rest.insert(rest.begin(), std::move(first));
    return rest;
}

} // namespace

std::optional<Diagnosis> diagnoseMachine(const MachineSource &source, QString *error)
{
#if defined(Q_OS_MACOS)
    if (source.kind == MachineSource::Kind::automatic) {
        MacMachine machine;
        return joined(programSection(QStringLiteral("this Mac"), true), machine.diagnose());
    }
#elif defined(Q_OS_LINUX)
    if (source.kind == MachineSource::Kind::automatic || source.kind == MachineSource::Kind::sysfsTree) {
        const bool thisMachine = source.kind == MachineSource::Kind::automatic;
        const QString root = thisMachine ? QStringLiteral("/") : source.recordingPath;
        if (!thisMachine && !isCopiedTree(root, error))
            return std::nullopt;
        DiagnosisSection program = programSection(thisMachine ? QStringLiteral("this Linux machine") : QStringLiteral("copied tree at ") + root, thisMachine);
        if (thisMachine) {
            QFile release(QStringLiteral("/proc/sys/kernel/osrelease"));
            if (release.open(QIODevice::ReadOnly))
                program.add(QStringLiteral("kernel"), QString::fromUtf8(release.readAll().trimmed()));
            else
                program.absent(QStringLiteral("kernel"), QStringLiteral("unreadable"));
        }
        SysfsFiles files(QFile::encodeName(root).toStdString());
        return joined(std::move(program), diagnoseLinuxTree(files));
    }
#endif
    std::optional<MacSources> machine = openMacSources(source, error);
    if (!machine)
        return std::nullopt;
    return joined(programSection(machine->description, false), diagnoseMacSources(*machine->platform));
}

bool recordMachine(const QString &folder, QString *error)
{
#if defined(Q_OS_MACOS)
    MacMachine machine;
    return writeRecording(machine, MacMachine::modelAndSystem(), [] { QThread::sleep(1); }, folder, error);
#elif defined(Q_OS_LINUX)
    return recordSysfsTree("/", folder, error);
#else
    Q_UNUSED(folder);
    if (error)
        *error = QStringLiteral("recording is built for Linux and macOS only");
    return false;
#endif
}

} // namespace ferrow
