#pragma once

#include "history/app_energy_tracker.h"
#include "history/history_database.h"
#include "history/minute_folder.h"
#include "history/session_tracker.h"

#include <QObject>
#include <QSet>
#include <QThread>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace ferrow {

// What the details window's History section shows, read on the worker in one go.
struct HistoryOverview {
    QString error;                     // why there is no history, or empty
    std::optional<UnixSeconds> since;  // the first stored second
    std::vector<PeriodEnergy> last30Days;
    std::vector<PeriodEnergy> last12Months;
    std::vector<SessionRecord> recentSessions;
    std::vector<BatteryDayRecord> batteryDays;
};

class HistoryWorker;

// Keeps the energy memory: folds each published reading into minutes and the current session on
// the main thread (in memory, no disk), and hands each finished minute to a worker thread that
// owns the database and commits it. Without a database path it still follows the current session.
class HistoryRecorder : public QObject {
    Q_OBJECT
public:
    using MonotonicClock = std::function<double()>;

    explicit HistoryRecorder(const QString &databasePath, MonotonicClock monotonicS = {}, QObject *parent = nullptr);
    ~HistoryRecorder() override;

    // The reading the monitor just published.
    void record(const PowerSnapshot &reading);
    // Commits the minute so far (before sleep and quit).
    void flush();
    // Waits until every write handed to the worker is committed, and takes what they reported:
    // error() is up to date (and errorChanged emitted) on return.
    void waitForWrites();

    // A sample of the machine's processes: shares out the energy read since the one before.
    void recordProcesses(const ProcessFrame &frame);

    const std::optional<SessionRecord> &currentSession() const { return m_sessions.current(); }
    // The current session's applications, and this program since it started.
    AppEnergyList sessionApplications() const { return m_apps.session(); }
    const AppEnergy &selfSinceStart() const { return m_apps.self(); }
    bool keepsHistory() const { return !m_path.isEmpty(); }
    // Why the history cannot be kept, empty while it can (as last reported by the worker).
    const QString &error() const { return m_error; }

    // Stops keeping history and removes the database and its journal files.
    void deleteHistory();
    // Asks the worker for the overview; overviewReady answers on the main thread.
    void requestOverview(UnixSeconds now);
    // Asks the worker for the stored applications of [from, to); applicationsReady answers on the
    // main thread, with this program's line since it started (and only that without a database).
    void requestApplications(AppPeriod period, UnixSeconds from, UnixSeconds to);

    static QString defaultDatabasePath();

signals:
    void overviewReady(const ferrow::HistoryOverview &overview);
    void errorChanged();
    void applicationsChanged();
    void applicationsReady(ferrow::AppPeriod period, const ferrow::AppEnergyList &list);

private:
    void write(std::vector<MinuteRecord> minutes, std::optional<SessionRecord> endedSession);
    void writeApplications(std::optional<AppMinuteRecord> minute);
    // From the worker: takes the error to the main thread.
    void reportError(const QString &error);

    QString m_path;
    MonotonicClock m_monotonicS;
    MinuteFolder m_minutes;
    SessionTracker m_sessions;
    AppEnergyTracker m_apps;
    QSet<QString> m_batteryDaysWritten;
    std::optional<BatteryDayRecord> m_latestBatteryDay;
    QString m_error;
    QThread m_thread;
    HistoryWorker *m_worker = nullptr; // lives on m_thread
};

} // namespace ferrow
