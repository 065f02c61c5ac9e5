#pragma once

#include "model/power_snapshot.h"
#include "views/report/report_panel.h"

namespace ferrow {

class ValueRowsView;

// Where the power goes: input, system and battery figures, with how they relate under a rule.
class DistributionPanel : public ReportPanel {
public:
    explicit DistributionPanel(QWidget *parent = nullptr);

    void setSnapshot(const PowerSnapshot &snapshot);
    void setFerrowPalette(const FerrowPalette &palette) override;

private:
    class Caption;

    ValueRowsView *m_rows;
    Caption *m_caption;
};

} // namespace ferrow
