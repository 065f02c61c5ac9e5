#include "app/text_table.h"
#include "model/localized_text.h"
#include "model/value_text.h"
#include "views/main_window_model.h"
#include "views/power_history_chart_model.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTest>
#include <QTime>

#include <cmath>
#include <set>

using namespace ferrow;
using namespace std::chrono_literals;

namespace {

const WallTime kNow = WallTime() + std::chrono::hours(24 * 365 * 56);

// A history of one reading a second, with the given watts, ending `endsAgo` before kNow.
PowerHistory historyOf(const QList<double> &watts, std::chrono::seconds endsAgo = 0s)
{
    PowerHistory history;
    const WallTime first = kNow - endsAgo - std::chrono::seconds(watts.size() - 1);
    for (qsizetype i = 0; i < watts.size(); ++i) {
        PowerSnapshot s;
        s.isExternalConnected = true;
        s.isDataAvailable = true;
        s.dcPowerW = watts[i];
        s.updatedAt = first + std::chrono::seconds(i);
        history.append(s);
    }
    return history;
}

} // namespace

class MainWindowModelTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(installTextTable(*QCoreApplication::instance())); }

    void chartStatistics_data()
    {
        QTest::addColumn<QList<double>>("watts");
        QTest::addColumn<QVariant>("average");
        QTest::addColumn<QVariant>("peak");
        QTest::addColumn<double>("lower");
        QTest::addColumn<double>("upper");
        QTest::newRow("empty") << QList<double>{} << QVariant() << QVariant() << 0.0 << 10.0;
        QTest::newRow("all at 4 W") << QList<double>{4, 4, 4} << QVariant(4.0) << QVariant(4.0) << 0.0 << 10.0;
        QTest::newRow("peak of 40 W") << QList<double>{10, 40, 10} << QVariant(20.0) << QVariant(40.0) << 0.0 << 46.0;
        QTest::newRow("a dip to -5 W") << QList<double>{-5, 3} << QVariant(-1.0) << QVariant(3.0) << -5.75 << 10.0;
        QTest::newRow("all negative") << QList<double>{-20, -10} << QVariant(-15.0) << QVariant(-10.0) << -23.0 << 10.0;
        // On battery the peak is the line's highest point, the smallest draw, not the deepest dip.
        QTest::newRow("on battery: peak is the highest point") << QList<double>{-12, -21, -6.3, -9} << QVariant(-12.075)
                                                               << QVariant(-6.3) << -24.15 << 10.0;
    }

    void chartStatistics()
    {
        QFETCH(QList<double>, watts);
        QFETCH(QVariant, average);
        QFETCH(QVariant, peak);
        QFETCH(double, lower);
        QFETCH(double, upper);
        const PowerHistory history = historyOf(watts);
        const ChartStatistics statistics = ferrow::chartStatistics(history, 0);
        QCOMPARE(statistics.averageW.has_value(), average.isValid());
        if (statistics.averageW)
            QVERIFY(qAbs(*statistics.averageW - average.toDouble()) < 1e-9);
        QCOMPARE(statistics.peakW.has_value(), peak.isValid());
        if (statistics.peakW)
            QCOMPARE(*statistics.peakW, peak.toDouble());
        QVERIFY(qAbs(statistics.lowerW - lower) < 1e-9);
        QVERIFY(qAbs(statistics.upperW - upper) < 1e-9);
    }

    void valueTicksAreRound_data()
    {
        QTest::addColumn<double>("lower");
        QTest::addColumn<double>("upper");
        QTest::addColumn<QList<double>>("ticks");
        QTest::newRow("no readings, 0 to 10") << 0.0 << 10.0 << QList<double>{0, 2, 4, 6, 8, 10};
        QTest::newRow("peak of 40 W, 0 to 46") << 0.0 << 46.0 << QList<double>{0, 10, 20, 30, 40};
        QTest::newRow("peak of 50.4 W, 0 to 58") << 0.0 << 57.96 << QList<double>{0, 20, 40};
        QTest::newRow("a dip to -5 W, -5.75 to 10") << -5.75 << 10.0 << QList<double>{-5, 0, 5, 10};
        QTest::newRow("on battery, -24.15 to 10") << -24.15 << 10.0 << QList<double>{-20, -10, 0, 10};
        QTest::newRow("peak of 100 W, 0 to 115") << 0.0 << 115.0 << QList<double>{0, 25, 50, 75, 100};
        QTest::newRow("peak of 5000 W, 0 to 5750") << 0.0 << 5750.0 << QList<double>{0, 2000, 4000};
        QTest::newRow("dip to -5000 W, -5750 to 10") << -5750.0 << 10.0 << QList<double>{-4000, -2000, 0};
        QTest::newRow("a narrow range: never under 1 W") << 0.0 << 2.0 << QList<double>{0, 1, 2};
        QTest::newRow("empty range: no marks") << 5.0 << 5.0 << QList<double>{};
    }

    void valueTicksAreRound()
    {
        QFETCH(double, lower);
        QFETCH(double, upper);
        QFETCH(QList<double>, ticks);
        const ValueTicks marks = valueAxisTicks(lower, upper);
        QCOMPARE(QList<double>(marks.valuesW.begin(), marks.valuesW.end()), ticks);
        for (const double value : marks.valuesW) {
            QVERIFY(value >= lower && value <= upper);
            QVERIFY(!std::signbit(value) || value < 0); // a mark at zero reads "0 W", not "-0 W"
        }
        if (ticks.size() > 1)
            QCOMPARE(marks.stepW, ticks[1] - ticks[0]);
    }

    void timeTicksOnWholeMinutes_data()
    {
        QTest::addColumn<int>("minutes");
        QTest::addColumn<double>("endSecond"); // of the UTC day
        QTest::addColumn<int>("utcOffsetMinutes");
        QTest::addColumn<QList<int>>("localMinutes"); // of the local day
        const double odd = (12 * 60 + 34) * 60 + 17.25; // 12:34:17.25 UTC
        QTest::newRow("5 min at odd seconds") << 5 << odd << 0 << QList<int>{750, 751, 752, 753, 754};
        QTest::newRow("15 min at odd seconds") << 15 << odd << 0 << QList<int>{740, 745, 750};
        QTest::newRow("60 min at odd seconds") << 60 << odd << 0 << QList<int>{705, 720, 735, 750};
        QTest::newRow("60 min, local time 5:30 ahead") << 60 << odd << 330 << QList<int>{1035, 1050, 1065, 1080};
        QTest::newRow("5 min ending on a minute: both ends") << 5 << (12 * 60 + 35) * 60.0 << 0 << QList<int>{750, 751, 752, 753, 754, 755};
        QTest::newRow("across midnight") << 15 << (24 * 60 + 7) * 60 + 30.0 << 0 << QList<int>{1435, 0, 5};
    }

    void timeTicksOnWholeMinutes()
    {
        QFETCH(int, minutes);
        QFETCH(double, endSecond);
        QFETCH(int, utcOffsetMinutes);
        QFETCH(QList<int>, localMinutes);
        const WallTime day = WallTime() + std::chrono::days(20000);
        const WallTime end = day + std::chrono::duration_cast<WallTime::duration>(std::chrono::duration<double>(endSecond));
        const std::chrono::seconds offset = std::chrono::minutes(utcOffsetMinutes);
        const TimeTicks marks = timeAxisTicks({end - std::chrono::minutes(minutes), end}, offset);
        QList<int> shown;
        for (const WallTime tick : marks.times) {
            const auto local = tick.time_since_epoch() + offset;
            QCOMPARE(local % std::chrono::minutes(1), WallTime::duration::zero());
            shown.append(static_cast<int>(std::chrono::duration_cast<std::chrono::minutes>(local).count() % (24 * 60)));
        }
        QCOMPARE(shown, localMinutes);
    }

    void windowEndsAtTheLastReading()
    {
        // Twenty-five minutes of readings that stopped twenty minutes ago, seen through 15 minutes.
        QList<double> watts(25 * 60, 7.0);
        const PowerHistory history = historyOf(watts, 20min);
        const ChartWindow window = chartWindow(history, 15, kNow);
        QCOMPARE(window.end, *history.updatedAt());
        QCOMPARE(window.end - window.start, std::chrono::duration_cast<WallTime::duration>(15min));
        const std::size_t first = firstVisibleSample(history, window.start);
        QCOMPARE(history.samples().size() - first, 15u * 60 + 1); // the start is inclusive
        QCOMPARE(chartWindow(PowerHistory(), 5, kNow).end, kNow);
    }

    void followingTheScroll_data()
    {
        QTest::addColumn<QList<double>>("offsets"); // overview, power, battery, cells, energy, applications, history
        QTest::addColumn<int>("section");
        QTest::newRow("battery at 60, power at -300") << QList<double>{-700, -300, 60, 500, 900, 1100, 1300} << int(MainSection::power);
        QTest::newRow("battery at 52 exactly") << QList<double>{-700, -300, 52, 500, 900, 1100, 1300} << int(MainSection::battery);
        QTest::newRow("battery at 52.5: not yet") << QList<double>{-700, -300, 52.5, 500, 900, 1100, 1300} << int(MainSection::power);
        QTest::newRow("at the top") << QList<double>{24, 200, 700, 1100, 1500, 1700, 1900} << int(MainSection::overview);
        QTest::newRow("none reached: the nearest") << QList<double>{80, 400, 700, 1100, 1500, 1700, 1900} << int(MainSection::overview);
        QTest::newRow("scrolled to the end") << QList<double>{-2400, -2000, -1600, -900, -400, -200, 24} << int(MainSection::history);
    }

    void followingTheScroll()
    {
        QFETCH(QList<double>, offsets);
        QFETCH(int, section);
        std::map<MainSection, double> tops;
        std::set<QByteArray> titles;
        for (std::size_t i = 0; i < kMainSections.size(); ++i) {
            tops[kMainSections[i]] = offsets[static_cast<qsizetype>(i)];
            titles.insert(sectionTitleKey(kMainSections[i]));
        }
        QCOMPARE(titles.size(), kMainSections.size()); // each section has a title of its own
        QCOMPARE(int(*sectionFollowingScroll(tops)), section);
        QCOMPARE(sectionFollowingScroll({}), std::nullopt);
    }

    // One-line texts and figures: each row is what a helper gave and what it should read.
    void texts_data()
    {
        QTest::addColumn<QString>("actual");
        QTest::addColumn<QString>("expected");
        const auto serial = [](bool hasBattery, std::optional<QString> text) {
            PowerSnapshot s;
            s.hasBattery = hasBattery;
            s.batterySerial = text;
            return ferrow::maskedSerial(s);
        };
        const QString dash = QStringLiteral("\u2014");
        QTest::newRow("serial of nine") << serial(true, QStringLiteral("ABCDEFGHI")) << QStringLiteral("ABCD\u2022\u2022\u2022\u2022FGHI");
        QTest::newRow("serial of eight") << serial(true, QStringLiteral("ABCDEFGH")) << QString(8, QChar(0x2022));
        QTest::newRow("serial of three") << serial(true, QStringLiteral("ABC")) << QString(3, QChar(0x2022));
        QTest::newRow("serial empty") << serial(true, QString()) << dash;
        QTest::newRow("serial absent") << serial(true, std::nullopt) << dash;
        QTest::newRow("serial without battery") << serial(false, QStringLiteral("ABCDEFGHIJ")) << dash;
        const auto pack = [](std::optional<QString> model, std::optional<double> flowW) {
            BatteryPack p;
            p.name = QStringLiteral("BAT0");
            p.model = model;
            p.flowW = flowW;
            return p;
        };
        QTest::newRow("pack with its model") << batteryPackTitle(pack(QStringLiteral("01AV421"), 0)) << QStringLiteral("BAT0 \u00B7 01AV421");
        QTest::newRow("pack without a model") << batteryPackTitle(pack(QString(), 0)) << QStringLiteral("BAT0");
        QTest::newRow("pack resting in the dead band") << batteryPackRows(pack(std::nullopt, -0.04))[1].value << QStringLiteral("0.0 W");
        QTest::newRow("pack discharging") << batteryPackRows(pack(std::nullopt, -3.0))[1].value << QStringLiteral("-3.0 W");
        QTest::newRow("pack flow unknown") << batteryPackRows(pack(std::nullopt, std::nullopt))[1].value << dash;
        PowerSnapshot described;
        described.adapterDescription = QStringLiteral("USB-C 5 V \u00B7 3 A");
        QTest::newRow("adapter described") << distributionRows(described).back().value << *described.adapterDescription;
        QTest::newRow("59 minutes") << durationText(59) << localizedFormat("duration.minutes", {59});
        QTest::newRow("60 minutes") << durationText(60) << localizedFormat("duration.hours_minutes", {1, 0});
        QTest::newRow("1439 minutes") << durationText(1439) << localizedFormat("duration.hours_minutes", {23, 59});
        QTest::newRow("1440 minutes") << durationText(1440) << localizedFormat("duration.days_hours", {1, 0});
        QTest::newRow("1500 minutes") << durationText(1500) << localizedFormat("duration.days_hours", {1, 1});
        QTest::newRow("duration absent") << durationText(std::nullopt) << dash;
        QTest::newRow("duration text filled in") << QString::number(durationText(1500).contains(u'%')) << QStringLiteral("0");
        QTest::newRow("grid of 6 cells") << QString::number(cellGridColumns(6)) << QStringLiteral("4");
        QTest::newRow("grid of 3 cells") << QString::number(cellGridColumns(3)) << QStringLiteral("3");
        QTest::newRow("grid of no cells") << QString::number(cellGridColumns(0)) << QStringLiteral("0");
        QTest::newRow("cell bar at 2.5 V") << QString::number(cellBarFraction(2.5)) << QStringLiteral("0");
        QTest::newRow("cell bar at 3 V") << QString::number(cellBarFraction(3.0)) << QStringLiteral("0");
        QTest::newRow("cell bar at 3.625 V") << QString::number(cellBarFraction(3.625)) << QStringLiteral("0.5");
        QTest::newRow("cell bar at 4.4 V") << QString::number(cellBarFraction(4.4)) << QStringLiteral("1");
    }

    void texts()
    {
        QFETCH(QString, actual);
        QFETCH(QString, expected);
        QCOMPARE(actual, expected);
    }

    // Seconds in the locale's own way of writing a time, and no time zone however the locale sets it off.
    void timeOfDay_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        QTest::newRow("English (US): 12-hour clock") << QStringLiteral("en_US") << QStringLiteral("2:03:09 PM");
        QTest::newRow("German") << QStringLiteral("de_DE") << QStringLiteral("14:03:09");
        QTest::newRow("Basque: zone in brackets") << QStringLiteral("eu_ES") << QStringLiteral("14:03:09");
        QTest::newRow("Belarusian: zone after a comma") << QStringLiteral("be_BY") << QStringLiteral("14:03:09");
        QTest::newRow("Canadian French: words between") << QStringLiteral("fr_CA") << QStringLiteral("14 h 03 min 09 s");
        QTest::newRow("Danish: dots") << QStringLiteral("da_DK") << QStringLiteral("14.03.09");
        QTest::newRow("Chinese (Hong Kong): zone first") << QStringLiteral("zh_HK") << QStringLiteral("\u4E0B\u53482:03:09");
    }

    void timeOfDay()
    {
        QFETCH(QString, locale);
        QFETCH(QString, text);
        QString shown = timeOfDayText(QTime(14, 3, 9), QLocale(locale));
        shown.replace(QChar(0x202F), u' '); // newer locale data puts a narrow space before "PM"
        QCOMPARE(shown, text);
    }

    void overviewAndDistribution_data()
    {
        QTest::addColumn<bool>("hasBattery");
        QTest::addColumn<bool>("external");
        QTest::addColumn<bool>("charging");
        QTest::addColumn<double>("flowW");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("subtitle");
        QTest::addColumn<QString>("batteryPower"); // empty: no such row
        QTest::addColumn<QString>("caption");
        const QString withBattery = QStringLiteral("DC IN \u2212 System Total");
        QTest::newRow("desktop") << false << true << false << 0.0 << QStringLiteral("overview.external_power")
                                 << QStringLiteral("overview.no_battery_subtitle") << QString() << QStringLiteral("PSTR \u00B7 System Total");
        QTest::newRow("charging") << true << true << true << 18.24 << QStringLiteral("overview.charging")
                                  << QStringLiteral("overview.power_distribution_subtitle") << QStringLiteral("+18.2 W") << withBattery;
        QTest::newRow("connected, idle") << true << true << false << 0.04 << QStringLiteral("status.power_connected")
                                         << QStringLiteral("overview.power_distribution_subtitle") << QStringLiteral("0.0 W") << withBattery;
        QTest::newRow("connected, 0.05 W counts") << true << true << false << 0.05 << QStringLiteral("status.power_connected")
                                                  << QStringLiteral("overview.power_distribution_subtitle") << QStringLiteral("+0.1 W") << withBattery;
        QTest::newRow("on battery") << true << false << false << -7.5 << QStringLiteral("status.on_battery")
                                    << QStringLiteral("overview.battery_subtitle") << QStringLiteral("-7.5 W") << withBattery;
    }

    void overviewAndDistribution()
    {
        QFETCH(bool, hasBattery);
        QFETCH(bool, external);
        QFETCH(bool, charging);
        QFETCH(double, flowW);
        QFETCH(QString, title);
        QFETCH(QString, subtitle);
        QFETCH(QString, batteryPower);
        QFETCH(QString, caption);
        PowerSnapshot s;
        s.hasBattery = hasBattery;
        s.isExternalConnected = external;
        s.isCharging = charging;
        s.isDataAvailable = true;
        s.batteryFlowW = flowW;
        QCOMPARE(QString::fromLatin1(overviewTitleKey(s)), title);
        QCOMPARE(QString::fromLatin1(overviewSubtitleKey(s)), subtitle);
        const std::vector<ValueRow> rows = distributionRows(s);
        QCOMPARE(rows.size(), batteryPower.isEmpty() ? 2u : 3u);
        if (!batteryPower.isEmpty())
            QCOMPARE(rows.back().value, batteryPower);
        QCOMPARE(distributionCaption(s), caption);
        s.isDataAvailable = false;
        QCOMPARE(batteryPowerText(s), QStringLiteral("\u2014"));
    }
};

QTEST_GUILESS_MAIN(MainWindowModelTest)
#include "tst_main_window_model.moc"
