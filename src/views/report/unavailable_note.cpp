#include "views/report/unavailable_note.h"

#include "views/accessibility_model.h"
#include "views/glyphs.h"
#include "views/view_painting.h"

#include <QPainter>

namespace ferrow {

UnavailableNote::UnavailableNote(int height, QWidget *parent)
    : QWidget(parent)
{
    setFixedHeight(height);
}

void UnavailableNote::setText(const QString &title, const QString &description)
{
    m_title = title;
    m_description = description;
    update();
}

AccessibleItem UnavailableNote::accessibleSelf() const
{
    return {QAccessible::StaticText, m_title.isEmpty() ? QString() : spokenNote(m_title, m_description), {}};
}

void UnavailableNote::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    update();
}

void UnavailableNote::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF area = QRectF(contentsRect());
    const double middle = area.center().y();
    paintGlyph(painter, Glyph::battery, QRectF(area.center().x() - 16, middle - 40, 32, 28), m_palette.secondaryText(), 0.0);
    painter.setPen(m_palette.primaryText());
    drawFittedText(painter, QRectF(area.left(), middle - 6, area.width(), 18), m_title, uiFont(13, QFont::DemiBold), 0.85, Qt::AlignHCenter);
    painter.setPen(m_palette.secondaryText());
    drawFittedText(painter, QRectF(area.left(), middle + 14, area.width(), 16), m_description, uiFont(12), 0.85, Qt::AlignHCenter);
}

} // namespace ferrow
