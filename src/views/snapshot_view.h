#pragma once

#include "model/power_snapshot.h"
#include "views/ferrow_palette.h"

#include <QWidget>

namespace ferrow {

// A widget that paints one snapshot in one palette and repaints when either changes.
class SnapshotView : public QWidget {
public:
    using QWidget::QWidget;

    void setSnapshot(const PowerSnapshot &snapshot)
    {
        const bool repaint = paintsDifferently(m_snapshot, snapshot);
        m_snapshot = snapshot;
        ++m_snapshotRevision;
        if (repaint)
            update();
    }
    void setFerrowPalette(const FerrowPalette &palette)
    {
        m_palette = palette;
        ferrowPaletteChanged();
        update();
    }
    const PowerSnapshot &snapshot() const { return m_snapshot; }
    const FerrowPalette &ferrowPalette() const { return m_palette; }
    // Changes with every setSnapshot: cheaper to compare than the snapshot itself.
    quint64 snapshotRevision() const { return m_snapshotRevision; }

protected:
    // For views that hand the palette on to child widgets.
    virtual void ferrowPaletteChanged() {}
    // Whether next would look different from shown. Views that show a few slow-moving figures say
    // so, and sit out the readings that leave them unchanged: a repaint costs a flush to the
    // window system.
    virtual bool paintsDifferently(const PowerSnapshot &shown, const PowerSnapshot &next) const
    {
        Q_UNUSED(shown);
        Q_UNUSED(next);
        return true;
    }

private:
    PowerSnapshot m_snapshot = PowerSnapshot::empty();
    quint64 m_snapshotRevision = 0;
    FerrowPalette m_palette;
};

} // namespace ferrow
