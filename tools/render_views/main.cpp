// Renders the application's views offscreen into PNG files, for the README and for looking at
// every state without a Mac: the popover for a notebook on its adapter, on battery, and a desktop,
// in both appearances, at 1x and 2x; and the main window for a notebook and a desktop after
// half an hour of simulated readings, at its top and scrolled to each section; the notebook's with a
// month of simulated history behind its History section. The applications are a fixed session's.
//
// Usage: render_views [FOLDER [MAIN_WINDOW_WIDTH]]

#include "alerts/alert_text.h"
#include "apps/app_energy.h"
#include "app/app_services.h"
#include "app/menu_bar_label.h"
#include "app/text_table.h"
#include "history/history_database.h"
#include "history/history_recorder.h"
#include "history/minute_folder.h"
#include "history/session_tracker.h"
#include "platform/recorded/recorded_machine.h"
#include "model/power_history.h"
#include "platform/native_machine.h"
#include "platform/simulated/simulated_machine.h"
#include "sources/power_sensor_reader.h"
#include "model/localized_text.h"
#include "views/dashboard_view.h"
#include "views/main_window_view.h"
#include "views/ferrow_style.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTextStream>
#include <QToolButton>
#include <QTimer>

#include <algorithm>
#include <vector>

using namespace ferrow;

