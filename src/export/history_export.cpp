#include "export/history_export.h"

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>

#include <array>
#include <cmath>
#include <variant>

namespace ferrow {
namespace {

using Cell = std::variant<std::monostate, double, std::int64_t, bool, QString>;

template <typename Record>
struct Column {
    const char *name;
    Cell (*value)(const Record &);
};

template <typename T>
Cell orEmpty(const std::optional<T> &value)
{
    return value ? Cell(*value) : Cell();
}

const std::array<Column<PeriodEnergy>, 14> kPeriodColumns{{
    {"start", [](const PeriodEnergy &p) -> Cell { return isoUtc(p.start); }},
    {"covered_s", [](const PeriodEnergy &p) -> Cell { return p.energy.coveredS; }},
    {"adapter_wh", [](const PeriodEnergy &p) { return orEmpty(p.energy.adapterWh); }},
    {"system_wh", [](const PeriodEnergy &p) { return orEmpty(p.energy.systemWh); }},
    {"battery_in_wh", [](const PeriodEnergy &p) { return orEmpty(p.energy.batteryInWh); }},
    {"battery_out_wh", [](const PeriodEnergy &p) { return orEmpty(p.energy.batteryOutWh); }},
    {"cpu_wh", [](const PeriodEnergy &p) { return orEmpty(p.energy.chipWh[0]); }},
    {"gpu_wh", [](const PeriodEnergy &p) { return orEmpty(p.energy.chipWh[1]); }},
    {"ane_wh", [](const PeriodEnergy &p) { return orEmpty(p.energy.chipWh[2]); }},
    {"ram_wh", [](const PeriodEnergy &p) { return orEmpty(p.energy.chipWh[3]); }},
    {"min_power_w", [](const PeriodEnergy &p) { return orEmpty(p.minPowerW); }},
    {"mean_power_w", [](const PeriodEnergy &p) { return orEmpty(p.meanPowerW); }},
    {"max_power_w", [](const PeriodEnergy &p) { return orEmpty(p.maxPowerW); }},
    {"battery_percent", [](const PeriodEnergy &p) { return orEmpty(p.batteryPercent); }},
}};

const std::array<Column<SessionRecord>, 10> kSessionColumns{{
    {"start", [](const SessionRecord &s) -> Cell { return isoUtc(s.start); }},
    {"end", [](const SessionRecord &s) -> Cell { return isoUtc(s.end); }},
    {"external_power", [](const SessionRecord &s) -> Cell { return s.externalPower; }},
    {"start_percent", [](const SessionRecord &s) { return orEmpty(s.startPercent); }},
    {"end_percent", [](const SessionRecord &s) { return orEmpty(s.endPercent); }},
    {"energy_wh", [](const SessionRecord &s) -> Cell { return s.energyWh; }},
    {"covered_s", [](const SessionRecord &s) -> Cell { return s.coveredS; }},
    {"mean_power_w", [](const SessionRecord &s) { return orEmpty(s.meanPowerW()); }},
    {"peak_power_w", [](const SessionRecord &s) { return orEmpty(s.peakPowerW); }},
    {"battery_id", [](const SessionRecord &s) { return orEmpty(s.batteryId); }},
}};

struct AppLine {
    const AppEnergy *app;
    std::optional<double> share;
};

const std::array<Column<AppLine>, 10> kApplicationColumns{{
    {"kind", [](const AppLine &l) -> Cell { return QString::fromLatin1(appKindName(l.app->kind)); }},
    {"app", [](const AppLine &l) -> Cell { return l.app->group; }},
    {"name", [](const AppLine &l) -> Cell { return l.app->name; }},
    {"energy_wh", [](const AppLine &l) { return orEmpty(l.app->energyJ ? std::optional(*l.app->energyJ / 3600.0) : std::nullopt); }},
    {"share", [](const AppLine &l) { return orEmpty(l.share); }},
    {"mean_power_w", [](const AppLine &l) { return orEmpty(l.app->meanPowerW()); }},
    {"cpu_s", [](const AppLine &l) -> Cell { return l.app->cpuTimeS; }},
    {"covered_s", [](const AppLine &l) -> Cell { return l.app->coveredS; }},
    {"method", [](const AppLine &l) -> Cell { return QString::fromLatin1(attributionMethodName(l.app->method)); }},
    {"estimated", [](const AppLine &l) -> Cell { return !l.app->isMeasured(); }},
}};

QByteArray csvText(const QString &text)
{
    static const QRegularExpression needsQuotes(QStringLiteral("[,\"\\r\\n]"));
    if (!text.contains(needsQuotes))
        return text.toUtf8();
    QString quoted = text;
    quoted.replace(u'"', QStringLiteral("\"\""));
    return '"' + quoted.toUtf8() + '"';
}

QByteArray jsonText(const QString &text)
{
    QByteArray out = "\"";
    for (const char c : text.toUtf8()) {
        if (c == '"' || c == '\\')
            out += QByteArray("\\") + c;
        else if (c == '\n')
            out += "\\n";
        else if (static_cast<unsigned char>(c) < 0x20)
            out += "\\u00" + QByteArray::number(static_cast<int>(c), 16).rightJustified(2, '0');
        else
            out += c;
    }
    return out + '"';
}

// Nothing (absent, or a number JSON cannot hold) comes back empty.
QByteArray cellText(const Cell &cell, TableFormat format)
{
    if (const auto *number = std::get_if<double>(&cell))
        // Fixed notation with the fewest digits that read back as the same double: exact, and no
        // exponent for a spreadsheet to trip over.
        return std::isfinite(*number) ? QByteArray::number(*number, 'f', QLocale::FloatingPointShortest) : QByteArray();
    if (const auto *count = std::get_if<std::int64_t>(&cell))
        return QByteArray::number(static_cast<qlonglong>(*count));
    if (const auto *flag = std::get_if<bool>(&cell))
        return *flag ? "true" : "false";
    if (const auto *text = std::get_if<QString>(&cell))
        return format == TableFormat::csv ? csvText(*text) : jsonText(*text);
    return {};
}

template <typename Record, std::size_t N>
QByteArray table(const std::vector<Record> &records, const std::array<Column<Record>, N> &columns, TableFormat format)
{
    QByteArray out;
    if (format == TableFormat::csv) {
        for (const Column<Record> &column : columns)
            out += QByteArray(column.name) + (&column == &columns.back() ? '\n' : ',');
        for (const Record &record : records) {
            for (const Column<Record> &column : columns)
                out += cellText(column.value(record), format) + (&column == &columns.back() ? '\n' : ',');
        }
        return out;
    }
    out = "[";
    for (const Record &record : records) {
        out += (&record == &records.front() ? "\n{" : ",\n{");
        for (const Column<Record> &column : columns) {
            const QByteArray value = cellText(column.value(record), format);
            out += (&column == &columns.front() ? "\"" : ",\"") + QByteArray(column.name) + "\":" + (value.isEmpty() ? "null" : value);
        }
        out += '}';
    }
    return out + (records.empty() ? "]\n" : "\n]\n");
}

std::optional<QTimeZone> offsetZone(QStringView offset)
{
    if (offset.isEmpty())
        return std::nullopt;
    if (offset == u"Z")
        return QTimeZone::utc();
    const int hours = offset.mid(1, 2).toInt();
    const int minutes = offset.size() > 3 ? offset.right(2).toInt() : 0;
    if (hours > 14 || minutes > 59)
        return QTimeZone(); // invalid
    return QTimeZone((offset.front() == u'-' ? -1 : 1) * (hours * 3600 + minutes * 60));
}

} // namespace

QString isoUtc(UnixSeconds seconds)
{
    // Spelled out: Qt writes a UTC zone as +00:00 rather than Z.
    return QDateTime::fromSecsSinceEpoch(seconds, QTimeZone::utc()).toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss'Z'"));
}

QByteArray periodsTable(const std::vector<PeriodEnergy> &periods, TableFormat format)
{
    return table(periods, kPeriodColumns, format);
}

QByteArray sessionsTable(const std::vector<SessionRecord> &sessions, TableFormat format)
{
    return table(sessions, kSessionColumns, format);
}

QByteArray applicationsTable(const AppEnergyList &list, TableFormat format)
{
    std::vector<AppLine> lines;
    lines.reserve(list.apps.size());
    for (const AppEnergy &app : list.apps)
        lines.push_back({&app, list.share(app)});
    return table(lines, kApplicationColumns, format);
}

std::optional<UnixSeconds> parseIsoTime(QStringView text, const std::optional<QTimeZone> &zone)
{
    static const QRegularExpression form(QStringLiteral(
        "^(\\d{4})-(\\d{2})-(\\d{2})(?:T(\\d{2}):(\\d{2})(?::(\\d{2}))?(Z|[+-]\\d{2}(?::?\\d{2})?)?)?$"));
    const QRegularExpressionMatch match = form.match(text.toString());
    if (!match.hasMatch())
        return std::nullopt;
    const auto number = [&](int group) { return match.capturedView(group).toInt(); };
    const QDate date(number(1), number(2), number(3));
    if (!date.isValid())
        return std::nullopt;
    QDateTime time;
    if (!match.hasCaptured(4)) {
        time = zone ? date.startOfDay(*zone) : date.startOfDay();
    } else {
        const QTime clock(number(4), number(5), match.hasCaptured(6) ? number(6) : 0);
        if (!clock.isValid())
            return std::nullopt;
        const std::optional<QTimeZone> offset = offsetZone(match.capturedView(7));
        if (offset && !offset->isValid())
            return std::nullopt;
        if (offset)
            time = QDateTime(date, clock, *offset);
        else
            time = zone ? QDateTime(date, clock, *zone) : QDateTime(date, clock);
    }
    if (!time.isValid())
        return std::nullopt;
    return time.toSecsSinceEpoch();
}

} // namespace ferrow
