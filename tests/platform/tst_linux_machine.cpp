#include "app/text_table.h"
#include "export/snapshot_json.h"
#include "platform/common/in_memory_key_value_store.h"
#include "platform/linux/linux_diagnosis.h"
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

#include <sys/stat.h>

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

qsizetype openFileCount()
{
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

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
        const qsizetype openFiles = openFileCount();
        const QString mismatches = jsonMismatches(readTwice(root, texts(u"betweenReads")), row[u"expected"].toObject());
        QVERIFY2(mismatches.isEmpty(), qPrintable(mismatches));
        QCOMPARE(openFileCount(), openFiles); // the files a reader keeps open, replaced ones too, close with it
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

    // Hostile content reads as the file's absence, at a page's cost at most (an endless or blocking
    // file would hang the test), and the diagnosis keeps one entry a line.
    void hostileTree_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("attribute"); // in BAT0
        for (const char *kind : {"many megabytes", "two lines"}) // a text read in full would pass as a model name
            QTest::newRow(kind) << QString::fromLatin1(kind) << QStringLiteral("model_name");
        for (const char *kind : {"/dev/zero", "named pipe", "symlink loop", "odd supply names"})
            QTest::newRow(kind) << QString::fromLatin1(kind) << QStringLiteral("voltage_now");
    }

    void hostileTree()
    {
        QFETCH(QString, kind);
        QFETCH(QString, attribute);
        QTemporaryDir plainScratch, hostileScratch;
        const QString plain = copyOf(QStringLiteral("sysfs-intel-notebook"), plainScratch);
        const QString hostile = copyOf(QStringLiteral("sysfs-intel-notebook"), hostileScratch);
        const QString supplies = QStringLiteral("/sys/class/power_supply/");
        const QString file = hostile + supplies + QStringLiteral("BAT0/") + attribute;
        if (kind == u"odd supply names") {
            const QString odd = hostile + supplies + QStringLiteral("odd\nsupply");
            QDir().mkpath(odd);
            applyEdits(odd, {QStringLiteral("type=Wireless")});
            QVERIFY(QFile::link(hostile + supplies + QStringLiteral("loop"), hostile + supplies + QStringLiteral("loop")));
        } else {
            QFile::remove(plain + supplies + QStringLiteral("BAT0/") + attribute);
            QFile::remove(file);
            if (kind == u"many megabytes" || kind == u"two lines") {
                QFile content(file);
                QVERIFY(content.open(QIODevice::WriteOnly));
                content.write(kind == u"two lines" ? QByteArray("NB57\nrogue\n") : QByteArray(8 << 20, 'N'));
            } else if (kind == u"named pipe") {
                QCOMPARE(::mkfifo(QFile::encodeName(file).constData(), 0600), 0);
            } else {
                QVERIFY(QFile::link(kind == u"/dev/zero" ? QStringLiteral("/dev/zero") : file, file));
            }
        }
        QJsonObject expected = readTwice(plain, {}), read = readTwice(hostile, {});
        expected.remove(QStringLiteral("updatedAt"));
        read.remove(QStringLiteral("updatedAt"));
        QCOMPARE(read, expected);
        SysfsFiles files(hostile.toStdString());
        for (const QString &line : diagnosisText(diagnoseLinuxTree(files)).split(u'\n'))
            QVERIFY2(line.isEmpty() || line.startsWith(QStringLiteral("  ")) || line.contains(QStringLiteral("(sys/class/")), qPrintable(line));
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
