#include "views/report/section_heading.h"

#include "model/localized_text.h"
#include "views/view_painting.h"

#include <QPainter>

namespace ferrow {

Glyph sectionGlyph(MainSection section)
{
    switch (section) {
    case MainSection::overview:
        return Glyph::gauge;
    case MainSection::power:
        return Glyph::bolt;
    case MainSection::battery:
        return Glyph::battery;
    case MainSection::cells:
        return Glyph::grid;
    case MainSection::energy:
        return Glyph::chart;
    case MainSection::applications:
        return Glyph::apps;
    case MainSection::history:
        return Glyph::info;
    }
    return Glyph::info;
}

SectionHeading::SectionHeading(MainSection section, QWidget *parent)
    : QWidget(parent)
    , m_section(section)
{
    setFixedHeight(30);
}

AccessibleItem SectionHeading::accessibleSelf() const
{
    return {QAccessible::Heading, localizedText(sectionTitleKey(m_section)), {}};
}

void SectionHeading::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    update();
}

void SectionHeading::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintGlyph(painter, sectionGlyph(m_section), QRectF(0, 4, 22, 22), m_palette.primaryText());
    painter.setPen(m_palette.primaryText());
    drawFittedText(painter, QRectF(30, 0, width() - 30, 30), localizedText(sectionTitleKey(m_section)), uiFont(20, QFont::DemiBold), 0.8,
                   Qt::AlignLeft);
}

} // namespace ferrow
