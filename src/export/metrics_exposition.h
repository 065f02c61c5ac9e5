#pragma once

#include "model/power_snapshot.h"

#include <QByteArray>
#include <QStringView>

namespace ferrow {

// A reading as metrics in the Prometheus text exposition format, version 0.0.4: every figure a
// gauge in base units; a value the reading lacks, or a battery figure of a machine without one, is
// no series at all rather than a 0. Without a reading (none taken yet) only the build
// information is written. Families, units and labels are listed in docs/metrics.md.
QByteArray metricsExposition(const PowerSnapshot *reading, QStringView version);

} // namespace ferrow
