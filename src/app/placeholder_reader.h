#pragma once

#include "monitor/snapshot_reader.h"

#include <chrono>

namespace ferrow {

// Stands in for the machine until the real readers exist: a notebook on a 20 V adapter whose
// system load drifts slowly while the battery takes a steady charge.
class PlaceholderReader final : public SnapshotReader {
public:
    PowerSnapshot read() override;

private:
    std::chrono::steady_clock::time_point m_startedAt = std::chrono::steady_clock::now();
};

} // namespace ferrow
