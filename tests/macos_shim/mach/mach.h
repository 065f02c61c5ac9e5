#pragma once
// Declarations with Apple's documented signatures, for compiling the macOS sources on Linux.

#ifdef __cplusplus
extern "C" {
#endif

typedef unsigned int natural_t;
typedef natural_t mach_port_t;
typedef mach_port_t task_port_t;
typedef int kern_return_t;
#define KERN_SUCCESS 0

extern mach_port_t mach_task_self_;
#define mach_task_self() mach_task_self_

#ifdef __cplusplus
}
#endif
