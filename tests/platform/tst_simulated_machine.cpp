#include "platform/simulated/simulated_machine.h"
#include "sources/power_sensor_reader.h"

#include <QTest>

#include <cmath>

using namespace ferrow;
using namespace std::chrono_literals;

namespace {

struct Run {
    SimulatedMachine *machine;
    PowerSensorReader reader;

    explicit Run(SimulatedPowerModel::Kind kind)
        : machine(new SimulatedMachine({kind, 7, false, 26}))
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
};

QTEST_GUILESS_MAIN(SimulatedMachineTest)
#include "tst_simulated_machine.moc"
