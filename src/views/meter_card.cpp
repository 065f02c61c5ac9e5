#include "views/meter_card.h"

#include "views/battery_status_model.h"
#include "views/view_painting.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace ferrow {

namespace {

constexpr MeterCard::Metrics kCompact{55, 8, 0.16, 8, 0.32, 8, 5, 25, 5, 0.65, 25.5, 22, 9.5};
constexpr MeterCard::Metrics kBranded{96, 12, 0.17, 10, 0.4, 13, 10, 39, 12, 0.68, 34, 29, 11};

} // namespace

MeterCard::MeterCard(QString code, QString unit, QColor color, Size size, QWidget *parent)
    : QWidget(parent)
    , m_metrics(size == Size::compact ? kCompact : kBranded)
    , m_code(std::move(code))
    , m_unit(std::move(unit))
    , m_color(std::move(color))
{
    setFixedHeight(static_cast<int>(m_metrics.height));
    setMinimumWidth(90);
}

void MeterCard::setValue(std::optional<double> value)
{
    if (value == m_value)
        return;
    m_value = value;
    update();
}

AccessibleItem MeterCard::accessibleSelf() const
{
    return {QAccessible::StaticText, meterAccessibleText(m_code, m_value, m_unit), {}};
}

void MeterCard::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    update();
}

QSize MeterCard::sizeHint() const
{
    return {m_metrics.height > 60 ? 220 : 130, static_cast<int>(m_metrics.height)};
}

void MeterCard::paintEvent(QPaintEvent *)
{
    const Metrics &m = m_metrics;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF tile = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -1.5); // room for the shadow below
    const QColor color = m_palette.meterTile(m_color);
    const QString key = QStringLiteral("meter|%1|%2|%3").arg(m.radius).arg(m.outlineAlpha).arg(color.rgba());
    painter.drawPixmap(0, 0, cachedDrawing(key, size(), paintingScale(painter), [&](QPainter &ground) {
        QPainterPath shape;
        shape.addRoundedRect(tile, m.radius, m.radius);
        ground.fillPath(shape.translated(0, 1), QColor(0, 0, 0, 20));
        ground.fillPath(shape, color);
        ground.setPen(QPen(QColor(255, 255, 255, static_cast<int>(255 * m.outlineAlpha)), 0.5));
        ground.drawPath(shape);
    }));

    QFont codeFont = brandFont(m.codeSize);
    codeFont.setLetterSpacing(QFont::AbsoluteSpacing, m.codeTracking);
    painter.setFont(codeFont);
    painter.setPen(QColor(255, 255, 255, 230));
    painter.drawText(QRectF(tile.left() + m.codeLeft, tile.top() + m.codeTop, tile.width() - 2 * m.codeLeft, m.codeSize * 1.5),
                     Qt::AlignLeft | Qt::AlignVCenter, m_code);

    // The figure: large digits, the last two a little smaller, then the unit, shrinking as one line
    // before it would be cut.
    const MeterValueText text = meterValueText(m_value);
    const QRectF line(tile.left() + m.linePadding, tile.bottom() - m.lineHeight - m.height * 0.11, tile.width() - 2 * m.linePadding,
                      m.lineHeight);
    const auto widthAt = [&](double s) {
        return QFontMetricsF(brandFont(m.largeSize * s)).horizontalAdvance(text.large)
             + QFontMetricsF(brandFont(m.smallSize * s)).horizontalAdvance(text.small)
             + QFontMetricsF(brandFont(m.unitSize * s)).horizontalAdvance(u' ' + m_unit);
    };
    double scale = 1.0;
    while (scale > m.minimumScale && widthAt(scale) > line.width())
        scale -= 0.02;

    painter.setPen(Qt::white);
    double x = line.left();
    const double baseline = line.bottom() - m.lineHeight * 0.16;
    for (const auto &[part, size] : {std::pair{text.large, m.largeSize}, std::pair{text.small, m.smallSize}, std::pair{u' ' + m_unit, m.unitSize}}) {
        const QFont font = brandFont(size * scale);
        painter.setFont(font);
        const QString shown = QFontMetricsF(font).elidedText(part, Qt::ElideRight, std::max(0.0, line.right() - x));
        painter.drawText(QPointF(x, baseline), shown);
        x += QFontMetricsF(font).horizontalAdvance(shown);
    }
}

} // namespace ferrow
