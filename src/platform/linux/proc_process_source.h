#pragma once

#include "apps/process_sample.h"
#include "platform/linux/desktop_entries.h"

#include <QString>

#include <cstdint>
#include <string>
#include <unordered_map>

#include <dirent.h>

namespace ferrow {

struct ProcStat;

// Every process of a /proc tree but the kernel's own threads, whose time is the system's. A
// process's group, name and icon are worked out once, when it first appears: its desktop
// application (the systemd unit its launcher made for it, named by its desktop entry), else its
// executable. A process already known costs one read of its stat file, kept open, and no
// allocation: a desktop's four hundred processes take about a millisecond.
//
// A copied tree's files are read through their open files for as long as their process stays
// listed; write them in place to change them.
class ProcProcessSource final : public ProcessSource {
public:
    static std::int64_t currentPid();

    explicit ProcProcessSource(std::string root = "/proc", QStringList dataFolders = DesktopEntries::standardDataFolders(),
                               std::int64_t selfPid = currentPid());
    ~ProcProcessSource() override;
    ProcProcessSource(const ProcProcessSource &) = delete;
    ProcProcessSource &operator=(const ProcProcessSource &) = delete;

    // Absent when the root cannot be listed or says nothing of the time since boot.
    std::optional<ProcessFrame> sample() override;

private:
    struct Known {
        std::uint64_t startTicks = 0;
        std::uint64_t seenInSample = 0; // 0: not yet looked at
        int statFile = -1;              // kept open while there are descriptors to spare
        bool kernelThread = false;
        bool settled = false; // old enough that its launcher has put it where it stays
        QString group;
        QString name;
        QString icon;
    };

    void sampleProcess(std::int64_t pid, const char *pidName, ProcessFrame &frame);
    // Its group, name and icon.
    void describe(Known &known, std::int64_t pid, const char *pidName, const ProcStat &stat);
    void closeStatFile(Known &known);

    std::string m_root;
    DesktopEntries m_desktopEntries;
    std::int64_t m_selfPid;
    double m_ticksPerSecond;
    std::size_t m_mostOpenFiles;
    std::size_t m_openFiles = 0;
    DIR *m_folder = nullptr; // kept open: listing it again costs less than finding it again
    std::unordered_map<std::int64_t, Known> m_known;
    std::uint64_t m_sampleNumber = 0;
    std::size_t m_lastCount = 0;
};

} // namespace ferrow
