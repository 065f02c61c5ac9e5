#pragma once

#include "views/report/report_panel.h"

namespace ferrow {

class PowerHistoryChart;

// The power history chart on a panel of its own.
class ChartPanel : public ReportPanel {
public:
    explicit ChartPanel(QWidget *parent = nullptr);

    PowerHistoryChart *chart() const { return m_chart; }
    void setFerrowPalette(const FerrowPalette &palette) override;

private:
    PowerHistoryChart *m_chart;
};

} // namespace ferrow
