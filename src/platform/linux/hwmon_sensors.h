#pragma once

#include "platform/linux/sysfs_files.h"

#include <map>
#include <string>
#include <vector>

namespace ferrow {

// The power sensors under sys/class/hwmon, found once: the SMC's own quantities where the
// macsmc-hwmon driver shows them (recognised by their labels), and graphics power.
struct HwmonSensors {
    struct Sensor {
        std::string path;
        double toSI = 1; // the file's unit (µW, mV, mA) in watts, volts or amperes
    };
    std::map<std::string, Sensor> smcKeys;   // by the SMC key the label names, e.g. "PSTR"
    std::vector<std::string> gpuPowerFiles; // µW

    static HwmonSensors discover(SysfsFiles &files);
};

} // namespace ferrow
