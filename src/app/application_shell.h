#pragma once

#include "alerts/alert_rules.h"
#include "apps/app_energy.h"
#include "app/alert_delivery.h"
#include "app/app_services.h"
#include "app/machine_source.h"
#include "platform/menu_bar_item.h"
#include "platform/notifier.h"
#include "views/ferrow_palette.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QSettings>

#include <memory>

class QWidget;

namespace ferrow {

class DashboardView;
class HistoryRecorder;
class MainWindowView;
class PowerMonitor;
class ProcessSampler;
class SleepWakeNotifier;

// The running application: the one monitor, the menu-bar (tray) item with its popover, and the
// settings and services the dashboard changes. Where the desktop has no tray, the dashboard is an
// ordinary window that says why.
class ApplicationShell : public QObject {
    Q_OBJECT
public:
    // Without a menu-bar item the dashboard is an ordinary window; without a notifier, alerts go
    // to the menu-bar item's message.
    ApplicationShell(OpenedMachine machine, std::unique_ptr<SleepWakeNotifier> sleepWake, std::unique_ptr<LoginItem> loginItem,
                     std::unique_ptr<MenuBarItem> menuBarItem, std::unique_ptr<Notifier> notifier = nullptr, QObject *parent = nullptr);
    ~ApplicationShell() override;

    void start();
    DashboardView *dashboard() const { return m_dashboard; }
    QWidget *dashboardWindow() const { return m_window.get(); }
    // The one details window, made on first use; opening it again brings the same window forward.
    MainWindowView *openMainWindow();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showSnapshot();
    // Gives the alerts this reading sets off, and shows the one that holds.
    void followAlerts();
    void startHistory(bool keep);
    void setKeepHistory(bool keep);
    void requestHistoryOverview();
    // The current session's applications to the popover, and to the details window when it shows them.
    void showApplications();
    void requestApplications(AppPeriod period);
    void setAlertSettings(const AlertSettings &alerts);
    // A note in the details window while the system keeps notifications from us.
    void showNotificationPermission();
    // Commits the history's minute and the lifetime extremes: before sleep and quit.
    void persist();
    void updateTrayItem();
    void togglePopover();
    void showLoginItemState();
    bool hasVisibleWindow() const;
    void applyAppearance();
    FerrowPalette currentPalette() const;

    QSettings m_settings; // read when a value is needed: whatever else changed it is seen
    QElapsedTimer m_uptime; // monotonic, and still while the machine sleeps: the alerts' clock
    AlertRules m_alertRules;
    QString m_alertLine;
    bool m_readsSimulation;
    bool m_chipPowerNeedsPermission;
    std::unique_ptr<SleepWakeNotifier> m_sleepWake;
    std::unique_ptr<LoginItem> m_loginItem;
    std::unique_ptr<PowerMonitor> m_monitor;
    std::unique_ptr<ProcessSampler> m_processSampler; // none where the processes cannot be read
    std::unique_ptr<HistoryRecorder> m_history;
    std::unique_ptr<QWidget> m_window;
    DashboardView *m_dashboard = nullptr;
    std::unique_ptr<MainWindowView> m_mainWindow;
    std::unique_ptr<MenuBarItem> m_menuBarItem; // none: the dashboard is a window
    std::unique_ptr<Notifier> m_notifier;       // none: alerts go to the menu-bar item's message
    std::unique_ptr<AlertDelivery> m_alertDelivery;
    // Since the popover last closed because it lost focus: a click on the item is what took
    // the focus, and that click must not open it again.
    QElapsedTimer m_sinceClosedByFocusLoss;
    QElapsedTimer m_sinceHistoryOverview;
    QElapsedTimer m_sinceStoredApplications; // since the details window last asked for a period's list
    bool m_hasShownReading = false;
    bool m_hasPopoverMaterial = false; // the platform's translucent material behind the popover
    std::optional<bool> m_systemIncreasesContrast; // read again when the system's appearance changes

};

} // namespace ferrow
