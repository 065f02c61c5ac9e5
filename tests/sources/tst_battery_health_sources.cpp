#include "sources/battery_health_sources.h"
#include "support/fake_machine.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace ferrow;
using namespace ferrow::testing;
using namespace std::chrono_literals;

// Wrapped: Qt's meta-type would look for operator< on the optional list, which libc++ rejects hard.
struct SourceList {
    std::optional<ferrow::PropertyList> list;
};
Q_DECLARE_METATYPE(SourceList)

namespace {

QByteArray profilerOutput(const QJsonArray &sections)
{
    return QJsonDocument(QJsonObject{{QStringLiteral("SPPowerDataType"), sections}}).toJson();
}

QJsonObject batterySection(const QJsonValue &maximumCapacity)
{
    return QJsonObject{{QStringLiteral("sppower_battery_health_info"),
                        QJsonObject{{QStringLiteral("sppower_battery_health_maximum_capacity"), maximumCapacity},
                                    {QStringLiteral("sppower_battery_health"), QStringLiteral("Good")}}}};
}

PropertyValue source(const char *type, std::optional<const char *> health)
{
    PropertyDictionary description{{QStringLiteral("Type"), QString::fromLatin1(type)}};
    if (health)
        description[QStringLiteral("BatteryHealth")] = QString::fromLatin1(*health);
    return description;
}

} // namespace

