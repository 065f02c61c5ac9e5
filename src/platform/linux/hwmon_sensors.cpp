#include "platform/linux/hwmon_sensors.h"

#include <set>
#include <string_view>

namespace ferrow {
namespace {

struct LabelledKey {
    std::string_view kind; // the hwmon file prefix: power, in, curr
    std::string_view label;
    const char *smcKey;
    double toSI;
};

// The labels the macsmc-hwmon device tree gives the keys this program reads on macOS.
constexpr LabelledKey kLabelledKeys[] = {
    {"power", "Total System Power", "PSTR", 1e-6},
    {"power", "AC Input Power", "PDTR", 1e-6},
    {"in", "AC Input Voltage", "VD0R", 1e-3},
    {"in", "Charger Input Voltage", "VD0R", 1e-3},
    {"curr", "AC Input Current", "ID0R", 1e-3},
};

void addLabelledKeys(SysfsFiles &files, const std::string &folder, const std::vector<std::string> &names, HwmonSensors &sensors)
{
    constexpr std::string_view suffix = "_label";
    for (const std::string &name : names) {
        if (name.size() <= suffix.size() || !name.ends_with(suffix))
            continue;
        const std::string channel = name.substr(0, name.size() - suffix.size()); // "power1"
        const std::string_view kind = std::string_view(channel).substr(0, channel.find_first_of("0123456789"));
        if (kind != "power" && kind != "in" && kind != "curr")
            continue;
        const std::optional<std::string> label = files.readText(folder + name);
        for (const LabelledKey &key : kLabelledKeys) {
            if (label && kind == key.kind && *label == key.label)
                sensors.smcKeys.try_emplace(key.smcKey, HwmonSensors::Sensor{folder + channel + "_input", key.toSI});
        }
    }
}

} // namespace

HwmonSensors HwmonSensors::discover(SysfsFiles &files)
{
    HwmonSensors sensors;
    const std::string base = files.path("sys/class/hwmon/");
    for (const std::string &device : files.list(base)) {
        const std::string folder = base + device + '/';
        const std::optional<std::string> name = files.readText(folder + "name");
        if (!name)
            continue;
        const std::vector<std::string> names = files.list(folder);
        if (name->starts_with("macsmc")) {
            addLabelledKeys(files, folder, names, sensors);
        } else if (*name == "amdgpu") {
            // Older kernels report the average, newer ones (and some chips) only the current power.
            const std::set<std::string> attributes(names.begin(), names.end());
            if (attributes.contains("power1_average"))
                sensors.gpuPowerFiles.push_back(folder + "power1_average");
            else if (attributes.contains("power1_input"))
                sensors.gpuPowerFiles.push_back(folder + "power1_input");
        }
    }
    return sensors;
}

} // namespace ferrow
