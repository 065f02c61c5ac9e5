#include "platform/linux/proc_process_source.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace ferrow;

namespace {

const double kTicks = static_cast<double>(::sysconf(_SC_CLK_TCK));

// A process's stat line: 250 + 50 ticks of CPU, started at 4000 ticks.
QByteArray statLine(const QByteArray &name, const QByteArray &flags = "4194560", const QByteArray &utime = "250",
                    const QByteArray &start = "4000")
{
    return "42 (" + name + ") S 1 42 42 0 -1 " + flags + " 180 0 0 0 " + utime + " 50 0 0 20 0 1 0 " + start
        + " 12345678 900 18446744073709551615 1 1 0 0 0 0 0 0 0 0 0 0 17 1 0 0 0 0 0\n";
}

// A /proc tree in a temporary folder, with its desktop's data folders beside it.
struct Tree {
    QTemporaryDir folder;

    Tree()
    {
        write(QStringLiteral("proc/uptime"), "1000.50 1800.00\n");
        write(QStringLiteral("proc/stat"), "cpu  100 20 30 800 50 5 5 10 7 0\ncpu0 50 10 15 400 25 3 2 5 7 0\nintr 1 2 3\n");
        QDir(folder.path()).mkpath(QStringLiteral("proc/self")); // not a process
    }
    void write(const QString &path, const QByteArray &bytes) const
    {
        const QString file = folder.filePath(path);
        QDir().mkpath(QFileInfo(file).path());
        QFile out(file);
        QVERIFY(out.open(QIODevice::WriteOnly | QIODevice::Truncate));
        out.write(bytes);
    }
    void addProcess(int pid, const QByteArray &stat, const QByteArray &cgroup = {}, const QByteArray &exe = {}) const
    {
        const QString process = QStringLiteral("proc/%1/").arg(pid);
        write(process + QStringLiteral("stat"), stat);
        if (!cgroup.isEmpty())
            write(process + QStringLiteral("cgroup"), cgroup);
        if (!exe.isEmpty())
            QVERIFY(QFile::link(QString::fromUtf8(exe), folder.filePath(process + QStringLiteral("exe"))));
    }
    ProcProcessSource source(std::int64_t self = 1) const
    {
        return ProcProcessSource(QFile::encodeName(folder.filePath(QStringLiteral("proc"))).toStdString(),
                                 {folder.filePath(QStringLiteral("home")), folder.filePath(QStringLiteral("system"))}, self);
    }
};

} // namespace

class TestProcProcessSource : public QObject {
    Q_OBJECT
private slots:
    void statFile_data()
    {
        QTest::addColumn<QByteArray>("stat");
        QTest::addColumn<QByteArray>("exe"); // the link's target; empty: unreadable
        QTest::addColumn<QString>("name");   // empty: left out
        QTest::newRow("parentheses in the name") << statLine("a) (b") << QByteArray() << QStringLiteral("a) (b");
        QTest::newRow("control characters") << statLine("two\nlines\tx") << QByteArray() << QStringLiteral("two lines x");
        QTest::newRow("invalid UTF-8") << statLine("caf\xe9") << QByteArray() << QStringLiteral("caf\uFFFD");
        QTest::newRow("empty name") << statLine("") << QByteArray() << QStringLiteral("42");
        QTest::newRow("executable replaced by an update")
            << statLine("Web Content") << QByteArray("/usr/lib/firefox/firefox-bin (deleted)") << QStringLiteral("firefox-bin");
        QTest::newRow("kernel thread") << statLine("kworker/0:1", "69238848") << QByteArray() << QString();
        QTest::newRow("garbage number") << statLine("x", "4194560", "25O") << QByteArray() << QString();
        const QByteArray whole = statLine("x");
        QTest::newRow("cut short") << whole.left(whole.indexOf(" 4000 ")) << QByteArray() << QString();
    }

