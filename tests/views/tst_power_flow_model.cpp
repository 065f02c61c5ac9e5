#include "views/power_flow_model.h"

#include <QLineF>
#include <QTest>

#include <algorithm>

using namespace ferrow;

namespace {

PowerSnapshot reading(bool hasBattery, double dcPowerW, double flowW, bool dataAvailable = true)
{
    PowerSnapshot s;
    s.hasBattery = hasBattery;
    s.isExternalConnected = dcPowerW > 0;
    s.dcPowerW = dcPowerW;
    s.batteryFlowW = flowW;
    s.isDataAvailable = dataAvailable;
    return s;
}

bool near(QPointF a, QPointF b)
{
    return qAbs(a.x() - b.x()) < 1e-9 && qAbs(a.y() - b.y()) < 1e-9;
}

const QSizeF kSize(100, 76);

} // namespace

class PowerFlowModelTest : public QObject {
    Q_OBJECT

private slots:
    void caseAndInputs_data()
    {
        QTest::addColumn<bool>("hasBattery");
        QTest::addColumn<double>("dcPowerW");
        QTest::addColumn<double>("flowW");
        QTest::addColumn<int>("expectedCase");
        QTest::addColumn<double>("snappedFlowW");
        QTest::newRow("desktop with input") << false << 40.0 << 0.0 << int(FlowCase::noBattery) << 0.0;
        QTest::newRow("0.1 W is no input") << true << 0.1 << -8.0 << int(FlowCase::batteryOnly) << -8.0;
        QTest::newRow("0.11 W is input") << true << 0.11 << 0.0 << int(FlowCase::chargingOrIdle) << 0.0;
        QTest::newRow("+0.04 W is idle") << true << 30.0 << 0.04 << int(FlowCase::chargingOrIdle) << 0.0;
        QTest::newRow("charging") << true << 30.0 << 18.0 << int(FlowCase::chargingOrIdle) << 18.0;
        QTest::newRow("adapter short of the load") << true << 30.0 << -0.06 << int(FlowCase::discharging) << -0.06;
    }

    void caseAndInputs()
    {
        QFETCH(bool, hasBattery);
        QFETCH(double, dcPowerW);
        QFETCH(double, flowW);
        QFETCH(int, expectedCase);
        QFETCH(double, snappedFlowW);
        const FlowInputs inputs = flowInputs(reading(hasBattery, dcPowerW, flowW));
        QCOMPARE(int(flowCase(inputs)), expectedCase);
        QCOMPARE(inputs.batteryFlowW, snappedFlowW);
    }

    void routesMeetTheNodes()
    {
        const double w = kSize.width(), h = kSize.height();
        const auto noBattery = flowStrokes(FlowCase::noBattery, kSize);
        QCOMPARE(noBattery.size(), 1u);
        QVERIFY(near(noBattery[0].start, {0, h / 2}) && near(noBattery[0].end, {w, h / 2}));

        const auto batteryOnly = flowStrokes(FlowCase::batteryOnly, kSize);
        QVERIFY(near(batteryOnly[0].start, {w, h - 17.5}) && near(batteryOnly[0].end, {w, 17.5}));
        QVERIFY(near(batteryOnly[0].control1, {0.31 * w, h - 17.5}) && near(batteryOnly[0].control2, {0.31 * w, 17.5}));

        const auto charging = flowStrokes(FlowCase::chargingOrIdle, kSize);
        QCOMPARE(charging.size(), 3u);
        QVERIFY(near(charging[0].end, {0.39 * w, h / 2}));
        QVERIFY(near(charging[1].start, charging[0].end) && near(charging[1].end, {w, 17.5}));
        QVERIFY(near(charging[2].end, {w, h - 17.5}));
        QVERIFY(near(charging[1].control1, {0.39 * w + 0.34 * 0.61 * w, h / 2}));
        QVERIFY(near(charging[2].control2, {w - 0.28 * 0.61 * w, h - 17.5}));
        QVERIFY(qAbs(charging[0].startColor.alphaF() - 0.72) < 0.002); // the trunk fades in from the adapter

        const auto discharging = flowStrokes(FlowCase::discharging, kSize);
        const QPointF merge(0.56 * w, 17.5);
        QVERIFY(near(discharging[0].end, merge) && near(discharging[1].end, merge));
        QVERIFY(near(discharging[1].start, {w, h - 17.5}) && near(discharging[2].end, {w, 17.5}));
    }

