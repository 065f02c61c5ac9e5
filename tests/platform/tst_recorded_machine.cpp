#include "model/snapshot_json.h"
#include "platform/recorded/property_list_parser.h"
#include "platform/recorded/property_list_writer.h"
#include "platform/recorded/recorded_machine.h"
#include "platform/recorded/recording_writer.h"
#include "platform/simulated/simulated_machine.h"
#include "sources/power_sensor_reader.h"
#include "support/json_compare.h"

#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace ferrow;
using namespace ferrow::testing;

Q_DECLARE_METATYPE(ferrow::PropertyValue)

namespace {

const QString kFixtures = QStringLiteral(QT_TESTCASE_SOURCEDIR "/fixtures/");

QByteArray plist(const char *body)
{
    return QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n") + body + "\n</plist>\n";
}

} // namespace

class RecordedMachineTest : public QObject {
    Q_OBJECT

private slots:
    // Values worked out by hand from each recording's files.
    void fixtures_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QJsonObject>("expected");
        QFile file(kFixtures + QStringLiteral("recorded-readings.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonObject all = QJsonDocument::fromJson(file.readAll()).object();
        QVERIFY(!all.isEmpty());
        for (auto folder = all.begin(); folder != all.end(); ++folder)
            QTest::newRow(qPrintable(folder.key())) << folder.key() << folder.value().toObject();
    }

    void fixtures()
    {
        QFETCH(QString, folder);
        QFETCH(QJsonObject, expected);
        QString error;
        std::optional<Recording> recording = loadRecording(kFixtures + folder, &error);
        QVERIFY2(recording, qPrintable(error));
        PowerSensorReader reader{std::make_unique<RecordedMachine>(std::move(*recording))};
        reader.read(); // the chip baseline
        const QString mismatches = jsonMismatches(snapshotToJson(reader.read()), expected);
        QVERIFY2(mismatches.isEmpty(), qPrintable(mismatches));
    }

    void propertyList_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<PropertyValue>("value");

        QTest::newRow("integers") << plist("<array><integer>42</integer><integer>-7</integer><integer>18446744073709549743</integer></array>")
                                  << PropertyValue(PropertyList{42, -7, std::uint64_t(18446744073709549743u)});
        QTest::newRow("integers are decimal despite leading zeros")
            << plist("<array><integer>012600</integer><integer>089</integer><integer>+5</integer><integer>-9223372036854775808</integer></array>")
            << PropertyValue(PropertyList{12600, 89, 5, std::numeric_limits<std::int64_t>::min()});
        QTest::newRow("hexadecimal integers") << plist("<array><integer>0x1F</integer><integer>-0X10</integer><integer>0xFFFFFFFFFFFFF82F</integer></array>")
                                              << PropertyValue(PropertyList{31, -16, std::uint64_t(0xFFFFFFFFFFFFF82Fu)});
        QTest::newRow("real and booleans") << plist("<array><real>12.5</real><true/><false/></array>") << PropertyValue(PropertyList{12.5, true, false});
        QTest::newRow("string with entities") << plist("<string>pd &amp; charger</string>") << PropertyValue(QStringLiteral("pd & charger"));
        QTest::newRow("data") << plist("<data>\n\tAAEC\n</data>") << PropertyValue(QByteArray("\x00\x01\x02", 3));
        QTest::newRow("date has no typed reading") << plist("<date>2026-01-01T00:00:00Z</date>") << PropertyValue(UnsupportedProperty{});
        QTest::newRow("empty containers") << plist("<dict><key>a</key><array/><key>b</key><dict/></dict>")
                                          << PropertyValue(PropertyDictionary{{QStringLiteral("a"), PropertyList{}}, {QStringLiteral("b"), PropertyDictionary{}}});
        QTest::newRow("nested") << plist("<dict><key>BatteryData</key><dict><key>CellVoltage</key><array><integer>4007</integer></array></dict></dict>")
                                << PropertyValue(PropertyDictionary{{QStringLiteral("BatteryData"), PropertyDictionary{{QStringLiteral("CellVoltage"), PropertyList{4007}}}}});
    }

    void propertyList()
    {
        QFETCH(QByteArray, xml);
        QFETCH(PropertyValue, value);
        QString error;
        const std::optional<PropertyValue> parsed = parsePropertyList(xml, &error);
        QVERIFY2(parsed, qPrintable(error));
        QVERIFY(*parsed == value);
        // What a recording writes reads back as the same value.
        if (!std::holds_alternative<UnsupportedProperty>(value.value))
            QVERIFY(parsePropertyList(writePropertyList(value), &error) == value);
    }

