#include "app/app_services.h"
#include "app/app_settings.h"
#include "app/menu_bar_label.h"
#include "app/popover_placement.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

Q_DECLARE_METATYPE(ferrow::AlertSettings)

using namespace ferrow;

class AppServicesTest : public QObject {
    Q_OBJECT

private slots:
    void versionString_data()
    {
        QTest::addColumn<QVariant>("shortVersion");
        QTest::addColumn<QVariant>("build");
        QTest::addColumn<QString>("shown");
        QTest::newRow("short version") << QVariant(QStringLiteral("1.2.0")) << QVariant(QStringLiteral("7")) << QStringLiteral("1.2.0");
        QTest::newRow("empty short version, build 42") << QVariant(QString()) << QVariant(QStringLiteral("42")) << QStringLiteral("42");
        QTest::newRow("empty build counts") << QVariant() << QVariant(QString()) << QString();
        QTest::newRow("neither") << QVariant() << QVariant() << QStringLiteral("\u2014");
    }

    void versionString()
    {
        QFETCH(QVariant, shortVersion);
        QFETCH(QVariant, build);
        QFETCH(QString, shown);
        const auto text = [](const QVariant &v) { return v.isValid() ? std::optional(v.toString()) : std::nullopt; };
        QCOMPARE(appVersionString(text(shortVersion), text(build)), shown);
    }

    void popoverPosition_data()
    {
        QTest::addColumn<QRect>("trayItem");
        QTest::addColumn<QRect>("screen");
        QTest::addColumn<QPoint>("cursor");
        QTest::addColumn<QPoint>("position");
        const QRect screen(0, 24, 1920, 1056); // a top panel of 24 pixels
        QTest::newRow("under an item in a top panel") << QRect(900, 0, 24, 24) << screen << QPoint() << QPoint(696, 28);
        QTest::newRow("kept inside the right edge") << QRect(1890, 0, 24, 24) << screen << QPoint() << QPoint(1486, 28);
        QTest::newRow("over an item in a bottom panel") << QRect(60, 1052, 24, 28) << QRect(0, 0, 1920, 1050) << QPoint()
                                                        << QPoint(4, 486);
        QTest::newRow("no tray geometry: at the cursor") << QRect() << screen << QPoint(1000, 500) << QPoint(785, 505);
        QTest::newRow("second screen") << QRect(2900, 0, 24, 24) << QRect(1920, 24, 1280, 1000) << QPoint() << QPoint(2696, 28);
    }

    void popoverPosition()
    {
        QFETCH(QRect, trayItem);
        QFETCH(QRect, screen);
        QFETCH(QPoint, cursor);
        QFETCH(QPoint, position);
        QCOMPARE(ferrow::popoverPosition(trayItem, QSize(430, 560), screen, cursor), position);
    }

    void menuBarFigure_data()
    {
        QTest::addColumn<bool>("hasBattery");
        QTest::addColumn<bool>("external");
        QTest::addColumn<bool>("dataAvailable");
        QTest::addColumn<double>("dcPowerW");
        QTest::addColumn<double>("flowW");
        QTest::addColumn<QString>("figure");
        QTest::addColumn<bool>("bolt");
        QTest::newRow("charging: the adapter's power") << true << true << true << 61.24 << 30.0 << QStringLiteral("61.2 W") << true;
        QTest::newRow("on battery: the signed flow") << true << false << true << 0.0 << -8.44 << QStringLiteral("-8.4 W") << false;
        QTest::newRow("on battery, no telemetry") << true << false << false << 0.0 << -8.0 << QStringLiteral("\u2014 W") << false;
        QTest::newRow("desktop") << false << true << true << 35.0 << 0.0 << QStringLiteral("35.0 W") << true;
        QTest::newRow("before the first reading") << false << false << false << 0.0 << 0.0 << QStringLiteral("0.0 W") << false;
    }

    void menuBarFigure()
    {
        QFETCH(bool, hasBattery);
        QFETCH(bool, external);
        QFETCH(bool, dataAvailable);
        QFETCH(double, dcPowerW);
        QFETCH(double, flowW);
        QFETCH(QString, figure);
        QFETCH(bool, bolt);
        PowerSnapshot s;
        s.hasBattery = hasBattery;
        s.isExternalConnected = external;
        s.isDataAvailable = dataAvailable;
        s.dcPowerW = dcPowerW;
        s.batteryFlowW = flowW;
        QCOMPARE(menuBarFigureText(s), figure);
        QCOMPARE(menuBarGlyph(menuBarReading(s, true, {})) == Glyph::bolt, bolt);
    }

    void trayIconFigure_data()
    {
        QTest::addColumn<QVariant>("powerW");
        QTest::addColumn<QString>("figure");
        QTest::newRow("whole watts from 10") << QVariant(61.24) << QStringLiteral("61");
        QTest::newRow("a decimal below 10") << QVariant(8.44) << QStringLiteral("8.4");
        QTest::newRow("negative") << QVariant(-8.44) << QStringLiteral("-8.4");
        QTest::newRow("rounds up into whole watts") << QVariant(9.96) << QStringLiteral("10");
        QTest::newRow("absent") << QVariant() << QStringLiteral("\u2014");
    }

