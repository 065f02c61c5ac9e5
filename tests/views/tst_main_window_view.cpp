#include "app/app_services.h"
#include "app/text_table.h"
#include "model/power_history.h"
#include "platform/recorded/recorded_machine.h"
#include "views/main_window_view.h"
#include "views/power_history_chart.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace ferrow;
using namespace std::chrono_literals;

namespace {

PowerSnapshot recorded(const char *folder)
{
    return *readRecordedSnapshot(QStringLiteral(QT_TESTCASE_SOURCEDIR "/fixtures/") + QLatin1String(folder), nullptr);
}

// Readings a second apart for ten minutes, with a sleep of a minute in the middle.
PowerHistory historyWithAGap()
{
    PowerHistory history;
    const WallTime start = std::chrono::system_clock::now() - 11min;
    for (int second = 0; second < 11 * 60; ++second) {
        if (second >= 300 && second < 360)
            continue;
        PowerSnapshot s;
        s.isExternalConnected = true;
        s.isDataAvailable = true;
        s.dcPowerW = 20 + second % 7;
        s.updatedAt = start + std::chrono::seconds(second);
        history.append(s);
    }
    return history;
}

} // namespace

class MainWindowViewTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(installTextTable(*QCoreApplication::instance()));
        registerBrandFonts();
    }

    void windowOfEachMachine_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("notebook") << QStringLiteral("notebook-battery-27");
        QTest::newRow("desktop") << QStringLiteral("desktop-26");
    }

    void windowOfEachMachine()
    {
        QFETCH(QString, folder);
        MainWindowView window;
        window.setSnapshot(recorded(folder.toLatin1().constData()));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.size(), QSize(1040, 720));
        QCOMPARE(window.minimumSize(), QSize(900, 620));
        QCOMPARE(window.selection(), MainSection::overview);

        // Picking a section scrolls it to the top and selects it, even the last one.
        for (const MainSection section : {MainSection::cells, MainSection::history, MainSection::power}) {
            window.pickSection(section);
            QCOMPARE(window.selection(), section);
            QTRY_VERIFY(qAbs(window.sectionBlock(section)->mapTo(window.detailScrollArea()->viewport(), QPoint()).y() - 24) <= 1);
            QTest::qWait(20);
            QCOMPARE(window.selection(), section);
        }

        // Scrolling by hand moves the selection without starting a scroll of its own.
        QScrollBar *bar = window.detailScrollArea()->verticalScrollBar();
        const int battery = window.sectionBlock(MainSection::battery)->mapTo(window.detailScrollArea()->widget(), QPoint()).y();
        bar->setValue(battery - 40);
        QCOMPARE(window.selection(), MainSection::battery);
        bar->setValue(0);
        QCOMPARE(window.selection(), MainSection::overview);
        QCOMPARE(bar->value(), 0);
    }

    void refreshAsksForAReading()
    {
        MainWindowView window;
        QSignalSpy refresh(&window, &MainWindowView::refreshRequested);
        window.findChild<QToolButton *>(QStringLiteral("refresh"))->click();
        QCOMPARE(refresh.size(), 1);
    }

    void chartDrawsRunsSeparately()
    {
        PowerHistoryChart chart;
        chart.setHistory(PowerHistory());
        QVERIFY(chart.isWaiting());
        QVERIFY(chart.averageText().endsWith(QStringLiteral("\u2014")));

        const PowerHistory history = historyWithAGap();
        chart.setMinutes(15);
        chart.setHistory(history);
        QVERIFY(!chart.isWaiting());
        QCOMPARE(chart.visibleLineCount(), 2);
        QCOMPARE(chart.visiblePointCount(), qsizetype(history.samples().size()));

        chart.setMinutes(5); // the gap is more than five minutes back: one run
        QCOMPARE(chart.visibleLineCount(), 1);
        QCOMPARE(chart.visiblePointCount(), 5 * 60); // the window opens at second 359, inside the gap
        QVERIFY(chart.peakText().endsWith(QStringLiteral("26.0 W")));
    }
};

QTEST_MAIN(MainWindowViewTest)
#include "tst_main_window_view.moc"
