#pragma once

#include "model/power_snapshot.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

namespace ferrow {

QString batteryHealthText(const PowerSnapshot &snapshot);
QString batteryHealthText(std::optional<std::int64_t> percent, std::optional<BatteryHealthCondition> condition);
QString batteryTemperatureText(std::optional<double> celsius);

// The three figures under the battery card's gauge, as drawn and as spoken.
struct BatteryCardFigure {
    const char *labelKey;
    QString value;
    bool positive; // drawn in the palette's positive colour

    bool operator==(const BatteryCardFigure &) const = default;
};
std::array<BatteryCardFigure, 3> batteryCardFigures(const PowerSnapshot &snapshot);
// How much of gauge segment index (0..9) is filled at this charge level, 0 to 1.
double segmentFillFraction(std::int64_t level, int index);

// A meter's "%.5f" figure split for drawing: all but the last two characters large, those two smaller.
struct MeterValueText {
    QString large;
    QString small;
};
MeterValueText meterValueText(std::optional<double> value);
QString meterAccessibleText(const QString &code, std::optional<double> value, const QString &unit);

} // namespace ferrow
