// Twenty-four simulated hours of the real reader, monitor, history and history store on the
// simulated notebook, in accelerated time, with faults injected throughout.

#include "monitor/battery_history_store.h"
#include "monitor/power_monitor.h"
#include "monitor/sleep_wake_notifier.h"
#include "platform/simulated/simulated_machine.h"
#include "sources/power_sensor_reader.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <map>
#include <random>
#include <thread>

#if __has_include(<sanitizer/allocator_interface.h>)
#include <sanitizer/allocator_interface.h>
#endif
#if defined(__APPLE__)
#include <malloc/malloc.h>
#else
#include <malloc.h>
#endif

using namespace ferrow;
using namespace std::chrono_literals;

namespace {

constexpr int kHour = 3600;
constexpr int kReadings = 24 * kHour;
const QString kFirstSerial = QStringLiteral("SIMF8Y2K0NOTEBK");
const QString kSecondSerial = QStringLiteral("SIMSWAPPED000B");

std::size_t allocatedBytes()
{
#if __has_include(<sanitizer/allocator_interface.h>) && defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#elif defined(__APPLE__)
    malloc_statistics_t statistics{};
    malloc_zone_statistics(nullptr, &statistics); // every zone
    return statistics.size_in_use;
#else
    return mallinfo2().uordblks;
#endif
}

// Wraps the real reader: one second of simulated time per reading, and the day's faults, applied
// on the worker, the only thread that touches the machine.
class FaultyReader final : public SnapshotReader {
public:
    explicit FaultyReader(SimulatedMachine *machine)
        : m_machine(machine)
        , m_reader(std::unique_ptr<MachinePlatform>(machine))
    {
    }

    PowerSnapshot read() override
    {
        if (m_inFlight.fetch_add(1) != 0)
            fail("two readings at once");
        const int i = m_count;
        injectFaults(i);
        m_machine->simulationClock().advance(1s);
        PowerSnapshot snapshot = m_reader.read();
        m_count = i + 1;
        m_inFlight.fetch_sub(1);
        return snapshot;
    }

    int count() const { return m_count; }
    const char *failure() const { return m_failure; }

private:
    void fail(const char *what)
    {
        const char *none = nullptr;
        m_failure.compare_exchange_strong(none, what); // the first one is the one that tells
    }

    QString key(const QString &prefix, const QString &serial) const
    {
        return prefix + *BatteryHistoryStore::batteryIdentifier(serial);
    }

    void injectFaults(int i)
    {
        InMemorySMC &smc = m_machine->smc();
        // An adapter flapping every second for an hour.
        if (i >= 3 * kHour && i < 4 * kHour)
            m_machine->model().setExternalPowerOverride(i % 2 == 0);
        else if (i == 4 * kHour)
            m_machine->model().setExternalPowerOverride(std::nullopt);

        // SMC calls failing at random for three hours.
        static const char *const keys[] = {"VD0R", "ID0R", "PSTR", "PDTR", "VP0R", "SBA1", "SBAV", "TB1T"};
        if (!m_failingKey.empty())
            smc.setFailure(m_failingKey, kIOKitSuccess);
        m_failingKey.clear();
        if (i >= 5 * kHour && i < 8 * kHour && m_random() % 10 == 0) {
            m_failingKey = keys[m_random() % std::size(keys)];
            smc.setFailure(m_failingKey, kIOKitReturnError);
        }

        // The battery service vanishing and returning, half a minute at a time, for ten minutes.
        if (i >= 8 * kHour && i < 8 * kHour + 600)
            m_machine->setBatteryServicePresent((i / 30) % 2 == 0);
        else if (i == 8 * kHour + 600)
            m_machine->setBatteryServicePresent(true);

        // A battery swap at hour 10, and the first battery back at hour 16. The battery not in the
        // machine keeps its stored record exactly as it was.
        KeyValueStore &defaults = m_machine->inMemoryPreferences();
        if (i == 10 * kHour) {
            m_swappedOut = defaults.data(key(BatteryHistoryStore::kElectricalKeyPrefix, kFirstSerial));
            m_machine->setBatterySerial(kSecondSerial);
        } else if (i == 16 * kHour) {
            m_machine->setBatterySerial(kFirstSerial);
        }
        if (i > 10 * kHour && i < 16 * kHour && defaults.data(key(BatteryHistoryStore::kElectricalKeyPrefix, kFirstSerial)) != m_swappedOut)
            fail("the swapped-out battery's record changed");

        // The wall clock set back ten minutes at hour 12, and forward a day at hour 13.
        if (i == 12 * kHour)
            m_machine->simulationClock().moveWallClock(-10min);
        if (i == 13 * kHour)
            m_machine->simulationClock().moveWallClock(24h);

        // A reader that stalls now and then, so ticks arrive while it works.
        if (i % 5000 == 4999)
            std::this_thread::sleep_for(20ms);

        // Garbage written into the preferences between readings: the battery's own keys and others.
        if (i % 3000 == 1500) {
            const QString serial = i > 10 * kHour && i < 16 * kHour ? kSecondSerial : kFirstSerial;
            defaults.setData(key(BatteryHistoryStore::kTemperatureKeyPrefix, serial), QByteArray("\xff{\"maximumC\":", 14));
            defaults.setData(QStringLiteral("showPowerInMenuBar"), QByteArray("\x00\x01", 2));
        }
    }

