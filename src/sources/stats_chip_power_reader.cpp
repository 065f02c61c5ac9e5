#include "sources/stats_chip_power_reader.h"

#include "sources/mac_names.h"

#include <cmath>

namespace ferrow {

StatsChipPowerReader::StatsChipPowerReader(std::unique_ptr<EnergyReportSource> source, const Clock &clock)
    : m_source(std::move(source))
    , m_clock(clock)
{
    m_subscribed = m_source && m_source->subscribe();
}

QString StatsChipPowerReader::domainOfChannel(const QString &name)
{
    if (name.endsWith(u"CPU Energy"))
        return QStringLiteral("cpu");
    if (name.endsWith(u"GPU Energy"))
        return QStringLiteral("gpu");
    if (name.startsWith(u"ANE"))
        return QStringLiteral("ane");
    if (name.startsWith(u"DRAM"))
        return QStringLiteral("ram");
    return {};
}

std::optional<double> StatsChipPowerReader::unitDivisor(const QString &unitLabel)
{
    // Some systems pad the label, and some spell micro with the micro sign.
    const QString unit = unitLabel.trimmed();
    if (unit == u"mJ")
        return 1e3;
    if (unit == u"uJ" || unit == u"\u00B5J")
        return 1e6;
    if (unit == u"nJ")
        return 1e9;
    return std::nullopt;
}

ChipPower StatsChipPowerReader::sample()
{
    if (!m_subscribed)
        return {};
    const std::optional<std::vector<EnergyChannelSample>> channels = m_source->sample();
    if (!channels)
        return {};

    EnergyTable current;
    for (const EnergyChannelSample &channel : *channels) {
        if (!channel.group || *channel.group != MacNames::energyModelGroup || !channel.name || !channel.unitLabel)
            continue;
        const QString domain = domainOfChannel(*channel.name);
        const std::optional<double> divisor = unitDivisor(*channel.unitLabel);
        if (domain.isEmpty() || !divisor)
            continue;
        const double joules = static_cast<double>(channel.counter) / *divisor;
        if (!std::isfinite(joules) || joules < 0)
            continue;
        current[domain] = joules; // several channels of one domain: the last one wins
    }

    const double now = m_clock.uptimeSeconds();
    ChipPower power;
    if (m_previousUptime && *m_previousUptime < now) {
        const double intervalS = now - *m_previousUptime;
        power.cpu = domainWatts(QStringLiteral("cpu"), current, intervalS);
        power.gpu = domainWatts(QStringLiteral("gpu"), current, intervalS);
        power.ane = domainWatts(QStringLiteral("ane"), current, intervalS);
        power.ram = domainWatts(QStringLiteral("ram"), current, intervalS);
    }
    m_previous = std::move(current);
    m_previousUptime = now;
    return power;
}

std::optional<double> StatsChipPowerReader::domainWatts(const QString &domain, const EnergyTable &current,
                                                        double intervalS) const
{
    const auto previous = m_previous.find(domain);
    const auto latest = current.find(domain);
    if (previous == m_previous.end() || latest == current.end())
        return std::nullopt;
    const double watts = (latest->second - previous->second) / intervalS;
    if (!std::isfinite(watts) || watts < 0 || watts > kMaximumPlausibleW)
        return std::nullopt;
    return watts;
}

} // namespace ferrow
