#pragma once

#include "views/accessible_content.h"
#include "views/power_flow_model.h"
#include "views/snapshot_view.h"

#include <QHash>
#include <QPixmap>
#include <QRect>
#include <QTimer>

#include <array>

namespace ferrow {

// Where the power goes now: adapter, the Mac and the battery, joined by an animated connector.
// The dots move on a clock while the view is visible; nothing animates while it is hidden or
// while motion is reduced.
class PowerFlowView : public SnapshotView, public AccessibleContent {
public:
    explicit PowerFlowView(QWidget *parent = nullptr);

    void setReduceMotion(bool reduceMotion);
    bool isAnimating() const { return m_frameTimer.isActive(); }
    QSize sizeHint() const override { return {430, 116}; }
    // The title, where the power comes from, and the diagram in words.
    std::vector<AccessibleItem> accessibleParts() const override;

    // The connector's routes, drawn once a reading into the cached layer.
    static void paintConnectorRoutes(QPainter &painter, const QRectF &rect, const PowerSnapshot &snapshot);

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
    void placeDots(double phase);
    void paintDots(QPainter &painter);
    const QPixmap &dotSprite(QRgb color, qreal scale);

    QTimer m_frameTimer;
    bool m_reduceMotion = false;
    // Everything but the dots, redrawn only when the reading, appearance, size or scale changes.
    struct StaticLayerKey {
        quint64 snapshotRevision = 0;
        ColorScheme scheme = ColorScheme::light;
        QSize size;
        qreal scale = 0;
        bool operator==(const StaticLayerKey &) const = default;
    };
    QPixmap m_staticLayer;
    StaticLayerKey m_staticLayerKey;
    // Each frame repaints only the box around where the dots were and where they are now.
    double m_phase = 0.5;
    std::array<FlowDot, 3> m_dots{};
    quint64 m_dotsRevision = ~quint64(0); // the snapshot m_dots were placed for
    QRect m_dotBounds;
    // One sprite per dot colour, in steps too fine to see: a blit per dot instead of three
    // antialiased ellipses a frame.
    QHash<QRgb, QPixmap> m_dotSprites;
    qreal m_dotSpriteScale = 0;
};

} // namespace ferrow
