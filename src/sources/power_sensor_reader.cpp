#include "sources/power_sensor_reader.h"

#include "sources/mac_names.h"
#include "sources/reading_rules.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace ferrow {
namespace {

const std::string kPowerKeys[] = {"VD0R", "ID0R", "PSTR", "PDTR", "VP0R"};

using namespace ReadingRules;


const PropertyValue *at(const PropertyDictionary *dictionary, const char *name)
{
    return propertyLookup(dictionary, QLatin1StringView(name));
}

std::optional<std::int64_t> integerAt(const PropertyDictionary *dictionary, const char *name)
{
    return propertyInteger(at(dictionary, name));
}

std::optional<std::int64_t> inRange(std::optional<std::int64_t> value, std::int64_t lowest, std::int64_t highest)
{
    return value && *value >= lowest && *value <= highest ? value : std::nullopt;
}

bool isValidCapacity(std::optional<std::int64_t> mAh)
{
    return inRange(mAh, 1, kLargestCapacityMAH).has_value();
}

std::optional<std::int64_t> firstValidCapacity(std::optional<std::int64_t> preferred, std::optional<std::int64_t> fallback)
{
    if (isValidCapacity(preferred))
        return preferred;
    return isValidCapacity(fallback) ? fallback : std::nullopt;
}

// Whole degrees or tenths of a degree from the battery's lifetime data, within -50..120 °C.
std::optional<double> lifetimeTemperature(std::optional<std::int64_t> raw, double divisor)
{
    if (!raw)
        return std::nullopt;
    const double celsius = static_cast<double>(*raw) / divisor;
    return celsius >= -50.0 && celsius <= 120.0 ? std::optional(celsius) : std::nullopt;
}

std::int64_t stateOfChargePercent(const PropertyDictionary *props)
{
    std::int64_t current = integerAt(props, "CurrentCapacity").value_or(0);
    const std::optional<std::int64_t> reportedMax = integerAt(props, "MaxCapacity");
    const std::int64_t maximum = reportedMax ? std::max<std::int64_t>(*reportedMax, 1) : 100;
    constexpr std::int64_t largestScalable = std::numeric_limits<std::int64_t>::max() / 100;
    if (current > largestScalable || current < -largestScalable)
        current = 0; // beyond any real battery: treated as missing
    return std::clamp<std::int64_t>(current * 100 / maximum, 0, 100);
}

std::optional<std::int64_t> estimateMinutesToFull(std::optional<std::int64_t> voltageMV, std::optional<std::int64_t> remainingMAH,
                                                  std::int64_t fullMAH, double chargePowerW)
{
    if (!voltageMV || !remainingMAH || *remainingMAH < 1 || fullMAH - *remainingMAH <= 0)
        return std::nullopt;
    return minutesToFull(static_cast<double>(*voltageMV) * static_cast<double>(fullMAH - *remainingMAH) / 1'000'000.0, chargePowerW);
}

} // namespace

std::vector<std::string> PowerSensorReader::smcKeysRead()
{
    std::vector<std::string> keys(std::begin(kPowerKeys), std::end(kPowerKeys));
    for (const std::vector<std::string> &more : {BatteryCellReader::smcKeys(), BatteryTemperatureReader::smcKeys()})
        keys.insert(keys.end(), more.begin(), more.end());
    return keys;
}

PowerSensorReader::PowerSensorReader(std::unique_ptr<MachinePlatform> platform)
    : m_platform(std::move(platform))
    , m_health(m_platform->commandRunner(), m_platform->powerSources(), m_platform->clock())
{
}

StatsSMC &PowerSensorReader::smc()
{
    if (!m_smc)
        m_smc = std::make_unique<StatsSMC>(m_platform->createSMCUserClient());
    return *m_smc;
}

BatteryHistoryStore &PowerSensorReader::historyStore()
{
    if (!m_batteryHistoryStore)
        m_batteryHistoryStore = std::make_unique<BatteryHistoryStore>(m_platform->preferences());
    return *m_batteryHistoryStore;
}

