#include "views/power_flow_model.h"

#include "model/localized_text.h"
#include "model/value_text.h"
#include "views/accessibility_model.h"

#include <algorithm>
#include <cmath>

namespace ferrow {
namespace {

constexpr double kDCInputThresholdW = 0.1;
constexpr double kNodeCentreY = 17.5; // half a 35-point node
constexpr double kChargingTrunkShare = 0.36;
constexpr double kDischargingFeedShare = 0.62;

QPointF lerp(QPointF a, QPointF b, double t)
{
    return a + (b - a) * t;
}

FlowStroke line(QPointF from, QPointF to, QColor startColor, QColor endColor)
{
    return {false, from, from, to, to, startColor, endColor};
}

FlowStroke curve(QPointF from, QPointF c1, QPointF c2, QPointF to, QColor startColor, QColor endColor)
{
    return {true, from, c1, c2, to, startColor, endColor};
}

struct Anchors {
    double w, h;
    QPointF input, mac, battery;
};

Anchors anchorsOf(QSizeF size)
{
    const double w = size.width(), h = size.height();
    return {w, h, {0, h / 2}, {w, kNodeCentreY}, {w, h - kNodeCentreY}};
}

// The charging trunk's branch from the junction to one end.
FlowStroke branch(const Anchors &a, QPointF end, const FlowTone &endTone)
{
    const double j = 0.39 * a.w;
    const QPointF junction(j, a.h / 2);
    return curve(junction, {j + 0.34 * (a.w - j), a.h / 2}, {a.w - 0.28 * (a.w - j), end.y()}, end, kInputTone.color(), endTone.color());
}

QPointF mergePoint(const Anchors &a)
{
    return {0.56 * a.w, kNodeCentreY};
}

} // namespace

QColor FlowTone::color(double opacity) const
{
    QColor c = QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue));
    c.setAlphaF(static_cast<float>(opacity));
    return c;
}

FlowTone FlowTone::blended(const FlowTone &to, double t) const
{
    t = std::clamp(t, 0.0, 1.0);
    return {red + (to.red - red) * t, green + (to.green - green) * t, blue + (to.blue - blue) * t};
}

QPointF FlowStroke::pointAt(double t) const
{
    if (!isCurve)
        return lerp(start, end, t);
    const double u = 1 - t;
    return start * (u * u * u) + control1 * (3 * u * u * t) + control2 * (3 * u * t * t) + end * (t * t * t);
}

FlowInputs flowInputs(const PowerSnapshot &s)
{
    return {s.shownBatteryFlowW(), s.dcPowerW > kDCInputThresholdW, s.hasBattery};
}

FlowCase flowCase(const FlowInputs &inputs)
{
    if (!inputs.hasBattery)
        return FlowCase::noBattery;
    if (!inputs.hasDCInput)
        return FlowCase::batteryOnly;
    return inputs.batteryFlowW >= 0 ? FlowCase::chargingOrIdle : FlowCase::discharging;
}

std::vector<FlowStroke> flowStrokes(FlowCase flowCase, QSizeF size)
{
    const Anchors a = anchorsOf(size);
    switch (flowCase) {
    case FlowCase::noBattery:
        return {line(a.input, {a.w, a.h / 2}, kInputTone.color(), kSystemTone.color())};
    case FlowCase::batteryOnly:
        return {curve(a.battery, {0.31 * a.w, a.battery.y()}, {0.31 * a.w, a.mac.y()}, a.mac, kBatteryTone.color(), kSystemTone.color())};
    case FlowCase::chargingOrIdle:
        return {line(a.input, {0.39 * a.w, a.h / 2}, kInputTone.color(0.72), kInputTone.color()), branch(a, a.mac, kSystemTone),
                branch(a, a.battery, kBatteryTone)};
    case FlowCase::discharging: {
        const QPointF merge = mergePoint(a);
        return {curve(a.input, {0.24 * a.w, a.h / 2}, {0.37 * a.w, kNodeCentreY}, merge, kInputTone.color(), kSystemTone.color()),
                curve(a.battery, {0.76 * a.w, a.battery.y()}, {0.65 * a.w, kNodeCentreY}, merge, kBatteryTone.color(), kSystemTone.color()),
                line(merge, a.mac, kSystemTone.color(0.82), kSystemTone.color())};
    }
    }
    return {};
}