    void statFile()
    {
        QFETCH(QByteArray, stat);
        QFETCH(QByteArray, exe);
        QFETCH(QString, name);
        Tree tree;
        tree.addProcess(42, stat, {}, exe);
        const std::optional<ProcessFrame> frame = tree.source().sample();
        QVERIFY(frame);
        QCOMPARE(frame->processes.size(), std::size_t(name.isEmpty() ? 0 : 1));
        if (name.isEmpty())
            return;
        const ProcessSample &process = frame->processes.front();
        QCOMPARE(process.name, name);
        QCOMPARE(process.group, name);
        QCOMPARE(process.cpuTimeS, 300 / kTicks);
        QCOMPARE(process.startedS, 4000 / kTicks);
    }

    void applicationId_data()
    {
        QTest::addColumn<QByteArray>("cgroup");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("name");
        const QByteArray apps = "0::/user.slice/user-1000.slice/user@1000.service/app.slice/";
        QTest::newRow("launcher's scope") << apps + "app-gnome-org.gnome.Terminal-3412.scope\n"
                                          << QStringLiteral("org.gnome.Terminal") << QStringLiteral("Terminal");
        QTest::newRow("service below legacy controllers")
            << "12:pids:/user.slice\n1:name=systemd:/user.slice/app-x-1.scope\n" + apps + "app-org.gnome.Nautilus@1a2b.service\n"
            << QStringLiteral("org.gnome.Nautilus") << QStringLiteral("Nautilus");
        QTest::newRow("escaped dashes") << apps + "app-gnome-gnome\\x2dsystem\\x2dmonitor-99.scope\n"
                                        << QStringLiteral("gnome-system-monitor") << QStringLiteral("gnome-system-monitor");
        QTest::newRow("shell in a terminal's slice") << apps + "app-org.gnome.Terminal.slice/vte-spawn-0f3c.scope\n"
                                                     << QStringLiteral("org.gnome.Terminal") << QStringLiteral("Terminal");
        QTest::newRow("system service") << QByteArray("0::/system.slice/NetworkManager.service\n") << QStringLiteral("bash")
                                        << QStringLiteral("bash");
        QTest::newRow("id escaping its folder") << apps + "app-gnome-x\\x2f..\\x2f..\\x2fetc\\x2fpasswd-5.scope\n"
                                                << QStringLiteral("bash") << QStringLiteral("bash");
    }

    void applicationId()
    {
        QFETCH(QByteArray, cgroup);
        QFETCH(QString, group);
        QFETCH(QString, name);
        Tree tree;
        tree.addProcess(42, statLine("bash"), cgroup, "/usr/bin/bash");
        const std::optional<ProcessFrame> frame = tree.source().sample();
        QVERIFY(frame && frame->processes.size() == 1);
        QCOMPARE(frame->processes.front().group, group);
        QCOMPARE(frame->processes.front().name, name);
    }

    void desktopEntry_data()
    {
        QTest::addColumn<QByteArray>("home");   // empty: none
        QTest::addColumn<QByteArray>("system"); // empty: none
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("icon");
        QTest::newRow("the user's own first") << QByteArray("[Desktop Entry]\nName=Mine\nIcon=mine\n")
                                              << QByteArray("[Desktop Entry]\nName=Theirs\nIcon=theirs\n") << QStringLiteral("Mine")
                                              << QStringLiteral("mine");
        QTest::newRow("unlocalised name of the main group")
            << QByteArray() << QByteArray("[Desktop Entry]\nName = Files\nName[de]=Dateien\nIcon=org.gnome.Nautilus\n"
                                          "[Desktop Action new-window]\nName=New Window\n")
            << QStringLiteral("Files") << QStringLiteral("org.gnome.Nautilus");
        QTest::newRow("no name") << QByteArray() << QByteArray("[Desktop Entry]\nIcon=/opt/files/icon.png\n")
                                 << QStringLiteral("Nautilus") << QStringLiteral("/opt/files/icon.png");
    }

