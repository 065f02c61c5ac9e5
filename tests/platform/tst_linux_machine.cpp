#include "app/text_table.h"
#include "export/snapshot_json.h"
#include "platform/common/in_memory_key_value_store.h"
#include "platform/linux/linux_power_reader.h"
#include "platform/native_machine.h"
#include "support/json_compare.h"
#include "support/json_rows.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <csignal>

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

std::unique_ptr<LinuxPowerReader> readerAt(const QString &root, ManualClock **clock = nullptr)
{
    auto manual = std::make_unique<ManualClock>();
    if (clock)
        *clock = manual.get();
    return std::make_unique<LinuxPowerReader>(std::make_unique<SysfsFiles>(root.toStdString()), std::make_unique<InMemoryKeyValueStore>(),
                                              std::move(manual));
}

// Two readings one second apart, the second edits made between them.
QJsonObject readTwice(const QString &root, const QStringList &betweenReads)
{
    ManualClock *clock = nullptr;
    const std::unique_ptr<LinuxPowerReader> reader = readerAt(root, &clock);
    reader->read();
    applyEdits(root, betweenReads);
    clock->m_uptimeS += 1;
    return snapshotToJson(reader->read());
}

const QString kRapl = QStringLiteral("sys/class/powercap/intel-rapl:");

} // namespace

class LinuxMachineTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(installTextTable(*QCoreApplication::instance())); }

    // Each fixture's values worked out by hand from its files, then the same trees with odd files:
    // "edits" are made before the first reading, "betweenReads" before the second.
    void readings_data() { addJsonRows("sysfs-readings.json"); }

    void readings()
    {
        QFETCH(QJsonObject, row);
        const auto texts = [&](const char16_t *member) { return row[member].toVariant().toStringList(); };
        QTemporaryDir scratch;
        const QString root = copyOf(row[u"fixture"].toString(), scratch);
        applyEdits(root, texts(u"edits"));
        const QString mismatches = jsonMismatches(readTwice(root, texts(u"betweenReads")), row[u"expected"].toObject());
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
        const std::unique_ptr<LinuxPowerReader> reader = readerAt(root);
        QCOMPARE(reader->hasPowerSources(), hasPowerSources);
        QCOMPARE(reader->chipPowerNeedsPermission(), needsPermission);
    }

    // A recorded tree holds the files a reading used, no others, and reads back the same.
    void recordingReadsBack_data()
    {
        QTest::addColumn<QString>("fixture");
        QTest::addColumn<QString>("unread");
        QTest::newRow("Intel") << QStringLiteral("sysfs-intel-notebook") << QStringLiteral("sys/class/power_supply/BAT0/manufacturer");
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

    // The handler only writes to a pipe; the event loop quits when it reads it. Twice: a second
    // install must not break the first.
    void interruptQuitsTheEventLoop()
    {
        quitOnInterruptSignal();
        quitOnInterruptSignal();
        for (const int signal : {SIGINT, SIGTERM}) {
            QTimer::singleShot(0, [signal] { ::raise(signal); });
            QTimer giveUp;
            QObject::connect(&giveUp, &QTimer::timeout, [] { QCoreApplication::exit(1); });
            giveUp.start(5000);
            QCOMPARE(QCoreApplication::exec(), 0);
        }
    }
};

QTEST_GUILESS_MAIN(LinuxMachineTest)
#include "tst_linux_machine.moc"
