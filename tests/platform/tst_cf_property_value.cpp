#include "fake_core_foundation.h"
#include "platform/macos/cf_property_value.h"

#include <QTest>

#include <limits>

using namespace ferrow;

class CFPropertyValueTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { fakecf::destroyAll(); }

    void scalars()
    {
        QVERIFY(propertyValueFromCF(fakecf::number(-2500)) == PropertyValue(std::int64_t(-2500)));
        QVERIFY(propertyValueFromCF(fakecf::unsignedNumber(18446744073709549743u)) == PropertyValue(std::uint64_t(18446744073709549743u)));
        QVERIFY(propertyValueFromCF(fakecf::unsignedNumber(42)) == PropertyValue(std::int64_t(42)));
        QVERIFY(propertyValueFromCF(fakecf::real(12.9)) == PropertyValue(12.9));
        QVERIFY(propertyValueFromCF(fakecf::boolean(true)) == PropertyValue(true)); // a boolean, never the number 1
        QVERIFY(propertyValueFromCF(fakecf::string(u"pd charger \u00B7 96 W")) == PropertyValue(QStringLiteral("pd charger \u00B7 96 W")));
        QVERIFY(propertyValueFromCF(fakecf::data(std::string("\x00\x01\xff", 3))) == PropertyValue(QByteArray("\x00\x01\xff", 3)));
        QVERIFY(propertyValueFromCF(fakecf::date()) == PropertyValue(UnsupportedProperty{}));
        QVERIFY(propertyValueFromCF(nullptr) == PropertyValue(UnsupportedProperty{}));
    }

    void batteryDictionary()
    {
        const CFTypeRef cells = fakecf::array({fakecf::number(4007), fakecf::number(4009), fakecf::real(4005.0)});
        const CFTypeRef lifetime = fakecf::dictionary({{fakecf::string(u"MaximumTemperature"), fakecf::number(47)}});
        const CFTypeRef batteryData = fakecf::dictionary({{fakecf::string(u"CellVoltage"), cells}, {fakecf::string(u"LifetimeData"), lifetime}});
        const CFTypeRef foreignKeys = fakecf::dictionary({{fakecf::number(1), fakecf::string(u"x")}});
        const CFTypeRef properties = fakecf::dictionary({
            {fakecf::string(u"BatteryInstalled"), fakecf::boolean(true)},
            {fakecf::string(u"Amperage"), fakecf::number(-1873)},
            {fakecf::string(u"BatteryData"), batteryData},
            {fakecf::string(u"Odd"), foreignKeys},
        });

        const std::optional<PropertyDictionary> converted = propertyDictionaryFromCF(properties);
        QVERIFY(converted);
        QCOMPARE(propertyBoolean(propertyLookup(&*converted, QStringLiteral("BatteryInstalled"))), std::optional(true));
        QCOMPARE(propertyInteger(propertyLookup(&*converted, QStringLiteral("Amperage"))), std::optional<std::int64_t>(-1873));
        const PropertyDictionary *data = propertyDictionary(propertyLookup(&*converted, QStringLiteral("BatteryData")));
        QCOMPARE(propertyNumberList(propertyLookup(data, QStringLiteral("CellVoltage"))), (std::optional(std::vector<double>{4007, 4009, 4005})));
        const PropertyDictionary *life = propertyDictionary(propertyLookup(data, QStringLiteral("LifetimeData")));
        QCOMPARE(propertyInteger(propertyLookup(life, QStringLiteral("MaximumTemperature"))), std::optional<std::int64_t>(47));
        QVERIFY(!propertyDictionary(propertyLookup(&*converted, QStringLiteral("Odd")))); // a key that is not a string

        // The conversion borrows: it neither retains nor releases anything.
        for (const CFTypeRef object : {properties, batteryData, cells, lifetime, foreignKeys})
            QCOMPARE(fakecf::referenceCount(object), 1);
    }

    void topLevelMustBeAStringKeyedDictionary()
    {
        QVERIFY(!propertyDictionaryFromCF(fakecf::array({})));
        QVERIFY(!propertyDictionaryFromCF(fakecf::dictionary({{fakecf::number(1), fakecf::number(2)}})));
        QVERIFY(!propertyDictionaryFromCF(nullptr));
        QCOMPARE(propertyDictionaryFromCF(fakecf::dictionary({}))->size(), 0u);
    }

    void deepNestingStops()
    {
        CFTypeRef nested = fakecf::number(1);
        for (int i = 0; i < 200; ++i)
            nested = fakecf::array({nested});
        const PropertyValue value = propertyValueFromCF(nested);
        const PropertyValue *inner = &value;
        int depth = 0;
        while (const auto *list = std::get_if<PropertyList>(&inner->value)) {
            inner = &list->front();
            ++depth;
        }
        QVERIFY(depth < 200);
        QVERIFY(*inner == PropertyValue(UnsupportedProperty{}));
    }
};

QTEST_GUILESS_MAIN(CFPropertyValueTest)
#include "tst_cf_property_value.moc"
