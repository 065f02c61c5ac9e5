#include "platform/native_machine.h"

// A system this program has no backend for: nothing of its own to read, so the programs read the
// simulated machine or a recording; every other service is absent.

namespace ferrow {

std::optional<NativeMachine> openThisMachine()
{
    return std::nullopt;
}

std::optional<NativeMachine> openCopiedMachine(const QString &root, QString *error)
{
    if (error)
        *error = QStringLiteral("sysfs:%1: copied Linux trees are read by Linux builds only").arg(root);
    return std::nullopt;
}

Diagnosis diagnoseThisMachine(DiagnosisSection &program)
{
    program.absent(QStringLiteral("this machine"), QStringLiteral("no backend for this system in this build"));
    return {};
}

std::optional<Diagnosis> diagnoseCopiedMachine(const QString &root, QString *error)
{
    openCopiedMachine(root, error);
    return std::nullopt;
}

bool recordThisMachine(const QString &, QString *error)
{
    if (error)
        *error = QStringLiteral("recording is built for Linux and macOS only");
    return false;
}

QString recordingSourcePrefix()
{
    return QStringLiteral("recorded:");
}

std::shared_ptr<const void> keepTimersOnPace()
{
    return nullptr;
}

void quitOnInterruptSignal()
{
    // No portable safe way here; an interrupt ends the process the default way.
}

bool hasDisplay()
{
    return true;
}

void prepareEnvironment()
{
}

} // namespace ferrow
