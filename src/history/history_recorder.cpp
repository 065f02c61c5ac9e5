#include "history/history_recorder.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <chrono>

namespace ferrow {

// Owns the database on the worker thread: it is opened there, on first use, and only used there.
class HistoryWorker : public QObject {
public:
    explicit HistoryWorker(QString path) : m_path(std::move(path)) {}

    // Returns the error after the write, empty when it went in.
    QString write(const std::vector<MinuteRecord> &minutes, const std::vector<SessionRecord> &sessions,
                  const std::vector<BatteryDayRecord> &days, UnixSeconds now)
    {
        if (HistoryDatabase *db = database())
            db->write(minutes, sessions, days, now);
        return m_database ? m_database->error() : QString();
    }

    QString writeApplications(const std::vector<AppMinuteRecord> &minutes)
    {
        if (HistoryDatabase *db = database())
            db->writeApplications(minutes);
        return m_database ? m_database->error() : QString();
    }

    AppEnergyList applications(UnixSeconds from, UnixSeconds to)
    {
        HistoryDatabase *db = database();
        return db ? db->applications(from, to) : AppEnergyList{};
    }

    HistoryOverview overview(UnixSeconds now)
    {
        HistoryOverview overview;
        HistoryDatabase *db = database();
        overview.error = m_database->error();
        if (!db || !db->isOpen())
            return overview;
        overview.since = db->firstRecord();
        overview.last30Days = db->energy(now - 31 * 86'400, now + 86'400, HistoryPeriod::day);
        overview.last12Months = db->energy(now - 366 * 86'400, now + 86'400, HistoryPeriod::month);
        overview.recentSessions = db->sessions(now - 31 * 86'400, now + 86'400, 12);
        overview.batteryDays = db->batteryDays();
        return overview;
    }

    void close() { m_database.reset(); }

    // Opens the file at once, so that a reason not to keep history is known before the first minute.
    QString open()
    {
        database();
        return m_database->error();
    }

private:
    HistoryDatabase *database()
    {
        if (!m_database)
            m_database = std::make_unique<HistoryDatabase>(m_path, HistoryDatabase::Mode::readWrite);
        return m_database->isOpen() ? m_database.get() : nullptr;
    }

