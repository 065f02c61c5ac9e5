#include "app/app_services.h"
#include "app/text_table.h"
#include "platform/recorded/recorded_machine.h"
#include "views/dashboard_view.h"
#include "views/meter_card.h"
#include "views/power_flow_view.h"

#include <QApplication>
#include <QLabel>
#include <QTest>

using namespace ferrow;

namespace {

const QString kFixtures = QStringLiteral(QT_TESTCASE_SOURCEDIR "/fixtures/");

PowerSnapshot recorded(const char *folder)
{
    QString error;
    const std::optional<PowerSnapshot> snapshot = readRecordedSnapshot(kFixtures + QLatin1String(folder), &error);
    if (!snapshot)
        qFatal("%s", qPrintable(error));
    return *snapshot;
}

// Whether any pixel in the region is within a few steps of the colour.
bool hasColour(const QImage &image, const QRect &region, const QColor &colour)
{
    for (int y = region.top(); y <= region.bottom(); ++y) {
        for (int x = region.left(); x <= region.right(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (qAbs(pixel.red() - colour.red()) < 12 && qAbs(pixel.green() - colour.green()) < 12 && qAbs(pixel.blue() - colour.blue()) < 12)
                return true;
        }
    }
    return false;
}

} // namespace

class DashboardViewTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(installTextTable(*QCoreApplication::instance()));
        registerBrandFonts();
    }

    void rendersEachMachine_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<bool>("dark");
        QTest::addColumn<QString>("powerMeter");
        QTest::addColumn<bool>("gaugeShown");
        for (const bool dark : {false, true}) {
            const char *scheme = dark ? "dark" : "light";
            QTest::addRow("notebook on adapter, %s", scheme) << QStringLiteral("notebook-charging-26") << dark << QStringLiteral("PWR 46.38480 W") << true;
            QTest::addRow("notebook on battery, %s", scheme) << QStringLiteral("notebook-battery-27") << dark << QStringLiteral("PWR -22.40000 W") << true;
            QTest::addRow("desktop, %s", scheme) << QStringLiteral("desktop-26") << dark << QStringLiteral("PWR 35.00000 W") << false;
        }
    }

    void rendersEachMachine()
    {
        QFETCH(QString, folder);
        QFETCH(bool, dark);
        QFETCH(QString, powerMeter);
        QFETCH(bool, gaugeShown);

        DashboardView dashboard;
        const FerrowPalette palette{dark ? ColorScheme::dark : ColorScheme::light};
        dashboard.setFerrowPalette(palette);
        dashboard.setSnapshot(recorded(folder.toLatin1().constData()));
        dashboard.setVersion(QStringLiteral("1.4.2"));
        dashboard.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dashboard));

        const QImage image = dashboard.grab().toImage();
        QCOMPARE(image.size() / image.devicePixelRatio(), DashboardView::kSize);
        QCOMPARE(image.pixelColor(5, 200).rgb(), palette.panelBackground().rgb());
        QVERIFY2(hasColour(image, QRect(300, 15, 125, 20), FixedColor::liveGreen), "the live dot");
        QVERIFY(hasColour(image, QRect(10, 60, 130, 50), FixedColor::meterInput));

        const QList<MeterCard *> meters = dashboard.findChildren<MeterCard *>();
        QCOMPARE(meters.size(), 3);
        QVERIFY2(meters[2]->accessibleName() == powerMeter, qPrintable(meters[2]->accessibleName()));

        const QWidget *battery = dashboard.findChild<QWidget *>(QStringLiteral("battery"));
        const QRect gauge = battery->geometry().translated(battery->parentWidget()->pos()).adjusted(10, 24, -10, -40);
        QCOMPARE(hasColour(image, gauge, palette.positive()), gaugeShown);
        QCOMPARE(dashboard.findChild<QLabel *>(QStringLiteral("version"))->text(), QStringLiteral("v1.4.2"));
    }

    void waitingShowsTheOrangeDot()
    {
        DashboardView dashboard;
        PowerSnapshot waiting = recorded("notebook-battery-27");
        waiting.isDataAvailable = false;
        dashboard.setSnapshot(waiting);
        dashboard.show();
        const QImage image = dashboard.grab().toImage();
        QVERIFY(hasColour(image, QRect(300, 15, 125, 20), FixedColor::orange));
        QVERIFY(!hasColour(image, QRect(300, 15, 125, 20), FixedColor::liveGreen));
    }

    void flowAnimatesOnlyWhileShownAndMoving()
    {
        DashboardView dashboard;
        PowerFlowView *flow = dashboard.flowView();
        QVERIFY(!flow->isAnimating());
        dashboard.show();
        QVERIFY(flow->isAnimating());
        dashboard.setReduceMotion(true);
        QVERIFY(!flow->isAnimating());
        dashboard.setReduceMotion(false);
        QVERIFY(flow->isAnimating());
        dashboard.hide();
        QVERIFY(!flow->isAnimating());
    }

};

QTEST_MAIN(DashboardViewTest)
#include "tst_dashboard_view.moc"
