#include "platform/native_machine.h"

#include "platform/macos/libproc_process_source.h"
#include "platform/macos/mac_machine.h"
#include "platform/macos/mac_system.h"
#include "platform/recorded/recording_writer.h"
#include "sources/power_sensor_reader.h"

#include <QThread>

namespace ferrow {

std::optional<NativeMachine> openThisMachine()
{
    NativeMachine machine;
    machine.reader = std::make_unique<PowerSensorReader>(std::make_unique<MacMachine>());
    machine.description = QStringLiteral("this Mac");
    machine.processes = std::make_unique<LibprocProcessSource>();
    return machine;
}

std::optional<NativeMachine> openCopiedMachine(const QString &root, QString *error)
{
    if (error)
        *error = QStringLiteral("sysfs:%1: copied Linux trees are read by Linux builds only; a Mac reads recorded:FOLDER").arg(root);
    return std::nullopt;
}

Diagnosis diagnoseThisMachine(DiagnosisSection &)
{
    MacMachine machine;
    return machine.diagnose();
}

std::optional<Diagnosis> diagnoseCopiedMachine(const QString &root, QString *error)
{
    openCopiedMachine(root, error);
    return std::nullopt;
}

bool recordThisMachine(const QString &folder, QString *error)
{
    MacMachine machine;
    LibprocProcessSource processes;
    return writeRecording(machine, &processes, MacMachine::modelAndSystem(), [] { QThread::sleep(1); }, folder, error);
}

QString recordingSourcePrefix()
{
    return QStringLiteral("recorded:");
}

std::shared_ptr<const void> keepTimersOnPace()
{
    return std::make_shared<const ActivityAssertion>();
}

bool hasDisplay()
{
    return true;
}

void prepareEnvironment()
{
}

} // namespace ferrow
