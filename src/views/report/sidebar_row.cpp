#include "views/report/sidebar_row.h"

#include "model/localized_text.h"
#include "views/report/section_heading.h"
#include "views/view_painting.h"

#include <QEasingCurve>
#include <QPainter>

namespace ferrow {

SidebarRow::SidebarRow(MainSection section, QWidget *parent)
    : FerrowButton(parent)
    , m_section(section)
{
    setCheckable(true);
    setFixedHeight(30);
    setAccessibleName(localizedFormatText("accessibility.scroll_to", {localizedText(sectionTitleKey(section))}));
    m_fade.setDuration(160);
    m_fade.setEasingCurve(QEasingCurve::OutQuad);
    connect(&m_fade, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        m_highlight = value.toDouble();
        update();
    });
}

void SidebarRow::setSelected(bool selected, bool animated)
{
    setChecked(selected);
    m_fade.stop();
    const double target = selected ? 1.0 : 0.0;
    if (!animated || m_highlight == target) {
        m_highlight = target;
        update();
        return;
    }
    m_fade.setStartValue(m_highlight);
    m_fade.setEndValue(target);
    m_fade.start();
}

void SidebarRow::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    update();
}

void SidebarRow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_highlight > 0) {
        QColor highlight = m_palette.accent();
        highlight.setAlphaF(static_cast<float>((m_palette.isDark() ? 0.26 : 0.15) * m_highlight));
        painter.setPen(Qt::NoPen);
        painter.setBrush(highlight);
        painter.drawRoundedRect(QRectF(rect()), 6, 6);
    }
    paintGlyph(painter, sectionGlyph(m_section), QRectF(8, 7, 16, 16), m_palette.accent());
    painter.setPen(m_palette.primaryText());
    drawFittedText(painter, QRectF(32, 0, width() - 40, height()), localizedText(sectionTitleKey(m_section)), uiFont(13), 0.85, Qt::AlignLeft);
    paintFocusRing(painter, QRectF(rect()), 6, m_palette, m_palette.sidebarBackground());
}

} // namespace ferrow
