#pragma once

#include <QColor>
#include <QList>
#include <QString>

#include <cstddef>

namespace ferrow {

enum class ColorScheme { light, dark };
// The system's "increase contrast" setting (or the user's preference where the system has none).
enum class Contrast { standard, increased };

// Colours a value can be drawn in, resolved by a palette; lets view decisions stay pure.
enum class ColorRole { primaryText, secondaryText, tertiaryText, separator, accent, positive, dischargePink, liveGreen, orange };

// The colours of every view, for one appearance. With increased contrast every colour that text
// or a figure is drawn in becomes a tone of itself that reads at 4.5:1 on every ground below.
struct FerrowPalette {
    ColorScheme scheme = ColorScheme::dark;
    Contrast contrast = Contrast::standard;

    bool isDark() const { return scheme == ColorScheme::dark; }
    bool increasesContrast() const { return contrast == Contrast::increased; }

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

    // The grounds text is drawn on: the popover and its cards, the details window, its sidebar,
    // its panels and the tiles inside them.
    QColor cardGround() const; // a card's fill and tint over the popover, as seen
    QColor windowBackground() const;
    QColor sidebarBackground() const;
    QColor reportPanelBackground() const;
    QColor reportTileGround() const;
    QList<QColor> textGrounds() const;

    QColor color(ColorRole role) const;
    // A colour text or a figure is drawn in: itself, or with increased contrast its legible tone.
    QColor legible(const QColor &color) const;
    // A meter tile under its white figures: itself, or with increased contrast a deeper tone.
    QColor meterTile(const QColor &color) const;
    // The outline of a control (a check box, a focus ring) that reads at 3:1 on ground.
    QColor controlOutline(const QColor &ground) const;
    QColor focusRing(const QColor &ground) const;
    // The tile of an application's monogram, of kMonogramTiles, under its white letter: a tone of
    // the tile's hue that white reads on in every appearance.
    QColor monogramTile(std::size_t index) const;
};

// One colour drawn on another somewhere in the views, and the least contrast it must reach.
struct ColourPair {
    QString what;
    QColor foreground;
    QColor background;
    double minimumRatio = 4.5;
    // A colour the brand fixes (primary text, the fixed tile colours, ...): kept as it is unless
    // contrast is increased.
    bool brandColour = true;
};
// Every pairing of a text, figure or control colour with a ground that the views draw.
QList<ColourPair> colourPairs(const FerrowPalette &palette);

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
inline const QColor chargeGreen{52, 199, 89}; // the system's green: the battery panels' titles and bars
inline const QColor cellsAccent{52, 167, 126}; // the cells panel's title
} // namespace FixedColor

inline constexpr std::size_t kMonogramTiles = 8;

} // namespace ferrow