    SimulatedMachine *m_machine;
    PowerSensorReader m_reader;
    std::atomic<int> m_inFlight = 0;
    std::atomic<int> m_count = 0;
    std::mt19937 m_random{20261123};
    std::string m_failingKey;
    std::optional<QByteArray> m_swappedOut;
    std::atomic<const char *> m_failure = nullptr;
};

// Every figure a view shows as a number is finite (absent is fine).
bool figuresFinite(const PowerSnapshot &s)
{
    std::vector<std::optional<double>> figures{s.dcVoltageV, s.dcCurrentA, s.dcPowerW, s.systemPowerW, s.batteryFlowW, s.batteryChargePowerW,
                                               s.chipPower.cpu, s.chipPower.gpu, s.chipPower.ane, s.chipPower.ram, s.batteryTemperatureC,
                                               s.batteryVoltageV, s.batteryCurrentA, s.batteryRailVoltageV, s.lifetimeMaxTemperatureC,
                                               s.lifetimeMinTemperatureC, s.lifetimeAverageTemperatureC, s.lifetimeMaxPackVoltageV,
                                               s.lifetimeMinPackVoltageV, s.lifetimeMaxChargeCurrentA, s.lifetimeMaxDischargeCurrentA,
                                               s.displayPowerW(), s.displayCurrentA()};
    figures.insert(figures.end(), s.cellVoltagesV.begin(), s.cellVoltagesV.end());
    return std::all_of(figures.begin(), figures.end(), [](const std::optional<double> &v) { return !v || std::isfinite(*v); });
}

// Lifetime extremes of one battery: they may only ever widen. Every value is checked and kept.
struct Extremes {
    std::array<std::optional<double>, 6> kept;

    bool widenedTo(const PowerSnapshot &s)
    {
        const std::array<std::optional<double>, 6> now{s.lifetimeMaxPackVoltageV, s.lifetimeMinPackVoltageV, s.lifetimeMaxChargeCurrentA,
                                                       s.lifetimeMaxDischargeCurrentA, s.lifetimeMaxTemperatureC, s.lifetimeMinTemperatureC};
        bool ok = true;
        for (std::size_t i = 0; i < now.size(); ++i) {
            const bool minimum = i == 1 || i == 5;
            ok = ok && (!kept[i] || (now[i] && (minimum ? *now[i] <= *kept[i] : *now[i] >= *kept[i])));
            if (now[i])
                kept[i] = now[i];
        }
        return ok;
    }
};

} // namespace

class SoakTest : public QObject {
    Q_OBJECT

private slots:
    void twentyFourHoursWithFaults()
    {
        auto *machine = new SimulatedMachine({SimulatedPowerModel::Kind::notebook, 11, false, 27});
        auto owned = std::make_unique<FaultyReader>(machine);
        FaultyReader *reader = owned.get();
        SleepWakeNotifier sleepWake;
        PowerMonitor monitor(std::move(owned), &sleepWake, 0ms); // ticks as fast as the loop turns

        QStringList problems;
        const auto problem = [&](const QString &what) {
            if (problems.size() < 10)
                problems << QStringLiteral("reading %1: %2").arg(reader->count()).arg(what);
        };
        std::map<QString, Extremes> extremes;
        std::size_t memoryAtHourTwo = 0;
        int published = 0;

        connect(&monitor, &PowerMonitor::powerHistoryChanged, this, [&] {
            ++published;
            const PowerSnapshot &s = monitor.snapshot();
            const PowerHistory &history = monitor.powerHistory();
            const auto &samples = history.samples();
            if (samples.size() > PowerHistory::kMaximumSampleCount)
                problem(QStringLiteral("history holds %1 samples").arg(samples.size()));
            if (!samples.empty() && *history.updatedAt() - samples.front().date > PowerHistory::kRetention)
                problem(QStringLiteral("history older than an hour"));
            if (samples.size() >= 2 && (samples.back().segment < samples[samples.size() - 2].segment
                                        || samples.back().date <= samples[samples.size() - 2].date))
                problem(QStringLiteral("segments or dates went backwards"));
            if (!figuresFinite(s))
                problem(QStringLiteral("a figure is not finite"));
            if (s.batterySerial && !extremes[*s.batterySerial].widenedTo(s))
                problem(QStringLiteral("lifetime extremes of %1 narrowed").arg(*s.batterySerial));

            if (published == 2 * kHour)
                memoryAtHourTwo = allocatedBytes();
            if (published % 4000 == 0) { // a storm of sleeps and wakes
                for (int storm = 0; storm < 5; ++storm) {
                    emit sleepWake.willSleep();
                    emit sleepWake.didWake();
                }
            }
        });

        monitor.start();
        QTRY_VERIFY_WITH_TIMEOUT(reader->count() >= kReadings, 600'000);
        monitor.stopTimer();
        QTRY_VERIFY(!monitor.isRefreshing());

        QVERIFY2(!reader->failure(), reader->failure());
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
        QCOMPARE(extremes.size(), 2u); // both batteries were seen
        QCOMPARE(monitor.observerCount(), 2);
        const long long growth = static_cast<long long>(allocatedBytes()) - static_cast<long long>(memoryAtHourTwo);
        qInfo("heap: %zu bytes at hour 2, %+lld bytes by hour 24", memoryAtHourTwo, growth);
        QVERIFY2(growth < 512 * 1024, "memory grew over the day");
    }
};

QTEST_GUILESS_MAIN(SoakTest)
#include "tst_soak.moc"
