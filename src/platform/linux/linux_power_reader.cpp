#include "platform/linux/linux_power_reader.h"

#include "model/localized_text.h"
#include "platform/common/in_memory_key_value_store.h"
#include "sources/battery_temperature_reader.h"
#include "sources/reading_rules.h"

#include <QDir>
#include <QFile>
#include <QLocale>

#include <chrono>
#include <cmath>

namespace ferrow {
namespace {

using namespace ReadingRules;

class MonotonicClock final : public Clock {
public:
    WallTime now() const override { return std::chrono::system_clock::now(); }
    // Seconds since boot without suspend, as the energy counters run.
    double uptimeSeconds() const override
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    }
};

// Far beyond anything real; the temperature's tenths and the time in seconds stay well inside 64 bits.
constexpr std::int64_t kLargestTemperatureDeciC = 100'000;
constexpr std::int64_t kLongestTimeToFullS = 100'000'000;
constexpr double kLargestMicroValue = 1e15;

std::optional<double> asDouble(std::optional<std::int64_t> value)
{
    if (!value || std::fabs(static_cast<double>(*value)) > kLargestMicroValue)
        return std::nullopt;
    return static_cast<double>(*value);
}

// A capacity in mAh, from µAh or from µWh over the lowest design voltage: the scale the views
// show. Absent where no such voltage is known; never from an invented one.
std::optional<std::int64_t> capacityMAH(std::optional<std::int64_t> value, const BatteryReading &battery)
{
    const std::optional<double> micro = asDouble(value);
    if (!micro || *micro <= 0)
        return std::nullopt;
    double mAh = *micro / 1000.0;
    if (battery.energyUnits) {
        const std::optional<double> designUV = asDouble(battery.voltageMinDesignUV);
        if (!designUV || *designUV <= 0)
            return std::nullopt;
        mAh = *micro / *designUV * 1000.0;
    }
    const std::int64_t rounded = std::llround(mAh);
    return rounded >= 1 && rounded <= kLargestCapacityMAH ? std::optional(rounded) : std::nullopt;
}

// The battery's current in A without its sign: its own, or its power over its voltage.
std::optional<double> currentMagnitudeA(const BatteryReading &battery)
{
    const std::optional<double> currentUA = asDouble(battery.currentUA);
    if (currentUA)
        return std::fabs(*currentUA) / 1e6;
    const std::optional<double> powerUW = asDouble(battery.powerUW), voltageUV = asDouble(battery.voltageUV);
    if (powerUW && voltageUV && *voltageUV > 0)
        return std::fabs(*powerUW) / *voltageUV;
    return std::nullopt;
}

// The battery's power in W without its sign: its own, or its voltage times its current.
std::optional<double> powerMagnitudeW(const BatteryReading &battery)
{
    const std::optional<double> powerUW = asDouble(battery.powerUW);
    if (powerUW)
        return std::fabs(*powerUW) / 1e6;
    const std::optional<double> currentUA = asDouble(battery.currentUA), voltageUV = asDouble(battery.voltageUV);
    if (currentUA && voltageUV)
        return std::fabs(*currentUA) * *voltageUV / 1e12;
    return std::nullopt;
}

// Positive into the battery. Drivers disagree on the current's sign (or give none); the status
// word does not.
double intoBatterySign(const BatteryReading &battery)
{
    const bool charging = battery.status == "Charging";
    const bool discharging = battery.status == "Discharging";
    return discharging || (!charging && battery.currentUA && *battery.currentUA < 0) ? -1.0 : 1.0;
}

std::optional<std::int64_t> stateOfChargePercent(const BatteryReading &battery)
{
    std::optional<std::int64_t> percent = battery.capacityPercent;
    const std::optional<double> now = asDouble(battery.now), full = asDouble(battery.full);
    if (!percent && now && full && *full > 0)
        percent = std::llround(*now / *full * 100.0);
    return percent ? std::optional(std::clamp<std::int64_t>(*percent, 0, 100)) : std::nullopt;
}

// Energy still to go in at the pack's voltage: the energies where the battery counts energy,
// else its charges times its voltage.
std::optional<double> energyToFullWh(const BatteryReading &battery, std::optional<double> voltageV)
{
    const std::optional<double> now = asDouble(battery.now), full = asDouble(battery.full);
    if (!now || !full || *now < 1 || *full - *now <= 0)
        return std::nullopt;
    if (battery.energyUnits)
        return (*full - *now) / 1e6;
    return voltageV ? std::optional((*full - *now) / 1e6 * *voltageV) : std::nullopt;
}

std::optional<double> packTemperatureC(const BatteryReading &battery)
{
    if (!battery.temperatureDeciC || *battery.temperatureDeciC < -kLargestTemperatureDeciC || *battery.temperatureDeciC > kLargestTemperatureDeciC)
        return std::nullopt;
    const double celsius = static_cast<double>(*battery.temperatureDeciC) / 10.0;
    return isPlausibleBatteryTemperature(celsius) ? std::optional(celsius) : std::nullopt;
}

std::optional<double> packVoltageV(const BatteryReading &battery)
{
    const std::optional<double> voltageUV = asDouble(battery.voltageUV);
    return within(voltageUV ? std::optional(*voltageUV / 1e6) : std::nullopt, 0.001, 30.0);
}

// The battery's own word for being on external power; a driver may list no supply, or one that
// reads offline, while the battery charges.
bool statusSaysExternalPower(const std::optional<std::string> &status)
{
    return status == "Charging" || status == "Full" || status == "Not charging";
}

// Health as full over design in the battery's own counters: energies need no voltage.
std::optional<std::int64_t> counterHealthPercent(const BatteryReading &battery)
{
    const std::optional<double> full = asDouble(battery.full), design = asDouble(battery.fullDesign);
    if (!full || !design || *full <= 0 || *design < 1)
        return std::nullopt;
    return static_cast<std::int64_t>(std::clamp(std::round(*full / *design * 100.0), 0.0, 100.0));
}

template <typename Member>
std::optional<std::int64_t> summed(const std::vector<BatteryReading> &packs, Member member)
{
    std::int64_t sum = 0;
    for (const BatteryReading &pack : packs) {
        const std::optional<double> value = asDouble(pack.*member);
        if (!value)
            return std::nullopt;
        sum += static_cast<std::int64_t>(*value);
    }
    return sum;
}

std::optional<QString> optionalText(const std::optional<std::string> &value)
{
    return value ? std::optional(QString::fromStdString(*value)) : std::nullopt;
}

// One pack's own figures, as the details window lists them.
BatteryPack packFigures(const BatteryReading &pack)
{
    BatteryPack figures;
    figures.name = QString::fromStdString(pack.name);
    figures.model = optionalText(pack.modelName);
    figures.serial = optionalText(pack.serialNumber);
    figures.percent = stateOfChargePercent(pack).value_or(0);
    if (const std::optional<double> powerW = powerMagnitudeW(pack))
        figures.flowW = intoBatterySign(pack) * *powerW;
    figures.healthPercent = counterHealthPercent(pack);
    if (pack.cycleCount && *pack.cycleCount > 0)
        figures.cycleCount = pack.cycleCount;
    figures.designCapacityMAH = capacityMAH(pack.fullDesign, pack);
    figures.fullChargeCapacityMAH = capacityMAH(pack.full, pack);
    figures.temperatureC = packTemperatureC(pack);
    figures.voltageV = packVoltageV(pack);
    return figures;
}

// "USB-C 20 V · 3.25 A" in the user's language and digits.
QString contractText(const UsbContract &contract)
{
    const QLocale locale;
    const QString volts = locale.toString(contract.voltageV, 'g', 4);
    if (!contract.currentA)
        return localizedFormatText("power.usb_c_voltage", {volts});
    return localizedFormatText("power.usb_c_contract", {volts, locale.toString(*contract.currentA, 'g', 4)});
}

// Several packs (an internal and an external one, charged and drained one after the other) as
// the user thinks of them: one battery whose charge is the packs' energy over their full energy,
// whose flow is their sum, charging while any pack charges. The pack doing the work lends its
// voltage, current, temperature and name.
BatteryReading combinedPacks(const std::vector<BatteryReading> &packs)
{
    if (packs.size() == 1)
        return packs.front();
    const auto active = std::max_element(packs.begin(), packs.end(), [](const BatteryReading &a, const BatteryReading &b) {
        return powerMagnitudeW(a).value_or(0) < powerMagnitudeW(b).value_or(0);
    });
    BatteryReading combined = *active;
    const auto any = [&](const char *status) {
        return std::any_of(packs.begin(), packs.end(), [status](const BatteryReading &pack) { return pack.status == status; });
    };
    if (any("Charging"))
        combined.status = "Charging";
    else if (any("Discharging"))
        combined.status = "Discharging";
    double flowW = 0;
    bool flowKnown = false;
    for (const BatteryReading &pack : packs) {
        if (const std::optional<double> powerW = powerMagnitudeW(pack)) {
            flowW += intoBatterySign(pack) * *powerW;
            flowKnown = true;
        }
    }
    combined.powerUW = flowKnown ? std::optional(std::llround(std::fabs(flowW) * 1e6)) : std::nullopt;
    combined.currentUA.reset(); // the sum's current follows from its power over the active pack's voltage
    const bool sameUnits = std::all_of(packs.begin(), packs.end(), [&](const BatteryReading &pack) {
        return pack.energyUnits == packs.front().energyUnits && pack.voltageMinDesignUV == packs.front().voltageMinDesignUV;
    });
    combined.now = sameUnits ? summed(packs, &BatteryReading::now) : std::nullopt;
    combined.full = sameUnits ? summed(packs, &BatteryReading::full) : std::nullopt;
    combined.fullDesign = sameUnits ? summed(packs, &BatteryReading::fullDesign) : std::nullopt;
    combined.capacityPercent.reset(); // from the summed counters
    if (!combined.now || !combined.full) {
        std::int64_t percent = 0;
        for (const BatteryReading &pack : packs)
            percent += pack.capacityPercent.value_or(0);
        combined.capacityPercent = percent / static_cast<std::int64_t>(packs.size());
    }
    combined.timeToFullS.reset(); // each pack's own says nothing of the whole
    return combined;
}

} // namespace

