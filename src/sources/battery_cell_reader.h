#pragma once

#include "model/power_snapshot.h"
#include "sources/key_probe.h"
#include "sources/stats_smc.h"

#include <optional>
#include <string>
#include <vector>

namespace ferrow {

// Per-cell voltages from the SMC's "SBA1".."SBA8" keys and the pack voltage "SBAV".
class BatteryCellReader {
public:
    struct Reading {
        std::vector<std::optional<double>> cellsV; // one entry per key, absent where a read failed
        std::optional<double> packV;
    };

    static constexpr int kMaximumCells = 8;
    // The cell keys in order, then the pack voltage's.
    static std::vector<std::string> smcKeys();

    Reading readCells(StatsSMC &smc);
    // The keys found on this machine; absent until the first read, then fixed for the process.
    const std::optional<std::vector<std::string>> &keys() const { return m_keys.found(); }

private:
    KeyProbe<std::vector<std::string>> m_keys;
};

struct CellVoltages {
    std::vector<double> voltagesV;
    std::optional<BatteryCellSource> source;
};

// The cell voltages to show: the registry's when they pass, else the SMC's when allowed and they
// add up to the pack voltage, else none.
CellVoltages resolveCellVoltages(const std::optional<std::vector<double>> &registryMillivolts, bool hasBattery,
                                 bool smcAllowed, BatteryCellReader &reader, StatsSMC &smc);

} // namespace ferrow
