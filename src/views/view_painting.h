#pragma once

#include "views/ferrow_palette.h"

#include <QFont>
#include <QList>
#include <QPixmap>
#include <QRectF>
#include <QString>

#include <functional>

class QAbstractButton;
class QLabel;
class QPainter;

namespace ferrow {

// Sizes are in device-independent pixels, the unit every layout here uses.

// A glyph's antialiased edge can fall a point outside its advance, and a child widget clips it: a
// piece that draws text to its sides is given this much room there as contents margins, and draws
// inside its contents rect.
inline constexpr int kInkFringe = 2;
QFont uiFont(double size, QFont::Weight weight = QFont::Normal);
QFont monospacedFont(double size, QFont::Weight weight = QFont::Normal);
// The brand face, for brand figures only; falls back to the system font when not registered.
QFont brandFont(double size, QFont::Weight weight = QFont::DemiBold);

// Draws text on one line in rect, shrinking the font down to minimumScale of its size before
// eliding, as a label that must not wrap or clip.
void drawFittedText(QPainter &painter, const QRectF &rect, const QString &text, QFont font, double minimumScale,
                    Qt::Alignment alignment);

// How many device pixels a painter puts in one unit: an image rendered at 2x differs from its widget.
double paintingScale(const QPainter &painter);

// A drawing that changes only with its key, size and scale, made once and then blitted: an
// antialiased fill of many spans goes through the raster engine's thread pool, whose hand-offs
// cost more than the fill itself when it is repeated every second.
QPixmap cachedDrawing(const QString &key, const QSizeF &size, double scale, const std::function<void(QPainter &)> &draw);

// The one panel background of every card: a translucent fill of the card's shape, the tint over it.
void paintCardSurface(QPainter &painter, const QRectF &rect, double cornerRadius, const FerrowPalette &palette);

// A hairline divider along the bottom of rect.
void paintBottomSeparator(QPainter &painter, const QRectF &rect, const FerrowPalette &palette);

// A row of checkable segments on a tinted ground, the chosen one raised, the focused one ringed.
void styleSegmentedPicker(QWidget &picker, const QList<QAbstractButton *> &segments, const FerrowPalette &palette, const QColor &ground);

// The windows' labels: a label in a font, and its text in a colour of the palette's.
QLabel *fontLabel(const QFont &font, const QString &text = QString());
void setTextColor(QLabel *label, const QColor &color);

} // namespace ferrow
