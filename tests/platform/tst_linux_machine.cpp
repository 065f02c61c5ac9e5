#include "model/snapshot_json.h"
#include "platform/common/in_memory_key_value_store.h"
#include "platform/linux/linux_machine.h"
#include "sources/power_sensor_reader.h"
#include "support/json_compare.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace ferrow;
using namespace ferrow::testing;

namespace {

const QString kFixtures = QStringLiteral(QT_TESTCASE_SOURCEDIR "/fixtures/");

class ManualClock final : public Clock {
public:
    WallTime now() const override { return std::chrono::system_clock::now(); }
    double uptimeSeconds() const override { return m_uptimeS; }
    double m_uptimeS = 1000;
};

// "path=text" writes a file, "path/" puts a folder in the file's place, a bare "path" removes it.
void applyEdits(const QString &root, const QStringList &edits)
{
    for (const QString &edit : edits) {
        const qsizetype equals = edit.indexOf(u'=');
        const QString path = root + u'/' + (equals < 0 ? edit : edit.left(equals));
        QFile::remove(path);
        QDir(path).removeRecursively();
        if (edit.endsWith(u'/'))
            QDir().mkpath(path);
        else if (equals >= 0) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(edit.mid(equals + 1).toUtf8() + '\n');
        }
    }
}

QString copyOf(const QString &fixture, const QTemporaryDir &scratch)
{
    const QString source = kFixtures + fixture;
    for (QDirIterator file(source, QDir::Files, QDirIterator::Subdirectories); file.hasNext();) {
        const QString target = scratch.path() + file.next().mid(source.size());
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(file.filePath(), target);
    }
    return scratch.path();
}

std::unique_ptr<LinuxMachine> machineAt(const QString &root, ManualClock **clock = nullptr)
{
    auto manual = std::make_unique<ManualClock>();
    if (clock)
        *clock = manual.get();
    return std::make_unique<LinuxMachine>(std::make_unique<SysfsFiles>(root.toStdString()), std::make_unique<InMemoryKeyValueStore>(),
                                          std::move(manual));
}

// Two readings one second apart, the second edits made between them.
QJsonObject readTwice(const QString &root, const QStringList &betweenReads)
{
    ManualClock *clock = nullptr;
    PowerSensorReader reader(machineAt(root, &clock));
    reader.read();
    applyEdits(root, betweenReads);
    clock->m_uptimeS += 1;
    return snapshotToJson(reader.read());
}

const QString kIntel = QStringLiteral("sys/class/power_supply/BAT0/");
const QString kAmd = QStringLiteral("sys/class/power_supply/BAT1/");
const QString kRapl = QStringLiteral("sys/class/powercap/intel-rapl:");

} // namespace

