#include "alerts/alert_rules.h"
#include "alerts/alert_text.h"
#include "alerts/windowed_mean.h"
#include "app/text_table.h"

#include <QCoreApplication>
#include <QTest>

#include <limits>

using namespace ferrow;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// A notebook on its battery, drawing drawW, with nothing worth an alert.
PowerSnapshot onBattery(double drawW = 8.0)
{
    PowerSnapshot s;
    s.hasBattery = s.isDataAvailable = true;
    s.systemPowerW = drawW;
    s.batteryFlowW = -drawW;
    s.batteryPercent = 60;
    s.batteryTemperatureC = 31.0;
    s.batteryCurrentA = -0.7;
    s.cellVoltagesV = {3.850, 3.852, 3.849};
    return s;
}

// On an adapter delivering volts × amperes, the battery charging with what the system leaves.
PowerSnapshot charging(double volts, double amperes, double systemW, std::int64_t percent = 60)
{
    PowerSnapshot s = onBattery(systemW);
    s.isExternalConnected = s.isCharging = true;
    s.dcVoltageV = volts;
    s.dcCurrentA = amperes;
    s.dcPowerW = volts * amperes;
    s.batteryFlowW = s.batteryChargePowerW = s.dcPowerW - systemW;
    s.batteryCurrentA = 1.2;
    s.batteryPercent = percent;
    return s;
}

// On a 30 W adapter, not charging, the battery giving -flowW.
PowerSnapshot notCharging(double flowW)
{
    PowerSnapshot s = charging(20.0, 1.5, 30.0 - flowW);
    s.isCharging = false;
    s.batteryChargePowerW = 0;
    return s;
}

PowerSnapshot at(PowerSnapshot s, double celsius)
{
    s.batteryTemperatureC = celsius;
    return s;
}

PowerSnapshot cellsApart(double spreadMV, double currentA)
{
    PowerSnapshot s = onBattery();
    s.cellVoltagesV = {3.900, 3.900 + spreadMV / 1000, 3.950};
    s.batteryCurrentA = currentA;
    return s;
}

struct Stretch {
    int seconds = 0;
    PowerSnapshot reading;
    bool wakeFirst = false;
    double wallJumpS = 0; // the wall clock jumps before it
    double pauseS = 0; // time passes without readings before it
    std::optional<double> pastUptimeS{}; // its readings carry this earlier uptime
};

Stretch during(int seconds, const PowerSnapshot &reading)
{
    return {seconds, reading};
}

// Charging from `from` to `to` percent, a percent every 30 s.
QList<Stretch> chargeUp(std::int64_t from, std::int64_t to)
{
    QList<Stretch> stretches;
    for (std::int64_t percent = from; percent <= to; ++percent)
        stretches.append(during(30, charging(20, 3.25, 10, percent)));
    return stretches;
}

const char *nameOf(AlertKind kind)
{
    switch (kind) {
    case AlertKind::chargerCannotKeepUp:
        return "charger";
    case AlertKind::chargingSlowly:
        return "slow";
    case AlertKind::batteryHot:
        return "hot";
    case AlertKind::cellsOutOfBalance:
        return "cells";
    case AlertKind::chargeLevelReached:
        return "level";
    }
    return "?";
}

// Feeds the stretches a second at a time from uptime 0; the alerts given as "kind@uptime".
QStringList feed(AlertRules &rules, const QList<Stretch> &stretches)
{
    const WallTime start = WallTime() + std::chrono::hours(24 * 365 * 56);
    QStringList fired;
    double uptimeS = 0;
    double wallS = 0;
    for (const Stretch &stretch : stretches) {
        if (stretch.wakeFirst)
            rules.noteWake(uptimeS);
        wallS += stretch.wallJumpS + stretch.pauseS;
        uptimeS += stretch.pauseS;
        for (int i = 0; i < stretch.seconds; ++i) {
            PowerSnapshot reading = stretch.reading;
            reading.updatedAt = start + std::chrono::seconds(static_cast<std::int64_t>(wallS));
            const double readingS = stretch.pastUptimeS.value_or(uptimeS);
            for (const Alert &alert : rules.add(reading, readingS))
                fired.append(QStringLiteral("%1@%2").arg(QLatin1String(nameOf(alert.kind))).arg(readingS));
            if (!stretch.pastUptimeS) {
                ++uptimeS;
                ++wallS;
            }
        }
    }
    return fired;
}

