#include "model/power_history.h"
#include "model/snapshot_json.h"
#include "platform/simulated/simulated_machine.h"
#include "sources/power_sensor_reader.h"

#include <QJsonDocument>
#include <QTest>

#include <cmath>

using namespace ferrow;
using namespace std::chrono_literals;

namespace {

struct Run {
    SimulatedMachine *machine;
    PowerSensorReader reader;

    explicit Run(SimulatedPowerModel::Kind kind, std::uint64_t seed = 7)
        : machine(new SimulatedMachine({kind, seed, false, 26}))
        , reader(std::unique_ptr<MachinePlatform>(machine))
    {
    }

    PowerSnapshot readAfter(std::chrono::milliseconds step)
    {
        machine->simulationClock().advance(step);
        return reader.read();
    }
};

} // namespace

class SimulatedMachineTest : public QObject {
    Q_OBJECT

private slots:
    // Two accelerated hours of the notebook through the real reader and the real history: charging,
    // unplugged at 45 minutes, discharging, and a ten-minute sleep in between. (The soak test holds
    // the figures and the history to their invariants over a whole day.)
    void notebookThroughTwoHours()
    {
        Run run(SimulatedPowerModel::Kind::notebook);
        PowerHistory history;
        std::int64_t percentAtStart = -1, percentWhenUnplugged = -1;
        int chargingReadings = 0, batteryReadings = 0;
        for (int second = 1; second <= 2 * 3600; ++second) {
            if (second > 80 * 60 && second <= 90 * 60) {
                run.machine->simulationClock().advance(1s); // no readings while asleep
                continue;
            }
            const PowerSnapshot s = run.readAfter(1s);
            history.append(s);
            QVERIFY(s.hasBattery && s.isDataAvailable && s.batteryHealthPercent);
            QVERIFY(std::fabs(s.batteryFlowW - (s.dcPowerW - s.systemPowerW)) < 1e-9);
            QVERIFY(s.batteryTemperatureC && *s.batteryTemperatureC > 15 && *s.batteryTemperatureC < 60);
            QCOMPARE(s.cellVoltagesV.size(), 3u);
            if (second == 1)
                percentAtStart = s.batteryPercent;
            if (second < 45 * 60) {
                QVERIFY(s.isExternalConnected);
                chargingReadings += s.isCharging && s.batteryFlowW > 0;
            } else if (second > 46 * 60 && second < 95 * 60) {
                QVERIFY(!s.isExternalConnected && s.dcPowerW == 0.0);
                QVERIFY(*s.displayPowerW() < 0); // the battery carries the system
                ++batteryReadings;
                if (percentWhenUnplugged < 0)
                    percentWhenUnplugged = s.batteryPercent;
            }
        }
        QVERIFY(chargingReadings > 40 * 60);
        QVERIFY(batteryReadings > 30 * 60);
        QVERIFY2(percentWhenUnplugged > percentAtStart, "charging raised the charge");
        QVERIFY(history.samples().front().segment < history.samples().back().segment); // the sleep broke the run
    }

    void desktopHasNoBattery()
    {
        Run run(SimulatedPowerModel::Kind::desktop);
        run.reader.read();
        const PowerSnapshot s = run.readAfter(1s);
        QVERIFY(!s.hasBattery);
        QVERIFY(s.isExternalConnected && s.isDataAvailable);
        QCOMPARE(s.batteryFlowW, 0.0);
        QVERIFY(std::fabs(s.dcPowerW - s.systemPowerW / 0.9) < 1e-3);
        QCOMPARE(s.displayPowerW(), std::optional(s.dcPowerW));
        QVERIFY(s.chipPower.cpu.has_value());
        QCOMPARE(s.statusKey(), "status.external_power");
    }

    void chargeTapersAndStopsWhenFull()
    {
        SimulatedPowerModel model({SimulatedPowerModel::Kind::notebook, 3, 0.9});
        model.setExternalPowerOverride(true);
        double previousCurrentA = 10;
        for (double t = 60; t <= 4 * 3600 && !model.state().isFullyCharged; t += 60) {
            model.advanceTo(t);
            if (model.state().packVoltageV >= 12.59)
                QVERIFY(model.state().batteryCurrentA <= previousCurrentA + 1e-9); // constant voltage: tapering
            previousCurrentA = model.state().batteryCurrentA;
        }
        QVERIFY(model.state().isFullyCharged);
        QVERIFY(model.state().stateOfCharge > 0.99);
        QVERIFY(!model.state().isCharging);
    }

    void sameSeedSameRun()
    {
        Run first(SimulatedPowerModel::Kind::notebook, 42), second(SimulatedPowerModel::Kind::notebook, 42),
            other(SimulatedPowerModel::Kind::notebook, 43);
        bool differs = false;
        for (int i = 0; i < 300; ++i) {
            const QJsonObject a = snapshotToJson(first.readAfter(1s));
            QCOMPARE(a, snapshotToJson(second.readAfter(1s)));
            differs = differs || a != snapshotToJson(other.readAfter(1s));
        }
        QVERIFY(differs);
    }
};

QTEST_GUILESS_MAIN(SimulatedMachineTest)
#include "tst_simulated_machine.moc"
