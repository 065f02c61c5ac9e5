#include "monitor/power_monitor.h"
#include "monitor/sleep_wake_notifier.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <thread>

using namespace ferrow;
using namespace std::chrono_literals;

namespace {

// A reader whose reads block until the test releases them, one permit per read.
class GatedReader final : public SnapshotReader {
public:
    explicit GatedReader(bool heldOpen = false)
    {
        if (heldOpen)
            m_gate.release(1'000'000);
    }

    PowerSnapshot read() override
    {
        const int number = ++m_started;
        m_gate.acquire();
        PowerSnapshot snapshot;
        snapshot.isExternalConnected = true;
        snapshot.isDataAvailable = true;
        snapshot.dcPowerW = number;
        snapshot.updatedAt = m_repeatTimestamp ? WallTime() + 1h : std::chrono::system_clock::now();
        return snapshot;
    }

    void release(int count = 1) { m_gate.release(count); }
    int started() const { return m_started; }
    void repeatTimestamp() { m_repeatTimestamp = true; }

private:
    QSemaphore m_gate;
    std::atomic<int> m_started = 0;
    std::atomic<bool> m_repeatTimestamp = false;
};

constexpr auto kFastInterval = 20ms;

// Lets the event loop run for a while so that ticks, if any, get their chance to fire.
void runEventLoopFor(std::chrono::milliseconds duration)
{
    QTest::qWait(static_cast<int>(duration.count()));
}

} // namespace

class PowerMonitorTest : public QObject {
    Q_OBJECT

private:
    SleepWakeNotifier *sleepWake = nullptr;
    GatedReader *reader = nullptr;
    std::unique_ptr<PowerMonitor> monitor;

    void makeMonitor(bool heldOpen = false, std::chrono::milliseconds interval = kFastInterval)
    {
        auto owned = std::make_unique<GatedReader>(heldOpen);
        reader = owned.get();
        monitor = std::make_unique<PowerMonitor>(std::move(owned), sleepWake, interval);
    }

private slots:
    void init() { sleepWake = new SleepWakeNotifier(this); }

    void cleanup()
    {
        if (reader)
            reader->release(1'000'000); // never leave a worker blocked
        monitor.reset();
        delete sleepWake;
    }

    void nothingRunsBeforeStartAndRepeatedStartMakesOneTimerAndTwoObservers()
    {
        makeMonitor();
        runEventLoopFor(100ms);
        QCOMPARE(reader->started(), 0);
        QVERIFY(monitor->powerHistory().samples().empty());
        QVERIFY(!monitor->isRunning());
        QCOMPARE(monitor->observerCount(), 0);
        monitor->start();
        QVERIFY(monitor->isRefreshing()); // the first reading is asked for at once, not on the first tick
        monitor->start();
        monitor->start();
        QVERIFY(monitor->isRunning());
        QCOMPARE(monitor->observerCount(), 2);
        QTRY_COMPARE(reader->started(), 1);
        QVERIFY(monitor->isRefreshing());
        QVERIFY(monitor->snapshot() == PowerSnapshot::empty()); // nothing published before the first read ends
    }

    // With a long interval: starting again asks for nothing, no tick comes early, and a wake
    // asks for a reading at once.
    void wakeReadsAtOnceAndTicksWaitTheirInterval()
    {
        makeMonitor(true, 10s);
        monitor->start();
        QTRY_VERIFY(!monitor->isRefreshing());
        monitor->start();
        runEventLoopFor(100ms);
        QCOMPARE(reader->started(), 1);
        emit sleepWake->didWake();
        QTRY_COMPARE(reader->started(), 2);
    }

    void ticksAreDroppedWhileAReadIsInFlight()
    {
        makeMonitor();
        monitor->start();
        QTRY_COMPARE(reader->started(), 1);
        runEventLoopFor(10 * kFastInterval);
        QCOMPARE(reader->started(), 1);

        // No read may start before the one before it has been applied.
        QList<int> startedAtApply;
        connect(monitor.get(), &PowerMonitor::snapshotChanged, this, [&] { startedAtApply << reader->started(); });
        reader->release(3);
        QTRY_COMPARE(reader->started(), 4);
        QCOMPARE(startedAtApply, (QList<int>{1, 2, 3}));
        QCOMPARE(monitor->powerHistory().samples().size(), 3u);
    }

