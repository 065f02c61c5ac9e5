#pragma once

#include "model/power_snapshot.h"
#include "views/ferrow_palette.h"

#include <QWidget>

#include <vector>

class QGridLayout;

namespace ferrow {

class PanelText;
class ValueRowsView;

// Each pack of a machine with several, side by side: its own figures, serial and extremes.
class BatteryPacksView : public QWidget {
public:
    explicit BatteryPacksView(QWidget *parent = nullptr);

    void setPacks(const std::vector<BatteryPack> &packs);
    void setFerrowPalette(const FerrowPalette &palette);

private:
    struct Column {
        QWidget *holder; // owns the two below
        PanelText *title;
        ValueRowsView *rows;
    };

    void applyPalette(const Column &column) const;

    QGridLayout *m_grid;
    std::vector<Column> m_columns;
    FerrowPalette m_palette;
};

} // namespace ferrow
