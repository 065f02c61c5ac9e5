#include "views/value_rows_view.h"

#include "views/accessibility_model.h"
#include "views/view_painting.h"

#include <QPainter>

namespace ferrow {
namespace {

struct RowMetrics {
    int height;
    double labelShare; // of the row's width
    double valueShare;
    QFont labelFont;
    QFont valueFont;
    bool ruled;
};

RowMetrics metrics(ValueRowsView::Size size)
{
    if (size == ValueRowsView::Size::compact)
        return {25, 0.45, 0.55, uiFont(9), monospacedFont(10, QFont::Bold), true};
    return {24, 0.55, 0.45, uiFont(12), monospacedFont(12), false};
}

} // namespace

ValueRowsView::ValueRowsView(Size size, QWidget *parent)
    : QWidget(parent)
    , m_size(size)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ValueRowsView::setRows(std::vector<ValueRow> rows)
{
    const bool resized = rows.size() != m_rows.size();
    m_rows = std::move(rows);
    if (resized)
        updateGeometry();
    update();
}

void ValueRowsView::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    update();
}

void ValueRowsView::setLegibleOn(std::optional<QColor> ground)
{
    m_legibleOn = std::move(ground);
    update();
}

QSize ValueRowsView::sizeHint() const
{
    const QMargins margins = contentsMargins();
    return {200, metrics(m_size).height * static_cast<int>(m_rows.size()) + margins.top() + margins.bottom()};
}

std::vector<AccessibleItem> ValueRowsView::accessibleParts() const
{
    const int height = metrics(m_size).height;
    std::vector<AccessibleItem> parts;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const QRect area(contentsRect().left(), contentsRect().top() + height * static_cast<int>(i), contentsRect().width(), height);
        parts.push_back({QAccessible::StaticText, spokenReading(m_rows[i].label, m_rows[i].value), area});
    }
    return parts;
}

void ValueRowsView::paintEvent(QPaintEvent *)
{
    const RowMetrics m = metrics(m_size);
    QPainter painter(this);
    painter.translate(contentsRect().topLeft());
    const double width = contentsRect().width();
    double top = 0;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const ValueRow &row = m_rows[i];
        painter.setPen(m_palette.secondaryText());
        drawFittedText(painter, QRectF(0, top, width * m.labelShare, m.height), row.label, m.labelFont, 0.85, Qt::AlignLeft);
        const QColor tint = m_palette.color(row.tint);
        painter.setPen(m_legibleOn ? readableOn(tint, *m_legibleOn) : tint);
        drawFittedText(painter, QRectF(width * m.labelShare, top, width * m.valueShare, m.height), row.value, m.valueFont, 0.8,
                       Qt::AlignRight);
        if (m.ruled && i + 1 < m_rows.size())
            paintBottomSeparator(painter, QRectF(0, top, width, m.height), m_palette);
        top += m.height;
    }
}

} // namespace ferrow