    void phase_data()
    {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<bool>("reduceMotion");
        QTest::addColumn<double>("phase");
        QTest::newRow("start") << 0.0 << false << 0.0;
        QTest::newRow("half way, many cycles on") << 1.55 * 1000 + 0.775 << false << 0.5;
        QTest::newRow("before the reference date") << -0.3875 << false << 0.75;
        QTest::newRow("reduce motion") << 12.3 << true << 0.5;
    }

    void phase()
    {
        QFETCH(double, seconds);
        QFETCH(bool, reduceMotion);
        QFETCH(double, phase);
        QVERIFY(qAbs(flowPhase(seconds, reduceMotion) - phase) < 1e-9);
    }

    void reducedMotionDotsStandAtTheirPhases()
    {
        const std::array<double, 3> phases = dotPhases(flowPhase(99.0, true));
        QVERIFY(qAbs(phases[0] - 0.5) < 1e-12 && qAbs(phases[1] - 0.86) < 1e-12 && qAbs(phases[2] - 0.18) < 1e-12);

        // On the straight route the dots sit at those fractions of its length.
        const auto dots = flowDots(flowInputs(reading(false, 40, 0)), kSize, 0.5);
        QVERIFY(near(dots[0].position, {50, 38}) && near(dots[1].position, {86, 38}) && near(dots[2].position, {18, 38}));
    }

    void dotsTakeTheirBranches_data()
    {
        QTest::addColumn<double>("flowW");
        QTest::addColumn<QList<bool>>("endsLow"); // whether each dot sits in the lower (battery) half
        // At phase 0.5 the dots are at 0.5, 0.86 and 0.18: the last is still on the trunk or feed.
        QTest::newRow("charging: the middle dot feeds the battery") << 18.0 << QList<bool>{false, true, false};
        QTest::newRow("charging at half a watt") << 0.5 << QList<bool>{false, true, false};
        QTest::newRow("idle: every dot feeds the Mac") << 0.0 << QList<bool>{false, false, false};
        QTest::newRow("discharging: first from the adapter, the rest from the battery") << -6.0 << QList<bool>{false, false, true};
    }

    void dotsTakeTheirBranches()
    {
        QFETCH(double, flowW);
        QFETCH(QList<bool>, endsLow);
        const auto dots = flowDots(flowInputs(reading(true, 30, flowW)), kSize, 0.5);
        for (int i = 0; i < 3; ++i)
            QVERIFY2((dots[i].position.y() > kSize.height() / 2 + 1) == endsLow[i], qPrintable(QString::number(i)));
    }

    // A cubic from (0, 0) to (1, 0) pulled up by (0, 1) and (1, 1) is 3/4 high half way.
    void strokesAreCubics()
    {
        const FlowStroke arch{true, {0, 0}, {0, 1}, {1, 1}, {1, 0}, {}, {}};
        QVERIFY(near(arch.pointAt(0.5), {0.5, 0.75}));
        QVERIFY(near(arch.pointAt(0.0), {0, 0}) && near(arch.pointAt(1.0), {1, 0}));
        for (const double phase : dotPhases(0.7)) // past the end, a dot starts again
            QVERIFY(phase >= 0 && phase < 1);
    }

