#include "export/history_export.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <limits>

using namespace ferrow;

Q_DECLARE_METATYPE(ferrow::PeriodEnergy)
Q_DECLARE_METATYPE(ferrow::SessionRecord)

namespace {

constexpr UnixSeconds kBerlinMidnight = 1'795'474'800; // 2026-11-24 00:00 in Berlin, 23:00 UTC the day before

// A charging minute with every figure known; rows remove what they are about.
PeriodEnergy fullMinute()
{
    PeriodEnergy p;
    p.start = kBerlinMidnight;
    p.energy.coveredS = 60;
    p.energy.adapterWh = 1.0 / 3.0;
    p.energy.systemWh = 0.25;
    p.energy.batteryInWh = 0.1 + 0.2;
    p.energy.batteryOutWh = 0;
    p.energy.chipWh = {0.05, 0.0125, std::nullopt, 0.002};
    p.minPowerW = 14;
    p.meanPowerW = 20;
    p.maxPowerW = 26.5;
    p.batteryPercent = 64;
    return p;
}

SessionRecord onBattery()
{
    SessionRecord s;
    s.start = kBerlinMidnight;
    s.end = kBerlinMidnight + 7200;
    s.startPercent = 90;
    s.endPercent = 71;
    s.energyWh = 12.5;
    s.coveredS = 7200;
    s.peakPowerW = 31.25;
    s.batteryId = QStringLiteral("a1b2");
    return s;
}

QByteArray line(const QByteArray &text, int index)
{
    return text.split('\n').value(index);
}

// The one JSON object holds what the CSV row says, under the header's names, null for an empty cell.
void compareJsonWithCsv(const QByteArray &json, const QByteArray &header, const QByteArray &row)
{
    const QJsonArray rows = QJsonDocument::fromJson(json).array();
    QCOMPARE(rows.size(), 1);
    const QJsonObject object = rows[0].toObject();
    const QList<QByteArray> names = header.split(',');
    const QList<QByteArray> cells = row.split(',');
    QCOMPARE(object.size(), names.size());
    for (qsizetype i = 0; i < names.size(); ++i) {
        const QJsonValue value = object.value(QString::fromLatin1(names[i]));
        if (cells[i].isEmpty())
            QVERIFY2(value.isNull(), names[i].constData());
        else if (value.isBool())
            QCOMPARE(value.toBool() ? "true" : "false", cells[i]);
        else if (value.isString())
            QCOMPARE(value.toString().toUtf8(), cells[i]);
        else
            QCOMPARE(value.toDouble(), cells[i].toDouble());
    }
}

} // namespace

class HistoryExportTest : public QObject {
    Q_OBJECT

private slots:
    void periodRows_data()
    {
        QTest::addColumn<PeriodEnergy>("period");
        QTest::addColumn<QByteArray>("csvRow");

        QTest::newRow("every figure, shortest exact digits")
            << fullMinute()
            << QByteArray("2026-11-23T23:00:00Z,60,0.3333333333333333,0.25,0.30000000000000004,0,0.05,0.0125,,0.002,14,20,26.5,64");
        PeriodEnergy gap;
        gap.start = kBerlinMidnight + 60;
        QTest::newRow("nothing measured: empty, not 0") << gap << QByteArray("2026-11-23T23:01:00Z,0,,,,,,,,,,,,");
        PeriodEnergy large = fullMinute();
        large.energy.coveredS = 2'678'400;
        large.energy.adapterWh = 1234567.5;
        large.energy.chipWh[3] = 0.00001;
        QTest::newRow("no exponent either way")
            << large << QByteArray("2026-11-23T23:00:00Z,2678400,1234567.5,0.25,0.30000000000000004,0,0.05,0.0125,,0.00001,14,20,26.5,64");
        PeriodEnergy broken = fullMinute();
        broken.meanPowerW = std::numeric_limits<double>::quiet_NaN();
        broken.maxPowerW = std::numeric_limits<double>::infinity();
        QTest::newRow("not a number: empty")
            << broken << QByteArray("2026-11-23T23:00:00Z,60,0.3333333333333333,0.25,0.30000000000000004,0,0.05,0.0125,,0.002,14,,,64");
    }

    void periodRows()
    {
        QFETCH(PeriodEnergy, period);
        QFETCH(QByteArray, csvRow);
        const QByteArray csv = periodsTable({period}, TableFormat::csv);
        QCOMPARE(line(csv, 0), QByteArray("start,covered_s,adapter_wh,system_wh,battery_in_wh,battery_out_wh,cpu_wh,gpu_wh,ane_wh,ram_wh,"
                                          "min_power_w,mean_power_w,max_power_w,battery_percent"));
        QCOMPARE(line(csv, 1), csvRow);
        QCOMPARE(csv.count('\n'), 2);
        compareJsonWithCsv(periodsTable({period}, TableFormat::json), line(csv, 0), csvRow);
    }

