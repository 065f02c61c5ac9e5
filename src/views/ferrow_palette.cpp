#include "views/ferrow_palette.h"

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

} // namespace

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
