#include "app/app_settings.h"
#include "history/history_database.h"
#include "support/private_home.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>

using namespace ferrow;
using namespace ferrow::testing;

namespace {

constexpr UnixSeconds kStoredMinute = 1'767'225'600; // 2026-01-01T00:00:00Z
constexpr int kAliveSeconds = 3;

// Inside a private mount namespace: a notebook's battery in place of this machine's (its lifetime
// extremes are what the programs write to the preferences), then one home on a small tmpfs that is
// filled up or made read-only, holding what was stored there. Afterwards the home's files are
// copied out, as the tmpfs goes with the namespace.
const char *const kScript = R"(set -e
mount --bind "$FIXTURE" /sys/class
home="$WORK/$FAULTED"
cp -a "$home" "$WORK/before"
mount -t tmpfs -o size=1m,mode=0700 tmpfs "$home"
cp -a "$WORK/before/." "$home/"
if [ "$CONDITION" = full ]; then cat /dev/zero > "$home/filler" 2>/dev/null || true; else mount -o remount,ro "$home"; fi
"$@" > "$WORK/stdout" 2> "$WORK/stderr" &
program=$!
sleep "$ALIVE_S"
if kill -TERM $program 2>/dev/null; then echo running; fi
status=0
wait $program || status=$?
echo "exit $status"
rm -f "$home/filler" 2>/dev/null || true
cp -a "$home" "$WORK/after"
)";

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

// ferrow and ferrow-cli on a full disk and on a read-only one: each keeps running, says so in
// exactly one line, and leaves what was stored as it was.
class DiskFaultsTest : public QObject {
    Q_OBJECT

