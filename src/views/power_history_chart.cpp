#include "views/power_history_chart.h"

#include "model/localized_text.h"
#include "views/accessibility_model.h"
#include "views/accessible_content.h"
#include "views/dashboard_model.h"
#include "views/glyphs.h"
#include "views/power_history_chart_model.h"
#include "views/view_painting.h"

#include <QButtonGroup>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QDateTime>
#include <QFontMetricsF>
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

#include <algorithm>
#include <cmath>

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

// The hour and minute of a mark, in the locale's short time style.
QString markText(WallTime time)
{
    return timeOfDayText(QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(epochMilliseconds(time))).time(), QLocale(), Seconds::hidden);
}

std::chrono::seconds localUtcOffset(WallTime time)
{
    return std::chrono::seconds(QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(epochMilliseconds(time))).offsetFromUtc());
}

} // namespace

// One statistic under the chart: its label in the secondary colour, then 6 points on its value in
// the primary colour with digits all of one width, so the figure does not jitter as it changes.
// Painted as one widget, so accessibility reads label and value as one element.
class PowerHistoryChart::Statistic : public QWidget, public AccessibleContent {
public:
    explicit Statistic(const char *labelKey) : m_label(localizedText(labelKey)), m_value(absentText())
    {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    QString text() const { return m_label + u' ' + m_value; }
    AccessibleItem accessibleSelf() const override { return {QAccessible::StaticText, spokenReading(m_label, m_value), {}}; }

    void setValue(const QString &value)
    {
        if (value == m_value)
            return;
        m_value = value;
        updateGeometry();
        update();
    }

    void setColours(const QColor &label, const QColor &value)
    {
        m_labelColour = label;
        m_valueColour = value;
        update();
    }

    QSize sizeHint() const override
    {
        const QFontMetricsF label(labelFont()), value(valueFont());
        return QSize(static_cast<int>(std::ceil(label.horizontalAdvance(m_label) + kGap + value.horizontalAdvance(m_value))),
                     static_cast<int>(std::ceil(std::max(label.height(), value.height()))));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QFontMetricsF labelMetrics(labelFont()), valueMetrics(valueFont());
        // One baseline for both, centred in the height.
        const double ascent = std::max(labelMetrics.ascent(), valueMetrics.ascent());
        const double descent = std::max(labelMetrics.descent(), valueMetrics.descent());
        const double baseline = (height() - ascent - descent) / 2.0 + ascent;
        painter.setFont(labelFont());
        painter.setPen(m_labelColour);
        painter.drawText(QPointF(0, baseline), m_label);
        painter.setFont(valueFont());
        painter.setPen(m_valueColour);
        painter.drawText(QPointF(labelMetrics.horizontalAdvance(m_label) + kGap, baseline), m_value);
    }

private:
    static constexpr double kGap = 6;
    static QFont labelFont() { return uiFont(11); }
    // Qt 6.4 cannot ask a font for its tabular figures ("tnum"); the system's fixed-pitch face has
    // only tabular ones, as the other figures of the views do.
    static QFont valueFont() { return monospacedFont(11); }

    QString m_label;
    QString m_value;
    QColor m_labelColour;
    QColor m_valueColour;
};

PowerHistoryChart::PowerHistoryChart(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(localizedText("power_history.pwr")))
    , m_windowChoices(new QButtonGroup(this))
    , m_body(new QStackedWidget)
    , m_chart(new QChart)
    , m_chartView(new QChartView(m_chart))
    , m_timeAxis(new QCategoryAxis)
    , m_valueAxis(new QValueAxis)
    , m_points(new QScatterSeries)
    , m_average(new Statistic("power_history.average"))
    , m_peak(new Statistic("power_history.peak"))
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
    // The axes' names, for accessibility; the Part shows no axis titles.
    m_timeAxis->setTitleText(localizedText("power_history.time"));
    m_valueAxis->setTitleText(localizedText("power_history.watts"));
    for (QAbstractAxis *axis : {static_cast<QAbstractAxis *>(m_timeAxis), static_cast<QAbstractAxis *>(m_valueAxis)})
        axis->setTitleVisible(false);
    // A label at each marked minute; the categories' edges are the marks.
    m_timeAxis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    m_valueAxis->setTickType(QValueAxis::TicksDynamic);
    m_valueAxis->setLineVisible(false); // its marks are a grid line and a label, no tick (the plot's edge is the time axis's)
    m_valueAxis->setLabelFormat(QStringLiteral("%.0f W"));
    m_points->setMarkerSize(kChartPointDiameter);
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
    for (Statistic *statistic : {m_average, m_peak})
        statistic->setColours(palette.secondaryText(), palette.primaryText());
    styleSegmentedPicker(*findChild<QWidget *>(QStringLiteral("windowPicker")), m_windowChoices->buttons(), palette, palette.reportPanelBackground());
    // The last mark can sit on the plot's right edge, its label centred on it: room for half a label.
    const QFontMetricsF markMetrics(uiFont(10));
    double widestMark = 0;
    for (const QTime time : {QTime(10, 58), QTime(22, 58)})
        widestMark = std::max(widestMark, markMetrics.horizontalAdvance(timeOfDayText(time, QLocale(), Seconds::hidden)));
    m_chart->setMargins(QMargins(0, 4, static_cast<int>(std::ceil(widestMark / 2)) + 2, 0));
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

