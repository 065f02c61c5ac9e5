#include "app/app_settings.h"
#include "history/history_database.h"
#include "history/history_recorder.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

#include <memory>

using namespace ferrow;

namespace {

constexpr UnixSeconds kBerlinMidnight = 1'795'474'800; // 2026-11-24 00:00 in Berlin, 23:00 UTC the day before

MinuteRecord minute(UnixSeconds start, double adapterWh)
{
    MinuteRecord m;
    m.start = start;
    m.energy.coveredS = 60;
    m.energy.adapterWh = adapterWh;
    m.energy.systemWh = adapterWh / 2;
    m.meanPowerW = adapterWh * 60;
    m.batteryPercent = 80;
    m.externalPower = true;
    return m;
}

struct Run {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class HistoryCliTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_database;
    std::unique_ptr<HistoryDatabase> m_writer; // held open, as the application holds it while the CLI reads

    Run run(QStringList arguments)
    {
        QProcess cli;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TZ"), QStringLiteral("Europe/Berlin"));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), m_dir.filePath(QStringLiteral("data")));
        cli.setProcessEnvironment(environment);
        for (QString &argument : arguments)
            argument.replace(QStringLiteral("DB"), m_database);
        cli.start(QStringLiteral(FERROW_CLI_PATH), arguments);
        if (!cli.waitForFinished(20'000) || cli.exitStatus() != QProcess::NormalExit)
            return {};
        return {cli.exitCode(), cli.readAllStandardOutput(), cli.readAllStandardError()};
    }

    // A database as this version writes it, marked as written by a later one.
    QByteArray newerDatabase()
    {
        const QString path = m_dir.filePath(QStringLiteral("newer-scratch.sqlite"));
        {
            HistoryDatabase database(path, HistoryDatabase::Mode::readWrite);
            database.write({minute(kBerlinMidnight, 1)}, {}, {}, kBerlinMidnight);
        }
        {
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("newer"));
            db.setDatabaseName(path);
            // Out of WAL mode: reading a WAL file leaves SQLite's -wal and -shm beside it, which
            // would hide whether the CLI itself wrote anything.
            if (db.open() && QSqlQuery(db).exec(QStringLiteral("PRAGMA journal_mode = DELETE")))
                QSqlQuery(db).exec(QStringLiteral("PRAGMA user_version = %1").arg(HistoryDatabase::kSchemaVersion + 1));
            db.close();
        }
        QSqlDatabase::removeDatabase(QStringLiteral("newer"));
        const QByteArray bytes = contents(path);
        QFile::remove(path);
        return bytes;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        if (!QTimeZone(QByteArrayLiteral("Europe/Berlin")).isValid())
            QSKIP("no time zone data");
        m_database = m_dir.filePath(QStringLiteral("history.sqlite"));
        m_writer = std::make_unique<HistoryDatabase>(m_database, HistoryDatabase::Mode::readWrite);
        // The last minute of one Berlin day and the first two of the next.
        const std::vector<MinuteRecord> minutes = {minute(kBerlinMidnight - 60, 0.5), minute(kBerlinMidnight, 0.25),
                                                   minute(kBerlinMidnight + 60, 0.125)};
        SessionRecord charging{.start = kBerlinMidnight - 3600, .end = kBerlinMidnight, .externalPower = true, .startPercent = 40,
                               .endPercent = 80, .energyWh = 30, .coveredS = 3600, .peakPowerW = 60, .batteryId = QStringLiteral("b1")};
        SessionRecord unplugged;
        unplugged.start = kBerlinMidnight;
        unplugged.end = kBerlinMidnight + 120;
        unplugged.energyWh = 0.5;
        unplugged.coveredS = 120;
        QVERIFY2(m_writer->write(minutes, {charging, unplugged}, {}, kBerlinMidnight + 120), qPrintable(m_writer->error()));
    }

    void periods_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QStringList>("starts");
        QTest::addColumn<QList<double>>("adapterWh");

        const QStringList edge = {QStringLiteral("2026-11-22T23:00:00Z"), QStringLiteral("2026-11-23T23:00:00Z")};
        QTest::newRow("local days") << QStringLiteral("--history --from 2026-11-23 --to 2026-11-25") << edge << QList<double>{0.5, 0.375};
        QTest::newRow("hours") << QStringLiteral("--history --per hour --from 2026-11-23 --to 2026-11-25")
                               << QStringList{QStringLiteral("2026-11-23T22:00:00Z"), QStringLiteral("2026-11-23T23:00:00Z")}
                               << QList<double>{0.5, 0.375};
        QTest::newRow("minutes between moments with offsets")
            << QStringLiteral("--history --per minute --from 2026-11-23T23:00:00Z --to 2026-11-24T01:00+01:00")
            << QStringList{QStringLiteral("2026-11-23T23:00:00Z"), QStringLiteral("2026-11-23T23:01:00Z")} << QList<double>{0.25, 0.125};
        QTest::newRow("minutes between local times") << QStringLiteral("--history --per minute --from 2026-11-23T23:00 --to 2026-11-24T00:01")
                                                     << QStringList{QStringLiteral("2026-11-23T22:59:00Z"), QStringLiteral("2026-11-23T23:00:00Z")}
                                                     << QList<double>{0.5, 0.25};
    }

