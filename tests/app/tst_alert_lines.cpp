#include "app/alert_lines.h"
#include "app/text_table.h"

#include <QCoreApplication>
#include <QTest>

using namespace ferrow;

// The lines the terminal view prints for alerts, fed a minute and a half of readings.
class TestAlertLines : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(installTextTable(*QCoreApplication::instance())); }

    void lines_data()
    {
        QTest::addColumn<bool>("json");
        QTest::addColumn<bool>("hotAlertOn");
        QTest::addColumn<double>("celsius");
        QTest::addColumn<QStringList>("expected");

        const QString body = QStringLiteral("The battery is at 50.0 \u00B0C, at or above the limit of 50.0 \u00B0C.");
        QTest::newRow("plain") << false << true << 50.0 << QStringList{QStringLiteral("ALERT Battery hot: ") + body};
        QTest::newRow("json") << true << true << 50.0
                              << QStringList{QStringLiteral(R"({"alert":"battery_hot","body":"%1","title":"Battery hot"})").arg(body)};
        QTest::newRow("nothing to say") << false << true << 31.0 << QStringList{};
        QTest::newRow("switched off") << true << false << 50.0 << QStringList{};
    }

    void lines()
    {
        QFETCH(bool, json);
        QFETCH(bool, hotAlertOn);
        QFETCH(double, celsius);
        QFETCH(QStringList, expected);

        AlertSettings settings;
        settings.batteryHot = hotAlertOn;
        AlertLines alertLines(settings, json);
        PowerSnapshot reading;
        reading.hasBattery = reading.isDataAvailable = true;
        reading.systemPowerW = 8.0;
        reading.batteryFlowW = -8.0;
        reading.batteryPercent = 60;
        reading.batteryTemperatureC = celsius;
        QStringList printed;
        for (int second = 0; second <= 90; ++second)
            printed += alertLines.add(reading, second);
        QCOMPARE(printed, expected);
    }
};

QTEST_GUILESS_MAIN(TestAlertLines)
#include "tst_alert_lines.moc"
