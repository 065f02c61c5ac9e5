#include "platform/linux/proc_process_source.h"

#include "platform/linux/proc_files.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <string_view>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace ferrow {
namespace {

// A stat line is a few hundred bytes; a worker thread's name can make it a little longer.
constexpr std::size_t kStatCapacity = 1024;
// The cgroup line of a process in a deep hierarchy, after the legacy controllers' lines.
constexpr std::size_t kCgroupCapacity = 4096;
// /proc/stat's "cpu " line comes first; the rest, one line per core and more, is not read.
constexpr std::size_t kCpuLineCapacity = 512;
// How long after its start a process may still move: a launcher puts it into the application's
// unit, or it replaces its program, within moments of starting.
constexpr double kSettlingS = 1.0;
// Samples between two looks at a kernel thread.
constexpr std::uint64_t kKernelThreadCheck = 12;
// The longest pid directory name a path buffer takes.
constexpr std::size_t kMostPidDigits = 19;

// "<pid>/<file>" in buffer.
const char *pidPath(char *buffer, const char *pidName, std::string_view file)
{
    const std::size_t length = std::strlen(pidName);
    std::memcpy(buffer, pidName, length);
    buffer[length] = '/';
    std::memcpy(buffer + length + 1, file.data(), file.size());
    buffer[length + 1 + file.size()] = '\0';
    return buffer;
}

std::optional<std::int64_t> pidOf(const char *name)
{
    const std::size_t length = std::strlen(name);
    if (length == 0 || length > kMostPidDigits || name[0] < '1' || name[0] > '9')
        return std::nullopt;
    std::int64_t pid = 0;
    const auto [end, error] = std::from_chars(name, name + length, pid);
    if (error != std::errc() || end != name + length)
        return std::nullopt;
    return pid;
}

QString lastDottedPart(const QString &id)
{
    const QString last = id.section(QLatin1Char('.'), -1);
    return last.isEmpty() ? id : last;
}

// Half of what this process may open; the other half is left for everything else.
std::size_t mostOpenFiles()
{
    constexpr std::size_t kMost = 2048;
    rlimit limit {};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return 0;
    return limit.rlim_cur == RLIM_INFINITY ? kMost : std::min<std::size_t>(kMost, limit.rlim_cur / 2);
}

} // namespace

std::int64_t ProcProcessSource::currentPid()
{
    return ::getpid();
}

ProcProcessSource::ProcProcessSource(std::string root, QStringList dataFolders, std::int64_t selfPid)
    : m_root(std::move(root))
    , m_desktopEntries(std::move(dataFolders))
    , m_selfPid(selfPid)
    , m_mostOpenFiles(mostOpenFiles())
{
    const long ticks = ::sysconf(_SC_CLK_TCK);
    m_ticksPerSecond = ticks > 0 ? static_cast<double>(ticks) : 100.0;
}

ProcProcessSource::~ProcProcessSource()
{
    for (auto &[pid, known] : m_known)
        closeStatFile(known);
    if (m_folder)
        ::closedir(m_folder);
}

