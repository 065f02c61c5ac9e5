#pragma once

#include "apps/app_energy.h"
#include "apps/energy_attribution.h"

#include <QHash>

#include <cstddef>
#include <optional>

namespace ferrow {

// Adds intervals up into one list per group: a session's, a minute's, or since the start.
class AppEnergyLedger {
public:
    void add(const AttributedInterval &interval);
    void clear() { *this = {}; }
    bool isEmpty() const { return m_coveredS <= 0; }
    double coveredS() const { return m_coveredS; }
    // Every group that used something, this program, and the system's remainder.
    AppEnergyList list() const;

private:
    struct Entry {
        QString name;
        QString icon;
        std::optional<double> energyJ;
        double cpuTimeS = 0;
        bool isSelf = false;
        AttributionMethod method = AttributionMethod::measured;
    };

    QHash<QString, Entry> m_groups;
    std::optional<double> m_othersJ;
    double m_coveredS = 0;
    std::optional<AttributionMethod> m_method;
};

// The first count applications of a list, this program and the system's remainder, with the
// applications beyond them folded into one "rest" line: what a stored minute keeps.
AppEnergyList keepTop(const AppEnergyList &list, std::size_t count);

} // namespace ferrow
