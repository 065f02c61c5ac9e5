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
        QTest::newRow("relative path is refused") << QStringLiteral("echo") << QStringList{QStringLiteral("x")} << false << 0 << QByteArray();
        QTest::newRow("missing program") << QStringLiteral("/nonexistent/system_profiler") << QStringList{} << false << 0 << QByteArray();
        QTest::newRow("killed by a signal") << sh << script("kill -9 $$") << false << 0 << QByteArray();
    }

    void run()
    {
        QFETCH(QString, program);
        QFETCH(QStringList, arguments);
        QFETCH(bool, finished);
        QFETCH(int, exitStatus);
        QFETCH(QByteArray, output);

        ProcessCommandRunner runner(5s);
        const std::optional<CommandResult> result = runner.run(program, arguments);
        QCOMPARE(result.has_value(), finished);
        if (result) {
            QCOMPARE(result->exitStatus, exitStatus);
            QCOMPARE(result->standardOutput, output);
        }
    }

    void hangingChildIsCutOff_data()
    {
        QTest::addColumn<QString>("script");
        QTest::newRow("silent") << QStringLiteral("sleep 30");
        QTest::newRow("chatty") << QStringLiteral("while true; do echo tick; sleep 0.05; done");
        QTest::newRow("output closed") << QStringLiteral("exec >&-; sleep 30");
    }

    void hangingChildIsCutOff()
    {
        QFETCH(QString, script);
        ProcessCommandRunner runner(300ms);
        QElapsedTimer elapsed;
        elapsed.start();
        QCOMPARE(runner.run(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), script}), std::nullopt);
        QVERIFY2(elapsed.elapsed() < 10'000, "the child was not killed at its time-out");
    }

    void floodingChildIsCutOff()
    {
        ProcessCommandRunner runner(10s, 64 * 1024);
        QCOMPARE(runner.run(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("yes flood")}), std::nullopt);
        const auto fits = runner.run(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("head -c 65536 /dev/zero")});
        QVERIFY(fits);
        QCOMPARE(fits->standardOutput.size(), 65536);
    }
};

QTEST_GUILESS_MAIN(ProcessCommandRunnerTest)
#include "tst_process_command_runner.moc"
