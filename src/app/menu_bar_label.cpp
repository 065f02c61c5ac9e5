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
namespace {

// Below this a tray icon's figure is a smudge; the icon then shows the glyph alone.
constexpr int kLegibleFigurePx = 11;

// The number in the table's layout around the figure, which is never handed to printf as a format.
QString figureInLayout(const QString &number)
{
    QString text = localizedText("%.1f W");
    if (!text.contains(QLatin1String("%.1f")))
        text = QStringLiteral("%.1f W");
    return text.replace(QLatin1String("%.1f"), number);
}

// The largest text of the figure that fits the icon's width, with its unit where there is room;
// none where even the bare figure would be too small to read.
std::optional<std::pair<QString, QFont>> fitTrayFigure(const QString &figure, int side)
{
    const double width = side * 0.92;
    const int largest = qRound(side * 0.42);
    QFont font = uiFont(1, QFont::Bold);
    for (const QString &candidate : {figure + QStringLiteral(" W"), figure + u'W', figure}) {
        font.setPixelSize(largest);
        while (font.pixelSize() > kLegibleFigurePx && QFontMetricsF(font).horizontalAdvance(candidate) > width)
            font.setPixelSize(font.pixelSize() - 1);
        if (QFontMetricsF(font).horizontalAdvance(candidate) > width || font.pixelSize() < kLegibleFigurePx)
            continue;
        if (font.pixelSize() == largest || candidate == figure)
            return std::pair{candidate, font};
    }
    return std::nullopt;
}

QImage renderTrayImage(const MenuBarReading &reading, int side)
{
    // Panels are light or dark and Qt cannot tell which, so the icon brings its own ground: a dark
    // tile with white content reads on both.
    const QColor tile(28, 28, 32, 235);
    const QColor ink(Qt::white);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QRectF box(0, 0, side, side);
    painter.drawPixmap(0, 0, cachedDrawing(QStringLiteral("tray-tile"), box.size(), 1.0, [&](QPainter &ground) {
        QPainterPath shape;
        shape.addRoundedRect(box, side * 0.22, side * 0.22);
        ground.fillPath(shape, tile);
    }));
    const Glyph glyph = menuBarGlyph(reading);
    const auto figure = reading.showsPower ? fitTrayFigure(trayIconFigure(reading.powerW), side) : std::nullopt;
    if (!figure) {
        paintGlyph(painter, glyph, box.adjusted(side * 0.1, side * 0.1, -side * 0.1, -side * 0.1), ink);
        return image;
    }
    paintGlyph(painter, glyph, QRectF(side * 0.2, side * 0.04, side * 0.6, side * 0.44), ink);
    const auto &[text, font] = *figure;
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    painter.setPen(ink);
    const double baseline = side * 0.46 + (side * 0.54 + metrics.capHeight()) / 2;
    painter.drawText(QPointF((side - metrics.horizontalAdvance(text)) / 2, baseline), text);
    return image;
}

} // namespace

Glyph menuBarGlyph(const MenuBarReading &reading)
{
    return reading.onExternalPower ? Glyph::bolt : Glyph::battery;
}

QString menuBarFigureText(const PowerSnapshot &snapshot)
{
    const std::optional<double> powerW = snapshot.displayPowerW();
    if (!powerW || !std::isfinite(*powerW))
        return localizedText("— W");
    return figureInLayout(QString::asprintf("%.1f", *powerW));
}

QString menuBarFigureGuide()
{
    return figureInLayout(QStringLiteral("-888.8"));
}

QString trayIconFigure(std::optional<double> powerW)
{
    if (!powerW || !std::isfinite(*powerW))
        return absentText();
    return QString::asprintf(std::fabs(*powerW) < 9.95 ? "%.1f" : "%.0f", *powerW);
}

MenuBarReading menuBarReading(const PowerSnapshot &snapshot, bool showPower, const QString &toolTip)
{
    return {snapshot.isExternalConnected, snapshot.displayPowerW(), menuBarFigureText(snapshot), menuBarFigureGuide(), showPower, toolTip};
}

QIcon renderTrayIcon(const PowerSnapshot &snapshot, bool showPower)
{
    return renderTrayIcon(menuBarReading(snapshot, showPower, QString()));
}

QIcon renderTrayIcon(const MenuBarReading &reading)
{
    QIcon icon;
    for (const int side : {16, 22, 24, 32, 48}) // what panels ask for; larger ones cost fills for nothing
        icon.addPixmap(QPixmap::fromImage(renderTrayImage(reading, side)));
    return icon;
}

QImage renderTraySymbol(bool onExternalPower, int side)
{
    MenuBarReading symbol;
    symbol.onExternalPower = onExternalPower;
    symbol.showsPower = false;
    return renderTrayImage(symbol, side);
}

} // namespace ferrow
