#include "platform/native_machine.h"

#include "platform/common/in_memory_key_value_store.h"
#include "platform/common/settings_key_value_store.h"
#include "platform/linux/linux_diagnosis.h"
#include "platform/linux/linux_power_reader.h"
#include "platform/linux/proc_process_source.h"

#include <QFile>

namespace ferrow {
namespace {

bool isCopiedTree(const QString &root, QString *error)
{
    if (QFile::exists(root + QStringLiteral("/sys/class")))
        return true;
    if (error)
        *error = QStringLiteral("%1: no sys/class folder in it, so not a copied tree").arg(root);
    return false;
}

std::string nativePath(const QString &root)
{
    return QFile::encodeName(root).toStdString();
}

NativeMachine opened(std::unique_ptr<LinuxPowerReader> reader, QString description)
{
    NativeMachine machine;
    machine.chipPowerNeedsPermission = reader->chipPowerNeedsPermission();
    machine.reader = std::move(reader);
    machine.description = std::move(description);
    machine.isMac = false;
    return machine;
}

} // namespace

std::optional<NativeMachine> openThisMachine()
{
    auto reader = std::make_unique<LinuxPowerReader>(std::make_unique<SysfsFiles>(), std::make_unique<SettingsKeyValueStore>());
    if (!reader->hasPowerSources())
        return std::nullopt;
    NativeMachine machine = opened(std::move(reader), QStringLiteral("this Linux machine"));
    machine.processes = std::make_unique<ProcProcessSource>();
    return machine;
}

// Read in real time, as a machine, so that a graphics card's recorded power integrates as it
// would live; a copy's battery extremes stay out of the user's own.
std::optional<NativeMachine> openCopiedMachine(const QString &root, QString *error)
{
    if (!isCopiedTree(root, error))
        return std::nullopt;
    return opened(std::make_unique<LinuxPowerReader>(std::make_unique<SysfsFiles>(nativePath(root)), std::make_unique<InMemoryKeyValueStore>()),
                  QStringLiteral("copied tree at ") + root);
}

Diagnosis diagnoseThisMachine(DiagnosisSection &program)
{
    QFile release(QStringLiteral("/proc/sys/kernel/osrelease"));
    if (release.open(QIODevice::ReadOnly))
        program.add(QStringLiteral("kernel"), QString::fromUtf8(release.readAll().trimmed()));
    else
        program.absent(QStringLiteral("kernel"), QStringLiteral("unreadable"));
    SysfsFiles files;
    return diagnoseLinuxTree(files);
}

std::optional<Diagnosis> diagnoseCopiedMachine(const QString &root, QString *error)
{
    if (!isCopiedTree(root, error))
        return std::nullopt;
    SysfsFiles files(nativePath(root));
    return diagnoseLinuxTree(files);
}

bool recordThisMachine(const QString &folder, QString *error)
{
    return recordSysfsTree("/", folder, error);
}

QString recordingSourcePrefix()
{
    return QStringLiteral("sysfs:");
}

std::shared_ptr<const void> keepTimersOnPace()
{
    return nullptr; // Linux does not nap a process with no window in front
}

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

void prepareEnvironment()
{
    // On X11 every flush through shared memory comes back as a completion event, waking the event
    // thread and then the main thread once per animation frame; the popover's frames are a few
    // kilobytes, cheaper to send over the socket.
    if (!qEnvironmentVariableIsSet("QT_XCB_NO_MITSHM"))
        qputenv("QT_XCB_NO_MITSHM", "1");
}

} // namespace ferrow