StatsChipPowerReader &PowerSensorReader::chipReader()
{
    if (!m_chipReader)
        m_chipReader = std::make_unique<StatsChipPowerReader>(m_platform->createEnergyReportSource(), m_platform->clock());
    return *m_chipReader;
}

std::optional<double> PowerSensorReader::readPowerKey(const std::string &powerKey, double lowest, double highest)
{
    const std::optional<std::set<std::string>> &available = m_powerKeys.found();
    if (!available || !available->contains(powerKey))
        return std::nullopt;
    // An existing key that reads nothing (all-zero bytes, a failed call) counts as 0.
    const double value = smc().readDouble(powerKey).value_or(0.0);
    return std::isfinite(value) && value >= lowest && value <= highest ? std::optional(value) : std::nullopt;
}

struct PowerSensorReader::Reading {
    int osMajorVersion = 0;
    std::optional<double> dcPowerW;
    std::optional<double> systemKeyW;
    std::optional<double> systemPowerW;
    std::optional<PropertyDictionary> properties;
    // Into properties; null where the service or the dictionary is missing.
    const PropertyDictionary *props = nullptr;
    const PropertyDictionary *batteryData = nullptr;
    const PropertyDictionary *lifetime = nullptr;
    const PropertyDictionary *adapter = nullptr;
    std::optional<QString> serial;
    std::optional<std::int64_t> remainingMAH;
    std::optional<std::int64_t> voltageMV;
    std::optional<double> signedCurrentA;
};

void PowerSensorReader::persist()
{
    m_platform->preferences().flush();
}

PowerSnapshot PowerSensorReader::read()
{
    PowerSnapshot s;
    Reading r;
    r.osMajorVersion = m_platform->systemInfo().operatingSystemMajorVersion();
    m_powerKeys.keys(smc(), kPowerKeys);
    // One sample a read: the chip's power is what it used since the previous read.
    s.chipPower = chipReader().sample();
    readInputPower(r, s);
    readBatteryService(r, s);
    readFlowsAndChargeState(r, s);
    readCapacities(r, s);
    readHealth(s);
    readCellsAndTemperature(r, s);
    readPackElectrics(r, s);
    recordLifetimeExtremes(r, s);
    readTimeToFull(r, s);
    readCountsAndNames(r, s);
    completeSnapshot(r, s);
    return s;
}

void PowerSensorReader::readInputPower(Reading &r, PowerSnapshot &s)
{
    const std::optional<double> inputVoltageV = readPowerKey("VD0R", 0, kMaximumInputVoltageV);
    const std::optional<double> inputCurrentA = readPowerKey("ID0R", 0, kMaximumInputCurrentA);
    s.dcVoltageV = inputVoltageV && *inputVoltageV >= kInputVoltageFloorV ? *inputVoltageV : 0.0;
    s.dcCurrentA = inputCurrentA && *inputCurrentA >= kInputCurrentFloorA ? *inputCurrentA : 0.0;
    const std::optional<double> inputPowerW = readPowerKey("PDTR", 0, kMaximumPowerW);
    r.systemKeyW = readPowerKey("PSTR", 0, kMaximumPowerW);
    r.dcPowerW = inputVoltageV && inputCurrentA ? std::optional(s.dcVoltageV * s.dcCurrentA) : inputPowerW;
}

void PowerSensorReader::readBatteryService(Reading &r, PowerSnapshot &s)
{
    r.properties = m_platform->registry().registryProperties(MacNames::batteryService);
    r.props = r.properties ? &*r.properties : nullptr;
    r.batteryData = propertyDictionary(at(r.props, "BatteryData"));
    r.lifetime = propertyDictionary(at(r.batteryData, "LifetimeData"));
    r.adapter = propertyDictionary(at(r.props, "AdapterDetails"));
    r.serial = propertyString(at(r.props, "Serial"));
    s.hasBattery = r.props && propertyBoolean(at(r.props, "BatteryInstalled")).value_or(true);
    // The SMC's system power when it has one, else the battery's own figure for the load.
    const std::optional<std::int64_t> systemLoadMW = integerAt(propertyDictionary(at(r.props, "PowerTelemetryData")), "SystemLoad");
    r.systemPowerW = r.systemKeyW;
    if (!r.systemPowerW && systemLoadMW)
        r.systemPowerW = std::fabs(static_cast<double>(*systemLoadMW) / 1000.0);
}

