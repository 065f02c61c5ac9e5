#include "views/ferrow_palette.h"

#include <QHash>

#include <algorithm>
#include <cmath>

namespace ferrow {
namespace {

constexpr double kLegibleRatio = 4.5; // text and figures
constexpr double kControlRatio = 3.0; // the outlines of controls

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
    return legible(isDark() ? QColor(245, 245, 247) : QColor(29, 29, 31));
}

QColor FerrowPalette::secondaryText() const
{
    return legible(grey(*this, 235, 245, 0.62, 0.67));
}

QColor FerrowPalette::tertiaryText() const
{
    return legible(grey(*this, 235, 245, 0.34, 0.38));
}

QColor FerrowPalette::separator() const
{
    return grey(*this, 84, 88, 0.56, 0.16);
}

QColor FerrowPalette::accent() const
{
    return legible(isDark() ? QColor(10, 132, 255) : QColor(0, 122, 255));
}

QColor FerrowPalette::positive() const
{
    return legible(isDark() ? QColor(50, 215, 75) : QColor(40, 167, 69));
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

QColor FerrowPalette::cardGround() const
{
    return over(cardTint(), over(cardFill(), panelBackground()));
}

QColor FerrowPalette::windowBackground() const
{
    return isDark() ? QColor(36, 36, 39) : QColor(246, 246, 248);
}

QColor FerrowPalette::sidebarBackground() const
{
    return isDark() ? QColor(44, 44, 48) : QColor(232, 232, 236);
}

QColor FerrowPalette::reportPanelBackground() const
{
    // A shade lighter than the window, as a material over it would be.
    return isDark() ? QColor(48, 48, 51) : QColor(253, 253, 254);
}

QColor FerrowPalette::reportTileGround() const
{
    return over(cardTint(), reportPanelBackground());
}

QList<QColor> FerrowPalette::textGrounds() const
{
    return {panelBackground(), cardGround(), windowBackground(), sidebarBackground(), reportPanelBackground(), reportTileGround()};
}

QColor FerrowPalette::legible(const QColor &color) const
{
    if (!increasesContrast())
        return color;
    // Asked for at every paint, so each tone is worked out once. Views paint on the main thread only.
    static QHash<quint64, QRgb> tones;
    const quint64 key = (quint64(isDark()) << 32) | color.rgba();
    if (const auto found = tones.constFind(key); found != tones.constEnd())
        return QColor::fromRgba(*found);
    // Dark text must read on the darkest of the light grounds, light text on the lightest dark one;
    // then it reads on all of them.
    const QList<QColor> grounds = textGrounds();
    const auto byLuminance = [](const QColor &a, const QColor &b) { return relativeLuminance(a) < relativeLuminance(b); };
    const QColor hardest = isDark() ? *std::max_element(grounds.begin(), grounds.end(), byLuminance)
                                    : *std::min_element(grounds.begin(), grounds.end(), byLuminance);
    const QColor tone = readableOn(color, hardest, kLegibleRatio);
    tones.insert(key, tone.rgba());
    return tone;
}

QColor FerrowPalette::meterTile(const QColor &color) const
{
    // Contrast is symmetric: the tone of the tile that white reads on. The codes are white at 0.9,
    // hence the margin.
    return increasesContrast() ? readableOn(color, Qt::white, kLegibleRatio + 0.8) : color;
}

QColor FerrowPalette::controlOutline(const QColor &ground) const
{
    return readableOn(isDark() ? QColor(152, 152, 157) : QColor(142, 142, 147), ground, increasesContrast() ? kLegibleRatio : kControlRatio);
}

QColor FerrowPalette::focusRing(const QColor &ground) const
{
    return readableOn(accent(), ground, kControlRatio);
}

QColor FerrowPalette::monogramTile(std::size_t index) const
{
    // The system's hues and its grey, told apart at a glance; only their depth is ours.
    static const QColor hues[kMonogramTiles] = {{0, 122, 255}, {88, 86, 214}, {175, 82, 222}, {142, 142, 147},
                                                 {255, 59, 48},  {255, 149, 0}, {52, 199, 89}, {48, 176, 199}};
    return readableOn(hues[index % kMonogramTiles], Qt::white, kLegibleRatio);
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
        return legible(FixedColor::dischargePink);
    case ColorRole::liveGreen:
        return legible(FixedColor::liveGreen);
    case ColorRole::orange:
        return legible(FixedColor::orange);
    }
    return primaryText();
}

QList<ColourPair> colourPairs(const FerrowPalette &palette)
{
    struct Ink {
        QLatin1String name;
        QColor color;
    };
    const Ink brandTexts[] = {
        {QLatin1String("primary text"), palette.primaryText()},
        {QLatin1String("secondary text"), palette.secondaryText()},
        {QLatin1String("tertiary text"), palette.tertiaryText()},
        {QLatin1String("accent"), palette.accent()},
        {QLatin1String("positive"), palette.positive()},
        {QLatin1String("discharge pink"), palette.color(ColorRole::dischargePink)},
        {QLatin1String("orange"), palette.color(ColorRole::orange)},
        {QLatin1String("live green"), palette.color(ColorRole::liveGreen)},
        {QLatin1String("battery title"), palette.legible(FixedColor::chargeGreen)},
        {QLatin1String("cells title"), palette.legible(FixedColor::cellsAccent)},
    };
    const Ink grounds[] = {
        {QLatin1String("popover"), palette.panelBackground()},       {QLatin1String("popover card"), palette.cardGround()},
        {QLatin1String("window"), palette.windowBackground()},       {QLatin1String("sidebar"), palette.sidebarBackground()},
        {QLatin1String("report panel"), palette.reportPanelBackground()}, {QLatin1String("report tile"), palette.reportTileGround()},
    };
    QList<ColourPair> pairs;
    for (const Ink &ground : grounds) {
        for (const Ink &text : brandTexts)
            pairs.push_back({QStringLiteral("%1 on %2").arg(text.name, ground.name), text.color, ground.color});
        pairs.push_back({QStringLiteral("check box outline on %1").arg(ground.name), palette.controlOutline(ground.color), ground.color, 3.0, false});
        pairs.push_back({QStringLiteral("focus ring on %1").arg(ground.name), palette.focusRing(ground.color), ground.color, 3.0, false});
    }
    // The figures of the report's rows take a legible tone of their tint on the panel.
    for (const Ink &text : brandTexts)
        pairs.push_back({QStringLiteral("row value in %1 on report panel").arg(text.name), readableOn(text.color, palette.reportPanelBackground()),
                         palette.reportPanelBackground(), 4.5, false});
    pairs.push_back({QStringLiteral("sidebar header"), readableOn(palette.secondaryText(), palette.sidebarBackground()), palette.sidebarBackground(), 4.5, false});
    for (std::size_t tile = 0; tile < kMonogramTiles; ++tile)
        pairs.push_back({QStringLiteral("monogram letter on tile %1").arg(tile), Qt::white, palette.monogramTile(tile), 4.5, false});
    const Ink tiles[] = {{QLatin1String("VBUS"), FixedColor::meterInput}, {QLatin1String("IBUS"), FixedColor::meterCurrent}, {QLatin1String("PWR"), FixedColor::meterPower}};
    QColor code = Qt::white;
    code.setAlphaF(0.9f);
    for (const Ink &tile : tiles) {
        pairs.push_back({QStringLiteral("%1 figure").arg(tile.name), Qt::white, palette.meterTile(tile.color)});
        pairs.push_back({QStringLiteral("%1 code").arg(tile.name), code, palette.meterTile(tile.color)});
    }
    return pairs;
}

} // namespace ferrow
