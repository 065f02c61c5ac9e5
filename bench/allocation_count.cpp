#include "allocation_count.h"

std::atomic<std::size_t> allocationCount{0};

#if defined(__GLIBC__)
// Counts every heap allocation of this program, Qt's (which go straight to malloc) included.
extern "C" void *__libc_malloc(std::size_t size);
extern "C" void *malloc(std::size_t size)
{
    ++allocationCount;
    return __libc_malloc(size);
}
#endif
