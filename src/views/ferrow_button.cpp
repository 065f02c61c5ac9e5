#include "views/ferrow_button.h"

#include "views/ferrow_style.h"

#include <QKeyEvent>

namespace ferrow {

FerrowButton::FerrowButton(QWidget *parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void FerrowButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        animateClick();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void FerrowButton::focusInEvent(QFocusEvent *event)
{
    QAbstractButton::focusInEvent(event);
    update();
}

void FerrowButton::focusOutEvent(QFocusEvent *event)
{
    QAbstractButton::focusOutEvent(event);
    update();
}

void FerrowButton::paintFocusRing(QPainter &painter, const QRectF &shape, double cornerRadius, const FerrowPalette &palette, const QColor &ground) const
{
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange))
        ferrow::paintFocusRing(painter, shape, cornerRadius, palette, ground);
}

} // namespace ferrow
