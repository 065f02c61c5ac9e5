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
    return inRange(mAh, 1, 100'000).has_value();
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

void PowerSensorReader::discoverPowerKeys()
{
    m_availableSMCKeys.emplace();
    for (const std::string &powerKey : kPowerKeys) {
        SMCValue value;
        value.key = powerKey;
        if (smc().readKey(value) == kIOKitSuccess && value.dataSize != 0)
            m_availableSMCKeys->insert(powerKey);
    }
}

std::optional<double> PowerSensorReader::readPowerKey(const std::string &powerKey, double lowest, double highest)
{
    if (!m_availableSMCKeys || !m_availableSMCKeys->contains(powerKey))
        return std::nullopt;
    // An existing key that reads nothing (all-zero bytes, a failed call) counts as 0.
    const double value = smc().readDouble(powerKey).value_or(0.0);
    return std::isfinite(value) && value >= lowest && value <= highest ? std::optional(value) : std::nullopt;
}

PowerSnapshot PowerSensorReader::read()
{
    PowerSnapshot s;
    const int osMajorVersion = m_platform->systemInfo().operatingSystemMajorVersion();

    // 1–2. Keys once per process; one chip sample per read.
    if (!m_availableSMCKeys)
        discoverPowerKeys();
    if (!m_chipReader)
        m_chipReader = std::make_unique<StatsChipPowerReader>(m_platform->createEnergyReportSource(), m_platform->clock());
    s.chipPower = m_chipReader->sample();

    // 3. External input.
    const std::optional<double> inputVoltageV = readPowerKey("VD0R", 0, kMaximumInputVoltageV);
    const std::optional<double> inputCurrentA = readPowerKey("ID0R", 0, kMaximumInputCurrentA);
    s.dcVoltageV = inputVoltageV && *inputVoltageV >= kInputVoltageFloorV ? *inputVoltageV : 0.0;
    s.dcCurrentA = inputCurrentA && *inputCurrentA >= kInputCurrentFloorA ? *inputCurrentA : 0.0;
    const std::optional<double> inputPowerW = readPowerKey("PDTR", 0, kMaximumPowerW);
    const std::optional<double> systemKeyW = readPowerKey("PSTR", 0, kMaximumPowerW);
    const std::optional<double> dcPowerW = inputVoltageV && inputCurrentA ? std::optional(s.dcVoltageV * s.dcCurrentA) : inputPowerW;

    // 4–6. Battery service, presence, system power.
    const std::optional<PropertyDictionary> properties = m_platform->registry().registryProperties(MacNames::batteryService);
    const PropertyDictionary *props = properties ? &*properties : nullptr;
    s.hasBattery = props && propertyBoolean(at(props, "BatteryInstalled")).value_or(true);
    const std::optional<std::int64_t> systemLoadMW = integerAt(propertyDictionary(at(props, "PowerTelemetryData")), "SystemLoad");
    std::optional<double> systemPowerW = systemKeyW;
    if (!systemPowerW && systemLoadMW)
        systemPowerW = std::fabs(static_cast<double>(*systemLoadMW) / 1000.0);

    // 7. Battery rail.
    s.batteryRailVoltageV = readPowerKey("VP0R", 2, 30);

    // 8. External power and battery flow.
    if (!s.hasBattery) {
        s.isExternalConnected = true;
    } else {
        const std::optional<bool> reported = propertyBoolean(at(props, "ExternalConnected"));
        s.isExternalConnected = reported ? *reported : m_platform->systemInfo().hasExternalPowerAdapterDetails();
        s.batteryFlowW = dcPowerW.value_or(0.0) - systemPowerW.value_or(0.0);
        s.batteryChargePowerW = s.isExternalConnected && s.batteryFlowW > 0 ? s.batteryFlowW : 0.0;
    }

    // 9–10. Nested dictionaries; charging.
    const PropertyDictionary *batteryData = propertyDictionary(at(props, "BatteryData"));
    const PropertyDictionary *lifetime = propertyDictionary(at(batteryData, "LifetimeData"));
    const PropertyDictionary *adapter = propertyDictionary(at(props, "AdapterDetails"));
    if (s.hasBattery && s.isExternalConnected)
        s.isCharging = propertyBoolean(at(props, "IsCharging")).value_or(false) || s.batteryChargePowerW > kChargingOverrideW;

    // 11–12. State of charge and capacities.
    s.batteryPercent = s.hasBattery ? stateOfChargePercent(props) : 0;
    s.designCapacityMAH = firstValidCapacity(integerAt(props, "DesignCapacity"), integerAt(batteryData, "DesignCapacity"));
    s.fullChargeCapacityMAH = firstValidCapacity(integerAt(props, "AppleRawMaxCapacity"), integerAt(batteryData, "FullChargeCapacity"));
    s.nominalFullChargeCapacityMAH = firstValidCapacity(integerAt(props, "NominalChargeCapacity"), std::nullopt);

    // 13. Health.
    if (s.hasBattery) {
        s.batteryHealthPercent = m_health.systemBatteryHealthPercent();
        if (!s.batteryHealthPercent)
            s.batteryHealthPercent = BatteryHealthSources::capacityHealthPercent(
                s.nominalFullChargeCapacityMAH ? s.nominalFullChargeCapacityMAH : s.fullChargeCapacityMAH, s.designCapacityMAH);
        s.batteryHealthCondition = m_health.readBatteryHealthCondition();
    }

    // 14–15. Remaining capacity; cells.
    const std::optional<std::int64_t> remainingMAH = integerAt(batteryData, "RemainingCapacity");
    s.remainingCapacityMAH = isValidCapacity(remainingMAH) ? remainingMAH : std::nullopt;
    CellVoltages cells = resolveCellVoltages(propertyNumberList(at(batteryData, "CellVoltage")), s.hasBattery,
                                             osMajorVersion == MacNames::firstVersionWithSMCSensors, m_cellReader, smc());
    s.cellVoltagesV = std::move(cells.voltagesV);
    s.cellVoltageSource = cells.source;

    // 16–17. Temperature: a present top-level value is never replaced by the nested one.
    std::optional<std::int64_t> rawTemperature = integerAt(props, "Temperature");
    if (!rawTemperature)
        rawTemperature = integerAt(batteryData, "Temperature");
    std::optional<double> registryC = rawTemperature ? std::optional(static_cast<double>(*rawTemperature) / 100.0) : std::nullopt;
    if (registryC && !isPlausibleBatteryTemperature(*registryC))
        registryC.reset();
    s.batteryTemperatureC = resolveTemperature(registryC, s.hasBattery, osMajorVersion, m_temperatureReader, smc());

    // 18. Temperature history.
    const std::optional<QString> serial = propertyString(at(props, "Serial"));
    if (s.hasBattery && osMajorVersion >= MacNames::firstVersionWithSMCSensors) {
        const BatteryTemperatureHistory temperatures = historyStore().recordTemperature(serial, s.batteryTemperatureC);
        s.lifetimeMaxTemperatureC = temperatures.maximumC;
        s.lifetimeMinTemperatureC = temperatures.minimumC;
        s.lifetimeAverageTemperatureC = temperatures.averageC;
    }

    // 19. Pack voltage, and a current whose sign follows the charging state.
    const std::optional<std::int64_t> voltageMV = inRange(integerAt(props, "Voltage"), 1, 30'000);
    if (voltageMV)
        s.batteryVoltageV = static_cast<double>(*voltageMV) / 1000.0;
    const std::optional<std::int64_t> amperageMA = integerAt(props, "Amperage");
    const std::optional<double> signedCurrentA = amperageMA ? std::optional(static_cast<double>(*amperageMA) / 1000.0) : std::nullopt;
    if (signedCurrentA && std::fabs(*signedCurrentA) <= kMaximumBatteryCurrentA)
        s.batteryCurrentA = s.isCharging ? std::fabs(*signedCurrentA) : -std::fabs(*signedCurrentA);

    // 20. Electrical history, on every version, with the current's own sign.
    if (s.hasBattery) {
        const BatteryElectricalHistory electrical = historyStore().recordElectrical(serial, s.batteryVoltageV, signedCurrentA);
        s.lifetimeMaxPackVoltageV = electrical.maximumVoltageV;
        s.lifetimeMinPackVoltageV = electrical.minimumVoltageV;
        s.lifetimeMaxChargeCurrentA = electrical.maximumChargeCurrentA;
        s.lifetimeMaxDischargeCurrentA = electrical.maximumDischargeCurrentA;
    }

    // 21. Time to full: the battery's own figure when valid, else an estimate while charging.
    std::optional<std::int64_t> reportedMinutes = integerAt(props, "AvgTimeToFull");
    if (!reportedMinutes)
        reportedMinutes = integerAt(batteryData, "AvgTimeToFull");
    if (inRange(reportedMinutes, 1, 65'534))
        s.estimatedMinutesToFull = reportedMinutes;
    else if (s.isCharging && s.batteryChargePowerW >= kEstimateMinimumChargeW && s.fullChargeCapacityMAH)
        s.estimatedMinutesToFull = estimateMinutesToFull(voltageMV, remainingMAH, *s.fullChargeCapacityMAH, s.batteryChargePowerW);

    // 22. Counts and names.
    s.cycleCount = integerAt(props, "CycleCount");
    s.designCycleCount = integerAt(props, "DesignCycleCount9C");
    if (!s.designCycleCount)
        s.designCycleCount = integerAt(props, "DesignCycleCount70");
    s.deviceName = propertyString(at(props, "DeviceName"));
    s.batterySerial = serial;
    s.totalOperatingMinutes = inRange(integerAt(lifetime, "TotalOperatingTime"), 0, 10'000'000);

    // 23. Lifetime temperatures from the battery itself on systems without the history.
    if (osMajorVersion < MacNames::firstVersionWithSMCSensors) {
        s.lifetimeMaxTemperatureC = lifetimeTemperature(integerAt(lifetime, "MaximumTemperature"), 1.0);
        s.lifetimeMinTemperatureC = lifetimeTemperature(integerAt(lifetime, "MinimumTemperature"), 1.0);
        s.lifetimeAverageTemperatureC = lifetimeTemperature(integerAt(lifetime, "AverageTemperature"), 10.0);
    }

    // 24–25. Safety count, adapter, and the time of the reading.
    s.batterySafetyProtectionCount = inRange(integerAt(props, "BatteryCellDisconnectCount"), 0, 1'000'000);
    s.adapterDescription = propertyString(at(adapter, "Description"));
    s.dcPowerW = dcPowerW.value_or(0.0);
    s.systemPowerW = systemPowerW.value_or(0.0);
    s.isDataAvailable = dcPowerW.has_value() && systemPowerW.has_value();
    s.updatedAt = m_platform->clock().now();
    return s;
}

} // namespace ferrow
