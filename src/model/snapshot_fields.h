#pragma once

#include "model/power_snapshot.h"

#include <QString>

#include <cstdint>
#include <span>
#include <variant>
#include <vector>

namespace ferrow {

// One field of a reading as the exports see it: absent, a flag, a count, a measure, a text, a
// list of measures or a time.
using FieldValue = std::variant<std::monostate, bool, std::int64_t, double, QString, std::vector<double>, WallTime>;

// How a field becomes a metric in base units.
enum class MetricScale { none, minutesToSeconds, milliampereHoursToCoulombs };
// When the metric has a value at all: a battery's figures only with a battery, the power figures
// only when the reading obtained both input and system power.
enum class MetricPresence { always, withBattery, withPower, withBatteryAndPower };
// A measure; one sample per list entry labelled by its number; one sample per possible text,
// 1 for the present one; or one label of an information metric whose value is 1.
enum class MetricShape { measure, numbered, oneOf, infoLabel };

struct SnapshotField {
    const char *name;   // the JSON key ("a.b" nests b in a); none: a metric only
    FieldValue (*value)(const PowerSnapshot &);
    const char *metric; // none: not exported as a metric
    const char *help;
    const char *label = nullptr; // the label's name, with labelValue for a measure ("domain", "cpu")
    const char *labelValue = nullptr;
    MetricShape shape = MetricShape::measure;
    MetricScale scale = MetricScale::none;
    MetricPresence presence = MetricPresence::always;
    std::span<const char *const> choices = {}; // the possible texts of a oneOf field
};

// Every field of a reading, once, in the order the metrics are written.
std::span<const SnapshotField> snapshotFields();

} // namespace ferrow
