#include "views/popover/meter_caption.h"

#include "views/dashboard_model.h"
#include "views/view_painting.h"

#include <QPainter>

namespace ferrow {

MeterCaption::MeterCaption(QWidget *parent)
    : SnapshotView(parent)
{
    setFixedHeight(17);
}

AccessibleItem MeterCaption::accessibleSelf() const
{
    return {QAccessible::StaticText, meterCaption(snapshot()), {}};
}

bool MeterCaption::paintsDifferently(const PowerSnapshot &shown, const PowerSnapshot &next) const
{
    return meterCaption(shown) != meterCaption(next);
}

void MeterCaption::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(ferrowPalette().secondaryText());
    painter.setFont(uiFont(9, QFont::DemiBold));
    painter.drawText(QRectF(rect()), Qt::AlignCenter, meterCaption(snapshot()));
    paintBottomSeparator(painter, QRectF(rect()), ferrowPalette());
}

} // namespace ferrow
