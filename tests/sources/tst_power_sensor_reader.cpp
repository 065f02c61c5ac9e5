#include "export/snapshot_json.h"
#include "platform/recorded/property_list_parser.h"
#include "sources/power_sensor_reader.h"
#include "support/fake_machine.h"
#include "support/json_compare.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <functional>
#include <limits>

using namespace ferrow;
using namespace ferrow::testing;

using Setup = std::function<void(FakeMachine &)>;
Q_DECLARE_METATYPE(Setup)

namespace {

const QString kFixtures = QStringLiteral(QT_TESTCASE_SOURCEDIR "/fixtures/");

PropertyDictionary &nested(PropertyDictionary &dictionary, const char *name)
{
    return std::get<PropertyDictionary>(dictionary[QString::fromLatin1(name)].value);
}

PropertyValue &top(FakeMachine &m, const char *name)
{
    return (*m.battery)[QString::fromLatin1(name)];
}

void removeTop(FakeMachine &m, const char *name)
{
    m.battery->erase(QString::fromLatin1(name));
}

void setFloatKey(FakeMachine &m, const char *key, float value)
{
    m.smc.setKey(key, "flt ", smcBytesOfFloat(value));
}

QByteArray profilerSaying(const char *percent)
{
    return QByteArray("{\"SPPowerDataType\":[{\"sppower_battery_health_info\":{\"sppower_battery_health_maximum_capacity\":\"")
        + percent + "\"}}]}";
}

// A notebook on a 20 V adapter, charging at 62 %, on a system without the battery history.
void baseNotebook(FakeMachine &m)
{
    setFloatKey(m, "VD0R", 20.0f);
    setFloatKey(m, "ID0R", 1.5f);
    setFloatKey(m, "PSTR", 12.0f);
    setFloatKey(m, "PDTR", 30.0f);
    setFloatKey(m, "VP0R", 12.4f);
    static const PropertyValue battery = [] {
        QFile file(kFixtures + QStringLiteral("reader-notebook-battery.plist"));
        QString error;
        const auto parsed = file.open(QIODevice::ReadOnly) ? parsePropertyList(file.readAll(), &error) : std::nullopt;
        if (!parsed)
            qFatal("reader-notebook-battery.plist: %s", qPrintable(error));
        return *parsed;
    }();
    m.battery = std::get<PropertyDictionary>(battery.value);
    m.powerSourceList = PropertyList{PropertyDictionary{{QStringLiteral("Type"), QStringLiteral("InternalBattery")},
                                                        {QStringLiteral("BatteryHealth"), QStringLiteral("Good")}}};
    m.profiler = CommandResult{0, profilerSaying("87%")};
}

QJsonObject expect(std::initializer_list<std::pair<const char *, QJsonValue>> fields)
{
    QJsonObject object;
    for (const auto &[name, value] : fields)
        object.insert(QLatin1StringView(name), value);
    return object;
}

const QJsonValue null(QJsonValue::Null);

} // namespace

