#include "apps/app_energy.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

namespace ferrow {

namespace {

constexpr std::array<std::pair<AttributionMethod, const char *>, 4> kMethodNames{{
    {AttributionMethod::measured, "measured"},
    {AttributionMethod::chipShare, "chip_share"},
    {AttributionMethod::systemShare, "system_share"},
    {AttributionMethod::cpuTime, "cpu_time"},
}};

constexpr std::array<std::pair<AppPeriod, const char *>, 4> kPeriodNames{{
    {AppPeriod::session, "session"},
    {AppPeriod::today, "today"},
    {AppPeriod::sevenDays, "7d"},
    {AppPeriod::thirtyDays, "30d"},
}};

constexpr std::array<std::pair<AppEnergy::Kind, const char *>, 4> kKindNames{{
    {AppEnergy::Kind::application, "application"},
    {AppEnergy::Kind::self, "self"},
    {AppEnergy::Kind::others, "others"},
    {AppEnergy::Kind::rest, "rest"},
}};

template <typename Enum, std::size_t N>
const char *nameOf(const std::array<std::pair<Enum, const char *>, N> &names, Enum value)
{
    for (const auto &[candidate, name] : names) {
        if (candidate == value)
            return name;
    }
    return "";
}

template <typename Enum, std::size_t N>
std::optional<Enum> valueOf(const std::array<std::pair<Enum, const char *>, N> &names, QStringView text)
{
    for (const auto &[value, name] : names) {
        if (text == QLatin1String(name))
            return value;
    }
    return std::nullopt;
}

} // namespace

AttributionMethod combinedMethod(AttributionMethod a, AttributionMethod b)
{
    if (a == AttributionMethod::cpuTime)
        return b;
    if (b == AttributionMethod::cpuTime)
        return a;
    return std::max(a, b);
}

const char *attributionMethodName(AttributionMethod method)
{
    return nameOf(kMethodNames, method);
}

std::optional<AttributionMethod> attributionMethodFromName(QStringView name)
{
    return valueOf(kMethodNames, name);
}

const char *appKindName(AppEnergy::Kind kind)
{
    return nameOf(kKindNames, kind);
}

const char *appPeriodName(AppPeriod period)
{
    return nameOf(kPeriodNames, period);
}

std::optional<AppPeriod> appPeriodFromName(QStringView name)
{
    return valueOf(kPeriodNames, name);
}

std::optional<double> AppEnergyList::totalJ() const
{
    std::optional<double> total;
    for (const AppEnergy &app : apps) {
        if (app.energyJ)
            total = total.value_or(0) + *app.energyJ;
    }
    return total;
}

std::optional<double> AppEnergyList::share(const AppEnergy &app) const
{
    const std::optional<double> total = totalJ();
    if (app.energyJ)
        return total && *total > 0 ? std::optional(*app.energyJ / *total) : std::nullopt;
    if (total)
        return std::nullopt; // no energy in a list of energies: a share of CPU time would not compare
    double cpuS = 0;
    for (const AppEnergy &other : apps)
        cpuS += other.cpuTimeS;
    return cpuS > 0 ? std::optional(app.cpuTimeS / cpuS) : std::nullopt;
}

void sortMostFirst(std::vector<AppEnergy> &apps)
{
    std::sort(apps.begin(), apps.end(), [](const AppEnergy &a, const AppEnergy &b) {
        const double aJ = a.energyJ.value_or(-1.0);
        const double bJ = b.energyJ.value_or(-1.0);
        if (aJ != bJ)
            return aJ > bJ;
        if (a.cpuTimeS != b.cpuTimeS)
            return a.cpuTimeS > b.cpuTimeS;
        return std::tuple(a.kind, a.group) < std::tuple(b.kind, b.group);
    });
}

} // namespace ferrow
