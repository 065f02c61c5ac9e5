#include "platform/common/process_command_runner.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QProcess>

namespace ferrow {

ProcessCommandRunner::ProcessCommandRunner(std::chrono::milliseconds timeout, qsizetype outputLimit)
    : m_timeout(timeout)
    , m_outputLimit(outputLimit)
{
}

std::optional<CommandResult> ProcessCommandRunner::run(const QString &program, const QStringList &arguments)
{
    if (!QFileInfo(program).isAbsolute())
        return std::nullopt;

    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setInputChannelMode(QProcess::ForwardedInputChannel);

    const QDeadlineTimer deadline(m_timeout);
    process.start(QIODevice::ReadOnly);
    if (!process.waitForStarted(static_cast<int>(deadline.remainingTime())))
        return std::nullopt;

    const auto giveUp = [&process]() -> std::optional<CommandResult> {
        process.kill();
        process.waitForFinished(-1); // reaps the child; a killed process ends at once
        return std::nullopt;
    };

    const auto remainingMs = [&deadline] { return static_cast<int>(std::max<qint64>(1, deadline.remainingTime())); };
    QByteArray output;
    while (process.state() != QProcess::NotRunning) {
        if (deadline.hasExpired())
            return giveUp();
        if (!process.waitForReadyRead(remainingMs()) && process.state() != QProcess::NotRunning) {
            // No more output, yet the child runs on (or the time is up): wait for its end instead.
            if (!process.waitForFinished(remainingMs()))
                return giveUp();
        }
        output += process.readAllStandardOutput();
        if (output.size() > m_outputLimit)
            return giveUp();
    }
    output += process.readAllStandardOutput();
    if (process.exitStatus() != QProcess::NormalExit || output.size() > m_outputLimit)
        return std::nullopt;
    return CommandResult{process.exitCode(), output};
}

} // namespace ferrow
