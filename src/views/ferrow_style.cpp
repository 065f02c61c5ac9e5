#include "views/ferrow_style.h"

#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

namespace ferrow {
namespace {

constexpr int kScrollBarExtent = 10;
constexpr int kScrollBarMinimumHandle = 28;
constexpr int kCheckBoxSide = 14;

QRectF sliderShape(const QRect &slider, Qt::Orientation orientation)
{
    // A rounded bar inset from the edges, as thin as current desktops draw it.
    const QRectF r(slider);
    return orientation == Qt::Vertical ? r.adjusted(2.5, 1, -2.5, -1) : r.adjusted(1, 2.5, -1, -2.5);
}

} // namespace

FerrowStyle::FerrowStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

FerrowPalette FerrowStyle::paletteFor(const QStyleOption &option) const
{
    const bool dark = option.palette.color(QPalette::Window).lightness() < 128;
    return {dark ? ColorScheme::dark : ColorScheme::light, m_contrast};
}

int FerrowStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_ScrollBarExtent:
        return kScrollBarExtent;
    case PM_ScrollBarSliderMin:
        return kScrollBarMinimumHandle;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
        return kCheckBoxSide;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int FerrowStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget, QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_ScrollBar_Transient: // the bar keeps its room: the column's width does not jump
        return 0;
    case SH_ScrollBar_LeftClickAbsolutePosition:
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

void FerrowStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (element == PE_IndicatorCheckBox) {
        const FerrowPalette palette = paletteFor(*option);
        const QColor ground = option->palette.color(QPalette::Window);
        const bool on = option->state & (State_On | State_NoChange);
        const QRectF box = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setOpacity(option->state & State_Enabled ? 1.0 : 0.45);
        const QColor fill = on ? palette.focusRing(ground) : option->palette.color(QPalette::Base);
        painter->setPen(QPen(on ? fill : palette.controlOutline(ground), 1));
        painter->setBrush(fill);
        painter->drawRoundedRect(box, 3, 3);
        if (on) {
            QPainterPath tick;
            const QRectF r = box.adjusted(3, 3, -3, -3);
            if (option->state & State_NoChange) {
                tick.moveTo(r.left(), r.center().y());
                tick.lineTo(r.right(), r.center().y());
            } else {
                tick.moveTo(r.left(), r.top() + r.height() * 0.55);
                tick.lineTo(r.left() + r.width() * 0.38, r.bottom());
                tick.lineTo(r.right(), r.top());
            }
            painter->setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter->setBrush(Qt::NoBrush);
            painter->drawPath(tick);
        }
        painter->restore();
        return;
    }
    if (element == PE_FrameFocusRect) {
        // As the platforms do: the ring shows once the keyboard moves the focus, not after a click
        // or when a window opens.
        if (option->state & State_KeyboardFocusChange)
            paintFocusRing(*painter, QRectF(option->rect), 4, paletteFor(*option), option->palette.color(QPalette::Window));
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

QRect FerrowStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl subControl, const QWidget *widget) const
{
    const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control != CC_ScrollBar || !bar)
        return QProxyStyle::subControlRect(control, option, subControl, widget);
    // No arrow buttons: the groove is the whole bar and the handle moves along all of it.
    const bool vertical = bar->orientation == Qt::Vertical;
    const QRect whole = bar->rect;
    const int length = vertical ? whole.height() : whole.width();
    const qint64 range = qint64(bar->maximum) - bar->minimum;
    int handle = length;
    if (range > 0)
        handle = std::clamp(int(qint64(length) * bar->pageStep / (range + bar->pageStep)), std::min(kScrollBarMinimumHandle, length), length);
    const int offset = sliderPositionFromValue(bar->minimum, bar->maximum, bar->sliderPosition, length - handle, bar->upsideDown);
    const auto along = [&](int start, int size) {
        return vertical ? QRect(whole.left(), whole.top() + start, whole.width(), size) : QRect(whole.left() + start, whole.top(), size, whole.height());
    };
    switch (subControl) {
    case SC_ScrollBarSlider:
        return along(offset, handle);
    case SC_ScrollBarSubPage:
        return along(0, offset);
    case SC_ScrollBarAddPage:
        return along(offset + handle, length - offset - handle);
    case SC_ScrollBarGroove:
        return whole;
    default: // the arrow buttons and the first/last buttons
        return QRect();
    }
}

void FerrowStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control != CC_ScrollBar || !bar) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    if (bar->maximum <= bar->minimum)
        return;
    // The appearance's text colour, faint at rest and firmer under the pointer or while dragged.
    const bool active = (bar->activeSubControls & SC_ScrollBarSlider) && (bar->state & (State_MouseOver | State_Sunken));
    QColor handle = bar->palette.color(QPalette::WindowText);
    handle.setAlphaF(active ? 0.55f : 0.32f);
    const QRectF shape = sliderShape(subControlRect(control, option, SC_ScrollBarSlider, widget), bar->orientation);
    const double radius = std::min(shape.width(), shape.height()) / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(handle);
    painter->drawRoundedRect(shape, radius, radius);
    painter->restore();
}

void FerrowStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QScrollBar *>(widget))
        widget->setAttribute(Qt::WA_Hover); // the handle firms up under the pointer
}

void FerrowStyle::unpolish(QWidget *widget)
{
    if (qobject_cast<QScrollBar *>(widget))
        widget->setAttribute(Qt::WA_Hover, false);
    QProxyStyle::unpolish(widget);
}

void paintFocusRing(QPainter &painter, const QRectF &rect, double cornerRadius, const FerrowPalette &palette, const QColor &ground)
{
    // Like the platform's ring: the accent, two points wide, following the control's shape.
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.focusRing(ground), 2));
    painter.drawRoundedRect(rect.adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
    painter.restore();
}

} // namespace ferrow
