#pragma once

#include "alerts/alert_settings.h"
#include "model/power_snapshot.h"

#include <optional>

namespace ferrow {

// What each alert looks for in one reading, and how long it must last. Every condition is
// false on a machine without a battery.

// Charger cannot keep up: on external power, not charging, the battery giving more than a
// watt. A battery held at a charge limit hovers near 0 W and stays clear of it.
inline constexpr double kChargerDeficitW = -1.0;
inline constexpr double kChargerHoldS = 120;
bool chargerFallsShort(const PowerSnapshot &reading);

// Charging slowly: from a USB-C source on its 5 V default, or from an adapter rated below what
// the system drew on average. A source starts at 5 V before it negotiates more, hence the hold.
inline constexpr double kFiveVoltCeilingV = 6.0;
inline constexpr double kMeanDrawWindowS = 600;
inline constexpr double kSlowChargeHoldS = 120;
bool onFiveVolts(const PowerSnapshot &reading);
bool chargesSlowly(const PowerSnapshot &reading, std::optional<double> meanSystemPowerW);

// The adapter's rating. The reading carries no rated wattage, so it is the voltage and current
// the adapter delivers at; absent where either is unknown.
std::optional<double> adapterRatingW(const PowerSnapshot &reading);

// Battery hot: at the charging threshold for a while during a charge, or at the upper one ever.
inline constexpr double kHotWhileChargingHoldS = 300;
bool hotWhileCharging(const PowerSnapshot &reading, const AlertSettings &settings);
bool hotAtAnyTime(const PowerSnapshot &reading, const AlertSettings &settings);

// Cells out of balance: judged at rest only, where load and charge do not pull cells apart.
inline constexpr double kCellSpreadLimitMV = 100;
inline constexpr double kCellsAtRestA = 0.5;
inline constexpr double kCellsHoldS = 600;
// Highest minus lowest cell voltage; absent with fewer than two readable cells.
std::optional<double> cellSpreadV(const PowerSnapshot &reading);
bool cellsApart(const PowerSnapshot &reading);

} // namespace ferrow
