#include "sources/stats_chip_power_reader.h"

#include <QTest>

using namespace ferrow;

namespace {

struct Channel {
    const char *name;
    const char *unit;
    std::int64_t counter;
    const char *group = "Energy Model";
};

// One call of sample(): the uptime it happens at and the channels it sees (none: the sample fails).
struct Step {
    double uptimeS;
    std::optional<QList<Channel>> channels;
};

class ScriptedClock final : public Clock {
public:
    WallTime now() const override { return {}; }
    double uptimeSeconds() const override { return uptimeS; }
    double uptimeS = 0;
};

class ScriptedSource final : public EnergyReportSource {
public:
    explicit ScriptedSource(bool canSubscribe) : m_canSubscribe(canSubscribe) {}
    bool subscribe() override { return m_canSubscribe; }
    std::optional<std::vector<EnergyChannelSample>> sample() override
    {
        ++samplesTaken;
        if (!next)
            return std::nullopt;
        std::vector<EnergyChannelSample> samples;
        for (const Channel &c : *next) {
            const auto text = [](const char *s) { return s ? std::optional(QString::fromUtf8(s)) : std::nullopt; };
            samples.push_back({text(c.group), text(c.name), text(c.unit), c.counter});
        }
        return samples;
    }

    std::optional<QList<Channel>> next;
    int samplesTaken = 0;

private:
    bool m_canSubscribe;
};

void compareWatts(std::optional<double> actual, const QVariant &expected, const char *domain)
{
    QVERIFY2(actual.has_value() == expected.isValid(), domain);
    if (actual)
        QVERIFY2(qAbs(*actual - expected.toDouble()) < 1e-9, qPrintable(QStringLiteral("%1: %2").arg(QLatin1String(domain)).arg(*actual)));
}

} // namespace

using Steps = QList<Step>;
Q_DECLARE_METATYPE(Step)

