#include "app/machine_source.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

using namespace ferrow;

namespace {

QString fixture(const char *name)
{
    return QStringLiteral(FERROW_SOURCE_DIR "/tests/fixtures/") + QLatin1StringView(name);
}

} // namespace

// What --diagnose says for each kind of source: every supply and key it was asked about, why a
// figure is missing, and never a serial number in clear.
class TestMachineDiagnosis : public QObject {
    Q_OBJECT
private slots:
    void saysWhatEachSourceAnswered_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QStringList>("says");
        QTest::addColumn<QStringList>("neverSays");
        QTest::newRow("Intel notebook") << QStringLiteral("sysfs:") + fixture("sysfs-intel-notebook")
                                        << QStringList{QStringLiteral("BAT0: battery, present 1, status Discharging, 67 %"),
                                                       QStringLiteral("AC: Mains, online 0"),
                                                       QStringLiteral("intel-rapl:0:2 (dram): readable"),
                                                       QStringLiteral("input and system power: \u2014 no sensor")}
                                        << QStringList{QStringLiteral("preferences")};
        QTest::newRow("AMD notebook, a mouse and two USB-C ports")
            << QStringLiteral("sysfs:") + fixture("sysfs-amd-notebook")
            << QStringList{QStringLiteral("hidpp_battery_0: Battery (scope Device"), QStringLiteral("ucsi-source-psy-USBC000:002: USB, online 0"),
                           QStringLiteral("graphics power: sys/class/hwmon/hwmon2/power1_average")}
            << QStringList{};
        QTest::newRow("Apple silicon under Linux") << QStringLiteral("sysfs:") + fixture("sysfs-apple-notebook")
                                                   << QStringList{QStringLiteral("power reading PSTR: sys/class/hwmon/hwmon0/power1_input"),
                                                                  QStringLiteral("zones: \u2014 none")}
                                                   << QStringList{QStringLiteral("F8Y2K01QABCD")};
        QTest::newRow("recorded Mac notebook")
            << QStringLiteral("recorded:") + fixture("notebook-charging-26")
            << QStringList{QStringLiteral("PDTR: type 'flt ', 4 bytes, 46.4"), QStringLiteral("SBA1: \u2014 no such key"),
                           QStringLiteral("CPU Energy: unit 'mJ', counts as cpu"), QStringLiteral("DISP: unit 'mJ' (not a domain"),
                           QStringLiteral("battery identifier: b731c5fd"), QStringLiteral("source 1: InternalBattery, health Good"),
                           QStringLiteral("exit status 0"), QStringLiteral("maximum capacity: 91 %")}
            << QStringList{QStringLiteral("F5D2491A1KJQ1LRA")};
        QTest::newRow("recorded desktop") << QStringLiteral("recorded:") + fixture("desktop-26")
                                          << QStringList{QStringLiteral("service: \u2014 none"), QStringLiteral("VD0R: \u2014 no such key")}
                                          << QStringList{};
    }
    void saysWhatEachSourceAnswered()
    {
        QFETCH(QString, source);
        QFETCH(QStringList, says);
        QFETCH(QStringList, neverSays);
        if (source.startsWith(u"sysfs:") && QSysInfo::kernelType() != u"linux")
            QSKIP("copied Linux trees are read by Linux builds only");
        QString error;
        const std::optional<Diagnosis> diagnosis = diagnoseMachine(*MachineSource::parse(source), &error);
        QVERIFY2(diagnosis, qPrintable(error));
        const QString text = diagnosisText(*diagnosis);
        for (const QString &line : says)
            QVERIFY2(text.contains(line), qPrintable(line + QStringLiteral(" not in:\n") + text));
        for (const QString &line : neverSays)
            QVERIFY2(!text.contains(line), qPrintable(line));
    }

    // A zone whose counter cannot be opened says why; the JSON form carries absence as null.
    void unreadableEnergyZoneSaysWhy()
    {
        if (QSysInfo::kernelType() != u"linux")
            QSKIP("copied Linux trees are read by Linux builds only");
        QTemporaryDir copy;
        const QString zone = QStringLiteral("/sys/class/powercap/intel-rapl:0/");
        QVERIFY(QDir().mkpath(copy.path() + zone));
        QFile name(copy.path() + zone + QStringLiteral("name"));
        QVERIFY(name.open(QIODevice::WriteOnly));
        name.write("package-0\n");
        name.close();
        QString error;
        const std::optional<Diagnosis> diagnosis = diagnoseMachine(*MachineSource::parse(QStringLiteral("sysfs:") + copy.path()), &error);
        QVERIFY2(diagnosis, qPrintable(error));
        QVERIFY(diagnosisText(*diagnosis).contains(QStringLiteral("intel-rapl:0 (package-0): \u2014 energy_uj not readable: No such file")));
        const QJsonObject zoneEntry = diagnosisJson(*diagnosis)[u"sections"][3][u"entries"][0].toObject();
        QCOMPARE(zoneEntry[u"name"].toString(), QStringLiteral("intel-rapl:0 (package-0)"));
        QVERIFY(zoneEntry[u"value"].isNull());
        QVERIFY(zoneEntry[u"why"].toString().contains(u"README"));
    }
};

QTEST_GUILESS_MAIN(TestMachineDiagnosis)
#include "tst_machine_diagnosis.moc"
