#include "app/app_services.h"
#include "app/text_table.h"
#include "model/localized_text.h"
#include "model/power_history.h"
#include "platform/recorded/recorded_machine.h"
#include "views/accessible_content.h"
#include "views/app_painting.h"
#include "views/dashboard_view.h"
#include "views/main_window_view.h"
#include "views/meter_card.h"
#include "views/power_flow_view.h"
#include "views/power_history_chart.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QChartView>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QSplitter>
#include <QTest>
#include <QToolButton>

using namespace ferrow;
using namespace std::chrono_literals;

Q_DECLARE_METATYPE(ferrow::PowerSnapshot)
Q_DECLARE_METATYPE(ferrow::AlertSettings)

namespace {

PowerSnapshot recorded(const char *folder)
{
    QString error;
    const std::optional<PowerSnapshot> snapshot = readRecordedSnapshot(QStringLiteral(QT_TESTCASE_SOURCEDIR "/fixtures/") + QLatin1String(folder), &error);
    if (!snapshot)
        qFatal("%s", qPrintable(error));
    return *snapshot;
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

// The pieces under root given less height than they ask for although they cannot shrink: a layout
// squeezing them clips what they draw.
QStringList squeezed(const QWidget *root)
{
    QStringList pieces;
    for (const QWidget *piece : root->findChildren<QWidget *>()) {
        if (piece->isVisibleTo(root) && !(piece->sizePolicy().verticalPolicy() & QSizePolicy::ShrinkFlag)
            && piece->height() < piece->sizeHint().height())
            pieces << QString::fromLatin1(piece->metaObject()->className()) + u'#' + piece->objectName();
    }
    return pieces;
}

// Where the accessible tree under element does not hang together: a child that does not name its
// parent as such, or is not found where it stands. The parts painted in a widget are collected.
QStringList misplacedChildren(QAccessibleInterface *element, std::vector<QAccessibleInterface *> &parts)
{
    QStringList misplaced;
    for (int i = 0; i < element->childCount(); ++i) {
        QAccessibleInterface *child = element->child(i);
        const QString where = element->text(QAccessible::Name) + u'/' + QString::number(i);
        if (!child || child->parent() != element || element->indexOfChild(child) != i) {
            misplaced << where;
            continue;
        }
        if (!child->object())
            parts.push_back(child);
        misplaced << misplacedChildren(child, parts);
    }
    return misplaced;
}

// Every field away from its default: a control the settings did not reach tells its default.
AlertSettings alertSettingsGiven()
{
    return {false, true, false, true, true, 35.5, 62.0, 95};
}

} // namespace

class ViewsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(installTextTable(*QCoreApplication::instance()));
        registerBrandFonts();
        installViewAccessibility();
    }

    void rendersEachMachine_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<bool>("dark");
        QTest::addColumn<QString>("powerMeter");
        QTest::addColumn<bool>("gaugeShown");
        QTest::addColumn<bool>("live"); // else waiting for telemetry: an orange dot
        for (const bool dark : {false, true}) {
            const char *scheme = dark ? "dark" : "light";
            QTest::addRow("notebook on adapter, %s", scheme) << QStringLiteral("notebook-charging-26") << dark << QStringLiteral("PWR 46.38480 W") << true << true;
            QTest::addRow("notebook on battery, %s", scheme) << QStringLiteral("notebook-battery-27") << dark << QStringLiteral("PWR -22.40000 W") << true << true;
            QTest::addRow("desktop, %s", scheme) << QStringLiteral("desktop-26") << dark << QStringLiteral("PWR 35.00000 W") << false << true;
        }
        QTest::newRow("notebook waiting") << QStringLiteral("notebook-battery-27") << false << QStringLiteral("PWR \u2014 W") << true << false;
    }

    void rendersEachMachine()
    {
        QFETCH(QString, folder);
        QFETCH(bool, dark);
        QFETCH(QString, powerMeter);
        QFETCH(bool, gaugeShown);
        QFETCH(bool, live);

        DashboardView dashboard;
        const FerrowPalette palette{dark ? ColorScheme::dark : ColorScheme::light};
        dashboard.setFerrowPalette(palette);
        PowerSnapshot snapshot = recorded(folder.toLatin1().constData());
        snapshot.isDataAvailable = live;
        dashboard.setSnapshot(snapshot);
        if (gaugeShown) // a desktop keeps the card's line that there is nothing yet
            dashboard.setTopApplications({{AppEnergy{AppEnergy::Kind::application, QStringLiteral("a"), QStringLiteral("A"), {}, 36.0, 1, 60, AttributionMethod::measured},
                                           AppEnergy{AppEnergy::Kind::self, QStringLiteral("f"), QStringLiteral("F"), {}, 3.6, 1, 60, AttributionMethod::measured},
                                           AppEnergy{AppEnergy::Kind::application, QStringLiteral("b"), QStringLiteral("B"), {}, 7.2, 1, 60, AttributionMethod::measured}},
                                          60,
                                          AttributionMethod::measured});
        dashboard.setVersion(QStringLiteral("1.4.2"));
        dashboard.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dashboard));

        const QImage image = dashboard.grab().toImage();
        QCOMPARE(image.size() / image.devicePixelRatio(), DashboardView::kSize);
        QCOMPARE(image.pixelColor(5, 200).rgb(), palette.panelBackground().rgb());
        QCOMPARE(hasColour(image, QRect(300, 15, 125, 20), FixedColor::liveGreen), live);
        QCOMPARE(hasColour(image, QRect(300, 15, 125, 20), FixedColor::orange), !live);
        QVERIFY(hasColour(image, QRect(10, 60, 130, 50), FixedColor::meterInput));

        const QList<MeterCard *> meters = dashboard.findChildren<MeterCard *>();
        QCOMPARE(meters.size(), 3);
        const QString meterName = QAccessible::queryAccessibleInterface(meters[2])->text(QAccessible::Name);
        QVERIFY2(meterName == powerMeter, qPrintable(meterName));

        const QWidget *battery = dashboard.findChild<QWidget *>(QStringLiteral("battery"));
        const QRect gauge = battery->geometry().translated(battery->parentWidget()->pos()).adjusted(10, 24, -10, -40);
        QCOMPARE(hasColour(image, gauge, palette.positive()), gaugeShown);
        QCOMPARE(dashboard.findChild<QLabel *>(QStringLiteral("version"))->text(), QStringLiteral("v1.4.2"));
        QVERIFY2(squeezed(&dashboard).isEmpty(), qPrintable(squeezed(&dashboard).join(u' ')));
    }

    // A screen reader walks up and down the tree, and keeps what it found: after a reading that
    // takes rows and panels away, the tree still hangs together and what went reads as nothing.
    void accessibleTreeHangsTogether()
    {
        DashboardView dashboard;
        MainWindowView window;
        std::vector<QAccessibleInterface *> parts;
        for (const char *folder : {"notebook-charging-26", "desktop-26"}) {
            dashboard.setSnapshot(recorded(folder));
            window.setSnapshot(recorded(folder));
            dashboard.show();
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            std::vector<QAccessibleInterface *> found;
            for (QWidget *root : {static_cast<QWidget *>(&dashboard), static_cast<QWidget *>(&window)}) {
                const QStringList misplaced = misplacedChildren(QAccessible::queryAccessibleInterface(root), found);
                QVERIFY2(misplaced.isEmpty(), qPrintable(misplaced.join(u' ')));
            }
            QVERIFY(found.size() > 30); // the walk reaches the painted readings
            parts.insert(parts.end(), found.begin(), found.end());
        }
        int gone = 0;
        for (QAccessibleInterface *part : parts) {
            if (part->isValid())
                continue;
            ++gone;
            QVERIFY(part->text(QAccessible::Name).isEmpty());
        }
        QVERIFY(gone > 0); // the battery's rows, among others
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

    // A panel is as tall as the reading's rows, tiles or notes: after a reading that adds or takes
    // some away, as tall as in a window that showed that reading first, and nothing in it squeezed.
    void panelsFollowTheirContent_data()
    {
        QTest::addColumn<PowerSnapshot>("before");
        QTest::addColumn<PowerSnapshot>("after");
        const PowerSnapshot notebook = recorded("notebook-battery-27");
        const PowerSnapshot desktop = recorded("desktop-26");
        PowerSnapshot noCells = notebook;
        noCells.cellVoltagesV.clear();
        PowerSnapshot moreCells = notebook;
        moreCells.cellVoltagesV.resize(9, 3.9);
        moreCells.cellVoltageSource.reset();
        QTest::newRow("desktop, then a notebook") << desktop << notebook;
        QTest::newRow("notebook, then a desktop") << notebook << desktop;
        QTest::newRow("cells gone") << notebook << noCells;
        QTest::newRow("more cells, no source line") << notebook << moreCells;
    }

    void panelsFollowTheirContent()
    {
        QFETCH(PowerSnapshot, before);
        QFETCH(PowerSnapshot, after);
        MainWindowView changed;
        changed.setSnapshot(before);
        changed.show();
        QVERIFY(QTest::qWaitForWindowExposed(&changed));
        changed.setSnapshot(after);
        MainWindowView fresh;
        fresh.setSnapshot(after);
        fresh.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fresh));
        for (const char *name : {"distribution", "batteryPanel", "cellsPanel", "devicePanel"}) {
            const QWidget *panel = changed.findChild<QWidget *>(QLatin1String(name));
            QTRY_COMPARE(panel->height(), fresh.findChild<QWidget *>(QLatin1String(name))->height());
            QVERIFY2(squeezed(panel).isEmpty(), qPrintable(squeezed(panel).join(u' ')));
        }
    }

    // The sidebar starts 208 wide and is dragged by dragW; the detail column fills what is left up
    // to 880 points, from the leading edge, whether the sidebar shows or not.
    void layoutAtWidth_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("dragW");
        QTest::addColumn<int>("sidebarW"); // 0: collapsed
        QTest::newRow("minimum window, sidebar narrowed past its least") << 900 << -60 << 184;
        QTest::newRow("first size, sidebar widened past its most") << 1040 << 100 << 244;
        QTest::newRow("wide window, sidebar a little wider") << 1400 << 20 << 228;
        QTest::newRow("sidebar dragged away") << 1040 << -180 << 0;
    }

    void layoutAtWidth()
    {
        QFETCH(int, width);
        QFETCH(int, dragW);
        QFETCH(int, sidebarW);
        MainWindowView window;
        window.setSnapshot(recorded("notebook-battery-27"));
        window.resize(width, 720);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QSplitter *split = window.splitter();
        const auto detailColumnFills = [&] {
            const QWidget *column = window.findChild<QWidget *>(QStringLiteral("detailColumn"));
            QCOMPARE(column->x(), 0);
            QCOMPARE(column->width(), std::min(880, window.detailScrollArea()->viewport()->width()));
        };
        QCOMPARE(split->sizes().constFirst(), 208);
        detailColumnFills();

        QWidget *handle = split->handle(1);
        const QPoint grip(handle->width() / 2, handle->height() / 2);
        QTest::mousePress(handle, Qt::LeftButton, {}, grip);
        QTest::mouseMove(handle, grip + QPoint(dragW, 0));
        QTest::mouseRelease(handle, Qt::LeftButton, {}, grip + QPoint(dragW, 0));
        const int draggedW = split->sizes().constFirst();
        QVERIFY2(qAbs(draggedW - sidebarW) <= 2, qPrintable(QString::number(draggedW))); // the thin handle's grip is 2 points off its line
        QCOMPARE(window.sidebarToggle()->isChecked(), sidebarW > 0);
        QTRY_VERIFY(window.findChild<QWidget *>(QStringLiteral("detailColumn"))->width() == std::min(880, window.detailScrollArea()->viewport()->width()));

        // The toggle hides the sidebar and brings it back as wide as it was last shown.
        if (sidebarW > 0)
            window.sidebarToggle()->trigger();
        QCOMPARE(split->sizes().constFirst(), 0);
        window.sidebarToggle()->trigger();
        QCOMPARE(split->sizes().constFirst(), sidebarW > 0 ? draggedW : 208);

        // A long status takes a second line rather than being cut.
        QLabel *status = window.findChild<QLabel *>(QStringLiteral("sidebarStatus"));
        status->setText(QStringLiteral("Power connected, not charging"));
        QTRY_VERIFY(status->height() >= status->heightForWidth(status->width()));
        QVERIFY(status->geometry().right() < window.findChild<QWidget *>(QStringLiteral("sidebar"))->width());

        // The footer's divider sits right under the scrolling column.
        const QWidget *divider = window.findChild<QWidget *>(QStringLiteral("footerDivider"));
        QVERIFY(divider);
        QCOMPARE(divider->mapTo(&window, QPoint()).y(), window.detailScrollArea()->mapTo(&window, QPoint(0, window.detailScrollArea()->height())).y());
    }

    void refreshAsksForAReading()
    {
        MainWindowView window;
        QSignalSpy refresh(&window, &MainWindowView::refreshRequested);
        window.findChild<QToolButton *>(QStringLiteral("refresh"))->click();
        QCOMPARE(refresh.size(), 1);
    }

    // Each control tells of the user's change with that field alone changed from the settings
    // given by the code, which show without being told back.
    void alertSettingsFollowTheUser_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<AlertSettings>("expected");
        const AlertSettings given = alertSettingsGiven();
        const auto changed = [&](auto member, auto value) {
            AlertSettings settings = given;
            settings.*member = value;
            return settings;
        };
        QTest::newRow("charger") << "alertChargerCannotKeepUp" << changed(&AlertSettings::chargerCannotKeepUp, true);
        QTest::newRow("slow charge") << "alertChargingSlowly" << changed(&AlertSettings::chargingSlowly, false);
        QTest::newRow("hot") << "alertBatteryHot" << changed(&AlertSettings::batteryHot, true);
        QTest::newRow("cells") << "alertCellsOutOfBalance" << changed(&AlertSettings::cellsOutOfBalance, false);
        QTest::newRow("charge level") << "alertChargeLevelReached" << changed(&AlertSettings::chargeLevelReached, false);
        QTest::newRow("hot while charging") << "alertHotWhileCharging" << changed(&AlertSettings::hotWhileChargingC, 41.5);
        QTest::newRow("hot at any time") << "alertHot" << changed(&AlertSettings::hotC, 68.0);
        QTest::newRow("level") << "alertChargeLevel" << changed(&AlertSettings::chargeLevelPercent, std::int64_t{1});
    }

    void alertSettingsFollowTheUser()
    {
        QFETCH(QString, control);
        QFETCH(AlertSettings, expected);
        MainWindowView window;
        QSignalSpy changes(&window, &MainWindowView::alertSettingsChanged);
        window.setAlertSettings(alertSettingsGiven());
        QCOMPARE(changes.size(), 0);
        const auto *panel = window.findChild<QWidget *>(QStringLiteral("alertsPanel"));
        if (auto *box = panel->findChild<QCheckBox *>(control))
            box->click();
        else if (auto *temperature = panel->findChild<QDoubleSpinBox *>(control))
            temperature->setValue(control == u"alertHot" ? expected.hotC : expected.hotWhileChargingC);
        else
            panel->findChild<QSpinBox *>(control)->setValue(static_cast<int>(expected.chargeLevelPercent));
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.constFirst().constFirst().value<AlertSettings>(), expected);
    }

    // The Applications section shows the picked period's list, never a late answer for another,
    // in the order of the column picked; the popover's lines ask for the section, by pointer, by
    // keyboard and by a screen reader alike.
    void applicationsFollowThePickedPeriod()
    {
        MainWindowView window;
        QSignalSpy asked(&window, &MainWindowView::applicationsPeriodRequested);
        const QWidget *panel = window.findChild<QWidget *>(QStringLiteral("applicationsPanel"));
        const QWidget *note = panel->findChild<QWidget *>(QStringLiteral("appsNote"));
        const auto app = [](const char *name, double energyJ, double coveredS) {
            return AppEnergy{AppEnergy::Kind::application, QLatin1String(name), QLatin1String(name), {}, energyJ, 4, coveredS, AttributionMethod::measured};
        };
        const AppEnergyList list{{app("Long", 3600, 3600), app("Short", 1800, 600)}, 3600, AttributionMethod::measured};
        window.setApplications(AppPeriod::today, list);
        QVERIFY(note->isVisibleTo(panel));
        window.setApplications(AppPeriod::session, list);
        QVERIFY(!note->isVisibleTo(panel));
        QAccessibleInterface *rows = QAccessible::queryAccessibleInterface(panel->findChild<QWidget *>(QStringLiteral("appsRows")));
        QVERIFY(rows->child(0)->text(QAccessible::Name).startsWith(QStringLiteral("Long,")));
        panel->findChild<QAbstractButton *>(QStringLiteral("sortByMeanPower"))->click();
        QVERIFY(rows->child(0)->text(QAccessible::Name).startsWith(QStringLiteral("Short,")));
        for (QToolButton *choice : panel->findChildren<QToolButton *>())
            if (choice->text() == localizedText("apps.period_7_days"))
                choice->click();
        QCOMPARE(asked.size(), 1);
        QCOMPARE(asked.constFirst().constFirst().value<AppPeriod>(), AppPeriod::sevenDays);
        QCOMPARE(window.applicationsPeriod(), AppPeriod::sevenDays);
        window.setApplications(AppPeriod::session, list);
        QVERIFY(note->isVisibleTo(panel));
        window.setApplications(AppPeriod::sevenDays, list);
        QVERIFY(!note->isVisibleTo(panel));

        DashboardView dashboard;
        QSignalSpy opened(&dashboard, &DashboardView::applicationsRequested);
        auto *line = dashboard.findChild<QAbstractButton *>(QStringLiteral("appLine0"));
        QTest::mouseClick(line, Qt::LeftButton);
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_COMPARE(opened.size(), 2);
        QAccessible::queryAccessibleInterface(line)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(opened.size(), 3);
    }

    // An icon whose source has nothing to draw is none, and a monogram stands in.
    void appIconsFallBack_data()
    {
        QTest::addColumn<QString>("icon");
        QTest::addColumn<bool>("found");
        QTest::newRow("an image") << QStringLiteral(":/icons/ferrow-256.png") << true;
        QTest::newRow("an image that is not there") << QStringLiteral("/nonexistent/mail.png") << false;
        QTest::newRow("a name no theme has") << QStringLiteral("ferrow-test-no-such-icon") << false;
    }

    void appIconsFallBack()
    {
        QFETCH(QString, icon);
        QFETCH(bool, found);
        AppIcons icons;
        QCOMPARE(!icons.icon(icon).isNull(), found);
    }

    void chartDrawsRunsAndNamedAxes()
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
        QCOMPARE(chart.valueTicks(), (QList<double>{0, 10, 20})); // 20 to 26 W: a range of 0 to 29.9

        QString timeFormat = QLocale().timeFormat(QLocale::ShortFormat);
        timeFormat.remove(QStringLiteral(":ss"));
        for (const int minutes : {5, 15, 60}) {
            chart.setMinutes(minutes);
            const QStringList labels = chart.timeTickLabels();
            QVERIFY2(labels.size() >= 3 && labels.size() <= 6, qPrintable(labels.join(u' ')));
            for (const QString &label : labels) // hour and minute only, as the locale writes them
                QVERIFY2(QLocale().toTime(label, timeFormat).isValid(), qPrintable(label));
        }

        // The axes' names reach accessibility through the chart's description.
        const QString description = chart.findChild<QChartView *>()->accessibleDescription();
        QVERIFY2(description.contains(localizedText("power_history.time")) && description.contains(localizedText("power_history.watts")),
                 qPrintable(description));
    }
};

QTEST_MAIN(ViewsTest)
#include "tst_views.moc"
