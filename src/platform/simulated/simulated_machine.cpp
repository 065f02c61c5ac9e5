#include "platform/simulated/simulated_machine.h"

#include "sources/mac_names.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace ferrow {
namespace {

class SimulatedEnergySource final : public EnergyReportSource {
public:
    explicit SimulatedEnergySource(SimulatedMachine &machine) : m_machine(machine) {}
    bool subscribe() override { return true; }
    std::optional<std::vector<EnergyChannelSample>> sample() override { return m_machine.energyChannels(); }

private:
    SimulatedMachine &m_machine;
};

std::int64_t rounded(double value)
{
    return static_cast<std::int64_t>(std::llround(value));
}

PropertyValue text(const char *value)
{
    return QString::fromLatin1(value);
}

} // namespace

SimulatedMachine::SimulatedMachine(Options options)
    : m_options(options)
    , m_clock(options.realTime ? SimulationClock::realTime() : SimulationClock::manual())
    , m_model(SimulatedPowerModel::Config{options.kind, options.seed, 0.55})
{
    publishSMCKeys();
}

void SimulatedMachine::sync()
{
    m_model.advanceTo(m_clock.uptimeSeconds());
    publishSMCKeys();
}

void SimulatedMachine::publishSMCKeys()
{
    const SimulatedPowerModel::State &s = m_model.state();
    const auto setFloat = [this](const char *key, double value) { m_smc.setKey(key, "flt ", smcBytesOfFloat(static_cast<float>(value))); };

    setFloat("PSTR", s.systemPowerW);
    if (!m_model.hasBattery()) {
        setFloat("PDTR", s.systemPowerW / 0.9); // wall power, with the supply's losses
        return;
    }
    // Unplugged, the input keys stay but read as zero bytes.
    setFloat("VD0R", s.adapterVoltageV);
    setFloat("ID0R", s.adapterCurrentA);
    setFloat("PDTR", s.adapterPowerW);
    setFloat("VP0R", s.packVoltageV);
    m_smc.setKey("TB1T", "sp78", smcBytesOfFixedPoint(s.temperatureC + 0.3, 8));
    m_smc.setKey("TB2T", "sp78", smcBytesOfFixedPoint(s.temperatureC - 0.3, 8));
    for (std::size_t cell = 0; cell < s.cellVoltagesV.size(); ++cell)
        setFloat(("SBA" + std::to_string(cell + 1)).c_str(), s.cellVoltagesV[cell]);
    setFloat("SBAV", s.packVoltageV);
}

std::unique_ptr<SMCUserClient> SimulatedMachine::createSMCUserClient()
{
    return std::make_unique<InMemorySMCClient>(m_smc);
}

std::unique_ptr<EnergyReportSource> SimulatedMachine::createEnergyReportSource()
{
    return std::make_unique<SimulatedEnergySource>(*this);
}

std::optional<std::vector<EnergyChannelSample>> SimulatedMachine::energyChannels()
{
    sync();
    const auto &energyJ = m_model.state().domainEnergyJ;
    const auto channel = [](const char *name, const char *unit, double counter) {
        return EnergyChannelSample{QStringLiteral("Energy Model"), QString::fromLatin1(name), QString::fromLatin1(unit),
                                   static_cast<std::int64_t>(counter)};
    };
    using Domain = SimulatedPowerModel::Domain;
    // Cluster channels come first and count for nothing; the totals follow, as on the real machine.
    return std::vector<EnergyChannelSample>{
        channel("EACC_CPU", "mJ", energyJ[Domain::cpu] * 0.3e3),
        channel("PACC0_CPU", "mJ", energyJ[Domain::cpu] * 0.7e3),
        channel("CPU Energy", "mJ", energyJ[Domain::cpu] * 1e3),
        channel("GPU SRAM0", "mJ", energyJ[Domain::gpu] * 0.1e3),
        channel("GPU Energy", "nJ", energyJ[Domain::gpu] * 1e9),
        channel("ANE0", "mJ", energyJ[Domain::ane] * 1e3),
        channel("DRAM0", "mJ", energyJ[Domain::dram] * 1e3),
        channel("DISP", "mJ", m_model.state().timeS * 900.0),
    };
}

std::optional<PropertyDictionary> SimulatedMachine::registryProperties(const QString &className)
{
    if (className != MacNames::batteryService || !m_model.hasBattery() || !m_batteryServicePresent)
        return std::nullopt;
    sync();
    return batteryProperties();
}

