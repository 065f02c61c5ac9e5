#include "app/text_table.h"
#include "views/history_model.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTest>

using namespace ferrow;

namespace {

const QDate kToday(2026, 3, 10);

UnixSeconds midnight(const QDate &day)
{
    return QDateTime(day, QTime(0, 0)).toSecsSinceEpoch();
}

PeriodEnergy period(const QDate &start, std::optional<double> adapterWh, std::optional<double> batteryWh, double coveredS = 3600)
{
    PeriodEnergy p;
    p.start = midnight(start);
    p.energy.coveredS = coveredS;
    p.energy.adapterWh = adapterWh;
    p.energy.batteryOutWh = batteryWh;
    return p;
}

HistoryOverview sampleOverview()
{
    HistoryOverview overview;
    overview.last30Days = {
        period(kToday.addDays(-40), 9, 9),               // before any range
        period(kToday.addDays(-3), 0, 0, 0),             // nothing covered: a gap
        period(kToday.addDays(-2), 2, 1),
        period(kToday, 4, std::nullopt),                 // a desktop's day: no battery
    };
    overview.last12Months = {period(QDate(2025, 3, 1), 7, 7), period(QDate(2025, 4, 1), 30, 5), period(QDate(2026, 3, 1), 6, 1)};
    return overview;
}

// "-" for a gap, else "adapter/battery" with "-" for an absent part.
QString barsText(const std::vector<EnergyBar> &bars)
{
    QStringList parts;
    const auto figure = [](const std::optional<double> &wh) { return wh ? QString::number(*wh) : QStringLiteral("-"); };
    for (const EnergyBar &bar : bars)
        parts.append(bar.isGap() ? QStringLiteral("-") : figure(bar.adapterWh) + u'/' + figure(bar.batteryWh));
    return parts.join(u' ');
}

QString repeated(const QString &text, int times)
{
    return QStringList(times, text).join(u' ');
}

SessionRecord session(bool external, UnixSeconds lengthS, double energyWh, double coveredS)
{
    SessionRecord s;
    s.start = midnight(kToday);
    s.end = s.start + lengthS;
    s.externalPower = external;
    s.energyWh = energyWh;
    s.coveredS = coveredS;
    return s;
}

} // namespace

class HistoryModelTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QVERIFY(installTextTable(*QCoreApplication::instance()));
    }

    void energyBars_data()
    {
        QTest::addColumn<int>("range");
        QTest::addColumn<QString>("bars");
        QTest::addColumn<QDate>("first");
        QTest::newRow("week: gaps stay gaps") << int(EnergyRange::week) << QStringLiteral("- - - - 2/1 - 4/-") << kToday.addDays(-6);
        QTest::newRow("month: thirty days") << int(EnergyRange::month) << repeated(QStringLiteral("-"), 27) + QStringLiteral(" 2/1 - 4/-")
                                            << kToday.addDays(-29);
        QTest::newRow("year: this month and eleven before") << int(EnergyRange::year) << QStringLiteral("30/5 ") + repeated(QStringLiteral("-"), 10) + QStringLiteral(" 6/1")
                                                            << QDate(2025, 4, 1);
    }

    void energyBars()
    {
        QFETCH(int, range);
        QFETCH(QString, bars);
        QFETCH(QDate, first);
        const std::vector<EnergyBar> result = ferrow::energyBars(sampleOverview(), EnergyRange(range), kToday);
        QCOMPARE(barsText(result), bars);
        QCOMPARE(result.front().date, first);
        QVERIFY(ferrow::energyBars(HistoryOverview{}, EnergyRange(range), kToday).front().isGap());
    }

    void labelledBars_data()
    {
        QTest::addColumn<int>("range");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("labelled"); // the indices that get a label
        QTest::newRow("week: every day") << int(EnergyRange::week) << 7 << QStringLiteral("0 1 2 3 4 5 6");
        QTest::newRow("month: every fifth back from today") << int(EnergyRange::month) << 30 << QStringLiteral("4 9 14 19 24 29");
        QTest::newRow("year: every month") << int(EnergyRange::year) << 3 << QStringLiteral("0 1 2");
    }

    void labelledBars()
    {
        QFETCH(int, range);
        QFETCH(int, count);
        QFETCH(QString, labelled);
        QStringList found;
        for (int i = 0; i <= count; ++i) // one past the end: never
            if (isLabelledBar(std::size_t(i), std::size_t(count), EnergyRange(range)))
                found.append(QString::number(i));
        QCOMPARE(found.join(u' '), labelled);
    }

    void formatWithout_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QChar>("field");
        QTest::addColumn<int>("minimumRun");
        QTest::addColumn<QString>("expected");
        QTest::newRow("US short: year last") << QStringLiteral("M/d/yy") << QChar(u'y') << 1 << QStringLiteral("M/d");
        QTest::newRow("German short") << QStringLiteral("dd.MM.yy") << QChar(u'y') << 1 << QStringLiteral("dd.MM");
        QTest::newRow("Japanese short: year first") << QStringLiteral("yyyy/MM/dd") << QChar(u'y') << 1 << QStringLiteral("MM/dd");
        QTest::newRow("Korean short") << QStringLiteral("yy. M. d.") << QChar(u'y') << 1 << QStringLiteral("M. d.");
        QTest::newRow("quoted word goes with the year") << QStringLiteral("d 'de' MMMM 'de' yyyy") << QChar(u'y') << 1
                                                        << QStringLiteral("d 'de' MMMM");
        QTest::newRow("US long: weekday first") << QStringLiteral("dddd, MMMM d, yyyy") << QChar(u'd') << 3 << QStringLiteral("MMMM d, yyyy");
        QTest::newRow("Japanese long: weekday last, 日 stays") << QStringLiteral("yyyy年M月d日dddd") << QChar(u'd') << 3
                                                              << QStringLiteral("yyyy年M月d日");
        QTest::newRow("no weekday: the day stays") << QStringLiteral("d MMMM yyyy") << QChar(u'd') << 3 << QStringLiteral("d MMMM yyyy");
        QTest::newRow("a quoted y is no year") << QStringLiteral("d 'y' M") << QChar(u'y') << 1 << QStringLiteral("d 'y' M");
    }

    void formatWithout()
    {
        QFETCH(QString, format);
        QFETCH(QChar, field);
        QFETCH(int, minimumRun);
        QFETCH(QString, expected);
        QCOMPARE(ferrow::formatWithout(format, field, minimumRun), expected);
    }

    void energyAxisTop_data()
    {
        QTest::addColumn<QList<double>>("stacks"); // adapter, battery pairs
        QTest::addColumn<double>("top");
        QTest::newRow("nothing") << QList<double>{} << 10.0;
        QTest::newRow("under ten") << QList<double>{4, 0} << 10.0;
        QTest::newRow("stacked parts add up") << QList<double>{3, 48} << 75.0;
        QTest::newRow("the tallest of several") << QList<double>{16, 0, 2, 2} << 20.0;
        QTest::newRow("exactly five hundred") << QList<double>{300, 200} << 500.0;
        QTest::newRow("just past a round figure") << QList<double>{250.5, 0} << 300.0;
        QTest::newRow("into the next decade") << QList<double>{760, 0} << 1000.0;
    }

    void energyAxisTop()
    {
        QFETCH(QList<double>, stacks);
        QFETCH(double, top);
        std::vector<EnergyBar> bars;
        for (qsizetype i = 0; i + 1 < stacks.size(); i += 2)
            bars.push_back({kToday, stacks[i], stacks[i + 1]});
        QCOMPARE(ferrow::energyAxisTop(bars), top);
    }

    void sessionTexts_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("duration");
        QTest::newRow("under a minute") << qint64(59) << QStringLiteral("0 min");
        QTest::newRow("a minute") << qint64(60) << QStringLiteral("1 min");
        QTest::newRow("an hour exactly") << qint64(3600) << QStringLiteral("1 h");
        QTest::newRow("hours and minutes") << qint64(72 * 60 + 30) << QStringLiteral("1 h 12 min");
        QTest::newRow("a day and hours") << qint64(26 * 3600 + 59) << QStringLiteral("1 day 2 h");
        QTest::newRow("days, plural") << qint64(48 * 3600) << QStringLiteral("2 days");
        QTest::newRow("a clock set back") << qint64(-300) << QStringLiteral("0 min");
    }

    void sessionTexts()
    {
        QFETCH(qint64, seconds);
        QFETCH(QString, duration);
        QCOMPARE(sessionDurationText(seconds), duration);
    }

    void currentSession_data()
    {
        QTest::addColumn<bool>("external");
        QTest::addColumn<qint64>("sinceStart");
        QTest::addColumn<double>("energyWh");
        QTest::addColumn<QString>("text");
        QTest::newRow("on battery") << false << qint64(72 * 60) << 8.44 << QStringLiteral("On battery for 1 h 12 min \u00B7 8.4 Wh used");
        QTest::newRow("on the adapter") << true << qint64(35 * 60) << 12.0
                                        << QStringLiteral("On the adapter for 35 min \u00B7 12.0 Wh delivered");
    }

    void currentSession()
    {
        QFETCH(bool, external);
        QFETCH(qint64, sinceStart);
        QFETCH(double, energyWh);
        QFETCH(QString, text);
        // The length runs to now, not to the last reading the session holds.
        const SessionRecord s = session(external, 60, energyWh, 60);
        QCOMPARE(currentSessionText(s, s.start + sinceStart), text);
    }

    void sessionRows_data()
    {
        QTest::addColumn<bool>("external");
        QTest::addColumn<QVariant>("startPercent");
        QTest::addColumn<QVariant>("peakW");
        QTest::addColumn<double>("coveredS");
        QTest::addColumn<QStringList>("texts"); // title, percent, energy, power
        QTest::newRow("on battery") << false << QVariant(80) << QVariant(21.0) << 3600.0
                                    << QStringList{QStringLiteral("On battery"), QStringLiteral("80% \u2192 52%"), QStringLiteral("10.0 Wh"),
                                                   QStringLiteral("Mean 10.0 W \u00B7 Peak 21.0 W")};
        // The mean is over the covered time only, and nothing covered has no mean.
        QTest::newRow("on the adapter, half covered") << true << QVariant(80) << QVariant(21.0) << 1800.0
                                                      << QStringList{QStringLiteral("On the adapter"), QStringLiteral("80% \u2192 52%"),
                                                                     QStringLiteral("10.0 Wh"), QStringLiteral("Mean 20.0 W \u00B7 Peak 21.0 W")};
        QTest::newRow("figures missing") << false << QVariant() << QVariant() << 0.0
                                         << QStringList{QStringLiteral("On battery"), QStringLiteral("\u2014 \u2192 52%"), QStringLiteral("10.0 Wh"),
                                                        QStringLiteral("Mean \u2014 \u00B7 Peak \u2014")};
    }

    void sessionRows()
    {
        QFETCH(bool, external);
        QFETCH(QVariant, startPercent);
        QFETCH(QVariant, peakW);
        QFETCH(double, coveredS);
        QFETCH(QStringList, texts);
        SessionRecord s = session(external, 72 * 60, 10.0, coveredS);
        s.startPercent = startPercent.isValid() ? std::optional<std::int64_t>(startPercent.toInt()) : std::nullopt;
        s.endPercent = 52;
        s.peakPowerW = peakW.isValid() ? std::optional(peakW.toDouble()) : std::nullopt;
        const SessionRowText row = sessionRowText(s, QLocale(QLocale::English, QLocale::UnitedStates));
        QCOMPARE((QStringList{row.title, row.percent, row.energy, row.power}), texts);
        QVERIFY2(row.when.startsWith(QStringLiteral("3/10/26")) && row.when.endsWith(QStringLiteral(" \u00B7 1 h 12 min")), qPrintable(row.when));
    }

    void batterySeries()
    {
        const auto day = [](const char *id, const char *date, std::optional<std::int64_t> health, std::optional<std::int64_t> mAh) {
            return BatteryDayRecord{QString::fromLatin1(id), QString::fromLatin1(date), health, mAh, 5000, 100};
        };
        const std::vector<BatterySeries> series = ferrow::batterySeries({
            day("0123456789abcdef", "2026-03-02", 98, 4900),
            day("fedcba9876543210", "2026-03-01", 91, std::nullopt),
            day("0123456789abcdef", "2026-03-01", 99, 4950), // stored out of order
            day("0123456789abcdef", "2026-03-03", std::nullopt, 4890),
            day("0123456789abcdef", "not a day", 50, 50),
            day("", "2026-03-04", 50, 50),
        });
        QCOMPARE(series.size(), 2u);
        QCOMPARE(series[0].label, QStringLiteral("01234567"));
        QCOMPARE(series[1].label, QStringLiteral("fedcba98"));
        const auto points = [](const std::vector<BatteryPoint> &line) {
            QStringList texts;
            for (const BatteryPoint &p : line)
                texts.append(p.day.toString(Qt::ISODate) + u'=' + QString::number(p.value));
            return texts.join(u' ');
        };
        QCOMPARE(points(series[0].healthPercent), QStringLiteral("2026-03-01=99 2026-03-02=98"));
        QCOMPARE(points(series[0].fullChargeMAH), QStringLiteral("2026-03-01=4950 2026-03-02=4900 2026-03-03=4890"));
        QCOMPARE(points(series[1].healthPercent), QStringLiteral("2026-03-01=91"));
        QVERIFY(series[1].fullChargeMAH.empty());
    }

    void caption_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QString>("error");
        QTest::addColumn<bool>("stored");
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("caption");
        QTest::newRow("off, whatever else") << false << QStringLiteral("disk full") << true << int(HistoryState::off)
                                            << QStringLiteral("History is off.");
        QTest::newRow("an error, even with data") << true << QStringLiteral("disk full") << true << int(HistoryState::failing)
                                                  << QStringLiteral("History is not being kept: disk full");
        QTest::newRow("nothing stored") << true << QString() << false << int(HistoryState::empty)
                                        << QStringLiteral("No history yet: Ferrow records energy once a minute.");
        QTest::newRow("kept: the date without its weekday") << true << QString() << true << int(HistoryState::kept)
                                                            << QStringLiteral("Ferrow has been keeping history since March 10, 2026");
    }

    void caption()
    {
        QFETCH(bool, enabled);
        QFETCH(QString, error);
        QFETCH(bool, stored);
        QFETCH(int, state);
        QFETCH(QString, caption);
        HistoryOverview overview;
        overview.error = error;
        if (stored)
            overview.since = midnight(kToday) + 3600;
        QCOMPARE(int(historyState(enabled, overview)), state);
        QCOMPARE(historyCaption(enabled, overview, QLocale(QLocale::English, QLocale::UnitedStates)), caption);
    }
};

QTEST_GUILESS_MAIN(HistoryModelTest)
#include "tst_history_model.moc"
