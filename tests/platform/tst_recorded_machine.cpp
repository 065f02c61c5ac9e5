#include "export/snapshot_json.h"
#include "platform/recorded/property_list_parser.h"
#include "platform/recorded/property_list_writer.h"
#include "platform/recorded/recorded_machine.h"
#include "platform/recorded/recording_writer.h"
#include "platform/simulated/simulated_machine.h"
#include "sources/power_sensor_reader.h"
#include "support/json_compare.h"
#include "support/json_rows.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <functional>
#include <limits>

#include <sys/stat.h>

using namespace ferrow;
using namespace ferrow::testing;

Q_DECLARE_METATYPE(ferrow::PropertyValue)
Q_DECLARE_METATYPE(std::vector<ferrow::ProcessFrame>)

namespace {

const QString kFixtures = QStringLiteral(QT_TESTCASE_SOURCEDIR "/fixtures/");

QJsonObject readJson(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

QByteArray plist(const char *body)
{
    return QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n") + body + "\n</plist>\n";
}

// A machine to record and what its recording must give back: the reading its twin gives at that moment
// (a replay reads twice, the first setting the chip baseline) and, for a fixture recorded again, the
// fixture's own files as far as a recording takes them.
struct Subject {
    std::unique_ptr<PowerSensorReader> reader; // owns the machine that is recorded
    MachinePlatform *machine = nullptr;
    std::function<void()> waitOneSecond = [] {};
    QString description;
    PowerSnapshot expected;
    std::optional<Recording> fixture;
    QJsonObject fixtureMachine;
};

Subject simulatedSubject(bool notebook)
{
    const SimulatedMachine::Options options{notebook ? SimulatedPowerModel::Kind::notebook : SimulatedPowerModel::Kind::desktop, 11, false,
                                            notebook ? 27 : 26};
    const auto readFor = [](SimulatedMachine *simulated, PowerSensorReader &reader, int seconds) {
        for (int second = 0; second < seconds; ++second) {
            simulated->simulationClock().advance(std::chrono::seconds(1));
            reader.read();
        }
    };
    Subject subject;
    auto *simulated = new SimulatedMachine(options);
    subject.reader = std::make_unique<PowerSensorReader>(std::unique_ptr<MachinePlatform>(simulated));
    readFor(simulated, *subject.reader, 300); // stored extremes to carry along
    simulated->simulationClock().advance(std::chrono::seconds(1));
    subject.machine = simulated;
    subject.waitOneSecond = [simulated] { simulated->simulationClock().advance(std::chrono::seconds(1)); };
    subject.description = notebook ? QStringLiteral("simulated notebook") : QStringLiteral("simulated desktop");
    auto *twin = new SimulatedMachine(options);
    PowerSensorReader twinReader{std::unique_ptr<MachinePlatform>(twin)};
    readFor(twin, twinReader, 301);
    subject.expected = twinReader.read();
    return subject;
}

Subject fixtureSubject(const QString &folder)
{
    Subject subject;
    QString error;
    subject.fixture = loadRecording(kFixtures + folder, &error);
    if (!subject.fixture) {
        qWarning("%s", qPrintable(error));
        return subject;
    }
    auto *fixture = new RecordedMachine(*subject.fixture);
    subject.reader = std::make_unique<PowerSensorReader>(std::unique_ptr<MachinePlatform>(fixture));
    subject.machine = fixture;
    subject.description = subject.fixture->description;
    PowerSensorReader twinReader{std::make_unique<RecordedMachine>(*subject.fixture)};
    twinReader.read();
    subject.expected = twinReader.read();

    // A recording takes two energy samples and the SMC keys a reading asks for.
    subject.fixtureMachine = readJson(kFixtures + folder + QStringLiteral("/machine.json"));
    QJsonArray frames = subject.fixtureMachine[u"energy"].toArray();
    while (frames.size() > 2)
        frames.removeLast();
    subject.fixtureMachine[u"energy"] = frames;
    QJsonObject keys = subject.fixtureMachine[u"smc"].toObject();
    const std::vector<std::string> keysRead = PowerSensorReader::smcKeysRead();
    for (const QString &key : keys.keys()) {
        if (std::find(keysRead.begin(), keysRead.end(), key.toStdString()) == keysRead.end())
            keys.remove(key);
    }
    subject.fixtureMachine[u"smc"] = keys;
    return subject;
}

// Gives its frames in turn, then nothing.
class ScriptedProcessSource final : public ProcessSource {
public:
    explicit ScriptedProcessSource(std::vector<ProcessFrame> frames) : m_frames(std::move(frames)) {}
    std::optional<ProcessFrame> sample() override
    {
        return m_next < m_frames.size() ? std::optional(m_frames[m_next++]) : std::nullopt;
    }

private:
    std::vector<ProcessFrame> m_frames;
    std::size_t m_next = 0;
};

// Every field of a frame, figures to the last bit, for a comparison that shows what differs.
QString described(const std::optional<ProcessFrame> &frame)
{
    if (!frame)
        return QStringLiteral("no frame");
    const auto number = [](std::optional<double> value) { return value ? QString::number(*value, 'g', 17) : QStringLiteral("absent"); };
    QStringList lines{QStringList{number(frame->uptimeS), number(frame->cpuBusyS), number(frame->cpuTotalS),
                                  frame->includesOtherUsers ? QStringLiteral("others") : QStringLiteral("own")}
                          .join(u' ')};
    for (const ProcessSample &process : frame->processes)
        lines << QStringList{QString::number(process.pid), number(process.startedS), u'[' + process.group + u']', u'[' + process.name + u']',
                             u'[' + process.icon + u']', number(process.cpuTimeS), number(process.energyJ),
                             process.isSelf ? QStringLiteral("self") : QString()}
                     .join(u' ');
    return lines.join(u'\n');
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

    // Each row's "machine" members go over those of a good machine.json, or "machineText" stands for it.
    void brokenRecording_data() { addJsonRows("broken-recordings.json"); }

    void brokenRecording()
    {
        QFETCH(QJsonObject, row);
        QJsonObject machine{{QStringLiteral("format"), QStringLiteral("ferrow-recording/1")}, {QStringLiteral("osMajorVersion"), 26}};
        const QJsonObject changes = row[u"machine"].toObject();
        for (auto member = changes.begin(); member != changes.end(); ++member)
            machine[member.key()] = member.value();
        QTemporaryDir folder;
        QFile machineFile(folder.filePath(QStringLiteral("machine.json")));
        QVERIFY(machineFile.open(QIODevice::WriteOnly));
        machineFile.write(row.contains(u"machineText") ? row[u"machineText"].toString().toUtf8() : QJsonDocument(machine).toJson());
        machineFile.close();
        if (row.contains(u"batteryPlist")) {
            QFile batteryFile(folder.filePath(QStringLiteral("battery.plist")));
            QVERIFY(batteryFile.open(QIODevice::WriteOnly));
            batteryFile.write(plist(row[u"batteryPlist"].toString().toUtf8().constData()));
        }
        QString error;
        QVERIFY(!loadRecording(folder.path(), &error));
        QVERIFY2(error.contains(row[u"message"].toString()), qPrintable(error));
        QVERIFY2(error.startsWith(folder.path()), "the message names the file");
    }

    // A recording whose machine file never ends, blocks or loops is refused in one line naming it.
    void hostileRecording_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("message");
        QTest::newRow("many megabytes") << QStringLiteral("huge") << QStringLiteral("larger than 16 MiB");
        QTest::newRow("/dev/zero") << QStringLiteral("/dev/zero") << QStringLiteral("not a regular file");
        QTest::newRow("named pipe") << QStringLiteral("pipe") << QStringLiteral("not a regular file");
        QTest::newRow("symlink loop") << QStringLiteral("loop") << QStringLiteral("cannot be read");
    }

    void hostileRecording()
    {
        QFETCH(QString, kind);
        QFETCH(QString, message);
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("machine.json"));
        if (kind == u"huge") {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            QVERIFY(file.resize(17 << 20));
        } else if (kind == u"pipe") {
            QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        } else {
            QVERIFY(QFile::link(kind == u"loop" ? path : kind, path));
        }
        QString error;
        QVERIFY(!loadRecording(folder.path(), &error));
        QVERIFY2(error.startsWith(path) && error.contains(message) && !error.contains(u'\n'), qPrintable(error));
    }

