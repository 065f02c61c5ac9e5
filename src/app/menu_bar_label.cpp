#include "app/menu_bar_label.h"

#include "model/localized_text.h"
#include "model/value_text.h"
#include "views/view_painting.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <cmath>

namespace ferrow {

Glyph menuBarGlyph(const MenuBarReading &reading)
{
    return reading.onExternalPower ? Glyph::bolt : Glyph::battery;
}

QString menuBarFigureText(const PowerSnapshot &snapshot)
{
    const std::optional<double> powerW = snapshot.displayPowerW();
    if (!powerW || !std::isfinite(*powerW))
        return localizedText("— W");
    // The table's text is a layout around the figure, never handed to printf as a format.
    QString text = localizedText("%.1f W");
    if (!text.contains(QLatin1String("%.1f")))
        text = QStringLiteral("%.1f W");
    return text.replace(QLatin1String("%.1f"), QString::asprintf("%.1f", *powerW));
}

QString trayIconFigure(std::optional<double> powerW)
{
    if (!powerW || !std::isfinite(*powerW))
        return absentText();
    return QString::asprintf(std::fabs(*powerW) < 9.95 ? "%.1f" : "%.0f", *powerW);
}

MenuBarReading menuBarReading(const PowerSnapshot &snapshot, bool showPower, const QString &toolTip)
{
    return {snapshot.isExternalConnected, snapshot.displayPowerW(), menuBarFigureText(snapshot), showPower, toolTip};
}

QIcon renderTrayIcon(const PowerSnapshot &snapshot, bool showPower)
{
    return renderTrayIcon(menuBarReading(snapshot, showPower, QString()));
}

QIcon renderTrayIcon(const MenuBarReading &reading)
{
    // Panels are light or dark and Qt cannot tell which, so the icon brings its own ground: a dark
    // tile with white content reads on both.
    const QColor tile(28, 28, 32, 235);
    const QColor ink(Qt::white);
    const QString figure = trayIconFigure(reading.powerW);
    const Glyph glyph = menuBarGlyph(reading);
    QIcon icon;
    for (const int side : {16, 22, 24, 32, 48}) { // what panels ask for; larger ones cost fills for nothing
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        const QRectF box(0, 0, side, side);
        painter.drawPixmap(0, 0, cachedDrawing(QStringLiteral("tray-tile"), box.size(), 1.0, [&](QPainter &ground) {
            QPainterPath shape;
            shape.addRoundedRect(box, side * 0.22, side * 0.22);
            ground.fillPath(shape, tile);
        }));
        if (!reading.showsPower) {
            paintGlyph(painter, glyph, box.adjusted(side * 0.18, side * 0.18, -side * 0.18, -side * 0.18), ink);
        } else {
            paintGlyph(painter, glyph, QRectF(side * 0.27, side * 0.05, side * 0.46, side * 0.38), ink);
            // The largest figure that fits the width, with its unit where there is room for it.
            const double width = side * 0.92;
            QFont font = uiFont(1, QFont::Bold);
            QString text = figure;
            for (const QString &candidate : {figure + QStringLiteral(" W"), figure + u'W', figure}) {
                font.setPixelSize(qRound(side * 0.5));
                while (font.pixelSize() > 6 && QFontMetricsF(font).horizontalAdvance(candidate) > width)
                    font.setPixelSize(font.pixelSize() - 1);
                text = candidate;
                if (font.pixelSize() >= side * 0.42)
                    break;
            }
            const QFontMetricsF metrics(font);
            painter.setFont(font);
            painter.setPen(ink);
            const double baseline = side * 0.44 + (side * 0.56 + metrics.capHeight()) / 2;
            painter.drawText(QPointF((side - metrics.horizontalAdvance(text)) / 2, baseline), text);
        }
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace ferrow
