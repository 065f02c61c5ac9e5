#pragma once

#include "alerts/alert.h"
#include "alerts/alert_settings.h"
#include "model/power_snapshot.h"

#include <QString>

#include <optional>
#include <vector>

namespace ferrow {

QString alertTitle(AlertKind kind);

// The alert in the user's language, naming the figures of the reading it fired on.
Alert describeAlert(AlertKind kind, const PowerSnapshot &reading, const AlertSettings &settings,
                    std::optional<double> meanSystemPowerW);

// One short line for the alerts active now (most urgent first), empty when there are none.
QString activeAlertText(const std::vector<AlertKind> &active);

} // namespace ferrow
