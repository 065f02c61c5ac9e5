#pragma once

#include "model/power_snapshot.h"
#include "views/report/report_panel.h"

namespace ferrow {

class BatteryPacksView;
class PanelText;
class UnavailableNote;
class ValueRowsView;

// The battery's charge, state and health figures, or a note on machines without one.
class BatteryPanel : public ReportPanel {
public:
    explicit BatteryPanel(QWidget *parent = nullptr);

    void setSnapshot(const PowerSnapshot &snapshot);
    void setFerrowPalette(const FerrowPalette &palette) override;

private:
    class Charge;

    Charge *m_charge;
    ValueRowsView *m_rows;
    PanelText *m_packsHeading;
    BatteryPacksView *m_packs;
    UnavailableNote *m_absent;
};

} // namespace ferrow
