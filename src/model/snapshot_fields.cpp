#include "model/snapshot_fields.h"

#include <array>

namespace ferrow {
namespace {

FieldValue toField(double value)
{
    return value;
}

FieldValue toField(bool value)
{
    return value;
}

FieldValue toField(std::int64_t value)
{
    return value;
}

FieldValue toField(const std::vector<double> &values)
{
    return values;
}

FieldValue toField(WallTime time)
{
    return time;
}

template <typename T>
FieldValue toField(const std::optional<T> &value)
{
    if (!value)
        return {};
    if constexpr (std::is_enum_v<T>)
        return rawValue(*value);
    else
        return toField(*value);
}

FieldValue toField(const std::optional<QString> &value)
{
    return value ? FieldValue(*value) : FieldValue();
}

template <auto Member>
FieldValue member(const PowerSnapshot &s)
{
    return toField(s.*Member);
}

template <auto Member>
FieldValue chip(const PowerSnapshot &s)
{
    return toField(s.chipPower.*Member);
}

// The menu bar's figure, for the metrics only: JSON readers have its parts.
FieldValue headline(const PowerSnapshot &s)
{
    return s.isDataAvailable ? toField(s.displayPowerW()) : FieldValue();
}

constexpr std::array<const char *, 3> kHealthConditions{"good", "fair", "poor"};

using enum MetricScale;
using enum MetricPresence;
using enum MetricShape;

const std::array kFields{
    SnapshotField{.name = "updatedAt", .value = member<&PowerSnapshot::updatedAt>, .metric = "ferrow_reading_timestamp_seconds",
                  .help = "When the reading was taken, in seconds since the Unix epoch."},
    SnapshotField{.name = nullptr, .value = headline, .metric = "ferrow_headline_power_watts",
                  .help = "The menu bar's figure: input power, or the battery's flow while it supplies the machine."},
    SnapshotField{.name = "isDataAvailable", .value = member<&PowerSnapshot::isDataAvailable>, .metric = "ferrow_data_available",
                  .help = "1 when the reading obtained both the input and the system power."},
    SnapshotField{.name = "isExternalConnected", .value = member<&PowerSnapshot::isExternalConnected>,
                  .metric = "ferrow_external_power_connected", .help = "1 while external power is connected."},
    SnapshotField{.name = "dcVoltageV", .value = member<&PowerSnapshot::dcVoltageV>, .metric = "ferrow_input_voltage_volts",
                  .help = "Voltage of the external power input."},
    SnapshotField{.name = "dcCurrentA", .value = member<&PowerSnapshot::dcCurrentA>, .metric = "ferrow_input_current_amperes",
                  .help = "Current drawn from the external power input."},
    SnapshotField{.name = "dcPowerW", .value = member<&PowerSnapshot::dcPowerW>, .metric = "ferrow_input_power_watts",
                  .help = "Power drawn from the external power input.", .presence = withPower},
    SnapshotField{.name = "systemPowerW", .value = member<&PowerSnapshot::systemPowerW>, .metric = "ferrow_system_power_watts",
                  .help = "Total power consumed by the system.", .presence = withPower},
    SnapshotField{.name = "chipPower.cpu", .value = chip<&ChipPower::cpu>, .metric = "ferrow_chip_power_watts",
                  .help = "Power of one block of the processor package.", .label = "domain", .labelValue = "cpu"},
    SnapshotField{.name = "chipPower.gpu", .value = chip<&ChipPower::gpu>, .metric = "ferrow_chip_power_watts",
                  .help = "Power of one block of the processor package.", .label = "domain", .labelValue = "gpu"},
    SnapshotField{.name = "chipPower.ane", .value = chip<&ChipPower::ane>, .metric = "ferrow_chip_power_watts",
                  .help = "Power of one block of the processor package.", .label = "domain", .labelValue = "ane"},
    SnapshotField{.name = "chipPower.ram", .value = chip<&ChipPower::ram>, .metric = "ferrow_chip_power_watts",
                  .help = "Power of one block of the processor package.", .label = "domain", .labelValue = "ram"},
    SnapshotField{.name = "hasBattery", .value = member<&PowerSnapshot::hasBattery>, .metric = "ferrow_battery_present",
                  .help = "1 when the machine has a battery."},
    SnapshotField{.name = "batteryFlowW", .value = member<&PowerSnapshot::batteryFlowW>, .metric = "ferrow_battery_flow_watts",
                  .help = "Power into the battery, negative while it discharges.", .presence = withBatteryAndPower},
    SnapshotField{.name = "batteryChargePowerW", .value = member<&PowerSnapshot::batteryChargePowerW>,
                  .metric = "ferrow_battery_charge_power_watts", .help = "Power going into the battery while it charges.",
                  .presence = withBatteryAndPower},
    SnapshotField{.name = "isCharging", .value = member<&PowerSnapshot::isCharging>, .metric = "ferrow_battery_charging",
                  .help = "1 while the battery is charging.", .presence = withBattery},
    SnapshotField{.name = "batteryPercent", .value = member<&PowerSnapshot::batteryPercent>, .metric = "ferrow_battery_charge_percent",
                  .help = "State of charge of the battery.", .presence = withBattery},
    SnapshotField{.name = "batteryHealthPercent", .value = member<&PowerSnapshot::batteryHealthPercent>,
                  .metric = "ferrow_battery_health_percent", .help = "Maximum capacity of the battery relative to its design."},
    SnapshotField{.name = "batteryHealthCondition", .value = member<&PowerSnapshot::batteryHealthCondition>,
                  .metric = "ferrow_battery_health_condition", .help = "1 for the system's present health classification of the battery.",
                  .label = "condition", .shape = oneOf, .choices = kHealthConditions},
    SnapshotField{.name = "batteryTemperatureC", .value = member<&PowerSnapshot::batteryTemperatureC>,
                  .metric = "ferrow_battery_temperature_celsius", .help = "Temperature of the battery."},
    SnapshotField{.name = "batteryVoltageV", .value = member<&PowerSnapshot::batteryVoltageV>, .metric = "ferrow_battery_voltage_volts",
                  .help = "Pack voltage as the battery reports it."},
    SnapshotField{.name = "batteryCurrentA", .value = member<&PowerSnapshot::batteryCurrentA>, .metric = "ferrow_battery_current_amperes",
                  .help = "Battery current, negative unless charging."},
    SnapshotField{.name = "batteryRailVoltageV", .value = member<&PowerSnapshot::batteryRailVoltageV>,
                  .metric = "ferrow_battery_rail_voltage_volts",
                  .help = "Voltage of the battery rail as the system management controller measures it."},
    SnapshotField{.name = "cellVoltagesV", .value = member<&PowerSnapshot::cellVoltagesV>, .metric = "ferrow_battery_cell_voltage_volts",
                  .help = "Voltage of one battery cell, numbered from 1.", .label = "cell", .shape = numbered},
    SnapshotField{.name = "cellVoltageSource", .value = member<&PowerSnapshot::cellVoltageSource>, .metric = nullptr, .help = nullptr},
    SnapshotField{.name = "cycleCount", .value = member<&PowerSnapshot::cycleCount>, .metric = "ferrow_battery_cycles",
                  .help = "Charge cycles of the battery so far."},
    SnapshotField{.name = "designCycleCount", .value = member<&PowerSnapshot::designCycleCount>, .metric = "ferrow_battery_design_cycles",
                  .help = "Rated cycle count of the battery design."},
    SnapshotField{.name = "estimatedMinutesToFull", .value = member<&PowerSnapshot::estimatedMinutesToFull>,
                  .metric = "ferrow_battery_time_to_full_seconds", .help = "Estimated time until the battery is full.",
                  .scale = minutesToSeconds},
    SnapshotField{.name = "designCapacityMAH", .value = member<&PowerSnapshot::designCapacityMAH>,
                  .metric = "ferrow_battery_design_capacity_coulombs", .help = "Design capacity of the battery.",
                  .scale = milliampereHoursToCoulombs},
    SnapshotField{.name = "fullChargeCapacityMAH", .value = member<&PowerSnapshot::fullChargeCapacityMAH>,
                  .metric = "ferrow_battery_full_charge_capacity_coulombs", .help = "Present full-charge capacity of the battery.",
                  .scale = milliampereHoursToCoulombs},
    SnapshotField{.name = "nominalFullChargeCapacityMAH", .value = member<&PowerSnapshot::nominalFullChargeCapacityMAH>,
                  .metric = "ferrow_battery_nominal_capacity_coulombs", .help = "Nominal full-charge capacity of the battery.",
                  .scale = milliampereHoursToCoulombs},
    SnapshotField{.name = "remainingCapacityMAH", .value = member<&PowerSnapshot::remainingCapacityMAH>,
                  .metric = "ferrow_battery_remaining_capacity_coulombs", .help = "Charge remaining in the battery.",
                  .scale = milliampereHoursToCoulombs},
    SnapshotField{.name = "totalOperatingMinutes", .value = member<&PowerSnapshot::totalOperatingMinutes>,
                  .metric = "ferrow_battery_operating_time_seconds", .help = "Total operating time of the battery.",
                  .scale = minutesToSeconds},
    SnapshotField{.name = "lifetimeMaxTemperatureC", .value = member<&PowerSnapshot::lifetimeMaxTemperatureC>,
                  .metric = "ferrow_battery_lifetime_max_temperature_celsius", .help = "Highest battery temperature recorded."},
    SnapshotField{.name = "lifetimeMinTemperatureC", .value = member<&PowerSnapshot::lifetimeMinTemperatureC>,
                  .metric = "ferrow_battery_lifetime_min_temperature_celsius", .help = "Lowest battery temperature recorded."},
    SnapshotField{.name = "lifetimeAverageTemperatureC", .value = member<&PowerSnapshot::lifetimeAverageTemperatureC>,
                  .metric = "ferrow_battery_lifetime_average_temperature_celsius", .help = "Average battery temperature over its life."},
    SnapshotField{.name = "lifetimeMaxPackVoltageV", .value = member<&PowerSnapshot::lifetimeMaxPackVoltageV>,
                  .metric = "ferrow_battery_lifetime_max_voltage_volts", .help = "Highest pack voltage recorded."},
    SnapshotField{.name = "lifetimeMinPackVoltageV", .value = member<&PowerSnapshot::lifetimeMinPackVoltageV>,
                  .metric = "ferrow_battery_lifetime_min_voltage_volts", .help = "Lowest pack voltage recorded."},
    SnapshotField{.name = "lifetimeMaxChargeCurrentA", .value = member<&PowerSnapshot::lifetimeMaxChargeCurrentA>,
                  .metric = "ferrow_battery_lifetime_max_charge_current_amperes", .help = "Highest charge current recorded."},
    SnapshotField{.name = "lifetimeMaxDischargeCurrentA", .value = member<&PowerSnapshot::lifetimeMaxDischargeCurrentA>,
                  .metric = "ferrow_battery_lifetime_max_discharge_current_amperes", .help = "Highest discharge current recorded."},
    SnapshotField{.name = "batterySafetyProtectionCount", .value = member<&PowerSnapshot::batterySafetyProtectionCount>,
                  .metric = "ferrow_battery_safety_protections", .help = "Safety-protection events the battery has counted."},
    SnapshotField{.name = "deviceName", .value = member<&PowerSnapshot::deviceName>, .metric = "ferrow_battery_info",
                  .help = "The battery's device name and serial number.", .label = "device", .shape = infoLabel},
    SnapshotField{.name = "batterySerial", .value = member<&PowerSnapshot::batterySerial>, .metric = "ferrow_battery_info",
                  .help = "The battery's device name and serial number.", .label = "serial", .shape = infoLabel},
    SnapshotField{.name = "adapterDescription", .value = member<&PowerSnapshot::adapterDescription>, .metric = nullptr, .help = nullptr},
};

} // namespace

std::span<const SnapshotField> snapshotFields()
{
    return kFields;
}

} // namespace ferrow
