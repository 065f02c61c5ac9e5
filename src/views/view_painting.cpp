#include "views/view_painting.h"

#include <QAbstractButton>
#include <QFontDatabase>
#include <QLabel>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPixmapCache>

#include <algorithm>
#include <functional>
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

double paintingScale(const QPainter &painter)
{
    return std::max(painter.device()->devicePixelRatioF(), painter.deviceTransform().m11());
}

QPixmap cachedDrawing(const QString &key, const QSizeF &size, double scale, const std::function<void(QPainter &)> &draw)
{
    const QString fullKey = QStringLiteral("%1|%2x%3@%4").arg(key).arg(size.width()).arg(size.height()).arg(scale);
    QPixmap drawing;
    if (!QPixmapCache::find(fullKey, &drawing)) {
        drawing = QPixmap((size * scale).toSize());
        drawing.setDevicePixelRatio(scale);
        drawing.fill(Qt::transparent);
        QPainter painter(&drawing);
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter);
        painter.end();
        QPixmapCache::insert(fullKey, drawing);
    }
    return drawing;
}

void paintCardSurface(QPainter &painter, const QRectF &rect, double cornerRadius, const FerrowPalette &palette)
{
    const QString key = QStringLiteral("card|%1|%2").arg(cornerRadius).arg(int(palette.scheme));
    painter.drawPixmap(rect.topLeft(), cachedDrawing(key, rect.size(), paintingScale(painter), [&](QPainter &card) {
        QPainterPath shape;
        shape.addRoundedRect(QRectF(QPointF(0, 0), rect.size()), cornerRadius, cornerRadius);
        card.fillPath(shape, palette.cardFill());
        card.fillPath(shape, palette.cardTint());
    }));
}

void paintBottomSeparator(QPainter &painter, const QRectF &rect, const FerrowPalette &palette)
{
    // A filled row of pixels rather than a stroked line: no antialiasing, no spans to blend.
    painter.fillRect(QRectF(rect.left(), rect.bottom() - 1, rect.width(), 1), palette.separator());
}

void styleSegmentedPicker(QWidget &picker, const QList<QAbstractButton *> &segments, const FerrowPalette &palette, const QColor &ground)
{
    const auto css = [](const QColor &c) { return c.name(QColor::HexArgb); };
    picker.setStyleSheet(QStringLiteral("#%1 { background: %2; border-radius: 7px; }").arg(picker.objectName(), css(palette.cardTint())));
    // Each segment gets its own sheet: a sheet changed on the picker alone does not reach segments
    // that were already styled, which kept the first appearance's text colour (white on light).
    const QString segmentSheet =
        QStringLiteral("QToolButton { border: none; border-radius: 5px; padding: 3px; color: %1; background: transparent; font-size: 11px; }"
                       "QToolButton:checked { background: %2; }"
                       "QToolButton:focus { border: 2px solid %3; padding: 1px; }")
            .arg(css(palette.primaryText()), css(palette.isDark() ? QColor(255, 255, 255, 46) : QColor(255, 255, 255)),
                 css(palette.focusRing(ground)));
    for (QAbstractButton *segment : segments)
        segment->setStyleSheet(segmentSheet);
}

QLabel *fontLabel(const QFont &font, const QString &text)
{
    auto *label = new QLabel(text);
    label->setFont(font);
    return label;
}

void setTextColor(QLabel *label, const QColor &color)
{
    label->setStyleSheet(QStringLiteral("color: %1").arg(color.name(QColor::HexArgb)));
}

} // namespace ferrow