    // Each dot rides a route of its case, the first from where its route starts to the Mac, and a
    // dot for the battery rides the trunk or the battery branch, never the branch to the Mac.
    void dotsRideTheirRoutes_data()
    {
        QTest::addColumn<bool>("hasBattery");
        QTest::addColumn<double>("dcPowerW");
        QTest::addColumn<double>("flowW");
        QTest::newRow("desktop") << false << 40.0 << 0.0;
        QTest::newRow("battery only") << true << 0.0 << -8.0;
        QTest::newRow("charging") << true << 30.0 << 18.0;
        QTest::newRow("idle") << true << 30.0 << 0.0;
        QTest::newRow("discharging") << true << 30.0 << -6.0;
    }

    void dotsRideTheirRoutes()
    {
        QFETCH(bool, hasBattery);
        QFETCH(double, dcPowerW);
        QFETCH(double, flowW);
        const FlowInputs inputs = flowInputs(reading(hasBattery, dcPowerW, flowW));
        const std::vector<FlowStroke> strokes = flowStrokes(flowCase(inputs), kSize);
        const auto onStroke = [&](QPointF p, std::size_t k) {
            for (int step = 0; step <= 2000; ++step) {
                if (QLineF(p, strokes[k].pointAt(step / 2000.0)).length() < 0.1)
                    return true;
            }
            return false;
        };
        const QPointF mac = strokes.size() == 1 ? strokes[0].end : strokes[flowW < 0 ? 2 : 1].end;
        QVERIFY(near(flowDots(inputs, kSize, 0.0)[0].position, strokes[0].start));
        QCOMPARE(flowDots(inputs, kSize, 0.0)[0].color.rgb(), strokes[0].startColor.rgb()); // and in its colour
        QVERIFY(QLineF(flowDots(inputs, kSize, 0.99999)[0].position, mac).length() < 0.1);
        for (const double phase : {0.0, 0.3, 0.7, 0.95}) {
            const auto dots = flowDots(inputs, kSize, phase);
            for (std::size_t i = 0; i < dots.size(); ++i) {
                const bool toBattery = flowW > 0 && i == 1, fromBattery = flowW < 0 && dcPowerW > 0 && i > 0;
                std::vector<std::size_t> routes{toBattery ? 2u : fromBattery ? 1u : 0u};
                if (strokes.size() == 3)
                    routes.push_back(toBattery || fromBattery ? (toBattery ? 0u : 2u) : flowW < 0 ? 2u : 1u);
                QVERIFY2(std::any_of(routes.begin(), routes.end(), [&](std::size_t k) { return onStroke(dots[i].position, k); }),
                         qPrintable(QStringLiteral("dot %1 at phase %2").arg(i).arg(phase)));
            }
        }
    }

    void batteryNode_data()
    {
        QTest::addColumn<double>("flowW");
        QTest::addColumn<bool>("dataAvailable");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("iconColor");
        QTest::newRow("+0.04 W reads idle") << 0.04 << true << QStringLiteral("0.0 W") << int(ColorRole::secondaryText);
        QTest::newRow("charging") << 18.24 << true << QStringLiteral("+18.2 W") << int(ColorRole::positive);
        QTest::newRow("0.05 W counts") << 0.05 << true << QStringLiteral("+0.1 W") << int(ColorRole::positive);
        QTest::newRow("discharging") << -6.5 << true << QStringLiteral("-6.5 W") << int(ColorRole::dischargePink);
        QTest::newRow("no data: dash, colour by flow") << -6.5 << false << QStringLiteral("\u2014") << int(ColorRole::dischargePink);
    }

    void batteryNode()
    {
        QFETCH(double, flowW);
        QFETCH(bool, dataAvailable);
        QFETCH(QString, text);
        QFETCH(int, iconColor);
        const FlowNodeValue node = batteryNodeValue(reading(true, 30, flowW, dataAvailable));
        QCOMPARE(flowNodeValueText(node), text);
        QCOMPARE(int(node.iconColor), iconColor);
    }
};

QTEST_GUILESS_MAIN(PowerFlowModelTest)
#include "tst_power_flow_model.moc"
