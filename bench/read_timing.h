#pragma once

#include "monitor/snapshot_reader.h"

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstddef>

#include "allocation_count.h"
#if defined(__GLIBC__)
#define FERROW_COUNTS_ALLOCATIONS 1
#endif

// Times reader.read() after a baseline reading, with beforeEach run outside the timing, and
// counts the heap allocations of one read where the C library lets us.
template <typename BeforeEach>
void timeReads(benchmark::State &state, ferrow::SnapshotReader &reader, BeforeEach beforeEach)
{
    reader.read();
    std::size_t allocations = 0;
    for (auto _ : state) {
        beforeEach();
        const std::size_t before = allocationCount.load();
        benchmark::DoNotOptimize(reader.read());
        allocations += allocationCount.load() - before;
    }
#ifdef FERROW_COUNTS_ALLOCATIONS
    state.counters["allocs/read"] = benchmark::Counter(static_cast<double>(allocations), benchmark::Counter::kAvgIterations);
#else
    benchmark::DoNotOptimize(allocations);
#endif
}
