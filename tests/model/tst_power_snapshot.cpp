#include "app/text_table.h"
#include "model/localized_text.h"
#include "model/power_snapshot.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTest>

#include <cmath>
#include <limits>

using namespace ferrow;

Q_DECLARE_METATYPE(ferrow::PowerSnapshot)

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// A notebook reading; the rows below change only what they are about.
PowerSnapshot notebook(bool external, bool charging, bool dataAvailable, double flowW)
{
    PowerSnapshot s;
    s.hasBattery = true;
    s.isExternalConnected = external;
    s.isCharging = charging;
    s.isDataAvailable = dataAvailable;
    s.batteryFlowW = flowW;
    s.dcPowerW = 31.5;
    s.dcCurrentA = 1.575;
    s.batteryVoltageV = 12.0;
    return s;
}

void compareOptional(std::optional<double> actual, const QVariant &expected)
{
    QCOMPARE(actual.has_value(), expected.isValid());
    if (!actual)
        return;
    const double want = expected.toDouble();
    if (std::isnan(want))
        QVERIFY(std::isnan(*actual));
    else
        QCOMPARE(*actual, want);
}

} // namespace

class PowerSnapshotTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(installTextTable(*QCoreApplication::instance()));
    }

    void displayFigures_data()
    {
        QTest::addColumn<PowerSnapshot>("snapshot");
        QTest::addColumn<QVariant>("powerW");
        QTest::addColumn<QVariant>("currentA");

        PowerSnapshot desktop;
        desktop.isExternalConnected = true;
        desktop.dcPowerW = 42.0;
        desktop.dcCurrentA = 2.1;
        desktop.batteryFlowW = -9.0; // ignored without a battery
        QTest::newRow("no battery: input side") << desktop << QVariant(42.0) << QVariant(2.1);

        QTest::newRow("adapter, flow -0.05 exactly: input side")
            << notebook(true, false, true, -0.05) << QVariant(31.5) << QVariant(1.575);
        QTest::newRow("adapter, flow -0.06: battery side")
            << notebook(true, false, true, -0.06) << QVariant(-0.06) << QVariant(-0.005);
        QTest::newRow("adapter, charging, flow negative: input side")
            << notebook(true, true, true, -4.0) << QVariant(31.5) << QVariant(1.575);
        QTest::newRow("adapter, NaN flow: input side")
            << notebook(true, false, true, kNaN) << QVariant(31.5) << QVariant(1.575);
        QTest::newRow("on battery, -0.04 dead band") << notebook(false, false, true, -0.04) << QVariant(0.0) << QVariant(0.0);
        QTest::newRow("on battery, -0.05 passes dead band")
            << notebook(false, false, true, -0.05) << QVariant(-0.05) << QVariant(-0.05 / 12.0);
        QTest::newRow("battery side without data: absent") << notebook(false, false, false, -6.0) << QVariant() << QVariant();
        QTest::newRow("input side without data: present")
            << notebook(true, false, false, 2.0) << QVariant(31.5) << QVariant(1.575);

        PowerSnapshot rail = notebook(false, false, true, -6.0);
        rail.batteryRailVoltageV = 15.0;
        QTest::newRow("rail voltage preferred") << rail << QVariant(-6.0) << QVariant(-0.4);

        PowerSnapshot noVoltage = notebook(false, false, true, -6.0);
        noVoltage.batteryVoltageV.reset();
        QTest::newRow("no voltage: current absent") << noVoltage << QVariant(-6.0) << QVariant();

        PowerSnapshot zeroOverZero = notebook(false, false, true, 0.01);
        zeroOverZero.batteryVoltageV = 0.0;
        QTest::newRow("0 W over 0 V is NaN") << zeroOverZero << QVariant(0.0) << QVariant(kNaN);
    }

    void displayFigures()
    {
        QFETCH(PowerSnapshot, snapshot);
        QFETCH(QVariant, powerW);
        QFETCH(QVariant, currentA);
        compareOptional(snapshot.displayPowerW(), powerW);
        compareOptional(snapshot.displayCurrentA(), currentA);
    }

    void statusKey_data()
    {
        QTest::addColumn<PowerSnapshot>("snapshot");
        QTest::addColumn<QByteArray>("key");

        PowerSnapshot desktop;
        desktop.isDataAvailable = false;
        desktop.isCharging = true;
        desktop.batteryChargePowerW = 20.0;
        QTest::newRow("no battery wins over everything") << desktop << QByteArray("status.external_power");
        QTest::newRow("no telemetry wins over on battery")
            << notebook(false, false, false, -5.0) << QByteArray("status.waiting_telemetry");
        QTest::newRow("on battery") << notebook(false, false, true, -5.0) << QByteArray("status.on_battery");

        const auto connected = [](bool charging, double chargeW, std::int64_t percent) {
            PowerSnapshot s = notebook(true, charging, true, chargeW);
            s.batteryChargePowerW = chargeW;
            s.batteryPercent = percent;
            return s;
        };
        QTest::newRow("charging at 0.3 W exactly, 80 %") << connected(true, 0.3, 80) << QByteArray("status.power_connected");
        QTest::newRow("charging at 0.31 W") << connected(true, 0.31, 80) << QByteArray("status.charging");
        QTest::newRow("not charging, 100 %") << connected(false, 0.0, 100) << QByteArray("status.fully_charged");
        QTest::newRow("not charging, 99 %") << connected(false, 0.0, 99) << QByteArray("status.power_connected");
        QTest::newRow("charge power without charging flag") << connected(false, 5.0, 100) << QByteArray("status.fully_charged");
    }

    void statusKey()
    {
        QFETCH(PowerSnapshot, snapshot);
        QFETCH(QByteArray, key);
        QCOMPARE(QByteArray(snapshot.statusKey()), key);
    }

    // One-line texts: each row is what the snapshot or the text table gave and what it should read.
    void texts_data()
    {
        QTest::addColumn<QString>("actual");
        QTest::addColumn<QString>("expected");
        const auto source = [](bool hasBattery, bool external, double dcVoltageV) {
            PowerSnapshot s;
            s.hasBattery = hasBattery;
            s.isExternalConnected = external;
            s.dcVoltageV = dcVoltageV;
            return s.powerSourceText();
        };
        const auto toFull = [](std::optional<std::int64_t> minutes) {
            PowerSnapshot s;
            s.estimatedMinutesToFull = minutes;
            return s.timeToFullText();
        };
        QTest::newRow("desktop on AC") << source(false, true, 0.0) << localizedText("power.ac_connected");
        QTest::newRow("desktop without external power") << source(false, false, 12.0) << localizedText("power.dc_disconnected");
        QTest::newRow("notebook at 20 V") << source(true, true, 20.0) << QStringLiteral("USB-C PD \u00B7 20.0 V");
        QTest::newRow("rounding to one decimal") << source(true, true, 14.96) << QStringLiteral("USB-C PD \u00B7 15.0 V");
        QTest::newRow("notebook at 0.1 V") << source(true, true, 0.1) << localizedText("power.dc_disconnected");
        QTest::newRow("notebook at 0.11 V") << source(true, true, 0.11) << QStringLiteral("USB-C PD \u00B7 0.1 V");
        QTest::newRow("notebook unplugged") << source(true, false, 20.0) << localizedText("power.dc_disconnected");
        QTest::newRow("to full: absent") << toFull(std::nullopt) << QStringLiteral("\u2014");
        QTest::newRow("to full: negative") << toFull(-5) << QStringLiteral("\u2014");
        QTest::newRow("to full: 1") << toFull(1) << QStringLiteral("1 min");
        QTest::newRow("to full: 60") << toFull(60) << QStringLiteral("1 h 0 min");
        QTest::newRow("to full: 5999") << toFull(5999) << QStringLiteral("99 h 59 min");
        QTest::newRow("count of none") << localizedCount("count.times", 0) << QStringLiteral("0 times");
        QTest::newRow("health names") << localizedName(BatteryHealthCondition::good) + u'/' + localizedName(BatteryHealthCondition::fair) + u'/'
                + localizedName(BatteryHealthCondition::poor)
                                      << localizedText("battery.health.good") + u'/' + localizedText("battery.health.fair") + u'/' + localizedText("battery.health.poor");
    }

    void texts()
    {
        QFETCH(QString, actual);
        QFETCH(QString, expected);
        QCOMPARE(actual, expected);
    }

    void missingTextShowsItsKeyQuietly()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); // such as arg() with no place for its argument
        QCOMPARE(localizedText("no.such.key"), QStringLiteral("no.such.key"));
        QCOMPARE(localizedFormat("no.such.key", {3, 4}), QStringLiteral("no.such.key"));
    }

    void emptyIsStampedOnceAndBlank()
    {
        const PowerSnapshot &first = PowerSnapshot::empty();
        QCOMPARE(&PowerSnapshot::empty(), &first);
        QVERIFY(first.updatedAt.time_since_epoch().count() != 0);
        PowerSnapshot blank;
        blank.updatedAt = first.updatedAt;
        QVERIFY(first == blank);
    }

    void enumerationsRoundTripByRawValue_data()
    {
        QTest::addColumn<QString>("raw");
        QTest::addColumn<bool>("isCondition");
        QTest::addColumn<bool>("isCellSource");
        QTest::newRow("good") << QStringLiteral("good") << true << false;
        QTest::newRow("fair") << QStringLiteral("fair") << true << false;
        QTest::newRow("poor") << QStringLiteral("poor") << true << false;
        QTest::newRow("registry") << QStringLiteral("registry") << false << true;
        QTest::newRow("smc") << QStringLiteral("smc") << false << true;
        QTest::newRow("wrong case") << QStringLiteral("Good") << false << false;
    }

    void enumerationsRoundTripByRawValue()
    {
        QFETCH(QString, raw);
        QFETCH(bool, isCondition);
        QFETCH(bool, isCellSource);
        const auto condition = batteryHealthConditionFromRaw(raw);
        QCOMPARE(condition.has_value(), isCondition);
        if (condition)
            QCOMPARE(rawValue(*condition), raw);
        const auto source = batteryCellSourceFromRaw(raw);
        QCOMPARE(source.has_value(), isCellSource);
        if (source)
            QCOMPARE(rawValue(*source), raw);
    }
};

QTEST_GUILESS_MAIN(PowerSnapshotTest)
#include "tst_power_snapshot.moc"
