#include "apps/app_energy_ledger.h"
#include "apps/energy_attribution.h"

#include <QTest>

#include <map>

using namespace ferrow;

Q_DECLARE_METATYPE(ferrow::ProcessFrame)
Q_DECLARE_METATYPE(ferrow::MeasuredEnergy)

namespace {

using Expected = std::map<std::string, double>; // group → joules (or CPU seconds without energy); "others" too

struct P {
    std::int64_t pid;
    double startedS;
    const char *group;
    double cpuS;
    std::optional<double> energyJ = std::nullopt;
};

ProcessFrame frame(double uptimeS, std::initializer_list<P> processes, std::optional<std::pair<double, double>> busyTotal = std::nullopt)
{
    ProcessFrame f;
    f.uptimeS = uptimeS;
    for (const P &p : processes)
        f.processes.push_back({p.pid, p.startedS, QString::fromLatin1(p.group), QString::fromLatin1(p.group), {}, p.cpuS, p.energyJ, p.group == std::string_view("self")});
    if (busyTotal) {
        f.cpuBusyS = busyTotal->first;
        f.cpuTotalS = busyTotal->second;
    }
    return f;
}

QByteArray describe(const Expected &shares)
{
    QByteArray text;
    for (const auto &[group, value] : shares)
        text += QByteArray::fromStdString(group) + '=' + QByteArray::number(value) + ' ';
    return text;
}

} // namespace

class EnergyAttributionTest : public QObject {
    Q_OBJECT

private slots:
    // Two frames; the second interval's shares.
    void sharesOneInterval_data()
    {
        QTest::addColumn<ProcessFrame>("before");
        QTest::addColumn<ProcessFrame>("after");
        QTest::addColumn<MeasuredEnergy>("measured");
        QTest::addColumn<int>("method");
        QTest::addColumn<Expected>("expected");

        const auto measured = int(AttributionMethod::measured);
        QTest::newRow("kernel energy; the chip's rest is the system's")
            << frame(10, {{1, 1, "a", 1, 5}, {2, 1, "b", 1, 1}}) << frame(15, {{1, 1, "a", 2, 9}, {2, 1, "b", 3, 2}})
            << MeasuredEnergy{10.0, 30.0} << measured << Expected{{"a", 4}, {"b", 1}, {"others", 5}};
        QTest::newRow("helpers add up in their group, one busy on the GPU alone; self is listed idle")
            << frame(10, {{1, 1, "a", 0, 1}, {2, 1, "a", 0, 1}, {3, 1, "self", 0, 0}})
            << frame(15, {{1, 1, "a", 1, 3}, {2, 1, "a", 0, 2}, {3, 1, "self", 0, 0}}) << MeasuredEnergy{4.0, {}} << measured
            << Expected{{"a", 3}, {"self", 0}, {"others", 1}};
        QTest::newRow("kernel energy without the chip's: no remainder to give")
            << frame(10, {{1, 1, "a", 1, 5}}) << frame(15, {{1, 1, "a", 2, 9}}) << MeasuredEnergy{{}, 30.0} << measured
            << Expected{{"a", 4}};
        QTest::newRow("a reused pid starts from nothing")
            << frame(10, {{1, 1, "a", 5, 50}}) << frame(15, {{1, 12, "a", 1, 2}}) << MeasuredEnergy{3.0, {}} << measured
            << Expected{{"a", 2}, {"others", 1}};
        QTest::newRow("one seen late counts only from now")
            << frame(10, {}) << frame(15, {{1, 2, "a", 5, 50}}) << MeasuredEnergy{3.0, {}} << measured << Expected{{"others", 3}};
        QTest::newRow("a counter that runs back counts nothing")
            << frame(10, {{1, 1, "a", 5, 50}, {2, 1, "b", 1, 1}}) << frame(15, {{1, 1, "a", 4, 20}, {2, 1, "b", 2, 2}})
            << MeasuredEnergy{3.0, {}} << measured << Expected{{"b", 1}, {"others", 2}};
        QTest::newRow("listed twice, counted once")
            << frame(10, {{1, 1, "a", 0, 0}}) << frame(15, {{1, 1, "a", 1, 2}, {1, 1, "a", 1, 2}}) << MeasuredEnergy{3.0, {}}
            << measured << Expected{{"a", 2}, {"others", 1}};
        QTest::newRow("processes above the chip leave the system nothing")
            << frame(10, {{1, 1, "a", 0, 0}}) << frame(15, {{1, 1, "a", 1, 5}}) << MeasuredEnergy{3.0, {}} << measured
            << Expected{{"a", 5}, {"others", 0}};
        QTest::newRow("chip energy by CPU time; busy time of no process is the system's")
            << frame(10, {{1, 1, "a", 0}, {2, 1, "b", 0}}, std::pair{0.0, 0.0})
            << frame(15, {{1, 1, "a", 3}, {2, 1, "b", 1}}, std::pair{5.0, 20.0}) << MeasuredEnergy{10.0, 40.0}
            << int(AttributionMethod::chipShare) << Expected{{"a", 6}, {"b", 2}, {"others", 2}};
        QTest::newRow("chip energy by CPU time where the processors' time is unknown")
            << frame(10, {{1, 1, "a", 0}, {2, 1, "b", 0}}) << frame(15, {{1, 1, "a", 3}, {2, 1, "b", 1}}) << MeasuredEnergy{8.0, {}}
            << int(AttributionMethod::chipShare) << Expected{{"a", 6}, {"b", 2}, {"others", 0}};
        QTest::newRow("the system's power by the processor's busy share")
            << frame(10, {{1, 1, "a", 0}}, std::pair{0.0, 0.0}) << frame(15, {{1, 1, "a", 2}}, std::pair{2.0, 8.0})
            << MeasuredEnergy{{}, 40.0} << int(AttributionMethod::systemShare) << Expected{{"a", 10}, {"others", 30}};
        QTest::newRow("nothing measured: CPU time alone")
            << frame(10, {{1, 1, "a", 0}}) << frame(15, {{1, 1, "a", 2}}) << MeasuredEnergy{{}, 40.0}
            << int(AttributionMethod::cpuTime) << Expected{{"a", 2}};
    }

