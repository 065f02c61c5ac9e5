#pragma once

#include "monitor/snapshot_reader.h"

#include <QString>

#include <memory>

namespace ferrow {

// Reads the machine once a second through a PowerMonitor and serves the latest reading as
// metrics on the given ADDRESS:PORT until interrupted. Needs a running Qt application object;
// returns the process's exit status.
int serveMetrics(std::unique_ptr<SnapshotReader> reader, const QString &address, const QString &machineDescription);

} // namespace ferrow
