#include "views/report/energy_chart_panel.h"

#include "model/localized_text.h"
#include "views/view_painting.h"

#include <QBarSet>
#include <QButtonGroup>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QGraphicsLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLegend>
#include <QLegendMarker>
#include <QStackedBarSeries>
#include <QStackedWidget>
#include <QToolButton>
#include <QValueAxis>

namespace ferrow {
namespace {

QString css(const QColor &c)
{
    return c.name(QColor::HexArgb);
}

} // namespace

EnergyChartPanel::EnergyChartPanel(QWidget *parent)
    : ReportPanel("energy_history.energy", Glyph::chart, std::nullopt, parent)
    , m_ranges(new QButtonGroup(this))
    , m_body(new QStackedWidget)
    , m_nothing(new QLabel(localizedText("energy_history.nothing_in_range")))
    , m_chart(new QChart)
    , m_chartView(new QChartView(m_chart))
    , m_series(new QStackedBarSeries)
    , m_adapter(new QBarSet(localizedText("energy_history.adapter")))
    , m_battery(new QBarSet(localizedText("energy_history.battery")))
    , m_dateAxis(new QCategoryAxis)
    , m_energyAxis(new QValueAxis)
{
    auto *picker = new QWidget;
    picker->setObjectName(QStringLiteral("rangePicker"));
    picker->setFixedWidth(260);
    picker->setAccessibleName(localizedText("energy_history.range"));
    auto *pickerRow = new QHBoxLayout(picker);
    pickerRow->setContentsMargins(2, 2, 2, 2);
    pickerRow->setSpacing(2);
    for (const EnergyRange range : kEnergyRanges) {
        auto *choice = new QToolButton;
        choice->setCheckable(true);
        choice->setChecked(range == m_range);
        choice->setText(localizedText(energyRangeKey(range)));
        choice->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        m_ranges->addButton(choice, static_cast<int>(range));
        pickerRow->addWidget(choice);
    }
    connect(m_ranges, &QButtonGroup::idClicked, this, [this](int id) { setRange(static_cast<EnergyRange>(id)); });
    auto *header = new QWidget;
    auto *headerRow = new QHBoxLayout(header);
    headerRow->setContentsMargins(0, 0, 0, 8);
    headerRow->addStretch();
    headerRow->addWidget(picker);

    m_series->append(m_adapter);
    m_series->append(m_battery);
    m_series->setBarWidth(0.7);
    m_chart->addSeries(m_series);
    m_chart->addAxis(m_dateAxis, Qt::AlignBottom);
    m_chart->addAxis(m_energyAxis, Qt::AlignLeft);
    m_series->attachAxis(m_dateAxis);
    m_series->attachAxis(m_energyAxis);
    m_chart->setBackgroundVisible(false);
    m_chart->setMargins(QMargins(0, 4, 4, 0));
    m_chart->layout()->setContentsMargins(0, 0, 0, 0);
    m_chart->legend()->setAlignment(Qt::AlignBottom);
    m_chart->legend()->setFont(uiFont(11));
    m_dateAxis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    m_dateAxis->setGridLineVisible(false);
    m_energyAxis->setLabelFormat(QStringLiteral("%.0f Wh"));
    m_energyAxis->setTickCount(6);
    m_energyAxis->setLineVisible(false);
    m_chartView->setRenderHint(QPainter::Antialiasing);
    m_chartView->setStyleSheet(QStringLiteral("background: transparent"));
    m_chartView->setAccessibleName(localizedText("energy_history.energy"));

    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setFont(uiFont(12));
    m_body->addWidget(m_chartView);
    m_body->addWidget(m_nothing);
    m_body->setFixedHeight(240);

    addContent(header);
    addContent(m_body);
    setFerrowPalette(m_palette);
}

void EnergyChartPanel::setOverview(const HistoryOverview &overview, const QDate &today)
{
    m_overview = overview;
    m_today = today;
    rebuild();
}

void EnergyChartPanel::setRange(EnergyRange range)
{
    m_range = range;
    if (QAbstractButton *choice = m_ranges->button(static_cast<int>(range)))
        choice->setChecked(true);
    rebuild();
}

void EnergyChartPanel::rebuild()
{
    const std::vector<EnergyBar> bars = energyBars(m_overview, m_range, m_today);
    QList<qreal> adapter, battery;
    bool anything = false;
    for (const EnergyBar &bar : bars) {
        // A gap is a bar of no height: a set has a value at every index.
        adapter.append(bar.adapterWh.value_or(0));
        battery.append(bar.batteryWh.value_or(0));
        anything = anything || !bar.isGap();
    }
    m_adapter->remove(0, m_adapter->count());
    m_adapter->append(adapter);
    m_battery->remove(0, m_battery->count());
    m_battery->append(battery);
    m_body->setCurrentWidget(anything ? static_cast<QWidget *>(m_chartView) : m_nothing);

    for (const QString &label : m_dateAxis->categoriesLabels())
        m_dateAxis->remove(label);
    const QLocale locale;
    m_dateAxis->setStartValue(-0.5);
    for (std::size_t i = 0; i < bars.size(); ++i)
        if (isLabelledBar(i, bars.size(), m_range))
            m_dateAxis->append(energyBarLabel(bars[i].date, m_range, locale), static_cast<double>(i));
    m_dateAxis->setRange(-0.5, static_cast<double>(bars.size()) - 0.5);
    m_energyAxis->setRange(0, energyAxisTop(bars));
}

void EnergyChartPanel::setFerrowPalette(const FerrowPalette &palette)
{
    ReportPanel::setFerrowPalette(palette);
    m_palette = palette;
    styleSegmentedPicker(*findChild<QWidget *>(QStringLiteral("rangePicker")), m_ranges->buttons(), palette, palette.reportPanelBackground());
    m_adapter->setColor(FixedColor::meterInput);
    m_adapter->setBorderColor(FixedColor::meterInput);
    m_battery->setColor(FixedColor::meterCurrent);
    m_battery->setBorderColor(FixedColor::meterCurrent);
    m_chart->legend()->setLabelColor(palette.secondaryText());
    for (QAbstractAxis *axis : {static_cast<QAbstractAxis *>(m_dateAxis), static_cast<QAbstractAxis *>(m_energyAxis)}) {
        axis->setLabelsColor(palette.secondaryText());
        axis->setLabelsFont(uiFont(10));
        axis->setGridLineColor(palette.separator());
        axis->setLinePenColor(palette.separator());
    }
    m_nothing->setStyleSheet(QStringLiteral("color: %1").arg(css(palette.secondaryText())));
}

} // namespace ferrow
