#include "views/power_flow_view.h"

#include "model/localized_text.h"
#include "views/accessibility_model.h"
#include "views/glyphs.h"
#include "views/power_flow_model.h"
#include "views/view_painting.h"

#include <QDateTime>
#include <QLinearGradient>
#include <QPainter>
#include <QPaintEvent>
#include <QPainterPath>

#include <algorithm>

namespace ferrow {
namespace {

constexpr double kNodeWidth = 158;
constexpr double kNodeHeight = 35;
constexpr double kRowHeight = 76;

void paintNode(QPainter &painter, const QRectF &node, Glyph glyph, const QString &title, const QString &value, const QColor &iconColor,
               const FerrowPalette &palette, double batteryLevel = 0.75)
{
    paintCardSurface(painter, node, 7, palette);
    const QRectF inner = node.adjusted(7, 0, -7, 0);
    paintGlyph(painter, glyph, QRectF(inner.left(), inner.center().y() - 8, 18, 16), iconColor, batteryLevel);
    const double textLeft = inner.left() + 18 + 5;
    painter.setPen(palette.secondaryText());
    drawFittedText(painter, QRectF(textLeft, node.top() + 4, inner.right() - textLeft, 12), title, uiFont(9), 0.85, Qt::AlignLeft);
    painter.setPen(palette.primaryText());
    drawFittedText(painter, QRectF(textLeft, node.top() + 17, inner.right() - textLeft, 14), value, monospacedFont(10, QFont::Bold), 0.8,
                   Qt::AlignLeft);
}

QString formatFlowValue(double watts)
{
    return flowNodeValueText(FlowNodeValue{watts, QString(), ColorRole::primaryText});
}

// The glow under a stroke (the end tone at 0.58): two wider, fainter passes of the same path.
void strokeWithGlow(QPainter &painter, const QPainterPath &path, const QBrush &brush, QColor glow)
{
    for (const auto &[width, share] : {std::pair{7.0, 0.25}, std::pair{4.6, 0.45}}) {
        glow.setAlphaF(static_cast<float>(0.58 * share));
        painter.setPen(QPen(glow, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(path);
    }
    painter.setPen(QPen(brush, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
}

} // namespace

PowerFlowView::PowerFlowView(QWidget *parent)
    : SnapshotView(parent)
{
    setFixedHeight(24 + kRowHeight + 16);
    // The static layer carries the panel's ground, so nothing under this view needs repainting.
    setAttribute(Qt::WA_OpaquePaintEvent);
    // 12 frames a second: dots crossing the connector in 1.55 s move about 6 points a frame, about
    // half their halo, the largest step that still reads as gliding rather than hopping. Each
    // frame costs a wake-up and a flush to the window system far more than its painting, so the
    // rate is the cost.
    m_frameTimer.setInterval(83);
    m_frameTimer.setTimerType(Qt::CoarseTimer);
    connect(&m_frameTimer, &QTimer::timeout, this, &PowerFlowView::animationTick);
}

std::vector<AccessibleItem> PowerFlowView::accessibleParts() const
{
    return {{QAccessible::Heading, localizedText("power.live_flow"), {}},
            {QAccessible::StaticText, spokenValue(snapshot().powerSourceText()), {}},
            {QAccessible::StaticText, flowDescription(snapshot()), {}}};
}

void PowerFlowView::setReduceMotion(bool reduceMotion)
{
    m_reduceMotion = reduceMotion;
    updateTimer();
    update();
}

void PowerFlowView::showEvent(QShowEvent *event)
{
    SnapshotView::showEvent(event);
    updateTimer();
}

void PowerFlowView::hideEvent(QHideEvent *event)
{
    SnapshotView::hideEvent(event);
    updateTimer();
}

double PowerFlowView::currentPhase() const
{
    return flowPhase(static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0, m_reduceMotion);
}

void PowerFlowView::animationTick()
{
    const QRect previous = m_dotBounds;
    placeDots(currentPhase());
    const QPointF origin = connectorRect().topLeft();
    m_dotBounds = QRect();
    for (const FlowDot &dot : m_dots)
        m_dotBounds |= QRectF(origin + dot.position - QPointF(7, 7), QSizeF(14, 14)).toAlignedRect();
    // One rectangle, not the union of the dots' squares: a clip of many pieces sends the raster
    // engine's fills through its thread pool, and the hand-offs cost more than the pixels saved.
    // Painted now rather than posted: one pass of the event loop per frame instead of two.
    repaint(previous | m_dotBounds);
}

void PowerFlowView::updateTimer()
{
    if (isVisible() && !m_reduceMotion)
        m_frameTimer.start();
    else
        m_frameTimer.stop();
}

void PowerFlowView::paintConnectorRoutes(QPainter &painter, const QRectF &rect, const PowerSnapshot &snapshot)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.topLeft());
    for (const FlowStroke &stroke : flowStrokes(flowCase(flowInputs(snapshot)), rect.size())) {
        QPainterPath path(stroke.start);
        if (stroke.isCurve)
            path.cubicTo(stroke.control1, stroke.control2, stroke.end);
        else
            path.lineTo(stroke.end);
        QLinearGradient gradient(stroke.start, stroke.end);
        gradient.setColorAt(0, stroke.startColor);
        gradient.setColorAt(1, stroke.endColor);
        strokeWithGlow(painter, path, gradient, stroke.endColor);
    }
    painter.restore();
}

const QPixmap &PowerFlowView::dotSprite(QRgb color, qreal scale)
{
    color &= 0xFFF8F8F8;
    if (scale != m_dotSpriteScale || m_dotSprites.size() > 256) {
        m_dotSprites.clear();
        m_dotSpriteScale = scale;
    }
    if (const auto found = m_dotSprites.constFind(color); found != m_dotSprites.cend())
        return *found;
    QPixmap pixmap(QSize(14, 14) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    const QPointF centre(7, 7);
    QColor halo = QColor::fromRgb(color);
    halo.setAlphaF(0.28f);
    p.setBrush(halo);
    p.drawEllipse(centre, 5.5, 5.5);
    p.setBrush(QColor::fromRgb(color));
    p.drawEllipse(centre, 3, 3);
    p.setBrush(QColor(255, 255, 255, 224));
    p.drawEllipse(centre, 1, 1);
    p.end();
    return *m_dotSprites.insert(color, pixmap);
}

void PowerFlowView::placeDots(double phase)
{
    m_phase = phase;
    m_dots = flowDots(flowInputs(snapshot()), connectorRect().size(), phase);
    m_dotsRevision = snapshotRevision();
}

void PowerFlowView::paintDots(QPainter &painter)
{
    const QPointF origin = connectorRect().topLeft() - QPointF(7, 7);
    const qreal scale = paintingScale(painter);
    for (const FlowDot &dot : m_dots)
        painter.drawPixmap(origin + dot.position, dotSprite(dot.color.rgb(), scale));
}

QRectF PowerFlowView::connectorRect() const
{
    const QRectF area = QRectF(rect()).adjusted(8, 4, -8, -6);
    return {area.left() + kNodeWidth, area.top() + 22, area.width() - 2 * kNodeWidth, kRowHeight};
}

void PowerFlowView::paintStaticLayer(QPainter &painter)
{
    const FerrowPalette &palette = ferrowPalette();
    const PowerSnapshot &s = snapshot();
    const QRectF area = QRectF(rect()).adjusted(8, 4, -8, -6);

    painter.fillRect(rect(), palette.panelBackground());
    painter.setPen(palette.primaryText());
    drawFittedText(painter, QRectF(area.left(), area.top(), area.width() * 0.55, 18), localizedText("power.live_flow"),
                   uiFont(13, QFont::DemiBold), 0.85, Qt::AlignLeft);
    painter.setPen(palette.secondaryText());
    drawFittedText(painter, QRectF(area.left() + area.width() * 0.55, area.top(), area.width() * 0.45, 18), s.powerSourceText(), uiFont(8),
                   0.85, Qt::AlignRight);

    const QRectF row(area.left(), area.top() + 22, area.width(), kRowHeight);
    const QRectF adapterNode(row.left(), row.center().y() - kNodeHeight / 2, kNodeWidth, kNodeHeight);
    paintNode(painter, adapterNode, Glyph::plug, localizedText("power.adapter"), formatFlowValue(s.dcPowerW), FixedColor::liveGreen, palette);

    const QRectF rightColumn(row.right() - kNodeWidth, row.top(), kNodeWidth, row.height());
    const QString systemText = formatFlowValue(s.systemPowerW);
    if (s.hasBattery) {
        const QRectF macNode(rightColumn.left(), rightColumn.top(), kNodeWidth, kNodeHeight);
        const QRectF batteryNode(rightColumn.left(), rightColumn.bottom() - kNodeHeight, kNodeWidth, kNodeHeight);
        paintNode(painter, macNode, Glyph::laptop, localizedText("power.mac_system"), systemText, FixedColor::macBlue, palette);
        const FlowNodeValue battery = batteryNodeValue(s);
        paintNode(painter, batteryNode, Glyph::battery, localizedText("battery.title"), flowNodeValueText(battery),
                  palette.color(battery.iconColor), palette);
    } else {
        const QRectF macNode(rightColumn.left(), row.center().y() - kNodeHeight / 2, kNodeWidth, kNodeHeight);
        paintNode(painter, macNode, Glyph::desktop, localizedText("power.mac_system"), systemText, FixedColor::macBlue, palette);
    }
    const QRectF connector = connectorRect();
    const QString routesKey = QStringLiteral("flow-routes|%1|%2").arg(int(flowCase(flowInputs(s)))).arg(int(palette.scheme));
    painter.drawPixmap(connector.topLeft(), cachedDrawing(routesKey, connector.size(), paintingScale(painter), [&](QPainter &routes) {
        paintConnectorRoutes(routes, QRectF(QPointF(0, 0), connector.size()), s);
    }));
}

void PowerFlowView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const qreal scale = paintingScale(painter);
    const StaticLayerKey key{snapshotRevision(), ferrowPalette().scheme, size(), scale};
    if (key != m_staticLayerKey) {
        m_staticLayer = QPixmap(size() * scale);
        m_staticLayer.setDevicePixelRatio(scale);
        QPainter layer(&m_staticLayer);
        paintStaticLayer(layer);
        m_staticLayerKey = key;
    }
    painter.drawPixmap(0, 0, m_staticLayer);
    if (!m_frameTimer.isActive()) // a still picture: phase 0.5 with motion reduced
        placeDots(currentPhase());
    else if (m_dotsRevision != snapshotRevision())
        placeDots(m_phase);
    paintDots(painter);
}

} // namespace ferrow
