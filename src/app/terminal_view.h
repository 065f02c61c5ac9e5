#pragma once

#include "alerts/alert_settings.h"
#include "model/power_snapshot.h"
#include "monitor/snapshot_reader.h"

#include <QString>

#include <optional>

class QTextStream;

namespace ferrow {

// One line a reading: time, headline power, status, source, charge and the chip's largest blocks.
QString readingSummaryLine(const PowerSnapshot &snapshot);

// Prints a reading every second, as a line or as JSON, until the process is interrupted; with
// alert settings, also a line for each alert they give (see AlertLines).
// Needs a running Qt application object; returns its exit code.
int runTerminalView(SnapshotReader &reader, bool json, QTextStream &out, const std::optional<AlertSettings> &alerts = std::nullopt);

} // namespace ferrow
