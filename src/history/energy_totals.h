#pragma once

#include "model/power_snapshot.h"

#include <array>
#include <optional>

namespace ferrow {

// The longest step between two readings that still counts as covered; a longer one (a sleep, a
// stalled worker) is a gap, never energy.
inline constexpr double kLongestCoveredStepS = 5.0;

// Chip energy domains in the order of ChipPower: cpu, gpu, ane, ram.
inline constexpr std::size_t kChipDomains = 4;

// Energy over some stretch of covered seconds, in watt-hours. A quantity that no reading in the
// stretch measured stays absent: a gap is not a zero.
struct EnergyTotals {
    double coveredS = 0;
    std::optional<double> adapterWh;
    std::optional<double> systemWh;
    std::optional<double> batteryInWh;
    std::optional<double> batteryOutWh;
    std::array<std::optional<double>, kChipDomains> chipWh{};

    // Adds one reading held for stepS seconds (the time since the one before it).
    void add(const PowerSnapshot &reading, double stepS);
    void add(const EnergyTotals &other);
};

// Whether a step between two readings is covered time: positive and no longer than a few seconds.
bool isCoveredStep(double stepS);

} // namespace ferrow