    // A recording made through the same path as on a Mac replays as its twin reads at that moment, figure
    // for figure: the simulated machines moving on while they are recorded, and each fixture recorded again,
    // which also gives back the fixture's files (some of what they hold reaches no reading here).
    void recordingRoundTrip_data()
    {
        QTest::addColumn<QString>("machine"); // "simulated-notebook", "simulated-desktop" or a fixture's folder
        QTest::newRow("simulated notebook, with stored extremes") << QStringLiteral("simulated-notebook");
        QTest::newRow("simulated desktop") << QStringLiteral("simulated-desktop");
        for (const char *folder : {"notebook-charging-26", "notebook-battery-27", "desktop-26"})
            QTest::newRow(folder) << QString::fromLatin1(folder);
    }

    void recordingRoundTrip()
    {
        QFETCH(QString, machine);
        Subject subject = machine.startsWith(u"simulated-") ? simulatedSubject(machine == u"simulated-notebook") : fixtureSubject(machine);
        QVERIFY(subject.machine);

        QTemporaryDir folder;
        QString error;
        QVERIFY2(writeRecording(*subject.machine, nullptr, subject.description, subject.waitOneSecond, folder.path(), &error), qPrintable(error));
        std::optional<Recording> written = loadRecording(folder.path(), &error);
        QVERIFY2(written, qPrintable(error));
        QCOMPARE(written->description, subject.description);
        if (subject.fixture) {
            const QString changed = jsonMismatches(readJson(folder.filePath(QStringLiteral("machine.json"))), subject.fixtureMachine);
            QVERIFY2(changed.isEmpty(), qPrintable(changed));
            QVERIFY(written->battery == subject.fixture->battery);
        }
        PowerSensorReader replay{std::make_unique<RecordedMachine>(std::move(*written))};
        replay.read();
        PowerSnapshot replayed = replay.read();

        replayed.updatedAt = subject.expected.updatedAt;
        if (!subject.fixture)
            replayed.chipPower = subject.expected.chipPower; // the simulated chips draw what they draw when sampled
        const QString mismatches = jsonMismatches(snapshotToJson(replayed), snapshotToJson(subject.expected));
        QVERIFY2(mismatches.isEmpty(), qPrintable(mismatches));
        QVERIFY2(replayed == subject.expected, "a figure differs by less than 1e-5");
    }

