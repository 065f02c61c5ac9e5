#include "platform/common/in_memory_smc.h"
#include "sources/battery_cell_reader.h"
#include "sources/battery_temperature_reader.h"

#include <QTest>

using namespace ferrow;

namespace {

using Volts = QList<double>;

struct SMCFixture {
    InMemorySMC *table = new InMemorySMC;
    StatsSMC smc{std::unique_ptr<SMCUserClient>(table)};

    void setCells(const Volts &cellsV, std::optional<double> packV)
    {
        for (qsizetype i = 0; i < cellsV.size(); ++i)
            table->setKey("SBA" + std::to_string(i + 1), "flt ", smcBytesOfFloat(static_cast<float>(cellsV[i])));
        if (packV)
            table->setKey("SBAV", "flt ", smcBytesOfFloat(static_cast<float>(*packV)));
    }
};

std::optional<std::vector<double>> registry(const Volts &millivolts, bool present = true)
{
    if (!present)
        return std::nullopt;
    return std::vector<double>(millivolts.begin(), millivolts.end());
}

Volts toVolts(const std::vector<double> &values)
{
    return Volts(values.begin(), values.end());
}

void compareVolts(const Volts &actual, const Volts &expected)
{
    QCOMPARE(actual.size(), expected.size());
    for (qsizetype i = 0; i < actual.size(); ++i)
        QVERIFY2(qAbs(actual[i] - expected[i]) < 1e-6, qPrintable(QString::number(actual[i])));
}

} // namespace

class BatteryCellsAndTemperatureTest : public QObject {
    Q_OBJECT

private slots:
    void resolveCellVoltages_data()
    {
        QTest::addColumn<bool>("hasBattery");
        QTest::addColumn<bool>("registryPresent");
        QTest::addColumn<Volts>("registryMillivolts");
        QTest::addColumn<bool>("smcAllowed");
        QTest::addColumn<Volts>("smcCellsV");
        QTest::addColumn<double>("smcPackV"); // 0: no pack key
        QTest::addColumn<Volts>("expectedV");
        QTest::addColumn<QString>("expectedSource");

        const Volts smcCells{3.80, 3.81, 3.79};
        QTest::newRow("registry in millivolts") << true << true << Volts{3850, 3852, 3849} << true << smcCells << 11.40
                                                << Volts{3.85, 3.852, 3.849} << QStringLiteral("registry");
        QTest::newRow("registry bounds inclusive") << true << true << Volts{2000, 5000} << false << Volts{} << 0.0
                                                   << Volts{2.0, 5.0} << QStringLiteral("registry");
        QTest::newRow("implausible registry, SMC not allowed") << true << true << Volts{1500, 3800} << false << smcCells
                                                               << 11.40 << Volts{} << QString();
        QTest::newRow("implausible registry falls to the SMC") << true << true << Volts{1500, 3800} << true << smcCells
                                                               << 11.40 << smcCells << QStringLiteral("smc");
        QTest::newRow("eight registry cells pass") << true << true << Volts(8, 3800) << false << Volts{} << 0.0
                                                   << Volts(8, 3.8) << QStringLiteral("registry");
        QTest::newRow("nine registry cells fail") << true << true << Volts(9, 3800) << false << Volts{} << 0.0 << Volts{}
                                                  << QString();
        QTest::newRow("empty registry is like none") << true << true << Volts{} << true << smcCells << 11.40 << smcCells
                                                     << QStringLiteral("smc");
        QTest::newRow("no registry, SMC not allowed") << true << false << Volts{} << false << smcCells << 11.40 << Volts{}
                                                      << QString();
        QTest::newRow("pack within 3 %") << true << false << Volts{} << true << smcCells << 11.70 << smcCells
                                         << QStringLiteral("smc");
        QTest::newRow("pack off by 0.6 V") << true << false << Volts{} << true << smcCells << 12.0 << Volts{} << QString();
        QTest::newRow("eight SMC cells") << true << false << Volts{} << true << Volts(8, 3.8) << 30.4 << Volts(8, 3.8)
                                         << QStringLiteral("smc");
        QTest::newRow("one cell, 0.2 V floor") << true << false << Volts{} << true << Volts{4.0} << 4.15 << Volts{4.0}
                                               << QStringLiteral("smc");
        QTest::newRow("one cell, beyond the floor") << true << false << Volts{} << true << Volts{4.0} << 4.25 << Volts{}
                                                    << QString();
        QTest::newRow("pack of 45 V") << true << false << Volts{} << true << smcCells << 45.0 << Volts{} << QString();
        QTest::newRow("no pack key") << true << false << Volts{} << true << smcCells << 0.0 << Volts{} << QString();
        QTest::newRow("implausible SMC cell") << true << false << Volts{} << true << Volts{3.8, 5.2, 3.8} << 12.8 << Volts{}
                                              << QString();
        QTest::newRow("no SMC cells") << true << false << Volts{} << true << Volts{} << 11.4 << Volts{} << QString();
        QTest::newRow("no battery") << false << true << Volts{3850} << true << smcCells << 11.40 << Volts{} << QString();
    }