void PowerSensorReader::readFlowsAndChargeState(const Reading &r, PowerSnapshot &s)
{
    s.batteryRailVoltageV = readPowerKey("VP0R", 2, 30);
    if (!s.hasBattery) {
        s.isExternalConnected = true;
    } else {
        const std::optional<bool> reported = propertyBoolean(at(r.props, "ExternalConnected"));
        s.isExternalConnected = reported ? *reported : m_platform->systemInfo().hasExternalPowerAdapterDetails();
        s.batteryFlowW = r.dcPowerW.value_or(0.0) - r.systemPowerW.value_or(0.0);
        s.batteryChargePowerW = s.isExternalConnected && s.batteryFlowW > 0 ? s.batteryFlowW : 0.0;
    }
    if (s.hasBattery && s.isExternalConnected)
        s.isCharging = propertyBoolean(at(r.props, "IsCharging")).value_or(false) || s.batteryChargePowerW > kChargingOverrideW;
}

void PowerSensorReader::readCapacities(Reading &r, PowerSnapshot &s)
{
    s.batteryPercent = s.hasBattery ? stateOfChargePercent(r.props) : 0;
    s.designCapacityMAH = firstValidCapacity(integerAt(r.props, "DesignCapacity"), integerAt(r.batteryData, "DesignCapacity"));
    s.fullChargeCapacityMAH = firstValidCapacity(integerAt(r.props, "AppleRawMaxCapacity"), integerAt(r.batteryData, "FullChargeCapacity"));
    s.nominalFullChargeCapacityMAH = firstValidCapacity(integerAt(r.props, "NominalChargeCapacity"), std::nullopt);
    r.remainingMAH = integerAt(r.batteryData, "RemainingCapacity");
    s.remainingCapacityMAH = isValidCapacity(r.remainingMAH) ? r.remainingMAH : std::nullopt;
}

void PowerSensorReader::readHealth(PowerSnapshot &s)
{
    if (!s.hasBattery)
        return;
    s.batteryHealthPercent = m_health.systemBatteryHealthPercent();
    if (!s.batteryHealthPercent)
        s.batteryHealthPercent = BatteryHealthSources::capacityHealthPercent(
            s.nominalFullChargeCapacityMAH ? s.nominalFullChargeCapacityMAH : s.fullChargeCapacityMAH, s.designCapacityMAH);
    s.batteryHealthCondition = m_health.readBatteryHealthCondition();
}

void PowerSensorReader::readCellsAndTemperature(const Reading &r, PowerSnapshot &s)
{
    CellVoltages cells = resolveCellVoltages(propertyNumberList(at(r.batteryData, "CellVoltage")), s.hasBattery,
                                             r.osMajorVersion == MacNames::firstVersionWithSMCSensors, m_cellReader, smc());
    s.cellVoltagesV = std::move(cells.voltagesV);
    s.cellVoltageSource = cells.source;

    // A present top-level value is never replaced by the nested one.
    std::optional<std::int64_t> rawTemperature = integerAt(r.props, "Temperature");
    if (!rawTemperature)
        rawTemperature = integerAt(r.batteryData, "Temperature");
    std::optional<double> registryC = rawTemperature ? std::optional(static_cast<double>(*rawTemperature) / 100.0) : std::nullopt;
    if (registryC && !isPlausibleBatteryTemperature(*registryC))
        registryC.reset();
    s.batteryTemperatureC = resolveTemperature(registryC, s.hasBattery, r.osMajorVersion, m_temperatureReader, smc());
}

