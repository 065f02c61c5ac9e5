#pragma once

#include "views/history_model.h"
#include "views/report/report_panel.h"

class QChart;
class QChartView;
class QDateTimeAxis;
class QValueAxis;

namespace ferrow {

// Each battery's health and full-charge capacity day by day, a line per battery.
class BatteryHealthPanel : public ReportPanel {
public:
    explicit BatteryHealthPanel(QWidget *parent = nullptr);

    // Returns whether there is anything to show.
    bool setBatteryDays(const std::vector<BatteryDayRecord> &days);
    void setFerrowPalette(const FerrowPalette &palette) override;

private:
    struct Plot {
        PanelText *title;
        QChart *chart;
        QChartView *view;
        QDateTimeAxis *days;
        QValueAxis *values;
    };
    Plot makePlot(const char *titleKey, const char *valueFormat);
    void fill(Plot &plot, const std::vector<BatterySeries> &batteries, std::vector<BatteryPoint> BatterySeries::*points, double step);
    void applyPalette(Plot &plot);

    FerrowPalette m_palette;
    Plot m_health;
    Plot m_capacity;
};

} // namespace ferrow
