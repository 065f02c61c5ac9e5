#include "apps/app_energy_ledger.h"

#include <algorithm>

namespace ferrow {

namespace {

void addEnergy(std::optional<double> &total, const std::optional<double> &part)
{
    if (part)
        total = total.value_or(0.0) + *part;
}

} // namespace

void AppEnergyLedger::add(const AttributedInterval &interval)
{
    m_coveredS += interval.durationS;
    m_method = m_method ? combinedMethod(*m_method, interval.method) : interval.method;
    addEnergy(m_othersJ, interval.othersJ);
    for (const AttributedInterval::Group &group : interval.groups) {
        auto found = m_groups.find(group.group);
        if (found == m_groups.end())
            found = m_groups.insert(group.group, Entry{group.name, group.icon, std::nullopt, 0.0, group.isSelf, interval.method});
        Entry &entry = *found;
        addEnergy(entry.energyJ, group.energyJ);
        entry.cpuTimeS += group.cpuTimeS;
        entry.isSelf = entry.isSelf || group.isSelf;
        entry.method = combinedMethod(entry.method, interval.method);
    }
}

AppEnergyList AppEnergyLedger::list() const
{
    AppEnergyList list;
    list.coveredS = m_coveredS;
    list.method = m_method.value_or(AttributionMethod::cpuTime);
    list.apps.reserve(static_cast<std::size_t>(m_groups.size()) + 1);
    for (auto it = m_groups.cbegin(); it != m_groups.cend(); ++it) {
        const Entry &entry = it.value();
        list.apps.push_back({entry.isSelf ? AppEnergy::Kind::self : AppEnergy::Kind::application, it.key(), entry.name, entry.icon,
                             entry.energyJ, entry.cpuTimeS, m_coveredS, entry.method});
    }
    if (m_othersJ)
        list.apps.push_back({AppEnergy::Kind::others, {}, {}, {}, m_othersJ, 0.0, m_coveredS, list.method});
    sortMostFirst(list.apps);
    return list;
}

AppEnergyList keepTop(const AppEnergyList &list, std::size_t count)
{
    AppEnergyList kept{{}, list.coveredS, list.method};
    std::optional<AppEnergy> rest;
    std::size_t applications = 0;
    for (const AppEnergy &app : list.apps) {
        const bool beyond = app.kind == AppEnergy::Kind::rest || (app.kind == AppEnergy::Kind::application && applications++ >= count);
        if (!beyond) {
            kept.apps.push_back(app);
            continue;
        }
        if (!rest)
            rest = AppEnergy{AppEnergy::Kind::rest, {}, {}, {}, std::nullopt, 0.0, app.coveredS, app.method};
        addEnergy(rest->energyJ, app.energyJ);
        rest->cpuTimeS += app.cpuTimeS;
        rest->method = combinedMethod(rest->method, app.method);
    }
    if (rest)
        kept.apps.push_back(std::move(*rest));
    return kept;
}

} // namespace ferrow
