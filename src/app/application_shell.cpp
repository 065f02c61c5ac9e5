#include "app/application_shell.h"

#include "alerts/alert_text.h"
#include "app/app_settings.h"
#include "app/menu_bar_label.h"
#include "app/popover_placement.h"
#include "app/process_sampler.h"
#include "history/history_recorder.h"
#include "model/localized_text.h"
#include "monitor/power_monitor.h"
#include "monitor/sleep_wake_notifier.h"
#include "platform/native_desktop.h"
#include "views/dashboard_view.h"
#include "views/ferrow_style.h"
#include "views/main_window_view.h"
#include "views/view_painting.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QKeyEvent>
#include <QDateTime>
#include <QLabel>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStyleHints>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace ferrow {
namespace {

// Off unless asked for (QT_LOGGING_RULES="ferrow.startup.info=true"): the footprint script times
// the start with it.
Q_LOGGING_CATEGORY(startupLog, "ferrow.startup", QtWarningMsg)

ColorScheme systemColorScheme()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    if (const Qt::ColorScheme scheme = QGuiApplication::styleHints()->colorScheme(); scheme != Qt::ColorScheme::Unknown)
        return scheme == Qt::ColorScheme::Dark ? ColorScheme::dark : ColorScheme::light;
#endif
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128 ? ColorScheme::dark : ColorScheme::light;
}

// The platform's own setting where there is one; the preference otherwise.
bool reducesMotion(const Preferences &preferences)
{
    return systemReducesMotion().value_or(preferences.reduceMotion);
}

} // namespace