QStringList fires(std::initializer_list<const char *> names)
{
    QStringList list;
    for (const char *name : names)
        list.append(QLatin1String(name));
    return list;
}

AlertSettings everyAlert()
{
    AlertSettings settings;
    settings.chargeLevelReached = true;
    return settings;
}

} // namespace

Q_DECLARE_METATYPE(Stretch)
Q_DECLARE_METATYPE(AlertSettings)
Q_DECLARE_METATYPE(AlertKind)
Q_DECLARE_METATYPE(PowerSnapshot)

class AlertRulesTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(installTextTable(*QCoreApplication::instance())); }

    void rules_data()
    {
        QTest::addColumn<AlertSettings>("settings");
        QTest::addColumn<QList<Stretch>>("stretches");
        QTest::addColumn<QStringList>("fired");
        const AlertSettings all = everyAlert();
        const PowerSnapshot hot = at(onBattery(), 50.0);

        QTest::newRow("charger short for 2:00") << all << QList{during(121, notCharging(-1.5))} << fires({"charger@120"});
        QTest::newRow("charger short for 1:59") << all << QList{during(120, notCharging(-1.5)), during(60, onBattery())} << QStringList{};
        QTest::newRow("held at a charge limit, never below -1 W") << all << QList{during(600, notCharging(-1.0))} << QStringList{};
        PowerSnapshot chargingShort = notCharging(-3.0);
        chargingShort.isCharging = true;
        QTest::newRow("charging while the battery gives") << all << QList{during(300, chargingShort)} << QStringList{};

        QTest::newRow("USB-C at 5 V") << all << QList{during(121, charging(5.0, 2.0, 6.0))} << fires({"slow@120"});
        QTest::newRow("USB-C at 9 V") << all << QList{during(300, charging(9.0, 2.0, 6.0))} << QStringList{};
        QTest::newRow("adapter below the 10-minute mean")
            << all << QList{during(600, onBattery(60)), during(121, charging(20, 1.5, 10))} << fires({"slow@720"});
        QTest::newRow("no mean before 10 minutes")
            << all << QList{during(300, onBattery(60)), during(200, charging(20, 1.5, 10))} << QStringList{};
        QTest::newRow("heavy draw older than 10 minutes")
            << all << QList{during(300, onBattery(100)), during(600, onBattery(10)), during(300, charging(20, 1.5, 10))} << QStringList{};
        Stretch afterPause = during(300, charging(20, 1.5, 10));
        afterPause.pauseS = 600;
        QTest::newRow("a pause in readings ages the mean") << all << QList{during(300, onBattery(100)), afterPause} << QStringList{};
        QTest::newRow("a draw that is not a number is left out")
            << all << QList{during(300, onBattery(kNaN)), during(300, onBattery(60)), during(121, charging(20, 1.5, 10))}
            << fires({"slow@720"});

        QTest::newRow("45 °C charging for 5:00") << all << QList{during(301, at(charging(20, 3.25, 10), 45.0))} << fires({"hot@300"});
        QTest::newRow("49.9 °C on battery") << all << QList{during(600, at(onBattery(), 49.9))} << QStringList{};
        QTest::newRow("50 °C after the first minute") << all << QList{during(61, hot)} << fires({"hot@60"});
        AlertSettings cooler = all;
        cooler.hotC = 42.0;
        QTest::newRow("a limit of one's own") << cooler << QList{during(61, at(onBattery(), 42.0))} << fires({"hot@60"});

        QTest::newRow("cells 101 mV apart at 0.5 A for 10:00") << all << QList{during(601, cellsApart(101, 0.5))} << fires({"cells@600"});
        QTest::newRow("cells 100 mV apart") << all << QList{during(900, cellsApart(100, 0.0))} << QStringList{};
        QTest::newRow("cells apart under load") << all << QList{during(900, cellsApart(150, -0.6))} << QStringList{};

        PowerSnapshot desktopShort = at(cellsApart(150, 0.0), 60.0);
        desktopShort.isExternalConnected = true;
        desktopShort.batteryFlowW = -5.0;
        PowerSnapshot desktopSlow = charging(5.0, 2.0, 6.0, 0);
        desktopShort.hasBattery = desktopSlow.hasBattery = false;
        PowerSnapshot desktopFull = desktopSlow;
        desktopFull.batteryPercent = 90;
        QTest::newRow("desktop") << all << QList{during(700, desktopShort), during(300, desktopSlow), during(300, desktopFull)} << QStringList{};

        QList<Stretch> charge = chargeUp(77, 82);
        PowerSnapshot heldAtLimit = notCharging(-0.2);
        heldAtLimit.batteryPercent = 82;
        charge << during(600, heldAtLimit) << chargeUp(79, 81);
        QTest::newRow("level once per charge") << all << charge << fires({"level@90"});
        QTest::newRow("level alert off by default") << AlertSettings{} << charge << QStringList{};
        QList<Stretch> twoCharges = chargeUp(77, 80);
        twoCharges << during(1800 - 120, charging(20, 3.25, 10, 80)) << during(600, onBattery()) << chargeUp(78, 80);
        QTest::newRow("level again on the next charge") << all << twoCharges << fires({"level@90", "level@2460"});
        QTest::newRow("plugged in above the level") << all << chargeUp(85, 90) << QStringList{};
    }

    void rules()
    {
        QFETCH(AlertSettings, settings);
        QFETCH(QList<Stretch>, stretches);
        QFETCH(QStringList, fired);
        AlertRules rules(settings);
        QCOMPARE(feed(rules, stretches), fired);
    }

    void timing_data()
    {
        QTest::addColumn<QList<Stretch>>("stretches");
        QTest::addColumn<QStringList>("fired");
        const PowerSnapshot hot = at(onBattery(), 50.0);
        const PowerSnapshot cool = onBattery();
        const PowerSnapshot falling = notCharging(-1.5);
        Stretch woken = during(61, hot);
        woken.wakeFirst = true;

        QTest::newRow("cleared for 5:00") << QList{during(1900, hot), during(300, cool), during(61, hot)} << fires({"hot@60", "hot@2200"});
        QTest::newRow("cleared for 4:59") << QList{during(1900, hot), during(299, cool), during(600, hot)} << fires({"hot@60"});
        QTest::newRow("again within 30 minutes") << QList{during(100, hot), during(600, cool), during(1300, hot)} << fires({"hot@60", "hot@1860"});
        QTest::newRow("quiet minute after wake") << QList{during(100, hot), during(2000, cool), woken} << fires({"hot@60", "hot@2160"});
        Stretch afterWake = during(200, falling);
        afterWake.wakeFirst = true;
        Stretch chargingAfterWake = during(300, charging(20, 1.5, 10));
        chargingAfterWake.wakeFirst = true;
        QTest::newRow("mean starts over after wake") << QList{during(600, onBattery(60)), chargingAfterWake} << QStringList{};
        QTest::newRow("hold starts over after wake") << QList{during(100, falling), afterWake} << fires({"charger@220"});
        Stretch back = during(30, falling), ahead = during(31, falling);
        back.wallJumpS = -3600;
        ahead.wallJumpS = 2 * 86400;
        QTest::newRow("wall clock jumps") << QList{during(60, falling), back, ahead} << fires({"charger@120"});
        Stretch past = during(1, cool);
        past.pastUptimeS = 50;
        QTest::newRow("a reading from the past is ignored") << QList{during(100, falling), past, during(100, falling)} << fires({"charger@120"});
    }

    void timing()
    {
        QFETCH(QList<Stretch>, stretches);
        QFETCH(QStringList, fired);
        AlertRules rules;
        QCOMPARE(feed(rules, stretches), fired);
    }

    void activeLine_data()
    {
        QTest::addColumn<AlertSettings>("settings");
        QTest::addColumn<QList<Stretch>>("stretches");
        QTest::addColumn<QString>("line");
        PowerSnapshot both = at(notCharging(-1.5), 50.0);
        AlertSettings noHeat;
        noHeat.batteryHot = false;
        QTest::newRow("hot from the first reading") << AlertSettings{} << QList{during(1, both)} << QStringLiteral("Battery hot");
        QTest::newRow("two, most urgent first") << AlertSettings{} << QList{during(121, both)} << QStringLiteral("Battery hot and 1 more");
        QTest::newRow("cleared") << AlertSettings{} << QList{during(121, both), during(1, onBattery())} << QString();
        QTest::newRow("switched off") << noHeat << QList{during(121, both)} << QStringLiteral("Charger cannot keep up");
    }

    void activeLine()
    {
        QFETCH(AlertSettings, settings);
        QFETCH(QList<Stretch>, stretches);
        QFETCH(QString, line);
        AlertRules rules(settings);
        feed(rules, stretches);
        QCOMPARE(activeAlertText(rules.activeKinds()), line);
    }

    // The mean over the last ten minutes of readings, or of the last kSlots where they come faster.
    void windowedMean_data()
    {
        QTest::addColumn<double>("stepS");
        QTest::newRow("once a second") << 1.0;
        QTest::newRow("twice a second") << 0.5;
        QTest::newRow("every 5 seconds") << 5.0;
    }

    void windowedMean()
    {
        QFETCH(double, stepS);
        WindowedMean mean(600);
        std::vector<std::pair<double, double>> readings;
        for (int i = 0; i < 2000; ++i) {
            readings.emplace_back(i * stepS, (i * 37) % 101);
            mean.add(readings.back().first, readings.back().second);
        }
        double sum = 0;
        int count = 0;
        for (auto it = readings.rbegin(); it != readings.rend() && it->first > readings.back().first - 600 && count < 600; ++it, ++count)
            sum += it->second;
        QVERIFY(mean.mean());
        QCOMPARE(*mean.mean(), sum / count);
    }

    void texts_data()
    {
        QTest::addColumn<AlertKind>("kind");
        QTest::addColumn<PowerSnapshot>("reading");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("body");
        PowerSnapshot unmeasured = notCharging(-1.5);
        unmeasured.dcCurrentA = 0;
        PowerSnapshot cells = cellsApart(112, 0.1);

        const auto row = [](const char *name, AlertKind kind, const PowerSnapshot &reading, const char *title, const char *body) {
            QTest::newRow(name) << kind << reading << QString::fromUtf8(title) << QString::fromUtf8(body);
        };
        row("charger", AlertKind::chargerCannotKeepUp, notCharging(-1.5), "Charger cannot keep up",
            "The battery has been draining for 2 minutes although external power is connected: adapter 30.0 W (20.00 V, 1.500 A), "
            "system 31.5 W, battery -1.5 W.");
        row("charger, adapter unmeasured", AlertKind::chargerCannotKeepUp, unmeasured, "Charger cannot keep up",
            "The battery has been draining for 2 minutes although external power is connected: system 31.5 W, battery -1.5 W.");
        row("5 V", AlertKind::chargingSlowly, charging(5.0, 2.0, 6.0), "Charging slowly",
            "The USB-C source supplies only 5.00 V, so the battery charges slowly: adapter 10.0 W, system 6.0 W, battery +4.0 W.");
        row("adapter", AlertKind::chargingSlowly, charging(20, 1.5, 10), "Charging slowly",
            "The adapter supplies less than the system drew on average over the last 10 minutes, so the battery charges slowly: "
            "adapter 30.0 W, system 37.4 W.");
        row("hot", AlertKind::batteryHot, at(onBattery(), 51.5), "Battery hot", "The battery is at 51.5 °C, at or above the limit of 50.0 °C.");
        row("hot charging", AlertKind::batteryHot, at(charging(20, 3.25, 10), 46.2), "Battery hot",
            "The battery has been at 45.0 °C or warmer for 5 minutes while charging: now 46.2 °C.");
        row("cells", AlertKind::cellsOutOfBalance, cells, "Battery cells out of balance",
            "The cell voltages have been more than 100 mV apart for 10 minutes at rest: now 112 mV apart (3.900 V to 4.012 V).");
        row("level", AlertKind::chargeLevelReached, charging(20, 3.25, 10, 80), "Charge level reached",
            "The battery has reached the chosen level of 80%.");
    }

    void texts()
    {
        QFETCH(AlertKind, kind);
        QFETCH(PowerSnapshot, reading);
        QFETCH(QString, title);
        QFETCH(QString, body);
        QCOMPARE(describeAlert(kind, reading, AlertSettings{}, 37.4), (Alert{kind, title, body}));
    }
};

QTEST_GUILESS_MAIN(AlertRulesTest)
#include "tst_alert_rules.moc"
