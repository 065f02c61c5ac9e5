#pragma once

#include <atomic>
#include <cstddef>

// Every heap allocation of the program, where the C library lets a benchmark count them
// (allocation_count.cpp, linked into the benchmarks that report it).
extern std::atomic<std::size_t> allocationCount;