    void sharesOneInterval()
    {
        QFETCH(ProcessFrame, before);
        QFETCH(ProcessFrame, after);
        QFETCH(MeasuredEnergy, measured);
        QFETCH(int, method);
        QFETCH(Expected, expected);

        EnergyAttribution attribution;
        QVERIFY(!attribution.add(before, {}));
        const std::optional<AttributedInterval> interval = attribution.add(after, measured);
        QVERIFY(interval);
        QCOMPARE(int(interval->method), method);
        QCOMPARE(interval->durationS, after.uptimeS - before.uptimeS);
        Expected got;
        for (const AttributedInterval::Group &group : interval->groups)
            got[group.group.toStdString()] = group.energyJ.value_or(group.cpuTimeS);
        if (interval->othersJ)
            got["others"] = *interval->othersJ;
        QVERIFY2(got == expected, describe(got) + "instead of " + describe(expected));
    }

    // What an exited process used stays counted; a clock that steps back counts nothing.
    void ledgerKeepsWhatExitedProcessesUsed()
    {
        EnergyAttribution attribution;
        AppEnergyLedger ledger;
        const auto add = [&](const ProcessFrame &f, double chipJ) {
            if (std::optional<AttributedInterval> interval = attribution.add(f, {chipJ, {}}))
                ledger.add(*interval);
        };
        add(frame(0, {{1, 0, "a", 0, 0}, {2, 0, "self", 0, 0}}), 0);
        add(frame(5, {{1, 0, "a", 1, 4}, {2, 0, "self", 0.1, 0.1}}), 5);
        add(frame(10, {{2, 0, "self", 0.2, 0.2}}), 2); // a exited
        add(frame(8, {{2, 0, "self", 0.3, 0.3}}), 9); // clock back: no interval
        add(frame(13, {{2, 0, "self", 0.4, 0.4}}), 1);

        const AppEnergyList list = ledger.list();
        QCOMPARE(list.coveredS, 15.0);
        QCOMPARE(list.apps.size(), 3u);
        QCOMPARE(list.apps[0].group, QStringLiteral("a"));
        QCOMPARE(*list.apps[0].energyJ, 4.0);
        QCOMPARE(list.apps[0].cpuTimeS, 1.0);
        QCOMPARE(list.method, AttributionMethod::measured);
        QCOMPARE(list.apps[1].kind, AppEnergy::Kind::others);
        QCOMPARE(*list.apps[1].energyJ, 0.9 + 1.9 + 0.9);
        QCOMPARE(list.apps[2].kind, AppEnergy::Kind::self);
        QVERIFY(qFuzzyCompare(*list.apps[2].energyJ, 0.3));
        QCOMPARE(*list.totalJ(), 8.0);
    }

    // A stored minute keeps its top applications by name, this program and the system, and folds
    // the others into one line whose method is the weakest of them.
    void keepTopFoldsTheRest()
    {
        AppEnergyList list;
        list.coveredS = 60;
        const auto app = [](AppEnergy::Kind kind, const char *group, double energyJ, AttributionMethod method) {
            return AppEnergy{kind, QString::fromLatin1(group), {}, {}, energyJ, 1.0, 60, method};
        };
        using K = AppEnergy::Kind;
        using M = AttributionMethod;
        list.apps = {app(K::application, "a", 9, M::measured), app(K::others, "", 8, M::measured), app(K::application, "b", 7, M::measured),
                     app(K::application, "c", 3, M::chipShare), app(K::application, "d", 2, M::cpuTime), app(K::self, "self", 0.1, M::measured)};
        const AppEnergyList kept = keepTop(list, 2);
        QStringList groups;
        for (const AppEnergy &a : kept.apps)
            groups << (a.kind == K::rest ? QStringLiteral("rest") : a.kind == K::others ? QStringLiteral("others") : a.group);
        QCOMPARE(groups.join(u' '), QStringLiteral("a others b self rest"));
        QCOMPARE(*kept.apps.back().energyJ, 5.0);
        QCOMPARE(kept.apps.back().method, M::chipShare);
        QCOMPARE(*kept.totalJ(), *list.totalJ());
    }
};

QTEST_GUILESS_MAIN(EnergyAttributionTest)
#include "tst_energy_attribution.moc"
