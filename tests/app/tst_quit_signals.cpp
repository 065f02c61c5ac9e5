#include "app/app_settings.h"
#include "history/history_database.h"
#include "support/private_home.h"

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
#include <optional>

using namespace ferrow;
using namespace ferrow::testing;

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
        const bool opened = db.open();
        QSqlQuery query(db);
        if (!opened || !query.exec(QStringLiteral("PRAGMA integrity_check")))
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
// back after every run. On a machine with no battery or power sensor (CI) it reads the simulated
// notebook. FERROW_TEST_SEED repeats a run.
class QuitSignalsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_home;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
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

    // Starts the application, sends it the signal after signalMs (and again againMs later), and
    // says how that went: empty when it ended as it should.
    QString endBySignal(int signal, int signalMs, std::optional<int> againMs) const
    {
        QProcess app;
        app.setProcessEnvironment(m_environment);
        app.setStandardOutputFile(QProcess::nullDevice());
        app.start(QStringLiteral(FERROW_APP_PATH), {});
        if (!app.waitForStarted())
            return QStringLiteral("it did not start");
        QTest::qSleep(signalMs);
        ::kill(static_cast<pid_t>(app.processId()), signal);
        if (againMs) {
            QTest::qSleep(*againMs);
            ::kill(static_cast<pid_t>(app.processId()), signal);
        }
        if (!app.waitForFinished(10'000)) {
            app.kill();
            app.waitForFinished();
            return QStringLiteral("it was still running 10 s later");
        }
        // Its quit path ends it with status 0; before the path is in place, the signal's own action.
        const bool quit = app.exitStatus() == QProcess::NormalExit && app.exitCode() == 0;
        const bool killedEarly = app.exitStatus() == QProcess::CrashExit && app.exitCode() == signal;
        if (!quit && !killedEarly)
            return QStringLiteral("it ended with %1 %2: %3")
                .arg(app.exitStatus() == QProcess::CrashExit ? QStringLiteral("signal") : QStringLiteral("status"))
                .arg(app.exitCode())
                .arg(QString::fromLocal8Bit(app.readAllStandardError()));
        return storedStateProblem();
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
        usePrivateHome(m_environment, QDir(m_home.path()));
        QSettings settings(preferencesPath(), QSettings::IniFormat);
        QVERIFY(writePreferences(settings, m_chosen));
    }

    // Once it has read for a while, a signal takes it through its quit path, which commits the minute.
    void signalCommitsTheMinute()
    {
        const QString problem = endBySignal(SIGTERM, 4000, std::nullopt);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        QVERIFY(storedSeconds() > 0);
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
        for (int run = 0; run < kRunsPerRow; ++run) {
            const int signalMs = static_cast<int>(random.bounded(kLatestSignalMs));
            const std::optional<int> againMs = again ? std::optional(static_cast<int>(random.bounded(kLatestSecondSignalMs))) : std::nullopt;
            const QString problem = endBySignal(signal, signalMs, againMs);
            QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("run %1, signal after %2 ms%3 (FERROW_TEST_SEED=%4): %5")
                                                       .arg(run)
                                                       .arg(signalMs)
                                                       .arg(againMs ? QStringLiteral(" and again %1 ms later").arg(*againMs) : QString())
                                                       .arg(m_seed)
                                                       .arg(problem)));
        }
    }
};

QTEST_GUILESS_MAIN(QuitSignalsTest)
#include "tst_quit_signals.moc"