ApplicationShell::ApplicationShell(OpenedMachine machine, std::unique_ptr<SleepWakeNotifier> sleepWake,
                                   std::unique_ptr<LoginItem> loginItem, std::unique_ptr<MenuBarItem> menuBarItem,
                                   std::unique_ptr<Notifier> notifier, QObject *parent)
    : QObject(parent)
    , m_readsSimulation(machine.isSimulated)
    , m_chipPowerNeedsPermission(machine.chipPowerNeedsPermission)
    , m_sleepWake(std::move(sleepWake))
    , m_loginItem(std::move(loginItem))
    , m_monitor(std::make_unique<PowerMonitor>(std::move(machine.reader), m_sleepWake.get()))
    , m_menuBarItem(std::move(menuBarItem))
    , m_notifier(std::move(notifier))
    , m_alertDelivery(std::make_unique<AlertDelivery>(m_notifier.get(), m_menuBarItem.get()))
{
    m_uptime.start();

    m_window = std::make_unique<QWidget>(nullptr, m_menuBarItem ? Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint : Qt::Window);
    m_window->setObjectName(QStringLiteral("dashboardWindow"));
    m_window->setWindowTitle(localizedText("FERROW"));
    m_window->setWindowIcon(QIcon(QStringLiteral(":/icons/ferrow-256.png")));
    auto *layout = new QVBoxLayout(m_window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    if (!m_menuBarItem) {
        auto *notice = new QLabel(localizedText("tray.no_tray_notice"));
        notice->setObjectName(QStringLiteral("noTrayNotice"));
        notice->setWordWrap(true);
        notice->setContentsMargins(12, 8, 12, 8);
        notice->setFont(uiFont(10));
        layout->addWidget(notice);
    }
    m_dashboard = new DashboardView;
    layout->addWidget(m_dashboard);
    m_window->installEventFilter(this);
    m_window->setFixedSize(m_window->sizeHint());
    m_hasPopoverMaterial = m_menuBarItem && usePopoverMaterial(*m_window);
    m_dashboard->setPaintsBackground(!m_hasPopoverMaterial);
    if (m_menuBarItem && !m_hasPopoverMaterial) {
        const bool rounded = windowSystemComposites();
        m_window->setAttribute(Qt::WA_TranslucentBackground, rounded);
        m_dashboard->setFrame(rounded ? DashboardView::Frame::rounded : DashboardView::Frame::square);
    }

    m_dashboard->setSubtitle(localizedText(machine.subtitleKey));
    m_dashboard->setVersion(applicationVersionText());
    const Preferences preferences = readPreferences(m_settings);
    m_alertRules.setSettings(preferences.alerts);
    m_dashboard->setShowPowerInMenuBar(preferences.showPowerInMenuBar);
    showLoginItemState();
    m_dashboard->setReduceMotion(reducesMotion(preferences));
    connect(m_dashboard, &DashboardView::detailsRequested, this, &ApplicationShell::openMainWindow);
    connect(m_dashboard, &DashboardView::applicationsRequested, this, [this] {
        MainWindowView *window = openMainWindow();
        // A window made just now lays out once it shows: the section's place is known after that.
        QTimer::singleShot(0, window, [window] { window->pickSection(MainSection::applications); });
    });

    connect(m_dashboard, &DashboardView::showPowerInMenuBarToggled, this, [this](bool shown) {
        Preferences changed = readPreferences(m_settings);
        changed.showPowerInMenuBar = shown;
        writePreferences(m_settings, changed);
        updateTrayItem();
    });
    connect(m_dashboard, &DashboardView::launchAtLoginToggled, this, [this](bool enabled) {
        m_loginItem->setEnabled(enabled);
        showLoginItemState(); // refused, or waiting for the user: the system's state, not the click
    });
    connect(m_dashboard, &DashboardView::launchAtLoginNoteClicked, this, [this] { m_loginItem->openSettingsForState(); });
    startHistory(preferences.keepHistory);
    connect(m_monitor.get(), &PowerMonitor::snapshotChanged, this, [this] { m_history->record(m_monitor->snapshot()); });
    if (machine.processes) {
        m_processSampler = std::make_unique<ProcessSampler>(std::move(machine.processes), *m_monitor);
        connect(m_processSampler.get(), &ProcessSampler::sampled, this, [this](const ProcessFrame &frame) { m_history->recordProcesses(frame); });
    }
    connect(m_monitor.get(), &PowerMonitor::snapshotChanged, this, &ApplicationShell::showSnapshot);
    if (m_notifier)
        connect(m_notifier.get(), &Notifier::permissionChanged, this, &ApplicationShell::showNotificationPermission);
    if (m_sleepWake) {
        connect(m_sleepWake.get(), &SleepWakeNotifier::willSleep, this, &ApplicationShell::persist);
        connect(m_sleepWake.get(), &SleepWakeNotifier::didWake, this, [this] { m_alertRules.noteWake(m_uptime.elapsed() / 1000.0); });
    }
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] {
        persist();
        m_history->waitForWrites();
    });
    connect(m_monitor.get(), &PowerMonitor::powerHistoryChanged, this, [this] {
        if (m_mainWindow)
            m_mainWindow->setHistory(m_monitor->powerHistory());
    });
    applyAppearance();

    if (m_menuBarItem)
        connect(m_menuBarItem.get(), &MenuBarItem::activated, this, &ApplicationShell::togglePopover);
    onApplicationReopen([this] {
        if (!hasVisibleWindow())
            openMainWindow();
    });
}

ApplicationShell::~ApplicationShell() = default;

void ApplicationShell::startHistory(bool keep)
{
    m_history = std::make_unique<HistoryRecorder>(keep ? HistoryRecorder::defaultDatabasePath() : QString());
    connect(m_history.get(), &HistoryRecorder::overviewReady, this, [this](const HistoryOverview &overview) {
        if (m_mainWindow)
            m_mainWindow->setHistoryOverview(overview);
    });
    connect(m_history.get(), &HistoryRecorder::applicationsChanged, this, &ApplicationShell::showApplications);
    connect(m_history.get(), &HistoryRecorder::applicationsReady, this, [this](AppPeriod period, const AppEnergyList &list) {
        if (m_mainWindow)
            m_mainWindow->setApplications(period, list);
    });
    connect(m_history.get(), &HistoryRecorder::errorChanged, this, [this] {
        // A database stops at its first failure, so this is said once; the details window keeps saying it.
        if (const QString error = m_history->error(); !error.isEmpty())
            QTextStream(stderr) << "ferrow: history is not being kept: " << QString(error).replace(u'\n', u' ') << Qt::endl;
        requestHistoryOverview();
    });
}