    void brokenPropertyList_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("message");
        QTest::newRow("empty") << QByteArray() << QStringLiteral("no <plist>");
        QTest::newRow("not XML") << QByteArray("{\"json\": true}") << QStringLiteral("line 1");
        QTest::newRow("other root") << QByteArray("<html/>") << QStringLiteral("expected <plist>");
        QTest::newRow("unknown element") << plist("<dict><key>a</key><float>1</float></dict>") << QStringLiteral("line 3, column 25: unknown element <float>");
        QTest::newRow("key without value") << plist("<dict><key>a</key></dict>") << QStringLiteral("key \"a\" has no value");
        QTest::newRow("value without key") << plist("<dict><integer>1</integer></dict>") << QStringLiteral("expected <key>");
        QTest::newRow("stray text") << plist("<dict>oops</dict>") << QStringLiteral("unexpected text");
        QTest::newRow("not an integer") << plist("<integer>12.5</integer>") << QStringLiteral("\"12.5\" is not a 64-bit integer");
        QTest::newRow("beyond 64 bits") << plist("<integer>18446744073709551616</integer>") << QStringLiteral("not a 64-bit integer");
        QTest::newRow("hex digit without 0x") << plist("<integer>12a</integer>") << QStringLiteral("\"12a\" is not a 64-bit integer");
        QTest::newRow("0x without digits") << plist("<integer>0x</integer>") << QStringLiteral("\"0x\" is not a 64-bit integer");
        QTest::newRow("below 64 bits") << plist("<integer>-9223372036854775809</integer>") << QStringLiteral("not a 64-bit integer");
        QTest::newRow("not a real") << plist("<real>warm</real>") << QStringLiteral("not a real number");
        QTest::newRow("bad base64") << plist("<data>@@@</data>") << QStringLiteral("not base64");
        QTest::newRow("truncated") << QByteArray("<plist><dict><key>a</key><integer>1</integer>") << QStringLiteral("line 1");
        QTest::newRow("two values") << plist("<true/><false/>") << QStringLiteral("unexpected <false> after the value");
        QTest::newRow("element inside a string") << plist("<string>a<b/></string>") << QStringLiteral("line 3");
        QTest::newRow("nested too deep") << plist(QByteArray("<array>").repeated(200).constData()) << QStringLiteral("nested more than 128 levels");
    }

    void brokenPropertyList()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QString, message);
        QString error;
        QVERIFY(!parsePropertyList(xml, &error));
        QVERIFY2(error.contains(message), qPrintable(error));
    }

    void brokenRecording_data()
    {
        QTest::addColumn<QByteArray>("machine");
        QTest::addColumn<QByteArray>("battery"); // empty: no battery.plist
        QTest::addColumn<QString>("message");
        const QByteArray good = "{\"format\":\"ferrow-recording/1\",\"osMajorVersion\":26}";
        const auto with = [](const char *members) {
            return QByteArray("{\"format\":\"ferrow-recording/1\",\"osMajorVersion\":26,") + members + "}";
        };
        QTest::newRow("machine.json not JSON") << QByteArray("{\n  \"format\": ferrow\n}") << QByteArray()
                                               << QStringLiteral("machine.json: line 2, column 15: illegal value");
        QTest::newRow("wrong format") << QByteArray("{\"format\":\"v2\"}") << QByteArray() << QStringLiteral("machine.json: format: expected");
        QTest::newRow("version not a number") << QByteArray("{\"format\":\"ferrow-recording/1\",\"osMajorVersion\":\"26\"}") << QByteArray()
                                              << QStringLiteral("machine.json: osMajorVersion:");
        QTest::newRow("SMC key too long") << with("\"smc\":{\"VD0RX\":{\"type\":\"flt \",\"bytes\":\"00\"}}") << QByteArray()
                                          << QStringLiteral("smc.VD0RX: a key is four ASCII characters");
        QTest::newRow("SMC bytes not hex") << with("\"smc\":{\"VD0R\":{\"type\":\"flt \",\"bytes\":\"zz00\"}}") << QByteArray()
                                           << QStringLiteral("smc.VD0R.bytes: expected hexadecimal");
        QTest::newRow("SMC type wrong") << with("\"smc\":{\"VD0R\":{\"type\":\"float\",\"bytes\":\"00\"}}") << QByteArray()
                                        << QStringLiteral("smc.VD0R.type:");
        QTest::newRow("energy counter not a number") << with("\"energy\":[{\"uptime\":1,\"channels\":[[\"Energy Model\",\"CPU Energy\",\"mJ\",\"12\"]]}]")
                                                     << QByteArray() << QStringLiteral("energy[0].channels[0]: expected [group, name, unit");
        QTest::newRow("energy without uptime") << with("\"energy\":[{\"channels\":[]}]") << QByteArray() << QStringLiteral("energy[0].uptime:");
        QTest::newRow("profiler of the wrong kind") << with("\"systemProfiler\":{\"exitStatus\":0,\"output\":12}") << QByteArray()
                                                    << QStringLiteral("systemProfiler.output:");
        QTest::newRow("stored entry under a foreign key") << with("\"preferences\":{\"showPowerInMenuBar\":\"true\"}") << QByteArray()
                                                          << QStringLiteral("preferences.showPowerInMenuBar: not a stored battery history entry");
        QTest::newRow("stored entry not text") << with("\"preferences\":{\"batteryTemperatureHistory.v1.ab\":{\"maximumC\":40}}") << QByteArray()
                                               << QStringLiteral("preferences.batteryTemperatureHistory.v1.ab: expected the stored JSON as a string");
        QTest::newRow("battery.plist broken") << good << plist("<dict><key>Voltage</key><integer>x</integer></dict>")
                                              << QStringLiteral("battery.plist: line 3, column");
        QTest::newRow("battery.plist of a list of strings") << good << plist("<array><string>x</string></array>")
                                                            << QStringLiteral("battery.plist: the first entry is not a dictionary");
    }

    void brokenRecording()
    {
        QFETCH(QByteArray, machine);
        QFETCH(QByteArray, battery);
        QFETCH(QString, message);
        QTemporaryDir folder;
        QFile machineFile(folder.filePath(QStringLiteral("machine.json")));
        QVERIFY(machineFile.open(QIODevice::WriteOnly));
        machineFile.write(machine);
        machineFile.close();
        if (!battery.isEmpty()) {
            QFile batteryFile(folder.filePath(QStringLiteral("battery.plist")));
            QVERIFY(batteryFile.open(QIODevice::WriteOnly));
            batteryFile.write(battery);
        }
        QString error;
        QVERIFY(!loadRecording(folder.path(), &error));
        QVERIFY2(error.contains(message), qPrintable(error));
        QVERIFY2(error.startsWith(folder.path()), "the message names the file");
    }

    // A recording made through the same path as on a Mac replays as the machine read at that moment.
    void recordingRoundTrip()
    {
        const SimulatedMachine::Options options{SimulatedPowerModel::Kind::notebook, 11, false, 27};
        const auto readAt = [](SimulatedMachine *machine, PowerSensorReader &reader, int seconds) {
            PowerSnapshot last;
            for (int second = 0; second < seconds; ++second) {
                machine->simulationClock().advance(std::chrono::seconds(1));
                last = reader.read();
            }
            return last;
        };
        auto *recorded = new SimulatedMachine(options);
        PowerSensorReader recordedReader{std::unique_ptr<MachinePlatform>(recorded)};
        readAt(recorded, recordedReader, 300); // stored extremes to carry along
        auto *direct = new SimulatedMachine(options);
        PowerSensorReader directReader{std::unique_ptr<MachinePlatform>(direct)};
        readAt(direct, directReader, 301);
        const PowerSnapshot expected = directReader.read(); // a replay reads twice: the first sets the chip baseline

        recorded->simulationClock().advance(std::chrono::seconds(1));
        QTemporaryDir folder;
        QString error;
        QVERIFY2(writeRecording(*recorded, QStringLiteral("simulated notebook"),
                                [&] { recorded->simulationClock().advance(std::chrono::seconds(1)); }, folder.path(), &error),
                 qPrintable(error));
        std::optional<PowerSnapshot> replayed = readRecordedSnapshot(folder.path(), &error);
        QVERIFY2(replayed, qPrintable(error));

        replayed->updatedAt = expected.updatedAt;
        replayed->chipPower = expected.chipPower; // depends on the moment
        QVERIFY(*replayed == expected);
    }

    void commandLineReader_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("output"); // a fragment of standard output, or of standard error on failure
        QTest::newRow("recording as JSON") << QStringList{QStringLiteral("--source"), QStringLiteral("recorded:") + kFixtures + QStringLiteral("desktop-26"),
                                                          QStringLiteral("--once"), QStringLiteral("--json")}
                                           << 0 << QStringLiteral("\"dcPowerW\":35,");
        QTest::newRow("recording as a line") << QStringList{QStringLiteral("--source"), QStringLiteral("recorded:") + kFixtures + QStringLiteral("notebook-charging-26"),
                                                            QStringLiteral("--once")}
                                             << 0 << QStringLiteral("46.4 W");
        QTest::newRow("missing recording is named") << QStringList{QStringLiteral("--source"), QStringLiteral("recorded:/nonexistent"), QStringLiteral("--once")}
                                          << 1 << QStringLiteral("ferrow-cli: /nonexistent: no such recording folder");
        QTest::newRow("unknown source") << QStringList{QStringLiteral("--source"), QStringLiteral("mac")} << 2 << QStringLiteral("unknown source 'mac'");
        QTest::newRow("help") << QStringList{QStringLiteral("--help")} << 0 << QStringLiteral("--source <source>");
    }

    void commandLineReader()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, output);
        QProcess cli;
        cli.start(QStringLiteral(FERROW_CLI_PATH), arguments);
        QVERIFY(cli.waitForFinished(20'000));
        QCOMPARE(cli.exitStatus(), QProcess::NormalExit);
        QCOMPARE(cli.exitCode(), exitCode);
        const QString printed = QString::fromUtf8(exitCode == 0 ? cli.readAllStandardOutput() : cli.readAllStandardError());
        QVERIFY2(printed.contains(output), qPrintable(printed));
        if (exitCode == 1)
            QCOMPARE(printed.count(u'\n'), 1); // one clear line
    }
};

QTEST_GUILESS_MAIN(RecordedMachineTest)
#include "tst_recorded_machine.moc"