    void periods()
    {
        QFETCH(QString, arguments);
        QFETCH(QStringList, starts);
        QFETCH(QList<double>, adapterWh);
        const Run json = run(arguments.split(u' ') + QStringList{QStringLiteral("--database"), QStringLiteral("DB"),
                                                                 QStringLiteral("--format"), QStringLiteral("json")});
        QVERIFY2(json.exitCode == 0, json.err.constData());
        QVERIFY(json.err.isEmpty());
        const QJsonArray rows = QJsonDocument::fromJson(json.out).array();
        QCOMPARE(rows.size(), starts.size());
        for (qsizetype i = 0; i < rows.size(); ++i) {
            QCOMPARE(rows[i][QStringLiteral("start")].toString(), starts[i]);
            QCOMPARE(rows[i][QStringLiteral("adapter_wh")].toDouble(), adapterWh[i]);
            QVERIFY(rows[i][QStringLiteral("battery_in_wh")].isNull());
        }
        // CSV by default: a header, then the same rows.
        const Run csv = run(arguments.split(u' ') + QStringList{QStringLiteral("--database"), QStringLiteral("DB")});
        QCOMPARE(csv.exitCode, 0);
        const QList<QByteArray> lines = csv.out.trimmed().split('\n');
        QCOMPARE(lines.size(), starts.size() + 1);
        QVERIFY(lines[0].startsWith("start,covered_s,adapter_wh,"));
        for (qsizetype i = 0; i < starts.size(); ++i)
            QVERIFY(lines[i + 1].startsWith(starts[i].toLatin1() + ','));
    }

    void sessions()
    {
        const Run result = run(QStringLiteral("--sessions --database DB --from 2026-11-23 --to 2026-11-25 --format json").split(u' '));
        QVERIFY2(result.exitCode == 0, result.err.constData());
        const QJsonArray rows = QJsonDocument::fromJson(result.out).array();
        QCOMPARE(rows.size(), 2);
        const QJsonObject newest = rows[0].toObject();
        QCOMPARE(newest[QStringLiteral("start")].toString(), QStringLiteral("2026-11-23T23:00:00Z"));
        QCOMPARE(newest[QStringLiteral("external_power")].toBool(true), false);
        QCOMPARE(newest[QStringLiteral("mean_power_w")].toDouble(), 15.0);
        QVERIFY(newest[QStringLiteral("battery_id")].isNull());
        QCOMPARE(rows[1][QStringLiteral("battery_id")].toString(), QStringLiteral("b1"));
        QCOMPARE(rows[1][QStringLiteral("end_percent")].toInt(), 80);
    }

