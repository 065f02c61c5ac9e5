#pragma once

#include "history/energy_totals.h"
#include "model/power_snapshot.h"

#include <QByteArray>
#include <QStringView>

namespace ferrow {

// A reading as metrics in the Prometheus text exposition format, version 0.0.4: every figure a
// gauge in base units; a value the reading lacks, or a battery figure of a machine without one, is
// no series at all rather than a 0. Without a reading (none taken yet) only the build
// information is written. energySinceStart, when given, adds counters of the energy in joules; a
// quantity it never measured has none. Families, units and labels are listed in docs/metrics.md.
QByteArray metricsExposition(const PowerSnapshot *reading, QStringView version, const EnergyTotals *energySinceStart = nullptr);

} // namespace ferrow
