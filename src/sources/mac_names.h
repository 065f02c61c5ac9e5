#pragma once

#include <QString>
#include <QStringList>

namespace ferrow::MacNames {

// The battery service's registry class.
inline const QString batteryService = QStringLiteral("AppleSmartBattery");
// The system profiler and the arguments that make it report power as JSON.
inline const QString systemProfiler = QStringLiteral("/usr/sbin/system_profiler");
inline const QStringList systemProfilerArguments = {QStringLiteral("-json"), QStringLiteral("SPPowerDataType")};
// The kernel's energy-report group for the processor's power domains.
inline const QString energyModelGroup = QStringLiteral("Energy Model");

} // namespace ferrow::MacNames