    const Preferences m_chosen{.showPowerInMenuBar = false, .reduceMotion = true, .appearance = Appearance::dark, .keepHistory = true};
    quint16 m_freePort = 0;

private slots:
    void initTestCase()
    {
        QTemporaryDir scratch;
        QProcess probe;
        probe.start(QStringLiteral("unshare"), {QStringLiteral("-rm"), QStringLiteral("sh"), QStringLiteral("-c"),
                                                QStringLiteral("mount -t tmpfs tmpfs \"$0\" && mount --bind \"$1\" /sys/class"), scratch.path(),
                                                QStringLiteral(FERROW_SOURCE_DIR "/tests/fixtures/sysfs-intel-notebook/sys/class")});
        if (!probe.waitForFinished(10'000) || probe.exitStatus() != QProcess::NormalExit || probe.exitCode() != 0)
            QSKIP(qPrintable(QStringLiteral("needs `unshare -rm` to mount a tmpfs in a user namespace, which this system refuses: %1")
                                 .arg(probe.error() == QProcess::FailedToStart ? QStringLiteral("unshare is not installed")
                                                                               : QString::fromLocal8Bit(probe.readAllStandardError()).trimmed())));
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        m_freePort = server.serverPort();
    }

    void storedFilesSurvive_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("faulted"); // the home on the faulty disk: config or data
        QTest::addColumn<QString>("condition");
        QTest::addColumn<bool>("stored");     // the faulted home held the file before
        QTest::addColumn<bool>("lasting");    // runs until it is told to stop
        QTest::addColumn<QString>("message"); // the one line it says, or none

        const QString history = QStringLiteral("^ferrow: history is not being kept: cannot .*history\\.sqlite.*\\(the disk is %1\\)$");
        const QString preferences = QStringLiteral("^%1: cannot save preferences to .*/Ferrow\\.conf: the disk is %2$");
        const QString app = QStringLiteral("ferrow");
        const QString config = QStringLiteral("config");
        const QString data = QStringLiteral("data");
        const QString full = QStringLiteral("full");
        const QString readOnly = QStringLiteral("read-only");
        QTest::newRow("app, history, full") << app << data << full << true << true << history.arg(full);
        QTest::newRow("app, history, read-only") << app << data << readOnly << true << true << history.arg(readOnly);
        QTest::newRow("app, preferences, full") << app << config << full << true << true << preferences.arg(app, full);
        QTest::newRow("app, preferences, read-only") << app << config << readOnly << true << true << preferences.arg(app, readOnly);
        const QString cli = QStringLiteral("ferrow-cli");
        QTest::newRow("cli --watch, full") << QStringLiteral("ferrow-cli --watch") << config << full << true << true << preferences.arg(cli, full);
        QTest::newRow("cli --serve, read-only") << QStringLiteral("ferrow-cli --serve PORT") << config << readOnly << true << true << preferences.arg(cli, readOnly);
        QTest::newRow("cli --once, full, nothing stored yet") << QStringLiteral("ferrow-cli --once") << config << full << false << false
                                                              << preferences.arg(cli, full);
        // Reading a history file makes SQLite's index files beside it, for which there is no room here.
        const QString historyCsv = QStringLiteral("ferrow-cli --history --per minute --from 2025-12-31 --to 2026-01-02");
        QTest::newRow("cli --history, full") << historyCsv << data << full << true << false << QString();
        QTest::newRow("cli --history, read-only") << historyCsv << data << readOnly << true << false << QString();
    }

    void storedFilesSurvive()
    {
        QFETCH(QString, command);
        QFETCH(QString, faulted);
        QFETCH(QString, condition);
        QFETCH(bool, stored);
        QFETCH(bool, lasting);
        QFETCH(QString, message);

        QTemporaryDir work;
        const QString preferencesFile = QStringLiteral("config/Ferrow/Ferrow.conf");
        const QString databaseFile = QStringLiteral("data/Ferrow/Ferrow/history.sqlite");
        if (stored) {
            QSettings settings(work.filePath(preferencesFile), QSettings::IniFormat);
            QVERIFY(writePreferences(settings, m_chosen));
        }
        {
            HistoryDatabase database(work.filePath(databaseFile), HistoryDatabase::Mode::readWrite);
            MinuteRecord minute;
            minute.start = kStoredMinute;
            minute.energy.coveredS = 60;
            minute.energy.systemWh = 0.25;
            QVERIFY2(database.write({minute}, {}, {}, kStoredMinute + 60), qPrintable(database.error()));
        }
        const QByteArray storedBefore = contents(work.filePath(faulted == u"data" ? databaseFile : preferencesFile));
        QVERIFY(QDir(work.path()).mkpath(QStringLiteral("config")));

        QStringList arguments = command.split(u' ');
        arguments.first() = arguments.first() == u"ferrow" ? QStringLiteral(FERROW_APP_PATH) : QStringLiteral(FERROW_CLI_PATH);
        arguments.replaceInStrings(QStringLiteral("PORT"), QStringLiteral("127.0.0.1:%1").arg(m_freePort));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("FIXTURE"), QStringLiteral(FERROW_SOURCE_DIR "/tests/fixtures/sysfs-intel-notebook/sys/class"));
        environment.insert(QStringLiteral("WORK"), work.path());
        environment.insert(QStringLiteral("FAULTED"), faulted);
        environment.insert(QStringLiteral("CONDITION"), condition);
        environment.insert(QStringLiteral("ALIVE_S"), QString::number(kAliveSeconds));
        environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
        usePrivateHome(environment, QDir(work.path()));
        QProcess run;
        run.setProcessEnvironment(environment);
        run.start(QStringLiteral("unshare"),
                  QStringList{QStringLiteral("-rm"), QStringLiteral("sh"), QStringLiteral("-c"), QString::fromLatin1(kScript), QStringLiteral("sh")} + arguments);
        QVERIFY(run.waitForFinished((kAliveSeconds + 30) * 1000));
        const QString outcome = QString::fromLocal8Bit(run.readAllStandardOutput() + run.readAllStandardError());
        const QString said = QString::fromLocal8Bit(contents(work.filePath(QStringLiteral("stderr"))));

        QVERIFY2(outcome.contains(lasting ? QStringLiteral("running\nexit 0\n") : QStringLiteral("exit 0\n")), qPrintable(outcome + said));
        const QStringList lines = said.split(u'\n').filter(QRegularExpression(QStringLiteral("cannot save preferences|history is not being kept")));
        QCOMPARE(lines.size(), message.isEmpty() ? 0 : 1);
        if (!message.isEmpty())
            QVERIFY2(QRegularExpression(message).match(lines.first()).hasMatch(), qPrintable(lines.first()));

        // What was stored on the faulty disk is there byte for byte, and reads back.
        const QString left = work.filePath(QStringLiteral("after/") + (faulted == u"data" ? databaseFile : preferencesFile).section(u'/', 1));
        QCOMPARE(QFile::exists(left), stored);
        QCOMPARE(contents(left), storedBefore);
        if (!stored)
            return;
        if (faulted == u"config") {
            QSettings settings(left, QSettings::IniFormat);
            QCOMPARE(readPreferences(settings), m_chosen);
        } else {
            const HistoryDatabase database(left, HistoryDatabase::Mode::readOnly);
            QCOMPARE(database.energy(kStoredMinute, kStoredMinute + 60, HistoryPeriod::minute).size(), 1u);
        }
        if (command.contains(u"--history"))
            QVERIFY(contents(work.filePath(QStringLiteral("stdout"))).contains("2026-01-01T00:00:00Z,60,"));
    }
};

QTEST_GUILESS_MAIN(DiskFaultsTest)
#include "tst_disk_faults.moc"