std::optional<ProcessFrame> ProcProcessSource::sample()
{
    if (m_folder) {
        ::rewinddir(m_folder);
    } else {
        const int folder = ::open(m_root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (folder < 0)
            return std::nullopt;
        m_folder = ::fdopendir(folder);
        if (!m_folder) {
            ::close(folder);
            return std::nullopt;
        }
    }
    const int folder = ::dirfd(m_folder);

    // Read before the processes, so that one starting while they are listed starts after it.
    ProcessFrame frame;
    char text[kCpuLineCapacity];
    const std::optional<std::size_t> uptimeSize = readFileAt(folder, "uptime", text, sizeof text);
    const std::optional<double> uptimeS = uptimeSize ? parseUptime(std::string_view(text, *uptimeSize)) : std::nullopt;
    if (!uptimeS)
        return std::nullopt;
    frame.uptimeS = *uptimeS;
    if (const std::optional<std::size_t> size = readFileAt(folder, "stat", text, sizeof text)) {
        if (const std::optional<CpuTicks> cpu = parseCpuTicks(std::string_view(text, *size))) {
            frame.cpuBusyS = static_cast<double>(cpu->busy) / m_ticksPerSecond;
            frame.cpuTotalS = static_cast<double>(cpu->total) / m_ticksPerSecond;
        }
    }
    frame.includesOtherUsers = true; // every process's stat is world-readable

    frame.processes.reserve(m_lastCount + m_lastCount / 8 + 16);
    ++m_sampleNumber;
    for (;;) {
        errno = 0; // readdir says only by errno whether the list ended or broke off
        const dirent *entry = ::readdir(m_folder);
        if (!entry)
            break;
        if (entry->d_type != DT_DIR && entry->d_type != DT_UNKNOWN)
            continue;
        if (const std::optional<std::int64_t> pid = pidOf(entry->d_name))
            sampleProcess(*pid, entry->d_name, frame);
    }
    if (errno != 0)
        return std::nullopt;
    for (auto known = m_known.begin(); known != m_known.end();) {
        if (known->second.seenInSample == m_sampleNumber) {
            ++known;
            continue;
        }
        closeStatFile(known->second);
        known = m_known.erase(known);
    }
    m_lastCount = frame.processes.size();
    return frame;
}

void ProcProcessSource::sampleProcess(std::int64_t pid, const char *pidName, ProcessFrame &frame)
{
    const auto found = m_known.find(pid);
    Known *known = found == m_known.end() ? nullptr : &found->second;
    // A kernel thread keeps its pid until it ends, and pids come round again only after millions
    // more; each is looked at now and then in case its pid went to a new process.
    if (known && known->kernelThread && (static_cast<std::uint64_t>(pid) + m_sampleNumber) % kKernelThreadCheck != 0) {
        known->seenInSample = m_sampleNumber;
        return;
    }

    char text[kStatCapacity];
    std::optional<std::size_t> size;
    if (known && known->statFile >= 0) {
        size = readFile(known->statFile, text, sizeof text);
        if (!size)
            closeStatFile(*known); // it ended; its pid may have gone to a new process
    }
    int opened = -1;
    if (!size) {
        char path[kMostPidDigits + 16];
        opened = openFileAt(::dirfd(m_folder), pidPath(path, pidName, "stat"));
        size = opened >= 0 ? readFile(opened, text, sizeof text) : std::nullopt;
    }
    // Gone, or not a stat line.
    const std::optional<ProcStat> stat = size && *size < sizeof text ? parseProcStat(std::string_view(text, *size)) : std::nullopt;
    if (!stat) {
        if (opened >= 0)
            ::close(opened);
        return;
    }

    if (!known)
        known = &m_known.try_emplace(pid).first->second;
    const double startedS = static_cast<double>(stat->startTicks) / m_ticksPerSecond;
    if (known->seenInSample == 0 || known->startTicks != stat->startTicks || !known->settled) {
        known->startTicks = stat->startTicks;
        known->kernelThread = stat->kernelThread;
        known->settled = frame.uptimeS - startedS >= kSettlingS;
        if (known->kernelThread)
            closeStatFile(*known);
        else
            describe(*known, pid, pidName, *stat);
    }
    known->seenInSample = m_sampleNumber;
    if (opened >= 0) {
        if (!known->kernelThread && known->statFile < 0 && m_openFiles < m_mostOpenFiles) {
            known->statFile = opened;
            ++m_openFiles;
        } else {
            ::close(opened);
        }
    }
    if (known->kernelThread)
        return;

    ProcessSample &process = frame.processes.emplace_back();
    process.pid = pid;
    process.startedS = startedS;
    process.group = known->group;
    process.name = known->name;
    process.icon = known->icon;
    process.cpuTimeS = static_cast<double>(stat->cpuTicks) / m_ticksPerSecond;
    process.isSelf = pid == m_selfPid;
}

void ProcProcessSource::closeStatFile(Known &known)
{
    if (known.statFile < 0)
        return;
    ::close(known.statFile);
    known.statFile = -1;
    --m_openFiles;
}

void ProcProcessSource::describe(Known &known, std::int64_t pid, const char *pidName, const ProcStat &stat)
{
    known.icon.clear();
    const int folder = ::dirfd(m_folder);
    char path[kMostPidDigits + 16];
    char text[kCgroupCapacity];

    const std::optional<std::size_t> cgroupSize = readFileAt(folder, pidPath(path, pidName, "cgroup"), text, sizeof text);
    const QString id = cgroupSize ? applicationIdFromCgroup(std::string_view(text, *cgroupSize)) : QString();
    if (!id.isEmpty()) {
        const std::optional<DesktopEntries::Entry> entry = m_desktopEntries.find(id);
        known.group = id;
        known.name = entry && !entry->name.isEmpty() ? entry->name : lastDottedPart(id);
        if (entry)
            known.icon = entry->icon;
        return;
    }

    // Another user's executable cannot be read; the kernel's own short name stands in for it.
    const ssize_t length = ::readlinkat(folder, pidPath(path, pidName, "exe"), text, sizeof text);
    std::string_view executable;
    if (length > 0 && static_cast<std::size_t>(length) < sizeof text) {
        executable = std::string_view(text, static_cast<std::size_t>(length));
        if (executable.ends_with(" (deleted)")) // replaced by an update while it runs
            executable.remove_suffix(10);
        executable = executable.substr(executable.rfind('/') + 1);
    }
    known.group = printableName(executable);
    if (known.group.isEmpty())
        known.group = printableName(stat.name);
    if (known.group.isEmpty())
        known.group = QString::number(pid);
    known.name = known.group;
}

} // namespace ferrow
