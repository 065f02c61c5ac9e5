#pragma once

#include "views/snapshot_view.h"

#include <QPixmap>
#include <QRect>
#include <QTimer>

namespace ferrow {

// Where the power goes now: adapter, the Mac and the battery, joined by an animated connector.
// The dots move on a clock while the view is visible; nothing animates while it is hidden or
// while motion is reduced.
class PowerFlowView : public SnapshotView {
public:
    explicit PowerFlowView(QWidget *parent = nullptr);

    void setReduceMotion(bool reduceMotion);
    bool isAnimating() const { return m_frameTimer.isActive(); }
    QSize sizeHint() const override { return {430, 116}; }

    // The connector's routes, and its dots at one phase; the view draws routes once a reading and
    // dots every frame.
    static void paintConnectorRoutes(QPainter &painter, const QRectF &rect, const PowerSnapshot &snapshot);
    static void paintConnectorDots(QPainter &painter, const QRectF &rect, const PowerSnapshot &snapshot, double phase);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void updateTimer();
    void animationTick();
    double currentPhase() const;
    QRectF connectorRect() const;
    void paintStaticLayer(QPainter &painter);

    QTimer m_frameTimer;
    bool m_reduceMotion = false;
    // Everything but the dots, redrawn only when the reading, appearance, size or scale changes.
    struct StaticLayerKey {
        PowerSnapshot snapshot;
        ColorScheme scheme = ColorScheme::light;
        QSize size;
        qreal scale = 0;
        bool operator==(const StaticLayerKey &) const = default;
    };
    QPixmap m_staticLayer;
    StaticLayerKey m_staticLayerKey;
    // Each frame repaints only the box around where the dots were and where they are now.
    double m_phase = 0.5;
    QRect m_dotBounds;
};

} // namespace ferrow
