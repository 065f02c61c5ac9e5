#include "platform/common/process_command_runner.h"

#include <QElapsedTimer>
#include <QTest>

using namespace ferrow;
using namespace std::chrono_literals;

class ProcessCommandRunnerTest : public QObject {
    Q_OBJECT

private slots:
    void run_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("finished");
        QTest::addColumn<int>("exitStatus");
        QTest::addColumn<QByteArray>("output");

        const QString sh = QStringLiteral("/bin/sh");
        const auto script = [](const char *text) { return QStringList{QStringLiteral("-c"), QString::fromLatin1(text)}; };
        QTest::newRow("arguments in order") << QStringLiteral("/bin/echo") << QStringList{QStringLiteral("-n"), QStringLiteral("a b"), QStringLiteral("c")}
                                            << true << 0 << QByteArray("a b c");
        QTest::newRow("exit status") << sh << script("echo partial; exit 3") << true << 3 << QByteArray("partial\n");
        QTest::newRow("standard error is dropped") << sh << script("echo noise >&2; echo out") << true << 0 << QByteArray("out\n");
        QTest::newRow("no shell: metacharacters stay text") << QStringLiteral("/bin/echo") << QStringList{QStringLiteral("$(id); *")}
                                                            << true << 0 << QByteArray("$(id); *\n");
        QTest::newRow("output after a quiet spell") << sh << script("sleep 0.2; echo late") << true << 0 << QByteArray("late\n");
        QTest::newRow("output of exactly the limit") << sh << script("head -c 65536 /dev/zero") << true << 0 << QByteArray(65536, '\0');
        QTest::newRow("relative path is refused") << QStringLiteral("echo") << QStringList{QStringLiteral("x")} << false << 0 << QByteArray();
        QTest::newRow("missing program") << QStringLiteral("/nonexistent/system_profiler") << QStringList{} << false << 0 << QByteArray();
        QTest::newRow("killed by a signal") << sh << script("kill -9 $$") << false << 0 << QByteArray();
        // Cut off at the time-out or the output limit, whatever the child does.
        QTest::newRow("hanging, silent") << sh << script("sleep 30") << false << 0 << QByteArray();
        QTest::newRow("hanging, chatty") << sh << script("while true; do echo tick; sleep 0.05; done") << false << 0 << QByteArray();
        QTest::newRow("hanging, output closed") << sh << script("exec >&-; sleep 30") << false << 0 << QByteArray();
        QTest::newRow("flooding") << sh << script("yes flood") << false << 0 << QByteArray();
    }

    void run()
    {
        QFETCH(QString, program);
        QFETCH(QStringList, arguments);
        QFETCH(bool, finished);
        QFETCH(int, exitStatus);
        QFETCH(QByteArray, output);

        ProcessCommandRunner runner(1s, 64 * 1024);
        QElapsedTimer elapsed;
        elapsed.start();
        const std::optional<CommandResult> result = runner.run(program, arguments);
        QVERIFY2(elapsed.elapsed() < 10'000, "the child was not killed at its time-out");
        QCOMPARE(result.has_value(), finished);
        if (result) {
            QCOMPARE(result->exitStatus, exitStatus);
            QCOMPARE(result->standardOutput, output);
        }
    }
};

QTEST_GUILESS_MAIN(ProcessCommandRunnerTest)
#include "tst_process_command_runner.moc"
