#include "views/power_history_chart.h"

#include "model/localized_text.h"
#include "views/dashboard_model.h"
#include "views/glyphs.h"
#include "views/power_history_chart_model.h"
#include "views/view_painting.h"

#include <QButtonGroup>
#include <QChart>
#include <QChartView>
#include <QDateTime>
#include <QDateTimeAxis>
#include <QGraphicsLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineSeries>
#include <QLocale>
#include <QPainter>
#include <QScatterSeries>
#include <QStackedWidget>
#include <QToolButton>
#include <QValueAxis>

namespace ferrow {
namespace {

double epochMilliseconds(WallTime time)
{
    return static_cast<double>(std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch()).count());
}

// Shown until the window holds a reading.
class WaitingPlaceholder : public QWidget {
public:
    explicit WaitingPlaceholder(const FerrowPalette *palette) : m_palette(palette)
    {
        setAccessibleName(localizedText("power_history.waiting") + QStringLiteral(". ") + localizedText("power_history.waiting_description"));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QColor colour = m_palette->secondaryText();
        const double middle = height() / 2.0;
        paintGlyph(painter, Glyph::chart, QRectF(width() / 2.0 - 14, middle - 44, 28, 28), colour);
        painter.setPen(colour);
        painter.setFont(uiFont(13));
        painter.drawText(QRectF(0, middle - 8, width(), 18), Qt::AlignCenter, localizedText("power_history.waiting"));
        painter.setFont(uiFont(11));
        painter.drawText(QRectF(0, middle + 12, width(), 16), Qt::AlignCenter, localizedText("power_history.waiting_description"));
    }

private:
    const FerrowPalette *m_palette;
};

} // namespace

PowerHistoryChart::PowerHistoryChart(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(localizedText("power_history.pwr")))
    , m_windowChoices(new QButtonGroup(this))
    , m_body(new QStackedWidget)
    , m_chart(new QChart)
    , m_chartView(new QChartView(m_chart))
    , m_timeAxis(new QDateTimeAxis)
    , m_valueAxis(new QValueAxis)
    , m_points(new QScatterSeries)
    , m_average(new QLabel)
    , m_peak(new QLabel)
{
    auto *picker = new QWidget;
    picker->setObjectName(QStringLiteral("windowPicker"));
    picker->setFixedWidth(220);
    picker->setAccessibleName(localizedText("power_history.range"));
    auto *pickerRow = new QHBoxLayout(picker);
    pickerRow->setContentsMargins(2, 2, 2, 2);
    pickerRow->setSpacing(2);
    for (const int minutes : kChartWindowChoices) {
        auto *choice = new QToolButton;
        choice->setCheckable(true);
        choice->setChecked(minutes == m_minutes);
        choice->setText(localizedFormat("power_history.minutes", {minutes}));
        choice->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        m_windowChoices->addButton(choice, minutes);
        pickerRow->addWidget(choice);
    }
    connect(m_windowChoices, &QButtonGroup::idClicked, this, &PowerHistoryChart::setMinutes);

    auto *header = new QHBoxLayout;
    header->addWidget(m_title);
    header->addStretch();
    header->addWidget(picker);

    m_chart->legend()->hide();
    m_chart->setBackgroundVisible(false);
    m_chart->setMargins(QMargins(0, 4, 4, 0));
    m_chart->layout()->setContentsMargins(0, 0, 0, 0);
    m_chart->addAxis(m_timeAxis, Qt::AlignBottom);
    m_chart->addAxis(m_valueAxis, Qt::AlignLeft);
    m_timeAxis->setTickCount(4);
    QString timeFormat = QLocale().timeFormat(QLocale::ShortFormat);
    timeFormat.remove(QStringLiteral(":ss"));
    m_timeAxis->setFormat(timeFormat);
    m_valueAxis->setTickCount(4);
    m_valueAxis->setLabelFormat(QStringLiteral("%.0f W"));
    m_points->setMarkerSize(5);
    m_points->setBorderColor(Qt::transparent);
    m_chart->addSeries(m_points);
    m_points->attachAxis(m_timeAxis);
    m_points->attachAxis(m_valueAxis);
    m_chartView->setRenderHint(QPainter::Antialiasing);
    m_chartView->setStyleSheet(QStringLiteral("background: transparent"));
    m_chartView->setAccessibleName(localizedText("power_history.title"));

    m_body->addWidget(new WaitingPlaceholder(&m_palette));
    m_body->addWidget(m_chartView);
    m_body->setFixedHeight(210);

    auto *statistics = new QHBoxLayout;
    statistics->setSpacing(18);
    statistics->addStretch();
    statistics->addWidget(m_average);
    statistics->addWidget(m_peak);
    statistics->addStretch();

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addLayout(header);
    column->addWidget(m_body);
    column->addLayout(statistics);

    setFerrowPalette(m_palette);
}

