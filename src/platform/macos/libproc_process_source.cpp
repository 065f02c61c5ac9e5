#include "platform/macos/libproc_process_source.h"

#include "apps/application_bundle.h"
#include "platform/macos/cf_property_value.h"
#include "platform/macos/cf_ref.h"
#include "platform/macos/mach_time.h"

#include <CoreFoundation/CoreFoundation.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include <libproc.h>
#include <sys/resource.h>
#include <unistd.h>

namespace ferrow {
namespace {

// Newest first. Each is a prefix of the newest, so one buffer takes any of them; a system older than
// a flavour refuses it with EINVAL. V6 has the energy counter, V4 the billed energy, V0 CPU time only.
constexpr std::array kFlavours{RUSAGE_INFO_V6, RUSAGE_INFO_V4, RUSAGE_INFO_V0};

// The name the application gives itself (localised where it says so), if it says one.
std::optional<QString> infoName(const QString &bundle)
{
    const QByteArray path = bundle.toUtf8();
    const auto url = CFRef<CFURLRef>::adopt(
        CFURLCreateFromFileSystemRepresentation(kCFAllocatorDefault, reinterpret_cast<const UInt8 *>(path.constData()), path.size(), true));
    const auto handle = url ? CFRef<CFBundleRef>::adopt(CFBundleCreate(kCFAllocatorDefault, url.get())) : CFRef<CFBundleRef>();
    if (!handle)
        return std::nullopt;
    for (const CFStringRef key : {CFSTR("CFBundleDisplayName"), kCFBundleNameKey}) {
        const CFTypeRef value = CFBundleGetValueForInfoDictionaryKey(handle.get(), key);
        if (value && CFGetTypeID(value) == CFStringGetTypeID()) {
            QString name = oneLineName(stringFromCF(static_cast<CFStringRef>(value)));
            if (!name.isEmpty())
                return name;
        }
    }
    return std::nullopt;
}

} // namespace

LibprocProcessSource::LibprocProcessSource()
    : m_self(getpid())
    , m_path(PROC_PIDPATHINFO_MAXSIZE)
{
}

std::optional<ProcessFrame> LibprocProcessSource::sample()
{
    const uid_t user = getuid();
    const int needed = proc_listpids(PROC_UID_ONLY, user, nullptr, 0);
    if (needed <= 0)
        return std::nullopt;
    // Room for the processes that start between the two calls.
    m_pids.resize(static_cast<std::size_t>(needed) / sizeof(pid_t) + 32);
    const int listed = proc_listpids(PROC_UID_ONLY, user, m_pids.data(), static_cast<int>(m_pids.size() * sizeof(pid_t)));
    if (listed <= 0)
        return std::nullopt;
    const std::size_t count = std::min(static_cast<std::size_t>(listed) / sizeof(pid_t), m_pids.size());

    ++m_sample;
    m_usages.clear();
    for (std::size_t i = 0; i < count; ++i) {
        if (m_pids[i] <= 0)
            continue;
        if (const std::optional<Usage> used = usage(m_pids[i]))
            m_usages.push_back(*used);
    }
    // Counters run from each process's start, so any one above zero shows that the system keeps it.
    // The choice then holds: switching counters would break every difference across the switch.
    if (m_counter == EnergyCounter::undecided) {
        if (std::any_of(m_usages.begin(), m_usages.end(), [](const Usage &u) { return u.energyNJ > 0; }))
            m_counter = EnergyCounter::energy;
        else if (std::any_of(m_usages.begin(), m_usages.end(), [](const Usage &u) { return u.billedEnergyNJ > 0; }))
            m_counter = EnergyCounter::billedEnergy;
    }

    ProcessFrame frame;
    frame.includesOtherUsers = false;
    frame.processes.reserve(m_usages.size());
    for (const Usage &used : m_usages) {
        const Identity *known = identity(used.pid, used.startTicks);
        if (!known)
            continue;
        ProcessSample &process = frame.processes.emplace_back();
        process.pid = used.pid;
        process.startedS = machTicksToSeconds(used.startTicks);
        process.group = known->group;
        process.name = known->name;
        process.icon = known->bundle;
        process.cpuTimeS = machTicksToSeconds(used.cpuTicks);
        process.energyJ = energyJ(used);
        process.isSelf = used.pid == m_self;
    }
    for (auto entry = m_identities.begin(); entry != m_identities.end();) {
        if (entry->second.seenInSample == m_sample) {
            ++entry;
        } else {
            releaseBundleName(entry->second.bundle);
            entry = m_identities.erase(entry);
        }
    }
    // Taken after the counters, so that every process listed started before the frame.
    frame.uptimeS = machUptimeSeconds();
    return frame;
}

std::optional<LibprocProcessSource::Usage> LibprocProcessSource::usage(pid_t pid)
{
    for (std::size_t flavour = m_flavour; flavour < kFlavours.size(); ++flavour) {
        rusage_info_v6 info{};
        if (proc_pid_rusage(pid, kFlavours[flavour], reinterpret_cast<rusage_info_t *>(&info)) == 0) {
            m_flavour = flavour; // the newest this system answers
            return Usage{pid, info.ri_proc_start_abstime, info.ri_user_time + info.ri_system_time, info.ri_energy_nj, info.ri_billed_energy};
        }
        if (errno != EINVAL)
            return std::nullopt; // gone (ESRCH) or not this user's to read (EPERM)
    }
    return std::nullopt;
}

const LibprocProcessSource::Identity *LibprocProcessSource::identity(pid_t pid, std::uint64_t startTicks)
{
    const auto known = m_identities.find(pid);
    if (known != m_identities.end() && known->second.startTicks == startTicks) {
        known->second.seenInSample = m_sample;
        return &known->second;
    }
    QString executable;
    if (proc_pidpath(pid, m_path.data(), static_cast<std::uint32_t>(m_path.size())) > 0
        || proc_name(pid, m_path.data(), static_cast<std::uint32_t>(m_path.size())) > 0)
        executable = QString::fromUtf8(m_path.data(), static_cast<qsizetype>(strnlen(m_path.data(), m_path.size())));
    const ExecutableGroup group = executableGroup(executable);
    if (group.group.isEmpty())
        return nullptr; // gone before it could be named
    if (known != m_identities.end()) { // the pid of a process that has ended, reused
        releaseBundleName(known->second.bundle);
        m_identities.erase(known);
    }
    const QString name = group.bundle.isEmpty() ? group.name : holdBundleName(group.bundle, group.name);
    const auto added = m_identities.emplace(pid, Identity{startTicks, group.group, name, group.bundle, m_sample});
    return &added.first->second;
}

QString LibprocProcessSource::holdBundleName(const QString &bundle, const QString &folderName)
{
    auto entry = m_bundleNames.find(bundle);
    if (entry == m_bundleNames.end())
        entry = m_bundleNames.insert(bundle, BundleName{infoName(bundle).value_or(folderName), 0});
    ++entry->processes;
    return entry->name;
}

void LibprocProcessSource::releaseBundleName(const QString &bundle)
{
    const auto entry = m_bundleNames.find(bundle);
    if (entry != m_bundleNames.end() && --entry->processes <= 0)
        m_bundleNames.erase(entry);
}

std::optional<double> LibprocProcessSource::energyJ(const Usage &usage) const
{
    switch (m_counter) {
    case EnergyCounter::energy:
        return static_cast<double>(usage.energyNJ) * 1e-9;
    case EnergyCounter::billedEnergy:
        return static_cast<double>(usage.billedEnergyNJ) * 1e-9;
    case EnergyCounter::undecided:
        break;
    }
    return std::nullopt;
}

} // namespace ferrow
