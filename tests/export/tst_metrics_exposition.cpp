#include "export/metrics_exposition.h"
#include "platform/recorded/recorded_machine.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTest>

#include <limits>

using namespace ferrow;

Q_DECLARE_METATYPE(ferrow::PowerSnapshot)
Q_DECLARE_METATYPE(ferrow::EnergyTotals)

namespace {

// A charging notebook with most figures known; rows change only what they are about.
PowerSnapshot notebook()
{
    PowerSnapshot s;
    s.hasBattery = true;
    s.isExternalConnected = true;
    s.isCharging = true;
    s.isDataAvailable = true;
    s.dcVoltageV = 20.0;
    s.dcCurrentA = 3.0;
    s.dcPowerW = 60.0;
    s.systemPowerW = 14.5;
    s.batteryFlowW = 45.5;
    s.batteryChargePowerW = 45.5;
    s.batteryPercent = 64;
    s.chipPower = {3.25, 0.5, std::nullopt, 0.75};
    s.batteryTemperatureC = 31.5;
    s.batteryVoltageV = 12.6;
    s.cycleCount = 0;
    s.estimatedMinutesToFull = 65;
    s.designCapacityMAH = 6249;
    s.totalOperatingMinutes = 1200;
    s.cellVoltagesV = {4.2, 4.19, 4.21};
    s.batteryHealthCondition = BatteryHealthCondition::fair;
    s.updatedAt = WallTime(std::chrono::milliseconds(1'700'000'000'250));
    return s;
}

PowerSnapshot desktop()
{
    PowerSnapshot s = notebook();
    s.hasBattery = false;
    s.isCharging = false;
    return s;
}

// Series (name and labels) to their value as written.
QMap<QByteArray, QByteArray> samples(const QByteArray &text)
{
    QMap<QByteArray, QByteArray> out;
    for (const QByteArray &line : text.split('\n')) {
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        const qsizetype space = line.lastIndexOf(' ');
        out.insert(line.left(space), line.mid(space + 1));
    }
    return out;
}

} // namespace

class MetricsExpositionTest : public QObject {
    Q_OBJECT

private slots:
    void series_data()
    {
        QTest::addColumn<PowerSnapshot>("reading");
        QTest::addColumn<QByteArray>("series");
        QTest::addColumn<QByteArray>("value"); // empty: no such series

        constexpr double nan = std::numeric_limits<double>::quiet_NaN();
        PowerSnapshot s = notebook();
        QTest::newRow("present temperature") << s << QByteArray("ferrow_battery_temperature_celsius") << QByteArray("31.5");
        QTest::newRow("timestamp in seconds") << s << QByteArray("ferrow_reading_timestamp_seconds") << QByteArray("1700000000.25");
        QTest::newRow("chip domain") << s << QByteArray("ferrow_chip_power_watts{domain=\"cpu\"}") << QByteArray("3.25");
        QTest::newRow("absent chip domain") << s << QByteArray("ferrow_chip_power_watts{domain=\"ane\"}") << QByteArray();
        QTest::newRow("charging as 1") << s << QByteArray("ferrow_battery_charging") << QByteArray("1");
        QTest::newRow("health condition held") << s << QByteArray("ferrow_battery_health_condition{condition=\"fair\"}") << QByteArray("1");
        QTest::newRow("health condition not held")
            << s << QByteArray("ferrow_battery_health_condition{condition=\"good\"}") << QByteArray("0");
        QTest::newRow("minutes as seconds") << s << QByteArray("ferrow_battery_time_to_full_seconds") << QByteArray("3900");
        QTest::newRow("mAh as coulombs") << s << QByteArray("ferrow_battery_design_capacity_coulombs") << QByteArray("22496.4");
        QTest::newRow("present zero stays") << s << QByteArray("ferrow_battery_cycles") << QByteArray("0");
        QTest::newRow("cells from 1") << s << QByteArray("ferrow_battery_cell_voltage_volts{cell=\"1\"}") << QByteArray("4.2");
        QTest::newRow("operating minutes as seconds") << s << QByteArray("ferrow_battery_operating_time_seconds") << QByteArray("72000");
        QTest::newRow("build") << s << QByteArray("ferrow_build_info{version=\"1.2.3\"}") << QByteArray("1");
        QTest::newRow("absent optional") << s << QByteArray("ferrow_battery_current_amperes") << QByteArray();
        QTest::newRow("absent condition: no states")
            << [] { auto r = notebook(); r.batteryHealthCondition.reset(); return r; }()
            << QByteArray("ferrow_battery_health_condition{condition=\"good\"}") << QByteArray();
        QTest::newRow("NaN is absent") << [&] { auto r = notebook(); r.batteryVoltageV = nan; return r; }()
                                       << QByteArray("ferrow_battery_voltage_volts") << QByteArray();
        QTest::newRow("not charging as 0") << [] { auto r = notebook(); r.isCharging = false; return r; }()
                                           << QByteArray("ferrow_battery_charging") << QByteArray("0");

        QTest::newRow("desktop: no charging") << desktop() << QByteArray("ferrow_battery_charging") << QByteArray();
        QTest::newRow("desktop: no battery flow") << desktop() << QByteArray("ferrow_battery_flow_watts") << QByteArray();
        QTest::newRow("desktop: no charge power") << desktop() << QByteArray("ferrow_battery_charge_power_watts") << QByteArray();
        QTest::newRow("desktop: battery absent as 0") << desktop() << QByteArray("ferrow_battery_present") << QByteArray("0");
        QTest::newRow("absent temperature") << [] { auto r = notebook(); r.batteryTemperatureC.reset(); return r; }()
                                            << QByteArray("ferrow_battery_temperature_celsius") << QByteArray();
        QTest::newRow("desktop: system power") << desktop() << QByteArray("ferrow_system_power_watts") << QByteArray("14.5");

        PowerSnapshot waiting = notebook();
        waiting.isDataAvailable = false;
        QTest::newRow("no telemetry: no system power") << waiting << QByteArray("ferrow_system_power_watts") << QByteArray();
        QTest::newRow("no telemetry: no flow") << waiting << QByteArray("ferrow_battery_flow_watts") << QByteArray();
        QTest::newRow("no telemetry: input voltage") << waiting << QByteArray("ferrow_input_voltage_volts") << QByteArray("20");
        QTest::newRow("headline on the adapter") << s << QByteArray("ferrow_headline_power_watts") << QByteArray("60");
        QTest::newRow("no telemetry: no headline") << waiting << QByteArray("ferrow_headline_power_watts") << QByteArray();
    }