// The pack voltage, and a current whose sign follows the charging state.
void PowerSensorReader::readPackElectrics(Reading &r, PowerSnapshot &s)
{
    r.voltageMV = inRange(integerAt(r.props, "Voltage"), 1, 30'000);
    if (r.voltageMV)
        s.batteryVoltageV = static_cast<double>(*r.voltageMV) / 1000.0;
    const std::optional<std::int64_t> amperageMA = integerAt(r.props, "Amperage");
    r.signedCurrentA = amperageMA ? std::optional(static_cast<double>(*amperageMA) / 1000.0) : std::nullopt;
    if (r.signedCurrentA && std::fabs(*r.signedCurrentA) <= kMaximumBatteryCurrentA)
        s.batteryCurrentA = s.isCharging ? std::fabs(*r.signedCurrentA) : -std::fabs(*r.signedCurrentA);
}

void PowerSensorReader::recordLifetimeExtremes(const Reading &r, PowerSnapshot &s)
{
    if (r.osMajorVersion < MacNames::firstVersionWithSMCSensors) {
        // Systems without the temperature history have the battery's own lifetime figures.
        s.lifetimeMaxTemperatureC = lifetimeTemperature(integerAt(r.lifetime, "MaximumTemperature"), 1.0);
        s.lifetimeMinTemperatureC = lifetimeTemperature(integerAt(r.lifetime, "MinimumTemperature"), 1.0);
        s.lifetimeAverageTemperatureC = lifetimeTemperature(integerAt(r.lifetime, "AverageTemperature"), 10.0);
    } else if (s.hasBattery) {
        const BatteryTemperatureHistory temperatures = historyStore().recordTemperature(r.serial, s.batteryTemperatureC);
        s.lifetimeMaxTemperatureC = temperatures.maximumC;
        s.lifetimeMinTemperatureC = temperatures.minimumC;
        s.lifetimeAverageTemperatureC = temperatures.averageC;
    }
    // The electrical history on every version, with the current's own sign.
    if (s.hasBattery) {
        const BatteryElectricalHistory electrical = historyStore().recordElectrical(r.serial, s.batteryVoltageV, r.signedCurrentA);
        s.lifetimeMaxPackVoltageV = electrical.maximumVoltageV;
        s.lifetimeMinPackVoltageV = electrical.minimumVoltageV;
        s.lifetimeMaxChargeCurrentA = electrical.maximumChargeCurrentA;
        s.lifetimeMaxDischargeCurrentA = electrical.maximumDischargeCurrentA;
    }
}

// The battery's own figure when valid, else an estimate while charging.
void PowerSensorReader::readTimeToFull(const Reading &r, PowerSnapshot &s)
{
    std::optional<std::int64_t> reportedMinutes = integerAt(r.props, "AvgTimeToFull");
    if (!reportedMinutes)
        reportedMinutes = integerAt(r.batteryData, "AvgTimeToFull");
    if (inRange(reportedMinutes, 1, kLongestReportedMinutesToFull))
        s.estimatedMinutesToFull = reportedMinutes;
    else if (s.isCharging && s.batteryChargePowerW >= kEstimateMinimumChargeW && s.fullChargeCapacityMAH)
        s.estimatedMinutesToFull = estimateMinutesToFull(r.voltageMV, r.remainingMAH, *s.fullChargeCapacityMAH, s.batteryChargePowerW);
}

void PowerSensorReader::readCountsAndNames(const Reading &r, PowerSnapshot &s)
{
    s.cycleCount = integerAt(r.props, "CycleCount");
    s.designCycleCount = integerAt(r.props, "DesignCycleCount9C");
    if (!s.designCycleCount)
        s.designCycleCount = integerAt(r.props, "DesignCycleCount70");
    s.deviceName = propertyString(at(r.props, "DeviceName"));
    s.batterySerial = r.serial;
    s.totalOperatingMinutes = inRange(integerAt(r.lifetime, "TotalOperatingTime"), 0, 10'000'000);
    s.batterySafetyProtectionCount = inRange(integerAt(r.props, "BatteryCellDisconnectCount"), 0, 1'000'000);
    s.adapterDescription = propertyString(at(r.adapter, "Description"));
}

void PowerSensorReader::completeSnapshot(const Reading &r, PowerSnapshot &s)
{
    s.dcPowerW = r.dcPowerW.value_or(0.0);
    s.systemPowerW = r.systemPowerW.value_or(0.0);
    s.isDataAvailable = r.dcPowerW.has_value() && r.systemPowerW.has_value();
    s.updatedAt = m_platform->clock().now();
}

} // namespace ferrow
