#include "app/menu_bar_label.h"

#include "model/localized_text.h"
#include "views/view_painting.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <cmath>

namespace ferrow {

Glyph menuBarGlyph(const PowerSnapshot &snapshot)
{
    return snapshot.isExternalConnected ? Glyph::bolt : Glyph::battery;
}

QString menuBarFigureText(const PowerSnapshot &snapshot)
{
    const std::optional<double> powerW = snapshot.displayPowerW();
    if (!powerW || !std::isfinite(*powerW))
        return QString::fromUtf16(kAbsentText) + QStringLiteral(" W");
    return QString::asprintf("%.1f W", *powerW);
}

QString trayIconFigure(std::optional<double> powerW)
{
    if (!powerW || !std::isfinite(*powerW))
        return QString::fromUtf16(kAbsentText);
    return QString::asprintf(std::fabs(*powerW) < 9.95 ? "%.1f" : "%.0f", *powerW);
}

QIcon renderTrayIcon(const PowerSnapshot &snapshot, bool showPower)
{
    QIcon icon;
    for (const int side : {16, 22, 24, 32, 48, 64}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        const QRectF box(0, 0, side, side);
        if (!showPower) {
            paintGlyph(painter, menuBarGlyph(snapshot), box.adjusted(side * 0.08, side * 0.08, -side * 0.08, -side * 0.08), Qt::white);
        } else {
            paintGlyph(painter, menuBarGlyph(snapshot), QRectF(side * 0.3, 0, side * 0.4, side * 0.36), Qt::white);
            const QString figure = trayIconFigure(snapshot.displayPowerW());
            QFont font = uiFont(side * 0.62, QFont::Bold);
            const QRectF textBox(0, side * 0.34, side, side * 0.66);
            while (font.pixelSize() > 4 && QFontMetricsF(font).horizontalAdvance(figure) > side)
                font.setPixelSize(font.pixelSize() - 1);
            // A dark outline keeps the white figure readable on light panels too.
            QPainterPath text;
            const QFontMetricsF metrics(font);
            text.addText(QPointF((side - metrics.horizontalAdvance(figure)) / 2, textBox.center().y() + metrics.capHeight() / 2), font, figure);
            painter.strokePath(text, QPen(QColor(0, 0, 0, 140), side / 16.0));
            painter.fillPath(text, Qt::white);
        }
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace ferrow
