#include "views/report/battery_health_panel.h"

#include "model/localized_text.h"
#include "views/view_painting.h"

#include <QChart>
#include <QChartView>
#include <QDateTime>
#include <QDateTimeAxis>
#include <QGraphicsLayout>
#include <QLegend>
#include <QLineSeries>
#include <QLocale>
#include <QValueAxis>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace ferrow {
namespace {

// Batteries one after another take these colours; a machine rarely has more than two.
const QColor kBatteryColours[] = {QColor(52, 199, 89), QColor(10, 132, 255), QColor(255, 149, 0), QColor(175, 82, 222)};

double noonMilliseconds(const QDate &day)
{
    return static_cast<double>(QDateTime(day, QTime(12, 0)).toMSecsSinceEpoch());
}

} // namespace

BatteryHealthPanel::BatteryHealthPanel(QWidget *parent)
    : ReportPanel("energy_history.batteries", Glyph::battery, FixedColor::chargeGreen, parent)
    , m_health(makePlot("energy_history.health", "%.0f%%"))
    , m_capacity(makePlot("energy_history.capacity", "%.0f"))
{
    m_health.chart->legend()->setVisible(true);
    m_health.chart->legend()->setAlignment(Qt::AlignBottom);
    m_health.chart->legend()->setFont(uiFont(11));
    for (Plot *plot : {&m_health, &m_capacity}) {
        addContent(plot->title);
        addContent(plot->view);
    }
    setFerrowPalette(m_palette);
}

BatteryHealthPanel::Plot BatteryHealthPanel::makePlot(const char *titleKey, const char *valueFormat)
{
    Plot plot{new PanelText(uiFont(12), ColorRole::secondaryText, 4, 18, 26), new QChart, nullptr, new QDateTimeAxis, new QValueAxis};
    plot.title->readAsHeading();
    plot.title->setText(localizedText(titleKey));
    plot.view = new QChartView(plot.chart);
    plot.chart->setBackgroundVisible(false);
    plot.chart->setMargins(QMargins(0, 4, 4, 0));
    plot.chart->layout()->setContentsMargins(0, 0, 0, 0);
    plot.chart->legend()->setVisible(false);
    plot.chart->addAxis(plot.days, Qt::AlignBottom);
    plot.chart->addAxis(plot.values, Qt::AlignLeft);
    plot.days->setFormat(dayMonthFormat(QLocale()));
    plot.days->setTickCount(6);
    plot.values->setLabelFormat(QString::fromLatin1(valueFormat));
    plot.values->setTickType(QValueAxis::TicksDynamic);
    plot.values->setLineVisible(false);
    plot.view->setRenderHint(QPainter::Antialiasing);
    plot.view->setStyleSheet(QStringLiteral("background: transparent"));
    plot.view->setAccessibleName(localizedText(titleKey));
    plot.view->setFixedHeight(170);
    return plot;
}

bool BatteryHealthPanel::setBatteryDays(const std::vector<BatteryDayRecord> &days)
{
    const std::vector<BatterySeries> batteries = batterySeries(days);
    fill(m_health, batteries, &BatterySeries::healthPercent, 5);
    fill(m_capacity, batteries, &BatterySeries::fullChargeMAH, 100);
    m_health.chart->legend()->setVisible(batteries.size() > 0);
    applyPalette(m_health);
    applyPalette(m_capacity);
    return std::any_of(batteries.begin(), batteries.end(), [](const BatterySeries &b) { return !b.healthPercent.empty() || !b.fullChargeMAH.empty(); });
}

void BatteryHealthPanel::fill(Plot &plot, const std::vector<BatterySeries> &batteries, std::vector<BatteryPoint> BatterySeries::*points, double step)
{
    plot.chart->removeAllSeries();
    std::optional<QDate> first, last;
    std::optional<double> low, high;
    for (std::size_t i = 0; i < batteries.size(); ++i) {
        auto *line = new QLineSeries;
        line->setName(batteries[i].label);
        line->setPointsVisible(true);
        line->setPen(QPen(kBatteryColours[i % std::size(kBatteryColours)], 2));
        for (const BatteryPoint &point : batteries[i].*points) {
            line->append(noonMilliseconds(point.day), point.value);
            first = std::min(first.value_or(point.day), point.day);
            last = std::max(last.value_or(point.day), point.day);
            low = std::min(low.value_or(point.value), point.value);
            high = std::max(high.value_or(point.value), point.value);
        }
        plot.chart->addSeries(line);
        line->attachAxis(plot.days);
        line->attachAxis(plot.values);
    }
    // A day either side, so a single day still has room; the values to whole steps around them.
    const QDate from = first.value_or(QDate::currentDate()).addDays(-1), to = last.value_or(QDate::currentDate()).addDays(1);
    plot.days->setRange(QDateTime(from, QTime(12, 0)), QDateTime(to, QTime(12, 0)));
    const double bottom = std::floor(low.value_or(0) / step - 1) * step, top = std::ceil(high.value_or(step) / step) * step;
    plot.values->setRange(bottom, top);
    // Marks on whole steps, no more than five intervals of them.
    plot.values->setTickAnchor(bottom);
    plot.values->setTickInterval(step * std::max(1.0, std::ceil((top - bottom) / step / 5)));
}

void BatteryHealthPanel::applyPalette(Plot &plot)
{
    plot.title->setFerrowPalette(m_palette);
    plot.chart->legend()->setLabelColor(m_palette.secondaryText());
    for (QAbstractAxis *axis : plot.chart->axes()) {
        axis->setLabelsColor(m_palette.secondaryText());
        axis->setLabelsFont(uiFont(10));
        axis->setGridLineColor(m_palette.separator());
        axis->setLinePenColor(m_palette.separator());
    }
}

void BatteryHealthPanel::setFerrowPalette(const FerrowPalette &palette)
{
    ReportPanel::setFerrowPalette(palette);
    m_palette = palette;
    applyPalette(m_health);
    applyPalette(m_capacity);
}

} // namespace ferrow
