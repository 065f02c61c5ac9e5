#include "views/meter_card.h"

#include "views/battery_status_model.h"
#include "views/view_painting.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace ferrow {

MeterCard::MeterCard(QString code, QString unit, QColor color, QWidget *parent)
    : QWidget(parent)
    , m_code(std::move(code))
    , m_unit(std::move(unit))
    , m_color(std::move(color))
{
    setFixedHeight(55);
    setMinimumWidth(90);
    setAccessibleName(meterAccessibleText(m_code, m_value, m_unit));
}

void MeterCard::setValue(std::optional<double> value)
{
    if (value == m_value)
        return;
    m_value = value;
    setAccessibleName(meterAccessibleText(m_code, m_value, m_unit));
    update();
}

void MeterCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF tile = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -1.5); // room for the shadow below
    QPainterPath shape;
    shape.addRoundedRect(tile, 8, 8);
    painter.fillPath(shape.translated(0, 1), QColor(0, 0, 0, 20));
    painter.fillPath(shape, m_color);
    painter.setPen(QPen(QColor(255, 255, 255, 41), 0.5));
    painter.drawPath(shape);

    QFont codeFont = brandFont(8);
    codeFont.setLetterSpacing(QFont::AbsoluteSpacing, 0.32);
    painter.setFont(codeFont);
    painter.setPen(QColor(255, 255, 255, 230));
    painter.drawText(QRectF(tile.left() + 8, tile.top() + 5, tile.width() - 16, 12), Qt::AlignLeft | Qt::AlignVCenter, m_code);

    // The figure: large digits, the last two a little smaller, then the unit. It shrinks as one
    // line to at most 0.65 of its size before it would be cut.
    const MeterValueText text = meterValueText(m_value);
    const QRectF line(tile.left() + 5, tile.bottom() - 25 - 6, tile.width() - 10, 25);
    double scale = 1.0;
    const auto widthAt = [&](double s) {
        return QFontMetricsF(brandFont(25.5 * s)).horizontalAdvance(text.large) + QFontMetricsF(brandFont(22 * s)).horizontalAdvance(text.small)
             + QFontMetricsF(brandFont(9.5 * s)).horizontalAdvance(u' ' + m_unit);
    };
    while (scale > 0.65 && widthAt(scale) > line.width())
        scale -= 0.05;

    painter.setPen(Qt::white);
    double x = line.left();
    const double baseline = line.bottom() - 4;
    for (const auto &[part, size] : {std::pair{text.large, 25.5}, std::pair{text.small, 22.0}, std::pair{u' ' + m_unit, 9.5}}) {
        const QFont font = brandFont(size * scale);
        painter.setFont(font);
        const QString shown = QFontMetricsF(font).elidedText(part, Qt::ElideRight, std::max(0.0, line.right() - x));
        painter.drawText(QPointF(x, baseline), shown);
        x += QFontMetricsF(font).horizontalAdvance(shown);
    }
}

} // namespace ferrow
