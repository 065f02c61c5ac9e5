#pragma once

#include "model/power_history.h"
#include "views/ferrow_palette.h"
#include "views/power_history_chart_model.h"

#include <QWidget>

#include <vector>

class QButtonGroup;
class QCategoryAxis;
class QChart;
class QChartView;
class QLabel;
class QLineSeries;
class QScatterSeries;
class QStackedWidget;
class QValueAxis;

namespace ferrow {

// The last 5, 15 or 60 minutes of headline power: a line per unbroken run of readings (gaps are
// never bridged), a point per reading, the average and the peak. Updated in place each second.
class PowerHistoryChart : public QWidget {
    Q_OBJECT
public:
    explicit PowerHistoryChart(QWidget *parent = nullptr);

    // Keeps its own copy (at most an hour of samples), so the caller's history may change or go.
    void setHistory(const PowerHistory &history);
    void setFerrowPalette(const FerrowPalette &palette);
    void setMinutes(int minutes);
    int minutes() const { return m_minutes; }

    int visibleLineCount() const;
    qsizetype visiblePointCount() const;
    // Each statistic as shown: the label, then the value.
    QString averageText() const;
    QString peakText() const;
    bool isWaiting() const;
    // The values the axes mark, as laid out at the last update.
    QList<double> valueTicks() const;
    QStringList timeTickLabels() const;

private:
    class Statistic;

    void rebuild();
    void updateTimeTicks(const ChartWindow &window);

    PowerHistory m_history;
    FerrowPalette m_palette;
    int m_minutes = 5;
    QLabel *m_title;
    QButtonGroup *m_windowChoices;
    QStackedWidget *m_body;
    QChart *m_chart;
    QChartView *m_chartView; // made with m_chart: a view made without one would leak its own
    QCategoryAxis *m_timeAxis; // a label at each whole minute marked, hence categories over epoch milliseconds
    QValueAxis *m_valueAxis;
    QScatterSeries *m_points;
    std::vector<QLineSeries *> m_lines; // reused; grows only to the most runs ever on screen at once
    Statistic *m_average;
    Statistic *m_peak;
    QList<QPointF> m_buffer;
    std::vector<WallTime> m_timeTicks; // the minutes m_timeAxis marks, so its labels change only when they move
};

} // namespace ferrow