class LinuxMachineTest : public QObject {
    Q_OBJECT

private slots:
    // Each fixture's values worked out by hand from its files, then the same trees with odd files.
    void readings_data()
    {
        QTest::addColumn<QString>("fixture");
        QTest::addColumn<QStringList>("edits");
        QTest::addColumn<QStringList>("betweenReads");
        QTest::addColumn<QJsonObject>("expected");
        const QJsonValue null(QJsonValue::Null);
        const auto chip = [](QJsonValue cpu, QJsonValue gpu, QJsonValue ram) {
            return QJsonObject{{QStringLiteral("cpu"), cpu}, {QStringLiteral("gpu"), gpu}, {QStringLiteral("ane"), QJsonValue()}, {QStringLiteral("ram"), ram}};
        };
        const QJsonObject intelOnBattery{
            {QStringLiteral("hasBattery"), true}, {QStringLiteral("batteryPercent"), 67}, {QStringLiteral("batteryVoltageV"), 11.9},
            {QStringLiteral("batteryCurrentA"), -1.45}, {QStringLiteral("batteryFlowW"), -17.255}, {QStringLiteral("systemPowerW"), 17.255},
            {QStringLiteral("dcPowerW"), 0}, {QStringLiteral("isDataAvailable"), true}, {QStringLiteral("designCapacityMAH"), 5000},
            {QStringLiteral("fullChargeCapacityMAH"), 4500}, {QStringLiteral("remainingCapacityMAH"), 3000},
            {QStringLiteral("batteryHealthPercent"), 90}, {QStringLiteral("cycleCount"), null}, {QStringLiteral("batteryTemperatureC"), null},
            {QStringLiteral("isCharging"), false}, {QStringLiteral("isExternalConnected"), false}, {QStringLiteral("batterySerial"), QStringLiteral("3417")},
            {QStringLiteral("deviceName"), QStringLiteral("NB57-3S1P")}, {QStringLiteral("lifetimeMaxDischargeCurrentA"), 1.45},
            {QStringLiteral("chipPower"), chip(null, null, null)}};
        QTest::newRow("Intel, on battery, counters still") << QStringLiteral("sysfs-intel-notebook") << QStringList() << QStringList() << intelOnBattery;
        QTest::newRow("Intel, counters moving, core wrapping")
            << QStringLiteral("sysfs-intel-notebook") << QStringList{kRapl + QStringLiteral("0:0/energy_uj=262143000000")}
            << QStringList{kRapl + QStringLiteral("0:0/energy_uj=999000"), kRapl + QStringLiteral("0:1/energy_uj=1234967890"),
                           kRapl + QStringLiteral("0:2/energy_uj=9877443210")}
            << QJsonObject{{QStringLiteral("chipPower"), chip(1.32785, 0.4, 0.9)}};
        QTest::newRow("AMD, charging on USB-C PD") << QStringLiteral("sysfs-amd-notebook") << QStringList()
                                                  << QStringList{kRapl + QStringLiteral("0/energy_uj=1206000000")}
                                                  << QJsonObject{
            {QStringLiteral("batteryPercent"), 50}, {QStringLiteral("batteryVoltageV"), 16.12}, {QStringLiteral("batteryCurrentA"), 1.83},
            {QStringLiteral("designCapacityMAH"), 4800}, {QStringLiteral("fullChargeCapacityMAH"), 4560}, {QStringLiteral("remainingCapacityMAH"), 2400},
            {QStringLiteral("batteryHealthPercent"), 95}, {QStringLiteral("cycleCount"), 112}, {QStringLiteral("isCharging"), true},
            {QStringLiteral("isExternalConnected"), true}, {QStringLiteral("dcVoltageV"), 20.0}, {QStringLiteral("dcCurrentA"), 0},
            {QStringLiteral("isDataAvailable"), false}, {QStringLiteral("batteryFlowW"), 29.4996}, {QStringLiteral("batterySerial"), QStringLiteral("0a1f")},
            {QStringLiteral("chipPower"), chip(6.0, 3.2, null)}};
        QTest::newRow("AMD, unplugged, signed current") << QStringLiteral("sysfs-amd-notebook")
            << QStringList{QStringLiteral("sys/class/power_supply/ACAD/online=0"),
                           QStringLiteral("sys/class/power_supply/ucsi-source-psy-USBC000:001/online=0"),
                           kAmd + QStringLiteral("status=Discharging"), kAmd + QStringLiteral("current_now=-2100000")}
            << QStringList() << QJsonObject{
            {QStringLiteral("batteryCurrentA"), -2.1}, {QStringLiteral("batteryFlowW"), -33.852}, {QStringLiteral("systemPowerW"), 33.852},
            {QStringLiteral("isDataAvailable"), true}, {QStringLiteral("isExternalConnected"), false}, {QStringLiteral("dcVoltageV"), 0},
            {QStringLiteral("isCharging"), false}};
        QTest::newRow("AMD, discharging on a weak adapter") << QStringLiteral("sysfs-amd-notebook")
            << QStringList{kAmd + QStringLiteral("status=Discharging"), kAmd + QStringLiteral("current_now=-500000")} << QStringList()
            << QJsonObject{{QStringLiteral("isExternalConnected"), true}, {QStringLiteral("systemPowerW"), 0}, {QStringLiteral("isDataAvailable"), false},
                           {QStringLiteral("batteryCurrentA"), -0.5}, {QStringLiteral("batteryFlowW"), -8.06}};
        QTest::newRow("Apple silicon, charging") << QStringLiteral("sysfs-apple-notebook") << QStringList() << QStringList() << QJsonObject{
            {QStringLiteral("dcVoltageV"), 20.01}, {QStringLiteral("dcCurrentA"), 2.5}, {QStringLiteral("dcPowerW"), 50.025},
            {QStringLiteral("systemPowerW"), 14.5}, {QStringLiteral("batteryFlowW"), 35.525}, {QStringLiteral("isDataAvailable"), true},
            {QStringLiteral("batteryPercent"), 72}, {QStringLiteral("batteryVoltageV"), 12.64}, {QStringLiteral("batteryCurrentA"), 2.81},
            {QStringLiteral("designCapacityMAH"), 6249}, {QStringLiteral("fullChargeCapacityMAH"), 5580}, {QStringLiteral("remainingCapacityMAH"), 4020},
            {QStringLiteral("batteryHealthPercent"), 89}, {QStringLiteral("batteryTemperatureC"), 30.5}, {QStringLiteral("lifetimeMaxTemperatureC"), 30.5},
            {QStringLiteral("estimatedMinutesToFull"), 95}, {QStringLiteral("cycleCount"), 87}, {QStringLiteral("isCharging"), true},
            {QStringLiteral("isExternalConnected"), true}, {QStringLiteral("batterySerial"), QStringLiteral("F8Y2K01QABCD")},
            {QStringLiteral("deviceName"), QStringLiteral("bq40z651")}};
        QTest::newRow("desktop, a keyboard's battery aside") << QStringLiteral("sysfs-desktop") << QStringList()
            << QStringList{kRapl + QStringLiteral("0/energy_uj=5153456789"), kRapl + QStringLiteral("0:0/energy_uj=3141456789"),
                           kRapl + QStringLiteral("0:1/energy_uj=713545678")}
            << QJsonObject{{QStringLiteral("hasBattery"), false}, {QStringLiteral("isExternalConnected"), true},
                           {QStringLiteral("isDataAvailable"), false}, {QStringLiteral("chipPower"), chip(18.0, null, 1.2)}};

        QTest::newRow("capacity empty: from the energies") << QStringLiteral("sysfs-intel-notebook") << QStringList{kIntel + QStringLiteral("capacity=")}
                                                          << QStringList() << QJsonObject{{QStringLiteral("batteryPercent"), 67}};
        QTest::newRow("capacity a folder") << QStringLiteral("sysfs-intel-notebook") << QStringList{kIntel + QStringLiteral("capacity/")}
                                          << QStringList() << QJsonObject{{QStringLiteral("batteryPercent"), 67}};
        const QJsonObject noVoltage{{QStringLiteral("batteryVoltageV"), null}, {QStringLiteral("batteryCurrentA"), -1.45},
                                    {QStringLiteral("systemPowerW"), 0}, {QStringLiteral("isDataAvailable"), false}};
        QTest::newRow("voltage with a unit after it") << QStringLiteral("sysfs-intel-notebook") << QStringList{kIntel + QStringLiteral("voltage_now=11900000 uV")}
                                             << QStringList() << noVoltage;
        QTest::newRow("voltage beyond 64 bits") << QStringLiteral("sysfs-intel-notebook")
                                               << QStringList{kIntel + QStringLiteral("voltage_now=99999999999999999999")} << QStringList() << noVoltage;
        QTest::newRow("power instead of current") << QStringLiteral("sysfs-intel-notebook")
                                                 << QStringList{kIntel + QStringLiteral("current_now"), kIntel + QStringLiteral("power_now=17255000")}
                                                 << QStringList() << QJsonObject{{QStringLiteral("batteryCurrentA"), -1.45}, {QStringLiteral("batteryFlowW"), -17.255}};
        QTest::newRow("energies without a design voltage") << QStringLiteral("sysfs-intel-notebook")
                                                          << QStringList{kIntel + QStringLiteral("voltage_min_design")} << QStringList()
                                                          << QJsonObject{{QStringLiteral("designCapacityMAH"), null}, {QStringLiteral("fullChargeCapacityMAH"), null},
                                                                         {QStringLiteral("batteryHealthPercent"), null}, {QStringLiteral("batteryPercent"), 67}};
        QTest::newRow("no status") << QStringLiteral("sysfs-intel-notebook") << QStringList{kIntel + QStringLiteral("status")} << QStringList()
                                   << QJsonObject{{QStringLiteral("batteryCurrentA"), -1.45}, {QStringLiteral("isDataAvailable"), false}};
        QTest::newRow("blank serial, huge temperature") << QStringLiteral("sysfs-amd-notebook")
                                                       << QStringList{kAmd + QStringLiteral("serial_number=   "), kAmd + QStringLiteral("temp=-9223372036854775808")}
                                                       << QStringList() << QJsonObject{{QStringLiteral("batterySerial"), null}, {QStringLiteral("batteryTemperatureC"), null}};
        QTest::newRow("battery taken out") << QStringLiteral("sysfs-intel-notebook") << QStringList{kIntel + QStringLiteral("present=0")} << QStringList()
                                           << QJsonObject{{QStringLiteral("hasBattery"), false}, {QStringLiteral("batteryPercent"), 0}};
        QTest::newRow("battery gone between reads") << QStringLiteral("sysfs-intel-notebook") << QStringList()
                                                    << QStringList{QStringLiteral("sys/class/power_supply/BAT0")}
                                                    << QJsonObject{{QStringLiteral("hasBattery"), false}, {QStringLiteral("batteryVoltageV"), null}};
        QTest::newRow("graphics card asleep") << QStringLiteral("sysfs-amd-notebook") << QStringList()
                                              << QStringList{QStringLiteral("sys/class/hwmon/hwmon2/power1_average=")}
                                              << QJsonObject{{QStringLiteral("chipPower"), chip(null, null, null)}};
    }

