#include "monitor/battery_history_store.h"
#include "platform/common/in_memory_key_value_store.h"
#include "platform/common/settings_key_value_store.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace ferrow;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
const std::optional<QString> kSerial = QStringLiteral("F8Y1234567AB");

using Optionals = QList<QVariant>; // QVariant() is absent

std::optional<double> opt(const QVariant &v)
{
    return v.isValid() ? std::optional(v.toDouble()) : std::nullopt;
}

QVariant var(const std::optional<double> &v)
{
    return v ? QVariant(*v) : QVariant();
}

Optionals fieldsOf(const BatteryElectricalHistory &r)
{
    return {var(r.maximumVoltageV), var(r.minimumVoltageV), var(r.maximumChargeCurrentA), var(r.maximumDischargeCurrentA)};
}

Optionals fieldsOf(const BatteryTemperatureHistory &r)
{
    return {var(r.maximumC), var(r.minimumC), var(r.averageC), QVariant::fromValue<qulonglong>(r.sampleCount)};
}

// The stored keys written out in full (the suffix is the SHA-256 of the serial), so that a slip in
// the code's own prefixes or digest cannot go unnoticed.
const QString kElectricalKey = QStringLiteral("batteryElectricalHistory.v1.49d613597e3e2c4c45ec838cf36f089a6b896257c11bed0d43c71155b1caffa3");
const QString kTemperatureKey = QStringLiteral("batteryTemperatureHistory.v1.49d613597e3e2c4c45ec838cf36f089a6b896257c11bed0d43c71155b1caffa3");
const QString kOtherTemperatureKey = QStringLiteral("batteryTemperatureHistory.v1.6076a1939fea0e554e661439879cdb2e9980426ee59ae58c80885c052e5db236");

} // namespace

class BatteryHistoryStoreTest : public QObject {
    Q_OBJECT

private slots:
    void electricalRecord_data()
    {
        QTest::addColumn<Optionals>("voltages");
        QTest::addColumn<Optionals>("currents");
        QTest::addColumn<Optionals>("expected"); // max V, min V, max charge A, max discharge A
        const QVariant none;
        QTest::newRow("voltage extremes") << Optionals{12.1, 12.6, 11.9} << Optionals{none, none, none}
                                          << Optionals{12.6, 11.9, none, none};
        QTest::newRow("voltages out of range") << Optionals{30.05, 1.5, kNaN, kInf} << Optionals{none, none, none, none}
                                               << Optionals{none, none, none, none};
        QTest::newRow("voltage bounds inclusive") << Optionals{2.0, 30.0} << Optionals{none, none} << Optionals{30.0, 2.0, none, none};
        QTest::newRow("currents by sign") << Optionals{none, none, none} << Optionals{2.0, -3.5, 0.0} << Optionals{none, none, 2.0, 3.5};
        QTest::newRow("zero current is neither") << Optionals{none} << Optionals{0.0} << Optionals{none, none, none, none};
        QTest::newRow("currents out of range") << Optionals{none, none, none} << Optionals{-120.0, 100.05, kNaN}
                                               << Optionals{none, none, none, none};
        QTest::newRow("current bounds inclusive") << Optionals{none, none} << Optionals{100.0, -100.0} << Optionals{none, none, 100.0, 100.0};
        QTest::newRow("only larger magnitudes stick") << Optionals{none, none, none} << Optionals{-4.0, -1.0, 3.0}
                                                      << Optionals{none, none, 3.0, 4.0};
    }

    void electricalRecord()
    {
        QFETCH(Optionals, voltages);
        QFETCH(Optionals, currents);
        QFETCH(Optionals, expected);
        BatteryElectricalHistory record;
        for (qsizetype i = 0; i < voltages.size(); ++i)
            record.record(opt(voltages[i]), opt(currents[i]));
        QCOMPARE(fieldsOf(record), expected);
    }

    void temperatureRecord_data()
    {
        QTest::addColumn<Optionals>("temperatures");
        QTest::addColumn<Optionals>("expected"); // max, min, average, count
        const QVariant none;
        QTest::newRow("running mean") << Optionals{30.0, 32.0, 34.0} << Optionals{34.0, 30.0, 32.0, qulonglong(3)};
        QTest::newRow("implausible ignored") << Optionals{none, kNaN, -20.05, 100.05, 25.0} << Optionals{25.0, 25.0, 25.0, qulonglong(1)};
        QTest::newRow("bounds inclusive") << Optionals{-20.0, 100.0} << Optionals{100.0, -20.0, 40.0, qulonglong(2)};
        QTest::newRow("nothing yet") << Optionals{} << Optionals{none, none, none, qulonglong(0)};
    }

