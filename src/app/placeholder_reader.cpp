#include "app/placeholder_reader.h"

#include <algorithm>
#include <cmath>

namespace ferrow {

PowerSnapshot PlaceholderReader::read()
{
    constexpr double adapterVoltageV = 20.0;
    constexpr double chargePowerW = 12.0;
    const double elapsedS = std::chrono::duration<double>(std::chrono::steady_clock::now() - m_startedAt).count();

    PowerSnapshot snapshot;
    snapshot.hasBattery = true;
    snapshot.isExternalConnected = true;
    snapshot.isDataAvailable = true;
    snapshot.systemPowerW = 14.0 + 6.0 * std::sin(elapsedS / 7.0);
    snapshot.batteryPercent = std::min<std::int64_t>(100, 62 + static_cast<std::int64_t>(elapsedS / 60.0));
    snapshot.isCharging = snapshot.batteryPercent < 100;
    snapshot.batteryFlowW = snapshot.isCharging ? chargePowerW : 0.0;
    snapshot.batteryChargePowerW = std::max(0.0, snapshot.batteryFlowW);
    snapshot.dcPowerW = snapshot.systemPowerW + snapshot.batteryChargePowerW;
    snapshot.dcVoltageV = adapterVoltageV;
    snapshot.dcCurrentA = snapshot.dcPowerW / adapterVoltageV;
    snapshot.updatedAt = std::chrono::system_clock::now();
    return snapshot;
}

} // namespace ferrow
