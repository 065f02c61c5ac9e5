#include "views/accessibility_model.h"

#include "model/localized_text.h"
#include "model/value_text.h"
#include "views/dashboard_model.h"

#include <QByteArrayView>
#include <QLocale>
#include <QRegularExpression>

#include <optional>
#include <utility>

namespace ferrow {
namespace {

// The figures of the fixed technical formats ("%.1f W", "%.2f V", "%.3f A", "%.1f °C"), energies,
// shares and the sample rate, wherever they stand in a text: "USB-C PD · 20.1 V" has one.
const QRegularExpression &figurePattern()
{
    static const QRegularExpression pattern(
        QStringLiteral("(?<![\\w.])([+-]?)(\\d+)(?:\\.(\\d+))?(?: (mWh|Wh|W|V|A|\u00B0C|Hz)(?!\\w)|(%))"));
    return pattern;
}

const char *unitKey(QStringView unit)
{
    if (unit == u"W")
        return "accessibility.watts";
    if (unit == u"Wh")
        return "accessibility.watt_hours";
    if (unit == u"%")
        return "accessibility.percent";
    if (unit == u"V")
        return "accessibility.volts";
    if (unit == u"A")
        return "accessibility.amperes";
    return "accessibility.degrees_celsius";
}

QString spokenFigure(const QRegularExpressionMatch &match, const QLocale &locale)
{
    const QString sign = match.captured(1), whole = match.captured(2), decimals = match.captured(3);
    const QString unit = match.hasCaptured(5) ? match.captured(5) : match.captured(4);
    // The sample rate and small energies are whole counts; no other is shown.
    for (const auto &[countUnit, key] : {std::pair{QStringView(u"Hz"), "accessibility.hertz"}, std::pair{QStringView(u"mWh"), "accessibility.milliwatt_hours"}}) {
        if (unit == countUnit)
            return sign.isEmpty() && decimals.isEmpty() ? localizedCount(key, whole.toLongLong()) : match.captured(0);
    }
    // Shown with a point whatever the language; heard in the locale's own digits.
    const double magnitude = QString(whole + u'.' + decimals + u'0').toDouble();
    QString figure = locale.toString(magnitude, 'f', static_cast<int>(decimals.size()));
    if (sign == u"+")
        figure.prepend(locale.positiveSign());
    else if (sign == u"-")
        figure.prepend(locale.negativeSign());
    return localizedFormatText(unitKey(unit), {figure});
}

enum class PluggedState { onBattery, onAdapter, fullyCharged };

std::optional<PluggedState> pluggedState(const PowerSnapshot &s)
{
    if (!s.hasBattery || !s.isDataAvailable)
        return std::nullopt;
    if (!s.isExternalConnected)
        return PluggedState::onBattery;
    return QByteArrayView(s.statusKey()) == "status.fully_charged" ? PluggedState::fullyCharged : PluggedState::onAdapter;
}

} // namespace

QString spokenValue(const QString &shown)
{
    if (shown.trimmed().isEmpty() || shown == absentText())
        return localizedText("accessibility.not_available");
    const QLocale locale;
    // Capacities are shown in the locale's digits already, with the unit after them.
    if (shown.endsWith(QStringLiteral(" mAh"))) {
        bool isNumber = false;
        const qlonglong mAh = locale.toLongLong(shown.chopped(4), &isNumber);
        if (isNumber)
            return localizedCount("accessibility.milliampere_hours", mAh);
    }
    QString spoken;
    qsizetype from = 0;
    for (const QRegularExpressionMatch &match : figurePattern().globalMatch(shown)) {
        spoken += QStringView(shown).mid(from, match.capturedStart() - from);
        spoken += spokenFigure(match, locale);
        from = match.capturedEnd();
    }
    spoken += QStringView(shown).mid(from);
    return spoken;
}

QString spokenReading(const QString &label, const QString &shownValue)
{
    return localizedFormatText("accessibility.reading", {label, spokenValue(shownValue)});
}

QString spokenNote(const QString &title, const QString &description)
{
    return localizedFormatText("accessibility.note", {title, description});
}

QString liveStatusText(const PowerSnapshot &snapshot)
{
    if (snapshot.hasBattery && !snapshot.isDataAvailable)
        return snapshot.statusText(); // "Waiting for telemetry" says both
    return localizedFormatText("accessibility.reading", {statusIndicator(snapshot).text, snapshot.statusText()});
}

bool isAnnouncedChange(const PowerSnapshot &before, const PowerSnapshot &after)
{
    const std::optional<PluggedState> was = pluggedState(before), is = pluggedState(after);
    return was && is && *was != *is;
}

} // namespace ferrow
