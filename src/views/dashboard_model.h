#pragma once

#include "model/power_snapshot.h"
#include "model/value_text.h"
#include "views/ferrow_palette.h"
#include "views/value_row.h"

#include <QString>

#include <optional>
#include <vector>

namespace ferrow {

// What the popover shows, decided from one snapshot; the widgets only lay it out.

struct StatusIndicator {
    ColorRole dotColor;
    QString text;
};

StatusIndicator statusIndicator(const PowerSnapshot &snapshot);
// VBUS: the adapter's voltage on adapter, the battery rail's (or pack's) when battery-powered.
std::optional<double> displayVoltageV(const PowerSnapshot &snapshot);
QString meterCaption(const PowerSnapshot &snapshot);
// The popover's four battery rows, or the machine's own four without a battery.
std::vector<ValueRow> telemetryRows(const PowerSnapshot &snapshot);

} // namespace ferrow