    void series()
    {
        QFETCH(PowerSnapshot, reading);
        QFETCH(QByteArray, series);
        QFETCH(QByteArray, value);
        const QMap<QByteArray, QByteArray> written = samples(metricsExposition(&reading, u"1.2.3"));
        QCOMPARE(written.value(series), value);
        QCOMPARE(written.contains(series), !value.isEmpty());
    }

    // Energy since the exporter started, in joules; a quantity never measured has no series.
    void energy_data()
    {
        QTest::addColumn<EnergyTotals>("energy");
        QTest::addColumn<QByteArray>("series");
        QTest::addColumn<QByteArray>("value"); // empty: no such series

        EnergyTotals charging;
        charging.add(notebook(), 2.0);
        charging.add(notebook(), 1.0);
        QTest::newRow("input from readings") << charging << QByteArray("ferrow_input_energy_joules_total") << QByteArray("180");
        QTest::newRow("system from readings") << charging << QByteArray("ferrow_system_energy_joules_total") << QByteArray("43.5");
        QTest::newRow("charge from readings") << charging << QByteArray("ferrow_battery_charge_energy_joules_total") << QByteArray("136.5");
        QTest::newRow("no discharge while charging: 0")
            << charging << QByteArray("ferrow_battery_discharge_energy_joules_total") << QByteArray("0");
        QTest::newRow("chip domain labelled as its power")
            << charging << QByteArray("ferrow_chip_energy_joules_total{domain=\"cpu\"}") << QByteArray("9.75");
        QTest::newRow("last chip domain") << charging << QByteArray("ferrow_chip_energy_joules_total{domain=\"ram\"}") << QByteArray("2.25");
        QTest::newRow("unmeasured chip domain") << charging << QByteArray("ferrow_chip_energy_joules_total{domain=\"ane\"}") << QByteArray();
        QTest::newRow("gap: nothing counted") << [] { EnergyTotals e; e.add(notebook(), 60.0); return e; }()
                                               << QByteArray("ferrow_input_energy_joules_total") << QByteArray();
        QTest::newRow("desktop: no battery energy") << [] { EnergyTotals e; e.add(desktop(), 1.0); return e; }()
                                                    << QByteArray("ferrow_battery_charge_energy_joules_total") << QByteArray();
        QTest::newRow("no telemetry: no system energy") << [] {
            EnergyTotals e;
            auto r = notebook();
            r.isDataAvailable = false;
            e.add(r, 1.0);
            return e;
        }() << QByteArray("ferrow_system_energy_joules_total") << QByteArray();
    }

