#include "model/power_history.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace ferrow;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
const WallTime kEpoch = WallTime() + std::chrono::hours(24 * 365 * 56);

WallTime at(double seconds)
{
    return kEpoch + std::chrono::duration_cast<WallTime::duration>(std::chrono::duration<double>(seconds));
}

// One reading of a desktop on AC: its headline figure is dcPowerW, present even without data.
struct Reading {
    double atSeconds = 0;
    double powerW = 0;
    bool dataAvailable = true;
};

PowerSnapshot snapshotOf(const Reading &reading)
{
    PowerSnapshot s;
    s.isExternalConnected = true;
    s.dcPowerW = reading.powerW;
    s.isDataAvailable = reading.dataAvailable;
    s.updatedAt = at(reading.atSeconds);
    return s;
}

Reading unusableAt(double seconds)
{
    return {seconds, 10.0, false};
}

} // namespace

using Readings = QList<Reading>;
using Segments = QList<qint64>;
Q_DECLARE_METATYPE(Reading)

class PowerHistoryTest : public QObject {
    Q_OBJECT

private slots:
    void firstUsableReading()
    {
        PowerHistory history;
        history.append(snapshotOf({0, 12.5}));
        QCOMPARE(history.samples().size(), 1u);
        QCOMPARE(history.samples().front(), (PowerHistory::Sample{0, at(0), 12.5, 0}));
        QCOMPARE(history.previousValidDate(), std::optional<WallTime>(at(0)));
        QCOMPARE(history.updatedAt(), std::optional<WallTime>(at(0)));
        QCOMPARE(history.nextID(), 1);
        QCOMPARE(history.segment(), 0);

        PowerSnapshot onBattery; // the battery side keeps the flow's sign
        onBattery.hasBattery = onBattery.isDataAvailable = true;
        onBattery.batteryFlowW = -7.25;
        onBattery.updatedAt = at(1);
        history.append(onBattery);
        QCOMPARE(history.samples().back().powerW, -7.25);
    }

    // Each row feeds its readings in order; the samples kept are described by their times
    // and segments, and the segment the next sample would get.
    void append_data()
    {
        QTest::addColumn<Readings>("readings");
        QTest::addColumn<QList<double>>("sampleTimes");
        QTest::addColumn<Segments>("sampleSegments");
        QTest::addColumn<qint64>("finalSegment");

        QTest::newRow("3.0 s gap keeps the run") << Readings{{0, 5}, {3, 6}} << QList<double>{0, 3} << Segments{0, 0} << qint64(0);
        QTest::newRow("3.5 s gap breaks it") << Readings{{0, 5}, {3.5, 6}} << QList<double>{0, 3.5} << Segments{0, 1} << qint64(1);
        QTest::newRow("same timestamp is ignored entirely")
            << Readings{{0, 5}, unusableAt(0), {0, 9}} << QList<double>{0} << Segments{0} << qint64(0);
        QTest::newRow("usable, unusable, usable bumps once")
            << Readings{{0, 5}, unusableAt(1), {2, 6}} << QList<double>{0, 2} << Segments{0, 1} << qint64(1);
        QTest::newRow("an unusable reading forgets the last sample's date")
            << Readings{{0, 5}, unusableAt(2), {4, 6}} << QList<double>{0, 4} << Segments{0, 1} << qint64(1);
        QTest::newRow("unusable readings move the clock too")
            << Readings{{0, 5}, unusableAt(2), {1, 6}, unusableAt(2)} << QList<double>{0} << Segments{0} << qint64(1);
        QTest::newRow("clock set back ten minutes")
            << Readings{{600, 5}, {601, 6}, {2, 7}, {3, 8}, unusableAt(4), {602, 9}} << QList<double>{600, 601, 602}
            << Segments{0, 0, 0} << qint64(0);
        QTest::newRow("first accepted after clock returns follows the gap rule")
            << Readings{{600, 5}, {10, 7}, {605, 9}} << QList<double>{600, 605} << Segments{0, 1} << qint64(1);
        QTest::newRow("plausibility bounds are inclusive")
            << Readings{{0, 5000}, {1, -5000}, {2, 5000.5}, {3, -5000.5}} << QList<double>{0, 1} << Segments{0, 0}
            << qint64(2);
        QTest::newRow("non-finite values break the run")
            << Readings{{0, kInf}, {1, kNaN}, {2, -kInf}, {3, 1}} << QList<double>{3} << Segments{3} << qint64(3);
        QTest::newRow("exactly an hour old stays") << Readings{{0, 5}, {3600, 6}} << QList<double>{0, 3600} << Segments{0, 1}
                                                    << qint64(1);
        QTest::newRow("a millisecond older goes") << Readings{{0, 5}, {3600.001, 6}} << QList<double>{3600.001}
                                                   << Segments{1} << qint64(1);
        QTest::newRow("long sleep trims all and starts a run")
            << Readings{{0, 5}, {1, 6}, {2, 7}, {2 + 8 * 3600, 8}} << QList<double>{2 + 8 * 3600} << Segments{1} << qint64(1);
        QTest::newRow("unusable reading still trims")
            << Readings{{0, 5}, {1, 6}, unusableAt(3600.5)} << QList<double>{1} << Segments{0} << qint64(1);
    }

    void append()
    {
        QFETCH(Readings, readings);
        QFETCH(QList<double>, sampleTimes);
        QFETCH(Segments, sampleSegments);
        QFETCH(qint64, finalSegment);

        PowerHistory history;
        for (const Reading &reading : readings)
            history.append(snapshotOf(reading));

        QList<double> times;
        Segments segments;
        for (const PowerHistory::Sample &sample : history.samples()) {
            times.append(std::chrono::duration<double>(sample.date - kEpoch).count());
            segments.append(sample.segment);
        }
        QCOMPARE(times.size(), sampleTimes.size());
        for (qsizetype i = 0; i < times.size(); ++i)
            QVERIFY2(std::fabs(times[i] - sampleTimes[i]) < 1e-6, qPrintable(QString::number(times[i])));
        QCOMPARE(segments, sampleSegments);
        QCOMPARE(history.segment(), finalSegment);
    }

    void countCapDropsOldestBeforeAdding()
    {
        PowerHistory history;
        for (int i = 0; i < 3600; ++i)
            history.append(snapshotOf({i * 0.5, 1.0 * i}));
        QCOMPARE(history.samples().size(), 3600u);
        QCOMPARE(history.samples().front().id, 0);

        history.append(snapshotOf({1800, 42.0}));
        QCOMPARE(history.samples().size(), 3600u);
        QCOMPARE(history.samples().front().id, 1); // ids are never renumbered
        QCOMPARE(history.samples().back().id, 3600);
        QCOMPARE(history.nextID(), 3601);

        history.append(snapshotOf(unusableAt(1801)));
        QCOMPARE(history.samples().size(), 3599u); // the cap runs even when nothing is added
    }
};

QTEST_GUILESS_MAIN(PowerHistoryTest)
#include "tst_power_history.moc"
