#pragma once

#include "views/ferrow_palette.h"

#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

namespace ferrow {

// Sizes are in device-independent pixels, the unit every layout here uses.
QFont uiFont(double size, QFont::Weight weight = QFont::Normal);
QFont monospacedFont(double size, QFont::Weight weight = QFont::Normal);
// The brand face, for brand figures only; falls back to the system font when not registered.
QFont brandFont(double size, QFont::Weight weight = QFont::DemiBold);

// Draws text on one line in rect, shrinking the font down to minimumScale of its size before
// eliding, as a label that must not wrap or clip.
void drawFittedText(QPainter &painter, const QRectF &rect, const QString &text, QFont font, double minimumScale,
                    Qt::Alignment alignment);

// The one panel background of every card: a translucent fill of the card's shape, the tint over it.
void paintCardSurface(QPainter &painter, const QRectF &rect, double cornerRadius, const FerrowPalette &palette);

// A hairline divider along the bottom of rect.
void paintBottomSeparator(QPainter &painter, const QRectF &rect, const FerrowPalette &palette);

} // namespace ferrow