void ApplicationShell::showApplications()
{
    m_dashboard->setTopApplications(m_history->sessionApplications());
    if (m_mainWindow && m_mainWindow->isVisible() && m_mainWindow->applicationsPeriod() == AppPeriod::session)
        requestApplications(AppPeriod::session);
}

void ApplicationShell::requestApplications(AppPeriod period)
{
    m_sinceStoredApplications.start();
    const UnixSeconds now = QDateTime::currentSecsSinceEpoch();
    const std::optional<SessionRecord> &session = m_history->currentSession();
    m_history->requestApplications(period, appPeriodStart(period, now, session ? session->start : now), now + 1);
}

void ApplicationShell::requestHistoryOverview()
{
    if (!m_mainWindow || !m_history->keepsHistory())
        return;
    m_sinceHistoryOverview.start();
    m_history->requestOverview(QDateTime::currentSecsSinceEpoch());
    // Stored a minute at a time, like the overview; a week or a month of minutes takes a tenth of
    // a second to sum, and one more minute hardly moves it.
    const AppPeriod period = m_mainWindow->applicationsPeriod();
    constexpr qint64 kLongPeriodIntervalMs = 600'000;
    if (period == AppPeriod::today || ((period == AppPeriod::sevenDays || period == AppPeriod::thirtyDays)
                                       && m_sinceStoredApplications.isValid() && m_sinceStoredApplications.elapsed() >= kLongPeriodIntervalMs))
        requestApplications(period);
}

void ApplicationShell::setKeepHistory(bool keep)
{
    if (keep == m_history->keepsHistory())
        return;
    if (!keep) {
        QMessageBox question(QMessageBox::Warning, localizedText("history.turn_off_title"), localizedText("history.turn_off_text"),
                             QMessageBox::Cancel, m_mainWindow.get());
        QPushButton *remove = question.addButton(localizedText("history.turn_off_confirm"), QMessageBox::DestructiveRole);
        question.setDefaultButton(QMessageBox::Cancel);
        question.exec();
        if (question.clickedButton() != remove) {
            m_mainWindow->setHistoryEnabled(true);
            return;
        }
        m_history->deleteHistory();
    }
    Preferences changed = readPreferences(m_settings);
    changed.keepHistory = keep;
    writePreferences(m_settings, changed);
    startHistory(keep);
    if (m_mainWindow) {
        m_mainWindow->setHistoryEnabled(keep);
        m_mainWindow->setHistoryOverview(HistoryOverview{});
    }
    requestHistoryOverview();
}

void ApplicationShell::setAlertSettings(const AlertSettings &alerts)
{
    Preferences changed = readPreferences(m_settings);
    const AlertSettings before = changed.alerts;
    changed.alerts = alerts;
    writePreferences(m_settings, changed);
    m_alertRules.setSettings(alerts);
    const bool switchedOn = std::any_of(kAlertKinds.begin(), kAlertKinds.end(), [&](AlertKind kind) { return alerts.isOn(kind) && !before.isOn(kind); });
    if (switchedOn && m_notifier && m_notifier->permission() == NotificationPermission::notAsked)
        m_notifier->requestPermission();
}

void ApplicationShell::showNotificationPermission()
{
    if (!m_mainWindow)
        return;
    const bool denied = m_notifier && m_notifier->permission() == NotificationPermission::denied;
    m_mainWindow->setNotificationNote(denied ? localizedText("alerts.notifications_denied") : QString());
}

void ApplicationShell::persist()
{
    m_history->flush();
    m_monitor->persist();
}