void PowerHistoryChart::setHistory(const PowerHistory &history)
{
    m_history = history;
    rebuild();
}

void PowerHistoryChart::setMinutes(int minutes)
{
    m_minutes = minutes;
    if (QAbstractButton *choice = m_windowChoices->button(minutes))
        choice->setChecked(true);
    rebuild();
}

void PowerHistoryChart::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    const auto css = [](const QColor &c) { return c.name(QColor::HexArgb); };
    m_title->setStyleSheet(QStringLiteral("color: %1").arg(css(palette.secondaryText())));
    m_title->setFont(uiFont(12));
    for (QLabel *label : {m_average, m_peak}) {
        label->setFont(uiFont(11));
        label->setStyleSheet(QStringLiteral("color: %1").arg(css(palette.secondaryText())));
    }
    findChild<QWidget *>(QStringLiteral("windowPicker"))
        ->setStyleSheet(QStringLiteral("#windowPicker { background: %1; border-radius: 7px; }"
                                       "QToolButton { border: none; border-radius: 5px; padding: 3px; color: %2; background: transparent; font-size: 11px; }"
                                       "QToolButton:checked { background: %3; }")
                            .arg(css(palette.cardTint()), css(palette.primaryText()),
                                 css(palette.isDark() ? QColor(255, 255, 255, 46) : QColor(255, 255, 255))));
    for (QAbstractAxis *axis : {static_cast<QAbstractAxis *>(m_timeAxis), static_cast<QAbstractAxis *>(m_valueAxis)}) {
        axis->setLabelsColor(palette.secondaryText());
        axis->setLabelsFont(uiFont(10));
        axis->setGridLineColor(palette.separator());
        axis->setLinePenColor(palette.separator());
    }
    m_points->setColor(palette.accent());
    for (QLineSeries *line : m_lines)
        line->setPen(QPen(palette.accent(), 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    m_body->widget(0)->update();
}

void PowerHistoryChart::rebuild()
{
    const PowerHistory &history = m_history;
    const ChartWindow window = chartWindow(history, m_minutes, std::chrono::system_clock::now());
    const std::size_t first = firstVisibleSample(history, window.start);
    const ChartStatistics statistics = chartStatistics(history, first);
    const auto &samples = history.samples();

    m_average->setText(localizedText("power_history.average") + QStringLiteral("  ") + formatFigure(statistics.averageW, "%.1f W"));
    m_peak->setText(localizedText("power_history.peak") + QStringLiteral("  ") + formatFigure(statistics.peakW, "%.1f W"));
    m_body->setCurrentIndex(first < samples.size() ? 1 : 0);

    m_timeAxis->setRange(QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(epochMilliseconds(window.start))),
                         QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(epochMilliseconds(window.end))));
    m_valueAxis->setRange(statistics.lowerW, statistics.upperW);

    // One line per run; series are reused rather than made anew each second.
    std::size_t line = 0;
    for (std::size_t i = first; i < samples.size();) {
        const std::int64_t segment = samples[i].segment;
        m_buffer.clear();
        for (; i < samples.size() && samples[i].segment == segment; ++i)
            m_buffer.append(QPointF(epochMilliseconds(samples[i].date), samples[i].powerW));
        if (line == m_lines.size()) {
            auto *series = new QLineSeries;
            series->setPen(QPen(m_palette.accent(), 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
            m_chart->addSeries(series);
            series->attachAxis(m_timeAxis);
            series->attachAxis(m_valueAxis);
            m_lines.push_back(series);
        }
        m_lines[line]->replace(m_buffer);
        m_lines[line]->setVisible(true);
        ++line;
    }
    for (; line < m_lines.size(); ++line) {
        if (m_lines[line]->count() > 0)
            m_lines[line]->clear();
        m_lines[line]->setVisible(false);
    }

    m_buffer.clear();
    for (std::size_t i = first; i < samples.size(); ++i)
        m_buffer.append(QPointF(epochMilliseconds(samples[i].date), samples[i].powerW));
    m_points->replace(m_buffer);
}

int PowerHistoryChart::visibleLineCount() const
{
    return static_cast<int>(std::count_if(m_lines.begin(), m_lines.end(), [](const QLineSeries *s) { return s->isVisible(); }));
}

qsizetype PowerHistoryChart::visiblePointCount() const
{
    return m_points->count();
}

QString PowerHistoryChart::averageText() const
{
    return m_average->text();
}

QString PowerHistoryChart::peakText() const
{
    return m_peak->text();
}

bool PowerHistoryChart::isWaiting() const
{
    return m_body->currentIndex() == 0;
}

} // namespace ferrow
