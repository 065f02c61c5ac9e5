#include "platform/simulated/simulated_processes.h"

#include "platform/simulated/simulated_machine.h"

#include <array>
#include <cmath>
#include <numeric>
#include <vector>

namespace ferrow {

namespace {

struct SimulatedApplication {
    const char *name;
    const char *bundle; // none: grouped by its executable
    double weight;
    int processes;
    bool comesAndGoes; // a run at a time, each a new process
    bool isSelf;
};

constexpr std::array<SimulatedApplication, 8> kApplications{{
    {"Atlas Browser", "/Applications/Atlas Browser.app", 0.34, 3, false, false},
    {"Quill", "/Applications/Quill.app", 0.12, 1, false, false},
    {"Lumen Photos", "/Applications/Lumen Photos.app", 0.10, 2, false, false},
    {"Tempo", "/Applications/Tempo.app", 0.08, 1, false, false},
    {"Harbor Mail", "/Applications/Harbor Mail.app", 0.06, 2, false, false},
    {"Shellroom", "/Applications/Shellroom.app", 0.04, 1, false, false},
    {"clang", nullptr, 0.24, 1, true, false},
    {"Ferrow", "/Applications/Ferrow.app", 0.0015, 1, false, true},
}};

constexpr double kRunS = 30.0;        // a compiler run
constexpr double kActivitySlotS = 300.0; // how long an application keeps its pace
constexpr double kWattsPerCore = 4.0; // a busy core, for the CPU time that goes with the energy

std::uint64_t mix(std::uint64_t x)
{
    x += 0x9E3779B97F4A7C15ull;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ull;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBull;
    return x ^ (x >> 31);
}

double noise(std::size_t app, std::int64_t slot)
{
    return static_cast<double>(mix(app * 0x100000001B3ull ^ static_cast<std::uint64_t>(slot)) >> 11) / 9007199254740992.0;
}

} // namespace

SimulatedProcessSource::SimulatedProcessSource(SimulatedMachine &machine) : m_machine(machine)
{
}

std::optional<ProcessFrame> SimulatedProcessSource::sample()
{
    m_machine.sync();
    const double uptimeS = m_machine.clock().uptimeSeconds();
    double chipJ = 0;
    for (const double domainJ : m_machine.model().state().domainEnergyJ)
        chipJ += domainJ;
    const double newJ = m_lastChipJ ? std::max(0.0, chipJ - *m_lastChipJ) : 0.0;
    m_lastChipJ = chipJ;

    // Who runs now, and how busy: each application's pace changes every few minutes.
    struct Running {
        std::pair<int, std::int64_t> key;
        double weight;
    };
    std::vector<Running> running;
    const auto activitySlot = static_cast<std::int64_t>(uptimeS / kActivitySlotS);
    for (std::size_t app = 0; app < kApplications.size(); ++app) {
        const SimulatedApplication &application = kApplications[app];
        const double pace = application.isSelf ? 1.0 : 0.2 + 1.6 * noise(app, activitySlot);
        if (application.comesAndGoes) {
            const auto run = static_cast<std::int64_t>(uptimeS / kRunS);
            if (noise(app + 100, run / 4) < 0.5) // builds come in bursts of a few runs
                running.push_back({{static_cast<int>(app), run}, application.weight * pace});
            continue;
        }
        for (int instance = 0; instance < application.processes; ++instance)
            running.push_back({{static_cast<int>(app), instance}, application.weight * pace / (instance + 1)});
    }
    const double totalWeight = std::accumulate(running.begin(), running.end(), 0.0, [](double sum, const Running &r) { return sum + r.weight; });

    std::map<std::pair<int, std::int64_t>, ProcessSample> stillRunning;
    ProcessFrame frame;
    frame.uptimeS = uptimeS;
    for (const Running &r : running) {
        auto found = m_running.find(r.key);
        ProcessSample process;
        if (found != m_running.end()) {
            process = found->second;
        } else {
            const SimulatedApplication &application = kApplications[static_cast<std::size_t>(r.key.first)];
            process.pid = m_nextPid++;
            process.startedS = application.comesAndGoes ? static_cast<double>(r.key.second) * kRunS : uptimeS;
            process.group = application.bundle ? QString::fromLatin1(application.bundle) : QString::fromLatin1(application.name);
            process.name = QString::fromLatin1(application.name);
            process.icon = application.bundle ? process.group : QString();
            process.energyJ = 0.0;
            process.isSelf = application.isSelf;
        }
        const double energyJ = totalWeight > 0 ? newJ * kUserShare * r.weight / totalWeight : 0.0;
        process.energyJ = *process.energyJ + energyJ;
        process.cpuTimeS += energyJ / kWattsPerCore;
        frame.processes.push_back(process);
        stillRunning.emplace(r.key, std::move(process));
    }
    m_running = std::move(stillRunning);
    return frame;
}

} // namespace ferrow
