#pragma once

#include "model/power_snapshot.h"
#include "views/report/report_panel.h"

namespace ferrow {

class UnavailableNote;

// Each cell's voltage on a tile with a bar, under where the voltages come from; or a note when
// the machine reports no cells.
class CellsPanel : public ReportPanel {
public:
    explicit CellsPanel(QWidget *parent = nullptr);

    void setSnapshot(const PowerSnapshot &snapshot);
    void setFerrowPalette(const FerrowPalette &palette) override;

private:
    class Grid;

    PanelText *m_source;
    Grid *m_grid;
    UnavailableNote *m_absent;
};

} // namespace ferrow
