#include "platform/linux/linux_machine.h"

#include "platform/common/in_memory_key_value_store.h"
#include "platform/linux/battery_properties.h"
#include "platform/linux/sysfs_smc_client.h"
#include "sources/power_sensor_reader.h"

#include <QDir>
#include <QFile>

#include <chrono>

namespace ferrow {
namespace {

// The reader's branches follow macOS releases. From 27 on it keeps the battery's temperature
// extremes itself, which a Linux battery (with no lifetime data of its own) needs; the SMC's cell
// and temperature keys it then asks for simply do not exist here.
constexpr int kReaderBranch = 27;

class MonotonicClock final : public Clock {
public:
    WallTime now() const override { return std::chrono::system_clock::now(); }
    // Seconds since boot without suspend, as the energy counters run.
    double uptimeSeconds() const override
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    }
};

} // namespace

LinuxMachine::LinuxMachine(std::unique_ptr<SysfsFiles> files, std::unique_ptr<KeyValueStore> preferences,
                           std::unique_ptr<Clock> clock)
    : m_files(std::move(files))
    , m_preferences(std::move(preferences))
    , m_clock(clock ? std::move(clock) : std::make_unique<MonotonicClock>())
    , m_supplies(*m_files)
    , m_hwmon(HwmonSensors::discover(*m_files))
    , m_chip(ChipEnergyFiles::discover(*m_files, m_hwmon.gpuPowerFiles))
{
}

LinuxMachine::~LinuxMachine() = default;

bool LinuxMachine::hasPowerSources() const
{
    return m_supplies.hasBattery() || m_supplies.hasExternalSupply() || !m_hwmon.smcKeys.empty()
        || !m_hwmon.gpuPowerFiles.empty() || m_chip.raplZones > 0;
}

std::unique_ptr<SMCUserClient> LinuxMachine::createSMCUserClient()
{
    std::map<std::string, SysfsSMCClient::Reading> keys;
    for (const auto &[key, sensor] : m_hwmon.smcKeys) {
        keys[key] = [this, sensor]() -> std::optional<double> {
            const std::optional<std::int64_t> raw = m_files->readInteger(sensor.path);
            return raw ? std::optional(static_cast<double>(*raw) * sensor.toSI) : std::nullopt;
        };
    }
    if (!keys.contains("VD0R") && m_supplies.reportsInputVoltage())
        keys["VD0R"] = [this]() -> std::optional<double> { return m_supplies.readInputVoltageV(); };
    // Without the SMC's own figures a battery machine still knows that nothing comes in while no
    // supply is online. With one online, what comes in is not measured here.
    if (!keys.contains("PDTR") && !keys.contains("PSTR") && m_supplies.hasBattery()) {
        keys["PDTR"] = [this]() -> std::optional<double> {
            return m_supplies.readExternalOnline() == false ? std::optional(0.0) : std::nullopt;
        };
    }
    return std::make_unique<SysfsSMCClient>(keys);
}

std::unique_ptr<EnergyReportSource> LinuxMachine::createEnergyReportSource()
{
    return std::make_unique<ChipEnergySource>(*m_files, m_chip, *m_clock);
}

std::optional<PropertyDictionary> LinuxMachine::registryProperties(const QString &className)
{
    if (className != u"AppleSmartBattery")
        return std::nullopt;
    const std::optional<BatteryReading> battery = m_supplies.readBattery();
    m_lastBatteryCharging = battery && battery->status == "Charging";
    if (!battery)
        return std::nullopt;
    return batteryProperties(*battery, m_supplies.readExternalOnline());
}

int LinuxMachine::operatingSystemMajorVersion() const
{
    return kReaderBranch;
}

bool recordSysfsTree(const std::string &sourceRoot, const QString &folder, QString *error)
{
    QString ignored;
    QString &message = error ? *error : ignored;
    if (const QDir target(folder); target.exists() && !target.isEmpty()) {
        message = QStringLiteral("%1 is not empty; record into a new folder").arg(folder);
        return false;
    }
    if (!LinuxMachine(std::make_unique<SysfsFiles>(sourceRoot), std::make_unique<InMemoryKeyValueStore>()).hasPowerSources()) {
        message = QStringLiteral("%1: no battery, power supply or power sensor under sys/class, nothing to record")
                      .arg(QFile::decodeName(QByteArray::fromStdString(sourceRoot)));
        return false;
    }
    auto files = std::make_unique<SysfsFiles>(sourceRoot);
    files->copyReadsTo(QFile::encodeName(folder).toStdString());
    const SysfsFiles &copy = *files;
    PowerSensorReader reader(std::make_unique<LinuxMachine>(std::move(files), std::make_unique<InMemoryKeyValueStore>()));
    reader.read();
    reader.read(); // the energy counters' second sample
    if (!copy.copyError().isEmpty()) {
        message = copy.copyError();
        return false;
    }
    return true;
}

} // namespace ferrow
