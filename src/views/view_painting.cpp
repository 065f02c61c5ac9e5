#include "views/view_painting.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace ferrow {
namespace {

void setSize(QFont &font, double size)
{
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(size))));
}

} // namespace

QFont uiFont(double size, QFont::Weight weight)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    setSize(font, size);
    font.setWeight(weight);
    return font;
}

QFont monospacedFont(double size, QFont::Weight weight)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    setSize(font, size);
    font.setWeight(weight);
    return font;
}

QFont brandFont(double size, QFont::Weight weight)
{
    QFont font(QStringLiteral("Google Sans Flex"));
    setSize(font, size);
    font.setWeight(weight);
    return font;
}

void drawFittedText(QPainter &painter, const QRectF &rect, const QString &text, QFont font, double minimumScale,
                    Qt::Alignment alignment)
{
    const int fullSize = font.pixelSize();
    const int smallest = std::max(1, static_cast<int>(std::floor(fullSize * minimumScale)));
    for (int size = fullSize; size > smallest && QFontMetricsF(font).horizontalAdvance(text) > rect.width(); --size)
        font.setPixelSize(size - 1);
    painter.setFont(font);
    const QString shown = QFontMetricsF(font).elidedText(text, Qt::ElideRight, rect.width());
    painter.drawText(rect, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

void paintCardSurface(QPainter &painter, const QRectF &rect, double cornerRadius, const FerrowPalette &palette)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QPainterPath shape;
    shape.addRoundedRect(rect, cornerRadius, cornerRadius);
    painter.fillPath(shape, palette.cardFill());
    painter.fillPath(shape, palette.cardTint());
    painter.restore();
}

void paintBottomSeparator(QPainter &painter, const QRectF &rect, const FerrowPalette &palette)
{
    painter.save();
    painter.setPen(QPen(palette.separator(), 1));
    const double y = rect.bottom() - 0.5;
    painter.drawLine(QPointF(rect.left(), y), QPointF(rect.right(), y));
    painter.restore();
}

} // namespace ferrow