    // The applications of the current session (the newest stored) and of the last days, each line
    // saying how its energy was found.
    void applications()
    {
        const UnixSeconds now = QDateTime::currentSecsSinceEpoch();
        const UnixSeconds sessionStart = now - 3600;
        SessionRecord session;
        session.start = sessionStart;
        session.end = now;
        session.energyWh = 1;
        session.coveredS = 3600;
        QVERIFY(m_writer->write({}, {session}, {}, now));
        const auto line = [](AppEnergy::Kind kind, const char *group, double energyJ) {
            return AppEnergy{kind, QString::fromLatin1(group), QStringLiteral("Quill, \"the\" editor"), {}, energyJ, 2, 60, AttributionMethod::measured};
        };
        const auto minuteOf = [&](UnixSeconds start, double energyJ) {
            return AppMinuteRecord{start - start % 60, {{line(AppEnergy::Kind::application, "/Applications/Quill.app", energyJ),
                                                         line(AppEnergy::Kind::others, "", 3600 - energyJ)}, 60, AttributionMethod::measured}};
        };
        QVERIFY(m_writer->writeApplications({minuteOf(sessionStart - 2 * 86'400, 1800), minuteOf(now - 600, 720)}));

        const Run session7 = run(QStringLiteral("--apps --period 7d --format json --database DB").split(u' '));
        QVERIFY2(session7.exitCode == 0, session7.err.constData());
        const QJsonArray week = QJsonDocument::fromJson(session7.out).array();
        QCOMPARE(week.size(), 2);
        QCOMPARE(week[0][QStringLiteral("kind")].toString(), QStringLiteral("others"));
        QCOMPARE(week[0][QStringLiteral("estimated")].toBool(), true);
        QCOMPARE(week[1][QStringLiteral("energy_wh")].toDouble(), 0.7);
        QCOMPARE(week[1][QStringLiteral("share")].toDouble(), 0.35);
        QCOMPARE(week[1][QStringLiteral("method")].toString(), QStringLiteral("measured"));
        QCOMPARE(week[1][QStringLiteral("estimated")].toBool(), false);

        const Run current = run(QStringLiteral("--apps --database DB").split(u' '));
        QVERIFY2(current.exitCode == 0, current.err.constData());
        const QList<QByteArray> lines = current.out.trimmed().split('\n');
        QCOMPARE(lines[0], QByteArray("kind,app,name,energy_wh,share,mean_power_w,cpu_s,covered_s,method,estimated"));
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[2], QByteArray("application,/Applications/Quill.app,\"Quill, \"\"the\"\" editor\",0.2,0.2,12,2,60,measured,false"));
    }

    void refused_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");

        QTest::newRow("unknown period") << QStringLiteral("--history --per week --database DB") << 2
                                        << QStringLiteral("--per takes minute, hour or day, not 'week'");
        QTest::newRow("unknown format") << QStringLiteral("--sessions --format xml --database DB") << 2
                                        << QStringLiteral("--format takes csv or json, not 'xml'");
        QTest::newRow("impossible date") << QStringLiteral("--history --from 2026-02-30 --database DB") << 2
                                         << QStringLiteral("--from takes an ISO 8601 date");
        QTest::newRow("backwards range") << QStringLiteral("--history --from 2026-11-25 --to 2026-11-24 --database DB") << 2
                                         << QStringLiteral("--from (2026-11-24T23:00:00Z) is not before --to (2026-11-23T23:00:00Z)");
        QTest::newRow("period of sessions") << QStringLiteral("--sessions --per day --database DB") << 2
                                            << QStringLiteral("--per goes with --history only");
        QTest::newRow("both at once") << QStringLiteral("--sessions --history --database DB") << 2 << QStringLiteral("exclude each other");
        QTest::newRow("with a reading option") << QStringLiteral("--history --once --database DB") << 2 << QStringLiteral("take only --from");
        QTest::newRow("history option alone") << QStringLiteral("--format json") << 2 << QStringLiteral("go with --history, --sessions or --apps");
        QTest::newRow("unknown stretch of applications") << QStringLiteral("--apps --period week --database DB") << 2
                                                         << QStringLiteral("--period takes session, today, 7d or 30d, not 'week'");
        QTest::newRow("applications by dates") << QStringLiteral("--apps --from 2026-11-01 --database DB") << 2
                                               << QStringLiteral("--apps takes --period rather than");
        QTest::newRow("no such file") << QStringLiteral("--history --database DB.gone") << 1 << QStringLiteral("does not exist");
    }

    void refused()
    {
        QFETCH(QString, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, message);
        const Run result = run(arguments.split(u' '));
        QCOMPARE(result.exitCode, exitCode);
        QVERIFY(result.out.isEmpty());
        QVERIFY2(QString::fromUtf8(result.err).contains(message), result.err.constData());
        QCOMPARE(result.err.count('\n'), 1);
    }

    // A file the CLI cannot use is named in one line and left byte for byte as it was, with no
    // journal beside it.
    void unreadableFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("message");

        QTest::newRow("garbage") << QStringLiteral("garbage.sqlite") << QByteArray("not a database at all\n").repeated(200)
                                 << QStringLiteral("not a database");
        QTest::newRow("empty file") << QStringLiteral("empty.sqlite") << QByteArray() << QStringLiteral("cannot read");
        QTest::newRow("newer schema") << QStringLiteral("newer.sqlite") << newerDatabase() << QStringLiteral("written by a newer Ferrow");
    }

    void unreadableFiles()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, message);
        const QString path = m_dir.filePath(name);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        const QStringList before = QDir(m_dir.path()).entryList(QDir::Files);
        for (const QString &command : {QStringLiteral("--history"), QStringLiteral("--sessions")}) {
            const Run result = run({command, QStringLiteral("--database"), path});
            QCOMPARE(result.exitCode, 1);
            QVERIFY(result.out.isEmpty());
            QVERIFY2(QString::fromUtf8(result.err).contains(message), result.err.constData());
            QVERIFY2(result.err.contains(path.toUtf8()), result.err.constData());
            QCOMPARE(result.err.count('\n'), 1);
        }
        QCOMPARE(QDir(m_dir.path()).entryList(QDir::Files), before);
        QVERIFY(contents(path) == content);
    }

    // Without --database the CLI reads the application's own file, found under the same names.
    void applicationDatabase()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_dir.filePath(QStringLiteral("data"))));
        setApplicationIdentity();
        const QString expected = HistoryRecorder::defaultDatabasePath();
        if (QFile::exists(expected))
            QSKIP("the application keeps its history there");
        const Run result = run({QStringLiteral("--history")});
        QCOMPARE(result.exitCode, 1);
        QVERIFY2(result.err.contains(expected.toUtf8() + " does not exist"), result.err.constData());
    }
};

QTEST_GUILESS_MAIN(HistoryCliTest)
#include "tst_history_cli.moc"
