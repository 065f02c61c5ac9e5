#pragma once

#include "alerts/alert_settings.h"
#include "apps/app_energy.h"
#include "history/history_recorder.h"
#include "model/power_history.h"
#include "model/power_snapshot.h"
#include "views/ferrow_palette.h"
#include "views/main_window_model.h"

#include <QDate>
#include <QMainWindow>
#include <QPropertyAnimation>

#include <map>
#include <vector>

class QAction;
class QCheckBox;
class QLabel;
class QScrollArea;
class QSplitter;

namespace ferrow {

class AlertsPanel;
class ApplicationsPanel;
class BatteryHealthPanel;
class BatteryPanel;
class CellsPanel;
class ChartPanel;
class DevicePanel;
class DistributionPanel;
class EnergyChartPanel;
class MeterRow;
class PowerHistoryChart;
class ReportSidebar;
class SectionHeading;
class SessionsPanel;
class ViewFooter;

// The details window: a sidebar of the report's sections and a scrolling column that shows
// them all. Picking a section scrolls to it; scrolling by hand moves the sidebar's selection.
class MainWindowView : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindowView(QWidget *parent = nullptr);

    void setSnapshot(const PowerSnapshot &snapshot);
    void setAlertLine(const QString &line);
    void setHistory(const PowerHistory &history);
    void setFerrowPalette(const FerrowPalette &palette);
    void setVersion(const QString &version);
    // A note under the meters about what this machine keeps from us (empty hides it).
    void setPowerNotice(const QString &notice);
    // The stored history; today is the last day its charts show.
    void setHistoryOverview(const HistoryOverview &overview, const QDate &today = QDate::currentDate());
    // Off, the History section says so and shows nothing stored.
    void setHistoryEnabled(bool enabled);
    // Stills the sidebar's selection and the logo's hover.
    void setReduceMotion(bool reduceMotion);
    // Shows the alerts' settings without telling of a change.
    void setAlertSettings(const AlertSettings &settings);
    // Why alerts may not reach the user (empty hides it).
    void setNotificationNote(const QString &note);
    // The applications' energy over a period; a list for a period other than the one the
    // Applications section shows is left alone.
    void setApplications(AppPeriod period, const AppEnergyList &list);
    AppPeriod applicationsPeriod() const;

    MainSection selection() const { return m_selection; }
    void pickSection(MainSection section); // as a click on its sidebar row
    QScrollArea *detailScrollArea() const { return m_scroll; }
    QSplitter *splitter() const { return m_splitter; }
    QAction *sidebarToggle() const { return m_sidebarToggle; }
    QWidget *sectionBlock(MainSection section) const { return m_blocks.at(section); }
    PowerHistoryChart *historyChart() const;

signals:
    void refreshRequested();
    // The user turned the history on or off; the shell confirms turning it off and answers with setHistoryEnabled.
    void historyEnabledToggled(bool enabled);
    // The user changed which alerts to give, or a threshold.
    void alertSettingsChanged(const AlertSettings &settings);
    // The user picked a period in the Applications section; answer with setApplications.
    void applicationsPeriodRequested(AppPeriod period);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildToolbar();
    QWidget *buildDetail();
    void followScroll();
    void setSelection(MainSection section, bool animated);
    void setSidebarShown(bool shown);
    void updateEndSpacer();
    void applyPalette();
    void showHistory();

    FerrowPalette m_palette;
    PowerSnapshot m_snapshot = PowerSnapshot::empty();
    MainSection m_selection = MainSection::overview;
    bool m_reduceMotion = false;
    QLabel *m_toolbarSubtitle = nullptr;
    QAction *m_sidebarToggle = nullptr;
    QSplitter *m_splitter = nullptr;
    int m_sidebarWidth = 208; // the width to bring the sidebar back at
    ReportSidebar *m_sidebar = nullptr;
    QScrollArea *m_scroll = nullptr;
    QPropertyAnimation m_scrollAnimation;
    std::map<MainSection, QWidget *> m_blocks;
    std::vector<SectionHeading *> m_headings;
    QWidget *m_endSpacer = nullptr;
    QLabel *m_overviewTitle = nullptr;
    QLabel *m_overviewSubtitle = nullptr;
    MeterRow *m_meters = nullptr;
    QLabel *m_meterCaption = nullptr;
    QLabel *m_powerNotice = nullptr;
    DistributionPanel *m_distribution = nullptr;
    ChartPanel *m_chart = nullptr;
    BatteryPanel *m_battery = nullptr;
    CellsPanel *m_cells = nullptr;
    HistoryOverview m_historyOverview;
    QDate m_historyToday = QDate::currentDate();
    bool m_historyEnabled = true;
    QLabel *m_historyCaption = nullptr;
    QCheckBox *m_keepHistory = nullptr;
    EnergyChartPanel *m_energy = nullptr;
    SessionsPanel *m_sessions = nullptr;
    BatteryHealthPanel *m_batteryHealth = nullptr;
    ApplicationsPanel *m_applications = nullptr;
    DevicePanel *m_device = nullptr;
    AlertsPanel *m_alerts = nullptr;
    ViewFooter *m_footer = nullptr;
    QLabel *m_version = nullptr;
};

} // namespace ferrow
