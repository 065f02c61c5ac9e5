#pragma once
// Declarations with Apple's documented signatures, for compiling the macOS sources on Linux.

#include <CoreFoundation/CoreFoundation.h>

#ifdef __cplusplus
extern "C" {
#endif

CFDictionaryRef IOPSCopyExternalPowerAdapterDetails(void);
CFTypeRef IOPSCopyPowerSourcesInfo(void);
CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef blob);
CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef blob, CFTypeRef ps);

#ifdef __cplusplus
}
#endif
