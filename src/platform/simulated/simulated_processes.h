#pragma once

#include "apps/process_sample.h"

#include <cstdint>
#include <map>
#include <utility>

namespace ferrow {

class SimulatedMachine;

// The user's processes on the simulated Mac: a handful of applications (one with helpers inside
// its bundle), short-lived compiler runs that come and go, and this program. Each sample shares
// the chip's energy since the one before among the running processes, as the kernel's own
// per-process energy would, leaving the system its part.
class SimulatedProcessSource final : public ProcessSource {
public:
    explicit SimulatedProcessSource(SimulatedMachine &machine);

    std::optional<ProcessFrame> sample() override;

    // The part of the chip's energy the user's processes use; the rest is the system's.
    static constexpr double kUserShare = 0.78;

private:
    SimulatedMachine &m_machine;
    std::optional<double> m_lastChipJ;
    // By application and instance (a helper, or a compiler run's slot).
    std::map<std::pair<int, std::int64_t>, ProcessSample> m_running;
    std::int64_t m_nextPid = 412;
};

} // namespace ferrow
