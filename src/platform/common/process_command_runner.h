#pragma once

#include "sources/platform_interfaces.h"

#include <chrono>

namespace ferrow {

// Runs a child process with QProcess: absolute program path, no shell, standard error to the null
// device. Unlike a plain wait, it gives up on a child that runs too long or writes too much, and
// kills it, so a hanging tool can never stall the readings for ever.
class ProcessCommandRunner final : public CommandRunner {
public:
    static constexpr std::chrono::milliseconds kDefaultTimeout{30'000};
    static constexpr qsizetype kDefaultOutputLimit = 16 * 1024 * 1024;

    explicit ProcessCommandRunner(std::chrono::milliseconds timeout = kDefaultTimeout,
                                  qsizetype outputLimit = kDefaultOutputLimit);

    std::optional<CommandResult> run(const QString &program, const QStringList &arguments) override;

private:
    std::chrono::milliseconds m_timeout;
    qsizetype m_outputLimit;
};

} // namespace ferrow
