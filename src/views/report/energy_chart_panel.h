#pragma once

#include "views/history_model.h"
#include "views/report/report_panel.h"

class QBarSet;
class QButtonGroup;
class QCategoryAxis;
class QChart;
class QChartView;
class QLabel;
class QStackedBarSeries;
class QStackedWidget;
class QValueAxis;

namespace ferrow {

// Energy per day or month as stacked bars, the adapter's under the battery's, with a range picker.
class EnergyChartPanel : public ReportPanel {
public:
    explicit EnergyChartPanel(QWidget *parent = nullptr);

    void setOverview(const HistoryOverview &overview, const QDate &today);
    void setRange(EnergyRange range);
    EnergyRange range() const { return m_range; }
    void setFerrowPalette(const FerrowPalette &palette) override;

private:
    void rebuild();

    HistoryOverview m_overview;
    QDate m_today;
    EnergyRange m_range = EnergyRange::week;
    FerrowPalette m_palette;
    QButtonGroup *m_ranges;
    QStackedWidget *m_body;
    QLabel *m_nothing;
    QChart *m_chart;
    QChartView *m_chartView;
    QStackedBarSeries *m_series;
    QBarSet *m_adapter;
    QBarSet *m_battery;
    QCategoryAxis *m_dateAxis;
    QValueAxis *m_energyAxis;
};

} // namespace ferrow
