#include "apps/application_bundle.h"

#include <QTest>

using namespace ferrow;

class ApplicationBundleTest : public QObject {
    Q_OBJECT

private slots:
    void groupOfExecutable_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("bundle");
        const QString foo = QStringLiteral("/Applications/Foo.app");
        QTest::newRow("application") << foo + QStringLiteral("/Contents/MacOS/Foo") << foo << QStringLiteral("Foo") << foo;
        QTest::newRow("helper application inside it")
            << foo + QStringLiteral("/Contents/Frameworks/Foo Helper (GPU).app/Contents/MacOS/Foo Helper (GPU)") << foo << QStringLiteral("Foo") << foo;
        QTest::newRow("extension in capitals") << QStringLiteral("/Users/me/Bar.App/Contents/MacOS/bar") << QStringLiteral("/Users/me/Bar.App")
                                               << QStringLiteral("Bar") << QStringLiteral("/Users/me/Bar.App");
        QTest::newRow("no bundle") << QStringLiteral("/usr/libexec/trustd") << QStringLiteral("trustd") << QStringLiteral("trustd") << QString();
        QTest::newRow("executable named like a bundle") << QStringLiteral("/usr/local/bin/tool.app") << QStringLiteral("tool.app")
                                                        << QStringLiteral("tool.app") << QString();
        QTest::newRow("folder that only contains .app") << QStringLiteral("/Users/me/Foo.app.old/Contents/MacOS/Foo") << QStringLiteral("Foo")
                                                        << QStringLiteral("Foo") << QString();
        QTest::newRow("bare process name") << QStringLiteral("kernel_task") << QStringLiteral("kernel_task") << QStringLiteral("kernel_task") << QString();
        // A folder name may hold a line break; the group keeps the path exact, the name is one line.
        QTest::newRow("line break in the bundle's name") << QStringLiteral("/Applications/Two\nLines\t.app/Contents/MacOS/x")
                                                         << QStringLiteral("/Applications/Two\nLines\t.app") << QStringLiteral("Two Lines")
                                                         << QStringLiteral("/Applications/Two\nLines\t.app");
    }

    void groupOfExecutable()
    {
        QFETCH(QString, path);
        QFETCH(QString, group);
        QFETCH(QString, name);
        QFETCH(QString, bundle);
        const ExecutableGroup found = executableGroup(path);
        QCOMPARE(found.group, group);
        QCOMPARE(found.name, name);
        QCOMPARE(found.bundle, bundle);
    }
};

QTEST_GUILESS_MAIN(ApplicationBundleTest)
#include "tst_application_bundle.moc"
