#include "app/text_table.h"
#include "model/localized_text.h"
#include "model/value_text.h"
#include "views/accessibility_model.h"
#include "views/app_painting.h"
#include "views/apps_model.h"
#include "views/battery_status_model.h"
#include "views/dashboard_model.h"
#include "views/ferrow_palette.h"
#include "views/power_flow_model.h"

#include <QCoreApplication>
#include <QTest>

#include <limits>

using namespace ferrow;

Q_DECLARE_METATYPE(ferrow::PowerSnapshot)
Q_DECLARE_METATYPE(QLocale)
Q_DECLARE_METATYPE(ferrow::ColourPair)
Q_DECLARE_METATYPE(ferrow::AppEnergyList)

namespace {

PowerSnapshot notebook(bool external, bool charging, double flowW)
{
    PowerSnapshot s;
    s.hasBattery = true;
    s.isExternalConnected = external;
    s.isCharging = charging;
    s.isDataAvailable = true;
    s.batteryFlowW = flowW;
    s.batteryChargePowerW = external && flowW > 0 ? flowW : 0.0;
    s.dcVoltageV = 20.0;
    s.dcCurrentA = 1.5;
    s.dcPowerW = 30.0;
    s.batteryVoltageV = 12.0;
    s.batteryRailVoltageV = 12.5;
    s.batteryCurrentA = 1.5;
    s.cycleCount = 143;
    return s;
}

QString dash()
{
    return QStringLiteral("\u2014");
}

using Kind = AppEnergy::Kind;

AppEnergy app(const char *name, std::optional<double> energyJ, double cpuTimeS = 1, Kind kind = Kind::application, double coveredS = 3600)
{
    return {kind, QLatin1String(name), QLatin1String(name), {}, energyJ, cpuTimeS, coveredS, AttributionMethod::chipShare};
}

// Texts written as UTF-8 literals.
QStringList lines(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *text : texts)
        list << QString::fromUtf8(text);
    return list;
}

AppEnergyList appList(std::vector<AppEnergy> apps, AttributionMethod method = AttributionMethod::chipShare)
{
    for (AppEnergy &a : apps)
        a.method = method;
    return {std::move(apps), 3600, method};
}

} // namespace

class ViewModelsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(installTextTable(*QCoreApplication::instance())); }

    void readableTones_data()
    {
        QTest::addColumn<QColor>("tone");
        QTest::addColumn<QColor>("background");
        QTest::addColumn<double>("ratio"); // WCAG's, of the tone as it is
        QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
        QTest::newRow("white on white") << QColor(Qt::white) << QColor(Qt::white) << 1.0;
        QTest::newRow("#767676 on white: just passes") << QColor(0x76, 0x76, 0x76) << QColor(Qt::white) << 4.54;
        QTest::newRow("#777777 on white: just fails") << QColor(0x77, 0x77, 0x77) << QColor(Qt::white) << 4.48;
        QTest::newRow("half-transparent black on white is mid grey") << QColor(0, 0, 0, 128) << QColor(Qt::white) << 4.00;
        QTest::newRow("pink on a light panel") << QColor(241, 169, 184) << QColor(253, 253, 254) << 1.86;
        QTest::newRow("green on a light panel") << QColor(40, 167, 69) << QColor(253, 253, 254) << 3.08;
        QTest::newRow("pink on a dark panel") << QColor(241, 169, 184) << QColor(48, 48, 51) << 6.96;
        QTest::newRow("blue on a dark panel") << QColor(0, 64, 160) << QColor(48, 48, 51) << 1.40;
        QTest::newRow("on mid grey") << QColor(120, 120, 120) << QColor(118, 118, 118) << 1.03;
    }

    void readableTones()
    {
        QFETCH(QColor, tone);
        QFETCH(QColor, background);
        QFETCH(double, ratio);
        QVERIFY2(qAbs(contrastRatio(tone, background) - ratio) < 0.01, qPrintable(QString::number(contrastRatio(tone, background))));

        const QColor readable = readableOn(tone, background);
        QVERIFY2(contrastRatio(readable, background) >= 4.5, qPrintable(readable.name()));
        if (ratio >= 4.5 && tone.alpha() == 255) {
            QCOMPARE(readable.rgb(), tone.rgb()); // already readable: left alone
        } else if (tone.hsvHue() >= 0) {
            QVERIFY(qAbs(readable.hsvHue() - tone.hsvHue()) <= 3); // still the same colour, only darker or lighter
            QVERIFY(contrastRatio(readable, background) < 4.8);    // and no further from it than it takes
        }
    }

    // Every colour the views draw on every ground they draw it on, in both appearances and both
    // contrast modes: the brand's own colours may fall short unless contrast is increased; every
    // colour of ours, and every colour once contrast is increased, reads.
    void colourPairs_data()
    {
        QTest::addColumn<ColourPair>("pair");
        QTest::addColumn<bool>("mustRead");
        for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
            for (const Contrast contrast : {Contrast::standard, Contrast::increased}) {
                const FerrowPalette palette{scheme, contrast};
                const QString mode = QStringLiteral("%1, %2 contrast: ")
                                         .arg(palette.isDark() ? QStringLiteral("dark") : QStringLiteral("light"),
                                              palette.increasesContrast() ? QStringLiteral("increased") : QStringLiteral("standard"));
                for (const ColourPair &pair : ferrow::colourPairs(palette))
                    QTest::newRow(qPrintable(mode + pair.what)) << pair << (palette.increasesContrast() || !pair.brandColour);
            }
        }
    }

    void colourPairs()
    {
        QFETCH(ColourPair, pair);
        QFETCH(bool, mustRead);
        const double ratio = contrastRatio(pair.foreground, pair.background);
        if (mustRead)
            QVERIFY2(ratio >= pair.minimumRatio, qPrintable(QStringLiteral("%1:1, %2 on %3").arg(ratio, 0, 'f', 2).arg(pair.foreground.name(QColor::HexArgb), pair.background.name())));
    }

    // Rows as "label=value@colour" lines, so a whole card compares at once.
    void telemetryRows_data()
    {
        QTest::addColumn<PowerSnapshot>("snapshot");
        QTest::addColumn<QStringList>("rows");
        const auto text = [](const char *key) { return localizedText(key); };

        PowerSnapshot desktop;
        desktop.isExternalConnected = true;
        desktop.systemPowerW = 31.24;
        desktop.cycleCount = 5; // ignored without a battery
        QTest::newRow("desktop") << desktop
                                 << QStringList{text("power.system_total") + QStringLiteral("=31.2 W@0"),
                                                text("device.power_source") + u'=' + text("status.external_power") + QStringLiteral("@5"),
                                                text("battery.title") + u'=' + text("battery.not_detected") + QStringLiteral("@1"),
                                                text("device.sample_rate") + QStringLiteral("=1 Hz@4")};

        QTest::newRow("on adapter: pack figures, plus sign") << notebook(true, true, 18.0)
            << QStringList{text("battery.cycle_count") + QStringLiteral("=143@0"), text("battery.voltage") + QStringLiteral("=12.00 V@0"),
                           text("battery.current") + QStringLiteral("=+1.500 A@5"), text("battery.charge_status") + u'=' + text("status.charging") + QStringLiteral("@4")};
        QTest::newRow("flow -0.06: battery-powered, rail voltage, pink") << notebook(true, false, -0.06)
            << QStringList{text("battery.cycle_count") + QStringLiteral("=143@0"), text("battery.voltage") + QStringLiteral("=12.50 V@0"),
                           text("battery.current") + QStringLiteral("=-0.005 A@6"),
                           text("battery.charge_status") + u'=' + text("status.power_connected") + QStringLiteral("@4")};

        PowerSnapshot zero = notebook(true, false, 0.0);
        zero.batteryCurrentA = 0.0;
        zero.cycleCount.reset();
        zero.batteryVoltageV.reset();
        QTest::newRow("zero current has no sign, absent shows the dash") << zero
            << QStringList{text("battery.cycle_count") + u'=' + dash() + QStringLiteral("@0"), text("battery.voltage") + u'=' + dash() + QStringLiteral("@0"),
                           text("battery.current") + QStringLiteral("=0.000 A@5"),
                           text("battery.charge_status") + u'=' + text("status.power_connected") + QStringLiteral("@4")};

        PowerSnapshot zeroVolts = notebook(false, false, -6.0);
        zeroVolts.batteryRailVoltageV = 0.0;
        QTest::newRow("a 0 V divisor shows the dash, not inf") << zeroVolts
            << QStringList{text("battery.cycle_count") + QStringLiteral("=143@0"), text("battery.voltage") + QStringLiteral("=0.00 V@0"),
                           text("battery.current") + u'=' + dash() + QStringLiteral("@6"),
                           text("battery.charge_status") + u'=' + text("status.on_battery") + QStringLiteral("@4")};
    }

    void telemetryRows()
    {
        QFETCH(PowerSnapshot, snapshot);
        QFETCH(QStringList, rows);
        QStringList actual;
        for (const ValueRow &row : ferrow::telemetryRows(snapshot))
            actual << QStringLiteral("%1=%2@%3").arg(row.label, row.value).arg(int(row.tint));
        QCOMPARE(actual, rows);
    }

    void statusAndCaption_data()
    {
        QTest::addColumn<PowerSnapshot>("snapshot");
        QTest::addColumn<QString>("status");
        QTest::addColumn<int>("dot");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QVariant>("voltage");

        PowerSnapshot waiting = notebook(false, false, -5.0);
        waiting.isDataAvailable = false;
        PowerSnapshot packOnly = notebook(false, false, -5.0);
        packOnly.batteryRailVoltageV.reset();
        PowerSnapshot noVoltage = packOnly;
        noVoltage.batteryVoltageV.reset();
        QTest::newRow("live on adapter") << notebook(true, true, 5.0) << localizedText("status.live") << int(ColorRole::liveGreen)
                                         << QStringLiteral("DC IN") << QVariant(20.0);
        QTest::newRow("waiting on battery") << waiting << localizedText("status.waiting") << int(ColorRole::orange)
                                            << localizedText("power.battery_discharge") << QVariant(12.5);
        QTest::newRow("battery without rail voltage") << packOnly << localizedText("status.live") << int(ColorRole::liveGreen)
                                                      << localizedText("power.battery_discharge") << QVariant(12.0);
        QTest::newRow("battery without any voltage") << noVoltage << localizedText("status.live") << int(ColorRole::liveGreen)
                                                     << localizedText("power.battery_discharge") << QVariant();
    }

    void statusAndCaption()
    {
        QFETCH(PowerSnapshot, snapshot);
        QFETCH(QString, status);
        QFETCH(int, dot);
        QFETCH(QString, caption);
        QFETCH(QVariant, voltage);
        QCOMPARE(statusIndicator(snapshot).text, status);
        QCOMPARE(int(statusIndicator(snapshot).dotColor), dot);
        QCOMPARE(meterCaption(snapshot), caption);
        const std::optional<double> volts = displayVoltageV(snapshot);
        QCOMPARE(volts.has_value(), voltage.isValid());
        if (volts)
            QCOMPARE(*volts, voltage.toDouble());
    }

    void meterValueText_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("large");
        QTest::addColumn<QString>("small");
        QTest::newRow("zero") << QVariant(0.0) << QStringLiteral("0.000") << QStringLiteral("00");
        QTest::newRow("20.12345") << QVariant(20.12345) << QStringLiteral("20.123") << QStringLiteral("45");
        QTest::newRow("negative") << QVariant(-2.5) << QStringLiteral("-2.500") << QStringLiteral("00");
        QTest::newRow("rounds at five decimals") << QVariant(1.999999) << QStringLiteral("2.000") << QStringLiteral("00");
        QTest::newRow("absent") << QVariant() << dash() << QString();
        QTest::newRow("infinite") << QVariant(std::numeric_limits<double>::infinity()) << dash() << QString();
    }

    void meterValueText()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, large);
        QFETCH(QString, small);
        const MeterValueText text = ferrow::meterValueText(value.isValid() ? std::optional(value.toDouble()) : std::nullopt);
        QCOMPARE(text.large, large);
        QCOMPARE(text.small, small);
    }

    // One-line texts: each row is what a helper returned and what it should read.
    void texts_data()
    {
        QTest::addColumn<QString>("actual");
        QTest::addColumn<QString>("expected");
        const auto health = [](std::optional<std::int64_t> percent, const QString &condition) {
            PowerSnapshot s;
            s.batteryHealthPercent = percent;
            s.batteryHealthCondition = batteryHealthConditionFromRaw(condition);
            return batteryHealthText(s);
        };
        QTest::newRow("meter, accessible") << meterAccessibleText(QStringLiteral("VBUS"), 20.12345, QStringLiteral("V")) << QStringLiteral("VBUS 20.12345 V");
        QTest::newRow("meter, accessible, absent") << meterAccessibleText(QStringLiteral("PWR"), std::nullopt, QStringLiteral("W")) << QStringLiteral("PWR \u2014 W");
        QTest::newRow("health absent") << health(std::nullopt, QStringLiteral("good")) << dash();
        QTest::newRow("health without condition") << health(92, QString()) << QStringLiteral("92%");
        QTest::newRow("health with condition") << health(92, QStringLiteral("good"))
                                               << localizedText("battery.health_value").arg(92).arg(localizedText("battery.health.good"));
        QTest::newRow("temperature rounds") << batteryTemperatureText(31.26) << QStringLiteral("31.3 \u00B0C");
        QTest::newRow("temperature below zero") << batteryTemperatureText(-4.0) << QStringLiteral("-4.0 \u00B0C");
        QTest::newRow("temperature absent") << batteryTemperatureText(std::nullopt) << dash();
        QTest::newRow("current under 1 A keeps its sign") << signedCurrentText(0.5) << QStringLiteral("+0.500 A");
        // Energies and shares as precise as their size calls for, each step taken on the rounded figure.
        QTest::newRow("energy in mWh") << energyText(0.035) << QStringLiteral("35 mWh");
        QTest::newRow("energy just under 0.1 Wh") << energyText(0.0994) << QStringLiteral("99 mWh");
        QTest::newRow("energy rounding up to 0.1 Wh") << energyText(0.0995) << QStringLiteral("0.10 Wh");
        QTest::newRow("energy under 1 Wh") << energyText(0.834) << QStringLiteral("0.83 Wh");
        QTest::newRow("energy rounding up to 1 Wh") << energyText(0.996) << QStringLiteral("1.0 Wh");
        QTest::newRow("energy rounding up to 100 Wh") << energyText(99.96) << QStringLiteral("100 Wh");
        QTest::newRow("energy of minus zero") << energyText(-0.0) << QStringLiteral("0 mWh");
        QTest::newRow("energy below zero") << energyText(-0.2) << dash();
        QTest::newRow("energy not a number") << energyText(std::numeric_limits<double>::quiet_NaN()) << dash();
        QTest::newRow("share") << shareText(0.234) << QStringLiteral("23%");
        QTest::newRow("share under 10%") << shareText(0.042) << QStringLiteral("4.2%");
        QTest::newRow("share rounding up to 10%") << shareText(0.0996) << QStringLiteral("10%");
        QTest::newRow("share too small to show") << shareText(0.0004) << QStringLiteral("<0.1%");
        QTest::newRow("share of nothing") << shareText(0.0) << QStringLiteral("0%");
        QTest::newRow("CPU time under a minute") << cpuTimeText(59.4) << QStringLiteral("59 s");
        QTest::newRow("CPU time rounding to a minute") << cpuTimeText(59.6) << QStringLiteral("1 min");
        // A line of applications as a screen reader hears it, in the popover and in the window.
        AppRow row{Kind::application, {}, {}, QStringLiteral("Browser"), {}, QStringLiteral("4.1 Wh"), QStringLiteral("1.2 W"), QStringLiteral("23%"), 0.23, true, false};
        QTest::newRow("line, spoken") << spokenAppRow(row, false, true) << QStringLiteral("Browser, 23 percent, 4.1 watt-hours, estimated");
        row = {Kind::self, {}, {}, QStringLiteral("Ferrow (this app)"), QStringLiteral("since it started"), QStringLiteral("35 mWh"), QStringLiteral("0.0 W"),
               QStringLiteral("0.4%"), 0.004, false, true};
        QTest::newRow("line with its note and mean power, spoken") << spokenAppRow(row, true, true)
            << QStringLiteral("Ferrow (this app), since it started, 0.4 percent, 35 milliwatt-hours, 0.0 watts, measured");
        row.amount = QStringLiteral("42 s");
        QTest::newRow("line of CPU time, spoken") << spokenAppRow(row, true, false) << QStringLiteral("Ferrow (this app), since it started, 0.4 percent, 42 s");
        // A monogram's letter: the name's first letter or figure, whole, as a capital where it has one of a letter.
        QTest::newRow("monogram") << monogramLetter(QStringLiteral("firefox")) << QStringLiteral("F");
        QTest::newRow("monogram past signs") << monogramLetter(QStringLiteral("  (beta) tool")) << QStringLiteral("B");
        QTest::newRow("monogram of a letter outside the basic plane") << monogramLetter(QStringLiteral("\U0001D538pp")) << QStringLiteral("\U0001D538");
        QTest::newRow("monogram whose capital is two letters") << monogramLetter(QStringLiteral("\u00DFeta")) << QStringLiteral("\u00DF");
        QTest::newRow("monogram without a letter") << monogramLetter(QStringLiteral("\U0001F3B5")) << QStringLiteral("?");
    }

    void texts()
    {
        QFETCH(QString, actual);
        QFETCH(QString, expected);
        QCOMPARE(actual, expected);
    }

    // What a screen reader hears for a value as shown: units in words, the locale's digits.
    void spokenValues_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("spoken");
        const QLocale english(QLocale::English, QLocale::UnitedStates), german(QLocale::German, QLocale::Germany);
        QTest::newRow("watts") << english << QStringLiteral("22.4 W") << QStringLiteral("22.4 watts");
        QTest::newRow("signed watts") << english << QStringLiteral("+31.8 W") << QStringLiteral("+31.8 watts");
        QTest::newRow("below zero") << english << QStringLiteral("-4.0 \u00B0C") << QStringLiteral("-4.0 degrees Celsius");
        QTest::newRow("the dash") << english << dash() << QStringLiteral("not available");
        QTest::newRow("a capacity, plural") << english << localizedFormat("capacity.mah", {6249}) << QStringLiteral("6,249 milliampere-hours");
        QTest::newRow("a capacity, singular") << english << localizedFormat("capacity.mah", {1}) << QStringLiteral("1 milliampere-hour");
        QTest::newRow("the sample rate") << english << QStringLiteral("1 Hz") << QStringLiteral("1 hertz");
        QTest::newRow("a figure inside a text") << english << QStringLiteral("USB-C PD \u00B7 20.1 V") << QStringLiteral("USB-C PD \u00B7 20.1 volts");
        QTest::newRow("another unit that starts alike") << english << QStringLiteral("8.4 Wh") << QStringLiteral("8.4 watt-hours");
        QTest::newRow("milliwatt-hours, a count") << english << QStringLiteral("1 mWh") << QStringLiteral("1 milliwatt-hour");
        QTest::newRow("a share") << english << QStringLiteral("4.2%") << QStringLiteral("4.2 percent");
        QTest::newRow("words") << english << QStringLiteral("Charging") << QStringLiteral("Charging");
        QTest::newRow("German digits") << german << QStringLiteral("+1.500 A") << QStringLiteral("+1,500 amperes");
        QTest::newRow("German capacity") << german << QStringLiteral("6.249 mAh") << QStringLiteral("6.249 milliampere-hours");
    }

    void spokenValues()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, shown);
        QFETCH(QString, spoken);
        const QLocale before;
        QLocale::setDefault(locale);
        const QString actual = spokenValue(shown);
        QLocale::setDefault(before);
        QCOMPARE(actual, spoken);
    }

    // The flow diagram in words, in each of its cases.
    void flowDescriptions_data()
    {
        QTest::addColumn<PowerSnapshot>("snapshot");
        QTest::addColumn<QString>("description");
        PowerSnapshot charging = notebook(true, true, 31.76);
        charging.dcPowerW = 46.38;
        charging.systemPowerW = 14.62;
        QTest::newRow("charging") << charging << QStringLiteral("Adapter 46.4 watts to system 14.6 watts and battery 31.8 watts");
        PowerSnapshot helped = notebook(true, false, -10.0);
        helped.systemPowerW = 40.0;
        QTest::newRow("the battery helps the adapter") << helped << QStringLiteral("Adapter 30.0 watts and battery 10.0 watts to system 40.0 watts");
        PowerSnapshot onBattery = notebook(false, false, -22.4);
        onBattery.dcPowerW = 0;
        onBattery.systemPowerW = 22.4;
        QTest::newRow("on battery") << onBattery << QStringLiteral("Battery 22.4 watts to system 22.4 watts");
        PowerSnapshot waiting = onBattery;
        waiting.isDataAvailable = false;
        QTest::newRow("waiting") << waiting << QStringLiteral("Battery not available to system 22.4 watts");
        PowerSnapshot desktop;
        desktop.isExternalConnected = true;
        desktop.dcPowerW = 35.0;
        desktop.systemPowerW = 35.0;
        QTest::newRow("desktop") << desktop << QStringLiteral("Adapter 35.0 watts to system 35.0 watts");
    }

    void flowDescriptions()
    {
        QFETCH(PowerSnapshot, snapshot);
        QFETCH(QString, description);
        QCOMPARE(flowDescription(snapshot), description);
    }

    // The popover's status as read, and which changes of it are announced.
    void liveStatus_data()
    {
        QTest::addColumn<PowerSnapshot>("before");
        QTest::addColumn<PowerSnapshot>("after");
        QTest::addColumn<QString>("status"); // of after
        QTest::addColumn<bool>("announced");
        const PowerSnapshot charging = notebook(true, true, 18.0), onBattery = notebook(false, false, -6.0);
        PowerSnapshot notCharging = notebook(true, false, 0.0), full = notCharging, waiting = charging, moreFigures = charging;
        notCharging.batteryPercent = 99;
        full.batteryPercent = 100;
        waiting.isDataAvailable = false;
        moreFigures.dcPowerW = 42.0;
        moreFigures.batteryFlowW = 25.0;
        QTest::newRow("unplugged") << charging << onBattery << QStringLiteral("Live, On battery") << true;
        QTest::newRow("plugged in") << onBattery << charging << QStringLiteral("Live, Charging") << true;
        QTest::newRow("fully charged") << notCharging << full << QStringLiteral("Live, Fully charged") << true;
        QTest::newRow("charging pauses: still plugged in") << charging << notCharging << QStringLiteral("Live, Not charging") << false;
        QTest::newRow("figures change") << charging << moreFigures << QStringLiteral("Live, Charging") << false;
        QTest::newRow("first reading") << waiting << charging << QStringLiteral("Live, Charging") << false;
        QTest::newRow("readings stop") << charging << waiting << QStringLiteral("Waiting for telemetry") << false;
    }

    void liveStatus()
    {
        QFETCH(PowerSnapshot, before);
        QFETCH(PowerSnapshot, after);
        QFETCH(QString, status);
        QFETCH(bool, announced);
        QCOMPARE(liveStatusText(after), status);
        QCOMPARE(isAnnouncedChange(before, after), announced);
    }

    // Lines as "name|amount|mean power|share|marks": ~ estimated, ^ pinned at the foot.
    void applicationRows_data()
    {
        QTest::addColumn<AppEnergyList>("list");
        QTest::addColumn<int>("sort");
        QTest::addColumn<int>("ranked"); // 0: the popover's three
        QTest::addColumn<QStringList>("rows");
        const int byEnergy = int(AppSort::energy), byPower = int(AppSort::meanPower);

        const AppEnergyList ties = appList({app("Beta", 3600, 5), app("Eps", 7200, 10), app("alpha", 3600, 5), app("Gamma", 3600, 9), app("Delta", std::nullopt, 50)});
        QTest::newRow("ties: the more CPU time, then the name; no energy last") << ties << byEnergy << 12
            << lines({"Eps|2.0 Wh|2.0 W|40%|~", "Gamma|1.0 Wh|1.0 W|20%|~", "alpha|1.0 Wh|1.0 W|20%|~", "Beta|1.0 Wh|1.0 W|20%|~", "Delta|\u2014|\u2014|\u2014|"});

        const AppEnergyList spans = appList({app("Long", 3600), app("Short", 1800, 1, Kind::application, 600)}, AttributionMethod::measured);
        QTest::newRow("by energy") << spans << byEnergy << 12 << lines({"Long|1.0 Wh|1.0 W|67%|", "Short|0.50 Wh|3.0 W|33%|"});
        QTest::newRow("by mean power: over the time each covers") << spans << byPower << 12 << lines({"Short|0.50 Wh|3.0 W|33%|", "Long|1.0 Wh|1.0 W|67%|"});

        const AppEnergyList measured = appList({app("", 36000, 0, Kind::others), app("Big", 3600), app("", 360, 1, Kind::rest), app("Ferrow", 1800, 1, Kind::self)},
                                               AttributionMethod::measured);
        QTest::newRow("measured: ranked in place, the remainders at the foot, the system's estimated") << measured << byEnergy << 12
            << lines({"Big|1.0 Wh|1.0 W|8.6%|", "Ferrow (this app)|0.50 Wh|0.5 W|4.3%|", "Other applications|0.10 Wh|0.1 W|0.9%|",
                           "System and other users|10.0 Wh|10.0 W|86%|~"});

        const AppEnergyList many = appList({app("X", 3600), app("Y", 1800), app("Z", 720, 2), app("Ferrow", 36, 1, Kind::self, 1800), app("", 360, 1, Kind::rest),
                                            app("", 1800, 0, Kind::others)});
        QTest::newRow("past the ranked: folded into the rest, this program pinned") << many << byEnergy << 2
            << lines({"X|1.0 Wh|1.0 W|43%|~", "Y|0.50 Wh|0.5 W|22%|~", "Other applications|0.30 Wh|0.3 W|13%|~", "System and other users|0.50 Wh|0.5 W|22%|~",
                           "Ferrow (this app) \u00B7 since it started|10 mWh|0.0 W|0.4%|~^"});
        QTest::newRow("popover: applications only") << many << byEnergy << 0
            << lines({"X|1.0 Wh|1.0 W|43%|~", "Y|0.50 Wh|0.5 W|22%|~", "Z|0.20 Wh|0.2 W|8.7%|~"});
        QTest::newRow("popover: this program ranks, nothing used is left out")
            << appList({app("Idle", 0, 0), app("Ferrow", 360, 1, Kind::self), app("Busy", 720), app("", 5000, 0, Kind::others)}) << byEnergy << 0
            << lines({"Busy|0.20 Wh|0.2 W|12%|~", "Ferrow (this app)|0.10 Wh|0.1 W|5.9%|~"});

        const AppEnergyList cpu = appList({app("Shell", std::nullopt, 30), app("", std::nullopt, 30, Kind::others), app("Editor", std::nullopt, 90),
                                           app("Ferrow", std::nullopt, 0.4, Kind::self)},
                                          AttributionMethod::cpuTime);
        QTest::newRow("CPU time only: by it whatever the sort, no marks") << cpu << byPower << 12
            << lines({"Editor|1 min||60%|", "Shell|30 s||20%|", "Ferrow (this app)|0 s||0.3%|", "System and other users|30 s||20%|"});
        QTest::newRow("nothing") << AppEnergyList{} << byEnergy << 12 << QStringList();
    }

    void applicationRows()
    {
        QFETCH(AppEnergyList, list);
        QFETCH(int, sort);
        QFETCH(int, ranked);
        QFETCH(QStringList, rows);
        QStringList actual;
        for (const AppRow &row : ranked > 0 ? appRows(list, AppSort(sort), std::size_t(ranked)) : topAppRows(list)) {
            const QString name = row.note.isEmpty() ? row.name : row.name + QStringLiteral(" \u00B7 ") + row.note;
            actual << QStringLiteral("%1|%2|%3|%4|%5%6").arg(name, row.amount, row.meanPower, row.share, row.estimated ? QStringLiteral("~") : QString(),
                                                              row.pinned ? QStringLiteral("^") : QString());
        }
        QCOMPARE(actual, rows);
    }

    void applicationListStates_data()
    {
        QTest::addColumn<int>("period");
        QTest::addColumn<bool>("historyEnabled");
        QTest::addColumn<AppEnergyList>("list");
        QTest::addColumn<int>("state");
        const AppEnergyList used = appList({app("Mail", 36)}), idle = appList({app("Mail", 0, 0), app("", 0, 0, Kind::others)});
        QTest::newRow("session, history off: nothing yet") << int(AppPeriod::session) << false << AppEnergyList{} << int(AppListState::empty);
        QTest::newRow("today, history off") << int(AppPeriod::today) << false << AppEnergyList{} << int(AppListState::historyOff);
        QTest::newRow("today, history off, yet a list") << int(AppPeriod::today) << false << used << int(AppListState::shown);
        QTest::newRow("30 days, nothing used") << int(AppPeriod::thirtyDays) << true << idle << int(AppListState::empty);
    }

    void applicationListStates()
    {
        QFETCH(int, period);
        QFETCH(bool, historyEnabled);
        QFETCH(AppEnergyList, list);
        QFETCH(int, state);
        QCOMPARE(int(appListState(AppPeriod(period), historyEnabled, list)), state);
    }

    void iconSources_data()
    {
        QTest::addColumn<QString>("icon");
        QTest::addColumn<int>("source");
        QTest::newRow("a bundle") << QStringLiteral("/Applications/Mail.app") << int(AppIconSource::bundle);
        QTest::newRow("a bundle, as a folder") << QStringLiteral("/Applications/Mail.app/") << int(AppIconSource::bundle);
        QTest::newRow("an image") << QStringLiteral("/usr/share/pixmaps/mail.png") << int(AppIconSource::file);
        QTest::newRow("a theme's name") << QStringLiteral("mail-client") << int(AppIconSource::theme);
        QTest::newRow("a relative path") << QStringLiteral("icons/mail.png") << int(AppIconSource::none);
        QTest::newRow("blank") << QStringLiteral("  ") << int(AppIconSource::none);
    }

    void iconSources()
    {
        QFETCH(QString, icon);
        QFETCH(int, source);
        QCOMPARE(int(appIconSource(icon)), source);
    }

    void segmentFills_data()
    {
        QTest::addColumn<qint64>("level");
        QTest::addColumn<QList<double>>("fills");
        QTest::newRow("45 %") << qint64(45) << QList<double>{1, 1, 1, 1, 0.5, 0, 0, 0, 0, 0};
        QTest::newRow("100 %") << qint64(100) << QList<double>(10, 1.0);
        QTest::newRow("above 100 %") << qint64(150) << QList<double>(10, 1.0);
        QTest::newRow("0 %") << qint64(0) << QList<double>(10, 0.0);
        QTest::newRow("below 0 %") << qint64(-10) << QList<double>(10, 0.0);
        QTest::newRow("1 %") << qint64(1) << QList<double>{0.1, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    }

    void segmentFills()
    {
        QFETCH(qint64, level);
        QFETCH(QList<double>, fills);
        for (int i = 0; i < 10; ++i)
            QVERIFY2(qAbs(segmentFillFraction(level, i) - fills[i]) < 1e-12, qPrintable(QString::number(i)));
    }
};

QTEST_GUILESS_MAIN(ViewModelsTest)
#include "tst_view_models.moc"