LinuxPowerReader::LinuxPowerReader(std::unique_ptr<SysfsFiles> files, std::unique_ptr<KeyValueStore> preferences,
                                   std::unique_ptr<Clock> clock)
    : m_files(std::move(files))
    , m_preferences(std::move(preferences))
    , m_clock(clock ? std::move(clock) : std::make_unique<MonotonicClock>())
    , m_supplies(*m_files)
    , m_hwmon(HwmonSensors::discover(*m_files))
    , m_chip(ChipEnergyFiles::discover(*m_files, m_hwmon.gpuPowerFiles))
    , m_chipReader(std::make_unique<ChipEnergySource>(*m_files, m_chip, *m_clock), *m_clock)
    , m_history(*m_preferences)
{
}

LinuxPowerReader::~LinuxPowerReader() = default;

bool LinuxPowerReader::hasPowerSources() const
{
    return m_supplies.hasBattery() || m_supplies.hasExternalSupply() || !m_hwmon.smcKeys.empty()
        || !m_hwmon.gpuPowerFiles.empty() || m_chip.raplZones > 0;
}

std::optional<double> LinuxPowerReader::sensor(const char *smcKey, double highest)
{
    const auto found = m_hwmon.smcKeys.find(smcKey);
    if (found == m_hwmon.smcKeys.end())
        return std::nullopt;
    const std::optional<double> raw = asDouble(m_files->readInteger(found->second.path));
    return within(raw ? std::optional(*raw * found->second.toSI) : std::nullopt, 0, highest);
}