    QString m_path;
    std::unique_ptr<HistoryDatabase> m_database;
};

namespace {

UnixSeconds unixNow()
{
    return std::chrono::duration_cast<std::chrono::seconds>(std::chrono::system_clock::now().time_since_epoch()).count();
}

double steadySeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

HistoryRecorder::HistoryRecorder(const QString &databasePath, MonotonicClock monotonicS, QObject *parent)
    : QObject(parent)
    , m_path(databasePath)
    , m_monotonicS(monotonicS ? std::move(monotonicS) : MonotonicClock(steadySeconds))
{
    if (m_path.isEmpty())
        return;
    m_thread.setObjectName(QStringLiteral("ferrow-history"));
    m_worker = new HistoryWorker(m_path);
    m_worker->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    m_thread.start(QThread::LowPriority);
    QMetaObject::invokeMethod(m_worker, [this, worker = m_worker] { reportError(worker->open()); });
}

void HistoryRecorder::reportError(const QString &error)
{
    QMetaObject::invokeMethod(this, [this, error] {
        if (error == m_error)
            return;
        m_error = error;
        emit errorChanged();
    });
}

HistoryRecorder::~HistoryRecorder()
{
    if (!m_worker)
        return;
    // Quitting the thread's loop would drop writes still queued.
    QMetaObject::invokeMethod(m_worker, [] {}, Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
}

QString HistoryRecorder::defaultDatabasePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/history.sqlite");
}

void HistoryRecorder::record(const PowerSnapshot &reading)
{
    std::optional<MinuteRecord> finished = m_minutes.add(reading, m_monotonicS());
    std::optional<SessionRecord> ended = m_sessions.add(reading, m_minutes.lastStepS(), m_minutes.lastTime());
    m_apps.addReading(reading, m_minutes.lastStepS());
    if (reading.hasBattery) {
        if (const std::optional<QString> id = m_sessions.current() ? m_sessions.current()->batteryId : std::nullopt) {
            // The day is worked out when a minute is written, not every second.
            m_latestBatteryDay = BatteryDayRecord{*id, QString(), reading.batteryHealthPercent, reading.fullChargeCapacityMAH,
                                                  reading.designCapacityMAH, reading.cycleCount};
        }
    }
    if (finished || ended)
        write(finished ? std::vector{std::move(*finished)} : std::vector<MinuteRecord>{}, std::move(ended));
}

void HistoryRecorder::flush()
{
    std::optional<MinuteRecord> minute = m_minutes.flush();
    write(minute ? std::vector{std::move(*minute)} : std::vector<MinuteRecord>{}, std::nullopt);
    writeApplications(m_apps.flush());
}

void HistoryRecorder::recordProcesses(const ProcessFrame &frame)
{
    const UnixSeconds time = m_minutes.lastTime() > 0 ? m_minutes.lastTime() : unixNow();
    const std::optional<SessionRecord> &session = m_sessions.current();
    writeApplications(m_apps.addFrame(frame, time, session ? std::optional(session->start) : std::nullopt));
    emit applicationsChanged();
}

void HistoryRecorder::writeApplications(std::optional<AppMinuteRecord> minute)
{
    if (!m_worker || !minute)
        return;
    QMetaObject::invokeMethod(m_worker, [this, worker = m_worker, minutes = std::vector{std::move(*minute)}] {
        reportError(worker->writeApplications(minutes));
    });
}

void HistoryRecorder::requestApplications(AppPeriod period, UnixSeconds from, UnixSeconds to)
{
    const auto answer = [this, period](const AppEnergyList &stored) {
        emit applicationsReady(period, withSelfSinceStart(stored, m_apps.self()));
    };
    if (period == AppPeriod::session) {
        answer(m_apps.session());
        return;
    }
    if (!m_worker) {
        answer(AppEnergyList{});
        return;
    }
    QMetaObject::invokeMethod(m_worker, [this, worker = m_worker, from, to, answer] {
        AppEnergyList list = worker->applications(from, to);
        QMetaObject::invokeMethod(this, [answer, list = std::move(list)] { answer(list); });
    });
}

void HistoryRecorder::write(std::vector<MinuteRecord> minutes, std::optional<SessionRecord> endedSession)
{
    if (!m_worker)
        return;
    std::vector<SessionRecord> sessions;
    if (endedSession)
        sessions.push_back(std::move(*endedSession));
    // The current session goes in with every minute, so a crash keeps it up to the last one.
    if (m_sessions.current() && m_sessions.current()->coveredS > 0)
        sessions.push_back(*m_sessions.current());
    std::vector<BatteryDayRecord> days;
    if (m_latestBatteryDay) {
        m_latestBatteryDay->day = QDateTime::fromSecsSinceEpoch(m_minutes.lastTime()).date().toString(Qt::ISODate);
        if (!m_batteryDaysWritten.contains(m_latestBatteryDay->batteryId + m_latestBatteryDay->day)) {
            m_batteryDaysWritten.insert(m_latestBatteryDay->batteryId + m_latestBatteryDay->day);
            days.push_back(*m_latestBatteryDay);
        }
    }
    if (minutes.empty() && sessions.empty() && days.empty())
        return;
    const UnixSeconds now = m_minutes.lastTime() > 0 ? m_minutes.lastTime() : unixNow();
    QMetaObject::invokeMethod(m_worker, [this, worker = m_worker, minutes = std::move(minutes), sessions = std::move(sessions),
                                         days = std::move(days), now] {
        reportError(worker->write(minutes, sessions, days, now));
    });
}

void HistoryRecorder::waitForWrites()
{
    if (!m_worker)
        return;
    QMetaObject::invokeMethod(m_worker, [] {}, Qt::BlockingQueuedConnection);
    // Their outcome is queued for this thread, whose event loop may have ended already (at quit).
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

void HistoryRecorder::requestOverview(UnixSeconds now)
{
    if (!m_worker) {
        emit overviewReady(HistoryOverview{});
        return;
    }
    QMetaObject::invokeMethod(m_worker, [this, worker = m_worker, now] {
        HistoryOverview overview = worker->overview(now);
        QMetaObject::invokeMethod(this, [this, overview = std::move(overview)] { emit overviewReady(overview); });
    });
}

void HistoryRecorder::deleteHistory()
{
    if (!m_worker)
        return;
    QMetaObject::invokeMethod(m_worker, [worker = m_worker] { worker->close(); }, Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
    m_worker = nullptr;
    for (const QString &suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")})
        QFile::remove(m_path + suffix);
    m_path.clear();
    m_error.clear();
    emit errorChanged();
}

} // namespace ferrow
