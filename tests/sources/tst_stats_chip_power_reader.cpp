#include "sources/stats_chip_power_reader.h"
#include "support/json_rows.h"

using namespace ferrow;
using namespace ferrow::testing;

namespace {

class ScriptedClock final : public Clock {
public:
    WallTime now() const override { return {}; }
    double uptimeSeconds() const override { return uptimeS; }
    double uptimeS = 0;
};

// Samples the channels it is given as [group, name, unit, counter], any text of which may be null;
// with none, the sample fails.
class ScriptedSource final : public EnergyReportSource {
public:
    explicit ScriptedSource(bool canSubscribe) : m_canSubscribe(canSubscribe) {}
    bool subscribe() override { return m_canSubscribe; }
    std::optional<std::vector<EnergyChannelSample>> sample() override
    {
        ++samplesTaken;
        if (!next)
            return std::nullopt;
        const auto text = [](const QJsonValue &v) { return v.isString() ? std::optional(v.toString()) : std::nullopt; };
        std::vector<EnergyChannelSample> samples;
        for (const QJsonValue &c : *next)
            samples.push_back({text(c[0]), text(c[1]), text(c[2]), c[3].toInteger()});
        return samples;
    }

    std::optional<QJsonArray> next;
    int samplesTaken = 0;

private:
    bool m_canSubscribe;
};

} // namespace

class StatsChipPowerReaderTest : public QObject {
    Q_OBJECT

private slots:
    // Each row samples its steps in turn, at their uptimes; "channels": null is a failing sample.
    // The expected watts are those of the last step; a domain not named is absent.
    void sample_data() { addJsonRows("chip-power-steps.json"); }

    void sample()
    {
        QFETCH(QJsonObject, row);
        ScriptedClock clock;
        auto source = std::make_unique<ScriptedSource>(true);
        ScriptedSource &script = *source;
        StatsChipPowerReader reader(std::move(source), clock);
        ChipPower power;
        for (const QJsonValue &step : row[u"steps"].toArray()) {
            clock.uptimeS = step[u"uptime"].toDouble();
            script.next = step[u"channels"].isArray() ? std::optional(step[u"channels"].toArray()) : std::nullopt;
            power = reader.sample();
        }
        const std::pair<const char *, std::optional<double>> domains[] = {{"cpu", power.cpu}, {"gpu", power.gpu}, {"ane", power.ane}, {"ram", power.ram}};
        for (const auto &[domain, watts] : domains) {
            const QJsonValue want = row[u"expected"][QLatin1String(domain)];
            QVERIFY2(watts.has_value() == want.isDouble() && (!watts || qAbs(*watts - want.toDouble()) < 1e-9),
                     qPrintable(QStringLiteral("%1: %2").arg(QLatin1String(domain)).arg(watts.value_or(-1))));
        }
    }

    void unsubscribedNeverSamples()
    {
        ScriptedClock clock;
        auto source = std::make_unique<ScriptedSource>(false);
        ScriptedSource &script = *source;
        script.next = QJsonArray{QJsonArray{QStringLiteral("Energy Model"), QStringLiteral("CPU Energy"), QStringLiteral("mJ"), 1000}};
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
