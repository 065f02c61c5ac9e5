#pragma once

#include <QString>
#include <QStringList>

namespace ferrow::MacNames {

// The battery service's registry class.
inline const QString batteryService = QStringLiteral("AppleSmartBattery");
// The system profiler and the arguments that make it report power as JSON.
inline const QString systemProfiler = QStringLiteral("/usr/sbin/system_profiler");
inline const QStringList systemProfilerArguments = {QStringLiteral("-json"), QStringLiteral("SPPowerDataType")};
// From this macOS major version on, the SMC's battery cell and temperature keys are read and the
// battery's temperature extremes are kept by Ferrow itself.
inline constexpr int firstVersionWithSMCSensors = 27;
// The kernel's energy-report group for the processor's power domains.
inline const QString energyModelGroup = QStringLiteral("Energy Model");

} // namespace ferrow::MacNames
