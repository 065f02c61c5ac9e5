#include "app/machine_source.h"
#include "platform/native_desktop.h"

#include <QTest>

using namespace ferrow;

// The programs built over the null backend: they read the simulation, say why this machine is
// not read, and every desktop service is absent without failing.
class TestNullPlatform : public QObject {
    Q_OBJECT
private slots:
    void readsTheSimulationAndSaysWhy()
    {
        QString error;
        const std::optional<OpenedMachine> machine = openMachine(MachineSource{}, &error);
        QVERIFY2(machine, qPrintable(error));
        QVERIFY(machine->isSimulated);
        QVERIFY(machine->description.contains(u"shows no battery"));
        QVERIFY(machine->reader->read().hasBattery);

        const std::optional<Diagnosis> diagnosis = diagnoseMachine(MachineSource{}, &error);
        QVERIFY(diagnosis);
        QVERIFY(diagnosisText(*diagnosis).contains(u"no backend for this system"));

        QVERIFY(!openMachine(*MachineSource::parse(QStringLiteral("sysfs:/tmp")), &error));
        QVERIFY(error.contains(u"Linux builds only"));
        QVERIFY(!recordMachine(QStringLiteral("/tmp/unused"), &error));
        QVERIFY(!error.isEmpty());
    }

    void desktopServicesAreAbsent()
    {
        QVERIFY(!createNativeMenuBarItem({}));
        QVERIFY(!createNotifier());
        QVERIFY(createSleepWakeNotifier());
        const std::unique_ptr<LoginItem> login = createLoginItem();
        QVERIFY(!login->setEnabled(true));
        QCOMPARE(login->state(), LoginItemState::disabled);
        QCOMPARE(systemReducesMotion(), std::nullopt);
    }
};

QTEST_GUILESS_MAIN(TestNullPlatform)
#include "tst_null_platform.moc"