double flowPhase(double secondsSinceReference, bool reduceMotion)
{
    if (reduceMotion)
        return 0.5;
    const double phase = std::fmod(secondsSinceReference, kFlowAnimationDurationS) / kFlowAnimationDurationS;
    return phase < 0 ? phase + 1 : phase;
}

std::array<double, 3> dotPhases(double phase)
{
    return {std::fmod(phase, 1.0), std::fmod(phase + 0.36, 1.0), std::fmod(phase + 0.68, 1.0)};
}

std::array<FlowDot, 3> flowDots(const FlowInputs &inputs, QSizeF size, double phase)
{
    const FlowCase which = flowCase(inputs);
    const std::vector<FlowStroke> strokes = flowStrokes(which, size);
    const std::array<double, 3> phases = dotPhases(phase);
    std::array<FlowDot, 3> dots;
    for (std::size_t i = 0; i < dots.size(); ++i) {
        const double t = phases[i];
        switch (which) {
        case FlowCase::noBattery:
            dots[i] = {strokes[0].pointAt(t), kInputTone.blended(kSystemTone, t).color()};
            break;
        case FlowCase::batteryOnly:
            dots[i] = {strokes[0].pointAt(t), kBatteryTone.blended(kSystemTone, t).color()};
            break;
        case FlowCase::chargingOrIdle: {
            // While charging, the middle dot takes the battery branch; while idle all feed the Mac.
            const bool toBattery = inputs.batteryFlowW > 0 && i == 1;
            const FlowStroke &branchStroke = strokes[toBattery ? 2 : 1];
            const QPointF position = t <= kChargingTrunkShare ? strokes[0].pointAt(t / kChargingTrunkShare)
                                                              : branchStroke.pointAt((t - kChargingTrunkShare) / (1 - kChargingTrunkShare));
            dots[i] = {position, kInputTone.blended(toBattery ? kBatteryTone : kSystemTone, t).color()};
            break;
        }
        case FlowCase::discharging: {
            // The first dot comes from the adapter, the others from the battery that carries the rest.
            const bool fromInput = i == 0;
            const FlowStroke &feed = strokes[fromInput ? 0 : 1];
            const QPointF position = t <= kDischargingFeedShare ? feed.pointAt(t / kDischargingFeedShare)
                                                                : strokes[2].pointAt((t - kDischargingFeedShare) / (1 - kDischargingFeedShare));
            dots[i] = {position, (fromInput ? kInputTone : kBatteryTone).blended(kSystemTone, t).color()};
            break;
        }
        }
    }
    return dots;
}

FlowNodeValue batteryNodeValue(const PowerSnapshot &s)
{
    const double flowW = s.shownBatteryFlowW();
    FlowNodeValue node{flowW, QString(), ColorRole::secondaryText};
    if (flowW > 0) {
        node.prefix = QStringLiteral("+");
        node.iconColor = ColorRole::positive;
    } else if (flowW < 0) {
        node.iconColor = ColorRole::dischargePink;
    }
    if (!s.isDataAvailable)
        node.valueW.reset();
    return node;
}

QString flowNodeValueText(const FlowNodeValue &node)
{
    const QString figure = formatFigure(node.valueW, "%.1f W");
    return figure == absentText() ? figure : node.prefix + figure;
}

QString flowDescription(const PowerSnapshot &s)
{
    const auto watts = [](std::optional<double> value) { return spokenValue(formatFigure(value, "%.1f W")); };
    const QString adapter = watts(s.dcPowerW), system = watts(s.systemPowerW);
    // The battery's direction is in the sentence, so its figure goes without a sign.
    const std::optional<double> batteryW = batteryNodeValue(s).valueW;
    const QString battery = watts(batteryW ? std::optional(std::abs(*batteryW)) : std::nullopt);
    switch (flowCase(flowInputs(s))) {
    case FlowCase::noBattery:
        return localizedFormatText("accessibility.flow_adapter", {adapter, system});
    case FlowCase::batteryOnly:
        return localizedFormatText("accessibility.flow_battery", {battery, system});
    case FlowCase::chargingOrIdle:
        return localizedFormatText("accessibility.flow_charging", {adapter, system, battery});
    case FlowCase::discharging:
        return localizedFormatText("accessibility.flow_discharging", {adapter, battery, system});
    }
    return {};
}

} // namespace ferrow
