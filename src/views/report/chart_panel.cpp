#include "views/report/chart_panel.h"

#include "views/power_history_chart.h"

namespace ferrow {

ChartPanel::ChartPanel(QWidget *parent)
    : ReportPanel("power_history.title", Glyph::chart, std::nullopt, parent)
    , m_chart(new PowerHistoryChart)
{
    addContent(m_chart);
}

void ChartPanel::setFerrowPalette(const FerrowPalette &palette)
{
    ReportPanel::setFerrowPalette(palette);
    m_chart->setFerrowPalette(palette);
}

} // namespace ferrow
