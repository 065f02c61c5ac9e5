#pragma once

#include "views/ferrow_palette.h"

#include <QProxyStyle>

namespace ferrow {

// The toolkit's Fusion style where the views use stock controls, with the parts a current desktop
// draws differently: check boxes whose outline reads on their ground, a visible focus ring, and
// thin scroll bars without arrow buttons in the colours of the appearance.
class FerrowStyle : public QProxyStyle {
public:
    FerrowStyle();

    void setContrast(Contrast contrast) { m_contrast = contrast; }

    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr, const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl subControl,
                         const QWidget *widget = nullptr) const override;
    void polish(QWidget *widget) override;
    void unpolish(QWidget *widget) override;

private:
    FerrowPalette paletteFor(const QStyleOption &option) const;

    Contrast m_contrast = Contrast::standard;
};

// The ring around a control that has the keyboard focus, inside rect.
void paintFocusRing(QPainter &painter, const QRectF &rect, double cornerRadius, const FerrowPalette &palette, const QColor &ground);

} // namespace ferrow
