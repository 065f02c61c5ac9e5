#pragma once

#include "model/power_snapshot.h"
#include "views/report/report_panel.h"

namespace ferrow {

class ValueRowsView;

// The machine's figures, then the battery's lifetime record under a heading of its own.
class DevicePanel : public ReportPanel {
public:
    explicit DevicePanel(QWidget *parent = nullptr);

    void setSnapshot(const PowerSnapshot &snapshot);
    void setFerrowPalette(const FerrowPalette &palette) override;

private:
    ValueRowsView *m_device;
    PanelText *m_lifetimeHeading;
    ValueRowsView *m_lifetime;
};

} // namespace ferrow
