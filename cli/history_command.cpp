#include "history_command.h"

#include "export/history_export.h"
#include "history/history_recorder.h"

#include <QDateTime>
#include <QFile>
#include <QTextStream>

namespace ferrow {
namespace {

constexpr UnixSeconds kDefaultSpanS = 30 * 86'400;

std::optional<HistoryPeriod> parsePeriod(const QString &per)
{
    if (per == u"minute")
        return HistoryPeriod::minute;
    if (per == u"hour")
        return HistoryPeriod::hour;
    if (per == u"day")
        return HistoryPeriod::day;
    return std::nullopt;
}

// The start of the period holding that moment, so that the first row is not a fragment.
UnixSeconds periodStart(UnixSeconds moment, HistoryPeriod per)
{
    switch (per) {
    case HistoryPeriod::minute:
        return moment / 60 * 60;
    case HistoryPeriod::hour:
        return moment / 3600 * 3600;
    case HistoryPeriod::day:
    case HistoryPeriod::month:
        break;
    }
    return QDateTime::fromSecsSinceEpoch(moment).date().startOfDay().toSecsSinceEpoch();
}

int printTable(const QString &error, const QByteArray &text)
{
    if (!error.isEmpty()) {
        QTextStream(stderr) << "ferrow-cli: " << QString(error).replace(u'\n', u' ') << '\n';
        return 1;
    }
    QFile out;
    if (!out.open(stdout, QIODevice::WriteOnly) || out.write(text) != text.size() || !out.flush())
        return 1;
    return 0;
}

QString databasePath(const QString &given)
{
    return given.isEmpty() ? HistoryRecorder::defaultDatabasePath() : given;
}

int printApplications(const QString &periodName, TableFormat format, const QString &path)
{
    const std::optional<AppPeriod> period = appPeriodFromName(periodName);
    if (!period) {
        QTextStream(stderr) << "ferrow-cli: --period takes session, today, 7d or 30d, not '" << periodName << "'\n";
        return 2;
    }
    const HistoryDatabase database(databasePath(path), HistoryDatabase::Mode::readOnly);
    QString error = database.error();
    QByteArray text;
    if (error.isEmpty()) {
        const UnixSeconds now = QDateTime::currentSecsSinceEpoch();
        // The session is the newest stored one, written with every minute while it lasts.
        const std::vector<SessionRecord> newest = database.sessions(0, now + 1, 1, &error);
        const UnixSeconds from = appPeriodStart(*period, now, newest.empty() ? now : newest.front().start);
        if (error.isEmpty())
            text = applicationsTable(database.applications(from, now + 1, &error), format);
    }
    return printTable(error, text);
}

} // namespace

int printHistory(const HistoryOptions &options)
{
    QTextStream err(stderr);
    const auto usage = [&](const QString &message) {
        err << "ferrow-cli: " << message << '\n';
        return 2;
    };
    std::optional<TableFormat> format;
    if (options.format == u"csv")
        format = TableFormat::csv;
    else if (options.format == u"json")
        format = TableFormat::json;
    else
        return usage(QStringLiteral("--format takes csv or json, not '%1'").arg(options.format));
    if (options.apps)
        return printApplications(options.appPeriod, *format, options.database);
    const std::optional<HistoryPeriod> per = parsePeriod(options.per);
    if (!per)
        return usage(QStringLiteral("--per takes minute, hour or day, not '%1'").arg(options.per));

    const auto badTime = [&](const char *option, const QString &text) {
        return usage(QStringLiteral("%1 takes an ISO 8601 date or date-time such as 2026-11-01, 2026-11-01T08:30 or "
                                    "2026-11-01T08:30:00Z, not '%2'")
                         .arg(QLatin1StringView(option), text));
    };
    UnixSeconds to = QDateTime::currentSecsSinceEpoch();
    if (options.to) {
        const std::optional<UnixSeconds> parsed = parseIsoTime(*options.to);
        if (!parsed)
            return badTime("--to", *options.to);
        to = *parsed;
    }
    UnixSeconds from = options.sessions ? to - kDefaultSpanS : periodStart(to - kDefaultSpanS, *per);
    if (options.from) {
        const std::optional<UnixSeconds> parsed = parseIsoTime(*options.from);
        if (!parsed)
            return badTime("--from", *options.from);
        from = *parsed;
    }
    if (from >= to)
        return usage(QStringLiteral("--from (%1) is not before --to (%2)").arg(isoUtc(from), isoUtc(to)));

    const HistoryDatabase database(databasePath(options.database), HistoryDatabase::Mode::readOnly);
    QString error = database.error();
    QByteArray text;
    if (error.isEmpty()) {
        text = options.sessions ? sessionsTable(database.sessions(from, to, -1, &error), *format)
                                : periodsTable(database.energy(from, to, *per, &error), *format);
    }
    return printTable(error, text);
}

} // namespace ferrow
