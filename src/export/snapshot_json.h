#pragma once

#include "model/power_snapshot.h"

#include <QJsonObject>

namespace ferrow {

// Every field of the snapshot under its own name; absent values are null, updatedAt is
// ISO 8601 in UTC with milliseconds.
QJsonObject snapshotToJson(const PowerSnapshot &snapshot);

} // namespace ferrow
