#pragma once

#include "views/snapshot_view.h"

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

    // Draws one frame of the connector at the given phase, into any painter (used by benchmarks too).
    static void paintConnector(QPainter &painter, const QRectF &rect, const PowerSnapshot &snapshot, double phase);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void updateTimer();

    QTimer m_frameTimer;
    bool m_reduceMotion = false;
};

} // namespace ferrow
