#include "sources/mac_source_diagnosis.h"

#include "monitor/battery_history_store.h"
#include "sources/battery_health_sources.h"
#include "sources/mac_names.h"
#include "sources/power_sensor_reader.h"
#include "sources/stats_chip_power_reader.h"
#include "sources/stats_smc.h"

#include <QElapsedTimer>

#include <map>

namespace ferrow {
namespace {

QString hex(IOKitStatus status)
{
    return QStringLiteral("0x%1").arg(static_cast<std::uint32_t>(status), 8, 16, QLatin1Char('0'));
}

DiagnosisSection smcSection(MachinePlatform &platform)
{
    DiagnosisSection section{QStringLiteral("SMC"), {}};
    StatsSMC smc(platform.createSMCUserClient());
    if (!smc.isOpen()) {
        section.absent(QStringLiteral("connection"),
                       QStringLiteral("not opened: no AppleSMC service, or the kernel refused this user a connection"));
        return section;
    }
    section.add(QStringLiteral("connection"), QStringLiteral("open"));
    for (const std::string &key : PowerSensorReader::smcKeysRead()) {
        SMCValue value;
        value.key = key;
        const QString name = QString::fromStdString(key);
        const IOKitStatus status = smc.readKey(value);
        if (status != kIOKitSuccess) {
            section.absent(name, QStringLiteral("not read: IOKit status %1").arg(hex(status)));
            continue;
        }
        if (value.dataSize == 0) {
            section.absent(name, QStringLiteral("no such key on this machine"));
            continue;
        }
        const std::optional<double> decoded = StatsSMC::decodeValue(value.dataType, value.bytes);
        const QString shape = QStringLiteral("type '%1', %2 bytes").arg(QString::fromLatin1(value.dataType.c_str()), QString::number(value.dataSize));
        if (decoded)
            section.add(name, QStringLiteral("%1, %2").arg(shape, QString::number(*decoded, 'g', 6)));
        else
            section.add(name, shape, QStringLiteral("all zero, or a type the reader does not decode"));
    }
    return section;
}

DiagnosisSection energySection(MachinePlatform &platform)
{
    DiagnosisSection section{QStringLiteral("Energy reports (") + MacNames::energyModelGroup + u')', {}};
    const std::unique_ptr<EnergyReportSource> source = platform.createEnergyReportSource();
    if (!source || !source->subscribe()) {
        section.absent(QStringLiteral("subscription"), QStringLiteral("none: the system offers no such group, so chip power stays empty"));
        return section;
    }
    const std::optional<std::vector<EnergyChannelSample>> channels = source->sample();
    if (!channels) {
        section.absent(QStringLiteral("sample"), QStringLiteral("subscribed, but no sample could be taken"));
        return section;
    }
    std::map<QString, DiagnosisEntry> byName; // one line a channel, however often it repeats
    for (const EnergyChannelSample &channel : *channels) {
        if (channel.group != MacNames::energyModelGroup)
            continue;
        const QString name = channel.name.value_or(QStringLiteral("(no name)"));
        const QString unit = channel.unitLabel.value_or(QString());
        const QString domain = channel.name ? StatsChipPowerReader::domainOfChannel(*channel.name) : QString();
        DiagnosisEntry entry{name, unit.isEmpty() ? QStringLiteral("no unit") : QStringLiteral("unit '%1'").arg(unit), {}};
        if (domain.isEmpty())
            entry.why = QStringLiteral("not a domain the reader shows");
        else if (!StatsChipPowerReader::unitDivisor(unit))
            entry.why = QStringLiteral("%1, but a unit the reader does not know").arg(domain);
        else
            entry.value += QStringLiteral(", counts as ") + domain;
        byName[name] = entry;
    }
    section.add(QStringLiteral("channels"), QString::number(byName.size()));
    for (auto &[name, entry] : byName)
        section.entries.push_back(std::move(entry));
    return section;
}

DiagnosisSection batterySection(MachinePlatform &platform)
{
    DiagnosisSection section{QStringLiteral("Battery service (") + MacNames::batteryService + u')', {}};
    const std::optional<PropertyDictionary> properties = platform.registry().registryProperties(MacNames::batteryService);
    if (!properties) {
        section.absent(QStringLiteral("service"), QStringLiteral("none: a desktop, or the registry did not answer"));
        return section;
    }
    section.add(QStringLiteral("properties"), QString::number(properties->size()));
    for (const char *nested : {"PowerTelemetryData", "BatteryData", "AdapterDetails"}) {
        const PropertyDictionary *dictionary = propertyDictionary(propertyLookup(&*properties, QLatin1StringView(nested)));
        if (dictionary)
            section.add(QString::fromLatin1(nested), QStringLiteral("%1 properties").arg(dictionary->size()));
        else
            section.absent(QString::fromLatin1(nested), QStringLiteral("missing"));
    }
    const std::optional<QString> identifier =
        BatteryHistoryStore::batteryIdentifier(propertyString(propertyLookup(&*properties, QLatin1StringView("Serial"))));
    if (identifier)
        section.add(QStringLiteral("battery identifier"), *identifier, QStringLiteral("SHA-256 of the serial number"));
    else
        section.absent(QStringLiteral("battery identifier"), QStringLiteral("no serial number, so no lifetime extremes are kept"));
    return section;
}

DiagnosisSection powerSourcesSection(MachinePlatform &platform)
{
    DiagnosisSection section{QStringLiteral("Power sources"), {}};
    const std::optional<PropertyList> descriptions = platform.powerSources().powerSourceDescriptions();
    if (!descriptions) {
        section.absent(QStringLiteral("list"), QStringLiteral("the power-source service gave none"));
    } else {
        section.add(QStringLiteral("sources"), QString::number(descriptions->size()));
        int index = 0;
        for (const PropertyValue &description : *descriptions) {
            const PropertyDictionary *fields = propertyDictionary(&description);
            const QString type = propertyString(propertyLookup(fields, QLatin1StringView("Type"))).value_or(QStringLiteral("no type"));
            const std::optional<QString> health = propertyString(propertyLookup(fields, QLatin1StringView("BatteryHealth")));
            section.add(QStringLiteral("source %1").arg(++index), health ? type + QStringLiteral(", health ") + *health : type);
        }
    }
    section.add(QStringLiteral("adapter details"), platform.systemInfo().hasExternalPowerAdapterDetails()
                                                       ? QStringLiteral("present")
                                                       : QStringLiteral("none (no adapter connected, or none described)"));
    return section;
}

DiagnosisSection profilerSection(MachinePlatform &platform)
{
    DiagnosisSection section{QStringLiteral("System profiler"), {}};
    QElapsedTimer timer;
    timer.start();
    const std::optional<CommandResult> result = platform.commandRunner().run(MacNames::systemProfiler, MacNames::systemProfilerArguments);
    const QString took = QStringLiteral("%1 s").arg(static_cast<double>(timer.elapsed()) / 1000.0, 0, 'f', 2);
    const QString command = MacNames::systemProfiler + u' ' + MacNames::systemProfilerArguments.join(u' ');
    if (!result) {
        section.absent(command, QStringLiteral("did not start, or did not finish in time (%1)").arg(took));
        return section;
    }
    section.add(command, QStringLiteral("exit status %1 after %2, %3 bytes").arg(result->exitStatus).arg(took).arg(result->standardOutput.size()));
    const std::optional<std::int64_t> percent = BatteryHealthSources::maximumCapacityPercentFromProfiler(result->standardOutput);
    if (percent)
        section.add(QStringLiteral("maximum capacity"), QStringLiteral("%1 %").arg(*percent));
    else
        section.absent(QStringLiteral("maximum capacity"), QStringLiteral("not in its answer: health comes from the capacities"));
    return section;
}

} // namespace

Diagnosis diagnoseMacSources(MachinePlatform &platform)
{
    DiagnosisSection system{QStringLiteral("Machine"), {}};
    const int major = platform.systemInfo().operatingSystemMajorVersion();
    system.add(QStringLiteral("macOS major version the reader follows"), major > 0 ? QString::number(major) : QString(),
               major > 0 ? QString() : QStringLiteral("unknown"));
    return {system, smcSection(platform), energySection(platform), batterySection(platform), powerSourcesSection(platform),
            profilerSection(platform)};
}

} // namespace ferrow
