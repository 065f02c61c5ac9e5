#pragma once
// Declarations with Apple's documented signatures, for compiling the macOS sources on Linux.

#include <CoreFoundation/CoreFoundation.h>
#include <mach/mach.h>
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef mach_port_t io_object_t;
typedef io_object_t io_iterator_t;
typedef io_object_t io_service_t;
typedef io_object_t io_connect_t;
typedef io_object_t io_registry_entry_t;
typedef uint32_t IOOptionBits;

extern const mach_port_t kIOMainPortDefault;

CFMutableDictionaryRef IOServiceMatching(const char *name);
kern_return_t IOServiceGetMatchingServices(mach_port_t mainPort, CFDictionaryRef matching, io_iterator_t *existing);
io_object_t IOIteratorNext(io_iterator_t iterator);
kern_return_t IOObjectRelease(io_object_t object);
kern_return_t IOServiceOpen(io_service_t service, task_port_t owningTask, uint32_t type, io_connect_t *connect);
kern_return_t IOServiceClose(io_connect_t connect);
kern_return_t IOConnectCallStructMethod(mach_port_t connection, uint32_t selector, const void *inputStruct, size_t inputStructCnt,
                                        void *outputStruct, size_t *outputStructCnt);
kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry, CFMutableDictionaryRef *properties, CFAllocatorRef allocator,
                                                IOOptionBits options);

#ifdef __cplusplus
}
#endif