void ApplicationShell::start()
{
    m_monitor->start();
    if (m_processSampler)
        m_processSampler->start();
    if (m_menuBarItem) {
        updateTrayItem();
    } else {
        m_window->show();
    }
}

FerrowPalette ApplicationShell::currentPalette() const
{
    const Preferences preferences = readPreferences(m_settings);
    const Contrast contrast = m_systemIncreasesContrast.value_or(preferences.increaseContrast) ? Contrast::increased : Contrast::standard;
    switch (preferences.appearance) {
    case Appearance::light:
        return {ColorScheme::light, contrast};
    case Appearance::dark:
        return {ColorScheme::dark, contrast};
    case Appearance::system:
        break;
    }
    return {systemColorScheme(), contrast};
}

MainWindowView *ApplicationShell::openMainWindow()
{
    if (!m_mainWindow) {
        m_mainWindow = std::make_unique<MainWindowView>();
        m_mainWindow->setFerrowPalette(currentPalette());
        m_mainWindow->setVersion(applicationVersionText());
        if (m_chipPowerNeedsPermission)
            m_mainWindow->setPowerNotice(localizedText("power.chip_permission"));
        m_mainWindow->setReduceMotion(reducesMotion(readPreferences(m_settings)));
        m_mainWindow->setSnapshot(m_monitor->snapshot());
        m_mainWindow->setAlertLine(m_alertLine);
        m_mainWindow->setHistory(m_monitor->powerHistory());
        m_mainWindow->installEventFilter(this);
        connect(m_mainWindow.get(), &MainWindowView::refreshRequested, m_monitor.get(), &PowerMonitor::refresh);
        m_mainWindow->setHistoryEnabled(m_history->keepsHistory());
        connect(m_mainWindow.get(), &MainWindowView::historyEnabledToggled, this, &ApplicationShell::setKeepHistory);
        m_mainWindow->setAlertSettings(readPreferences(m_settings).alerts);
        showNotificationPermission();
        connect(m_mainWindow.get(), &MainWindowView::alertSettingsChanged, this, &ApplicationShell::setAlertSettings);
        connect(m_mainWindow.get(), &MainWindowView::applicationsPeriodRequested, this, &ApplicationShell::requestApplications);
        requestApplications(m_mainWindow->applicationsPeriod());
    }
    requestHistoryOverview();
    if (m_menuBarItem)
        m_window->hide();
    m_mainWindow->show();
    m_mainWindow->raise();
    m_mainWindow->activateWindow();
    bringApplicationToFront();
    m_monitor->start();
    return m_mainWindow.get();
}

void ApplicationShell::showLoginItemState()
{
    const LoginItemPresentation shown = loginItemPresentation(m_loginItem->state());
    m_dashboard->setLaunchAtLogin(shown.switchOn);
    m_dashboard->setLaunchAtLoginNote(shown.noteKey ? localizedText(shown.noteKey) : QString());
}

bool ApplicationShell::hasVisibleWindow() const
{
    return m_window->isVisible() || (m_mainWindow && m_mainWindow->isVisible());
}

void ApplicationShell::applyAppearance()
{
    m_systemIncreasesContrast = systemIncreasesContrast();
    const FerrowPalette palette = currentPalette();
    if (auto *style = dynamic_cast<FerrowStyle *>(QApplication::style()))
        style->setContrast(palette.contrast);
    if (m_mainWindow)
        m_mainWindow->setFerrowPalette(palette);
    m_dashboard->setFerrowPalette(palette);
    QPalette windowPalette = m_window->palette();
    windowPalette.setColor(QPalette::Window, palette.panelBackground());
    windowPalette.setColor(QPalette::WindowText, palette.secondaryText());
    m_window->setPalette(windowPalette);
    m_window->setAutoFillBackground(!m_hasPopoverMaterial && !m_window->testAttribute(Qt::WA_TranslucentBackground));
}