namespace {

bool render(QWidget &widget, double scale, const QString &path)
{
    QImage image(widget.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    widget.render(&painter);
    painter.end();
    return image.save(path);
}

// A session of 72 minutes on battery as the attribution gives it: the chip's measured energy shared
// by CPU time, its 8.4 Wh all accounted for.
AppEnergyList sessionApplications()
{
    constexpr double kCoveredS = 72 * 60;
    const auto app = [&](AppEnergy::Kind kind, const char *group, const char *name, double energyJ, double cpuTimeS) {
        return AppEnergy{kind, QLatin1String(group), QLatin1String(name), QLatin1String(group), energyJ, cpuTimeS, kCoveredS, AttributionMethod::chipShare};
    };
    using Kind = AppEnergy::Kind;
    return {{app(Kind::application, "web-browser", "Browser", 10440, 1900), app(Kind::others, "", "", 8370, 0),
             app(Kind::application, "text-editor", "Code editor", 5760, 1050), app(Kind::application, "mail", "Mail", 2232, 400),
             app(Kind::rest, "", "", 1440, 260), app(Kind::application, "music", "Music", 1476, 270),
             app(Kind::application, "terminal", "Terminal", 396, 72), app(Kind::self, "ferrow", "Ferrow", 126, 23)},
            kCoveredS,
            AttributionMethod::chipShare};
}

struct SimulatedRun {
    PowerSnapshot snapshot;
    PowerHistory history;
};

// Half an hour of readings in accelerated time, with a two-minute sleep ten minutes from the end.
SimulatedRun simulate(SimulatedPowerModel::Kind kind)
{
    auto *machine = new SimulatedMachine({kind, 7, false, 27});
    PowerSensorReader reader{std::unique_ptr<MachinePlatform>(machine)};
    SimulatedRun run;
    for (int second = 0; second < 30 * 60; ++second) {
        machine->simulationClock().advance(std::chrono::seconds(1));
        if (second >= 18 * 60 && second < 20 * 60)
            continue;
        run.snapshot = reader.read();
        run.history.append(run.snapshot);
    }
    return run;
}

struct SimulatedHistory {
    HistoryOverview overview;
    QDate today;
};

// A month of a notebook's days, one reading every five seconds while it is awake: mornings and
// evenings on the adapter, a stretch or two on battery, nights asleep and a weekend away. Folded and
// stored as the recorder does, then read back as its worker does for the History section.
SimulatedHistory simulateHistory(QTextStream &err)
{
    constexpr int kDays = 30;
    constexpr auto kStep = std::chrono::seconds(5);
    QTemporaryDir folder;
    HistoryDatabase database(folder.filePath(QStringLiteral("history.sqlite")), HistoryDatabase::Mode::readWrite);
    auto *machine = new SimulatedMachine({SimulatedPowerModel::Kind::notebook, 11, false, 27});
    SimulationClock &clock = machine->simulationClock();
    PowerSensorReader reader{std::unique_ptr<MachinePlatform>(machine)};
    MinuteFolder minutes;
    SessionTracker sessions;
    std::vector<MinuteRecord> pendingMinutes;
    std::vector<SessionRecord> endedSessions;
    std::vector<BatteryDayRecord> pendingDays;
    QString lastDay;
    const auto write = [&] {
        std::vector<SessionRecord> written = std::move(endedSessions);
        if (sessions.current() && sessions.current()->coveredS > 0)
            written.push_back(*sessions.current());
        database.write(pendingMinutes, written, pendingDays, minutes.lastTime());
        pendingMinutes.clear();
        endedSessions.clear();
        pendingDays.clear();
    };
    const auto start = QDateTime::fromSecsSinceEpoch(std::chrono::duration_cast<std::chrono::seconds>(clock.now().time_since_epoch()).count());
    for (int second = 0; second < kDays * 86'400; second += static_cast<int>(kStep.count())) {
        clock.advance(kStep);
        const QDateTime now = start.addSecs(second);
        const int day = static_cast<int>(start.date().daysTo(now.date()));
        const double hour = now.time().msecsSinceStartOfDay() / 3'600'000.0;
        const bool weekend = now.date().dayOfWeek() >= 6;
        if (hour < 8 || hour >= 23.5 || day == 11 || day == 12)
            continue; // asleep, or away
        const double shift = (day % 3) * 0.75;
        const bool onBattery = weekend ? (hour >= 13 && hour < 16.5)
                                       : ((hour >= 9.5 + shift && hour < 12 + shift) || (hour >= 15 && hour < 17.5 + shift / 2));
        machine->model().setExternalPowerOverride(!onBattery);
        const PowerSnapshot reading = reader.read();
        std::optional<MinuteRecord> finished = minutes.add(reading, clock.uptimeSeconds());
        if (std::optional<SessionRecord> ended = sessions.add(reading, minutes.lastStepS(), minutes.lastTime()))
            endedSessions.push_back(std::move(*ended));
        const QString today = QDateTime::fromSecsSinceEpoch(minutes.lastTime()).date().toString(Qt::ISODate);
        if (today != lastDay && sessions.current() && sessions.current()->batteryId) {
            lastDay = today;
            pendingDays.push_back({*sessions.current()->batteryId, today, reading.batteryHealthPercent, reading.fullChargeCapacityMAH,
                                   reading.designCapacityMAH, reading.cycleCount});
        }
        if (finished) {
            pendingMinutes.push_back(std::move(*finished));
            if (pendingMinutes.size() >= 60)
                write();
        }
    }
    if (std::optional<MinuteRecord> last = minutes.flush())
        pendingMinutes.push_back(std::move(*last));
    write();

    SimulatedHistory history;
    const UnixSeconds now = minutes.lastTime();
    history.today = QDateTime::fromSecsSinceEpoch(now).date();
    HistoryOverview &overview = history.overview;
    overview.error = database.error();
    if (!database.isOpen()) {
        err << "render_views: the simulated history: " << database.error() << Qt::endl;
        return history;
    }
    overview.since = database.firstRecord();
    overview.last30Days = database.energy(now - 31 * 86'400, now + 86'400, HistoryPeriod::day);
    overview.last12Months = database.energy(now - 366 * 86'400, now + 86'400, HistoryPeriod::month);
    overview.recentSessions = database.sessions(now - 31 * 86'400, now + 86'400, 12);
    overview.batteryDays = database.batteryDays();
    return history;
}

void waitFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

// The window at each section, written as main-NAME-SCHEME-SECTION.png; the number written, or -1.
int renderMainWindow(const QString &output, const QString &name, const SimulatedRun &run, ColorScheme scheme, int width, QTextStream &err,
                     const SimulatedHistory *history = nullptr)
{
    MainWindowView window;
    if (history)
        window.setHistoryOverview(history->overview, history->today);
    // Shown (offscreen) rather than hidden, so that it can be the active window and show the focus.
    window.setFerrowPalette(FerrowPalette{scheme});
    window.setSnapshot(run.snapshot);
    window.setHistory(run.history);
    window.setVersion(appVersionString(QCoreApplication::applicationVersion(), std::nullopt));
    window.setApplications(AppPeriod::session, sessionApplications());
    if (width > 0)
        window.resize(width, window.height());
    window.show();
    waitFor(50);
    int written = 0;
    for (const MainSection section : kMainSections) {
        if (section == MainSection::history) { // the last section whole, its alerts panel included
            window.resize(window.width(), std::max(window.height(), window.sectionBlock(section)->sizeHint().height() + 170));
            waitFor(50);
        }
        window.pickSection(section);
        waitFor(420); // the scroll animation
        const QString path = QStringLiteral("%1/main-%2-%3-%4.png")
                                 .arg(output, name, scheme == ColorScheme::dark ? QStringLiteral("dark") : QStringLiteral("light"),
                                      QString::fromLatin1(sectionTitleKey(section)).section(u'.', 1));
        if (!render(window, 1.0, path)) {
            err << "render_views: cannot write " << path << Qt::endl;
            return -1;
        }
        ++written;
    }
    {
        // The power chart alone, its last time mark at the right edge, the range picker focused.
        QWidget *chart = window.findChild<QWidget *>(QStringLiteral("historyPanel"));
        window.activateWindow();
        waitFor(20);
        if (auto *picker = chart->findChild<QWidget *>(QStringLiteral("windowPicker")))
            picker->findChildren<QToolButton *>().constFirst()->setFocus(Qt::TabFocusReason);
        const QString path = QStringLiteral("%1/main-%2-%3-power-chart.png").arg(output, name, scheme == ColorScheme::dark ? QStringLiteral("dark") : QStringLiteral("light"));
        if (!render(*chart, 1.0, path)) {
            err << "render_views: cannot write " << path << Qt::endl;
            return -1;
        }
        ++written;
    }
    if (history) {
        // The whole History section at once, for the README, over thirty days to show the gaps.
        for (QToolButton *choice : window.findChild<QWidget *>(QStringLiteral("energyPanel"))->findChildren<QToolButton *>())
            if (choice->text() == localizedText("energy_history.month"))
                choice->click();
        window.resize(window.width(), window.sectionBlock(MainSection::energy)->sizeHint().height() + 170);
        waitFor(50);
        window.pickSection(MainSection::energy);
        waitFor(420);
        const QString path = QStringLiteral("%1/main-%2-%3-energy.png").arg(output, name, scheme == ColorScheme::dark ? QStringLiteral("dark") : QStringLiteral("light"));
        if (!render(window, 1.0, path)) {
            err << "render_views: cannot write " << path << Qt::endl;
            return -1;
        }
        ++written;
    }
    return written;
}

int renderMainWindows(const QString &output, int width, QTextStream &err)
{
    int written = 0;
    const SimulatedHistory history = simulateHistory(err);
    for (const auto &[name, kind] : {std::pair{"notebook", SimulatedPowerModel::Kind::notebook}, std::pair{"desktop", SimulatedPowerModel::Kind::desktop}}) {
        const SimulatedRun run = simulate(kind);
        for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
            const int images = renderMainWindow(output, QLatin1String(name), run, scheme, width, err,
                                                kind == SimulatedPowerModel::Kind::notebook ? &history : nullptr);
            if (images < 0)
                return -1;
            written += images;
        }
    }
    return written;
}

// A copied machine of this system's kind (a Linux notebook with two packs), where this system can read one.
int renderCopiedMachine(const QString &output, const QString &name, const QString &root, int width, QTextStream &err)
{
    QString error;
    const std::optional<NativeMachine> machine = openCopiedMachine(root, &error);
    if (!machine)
        return 0;
    SimulatedRun run;
    for (int reading = 0; reading < 2; ++reading) {
        run.snapshot = machine->reader->read();
        run.history.append(run.snapshot);
    }
    return renderMainWindow(output, name, run, ColorScheme::light, width, err);
}

// The tray icon as a panel shows it: each state at the usual panel sizes on a light and a dark panel.
bool renderTrayIcons(const QString &output, const std::vector<PowerSnapshot> &snapshots)
{
    const int sizes[] = {22, 24, 32};
    const int cell = 40;
    QImage strip(cell * 3 * int(snapshots.size() + 1), cell * 2, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&strip);
    painter.fillRect(QRect(0, 0, strip.width(), cell), QColor(236, 236, 238));
    painter.fillRect(QRect(0, cell, strip.width(), cell), QColor(36, 36, 40));
    for (int row = 0; row < 2; ++row) {
        int x = 0;
        for (std::size_t i = 0; i <= snapshots.size(); ++i) {
            const bool figure = i < snapshots.size();
            const QIcon icon = renderTrayIcon(figure ? snapshots[i] : snapshots.front(), figure);
            for (const int side : sizes) {
                painter.drawPixmap(x + (cell - side) / 2, row * cell + (cell - side) / 2, icon.pixmap(side, side));
                x += cell;
            }
        }
    }
    painter.end();
    return strip.save(output + QStringLiteral("/tray.png"));
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setStyle(new FerrowStyle);
    QCoreApplication::setApplicationVersion(QStringLiteral(FERROW_VERSION));
    installTextTable(application);
    registerBrandFonts();

    QTextStream err(stderr);
    const QString fixtures = QStringLiteral(FERROW_SOURCE_DIR "/tests/fixtures/");
    const QString output = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(FERROW_SOURCE_DIR "/docs/images");
    const int mainWindowWidth = argc > 2 ? QString::fromLocal8Bit(argv[2]).toInt() : 0; // 0: the window's own width
    QDir().mkpath(output);

    // Each notebook state with a session such as it would be in.
    const struct {
        const char *name;
        const char *recording;
        bool externalPower;
        UnixSeconds lengthS;
        double energyWh;
    } states[] = {{"adapter", "notebook-charging-26", true, 35 * 60, 12.0},
                  {"battery", "notebook-battery-27", false, 72 * 60, 8.4},
                  {"desktop", "desktop-26", true, 0, 0}};
    int written = 0;
    std::vector<PowerSnapshot> snapshots;
    for (const auto &state : states) {
        QString error;
        const std::optional<PowerSnapshot> snapshot = readRecordedSnapshot(fixtures + QLatin1String(state.recording), &error);
        if (!snapshot) {
            err << "render_views: " << error << Qt::endl;
            return 1;
        }
        snapshots.push_back(*snapshot);
        for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
            DashboardView dashboard;
            dashboard.setFerrowPalette(FerrowPalette{scheme});
            dashboard.setSnapshot(*snapshot);
            const UnixSeconds readAt = std::chrono::duration_cast<std::chrono::seconds>(snapshot->updatedAt.time_since_epoch()).count();
            SessionRecord session;
            session.start = readAt - state.lengthS;
            session.end = readAt;
            session.externalPower = state.externalPower;
            session.energyWh = state.energyWh;
            session.coveredS = static_cast<double>(state.lengthS);
            dashboard.setCurrentSession(session, readAt); // a desktop has none to show
            if (state.lengthS > 0) // the desktop's line says it has none yet
                dashboard.setTopApplications(sessionApplications());
            dashboard.setVersion(appVersionString(QCoreApplication::applicationVersion(), std::nullopt));
            dashboard.setShowPowerInMenuBar(true);
            dashboard.setReduceMotion(true); // a still frame: the dots at their resting phases
            dashboard.setAttribute(Qt::WA_DontShowOnScreen);
            dashboard.show();
            for (const double scale : {1.0, 2.0}) {
                const QString path = QStringLiteral("%1/popover-%2-%3%4.png")
                                         .arg(output, QLatin1String(state.name), scheme == ColorScheme::dark ? QStringLiteral("dark") : QStringLiteral("light"),
                                              scale > 1 ? QStringLiteral("@2x") : QString());
                if (!render(dashboard, scale, path)) {
                    err << "render_views: cannot write " << path << Qt::endl;
                    return 1;
                }
                ++written;
            }
        }
    }
    {
        // The launch-at-login line, as a Mac shows it while the system waits for the user's approval.
        DashboardView dashboard;
        dashboard.setFerrowPalette(FerrowPalette{ColorScheme::light});
        dashboard.setSnapshot(snapshots.front());
        dashboard.setVersion(appVersionString(QCoreApplication::applicationVersion(), std::nullopt));
        dashboard.setShowPowerInMenuBar(true);
        dashboard.setLaunchAtLogin(true);
        dashboard.setLaunchAtLoginNote(localizedText("setting.login_awaiting_approval"));
        dashboard.setReduceMotion(true);
        dashboard.setAttribute(Qt::WA_DontShowOnScreen);
        dashboard.show();
        const QString path = output + QStringLiteral("/popover-login-approval-light.png");
        if (!render(dashboard, 1.0, path)) {
            err << "render_views: cannot write " << path << Qt::endl;
            return 1;
        }
        ++written;
    }
    // The keyboard's focus as Tab leaves it, in both appearances, and with the system's increased
    // contrast: the popover on its first control.
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        for (const Contrast contrast : {Contrast::standard, Contrast::increased}) {
            DashboardView dashboard;
            dashboard.setFerrowPalette(FerrowPalette{scheme, contrast});
            dashboard.setSnapshot(snapshots[1]);
            dashboard.setTopApplications(sessionApplications());
            dashboard.setFrame(DashboardView::Frame::square); // as under a window system that does not composite
            dashboard.setVersion(appVersionString(QCoreApplication::applicationVersion(), std::nullopt));
            dashboard.setShowPowerInMenuBar(true);
            dashboard.setReduceMotion(true);
            dashboard.show();
            dashboard.activateWindow();
            waitFor(20);
            dashboard.focusFirstControl();
            const QString path = QStringLiteral("%1/popover-keyboard-%2%3.png")
                                     .arg(output, scheme == ColorScheme::dark ? QStringLiteral("dark") : QStringLiteral("light"),
                                          contrast == Contrast::increased ? QStringLiteral("-increased-contrast") : QString());
            if (!render(dashboard, 1.0, path)) {
                err << "render_views: cannot write " << path << Qt::endl;
                return 1;
            }
            ++written;
        }
    }
    // The session's applications, the keyboard on the first of them.
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        DashboardView dashboard;
        dashboard.setFerrowPalette(FerrowPalette{scheme});
        dashboard.setSnapshot(snapshots[1]);
        dashboard.setTopApplications(sessionApplications());
        dashboard.setFrame(DashboardView::Frame::square);
        dashboard.setVersion(appVersionString(QCoreApplication::applicationVersion(), std::nullopt));
        dashboard.setShowPowerInMenuBar(true);
        dashboard.setReduceMotion(true);
        dashboard.show();
        dashboard.activateWindow();
        waitFor(20);
        dashboard.focusFirstControl();
        const QString path = QStringLiteral("%1/popover-apps-%2.png").arg(output, scheme == ColorScheme::dark ? QStringLiteral("dark") : QStringLiteral("light"));
        if (!render(dashboard, 1.0, path)) {
            err << "render_views: cannot write " << path << Qt::endl;
            return 1;
        }
        ++written;
    }
    {
        // An alert that holds: the charger cannot keep up with the notebook on battery's draw.
        DashboardView dashboard;
        dashboard.setFerrowPalette(FerrowPalette{ColorScheme::light});
        dashboard.setSnapshot(snapshots[1]);
        dashboard.setAlertLine(activeAlertText({AlertKind::chargerCannotKeepUp}));
        dashboard.setVersion(appVersionString(QCoreApplication::applicationVersion(), std::nullopt));
        dashboard.setReduceMotion(true);
        dashboard.setAttribute(Qt::WA_DontShowOnScreen);
        dashboard.show();
        const QString path = output + QStringLiteral("/popover-alert-light.png");
        if (!render(dashboard, 1.0, path)) {
            err << "render_views: cannot write " << path << Qt::endl;
            return 1;
        }
        ++written;
    }
    if (!renderTrayIcons(output, snapshots)) {
        err << "render_views: cannot write the tray icons to " << output << Qt::endl;
        return 1;
    }
    ++written;
    const int windows = renderMainWindows(output, mainWindowWidth, err);
    if (windows < 0)
        return 1;
    written += windows;
    const int copied = renderCopiedMachine(output, QStringLiteral("two-packs"), fixtures + QStringLiteral("sysfs-thinkpad-two-batteries"), mainWindowWidth, err);
    if (copied < 0)
        return 1;
    written += copied;
    QTextStream(stdout) << "render_views: wrote " << written << " images to " << output << Qt::endl;
    return 0;
}