    void desktopEntry()
    {
        QFETCH(QByteArray, home);
        QFETCH(QByteArray, system);
        QFETCH(QString, name);
        QFETCH(QString, icon);
        Tree tree;
        if (!home.isEmpty())
            tree.write(QStringLiteral("home/applications/org.gnome.Nautilus.desktop"), home);
        if (!system.isEmpty())
            tree.write(QStringLiteral("system/applications/org.gnome.Nautilus.desktop"), system);
        tree.addProcess(42, statLine("nautilus"), "0::/app.slice/app-org.gnome.Nautilus@1.service\n");
        const std::optional<ProcessFrame> frame = tree.source().sample();
        QVERIFY(frame && frame->processes.size() == 1);
        QCOMPARE(frame->processes.front().name, name);
        QCOMPARE(frame->processes.front().icon, icon);
    }

    // A process that is going away or not yet whole is left out; the others are read.
    void skipsWhatCannotBeRead()
    {
        Tree tree;
        tree.addProcess(10, statLine("alive"));
        QDir(tree.folder.path()).mkpath(QStringLiteral("proc/11"));      // stat gone
        QDir(tree.folder.path()).mkpath(QStringLiteral("proc/12/stat")); // stat unreadable
        tree.addProcess(13, "13 (half");
        tree.write(QStringLiteral("proc/14"), statLine("a file"));
        ProcProcessSource source = tree.source(10);
        const std::optional<ProcessFrame> frame = source.sample();
        QVERIFY(frame && frame->processes.size() == 1);
        QCOMPARE(frame->processes.front().pid, std::int64_t(10));
        QVERIFY(frame->processes.front().isSelf);
        QCOMPARE(frame->uptimeS, 1000.5);
        QCOMPARE(*frame->cpuBusyS, 170 / kTicks);
        QCOMPARE(*frame->cpuTotalS, 1020 / kTicks);

        QVERIFY(QFile::remove(tree.folder.filePath(QStringLiteral("proc/uptime"))));
        QVERIFY(!source.sample());
        QVERIFY(!ProcProcessSource(QFile::encodeName(tree.folder.filePath(QStringLiteral("none"))).toStdString()).sample());
    }

    // A known process keeps what it was found to be, unless it was just starting; a new one in
    // its pid, or its return after it was gone, is looked at afresh.
    void knownProcesses()
    {
        Tree tree;
        ProcProcessSource source = tree.source();
        const auto groupAfter = [&](const QByteArray &start, const QByteArray &cgroup, const QByteArray &flags = "4194560") {
            tree.addProcess(42, statLine("x", flags, "250", start), cgroup);
            const std::optional<ProcessFrame> frame = source.sample();
            return frame && frame->processes.size() == 1 ? frame->processes.front().group : QString();
        };
        QCOMPARE(groupAfter("4000", "0::/app-a@1.service\n"), QStringLiteral("a"));
        QCOMPARE(groupAfter("4000", "0::/app-b@1.service\n"), QStringLiteral("a"));
        QCOMPARE(groupAfter("4100", "0::/app-b@1.service\n"), QStringLiteral("b"));
        QVERIFY(QDir(tree.folder.filePath(QStringLiteral("proc/42"))).removeRecursively());
        QVERIFY(source.sample()->processes.empty());
        QCOMPARE(groupAfter("4100", "0::/app-c@1.service\n"), QStringLiteral("c"));
        // Half a second old at the uptime of 1000.5 s: its launcher may not have moved it yet.
        const QByteArray justStarted = QByteArray::number(1000 * kTicks, 'f', 0);
        QCOMPARE(groupAfter(justStarted, "0::/app-d@1.service\n"), QStringLiteral("d"));
        QCOMPARE(groupAfter(justStarted, "0::/app-e@1.service\n"), QStringLiteral("e"));
        // A kernel thread's pid that went to a new process is noticed within a minute of samples.
        QCOMPARE(groupAfter("4200", "0::/\n", "69238848"), QString());
        QString group;
        for (int sample = 0; sample < 12 && group.isEmpty(); ++sample)
            group = groupAfter("4300", "0::/app-f@1.service\n");
        QCOMPARE(group, QStringLiteral("f"));
    }
};

QTEST_GUILESS_MAIN(TestProcProcessSource)
#include "tst_proc_process_source.moc"