    void readings()
    {
        QFETCH(QString, fixture);
        QFETCH(QStringList, edits);
        QFETCH(QStringList, betweenReads);
        QFETCH(QJsonObject, expected);
        QTemporaryDir scratch;
        const QString root = copyOf(fixture, scratch);
        applyEdits(root, edits);
        const QString mismatches = jsonMismatches(readTwice(root, betweenReads), expected);
        QVERIFY2(mismatches.isEmpty(), qPrintable(mismatches));
    }

    // What decides between this machine and the simulated one, and whether to say how to allow chip power.
    void inventory_data()
    {
        QTest::addColumn<QString>("fixture");
        QTest::addColumn<QStringList>("edits");
        QTest::addColumn<bool>("hasPowerSources");
        QTest::addColumn<bool>("needsPermission");
        for (const char *fixture : {"sysfs-intel-notebook", "sysfs-amd-notebook", "sysfs-apple-notebook", "sysfs-desktop"})
            QTest::newRow(fixture) << QString::fromLatin1(fixture) << QStringList() << true << false;
        QTest::newRow("energy root's alone") << QStringLiteral("sysfs-desktop")
                                              << QStringList{kRapl + QStringLiteral("0/energy_uj"), kRapl + QStringLiteral("0:0/energy_uj"),
                                                             kRapl + QStringLiteral("0:1/energy_uj")}
                                              << true << true;
        QTest::newRow("only a keyboard's battery") << QStringLiteral("sysfs-desktop") << QStringList{QStringLiteral("sys/class/powercap")} << false << false;
        QTest::newRow("nothing at all") << QStringLiteral("sysfs-desktop") << QStringList{QStringLiteral("sys")} << false << false;
    }