PowerSnapshot LinuxPowerReader::read()
{
    PowerSnapshot s;
    s.chipPower = m_chipReader.sample();

    // The SMC's own input and system power where hwmon shows them. A USB-C source's voltage and
    // current are its contract, not a measurement: they describe the adapter.
    const std::optional<double> inputVoltageV = sensor("VD0R", kMaximumInputVoltageV);
    const std::optional<double> inputCurrentA = sensor("ID0R", kMaximumInputCurrentA);
    s.dcVoltageV = inputVoltageV && *inputVoltageV >= kInputVoltageFloorV ? *inputVoltageV : 0.0;
    s.dcCurrentA = inputCurrentA && *inputCurrentA >= kInputCurrentFloorA ? *inputCurrentA : 0.0;
    std::optional<double> dcPowerW = inputVoltageV && inputCurrentA ? std::optional(s.dcVoltageV * s.dcCurrentA)
                                                                    : sensor("PDTR", kMaximumPowerW);
    std::optional<double> systemPowerW = sensor("PSTR", kMaximumPowerW);

    const std::vector<BatteryReading> packs = m_supplies.readBatteries();
    const std::optional<BatteryReading> battery = packs.empty() ? std::nullopt : std::optional(combinedPacks(packs));
    const std::optional<bool> externalOnline = m_supplies.readExternalOnline();
    s.hasBattery = battery.has_value();
    s.isExternalConnected = !battery || externalOnline == true || statusSaysExternalPower(battery->status);
    if (const std::optional<UsbContract> contract = m_supplies.readUsbContract())
        s.adapterDescription = contractText(*contract);
    // Without the SMC's figures, nothing comes in while the machine runs on its battery; on
    // external power, what comes in is not measured here.
    const bool smcPower = m_hwmon.smcKeys.contains("PDTR") || m_hwmon.smcKeys.contains("PSTR");
    if (!dcPowerW && !smcPower && battery && !s.isExternalConnected && (externalOnline.has_value() || battery->status))
        dcPowerW = 0.0;

    if (battery) {
        readBattery(s, *battery, packs);
        if (!systemPowerW && battery->status == "Discharging" && externalOnline != true)
            systemPowerW = powerMagnitudeW(*battery); // on the battery alone the system draws what it gives
    }
    if (s.hasBattery) {
        s.batteryFlowW = dcPowerW.value_or(0.0) - systemPowerW.value_or(0.0);
        // With neither side of the machine measured, the battery's own power is its flow.
        if (!dcPowerW && !systemPowerW)
            if (const std::optional<double> powerW = powerMagnitudeW(*battery))
                s.batteryFlowW = intoBatterySign(*battery) * *powerW;
        s.batteryChargePowerW = s.isExternalConnected && s.batteryFlowW > 0 ? s.batteryFlowW : 0.0;
        if (s.isExternalConnected)
            s.isCharging = battery->status == "Charging" || s.batteryChargePowerW > kChargingOverrideW;
        const std::optional<double> currentA = currentMagnitudeA(*battery);
        if (currentA && *currentA <= kMaximumBatteryCurrentA)
            s.batteryCurrentA = s.isCharging ? *currentA : -*currentA;

        // Time to full: the battery's own figure when it gives one, else an estimate while charging.
        const std::optional<std::int64_t> reportedS = battery->timeToFullS;
        const std::int64_t reportedMinutes = reportedS && *reportedS > 0 && *reportedS <= kLongestTimeToFullS ? (*reportedS + 30) / 60 : 0;
        if (reportedMinutes >= 1 && reportedMinutes <= kLongestReportedMinutesToFull)
            s.estimatedMinutesToFull = reportedMinutes;
        else if (s.isCharging && s.batteryChargePowerW >= kEstimateMinimumChargeW && s.fullChargeCapacityMAH)
            if (const std::optional<double> energyWh = energyToFullWh(*battery, s.batteryVoltageV))
                s.estimatedMinutesToFull = minutesToFull(*energyWh, s.batteryChargePowerW);
    }
    s.dcPowerW = dcPowerW.value_or(0.0);
    s.systemPowerW = systemPowerW.value_or(0.0);
    s.isDataAvailable = dcPowerW.has_value() && systemPowerW.has_value();
    s.updatedAt = m_clock->now();
    return s;
}

