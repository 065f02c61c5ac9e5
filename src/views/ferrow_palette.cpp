#include "views/ferrow_palette.h"

#include <algorithm>
#include <cmath>

namespace ferrow {
namespace {

QColor rgba(int r, int g, int b, double opacity)
{
    QColor color(r, g, b);
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

// The three greys share one rule: rgb(r, r, b) in the dark scheme, rgb(60, 60, 67) in the light one.
QColor grey(const FerrowPalette &palette, int darkRedGreen, int darkBlue, double darkOpacity, double lightOpacity)
{
    return palette.isDark() ? rgba(darkRedGreen, darkRedGreen, darkBlue, darkOpacity) : rgba(60, 60, 67, lightOpacity);
}

QColor over(const QColor &foreground, const QColor &background)
{
    const double a = foreground.alphaF();
    const auto channel = [a](double f, double b) { return f * a + b * (1 - a); };
    return QColor::fromRgbF(static_cast<float>(channel(foreground.redF(), background.redF())),
                            static_cast<float>(channel(foreground.greenF(), background.greenF())),
                            static_cast<float>(channel(foreground.blueF(), background.blueF())));
}

double relativeLuminance(const QColor &color)
{
    const auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor mixed(const QColor &color, const QColor &target, double fraction)
{
    const auto channel = [fraction](double c, double t) { return static_cast<float>(c + (t - c) * fraction); };
    return QColor::fromRgbF(channel(color.redF(), target.redF()), channel(color.greenF(), target.greenF()),
                            channel(color.blueF(), target.blueF()));
}

} // namespace

double contrastRatio(const QColor &foreground, const QColor &background)
{
    const double a = relativeLuminance(over(foreground, background)) + 0.05;
    const double b = relativeLuminance(background) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QColor readableOn(const QColor &color, const QColor &background, double minimumRatio)
{
    const QColor opaque = over(color, background);
    // Above a luminance of 0.18 black reads at 4.58:1 or better, below it white does.
    const QColor target = relativeLuminance(background) > 0.18 ? QColor(Qt::black) : QColor(Qt::white);
    QColor tone = opaque;
    for (int step = 1; step <= 100 && contrastRatio(tone, background) < minimumRatio; ++step)
        tone = mixed(opaque, target, step / 100.0);
    return tone;
}

QColor FerrowPalette::primaryText() const
{
    return isDark() ? QColor(245, 245, 247) : QColor(29, 29, 31);
}

QColor FerrowPalette::secondaryText() const
{
    return grey(*this, 235, 245, 0.62, 0.67);
}

QColor FerrowPalette::tertiaryText() const
{
    return grey(*this, 235, 245, 0.34, 0.38);
}

QColor FerrowPalette::separator() const
{
    return grey(*this, 84, 88, 0.56, 0.16);
}

QColor FerrowPalette::accent() const
{
    return isDark() ? QColor(10, 132, 255) : QColor(0, 122, 255);
}

QColor FerrowPalette::positive() const
{
    return isDark() ? QColor(50, 215, 75) : QColor(40, 167, 69);
}

QColor FerrowPalette::cardTint() const
{
    return isDark() ? rgba(255, 255, 255, 0.11) : rgba(0, 0, 0, 0.075);
}

QColor FerrowPalette::panelBackground() const
{
    return isDark() ? QColor(30, 30, 33) : QColor(236, 236, 239);
}

QColor FerrowPalette::cardFill() const
{
    return isDark() ? rgba(255, 255, 255, 0.03) : rgba(255, 255, 255, 0.55);
}

QColor FerrowPalette::color(ColorRole role) const
{
    switch (role) {
    case ColorRole::primaryText:
        return primaryText();
    case ColorRole::secondaryText:
        return secondaryText();
    case ColorRole::tertiaryText:
        return tertiaryText();
    case ColorRole::separator:
        return separator();
    case ColorRole::accent:
        return accent();
    case ColorRole::positive:
        return positive();
    case ColorRole::dischargePink:
        return FixedColor::dischargePink;
    case ColorRole::liveGreen:
        return FixedColor::liveGreen;
    case ColorRole::orange:
        return FixedColor::orange;
    }
    return primaryText();
}

} // namespace ferrow
