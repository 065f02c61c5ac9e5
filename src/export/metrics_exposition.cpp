#include "export/metrics_exposition.h"

#include <QLocale>

#include <cmath>
#include <vector>

namespace ferrow {
namespace {

struct Sample {
    QByteArray labels; // name="value" pairs, already escaped
    std::optional<double> value;
};

QByteArray label(const char *name, QStringView value)
{
    QByteArray escaped;
    for (const char c : value.toUtf8()) {
        if (c == '\\')
            escaped += "\\\\";
        else if (c == '"')
            escaped += "\\\"";
        else if (c == '\n')
            escaped += "\\n";
        else
            escaped += c;
    }
    return QByteArray(name) + "=\"" + escaped + '"';
}

template <typename Number>
std::optional<double> scaled(const std::optional<Number> &value, double factor = 1.0)
{
    return value ? std::optional<double>(static_cast<double>(*value) * factor) : std::nullopt;
}

// Charge in coulombs, the base unit (1 mAh is 3.6 C). Multiplied by 36 exactly, then divided once:
// 3.6 has no exact double, so multiplying by it can print a long tail of digits.
std::optional<double> coulombs(const std::optional<std::int64_t> &milliampereHours)
{
    return milliampereHours ? std::optional<double>(static_cast<double>(*milliampereHours) * 36.0 / 10.0) : std::nullopt;
}

std::optional<double> when(bool present, double value)
{
    return present ? std::optional<double>(value) : std::nullopt;
}

std::optional<double> flag(bool value)
{
    return value ? 1.0 : 0.0;
}

class Exposition {
public:
    // A family without one finite sample is left out whole, its HELP and TYPE lines too.
    void gauge(const char *name, const char *help, const std::vector<Sample> &samples)
    {
        bool introduced = false;
        for (const Sample &sample : samples) {
            if (!sample.value || !std::isfinite(*sample.value))
                continue;
            if (!introduced) {
                text += QByteArray("# HELP ") + name + ' ' + help + "\n# TYPE " + name + " gauge\n";
                introduced = true;
            }
            text += name;
            if (!sample.labels.isEmpty())
                text += '{' + sample.labels + '}';
            text += ' ' + QByteArray::number(*sample.value, 'g', QLocale::FloatingPointShortest) + '\n';
        }
    }

    void gauge(const char *name, const char *help, std::optional<double> value)
    {
        gauge(name, help, std::vector<Sample>{{{}, value}});
    }

