#pragma once

#include "model/power_snapshot.h"
#include "views/ferrow_palette.h"

#include <QColor>
#include <QPointF>
#include <QSizeF>
#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace ferrow {

// The flow diagram's geometry, colours and dots, as pure functions of the snapshot, the
// connector's size and the clock.

struct FlowTone {
    double red, green, blue;
    QColor color(double opacity = 1.0) const;
    FlowTone blended(const FlowTone &to, double t) const;
};

inline constexpr FlowTone kInputTone{72 / 255.0, 227 / 255.0, 185 / 255.0};
inline constexpr FlowTone kSystemTone{85 / 255.0, 187 / 255.0, 255 / 255.0};
inline constexpr FlowTone kBatteryTone{241 / 255.0, 169 / 255.0, 184 / 255.0};
inline constexpr double kFlowAnimationDurationS = 1.55;

struct FlowInputs {
    double batteryFlowW; // snapped to 0 below 0.05 W
    bool hasDCInput;
    bool hasBattery;
};
FlowInputs flowInputs(const PowerSnapshot &snapshot);

enum class FlowCase { noBattery, batteryOnly, chargingOrIdle, discharging };
FlowCase flowCase(const FlowInputs &inputs);

// One stroked piece of a route: a line (controls unused) or a cubic curve, with its gradient.
struct FlowStroke {
    bool isCurve;
    QPointF start, control1, control2, end;
    QColor startColor, endColor;

    QPointF pointAt(double t) const;
};
std::vector<FlowStroke> flowStrokes(FlowCase flowCase, QSizeF size);

struct FlowDot {
    QPointF position;
    QColor color;
};
// Phase of the animation in [0, 1); 0.5 when motion is reduced.
double flowPhase(double secondsSinceReference, bool reduceMotion);
std::array<double, 3> dotPhases(double phase);
std::array<FlowDot, 3> flowDots(const FlowInputs &inputs, QSizeF size, double phase);

struct FlowNodeValue {
    std::optional<double> valueW;
    QString prefix;
    ColorRole iconColor;
};
FlowNodeValue batteryNodeValue(const PowerSnapshot &snapshot);
QString flowNodeValueText(const FlowNodeValue &node);

// The diagram in words, for a screen reader: where the power comes from and where it goes, with
// the nodes' figures ("Adapter 46.4 watts to system 14.6 watts and battery 31.8 watts").
QString flowDescription(const PowerSnapshot &snapshot);

} // namespace ferrow
