#include "platform/common/in_memory_smc.h"
#include "sources/battery_cell_reader.h"
#include "sources/battery_temperature_reader.h"
#include "support/json_rows.h"

#include <QTest>

using namespace ferrow;
using namespace ferrow::testing;

namespace {

using Volts = std::vector<double>;

struct SMCFixture {
    InMemorySMC *table = new InMemorySMC;
    StatsSMC smc{std::unique_ptr<SMCUserClient>(table)};

    void setCells(const Volts &cellsV, std::optional<double> packV)
    {
        for (std::size_t i = 0; i < cellsV.size(); ++i)
            table->setKey("SBA" + std::to_string(i + 1), "flt ", smcBytesOfFloat(static_cast<float>(cellsV[i])));
        if (packV)
            table->setKey("SBAV", "flt ", smcBytesOfFloat(static_cast<float>(*packV)));
    }
};

Volts volts(const QJsonValue &list)
{
    Volts values;
    for (const QJsonValue &v : list.toArray())
        values.push_back(v.toDouble());
    return values;
}

std::optional<double> number(const QJsonValue &v)
{
    return v.isDouble() ? std::optional(v.toDouble()) : std::nullopt;
}

void compareVolts(const Volts &actual, const Volts &expected)
{
    QCOMPARE(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i)
        QVERIFY2(qAbs(actual[i] - expected[i]) < 1e-6, qPrintable(QString::number(actual[i])));
}

} // namespace

class BatteryCellsAndTemperatureTest : public QObject {
    Q_OBJECT

private slots:
    // Rows name what the registry holds ("registryMillivolts": none without it), whether the SMC may be
    // asked, and its cells and pack; "source" is absent when no voltages are shown.
    void resolveCellVoltages_data() { addJsonRows("battery-cells-and-temperature.json", "cellVoltages"); }

    void resolveCellVoltages()
    {
        QFETCH(QJsonObject, row);
        SMCFixture f;
        f.setCells(volts(row[u"smcCellsV"]), number(row[u"smcPackV"]));
        const std::optional<Volts> registry = row.contains(u"registryMillivolts") ? std::optional(volts(row[u"registryMillivolts"])) : std::nullopt;
        BatteryCellReader reader;
        const CellVoltages cells = ferrow::resolveCellVoltages(registry, row[u"hasBattery"].toBool(true), row[u"smcAllowed"].toBool(), reader, f.smc);
        compareVolts(cells.voltagesV, volts(row[u"expectedV"]));
        QCOMPARE(cells.source ? rawValue(*cells.source) : QString(), row[u"source"].toString());
        if (cells.source == BatteryCellSource::registry) // a passing registry leaves the SMC alone
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

    // A missing sensor has no key; one of 0 °C holds all-zero bytes.
    void resolveTemperature_data() { addJsonRows("battery-cells-and-temperature.json", "temperatures"); }

    void resolveTemperature()
    {
        QFETCH(QJsonObject, row);
        SMCFixture f;
        if (const std::optional<double> c = number(row[u"sensor1C"]))
            f.table->setKey("TB1T", "sp78", smcBytesOfFixedPoint(std::max(0.0, *c), 8));
        if (const std::optional<double> c = number(row[u"sensor2C"])) // a negative reading needs a type that carries a sign
            f.table->setKey("TB2T", "flt ", smcBytesOfFloat(static_cast<float>(*c)));
        const bool hasBattery = row[u"hasBattery"].toBool(true);
        const int osMajorVersion = row[u"osMajorVersion"].toInt();
        BatteryTemperatureReader reader;
        QCOMPARE(ferrow::resolveTemperature(number(row[u"registryC"]), hasBattery, osMajorVersion, reader, f.smc), number(row[u"expectedC"]));
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