    void resolveCellVoltages()
    {
        QFETCH(bool, hasBattery);
        QFETCH(bool, registryPresent);
        QFETCH(Volts, registryMillivolts);
        QFETCH(bool, smcAllowed);
        QFETCH(Volts, smcCellsV);
        QFETCH(double, smcPackV);
        QFETCH(Volts, expectedV);
        QFETCH(QString, expectedSource);

        SMCFixture f;
        f.setCells(smcCellsV, smcPackV > 0 ? std::optional(smcPackV) : std::nullopt);
        BatteryCellReader reader;
        const CellVoltages cells = ferrow::resolveCellVoltages(registry(registryMillivolts, registryPresent), hasBattery,
                                                               smcAllowed, reader, f.smc);
        compareVolts(toVolts(cells.voltagesV), expectedV);
        QCOMPARE(cells.source ? rawValue(*cells.source) : QString(), expectedSource);
        if (expectedSource == u"registry") // a passing registry leaves the SMC alone
            QCOMPARE(f.table->callCount(), 0);
    }

    void badCellKeys_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("size");
        QTest::newRow("sp78 cell") << QStringLiteral("sp78") << 4;
        QTest::newRow("data size 2") << QStringLiteral("flt ") << 2;
        QTest::newRow("data size 8") << QStringLiteral("flt ") << 8;
    }

    void badCellKeys()
    {
        QFETCH(QString, type);
        QFETCH(int, size);
        SMCFixture f;
        f.setCells({3.8, 3.8, 3.8}, 11.4);
        f.table->setEntry("SBA2", {type.toStdString(), static_cast<std::uint32_t>(size), smcBytesOfFloat(3.8f)});
        BatteryCellReader reader;
        const BatteryCellReader::Reading reading = reader.readCells(f.smc);
        QCOMPARE(reading.cellsV.size(), 3u);
        QVERIFY(reading.cellsV[0] && !reading.cellsV[1] && reading.cellsV[2]);
        QVERIFY(ferrow::resolveCellVoltages(std::nullopt, true, true, reader, f.smc).voltagesV.empty());
    }

    // Cell keys are found once per process: a gap, or a key that turns up later, costs nothing after.
    void cellKeysAreProbedOnce()
    {
        for (const bool withCells : {true, false}) {
            SMCFixture f;
            if (withCells)
                f.setCells({3.8, 3.8, 3.8, 3.8}, 15.2);
            f.table->removeKey("SBA3");
            BatteryCellReader reader;
            QVERIFY(reader.readCells(f.smc).cellsV.empty());
            QCOMPARE(reader.keys(), std::optional(withCells ? std::vector<std::string>{"SBA1", "SBA2", "SBA4"} : std::vector<std::string>{}));
            QCOMPARE(f.table->callCount(), 2 * 8); // every candidate tried once
            f.setCells({3.8, 3.8, 3.8, 3.8}, 15.2);
            for (int i = 0; i < 3; ++i)
                QVERIFY(ferrow::resolveCellVoltages(std::nullopt, true, true, reader, f.smc).voltagesV.empty());
            QCOMPARE(f.table->callCount(), 2 * 8);
        }
    }

    void resolveTemperature_data()
    {
        QTest::addColumn<bool>("hasBattery");
        QTest::addColumn<int>("osMajorVersion");
        QTest::addColumn<QVariant>("registryC");
        QTest::addColumn<QVariant>("sensor1C"); // invalid: key missing; 0.0: all-zero bytes
        QTest::addColumn<QVariant>("sensor2C");
        QTest::addColumn<QVariant>("expectedC");

        const QVariant none;
        QTest::newRow("no battery") << false << 27 << QVariant(29.0) << QVariant(30.0) << QVariant(32.0) << none;
        QTest::newRow("before 27: registry") << true << 26 << QVariant(31.5) << QVariant(30.0) << QVariant(32.0) << QVariant(31.5);
        QTest::newRow("27: mean of sensors") << true << 27 << QVariant(29.0) << QVariant(30.0) << QVariant(32.0) << QVariant(31.0);
        QTest::newRow("28: sensors too") << true << 28 << QVariant(29.0) << QVariant(30.0) << QVariant(32.0) << QVariant(31.0);
        QTest::newRow("one sensor implausible") << true << 27 << none << QVariant(150.0) << QVariant(33.0) << QVariant(33.0);
        QTest::newRow("both implausible: registry") << true << 27 << QVariant(29.0) << QVariant(150.0) << QVariant(-30.0) << QVariant(29.0);
        QTest::newRow("sensors missing: registry") << true << 27 << QVariant(29.0) << none << none << QVariant(29.0);
        QTest::newRow("nothing at all") << true << 27 << none << none << none << none;
        QTest::newRow("0 °C sensor reads as absent") << true << 27 << QVariant(29.0) << QVariant(0.0) << none << QVariant(29.0);
        QTest::newRow("0 °C sensor with a good one") << true << 27 << none << QVariant(0.0) << QVariant(35.0) << QVariant(35.0);
        QTest::newRow("registry -20 accepted") << true << 26 << QVariant(-20.0) << none << none << QVariant(-20.0);
        QTest::newRow("registry 100 accepted") << true << 26 << QVariant(100.0) << none << none << QVariant(100.0);
        QTest::newRow("registry -20.5 refused") << true << 26 << QVariant(-20.5) << none << none << none;
        QTest::newRow("registry 100.5 refused") << true << 27 << QVariant(100.5) << none << none << none;
    }

    void resolveTemperature()
    {
        QFETCH(bool, hasBattery);
        QFETCH(int, osMajorVersion);
        QFETCH(QVariant, registryC);
        QFETCH(QVariant, sensor1C);
        QFETCH(QVariant, sensor2C);
        QFETCH(QVariant, expectedC);

        SMCFixture f;
        if (sensor1C.isValid())
            f.table->setKey("TB1T", "sp78", smcBytesOfFixedPoint(std::max(0.0, sensor1C.toDouble()), 8));
        if (sensor2C.isValid()) // a negative reading needs a type that carries a sign
            f.table->setKey("TB2T", "flt ", smcBytesOfFloat(static_cast<float>(sensor2C.toDouble())));

        BatteryTemperatureReader reader;
        const std::optional<double> registryValue = registryC.isValid() ? std::optional(registryC.toDouble()) : std::nullopt;
        const std::optional<double> celsius = ferrow::resolveTemperature(registryValue, hasBattery, osMajorVersion, reader, f.smc);
        QCOMPARE(celsius.has_value(), expectedC.isValid());
        if (celsius)
            QCOMPARE(*celsius, expectedC.toDouble());
        if (!hasBattery || osMajorVersion < 27)
            QCOMPARE(f.table->callCount(), 0);
    }

    // Sensors are found on the first reading; later readings read only those found.
    void sensorsAreProbedOnce()
    {
        for (const bool present : {true, false}) {
            SMCFixture f;
            if (present)
                f.table->setKey("TB2T", "sp78", smcBytesOfFixedPoint(30.0, 8));
            BatteryTemperatureReader reader;
            const auto expected = present ? std::vector<std::optional<double>>{30.0} : std::vector<std::optional<double>>{};
            QCOMPARE(reader.readSensors(f.smc), expected);
            const int afterDiscovery = f.table->callCount();
            QVERIFY(present || afterDiscovery == 2 * 2);
            f.table->setKey("TB1T", "sp78", smcBytesOfFixedPoint(40.0, 8));
            QCOMPARE(reader.readSensors(f.smc), expected);
            QCOMPARE(f.table->callCount() - afterDiscovery, present ? 2 : 0); // one readDouble per sensor found
        }
    }
};

QTEST_GUILESS_MAIN(BatteryCellsAndTemperatureTest)
#include "tst_battery_cells_and_temperature.moc"
