#include "alerts/alert_settings.h"

namespace ferrow {

bool AlertSettings::isOn(AlertKind kind) const
{
    switch (kind) {
    case AlertKind::chargerCannotKeepUp:
        return chargerCannotKeepUp;
    case AlertKind::chargingSlowly:
        return chargingSlowly;
    case AlertKind::batteryHot:
        return batteryHot;
    case AlertKind::cellsOutOfBalance:
        return cellsOutOfBalance;
    case AlertKind::chargeLevelReached:
        return chargeLevelReached;
    }
    return false;
}

} // namespace ferrow