void LinuxPowerReader::readBattery(PowerSnapshot &s, const BatteryReading &battery, const std::vector<BatteryReading> &packs)
{
    s.batteryPercent = stateOfChargePercent(battery).value_or(0);
    s.designCapacityMAH = capacityMAH(battery.fullDesign, battery);
    s.fullChargeCapacityMAH = capacityMAH(battery.full, battery);
    s.remainingCapacityMAH = capacityMAH(battery.now, battery);
    s.batteryHealthPercent = counterHealthPercent(battery);

    s.batteryTemperatureC = packTemperatureC(battery);
    s.batteryVoltageV = packVoltageV(battery);

    // Each pack keeps its extremes under its own serial; the reading shows the active pack's.
    const std::optional<QString> serial = battery.serialNumber ? std::optional(QString::fromStdString(*battery.serialNumber)) : std::nullopt;
    for (const BatteryReading &pack : packs) {
        BatteryPack figures = packFigures(pack);
        const bool active = figures.serial == serial;
        const BatteryTemperatureHistory temperatures = m_history.recordTemperature(figures.serial, figures.temperatureC);
        const std::optional<double> currentA = currentMagnitudeA(pack);
        const BatteryElectricalHistory electrical = m_history.recordElectrical(
            figures.serial, figures.voltageV, currentA ? std::optional(intoBatterySign(pack) * *currentA) : std::nullopt);
        figures.lifetimeMaxTemperatureC = temperatures.maximumC;
        figures.lifetimeMinTemperatureC = temperatures.minimumC;
        figures.lifetimeMaxPackVoltageV = electrical.maximumVoltageV;
        figures.lifetimeMinPackVoltageV = electrical.minimumVoltageV;
        figures.lifetimeMaxChargeCurrentA = electrical.maximumChargeCurrentA;
        figures.lifetimeMaxDischargeCurrentA = electrical.maximumDischargeCurrentA;
        if (active) {
            s.lifetimeMaxTemperatureC = temperatures.maximumC;
            s.lifetimeMinTemperatureC = temperatures.minimumC;
            s.lifetimeAverageTemperatureC = temperatures.averageC;
            s.lifetimeMaxPackVoltageV = electrical.maximumVoltageV;
            s.lifetimeMinPackVoltageV = electrical.minimumVoltageV;
            s.lifetimeMaxChargeCurrentA = electrical.maximumChargeCurrentA;
            s.lifetimeMaxDischargeCurrentA = electrical.maximumDischargeCurrentA;
        }
        if (packs.size() > 1)
            s.batteryPacks.push_back(std::move(figures));
    }

    // Drivers that do not count cycles say 0.
    if (battery.cycleCount && *battery.cycleCount > 0)
        s.cycleCount = battery.cycleCount;
    s.deviceName = optionalText(battery.modelName);
    s.batterySerial = serial;
}

bool recordSysfsTree(const std::string &sourceRoot, const QString &folder, QString *error)
{
    QString ignored;
    QString &message = error ? *error : ignored;
    if (const QDir target(folder); target.exists() && !target.isEmpty()) {
        message = QStringLiteral("%1 is not empty; record into a new folder").arg(folder);
        return false;
    }
    if (!LinuxPowerReader(std::make_unique<SysfsFiles>(sourceRoot), std::make_unique<InMemoryKeyValueStore>()).hasPowerSources()) {
        message = QStringLiteral("%1: no battery, power supply or power sensor under sys/class, nothing to record")
                      .arg(QFile::decodeName(QByteArray::fromStdString(sourceRoot)));
        return false;
    }
    auto files = std::make_unique<SysfsFiles>(sourceRoot);
    files->copyReadsTo(QFile::encodeName(folder).toStdString());
    const SysfsFiles &copy = *files;
    LinuxPowerReader reader(std::move(files), std::make_unique<InMemoryKeyValueStore>());
    reader.read();
    reader.read(); // the energy counters' second sample
    if (!copy.copyError().isEmpty()) {
        message = copy.copyError();
        return false;
    }
    return true;
}

} // namespace ferrow
