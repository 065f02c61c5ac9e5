#pragma once
// Declarations with Apple's documented signatures, for compiling the macOS sources on Linux.

#include <mach/mach.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

struct mach_timebase_info {
    uint32_t numer;
    uint32_t denom;
};
typedef struct mach_timebase_info mach_timebase_info_data_t;
typedef struct mach_timebase_info *mach_timebase_info_t;

kern_return_t mach_timebase_info(mach_timebase_info_t info);
uint64_t mach_absolute_time(void);

#ifdef __cplusplus
}
#endif
