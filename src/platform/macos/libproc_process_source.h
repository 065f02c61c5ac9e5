#pragma once

#include "apps/process_sample.h"

#include <QHash>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include <sys/types.h>

namespace ferrow {

// The user's own processes through libproc (other users' need an administrator): CPU time, start
// and, where the kernel keeps it, the energy each one used (nanojoules on Apple silicon). An
// application's name and group are worked out once per process.
class LibprocProcessSource final : public ProcessSource {
public:
    LibprocProcessSource();
    std::optional<ProcessFrame> sample() override;

private:
    // The kernel's counters, in mach ticks and nanojoules.
    struct Usage {
        pid_t pid = 0;
        std::uint64_t startTicks = 0;
        std::uint64_t cpuTicks = 0;
        std::uint64_t energyNJ = 0;
        std::uint64_t billedEnergyNJ = 0;
    };
    struct Identity {
        std::uint64_t startTicks = 0;
        QString group;
        QString name;
        QString bundle;
        std::uint64_t seenInSample = 0;
    };
    struct BundleName {
        QString name;
        int processes = 0;
    };
    // Which of the kernel's energy counters moves on this system, once one has been seen to.
    enum class EnergyCounter { undecided, energy, billedEnergy };

    std::optional<Usage> usage(pid_t pid);
    const Identity *identity(pid_t pid, std::uint64_t startTicks);
    QString holdBundleName(const QString &bundle, const QString &folderName);
    void releaseBundleName(const QString &bundle);
    std::optional<double> energyJ(const Usage &usage) const;

    pid_t m_self;
    std::size_t m_flavour = 0; // into the flavours the kernel is asked for, newest first
    EnergyCounter m_counter = EnergyCounter::undecided;
    std::uint64_t m_sample = 0;
    std::vector<pid_t> m_pids;
    std::vector<Usage> m_usages;
    std::vector<char> m_path;
    std::unordered_map<pid_t, Identity> m_identities;
    QHash<QString, BundleName> m_bundleNames;
};

} // namespace ferrow
