#include "platform/simulated/simulated_machine.h"

#include <QTest>

using namespace ferrow;

class SimulatedMachineTest : public QObject {
    Q_OBJECT

private slots:
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