    QByteArray text;
};

void addInput(Exposition &out, const PowerSnapshot &s)
{
    // Without both power figures the reading cannot tell a missing value from a real 0, nor
    // derive the battery's flow from them.
    const bool powerKnown = s.isDataAvailable;
    out.gauge("ferrow_headline_power_watts", "The menu bar's figure: input power, or the battery's flow while it supplies the machine.",
              powerKnown ? s.displayPowerW() : std::nullopt);
    out.gauge("ferrow_data_available", "1 when the reading obtained both the input and the system power.", flag(s.isDataAvailable));
    out.gauge("ferrow_external_power_connected", "1 while external power is connected.", flag(s.isExternalConnected));
    out.gauge("ferrow_input_voltage_volts", "Voltage of the external power input.", s.dcVoltageV);
    out.gauge("ferrow_input_current_amperes", "Current drawn from the external power input.", s.dcCurrentA);
    out.gauge("ferrow_input_power_watts", "Power drawn from the external power input.", when(powerKnown, s.dcPowerW));
    out.gauge("ferrow_system_power_watts", "Total power consumed by the system.", when(powerKnown, s.systemPowerW));
    out.gauge("ferrow_chip_power_watts", "Power of one block of the processor package.",
              {{label("domain", u"cpu"), s.chipPower.cpu},
               {label("domain", u"gpu"), s.chipPower.gpu},
               {label("domain", u"ane"), s.chipPower.ane},
               {label("domain", u"ram"), s.chipPower.ram}});
    out.gauge("ferrow_battery_present", "1 when the machine has a battery.", flag(s.hasBattery));
    out.gauge("ferrow_battery_flow_watts", "Power into the battery, negative while it discharges.",
              when(s.hasBattery && powerKnown, s.batteryFlowW));
    out.gauge("ferrow_battery_charge_power_watts", "Power going into the battery while it charges.",
              when(s.hasBattery && powerKnown, s.batteryChargePowerW));
}

void addBattery(Exposition &out, const PowerSnapshot &s)
{
    out.gauge("ferrow_battery_charging", "1 while the battery is charging.", when(s.hasBattery, s.isCharging ? 1 : 0));
    out.gauge("ferrow_battery_charge_percent", "State of charge of the battery.",
              when(s.hasBattery, static_cast<double>(s.batteryPercent)));
    out.gauge("ferrow_battery_health_percent", "Maximum capacity of the battery relative to its design.", scaled(s.batteryHealthPercent));
    std::vector<Sample> conditions;
    if (s.batteryHealthCondition) {
        using enum BatteryHealthCondition;
        for (const BatteryHealthCondition condition : {good, fair, poor})
            conditions.push_back({label("condition", rawValue(condition)), flag(condition == *s.batteryHealthCondition)});
    }
    out.gauge("ferrow_battery_health_condition", "1 for the system's present health classification of the battery.", conditions);
    out.gauge("ferrow_battery_temperature_celsius", "Temperature of the battery.", s.batteryTemperatureC);
    out.gauge("ferrow_battery_voltage_volts", "Pack voltage as the battery reports it.", s.batteryVoltageV);
    out.gauge("ferrow_battery_current_amperes", "Battery current, negative unless charging.", s.batteryCurrentA);
    out.gauge("ferrow_battery_rail_voltage_volts", "Voltage of the battery rail as the system management controller measures it.",
              s.batteryRailVoltageV);
    std::vector<Sample> cells;
    for (std::size_t index = 0; index < s.cellVoltagesV.size(); ++index)
        cells.push_back({label("cell", QString::number(index + 1)), s.cellVoltagesV[index]});
    out.gauge("ferrow_battery_cell_voltage_volts", "Voltage of one battery cell, numbered from 1.", cells);
    out.gauge("ferrow_battery_cycles", "Charge cycles of the battery so far.", scaled(s.cycleCount));
    out.gauge("ferrow_battery_design_cycles", "Rated cycle count of the battery design.", scaled(s.designCycleCount));
    out.gauge("ferrow_battery_time_to_full_seconds", "Estimated time until the battery is full.", scaled(s.estimatedMinutesToFull, 60.0));
    out.gauge("ferrow_battery_design_capacity_coulombs", "Design capacity of the battery.", coulombs(s.designCapacityMAH));
    out.gauge("ferrow_battery_full_charge_capacity_coulombs", "Present full-charge capacity of the battery.",
              coulombs(s.fullChargeCapacityMAH));
    out.gauge("ferrow_battery_nominal_capacity_coulombs", "Nominal full-charge capacity of the battery.",
              coulombs(s.nominalFullChargeCapacityMAH));
    out.gauge("ferrow_battery_remaining_capacity_coulombs", "Charge remaining in the battery.", coulombs(s.remainingCapacityMAH));
    out.gauge("ferrow_battery_operating_time_seconds", "Total operating time of the battery.", scaled(s.totalOperatingMinutes, 60.0));
}

void addLifetime(Exposition &out, const PowerSnapshot &s)
{
    out.gauge("ferrow_battery_lifetime_max_temperature_celsius", "Highest battery temperature recorded.", s.lifetimeMaxTemperatureC);
    out.gauge("ferrow_battery_lifetime_min_temperature_celsius", "Lowest battery temperature recorded.", s.lifetimeMinTemperatureC);
    out.gauge("ferrow_battery_lifetime_average_temperature_celsius", "Average battery temperature over its life.",
              s.lifetimeAverageTemperatureC);
    out.gauge("ferrow_battery_lifetime_max_voltage_volts", "Highest pack voltage recorded.", s.lifetimeMaxPackVoltageV);
    out.gauge("ferrow_battery_lifetime_min_voltage_volts", "Lowest pack voltage recorded.", s.lifetimeMinPackVoltageV);
    out.gauge("ferrow_battery_lifetime_max_charge_current_amperes", "Highest charge current recorded.", s.lifetimeMaxChargeCurrentA);
    out.gauge("ferrow_battery_lifetime_max_discharge_current_amperes", "Highest discharge current recorded.",
              s.lifetimeMaxDischargeCurrentA);
    out.gauge("ferrow_battery_safety_protections", "Safety-protection events the battery has counted.",
              scaled(s.batterySafetyProtectionCount));
    QByteArray names;
    if (s.deviceName)
        names = label("device", *s.deviceName);
    if (s.batterySerial)
        names += (names.isEmpty() ? "" : ",") + label("serial", *s.batterySerial);
    out.gauge("ferrow_battery_info", "The battery's device name and serial number.", {{names, when(!names.isEmpty(), 1)}});
}

} // namespace

QByteArray metricsExposition(const PowerSnapshot *reading, QStringView version)
{
    Exposition out;
    out.text.reserve(8192); // a full reading takes about 7 KB
    if (reading) {
        using std::chrono::milliseconds;
        const auto sinceEpoch = std::chrono::duration_cast<milliseconds>(reading->updatedAt.time_since_epoch()).count();
        out.gauge("ferrow_reading_timestamp_seconds", "When the reading was taken, in seconds since the Unix epoch.",
                  static_cast<double>(sinceEpoch) / 1000.0);
        addInput(out, *reading);
        addBattery(out, *reading);
        addLifetime(out, *reading);
    }
    out.gauge("ferrow_build_info", "The exporter's version.", {{label("version", version), 1.0}});
    return out.text;
}

} // namespace ferrow