    m_average->setValue(formatFigure(statistics.averageW, "%.1f W"));
    m_peak->setValue(formatFigure(statistics.peakW, "%.1f W"));
    m_body->setCurrentIndex(first < samples.size() ? 1 : 0);

    m_timeAxis->setRange(epochMilliseconds(window.start), epochMilliseconds(window.end));
    updateTimeTicks(window);
    m_valueAxis->setRange(statistics.lowerW, statistics.upperW);
    const ValueTicks valueTicks = valueAxisTicks(statistics.lowerW, statistics.upperW);
    if (!valueTicks.valuesW.empty()) {
        m_valueAxis->setTickAnchor(valueTicks.valuesW.front());
        m_valueAxis->setTickInterval(valueTicks.stepW);
    }
    const QString description = QStringLiteral("%1 %2\u2013%3, %4 %5\u2013%6")
                                    .arg(m_timeAxis->titleText(), markText(window.start), markText(window.end), m_valueAxis->titleText(),
                                         QString::asprintf("%.0f", statistics.lowerW), QString::asprintf("%.0f W", statistics.upperW));
    // Said again only when the axes move, not with every reading.
    if (description != m_chartView->accessibleDescription())
        m_chartView->setAccessibleDescription(description);

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

void PowerHistoryChart::updateTimeTicks(const ChartWindow &window)
{
    TimeTicks ticks = timeAxisTicks(window, localUtcOffset(window.end));
    if (ticks.times == m_timeTicks)
        return;
    for (const QString &label : m_timeAxis->categoriesLabels())
        m_timeAxis->remove(label);
    // The axis also marks where its first category starts: the mark before the first, out of view.
    if (!ticks.times.empty())
        m_timeAxis->setStartValue(epochMilliseconds(ticks.times.front() - ticks.step));
    for (const WallTime tick : ticks.times)
        m_timeAxis->append(markText(tick), epochMilliseconds(tick));
    m_timeTicks = std::move(ticks.times);
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

QList<double> PowerHistoryChart::valueTicks() const
{
    QList<double> ticks;
    if (m_valueAxis->tickInterval() > 0)
        for (double value = m_valueAxis->tickAnchor(); value <= m_valueAxis->max(); value += m_valueAxis->tickInterval())
            ticks.append(value);
    return ticks;
}

QStringList PowerHistoryChart::timeTickLabels() const
{
    return m_timeAxis->categoriesLabels();
}

bool PowerHistoryChart::isWaiting() const
{
    return m_body->currentIndex() == 0;
}

} // namespace ferrow