    void inventory()
    {
        QFETCH(QString, fixture);
        QFETCH(QStringList, edits);
        QFETCH(bool, hasPowerSources);
        QFETCH(bool, needsPermission);
        QTemporaryDir scratch;
        const QString root = copyOf(fixture, scratch);
        applyEdits(root, edits);
        const std::unique_ptr<LinuxMachine> machine = machineAt(root);
        QCOMPARE(machine->hasPowerSources(), hasPowerSources);
        QCOMPARE(machine->chipPowerNeedsPermission(), needsPermission);
    }

    // A recorded tree holds the files a reading used, no others, and reads back the same.
    void recordingReadsBack_data()
    {
        QTest::addColumn<QString>("fixture");
        QTest::addColumn<QString>("unread");
        QTest::newRow("Intel") << QStringLiteral("sysfs-intel-notebook") << kIntel + QStringLiteral("manufacturer");
        QTest::newRow("AMD") << QStringLiteral("sysfs-amd-notebook") << QStringLiteral("sys/class/power_supply/hidpp_battery_0/capacity");
        QTest::newRow("Apple silicon") << QStringLiteral("sysfs-apple-notebook") << QStringLiteral("sys/class/hwmon/hwmon0/temp1_input");
        QTest::newRow("desktop") << QStringLiteral("sysfs-desktop") << QStringLiteral("sys/class/hwmon/hwmon1/temp1_input");
    }

    void recordingReadsBack()
    {
        QFETCH(QString, fixture);
        QFETCH(QString, unread);
        QTemporaryDir scratch;
        const QString copy = scratch.filePath(QStringLiteral("copy"));
        QString error;
        QVERIFY2(recordSysfsTree((kFixtures + fixture).toStdString(), copy, &error), qPrintable(error));
        QVERIFY(!QFile::exists(copy + u'/' + unread));
        QJsonObject original = readTwice(kFixtures + fixture, {});
        QJsonObject replayed = readTwice(copy, {});
        original.remove(QStringLiteral("updatedAt"));
        replayed.remove(QStringLiteral("updatedAt"));
        QCOMPARE(replayed, original);
        QVERIFY(!recordSysfsTree((kFixtures + fixture).toStdString(), copy, &error)); // into a folder already used
    }
};

QTEST_GUILESS_MAIN(LinuxMachineTest)
#include "tst_linux_machine.moc"
