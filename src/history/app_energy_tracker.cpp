#include "history/app_energy_tracker.h"

#include <QDateTime>

#include <algorithm>

namespace ferrow {

void AppEnergyTracker::addReading(const PowerSnapshot &reading, double stepS)
{
    m_pool.add(reading, stepS);
}

MeasuredEnergy AppEnergyTracker::takePool()
{
    MeasuredEnergy measured;
    for (const std::optional<double> &domainWh : m_pool.chipWh) {
        if (domainWh)
            measured.chipJ = measured.chipJ.value_or(0.0) + *domainWh * 3600.0;
    }
    if (m_pool.systemWh)
        measured.systemJ = *m_pool.systemWh * 3600.0;
    m_pool = {};
    return measured;
}

std::optional<AppMinuteRecord> AppEnergyTracker::addFrame(const ProcessFrame &frame, UnixSeconds time, std::optional<UnixSeconds> sessionStart)
{
    const std::optional<AttributedInterval> interval = m_attribution.add(frame, takePool());
    if (sessionStart != m_sessionStart) {
        m_session.clear();
        m_sessionStart = sessionStart;
    }
    std::optional<AppMinuteRecord> completed;
    const UnixSeconds minute = time - time % 60;
    if (minute != m_minuteStart) {
        completed = flush();
        m_minuteStart = minute;
    }
    if (!interval)
        return completed;
    m_session.add(*interval);
    m_minute.add(*interval);
    m_self.coveredS += interval->durationS;
    m_self.method = combinedMethod(m_self.method, interval->method);
    for (const AttributedInterval::Group &group : interval->groups) {
        if (!group.isSelf)
            continue;
        m_self.group = group.group;
        m_self.name = group.name;
        m_self.icon = group.icon;
        m_self.cpuTimeS += group.cpuTimeS;
        if (group.energyJ)
            m_self.energyJ = m_self.energyJ.value_or(0.0) + *group.energyJ;
    }
    return completed;
}

std::optional<AppMinuteRecord> AppEnergyTracker::flush()
{
    if (m_minute.isEmpty())
        return std::nullopt;
    AppMinuteRecord record{m_minuteStart, keepTop(m_minute.list(), kStoredApplications)};
    m_minute.clear();
    return record;
}

AppEnergyList AppEnergyTracker::session() const
{
    return withSelfSinceStart(m_session.list(), m_self);
}

UnixSeconds appPeriodStart(AppPeriod period, UnixSeconds now, UnixSeconds sessionStart)
{
    switch (period) {
    case AppPeriod::session:
        return sessionStart;
    case AppPeriod::today:
        break;
    case AppPeriod::sevenDays:
        return now - 7 * 86'400;
    case AppPeriod::thirtyDays:
        return now - 30 * 86'400;
    }
    return QDateTime::fromSecsSinceEpoch(now).date().startOfDay().toSecsSinceEpoch();
}

AppEnergyList withSelfSinceStart(AppEnergyList list, const AppEnergy &self)
{
    std::erase_if(list.apps, [](const AppEnergy &app) { return app.kind == AppEnergy::Kind::self; });
    if (self.coveredS > 0)
        list.apps.push_back(self);
    sortMostFirst(list.apps);
    return list;
}

} // namespace ferrow
