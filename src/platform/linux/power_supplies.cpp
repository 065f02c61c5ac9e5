#include "platform/linux/power_supplies.h"

#include <algorithm>
#include <set>

namespace ferrow {
namespace {

bool isExternalSupplyType(const std::string &type)
{
    // USB covers every USB flavour the kernel names: USB, USB_C, USB_PD, USB_PD_DRP, USB_DCP...
    return type == "Mains" || type.rfind("USB", 0) == 0;
}

// USB Power Delivery ends at 48 V and 5 A; a hundred times that is no contract.
constexpr std::int64_t kLargestContractMicro = 500'000'000;

} // namespace

PowerSupplies::PowerSupplies(SysfsFiles &files)
    : m_files(files)
{
    const std::string base = files.path("sys/class/power_supply/");
    for (const std::string &name : files.list(base)) {
        const std::string folder = base + name + '/';
        const std::optional<std::string> type = files.readText(folder + "type");
        // A wireless mouse's or a connected phone's battery says scope Device; it does not power this machine.
        if (!type || files.readText(folder + "scope") == "Device")
            continue;
        const std::vector<std::string> names = files.list(folder);
        const std::set<std::string> attributes(names.begin(), names.end());
        const auto at = [&](const char *attribute) { return attributes.contains(attribute) ? folder + attribute : std::string(); };

        if (*type == "Battery") {
            // A driver reports charge (µAh) or energy (µWh); charge where it has both.
            const bool charge = attributes.contains("charge_now") || attributes.contains("charge_full");
            const char *prefix = charge ? "charge_" : "energy_";
            m_batteries.push_back({at("present"), at("status"), at("capacity"), at("voltage_now"), at("current_now"),
                                   at("power_now"), at("voltage_min_design"), at((std::string(prefix) + "now").c_str()),
                                   at((std::string(prefix) + "full").c_str()), at((std::string(prefix) + "full_design").c_str()),
                                   at("cycle_count"), at("temp"), at("time_to_full_now"), at("model_name"), at("serial_number"),
                                   folder + "type", !charge, name});
        } else if (isExternalSupplyType(*type)) {
            m_external.push_back({at("online"), at("voltage_now"), at("current_max"), at("current_now"), type->starts_with("USB")});
        }
    }
}

std::vector<BatteryReading> PowerSupplies::readBatteries()
{
    std::vector<BatteryReading> readings;
    for (const BatteryFiles &battery : m_batteries) {
        BatteryReading reading;
        reading.name = battery.name;
        reading.status = text(battery.status);
        // Some drivers have no present file: such a battery is there as long as its folder is.
        if (battery.present.empty() ? !text(battery.type) : integer(battery.present).value_or(0) == 0)
            continue; // taken out, or gone between two reads
        reading.capacityPercent = integer(battery.capacity);
        reading.voltageUV = integer(battery.voltageNow);
        reading.currentUA = integer(battery.currentNow);
        reading.powerUW = integer(battery.powerNow);
        reading.voltageMinDesignUV = integer(battery.voltageMinDesign);
        reading.energyUnits = battery.energyUnits;
        reading.now = integer(battery.now);
        reading.full = integer(battery.full);
        reading.fullDesign = integer(battery.fullDesign);
        reading.cycleCount = integer(battery.cycleCount);
        reading.temperatureDeciC = integer(battery.temp);
        reading.timeToFullS = integer(battery.timeToFullNow);
        reading.modelName = text(battery.modelName);
        reading.serialNumber = text(battery.serialNumber);
        readings.push_back(std::move(reading));
    }
    return readings;
}

std::optional<bool> PowerSupplies::readExternalOnline()
{
    std::optional<bool> online;
    for (const ExternalFiles &supply : m_external) {
        if (const std::optional<std::int64_t> value = integer(supply.online))
            online = online.value_or(false) || *value > 0;
    }
    return online;
}

std::optional<UsbContract> PowerSupplies::readUsbContract()
{
    std::optional<UsbContract> best;
    double bestW = -1;
    for (const ExternalFiles &supply : m_external) {
        if (!supply.usb || integer(supply.online).value_or(0) <= 0)
            continue;
        const std::int64_t voltageUV = integer(supply.voltageNow).value_or(0);
        if (voltageUV <= 0 || voltageUV > kLargestContractMicro)
            continue;
        std::int64_t currentUA = integer(supply.currentMax).value_or(0);
        if (currentUA <= 0)
            currentUA = integer(supply.currentNow).value_or(0);
        UsbContract contract{static_cast<double>(voltageUV) / 1e6, std::nullopt};
        if (currentUA > 0 && currentUA <= kLargestContractMicro)
            contract.currentA = static_cast<double>(currentUA) / 1e6;
        const double powerW = contract.voltageV * contract.currentA.value_or(0);
        if (powerW > bestW) {
            best = contract;
            bestW = powerW;
        }
    }
    return best;
}

} // namespace ferrow
