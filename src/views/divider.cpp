#include "views/divider.h"

#include "views/view_painting.h"

#include <QPainter>

namespace ferrow {

Divider::Divider(QWidget *parent)
    : QWidget(parent)
{
    setFixedHeight(1);
}

void Divider::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    update();
}

void Divider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintBottomSeparator(painter, QRectF(rect()), m_palette);
}

} // namespace ferrow