    void resultIsPublishedSnapshotFirstWhileStillRefreshing()
    {
        makeMonitor(true);
        QStringList events;
        connect(monitor.get(), &PowerMonitor::objectWillChange, this, [&] {
            events << QStringLiteral("will:%1:%2:%3")
                          .arg(monitor->snapshot().dcPowerW)
                          .arg(monitor->powerHistory().samples().size())
                          .arg(monitor->isRefreshing());
        });
        connect(monitor.get(), &PowerMonitor::snapshotChanged, this, [&] { events << QStringLiteral("snapshot"); });
        connect(monitor.get(), &PowerMonitor::powerHistoryChanged, this,
                [&] { events << QStringLiteral("history:%1").arg(monitor->isRefreshing()); });

        monitor->refresh();
        QTRY_VERIFY(!monitor->isRefreshing());
        QCOMPARE(events, (QStringList{QStringLiteral("will:0:0:1"), QStringLiteral("snapshot"),
                                      QStringLiteral("will:1:0:1"), QStringLiteral("history:1")}));
        QVERIFY(!monitor->isRunning()); // refresh alone starts no timer
    }

    void equalSnapshotsBothNotifyAndReachTheHistory()
    {
        makeMonitor(true);
        reader->repeatTimestamp();
        QSignalSpy willChange(monitor.get(), &PowerMonitor::objectWillChange);
        monitor->refresh();
        QTRY_VERIFY(!monitor->isRefreshing());
        monitor->refresh();
        QTRY_COMPARE(willChange.size(), 4);
        QCOMPARE(monitor->snapshot().dcPowerW, 2.0);
        QCOMPARE(monitor->powerHistory().samples().size(), 1u); // second one not later: ignored
    }

    void sleepWithAReadInFlightStillPublishes()
    {
        makeMonitor();
        monitor->start();
        QTRY_COMPARE(reader->started(), 1);
        emit sleepWake->willSleep();
        QTRY_VERIFY(!monitor->isRunning());

        reader->release(1'000'000);
        QTRY_COMPARE(monitor->powerHistory().samples().size(), 1u);
        QCOMPARE(monitor->snapshot().dcPowerW, 1.0);
        runEventLoopFor(10 * kFastInterval);
        QCOMPARE(reader->started(), 1); // no tick follows while asleep
    }

    void wakeWithAReadInFlightDropsTheImmediateRequest()
    {
        makeMonitor();
        monitor->start();
        QTRY_COMPARE(reader->started(), 1);
        emit sleepWake->willSleep();
        emit sleepWake->didWake();
        QTRY_VERIFY(monitor->isRunning());
        runEventLoopFor(5 * kFastInterval);
        QCOMPARE(reader->started(), 1);

        reader->release();
        QTRY_COMPARE(reader->started(), 2);
        QCOMPARE(monitor->snapshot().dcPowerW, 1.0);
    }

    void sleepWakeCyclesNeverAddObservers()
    {
        makeMonitor(true);
        monitor->start();
        for (int cycle = 0; cycle < 5; ++cycle) {
            emit sleepWake->willSleep();
            QTRY_VERIFY(!monitor->isRunning());
            emit sleepWake->didWake();
            QTRY_VERIFY(monitor->isRunning());
        }
        QCOMPARE(monitor->observerCount(), 2);
        QTRY_VERIFY(reader->started() > 5); // every wake asked for a reading at once or on the next tick
    }

    void destroyingTheMonitorWaitsForTheReadInFlight()
    {
        makeMonitor();
        monitor->start();
        QTRY_COMPARE(reader->started(), 1);
        std::atomic<bool> released = false;
        std::thread releaser([this, &released] {
            std::this_thread::sleep_for(50ms);
            released = true;
            reader->release();
        });
        monitor.reset();
        const bool releasedBeforeDestruction = released;
        releaser.join();
        reader = nullptr;
        QCoreApplication::processEvents(); // the queued result must find nothing to call
        QVERIFY(releasedBeforeDestruction);
    }
};

QTEST_GUILESS_MAIN(PowerMonitorTest)
#include "tst_power_monitor.moc"