class PowerSensorReaderTest : public QObject {
    Q_OBJECT

private slots:
    void read_data()
    {
        QTest::addColumn<Setup>("setup");
        QTest::addColumn<QJsonObject>("expected");
        const auto row = [](const char *name, Setup setup, QJsonObject expected) {
            QTest::newRow(name) << setup << expected;
        };

        QFile reading(kFixtures + QStringLiteral("reader-notebook-reading.json")); // every figure of the notebook as it is
        QVERIFY(reading.open(QIODevice::ReadOnly));
        const QJsonObject notebook = QJsonDocument::fromJson(reading.readAll()).object();
        QVERIFY(notebook.size() > 30);
        row("notebook charging", [](FakeMachine &) {}, notebook);

        // External input and system power.
        row("input below its thresholds", [](FakeMachine &m) { setFloatKey(m, "VD0R", 0.3f); setFloatKey(m, "ID0R", 2.0f); },
            expect({{"dcVoltageV", 0}, {"dcCurrentA", 2}, {"dcPowerW", 0}, {"isDataAvailable", true}}));
        row("input just over its floors", [](FakeMachine &m) { setFloatKey(m, "VD0R", 0.45f); setFloatKey(m, "ID0R", 0.055f); },
            expect({{"dcVoltageV", 0.45}, {"dcCurrentA", 0.055}}));
        row("no voltage key: PDTR", [](FakeMachine &m) { m.smc.removeKey("VD0R"); setFloatKey(m, "PDTR", 45.0f); },
            expect({{"dcVoltageV", 0}, {"dcCurrentA", 1.5}, {"dcPowerW", 45}}));
        row("no input keys at all", [](FakeMachine &m) { for (const char *k : {"VD0R", "ID0R", "PDTR"}) m.smc.removeKey(k); },
            expect({{"dcPowerW", 0}, {"isDataAvailable", false}, {"batteryFlowW", -12}}));
        row("input voltage out of range", [](FakeMachine &m) { setFloatKey(m, "VD0R", 301.0f); },
            expect({{"dcVoltageV", 0}, {"dcPowerW", 30}})); // falls back to PDTR
        row("zero PSTR beats SystemLoad", [](FakeMachine &m) { m.smc.setKey("PSTR", "flt ", {0, 0, 0, 0}); },
            expect({{"systemPowerW", 0}, {"batteryFlowW", 30}}));
        row("no system power", [](FakeMachine &m) { m.smc.removeKey("PSTR"); removeTop(m, "PowerTelemetryData"); },
            expect({{"systemPowerW", 0}, {"isDataAvailable", false}, {"batteryFlowW", 30}}));
        row("nothing measured: no flow made up from the pack", [](FakeMachine &m) {
                for (const char *k : {"VD0R", "ID0R", "PDTR", "PSTR"})
                    m.smc.removeKey(k);
                removeTop(m, "PowerTelemetryData");
            },
            expect({{"batteryFlowW", 0}, {"batteryChargePowerW", 0}, {"isDataAvailable", false}}));
        row("no rail voltage", [](FakeMachine &m) { m.smc.removeKey("VP0R"); }, expect({{"batteryRailVoltageV", null}}));

        // Flow and charging.
        row("adapter cannot carry the load", [](FakeMachine &m) { setFloatKey(m, "PSTR", 40.0f); top(m, "IsCharging") = false; },
            expect({{"batteryFlowW", -10}, {"batteryChargePowerW", 0}, {"isCharging", false}, {"batteryCurrentA", -1.45}}));
        row("unplugged while the battery says charging", [](FakeMachine &m) { top(m, "ExternalConnected") = false; },
            expect({{"batteryChargePowerW", 0}, {"isCharging", false}, {"batteryCurrentA", -1.45}}));
        row("IsCharging missing: not charging", [](FakeMachine &m) { removeTop(m, "IsCharging"); setFloatKey(m, "PSTR", 29.5f); },
            expect({{"isCharging", false}, {"batteryCurrentA", -1.45}}));
        row("charge power 0.55 W overrides IsCharging", [](FakeMachine &m) { top(m, "IsCharging") = false; setFloatKey(m, "PSTR", 29.45f); },
            expect({{"isCharging", true}}));
        row("charge power 0.5 W does not", [](FakeMachine &m) { top(m, "IsCharging") = false; setFloatKey(m, "PSTR", 29.5f); },
            expect({{"isCharging", false}, {"batteryChargePowerW", 0.5}}));
        row("ExternalConnected missing, adapter details", [](FakeMachine &m) { removeTop(m, "ExternalConnected"); m.adapterDetails = true; },
            expect({{"isExternalConnected", true}, {"batteryChargePowerW", 18}}));

        // Charge and capacities.
        row("MaxCapacity 0", [](FakeMachine &m) { top(m, "MaxCapacity") = 0; top(m, "CurrentCapacity") = 50; },
            expect({{"batteryPercent", 100}}));
        row("CurrentCapacity missing", [](FakeMachine &m) { removeTop(m, "CurrentCapacity"); }, expect({{"batteryPercent", 0}}));
        row("MaxCapacity missing", [](FakeMachine &m) { removeTop(m, "MaxCapacity"); top(m, "CurrentCapacity") = 87; },
            expect({{"batteryPercent", 87}}));
        row("capacities in mAh", [](FakeMachine &m) { top(m, "MaxCapacity") = 5600; top(m, "CurrentCapacity") = 2799; },
            expect({{"batteryPercent", 49}}));
        row("CurrentCapacity beyond 64-bit arithmetic",
            [](FakeMachine &m) { top(m, "CurrentCapacity") = std::numeric_limits<std::int64_t>::max() / 100 * 3; }, expect({{"batteryPercent", 0}}));
        row("CurrentCapacity at the edge of 64-bit arithmetic",
            [](FakeMachine &m) { top(m, "CurrentCapacity") = std::numeric_limits<std::int64_t>::max() / 100; }, expect({{"batteryPercent", 100}}));
        row("full capacity fallback", [](FakeMachine &m) { top(m, "AppleRawMaxCapacity") = 100001; },
            expect({{"fullChargeCapacityMAH", 5500}}));
        row("remaining capacity of 1 mAh", [](FakeMachine &m) { nested(*m.battery, "BatteryData")[QStringLiteral("RemainingCapacity")] = 1; },
            expect({{"remainingCapacityMAH", 1}}));

        // Health.
        row("profiler fails, no nominal: full capacity ratio",
            [](FakeMachine &m) { m.profiler = std::nullopt; removeTop(m, "NominalChargeCapacity"); }, expect({{"batteryHealthPercent", 92}}));
        row("health condition absent", [](FakeMachine &m) { m.powerSourceList = std::nullopt; }, expect({{"batteryHealthCondition", null}}));

        // Temperature.
        row("nested temperature when top is missing", [](FakeMachine &m) { removeTop(m, "Temperature"); },
            expect({{"batteryTemperatureC", 30}}));

        // Voltage and current.
        row("voltage 30001 mV", [](FakeMachine &m) { top(m, "Voltage") = 30001; top(m, "AvgTimeToFull") = 65535; },
            expect({{"batteryVoltageV", null}, {"lifetimeMaxPackVoltageV", null}, {"estimatedMinutesToFull", null}}));
        row("discharge current", [](FakeMachine &m) { top(m, "ExternalConnected") = false; top(m, "Amperage") = -2500; },
            expect({{"batteryCurrentA", -2.5}, {"lifetimeMaxDischargeCurrentA", 2.5}, {"lifetimeMaxChargeCurrentA", null}}));
        row("sign follows charging, store keeps it",
            [](FakeMachine &m) { top(m, "IsCharging") = false; setFloatKey(m, "PSTR", 40.0f); top(m, "Amperage") = 1500; },
            expect({{"batteryCurrentA", -1.5}, {"lifetimeMaxChargeCurrentA", 1.5}}));
        row("100 A is the most", [](FakeMachine &m) { top(m, "Amperage") = 100000; }, expect({{"batteryCurrentA", 100}}));
        row("100.05 A", [](FakeMachine &m) { top(m, "Amperage") = 100050; },
            expect({{"batteryCurrentA", null}, {"lifetimeMaxChargeCurrentA", null}}));
        row("amperage as an unsigned bit pattern", [](FakeMachine &m) {
                top(m, "ExternalConnected") = false;
                top(m, "Amperage") = static_cast<std::uint64_t>(-2000);
            },
            expect({{"batteryCurrentA", -2.0}, {"lifetimeMaxDischargeCurrentA", 2.0}}));

        // Time to full.
        const auto estimating = [](FakeMachine &m, float currentA, std::int64_t fullMAH, std::int64_t remainingMAH) {
            top(m, "AvgTimeToFull") = 65535;
            top(m, "Voltage") = 12600;
            top(m, "AppleRawMaxCapacity") = fullMAH;
            nested(*m.battery, "BatteryData")[QStringLiteral("RemainingCapacity")] = remainingMAH;
            setFloatKey(m, "ID0R", currentA);
        };
        row("estimate of 76 minutes", [=](FakeMachine &m) { estimating(m, 2.1f, 6000, 3000); }, expect({{"estimatedMinutesToFull", 76}}));
        row("estimate of at least 1", [=](FakeMachine &m) { estimating(m, 2.1f, 6000, 5999); }, expect({{"estimatedMinutesToFull", 1}}));
        row("estimate of at most 5999", [=](FakeMachine &m) {
                estimating(m, 0.625f, 100000, 1);
                top(m, "Voltage") = 30000;
            },
            expect({{"estimatedMinutesToFull", 5999}}));
        row("estimate at 0.35 W", [=](FakeMachine &m) { estimating(m, 2.1f, 6000, 3000); setFloatKey(m, "PSTR", 41.65f); },
            expect({{"estimatedMinutesToFull", 5999}}));
        row("estimate at exactly 0.3 W", [=](FakeMachine &m) { // 0.5 W in, 0.2 W to the system
                estimating(m, 1.0f, 6000, 3000);
                setFloatKey(m, "VD0R", 0.5f);
                m.smc.removeKey("PSTR");
                nested(*m.battery, "PowerTelemetryData")[QStringLiteral("SystemLoad")] = 200;
            },
            expect({{"batteryChargePowerW", 0.3}, {"estimatedMinutesToFull", 5999}}));
        row("no estimate without remaining charge", [=](FakeMachine &m) { estimating(m, 2.1f, 6000, 0); }, expect({{"estimatedMinutesToFull", null}}));
        row("no estimate below 0.3 W", [=](FakeMachine &m) { estimating(m, 2.1f, 6000, 3000); setFloatKey(m, "PSTR", 41.9f); },
            expect({{"estimatedMinutesToFull", null}}));
        row("reported time of 1 minute", [](FakeMachine &m) { top(m, "AvgTimeToFull") = 1; }, expect({{"estimatedMinutesToFull", 1}}));
        row("reported time while discharging", [](FakeMachine &m) { top(m, "ExternalConnected") = false; top(m, "AvgTimeToFull") = 90; },
            expect({{"estimatedMinutesToFull", 90}}));
        row("invalid reported time: estimate, not BatteryData's", [](FakeMachine &m) {
                top(m, "AvgTimeToFull") = 65535;
                nested(*m.battery, "BatteryData")[QStringLiteral("AvgTimeToFull")] = 42;
            },
            expect({{"estimatedMinutesToFull", 88}})); // 12.4 V × 2128 mAh at 18 W
        row("reported time from BatteryData", [](FakeMachine &m) {
                removeTop(m, "AvgTimeToFull");
                nested(*m.battery, "BatteryData")[QStringLiteral("AvgTimeToFull")] = 42;
            },
            expect({{"estimatedMinutesToFull", 42}}));

        // Counts, lifetime and names.
        row("design cycles fallback", [](FakeMachine &m) { removeTop(m, "DesignCycleCount9C"); }, expect({{"designCycleCount", 700}}));
        row("lifetime values out of range", [](FakeMachine &m) {
                PropertyDictionary &lifetime = nested(nested(*m.battery, "BatteryData"), "LifetimeData");
                lifetime[QStringLiteral("MaximumTemperature")] = 121;
                lifetime[QStringLiteral("AverageTemperature")] = 1201;
                lifetime.erase(QStringLiteral("MinimumTemperature"));
                lifetime[QStringLiteral("TotalOperatingTime")] = 10'000'001;
                top(m, "BatteryCellDisconnectCount") = -1;
            },
            expect({{"lifetimeMaxTemperatureC", null}, {"lifetimeAverageTemperatureC", null}, {"lifetimeMinTemperatureC", null},
                    {"totalOperatingMinutes", null}, {"batterySafetyProtectionCount", null}}));
        row("lifetime values past their other ends", [](FakeMachine &m) {
                nested(nested(*m.battery, "BatteryData"), "LifetimeData")[QStringLiteral("TotalOperatingTime")] = -1;
                top(m, "BatteryCellDisconnectCount") = 1'000'001;
            },
            expect({{"totalOperatingMinutes", null}, {"batterySafetyProtectionCount", null}}));
        row("lifetime temperatures at their bounds", [](FakeMachine &m) {
                PropertyDictionary &lifetime = nested(nested(*m.battery, "BatteryData"), "LifetimeData");
                lifetime[QStringLiteral("MaximumTemperature")] = 120;
                lifetime[QStringLiteral("MinimumTemperature")] = -50;
                lifetime[QStringLiteral("AverageTemperature")] = -501; // tenths: just under the bound
            },
            expect({{"lifetimeMaxTemperatureC", 120}, {"lifetimeMinTemperatureC", -50}, {"lifetimeAverageTemperatureC", null}}));

        // Operating-system branches.
        row("version 27: history and SMC cells allowed", [](FakeMachine &m) {
                m.osMajorVersion = 27;
                nested(*m.battery, "BatteryData")[QStringLiteral("CellVoltage")] = PropertyList{1500, 3800, 3800};
                setFloatKey(m, "SBA1", 4.1f);
                setFloatKey(m, "SBA2", 4.1f);
                setFloatKey(m, "SBA3", 4.2f);
                setFloatKey(m, "SBAV", 12.4f);
            },
            expect({{"lifetimeMaxTemperatureC", 30.55}, {"lifetimeAverageTemperatureC", 30.55}, {"cellVoltageSource", QStringLiteral("smc")},
                    {"cellVoltagesV", QJsonArray{4.1, 4.1, 4.2}}}));
        row("version 28: registry cells only", [](FakeMachine &m) {
                m.osMajorVersion = 28;
                nested(*m.battery, "BatteryData")[QStringLiteral("CellVoltage")] = PropertyList{1500, 3800, 3800};
                setFloatKey(m, "SBA1", 4.1f);
                setFloatKey(m, "SBAV", 4.1f);
            },
            expect({{"lifetimeMinTemperatureC", 30.55}, {"cellVoltageSource", null}, {"cellVoltagesV", QJsonArray{}}}));

        // Machines without a battery.
        row("desktop", [](FakeMachine &m) { m.battery = std::nullopt; },
            expect({{"hasBattery", false}, {"isExternalConnected", true}, {"batteryFlowW", 0}, {"batteryChargePowerW", 0},
                    {"batteryPercent", 0}, {"batteryHealthPercent", null}, {"batteryHealthCondition", null}, {"cellVoltagesV", QJsonArray{}},
                    {"batteryTemperatureC", null}, {"isCharging", false}, {"lifetimeMaxPackVoltageV", null}, {"dcPowerW", 30},
                    {"systemPowerW", 12}, {"isDataAvailable", true}, {"designCapacityMAH", null}}));
        row("battery not installed", [](FakeMachine &m) { top(m, "BatteryInstalled") = false; },
            expect({{"hasBattery", false}, {"batteryPercent", 0}, {"isExternalConnected", true}, {"isCharging", false},
                    {"designCapacityMAH", 6075}, {"cycleCount", 212}, {"batteryVoltageV", 12.4}, {"batteryHealthPercent", null},
                    {"lifetimeMaxPackVoltageV", null}, {"estimatedMinutesToFull", 95},
                    {"lifetimeMaxTemperatureC", 45}, {"lifetimeMinTemperatureC", 12}})); // the battery's own, on older systems
        row("no word on installation: a battery", [](FakeMachine &m) { removeTop(m, "BatteryInstalled"); }, expect({{"hasBattery", true}}));
    }