    void sessionRows_data()
    {
        QTest::addColumn<SessionRecord>("session");
        QTest::addColumn<QByteArray>("csvRow");

        QTest::newRow("on battery") << onBattery() << QByteArray("2026-11-23T23:00:00Z,2026-11-24T01:00:00Z,false,90,71,12.5,7200,6.25,31.25,a1b2");
        SessionRecord desktop;
        desktop.end = 59;
        desktop.externalPower = true;
        QTest::newRow("nothing covered: no mean") << desktop << QByteArray("1970-01-01T00:00:00Z,1970-01-01T00:00:59Z,true,,,0,0,,,");
    }

    void sessionRows()
    {
        QFETCH(SessionRecord, session);
        QFETCH(QByteArray, csvRow);
        const QByteArray csv = sessionsTable({session}, TableFormat::csv);
        QCOMPARE(line(csv, 0), QByteArray("start,end,external_power,start_percent,end_percent,energy_wh,covered_s,mean_power_w,"
                                          "peak_power_w,battery_id"));
        QCOMPARE(line(csv, 1), csvRow);
        compareJsonWithCsv(sessionsTable({session}, TableFormat::json), line(csv, 0), csvRow);
    }

    // Text that would break a row or a string reads back as written.
    void awkwardText()
    {
        SessionRecord s = onBattery();
        s.batteryId = QStringLiteral("a,\"b\"\n\x01\\ü");
        const QByteArray csv = sessionsTable({s}, TableFormat::csv);
        QVERIFY(csv.endsWith(",\"a,\"\"b\"\"\n\x01\\\xc3\xbc\"\n"));
        const QJsonArray rows = QJsonDocument::fromJson(sessionsTable({s, s}, TableFormat::json)).array();
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows[1].toObject().value(QStringLiteral("battery_id")).toString(), *s.batteryId);
    }

    void emptyTables()
    {
        QCOMPARE(periodsTable({}, TableFormat::csv).count('\n'), 1);
        QCOMPARE(sessionsTable({}, TableFormat::json), QByteArray("[]\n"));
    }

    void isoTimes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<qint64>("expected"); // -1: rejected

        const QByteArray berlin("Europe/Berlin");
        QTest::newRow("date: local midnight") << QStringLiteral("2026-11-01") << berlin << qint64(1'793'487'600);
        QTest::newRow("date: midnight in UTC") << QStringLiteral("2026-11-01") << QByteArray("UTC") << qint64(1'793'491'200);
        QTest::newRow("date: winter midnight on the day summer time starts")
            << QStringLiteral("2026-03-29") << berlin << qint64(1'774'738'800);
        QTest::newRow("date: summer midnight the day after") << QStringLiteral("2026-03-30") << berlin << qint64(1'774'821'600);
        QTest::newRow("Z as given") << QStringLiteral("2026-11-01T08:30:15Z") << berlin << qint64(1'793'521'815);
        QTest::newRow("offset as given") << QStringLiteral("2026-11-01T08:30:15+05:30") << berlin << qint64(1'793'502'015);
        QTest::newRow("offset without colon, no seconds") << QStringLiteral("2026-11-01T08:30-0800") << berlin << qint64(1'793'550'600);
        QTest::newRow("hour-only offset") << QStringLiteral("2026-11-01T08:30:15+00") << berlin << qint64(1'793'521'815);
        QTest::newRow("no offset: local time") << QStringLiteral("2026-11-01T09:30:15") << berlin << qint64(1'793'521'815);

        for (const char *bad : {"", "yesterday", "2026-13-01", "2026-02-30", "2026-11-1", " 2026-11-01", "2026-11-01 ", "2026-11-01Z",
                                "2026-11-01T08", "2026-11-01T25:00", "2026-11-01T08:60", "2026-11-01T08:30:61",
                                "2026-11-01T08:30:00+15:00", "2026-11-01T08:30:00+01:60", "2026-11-01T08:30:00+01:00x",
                                "2026-11-01 08:30", "+2026-11-01", "20261101"})
            QTest::newRow(qPrintable(QStringLiteral("rejected: '%1'").arg(QLatin1StringView(bad)))) << QString::fromLatin1(bad) << berlin << qint64(-1);
    }

    void isoTimes()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, zone);
        QFETCH(qint64, expected);
        const QTimeZone timeZone(zone);
        if (!timeZone.isValid())
            QSKIP("no time zone data");
        const std::optional<UnixSeconds> parsed = parseIsoTime(text, timeZone);
        QCOMPARE(parsed.value_or(-1), expected);
    }
};

QTEST_GUILESS_MAIN(HistoryExportTest)
#include "tst_history_export.moc"
