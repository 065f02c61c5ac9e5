#pragma once
// Declarations with Apple's documented signatures, for compiling the macOS sources on Linux.

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

int sysctlbyname(const char *name, void *oldp, size_t *oldlenp, void *newp, size_t newlen);

#ifdef __cplusplus
}
#endif
