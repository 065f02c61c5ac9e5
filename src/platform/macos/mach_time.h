#pragma once

#include <cstdint>

namespace ferrow {

// Mach absolute time, which stands still while the Mac sleeps, in seconds: the clock of the
// energy frames, of the process frames and of the kernel's process start times.
double machTicksToSeconds(std::uint64_t ticks);
double machUptimeSeconds();

} // namespace ferrow
