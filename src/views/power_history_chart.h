#pragma once

#include "model/power_history.h"
#include "views/ferrow_palette.h"

#include <QWidget>

#include <vector>

class QButtonGroup;
class QChart;
class QChartView;
class QDateTimeAxis;
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
    QString averageText() const;
    QString peakText() const;
    bool isWaiting() const;

private:
    void rebuild();

    PowerHistory m_history;
    FerrowPalette m_palette;
    int m_minutes = 5;
    QLabel *m_title;
    QButtonGroup *m_windowChoices;
    QStackedWidget *m_body;
    QChart *m_chart;
    QChartView *m_chartView; // made with m_chart: a view made without one would leak its own
    QDateTimeAxis *m_timeAxis;
    QValueAxis *m_valueAxis;
    QScatterSeries *m_points;
    std::vector<QLineSeries *> m_lines; // reused; grows only to the most runs ever on screen at once
    QLabel *m_average;
    QLabel *m_peak;
    QList<QPointF> m_buffer;
};

} // namespace ferrow