    void trayIconFigure()
    {
        QFETCH(QVariant, powerW);
        QFETCH(QString, figure);
        QCOMPARE(ferrow::trayIconFigure(powerW.isValid() ? std::optional(powerW.toDouble()) : std::nullopt), figure);
    }

    // Where the tray icon is drawn: the bounding box of its white ink on the dark tile.
    void trayIconInk_data()
    {
        QTest::addColumn<bool>("external");
        QTest::addColumn<bool>("showPower");
        QTest::addColumn<int>("side");
        QTest::addColumn<QSize>("atLeast");
        QTest::addColumn<int>("atMostHigh");
        // At panel sizes a figure would be a smudge: the glyph fills the icon instead.
        QTest::newRow("battery, 22 px") << false << true << 22 << QSize(15, 6) << 10;
        QTest::newRow("bolt, 24 px") << true << true << 24 << QSize(8, 15) << 24;
        QTest::newRow("battery, 48 px, figure off") << false << false << 48 << QSize(32, 14) << 24;
        // Where it can be read, the figure sits under the glyph.
        QTest::newRow("battery, 48 px, figure") << false << true << 48 << QSize(30, 34) << 48;
    }

    void trayIconInk()
    {
        QFETCH(bool, external);
        QFETCH(bool, showPower);
        QFETCH(int, side);
        QFETCH(QSize, atLeast);
        QFETCH(int, atMostHigh);
        MenuBarReading reading;
        reading.onExternalPower = external;
        reading.powerW = -12.3;
        reading.showsPower = showPower;
        const QImage image = renderTrayIcon(reading).pixmap(side, side).toImage();
        QCOMPARE(image.size(), QSize(side, side));
        QRect ink;
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x)
                if (qGray(image.pixel(x, y)) > 160 && qAlpha(image.pixel(x, y)) > 200)
                    ink |= QRect(x, y, 1, 1);
        QVERIFY2(ink.width() >= atLeast.width() && ink.height() >= atLeast.height() && ink.height() <= atMostHigh,
                 qPrintable(QStringLiteral("ink %1 x %2").arg(ink.width()).arg(ink.height())));
    }

    void settingsAreReadDefensively_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<bool>("read");
        QTest::newRow("missing: default") << QVariant() << true;
        QTest::newRow("false") << QVariant(false) << false;
        QTest::newRow("text false") << QVariant(QStringLiteral("false")) << false;
        QTest::newRow("text 1") << QVariant(QStringLiteral("1")) << true;
        QTest::newRow("number 0") << QVariant(0) << false;
        QTest::newRow("garbage: default") << QVariant(QStringLiteral("maybe")) << true;
        QTest::newRow("binary garbage: default") << QVariant(QByteArray("\x00\xff", 2)) << true;
    }

    void settingsAreReadDefensively()
    {
        QFETCH(QVariant, stored);
        QFETCH(bool, read);
        QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("settings.ini"));
        {
            QSettings writer(file, QSettings::IniFormat);
            if (stored.isValid())
                writer.setValue(PreferenceKey::showPowerInMenuBar, stored);
        }
        const QSettings reader(file, QSettings::IniFormat);
        QCOMPARE(readPreferences(reader).showPowerInMenuBar, read);
        QCOMPARE(readPreferences(reader).appearance, Appearance::system); // absent

        // What one program writes, the other reads back as it was.
        QSettings writer(file, QSettings::IniFormat);
        Preferences chosen{!read, true, true, Appearance::dark};
        chosen.alerts = AlertSettings{false, false, false, false, true, 40.5, 55.0, 90};
        QVERIFY(writePreferences(writer, chosen));
        QCOMPARE(readPreferences(writer), chosen);
        QCOMPARE(QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions()); // the user's alone
    }

    void alertSettingsAreReadDefensively_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<AlertSettings>("read");
        const auto with = [](auto member, auto value) {
            AlertSettings settings;
            settings.*member = value;
            return settings;
        };
        QTest::newRow("limit as text") << PreferenceKey::alertHotCelsius << QVariant(QStringLiteral(" 55 ")) << with(&AlertSettings::hotC, 55.0);
        QTest::newRow("limit out of range") << PreferenceKey::alertHotCelsius << QVariant(120) << AlertSettings{};
        QTest::newRow("limit not a number") << PreferenceKey::alertHotWhileChargingCelsius << QVariant(QStringLiteral("nan")) << AlertSettings{};
        QTest::newRow("level") << PreferenceKey::alertChargeLevelPercent << QVariant(90) << with(&AlertSettings::chargeLevelPercent, std::int64_t{90});
        QTest::newRow("level in between") << PreferenceKey::alertChargeLevelPercent << QVariant(85.5) << AlertSettings{};
        QTest::newRow("switched on") << PreferenceKey::alertChargeLevelReached << QVariant(QStringLiteral("true"))
                                     << with(&AlertSettings::chargeLevelReached, true);
    }

    void alertSettingsAreReadDefensively()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, stored);
        QFETCH(AlertSettings, read);
        QTemporaryDir folder;
        QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
        settings.setValue(key, stored);
        settings.sync();
        QCOMPARE(readPreferences(QSettings(settings.fileName(), QSettings::IniFormat)).alerts, read);
    }
};

QTEST_MAIN(AppServicesTest)
#include "tst_app_services.moc"
