#include "sources/property_value.h"

#include <QTest>

#include <limits>

using namespace ferrow;

Q_DECLARE_METATYPE(ferrow::PropertyValue)

namespace {

// Every typed reading of one value, as text: "-" for missing. Keeps the table below readable.
QString readings(const PropertyValue *value)
{
    const auto show = [](const auto &optional) {
        return optional ? QVariant::fromValue(*optional).toString() : QStringLiteral("-");
    };
    QString list = QStringLiteral("-");
    if (const auto numbers = propertyNumberList(value)) {
        QStringList parts;
        for (const double n : *numbers)
            parts << QString::number(n);
        list = QLatin1Char('[') + parts.join(QLatin1Char(',')) + QLatin1Char(']');
    }
    return QStringLiteral("int=%1 bool=%2 string=%3 dict=%4 list=%5")
        .arg(show(propertyInteger(value)), show(propertyBoolean(value)), show(propertyString(value)),
             propertyDictionary(value) ? QStringLiteral("yes") : QStringLiteral("-"), list);
}

} // namespace

class PropertyValueTest : public QObject {
    Q_OBJECT

private slots:
    void typedReadings_data()
    {
        QTest::addColumn<PropertyValue>("value");
        QTest::addColumn<QString>("expected");

        QTest::newRow("signed") << PropertyValue(std::int64_t(-1200)) << QStringLiteral("int=-1200 bool=true string=- dict=- list=-");
        QTest::newRow("zero") << PropertyValue(std::int64_t(0)) << QStringLiteral("int=0 bool=false string=- dict=- list=-");
        QTest::newRow("unsigned above the signed range reads negative")
            << PropertyValue(std::uint64_t(18446744073709551615u)) << QStringLiteral("int=-1 bool=true string=- dict=- list=-");
        QTest::newRow("unsigned in range") << PropertyValue(std::uint64_t(4500)) << QStringLiteral("int=4500 bool=true string=- dict=- list=-");
        QTest::newRow("real truncates toward zero") << PropertyValue(12.9) << QStringLiteral("int=12 bool=true string=- dict=- list=-");
        QTest::newRow("negative real") << PropertyValue(-3.7) << QStringLiteral("int=-3 bool=true string=- dict=- list=-");
        QTest::newRow("real 2^63 keeps the bit pattern")
            << PropertyValue(9223372036854775808.0) << QStringLiteral("int=-9223372036854775808 bool=true string=- dict=- list=-");
        QTest::newRow("real -2^63") << PropertyValue(-9223372036854775808.0) << QStringLiteral("int=-9223372036854775808 bool=true string=- dict=- list=-");
        QTest::newRow("real 2^64 is beyond") << PropertyValue(18446744073709551616.0) << QStringLiteral("int=- bool=true string=- dict=- list=-");
        QTest::newRow("real zero") << PropertyValue(0.0) << QStringLiteral("int=0 bool=false string=- dict=- list=-");
        QTest::newRow("unsigned zero") << PropertyValue(std::uint64_t(0)) << QStringLiteral("int=0 bool=false string=- dict=- list=-");
        QTest::newRow("real beyond 64 bits") << PropertyValue(1e30) << QStringLiteral("int=- bool=true string=- dict=- list=-");
        QTest::newRow("NaN") << PropertyValue(std::numeric_limits<double>::quiet_NaN())
                             << QStringLiteral("int=- bool=true string=- dict=- list=-");
        QTest::newRow("number 2 is true") << PropertyValue(2) << QStringLiteral("int=2 bool=true string=- dict=- list=-");
        QTest::newRow("boolean") << PropertyValue(true) << QStringLiteral("int=1 bool=true string=- dict=- list=-");
        QTest::newRow("false") << PropertyValue(false) << QStringLiteral("int=0 bool=false string=- dict=- list=-");
        QTest::newRow("booleans in a list") << PropertyValue(PropertyList{true, false}) << QStringLiteral("int=- bool=- string=- dict=- list=[1,0]");
        QTest::newRow("string is not a number") << PropertyValue(QStringLiteral("42"))
                                                << QStringLiteral("int=- bool=- string=42 dict=- list=-");
        QTest::newRow("data") << PropertyValue(QByteArray("\x01\x02", 2)) << QStringLiteral("int=- bool=- string=- dict=- list=-");
        QTest::newRow("numbers") << PropertyValue(PropertyList{3850, std::uint64_t(3852), 3849.5})
                                 << QStringLiteral("int=- bool=- string=- dict=- list=[3850,3852,3849.5]");
        QTest::newRow("empty list stays empty") << PropertyValue(PropertyList{}) << QStringLiteral("int=- bool=- string=- dict=- list=[]");
        QTest::newRow("one string spoils the list") << PropertyValue(PropertyList{3850, QStringLiteral("x")})
                                                    << QStringLiteral("int=- bool=- string=- dict=- list=-");
        QTest::newRow("nested list spoils the list") << PropertyValue(PropertyList{PropertyList{1}})
                                                     << QStringLiteral("int=- bool=- string=- dict=- list=-");
        QTest::newRow("dictionary") << PropertyValue(PropertyDictionary{{QStringLiteral("a"), 1}})
                                    << QStringLiteral("int=- bool=- string=- dict=yes list=-");
        QTest::newRow("dictionary with a non-string key") << PropertyValue(UnsupportedProperty{})
                                                          << QStringLiteral("int=- bool=- string=- dict=- list=-");
    }

    void typedReadings()
    {
        QFETCH(PropertyValue, value);
        QFETCH(QString, expected);
        QCOMPARE(readings(&value), expected);
    }

    void lookupChainsStopAtTheFirstMissingLink()
    {
        QCOMPARE(readings(nullptr), QStringLiteral("int=- bool=- string=- dict=- list=-"));
        const PropertyDictionary battery{
            {QStringLiteral("BatteryData"),
             PropertyDictionary{{QStringLiteral("LifetimeData"), PropertyDictionary{{QStringLiteral("TotalOperatingTime"), 1234}}},
                                {QStringLiteral("Broken"), 7}}},
            {QStringLiteral("Empty"), PropertyDictionary{}},
        };
        const auto chain = [&](QStringList path) {
            const PropertyDictionary *dictionary = &battery;
            const QString last = path.takeLast();
            for (const QString &key : path)
                dictionary = propertyDictionary(propertyLookup(dictionary, key));
            return propertyInteger(propertyLookup(dictionary, last));
        };
        QCOMPARE(chain({QStringLiteral("BatteryData"), QStringLiteral("LifetimeData"), QStringLiteral("TotalOperatingTime")}),
                 std::optional<std::int64_t>(1234));
        QCOMPARE(chain({QStringLiteral("BatteryData"), QStringLiteral("Broken"), QStringLiteral("TotalOperatingTime")}), std::nullopt);
        QCOMPARE(chain({QStringLiteral("Missing"), QStringLiteral("LifetimeData"), QStringLiteral("TotalOperatingTime")}), std::nullopt);
        QCOMPARE(chain({QStringLiteral("Empty"), QStringLiteral("TotalOperatingTime")}), std::nullopt);
        QCOMPARE(propertyLookup(nullptr, QStringLiteral("BatteryData")), nullptr);
    }
};

QTEST_GUILESS_MAIN(PropertyValueTest)
#include "tst_property_value.moc"
