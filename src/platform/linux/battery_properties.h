#pragma once

#include "platform/linux/power_supplies.h"
#include "sources/property_value.h"

#include <optional>

namespace ferrow {

// A Linux battery as the battery service's property dictionary that the reader understands, in
// its units (mV, mA, mAh, hundredths of a degree, minutes). Only what the battery reports is in
// it; the discharge power stands in for the system's load while nothing external is online.
PropertyDictionary batteryProperties(const BatteryReading &battery, std::optional<bool> externalOnline);

} // namespace ferrow
