#pragma once

#include "platform/linux/sysfs_files.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ferrow {

// One reading of a battery in the kernel's units: µV, µA, µW, µAh or µWh, tenths of a degree, seconds.
struct BatteryReading {
    std::string name; // the supply's folder, "BAT0"
    std::optional<std::string> status; // "Charging", "Discharging", "Full", "Not charging", "Unknown"
    std::optional<std::int64_t> capacityPercent;
    std::optional<std::int64_t> voltageUV;
    std::optional<std::int64_t> currentUA; // unsigned on some drivers, signed on others
    std::optional<std::int64_t> powerUW;
    std::optional<std::int64_t> voltageMinDesignUV;
    bool energyUnits = false; // the three below in µWh, else in µAh
    std::optional<std::int64_t> now;
    std::optional<std::int64_t> full;
    std::optional<std::int64_t> fullDesign;
    std::optional<std::int64_t> cycleCount;
    std::optional<std::int64_t> temperatureDeciC;
    std::optional<std::int64_t> timeToFullS;
    std::optional<std::string> modelName;
    std::optional<std::string> serialNumber;
};

// What a USB-C power source agreed to deliver: its voltage, and the current it allows when it says.
struct UsbContract {
    double voltageV = 0;
    std::optional<double> currentA;
};

// The machine's power supplies under sys/class/power_supply: its own batteries (not a mouse's or a
// phone's) and its mains and USB supplies. Which supplies exist and which attributes each has are
// found once; values are read afresh every time.
class PowerSupplies {
public:
    explicit PowerSupplies(SysfsFiles &files);

    bool hasBattery() const { return !m_batteries.empty(); }
    bool hasExternalSupply() const { return !m_external.empty(); }

    // Every battery that is present now (a missing present file means present), in the order the
    // kernel lists them; empty when none is (or they vanished).
    std::vector<BatteryReading> readBatteries();
    // Whether any external supply is online; absent when none can say.
    std::optional<bool> readExternalOnline();
    // The contract an online USB source negotiated: what it offers, not what flows. The one with
    // the most power when several are online.
    std::optional<UsbContract> readUsbContract();

private:
    // Full paths of the attributes a supply has; empty where it has none.
    struct BatteryFiles {
        std::string present, status, capacity, voltageNow, currentNow, powerNow, voltageMinDesign;
        std::string now, full, fullDesign, cycleCount, temp, timeToFullNow, modelName, serialNumber, type;
        bool energyUnits = false;
        std::string name;
    };
    struct ExternalFiles {
        std::string online, voltageNow, currentMax, currentNow;
        bool usb = false;
    };

    std::optional<std::int64_t> integer(const std::string &path) { return path.empty() ? std::nullopt : m_files.readInteger(path); }
    std::optional<std::string> text(const std::string &path) { return path.empty() ? std::nullopt : m_files.readText(path); }

    SysfsFiles &m_files;
    std::vector<BatteryFiles> m_batteries;
    std::vector<ExternalFiles> m_external;
};

} // namespace ferrow
