#include "sources/battery_cell_reader.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numeric>

namespace ferrow {
namespace {

constexpr double kMinimumCellV = 2.0;
constexpr double kMaximumCellV = 5.0;
constexpr double kMinimumPackV = 2.0;
constexpr double kMaximumPackV = 40.0;
constexpr const char *kPackKey = "SBAV";

bool isPlausibleCell(double volts)
{
    return std::isfinite(volts) && volts >= kMinimumCellV && volts <= kMaximumCellV;
}

// "SBA1".."SBA8", in order.
const std::vector<std::string> &cellKeys()
{
    static const std::vector<std::string> keys = [] {
        std::vector<std::string> names;
        for (int cell = 1; cell <= BatteryCellReader::kMaximumCells; ++cell)
            names.push_back("SBA" + std::to_string(cell));
        return names;
    }();
    return keys;
}

std::optional<double> readCell(StatsSMC &smc, const std::string &key)
{
    SMCValue value;
    value.key = key;
    if (smc.readKey(value) != kIOKitSuccess || value.dataType != "flt " || value.dataSize != 4)
        return std::nullopt;
    float volts;
    std::memcpy(&volts, value.bytes.data(), sizeof volts);
    if (!isPlausibleCell(volts))
        return std::nullopt;
    return static_cast<double>(volts);
}

} // namespace

std::vector<std::string> BatteryCellReader::smcKeys()
{
    std::vector<std::string> keys = cellKeys();
    keys.push_back(kPackKey);
    return keys;
}

BatteryCellReader::Reading BatteryCellReader::readCells(StatsSMC &smc)
{
    const std::vector<std::string> &keys = m_keys.keys(smc, cellKeys());
    if (keys.empty())
        return {};
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (keys[i] != cellKeys()[i])
            return {}; // a gap in the numbering: the cells cannot be matched to the pack
    }

    Reading reading;
    for (const std::string &key : keys)
        reading.cellsV.push_back(readCell(smc, key));
    reading.packV = smc.readDouble(kPackKey);
    return reading;
}

CellVoltages resolveCellVoltages(const std::optional<std::vector<double>> &registryMillivolts, bool hasBattery,
                                 bool smcAllowed, BatteryCellReader &reader, StatsSMC &smc)
{
    if (!hasBattery)
        return {};

    if (registryMillivolts && !registryMillivolts->empty()) {
        std::vector<double> volts;
        volts.reserve(registryMillivolts->size());
        for (const double millivolts : *registryMillivolts)
            volts.push_back(millivolts / 1000.0);
        if (volts.size() <= BatteryCellReader::kMaximumCells && std::all_of(volts.begin(), volts.end(), isPlausibleCell))
            return {std::move(volts), BatteryCellSource::registry};
    }

    if (!smcAllowed)
        return {};
    const BatteryCellReader::Reading reading = reader.readCells(smc);
    if (reading.cellsV.empty() || reading.cellsV.size() > BatteryCellReader::kMaximumCells)
        return {};
    std::vector<double> volts;
    for (const std::optional<double> &cell : reading.cellsV) {
        if (!cell || !isPlausibleCell(*cell))
            return {};
        volts.push_back(*cell);
    }
    if (!reading.packV || !std::isfinite(*reading.packV) || *reading.packV < kMinimumPackV || *reading.packV > kMaximumPackV)
        return {};
    const double packV = *reading.packV;
    const double sumV = std::accumulate(volts.begin(), volts.end(), 0.0);
    const double toleranceV = std::max(0.03 * packV, 0.2);
    if (std::fabs(sumV - packV) > toleranceV)
        return {};
    return {std::move(volts), BatteryCellSource::smc};
}

} // namespace ferrow