class StatsChipPowerReaderTest : public QObject {
    Q_OBJECT

private slots:
    // Each row runs its steps; the expected figures are those of the last step, in watts.
    void sample_data()
    {
        QTest::addColumn<Steps>("steps");
        QTest::addColumn<QVariant>("cpu");
        QTest::addColumn<QVariant>("gpu");
        QTest::addColumn<QVariant>("ane");
        QTest::addColumn<QVariant>("ram");
        const QVariant none;

        const QList<Channel> all1 = {{"CPU Energy", "mJ", 1000}, {"GPU Energy", "mJ", 1000}, {"ANE0", "mJ", 1000}, {"DRAM0", "mJ", 1000}};
        const QList<Channel> all2 = {{"CPU Energy", "mJ", 3000}, {"GPU Energy", "mJ", 2000}, {"ANE0", "mJ", 1500}, {"DRAM0", "mJ", 1100}};
        QTest::newRow("first sample is the baseline") << Steps{{10, all1}} << none << none << none << none;
        QTest::newRow("second sample gives all four") << Steps{{10, all1}, {12, all2}} << QVariant(1.0) << QVariant(0.5)
                                                      << QVariant(0.25) << QVariant(0.05);
        QTest::newRow("nJ counters") << Steps{{0, QList<Channel>{{"GPU Energy", "nJ", 0}}}, {1, QList<Channel>{{"GPU Energy", "nJ", 5'000'000'000}}}}
                                     << none << QVariant(5.0) << none << none;
        QTest::newRow("uJ counters") << Steps{{0, QList<Channel>{{"ANE", "uJ", 0}}}, {2, QList<Channel>{{"ANE", "uJ", 3'000'000}}}}
                                     << none << none << QVariant(1.5) << none;
        QTest::newRow("cluster names by suffix")
            << Steps{{0, QList<Channel>{{"PACC0_CPU Energy", "mJ", 0}}}, {1, QList<Channel>{{"PACC0_CPU Energy", "mJ", 4000}}}}
            << QVariant(4.0) << none << none << none;
        QTest::newRow("GPU only in the suffix")
            << Steps{{0, QList<Channel>{{"GPU Energy", "mJ", 0}, {"GPU SRAM", "mJ", 0}}}, {1, QList<Channel>{{"GPU Energy", "mJ", 2000}, {"GPU SRAM", "mJ", 9000}}}}
            << none << QVariant(2.0) << none << none;
        QTest::newRow("DRAM only at the start")
            << Steps{{0, QList<Channel>{{"XDRAM", "mJ", 0}, {"ANE DRAM", "mJ", 0}}}, {1, QList<Channel>{{"XDRAM", "mJ", 9000}, {"ANE DRAM", "mJ", 2000}}}}
            << none << none << QVariant(2.0) << none;
        QTest::newRow("case matters") << Steps{{0, QList<Channel>{{"cpu energy", "mJ", 0}, {"dram", "mJ", 0}}},
                                               {1, QList<Channel>{{"cpu energy", "mJ", 9000}, {"dram", "mJ", 9000}}}}
                                      << none << none << none << none;
        QTest::newRow("joules and picojoules are ignored")
            << Steps{{0, QList<Channel>{{"CPU Energy", "J", 0}, {"GPU Energy", "pJ", 0}}}, {1, QList<Channel>{{"CPU Energy", "J", 9}, {"GPU Energy", "pJ", 9}}}}
            << none << none << none << none;
        QTest::newRow("missing or foreign group, name or unit")
            << Steps{{0, QList<Channel>{{"CPU Energy", "mJ", 0, "Other"}, {"CPU Energy", nullptr, 0}, {nullptr, "mJ", 0}, {"GPU Energy", "mJ", 0, nullptr}}},
                     {1, QList<Channel>{{"CPU Energy", "mJ", 9000, "Other"}, {"CPU Energy", nullptr, 9000}, {nullptr, "mJ", 9000}, {"GPU Energy", "mJ", 9000, nullptr}}}}
            << none << none << none << none;
        QTest::newRow("counter going backwards") << Steps{{0, QList<Channel>{{"CPU Energy", "mJ", 5000}}}, {1, QList<Channel>{{"CPU Energy", "mJ", 4000}}}}
                                                 << none << none << none << none;
        QTest::newRow("measures from the lower counter next")
            << Steps{{0, QList<Channel>{{"CPU Energy", "mJ", 5000}}}, {1, QList<Channel>{{"CPU Energy", "mJ", 4000}}}, {2, QList<Channel>{{"CPU Energy", "mJ", 6000}}}}
            << QVariant(2.0) << none << none << none;
        QTest::newRow("negative counter is skipped") << Steps{{0, QList<Channel>{{"CPU Energy", "mJ", -10}}}, {1, QList<Channel>{{"CPU Energy", "mJ", 100}}}}
                                                     << none << none << none << none;
        QTest::newRow("500 W is kept") << Steps{{0, QList<Channel>{{"GPU Energy", "mJ", 0}}}, {1, QList<Channel>{{"GPU Energy", "mJ", 500'000}}}}
                                       << none << QVariant(500.0) << none << none;
        QTest::newRow("500.1 W is dropped, not clamped")
            << Steps{{0, QList<Channel>{{"GPU Energy", "mJ", 0}}}, {1, QList<Channel>{{"GPU Energy", "mJ", 500'100}}}} << none << none << none << none;
        QTest::newRow("same uptime gives nothing") << Steps{{5, all1}, {5, all2}} << none << none << none << none;
        QTest::newRow("uptime going back gives nothing") << Steps{{5, all1}, {4, all2}} << none << none << none << none;
        QTest::newRow("baseline replaced even when time stood still")
            << Steps{{5, all1}, {5, all2}, {7, all2}} << QVariant(0.0) << QVariant(0.0) << QVariant(0.0) << QVariant(0.0);
        QTest::newRow("last channel of a domain wins")
            << Steps{{0, QList<Channel>{{"ECPU Energy", "mJ", 0}, {"PCPU Energy", "mJ", 100}}}, {1, QList<Channel>{{"ECPU Energy", "mJ", 9000}, {"PCPU Energy", "mJ", 1100}}}}
            << QVariant(1.0) << none << none << none;
        QTest::newRow("failed sample keeps the baseline")
            << Steps{{0, QList<Channel>{{"CPU Energy", "mJ", 1000}}}, {1, std::nullopt}, {2, QList<Channel>{{"CPU Energy", "mJ", 3000}}}}
            << QVariant(1.0) << none << none << none;
        QTest::newRow("a domain that went missing")
            << Steps{{0, all1}, {1, QList<Channel>{{"CPU Energy", "mJ", 2000}}}} << QVariant(1.0) << none << none << none;
        QTest::newRow("and came back: still absent once")
            << Steps{{0, all1}, {1, QList<Channel>{{"CPU Energy", "mJ", 2000}}}, {2, all2}} << QVariant(1.0) << none << none << none;
    }

    void sample()
    {
        QFETCH(Steps, steps);
        QFETCH(QVariant, cpu);
        QFETCH(QVariant, gpu);
        QFETCH(QVariant, ane);
        QFETCH(QVariant, ram);

        ScriptedClock clock;
        auto source = std::make_unique<ScriptedSource>(true);
        ScriptedSource &script = *source;
        StatsChipPowerReader reader(std::move(source), clock);
        ChipPower power;
        for (const Step &step : steps) {
            clock.uptimeS = step.uptimeS;
            script.next = step.channels;
            power = reader.sample();
        }
        compareWatts(power.cpu, cpu, "cpu");
        compareWatts(power.gpu, gpu, "gpu");
        compareWatts(power.ane, ane, "ane");
        compareWatts(power.ram, ram, "ram");
    }

    void unsubscribedNeverSamples()
    {
        ScriptedClock clock;
        auto source = std::make_unique<ScriptedSource>(false);
        ScriptedSource &script = *source;
        script.next = QList<Channel>{{"CPU Energy", "mJ", 1000}};
        StatsChipPowerReader reader(std::move(source), clock);
        for (int i = 0; i < 3; ++i) {
            clock.uptimeS = i;
            QVERIFY(reader.sample() == ChipPower{});
        }
        QCOMPARE(script.samplesTaken, 0);
    }
};

QTEST_GUILESS_MAIN(StatsChipPowerReaderTest)
#include "tst_stats_chip_power_reader.moc"
