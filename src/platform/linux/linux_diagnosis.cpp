#include "platform/linux/linux_diagnosis.h"

#include "monitor/battery_history_store.h"
#include "platform/linux/hwmon_sensors.h"

#include <QStringList>

#include <set>

namespace ferrow {
namespace {

QString text(const std::string &value)
{
    return QString::fromStdString(value);
}

// "power_now, voltage_now, energy_now": the measurement files a supply has, of those asked for.
QString presentFiles(const std::set<std::string> &attributes, std::initializer_list<const char *> names)
{
    QStringList found;
    for (const char *name : names) {
        if (attributes.contains(name))
            found.append(QString::fromLatin1(name));
    }
    return found.isEmpty() ? QStringLiteral("none") : found.join(QStringLiteral(", "));
}

DiagnosisEntry batteryEntry(SysfsFiles &files, const std::string &folder, const std::set<std::string> &attributes, QString name)
{
    QStringList facts{QStringLiteral("battery")};
    if (!attributes.contains("present"))
        facts.append(QStringLiteral("no present file"));
    else
        facts.append(QStringLiteral("present %1").arg(text(files.readText(folder + "present").value_or("unreadable"))));
    facts.append(QStringLiteral("status %1").arg(text(files.readText(folder + "status").value_or("missing"))));
    if (const std::optional<std::int64_t> capacity = files.readInteger(folder + "capacity"))
        facts.append(QStringLiteral("%1 %").arg(*capacity));
    facts.append(QStringLiteral("reports ") + presentFiles(attributes, {"power_now", "voltage_now", "current_now", "voltage_min_design",
                                                                         "energy_now", "energy_full", "energy_full_design", "charge_now",
                                                                         "charge_full", "charge_full_design", "cycle_count", "temp"}));
    const std::optional<std::string> serial = files.readText(folder + "serial_number");
    const std::optional<QString> identifier = BatteryHistoryStore::batteryIdentifier(serial ? std::optional(text(*serial)) : std::nullopt);
    facts.append(identifier ? QStringLiteral("identifier ") + *identifier : QStringLiteral("no serial number"));
    return {std::move(name), facts.join(QStringLiteral(", ")), {}};
}

DiagnosisSection supplySection(SysfsFiles &files)
{
    DiagnosisSection section{QStringLiteral("Power supplies (sys/class/power_supply)"), {}};
    const std::string base = files.path("sys/class/power_supply/");
    for (const std::string &supply : files.list(base)) {
        const std::string folder = base + supply + '/';
        const std::vector<std::string> names = files.list(folder);
        const std::set<std::string> attributes(names.begin(), names.end());
        const std::optional<std::string> type = files.readText(folder + "type");
        const QString name = text(supply);
        if (!type) {
            section.absent(name, QStringLiteral("no type: not read"));
        } else if (files.readText(folder + "scope") == "Device") {
            section.add(name, text(*type), QStringLiteral("scope Device: a mouse's or a phone's battery, not read"));
        } else if (*type == "Battery") {
            section.entries.push_back(batteryEntry(files, folder, attributes, name));
        } else if (*type == "Mains" || type->starts_with("USB")) {
            QStringList facts{text(*type), QStringLiteral("online %1").arg(text(files.readText(folder + "online").value_or("missing")))};
            facts.append(QStringLiteral("reports ") + presentFiles(attributes, {"voltage_now", "current_now", "current_max", "power_now"}));
            section.add(name, facts.join(QStringLiteral(", ")));
        } else {
            section.add(name, text(*type), QStringLiteral("not a battery, mains or USB supply: not read"));
        }
    }
    if (section.entries.empty())
        section.absent(QStringLiteral("supplies"), QStringLiteral("none listed: no battery and no adapter the kernel knows of"));
    return section;
}

DiagnosisSection sensorSection(SysfsFiles &files)
{
    DiagnosisSection section{QStringLiteral("Sensors (sys/class/hwmon)"), {}};
    const std::string base = files.path("sys/class/hwmon/");
    for (const std::string &device : files.list(base))
        section.add(text(device), text(files.readText(base + device + "/name").value_or("no name")));
    const HwmonSensors sensors = HwmonSensors::discover(files);
    for (const auto &[key, sensor] : sensors.smcKeys)
        section.add(QStringLiteral("power reading ") + text(key), text(sensor.path.substr(files.path("").size())));
    for (const std::string &path : sensors.gpuPowerFiles)
        section.add(QStringLiteral("graphics power"), text(path.substr(files.path("").size())));
    if (sensors.smcKeys.empty())
        section.absent(QStringLiteral("input and system power"), QStringLiteral("no sensor measures them on this machine"));
    return section;
}

DiagnosisSection energySection(SysfsFiles &files)
{
    DiagnosisSection section{QStringLiteral("Processor energy (sys/class/powercap)"), {}};
    const std::string base = files.path("sys/class/powercap/");
    for (const std::string &zone : files.list(base)) {
        if (!zone.starts_with("intel-rapl:"))
            continue;
        const std::string folder = base + zone + '/';
        const QString name = text(zone) + QStringLiteral(" (") + text(files.readText(folder + "name").value_or("no name")) + u')';
        const std::string error = files.openError(folder + "energy_uj");
        if (!error.empty()) {
            section.absent(name, QStringLiteral("energy_uj not readable: %1 (current kernels let only root read it; "
                                                "the README's \"Chip power on Linux\" shows how to allow a group)")
                                     .arg(text(error)));
            continue;
        }
        const std::optional<std::int64_t> range = files.readInteger(folder + "max_energy_range_uj");
        section.add(name, range ? QStringLiteral("readable, wraps at %1 µJ").arg(*range) : QStringLiteral("readable"));
    }
    if (section.entries.empty())
        section.absent(QStringLiteral("zones"), QStringLiteral("none: no RAPL on this processor, or the driver is not loaded"));
    return section;
}

} // namespace

Diagnosis diagnoseLinuxTree(SysfsFiles &files)
{
    return {supplySection(files), sensorSection(files), energySection(files)};
}

} // namespace ferrow