    // Process frames as the Mac's recorder writes them come back from the replay unchanged, the last
    // one repeating; a recording without any gives no source.
    void processFrames_data()
    {
        QTest::addColumn<std::vector<ProcessFrame>>("frames");
        const QString app = QStringLiteral("/Applications/Caf\u00e9 \"Bar\"\n.app");
        ProcessSample measured{412, 0.1 + 0.2, app, QStringLiteral("Caf\u00e9 \"Bar\" \u65e5\u672c \U0001F50B \\ \t"), app, 12.000000001, 1e-9 * 3440000001, false};
        ProcessSample idle{99998, 86000.5, QStringLiteral("trustd"), QStringLiteral("trustd"), QString(), 0, 0.0, false};
        ProcessSample self{7, 86399.25, QStringLiteral("ferrow"), QStringLiteral("Ferrow"), QStringLiteral("ferrow"), 1.5, std::nullopt, true};
        ProcessFrame first{86400.123456789, {measured, idle, self}, std::nullopt, std::nullopt, false};
        measured.cpuTimeS += 0.75;
        measured.energyJ = *measured.energyJ + 2.5;
        ProcessFrame second{86401.123456789, {measured, self}, 1234.5, 9876.25, true};
        QTest::newRow("two frames") << std::vector<ProcessFrame>{first, second};
        QTest::newRow("nothing read") << std::vector<ProcessFrame>{};
    }

    void processFrames()
    {
        QFETCH(std::vector<ProcessFrame>, frames);
        QString error;
        std::optional<Recording> fixture = loadRecording(kFixtures + QStringLiteral("desktop-26"), &error);
        QVERIFY2(fixture, qPrintable(error));
        RecordedMachine machine(std::move(*fixture));
        ScriptedProcessSource source(frames);
        QTemporaryDir folder;
        QVERIFY2(writeRecording(machine, &source, QStringLiteral("processes"), [] {}, folder.path(), &error), qPrintable(error));
        std::optional<Recording> written = loadRecording(folder.path(), &error);
        QVERIFY2(written, qPrintable(error));
        const std::unique_ptr<ProcessSource> replay = RecordedMachine(std::move(*written)).createProcessSource();
        QCOMPARE(replay != nullptr, !frames.empty());
        for (std::size_t frame = 0; replay && frame <= frames.size(); ++frame)
            QCOMPARE(described(replay->sample()), described(frames[std::min(frame, frames.size() - 1)]));
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