    void energy()
    {
        QFETCH(EnergyTotals, energy);
        QFETCH(QByteArray, series);
        QFETCH(QByteArray, value);
        const PowerSnapshot reading = notebook();
        const QMap<QByteArray, QByteArray> written = samples(metricsExposition(&reading, u"1.2.3", &energy));
        QCOMPARE(written.value(series), value);
        QCOMPARE(written.contains(series), !value.isEmpty());
    }

    void labelEscaping_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("label");

        QTest::newRow("plain") << QStringLiteral("bq40z651") << QByteArray("device=\"bq40z651\"");
        QTest::newRow("quote") << QStringLiteral("say \"hi\"") << QByteArray("device=\"say \\\"hi\\\"\"");
        QTest::newRow("backslash") << QStringLiteral("C:\\cell") << QByteArray("device=\"C:\\\\cell\"");
        QTest::newRow("newline") << QStringLiteral("two\nlines") << QByteArray("device=\"two\\nlines\"");
        QTest::newRow("UTF-8 kept") << QStringLiteral("Akku ü") << QByteArray("device=\"Akku \xc3\xbc\"");
    }

    void labelEscaping()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, label);
        PowerSnapshot s = notebook();
        s.deviceName = name;
        s.batterySerial = QStringLiteral("F8Y\\\"");
        QCOMPARE(samples(metricsExposition(&s, u"1.2.3")).value("ferrow_battery_info{" + label + ",serial=\"F8Y\\\\\\\"\"}"),
                 QByteArray("1"));
    }

    // Each family comes once, a counter when its name says so and a gauge otherwise, its samples
    // right after it; a full reading with its energy has exactly the families the metrics document
    // lists, and before the first reading only the build's.
    void families_data()
    {
        QTest::addColumn<bool>("hasReading");
        QTest::addColumn<QStringList>("expected");
        QFile docs(QStringLiteral(FERROW_SOURCE_DIR "/docs/metrics.md"));
        QVERIFY(docs.open(QIODevice::ReadOnly));
        static const QRegularExpression tableRow(QStringLiteral("^\\| `(ferrow_\\w+)`"), QRegularExpression::MultilineOption);
        QStringList documented;
        for (const QRegularExpressionMatch &match : tableRow.globalMatch(QString::fromUtf8(docs.readAll())))
            documented << match.captured(1);
        QTest::newRow("full reading") << true << documented;
        QTest::newRow("before the first reading") << false << QStringList{QStringLiteral("ferrow_build_info")};
    }

    void families()
    {
        QFETCH(bool, hasReading);
        QFETCH(QStringList, expected);
        QString error;
        std::optional<PowerSnapshot> reading = readRecordedSnapshot(QStringLiteral(QT_TESTCASE_SOURCEDIR "/fixtures/notebook-charging-26"), &error);
        QVERIFY2(reading, qPrintable(error));
        reading->lifetimeMaxDischargeCurrentA = 4.5; // the one figure the recording lacks
        EnergyTotals energy;
        energy.add(*reading, 1.0);
        const QByteArray text = metricsExposition(hasReading ? &*reading : nullptr, u"1.2.3", hasReading ? &energy : nullptr);
        QVERIFY(text.endsWith('\n'));

        QStringList families, typed;
        for (const QByteArray &line : text.chopped(1).split('\n')) {
            const QList<QByteArray> words = line.split(' ');
            if (line.startsWith("# HELP ")) {
                families << QString::fromLatin1(words[2]);
            } else if (line.startsWith("# TYPE ")) {
                QVERIFY2(words[3] == (words[2].endsWith("_total") ? "counter" : "gauge"), line.constData());
                typed << QString::fromLatin1(words[2]);
            } else {
                const QByteArray name = line.left(line.indexOf(line.contains('{') ? '{' : ' '));
                QVERIFY2(!families.isEmpty() && name == families.constLast().toLatin1(), line.constData());
            }
        }
        QCOMPARE(typed, families);
        families.sort();
        expected.sort();
        QCOMPARE(families, expected);
    }
};

QTEST_GUILESS_MAIN(MetricsExpositionTest)
#include "tst_metrics_exposition.moc"
