#include "sources/battery_health_sources.h"

#include "sources/mac_names.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace ferrow {
namespace {


} // namespace

BatteryHealthSources::BatteryHealthSources(CommandRunner &runner, PowerSourceList &powerSources, const Clock &clock)
    : m_runner(runner)
    , m_powerSources(powerSources)
    , m_clock(clock)
{
}

std::optional<std::int64_t> BatteryHealthSources::systemBatteryHealthPercent()
{
    const WallTime now = m_clock.now();
    // A clock that went back gives a negative age, which also keeps the cache.
    if (m_lastReadAt && now - *m_lastReadAt < kSystemHealthRefreshInterval)
        return m_cachedPercent;
    m_lastReadAt = now; // before the attempt: a failure waits the full interval too

    const std::optional<CommandResult> result =
        m_runner.run(MacNames::systemProfiler, MacNames::systemProfilerArguments);
    if (!result || result->exitStatus != 0)
        return m_cachedPercent;
    if (const std::optional<std::int64_t> percent = maximumCapacityPercentFromProfiler(result->standardOutput))
        m_cachedPercent = percent;
    return m_cachedPercent;
}

std::optional<std::int64_t> BatteryHealthSources::maximumCapacityPercentFromProfiler(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return std::nullopt;
    const QJsonValue sections = document.object().value(u"SPPowerDataType");
    if (!sections.isArray())
        return std::nullopt;
    const QJsonArray sectionList = sections.toArray();
    if (!std::all_of(sectionList.begin(), sectionList.end(), [](const QJsonValue &v) { return v.isObject(); }))
        return std::nullopt;

    for (const QJsonValue &section : sectionList) {
        const QJsonValue healthInfo = section.toObject().value(u"sppower_battery_health_info");
        if (!healthInfo.isObject())
            continue;
        const QJsonValue maximumCapacity = healthInfo.toObject().value(u"sppower_battery_health_maximum_capacity");
        if (!maximumCapacity.isString())
            continue;
        const std::optional<std::int64_t> percent = parsePercentText(maximumCapacity.toString());
        if (percent && *percent >= 0 && *percent <= 100)
            return percent;
    }
    return std::nullopt;
}

std::optional<std::int64_t> BatteryHealthSources::parsePercentText(QStringView text)
{
    while (text.startsWith(u'%'))
        text = text.mid(1);
    while (text.endsWith(u'%'))
        text.chop(1);

    QStringView digits = text;
    if (digits.startsWith(u'+') || digits.startsWith(u'-'))
        digits = digits.mid(1);
    if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), [](QChar c) { return c >= u'0' && c <= u'9'; }))
        return std::nullopt;

    bool ok = false;
    const qlonglong value = text.toLongLong(&ok); // fails beyond the 64-bit range
    return ok ? std::optional<std::int64_t>(value) : std::nullopt;
}

std::optional<std::int64_t> BatteryHealthSources::capacityHealthPercent(std::optional<std::int64_t> capacityMAH,
                                                                        std::optional<std::int64_t> designCapacityMAH)
{
    if (!capacityMAH || !designCapacityMAH || *designCapacityMAH < 1)
        return std::nullopt;
    const double percent = std::round(static_cast<double>(*capacityMAH) / static_cast<double>(*designCapacityMAH) * 100.0);
    return static_cast<std::int64_t>(std::clamp(percent, 0.0, 100.0));
}

std::optional<BatteryHealthCondition> BatteryHealthSources::readBatteryHealthCondition()
{
    const std::optional<PropertyList> sources = m_powerSources.powerSourceDescriptions();
    if (!sources)
        return std::nullopt;
    for (const PropertyValue &source : *sources) {
        const PropertyDictionary *description = propertyDictionary(&source);
        if (propertyString(propertyLookup(description, QStringLiteral("Type"))) != u"InternalBattery")
            continue;
        // The first internal battery decides, whatever later ones say.
        const std::optional<QString> health = propertyString(propertyLookup(description, QStringLiteral("BatteryHealth")));
        return health ? batteryHealthConditionFromRaw(health->toLower()) : std::nullopt;
    }
    return std::nullopt;
}

} // namespace ferrow