void ApplicationShell::followAlerts()
{
    for (const Alert &alert : m_alertRules.add(m_monitor->snapshot(), m_uptime.elapsed() / 1000.0))
        m_alertDelivery->deliver(alert);
    m_alertLine = activeAlertText(m_alertRules.activeKinds());
    m_dashboard->setAlertLine(m_alertLine);
    if (m_mainWindow)
        m_mainWindow->setAlertLine(m_alertLine);
}

void ApplicationShell::showSnapshot()
{
    if (m_monitor->hasReading())
        followAlerts();
    m_dashboard->setSnapshot(m_monitor->snapshot());
    m_dashboard->setCurrentSession(m_history->currentSession(), QDateTime::currentSecsSinceEpoch());
    if (m_processSampler)
        m_processSampler->setWatched(hasVisibleWindow());
    if (m_mainWindow) {
        m_mainWindow->setSnapshot(m_monitor->snapshot());
        // The stored history moves once a minute; so does what the open window shows of it.
        constexpr qint64 kOverviewIntervalMs = 60'000;
        if (m_mainWindow->isVisible() && (!m_sinceHistoryOverview.isValid() || m_sinceHistoryOverview.elapsed() >= kOverviewIntervalMs))
            requestHistoryOverview();
    }
    updateTrayItem();
}

void ApplicationShell::updateTrayItem()
{
    if (!m_menuBarItem)
        return;
    const PowerSnapshot &snapshot = m_monitor->snapshot();
    const QString figure = menuBarFigureText(snapshot) + QStringLiteral(" \u00B7 ") + snapshot.statusText();
    const MenuBarReading reading =
        menuBarReading(snapshot, readPreferences(m_settings).showPowerInMenuBar, localizedFormatText(m_readsSimulation ? "tray.tooltip_simulated" : "tray.tooltip", {figure}));
    m_menuBarItem->showReading(reading);
    if (!m_hasShownReading && m_monitor->hasReading()) {
        m_hasShownReading = true;
        qCInfo(startupLog, "first figure in the menu bar: %s", qUtf8Printable(reading.figureText));
    }
}

void ApplicationShell::togglePopover()
{
    constexpr qint64 kClickAfterFocusLossMs = 300;
    if (m_window->isVisible()) {
        m_window->hide();
        return;
    }
    if (m_sinceClosedByFocusLoss.isValid() && m_sinceClosedByFocusLoss.elapsed() < kClickAfterFocusLossMs) {
        m_sinceClosedByFocusLoss.invalidate();
        return;
    }
    showLoginItemState(); // approved or moved meanwhile
    // An inactive application's window opens without focus and never learns that it lost it.
    bringApplicationToFront();
    const QRect item = m_menuBarItem ? m_menuBarItem->geometry() : QRect();
    const QPoint cursor = QCursor::pos();
    QScreen *screen = QGuiApplication::screenAt(item.isValid() ? item.center() : cursor);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    m_window->move(popoverPosition(item, m_window->size(), screen->availableGeometry(), cursor));
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
    m_dashboard->focusFirstControl();
    m_monitor->start();
}

bool ApplicationShell::eventFilter(QObject *watched, QEvent *event)
{
    if (m_mainWindow && watched == m_mainWindow.get()
        && (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::ThemeChange))
        applyAppearance();
    if (watched == m_window.get()) {
        if (event->type() == QEvent::KeyPress && m_menuBarItem && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
            m_window->hide();
            // The keyboard goes back to the window it came from, where that is ours.
            if (m_mainWindow && m_mainWindow->isVisible())
                m_mainWindow->activateWindow();
            return true;
        }
        if (event->type() == QEvent::WindowDeactivate && m_menuBarItem && m_window->isVisible()) {
            m_window->hide(); // a popover closes when it loses focus
            m_sinceClosedByFocusLoss.start();
        } else if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::ThemeChange) {
            applyAppearance();
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ferrow
