// The system profiler's JSON walk and percentage parse over arbitrary output.
#include "sources/battery_health_sources.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray output(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto percent = ferrow::BatteryHealthSources::maximumCapacityPercentFromProfiler(output);
    if (percent && (*percent < 0 || *percent > 100))
        __builtin_trap();
    return 0;
}