class BatteryHealthSourcesTest : public QObject {
    Q_OBJECT

private slots:
    void profilerDocument_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QVariant>("percent");
        const QVariant none;
        const auto text = [](const char *text, QVariant percent) {
            QTest::addRow("text \"%s\"", text) << profilerOutput({batterySection(QString::fromUtf8(text))}) << percent;
        };
        text("87%", 87);
        text("100%", 100);
        text("%92%", 92);
        text("87", 87);
        text("87%%", 87);
        text("0%", 0);
        text("+7", 7);
        text("-0", 0);
        text("87 %", none);
        text(" 87%", none);
        text("101%", none);
        text("-5%", none);
        text("8%7", none);
        text("8.7%", none);
        text("", none);
        text("%", none);
        text("+", none);
        text("+-7", none);
        text("99999999999999999999%", none);
        text("\u0668\u0667%", none); // digits, but not ASCII ones
        const QJsonObject unrelated{{QStringLiteral("sppower_ac_charger_watts"), QStringLiteral("96")}};
        QTest::newRow("first unparsable, second 91") << profilerOutput({batterySection(QStringLiteral("n/a")), batterySection(QStringLiteral("91%"))}) << QVariant(91);
        QTest::newRow("first out of range, second used") << profilerOutput({batterySection(QStringLiteral("101%")), batterySection(QStringLiteral("88%"))}) << QVariant(88);
        QTest::newRow("section without health info first") << profilerOutput({unrelated, batterySection(QStringLiteral("80%"))}) << QVariant(80);
        QTest::newRow("first usable section wins") << profilerOutput({batterySection(QStringLiteral("80%")), batterySection(QStringLiteral("70%"))}) << QVariant(80);
        QTest::newRow("a number, not a string") << profilerOutput({batterySection(87)}) << none;
        QTest::newRow("health info not an object")
            << profilerOutput({QJsonObject{{QStringLiteral("sppower_battery_health_info"), QStringLiteral("87%")}}}) << none;
        QTest::newRow("one section not an object spoils all") << profilerOutput({batterySection(QStringLiteral("87%")), 5}) << none;
        QTest::newRow("no sections") << profilerOutput({}) << none;
        QTest::newRow("sections not an array") << QByteArray(R"({"SPPowerDataType":{"a":1}})") << none;
        QTest::newRow("member missing") << QByteArray(R"({"SPOther":[]})") << none;
        QTest::newRow("top level an array") << QByteArray(R"([{"SPPowerDataType":[]}])") << none;
        QTest::newRow("not JSON") << QByteArray("system_profiler: unknown data type") << none;
        QTest::newRow("truncated") << profilerOutput({batterySection(QStringLiteral("87%"))}).chopped(3) << none;
        QTest::newRow("empty") << QByteArray() << none;
    }

    void profilerDocument()
    {
        QFETCH(QByteArray, json);
        QFETCH(QVariant, percent);
        const auto parsed = BatteryHealthSources::maximumCapacityPercentFromProfiler(json);
        QCOMPARE(parsed.has_value(), percent.isValid());
        if (parsed)
            QCOMPARE(*parsed, percent.toLongLong());
    }

    void profilerRunsAtMostEverySixHours()
    {
        FakeMachine m;
        BatteryHealthSources health(m, m, m);
        const WallTime start = m.time;
        const std::optional<std::int64_t> none, known = 87;
        const auto readAt = [&](std::chrono::seconds after, std::optional<std::int64_t> percent, int runs) {
            m.time = start + after;
            QCOMPARE(health.systemBatteryHealthPercent(), percent);
            QCOMPARE(m.profilerRuns, runs);
        };

        // Never tried: the first reading runs the tool, even with nothing cached. It fails.
        const QByteArray good = profilerOutput({batterySection(QStringLiteral("87%"))});
        m.profiler = CommandResult{1, good};
        readAt(0s, none, 1);
        QCOMPARE(m.lastCommand, (QStringList{QStringLiteral("/usr/sbin/system_profiler"), QStringLiteral("-json"), QStringLiteral("SPPowerDataType")}));
        QCOMPARE(health.lastSystemBatteryHealthReadAt(), std::optional(start));
        // Tried, no value: absent until the interval has passed, then it runs again.
        m.profiler = CommandResult{0, good};
        readAt(21599s, none, 1);
        readAt(21600s, known, 2);
        // Value known: a failing attempt keeps it and still waits the full interval.
        m.profiler = std::nullopt; // could not be started
        readAt(2 * 21600s, known, 3);
        m.profiler = CommandResult{0, "not json"};
        readAt(2 * 21600s + 1s, known, 3);
        readAt(0s, known, 3); // a clock set back keeps the cache
        readAt(3 * 21600s, known, 4); // an unusable document keeps the value too
        QCOMPARE(health.cachedSystemBatteryHealthPercent(), known);
    }

    void capacityHealthPercent_data()
    {
        QTest::addColumn<QVariant>("capacity");
        QTest::addColumn<QVariant>("design");
        QTest::addColumn<QVariant>("percent");
        const QVariant none;
        QTest::newRow("86.6 rounds up") << QVariant(4420) << QVariant(5103) << QVariant(87);
        QTest::newRow("above design clamps") << QVariant(5200) << QVariant(5103) << QVariant(100);
        QTest::newRow("half rounds away from zero") << QVariant(1) << QVariant(8) << QVariant(13);
        QTest::newRow("below half rounds down") << QVariant(4999) << QVariant(10000) << QVariant(50);
        QTest::newRow("negative capacity clamps") << QVariant(-10) << QVariant(5103) << QVariant(0);
        QTest::newRow("design absent") << QVariant(4420) << none << none;
        QTest::newRow("capacity absent") << none << QVariant(5103) << none;
        QTest::newRow("design zero") << QVariant(4420) << QVariant(0) << none;
    }

    void capacityHealthPercent()
    {
        QFETCH(QVariant, capacity);
        QFETCH(QVariant, design);
        QFETCH(QVariant, percent);
        const auto optional = [](const QVariant &v) {
            return v.isValid() ? std::optional<std::int64_t>(v.toLongLong()) : std::nullopt;
        };
        QCOMPARE(BatteryHealthSources::capacityHealthPercent(optional(capacity), optional(design)), optional(percent));
    }

    void healthCondition_data()
    {
        QTest::addColumn<SourceList>("sources");
        QTest::addColumn<QString>("condition");

        QTest::newRow("Good with a capital G") << SourceList{PropertyList{source("InternalBattery", "Good")}} << QStringLiteral("good");
        QTest::newRow("POOR") << SourceList{PropertyList{source("InternalBattery", "POOR")}} << QStringLiteral("poor");
        QTest::newRow("Check Battery") << SourceList{PropertyList{source("InternalBattery", "Check Battery")}} << QString();
        QTest::newRow("first internal battery decides")
            << SourceList{PropertyList{source("InternalBattery", std::nullopt), source("InternalBattery", "Fair")}} << QString();
        QTest::newRow("other sources skipped")
            << SourceList{PropertyList{source("UPS", "Poor"), source("InternalBattery", "Fair")}} << QStringLiteral("fair");
        QTest::newRow("type is case-sensitive") << SourceList{PropertyList{source("internalbattery", "Good")}} << QString();
        QTest::newRow("non-dictionary entries skipped")
            << SourceList{PropertyList{QStringLiteral("junk"), UnsupportedProperty{}, source("InternalBattery", "Good")}}
            << QStringLiteral("good");
        QTest::newRow("health not a string")
            << SourceList{PropertyList{PropertyDictionary{{QStringLiteral("Type"), QStringLiteral("InternalBattery")},
                                                             {QStringLiteral("BatteryHealth"), 1}}}}
            << QString();
        QTest::newRow("no internal battery") << SourceList{PropertyList{source("UPS", "Good")}} << QString();
        QTest::newRow("no list") << SourceList{} << QString();
    }

    void healthCondition()
    {
        QFETCH(SourceList, sources);
        QFETCH(QString, condition);
        FakeMachine m;
        m.powerSourceList = sources.list;
        BatteryHealthSources health(m, m, m);
        const auto read = health.readBatteryHealthCondition();
        QCOMPARE(read ? rawValue(*read) : QString(), condition);
    }
};

QTEST_GUILESS_MAIN(BatteryHealthSourcesTest)
#include "tst_battery_health_sources.moc"
