#pragma once

#include "views/ferrow_palette.h"

#include <QAbstractButton>

namespace ferrow {

// A button the views paint themselves: reached with Tab (a click does not take the focus), pressed
// with Space, Enter or Return, and ringed while it has the keyboard focus.
class FerrowButton : public QAbstractButton {
public:
    explicit FerrowButton(QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    // Call last in paintEvent: the ring goes over the content, inside shape, once the keyboard has
    // moved the focus in this window.
    void paintFocusRing(QPainter &painter, const QRectF &shape, double cornerRadius, const FerrowPalette &palette, const QColor &ground) const;
};

} // namespace ferrow
