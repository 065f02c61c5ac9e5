#include "alerts/alert.h"

namespace ferrow {

QString alertKindName(AlertKind kind)
{
    switch (kind) {
    case AlertKind::chargerCannotKeepUp:
        return QStringLiteral("charger_cannot_keep_up");
    case AlertKind::chargingSlowly:
        return QStringLiteral("charging_slowly");
    case AlertKind::batteryHot:
        return QStringLiteral("battery_hot");
    case AlertKind::cellsOutOfBalance:
        return QStringLiteral("cells_out_of_balance");
    case AlertKind::chargeLevelReached:
        return QStringLiteral("charge_level_reached");
    }
    return {};
}

} // namespace ferrow
