#include "sources/system_version.h"

#include <QtTest>

using namespace ferrow;

class TestSystemVersion : public QObject {
    Q_OBJECT
private slots:
    void realVersion_data()
    {
        QTest::addColumn<QString>("reported");
        QTest::addColumn<QString>("darwin");
        QTest::addColumn<QString>("expected"); // empty: absent
        QTest::newRow("current SDK") << "26.1" << "25.1.0" << "26.1";
        QTest::newRow("older SDK on 26") << "16.1.2" << "25.1.0" << "26.1.2";
        QTest::newRow("older SDK on 27") << "16.0" << "27.0.0" << "27.0";
        QTest::newRow("older SDK, no kernel release") << "16.2" << "" << "26.2";
        QTest::newRow("Big Sur scheme on 14") << "10.16" << "23.4.0" << "14.0";
        QTest::newRow("Big Sur scheme, no kernel release") << "10.16" << "" << "11.0";
        QTest::newRow("13 as it is") << "13.6.1" << "22.6.0" << "13.6.1";
        QTest::newRow("trusted without a kernel release") << "15.5" << "" << "15.5";
        QTest::newRow("major alone") << "26" << "" << "26.0";
        QTest::newRow("10.15 is no compatibility answer") << "10.15.7" << "19.6.0" << "10.15.7";
        QTest::newRow("15 as it is") << "15.5" << "24.5.0" << "15.5";
        QTest::newRow("unreadable answer, kernel on 11") << "" << "20.6.0" << "11.0";
        QTest::newRow("unreadable answer, kernel on 15") << "" << "24.5.0" << "15.0";
        QTest::newRow("unreadable answer, kernel on 26") << "" << "25.1.0" << "26.0";
        QTest::newRow("nothing at all") << "" << "" << "";
        QTest::newRow("garbage") << "sixteen" << "x.y" << "";
        QTest::newRow("negative part") << "26.-1" << "" << "";
        QTest::newRow("major 0") << "0.5" << "" << "";
        QTest::newRow("too many parts") << "26.1.2.3" << "" << "";
    }
    void realVersion()
    {
        QFETCH(QString, reported);
        QFETCH(QString, darwin);
        QFETCH(QString, expected);
        const std::optional<ProductVersion> version = realMacOSVersion(reported, darwin);
        QCOMPARE(version ? version->text() : QString(), expected);
    }
};

QTEST_GUILESS_MAIN(TestSystemVersion)
#include "tst_system_version.moc"
