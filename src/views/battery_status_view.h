#pragma once

#include "views/accessible_content.h"
#include "views/snapshot_view.h"

#include <QColor>

class QPainter;

namespace ferrow {

// The popover's battery card: state, charge, a ten-segment gauge and three compact figures, or
// a notice on machines without a battery.
class BatteryStatusView : public SnapshotView, public AccessibleContent {
public:
    explicit BatteryStatusView(QWidget *parent = nullptr);
    QSize sizeHint() const override { return {414, height()}; }
    std::vector<AccessibleItem> accessibleParts() const override;
    // A line under the figures about the current session; empty takes it away.
    void setSessionText(const QString &text);
    const QString &sessionText() const { return m_sessionText; }

protected:
    void paintEvent(QPaintEvent *event) override;
    bool paintsDifferently(const PowerSnapshot &shown, const PowerSnapshot &next) const override;

private:
    void fitHeight();

    QString m_sessionText;
};

// The ten-segment charge gauge.
void paintBatterySegments(QPainter &painter, const QRectF &rect, std::int64_t level, const FerrowPalette &palette);
// A two-line figure: a small label over a monospaced value.
void paintCompactMetric(QPainter &painter, const QRectF &rect, const QString &label, const QString &value, const QColor &color,
                        const FerrowPalette &palette);

} // namespace ferrow
