#include "alerts/alert_conditions.h"

#include <algorithm>
#include <cmath>

namespace ferrow {
namespace {

// The power figures mean nothing without data; the battery's own figures stand on their own.
bool powerKnown(const PowerSnapshot &reading)
{
    return reading.hasBattery && reading.isDataAvailable;
}

bool above(std::optional<double> value, double threshold)
{
    return value && *value >= threshold; // false for NaN
}

} // namespace

bool chargerFallsShort(const PowerSnapshot &reading)
{
    return powerKnown(reading) && reading.isExternalConnected && !reading.isCharging && reading.batteryFlowW < kChargerDeficitW;
}

std::optional<double> adapterRatingW(const PowerSnapshot &reading)
{
    const double watts = reading.dcVoltageV * reading.dcCurrentA;
    if (!(reading.dcVoltageV > 0) || !(reading.dcCurrentA > 0) || !std::isfinite(watts))
        return std::nullopt;
    return watts;
}

bool onFiveVolts(const PowerSnapshot &reading)
{
    return reading.dcVoltageV > 0 && reading.dcVoltageV < kFiveVoltCeilingV;
}

bool chargesSlowly(const PowerSnapshot &reading, std::optional<double> meanSystemPowerW)
{
    if (!powerKnown(reading) || !reading.isExternalConnected || !reading.isCharging)
        return false;
    const std::optional<double> ratingW = adapterRatingW(reading);
    return onFiveVolts(reading) || (ratingW && meanSystemPowerW && *ratingW < *meanSystemPowerW);
}

bool hotWhileCharging(const PowerSnapshot &reading, const AlertSettings &settings)
{
    return reading.hasBattery && reading.isCharging && above(reading.batteryTemperatureC, settings.hotWhileChargingC);
}

bool hotAtAnyTime(const PowerSnapshot &reading, const AlertSettings &settings)
{
    return reading.hasBattery && above(reading.batteryTemperatureC, settings.hotC);
}

std::optional<double> cellSpreadV(const PowerSnapshot &reading)
{
    const std::vector<double> &cells = reading.cellVoltagesV;
    if (cells.size() < 2 || !std::all_of(cells.begin(), cells.end(), [](double v) { return std::isfinite(v); }))
        return std::nullopt;
    const auto [lowest, highest] = std::minmax_element(cells.begin(), cells.end());
    return *highest - *lowest;
}

bool cellsApart(const PowerSnapshot &reading)
{
    const std::optional<double> spreadV = cellSpreadV(reading);
    const std::optional<double> currentA = reading.batteryCurrentA;
    // Cells come in whole millivolts; a microvolt's slack keeps 4.000 V − 3.900 V at the limit.
    const bool apart = spreadV && *spreadV * 1000 > kCellSpreadLimitMV + 1e-3;
    return reading.hasBattery && apart && currentA && std::fabs(*currentA) <= kCellsAtRestA;
}

} // namespace ferrow