    void read()
    {
        QFETCH(Setup, setup);
        QFETCH(QJsonObject, expected);
        auto *machine = new FakeMachine;
        baseNotebook(*machine);
        setup(*machine);
        PowerSensorReader reader{std::unique_ptr<MachinePlatform>(machine)};
        const PowerSnapshot snapshot = reader.read();
        const QString mismatches = jsonMismatches(snapshotToJson(snapshot), expected);
        QVERIFY2(mismatches.isEmpty(), qPrintable(mismatches));
        if (!snapshot.hasBattery) { // no battery, no health probes: no child process, no power-source query
            QCOMPARE(machine->profilerRuns, 0);
            QCOMPARE(machine->powerSourceQueries, 0);
        }
    }

    // The power keys are probed on the first reading only; a key that turns up later goes unread.
    void powerKeysAreProbedOnce_data()
    {
        QTest::addColumn<bool>("keysPresent");
        QTest::newRow("keys present") << true;
        QTest::newRow("no power keys") << false;
    }

    void powerKeysAreProbedOnce()
    {
        QFETCH(bool, keysPresent);
        auto *machine = new FakeMachine;
        baseNotebook(*machine);
        const std::set<std::string> keys{"VD0R", "ID0R", "PSTR", "PDTR", "VP0R"};
        if (!keysPresent) {
            for (const std::string &k : keys)
                machine->smc.removeKey(k);
        }
        PowerSensorReader reader{std::unique_ptr<MachinePlatform>(machine)};
        QVERIFY(!reader.availableSMCKeys());
        reader.read();
        QCOMPARE(reader.availableSMCKeys(), std::optional(keysPresent ? keys : std::set<std::string>{}));
        const int firstRead = machine->smc.callCount();
        setFloatKey(*machine, "PSTR", 10.0f);
        machine->time += std::chrono::milliseconds(1234);
        const PowerSnapshot snapshot = reader.read();
        QCOMPARE(machine->smc.callCount() - firstRead, keysPresent ? 2 * 5 : 0); // one readDouble per key, no probing
        QCOMPARE(snapshot.systemPowerW, keysPresent ? 10.0 : 11.8); // else from SystemLoad
        QCOMPARE(snapshot.updatedAt, machine->time);
        reader.read();
        QCOMPARE(machine->profilerRuns, 1); // only on the first reading
    }
};

QTEST_GUILESS_MAIN(PowerSensorReaderTest)
#include "tst_power_sensor_reader.moc"