    void temperatureRecord()
    {
        QFETCH(Optionals, temperatures);
        QFETCH(Optionals, expected);
        BatteryTemperatureHistory record;
        for (const QVariant &t : temperatures)
            record.record(opt(t));
        QCOMPARE(fieldsOf(record), expected);
    }

    void recordEdges()
    {
        BatteryTemperatureHistory record{30.0, 30.0, 30.0, std::numeric_limits<std::uint64_t>::max()};
        const BatteryTemperatureHistory before = record;
        record.record(99.0);
        QVERIFY(record == before); // the count saturates
        QCOMPARE(decodeTemperatureHistory(*encodeRecord(record))->sampleCount, record.sampleCount); // and survives a save
        // A value JSON cannot carry makes a record unencodable, and what is not a JSON object does not decode.
        QCOMPARE(encodeRecord(BatteryElectricalHistory{12.0, 11.0, kInf, std::nullopt}), std::nullopt);
        QCOMPARE(encodeRecord(BatteryTemperatureHistory{30.0, kNaN, 30.0, 1}), std::nullopt);
        QVERIFY(!decodeElectricalHistory("nope"));
    }

    // What a stored temperature record loads as: itself when readable and plausible, else fresh.
    void storedTemperatureRecord_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<bool>("kept");
        QTest::newRow("valid") << QByteArray("{\"maximumC\":38.5,\"minimumC\":21.25,\"averageC\":29.75,\"sampleCount\":640}") << true;
        QTest::newRow("count at the signed maximum") << QByteArray("{\"maximumC\":30,\"minimumC\":30,\"averageC\":30,\"sampleCount\":9223372036854775807}") << true;
        QTest::newRow("count beyond the signed range") << QByteArray("{\"maximumC\":30,\"minimumC\":30,\"averageC\":30,\"sampleCount\":10000000000000000000}") << true;
        QTest::newRow("count a thousand below the ceiling") << QByteArray("{\"maximumC\":30,\"minimumC\":30,\"averageC\":30,\"sampleCount\":18446744073709550615}") << true;
        QTest::newRow("count beyond 64 bits") << QByteArray("{\"maximumC\":30,\"minimumC\":30,\"averageC\":30,\"sampleCount\":18446744073709551616}") << false;
        QTest::newRow("keys in any order") << QByteArray("{\"sampleCount\":1,\"averageC\":30,\"minimumC\":30,\"maximumC\":30}") << true;
        QTest::newRow("count zero") << QByteArray("{\"maximumC\":38.5,\"minimumC\":21.25,\"averageC\":29.75,\"sampleCount\":0}") << false;
        QTest::newRow("average below minimum") << QByteArray("{\"maximumC\":38.5,\"minimumC\":21.25,\"averageC\":21,\"sampleCount\":5}") << false;
        QTest::newRow("average above maximum") << QByteArray("{\"maximumC\":38.5,\"minimumC\":21.25,\"averageC\":39,\"sampleCount\":5}") << false;
        QTest::newRow("maximum 120") << QByteArray("{\"maximumC\":120,\"minimumC\":21.25,\"averageC\":29.75,\"sampleCount\":5}") << false;
        QTest::newRow("no sampleCount") << QByteArray("{\"maximumC\":38.5,\"minimumC\":21.25,\"averageC\":29.75}") << false;
        QTest::newRow("no averageC") << QByteArray("{\"maximumC\":38.5,\"minimumC\":21.25,\"sampleCount\":5}") << false;
        QTest::newRow("null averageC") << QByteArray("{\"maximumC\":38.5,\"minimumC\":21.25,\"averageC\":null,\"sampleCount\":5}") << false;
        QTest::newRow("negative count") << QByteArray("{\"maximumC\":38.5,\"minimumC\":21.25,\"averageC\":29.75,\"sampleCount\":-1}") << false;
        QTest::newRow("fractional count") << QByteArray("{\"maximumC\":38.5,\"minimumC\":21.25,\"averageC\":29.75,\"sampleCount\":1.5}") << false;
        QTest::newRow("string value") << QByteArray("{\"maximumC\":\"38.5\",\"minimumC\":21.25,\"averageC\":29.75,\"sampleCount\":5}") << false;
        QTest::newRow("huge number") << QByteArray("{\"maximumC\":1e999,\"minimumC\":21.25,\"averageC\":29.75,\"sampleCount\":5}") << false;
        QTest::newRow("truncated") << QByteArray("{\"maximumC\":38.5,\"minimumC\":21.25,\"aver") << false;
        QTest::newRow("garbage") << QByteArray("\xff\xfe\x00garbage", 10) << false;
        QTest::newRow("array") << QByteArray("[1,2,3]") << false;
    }

    void storedTemperatureRecord()
    {
        QFETCH(QByteArray, stored);
        QFETCH(bool, kept);
        InMemoryKeyValueStore defaults;
        defaults.setData(kTemperatureKey, stored);
        BatteryHistoryStore store(defaults);
        const BatteryTemperatureHistory record = store.recordTemperature(kSerial, std::nullopt);
        if (kept) {
            const QByteArray saved = *encodeRecord(record);
            QCOMPARE(QJsonDocument::fromJson(saved), QJsonDocument::fromJson(stored)); // every field as stored
            static const QRegularExpression count(QStringLiteral(R"("sampleCount":(\d+))"));
            QCOMPARE(count.match(QString::fromUtf8(saved)).captured(1), count.match(QString::fromUtf8(stored)).captured(1)); // to the last digit
        } else {
            QVERIFY(record == BatteryTemperatureHistory{});
        }
    }

    void storedElectricalRecord_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<Optionals>("loaded");
        const QVariant none;
        QTest::newRow("valid") << QByteArray("{\"maximumVoltageV\":12.9,\"minimumVoltageV\":10.8,\"maximumChargeCurrentA\":4.1,\"maximumDischargeCurrentA\":6.2}")
                               << Optionals{12.9, 10.8, 4.1, 6.2};
        QTest::newRow("max 35 dropped, min becomes both") << QByteArray("{\"maximumVoltageV\":35.0,\"minimumVoltageV\":11.0}")
                                                          << Optionals{11.0, 11.0, none, none};
        QTest::newRow("nulls and missing keys") << QByteArray("{\"maximumVoltageV\":null,\"maximumChargeCurrentA\":3}")
                                                << Optionals{none, none, 3.0, none};
        QTest::newRow("implausible current dropped") << QByteArray("{\"maximumChargeCurrentA\":500,\"maximumDischargeCurrentA\":2}")
                                                     << Optionals{none, none, none, 2.0};
        QTest::newRow("negative discharge magnitude is a charge") << QByteArray("{\"maximumDischargeCurrentA\":-2}")
                                                                  << Optionals{none, none, 2.0, none};
        QTest::newRow("wrong type: fresh") << QByteArray("{\"maximumVoltageV\":11.0,\"minimumVoltageV\":true}")
                                           << Optionals{none, none, none, none};
        QTest::newRow("empty object") << QByteArray("{}") << Optionals{none, none, none, none};
        QTest::newRow("not JSON") << QByteArray("nope") << Optionals{none, none, none, none};
    }

    void storedElectricalRecord()
    {
        QFETCH(QByteArray, stored);
        QFETCH(Optionals, loaded);
        InMemoryKeyValueStore defaults;
        defaults.setData(kElectricalKey, stored);
        BatteryHistoryStore store(defaults);
        QCOMPARE(fieldsOf(store.recordElectrical(kSerial, std::nullopt, std::nullopt)), loaded);
    }

    void withoutASerialNothingIsReadOrWritten()
    {
        InMemoryKeyValueStore defaults;
        const QByteArray planted("{\"maximumVoltageV\":12.0,\"minimumVoltageV\":12.0}");
        defaults.setData(QStringLiteral("batteryElectricalHistory.v1.session"), planted);
        const int writesBefore = defaults.writeCount();
        BatteryHistoryStore store(defaults);
        for (const std::optional<QString> &serial : {std::optional<QString>(), std::optional(QString())}) {
            store.recordElectrical(serial, 12.5, -2.0);
            store.recordTemperature(serial, 30.0);
        }
        const BatteryElectricalHistory session = store.recordElectrical(std::nullopt, 12.4, std::nullopt);
        QCOMPARE(fieldsOf(session), (Optionals{12.5, 12.4, QVariant(), 2.0})); // not the planted 12.0, and kept in memory
        QCOMPARE(store.recordTemperature(std::nullopt, std::nullopt).sampleCount, 2u);
        QCOMPARE(defaults.writeCount(), writesBefore);
    }

    // A record is written only when it changes. (The soak test swaps batteries: records are never shared.)
    void writesOnlyWhenARecordChanges()
    {
        InMemoryKeyValueStore defaults;
        BatteryHistoryStore store(defaults);
        store.recordElectrical(kSerial, 12.0, 1.0);
        QCOMPARE(defaults.writeCount(), 1);
        store.recordElectrical(kSerial, 12.0, 0.5); // no extreme moves
        store.recordElectrical(kSerial, 40.0, -500.0); // implausible
        QCOMPARE(defaults.writeCount(), 1);
        store.recordElectrical(kSerial, 12.2, 0.5);
        QCOMPARE(defaults.writeCount(), 2);

        store.recordTemperature(kSerial, 30.0);
        store.recordTemperature(kSerial, 30.0); // the count grows: saved every time
        store.recordTemperature(kSerial, 150.0);
        QCOMPARE(defaults.writeCount(), 4);
        QCOMPARE(defaults.data(kElectricalKey),
                 std::optional(QByteArray("{\"maximumChargeCurrentA\":1,\"maximumVoltageV\":12.2,\"minimumVoltageV\":12}")));
    }

    // The real preferences backend: corrupt entries give fresh records, nothing else is touched,
    // and what was saved comes back after a restart.
    void settingsBackendSurvivesCorruptionAndRestart()
    {
        QTemporaryDir directory;
        QVERIFY(directory.isValid());
        const QString file = directory.filePath(QStringLiteral("ferrow.ini"));
        const QString foreignKey = QStringLiteral("showPowerInMenuBar");
        const QString otherBatteryKey = kOtherTemperatureKey;
        const QByteArray otherBatteryRecord("{\"averageC\":30,\"maximumC\":31,\"minimumC\":29,\"sampleCount\":7}");
        {
            QSettings seed(file, QSettings::IniFormat);
            seed.setValue(kTemperatureKey, QByteArray("\x00\x01{garbage", 10));
            seed.setValue(kElectricalKey, QStringLiteral("a string, not data"));
            seed.setValue(foreignKey, false);
            seed.setValue(otherBatteryKey, otherBatteryRecord);
            seed.setValue(QStringLiteral("batteryTemperatureHistory.v1.junk"), 12345);
        }
        {
            SettingsKeyValueStore defaults(file, QSettings::IniFormat);
            BatteryHistoryStore store(defaults);
            QCOMPARE(store.recordTemperature(kSerial, 33.0).sampleCount, 1u);
            QCOMPARE(fieldsOf(store.recordElectrical(kSerial, 12.3, -4.0)), (Optionals{12.3, 12.3, QVariant(), 4.0}));
            // A record that changes every second waits in memory for the flush before sleep or quit.
            QVERIFY(QSettings(file, QSettings::IniFormat).value(kTemperatureKey).typeId() != QMetaType::QByteArray
                    || !QSettings(file, QSettings::IniFormat).value(kTemperatureKey).toByteArray().contains("sampleCount"));
            defaults.flush();
            QVERIFY(QSettings(file, QSettings::IniFormat).value(kTemperatureKey).toByteArray().contains("\"sampleCount\":1"));
        }
        {
            SettingsKeyValueStore defaults(file, QSettings::IniFormat);
            BatteryHistoryStore store(defaults);
            QCOMPARE(fieldsOf(store.recordTemperature(kSerial, 35.0)), (Optionals{35.0, 33.0, 34.0, qulonglong(2)}));
            QCOMPARE(fieldsOf(store.recordElectrical(kSerial, 12.0, std::nullopt)), (Optionals{12.3, 12.0, QVariant(), 4.0}));
        }
        QSettings check(file, QSettings::IniFormat);
        QCOMPARE(check.value(foreignKey).toBool(), false);
        QCOMPARE(check.value(otherBatteryKey).toByteArray(), otherBatteryRecord);
        QCOMPARE(check.value(QStringLiteral("batteryTemperatureHistory.v1.junk")).toInt(), 12345);
        QCOMPARE(check.allKeys().size(), 5);
    }
};

QTEST_GUILESS_MAIN(BatteryHistoryStoreTest)
#include "tst_battery_history_store.moc"
