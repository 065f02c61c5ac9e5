#pragma once

#include <QColor>

namespace ferrow {

enum class ColorScheme { light, dark };

// Colours a value can be drawn in, resolved by a palette; lets view decisions stay pure.
enum class ColorRole { primaryText, secondaryText, tertiaryText, separator, accent, positive, dischargePink, liveGreen, orange };

// The colours of every view, for one appearance.
struct FerrowPalette {
    ColorScheme scheme = ColorScheme::dark;

    bool isDark() const { return scheme == ColorScheme::dark; }

    QColor primaryText() const;
    QColor secondaryText() const;
    QColor tertiaryText() const;
    QColor separator() const;
    QColor accent() const;
    QColor positive() const;
    QColor cardTint() const;
    // Where the platform would draw a translucent material: the popover's ground and a card's fill.
    QColor panelBackground() const;
    QColor cardFill() const;

    QColor color(ColorRole role) const;
};

// The WCAG contrast ratio of two colours, from 1 (none) to 21 (black on white); a translucent
// foreground counts as composited over the background.
double contrastRatio(const QColor &foreground, const QColor &background);
// The colour itself where it reads at minimumRatio on background, else the least darkened (on a
// light background) or lightened (on a dark one) tone of it that does.
QColor readableOn(const QColor &color, const QColor &background, double minimumRatio = 4.5);

// Colours that stay the same in both appearances.
namespace FixedColor {
inline const QColor liveGreen{52, 199, 89};
inline const QColor dischargePink{241, 169, 184};
inline const QColor meterInput{63, 188, 151};
inline const QColor meterCurrent{240, 130, 148};
inline const QColor meterPower{43, 163, 248};
inline const QColor orange{255, 149, 0};
inline const QColor macBlue{10, 132, 255};
} // namespace FixedColor

} // namespace ferrow
