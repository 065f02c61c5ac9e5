#include "platform/macos/mach_time.h"

#include <mach/mach_time.h>

namespace ferrow {

double machTicksToSeconds(std::uint64_t ticks)
{
    // One tick is 1 ns on Intel and 125/3 ns on Apple silicon.
    static const mach_timebase_info_data_t timebase = [] {
        mach_timebase_info_data_t info{};
        if (mach_timebase_info(&info) != KERN_SUCCESS || info.denom == 0)
            info = {1, 1};
        return info;
    }();
    return static_cast<double>(static_cast<long double>(ticks) * timebase.numer / timebase.denom / 1e9L);
}

double machUptimeSeconds()
{
    return machTicksToSeconds(mach_absolute_time());
}

} // namespace ferrow
