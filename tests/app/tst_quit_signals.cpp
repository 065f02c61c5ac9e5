#include "app/app_settings.h"
#include "history/history_database.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <limits>

using namespace ferrow;

namespace {

constexpr int kRunsPerRow = 25;
constexpr int kLatestSignalMs = 1500; // from the first instant to well into the running state
constexpr int kLatestSecondSignalMs = 100;

// "ok", or what SQLite found wrong (or why it could not look).
QString integrity(const QString &path)
{
    const QString name = QStringLiteral("integrity");
    QString result;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(path);
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        QSqlQuery query(db);
        if (!db.open() || !query.exec(QStringLiteral("PRAGMA integrity_check")))
            result = db.lastError().text() + query.lastError().text();
        while (query.next())
            result += query.value(0).toString();
    }
    QSqlDatabase::removeDatabase(name);
    return result;
}

bool othersMayRead(const QString &path)
{
    return QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther);
}

} // namespace

// The application ended by SIGTERM or SIGINT at a random moment, a hundred times over the same
// homes, from its first instant to the middle of quitting: the preferences and the history read
// back after every run. FERROW_TEST_SEED repeats a run.
class QuitSignalsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_home;
    quint32 m_seed = 0;
    const Preferences m_chosen{.showPowerInMenuBar = false, .reduceMotion = true, .appearance = Appearance::dark, .keepHistory = true};

    QString preferencesPath() const { return m_home.filePath(QStringLiteral("config/Ferrow/Ferrow.conf")); }
    QString databasePath() const { return m_home.filePath(QStringLiteral("data/Ferrow/Ferrow/history.sqlite")); }

    double storedSeconds() const
    {
        double seconds = 0;
        const HistoryDatabase database(databasePath(), HistoryDatabase::Mode::readOnly);
        for (const PeriodEnergy &month : database.energy(0, std::numeric_limits<std::int32_t>::max(), HistoryPeriod::month))
            seconds += month.energy.coveredS;
        return seconds;
    }

    // Empty when everything stored reads back, else what did not.
    QString storedStateProblem() const
    {
        QSettings settings(preferencesPath(), QSettings::IniFormat);
        if (settings.status() != QSettings::NoError)
            return QStringLiteral("the preferences do not parse");
        if (readPreferences(settings) != m_chosen)
            return QStringLiteral("the preferences read back otherwise");
        if (othersMayRead(preferencesPath()))
            return QStringLiteral("others may read the preferences");
        if (!QFile::exists(databasePath()))
            return {}; // ended before it made one
        const HistoryDatabase database(databasePath(), HistoryDatabase::Mode::readOnly);
        if (!database.isOpen())
            return QStringLiteral("the history does not open: ") + database.error();
        if (const QString found = integrity(databasePath()); found != u"ok")
            return QStringLiteral("the history's integrity check says: ") + found;
        if (othersMayRead(databasePath()))
            return QStringLiteral("others may read the history");
        return {};
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_home.isValid());
        m_seed = qEnvironmentVariableIsSet("FERROW_TEST_SEED") ? static_cast<quint32>(qEnvironmentVariableIntValue("FERROW_TEST_SEED"))
                                                               : QRandomGenerator::system()->generate();
        qInfo("FERROW_TEST_SEED=%u repeats this run", m_seed);
        QVERIFY(QDir(m_home.path()).mkpath(QStringLiteral("runtime")));
        QFile::setPermissions(m_home.filePath(QStringLiteral("runtime")), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QSettings settings(preferencesPath(), QSettings::IniFormat);
        QVERIFY(writePreferences(settings, m_chosen));
    }

    void storedStateSurvives_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<bool>("again"); // a second one while it quits
        QTest::newRow("SIGTERM") << SIGTERM << false;
        QTest::newRow("SIGINT") << SIGINT << false;
        QTest::newRow("SIGTERM twice") << SIGTERM << true;
        QTest::newRow("SIGINT twice") << SIGINT << true;
    }

    void storedStateSurvives()
    {
        QFETCH(int, signal);
        QFETCH(bool, again);
        QRandomGenerator random(m_seed + static_cast<quint32>(signal * 2 + again)); // each row repeats on its own
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), m_home.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home.filePath(QStringLiteral("config")));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), m_home.filePath(QStringLiteral("data")));
        environment.insert(QStringLiteral("XDG_CACHE_HOME"), m_home.filePath(QStringLiteral("cache")));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_home.filePath(QStringLiteral("runtime")));
        const double secondsBefore = storedSeconds();

        for (int run = 0; run < kRunsPerRow; ++run) {
            const int signalMs = static_cast<int>(random.bounded(kLatestSignalMs));
            const int againMs = static_cast<int>(random.bounded(kLatestSecondSignalMs));
            QProcess app;
            app.setProcessEnvironment(environment);
            app.setStandardOutputFile(QProcess::nullDevice());
            app.start(QStringLiteral(FERROW_APP_PATH), {});
            QVERIFY(app.waitForStarted());
            QTest::qSleep(signalMs);
            ::kill(static_cast<pid_t>(app.processId()), signal);
            if (again) {
                QTest::qSleep(againMs);
                ::kill(static_cast<pid_t>(app.processId()), signal);
            }
            const QString what = QStringLiteral("run %1, signal after %2 ms%3 (FERROW_TEST_SEED=%4)")
                                     .arg(run)
                                     .arg(signalMs)
                                     .arg(again ? QStringLiteral(" and again %1 ms later").arg(againMs) : QString())
                                     .arg(m_seed);
            QVERIFY2(app.waitForFinished(10'000), qPrintable(what + QStringLiteral(": still running")));
            // Its quit path ends it with status 0; before the path is in place, the signal's own action.
            const bool quit = app.exitStatus() == QProcess::NormalExit && app.exitCode() == 0;
            const bool killedEarly = app.exitStatus() == QProcess::CrashExit && app.exitCode() == signal;
            QVERIFY2(quit || killedEarly, qPrintable(QStringLiteral("%1: ended with %2 %3: %4")
                                                         .arg(what, app.exitStatus() == QProcess::CrashExit ? QStringLiteral("signal") : QStringLiteral("status"))
                                                         .arg(app.exitCode())
                                                         .arg(QString::fromLocal8Bit(app.readAllStandardError()))));
            const QString problem = storedStateProblem();
            QVERIFY2(problem.isEmpty(), qPrintable(what + QStringLiteral(": ") + problem));
        }
        // Runs that took their quit path committed the minute they had read.
        QVERIFY2(storedSeconds() > secondsBefore, qPrintable(QStringLiteral("nothing committed (FERROW_TEST_SEED=%1)").arg(m_seed)));
    }
};

QTEST_GUILESS_MAIN(QuitSignalsTest)
#include "tst_quit_signals.moc"
