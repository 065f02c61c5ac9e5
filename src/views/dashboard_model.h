#pragma once

#include "model/power_snapshot.h"
#include "model/value_text.h"
#include "views/ferrow_palette.h"

#include <QString>

#include <array>
#include <optional>

namespace ferrow {

// What the popover shows, decided from one snapshot; the widgets only lay it out.

struct TelemetryRowModel {
    QString label;
    QString value;
    ColorRole valueColor;
    bool showsSeparator;
};

struct StatusIndicator {
    ColorRole dotColor;
    QString text;
};

StatusIndicator statusIndicator(const PowerSnapshot &snapshot);
// VBUS: the adapter's voltage on adapter, the battery rail's (or pack's) when battery-powered.
std::optional<double> displayVoltageV(const PowerSnapshot &snapshot);
QString meterCaption(const PowerSnapshot &snapshot);
std::array<TelemetryRowModel, 4> telemetryRows(const PowerSnapshot &snapshot);

} // namespace ferrow
