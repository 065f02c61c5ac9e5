#pragma once

#include "model/power_snapshot.h"
#include "views/ferrow_palette.h"

#include <QWidget>

namespace ferrow {

class ValueRowsView;

// The popover's card of battery figures (or the machine's own without a battery).
class TelemetryCard : public QWidget {
public:
    explicit TelemetryCard(QWidget *parent = nullptr);

    void setSnapshot(const PowerSnapshot &snapshot);
    void setFerrowPalette(const FerrowPalette &palette);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    FerrowPalette m_palette;
    ValueRowsView *m_rows;
};

} // namespace ferrow
