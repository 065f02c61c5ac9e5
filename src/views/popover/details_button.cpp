#include "views/popover/details_button.h"

#include "model/localized_text.h"
#include "views/glyphs.h"
#include "views/view_painting.h"

#include <QPainter>
#include <QPainterPath>

namespace ferrow {

DetailsButton::DetailsButton(QWidget *parent)
    : FerrowButton(parent)
{
    setFixedHeight(38);
    setAccessibleName(localizedText("action.open_details"));
}

void DetailsButton::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    update();
}

void DetailsButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? (isDown() ? 0.75 : 1.0) : 0.45);
    paintCardSurface(painter, QRectF(rect()), 8, m_palette);
    const QRectF inner = QRectF(rect()).adjusted(8, 0, -8, 0);

    const QRectF iconTile(inner.left(), inner.center().y() - 13, 27, 26);
    QColor tileColor = m_palette.accent();
    tileColor.setAlphaF(0.11f);
    QPainterPath tile;
    tile.addRoundedRect(iconTile, 5, 5);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(tile, tileColor);
    paintGlyph(painter, Glyph::listRectangle, iconTile.adjusted(5, 5, -5, -5), m_palette.accent());

    const double textLeft = iconTile.right() + 7;
    painter.setPen(m_palette.primaryText());
    drawFittedText(painter, QRectF(textLeft, inner.center().y() - 14, inner.right() - textLeft - 20, 14), localizedText("action.open_details"),
                   uiFont(10, QFont::DemiBold), 0.85, Qt::AlignLeft);
    painter.setPen(m_palette.secondaryText());
    drawFittedText(painter, QRectF(textLeft, inner.center().y(), inner.right() - textLeft - 20, 13), localizedText("action.open_details_subtitle"),
                   uiFont(9), 0.85, Qt::AlignLeft);
    paintGlyph(painter, Glyph::chevronRight, QRectF(inner.right() - 9, inner.center().y() - 5, 9, 10), m_palette.secondaryText());
    painter.setOpacity(1.0);
    paintFocusRing(painter, QRectF(rect()), 8, m_palette, m_palette.cardGround());
}

} // namespace ferrow