PropertyDictionary SimulatedMachine::batteryProperties() const
{
    const SimulatedPowerModel::State &s = m_model.state();
    const std::int64_t voltageMV = rounded(s.packVoltageV * 1000);
    const std::int64_t amperageMA = rounded(s.batteryCurrentA * 1000);
    // The service keeps currents as unsigned 64-bit numbers: a discharge reads as a huge value.
    const PropertyValue amperage = static_cast<std::uint64_t>(amperageMA);
    const std::int64_t temperature = rounded(s.temperatureC * 100);
    const std::int64_t remainingMAH = m_model.remainingCapacityMAH();
    const std::optional<int> minutesToFull = m_model.minutesToFull();

    PropertyList cellMillivolts;
    for (const double volts : s.cellVoltagesV)
        cellMillivolts.emplace_back(rounded(volts * 1000));

    PropertyDictionary battery{
        {QStringLiteral("BatteryInstalled"), true},
        {QStringLiteral("ExternalConnected"), s.adapterConnected},
        {QStringLiteral("IsCharging"), s.isCharging},
        {QStringLiteral("FullyCharged"), s.isFullyCharged},
        {QStringLiteral("CurrentCapacity"), static_cast<std::int64_t>(std::lround(s.stateOfCharge * 100))},
        {QStringLiteral("MaxCapacity"), 100},
        {QStringLiteral("AppleRawCurrentCapacity"), remainingMAH},
        {QStringLiteral("AppleRawMaxCapacity"), SimulatedPowerModel::kFullChargeCapacityMAH},
        {QStringLiteral("DesignCapacity"), SimulatedPowerModel::kDesignCapacityMAH},
        {QStringLiteral("NominalChargeCapacity"), SimulatedPowerModel::kNominalChargeCapacityMAH},
        {QStringLiteral("Voltage"), voltageMV},
        {QStringLiteral("Amperage"), amperage},
        {QStringLiteral("InstantAmperage"), amperage},
        {QStringLiteral("Temperature"), temperature},
        {QStringLiteral("AvgTimeToFull"), minutesToFull ? std::int64_t(*minutesToFull) : std::int64_t(65535)},
        {QStringLiteral("CycleCount"), m_model.cycleCount()},
        {QStringLiteral("DesignCycleCount9C"), 1000},
        {QStringLiteral("DeviceName"), text("bq40z651")},
        {QStringLiteral("Serial"), m_batterySerial},
        {QStringLiteral("BatteryCellDisconnectCount"), 0},
        {QStringLiteral("PowerTelemetryData"),
         PropertyDictionary{{QStringLiteral("SystemLoad"), rounded(s.systemPowerW * 1000)},
                            {QStringLiteral("SystemPowerIn"), rounded(s.adapterPowerW * 1000)},
                            {QStringLiteral("BatteryPower"), rounded(s.batteryCurrentA * s.packVoltageV * 1000)}}},
        {QStringLiteral("BatteryData"),
         PropertyDictionary{
             {QStringLiteral("DesignCapacity"), SimulatedPowerModel::kDesignCapacityMAH},
             {QStringLiteral("FullChargeCapacity"), SimulatedPowerModel::kFullChargeCapacityMAH},
             {QStringLiteral("RemainingCapacity"), remainingMAH},
             {QStringLiteral("CellVoltage"), cellMillivolts},
             {QStringLiteral("Temperature"), temperature},
             {QStringLiteral("Voltage"), voltageMV},
             {QStringLiteral("LifetimeData"),
              PropertyDictionary{{QStringLiteral("TotalOperatingTime"), 91'250 + rounded(s.timeS / 60)},
                                 {QStringLiteral("MaximumTemperature"), rounded(s.lifetimeMaximumC)},
                                 {QStringLiteral("MinimumTemperature"), rounded(s.lifetimeMinimumC)},
                                 {QStringLiteral("AverageTemperature"), rounded(s.lifetimeAverageC * 10)}}},
         }},
    };
    if (s.adapterConnected) {
        battery.emplace(QStringLiteral("AdapterDetails"),
                        PropertyDictionary{{QStringLiteral("Description"), text("pd charger")},
                                           {QStringLiteral("Watts"), 67},
                                           {QStringLiteral("AdapterVoltage"), 20000},
                                           {QStringLiteral("Current"), 3350}});
    }
    return battery;
}

std::optional<PropertyList> SimulatedMachine::powerSourceDescriptions()
{
    if (!m_model.hasBattery())
        return PropertyList{};
    sync();
    const SimulatedPowerModel::State &s = m_model.state();
    return PropertyList{PropertyDictionary{
        {QStringLiteral("Type"), text("InternalBattery")},
        {QStringLiteral("Name"), text("InternalBattery-0")},
        {QStringLiteral("BatteryHealth"), text("Good")},
        {QStringLiteral("Power Source State"), text(s.adapterConnected ? "AC Power" : "Battery Power")},
        {QStringLiteral("Current Capacity"), static_cast<std::int64_t>(std::lround(s.stateOfCharge * 100))},
        {QStringLiteral("Is Charging"), s.isCharging},
    }};
}

bool SimulatedMachine::hasExternalPowerAdapterDetails()
{
    sync();
    return m_model.state().adapterConnected;
}

std::optional<CommandResult> SimulatedMachine::run(const QString &program, const QStringList &arguments)
{
    if (program != MacNames::systemProfiler || arguments != MacNames::systemProfilerArguments)
        return std::nullopt;
    if (!m_model.hasBattery())
        return CommandResult{0, QByteArrayLiteral("{\"SPPowerDataType\":[]}")};
    const int percent = static_cast<int>(std::lround(100.0 * SimulatedPowerModel::kFullChargeCapacityMAH / SimulatedPowerModel::kDesignCapacityMAH));
    const QJsonObject battery{
        {QStringLiteral("_name"), QStringLiteral("spbattery_information")},
        {QStringLiteral("sppower_battery_health_info"),
         QJsonObject{{QStringLiteral("sppower_battery_cycle_count"), m_model.cycleCount()},
                     {QStringLiteral("sppower_battery_health"), QStringLiteral("Good")},
                     {QStringLiteral("sppower_battery_health_maximum_capacity"), QStringLiteral("%1%").arg(percent)}}},
    };
    const QJsonObject charger{{QStringLiteral("_name"), QStringLiteral("sppower_ac_charger_information")},
                              {QStringLiteral("sppower_ac_charger_watts"), QStringLiteral("67")}};
    const QJsonObject document{{QStringLiteral("SPPowerDataType"), QJsonArray{battery, charger}}};
    return CommandResult{0, QJsonDocument(document).toJson()};
}

} // namespace ferrow
